// What becomes of each kind of companion library: loaded by the platform's own loader, and bound by the very objects
// that are in the library.
#include <gtest/gtest.h>

#include "boundary/allocator_hook.h"
#include "boundary/load_entry.h"
#include "tests/fakes/libtmalloc.h"
#include "tests/hook/loading.h"
#include "tests/hook/slots.h"

namespace test {
namespace {

using zulg::allocatorHook;
using zulg::trampolines;

enum class Verdict { Taken, Refused };
enum class Reference { Released, Kept };

struct Variant {
    const char* name;
    Verdict verdict;
    Reference reference;
    int hookVersion, hookMinVersion;
};

// clang-format off
const Variant variants[] = {
    {"complete",                    Verdict::Taken,   Reference::Released,  1,  1},
    {"without_malloc",              Verdict::Refused, Reference::Released,  1,  1},
    {"without_calloc",              Verdict::Refused, Reference::Released,  1,  1},
    {"without_realloc",             Verdict::Refused, Reference::Released,  1,  1},
    {"without_free",                Verdict::Refused, Reference::Released,  1,  1},
    {"zero_malloc",                 Verdict::Refused, Reference::Released,  1,  1},
    {"zero_calloc",                 Verdict::Refused, Reference::Released,  1,  1},
    {"zero_realloc",                Verdict::Refused, Reference::Released,  1,  1},
    {"zero_free",                   Verdict::Refused, Reference::Released,  1,  1},
    {"minimum_2",                   Verdict::Refused, Reference::Released,  1,  2},
    {"minimum_0",                   Verdict::Taken,   Reference::Released,  1,  0},
    {"minimum_minus_1",             Verdict::Taken,   Reference::Released,  1, -1},
    {"without_minimum",             Verdict::Taken,   Reference::Released,  1,  0},
    {"version_0",                   Verdict::Taken,   Reference::Kept,      0,  1},
    {"version_minus_1",             Verdict::Taken,   Reference::Kept,     -1,  1},
    {"without_version",             Verdict::Taken,   Reference::Kept,      0,  1},
    {"without_version_and_minimum", Verdict::Taken,   Reference::Kept,      0,  0},
    {"without_calloc_and_version",  Verdict::Refused, Reference::Kept,      0,  1},
    {"without_anything",            Verdict::Refused, Reference::Kept,      0,  0},
};
// clang-format on

std::string pathOf(const std::string& variant) { return COMPANIONS "/" + variant + "/" COMPANION_FILE; }

zulg::AllocatorSlots routinesOf(const LoadedLibrary& companion) {
    return {companion.at<void*(std::size_t)>("tMalloc"), companion.at<void*(std::size_t, std::size_t)>("tCalloc"),
            companion.at<void*(void*, std::size_t)>("tRealloc"), companion.at<void(void*)>("tFree")};
}

// The hook as it is after loading.
class HookTest : public testing::Test {
protected:
    HookTest() {
        allocatorHook = {};
        zulgLoadEntry(nullptr, processAttach, nullptr);
    }
    ~HookTest() override { releaseCompanion(); }
};

class VariantTest : public HookTest, public testing::WithParamInterface<Variant> {};

// A companion that is loaded already is found by its file's name wherever that file is. Two references are the
// test's own, so that one release too many shows as well.
TEST_P(VariantTest, IsTakenOrRefusedAndReleasedOrKept) {
    const Variant& variant = GetParam();
    const LoadedLibrary companion(pathOf(variant.name));
    const LoadedLibrary again(pathOf(variant.name));

    trampolines.freeLike(nullptr);

    EXPECT_EQ(allocatorHook.slots, variant.verdict == Verdict::Taken ? routinesOf(companion) : slotsOfTheRuntime());
    EXPECT_EQ(allocatorHook.boundFlag, 1u);
    EXPECT_EQ(allocatorHook.hookVersion, variant.hookVersion);
    EXPECT_EQ(allocatorHook.hookMinVersion, variant.hookMinVersion);
    EXPECT_EQ(companion.at<CompanionLog>("companionLog")->freeCalls, variant.verdict == Verdict::Taken ? 1 : 0);
    EXPECT_EQ(releaseCompanion() - 2, variant.reference == Reference::Kept ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(All, VariantTest, testing::ValuesIn(variants),
                         [](const testing::TestParamInfo<Variant>& test) { return std::string(test.param.name); });

TEST_F(HookTest, AnAbsentCompanionLeavesTheRuntimesRoutines) {
    void* const block = trampolines.callocLike(3, 5);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(allocatorHook.slots, slotsOfTheRuntime());
    EXPECT_EQ(allocatorHook.boundFlag, 1u);
    EXPECT_EQ(allocatorHook.hookVersion, 0);
    EXPECT_EQ(allocatorHook.hookMinVersion, 0);
    for (int i = 0; i < 15; ++i) EXPECT_EQ(static_cast<char*>(block)[i], 0);
    trampolines.freeLike(block);
    EXPECT_EQ(releaseCompanion(), 0);
}

TEST_F(HookTest, EachTrampolineCallsItsOwnRoutineWithItsOwnArguments) {
    const LoadedLibrary companion(pathOf("complete"));
    CompanionLog& log = *companion.at<CompanionLog>("companionLog");
    char block;
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(round == 1 ? "the first use binds" : "bound");
        EXPECT_EQ(trampolines.mallocLike(101), &log.mallocAnswer);
        EXPECT_EQ(log.size, 101u);
        EXPECT_EQ(trampolines.callocLike(7, 103), &log.callocAnswer);
        EXPECT_EQ(log.count, 7u);
        EXPECT_EQ(log.size, 103u);
        EXPECT_EQ(trampolines.reallocLike(&block, 107), &log.reallocAnswer);
        EXPECT_EQ(log.block, &block);
        EXPECT_EQ(log.size, 107u);
        trampolines.freeLike(&log);
        EXPECT_EQ(log.block, &log);
        EXPECT_EQ(log.mallocCalls, round);
        EXPECT_EQ(log.callocCalls, round);
        EXPECT_EQ(log.reallocCalls, round);
        EXPECT_EQ(log.freeCalls, round);
    }
}

}  // namespace
}  // namespace test
