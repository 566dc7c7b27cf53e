// Every graph: its construction and counts against the tables of requirements, its values against the definition, its
// emitted text against its counts.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <set>

#include "output/emit.h"
#include "tests/generator/expected.h"
#include "tests/transforms/transform.h"

namespace test {
namespace {

const gen::GraphEntry& graphOf(const std::string& family, int length) {
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.family->word == family && entry.length == length) return entry;
    }
    throw std::runtime_error("no graph");
}

// Rows in which the signs fall otherwise: the same sums and products, with another split into additions and
// subtractions. First ours, then the table's.
const std::map<int, std::pair<std::pair<int, int>, std::pair<int, int>>> complexSplits = {
    {49, {{453, 459}, {451, 461}}},
};

// Rows whose counts only another recipe meets than the one that the table names. First ours, then the table's.
const std::map<std::string, std::pair<std::string, std::string>> otherRecipes = {
    {"real_inverse 27", {"twiddled 9, 3", "twiddled 3, 9"}},
    {"real_inverse 32", {"twiddled 8, 4", "twiddled 4, 8"}},
    {"real_inverse 64", {"twiddled 16, 4", "twiddled 4, 16"}},
};

class Construction : public testing::TestWithParam<gen::GraphEntry> {
protected:
    const gen::GraphEntry& entry = GetParam();
    const std::unique_ptr<gen::Graph> graph = entry.build();
    const gen::Counts counts = graph->counts();
    const int outputs = static_cast<int>(graph->outputs().size());

    ExpectedRow expectedRow() const {
        const auto rows = expectedRows(entry.family->word);
        EXPECT_EQ(rows.size(), 63u);
        return rows.at(static_cast<std::size_t>(entry.length - 2));
    }
};

TEST_P(Construction, IsTheOneOfTheTable) {
    const ExpectedRow row = expectedRow();
    ASSERT_EQ(row.length, entry.length);
    if (const auto other = otherRecipes.find(entry.name()); other != otherRecipes.end()) {
        EXPECT_EQ(entry.recipe(), other->second.first);
        EXPECT_EQ(row.construction, other->second.second);
    } else {
        EXPECT_EQ(entry.recipe(), row.construction);
    }
}

TEST_P(Construction, HoldsTheCountsOfTheTable) {
    const ExpectedRow row = expectedRow();
    if (entry.family->word == "complex") {
        EXPECT_EQ(counts.additions + counts.subtractions, row.figures[2]);
        EXPECT_EQ(row.figures[0] + row.figures[1], row.figures[2]);
        EXPECT_EQ(counts.multiplications + outputs, row.figures[3]);
        EXPECT_EQ(counts.negations, 0);
        const std::pair found{counts.additions, counts.subtractions}, due{row.figures[0], row.figures[1]};
        const auto split = complexSplits.find(entry.length);
        EXPECT_EQ(found, split == complexSplits.end() ? due : split->second.first);
        EXPECT_EQ(due, split == complexSplits.end() ? due : split->second.second);
    } else {
        EXPECT_EQ(counts.additions + counts.subtractions, row.figures[0]);
        EXPECT_EQ(counts.multiplications + outputs, row.figures[1]);
        EXPECT_EQ(counts.negations, row.figures[2]);
    }
}

// What the family's graph is the transform of, without scale; bins as pairs.
Values definition(const std::string& family, const Values& x, int length) {
    if (family == "complex") return complexTransform(x, -1);
    if (family == "real_forward") return realTransform(x);
    return inverseRealTransform(x, length);
}

TEST_P(Construction, ComputesTheDefinition) {
    std::mt19937 random(static_cast<unsigned>(entry.length));
    std::uniform_real_distribution<double> uniform(-1, 1);
    Values x;
    for (int i = 0; i < graph->inputs(); ++i) x.push_back(uniform(random));
    if (entry.family->word == "real_inverse") x.resize(static_cast<std::size_t>(entry.length / 2 * 2 + 2));
    const Values due = definition(entry.family->word, x, entry.length);
    Values found = gen::evaluate<Wide>(*graph, x);
    found.resize(due.size());
    for (std::size_t i = 0; i < due.size(); ++i) EXPECT_NEAR(static_cast<double>(found[i] - due[i]), 0, 1e-17) << i;
}

TEST_P(Construction, TheEmittedTextHoldsOneLineForEachStep) {
    const std::string text = gen::emitKernels(entry, *graph, gen::blockByBlock(*graph));
    std::map<std::string, int> lines;
    std::set<std::string> constants;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("        const V t")) {
            for (const char* sign : {" + ", " - ", " * "}) lines[sign] += line.find(sign) != std::string::npos;
        }
        lines["load"] += line.starts_with("        const V x");
        if (line.starts_with("        io.")) ++lines[line.starts_with("        io.minus") ? "minus" : "store"];
        if (line.starts_with("    static constexpr double c")) constants.insert(line.substr(line.find('=')));
    }
    EXPECT_EQ(lines[" + "], counts.additions);
    EXPECT_EQ(lines[" - "], counts.subtractions);
    EXPECT_EQ(lines[" * "], counts.multiplications);
    EXPECT_EQ(lines["minus"], counts.negations);
    EXPECT_EQ(lines["store"], outputs - counts.negations);
    EXPECT_EQ(lines["load"], entry.family->word == "complex" ? 2 * entry.length : entry.length);
    EXPECT_EQ(static_cast<int>(constants.size()), counts.constants);
}

