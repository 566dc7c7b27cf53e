// The allocator hook's order of events, with recorded dynamic loading in the place of the platform's. What becomes of
// each kind of companion is the matter of companion_test.cpp.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "boundary/allocator_hook.h"
#include "boundary/load_entry.h"
#include "tests/fakes/recorded_loading.h"
#include "tests/hook/slots.h"

namespace test {
namespace {

using zulg::allocatorHook;
using zulg::trampolines;

void* companionMalloc(std::size_t) { return nullptr; }
void* companionCalloc(std::size_t, std::size_t) { return nullptr; }
void* companionRealloc(void*, std::size_t) { return nullptr; }
void companionFree(void*) {}

constexpr zulg::AllocatorSlots companionRoutines = {companionMalloc, companionCalloc, companionRealloc, companionFree};

const std::vector<std::string> lookUps = {"t_malloc_dll", "t_calloc_dll",  "t_realloc_dll",
                                          "t_free_dll",   "t_version_dll", "t_min_version_dll"};

std::vector<std::string> events(bool released) {
    std::vector<std::string> all = lookUps;
    all.insert(all.begin(), "open");
    if (released) all.push_back("release");
    return all;
}

class BindingTest : public testing::Test {
protected:
    BindingTest() {
        allocatorHook = {};
        recordedLoading = {};
        recordedLoading.symbols = {{"t_malloc_dll", &routines.mallocLike},
                                   {"t_calloc_dll", &routines.callocLike},
                                   {"t_realloc_dll", &routines.reallocLike},
                                   {"t_free_dll", &routines.freeLike},
                                   {"t_version_dll", &version},
                                   {"t_min_version_dll", &minVersion}};
        zulgLoadEntry(nullptr, processAttach, nullptr);
    }

    void bind() { trampolines.freeLike(nullptr); }

