// Texts run on every kind of number: a double, registers that hold several numbers, a number that counts, an interval.
#include "tests/texts/texts_test.h"

#include <gtest/gtest.h>

namespace test {
namespace {

TEST(Texts, RunOnEveryKindOfNumber) {
    ASSERT_EQ(textRuns().size(), 4u * 10 + 5 * 4);
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

}  // namespace
}  // namespace test
