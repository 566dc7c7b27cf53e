// The allocator hook: four routines like malloc, calloc, realloc and free, which an optional companion library may
// provide. Started by the load entry; the companion is looked for at the first use. No exported routine allocates
// through it. Its state is the only writable data of the library.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zulg {

struct AllocatorSlots {
    void* (*mallocLike)(std::size_t size);
    void* (*callocLike)(std::size_t count, std::size_t size);
    void* (*reallocLike)(void* block, std::size_t size);
    void (*freeLike)(void* block);
};

// All zero until the load entry has run. The versions are those that the companion states, 0 where it states none.
struct AllocatorHook {
    AllocatorSlots slots;
    std::uint32_t boundFlag;
    std::int32_t hookVersion, hookMinVersion;
};

extern AllocatorHook allocatorHook;

// What the slots hold from loading up to the first use: each binds the hook unless that was done, then calls through
// its own slot.
extern const AllocatorSlots trampolines;

}  // namespace zulg
