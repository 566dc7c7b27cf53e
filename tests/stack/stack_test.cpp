// The stack that a call takes.
#include <gtest/gtest.h>

#include "tests/stack_depth.h"

namespace test {
namespace {

// Writes the lowest byte of a frame of so many bytes.
[[gnu::noinline]] void takeStack(std::size_t bytes) {
    auto* const frame = static_cast<volatile char*>(__builtin_alloca(bytes));
    frame[0] = 1;
}

TEST(StackDepth, IsThatOfTheDeepestByteWritten) {
    const auto empty = stackDepth([] {});
    EXPECT_LE(empty, 256);
    for (const std::ptrdiff_t bytes : {1000, 4096, 20000, 300000}) {
        const auto depth = stackDepth([=] { takeStack(static_cast<std::size_t>(bytes)); });
        EXPECT_GE(depth, bytes);
        EXPECT_LE(depth, bytes + empty + 256);
    }
    EXPECT_EQ(stackDepth([] {}), empty) << "the paint of an earlier call is seen";
}

}  // namespace
}  // namespace test
