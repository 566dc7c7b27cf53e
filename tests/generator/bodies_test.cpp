// Bodies: the counts of their table, their values against the definition, their emitted text against their counts.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>

#include "output/emit.h"
#include "tests/generator/expected.h"
#include "tests/reference.h"

namespace test {
namespace {

std::vector<gen::GraphEntry> bodies() {
    std::vector<gen::GraphEntry> graphs;
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.family->isBody()) graphs.push_back(entry);
    }
    return graphs;
}

TEST(Bodies, AreThoseOfTheTable) {
    const auto graphs = bodies();
    const auto rows = expectedRows("bodies");
    ASSERT_EQ(graphs.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(graphs[i].name(), rows[i].text("family") + " " + rows[i].text("length"));
        const gen::Counts counts = graphs[i].build()->counts();
        EXPECT_EQ(counts.additions + counts.subtractions, rows[i].number("sums")) << graphs[i].name();
        EXPECT_EQ(counts.multiplications, rows[i].number("multiplications")) << graphs[i].name();
    }
}

TEST(Bodies, OfTheWalshHadamardTransformHaveAsManyAdditionsAsSubtractions) {
    for (const gen::GraphEntry& entry : bodies()) {
        if (entry.family->word != "wht") continue;
        const gen::Counts counts = entry.build()->counts();
        EXPECT_EQ(counts.additions, counts.subtractions) << entry.name();
        EXPECT_EQ(counts.negations, 0) << entry.name();
    }
}

TEST(Bodies, HoldOneLineForEachStep) {
    for (const gen::GraphEntry& entry : bodies()) {
        const auto graph = entry.build();
        const gen::Counts counts = graph->counts();
        std::istringstream stream(gen::emitGraph(entry, *graph, gen::blockByBlock(*graph)));
        int sums = 0, products = 0, minus = 0, stores = 0;
        for (std::string line; std::getline(stream, line);) {
            if (line.starts_with("        const V t")) {
                sums += line.find(" + ") != std::string::npos || line.find(" - ") != std::string::npos;
                products += line.find(" * ") != std::string::npos;
            }
            minus += line.starts_with("        io.minus");
            stores += line.starts_with("        io.");
        }
        EXPECT_EQ(sums, counts.additions + counts.subtractions) << entry.name();
        EXPECT_EQ(products, counts.multiplications) << entry.name();
        EXPECT_EQ(minus, counts.negations) << entry.name();
        EXPECT_EQ(stores, static_cast<int>(graph->outputs().size())) << entry.name();
    }
}

// The outputs of a graph for random inputs, and those inputs.
struct Sample {
    Values x, y;
};

Sample sampleOf(const std::string& family, int length) {
    for (const gen::GraphEntry& entry : bodies()) {
        if (entry.family->word != family || entry.length != length) continue;
        const auto graph = entry.build();
        std::mt19937 random(static_cast<unsigned>(length));
        std::uniform_real_distribution<double> uniform(-1, 1);
        Sample sample;
        for (int i = 0; i < graph->inputs(); ++i) sample.x.push_back(uniform(random));
        sample.y = gen::evaluate<Wide>(*graph, sample.x);
        return sample;
    }
    throw std::runtime_error("no body");
}

TEST(Bodies, OfTheWalshHadamardTransformComputeItsDefinition) {
    for (int points = 2; points <= 128; points *= 2) {
        const Sample sample = sampleOf("wht", points);
        const Values due = walshHadamardTransform(sample.x);
        for (std::size_t k = 0; k < due.size(); ++k) {
            EXPECT_NEAR(static_cast<double>(sample.y[k] - due[k]), 0, 1e-16) << points;
        }
    }
}

