// The data-flow graph of one transform: loads, additions, subtractions, products with a constant and, where a factor
// comes from a table, products of two values.
//
// Nodes are numbered by their index in one vector, and a node never refers to a later one. Inserting a step that the
// graph already has gives the node of that step. Values carry the signs and nodes have none, so that every constant is
// positive and no negation is ever inserted: (-a) + b is b - a, and (-a) + (-b) is minus the sum. The graph has no
// other algebra.
//
// Two more things are remembered of a node: its block, and its pair. The two nodes that work on the real and on the
// imaginary parts of one complex step are a pair; so are those of two real channels that take the same steps. The two
// are of the same kind up to sign: both loads, both sums or differences, both products with the same constant.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "graph/block.h"
#include "numbers/exact.h"

namespace gen {

class Graph;

// A node and a constant of a graph. They are types of their own, so that they cannot be taken for each other or for an
// index into some other list.
enum class NodeId : int {};
enum class ConstantId : int {};

// The place of a node or a constant in a list that holds one entry for each.
constexpr std::size_t index(NodeId node) { return static_cast<std::size_t>(node); }
constexpr std::size_t index(ConstantId constant) { return static_cast<std::size_t>(constant); }
constexpr int number(NodeId node) { return static_cast<int>(node); }

// What rules pass around while they build a graph: a node, and the sign with which it is used.
struct Value {
    Graph* graph;
    NodeId node;
    bool minus;
};

// A factor of a product: its value with its sign, and its formula, such as "cos 2 pi 3/16".
struct Coefficient {
    Exact value;
    std::string origin;
};

// cos and sin of 2 pi k/n.
Coefficient cosine(int k, int n);
Coefficient sine(int k, int n);

// A stored constant: a magnitude, at full width and as the double that a kernel holds.
struct Constant {
    Exact exact;
    double stored;
    std::string origin;
};

// Scaled: a constant times a. Product: a times b.
enum class Kind { Load, Add, Sub, Scaled, Product };

struct Node {
    Kind kind;
    NodeId a{}, b{};        // what it works on; see `operands`
    ConstantId constant{};  // of Scaled
    int input = 0;          // of Load: the number of the input
    BlockId block{};
};

// The nodes that a node works on: none for a load, one for a scaled node, otherwise two, which may be the same.
class Operands {
public:
    explicit constexpr Operands(const Node& node)
        : ids{node.a, node.b},
          count(node.kind == Kind::Load     ? 0
                : node.kind == Kind::Scaled ? 1
                                            : 2) {}
    constexpr const NodeId* begin() const { return ids.data(); }
    constexpr const NodeId* end() const { return ids.data() + count; }

private:
    std::array<NodeId, 2> ids;
    std::size_t count;
};
constexpr Operands operands(const Node& node) { return Operands(node); }

struct Pair {
    NodeId re, im;
};

struct Output {
    int place;  // the number of the output; not every number need occur
    NodeId node;
    bool minus;
};

// A list with one entry for each node of a graph.
template <class T>
class PerNode {
public:
    PerNode() = default;
    explicit PerNode(std::size_t nodes, T initial = T{}) : entries(nodes, initial) {}
    decltype(auto) operator[](NodeId node) { return entries[index(node)]; }
    decltype(auto) operator[](NodeId node) const { return entries[index(node)]; }
    void push_back(T entry) { entries.push_back(std::move(entry)); }
    bool operator==(const PerNode&) const = default;

private:
    std::vector<T> entries;
};

struct Counts {
    int additions = 0, subtractions = 0, multiplications = 0, negations = 0, constants = 0;
    bool operator==(const Counts&) const = default;
};

class Graph {
public:
    Graph() = default;
    Graph(const Graph&) = delete;  // values point to their graph
    Graph& operator=(const Graph&) = delete;

    Value load(int input);
    Value sum(Value a, Value b);
    Value product(const Coefficient& factor, Value x);
    Value product(Value a, Value b);

    // For minus a difference the reversed difference, since -(a - b) = b - a; any other value is returned as it is. The
    // old step is neither counted nor emitted any more unless something else uses it. The new one takes its place in
    // its pair.
    Value withoutMinus(Value x);

    // Gives output number `place` its value. Outputs keep the order in which they are stored.
    void store(int place, Value value) { allOutputs.push_back({place, value.node, value.minus}); }

    // Nodes that are inserted from now on belong to this new block. Returns the block before.
    BlockId beginBlock(const Block& block);
    void continueBlock(BlockId block) { currentBlock = block; }

    // Takes over the blocks of another graph, so that each of its nodes can be copied into its own block.
    void takeBlocksOf(const Graph& other) { allBlocks = other.allBlocks; }

    // Makes two nodes a pair. It has no effect where they are not of the same kind, or where one of them has a pair
    // already: it is a step that two complex steps share.
    void pair(Value re, Value im) { pair(re.node, im.node); }
    void pair(NodeId re, NodeId im);