INSTANTIATE_TEST_SUITE_P(All, Construction, testing::ValuesIn(gen::allGraphs()),
                         [](const testing::TestParamInfo<gen::GraphEntry>& test) {
                             return test.param.family->word + "_" + std::to_string(test.param.length);
                         });

std::set<double> constantsOf(int length) {
    const auto graph = graphOf("complex", length).build();
    std::set<double> constants;
    for (const gen::Constant& constant : graph->constants()) constants.insert(constant.stored);
    return constants;
}

TEST(ComplexConstants, AreTheListedOnes) {
    EXPECT_EQ(constantsOf(3), (std::set{0.5, 0.8660254037844386}));
    EXPECT_EQ(constantsOf(4), std::set<double>{});
    EXPECT_EQ(constantsOf(5),
              (std::set{0.30901699437494745, 0.8090169943749475, 0.9510565162951535, 0.5877852522924731}));
    EXPECT_EQ(constantsOf(7), (std::set{0.6234898018587335, 0.2225209339563144, 0.9009688679024191, 0.7818314824680298,
                                        0.9749279121818236, 0.4338837391175581}));
    EXPECT_EQ(constantsOf(8), std::set{0.7071067811865476});
    EXPECT_EQ(constantsOf(16), (std::set{0.7071067811865476, 0.9238795325112867, 0.3826834323650898}));
    EXPECT_EQ(constantsOf(32).size(), 7u);
    EXPECT_EQ(constantsOf(64).size(), 15u);
}

TEST(ComplexConstants, OfAPrimeFactorLengthAreThoseOfItsBlocks) {
    EXPECT_EQ(constantsOf(6), constantsOf(3));
    EXPECT_EQ(constantsOf(10), constantsOf(5));
    EXPECT_EQ(constantsOf(12), constantsOf(3));
    auto both = constantsOf(3);
    both.merge(constantsOf(5));
    EXPECT_EQ(constantsOf(15), both);
    EXPECT_EQ(constantsOf(60), both);
}

TEST(ComplexConstants, OfATwiddledLengthAreThoseOfItsFullLength) {
    EXPECT_TRUE(constantsOf(9).contains(0.766044443118978));
    EXPECT_TRUE(constantsOf(9).contains(0.6427876096865394));
    for (int length : {25, 27, 49}) {
        EXPECT_TRUE(constantsOf(length).contains(gen::nearest(gen::cosTurn(1, length)))) << length;
        EXPECT_TRUE(constantsOf(length).contains(gen::nearest(gen::sinTurn(1, length)))) << length;
    }
}

// The smallest graphs, whole: what the rules say is what stands.
TEST(Listing, OfTwoPoints) {
    const std::string text = graphOf("complex", 2).build()->text();
    EXPECT_EQ(text,
              "v0 = in 0\n"
              "v1 = in 1\n"
              "v2 = in 2\n"
              "v3 = in 3\n"
              "v4 = v0 + v2\n"  // X[0] = x[0] + x[1]
              "v5 = v1 + v3\n"
              "v6 = v0 - v2\n"  // X[1] = x[0] - x[1]
              "v7 = v1 - v3\n"
              "out 0 = v4\n"
              "out 1 = v5\n"
              "out 2 = v6\n"
              "out 3 = v7\n");
}

TEST(Listing, OfThreePoints) {
    const std::string text = graphOf("complex", 3).build()->text();
    EXPECT_EQ(text.substr(text.find("v6 ")),
              "v6 = v2 + v4\n"  // a = x[1] + x[2]
              "v7 = v3 + v5\n"
              "v8 = v2 - v4\n"  // d = x[1] - x[2]
              "v9 = v3 - v5\n"
              "v10 = v6 + v0\n"  // X[0] = a + x[0]
              "v11 = v7 + v1\n"
              "v12 = 0.5 * v6\n"
              "v13 = v0 - v12\n"  // t = x[0] - 0.5 a
              "v14 = 0.5 * v7\n"
              "v15 = v1 - v14\n"
              "v16 = 0.8660254037844386 * v8\n"  // u = S d
              "v17 = 0.8660254037844386 * v9\n"
              "v18 = v13 + v17\n"  // X[1] = (t.re + u.im, t.im - u.re)
              "v19 = v15 - v16\n"
              "v20 = v13 - v17\n"  // X[2] = (t.re - u.im, t.im + u.re)
              "v21 = v15 + v16\n"
              "out 0 = v10\n"
              "out 1 = v11\n"
              "out 2 = v18\n"
              "out 3 = v19\n"
              "out 4 = v20\n"
              "out 5 = v21\n");
}

TEST(Exports, AreSortedAndEachHasItsShape) {
    const auto exports = gen::allExports();
    ASSERT_FALSE(exports.empty());
    for (std::size_t i = 1; i < exports.size(); ++i) EXPECT_LT(exports[i - 1].name, exports[i].name);
    for (const gen::Export& entry : exports) {
        const bool takesLength = entry.parameters.find("length") != std::string::npos;
        EXPECT_EQ(entry.argumentBytes, takesLength ? 16 : 12) << entry.name;
    }
}

}  // namespace
}  // namespace test