// A complex number of a list of pairs, and sums of such.
struct Number {
    Wide re = 0, im = 0;
};
Number at(const Values& pairs, int index) {
    return {pairs[static_cast<std::size_t>(2 * index)], pairs[static_cast<std::size_t>(2 * index + 1)]};
}
Number operator+(Number a, Number b) { return {a.re + b.re, a.im + b.im}; }
Number operator*(Number a, Number b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
// exp(2 pi i k/n).
Number root(int k, int n) { return {cosTurn(k, n), sinTurn(k, n)}; }

void expectNear(Number found, Number due, const std::string& where) {
    EXPECT_NEAR(static_cast<double>(found.re - due.re), 0, 2e-17 * 64) << where;
    EXPECT_NEAR(static_cast<double>(found.im - due.im), 0, 2e-17 * 64) << where;
}

TEST(Bodies, FoldsComputeTheSkewTransform) {
    for (int M = 2; M <= 64; M *= 2) {
        const Sample sample = sampleOf("dct4_fold", M);
        Values folded = sample.x;
        for (int s = M / 2; s < M; ++s) folded[static_cast<std::size_t>(s)] *= -1;
        const Values due = skewTransform(folded);
        for (int k = 0; k < M / 2; ++k) expectNear(at(sample.y, k), at(due, k), "fold " + std::to_string(M));
    }
}

// The order of p in a row of the table, as the plan fills it.
std::vector<int> outputOrder(int radix) {
    switch (radix) {
        case 1: return {0};
        case 2: return {0, 1};
        case 4: return {0, 3, 1, 2};
        case 8: return {0, 7, 1, 6, 2, 5, 3, 4};
        case 16: return {0, 15, 1, 14, 2, 13, 3, 12, 4, 11, 5, 10, 6, 9, 7, 8};
        default:
            return {0, 31, 16, 15, 4, 27, 20, 11, 8, 23, 24, 7, 12, 19, 28, 3,
                    1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2};
    }
}

TEST(Bodies, OutputRowsComputeTheSecondPass) {
    for (int r = 1; r <= 32; r *= 2) {
        const Sample sample = sampleOf("dct4_output", r);
        const Values table(sample.x.begin() + 2 * r, sample.x.end());
        const std::vector<int> order = outputOrder(r);
        for (int b = 0; b < r; ++b) {
            Wide rising = 0, falling = 0;
            for (int place = 0; place < r; ++place) {
                const int p = order[static_cast<std::size_t>(place)];
                const Number w = at(sample.x, p) * at(table, place) * root((2 * p + 1) * b, 4 * r);
                rising += w.re;
                falling += p % 2 == 0 ? w.im : -w.im;
            }
            EXPECT_NEAR(static_cast<double>(sample.y[static_cast<std::size_t>(b)] - rising), 0, 1e-17 * 128) << r;
            EXPECT_NEAR(static_cast<double>(sample.y[static_cast<std::size_t>(r + b)] - falling), 0, 1e-17 * 128) << r;
        }
    }
}

// With random numbers in place of twiddles: the two steps of radix 16 and 32 keep their sections apart.
TEST(Bodies, CombineRowsJoinTheirParts) {
    for (int r = 2; r <= 32; r *= 2) {
        const Sample sample = sampleOf("dct4_combine", r);
        const Values table(sample.x.begin() + 2 * r, sample.x.end());
        const int inner = r > 8 ? r / 4 : r, outer = r / inner;
        for (int e = 0; e < r; ++e) {
            const int j = e % inner, b = e / inner;
            Number due;
            for (int c = 0; c < r; ++c) {
                const int c1 = c % outer, c2 = c / outer;
                Number term = at(sample.x, c) * root(c2 * j, inner) * root(c1 * b, outer);
                if (c2 > 0) term = term * at(table, c2 - 1);
                if (c1 > 0) term = term * at(table, inner - 1 + 3 * j + c1 - 1);
                due = due + term;
            }
            if (e >= r / 2) due.im = -due.im;
            expectNear(at(sample.y, e), due, "combine " + std::to_string(r));
        }
    }
}

TEST(Bodies, DirectTransformsComputeTheDefinition) {
    for (int N = 2; N <= 32; N *= 2) {
        const Sample sample = sampleOf("dct4_direct", N);
        const Values due = dct4Transform(sample.x);
        for (std::size_t k = 0; k < due.size(); ++k) {
            EXPECT_NEAR(static_cast<double>(sample.y[k] - due[k]), 0, 1e-17 * 64) << N;
        }
    }
}

TEST(Bodies, OfTheDctNegateNothingButTheFoldOfTwo) {
    for (const gen::GraphEntry& entry : bodies()) {
        EXPECT_EQ(entry.build()->counts().negations, entry.name() == "dct4_fold 2" ? 1 : 0) << entry.name();
    }
}

// A single constant is the rounded double: no constant lies so near the middle of two singles that this shows.
TEST(Bodies, ConstantsOfTheDctRoundToTheSameSingleOnceOrTwice) {
    for (const gen::GraphEntry& entry : bodies()) {
        const auto graph = entry.build();
        for (const gen::Constant& constant : graph->constants()) {
            const float twice = static_cast<float>(constant.stored);
            const gen::Exact error = abs(constant.exact - gen::Exact(twice));
            for (float other : {std::nextafter(twice, 0.0f), std::nextafter(twice, 2.0f)}) {
                EXPECT_LT(error, abs(constant.exact - gen::Exact(other))) << entry.name() << " " << constant.origin;
            }
        }
    }
}

TEST(Graph, MinusADifferenceIsTheDifferenceTheOtherWayRound) {
    gen::Graph graph;
    const gen::Value a = graph.load(0), b = graph.load(1);
    graph.store(0, graph.withoutMinus(-(a - b)));
    graph.store(1, graph.withoutMinus(-(a + b)));
    EXPECT_EQ(graph.counts(), (gen::Counts{1, 1, 0, 1, 0}));
    const std::vector<Wide> y = gen::evaluate<Wide>(graph, std::vector<Wide>{5, 3});
    EXPECT_EQ(y, (std::vector<Wide>{-2, -8}));
}

TEST(Graph, AProductOfValuesIsSharedAndCarriesBothSigns) {
    gen::Graph graph;
    const gen::Value a = graph.load(0), b = graph.load(1);
    graph.store(0, a * b);
    graph.store(1, -b * a);
    EXPECT_EQ(graph.counts(), (gen::Counts{0, 0, 1, 1, 0}));
    EXPECT_EQ(gen::evaluate<Wide>(graph, std::vector<Wide>{5, 3}), (std::vector<Wide>{15, -15}));
}

}  // namespace
}  // namespace test
