// The proved error bounds: what a graph does to inputs and to errors, and that nothing goes beyond a bound.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <numbers>
#include <random>
#include <tuple>

#include "dct4/tree.h"
#include "errors/dct4_bound.h"
#include "errors/error_bound.h"
#include "output/catalogue.h"
#include "rules/dct4_bodies.h"
#include "rules/transforms.h"

namespace test {
namespace {

using gen::Exact;
using gen::Graph;
using gen::LinearMap;
using gen::NodeId;
using gen::Output;
using gen::PerNode;
using gen::Width;

// y[0] = 3/8 (a + b), y[1] = 2 (a - b).
void buildSmall(Graph& graph) {
    const gen::Value a = graph.load(0), b = graph.load(1);
    graph.store(0, gen::Coefficient{Exact(3) / 8, "3/8"} * (a + b));
    graph.store(1, gen::Coefficient{Exact(2), "2"} * (a - b));
}

TEST(LinearMap, TellsRowsAndGains) {
    Graph graph;
    buildSmall(graph);
    const LinearMap map(graph, Width::Double);
    const Output &first = graph.outputs()[0], &second = graph.outputs()[1];
    EXPECT_EQ(map.row(first.node), (std::vector<double>{0.375, 0.375}));
    EXPECT_EQ(map.row(second.node), (std::vector<double>{2, -2}));
    EXPECT_EQ(map.shift(first.node), (std::vector<double>{0, 0}));
    const auto gains = map.gains(second);
    EXPECT_EQ(gains[second.node], 1);
    EXPECT_EQ(gains[graph.node(second.node).a], 2);
    EXPECT_EQ(gains[NodeId(1)], -2);  // b
    EXPECT_EQ(gains[first.node], 0);
}

// y = 2 (a + b) + (a + b) - (a + b) c: the sum is used three times, once by way of a product that does not round.
TEST(LinearMap, TellsTheGainOfEachUse) {
    Graph graph;
    const gen::Value sum = graph.load(0) + graph.load(1);
    const gen::Value product = gen::Coefficient{Exact(1) / 3, "1/3"} * sum;
    graph.store(0, (gen::Coefficient{Exact(2), "2"} * sum + sum) - product);
    const LinearMap map(graph, Width::Double);
    const auto uses = map.gainsOfUses(graph.outputs()[0]);
    std::vector<double> ofSum = uses[sum.node];
    std::sort(ofSum.begin(), ofSum.end());
    EXPECT_EQ(ofSum.size(), 5U) << "three steps, and twice whether it is the output: the sum, and its double";
    EXPECT_NEAR(ofSum.front(), -1.0 / 3, 1e-15);
    EXPECT_EQ(ofSum.back(), 2);
    EXPECT_EQ(std::count(ofSum.begin(), ofSum.end(), 1.0), 1);
    EXPECT_EQ(uses[graph.outputs()[0].node], (std::vector<double>{1}));
}

TEST(LinearMap, TellsTheGainOfEachUseSoThatTheyAddUp) {
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.family->isBody() || entry.length > 16) continue;
        const auto graph = entry.build();
        const LinearMap map(*graph, Width::Double);
        for (const Output& output : graph->outputs()) {
            const auto gains = map.gains(output);
            const auto uses = map.gainsOfUses(output);
            for (NodeId node : graph->aliveNodes()) {
                double sum = 0;
                for (double use : uses[node]) sum += use;
                ASSERT_NEAR(sum, gains[node], 1e-13) << entry.name() << ", node " << gen::number(node);
            }
        }
    }
}

TEST(LinearMap, KnowsWhichStepsRound) {
    Graph graph;
    buildSmall(graph);
    const LinearMap map(graph, Width::Double);
    EXPECT_TRUE(map.rounds(graph.outputs()[0].node)) << "a product with 3/8";
    EXPECT_FALSE(map.rounds(graph.outputs()[1].node)) << "a product with 2";
    EXPECT_TRUE(map.rounds(graph.node(graph.outputs()[1].node).a)) << "a difference";
    EXPECT_FALSE(map.rounds(NodeId(0))) << "a load";
}

