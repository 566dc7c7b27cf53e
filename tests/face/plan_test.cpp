// Plans of the DCT-IV in C++: results, refusals, and who gives the memory and gets it back. The aligned operator new of
// this program counts its blocks; where libraries can be replaced by name, the core library does as well.
#include <array>
#include <bit>
#include <cstdlib>
#include <new>
#include <vector>

#include "include/zulgenpx.hpp"
#include "tests/elements.h"
#include "tests/exports.h"
#ifdef ZULG_COUNTS_CORE
#include "tests/fakes/zulcore.h"
#endif

namespace {

struct Heap {
    int blocks = 0, taken = 0;
    std::size_t bytes = 0, alignment = 0;
} heap;

}  // namespace

// The pointer that malloc gave is ahead of the block.
void* operator new(std::size_t bytes, std::align_val_t alignment) {
    ++heap.blocks, ++heap.taken;
    heap.bytes = bytes, heap.alignment = static_cast<std::size_t>(alignment);
    void* const whole = std::malloc(bytes + heap.alignment + sizeof(void*));
    if (whole == nullptr) throw std::bad_alloc();
    auto address = reinterpret_cast<std::uintptr_t>(whole) + sizeof(void*);
    address = (address + heap.alignment - 1) / heap.alignment * heap.alignment;
    void* const block = reinterpret_cast<void*>(address);
    static_cast<void**>(block)[-1] = whole;
    return block;
}
void operator delete(void* block, std::align_val_t) noexcept {
    if (block == nullptr) return;
    --heap.blocks;
    std::free(static_cast<void**>(block)[-1]);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
    operator delete(block, alignment);
}

namespace {

using zulgenpx::dct4_plan;

template <class Real>
class FacePlanTest : public test::ElementTest<Real> {
protected:
    void SetUp() override { heap = {}; }
    void TearDown() override { EXPECT_EQ(heap.blocks, 0); }

    using Native = typename dct4_plan<Real>::native_plan;
    template <class Routine>
    Routine exported(const std::string& name) {
        return test::exported<Routine>(test::exportedName<Real>(name));
    }

    // What the exported routines give.
    std::vector<Real> due(const std::vector<Real>& x) {
        Native* plan = nullptr;
        const auto length = static_cast<std::int32_t>(x.size());
        EXPECT_EQ(exported<ZulgStatus(ZULG_CALL*)(Native**, std::int32_t)>("zulgDCT4InitAlloc")(&plan, length),
                  StatusOk);
        std::vector<Real> y(x.size());
        EXPECT_EQ((exported<ZulgStatus(ZULG_CALL*)(const Real*, Real*, Native*)>("zulgDCT4")(x.data(), y.data(), plan)),
                  StatusOk);
        EXPECT_EQ(exported<ZulgStatus(ZULG_CALL*)(Native*)>("zulgDCT4Free")(plan), StatusOk);
        return y;
    }

