// Singles are computed in double and rounded once, so that nearly every result is the single that is nearest to the
// exact one: at factor 1, at least 9999 of 10,000 over all kernels of the DFT and Hartley families and all
// Walsh-Hadamard orders up to 7, and in each of them but for exact results half way between two singles. There a kernel
// may take the other one, since its own value is off by some 2^-53.
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

    static bool isHalfWay(Wide due) {
        const Wide place = std::ldexp(Wide{1}, std::max(std::ilogb(due), -126) - 23), part = std::fabs(due) / place;
        return std::fabs(part - std::floor(part) - Wide{0.5}) < 0x1p-20L;
    }

    static inline long long wrong = 0, all = 0;
};

TEST_P(RoundingTest, SinglesAreTheNearest) {
    Subject<float> subject(transform, seed.random);
    long long outputs = 0, others = 0, half = 0;
    while (outputs < 12000) {
        const auto source = subject.randomSource();
        const auto found = subject.run(source, NoDivByAny);
        const Values due = transform.definition(widened(source), {});
        for (std::size_t k = 0; k < found.size(); ++k) {
            if (found[k] == rounded<float>(due[k])) continue;
            ++others;
            half += isHalfWay(due[k]);
        }
        outputs += static_cast<long long>(found.size());
    }
    EXPECT_LE((others - half) * 10000, outputs);
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
