#include "errors/linear_map.h"

#include <cmath>
#include <stdexcept>

namespace gen {
namespace {

using ExactRow = std::vector<Exact>;

std::vector<double> inDouble(const ExactRow& row) {
    std::vector<double> result;
    for (const Exact& x : row) result.push_back(nearest(x));
    return result;
}

// The factors of the inputs in every node, with these constants.
PerNode<ExactRow> exactRows(const Graph& graph, const std::vector<Exact>& factors) {
    const auto inputs = static_cast<std::size_t>(graph.inputs());
    const Exact zero, one = 1;
    PerNode<ExactRow> rows;
    PerNode<std::vector<bool>> reached;  // whether a node comes from an input: sums of zeros are left out
    for (const Node& node : graph.nodes()) {
        ExactRow row(inputs, zero);
        std::vector<bool> reach(inputs, false);
        for (std::size_t i = 0; i < inputs; ++i) {
            reach[i] = node.kind == Kind::Load && static_cast<std::size_t>(node.input) == i;
            for (NodeId operand : operands(node)) reach[i] = reach[i] || reached[operand][i];
            if (!reach[i]) continue;
            switch (node.kind) {
                case Kind::Load: row[i] = one; break;
                case Kind::Add: row[i] = rows[node.a][i] + rows[node.b][i]; break;
                case Kind::Sub: row[i] = rows[node.a][i] - rows[node.b][i]; break;
                case Kind::Scaled: row[i] = factors[index(node.constant)] * rows[node.a][i]; break;
                case Kind::Product: throw std::logic_error("a product of two values is not linear");
            }
        }
        rows.push_back(std::move(row));
        reached.push_back(std::move(reach));
    }
    return rows;
}

}  // namespace

LinearMap::LinearMap(const Graph& graph, Width constants) : source(graph) {
    std::vector<Exact> exact, stored;
    for (const Constant& constant : graph.constants()) {
        const double held =
            constants == Width::Double ? constant.stored : static_cast<double>(static_cast<float>(constant.stored));
        exact.push_back(constant.exact);
        stored.push_back(Exact(held));
        factors.push_back(held);
    }
    const PerNode<ExactRow> due = exactRows(graph, exact), held = exactRows(graph, stored);
    for (std::size_t i = 0; i < graph.nodes().size(); ++i) {
        const NodeId node{static_cast<int>(i)};
        ExactRow difference = held[node];
        for (std::size_t j = 0; j < difference.size(); ++j) difference[j] = difference[j] - due[node][j];
        rows.push_back(inDouble(held[node]));
        shifts.push_back(inDouble(difference));
    }
}

double LinearMap::norm(NodeId node) const {
    double squares = 0;
    for (double factor : rows[node]) squares += factor * factor;
    return std::sqrt(squares);
}

PerNode<double> LinearMap::gains(const Output& output) const {
    const auto& nodes = source.nodes();
    PerNode<double> gains(nodes.size(), 0.0);
    gains[output.node] = 1;
    for (std::size_t i = nodes.size(); i-- > 0;) {
        const Node& node = nodes[i];
        const double gain = gains[NodeId(i)];
        if (gain == 0 || node.kind == Kind::Load) continue;
        const double scaled = node.kind == Kind::Scaled ? gain * factor(node) : gain;
        gains[node.a] += scaled;
        if (node.kind != Kind::Scaled) gains[node.b] += node.kind == Kind::Sub ? -gain : gain;
    }
    return gains;
}

PerNode<std::vector<double>> LinearMap::gainsOfUses(const Output& output) const {
    const auto& nodes = source.nodes();
    const PerNode<double> gain = gains(output);
    PerNode<std::vector<double>> uses(nodes.size());
    for (std::size_t i = nodes.size(); i-- > 0;) {  // all steps that use a node come before it
        const NodeId id{static_cast<int>(i)};
        const Node& node = nodes[i];
        uses[id].push_back(id == output.node ? 1 : 0);
        if (node.kind == Kind::Load) continue;
        if (node.kind != Kind::Scaled) {
            uses[node.a].push_back(gain[id]);
            uses[node.b].push_back(node.kind == Kind::Sub ? -gain[id] : gain[id]);
        } else if (rounds(id)) {
            uses[node.a].push_back(gain[id] * factor(node));
        } else {
            for (double use : uses[id]) uses[node.a].push_back(use * factor(node));
        }
    }
    return uses;
}

bool LinearMap::rounds(NodeId id) const {
    const Node& node = source.node(id);
    if (node.kind != Kind::Scaled) return node.kind != Kind::Load;
    int exponent;
    return std::frexp(factor(node), &exponent) != 0.5;
}

}  // namespace gen
