#include "graph/graph.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
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

// Whether two steps are of the same kind, up to sign.
bool areAlike(const Node& a, const Node& b) {
    const auto isSum = [](const Node& x) { return x.kind == Kind::Add || x.kind == Kind::Sub; };
    if (isSum(a)) return isSum(b);
    return a.kind == b.kind && (a.kind != Kind::Scaled || a.constant == b.constant);
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
        allNodes.back().block = currentBlock;
    }
    if (recording != nullptr) recording->nodes.push_back(found->second);
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
    const NodeId reversed = insert(Node{Kind::Sub, node.b, node.a});
    if (const auto old = pairOf(x.node); old && !pairOf(reversed)) {
        const NodeId other = old->re == x.node ? old->im : old->re;
        pairByNode.erase(x.node);
        pairByNode.erase(other);
        old->re == x.node ? pair(reversed, other) : pair(other, reversed);
    }
    return {this, reversed, false};
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

BlockId Graph::beginBlock(const Block& block) {
    const auto isSame = [&](const Block& other) { return block.isInstanceOfSame(other); };
    const auto instance = static_cast<int>(std::ranges::count_if(allBlocks, isSame));
    allBlocks.push_back(block);
    allBlocks.back().instance = instance;
    allBlocks.back().outer = currentBlock;
    return std::exchange(currentBlock, BlockId(allBlocks.size() - 1));
}

void Graph::pair(NodeId re, NodeId im) {
    if (recording != nullptr || re == im || !areAlike(node(re), node(im))) return;
    if (pairByNode.contains(re) || pairByNode.contains(im)) return;
    if (exchangesPairs) std::swap(re, im);
    pairByNode[re] = pairByNode[im] = {re, im};
}

std::vector<BlockId> Graph::blocksAround(NodeId id) const {
    std::vector<BlockId> around;
    for (BlockId at = node(id).block; at != BlockId{}; at = block(at).outer) around.insert(around.begin(), at);
    return around;
}

std::optional<Pair> Graph::pairOf(NodeId node) const {
    const auto found = pairByNode.find(node);
    return found == pairByNode.end() ? std::nullopt : std::optional(found->second);
}

std::vector<Pair> Graph::pairs() const {
    std::vector<Pair> pairs;
    for (const auto& [node, pair] : pairByNode) {
        if (node == std::min(pair.re, pair.im)) pairs.push_back(pair);
    }
    return pairs;
}

Recording::~Recording() {
    graph.recording = outer;
    if (outer != nullptr) outer->nodes.insert(outer->nodes.end(), nodes.begin(), nodes.end());
}

namespace {

using Steps = std::span<const NodeId>;

// Steps of one block on either side. Only a stretch in the middle may differ.
void pairInBlock(Graph& graph, Steps re, Steps im) {
    const auto alike = [&](NodeId a, NodeId b) { return areAlike(graph.node(a), graph.node(b)); };
    while (!re.empty() && !im.empty() && alike(re.front(), im.front())) {
        graph.pair(re.front(), im.front());
        re = re.subspan(1);
        im = im.subspan(1);
    }
    while (!re.empty() && !im.empty() && alike(re.back(), im.back())) {
        graph.pair(re.back(), im.back());
        re = re.first(re.size() - 1);
        im = im.first(im.size() - 1);
    }
    const auto productsOf = [&](Steps steps) {
        std::vector<NodeId> products;
        std::ranges::copy_if(steps, std::back_inserter(products),
                             [&](NodeId id) { return graph.node(id).kind == Kind::Scaled; });
        return products;
    };
    const std::vector<NodeId> reProducts = productsOf(re), imProducts = productsOf(im);
    if (reProducts.size() != imProducts.size()) return;
    for (std::size_t i = 0; i < reProducts.size(); ++i) graph.pair(reProducts[i], imProducts[i]);
}

// The steps cut where another block begins.
std::vector<Steps> stretches(const Graph& graph, Steps steps) {
    std::vector<Steps> result;
    while (!steps.empty()) {
        const BlockId block = graph.node(steps.front()).block;
        const auto end = std::ranges::find_if(steps, [&](NodeId id) { return graph.node(id).block != block; });
        const auto size = static_cast<std::size_t>(end - steps.begin());
        result.push_back(steps.first(size));
        steps = steps.subspan(size);
    }
    return result;
}

}  // namespace

void pairInOrder(Graph& graph, const std::vector<NodeId>& re, const std::vector<NodeId>& im) {
    const std::vector<Steps> reStretches = stretches(graph, re), imStretches = stretches(graph, im);
    if (reStretches.size() != imStretches.size()) return pairInBlock(graph, re, im);
    for (std::size_t i = 0; i < reStretches.size(); ++i) pairInBlock(graph, reStretches[i], imStretches[i]);
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
