// Real kernels: the three layouts, their zeros, the slots that are never read, and how the two directions fit together.
#include <cmath>
#include <limits>

#include "tests/memory.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

// Of a forward or inverse real transform: its layout, and the same transform in another one.
Layout layoutOf(const Transform& transform) {
    for (Layout layout : allLayouts) {
        if (transform.family.find(layoutName(layout)) != std::string::npos) return layout;
    }
    ADD_FAILURE() << "no layout in " << transform.family;
    return Layout::CCS;
}

std::string kernelName(const Transform& transform, bool isForward, Layout layout) {
    const std::string name = layoutName(layout);
    return (isForward ? "zulgDFTFwd_RTo" + name : "zulgDFTInv_" + name + "ToR") + "_" +
           std::to_string(transform.length) + "_" + transform.suffix;
}

class RealTest : public KernelTest {
protected:
    const LayoutSlots slots{layoutOf(transform), transform.length};
    int half() const { return transform.length / 2; }

    template <class Element>
    std::vector<Element> forward(const std::vector<Element>& x, Layout layout, int flag) {
        std::vector<Element> packed(static_cast<std::size_t>(LayoutSlots{layout, transform.length}.elements()));
        exported<Kernel<Element>>(kernelName(transform, true, layout))(x.data(), packed.data(), flag);
        return packed;
    }

    template <class Element>
    std::vector<Element> inverse(const std::vector<Element>& packed, Layout layout, int flag) {
        std::vector<Element> y(static_cast<std::size_t>(transform.length));
        exported<Kernel<Element>>(kernelName(transform, false, layout))(packed.data(), y.data(), flag);
        return y;
    }
};

using RealForwardTest = RealTest;
using RealInverseTest = RealTest;

TEST_P(RealForwardTest, GivesTheSameBitsAsInCCS) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto x = subject.randomSource();
        for (int flag : allFlags) {
            const auto due = forward(x, Layout::CCS, flag), found = subject.run(x, flag);
            for (int k = 0; k <= half(); ++k) {
                const auto here = static_cast<std::size_t>(slots.re(k)), there = static_cast<std::size_t>(2 * k);
                EXPECT_EQ(std::memcmp(&found[here], &due[there], sizeof(Element)), 0) << k;
                if (slots.im(k) < 0) continue;
                EXPECT_EQ(std::memcmp(&found[here + 1], &due[there + 1], sizeof(Element)), 0) << k;
            }
        }
    });
}

TEST_P(RealForwardTest, KeepsTheZerosOfCCSWhateverTheInput) {
    if (slots.layout != Layout::CCS) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const Element zero = 0;
        for (Element special : {Element{1}, Element{-1}, std::numeric_limits<Element>::infinity(),
                                std::numeric_limits<Element>::quiet_NaN()}) {
            for (int flag : allFlags) {
                std::vector<Element> packed(static_cast<std::size_t>(slots.elements()), Element{7});
                const std::vector<Element> x(static_cast<std::size_t>(transform.length), special);
                subject.call(x.data(), packed.data(), flag);
                EXPECT_EQ(std::memcmp(&packed[1], &zero, sizeof zero), 0);
                const std::size_t last = transform.length % 2 == 0 ? packed.size() - 1 : 1;
                EXPECT_EQ(std::memcmp(&packed[last], &zero, sizeof zero), 0);
            }
        }
    });
}

// How many results are negative zeros. A result that is zero is one if it is stored after a negation.
template <class Element>
int negativeZeros(const std::vector<Element>& packed) {
    int count = 0;
    for (Element value : packed) count += value == 0 && std::signbit(value);
    return count;
}

TEST_P(RealForwardTest, AZeroResultAfterANegationIsNegative) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const std::vector<Element> zeros(static_cast<std::size_t>(transform.length));
        for (int flag : allFlags) {
            EXPECT_EQ(negativeZeros(subject.run(zeros, flag)), expectedNegations(transform.length)) << "flag " << flag;
        }
    });
}

