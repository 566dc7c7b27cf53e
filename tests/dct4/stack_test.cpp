// The stack that a run of a plan takes: little enough for threads and coroutines whose stacks are small.
#ifndef _WIN32
#include <pthread.h>
#endif

#include <algorithm>
#include <climits>

#include "tests/dct4/dct4_fixture.h"
#include "tests/memory.h"
#include "tests/stack_depth.h"

namespace test {
namespace {

template <class Element>
class Dct4StackTest : public Dct4Test<Element> {};
TYPED_TEST_SUITE(Dct4StackTest, Elements, ElementNames);

// The header promises this for every length. The plans here have up to three levels; one more level takes 200 bytes.
constexpr int longest = 1 << 22;
constexpr std::ptrdiff_t promised = 12 * 1024;

TYPED_TEST(Dct4StackTest, ARunTakesNoMoreThanTheHeaderSays) {
    std::ptrdiff_t deepest = 0;
    for (int length = 2; length <= longest; length *= 2) {
        Planned<TypeParam> planned(length);
        std::vector<TypeParam> x(static_cast<std::size_t>(length));
        const std::ptrdiff_t depth = stackDepth([&] { this->dct4.run(x.data(), x.data(), planned.plan); });
        EXPECT_GT(depth, 0) << length;
        EXPECT_LE(depth, promised) << length;
        deepest = std::max(deepest, depth);
    }
    this->RecordProperty("deepest", std::to_string(deepest));
}

#ifndef _WIN32
// A page that cannot be accessed is below the stack of 32 KB, or of the least that the system gives a thread.
TYPED_TEST(Dct4StackTest, AThreadWithASmallStackRunsEveryLength) {
    const auto bytes = std::max(std::size_t{32 * 1024}, static_cast<std::size_t>(PTHREAD_STACK_MIN));
    const GuardedPages stack(bytes);
    struct Run {
        const Dct4Routines<TypeParam>& dct4;
        zulg::DctPlan* plan;
        TypeParam* x;
        ZulgStatus status;
    };
    const auto start = [](void* argument) -> void* {
        auto& run = *static_cast<Run*>(argument);
        run.status = run.dct4.run(run.x, run.x, run.plan);
        return nullptr;
    };
    for (int length = 2; length <= longest; length *= 2) {
        Planned<TypeParam> planned(length);
        std::vector<TypeParam> x(static_cast<std::size_t>(length));
        Run run{this->dct4, planned.plan, x.data(), StatusSizeError};
        pthread_attr_t attributes;
        pthread_t thread;
        ASSERT_EQ(pthread_attr_init(&attributes), 0);
        ASSERT_EQ(pthread_attr_setstack(&attributes, stack.atFront(), bytes), 0);
        ASSERT_EQ(pthread_create(&thread, &attributes, start, &run), 0);
        ASSERT_EQ(pthread_join(thread, nullptr), 0);
        pthread_attr_destroy(&attributes);
        EXPECT_EQ(run.status, StatusOk) << length;
    }
}
#endif

}  // namespace
}  // namespace test
