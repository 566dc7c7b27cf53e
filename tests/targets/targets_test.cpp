// Two targets in one program: their kernels have names of their own, and give the same bits.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "tests/targets/list.inc"
#include "tests/transforms/float_state.h"

namespace test {

std::vector<NamedKernel<float>> plainSingles() { return all<float>(); }
std::vector<NamedKernel<double>> plainDoubles() { return all<double>(); }

namespace {

template <class Element>
void expectSameBits(const std::vector<NamedKernel<Element>>& own, const std::vector<NamedKernel<Element>>& plain) {
    const DoublePrecisionRegisters asOnOtherTargets;
    std::mt19937 random{static_cast<unsigned>(GTEST_FLAG_GET(random_seed))};
    std::uniform_real_distribution<double> uniform(-1, 1);
    ASSERT_EQ(own.size(), plain.size());
    for (std::size_t i = 0; i < own.size(); ++i) {
        const auto elements = static_cast<std::size_t>(own[i].elements);
        std::vector<Element> source(elements), due(elements), found(elements);
        for (Element& x : source) x = static_cast<Element>(uniform(random));
        for (std::int32_t flag : {1, 2, 4, 8}) {
            EXPECT_EQ(own[i].run(source.data(), due.data(), flag), StatusOk);
            EXPECT_EQ(plain[i].run(source.data(), found.data(), flag), StatusOk);
            EXPECT_EQ(std::memcmp(due.data(), found.data(), elements * sizeof(Element)), 0)
                << own[i].name << ", " << elements << " elements, flag " << flag;
        }
        EXPECT_EQ(plain[i].run(nullptr, found.data(), 8), StatusNullPointer);
        EXPECT_EQ(plain[i].run(source.data(), found.data(), 3), StatusFlagError);
    }
}

TEST(Targets, OfOneProgramGiveTheSameBits) {
    expectSameBits(ownSingles(), plainSingles());
    expectSameBits(ownDoubles(), plainDoubles());
}

TEST(Targets, OfOneProgramAreTwo) {
    const auto own = ownDoubles(), plain = plainDoubles();
    for (std::size_t i = 0; i < own.size(); ++i) EXPECT_NE(own[i].address, plain[i].address) << own[i].name;
    EXPECT_EQ(plain.back().address,
              reinterpret_cast<const void*>(&zulg::plain::kernel<zulg::Family::Hartley, 47, double>));
}

}  // namespace
}  // namespace test