TEST(LinearMap, TellsWhatRoundedConstantsShift) {
    Graph graph;
    graph.store(0, gen::Coefficient{Exact(1) / 3, "1/3"} * graph.load(0));
    const double third = static_cast<double>(1.0F / 3.0F) - 1.0 / 3.0;
    const LinearMap single(graph, Width::Single), twice(graph, Width::Double);
    EXPECT_NEAR(single.shift(graph.outputs()[0].node)[0], third, 0x1p-52);
    EXPECT_NE(twice.shift(graph.outputs()[0].node)[0], 0);
    EXPECT_LE(std::abs(twice.shift(graph.outputs()[0].node)[0]), 0x1p-55);
}

// One product: half a unit of its last place at most, which is 2^-53 of it, and the shift of the constant.
TEST(ErrorBound, OfOneStep) {
    Graph graph;
    graph.store(0, gen::Coefficient{Exact(1) / 3, "1/3"} * graph.load(0));
    const LinearMap map(graph, Width::Double);
    const gen::ErrorBound bound = errorBound(map, false);
    EXPECT_NEAR(bound.steps, 1.0 / 3, 0.001);
    EXPECT_NEAR(bound.constants, 1.0 / 6, 0.0001);  // 1/3 lies a quarter of 2^-54 * 4/3 off
    EXPECT_NEAR(bound.greatest, 1.0 / 3, 1e-8);
}

// y = ((a + b) + c) - (a + b): what the first sum is off by is in y if one of its two uses has it and the other has
// not.
TEST(ErrorBound, OfAValueThatIsRoundedAtSomeUses) {
    Graph graph;
    const gen::Value sum = graph.load(0) + graph.load(1);
    graph.store(0, (sum + graph.load(2)) - sum);
    const LinearMap map(graph, Width::Double);
    EXPECT_EQ(map.gains(graph.outputs()[0])[sum.node], 0);
    // a = b = c: 2, 3 and 1 roundings of a. At most sqrt(2) for the first sum, sqrt(3) for the second, 1 for the last.
    const double bound = errorBound(map, false).steps;
    EXPECT_GE(bound, 6 / std::sqrt(3.0));
    EXPECT_LE(bound, 1.01 * (std::sqrt(2.0) + std::sqrt(3.0) + 1));
}

// x + i y turned by a twelfth: x and y are used twice each.
TEST(ErrorBound, OfSomeUsesOfAnInput) {
    Graph graph;
    const gen::Value x = graph.load(0), y = graph.load(1);
    const gen::Coefficient c = gen::cosine(1, 12), s = gen::sine(1, 12);
    graph.store(0, c * x - s * y);
    graph.store(1, s * x + c * y);
    // The matrix of all uses turns, and has the norm 1. That of (c 0; s c), which leaves one out, is greater.
    const double square = 0.75, trace = 2 * square + 0.25;
    const double greatest = (trace + std::sqrt(trace * trace - 4 * square * square)) / 2;
    EXPECT_NEAR(gainOfInputUses(LinearMap(graph, Width::Double), true), std::sqrt(greatest), 1e-6);
    EXPECT_NEAR(gainOfInputUses(LinearMap(graph, Width::Double), false), 1, 1e-6);
}

// The greatest 2-norm of the two columns over all choices of uses, one after the other.
double gainOfAnyUses(const std::vector<double> (&first)[2], const std::vector<double> (&second)[2]) {
    const std::size_t m = first[0].size(), n = second[0].size();
    double greatest = 0;
    for (std::size_t chosen = 0; chosen < std::size_t{1} << (m + n); ++chosen) {
        double p[2] = {}, q[2] = {};
        for (int part = 0; part < 2; ++part) {
            for (std::size_t i = 0; i < m; ++i) p[part] += (chosen >> i & 1) != 0 ? first[part][i] : 0;
            for (std::size_t i = 0; i < n; ++i) q[part] += (chosen >> (m + i) & 1) != 0 ? second[part][i] : 0;
        }
        const double trace = p[0] * p[0] + p[1] * p[1] + q[0] * q[0] + q[1] * q[1];
        const double root = p[0] * q[1] - p[1] * q[0];  // of the determinant
        const double rest = std::sqrt(std::max(trace * trace - 4 * root * root, 0.0));
        greatest = std::max(greatest, (trace + rest) / 2);
    }
    return std::sqrt(greatest);
}

