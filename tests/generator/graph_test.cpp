// The graph: insertion is sharing, and signs ride on values.
#include "graph/graph.h"

#include <gtest/gtest.h>

#include "graph/complex_value.h"

namespace test {
namespace {

using namespace gen;

class GraphTest : public testing::Test {
protected:
    Graph graph;
    Value a = graph.load(0), b = graph.load(1);
    const Coefficient half{Exact(0.5), "half"}, minusHalf{Exact(-0.5), "half"};

    void expectNode(Value value, Kind kind, Value left, Value right, bool minus) {
        const Node& node = graph.node(value.node);
        EXPECT_EQ(node.kind, kind);
        EXPECT_EQ(node.a, left.node);
        EXPECT_EQ(node.b, right.node);
        EXPECT_EQ(value.minus, minus);
    }
};

TEST_F(GraphTest, ASignGoesIntoTheStepThatFollows) {
    expectNode(a + b, Kind::Add, a, b, false);
    expectNode(a - b, Kind::Sub, a, b, false);
    expectNode(-a + b, Kind::Sub, b, a, false);
    expectNode(a - -b, Kind::Add, a, b, false);
    expectNode(-a - b, Kind::Add, a, b, true);
    expectNode(-a - -b, Kind::Sub, b, a, false);
}

TEST_F(GraphTest, AConstantGivesItsSignToTheValue) {
    const Value positive = half * a, negative = minusHalf * a;
    EXPECT_EQ(positive.node, negative.node);
    EXPECT_FALSE(positive.minus);
    EXPECT_TRUE(negative.minus);
    EXPECT_FALSE((minusHalf * -a).minus);
    ASSERT_EQ(graph.constants().size(), 1u);
    EXPECT_GT(graph.constants()[0].stored, 0);
}

TEST_F(GraphTest, EqualStepsAreOneNode) {
    EXPECT_EQ((a + b).node, (b + a).node);
    EXPECT_NE((a - b).node, (b - a).node);
    EXPECT_EQ((half * a).node, (half * a).node);
    EXPECT_EQ(graph.load(0).node, a.node);
    EXPECT_EQ(graph.nodes().size(), 6u);
}

TEST_F(GraphTest, AProductWithZeroIsRefused) { EXPECT_THROW((Coefficient{Exact(0), "zero"} * a), std::logic_error); }

TEST_F(GraphTest, ANodeTellsWhatItWorksOn) {
    const auto operandsOf = [&](Value x) {
        const Operands found = operands(graph.node(x.node));
        return std::vector<NodeId>(found.begin(), found.end());
    };
    EXPECT_EQ(operandsOf(a), std::vector<NodeId>{});
    EXPECT_EQ(operandsOf(half * a), std::vector{a.node});
    EXPECT_EQ(operandsOf(b - a), (std::vector{b.node, a.node}));
    EXPECT_EQ(operandsOf(a + a), (std::vector{a.node, a.node}));
    EXPECT_EQ(operandsOf(a * b), (std::vector{a.node, b.node}));
}

TEST_F(GraphTest, CountsWhatTheOutputsNeedAndNothingElse) {
    const Value used = half * (a + b);
    static_cast<void>(a - b);
    graph.store(0, -used);
    EXPECT_EQ(graph.counts(),
              (Counts{.additions = 1, .subtractions = 0, .multiplications = 1, .negations = 1, .constants = 1}));
}

TEST_F(GraphTest, InterpretsItself) {
    graph.store(0, minusHalf * (a - b));
    graph.store(1, a);
    const std::vector<double> inputs = {3, 5};
    EXPECT_EQ(evaluate<double>(graph, inputs), (std::vector<double>{1, 3}));
}

TEST_F(GraphTest, DrawsEveryNode) {
    graph.store(0, half * (a + b));
    const std::string drawing = graph.dot();
    for (const char* piece : {"digraph", "x0", "x1", "label=\"+\"", "half", "X0", "n0 -> n2", "n3 -> out0"}) {
        EXPECT_NE(drawing.find(piece), std::string::npos) << piece;
    }
}

class Twiddle : public testing::TestWithParam<EighthTurn> {};

// Steps that a twiddle of exponent e over 16 takes: additions and subtractions, multiplications.
std::pair<int, int> twiddleCost(int e, EighthTurn order) {
    Graph graph;
    const ComplexValue turned = twiddled({graph.load(0), graph.load(1)}, e, 16, order);
    graph.store(0, turned.re);
    graph.store(1, turned.im);
    const Counts counts = graph.counts();
    return {counts.additions + counts.subtractions, counts.multiplications};
}

TEST_P(Twiddle, TheExponentAloneChoosesTheForm) {
    for (int e = -16; e <= 32; ++e) {
        const std::pair<int, int> due = e % 4 == 0 ? std::pair{0, 0} : e % 2 == 0 ? std::pair{2, 2} : std::pair{2, 4};
        EXPECT_EQ(twiddleCost(e, GetParam()), due) << e;
    }
}

TEST_P(Twiddle, TurnsByItsAngle) {
    for (int n : {4, 8, 9, 16, 64}) {
        for (int e = -n; e <= n; ++e) {
            Graph graph;
            const ComplexValue turned = twiddled({graph.load(0), graph.load(1)}, e, n, GetParam());
            graph.store(0, turned.re);
            graph.store(1, turned.im);
            const std::vector<Exact> inputs = {3, 4}, found = evaluate<Exact>(graph, inputs);
            const Exact c = cosTurn(e, n), s = sinTurn(e, n);
            EXPECT_LT(abs(found[0] - (3 * c + 4 * s)), Exact("1e-45")) << e << "/" << n;
            EXPECT_LT(abs(found[1] - (4 * c - 3 * s)), Exact("1e-45")) << e << "/" << n;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(BothOrders, Twiddle, testing::Values(EighthTurn::ProductsFirst, EighthTurn::SumsFirst),
                         [](const testing::TestParamInfo<EighthTurn>& test) {
                             return test.param == EighthTurn::SumsFirst ? "SumsFirst" : "ProductsFirst";
                         });

TEST_F(GraphTest, AnEighthTurnMultipliesFirstUnlessItIsToAddFirst) {
    const ComplexValue productsFirst = twiddled({a, b}, 1, 8);
    const Coefficient root = cosine(1, 8);
    const Value productA = root * a, productB = root * b;
    expectNode(productsFirst.re, Kind::Add, productA, productB, false);
    expectNode(productsFirst.im, Kind::Sub, productB, productA, false);

    const ComplexValue sumsFirst = twiddled({a, b}, 1, 8, EighthTurn::SumsFirst);
    EXPECT_EQ(sumsFirst.re.node, (root * (a + b)).node);
    EXPECT_EQ(sumsFirst.im.node, (root * (b - a)).node);
}

}  // namespace
}  // namespace test
