// Singles are computed in double and rounded once, so that nearly every result is the single that is nearest to the
// exact one: at factor 1, at least 9999 of 10,000 over all kernels of the DFT and Hartley families and all
// Walsh-Hadamard orders up to 7, and in each of them.
//
// The exact result is often the midpoint of two neighbouring singles. The correct one is then the one whose last bit is
// 0. The reference of this test has an error of its own, because its cosines are rounded, so it may miss the midpoint
// by a little. The test therefore treats a reference value that is very near a midpoint as the midpoint itself.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

class RoundingTest : public KernelTest {
protected:
    static void TearDownTestSuite() {
        std::printf("%lld of %lld singles are not the nearest\n", wrong, all);
        EXPECT_LE(wrong * 10000, all);
    }

    // What the definition gave, or the point half way between two singles that is at most 2^-26 of their distance away.
    static Wide withoutOwnError(Wide due) {
        const Wide distance = std::ldexp(Wide{1}, std::max(std::ilogb(due), -126) - 23);
        const Wide half = (std::floor(std::fabs(due) / distance) + Wide{0.5}) * distance;
        return std::fabs(std::fabs(due) - half) < std::ldexp(distance, -26) ? std::copysign(half, due) : due;
    }

    static inline long long wrong = 0, all = 0;
};

TEST_P(RoundingTest, SinglesAreTheNearest) {
    Subject<float> subject(transform, seed.random);
    long long outputs = 0, others = 0;
    while (outputs < 12000) {
        const auto source = subject.randomSource();
        const auto found = subject.run(source, NoDivByAny);
        const Values due = transform.definition(widened(source), {});
        for (std::size_t k = 0; k < found.size(); ++k) {
            others += found[k] != rounded<float>(withoutOwnError(due[k]));
        }
        outputs += static_cast<long long>(found.size());
    }
    EXPECT_LE(others * 10000, outputs) << others;
    wrong += others;
    all += outputs;
}

std::vector<Transform> roundedOnce() {
    std::vector<Transform> transforms = flaggedTransforms();
    std::erase_if(transforms, [](const Transform& t) { return !t.isSingle() || t.order > 7; });
    return transforms;
}

INSTANTIATE_TEST_SUITE_P(All, RoundingTest, testing::ValuesIn(roundedOnce()), testName);

}  // namespace
}  // namespace test
