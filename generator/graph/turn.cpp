#include "graph/turn.h"

#include <algorithm>
#include <stdexcept>

namespace gen {

std::unique_ptr<Graph> turned(std::unique_ptr<Graph> graph, const std::vector<int>& nodes) {
    if (nodes.empty()) return graph;
    auto fresh = std::make_unique<Graph>();
    fresh->takeBlocksOf(*graph);
    std::vector<Value> copies;
    const auto copyOf = [&](int number) { return copies[static_cast<std::size_t>(number)]; };
    for (const Node& node : graph->nodes()) {
        const bool turns = std::ranges::find(nodes, static_cast<int>(copies.size())) != nodes.end();
        if (turns && node.kind != Kind::Sub) throw std::logic_error("only a difference can be reversed");
        fresh->continueBlock(node.title);
        copies.push_back(turns ? -(copyOf(node.b) - copyOf(node.a)) : fresh->copy(*graph, node, copies));
    }
    for (const Output& output : graph->outputs()) {
        fresh->store(output.place, output.minus ? -copyOf(output.node) : copyOf(output.node));
    }
    return fresh;
}

}  // namespace gen
