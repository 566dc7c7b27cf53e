// Pairs and block instances: which steps belong together, and which blocks take the same steps.
#include <gtest/gtest.h>

#include <array>
#include <map>

#include "graph/complex_value.h"
#include "graph/merge.h"
#include "graph/turn.h"
#include "output/block_title.h"
#include "output/catalogue.h"
#include "rules/block_kind.h"

namespace test {
namespace {

using namespace gen;

class PairTest : public testing::Test {
protected:
    Graph graph;
    const ComplexValue x = paired(graph.load(0), graph.load(1)), y = paired(graph.load(2), graph.load(3));
    const Coefficient half{Exact(0.5), "half"};

    void expectPair(const Graph& in, NodeId re, NodeId im) const {
        const auto pair = in.pairOf(re);
        ASSERT_TRUE(pair);
        EXPECT_EQ(pair->re, re);
        EXPECT_EQ(pair->im, im);
        EXPECT_EQ(in.pairOf(im)->re, re);
    }
    void expectPair(ComplexValue z) const { expectPair(graph, z.re.node, z.im.node); }
};

TEST_F(PairTest, ThePartsOfAComplexStepAreOne) {
    expectPair(x);
    expectPair(x + y);
    expectPair(x - y);
    expectPair(half * x);
    expectPair(x + timesMinusI(y));  // x.re + y.im and x.im - y.re
    expectPair(twiddled(x, 1, 8));
    expectPair(twiddled(y, 1, 8, EighthTurn::SumsFirst));
    expectPair(twiddled(x, 1, 9));
    EXPECT_EQ(graph.pairs().size() * 2, graph.nodes().size());  // products inside the turns as well
}

TEST_F(PairTest, AStepThatTwoComplexStepsShareStaysInItsFirstPair) {
    const ComplexValue first = x + y, second = x + conjugate(y);
    EXPECT_EQ(first.re.node, second.re.node);
    expectPair(first);
    EXPECT_FALSE(graph.pairOf(second.im.node));
}

TEST_F(PairTest, StepsOfOtherKindsAreNone) {
    const Value product = half * x.re, other = Coefficient{Exact(0.25), "quarter"} * x.im, sum = x.re + x.im;
    graph.pair(product, other);
    graph.pair(product, sum);
    graph.pair(sum, sum);
    EXPECT_FALSE(graph.pairOf(product.node));
    EXPECT_FALSE(graph.pairOf(sum.node));
}

TEST_F(PairTest, AReversedDifferenceTakesTheOldOnesPlace) {
    const ComplexValue difference = x - y;
    const Value reversed = graph.withoutMinus(-difference.im);
    expectPair(graph, difference.re.node, reversed.node);
    EXPECT_FALSE(graph.pairOf(difference.im.node));
}

TEST_F(PairTest, BothPartsOfACalculationArePairedStepByStep) {
    std::vector<NodeId> steps;
    onBothParts(graph, [&](Value ComplexValue::*part) {
        const Value product = half * x.*part, sum = product + y.*part;
        steps.insert(steps.end(), {product.node, sum.node});
        return sum;
    });
    expectPair(graph, steps[0], steps[2]);
    expectPair(graph, steps[1], steps[3]);
}

TEST_F(PairTest, MergedProductsStayTogether) {
    auto owned = std::make_unique<Graph>();
    const auto load = [&](int n) { return paired(owned->load(n), owned->load(n + 1)); };
    const ComplexValue a = load(0), b = load(2), c = half * (half * a + half * b);
    owned->store(0, c.re);
    owned->store(1, c.im);
    const auto finished = merged(std::move(owned));
    for (NodeId id : finished->aliveNodes()) EXPECT_TRUE(finished->pairOf(id)) << number(id);
    EXPECT_EQ(finished->counts(), (Counts{2, 0, 4, 0, 1}));
}

// A difference of two complex numbers, in a block.
std::unique_ptr<Graph> complexDifference() {
    auto graph = std::make_unique<Graph>();
    const auto load = [&](int n) { return paired(graph->load(n), graph->load(n + 1)); };
    const InBlock block(*graph, {BlockKind::Complex, 2});
    const ComplexValue z = load(0) - load(2);
    graph->store(0, z.re);
    graph->store(1, z.im);
    return graph;
}

TEST_F(PairTest, ATurnedDifferenceStaysInItsPair) {
    const auto finished = turned(complexDifference(), {{BlockKind::Complex, 2, 1, 0, 1}});
    const auto& outputs = finished->outputs();
    EXPECT_FALSE(outputs[0].minus);
    EXPECT_TRUE(outputs[1].minus);
    expectPair(*finished, outputs[0].node, outputs[1].node);
}

TEST(Turn, OfAStepThatIsNotThereIsRefused) {
    for (const BlockStep& place : {BlockStep{BlockKind::Complex, 2, 1, 0, 2}, BlockStep{BlockKind::Complex, 2, 1, 1, 0},
                                   BlockStep{BlockKind::Complex, 3, 1, 0, 0}, BlockStep{BlockKind::Real, 2, 1, 0, 0},
                                   BlockStep{BlockKind::Complex, 2, 3, 0, 0}}) {
        EXPECT_THROW(turned(complexDifference(), {place}), std::out_of_range);
    }
}

// Steps of complex graphs without a pair. In cosine sums of real channels, or of the two parts, the order follows a
// sign, and the two signs differ; or constants are merged in one channel and not in the other.
const std::map<std::string, int> unpaired = {
    {"complex 23", 8}, {"complex 31", 4},  {"complex 41", 22}, {"complex 47", 80},
    {"complex 50", 8}, {"complex 59", 92}, {"complex 62", 32},
};

class Pairs : public testing::TestWithParam<GraphEntry> {};

bool isSum(const Node& node) { return node.kind == Kind::Add || node.kind == Kind::Sub; }

TEST_P(Pairs, HoldTwoStepsOfOneKind) {
    const auto graph = GetParam().build();
    PerNode<int> uses(graph->nodes().size(), 0);
    for (const Pair& pair : graph->pairs()) {
        ++uses[pair.re];
        ++uses[pair.im];
        const Node &re = graph->node(pair.re), &im = graph->node(pair.im);
        EXPECT_EQ(isSum(re), isSum(im));
        if (isSum(re)) continue;
        EXPECT_EQ(re.kind, im.kind);
        EXPECT_EQ(re.constant, im.constant);
    }
    for (NodeId id : graph->aliveNodes()) EXPECT_EQ(uses[id], graph->pairOf(id) ? 1 : 0);
}

TEST_P(Pairs, HoldEveryStepOfAComplexTransform) {
    if (GetParam().family->word != "complex") return;
    const auto graph = GetParam().build();
    const PerNode<bool> alive = graph->alive();
    int without = 0;
    for (NodeId id : graph->aliveNodes()) {
        const auto pair = graph->pairOf(id);
        without += !pair || !alive[pair->re] || !alive[pair->im];
    }
    const auto known = unpaired.find(GetParam().name());
    EXPECT_EQ(without, known == unpaired.end() ? 0 : known->second);
}

// Sums and products in the instances of one block, those of the blocks inside included.
struct Steps {
    int sums = 0, products = 0;
    auto operator<=>(const Steps&) const = default;
};
using Instances = std::map<int, Steps>;

std::map<std::array<int, 4>, Instances> stepsOfBlocks(const Graph& graph) {
    std::map<std::array<int, 4>, Instances> steps;
    for (NodeId id : graph.aliveNodes()) {
        const Node& node = graph.node(id);
        if (node.kind == Kind::Load) continue;
        for (BlockId at = node.block; at != BlockId{}; at = graph.block(at).outer) {
            const Block& block = graph.block(at);
            Steps& own =
                steps[{static_cast<int>(block.kind), block.length, block.multiplier, block.stride}][block.instance];
            ++(isSum(node) ? own.sums : own.products);
        }
    }
    return steps;
}

// Two exceptions. A spectrum block of 3 multiplies one input by a constant. Where that input is a sum of two products,
// merging puts both products and the sum into the block in place of its one product; the block of 15 contains blocks of
// 3. And the bodies of the DCT-IV leave out what no output needs.
TEST_P(Pairs, OfInstancesOfABlockHaveAsManySteps) {
    const auto graph = GetParam().build();
    for (const auto& [block, instances] : stepsOfBlocks(*graph)) {
        const bool maySpare = GetParam().family->isBody();
        const bool mayMerge = !maySpare && (block[1] == 3 || block[1] == 15);
        Steps least = instances.begin()->second, most = least;
        for (const auto& [number, steps] : instances) {
            least = std::min(least, steps);
            most = std::max(most, steps);
        }
        EXPECT_EQ(most.products - least.products, mayMerge && least != most ? 1 : 0) << block[0] << " " << block[1];
        if (maySpare) continue;
        EXPECT_EQ(most.sums - least.sums, mayMerge && least != most ? 1 : 0) << block[0] << " " << block[1];
    }
}

INSTANTIATE_TEST_SUITE_P(All, Pairs, testing::ValuesIn(allGraphs()),
                         [](const testing::TestParamInfo<GraphEntry>& test) {
                             return test.param.family->word + std::to_string(test.param.length);
                         });

TEST(Blocks, AreNumberedByInstance) {
    Graph graph;
    const InBlock outer(graph, {BlockKind::Real, 6});
    for (int multiplier : {1, 2, 1}) const InBlock inner(graph, {BlockKind::Real, 3, multiplier});
    std::vector<int> instances;
    for (const Block& block : graph.blocks()) instances.push_back(block.instance);
    EXPECT_EQ(instances, (std::vector{0, 0, 0, 0, 1}));
    EXPECT_EQ(graph.blocks().back().outer, BlockId(1));
}

TEST(Blocks, AreTitledByWhatTheyAre) {
    EXPECT_EQ(blockTitle({}), "");
    EXPECT_EQ(blockTitle({BlockKind::MirroredSkew, 8}), "mirrored skew block of 8");
    EXPECT_EQ(blockTitle({BlockKind::Complex, 5, 3}), "complex block of 5, multiplier 3");
    EXPECT_EQ(blockTitle({.kind = BlockKind::WalshHadamard, .length = 8, .stride = 4, .position = 2}),
              "8 points from 2, stride 4");
    EXPECT_EQ(blockTitle({.kind = BlockKind::SkewRow, .length = 16, .position = 1}), "row 1 of 16");
}

}  // namespace
}  // namespace test
