// Comparing and printing the four slots, and what they hold after the fallback.
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

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

// The address that the loader gives for a name of the language's runtime.
inline void* addressInRuntime(const char* name) {
#ifdef _WIN32
    return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("msvcrt.dll"), name));
#else
    return dlsym(RTLD_DEFAULT, name);
#endif
}

template <class Routine>
void takeAddress(Routine*& routine, const char* name) {
    routine = reinterpret_cast<Routine*>(addressInRuntime(name));
}

inline zulg::AllocatorSlots slotsOfTheRuntime() {
    zulg::AllocatorSlots slots;
    takeAddress(slots.mallocLike, "malloc");
    takeAddress(slots.callocLike, "calloc");
    takeAddress(slots.reallocLike, "realloc");
    takeAddress(slots.freeLike, "free");
    return slots;
}

}  // namespace test
