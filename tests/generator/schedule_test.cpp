// The order of steps: what every order must keep, for every graph.
#include "graph/schedule.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "output/catalogue.h"

namespace test {
namespace {

using namespace gen;

class ScheduleTest : public testing::TestWithParam<GraphEntry> {};

// Every needed load and operation once, operands first; every store once, after its value and after the last load.
void expectPossible(const Graph& graph, const Schedule& schedule) {
    PerNode<bool> done(graph.nodes().size(), false);
    std::vector<bool> stored(graph.outputs().size(), false);
    bool storing = false;
    for (const Step& step : schedule.steps) {
        if (step.kind == Step::Kind::Store) {
            storing = true;
            EXPECT_EQ(step.node, graph.outputs()[step.output].node);
            EXPECT_TRUE(done[step.node]);
            EXPECT_FALSE(stored[step.output]);
            stored[step.output] = true;
            continue;
        }
        const bool isLoad = graph.node(step.node).kind == Kind::Load;
        EXPECT_FALSE(done[step.node]);
        done[step.node] = true;
        EXPECT_EQ(step.kind == Step::Kind::Load, isLoad);
        EXPECT_FALSE(isLoad && storing) << "a load after a store";
        for (NodeId operand : operands(graph.node(step.node))) EXPECT_TRUE(done[operand]);
    }
    EXPECT_EQ(done, graph.alive());
    EXPECT_EQ(stored, std::vector<bool>(stored.size(), true));
    EXPECT_GT(schedule.mostAlive, 0);
}

TEST_P(ScheduleTest, HoldsEveryStepOnceAndInAPossibleOrder) {
    const auto graph = GetParam().build();
    expectPossible(*graph, blockByBlock(*graph));
    expectPossible(*graph, byBisection(*graph));
    expectPossible(*graph, blockByBlock(*graph, Unit::Pair));
    expectPossible(*graph, byBisection(*graph, Unit::Pair));
}

// Of each pair whose nodes are both needed, whether the two steps follow each other, and whether the two stores do if
// either node has one output.
struct Together {
    int steps = 0, apart = 0, stores = 0, storesApart = 0;
};

Together togetherIn(const Graph& graph, const Schedule& schedule) {
    PerNode<int> placeOf(graph.nodes().size(), -1), storeOf(graph.nodes().size(), -1);
    for (std::size_t i = 0; i < schedule.steps.size(); ++i) {
        const Step& step = schedule.steps[i];
        (step.kind == Step::Kind::Store ? storeOf : placeOf)[step.node] = static_cast<int>(i);
    }
    const PerNode<bool> alive = graph.alive();
    Together result;
    for (const Pair& pair : graph.pairs()) {
        if (!alive[pair.re] || !alive[pair.im]) continue;
        const auto isApart = [&](const PerNode<int>& places) {
            return std::abs(places[pair.re] - places[pair.im]) != 1;
        };
        ++result.steps;
        result.apart += isApart(placeOf);
        if (storeOf[pair.re] < 0 || storeOf[pair.im] < 0) continue;
        ++result.stores;
        result.storesApart += isApart(storeOf);
    }
    return result;
}

// No graph has pairs that wait for each other.
TEST_P(ScheduleTest, KeepsPairsTogether) {
    const auto graph = GetParam().build();
    for (const Schedule& schedule : {blockByBlock(*graph, Unit::Pair), byBisection(*graph, Unit::Pair)}) {
        const Together found = togetherIn(*graph, schedule);
        EXPECT_EQ(found.apart, 0);
        EXPECT_EQ(found.storesApart, 0);
        EXPECT_TRUE(found.stores > 0 || GetParam().family->word != "complex");
    }
}

INSTANTIATE_TEST_SUITE_P(All, ScheduleTest, testing::ValuesIn(allGraphs()),
                         [](const testing::TestParamInfo<GraphEntry>& test) {
                             return test.param.family->word + std::to_string(test.param.length);
                         });

TEST(Schedule, CountsTheValuesThatWait) {
    Graph graph;
    const Value a = graph.load(0), b = graph.load(1), c = graph.load(2);
    graph.store(0, (a + b) + c);
    EXPECT_EQ(blockByBlock(graph).mostAlive, 2);  // a, b; the sum, c
}

// Two sums of their own, then a chain that joins nothing: each part is finished before the next one begins.
TEST(Schedule, BisectionTakesPartsThatDoNotTouchOneAfterTheOther) {
    Graph graph;
    const Value a = graph.load(0), b = graph.load(1), c = graph.load(2), d = graph.load(3);
    const Value ab = a + b, cd = c + d, aba = ab + a, cdc = cd + c;
    graph.store(0, aba);
    graph.store(1, cdc);
    std::vector<NodeId> operations;
    for (const Step& step : byBisection(graph).steps) {
        if (step.kind == Step::Kind::Operation) operations.push_back(step.node);
    }
    EXPECT_EQ(operations, (std::vector{ab.node, aba.node, cd.node, cdc.node}));
}

// Eight products, then a tree of their sums: early and late half of the tree, and so few values wait.
TEST(Schedule, BisectionKeepsATreeTogether) {
    Graph graph;
    std::vector<Value> level;
    for (int i = 0; i < 8; ++i) level.push_back(cosine(1, 8) * graph.load(i));
    while (level.size() > 1) {
        std::vector<Value> next;
        for (std::size_t i = 0; i < level.size(); i += 2) next.push_back(level[i] + level[i + 1]);
        level = next;
    }
    graph.store(0, level[0]);
    EXPECT_EQ(blockByBlock(graph).mostAlive, 8);
    EXPECT_LE(byBisection(graph).mostAlive, 5);
}

// Each of two pairs takes a value of the other: both cannot stay together.
TEST(Schedule, TakesAPairApartWhereTwoWaitForEachOther) {
    Graph graph;
    const Value a = graph.load(0), b = graph.load(1);
    const Value firstRe = a + b, secondRe = firstRe + a, secondIm = a - b, firstIm = secondIm - a;
    graph.pair(firstRe, firstIm);
    graph.pair(secondRe, secondIm);
    graph.store(0, secondRe);
    graph.store(1, firstIm);
    for (const Schedule& schedule : {blockByBlock(graph, Unit::Pair), byBisection(graph, Unit::Pair)}) {
        expectPossible(graph, schedule);
        EXPECT_EQ(togetherIn(graph, schedule).apart, 1);
    }
}

TEST(Schedule, StoresAnInputThatIsAnOutput) {
    Graph graph;
    graph.store(0, graph.load(1));
    graph.store(1, graph.load(0));
    const Schedule schedule = blockByBlock(graph);
    ASSERT_EQ(schedule.steps.size(), 4u);
    EXPECT_EQ(schedule.steps[1].kind, Step::Kind::Load);
    EXPECT_EQ(schedule.steps[2].kind, Step::Kind::Store);
}

}  // namespace
}  // namespace test
