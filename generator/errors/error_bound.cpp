#include "errors/error_bound.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace gen {
namespace {

constexpr double unit = 0x1p-53;
constexpr double roundingsOfStep = 1 + 0x1p-11;
// What is computed here is itself rounded, some thousand times by 2^-53 of a value.
constexpr double ownRoundings = 1 + 1e-9;

double squareOf(const std::vector<double>& row) {
    double squares = 0;
    for (double x : row) squares += x * x;
    return squares;
}

// The greatest eigenvalue of a symmetric 2 by 2 matrix (a b; b c).
double greatestOf(double a, double b, double c) { return (a + c) / 2 + std::hypot((a - c) / 2, b); }

// The 2-norm of a matrix of one row or two.
double normOf(const std::vector<double>& first, const std::vector<double>* second) {
    double a = squareOf(first), b = 0, c = 0;
    if (second != nullptr) {
        c = squareOf(*second);
        for (std::size_t i = 0; i < first.size(); ++i) b += first[i] * (*second)[i];
    }
    return std::sqrt(greatestOf(a, b, c));
}

// A symmetric matrix, of which the lower triangle is used.
class Symmetric {
public:
    explicit Symmetric(std::size_t order) : n(order), entries(order * order) {}

    void addSquareOf(const std::vector<double>& row, double factor) {
        for (std::size_t i = 0; i < n; ++i) {
            if (row[i] == 0) continue;
            const double scaled = factor * row[i];
            for (std::size_t j = 0; j <= i; ++j) entries[i * n + j] += scaled * row[j];
        }
    }

    // A number that no eigenvalue exceeds: an estimate that is raised until the proof succeeds.
    double eigenvalueBound() const {
        double bound = 1.002 * estimate();
        while (!isBelow(bound)) bound *= 1.005;
        return bound;
    }

private:
    double at(std::size_t i, std::size_t j) const { return i >= j ? entries[i * n + j] : entries[j * n + i]; }

    double estimate() const {
        std::vector<double> x(n), y(n);
        for (std::size_t i = 0; i < n; ++i) x[i] = 1 + 0.5 * std::sin(3.0 * static_cast<double>(i * i + 1));
        double norm = 0;
        for (int round = 0; round < 24; ++round) {
            for (std::size_t i = 0; i < n; ++i) {
                y[i] = 0;
                for (std::size_t j = 0; j < n; ++j) y[i] += at(i, j) * x[j];
            }
            norm = std::sqrt(squareOf(y));
            if (norm == 0) return 0;
            for (std::size_t i = 0; i < n; ++i) x[i] = y[i] / norm;
        }
        return norm;
    }

    // Whether `bound` times the identity minus the matrix has positive pivots only.
    bool isBelow(double bound) const {
        std::vector<double> lower(n * n);
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j <= i; ++j) {
                double sum = (i == j ? bound : 0) - entries[i * n + j];
                for (std::size_t k = 0; k < j; ++k) sum -= lower[i * n + k] * lower[j * n + k];
                if (i == j && sum <= 1e-10 * bound) return false;
                lower[i * n + j] = i == j ? std::sqrt(sum) : sum / lower[j * n + j];
            }
        }
        return true;
    }

    std::size_t n;
    std::vector<double> entries;
};

// What something does to the one part or the two parts of an output.
struct Effect {
    double re = 0, im = 0;

    Effect operator+(const Effect& other) const { return {re + other.re, im + other.im}; }
    double along(const Effect& other) const { return re * other.re + im * other.im; }
    double across(const Effect& other) const { return re * other.im - im * other.re; }
};

// The effects of the uses of a node.
using Uses = std::vector<Effect>;
using UsesOfNodes = PerNode<Uses>;

UsesOfNodes usesOfNodes(const LinearMap& map, const std::vector<Output>& parts) {
    const auto re = map.gainsOfUses(parts.front()), im = map.gainsOfUses(parts.back());
    UsesOfNodes all;
    for (std::size_t i = 0; i < map.graph().nodes().size(); ++i) {
        const NodeId node{static_cast<int>(i)};
        Uses uses;
        for (std::size_t j = 0; j < re[node].size(); ++j)
            uses.push_back({re[node][j], parts.size() == 2 ? im[node][j] : 0});
        all.push_back(uses);
    }
    return all;
}

// The sums of any of these effects fill a polygon. These are its corners: an edge is the effect of one use, and those
// beyond that edge are in both of its ends.
std::vector<Effect> cornersOf(const Uses& uses) {
    std::vector<Effect> corners;
    for (const Effect& edge : uses) {
        const double square = edge.along(edge);
        if (square == 0) continue;
        for (double side : {1.0, -1.0}) {
            Effect first, last;
            for (const Effect& use : uses) {
                const double across = side * edge.across(use);
                const bool isParallel = std::abs(across) <= 1e-12 * std::sqrt(square * use.along(use));
                if (isParallel ? edge.along(use) > 0 : across > 0) first = first + use;
                if (isParallel ? edge.along(use) < 0 : across > 0) last = last + use;
            }
            corners.insert(corners.end(), {first, last});
        }
    }
    if (corners.empty()) corners.push_back({});
    return corners;
}

