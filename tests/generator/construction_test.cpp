// Every graph: its construction and counts against the tables of tests/expected, its values against the definition, its
// emitted text against its counts.
#include <gtest/gtest.h>

#include <algorithm>
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

// The graphs that have kernels; the others are bodies.
std::vector<gen::GraphEntry> kernelGraphs() {
    std::vector<gen::GraphEntry> graphs;
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (!entry.family->isBody()) graphs.push_back(entry);
    }
    return graphs;
}

// Rows in which the signs fall otherwise: the same sums and products, with another split into additions and
// subtractions. First ours, then the table's.
const std::map<std::string, std::pair<std::pair<int, int>, std::pair<int, int>>> otherSplits = {
    {"complex 22", {{194, 162}, {190, 166}}}, {"complex 23", {{336, 308}, {333, 311}}},
    {"complex 29", {{332, 324}, {316, 340}}}, {"complex 31", {{367, 325}, {366, 326}}},
    {"complex 41", {{499, 461}, {494, 466}}}, {"complex 43", {{574, 574}, {571, 577}}},
    {"complex 46", {{726, 654}, {718, 662}}}, {"complex 47", {{1319, 1293}, {1243, 1369}}},
    {"complex 49", {{453, 459}, {451, 461}}}, {"complex 55", {{628, 504}, {618, 514}}},
    {"complex 58", {{722, 706}, {694, 734}}}, {"complex 59", {{1404, 1392}, {1325, 1471}}},
    {"complex 61", {{856, 760}, {840, 776}}}, {"complex 62", {{796, 712}, {800, 708}}},
    {"hartley 23", {{152, 154}, {144, 162}}}, {"hartley 25", {{97, 79}, {98, 78}}},
    {"hartley 28", {{88, 88}, {84, 92}}},     {"hartley 29", {{170, 164}, {167, 167}}},
    {"hartley 31", {{185, 161}, {182, 164}}}, {"hartley 33", {{162, 138}, {159, 141}}},
    {"hartley 41", {{252, 232}, {250, 234}}}, {"hartley 43", {{279, 295}, {286, 288}}},
    {"hartley 44", {{216, 184}, {212, 188}}}, {"hartley 46", {{326, 332}, {323, 335}}},
    {"hartley 47", {{655, 651}, {600, 706}}}, {"hartley 49", {{228, 228}, {227, 229}}},
    {"hartley 55", {{301, 265}, {306, 260}}}, {"hartley 58", {{371, 355}, {353, 373}}},
    {"hartley 59", {{707, 691}, {700, 698}}}, {"hartley 61", {{433, 389}, {432, 390}}},
    {"hartley 62", {{395, 359}, {392, 362}}},
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
    ASSERT_EQ(row.number("length"), entry.length);
    if (const auto other = otherRecipes.find(entry.name()); other != otherRecipes.end()) {
        EXPECT_EQ(entry.recipe(), other->second.first);
        EXPECT_EQ(row.text("construction"), other->second.second);
    } else {
        EXPECT_EQ(entry.recipe(),
                  entry.family->word == "hartley" ? "form " + row.text("form") : row.text("construction"));
    }
}

// The split into additions and subtractions, of the families whose tables give it.
void expectSplit(const gen::GraphEntry& entry, const gen::Counts& counts, const ExpectedRow& row) {
    const std::pair found{counts.additions, counts.subtractions},
        due{row.number("additions"), row.number("subtractions")};
    EXPECT_EQ(found.first + found.second, due.first + due.second);
    const auto other = otherSplits.find(entry.name());
    EXPECT_EQ(found, other == otherSplits.end() ? due : other->second.first);
    EXPECT_EQ(due, other == otherSplits.end() ? due : other->second.second);
}