TEST(ErrorBound, OfSomeUsesIsThatOfTheWorstOfAllChoices) {
    const std::tuple<std::unique_ptr<Graph>, bool> rows[] = {
        {gen::complexTransform(3), true},  {gen::complexTransform(5), true},     {gen::complexTransform(7), true},
        {gen::hartleyTransform(6), false}, {gen::dct4CombineOfRotated(8), true}, {gen::dct4OutputOfRotated(8), false}};
    double greatest = 0;
    for (const auto& [graph, complex] : rows) {
        const LinearMap map(*graph, Width::Double);
        std::map<int, std::vector<NodeId>> numbers;
        for (NodeId node : graph->aliveNodes())
            if (graph->node(node).kind == gen::Kind::Load) numbers[graph->node(node).input / 2].push_back(node);
        double due = 0;
        const std::size_t parts = complex ? 2 : 1;
        for (std::size_t k = 0; k < graph->outputs().size(); k += parts) {
            const auto re = map.gainsOfUses(graph->outputs()[k]), im = map.gainsOfUses(graph->outputs()[k + parts - 1]);
            for (const auto& [number, loads] : numbers) {
                std::vector<double> columns[2][2];
                for (std::size_t i = 0; i < 2; ++i) {
                    columns[i][0] = re[loads[i]];
                    columns[i][1] = complex ? im[loads[i]] : std::vector<double>(columns[i][0].size());
                }
                ASSERT_LE(columns[0][0].size() + columns[1][0].size(), 16U);
                due = std::max(due, gainOfAnyUses(columns[0], columns[1]));
            }
        }
        EXPECT_NEAR(gainOfInputUses(map, complex), due, 1e-6);
        greatest = std::max(greatest, due);
    }
    EXPECT_GT(greatest, 1.1);
}

TEST(ErrorBound, OfWalshHadamardTransformsIsThatOfTheirGraphs) {
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.family->word != "wht") continue;
        const auto graph = entry.build();
        const LinearMap map(*graph, Width::Double);
        const int order = static_cast<int>(std::lround(std::log2(entry.length)));
        const gen::ErrorBound found = errorBound(map, false), due = gen::walshHadamardBound(order);
        EXPECT_GE(found.steps, due.steps * (1 - 1e-6)) << entry.name();
        EXPECT_LE(found.steps, due.steps * 1.005) << entry.name();
        EXPECT_NEAR(found.greatest, due.greatest, 1e-6) << entry.name();
    }
}

// The gain of each node at all uses that have one sign, whichever gives more.
PerNode<double> greatestGains(const LinearMap& map, const Output& output) {
    const auto uses = map.gainsOfUses(output);
    PerNode<double> gains;
    for (std::size_t i = 0; i < map.graph().nodes().size(); ++i) {
        double above = 0, below = 0;
        for (double use : uses[NodeId(i)]) (use > 0 ? above : below) += use;
        gains.push_back(above > -below ? above : below);
    }
    return gains;
}

// Each step of a graph is made wrong by its whole 2^-53 in the direction that is worst for an output. Inputs are looked
// for that make this error great: the rows of what has the greatest gains come near to it. Returns the greatest error
// over the 2-norm of its input, in units of 2^-53.
double worstRoundings(const LinearMap& map, const PerNode<double>& gains, std::mt19937& random) {
    std::normal_distribution<double> normal;
    const auto alive = map.graph().aliveNodes();
    const auto errorOf = [&](const std::vector<double>& x, std::vector<double>* next) {
        double error = 0, square = 0;
        for (double value : x) square += value * value;
        for (NodeId node : alive) {
            if (!map.rounds(node) || gains[node] == 0) continue;
            double value = 0;
            for (std::size_t i = 0; i < x.size(); ++i) value += map.row(node)[i] * x[i];
            error += std::abs(gains[node] * value);
            // The input that makes this sum greater: all rows in the directions that they have now.
            const double weight = std::copysign(gains[node], value);
            for (std::size_t i = 0; i < x.size(); ++i) (*next)[i] += weight * map.row(node)[i];
        }
        return error / std::sqrt(square);
    };
    std::vector<double> x(static_cast<std::size_t>(map.graph().inputs()));
    for (double& value : x) value = normal(random);
    double worst = 0;
    for (int round = 0; round < 6; ++round) {
        std::vector<double> next(x.size());
        worst = std::max(worst, errorOf(x, &next));
        x = next;
    }
    return worst;
}

