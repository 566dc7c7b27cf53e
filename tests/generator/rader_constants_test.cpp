// The constants of Rader's construction, from their properties.
#include "numbers/rader_constants.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace test {
namespace {

using gen::Exact;
using gen::RaderConstants;

const std::map<int, int> roots = {{11, 2}, {13, 2}, {17, 3}, {19, 2}, {23, 5}, {29, 2}, {31, 3},
                                  {37, 2}, {41, 6}, {43, 3}, {47, 5}, {53, 2}, {59, 2}, {61, 2}};
const Exact tolerance("1e-45");

TEST(RaderConstants, PermuteByTheSmallestPrimitiveRoot) {
    for (const auto& [p, g] : roots) {
        const RaderConstants constants(p, 1);
        EXPECT_EQ(constants.input(1), g);
        std::set<int> reached;
        for (int n = 0; n < p - 1; ++n) {
            reached.insert(constants.input(n));
            EXPECT_EQ(constants.input(n) * constants.output(n) % p, 1);
        }
        EXPECT_EQ(reached.size(), static_cast<std::size_t>(p - 1));
    }
}

TEST(RaderConstants, BinsHaveTheirMagnitudesAndSymmetries) {
    for (const auto& [p, g] : roots) {
        for (int a : {1, 2, 3}) {
            const RaderConstants constants(p, a);
            const int m = p - 1;
            EXPECT_LT(abs(constants.spectrum(0).re + Exact(1) / m), tolerance);
            EXPECT_LT(abs(constants.spectrum(0).im), tolerance);
            for (int k = 1; k < m; ++k) {
                const auto& bin = constants.spectrum(k);
                const auto& mirrored = constants.spectrum(m - k);
                EXPECT_LT(abs(bin.re * bin.re + bin.im * bin.im - Exact(p) / (m * m)), tolerance) << p << ", " << k;
                const int sign = k % 2 == 0 ? 1 : -1;
                EXPECT_LT(abs(mirrored.re - sign * bin.re), tolerance);
                EXPECT_LT(abs(mirrored.im + sign * bin.im), tolerance);
            }
            const auto& middle = constants.spectrum(m / 2);
            EXPECT_LT(abs(p % 4 == 1 ? middle.im : middle.re), tolerance);
        }
    }
}

}  // namespace
}  // namespace test
