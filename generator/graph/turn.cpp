#include "graph/turn.h"

#include <algorithm>
#include <stdexcept>

namespace gen {

std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<NodeId>& nodes) {
    if (nodes.empty()) return graph;
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
