// Blocks above the 2 GiB line of a 32-bit address space, whose addresses count as negative numbers. Elsewhere there is
// no such line.
#if defined(_WIN32) && !defined(_WIN64)

#include <windows.h>

#include "dct4/release.h"
#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

class HighMemory : public testing::TestWithParam<std::size_t> {
protected:
    static constexpr std::size_t bytes = 1 << 17;

    HighMemory() {
        memory = static_cast<std::uint8_t*>(
            VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT | MEM_TOP_DOWN, PAGE_READWRITE));
    }
    ~HighMemory() override { VirtualFree(memory, 0, MEM_RELEASE); }

    std::uint8_t* memory;
};

TEST_P(HighMemory, FirstRecordIsUpTo95BytesIn) {
    if (reinterpret_cast<std::uintptr_t>(memory) < 0x80000000u) GTEST_SKIP() << "no memory above 2 GiB here";
    const std::size_t remainder = GetParam();
    std::uint8_t* const block = memory + 4096 + remainder;
    DctPlan* plan;
    ASSERT_EQ(zulg::dct4Init<float>(&plan, 4096, block), StatusOk);
    const auto root = reinterpret_cast<std::uint8_t*>(plan);
    EXPECT_EQ(root - block, static_cast<std::ptrdiff_t>(remainder == 0 ? 64 : 96 - remainder));

    // From the root on the plan is the same as at any other address. It ends up to 31 bytes after the reported size.
    const auto arena = reinterpret_cast<const zulg::PlanArena*>(block);
    EXPECT_EQ(zulg::arenaCursor(arena) - reinterpret_cast<std::uintptr_t>(root), 34816u - 64);
    EXPECT_EQ(reinterpret_cast<const zulg::PlanArena*>(plan->head.arena.get()), arena);
    const auto& split = zulg::firstOf<zulg::SkewSplit>(zulg::firstOf<zulg::FoldStage>(plan->pre).children);
    EXPECT_EQ(split.radix, 8);
    EXPECT_EQ(split.skewLength, 128);
    zulg::releasePlan<sizeof(float)>(plan->head);
    EXPECT_EQ(zulg::arenaCursor(arena), reinterpret_cast<std::uintptr_t>(root) + 64);
}

// Up to 32 points all bytes of the reported size are used, so that the greater distance shows as bytes beyond it.
TEST_P(HighMemory, ABlockNeeds31BytesMoreUnlessItBeginsAtAMultipleOf32) {
    if (reinterpret_cast<std::uintptr_t>(memory) < 0x80000000u) GTEST_SKIP() << "no memory above 2 GiB here";
    const std::size_t remainder = GetParam();
    for (const std::int32_t length : {2, 32, 64, 1024, 4096}) {
        std::uint8_t* const block = memory + 4096 + remainder;
        DctPlan* plan;
        ASSERT_EQ(zulg::dct4Init<float>(&plan, length, block), StatusOk);
        const auto end = zulg::arenaCursor(reinterpret_cast<const zulg::PlanArena*>(block));
        const auto used = static_cast<std::int32_t>(end - reinterpret_cast<std::uintptr_t>(block));
        EXPECT_LE(used, reportedSize<float>(length) + (remainder == 0 ? 0 : 31)) << length;
        if (length <= 32 && remainder == 1) {
            EXPECT_EQ(used, reportedSize<float>(length) + 31) << length;
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Remainders, HighMemory, testing::Values(0, 1, 2, 16, 31), testing::PrintToStringParamName());

}  // namespace
}  // namespace test

#endif