// No input may make the error of a graph greater than the bound.
class ErrorBounds : public testing::TestWithParam<gen::GraphEntry> {};

TEST_P(ErrorBounds, AreAboveTheWorstRoundings) {
    const gen::GraphEntry& entry = GetParam();
    const auto graph = entry.build();
    const LinearMap map(*graph, Width::Double);
    std::mt19937 random(1);
    double nearest = 0;
    for (const Output& output : graph->outputs()) {
        const double bound = errorBound(map, {output}).steps,
                     error = worstRoundings(map, greatestGains(map, output), random);
        EXPECT_LE(error, bound) << "output " << output.place;
        nearest = std::max(nearest, error / bound);
    }
    EXPECT_GT(nearest, 0.6) << "the bound is far from what is possible";
}

std::vector<gen::GraphEntry> someGraphs() {
    std::vector<gen::GraphEntry> graphs;
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        const bool isLinear =
            !entry.family->isBody() || entry.family->word == "wht" || entry.family->word == "dct4_direct";
        if (isLinear && entry.length <= 32) graphs.push_back(entry);
    }
    return graphs;
}

INSTANTIATE_TEST_SUITE_P(All, ErrorBounds, testing::ValuesIn(someGraphs()), [](const auto& test) {
    return test.param.family->word + "_" + std::to_string(test.param.length);
});

// A DCT-IV in two passes as one graph: its rotations are by constants in place of tables.
void buildInPasses(Graph& graph, int points) {
    const int r = gen::dct4Radix(points), M = points / r;
    gen::RealSignal x;
    for (int n = 0; n < points; ++n) x.push_back(graph.load(n));
    std::vector<gen::Signal> bins;
    for (int p = 0; p < r; ++p) {
        gen::RealSignal part;
        for (int s = 0; s < M; ++s) {
            const int n = s < M / 2 ? p + 2 * r * s : 2 * points - 1 - p - 2 * r * s;
            part.push_back(x[static_cast<std::size_t>(n)]);
        }
        bins.push_back(gen::dct4Fold(part));
    }
    for (int m = 0; m < M / 2; ++m) {
        gen::Signal row;
        for (int p = 0; p < r; ++p) {
            const gen::ComplexValue z = bins[static_cast<std::size_t>(p)][static_cast<std::size_t>(m)];
            const int angle = (2 * m + 1) * (2 * p + 1);  // of a turn that has 8 N parts
            const gen::Coefficient c = gen::cosine(angle, 8 * points), s = gen::sine(angle, 8 * points);
            row.push_back({c * z.re - s * z.im, c * z.im + s * z.re});
        }
        const gen::RealSignal outputs = gen::dct4OutputOfRotated(row);
        for (int b = 0; b < r; ++b) {
            graph.store(m + b * M, outputs[static_cast<std::size_t>(b)]);
            graph.store(points - 1 - m - b * M, outputs[static_cast<std::size_t>(r + b)]);
        }
    }
}

gen::RowBound boundOf(std::unique_ptr<Graph> graph, bool complex) {
    const LinearMap map(*graph, Width::Double);
    return {errorBound(map, complex), gainOfInputUses(map, complex)};
}

const gen::Dct4Bodies bodies = {[](int points) { return boundOf(gen::dct4FoldTransform(points), true).error; },
                                [](int radix) { return boundOf(gen::dct4OutputOfRotated(radix), false); },
                                [](int points) { return boundOf(gen::dct4CombineOfRotated(points), true); }};