TEST_P(Construction, HoldsTheCountsOfTheTable) {
    const ExpectedRow row = expectedRow();
    EXPECT_EQ(counts.multiplications + outputs, row.number("multiplications"));
    if (entry.family->word == "complex") {
        expectSplit(entry, counts, row);
        EXPECT_EQ(counts.additions + counts.subtractions, row.number("sums"));
        EXPECT_EQ(counts.negations, 0);
    } else if (entry.family->word == "hartley") {
        expectSplit(entry, counts, row);
        EXPECT_EQ(counts.constants + 1, row.number("constants"));
        EXPECT_EQ(counts.negations, 0);
    } else {
        EXPECT_EQ(counts.additions + counts.subtractions, row.number("sums"));
        EXPECT_EQ(counts.negations, row.number("negations"));
    }
}

// What the family's graph is the transform of, without scale; bins as pairs.
Values definition(const std::string& family, const Values& x, int length) {
    if (family == "complex") return complexTransform(x, -1);
    if (family == "real_forward") return realTransform(x);
    if (family == "hartley") return hartleyTransform(x);
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
    for (std::size_t i = 0; i < due.size(); ++i) EXPECT_NEAR(static_cast<double>(found[i] - due[i]), 0, 3e-17) << i;
}

TEST_P(Construction, TheEmittedTextHoldsOneLineForEachStep) {
    const std::string text = gen::emitGraph(entry, *graph, gen::blockByBlock(*graph));
    std::map<std::string, int> lines;
    std::set<std::string> constants;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("        const V t")) {
            for (const char* sign : {" + ", " - ", " * "}) lines[sign] += line.find(sign) != std::string::npos;
        }
        lines["load"] += line.starts_with("        const V x");
        if (line.starts_with("        io.")) ++lines[line.starts_with("        io.minus") ? "minus" : "store"];
        if (line.find(",  // c[") != std::string::npos) constants.insert(line.substr(0, line.find(',')));
        if (line == "        const V two = Ports::two();") constants.insert("two");
    }
    EXPECT_EQ(lines[" + "], counts.additions);
    EXPECT_EQ(lines[" - "], counts.subtractions);
    EXPECT_EQ(lines[" * "], counts.multiplications);
    EXPECT_EQ(lines["minus"], counts.negations);
    EXPECT_EQ(lines["store"], outputs - counts.negations);
    EXPECT_EQ(lines["load"], entry.family->word == "complex" ? 2 * entry.length : entry.length);
    EXPECT_EQ(static_cast<int>(constants.size()), counts.constants);
}

// If it were there, the compiler would form sums in place of products.
TEST_P(Construction, TheNumberTwoIsNotInTheEmittedText) {
    const std::string text = gen::emitGraph(entry, *graph, gen::blockByBlock(*graph));
    for (const char* number : {" 2.0;", " 2.0,"}) EXPECT_EQ(text.find(number), std::string::npos);
    const bool doubles = entry.family->word == "real_inverse" && entry.length > 2;
    EXPECT_EQ(text.find(" = two * ") != std::string::npos, doubles);
}

INSTANTIATE_TEST_SUITE_P(All, Construction, testing::ValuesIn(kernelGraphs()),
                         [](const testing::TestParamInfo<gen::GraphEntry>& test) {
                             return test.param.family->word + "_" + std::to_string(test.param.length);
                         });

// The constants that the steps of a graph use.
std::set<double> constantsOf(const std::string& family, int length) {
    const auto graph = graphOf(family, length).build();
    std::set<double> constants;
    for (gen::NodeId id : graph->aliveNodes()) {
        const gen::Node& node = graph->node(id);
        if (node.kind == gen::Kind::Scaled) constants.insert(graph->constant(node.constant).stored);
    }
    return constants;
}

std::set<double> constantsOf(int length) { return constantsOf("complex", length); }

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

