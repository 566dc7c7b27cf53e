// The memory of a plan: one block, given out from the bottom up. The first machine word of the block is the cursor, the
// address of the next free byte; the address of the block is all that a record needs to hold. The arena does not know
// where the block ends: that it is long enough comes from the size computation alone. Releasing is arithmetic on the
// cursor and nothing else; only the sum counts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "dct4/wrap.h"

namespace zulg {

// Stands for the block and is never defined. It may lie at any address.
struct PlanArena;

constexpr std::int32_t roundUp32(std::int32_t n) { return wrapSum(n, 31) & ~31; }

// Where the first record goes: a multiple of 32, at least 33 bytes in. On a 32-bit target the remainder is that of the
// address taken as a signed number, so that above the 2 GiB line the distance goes up to 95. With wide addresses it
// stays within 64.
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
    arenaSetCursor(arena, firstRecordAddress(reinterpret_cast<std::uintptr_t>(block)));
    return arena;
}

// The old cursor. Never fails, never clears.
inline void* arenaAlloc(PlanArena* arena, std::int32_t n) {
    const std::uintptr_t cursor = arenaCursor(arena);
    arenaSetCursor(arena, cursor + static_cast<std::uintptr_t>(static_cast<std::intptr_t>(roundUp32(n))));
    return reinterpret_cast<void*>(cursor);
}

// The object is named for the reader; it is not looked at.
inline void arenaRelease(PlanArena* arena, const void*, std::int32_t n) {
    arenaSetCursor(arena, arenaCursor(arena) - static_cast<std::uintptr_t>(static_cast<std::intptr_t>(roundUp32(n))));
}

}  // namespace zulg
