// Complex kernels: what their definition makes exact, and how the two directions fit together.
#include <limits>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

using ComplexTest = KernelTest;

// In Rader's construction x[0] reaches all outputs but one through bin 0 of the inverse transform, and a sum of equal
// values is multiplied by 1/M. So the results are right up to rounding, but not exact.
bool isExactOnConstants(const Transform& transform) { return largestPrimeFactor(transform.length) < 11; }

TEST_P(ComplexTest, AnImpulseAtZeroGivesTheStoredScale) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.zeroSource();
        source[0] = 1;
        for (int flag : allFlags) {
            const auto found = subject.run(source, flag);
            const Element scale = subject.scale(flag);
            for (int k = 0; k < transform.length; ++k) {
                const Element re = found[static_cast<std::size_t>(2 * k)],
                              im = found[static_cast<std::size_t>(2 * k + 1)];
                if (isExactOnConstants(transform)) {
                    ASSERT_EQ(re, scale) << k;
                }
                ASSERT_NEAR(re, scale, 4 * std::numeric_limits<Element>::epsilon()) << k;
                ASSERT_EQ(im, 0) << k;
            }
        }
    });
}

TEST_P(ComplexTest, AConstantGivesTheExactSumTimesTheStoredScale) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.zeroSource();
        for (std::size_t i = 0; i < source.size(); i += 2) source[i] = 1;
        for (int flag : allFlags) {
            const Wide due = static_cast<Wide>(subject.scale(flag)) * transform.length;
            const auto found = subject.run(source, flag);
            EXPECT_EQ(found[0], rounded<Element>(due)) << "flag " << flag;
            for (std::size_t i = 2; i < found.size(); ++i) {
                EXPECT_NEAR(found[i], 0, 50 * std::numeric_limits<Element>::epsilon());
            }
            EXPECT_EQ(found[1], 0);
        }
    });
}

TEST_P(ComplexTest, AnImpulseAtOneGivesOnePeriodOfTheExponential) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.zeroSource();
        source[2] = 1;
        const auto found = subject.run(source, NoDivByAny);
        const int sign = transform.direction == Direction::Forward ? -1 : 1;
        for (int k = 0; k < transform.length; ++k) {
            EXPECT_NEAR(found[static_cast<std::size_t>(2 * k)], static_cast<double>(cosTurn(k, transform.length)),
                        8 * subject.unit);
            EXPECT_NEAR(found[static_cast<std::size_t>(2 * k + 1)],
                        sign * static_cast<double>(sinTurn(k, transform.length)), 8 * subject.unit);
        }
        if (transform.length != 16 && transform.length != 32 && transform.length != 64) return;
        // A quarter turn takes no rounded constant.
        EXPECT_EQ(found[static_cast<std::size_t>(transform.length / 2)], 0);
        EXPECT_EQ(found[static_cast<std::size_t>(transform.length / 2 + 1)], sign);
    });
}

TEST_P(ComplexTest, AShiftTurnsEveryOutput) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        std::vector<Element> shifted(source.end() - 2, source.end());  // y[n] = x[n - 1]
        shifted.insert(shifted.end(), source.begin(), source.end() - 2);
        const auto plain = subject.run(source, NoDivByAny), found = subject.run(shifted, NoDivByAny);
        const int sign = transform.direction == Direction::Forward ? -1 : 1;
        const double bound = 20 * subject.unit * normOf(plain);
        for (int k = 0; k < transform.length; ++k) {
            const auto re = static_cast<std::size_t>(2 * k), im = re + 1;
            const Wide c = cosTurn(k, transform.length), s = sign * sinTurn(k, transform.length);
            EXPECT_NEAR(found[re], static_cast<double>(plain[re] * c - plain[im] * s), bound) << k;
            EXPECT_NEAR(found[im], static_cast<double>(plain[re] * s + plain[im] * c), bound) << k;
        }
    });
}

