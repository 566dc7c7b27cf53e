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

TEST(Tuning, GivesTheOrderOfARow) {
    const Tuning tuning = tuningOf("# a comment\n\ncomplex 16 bisection 4.5  # measured\ncomplex_lines 16 blocks 6\n");
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

// A choice that gains less is not worth a row.
TEST(Tuning, TheTablesHaveTextsOfKernelsAndGainsWorthARow) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(ZULG_SOURCE);
    const Tuning tuning = readTuning();
    std::filesystem::current_path(before);
    EXPECT_FALSE(tuning.rows().empty());
    for (const auto& [text, row] : tuning.rows()) {
        EXPECT_TRUE(std::filesystem::exists(ZULG_SOURCE "/kernels/" + text.substr(0, text.find(' ')))) << text;
        EXPECT_GE(row.gain, 5) << text;
    }
}

}  // namespace
}  // namespace test
