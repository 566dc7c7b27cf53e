// The progress line at times and paces that a run of a test need not have.
#include "tools/progress.h"

#include <gtest/gtest.h>

using spectrum::clockTime;
using spectrum::progressLine;

TEST(ClockTime, HasHoursFromAnHourOn) {
    EXPECT_EQ(clockTime(-1), "0:00");
    EXPECT_EQ(clockTime(59.4), "0:59");
    EXPECT_EQ(clockTime(59.6), "1:00");
    EXPECT_EQ(clockTime(3599), "59:59");
    EXPECT_EQ(clockTime(3600), "1:00:00");
    EXPECT_EQ(clockTime(100 * 3600 + 61), "100:01:01");
}

TEST(ProgressLine, TellsShareAndPaceAndWhatIsLeft) {
    EXPECT_EQ(progressLine(8000, 32000, 8000, 0.5), "[######..................] 25 %, 2 times real time, 0:02 left");
    EXPECT_EQ(progressLine(32000, 32000, 8000, 0.5), "[########################] 100 %, 8 times real time, 0:00 left");
}

TEST(ProgressLine, CountsNumbersWithoutASampleRate) {
    EXPECT_EQ(progressLine(3000000, 6000000, 0, 1),
              "[############............] 50 %, 3 million samples per second, 0:01 left");
}

TEST(ProgressLine, LeavesOutWhatIsNotKnown) {
    EXPECT_EQ(progressLine(500, {}, 0, 0.001), "500 samples, 0.5 million samples per second");
    EXPECT_EQ(progressLine(500, 0, 8000, 0.5), "500 samples, 0 times real time");
    EXPECT_EQ(progressLine(0, 1000, 8000, 0), "[........................] 0 %, 0 times real time");
}

// A file may hold more than it announces.
TEST(ProgressLine, EndsAtTheWhole) {
    EXPECT_EQ(progressLine(2000, 1000, 1000, 1), "[########################] 100 %, 2 times real time, 0:00 left");
}
