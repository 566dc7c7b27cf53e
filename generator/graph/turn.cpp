#include "graph/turn.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace gen {

NodeId nodeAt(const Graph& graph, const BlockStep& place) {
    const Block due{.kind = place.kind, .length = place.length, .multiplier = place.multiplier};
    int left = place.step;
    for (NodeId id : graph.aliveNodes()) {
        const Node& node = graph.node(id);
        const Block& block = graph.block(node.block);
        if (node.kind == Kind::Load || !block.isInstanceOfSame(due) || block.instance != place.instance) continue;
        if (left-- == 0) return id;
    }
    throw std::out_of_range("no step " + std::to_string(place.step) + " in instance " + std::to_string(place.instance) +
                            " of a block of " + std::to_string(place.length));
}

std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<BlockStep>& places) {
    if (places.empty()) return graph;
    std::vector<NodeId> nodes;
    for (const BlockStep& place : places) nodes.push_back(nodeAt(*graph, place));
    auto fresh = std::make_unique<Graph>();
    fresh->takeBlocksOf(*graph);
    PerNode<Value> copies;
    for (std::size_t i = 0; i < graph->nodes().size(); ++i) {
        const Node& node = graph->node(NodeId(i));
        const bool turns = std::ranges::find(nodes, NodeId(i)) != nodes.end();
        if (turns && node.kind != Kind::Sub) throw std::logic_error("only a difference can be reversed");
        fresh->continueBlock(node.block);
        copies.push_back(turns ? -(copies[node.b] - copies[node.a]) : fresh->copy(*graph, node, copies));
    }
    for (const Pair& pair : graph->pairs()) fresh->pair(copies[pair.re], copies[pair.im]);
    for (const Output& output : graph->outputs()) {
        fresh->store(output.place, output.minus ? -copies[output.node] : copies[output.node]);
    }
    return fresh;
}

}  // namespace gen