std::string otherDirection(const std::string& name) {
    std::string other = name;
    const bool isForward = name.find("DFTFwd") != std::string::npos;
    return other.replace(other.find("DFT"), 6, isForward ? "DFTInv" : "DFTFwd");
}

TEST_P(ComplexTest, TheOtherDirectionWithTheSameFlagRestoresTheInput) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto back = exported<Kernel<Element>>(otherDirection(transform.kernelName()));
        const auto source = subject.randomSource();
        const double bound = 100 * subject.unit;
        for (int flag : allFlags) {
            auto restored = subject.run(source, flag);
            ASSERT_EQ(back(restored.data(), restored.data(), flag), StatusOk);
            const double factor = flag == NoDivByAny ? transform.length : 1;
            for (std::size_t i = 0; i < source.size(); ++i) {
                EXPECT_NEAR(restored[i] / factor, static_cast<double>(source[i]), bound) << "flag " << flag;
            }
        }
    });
}

template <class Element>
std::vector<Element> exchanged(std::vector<Element> x) {
    for (std::size_t i = 0; i < x.size(); i += 2) std::swap(x[i], x[i + 1]);
    return x;
}

TEST_P(ComplexTest, TheOtherDirectionIsThisOneWithPartsExchanged) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto other = exported<Kernel<Element>>(otherDirection(transform.kernelName()));
        const auto source = subject.randomSource();
        for (int flag : allFlags) {
            const int matching = flag == DivFwdByN ? DivInvByN : flag == DivInvByN ? DivFwdByN : flag;
            const auto due = subject.run(source, flag);
            auto found = exchanged(source);
            ASSERT_EQ(other(found.data(), found.data(), matching), StatusOk);
            found = exchanged(found);
            // The steps are the same, but registers wider than a double may be spilled at other points.
            if (sizeof(void*) == 8) {
                EXPECT_TRUE(sameBits(found, due)) << "flag " << flag;
            }
            const double bound = 20 * subject.unit;
            for (std::size_t i = 0; i < due.size(); ++i) EXPECT_NEAR(found[i], due[i], bound) << "flag " << flag;
        }
    });
}

TEST_P(ComplexTest, RealInputOfAnOddPrimeGivesExactConjugates) {
    if (transform.length != 3 && transform.length != 5 && transform.length != 7) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.randomSource();
        for (std::size_t i = 1; i < source.size(); i += 2) source[i] = 0;
        const auto found = subject.run(source, DivBySqrtN);
        for (int k = 1; k < transform.length; ++k) {
            const auto here = static_cast<std::size_t>(2 * k),
                       there = static_cast<std::size_t>(2 * (transform.length - k));
            EXPECT_EQ(found[here], found[there]);
            EXPECT_EQ(found[here + 1], -found[there + 1]);
        }
    });
}

TEST_P(ComplexTest, LengthTwoIsExact) {
    if (transform.length != 2) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const std::vector<Element> source = {Element(0.1), Element(-7.25), Element(3e-7), Element(12.5)};
        const auto found = subject.run(source, NoDivByAny);
        for (std::size_t part : {0u, 1u}) {
            // Sums of two elements of these sizes are exact in long double.
            EXPECT_EQ(found[part], rounded<Element>(Wide{source[part]} + Wide{source[part + 2]}));
            EXPECT_EQ(found[part + 2], rounded<Element>(Wide{source[part]} - Wide{source[part + 2]}));
        }
    });
}

TEST_P(ComplexTest, LengthThreeWithEqualLastTwoGivesEqualLastTwo) {
    if (transform.length != 3) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto source = subject.randomSource();
        source[4] = source[2], source[5] = source[3];
        const auto found = subject.run(source, DivBySqrtN);
        EXPECT_EQ(found[2], found[4]);
        EXPECT_EQ(found[3], found[5]);
    });
}

INSTANTIATE_TEST_SUITE_P(All, ComplexTest, testing::ValuesIn(complexTransforms()), testName);

}  // namespace
}  // namespace test