// Rader: p, M, distinct constants with that of `scale`, and the multiplications F, I and sums A_F, A_I of the real
// transforms of length M inside, forward and inverse.
struct RaderRow {
    int p, constants, forwardProducts, inverseProducts, forwardSums, inverseSums;
};
const RaderRow raderRows[] = {
    {11, 15, 16, 24, 34, 34},     {13, 19, 8, 16, 38, 38},      {17, 20, 12, 26, 58, 58},
    {19, 29, 40, 52, 82, 82},     {23, 47, 100, 120, 142, 158}, {29, 35, 72, 98, 150, 150},
    {31, 41, 68, 94, 158, 158},   {37, 47, 80, 106, 198, 198},  {41, 46, 74, 112, 220, 220},
    {43, 51, 136, 176, 266, 266}, {47, 93, 484, 528, 646, 614}, {53, 73, 164, 210, 414, 414},
    {59, 93, 420, 476, 670, 670}, {61, 67, 136, 194, 374, 374},
};

TEST(Rader, HoldsTheCountsThatItsPartsGive) {
    for (const RaderRow& row : raderRows) {
        const int m = row.p - 1;
        const gen::Counts whole = graphOf("complex", row.p).build()->counts();
        const gen::Counts forward = graphOf("real_forward", m).build()->counts();
        const gen::Counts inverse = graphOf("real_inverse", m).build()->counts();
        EXPECT_EQ(forward.multiplications, row.forwardProducts) << row.p;
        EXPECT_EQ(inverse.multiplications, row.inverseProducts) << row.p;
        EXPECT_EQ(forward.additions + forward.subtractions, row.forwardSums) << row.p;
        EXPECT_EQ(inverse.additions + inverse.subtractions, row.inverseSums) << row.p;
        EXPECT_EQ(whole.additions + whole.subtractions, 2 * row.forwardSums + 2 * row.inverseSums + 2 * (m - 2) + 4);
        EXPECT_EQ(whole.multiplications,
                  2 * row.forwardProducts + 2 * (row.inverseProducts - (m - 2)) + 2 * (2 + 4 * (m / 2 - 1)));
        EXPECT_EQ(whole.constants + 1, row.constants) << row.p;
    }
}

TEST(Rader, ThirteenHoldsItsListedConstants) {
    const std::set<double> due = {1.0 / 12,
                                  0.3004626062886657,
                                  0.5124953431658732,
                                  0.31378278210316923,
                                  0.5165207806234897,
                                  0.30711137115908277,
                                  0.5751407294740031,
                                  0.1741386011521359,
                                  0.15180597207438773,
                                  0.5814344829416822,
                                  0.6004772719326652,
                                  0.02319821121153658,
                                  0.5,
                                  0.8660254037844386,
                                  0.4473201176025111,
                                  0.26596624921483725,
                                  0.13146782826261083,
                                  0.5035370328637666};
    const std::set<double> found = constantsOf(13);
    ASSERT_EQ(found.size(), due.size());
    for (auto f = found.begin(), d = due.begin(); d != due.end(); ++f, ++d) EXPECT_NEAR(*f, *d, 2e-16);
    const std::set<double> real = constantsOf("real_forward", 13);
    EXPECT_EQ(real.size(), 16u);
    for (double constant : {1.0 / 12, 0.3004626062886657, 0.75, 0.4330127018922193}) {
        EXPECT_TRUE(std::ranges::any_of(real, [&](double c) { return std::abs(c - constant) < 1e-15; })) << constant;
    }
}

TEST(Rader, ElevenIsRaderAllRoundButForwardReal) {
    const double tenth = 0.1, beta = 0.33166247903554;
    for (const char* family : {"complex", "real_inverse"}) {
        const std::set<double> constants = constantsOf(family, 11);
        EXPECT_TRUE(constants.contains(tenth)) << family;
        EXPECT_TRUE(std::ranges::any_of(constants, [&](double c) { return std::abs(c - beta) < 1e-14; })) << family;
        EXPECT_FALSE(constants.contains(gen::nearest(gen::cosTurn(1, 11)))) << family;
    }
    EXPECT_EQ(constantsOf("real_inverse", 11).size(), 15u);
    EXPECT_EQ(constantsOf("real_forward", 11).size(), 10u);
    EXPECT_TRUE(constantsOf("real_forward", 11).contains(gen::nearest(gen::cosTurn(1, 11))));
}

