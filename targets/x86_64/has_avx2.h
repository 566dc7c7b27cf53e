// Whether the processor has AVX2, and the system saves its registers.
#pragma once

#include <cpuid.h>

#include <cstdint>

namespace zulg {

inline bool savesWideRegisters() {
    std::uint32_t low, high;
    asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (low & 6) == 6;  // the lower and the upper halves of the vector registers
}

inline bool hasAVX2() {
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d) || !(c & bit_OSXSAVE) || !(c & bit_AVX) || !savesWideRegisters()) return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & bit_AVX2);
}

}  // namespace zulg