// The square of the gain of what is added at any uses of one node or of two. It is the 2-norm of a matrix, and greatest
// at corners, since it is a convex function of its columns.
double squareOfGain(const Uses& first, const Uses* second) {
    double greatest = 0;
    const std::vector<Effect> others = cornersOf(second == nullptr ? Uses{} : *second);
    for (const Effect& p : cornersOf(first))
        for (const Effect& q : others) greatest = std::max(greatest, greatestOf(p.along(p), p.along(q), q.along(q)));
    return greatest;
}

// Nodes that round and are taken together: one, or the two of a pair.
std::vector<std::vector<NodeId>> groupsOf(const LinearMap& map, bool inPairs) {
    const Graph& graph = map.graph();
    PerNode<bool> isGrouped(graph.nodes().size(), false);
    std::vector<std::vector<NodeId>> groups;
    for (NodeId node : graph.aliveNodes()) {
        if (isGrouped[node] || !map.rounds(node)) continue;
        std::vector<NodeId> group{node};
        if (const auto pair = graph.pairOf(node); inPairs && pair) {
            const NodeId other = pair->re == node ? pair->im : pair->re;
            if (map.rounds(other)) group.push_back(other);
        }
        for (NodeId member : group) isGrouped[member] = true;
        groups.push_back(group);
    }
    return groups;
}

// Of each node, the error that it has before it rounds, in units of 2^-53: those of its operands with no regard to how
// they are related.
PerNode<double> errorsBefore(const LinearMap& map) {
    const Graph& graph = map.graph();
    PerNode<double> before, after;
    for (std::size_t i = 0; i < graph.nodes().size(); ++i) {
        const NodeId id{static_cast<int>(i)};
        const Node& node = graph.node(id);
        double error = 0;
        for (NodeId operand : operands(node)) error += after[operand];
        if (node.kind == Kind::Scaled) error *= map.factor(node);
        before.push_back(error);
        const double rounding = map.rounds(id) ? roundingsOfStep * (map.norm(id) + unit * error) : 0;
        after.push_back(error + rounding);
    }
    return before;
}

double stepsBound(const LinearMap& map, const std::vector<Output>& parts) {
    const PerNode<double> before = errorsBefore(map);
    const UsesOfNodes uses = usesOfNodes(map, parts);
    Symmetric squares(static_cast<std::size_t>(map.graph().inputs()));
    double weights = 0, ofSecondOrder = 0;
    for (const std::vector<NodeId>& group : groupsOf(map, parts.size() == 2)) {
        double rows = 0;
        const double gain = squareOfGain(uses[group.front()], group.size() == 2 ? &uses[group.back()] : nullptr);
        if (gain == 0) continue;
        for (NodeId node : group) {
            rows += squareOf(map.row(node));
            ofSecondOrder += unit * std::sqrt(gain) * before[node];
        }
        weights += gain * rows;
        for (NodeId node : group) squares.addSquareOf(map.row(node), 1 / rows);
    }
    if (weights == 0) return 0;
    return roundingsOfStep * (std::sqrt(weights * squares.eigenvalueBound()) + ofSecondOrder);
}

// The outputs of each number.
std::map<int, std::vector<Output>> numbersOf(const Graph& graph, bool complex) {
    std::map<int, std::vector<Output>> numbers;
    for (const Output& output : graph.outputs()) numbers[complex ? output.place / 2 : output.place].push_back(output);
    return numbers;
}

}  // namespace

ErrorBound errorBound(const LinearMap& map, const std::vector<Output>& parts) {
    const NodeId first = parts.front().node, last = parts.back().node;
    const bool isOne = parts.size() == 1;
    return {ownRoundings * stepsBound(map, parts),
            ownRoundings * normOf(map.shift(first), isOne ? nullptr : &map.shift(last)) / unit,
            ownRoundings * normOf(map.row(first), isOne ? nullptr : &map.row(last))};
}

ErrorBound errorBound(const LinearMap& map, bool complex) {
    ErrorBound greatest;
    for (const auto& [place, parts] : numbersOf(map.graph(), complex)) {
        const ErrorBound bound = errorBound(map, parts);
        greatest.steps = std::max(greatest.steps, bound.steps);
        greatest.constants = std::max(greatest.constants, bound.constants);
        greatest.greatest = std::max(greatest.greatest, bound.greatest);
    }
    return greatest;
}

double gainOfInputUses(const LinearMap& map, bool complex) {
    std::map<int, std::vector<NodeId>> numbers;
    for (std::size_t i = 0; i < map.graph().nodes().size(); ++i) {
        const Node& node = map.graph().nodes()[i];
        if (node.kind == Kind::Load) numbers[node.input / 2].push_back(NodeId(i));
    }
    double greatest = 0;
    for (const auto& [place, parts] : numbersOf(map.graph(), complex)) {
        const UsesOfNodes uses = usesOfNodes(map, parts);
        for (const auto& [number, loads] : numbers) {
            const Uses* const second = loads.size() == 2 ? &uses[loads.back()] : nullptr;
            greatest = std::max(greatest, squareOfGain(uses[loads.front()], second));
        }
    }
    return ownRoundings * std::sqrt(greatest);
}

ErrorBound walshHadamardBound(int order) {
    const double root = std::sqrt(std::ldexp(1.0, order));
    // The second order: a sum of k errors of at most u each is below k u (1 + k u).
    const double steps = ownRoundings * roundingsOfStep * order * root * (1 + order * unit);
    return {steps, 0, ownRoundings * root};
}

}  // namespace gen
