// The steps of a graph in units: single nodes, or groups of nodes that stay together.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

// What stays together: nothing, or the two nodes of each pair. A text for one number per register takes single nodes,
// which leaves fewer values waiting; one for a complex number per register takes pairs.
enum class Unit { Node, Pair };

// Nodes that stay together: one, two or four, in an order that means something to those who read it.
using Group = std::vector<NodeId>;

class Units {
public:
    Units(const Graph& graph, Unit unit);

    // Every node is in at most one group, and a node that is in none is a unit by itself. Groups that take values from
    // each other, or from each other in a circle, cannot stay together: the first one that is met in a circle is cut in
    // halves, until there is none.
    Units(const Graph& graph, std::vector<Group> groups);

    // Units are numbered from 0: by their last nodes, but each one after those whose values it takes. Loads are units,
    // nodes that no output needs are in none.
    std::size_t count() const { return units.size(); }
    const std::vector<NodeId>& nodes(std::size_t unit) const { return units[unit]; }
    std::size_t of(NodeId node) const { return unitByNode[node]; }

    // The units whose values a unit takes, each once.
    std::vector<std::size_t> operands(std::size_t unit) const;

private:
    void list(const std::vector<Group>& groups);
    bool sort(std::vector<Group>& groups);
    void number();

    const Graph& graph;
    std::vector<std::vector<NodeId>> units;
    PerNode<std::size_t> unitByNode;
};

}  // namespace gen