    template <class Call>
    void expectRefused(Call call, const std::string& message) {
        try {
            call();
            ADD_FAILURE() << "nothing is thrown instead of: " << message;
        } catch (const zulgenpx::error& error) {
            EXPECT_EQ(error.what(), "zulgenpx::dct4_plan: " + message);
        }
    }
};
TYPED_TEST_SUITE(FacePlanTest, test::Elements, test::ElementNames);

TYPED_TEST(FacePlanTest, GivesTheBitsOfTheExports) {
    for (std::size_t length = 2; length <= 4096; length *= 2) {
        const auto x = this->randomElements(static_cast<int>(length));
        const auto due = this->due(x);
        dct4_plan<TypeParam> own(length), ofCore(length, zulgenpx::of_core_library);
        std::vector<std::byte> memory(dct4_plan<TypeParam>::bytes(length) + dct4_plan<TypeParam>::alignment - 1);
        dct4_plan<TypeParam> inMemory(length, memory);
        for (auto* plan : {&own, &ofCore, &inMemory}) {
            ASSERT_EQ(plan->length(), length);
            std::vector<TypeParam> y(length);
            (*plan)(x, y);
            EXPECT_TRUE(test::sameBits(y, due)) << length;
            y = x;
            (*plan)(y, y);
            EXPECT_TRUE(test::sameBits(y, due)) << length << ", in place";
        }
    }
    const std::array<TypeParam, 2> x{1, 2};
    dct4_plan<TypeParam> plan(2);
    const auto y = plan(x);
    EXPECT_TRUE(test::sameBits(std::vector<TypeParam>(y.begin(), y.end()), this->due({1, 2})));
}

TYPED_TEST(FacePlanTest, TakesOneAlignedBlockAndGivesItBack) {
    {
        dct4_plan<TypeParam> plan(256);
        EXPECT_EQ(heap.taken, 1);
        EXPECT_EQ(heap.blocks, 1);
        EXPECT_EQ(heap.bytes, dct4_plan<TypeParam>::bytes(256));
        EXPECT_EQ(heap.alignment, 32u);
        const auto start = reinterpret_cast<std::uintptr_t>(plan.native());
        dct4_plan<TypeParam> other(std::move(plan));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(other.native()), start);  // the block stays where it is
        EXPECT_EQ(heap.taken, 1);
    }
    EXPECT_EQ(heap.blocks, 0);
    heap = {};
    std::array<std::byte, 4096> memory;
    dct4_plan<TypeParam> inMemory(64, memory);
    EXPECT_EQ(heap.taken, 0);
}

#ifdef ZULG_COUNTS_CORE
TYPED_TEST(FacePlanTest, GivesABlockOfTheCoreLibraryBackToIt) {
    test::FakeCore& core = *fakeCore();
    core = {};
    {
        dct4_plan<TypeParam> plan(512, zulgenpx::of_core_library);
        EXPECT_EQ(core.allocations, 1);
        EXPECT_EQ(core.bytes, dct4_plan<TypeParam>::bytes(512));
        dct4_plan<TypeParam> other;
        other = std::move(plan);
        EXPECT_EQ(core.releases, 0);
    }
    EXPECT_EQ(core.releases, 1);
    EXPECT_EQ(core.released, core.block);
    EXPECT_EQ(heap.taken, 0);
    core.refuses = true;
    EXPECT_THROW(dct4_plan<TypeParam>(512, zulgenpx::of_core_library), std::bad_alloc);
    core = {};
}
#endif

TYPED_TEST(FacePlanTest, MovesAndLeavesAnEmptyPlan) {
    const auto x = this->randomElements(64);
    const auto due = this->due(x);
    std::vector<TypeParam> y(64);
    dct4_plan<TypeParam> plan(64);
    dct4_plan<TypeParam> other(std::move(plan));
    EXPECT_FALSE(plan);  // NOLINT: a moved plan is empty
    EXPECT_EQ(plan.length(), 0u);
    EXPECT_EQ(plan.native(), nullptr);
    this->expectRefused([&] { plan(x, y); }, "the plan is empty");
    other(x, y);
    EXPECT_TRUE(test::sameBits(y, due));

    dct4_plan<TypeParam> shorter(32);
    EXPECT_EQ(heap.blocks, 2);
    shorter = std::move(other);  // the block of 32 points is given back
    EXPECT_EQ(heap.blocks, 1);
    auto& same = shorter;
    shorter = std::move(same);
    EXPECT_EQ(shorter.length(), 64u);
    y.assign(64, 7);
    shorter(x, y);
    EXPECT_TRUE(test::sameBits(y, due));
    swap(shorter, plan);
    EXPECT_TRUE(plan && !shorter);
    plan = {};
    EXPECT_EQ(heap.blocks, 0);
    static_assert(!std::is_copy_constructible_v<dct4_plan<TypeParam>>);
    static_assert(std::is_nothrow_move_constructible_v<dct4_plan<TypeParam>>);
    static_assert(std::is_nothrow_move_assignable_v<dct4_plan<TypeParam>>);
}

