// What the suites over plans share: blocks with guards, plans built in them, and the two element types.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "dct4/dct4.h"
#include "dct4/records.h"
#include "tests/elements.h"

namespace test {

using zulg::DctPlan;

inline constexpr std::uint8_t guardByte = 0xA5;

// `bytes` of memory at an address of the given remainder modulo 32, with guards on both sides.
class GuardedBlock {
public:
    explicit GuardedBlock(std::size_t blockBytes, std::size_t remainder = 0)
        : memory(blockBytes + 2 * guardBytes + 32, guardByte), bytes(blockBytes) {
        const auto first = reinterpret_cast<std::uintptr_t>(memory.data()) + guardBytes;
        start = memory.data() + guardBytes + (remainder + 32 - first % 32) % 32;
    }

    std::uint8_t* data() const { return start; }
    std::uintptr_t address() const { return reinterpret_cast<std::uintptr_t>(start); }
    std::uintptr_t cursor() const { return zulg::arenaCursor(reinterpret_cast<const zulg::PlanArena*>(start)); }
    // The distance from the start of the block, which is negative before it.
    std::ptrdiff_t offset(std::uintptr_t place) const { return static_cast<std::ptrdiff_t>(place - address()); }
    std::ptrdiff_t offset(const void* place) const { return offset(reinterpret_cast<std::uintptr_t>(place)); }
    std::ptrdiff_t cursorOffset() const { return offset(cursor()); }

    bool guardsStand() const {
        const auto isGuard = [](std::uint8_t byte) { return byte == guardByte; };
        return std::all_of(memory.data(), static_cast<const std::uint8_t*>(start), isGuard) &&
               std::all_of(static_cast<const std::uint8_t*>(start) + bytes, memory.data() + memory.size(), isGuard);
    }

private:
    static constexpr std::size_t guardBytes = 96;
    std::vector<std::uint8_t> memory;
    std::size_t bytes;
    std::uint8_t* start;
};

// The size that the library reports, or its status, which is negative.
template <class Element>
std::int32_t reportedSize(std::int32_t length) {
    std::int32_t size = -1;
    const zulg::Status status = zulg::dct4GetSize<Element>(length, &size);
    return status == StatusOk ? size : status;
}

// A finished plan in a block of exactly the reported size.
template <class Element>
struct BuiltPlan {
    explicit BuiltPlan(std::int32_t length, std::size_t remainder = 0)
        : block(static_cast<std::size_t>(reportedSize<Element>(length)), remainder) {
        EXPECT_EQ(zulg::dct4Init<Element>(&plan, length, block.data()), StatusOk) << "length " << length;
    }
    ~BuiltPlan() { EXPECT_TRUE(block.guardsStand()); }

    GuardedBlock block;
    DctPlan* plan = nullptr;
};

// A kind as the number that it is in a record.
template <class Kind>
std::int32_t number(Kind kind) {
    return static_cast<std::int32_t>(kind);
}

// The lengths of the tests that build: powers of two, and the lengths 2^k + 1 that are accepted too.
inline std::vector<std::int32_t> builtLengths() {
    std::vector<std::int32_t> lengths;
    for (int k = 1; k <= 17; ++k) lengths.push_back(1 << k);
    for (int k = 3; k <= 17; ++k) lengths.push_back((1 << k) + 1);
    return lengths;
}

}  // namespace test
