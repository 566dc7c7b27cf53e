#include "graph/graph.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <stdexcept>
#include <utility>

namespace gen {
namespace {

std::string turn(const char* function, int k, int n) {
    return std::string(function) + " 2 pi " + std::to_string(k) + "/" + std::to_string(n);
}

std::string decimals(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", x);
    return text;
}

}  // namespace

Coefficient cosine(int k, int n) { return {cosTurn(k, n), turn("cos", k, n)}; }
Coefficient sine(int k, int n) { return {sinTurn(k, n), turn("sin", k, n)}; }

NodeId Graph::insert(const Node& node) {
    const bool commutes = node.kind == Kind::Add || node.kind == Kind::Product;
    const NodeId first = commutes ? std::min(node.a, node.b) : node.a;
    const NodeId second = commutes ? std::max(node.a, node.b) : node.b;
    const auto key = std::tuple(node.kind, first, second, node.constant, node.input);
    const auto [found, isNew] = standing.try_emplace(key, NodeId(allNodes.size()));
    if (isNew) {
        allNodes.push_back(node);
        allNodes.back().title = currentTitle;
    }
    return found->second;
}

Value Graph::load(int input) {
    inputCount = std::max(inputCount, input + 1);
    return {this, insert(Node{.kind = Kind::Load, .input = input}), false};
}

Value Graph::sum(Value a, Value b) {
    if (a.minus == b.minus) return {this, insert(Node{Kind::Add, a.node, b.node}), a.minus};
    if (a.minus) std::swap(a, b);
    return {this, insert(Node{Kind::Sub, a.node, b.node}), false};
}

ConstantId Graph::insert(const Coefficient& factor) {
    const bool minus = factor.value < 0;
    const Exact magnitude = minus ? Exact(-factor.value) : factor.value;
    const double stored = nearest(magnitude);
    const auto [found, isNew] = constantByValue.try_emplace(stored, ConstantId(allConstants.size()));
    if (isNew) allConstants.push_back({magnitude, stored, (minus ? "-" : "") + factor.origin});
    return found->second;
}

Value Graph::product(const Coefficient& factor, Value x) {
    if (factor.value == 0) throw std::logic_error("a product with zero: " + factor.origin);
    return {this, insert(Node{.kind = Kind::Scaled, .a = x.node, .constant = insert(factor)}),
            x.minus != (factor.value < 0)};
}

Value Graph::product(Value a, Value b) {
    return {this, insert(Node{Kind::Product, a.node, b.node}), a.minus != b.minus};
}

Value Graph::withoutMinus(Value x) {
    const Node node = allNodes[index(x.node)];
    if (!x.minus || node.kind != Kind::Sub) return x;
    return {this, insert(Node{Kind::Sub, node.b, node.a}), false};
}

Value Graph::copy(const Graph& other, const Node& node, const PerNode<Value>& copies) {
    switch (node.kind) {
        case Kind::Load: return load(node.input);
        case Kind::Add: return copies[node.a] + copies[node.b];
        case Kind::Sub: return copies[node.a] - copies[node.b];
        case Kind::Scaled: {
            const Constant& factor = other.constant(node.constant);
            return Coefficient{factor.exact, factor.origin} * copies[node.a];
        }
        case Kind::Product: return copies[node.a] * copies[node.b];
    }
    throw std::logic_error("a node of no kind");
}

int Graph::beginBlock(const std::string& title) {
    titles.push_back(title);
    return std::exchange(currentTitle, static_cast<int>(titles.size()) - 1);
}

PerNode<bool> Graph::alive() const {
    PerNode<bool> needed(allNodes.size(), false);
    for (const Output& output : allOutputs) needed[output.node] = true;
    for (std::size_t i = allNodes.size(); i-- > 0;) {
        if (!needed[NodeId(i)]) continue;
        for (NodeId operand : operands(allNodes[i])) needed[operand] = true;
    }
    return needed;
}

std::vector<NodeId> Graph::aliveNodes() const {
    const PerNode<bool> needed = alive();
    std::vector<NodeId> nodes;
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        if (needed[NodeId(i)]) nodes.push_back(NodeId(i));
    }
    return nodes;
}

Counts Graph::counts() const {
    Counts counts;
    std::set<ConstantId> used;
    for (NodeId id : aliveNodes()) {
        switch (node(id).kind) {
            case Kind::Load: break;
            case Kind::Add: ++counts.additions; break;
            case Kind::Sub: ++counts.subtractions; break;
            case Kind::Scaled:
                ++counts.multiplications;
                used.insert(node(id).constant);
                break;
            case Kind::Product: ++counts.multiplications; break;
        }
    }
    for (const Output& output : allOutputs) counts.negations += output.minus;
    counts.constants = static_cast<int>(used.size());
    return counts;
}

std::string Graph::text() const {
    std::string text;
    const auto name = [](NodeId id) { return "v" + std::to_string(number(id)); };
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        const Node& node = allNodes[i];
        text += name(NodeId(i)) + " = ";
        switch (node.kind) {
            case Kind::Load: text += "in " + std::to_string(node.input); break;
            case Kind::Add: text += name(node.a) + " + " + name(node.b); break;
            case Kind::Sub: text += name(node.a) + " - " + name(node.b); break;
            case Kind::Product: text += name(node.a) + " * " + name(node.b); break;
            case Kind::Scaled: text += decimals(constant(node.constant).stored) + " * " + name(node.a); break;
        }
        text += "\n";
    }
    for (const Output& output : allOutputs) {
        text += "out " + std::to_string(output.place) + " = " + (output.minus ? "-" : "") + name(output.node) + "\n";
    }
    return text;
}

std::string Graph::dot() const {
    std::string text = "digraph {\n    node [shape=circle, style=filled, fillcolor=white];\n";
    const auto name = [](NodeId id) { return "n" + std::to_string(number(id)); };
    const auto label = [](const Node& node, const Graph& graph) -> std::string {
        switch (node.kind) {
            case Kind::Load: return "\"x" + std::to_string(node.input) + "\", shape=box, fillcolor=lightblue";
            case Kind::Add: return "\"+\"";
            case Kind::Sub: return "\"-\"";
            case Kind::Scaled:
                return "\"" + graph.constant(node.constant).origin + "\", shape=ellipse, fillcolor=lightyellow";
            case Kind::Product: return "\"*\"";
        }
        throw std::logic_error("a node of no kind");
    };
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        text += "    " + name(NodeId(i)) + " [label=" + label(allNodes[i], *this) + "];\n";
        for (NodeId operand : operands(allNodes[i])) {
            text += "    " + name(operand) + " -> " + name(NodeId(i)) + ";\n";
        }
    }
    for (const Output& output : allOutputs) {
        const std::string box = "out" + std::to_string(output.place);
        text += "    " + box + " [label=\"" + (output.minus ? "-" : "") + "X" + std::to_string(output.place) +
                "\", shape=box, fillcolor=lightgreen];\n";
        text += "    " + name(output.node) + " -> " + box + ";\n";
    }
    return text + "}\n";
}

}  // namespace gen