    const std::vector<Node>& nodes() const { return allNodes; }
    const Node& node(NodeId id) const { return allNodes[index(id)]; }
    const std::vector<Constant>& constants() const { return allConstants; }
    const Constant& constant(ConstantId id) const { return allConstants[index(id)]; }
    const std::vector<Output>& outputs() const { return allOutputs; }
    const std::vector<Block>& blocks() const { return allBlocks; }
    const Block& block(BlockId id) const { return allBlocks[static_cast<std::size_t>(id)]; }
    // The blocks that a node is in, the outermost one first.
    std::vector<BlockId> blocksAround(NodeId node) const;
    // The pair of a node, and all pairs in order of their first nodes.
    std::optional<Pair> pairOf(NodeId node) const;
    std::vector<Pair> pairs() const;
    int inputs() const { return inputCount; }

    // The nodes on which an output depends, in their order; and for each node, whether it is one of them.
    std::vector<NodeId> aliveNodes() const;
    PerNode<bool> alive() const;
    Counts counts() const;

    // The graph with one node to a line, in order of insertion, and as a GraphViz drawing.
    std::string text() const;
    std::string dot() const;

    // Inserts a node of another graph. `copies` holds the values that the other graph's earlier nodes have in this one.
    Value copy(const Graph& other, const Node& node, const PerNode<Value>& copies);

private:
    friend class Recording;
    friend class ExchangedPairs;
    NodeId insert(const Node& node);
    ConstantId insert(const Coefficient& factor);

    std::vector<Node> allNodes;
    std::map<std::tuple<Kind, NodeId, NodeId, ConstantId, int>, NodeId> standing;
    std::vector<Constant> allConstants;
    std::map<double, ConstantId> constantByValue;
    std::vector<Output> allOutputs;
    std::vector<Block> allBlocks{Block{}};
    BlockId currentBlock{};
    std::map<NodeId, Pair> pairByNode;
    class Recording* recording = nullptr;
    bool exchangesPairs = false;
    int inputCount = 0;
};

// Nodes that are inserted while one of these lives belong to its block.
class InBlock {
public:
    InBlock(Graph& owner, const Block& block) : graph(owner), previous(owner.beginBlock(block)) {}
    ~InBlock() { graph.continueBlock(previous); }
    InBlock(const InBlock&) = delete;
    InBlock& operator=(const InBlock&) = delete;

private:
    Graph& graph;
    BlockId previous;
};

// While one of these lives it writes down the steps that the graph is asked for, whether they are new or were there
// before. No pairs are made in that time.
class Recording {
public:
    explicit Recording(Graph& owner) : graph(owner), outer(std::exchange(owner.recording, this)) {}
    ~Recording();
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    const std::vector<NodeId>& steps() const { return nodes; }

private:
    friend class Graph;
    Graph& graph;
    Recording* outer;
    std::vector<NodeId> nodes;
};

// While one of these lives, the second node of what is made a pair comes first: the parts of complex values go through
// a block in exchanged roles then.
class ExchangedPairs {
public:
    explicit ExchangedPairs(Graph& owner) : graph(owner), outer(owner.exchangesPairs) { graph.exchangesPairs = !outer; }
    ~ExchangedPairs() { graph.exchangesPairs = outer; }
    ExchangedPairs(const ExchangedPairs&) = delete;
    ExchangedPairs& operator=(const ExchangedPairs&) = delete;

private:
    Graph& graph;
    bool outer;
};

// Makes pairs of the steps of two recordings, block by block: each with the one at its place in the other list. The
// lists of a block differ where the order of a sum follows a sign; only the products are paired there.
void pairInOrder(Graph& graph, const std::vector<NodeId>& re, const std::vector<NodeId>& im);

inline Value operator-(Value x) { return {x.graph, x.node, !x.minus}; }
inline Value operator+(Value a, Value b) { return a.graph->sum(a, b); }
inline Value operator-(Value a, Value b) { return a.graph->sum(a, -b); }
inline Value operator*(const Coefficient& factor, Value x) { return x.graph->product(factor, x); }
inline Value operator*(Value a, Value b) { return a.graph->product(a, b); }

// Interprets the graph: its outputs for these inputs, in the arithmetic of T. A number that no output has gives 0.
template <class T>
std::vector<T> evaluate(const Graph& graph, std::span<const T> inputs) {
    PerNode<T> value;
    for (const Node& node : graph.nodes()) {
        switch (node.kind) {
            case Kind::Load: value.push_back(inputs[static_cast<std::size_t>(node.input)]); break;
            case Kind::Add: value.push_back(value[node.a] + value[node.b]); break;
            case Kind::Sub: value.push_back(value[node.a] - value[node.b]); break;
            case Kind::Scaled:
                value.push_back(static_cast<T>(graph.constant(node.constant).exact) * value[node.a]);
                break;
            case Kind::Product: value.push_back(value[node.a] * value[node.b]); break;
        }
    }
    std::vector<T> result;
    for (const Output& output : graph.outputs()) {
        const auto place = static_cast<std::size_t>(output.place);
        if (result.size() <= place) result.resize(place + 1, T{0});
        result[place] = output.minus ? T{-value[output.node]} : value[output.node];
    }
    return result;
}

}  // namespace gen