TEST(Rader, ARotatedBlockHoldsOtherConstants) {
    EXPECT_NE(constantsOf(22), constantsOf(11));
    EXPECT_NE(constantsOf(33), constantsOf(22));
}

// Pairs of values a, b of which a graph holds both R (a + b) and R (a - b) or R (b - a), with R = sqrt(1/2).
int pairsAddedFirst(const std::string& family, int length) {
    const auto graph = graphOf(family, length).build();
    const double root = gen::nearest(gen::cosTurn(1, 8));
    std::set<std::pair<gen::NodeId, gen::NodeId>> sums, differences;
    for (gen::NodeId id : graph->aliveNodes()) {
        const gen::Node& node = graph->node(id);
        if (node.kind != gen::Kind::Scaled || graph->constant(node.constant).stored != root) continue;
        const gen::Node& factor = graph->node(node.a);
        if (factor.kind == gen::Kind::Add) sums.insert(std::minmax(factor.a, factor.b));
        if (factor.kind == gen::Kind::Sub) differences.insert(std::minmax(factor.a, factor.b));
    }
    return static_cast<int>(std::ranges::count_if(sums, [&](auto pair) { return differences.contains(pair); }));
}

// One eighth turn at 16, at 32 and at 64. Forward, each skew block of 4 is such a pair as well: one at 8, two at 16.
TEST(EighthTurns, OfRealColumnsAddFirst) {
    EXPECT_EQ(pairsAddedFirst("real_forward", 8), 1);
    EXPECT_EQ(pairsAddedFirst("real_forward", 16), 1 + 1);
    EXPECT_EQ(pairsAddedFirst("real_forward", 32), 4 * 1 + 1 + 1);  // columns of 8, the skew block, the turn
    EXPECT_EQ(pairsAddedFirst("real_forward", 64), 4 * 2 + 1 + 1);  // columns of 16
    EXPECT_EQ(pairsAddedFirst("real_forward", 48), 3 * 2);
    EXPECT_EQ(pairsAddedFirst("hartley", 16), 1 + 1);
}

TEST(EighthTurns, ToRealColumnsAddFirst) {
    EXPECT_EQ(pairsAddedFirst("real_inverse", 8), 0);
    EXPECT_EQ(pairsAddedFirst("real_inverse", 16), 1);
    EXPECT_EQ(pairsAddedFirst("real_inverse", 32), 1);
    EXPECT_EQ(pairsAddedFirst("real_inverse", 64), 1 + 1);  // row 0 is a block of 16
    EXPECT_EQ(pairsAddedFirst("hartley", 64), 1 + 1);
}

TEST(EighthTurns, OfComplexColumnsMultiplyFirst) {
    for (int length : {8, 16}) EXPECT_EQ(pairsAddedFirst("complex", length), 0) << length;
    EXPECT_EQ(pairsAddedFirst("complex", 17), 2 * (1 + 1) + 2 * 1);  // real blocks of 16, two each way
}

// The smallest graphs, whole: what the rules say is what comes out.
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

TEST(Exports, AreSortedAndTellTheirShape) {
    const auto exports = gen::allExports();
    ASSERT_FALSE(exports.empty());
    for (std::size_t i = 1; i < exports.size(); ++i) EXPECT_LT(exports[i - 1].name, exports[i].name);
    const auto kernel = std::ranges::find(exports, "zulgDFTFwd_RToCCS_8_32f", &gen::Export::name);
    ASSERT_NE(kernel, exports.end());
    EXPECT_EQ(kernel->argumentBytes(), 12);
    EXPECT_EQ(kernel->arguments[0].declaration(), "const Zulg32f* pSrc");
    EXPECT_EQ(kernel->arguments[1].declaration(), "Zulg32f* pDst");
    EXPECT_EQ(kernel->arguments[1].elements, "10");
    EXPECT_EQ(kernel->arguments[2].declaration(), "int32_t flag");
}

}  // namespace
}  // namespace test