TEST_P(RealForwardTest, OnesGiveTheExactSumInBinZero) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const std::vector<Element> ones(static_cast<std::size_t>(transform.length), Element{1});
        for (int flag : allFlags) {
            const auto packed = subject.run(ones, flag);
            const Wide due = static_cast<Wide>(subject.scale(flag)) * transform.length;
            EXPECT_EQ(packed[0], rounded<Element>(due)) << "flag " << flag;
            for (std::size_t slot = 1; slot < packed.size(); ++slot) EXPECT_NEAR(packed[slot], 0, 100 * subject.unit);
        }
    });
}

TEST_P(RealForwardTest, AgreesWithTheComplexTransformOfItsLength) {
    const auto name = "zulgDFTFwd_CToC_" + std::to_string(transform.length) + "_" + transform.suffix + "c";
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto x = subject.randomSource();
        std::vector<Element> pairs;
        for (Element value : x) pairs.insert(pairs.end(), {value, Element{0}});
        exported<Kernel<Element>>(name)(pairs.data(), pairs.data(), NoDivByAny);
        const auto packed = subject.run(x, NoDivByAny);
        const double bound = 20 * subject.unit * normOf(x);
        for (int k = 0; k <= half(); ++k) {
            const auto here = static_cast<std::size_t>(slots.re(k)), there = static_cast<std::size_t>(2 * k);
            EXPECT_NEAR(packed[here], pairs[there], bound);
            if (slots.im(k) < 0) continue;
            EXPECT_NEAR(packed[here + 1], pairs[there + 1], bound);
        }
    });
}

TEST_P(RealForwardTest, TheInverseWithTheSameFlagRestoresTheInput) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto x = subject.randomSource();
        for (int flag : allFlags) {
            const auto restored = inverse(subject.run(x, flag), slots.layout, flag);
            const double factor = flag == NoDivByAny ? transform.length : 1;
            for (std::size_t n = 0; n < x.size(); ++n) EXPECT_NEAR(restored[n] / factor, x[n], 100 * subject.unit);
        }
    });
}

TEST_P(RealInverseTest, NeverReadsTheImaginaryPartsOfRealBins) {
    if (slots.layout != Layout::CCS) return;
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto packed = subject.randomSource();
        const auto due = subject.run(packed, DivInvByN);
        for (Element special : {Element{1000}, std::numeric_limits<Element>::quiet_NaN()}) {
            auto changed = packed;
            changed[1] = special;
            changed.resize(static_cast<std::size_t>(slots.elements()), special);  // slot N + 1 of even lengths
            EXPECT_TRUE(sameBits(subject.run(changed, DivInvByN), due));
        }
    });
}

TEST_P(RealInverseTest, OneBinGivesItsCosine) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const int length = transform.length;
        for (int k = 0; k <= half(); ++k) {
            std::vector<Element> packed(static_cast<std::size_t>(slots.elements()));
            packed[static_cast<std::size_t>(slots.re(k))] = Element(0.75);
            const auto y = subject.run(packed, NoDivByAny);
            const bool isReal = 2 * k % length == 0;
            for (int n = 0; n < length; ++n) {
                const double due = (isReal ? 0.75 : 1.5) * static_cast<double>(cosTurn(n * k, length));
                EXPECT_NEAR(y[static_cast<std::size_t>(n)], due, 16 * subject.unit) << "bin " << k;
                if (!isReal || largestPrimeFactor(length) > 7) continue;  // Rader's construction rounds
                EXPECT_EQ(y[static_cast<std::size_t>(n)], Element(k == 0 || n % 2 == 0 ? 0.75 : -0.75));
            }
        }
    });
}