TEST(Dct4Bound, IsAboveTheWorstRoundingsOfBothPassesTogether) {
    for (int points : {64, 128}) {
        Graph graph;
        buildInPasses(graph, points);
        const LinearMap map(graph, Width::Double);
        const gen::Dct4Bound bound = dct4Bound(points, bodies, Width::Double);
        std::mt19937 random(1);
        double nearest = 0;
        for (std::size_t i = 0; i < graph.outputs().size(); i += 5) {
            // The bins between the passes are stored: all uses of a step there are one.
            const Output& output = graph.outputs()[i];
            const double error = worstRoundings(map, map.gains(output), random);
            EXPECT_LE(error * 0x1p-53, bound.steps);
            nearest = std::max(nearest, error * 0x1p-53 / bound.steps);
        }
        EXPECT_GT(nearest, 0.3) << "the bound is far from what is possible";
        // It is the transform, and each of its outputs has the modulus that the bound takes it to have.
        const std::vector<double>& row = map.row(graph.outputs().front().node);
        double square = 0;
        for (std::size_t n = 0; n < row.size(); ++n) {
            const double k = graph.outputs().front().place, N = points;
            const double sign = graph.outputs().front().minus ? -1 : 1;
            EXPECT_NEAR(sign * row[n], std::cos(std::numbers::pi * (static_cast<double>(n) + 0.5) * (k + 0.5) / N),
                        1e-14);
            square += row[n] * row[n];
        }
        EXPECT_NEAR(square, points / 2.0, 1e-9);
    }
}

// What the bound takes apart is what ships: a row is its rotations, of four products and two sums each, and the rest.
TEST(Dct4Bound, KnowsAllStepsOfARow) {
    const auto additions = [](const Graph& graph) { return graph.counts().additions + graph.counts().subtractions; };
    for (int radix : {8, 16, 32}) {
        const auto row = gen::dct4OutputRow(radix), rest = gen::dct4OutputOfRotated(radix);
        EXPECT_EQ(row->counts().multiplications, 4 * radix + rest->counts().multiplications);
        EXPECT_EQ(additions(*row), 2 * radix + additions(*rest));
        const int inner = radix == 8 ? 8 : radix / 4, outer = radix / inner;
        const auto combine = gen::dct4CombineRow(radix), first = gen::dct4CombineOfRotated(inner),
                   second = gen::dct4CombineOfRotated(4);
        const int rotations = (inner - 1) * outer + (outer == 4 ? 3 * inner : 0), seconds = outer == 4 ? inner : 0;
        EXPECT_EQ(combine->counts().multiplications,
                  4 * rotations + outer * first->counts().multiplications + seconds * second->counts().multiplications);
        EXPECT_EQ(additions(*combine), 2 * rotations + outer * additions(*first) + seconds * additions(*second));
    }
}

TEST(Dct4Bound, TakesPartsAsPlansDo) {
    for (int points = 64; points <= 1 << 20; points *= 2) {
        std::int32_t radix = 0;
        ASSERT_EQ(zulg::pickRadix(&radix, points / 2), StatusOk);
        EXPECT_EQ(gen::dct4Radix(points), radix) << points;
    }
}

// Entries are computed here as the tables of a plan are.
TEST(Dct4Bound, IsAboveTheErrorsOfTables) {
    constexpr double pi = 3.141592653589793;
    for (double most : {0.5, 0.75, 0.875, 1.3125, 1.40625}) {
        double twice = 0, single = 0;
        for (int i = 1; i <= 16384; ++i) {
            const double f = most * (2 * i - 1) / 32768;  // exact
            const double c = std::cos(f * pi), s = std::sin(f * pi);
            const long double angle = std::numbers::pi_v<long double> * static_cast<long double>(f);
            const long double cosine = std::cos(angle), sine = std::sin(angle);
            const auto distance = [&](long double x, long double y) {
                return static_cast<double>(std::hypot(x - cosine, y - sine));
            };
            twice = std::max(twice, distance(c, s));
            single = std::max(single, distance(static_cast<float>(c), static_cast<float>(s)));
        }
        EXPECT_LE(twice, gen::tableError(most, Width::Double)) << most;
        EXPECT_GE(twice, 0.2 * gen::tableError(most, Width::Double)) << most;
        EXPECT_LE(single, gen::tableError(most, Width::Single)) << most;
        EXPECT_GE(single, 0.9 * gen::tableError(most, Width::Single)) << most;
    }
}

}  // namespace
}  // namespace test
