// The cosine and the sine from integers, beside those of a wider type and at places where the result is known.
#include "tests/same_bits/exact_cosine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace test {
namespace {

TEST(ExactCosine, IsThatOfAWiderType) {
    std::mt19937 random{static_cast<unsigned>(GTEST_FLAG_GET(random_seed))};
    std::uniform_real_distribution<double> uniform(0, 6.28);
    for (int i = 0; i < 2000; ++i) {
        // A register of the x87 would keep more digits than the functions are given. In memory this is a double.
        volatile double place = i % 2 == 0 ? uniform(random) : std::ldexp(uniform(random), -i % 30);
        const double x = place;
        const long double wide = x;
        const double near[] = {static_cast<double>(std::cos(wide)), static_cast<double>(std::sin(wide))};
        // A wider type may end halfway between two doubles, one in two thousand times. The functions of the x87 know pi
        // to 66 bits.
        EXPECT_NEAR(exactCosine(x), near[0], std::abs(near[0]) * 0x1p-52 + 0x1p-64) << x;
        EXPECT_NEAR(exactSine(x), near[1], std::abs(near[1]) * 0x1p-52 + 0x1p-64) << x;
    }
}

TEST(ExactCosine, RoundsToNearest) {
    EXPECT_EQ(exactCosine(0), 1);
    EXPECT_EQ(exactSine(0), 0);
    // cos x = 1 - x^2/2 + ..., and the doubles below 1 are 2^-53 apart.
    EXPECT_EQ(exactCosine(0x1p-27), 1);
    EXPECT_EQ(exactCosine(0x1p-26), 1 - 0x1p-53);
    // sin x = x - x^3/6 + ...: less than x by less than half a unit, and by one and a third.
    EXPECT_EQ(exactSine(0x1p-27), 0x1p-27);
    EXPECT_EQ(exactSine(0x1p-25), 0x1p-25 - 0x1p-78);
    // What the nearest double to pi lacks of pi, which no rounding on the way may lose; and the sign of a cosine.
    EXPECT_EQ(exactSine(0x1.921fb54442d18p+1), 0x1.1a62633145c07p-53);
    EXPECT_EQ(exactCosine(0x1.921fb54442d18p+1), -1);
    EXPECT_EQ(exactCosine(0x1.921fb54442d18p+0), 0x1.1a62633145c07p-54);
}

}  // namespace
}  // namespace test
