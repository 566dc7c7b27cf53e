// The size computation: what callers are told, and which lengths are refused.
#include <cstdint>
#include <limits>

#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

template <class Element>
class PlanSize : public ElementTest<Element> {};
TYPED_TEST_SUITE(PlanSize, Elements, ElementNames);

TYPED_TEST(PlanSize, Table) {
    struct Row {
        std::int32_t length, single, twice;
    };
    constexpr Row rows[] = {
        {2, 224, 224},         {4, 224, 224},           {8, 224, 224},           {16, 224, 224},
        {32, 224, 224},        {64, 1184, 1696},        {128, 1696, 2720},       {256, 2720, 4768},
        {512, 4768, 8864},     {1024, 8864, 17056},     {2048, 17056, 33440},    {4096, 35072, 68800},
        {8192, 68864, 136384}, {16384, 136384, 271424}, {32768, 271552, 541760}, {65536, 541760, 1082176},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(reportedSize<TypeParam>(row.length), perType<TypeParam>(row.single, row.twice)) << row.length;
    }
}

TYPED_TEST(PlanSize, RefusalLeavesTheSize) {
    for (const std::int32_t length :
         {12, 0, 1, 3, 5, 6, 7, 10, 34, 1000, 4098, -1, -2, -32, -64, std::numeric_limits<std::int32_t>::min(),
          std::numeric_limits<std::int32_t>::max()}) {
        std::int32_t size = 4711;
        EXPECT_EQ(zulg::dct4GetSize<TypeParam>(length, &size), StatusSizeError) << length;
        EXPECT_EQ(size, 4711) << length;
    }
}

TYPED_TEST(PlanSize, RefusalIgnoresThePointer) {
    EXPECT_EQ(zulg::dct4GetSize<TypeParam>(12, nullptr), StatusSizeError);
}

TYPED_TEST(PlanSize, OneMoreThanAPowerOfTwoIsAcceptedFromNineOn) {
    EXPECT_EQ(reportedSize<TypeParam>(3), StatusSizeError);
    EXPECT_EQ(reportedSize<TypeParam>(5), StatusSizeError);
    for (int k = 3; k <= perType<TypeParam>(27, 26); ++k) {
        EXPECT_GT(reportedSize<TypeParam>((1 << k) + 1), 0) << k;
        EXPECT_EQ(reportedSize<TypeParam>((1 << k) - 1), StatusSizeError) << k;
        EXPECT_EQ(reportedSize<TypeParam>((1 << k) + 2), StatusSizeError) << k;
        EXPECT_EQ(reportedSize<TypeParam>((1 << k) + 3), StatusSizeError) << k;
    }
    // At 2^30 the sums wrap once more, and the length is accepted again.
    EXPECT_GT(reportedSize<TypeParam>((1 << 30) + 1), 0);
}

TYPED_TEST(PlanSize, OfNineBySum) {
    const std::int32_t w = sizeof(TypeParam);
    // r 2, M 4, 2 rows: the table has 8 elements and the scratch vector 9.
    const std::int32_t output = zulg::roundUp32(8 * w) + 64 + 32, fold = 64 + 64;
    const std::int32_t lists = 96 + 64 + 32 + 64, root = 64, source = 64;
    EXPECT_EQ(reportedSize<TypeParam>(9), output + fold + zulg::roundUp32(9 * w) + root + lists + source + 64);
}

TEST(PlanSizeWraps, Single) {
    EXPECT_GT(reportedSize<float>(1 << 27), 1 << 30);
    EXPECT_EQ(reportedSize<float>(1 << 28), StatusSizeError);
    EXPECT_EQ(reportedSize<float>(1 << 29), StatusSizeError);
    EXPECT_EQ(reportedSize<float>(1 << 30), 272768160);
}

TEST(PlanSizeWraps, Double) {
    EXPECT_GT(reportedSize<double>(1 << 26), 1 << 30);
    EXPECT_EQ(reportedSize<double>(1 << 27), StatusSizeError);
    EXPECT_EQ(reportedSize<double>(1 << 28), StatusSizeError);
    EXPECT_EQ(reportedSize<double>(1 << 29), 272768032);
    EXPECT_EQ(reportedSize<double>(1 << 30), 545532960);
}

}  // namespace
}  // namespace test
