// Comparing and printing the four slots.
#pragma once

#include <cstdlib>
#include <ostream>

#include "boundary/allocator_hook.h"

namespace zulg {

inline bool operator==(const AllocatorSlots& a, const AllocatorSlots& b) {
    return a.mallocLike == b.mallocLike && a.callocLike == b.callocLike && a.reallocLike == b.reallocLike &&
           a.freeLike == b.freeLike;
}

inline std::ostream& operator<<(std::ostream& out, const AllocatorSlots& slots) {
    return out << reinterpret_cast<void*>(slots.mallocLike) << ' ' << reinterpret_cast<void*>(slots.callocLike) << ' '
               << reinterpret_cast<void*>(slots.reallocLike) << ' ' << reinterpret_cast<void*>(slots.freeLike);
}

}  // namespace zulg

namespace test {

inline const zulg::AllocatorSlots runtimeRoutines = {std::malloc, std::calloc, std::realloc, std::free};

}  // namespace test
