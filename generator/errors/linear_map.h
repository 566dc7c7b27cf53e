// A graph as a linear map: every node as a sum of inputs, and every output as a sum of what is added at nodes.
//
// The factors are those that a kernel holds, rounded to its constants. What the exact factors would give is kept beside
// it at full width, so that the error of the constants themselves can be told.
#pragma once

#include <vector>

#include "graph/graph.h"

namespace gen {

// What the constants of a kernel are rounded to.
enum class Width { Single, Double };

class LinearMap {
public:
    // No node of the graph may be a product of two values.
    LinearMap(const Graph& graph, Width constants);

    const Graph& graph() const { return source; }

    // The factors of the inputs in a node, and the 2-norm of these.
    const std::vector<double>& row(NodeId node) const { return rows[node]; }
    double norm(NodeId node) const;
    // How far these factors are from those with exact constants.
    const std::vector<double>& shift(NodeId node) const { return shifts[node]; }

    // For each node, by how much what is added there changes an output.
    PerNode<double> gains(const Output& output) const;

    // The same of each use of a node by itself, which add up to its gain. The lists of all outputs have the same order:
    // the steps that use the node, then the output. A product with a power of two does not round, and has no use of its
    // own: what uses it uses its operand.
    PerNode<std::vector<double>> gainsOfUses(const Output& output) const;

    // The factor of a scaled node as the kernel has it.
    double factor(const Node& node) const { return factors[index(node.constant)]; }
    // Whether the step of a node can round: loads do not, nor do products with powers of two.
    bool rounds(NodeId node) const;

private:
    const Graph& source;
    std::vector<double> factors;
    PerNode<std::vector<double>> rows, shifts;
};

}  // namespace gen
