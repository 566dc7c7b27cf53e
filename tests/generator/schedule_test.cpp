// The order of steps: what every order must keep, for every graph.
#include "graph/schedule.h"

#include <gtest/gtest.h>

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
