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

std::string number(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", x);
    return text;
}

}  // namespace

Coefficient cosine(int k, int n) { return {cosTurn(k, n), turn("cos", k, n)}; }
Coefficient sine(int k, int n) { return {sinTurn(k, n), turn("sin", k, n)}; }

int Graph::insert(Kind kind, int a, int b) {
    const bool commutes = kind == Kind::Add || kind == Kind::Product;
    const auto key = commutes ? std::tuple(kind, std::min(a, b), std::max(a, b)) : std::tuple(kind, a, b);
    const auto [found, isNew] = standing.try_emplace(key, static_cast<int>(allNodes.size()));
    if (isNew) allNodes.push_back({kind, a, b, currentTitle});
    return found->second;
}

Value Graph::load(int input) {
    inputCount = std::max(inputCount, input + 1);
    return {this, insert(Kind::Load, input, 0), false};
}

Value Graph::sum(Value a, Value b) {
    if (a.minus == b.minus) return {this, insert(Kind::Add, a.node, b.node), a.minus};
    if (a.minus) std::swap(a, b);
    return {this, insert(Kind::Sub, a.node, b.node), false};
}

int Graph::constant(const Coefficient& factor) {
    const bool minus = factor.value < 0;
    const Exact magnitude = minus ? Exact(-factor.value) : factor.value;
    const double stored = nearest(magnitude);
    const auto [found, isNew] = constantByValue.try_emplace(stored, static_cast<int>(allConstants.size()));
    if (isNew) allConstants.push_back({magnitude, stored, (minus ? "-" : "") + factor.origin});
    return found->second;
}

Value Graph::product(const Coefficient& factor, Value x) {
    if (factor.value == 0) throw std::logic_error("a product with zero: " + factor.origin);
    return {this, insert(Kind::Mul, x.node, constant(factor)), x.minus != (factor.value < 0)};
}

Value Graph::product(Value a, Value b) { return {this, insert(Kind::Product, a.node, b.node), a.minus != b.minus}; }

Value Graph::withoutMinus(Value x) {
    const Node node = allNodes[static_cast<std::size_t>(x.node)];
    if (!x.minus || node.kind != Kind::Sub) return x;
    return {this, insert(Kind::Sub, node.b, node.a), false};
}

Value Graph::copy(const Graph& other, const Node& node, const std::vector<Value>& copies) {
    if (node.kind == Kind::Load) return load(node.a);
    const Value a = copies[static_cast<std::size_t>(node.a)];
    if (node.kind == Kind::Mul) {
        const Constant& factor = other.constants()[static_cast<std::size_t>(node.b)];
        return product({factor.exact, factor.origin}, a);
    }
    const Value b = copies[static_cast<std::size_t>(node.b)];
    if (node.kind == Kind::Product) return a * b;
    return node.kind == Kind::Add ? a + b : a - b;
}

int Graph::beginBlock(const std::string& title) {
    titles.push_back(title);
    return std::exchange(currentTitle, static_cast<int>(titles.size()) - 1);
}

std::vector<bool> Graph::alive() const {
    std::vector<bool> needed(allNodes.size(), false);
    for (const Output& output : allOutputs) needed[static_cast<std::size_t>(output.node)] = true;
    for (std::size_t i = allNodes.size(); i-- > 0;) {
        const Node& node = allNodes[i];
        if (!needed[i] || node.kind == Kind::Load) continue;
        needed[static_cast<std::size_t>(node.a)] = true;
        if (node.kind != Kind::Mul) needed[static_cast<std::size_t>(node.b)] = true;
    }
    return needed;
}

Counts Graph::counts() const {
    Counts counts;
    std::set<int> used;
    const std::vector<bool> needed = alive();
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        if (!needed[i]) continue;
        switch (allNodes[i].kind) {
            case Kind::Load: break;
            case Kind::Add: ++counts.additions; break;
            case Kind::Sub: ++counts.subtractions; break;
            case Kind::Mul:
                ++counts.multiplications;
                used.insert(allNodes[i].b);
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
    const auto name = [](int node) { return "v" + std::to_string(node); };
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        const Node& node = allNodes[i];
        text += name(static_cast<int>(i)) + " = ";
        switch (node.kind) {
            case Kind::Load: text += "in " + std::to_string(node.a); break;
            case Kind::Add: text += name(node.a) + " + " + name(node.b); break;
            case Kind::Sub: text += name(node.a) + " - " + name(node.b); break;
            case Kind::Product: text += name(node.a) + " * " + name(node.b); break;
            case Kind::Mul:
                text += number(allConstants[static_cast<std::size_t>(node.b)].stored) + " * " + name(node.a);
                break;
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
    const auto edge = [&](int from, const std::string& to) {
        text += "    n" + std::to_string(from) + " -> " + to + ";\n";
    };
    for (std::size_t i = 0; i < allNodes.size(); ++i) {
        const Node& node = allNodes[i];
        const std::string name = "n" + std::to_string(i);
        switch (node.kind) {
            case Kind::Load:
                text +=
                    "    " + name + " [label=\"x" + std::to_string(node.a) + "\", shape=box, fillcolor=lightblue];\n";
                continue;
            case Kind::Add: text += "    " + name + " [label=\"+\"];\n"; break;
            case Kind::Sub: text += "    " + name + " [label=\"-\"];\n"; break;
            case Kind::Product: text += "    " + name + " [label=\"*\"];\n"; break;
            case Kind::Mul:
                text += "    " + name + " [label=\"" + allConstants[static_cast<std::size_t>(node.b)].origin +
                        "\", shape=ellipse, fillcolor=lightyellow];\n";
                break;
        }
        edge(node.a, name);
        if (node.kind != Kind::Mul) edge(node.b, name);
    }
    for (const Output& output : allOutputs) {
        const std::string name = "out" + std::to_string(output.place);
        text += "    " + name + " [label=\"" + (output.minus ? "-" : "") + "X" + std::to_string(output.place) +
                "\", shape=box, fillcolor=lightgreen];\n";
        edge(output.node, name);
    }
    return text + "}\n";
}

}  // namespace gen
