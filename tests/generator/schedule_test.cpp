// The order of steps: what every order must keep, for every graph.
#include "graph/schedule.h"

#include <gtest/gtest.h>

#include "output/catalogue.h"

namespace test {
namespace {

using namespace gen;

class ScheduleTest : public testing::TestWithParam<GraphEntry> {};

TEST_P(ScheduleTest, HoldsEveryStepOnceAndInAPossibleOrder) {
    const auto built = GetParam().build();
    const Graph& graph = *built;
    const Schedule schedule = blockByBlock(graph);
    std::vector<bool> done(graph.nodes().size(), false), stored(graph.outputs().size(), false);
    const auto isDone = [&](int node) { return done[static_cast<std::size_t>(node)]; };
    bool storing = false;
    for (const Step& step : schedule.steps) {
        const auto number = static_cast<std::size_t>(step.number);
        if (step.kind == Step::Kind::Store) {
            storing = true;
            EXPECT_TRUE(isDone(graph.outputs()[number].node));
            EXPECT_FALSE(stored[number]);
            stored[number] = true;
            continue;
        }
        const Node& node = graph.nodes()[number];
        EXPECT_FALSE(done[number]);
        done[number] = true;
        EXPECT_EQ(step.kind == Step::Kind::Load, node.kind == Kind::Load);
        if (node.kind == Kind::Load) {
            EXPECT_FALSE(storing) << "a load behind a store";
        } else {
            EXPECT_TRUE(isDone(node.a));
            EXPECT_TRUE(node.kind == Kind::Mul || isDone(node.b));
        }
    }
    EXPECT_EQ(done, graph.alive());
    EXPECT_EQ(stored, std::vector<bool>(stored.size(), true));
    EXPECT_GT(schedule.mostAlive, 0);
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
