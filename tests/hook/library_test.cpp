// The allocator hook inside the library as it ships. Its state is found as the library's writable data: there is no
// other.
#include <gtest/gtest.h>

#include <cstring>

#include "boundary/allocator_hook.h"
#include "tests/fakes/libtmalloc.h"
#include "tests/hook/every_export.h"
#include "tests/hook/loading.h"
#include "tests/hook/slots.h"
#include "tests/tested_library.h"

namespace test {
namespace {

// Loads the library anew for each test. The objects of the library are no part of this program.
class LibraryTest : public testing::Test {
protected:
    LibraryTest()
        : library(testedLibrary(ZULG_LIBRARY)),
          hook(static_cast<zulg::AllocatorHook*>(library.writableData().start)) {}
    ~LibraryTest() override {
        releaseCompanion();
        library.release();
    }

    // One that would stay loaded if it were asked for, and one that would not.
    LoadedLibrary companion(const char* variant) {
        return LoadedLibrary(COMPANIONS "/" + std::string(variant) + "/" COMPANION_FILE);
    }

    const LoadedLibrary library;
    zulg::AllocatorHook* const hook;
};

TEST_F(LibraryTest, TheHookIsAllItsWritableData) {
#ifdef _WIN64
    // The compiler aligns what is this large to 32 bytes, and a section of this target is a multiple of its alignment.
    constexpr std::size_t due = (sizeof(zulg::AllocatorHook) + 31) / 32 * 32;
#else
    constexpr std::size_t due = sizeof(zulg::AllocatorHook);
#endif
    EXPECT_EQ(library.writableData().bytes, due);
}

TEST_F(LibraryTest, LoadingFillsTheSlotsWithRoutinesOfItsOwn) {
    EXPECT_TRUE(library.hasCodeAt(reinterpret_cast<void*>(hook->slots.mallocLike)));
    EXPECT_TRUE(library.hasCodeAt(reinterpret_cast<void*>(hook->slots.callocLike)));
    EXPECT_TRUE(library.hasCodeAt(reinterpret_cast<void*>(hook->slots.reallocLike)));
    EXPECT_TRUE(library.hasCodeAt(reinterpret_cast<void*>(hook->slots.freeLike)));
    EXPECT_EQ(hook->boundFlag, 0u);
    EXPECT_EQ(hook->hookVersion, 0);
    EXPECT_EQ(hook->hookMinVersion, 0);
}

TEST_F(LibraryTest, NoExportedRoutineAsksForTheCompanion) {
    const LoadedLibrary ready = companion("without_version");
    const zulg::AllocatorHook before = *hook;
    callEveryExport(library);
    EXPECT_EQ(hook->slots, before.slots);
    EXPECT_EQ(hook->boundFlag, 0u);
    const CompanionLog none = {};
    EXPECT_EQ(std::memcmp(ready.address("companionLog"), &none, sizeof none), 0);
    EXPECT_EQ(releaseCompanion(), 1) << "other references than the test's own";
}

TEST_F(LibraryTest, TheFirstUseTakesTheCompanionsRoutines) {
    const LoadedLibrary ready = companion("without_version");
    CompanionLog& log = *ready.at<CompanionLog>("companionLog");
    const zulg::AllocatorSlots trampolines = hook->slots;
    EXPECT_EQ(trampolines.mallocLike(101), &log.mallocAnswer);
    EXPECT_EQ(trampolines.callocLike(7, 103), &log.callocAnswer);
    EXPECT_EQ(trampolines.reallocLike(&log, 107), &log.reallocAnswer);
    EXPECT_EQ(log.size, 107u);
    EXPECT_EQ(log.block, &log);
    trampolines.freeLike(nullptr);
    EXPECT_EQ(log.freeCalls, 1);
    EXPECT_EQ(hook->boundFlag, 1u);
    EXPECT_FALSE(library.hasCodeAt(reinterpret_cast<void*>(hook->slots.mallocLike)));
    EXPECT_EQ(releaseCompanion(), 2) << "a companion without a version stays loaded";
}

TEST_F(LibraryTest, ACompanionWithAVersionIsReleasedAtOnce) {
    companion("complete");
    hook->slots.freeLike(nullptr);
    EXPECT_EQ(hook->hookVersion, 1);
    EXPECT_EQ(hook->hookMinVersion, 1);
    EXPECT_EQ(releaseCompanion(), 1);
}

TEST_F(LibraryTest, WithoutACompanionTheRuntimeAllocates) {
    char* block = static_cast<char*>(hook->slots.mallocLike(100));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(hook->boundFlag, 1u);
    EXPECT_EQ(hook->slots, slotsOfTheRuntime()) << "no jumps inside the library";
    std::strcpy(block, "kept");
    block = static_cast<char*>(hook->slots.reallocLike(block, 100000));
    ASSERT_NE(block, nullptr);
    EXPECT_STREQ(block, "kept");
    std::free(block);  // of the same runtime
    char* const zeros = static_cast<char*>(hook->slots.callocLike(10, 10));
    for (int i = 0; i < 100; ++i) EXPECT_EQ(zeros[i], 0);
    hook->slots.freeLike(zeros);
}

}  // namespace
}  // namespace test
