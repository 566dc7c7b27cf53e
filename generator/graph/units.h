// The steps of a graph in units: single nodes, or pairs that stay together.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

// What stays together: nothing, or the two nodes of each pair. A text for one number per register takes single nodes,
// which leaves fewer values waiting; one for a complex number per register takes pairs.
enum class Unit { Node, Pair };

class Units {
public:
    // Pairs that take values from each other, or from each other in a circle, cannot stay together: the first one that
    // is met in a circle is taken apart, until there is none.
    Units(const Graph& graph, Unit unit);

    // Units are numbered from 0: by their last nodes, but each one after those whose values it takes. Loads are units,
    // nodes that no output needs are in none.
    std::size_t count() const { return units.size(); }
    const std::vector<NodeId>& nodes(std::size_t unit) const { return units[unit]; }
    std::size_t of(NodeId node) const { return unitByNode[node]; }

    // The units whose values a unit takes, each once.
    std::vector<std::size_t> operands(std::size_t unit) const;

private:
    void list(const PerNode<bool>& isTogether);
    bool sort(PerNode<bool>& isTogether);
    void number();

    const Graph& graph;
    std::vector<std::vector<NodeId>> units;
    PerNode<std::size_t> unitByNode;
};

}  // namespace gen
