// The file of a machine's choices: what a row does, and what is refused.
#include "output/tuning.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "output/emit_lanes.h"

namespace test {
namespace {

using namespace gen;

Tuning tuningOf(const std::string& text) {
    std::istringstream rows(text);
    Tuning tuning;
    tuning.add(rows, "tuning.txt");
    return tuning;
}

std::string faultOf(const std::string& text) {
    try {
        tuningOf(text);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

// The nodes in the order of their steps.
std::vector<NodeId> orderOf(const Schedule& schedule) {
    std::vector<NodeId> nodes;
    for (const Step& step : schedule.steps) nodes.push_back(step.node);
    return nodes;
}

TEST(Tuning, OrdersTheGraphsOfItsRowsByBisection) {
    const Tuning tuning = tuningOf("# a comment\n\ncomplex 16 bisection 4.5  # measured\nhartley 16 blocks 6\n");
    for (const GraphEntry& entry : allGraphs()) {
        if (entry.name() != "complex 16" && entry.name() != "hartley 16") continue;
        const auto graph = entry.build();
        const auto bisected = orderOf(byBisection(*graph)), plain = orderOf(blockByBlock(*graph));
        EXPECT_NE(bisected, plain);
        EXPECT_EQ(orderOf(tuning.schedule(entry, *graph)), entry.name() == "complex 16" ? bisected : plain);
        EXPECT_EQ(orderOf(Tuning().schedule(entry, *graph)), plain);
        EXPECT_EQ(orderOf(readTuning("no such folder").schedule(entry, *graph)), plain);
    }
}

TEST(Tuning, GivesTheOrderOfARow) {
    const Tuning tuning = tuningOf("complex 16 bisection 7\ncomplex_lines 16 blocks 6\n");
    EXPECT_EQ(tuning.orderOf("complex 16", Order::Blocks), Order::Bisection);
    EXPECT_EQ(tuning.orderOf("complex 17", Order::Blocks), Order::Blocks);
    EXPECT_EQ(tuning.orderOf("complex_lines 16", Order::Bisection), Order::Blocks);
    EXPECT_EQ(Tuning().orderOf("complex_lines 16", Order::Bisection), Order::Bisection);
}

TEST(Tuning, ALaneTextTakesItsOrder) {
    const auto entry = std::ranges::find(allGraphs(), "complex 16", &GraphEntry::name);
    const auto graph = entry->build();
    const auto numbersOf = [&](const Tuning& tuning) {
        const std::vector<LaneText> texts = laneTexts(*entry, *graph, tuning);
        std::vector<std::vector<int>> numbers;
        for (const LaneStep& step : texts.back().program.steps) numbers.push_back(step.numbers);
        return numbers;
    };
    EXPECT_NE(numbersOf(tuningOf("complex_lines 16 blocks 6\n")), numbersOf(Tuning()));
    EXPECT_EQ(numbersOf(tuningOf("complex_pairs 16 blocks 6\n")), numbersOf(Tuning()));
}

TEST(Tuning, RefusesWhatItDoesNotUnderstandAndTellsWhere) {
    EXPECT_EQ(faultOf("complex 16 bisection 7.5\n"), "");
    EXPECT_EQ(faultOf("\ncomplex 65 bisection 7\n"), "tuning.txt:2: no text complex 65");
    EXPECT_EQ(faultOf("complex_threes 16 bisection 7\n"), "tuning.txt:1: no text complex_threes 16");
    EXPECT_EQ(faultOf("complex 16 haste 7\n"), "tuning.txt:1: no order haste");
    EXPECT_EQ(faultOf("complex 16 bisection 6\ncomplex 16 blocks 7\n"), "tuning.txt:2: a second row for complex 16");
    EXPECT_EQ(faultOf("complex 16 bisection -\n"), "tuning.txt:1: the gain is no number: -");
    EXPECT_EQ(faultOf("complex 16 bisection 7%\n"), "tuning.txt:1: the gain is no number: 7%");
    EXPECT_EQ(faultOf("complex 16 bisection\n"), "tuning.txt:1: a row is folder, length, order and gain");
    EXPECT_EQ(faultOf("complex 16 bisection 7 3\n"), "tuning.txt:1: a row is folder, length, order and gain");
}

// A choice that gains less is not worth a row. Bodies are no texts of kernels.
TEST(Tuning, TheTablesHaveTextsOfKernelsAndGainsWorthARow) {
    const Tuning tuning = readTuning(ZULG_SOURCE);
    EXPECT_FALSE(tuning.rows().empty());
    for (const auto& [text, row] : tuning.rows()) {
        const std::size_t space = text.find(' ');
        const std::filesystem::path folder = ZULG_SOURCE "/kernels/" + text.substr(0, space);
        ASSERT_TRUE(std::filesystem::exists(folder)) << text;
        const auto isFile = [&](const auto& file) {
            return file.path().filename().string().ends_with("_" + text.substr(space + 1) + ".h");
        };
        EXPECT_TRUE(std::ranges::any_of(std::filesystem::directory_iterator(folder), isFile)) << text;
        EXPECT_GE(row.gain, 3) << text;
    }
}

}  // namespace
}  // namespace test