    zulg::AllocatorSlots routines = companionRoutines;
    std::int32_t version = 1, minVersion = 1;
};

TEST_F(BindingTest, LoadingFillsTheSlotsAndLooksForNothing) {
    EXPECT_EQ(allocatorHook.slots, trampolines);
    EXPECT_EQ(allocatorHook.boundFlag, 0u);
    EXPECT_EQ(allocatorHook.hookVersion, 0);
    EXPECT_EQ(allocatorHook.hookMinVersion, 0);
    EXPECT_TRUE(recordedLoading.events.empty());
}

TEST_F(BindingTest, TheLoadEntryDoesNothingForAnyOtherReason) {
    const auto unchangedBy = [](std::uint32_t reason) {
        const zulg::AllocatorHook before = allocatorHook;
        EXPECT_EQ(zulgLoadEntry(nullptr, reason, nullptr), 1) << reason;
        EXPECT_EQ(std::memcmp(&before, &allocatorHook, sizeof before), 0) << reason;
    };
    const auto unchangedByAny = [&] {
        for (std::uint32_t reason : {0u, 2u, 3u, 4u, 0x80000001u, 0xffffffffu}) unchangedBy(reason);
    };
    unchangedByAny();
    bind();
    unchangedByAny();
    allocatorHook = {};
    unchangedByAny();
    EXPECT_EQ(zulgLoadEntry(nullptr, processAttach, nullptr), 1);
}

TEST_F(BindingTest, AnAbsentCompanionLeavesNothingToRelease) {
    recordedLoading.present = false;
    bind();
    EXPECT_EQ(recordedLoading.events, std::vector<std::string>{"open"});
    EXPECT_EQ(allocatorHook.slots, slotsOfTheRuntime());
    EXPECT_EQ(allocatorHook.boundFlag, 1u);
}

TEST_F(BindingTest, AllNamesAreLookedUpInOrder) {
    bind();
    EXPECT_EQ(recordedLoading.events, events(true));
}

TEST_F(BindingTest, AMissingNameDoesNotEndTheLookUps) {
    for (const std::string& name : lookUps) {
        SCOPED_TRACE(name);
        recordedLoading.events.clear();
        const auto kept = recordedLoading.symbols.extract(name);
        allocatorHook = {};
        bind();
        EXPECT_EQ(recordedLoading.events, events(name != "t_version_dll"));
        recordedLoading.symbols.insert({name, kept.mapped()});
    }
}

TEST_F(BindingTest, BindsOnceWhicheverRoutineComesFirst) {
    const auto first = [](auto&& call) {
        allocatorHook = {};
        recordedLoading.events.clear();
        call();
        EXPECT_EQ(recordedLoading.events, events(true));
        EXPECT_EQ(allocatorHook.slots, companionRoutines);
        EXPECT_EQ(allocatorHook.boundFlag, 1u);
        trampolines.mallocLike(1), trampolines.callocLike(1, 1);
        trampolines.reallocLike(nullptr, 1), trampolines.freeLike(nullptr);
        EXPECT_EQ(recordedLoading.events, events(true)) << "bound once more";
    };
    first([] { trampolines.mallocLike(1); });
    first([] { trampolines.callocLike(1, 1); });
    first([] { trampolines.reallocLike(nullptr, 1); });
    first([] { trampolines.freeLike(nullptr); });
}

TEST_F(BindingTest, TheReleaseComesAfterTheRoutinesWereTaken) {
    bool seen = false;
    recordedLoading.atRelease = [&] {
        seen = true;
        EXPECT_EQ(allocatorHook.slots, companionRoutines);
        EXPECT_EQ(allocatorHook.boundFlag, 0u) << "the flag is set last of all";
    };
    bind();
    EXPECT_TRUE(seen);
    EXPECT_EQ(allocatorHook.slots, companionRoutines);
}

TEST_F(BindingTest, ARefusedCompanionIsReleasedAfterTheFallback) {
    bool seen = false;
    routines.callocLike = nullptr;
    recordedLoading.atRelease = [&] {
        seen = true;
        EXPECT_EQ(allocatorHook.slots, slotsOfTheRuntime());
    };
    bind();
    EXPECT_TRUE(seen);
}

// Both comparisons are signed, and neither number has a say in the other's.
TEST_F(BindingTest, TheVersionReleasesAndTheMinimumRefuses) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
    for (std::int32_t stated : {lowest, -1, 0, 1, 2, greatest}) {
        for (std::int32_t minimum : {lowest, -1, 0, 1, 2, 3, greatest}) {
            SCOPED_TRACE(testing::Message() << "version " << stated << ", minimum " << minimum);
            version = stated;
            minVersion = minimum;
            allocatorHook = {};
            recordedLoading.events.clear();
            bind();
            EXPECT_EQ(recordedLoading.events, events(stated > 0));
            EXPECT_EQ(allocatorHook.slots, minimum <= 1 ? companionRoutines : slotsOfTheRuntime());
            EXPECT_EQ(allocatorHook.hookVersion, stated);
            EXPECT_EQ(allocatorHook.hookMinVersion, minimum);
        }
    }
}

// Two threads that allocate for the first time at once: the second comes while the first is looking for the companion.
TEST_F(BindingTest, TwoFirstUsesAtOnceHaveOneOutcome) {
    recordedLoading.atOpening = [&] {
        recordedLoading.atOpening = [] {};
        trampolines.mallocLike(1);
        EXPECT_EQ(allocatorHook.boundFlag, 1u);
    };
    bind();
    EXPECT_EQ(std::count(recordedLoading.events.begin(), recordedLoading.events.end(), "open"), 2);
    EXPECT_EQ(std::count(recordedLoading.events.begin(), recordedLoading.events.end(), "release"), 2);
    EXPECT_EQ(allocatorHook.slots, companionRoutines);
    EXPECT_EQ(allocatorHook.boundFlag, 1u);
}

}  // namespace
}  // namespace test
