// Graphs in registers of several lanes: each step of the graph is one lane of one step, and nothing else is computed.
#include "graph/lanes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "graph/complex_value.h"
#include "graph/lines.h"
#include "output/catalogue.h"
#include "output/emit_lanes.h"
#include "rules/tables.h"
#include "rules/transforms.h"

namespace gen {
namespace {

using StepKind = LaneStep::Kind;

std::size_t at(int number) { return static_cast<std::size_t>(number); }

// The lanes that a step gives, worked out from the lanes that it takes. Each lane of arithmetic is held against the
// node that the program says it is.
class Reading {
public:
    Reading(const Graph& source, const LaneProgram& laneProgram)
        : graph(source), program(laneProgram), known(laneProgram.registers.size(), false) {
        for (const LaneStep& step : program.steps) read(step);
    }

    std::map<NodeId, int> computed;  // how often
    std::map<int, Lane> stored;      // by output
    int shuffles = 0, flips = 0;

private:
    const Lanes& lanes(int number) {
        EXPECT_TRUE(known[at(number)]) << "register " << number << " is taken before it is given";
        return program.registers[at(number)];
    }

    void read(const LaneStep& step) {
        switch (step.kind) {
            case StepKind::Store: return store(step);
            case StepKind::Load: load(step); break;
            case StepKind::Sum:
            case StepKind::Difference: sum(step); break;
            case StepKind::Scaled: scaled(step); break;
            default: EXPECT_EQ(moved(step), program.registers[at(step.result)]);
        }
        EXPECT_FALSE(known[at(step.result)]) << "register " << step.result << " is given twice";
        known[at(step.result)] = true;
    }

    void load(const LaneStep& step) {
        EXPECT_TRUE(stored.empty()) << "a load after a store";
        const Lanes& result = program.registers[at(step.result)];
        ASSERT_EQ(result.size(), step.numbers.size());
        for (std::size_t i = 0; i < result.size(); ++i) {
            const Node& node = graph.node(result[i].node);
            EXPECT_EQ(node.kind, Kind::Load);
            EXPECT_EQ(node.input, step.numbers[i]);
            EXPECT_FALSE(result[i].minus);
        }
    }

    void store(const LaneStep& step) {
        Lanes from = lanes(step.a);
        ASSERT_EQ(from.size(), step.numbers.size());
        for (std::size_t i = 0; i < from.size(); ++i) {
            if (!step.flips.empty()) from[i].minus = from[i].minus != step.flips.at(i);
            const int output = step.numbers[i];
            EXPECT_TRUE(stored.emplace(output, from[i]).second) << "output " << output << " is stored twice";
        }
    }

    // (+-x) + (+-y), with the signs as the lanes have them, must be the node: x + y, x - y or -y + x.
    void sum(const LaneStep& step) {
        const Lanes a = lanes(step.a), b = lanes(step.b), result = program.registers[at(step.result)];
        ASSERT_EQ(a.size(), result.size());
        ASSERT_EQ(b.size(), result.size());
        for (std::size_t i = 0; i < result.size(); ++i) {
            const Node& node = graph.node(result[i].node);
            Lane x = a[i], y = b[i];
            if (step.kind == StepKind::Difference) y.minus = !y.minus;
            if (x.node != node.a || x.minus) std::swap(x, y);
            EXPECT_FALSE(result[i].minus) << "a sum has no sign to give away: what it cancels is a positive zero";
            EXPECT_TRUE(node.kind == Kind::Add || node.kind == Kind::Sub);
            EXPECT_EQ(x, Lane{node.a});
            EXPECT_EQ(y, (Lane{node.b, node.kind == Kind::Sub}));
            ++computed[result[i].node];
        }
    }

    void scaled(const LaneStep& step) {
        const Lanes a = lanes(step.a), result = program.registers[at(step.result)];
        ASSERT_EQ(a.size(), result.size());
        ASSERT_EQ(step.factors.size(), result.size());
        for (std::size_t i = 0; i < result.size(); ++i) {
            const Node& node = graph.node(result[i].node);
            EXPECT_EQ(node.kind, Kind::Scaled);
            EXPECT_EQ(node.a, a[i].node);
            EXPECT_EQ(node.constant, step.factors[i].constant);
            EXPECT_EQ(result[i].minus, a[i].minus != step.factors[i].minus);
            ++computed[result[i].node];
        }
    }

