// The five routines: their checks, what a refusal leaves alone, the calls of the core library, the release.
#include "dct4/release.h"
#include "tests/fakes/zulcore.h"
#include "tests/plan/plan_fixture.h"
#include "tests/plan/recorded_runs.h"

namespace test {
namespace {

using namespace zulg;

template <class Element>
class PlanLife : public ElementTest<Element> {
protected:
    PlanLife() {
        core = {};
        runs.clear();
    }

    FakeCore& core = *fakeCore();
};
TYPED_TEST_SUITE(PlanLife, Elements, ElementNames);

DctPlan* const untouched = reinterpret_cast<DctPlan*>(std::uintptr_t{0x1230});

TYPED_TEST(PlanLife, InitChecksPointersBeforeAnything) {
    GuardedBlock block(1 << 12);
    DctPlan* plan = untouched;
    std::memset(block.data(), guardByte, 1 << 12);
    EXPECT_EQ(dct4Init<TypeParam>(nullptr, 64, block.data()), StatusNullPointer);
    EXPECT_EQ(dct4Init<TypeParam>(&plan, 64, nullptr), StatusNullPointer);
    EXPECT_EQ(dct4Init<TypeParam>(nullptr, 12, nullptr), StatusNullPointer);
    EXPECT_EQ(plan, untouched);
    for (std::size_t i = 0; i < 1 << 12; ++i) ASSERT_EQ(block.data()[i], guardByte) << i;
}

TYPED_TEST(PlanLife, InitStaysWithinTheReportedSize) {
    for (const std::int32_t length : builtLengths()) {
        for (const std::size_t remainder : {0, 1, 17, 31}) {
            const BuiltPlan<TypeParam> built(length, remainder);
            EXPECT_TRUE(built.block.guardsStand()) << length << " at " << remainder;
        }
    }
    EXPECT_EQ(this->core.allocations, 0);
}

// A failed build is taken down as if its scratch vectors had been drawn: N elements at the top, and M of a split that
// had begun. So the cursor ends below its start, except where a size of the wrong sign moves it up.
struct Refused {
    std::int32_t length, single, twice;
};
constexpr Refused refusedLengths[] = {
    {6, 32, 64},             // no radix for 3: 6 elements
    {12, 64 + 32, 96 + 64},  // no radix for the 3 of a split of 6
    {1000, 4000 + 1024, 8000 + 2016},
    {4098, 16416, 32800},  // 2049 is odd: nothing drawn below the root
    {0, 0, 0},
    {1, 32, 32},
    {3, 32, 32},
    {-1, 0, 0},
    {-64, -256, -512},
    {-2147483647 - 1, 0, 0},
};

TYPED_TEST(PlanLife, RefusedInitLeavesThePlanAndReleasesWhatWasNeverDrawn) {
    for (const Refused& refused : refusedLengths) {
        GuardedBlock block(1 << 16);
        DctPlan* plan = untouched;
        EXPECT_EQ(dct4Init<TypeParam>(&plan, refused.length, block.data()), StatusSizeError) << refused.length;
        EXPECT_EQ(plan, untouched) << refused.length;
        EXPECT_EQ(block.cursorOffset(), 64 - perType<TypeParam>(refused.single, refused.twice)) << refused.length;
        EXPECT_TRUE(block.guardsStand()) << refused.length;
    }
    EXPECT_EQ(this->core.releases, 0);
}

// Init accepts exactly those lengths that GetSize accepts.
TYPED_TEST(PlanLife, InitAndGetSizeAgree) {
    GuardedBlock block(1 << 17);
    for (std::int32_t length = -70; length <= 2200; ++length) {
        DctPlan* plan = untouched;
        const Status status = dct4Init<TypeParam>(&plan, length, block.data());
        EXPECT_EQ(status, reportedSize<TypeParam>(length) > 0 ? StatusOk : StatusSizeError) << length;
        EXPECT_EQ(plan == untouched, status != StatusOk) << length;
    }
    EXPECT_TRUE(block.guardsStand());
}

TYPED_TEST(PlanLife, InitAllocChecksPointerAndLength) {
    EXPECT_EQ(dct4InitAlloc<TypeParam>(nullptr, 64), StatusNullPointer);
    EXPECT_EQ(dct4InitAlloc<TypeParam>(nullptr, 12), StatusNullPointer);
    DctPlan* plan = untouched;
    EXPECT_EQ(dct4InitAlloc<TypeParam>(&plan, 12), StatusSizeError);
    EXPECT_EQ(dct4InitAlloc<TypeParam>(&plan, -6), StatusSizeError);
    EXPECT_EQ(plan, untouched);
    EXPECT_EQ(this->core.allocations, 0);
    EXPECT_EQ(this->core.releases, 0);
}

TYPED_TEST(PlanLife, InitAllocAsksForTheReportedSizeAndFreeGivesItBack) {
    for (const std::int32_t length : builtLengths()) {
        this->core = {};
        DctPlan* plan = untouched;
        ASSERT_EQ(dct4InitAlloc<TypeParam>(&plan, length), StatusOk) << length;
        ASSERT_EQ(this->core.allocations, 1);
        EXPECT_EQ(this->core.bytes, static_cast<std::uint32_t>(reportedSize<TypeParam>(length)));
        EXPECT_EQ(plan->length, length);
        EXPECT_EQ(reinterpret_cast<void*>(plan->head.arena.get()), this->core.block);
        EXPECT_EQ(this->core.releases, 0);
        const auto root = reinterpret_cast<std::uintptr_t>(plan);
        EXPECT_EQ(dct4Free<TypeParam>(plan), StatusOk);
        EXPECT_EQ(this->core.allocations, 1);
        EXPECT_EQ(this->core.releases, 1);
        EXPECT_EQ(this->core.released, this->core.block);
        // The walk ends where the build began.
        EXPECT_EQ(this->core.firstWord, root) << length;
    }
}

// The core library may give any address. Below 2 GiB the reported size is enough at each.
TYPED_TEST(PlanLife, InitAllocTakesABlockAtAnyAddress) {
    for (const std::int32_t length : {2, 9, 64, 4096, 131072}) {
        for (std::uintptr_t remainder = 0; remainder < 32; ++remainder) {
            this->core = {};
            this->core.remainder = remainder;
            DctPlan* plan = untouched;
            ASSERT_EQ(dct4InitAlloc<TypeParam>(&plan, length), StatusOk) << length;
            const auto block = reinterpret_cast<std::uintptr_t>(this->core.block);
            EXPECT_EQ(block % 32, remainder);
            const auto* const arena = reinterpret_cast<const PlanArena*>(this->core.block);
            EXPECT_LE(arenaCursor(arena) - block, this->core.bytes) << length << " at " << remainder;
            EXPECT_EQ(dct4Free<TypeParam>(plan), StatusOk);
            EXPECT_EQ(this->core.released, this->core.block);
        }
    }
}

TYPED_TEST(PlanLife, RefusedMemoryIsANullPointer) {
    this->core.refuses = true;
    DctPlan* plan = untouched;
    EXPECT_EQ(dct4InitAlloc<TypeParam>(&plan, 64), StatusNullPointer);
    EXPECT_EQ(plan, untouched);
    EXPECT_EQ(this->core.allocations, 1);
    EXPECT_EQ(this->core.bytes, perType<TypeParam>(1184u, 1696u));
    EXPECT_EQ(this->core.releases, 1);
    EXPECT_EQ(this->core.released, nullptr);
}

TYPED_TEST(PlanLife, FreeRefusesANullPointer) {
    EXPECT_EQ(dct4Free<TypeParam>(nullptr), StatusNullPointer);
    EXPECT_EQ(this->core.releases, 0);
}

// The root's own `free` leaves the root: 44 bytes, one block of 64.
TYPED_TEST(PlanLife, FreeOperationOfTheRootLeavesTheRoot) {
    for (const std::int32_t length : builtLengths()) {
        BuiltPlan<TypeParam> built(length);
        built.plan->head.free.template as<ReleaseOperation>()(built.plan->head);
        EXPECT_EQ(built.block.cursorOffset(), 64 + 64) << length;
    }
}

TYPED_TEST(PlanLife, TransformChecksItsPointersThenThePlan) {
    BuiltPlan<TypeParam> built(64);
    TypeParam source[64] = {}, destination[64];
    EXPECT_EQ(dct4<TypeParam>(nullptr, destination, built.plan), StatusNullPointer);
    EXPECT_EQ(dct4<TypeParam>(source, nullptr, built.plan), StatusNullPointer);
    EXPECT_EQ(dct4<TypeParam>(source, destination, nullptr), StatusNullPointer);
    for (const std::int32_t kind :
         {0, 7, -1, 8, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        built.plan->kind = PlanKind{kind};
        EXPECT_EQ(dct4<TypeParam>(source, destination, built.plan), StatusPlanKindError) << kind;
        EXPECT_EQ(dct4<TypeParam>(nullptr, destination, built.plan), StatusNullPointer) << kind;
    }
    EXPECT_TRUE(runs.empty());
}

TYPED_TEST(PlanLife, TransformRunsThePlanOnce) {
    BuiltPlan<TypeParam> built(64);
    TypeParam source[64] = {}, destination[64];
    for (std::int32_t kind = 1; kind <= 6; ++kind) {
        runs.clear();
        built.plan->kind = PlanKind{kind};
        EXPECT_EQ(dct4<TypeParam>(source, destination, built.plan), StatusOk) << kind;
        ASSERT_EQ(runs.size(), 1u);
        EXPECT_EQ(runs[0].plan, built.plan);
        EXPECT_EQ(runs[0].pSrc, source);
        EXPECT_EQ(runs[0].pDst, destination);
        EXPECT_EQ(runs[0].width, sizeof(TypeParam));
    }
}

}  // namespace
}  // namespace test
