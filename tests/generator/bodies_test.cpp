// Bodies: the counts of their table, their values against the definition, their emitted text against their counts.
#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <random>
#include <sstream>

#include "output/emit.h"
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

struct BodyRow {
    std::string family;
    int length, sums, products;
};

std::vector<BodyRow> expectedBodies() {
    std::ifstream file(std::string(ZULG_EXPECTED) + "/bodies.txt");
    std::vector<BodyRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("#")) continue;
        BodyRow row;
        char bar;
        std::istringstream(line) >> row.family >> bar >> row.length >> bar >> row.sums >> bar >> row.products;
        rows.push_back(row);
    }
    return rows;
}

TEST(Bodies, AreThoseOfTheTable) {
    const auto graphs = bodies();
    const auto rows = expectedBodies();
    ASSERT_EQ(graphs.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(graphs[i].name(), rows[i].family + " " + std::to_string(rows[i].length));
        const gen::Counts counts = graphs[i].build()->counts();
        EXPECT_EQ(counts.additions + counts.subtractions, rows[i].sums) << graphs[i].name();
        EXPECT_EQ(counts.multiplications, rows[i].products) << graphs[i].name();
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
        for (int k = 0; k < points; ++k) {
            Wide due = 0;
            for (int j = 0; j < points; ++j) {
                const bool isMinus = std::popcount(static_cast<unsigned>(j & k)) % 2 == 1;
                due += isMinus ? -sample.x[static_cast<std::size_t>(j)] : sample.x[static_cast<std::size_t>(j)];
            }
            EXPECT_NEAR(static_cast<double>(sample.y[static_cast<std::size_t>(k)] - due), 0, 1e-16) << points;
        }
    }
}

}  // namespace
}  // namespace test
