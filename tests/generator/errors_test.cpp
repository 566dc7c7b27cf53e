// The proved error bounds: what a graph does to inputs and to errors, and that nothing goes beyond a bound.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "errors/error_bound.h"
#include "output/catalogue.h"

namespace test {
namespace {

using gen::Exact;
using gen::Graph;
using gen::LinearMap;
using gen::NodeId;
using gen::Output;
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

// Each step of a graph is made wrong by its whole 2^-53 in the direction that is worst for an output. No input may make
// that error greater than the bound. The inputs are the rows of what has the greatest gains, which come near to it.
class ErrorBounds : public testing::TestWithParam<gen::GraphEntry> {};

TEST_P(ErrorBounds, AreAboveTheWorstRoundings) {
    const gen::GraphEntry& entry = GetParam();
    const auto graph = entry.build();
    const LinearMap map(*graph, Width::Double);
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    double nearest = 0;
    for (const Output& output : graph->outputs()) {
        const double bound = errorBound(map, {output}).steps;
        const auto gains = map.gains(output);
        // Values of all nodes, one after the other.
        const auto errorOf = [&](const std::vector<double>& x, std::vector<double>* next) {
            double error = 0, square = 0;
            for (double value : x) square += value * value;
            for (NodeId node : graph->aliveNodes()) {
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
        std::vector<double> x(static_cast<std::size_t>(graph->inputs()));
        for (double& value : x) value = normal(random);
        for (int round = 0; round < 6; ++round) {
            std::vector<double> next(x.size());
            const double error = errorOf(x, &next);
            ASSERT_LE(error, bound) << "output " << output.place;
            nearest = std::max(nearest, error / bound);
            x = next;
        }
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

}  // namespace
}  // namespace test
