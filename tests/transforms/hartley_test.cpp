// Hartley kernels: they are their own inverse, and their results follow from those of the real transform.
#include <cmath>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

using HartleyTest = KernelTest;

TEST_P(HartleyTest, TwiceGivesTheInputTimesTheFactorsOfBothFlags) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        const struct {
            int first, second;
            double factor;
        } pairs[] = {{NoDivByAny, NoDivByAny, static_cast<double>(transform.length)},
                     {DivBySqrtN, DivBySqrtN, 1},
                     {NoDivByAny, DivFwdByN, 1},
                     {NoDivByAny, DivInvByN, 1},
                     {DivInvByN, NoDivByAny, 1}};
        for (const auto& pair : pairs) {
            const auto twice = subject.run(subject.run(source, pair.first), pair.second);
            for (std::size_t n = 0; n < source.size(); ++n) {
                EXPECT_NEAR(twice[n] / pair.factor, source[n], 100 * subject.unit) << pair.first << ", " << pair.second;
            }
        }
    });
}

TEST_P(HartleyTest, IsTheRealPartOfTheSpectrumLessTheImaginaryOne) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        const std::string name = "zulgDFTFwd_RToCCS_" + std::to_string(transform.length) + "_" + transform.suffix;
        std::vector<Element> bins(static_cast<std::size_t>(transform.length / 2 * 2 + 2));
        exported<Kernel<Element>>(name)(source.data(), bins.data(), DivBySqrtN);
        const auto found = subject.run(source, DivBySqrtN);
        const double bound = 100 * subject.unit;
        for (int k = 0; 2 * k <= transform.length; ++k) {
            const double re = bins[static_cast<std::size_t>(2 * k)], im = bins[static_cast<std::size_t>(2 * k + 1)];
            EXPECT_NEAR(found[static_cast<std::size_t>(k)], re - im, bound) << k;
            EXPECT_NEAR(found[static_cast<std::size_t>((transform.length - k) % transform.length)], re + im, bound)
                << k;
        }
    });
}

TEST_P(HartleyTest, AnImpulseGivesItsRowTimesScale) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const int length = transform.length;
        for (int flag : allFlags) {
            const double scale = subject.scale(flag);
            for (int j = 0; j < length; ++j) {
                std::vector<Element> source(static_cast<std::size_t>(length));
                source[static_cast<std::size_t>(j)] = 1;
                const auto found = subject.run(source, flag);
                for (int k = 0; k < length; ++k) {
                    const double due = scale * static_cast<double>(casTurn(j * k, length));
                    ASSERT_NEAR(found[static_cast<std::size_t>(k)], due, 16 * subject.unit * scale) << j << ", " << k;
                }
            }
        }
    });
}

TEST_P(HartleyTest, LengthTwoIsOneSumAndOneDifference) {
    if (transform.length != 2) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const std::vector<Element> source = {Element(0.1), Element(-7.25)};
        const auto found = subject.run(source, NoDivByAny);
        EXPECT_EQ(found[0], rounded<Element>(Wide{source[0]} + Wide{source[1]}));
        EXPECT_EQ(found[1], rounded<Element>(Wide{source[0]} - Wide{source[1]}));
    });
}

INSTANTIATE_TEST_SUITE_P(All, HartleyTest, testing::ValuesIn(hartleyTransforms()), testName);

}  // namespace
}  // namespace test
