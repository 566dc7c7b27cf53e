// The upper halves of the vector registers of x86-64. They are to be clean after a call, so that the caller's own code
// is not slowed down.
#pragma once

#include <cpuid.h>

#include <cstdint>

namespace test {

inline bool canAskForUpperHalves() {
    unsigned a, b, c, d;
    return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4) != 0;
}

inline void cleanUpperHalves() {
    if (canAskForUpperHalves()) __asm__ volatile("vzeroupper" ::: "memory");
}

// Whether the processor takes them to be in use.
inline bool upperHalvesAreInUse() {
    if (!canAskForUpperHalves()) return false;
    std::uint32_t low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return (low & 4) != 0;
}

}  // namespace test