// Twice the greatest single is no single. Doubled in double it is, and with 1/N the outputs are in range.
TEST_P(RealInverseTest, TheGreatestSinglesAreDoubledInDouble) {
    if (!transform.isSingle()) return;
    const Subject<float> subject(transform, seed.random);
    constexpr float greatest = std::numeric_limits<float>::max();
    for (int k = 1; 2 * k < transform.length; ++k) {
        std::vector<float> packed(static_cast<std::size_t>(slots.elements()));
        packed[static_cast<std::size_t>(slots.re(k))] = greatest;
        const auto y = subject.run(packed, DivInvByN);
        for (int n = 0; n < transform.length; ++n) {
            const double due = 2.0 / transform.length * static_cast<double>(cosTurn(n * k, transform.length));
            EXPECT_NEAR(y[static_cast<std::size_t>(n)] / double{greatest}, due, 16 * subject.unit) << "bin " << k;
        }
    }
}

TEST_P(RealInverseTest, GivesTheValuesOfTheOtherLayouts) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto packed = subject.randomSource();
        const LayoutSlots other{Layout::CCS, transform.length};
        std::vector<Element> bins(static_cast<std::size_t>(other.elements()));
        for (int k = 0; k <= half(); ++k) {
            bins[static_cast<std::size_t>(other.re(k))] = packed[static_cast<std::size_t>(slots.re(k))];
            if (2 * k % transform.length != 0) {
                bins[static_cast<std::size_t>(other.im(k))] = packed[static_cast<std::size_t>(slots.im(k))];
            }
        }
        EXPECT_TRUE(sameBits(subject.run(packed, NoDivByAny), inverse(bins, Layout::CCS, NoDivByAny)));
    });
}

INSTANTIATE_TEST_SUITE_P(All, RealForwardTest, testing::ValuesIn(realForwardTransforms()), testName);
INSTANTIATE_TEST_SUITE_P(All, RealInverseTest, testing::ValuesIn(realInverseTransforms()), testName);

// What each slot of a layout holds, as text: R1, I1 or 0.
std::string drawn(Layout layout, int length) {
    const LayoutSlots slots{layout, length};
    std::vector<double> x, packed(static_cast<std::size_t>(slots.elements()));
    for (int n = 0; n < length; ++n) x.push_back(1.0 / (n * n + 2));
    const auto name = std::string("zulgDFTFwd_RTo") + layoutName(layout) + "_" + std::to_string(length) + "_64f";
    exported<Kernel<double>>(name)(x.data(), packed.data(), NoDivByAny);
    const Values bins = realTransform(Values(x.begin(), x.end()));
    std::string text;
    for (double value : packed) {
        std::string found = value == 0 ? " 0" : " ?";
        for (std::size_t i = 0; i < bins.size(); ++i) {
            if (value == 0 || std::abs(value - static_cast<double>(bins[i])) > 1e-14) continue;
            found = (i % 2 ? " I" : " R") + std::to_string(i / 2);
        }
        text += found;
    }
    return text.substr(1);
}

TEST(Layouts, OfTheFirstLengths) {
    const struct {
        int length;
        const char *ccs, *pack, *perm;
    } rows[] = {
        {2, "R0 0 R1 0", "R0 R1", "R0 R1"},
        {3, "R0 0 R1 I1", "R0 R1 I1", "R0 R1 I1"},
        {4, "R0 0 R1 I1 R2 0", "R0 R1 I1 R2", "R0 R2 R1 I1"},
        {5, "R0 0 R1 I1 R2 I2", "R0 R1 I1 R2 I2", "R0 R1 I1 R2 I2"},
        {6, "R0 0 R1 I1 R2 I2 R3 0", "R0 R1 I1 R2 I2 R3", "R0 R3 R1 I1 R2 I2"},
        {7, "R0 0 R1 I1 R2 I2 R3 I3", "R0 R1 I1 R2 I2 R3 I3", "R0 R1 I1 R2 I2 R3 I3"},
        {8, "R0 0 R1 I1 R2 I2 R3 I3 R4 0", "R0 R1 I1 R2 I2 R3 I3 R4", "R0 R4 R1 I1 R2 I2 R3 I3"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(drawn(Layout::CCS, row.length), row.ccs);
        EXPECT_EQ(drawn(Layout::Pack, row.length), row.pack);
        EXPECT_EQ(drawn(Layout::Perm, row.length), row.perm);
    }
}

}  // namespace
}  // namespace test