    Lanes moved(const LaneStep& step) {
        Lanes from = lanes(step.a);
        if (step.kind == StepKind::Flip) {
            ++flips;
            for (std::size_t i = 0; i < from.size(); ++i) from[i].minus = from[i].minus != step.flips.at(i);
            return from;
        }
        ++shuffles;
        const auto half = static_cast<std::ptrdiff_t>(from.size() / 2);
        if (step.kind == StepKind::Part) {
            return step.places.at(0) == 0 ? Lanes(from.begin(), from.begin() + half)
                                          : Lanes(from.begin() + half, from.end());
        }
        if (step.b >= 0) {
            const Lanes& second = lanes(step.b);
            EXPECT_EQ(second.size(), from.size());
            from.insert(from.end(), second.begin(), second.end());
        }
        if (step.kind == StepKind::Join) return from;
        Lanes result;
        for (int place : step.places) result.push_back(from.at(at(place)));
        return result;
    }

    const Graph& graph;
    const LaneProgram& program;
    std::vector<bool> known;
};

// The texts of a graph are made once for all tests of it.
struct Texts {
    std::unique_ptr<Graph> graph;
    std::vector<LaneText> texts;
};
const Texts& textsOf(const GraphEntry& entry) {
    static std::map<std::string, Texts> known;
    Texts& texts = known[entry.name()];
    if (!texts.graph) {
        texts.graph = entry.build();
        texts.texts = laneTexts(entry, *texts.graph);
    }
    return texts;
}

class LanesOf : public testing::TestWithParam<GraphEntry> {
protected:
    const Graph& graph = *textsOf(GetParam()).graph;
    const std::vector<LaneText>& texts = textsOf(GetParam()).texts;
};

TEST_P(LanesOf, EachStepIsOneLaneOfOneStep) {
    std::map<NodeId, int> due;
    for (NodeId id : graph.aliveNodes()) {
        if (graph.node(id).kind != Kind::Load) due[id] = 1;
    }
    std::map<int, Lane> dueOutputs;
    for (const Output& output : graph.outputs()) dueOutputs[output.place] = {output.node, output.minus};
    ASSERT_FALSE(texts.empty());
    for (const LaneText& text : texts) {
        SCOPED_TRACE(text.form->name);
        const Reading reading(graph, text.program);
        EXPECT_EQ(reading.computed, due);
        EXPECT_EQ(reading.stored, dueOutputs);
    }
}

// A bound on what is not arithmetic. A text that takes registers apart and puts them together again fails it. Real
// transforms have their columns in other lanes than their rows.
TEST_P(LanesOf, ShufflesAreAboutHalfAsManyAsStepsAtMostIfAllIsComplex) {
    const bool isComplex = GetParam().family->word == "complex";
    for (const LaneText& text : texts) {
        const Reading reading(graph, text.program);
        const auto steps = static_cast<int>(std::ranges::count_if(text.program.steps, [](const LaneStep& step) {
            return step.kind == StepKind::Sum || step.kind == StepKind::Difference || step.kind == StepKind::Scaled;
        }));
        EXPECT_LE(reading.shuffles, isComplex ? steps / 2 + (text.form->lanes == 4 ? 8 : 0) : steps * 5 / 4)
            << text.form->name;
        EXPECT_LE(reading.flips, isComplex ? steps / 3 : steps / 2) << text.form->name;
    }
}

// Four lanes are taken where they save a fifth of the steps of two, which is so from some length on.
TEST(Lanes, FourAreTakenWhereTheySaveSteps) {
    std::map<std::string, int> lengths;
    for (const GraphEntry& entry : allGraphs()) {
        if (!entry.family->laneForms.empty()) lengths[entry.family->word] += textsOf(entry).texts.size() == 2 ? 1 : 0;
    }
    EXPECT_EQ(lengths, (std::map<std::string, int>{
                           {"complex", 57}, {"hartley", 21}, {"real_forward", 25}, {"real_inverse", 20}}));
}

std::vector<GraphEntry> graphsInLanes() {
    std::vector<GraphEntry> graphs;
    std::ranges::copy_if(allGraphs(), std::back_inserter(graphs),
                         [](const GraphEntry& entry) { return !entry.family->laneForms.empty(); });
    return graphs;
}

std::string nameOf(const testing::TestParamInfo<GraphEntry>& graph) {
    return graph.param.family->word + "_" + std::to_string(graph.param.length);
}

INSTANTIATE_TEST_SUITE_P(EveryGraph, LanesOf, testing::ValuesIn(graphsInLanes()), nameOf);

constexpr Arrays complexArrays{Elements::Complex, Elements::Complex}, realArrays{Elements::Real, Elements::Real};

// x - i y: the parts of y are exchanged, and one of them gets a minus.
TEST(Lanes, ATurnIsAShuffleAndASign) {
    Graph graph;
    const ComplexValue x = paired(graph.load(0), graph.load(1)), y = paired(graph.load(2), graph.load(3));
    const ComplexValue z = x + timesMinusI(y);
    graph.store(0, z.re);
    graph.store(1, z.im);
    const LaneProgram program = inLanes(graph, Units(graph, Unit::Pair), complexArrays, Mates::Alike, Order::Blocks);
    const Reading reading(graph, program);
    EXPECT_EQ(reading.shuffles, 1);
    EXPECT_EQ(reading.flips, 1);
}

// The sign that a product's lane is asked for goes into its constant.
TEST(Lanes, ASignGoesIntoAConstant) {
    Graph graph;
    const ComplexValue x = paired(graph.load(0), graph.load(1)), y = paired(graph.load(2), graph.load(3));
    const ComplexValue z = x + timesMinusI(cosine(1, 16) * y);
    graph.store(0, z.re);
    graph.store(1, z.im);
    const LaneProgram program = inLanes(graph, Units(graph, Unit::Pair), complexArrays, Mates::Alike, Order::Blocks);
    EXPECT_EQ(Reading(graph, program).flips, 0);
}

// Sums of neighbours are one register from the loads to the store.
TEST(Lanes, FourSumsOfRealNumbersAreOneStep) {
    Graph graph;
    for (int n = 0; n < 4; ++n) graph.store(n, graph.load(n) + graph.load(n + 4));
    const Units units(graph, {{NodeId(2), NodeId(5), NodeId(8), NodeId(11)}});
    const LaneProgram program = inLanes(graph, units, realArrays, Mates::Alike, Order::Blocks);
    ASSERT_EQ(program.steps.size(), 4u);
    EXPECT_EQ(program.steps[0].numbers, (std::vector{0, 1, 2, 3}));
    EXPECT_EQ(program.steps[1].numbers, (std::vector{4, 5, 6, 7}));
    EXPECT_EQ(program.steps[2].kind, StepKind::Sum);
    EXPECT_EQ(program.steps[3].numbers, (std::vector{0, 1, 2, 3}));
}

// Where an output is minus a value, the store changes the sign.
TEST(Lanes, AStoreChangesASign) {
    Graph graph;
    const Value x = graph.load(0), y = graph.load(1);
    graph.store(0, x + y);
    graph.store(1, -(x - y));
    const LaneProgram program = inLanes(graph, Units(graph, {{NodeId(2), NodeId(3)}}),
                                        {Elements::Real, Elements::Complex}, Mates::Alike, Order::Blocks);
    const Reading reading(graph, program);
    EXPECT_EQ(reading.flips, 1);  // of the difference, on the way in
    EXPECT_EQ(program.steps.back().flips, (std::vector{false, true}));
}

// Four columns of two values are four rows of two: one shuffle for each register on the way.
TEST(Lanes, ColumnsAreTransposed) {
    Graph graph;
    std::vector<Value> sums, differences;
    Group columnSums, columnDifferences;
    for (int n = 0; n < 4; ++n) {
        sums.push_back(graph.load(n) + graph.load(n + 4));
        differences.push_back(graph.load(n) - graph.load(n + 4));
        columnSums.push_back(sums.back().node);
        columnDifferences.push_back(differences.back().node);
    }
    Group rows;  // the sums of columns 0 and 1, and of columns 2 and 3
    for (std::size_t n : {0u, 2u}) {
        for (const std::vector<Value>* values : {&sums, &differences}) {
            rows.push_back(((*values)[n] + (*values)[n + 1]).node);
            graph.store(static_cast<int>(rows.size()) - 1, {&graph, rows.back(), false});
        }
    }
    const Units units(graph, {columnSums, columnDifferences, rows});
    const LaneProgram program = inLanes(graph, units, realArrays, Mates::Alike, Order::Blocks);
    EXPECT_EQ(Reading(graph, program).shuffles, 2);
}

// Lines are found where a stage has two of them, and every group is of steps that are alike.
class LinesWith : public testing::TestWithParam<Mates> {};

TEST_P(LinesWith, AreOfStepsThatAreAlike) {
    for (int length = 4; length <= 64; ++length) {
        const auto graph = complexTransform(length);
        std::set<NodeId> seen;
        std::size_t inLines = 0;
        const std::vector<Group> groups = groupsOfLines(*graph, 4, complexArrays, GetParam());
        for (const Group& group : groups) {
            for (NodeId id : group) {
                EXPECT_TRUE(seen.insert(id).second) << length << ": a step is in two groups";
                EXPECT_EQ(graph->node(id).kind == Kind::Scaled, graph->node(group[0]).kind == Kind::Scaled);
            }
            inLines += group.size() == 4 ? 4 : 0;
        }
        if (!complexRecipe(length).factors.empty()) {
            EXPECT_GT(inLines, 0u) << length;
            if (length > 4) {
                EXPECT_GE(inLines, seen.size() / 2) << length << ": most steps share a register";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(BothMates, LinesWith, testing::Values(Mates::Alike, Mates::Neighbours),
                         [](const auto& mates) { return mates.param == Mates::Alike ? "alike" : "neighbours"; });

// How many stores of two elements there are, and how many of them are of neighbours.
std::pair<int, int> storesOfTwo(int length, Mates mates) {
    const auto graph = complexTransform(length);
    const Units units(*graph, groupsOfLines(*graph, 4, complexArrays, mates));
    const LaneProgram program = inLanes(*graph, units, complexArrays, mates, Order::Bisection);
    Reading(*graph, program);
    int all = 0, neighbours = 0;
    for (const LaneStep& step : program.steps) {
        if (step.kind != StepKind::Store || step.numbers.size() != 4) continue;
        ++all;
        neighbours += step.numbers[2] == step.numbers[0] + 2;
    }
    return {all, neighbours};
}

// Twiddled lines that follow each other hold neighbours in one register. Those of a prime-factor form hold an element
// and its neighbour in two registers; the last line of an odd number of lines is by itself.
TEST(Lines, OfNeighboursAreStoredTogether) {
    EXPECT_EQ(storesOfTwo(64, Mates::Neighbours), (std::pair{32, 32}));
    EXPECT_EQ(storesOfTwo(64, Mates::Alike), (std::pair{32, 0}));
    EXPECT_EQ(storesOfTwo(20, Mates::Neighbours), (std::pair{10, 10}));
    EXPECT_EQ(storesOfTwo(20, Mates::Alike), (std::pair{10, 0}));
    EXPECT_EQ(storesOfTwo(30, Mates::Neighbours), (std::pair{14, 14}));
}

// Groups that take values from themselves or from each other are cut until they can be put in order.
TEST(Units, CutGroupsThatGoInACircle) {
    Graph graph;
    const Value x = graph.load(0), y = graph.load(1);
    const Value a = x + y, b = a + y, c = x - y, d = c + y;
    graph.store(0, b);
    graph.store(1, d);
    EXPECT_EQ(Units(graph, {{a.node, b.node}, {c.node, d.node}}).count(), 6u);
    const Units crossed(graph, {{a.node, d.node}, {b.node, c.node}});  // b takes a, and d takes c
    EXPECT_EQ(crossed.count(), 5u);
    EXPECT_NE(crossed.of(a.node) == crossed.of(d.node), crossed.of(b.node) == crossed.of(c.node));
    const Units units(graph, {{a.node, c.node, b.node, d.node}});
    ASSERT_EQ(units.count(), 4u);
    EXPECT_EQ(units.nodes(units.of(a.node)), (Group{a.node, c.node}));
    EXPECT_EQ(units.nodes(units.of(d.node)), (Group{b.node, d.node}));
}

}  // namespace
}  // namespace gen
