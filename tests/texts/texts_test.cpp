// Texts run on every kind of number: a double, registers that hold several numbers, a number that counts, an interval.
#include "tests/texts/texts_test.h"

#include <gtest/gtest.h>

#include "tests/texts/lane_texts_test.h"

namespace test {
namespace {

TEST(Texts, RunOnEveryKindOfNumber) {
    ASSERT_EQ(textRuns().size(), 4u * 11 + 5 * 4);
    for (const TextRun& text : textRuns()) {
        const TextResults results = text.run();
        ASSERT_FALSE(results.doubles.empty()) << text.name;
        EXPECT_EQ(results.pairs, results.doubles) << text.name;
        EXPECT_EQ(results.fours, results.doubles) << text.name;
        for (const auto& [place, value] : results.doubles) {
            const Interval& interval = results.intervals.at(place);
            EXPECT_LE(interval.low, value) << text.name << ", output " << place.second;
            EXPECT_GE(interval.high, value) << text.name << ", output " << place.second;
            EXPECT_LT(interval.high - interval.low, 1e-12) << text.name << ", output " << place.second;
            EXPECT_NEAR(results.singles.at(place), value, 1e-4) << text.name << ", output " << place.second;
        }
    }
}

TEST(Texts, HoldAsManyStepsAsTheyState) {
    for (const TextRun& text : textRuns()) {
        const TextResults results = text.run();
        EXPECT_EQ(results.stated, text.name.starts_with("kernels/") ? results.counted : 0) << text.name;
    }
}

// A text in lanes takes the same steps as the scalar text of its graph, so that the results are the same bits.
TEST(LaneTexts, GiveTheBitsOfTheScalarText) {
    ASSERT_EQ(laneTextRuns().size(), 4u * 11 + 7 + 3);
    for (const LaneTextRun& text : laneTextRuns()) {
        const LaneTextResults results = text.run();
        EXPECT_EQ(results.lanes, results.scalar) << text.name;
        EXPECT_EQ(results.registers, results.scalar) << text.name;
        EXPECT_EQ(results.exchanged, results.scalar) << text.name;
        for (const auto& [place, value] : results.scalar) {
            EXPECT_LE(results.intervals.at(place).low, value) << text.name << ", output " << place.second;
            EXPECT_GE(results.intervals.at(place).high, value) << text.name << ", output " << place.second;
        }
        EXPECT_EQ(results.counted, results.stated) << text.name;
    }
}

}  // namespace
}  // namespace test
