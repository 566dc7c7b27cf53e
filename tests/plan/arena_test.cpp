// The tools that a plan is built from: references, operations, arena, lists, radix choice.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

#include "dct4/tree.h"
#include "tests/plan/plan_fixture.h"

namespace test {
namespace {

using namespace zulg;

TEST(PlanRef, LeadsForwardAndBackAndToNothing) {
    struct {
        int before;
        PlanRef<int> ref, copy;
        int behind;
    } place;
    place.ref = &place.before;
    EXPECT_EQ(place.ref.get(), &place.before);
    place.copy = place.ref;
    EXPECT_EQ(place.copy.get(), &place.before);
    place.ref = &place.behind;
    EXPECT_EQ(place.ref.get(), &place.behind);
    EXPECT_EQ(place.copy.get(), &place.before);
    place.ref = nullptr;
    EXPECT_EQ(place.ref.get(), nullptr);
    EXPECT_EQ(sizeof place.ref, 4u);
}

TEST(PlanRef, IsAPlainPointerWherePointersAreFourBytes) {
    int target;
    PlanRef<int> ref;
    ref = &target;
    std::uint32_t word;
    std::memcpy(&word, &ref, sizeof word);
    const auto pointer = reinterpret_cast<std::uintptr_t>(&target);
    EXPECT_EQ(word, static_cast<std::uint32_t>(sizeof(void*) == 4 ? pointer
                                                                  : pointer - reinterpret_cast<std::uintptr_t>(&ref)));
}

TEST(PlanRef, ReachesTwoGiBEitherWay) {
    // These are numbers only: there need be no memory at such addresses.
    const std::uint64_t from = 0x7F0012345678;
    for (const std::int64_t distance : {std::int64_t{0x7FFFFFFF}, -std::int64_t{0x80000000}, std::int64_t{-1}}) {
        const auto to = static_cast<std::uintptr_t>(from + static_cast<std::uint64_t>(distance));
        const auto origin = static_cast<std::uintptr_t>(from);
        EXPECT_EQ(placeAtDistance(wordOfDistance(to, origin), origin), to);
    }
}

int sum(int a, int b) { return a + b; }

TEST(PlanOperation, CallsWhatWasSet) {
    PlanOperation operation;
    operation.set(sum);
    EXPECT_EQ(operation.as<decltype(sum)>(), &sum);
    EXPECT_EQ(operation.as<decltype(sum)>()(20, 3), 23);
    EXPECT_EQ(sizeof operation, 4u);
}

TEST(Arena, RoundUp32) {
    EXPECT_EQ(roundUp32(0), 0);
    EXPECT_EQ(roundUp32(1), 32);
    EXPECT_EQ(roundUp32(12), 32);
    EXPECT_EQ(roundUp32(32), 32);
    EXPECT_EQ(roundUp32(33), 64);
    EXPECT_EQ(roundUp32(-1), 0);
    EXPECT_EQ(roundUp32(-31), 0);
    EXPECT_EQ(roundUp32(-32), -32);
    EXPECT_EQ(roundUp32(0x7FFFFFFF), std::numeric_limits<std::int32_t>::min());
}

TEST(Arena, FirstRecordWithNarrowAddressesTakesThemAsSigned) {
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x1000}), 0x1040u);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x1001}), 0x1001u + 63);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x101F}), 0x101Fu + 33);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x7FFFFFE1}), 0x7FFFFFE1u + 63);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x80000000}), 0x80000000u + 64);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x80000001}), 0x80000001u + 95);
    EXPECT_EQ(firstRecordAddress(std::uint32_t{0x8000001F}), 0x8000001Fu + 65);
}

TEST(Arena, FirstRecordWithWideAddressesIsAtMost64In) {
    EXPECT_EQ(firstRecordAddress(std::uint64_t{0x7F0000001000}), 0x7F0000001040u);
    EXPECT_EQ(firstRecordAddress(std::uint64_t{0x7F0000001001}), 0x7F0000001001u + 63);
    EXPECT_EQ(firstRecordAddress(std::uint64_t{0x7F008000001F}), 0x7F008000001Fu + 33);
    EXPECT_EQ(firstRecordAddress(std::uint64_t{0xFFFF800000000001}), 0xFFFF800000000001u + 63);
    EXPECT_EQ(firstRecordAddress(std::uint64_t{0xFFFF80000000001F}), 0xFFFF80000000001Fu + 33);
}

