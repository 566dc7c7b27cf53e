// Constants: exact to their last place, and rounded once.
#include "numbers/exact.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace test {
namespace {

using gen::cosTurn;
using gen::Exact;
using gen::nearest;
using gen::sinTurn;

TEST(Exact, QuarterTurnsAndHalvesAreExact) {
    EXPECT_EQ(cosTurn(0, 7), 1);
    EXPECT_EQ(cosTurn(1, 4), 0);
    EXPECT_EQ(cosTurn(1, 2), -1);
    EXPECT_EQ(sinTurn(3, 4), -1);
    EXPECT_EQ(sinTurn(10, 5), 0);
    EXPECT_EQ(nearest(cosTurn(1, 6)), 0.5);
    EXPECT_EQ(cosTurn(1, 8), sinTurn(1, 8));
}

TEST(Exact, EveryAngleLiesOnTheCircleToFortyFiveDigits) {
    const Exact tolerance("1e-48");
    for (int n = 2; n <= 128; ++n) {
        for (int k = -n; k <= 2 * n; ++k) {
            const Exact c = cosTurn(k, n), s = sinTurn(k, n);
            EXPECT_LT(abs(c * c + s * s - 1), tolerance) << k << "/" << n;
            EXPECT_EQ(c, cosTurn(n - k, n));
            EXPECT_EQ(s, -sinTurn(n - k, n));
            // The angle one step on, by the addition theorem.
            EXPECT_LT(abs(c * cosTurn(1, n) - s * sinTurn(1, n) - cosTurn(k + 1, n)), tolerance);
            EXPECT_LT(abs(s * cosTurn(1, n) + c * sinTurn(1, n) - sinTurn(k + 1, n)), tolerance);
        }
    }
}

TEST(Exact, RoundsToTheNearestDouble) {
    for (int n = 2; n <= 64; ++n) {
        for (int k = 0; k < n; ++k) {
            const Exact c = cosTurn(k, n);
            // The C library reads decimal text to the nearest double: an independent rounding.
            EXPECT_EQ(nearest(c), std::strtod(c.text(48).c_str(), nullptr)) << k << "/" << n;
        }
    }
}

TEST(Exact, TheStoredInverseRootIsRoundedTwice) {
    EXPECT_EQ(gen::storedInverseRoot(2), 0.7071067811865475);
    std::set<int> off;
    for (int n = 2; n <= 64; ++n) {
        if (gen::storedInverseRoot(n) != nearest(1 / sqrt(Exact(n)))) off.insert(n);
    }
    EXPECT_EQ(off.size(), 18u);
    EXPECT_TRUE(off.contains(2));
}

}  // namespace
}  // namespace test