TYPED_TEST(FacePlanTest, RefusesLengths) {
    const std::size_t longest = this->single ? std::size_t{1} << 27 : std::size_t{1} << 26;
    std::vector<std::byte> memory(1 << 16);
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{3}, std::size_t{9}, std::size_t{65},
                                     std::size_t{48}, 2 * longest, longest + 1, std::size_t{1} << 31}) {
        const std::string message =
            "lengths are powers of two from 2 to " + std::to_string(longest) + ", not " + std::to_string(length);
        this->expectRefused([&] { dct4_plan<TypeParam> plan(length); }, message);
        this->expectRefused([&] { dct4_plan<TypeParam> plan(length, zulgenpx::of_core_library); }, message);
        this->expectRefused([&] { dct4_plan<TypeParam> plan(length, memory); }, message);
        this->expectRefused([&] { static_cast<void>(dct4_plan<TypeParam>::bytes(length)); }, message);
    }
    EXPECT_GT(dct4_plan<TypeParam>::bytes(longest), longest);
    EXPECT_EQ(heap.taken, 0);
}

TYPED_TEST(FacePlanTest, RefusesArrays) {
    dct4_plan<TypeParam> plan(16);
    std::vector<TypeParam> x(16), y(15, 7);
    this->expectRefused([&] { plan(x, y); }, "the destination has 15 elements, 16 are due");
    this->expectRefused([&] { plan(y, x); }, "the source has 15 elements, 16 are due");
    EXPECT_EQ(y, std::vector<TypeParam>(15, 7));
    this->expectRefused([&] { static_cast<void>(plan(std::array<TypeParam, 8>{})); },
                        "the source has 8 elements, 16 are due");
}

// At each remainder of the address, the memory that suffices and one byte less.
TYPED_TEST(FacePlanTest, TakesMemoryAtAnyAddress) {
    constexpr std::size_t alignment = dct4_plan<TypeParam>::alignment;
    const std::size_t size = dct4_plan<TypeParam>::bytes(64);
    std::vector<std::byte> storage(size + 4 * alignment);
    const std::size_t toAligned = alignment - reinterpret_cast<std::uintptr_t>(storage.data()) % alignment;
    const auto x = this->randomElements(64);
    const auto due = this->due(x);
    for (std::size_t skipped = 0; skipped < alignment; ++skipped) {
        const std::size_t needed = size + (alignment - skipped) % alignment;
        std::fill(storage.begin(), storage.end(), std::byte{0xA5});
        const auto memory = std::span(storage).subspan(toAligned + skipped, needed);
        dct4_plan<TypeParam> plan(64, memory);
        std::vector<TypeParam> y(64);
        plan(x, y);
        EXPECT_TRUE(test::sameBits(y, due)) << skipped;
        for (std::size_t i = 0; i < toAligned + skipped; ++i) ASSERT_EQ(storage[i], std::byte{0xA5});
        for (std::size_t i = toAligned + skipped + needed; i < storage.size(); ++i)
            ASSERT_EQ(storage[i], std::byte{0xA5});
        this->expectRefused(
            [&] { dct4_plan<TypeParam> refused(64, memory.first(needed - 1)); },
            "the memory has " + std::to_string(needed - 1) + " bytes, " + std::to_string(needed) + " are due");
    }
    EXPECT_EQ(heap.taken, 0);
}

TYPED_TEST(FacePlanTest, RefusesArraysInsideItsMemory) {
    std::vector<TypeParam> memory(2048);
    dct4_plan<TypeParam> plan(64, std::as_writable_bytes(std::span(memory)));
    std::vector<TypeParam> x(64);
    const auto inside = std::span(memory).subspan(100, 64);
    this->expectRefused([&] { plan(x, inside); }, "an array overlaps the memory of the plan");
    this->expectRefused([&] { plan(inside, x); }, "an array overlaps the memory of the plan");
    plan(x, std::span(memory).last(64));  // after the block
}

}  // namespace
