// The loops and blocks of the large orders, in the text that ships, run on a type that counts.
#include "wht/passes.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/counted.h"
#include "tests/reference.h"

namespace zulg {
template <>
struct InMemory<test::Counted> {
    using Type = test::Counted;
};
}  // namespace zulg

namespace test {
namespace {

template <int order>
void expectCountsAndValues() {
    constexpr int count = 1 << order;
    std::vector<Counted> source(count), destination(count),
        buffer(static_cast<std::size_t>(zulg::whtBufferElements(order)));
    source[5] = Counted(1);
    source[count - 1] = Counted(10);
    operationCounts = {};
    zulg::whtPasses<order, zulg::WhtBlockByBlock<CountedNumbers>>(source.data(), destination.data(), buffer.data(),
                                                                  Counted(0.5));
    const int half = order << (order - 1);
    EXPECT_EQ(operationCounts, (OperationCounts{half, half, count, 0})) << order;
    for (int k = 0; k < count; ++k) {
        const int due = walshHadamardSign(5, k) + 10 * walshHadamardSign(count - 1, k);
        ASSERT_EQ(destination[static_cast<std::size_t>(k)].value, 0.5L * due) << order << ", " << k;
    }
}

TEST(WhtPasses, HoldTheCountsOfTheirOrder) {
    expectCountsAndValues<8>();
    expectCountsAndValues<9>();
    expectCountsAndValues<10>();
    expectCountsAndValues<11>();
    expectCountsAndValues<12>();
    expectCountsAndValues<13>();
}

TEST(WhtPasses, TakeTheBufferOfTheTable) {
    for (int order = 1; order <= 7; ++order) EXPECT_EQ(zulg::whtBufferElements(order), 0);
    EXPECT_EQ(zulg::whtBufferElements(8), 256);
    EXPECT_EQ(zulg::whtBufferElements(11), 2048);
    EXPECT_EQ(zulg::whtBufferElements(12), 4096 + 256);
    EXPECT_EQ(zulg::whtBufferElements(13), 8192 + 1024);
}

}  // namespace
}  // namespace test
