// The upper halves of the vector registers are to be clean after a call, so that the caller's own code is not slowed
// down.
#include "tests/limits/x86_64_units.h"

#include <cpuid.h>
#include <xmmintrin.h>

#include <iterator>

namespace test {
namespace {

constexpr std::uint32_t usual = 0x1F80, raised = 0x1D, status = 0x3F;
constexpr std::uint16_t usualControl = 0x037F, noneInUse = 0xFFFF;
constexpr std::uint64_t directionFlag = 0x400;

// Rounding to nearest; towards zero; flushing of small numbers; rounding down.
constexpr std::uint32_t settings[] = {usual, usual | 0x6000, usual | 0x8040, usual | 0x2000};

bool wereInUse = false;

bool canAskForUpperHalves() {
    unsigned a, b, c, d;
    return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4) != 0;
}

// Whether the processor takes them to be in use.
bool upperHalvesAreInUse() {
    if (!canAskForUpperHalves()) return false;
    std::uint32_t low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return (low & 4) != 0;
}

}  // namespace

void setUnits(Units due) {
    if (canAskForUpperHalves()) __asm__ volatile("vzeroupper" ::: "memory");
    __asm__ volatile("fldcw %0" : : "m"(due.control));
    _mm_setcsr(due.mxcsr);
}

std::string unitsChanged(Units due, Units found, std::uint64_t flags) {
    wereInUse = upperHalvesAreInUse();
    _mm_setcsr(usual);
    __asm__ volatile("fninit");
    std::string changed;
    if ((flags & directionFlag) != 0) changed += " direction";
    if ((found.mxcsr & ~status) != (due.mxcsr & ~status)) changed += " mxcsr";
    if ((found.mxcsr & raised) != 0) changed += " exceptions";
    if (found.control != due.control) changed += " control";
    if (found.tags != due.tags) changed += " tags";
    return changed;
}

int waysToCall() { return std::size(settings); }

Looked callAndLook(void* routine, const Arguments& arguments, int way) {
    return callUnder({settings[way], usualControl, noneInUse}, routine, arguments);
}

Looked callUnmasked(void* routine, const Arguments& arguments) {
    return callUnder({0x1100, 0x0362, noneInUse}, routine, arguments);
}

bool upperHalvesWereInUse() { return wereInUse; }

}  // namespace test
