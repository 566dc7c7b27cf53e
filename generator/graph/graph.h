// The data-flow graph of one transform: loads, additions, subtractions, products with a constant and, where a factor
// comes from a table, products of two values.
//
// Nodes are numbered by their index in one vector, and a node never refers to a later one. Inserting a step that the
// graph already has gives the node of that step. Values carry the signs and nodes have none, so that every constant is
// positive and no negation is ever inserted: (-a) + b is b - a, and (-a) + (-b) is minus the sum. The graph has no
// other algebra.
#pragma once

#include <map>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include "numbers/exact.h"

namespace gen {

class Graph;

// What rules pass around while they build a graph: a node, and the sign with which it is used.
struct Value {
    Graph* graph;
    int node;
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

enum class Kind { Load, Add, Sub, Mul, Product };

// Load: a is the number of the input. Add, Sub, Product: a + b, a - b, a b. Mul: constant number b times node a.
struct Node {
    Kind kind;
    int a, b;
    int title;
};

struct Output {
    int place;  // the number of the output; not every number need occur
    int node;
    bool minus;
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
    const std::vector<Constant>& constants() const { return allConstants; }
    const std::vector<Output>& outputs() const { return allOutputs; }
    const std::string& title(int number) const { return titles[static_cast<std::size_t>(number)]; }
    int inputs() const { return inputCount; }

    // For each node, whether an output depends on it.
    std::vector<bool> alive() const;
    Counts counts() const;

    // The graph with one node to a line, in order of insertion, and as a GraphViz drawing.
    std::string text() const;
    std::string dot() const;

    // Inserts a node of another graph. `copies` holds the values that the other graph's earlier nodes have in this one.
    Value copy(const Graph& other, const Node& node, const std::vector<Value>& copies);

private:
    int insert(Kind kind, int a, int b);
    int constant(const Coefficient& factor);

    std::vector<Node> allNodes;
    std::map<std::tuple<Kind, int, int>, int> standing;
    std::vector<Constant> allConstants;
    std::map<double, int> constantByValue;
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
    std::vector<T> value;
    value.reserve(graph.nodes().size());
    const auto at = [&](int node) -> const T& { return value[static_cast<std::size_t>(node)]; };
    for (const Node& node : graph.nodes()) {
        switch (node.kind) {
            case Kind::Load: value.push_back(inputs[static_cast<std::size_t>(node.a)]); break;
            case Kind::Add: value.push_back(at(node.a) + at(node.b)); break;
            case Kind::Sub: value.push_back(at(node.a) - at(node.b)); break;
            case Kind::Product: value.push_back(at(node.a) * at(node.b)); break;
            case Kind::Mul: {
                const Constant& constant = graph.constants()[static_cast<std::size_t>(node.b)];
                value.push_back(static_cast<T>(constant.exact) * at(node.a));
                break;
            }
        }
    }
    std::vector<T> result;
    for (const Output& output : graph.outputs()) {
        const auto place = static_cast<std::size_t>(output.place);
        if (result.size() <= place) result.resize(place + 1, T{0});
        result[place] = output.minus ? T{-at(output.node)} : at(output.node);
    }
    return result;
}

}  // namespace gen
