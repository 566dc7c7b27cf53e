// The memory of a plan: one block, given out from the bottom up. The first machine word of the block is the cursor, the
// address of the next free byte; the address of the block is all that a record needs to hold. The arena does not know
// where the block ends: only the size computation makes sure that it is long enough. Releasing is arithmetic on the
// cursor and nothing else, so that the order of releases does not matter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "dct4/wrap.h"

namespace zulg {

// The type of the block, which is never defined. A block may be at any address.
struct PlanArena;

constexpr std::int32_t roundUp32(std::int32_t n) { return wrapSum(n, 31) & ~31; }

// The address of the first record: a multiple of 32, at least 33 bytes after the start of the block. On a 32-bit target
// the address is divided as a signed number, so that above 2 GiB the distance is up to 95 bytes. With 64-bit addresses
// it is at most 64.
constexpr std::uint32_t firstRecordAddress(std::uint32_t block) {
    const std::int32_t remainder = static_cast<std::int32_t>(block) % 32;
    return block + 64 - static_cast<std::uint32_t>(remainder);
}
constexpr std::uint64_t firstRecordAddress(std::uint64_t block) { return block + 64 - block % 32; }

inline std::uintptr_t arenaCursor(const PlanArena* arena) {
    std::uintptr_t cursor;
    std::memcpy(&cursor, arena, sizeof cursor);
    return cursor;
}

inline void arenaSetCursor(PlanArena* arena, std::uintptr_t cursor) { std::memcpy(arena, &cursor, sizeof cursor); }

inline PlanArena* arenaInit(std::uint8_t* block) {
    const auto arena = reinterpret_cast<PlanArena*>(block);
    // A compiler may have a third type for addresses, as wide as one of these two.
    using Address = std::conditional_t<sizeof(void*) == sizeof(std::uint32_t), std::uint32_t, std::uint64_t>;
    arenaSetCursor(arena, firstRecordAddress(static_cast<Address>(reinterpret_cast<std::uintptr_t>(block))));
    return arena;
}

// Returns the old cursor. It cannot fail, and it does not clear the memory.
inline void* arenaAlloc(PlanArena* arena, std::int32_t n) {
    const std::uintptr_t cursor = arenaCursor(arena);
    arenaSetCursor(arena, cursor + static_cast<std::uintptr_t>(static_cast<std::intptr_t>(roundUp32(n))));
    return reinterpret_cast<void*>(cursor);
}

// The object is named for the reader and is ignored.
inline void arenaRelease(PlanArena* arena, const void*, std::int32_t n) {
    arenaSetCursor(arena, arenaCursor(arena) - static_cast<std::uintptr_t>(static_cast<std::intptr_t>(roundUp32(n))));
}

}  // namespace zulg
