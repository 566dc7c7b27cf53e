// The data-flow graph of one transform: loads, additions, subtractions, products with a constant and, where a factor
// comes from a table, products of two values.
//
// Nodes are numbered by their index in one vector, and a node never refers to a later one. Inserting a step that the
// graph already has gives the node of that step. Values carry the signs and nodes have none, so that every constant is
// positive and no negation is ever inserted: (-a) + b is b - a, and (-a) + (-b) is minus the sum. The graph has no
// other algebra.
#pragma once

#include <array>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <vector>

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
    int title = 0;
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
    // old step is neither counted nor emitted any more unless something else uses it.
    Value withoutMinus(Value x);

    // Gives output number `place` its value. Outputs keep the order in which they are stored.
    void store(int place, Value value) { allOutputs.push_back({place, value.node, value.minus}); }

    // Nodes that are inserted from now on belong to a new block of this title. Returns the number of the block before.
    int beginBlock(const std::string& title);
    void continueBlock(int title) { currentTitle = title; }

    // Takes over the blocks of another graph, so that each of its nodes can be copied into its own block.
    void takeBlocksOf(const Graph& other) { titles = other.titles; }

    const std::vector<Node>& nodes() const { return allNodes; }
    const Node& node(NodeId id) const { return allNodes[index(id)]; }
    const std::vector<Constant>& constants() const { return allConstants; }
    const Constant& constant(ConstantId id) const { return allConstants[index(id)]; }
    const std::vector<Output>& outputs() const { return allOutputs; }
    const std::string& title(int number) const { return titles[static_cast<std::size_t>(number)]; }
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
    NodeId insert(const Node& node);
    ConstantId insert(const Coefficient& factor);

    std::vector<Node> allNodes;
    std::map<std::tuple<Kind, NodeId, NodeId, ConstantId, int>, NodeId> standing;
    std::vector<Constant> allConstants;
    std::map<double, ConstantId> constantByValue;
    std::vector<Output> allOutputs;
    std::vector<std::string> titles{""};
    int currentTitle = 0;
    int inputCount = 0;
};

// Nodes that are inserted while one of these lives belong to the block of its title.
class Titled {
public:
    Titled(Graph& owner, const std::string& title) : graph(owner), previous(owner.beginBlock(title)) {}
    ~Titled() { graph.continueBlock(previous); }
    Titled(const Titled&) = delete;
    Titled& operator=(const Titled&) = delete;

private:
    Graph& graph;
    int previous;
};

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