TEST(Arena, AllocAndReleaseMoveTheCursorAndNothingElse) {
    GuardedBlock block(512);
    std::memset(block.data(), guardByte, 512);
    PlanArena* const arena = arenaInit(block.data());
    EXPECT_EQ(block.cursorOffset(), 64);
    void* const first = arenaAlloc(arena, 44);
    EXPECT_EQ(block.offset(first), 64);
    void* const second = arenaAlloc(arena, 1);
    EXPECT_EQ(block.offset(second), 128);
    EXPECT_EQ(block.cursorOffset(), 160);
    arenaRelease(arena, first, 0);
    EXPECT_EQ(block.cursorOffset(), 160);
    arenaRelease(arena, first, 1);  // the object that is named has no effect
    EXPECT_EQ(block.cursorOffset(), 128);
    arenaRelease(arena, nullptr, 96);
    EXPECT_EQ(block.cursorOffset(), 32);  // nothing stops it at the first record
    for (std::size_t i = sizeof(void*); i < 512; ++i) EXPECT_EQ(block.data()[i], guardByte) << i;
}

TEST(Arena, NegativeBytesMoveBack) {
    GuardedBlock block(512);
    PlanArena* const arena = arenaInit(block.data());
    arenaRelease(arena, nullptr, -256);
    EXPECT_EQ(block.cursorOffset(), 64 + 256);
    arenaAlloc(arena, -128);
    EXPECT_EQ(block.cursorOffset(), 64 + 128);
}

TEST(Arena, WorksAtAnyAddress) {
    for (std::size_t remainder = 0; remainder < 32; ++remainder) {
        GuardedBlock block(512, remainder);
        PlanArena* const arena = arenaInit(block.data());
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(arenaAlloc(arena, 12)) % 32, 0u);
    }
}

// A list in a block, with records that count how often they are freed.
struct Counted {
    PlanHead head;
    int freed;
};
void countFree(PlanHead& head) { ++reinterpret_cast<Counted&>(head).freed; }

class List : public testing::Test {
protected:
    Counted* drawCounted(std::int32_t size) {
        const auto record = drawRecord<Counted>(arena);
        record->head.free.set(countFree);
        record->head.size = size;
        record->head.arena = arena;
        record->freed = 0;
        return record;
    }

    GuardedBlock block{4096};
    PlanArena* arena = arenaInit(block.data());
    PlanListNode* head = drawList(arena);
    Counted *a = drawCounted(1), *b = drawCounted(33), *c = drawCounted(64);
    std::ptrdiff_t start = block.cursorOffset();
};

TEST_F(List, AnEmptyOneHasOneNodeAndNoElements) {
    EXPECT_EQ(listNth(head, 0), nullptr);
    EXPECT_EQ(head->value.get(), nullptr);
    EXPECT_EQ(head->next.get(), nullptr);
    EXPECT_EQ(head->arena.get(), arena);
}

TEST_F(List, FirstElementTakesNoMemoryAndEachFurtherOneBlock) {
    EXPECT_EQ(listAppend(head, &a->head), &a->head);
    EXPECT_EQ(block.cursorOffset(), start);
    EXPECT_EQ(listAppend(head, &b->head), &b->head);
    EXPECT_EQ(block.cursorOffset(), start + 32);
    EXPECT_EQ(block.offset(head->next.get()), start);
    EXPECT_EQ(listAppend(head, &c->head), &c->head);
    EXPECT_EQ(block.cursorOffset(), start + 64);
}

TEST_F(List, NthReadsInOrderAndNothingOutside) {
    listAppend(head, &a->head), listAppend(head, &b->head), listAppend(head, &c->head);
    EXPECT_EQ(listNth(head, 0), &a->head);
    EXPECT_EQ(listNth(head, 1), &b->head);
    EXPECT_EQ(listNth(head, 2), &c->head);
    EXPECT_EQ(listNth(head, 3), nullptr);
    EXPECT_EQ(listNth(head, 4), nullptr);
    EXPECT_EQ(listNth(head, -1), nullptr);
    EXPECT_EQ(listNth(nullptr, 0), nullptr);
    EXPECT_EQ(listNth(nullptr, 1), nullptr);
}

TEST_F(List, ANullValueIsOverwrittenByTheNext) {
    listAppend(head, &a->head);
    EXPECT_EQ(listAppend(head, nullptr), nullptr);
    EXPECT_EQ(block.cursorOffset(), start + 32);
    listAppend(head, &b->head);
    EXPECT_EQ(block.cursorOffset(), start + 32);
    EXPECT_EQ(listNth(head, 1), &b->head);
}

TEST_F(List, ReleaseTailLeavesTheHeadAsItWas) {
    listAppend(head, &a->head), listAppend(head, &b->head), listAppend(head, &c->head);
    PlanListNode* const next = head->next;
    listReleaseTail(head);
    EXPECT_EQ(block.cursorOffset(), start);
    EXPECT_EQ(head->value.get(), &a->head);
    EXPECT_EQ(head->next.get(), next);
    GuardedBlock other(256);
    PlanListNode* const single = drawList(arenaInit(other.data()));
    listReleaseTail(single);
    EXPECT_EQ(other.cursorOffset(), 96);
}

TEST_F(List, ReleaseValuesFreesEachRecordAndItsOwnSize) {
    listAppend(head, &a->head), listAppend(head, &b->head), listAppend(head, nullptr);
    const std::ptrdiff_t before = block.cursorOffset();
    listReleaseValues(head);
    EXPECT_EQ(a->freed, 1);
    EXPECT_EQ(b->freed, 1);
    EXPECT_EQ(c->freed, 0);
    EXPECT_EQ(block.cursorOffset(), before - 32 - 64);
    EXPECT_EQ(listNth(head, 1), &b->head);  // the list stays
    listReleaseValues(nullptr);
    EXPECT_EQ(block.cursorOffset(), before - 32 - 64);
}

TEST_F(List, ReleaseValuesGoesThroughTheArenaOfTheNode) {
    // The other arena is in the same block, since references reach no further than 2 GiB.
    PlanArena* const other = arenaInit(block.data() + 2048);
    listAppend(head, &a->head), listAppend(head, &c->head);
    head->next->arena = other;
    const std::ptrdiff_t before = block.cursorOffset();
    listReleaseValues(head);
    EXPECT_EQ(block.cursorOffset(), before - 32);
    EXPECT_EQ(block.offset(arenaCursor(other)), 2048 + 64 - 64);
}

TEST(ListBytes, AreOneBlockForEachNode) {
    EXPECT_EQ(listBytes(0), 0);
    EXPECT_EQ(listBytes(1), 32);
    EXPECT_EQ(listBytes(2), 64);
}

// -6 stands for a refusal, which must leave the radix alone.
std::int32_t radixOf(std::int32_t n) {
    std::int32_t radix = -77;
    const Status status = pickRadix(&radix, n);
    EXPECT_TRUE(status == StatusOk ? radix != -77 : radix == -77) << n;
    return status == StatusOk ? radix : status;
}

TEST(PickRadix, OfChosenNumbers) {
    constexpr std::array<std::array<std::int32_t, 2>, 32> expected = {{
        {512, 32}, {544, 32}, {1024, 32}, {1 << 30, 32}, {480, 16}, {496, 16}, {528, 16},   {256, 16},
        {128, 16}, {144, 16}, {520, 8},   {136, 8},      {112, 8},  {64, 8},   {48, 8},     {32, 8},
        {40, 8},   {24, 4},   {20, 4},    {16, 4},       {36, 4},   {516, 4},  {18, 2},     {8, 2},
        {12, 2},   {6, 2},    {4, 2},     {2, -6},       {0, -6},   {-4, -6},  {-1024, -6}, {1073741823, -6},
    }};
    for (const auto& [n, radix] : expected) EXPECT_EQ(radixOf(n), radix) << n;
}

TEST(PickRadix, RefusesOddAndSmallNumbers) {
    for (std::int32_t n = -2049; n <= 2049; n += 2) EXPECT_EQ(radixOf(n), -6) << n;
    for (std::int32_t n = -2048; n < 4; ++n) EXPECT_EQ(radixOf(n), -6) << n;
    EXPECT_EQ(radixOf(std::numeric_limits<std::int32_t>::min()), -6);
    EXPECT_EQ(radixOf(std::numeric_limits<std::int32_t>::max()), -6);
}

template <class Kind>
void expectKinds(Kind kindOf(std::int32_t), std::int32_t first, std::int32_t count, std::int32_t otherwise) {
    for (std::int32_t n = -128; n <= 128; ++n) {
        std::int32_t due = otherwise;
        for (std::int32_t i = 0; i < count; ++i) due = n == first << i ? i + 1 : due;
        EXPECT_EQ(number(kindOf(n)), due) << n;
    }
}

TEST(Kinds, CountUpFromOneAndDoubleEachTime) {
    expectKinds(planKind, 2, 5, 6);
    expectKinds(foldKind, 2, 6, 7);
    expectKinds(outputKind, 1, 6, 0);
    expectKinds(combineKind, 2, 5, 0);
}

}  // namespace
}  // namespace test
