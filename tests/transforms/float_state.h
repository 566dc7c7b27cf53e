// The processor's floating-point settings, as a caller may have set them.
#pragma once

#include <cfenv>
#include <cstdint>

namespace test {

#if defined(__i386__) || defined(__x86_64__)

struct FloatState {
    std::uint16_t control;  // of the x87 unit
    std::uint16_t tags;     // which of its registers are in use
};

inline FloatState floatState() {
    std::uint32_t environment[7];
    __asm__ volatile("fnstenv %0\n\tfldenv %0" : "=m"(environment));
    return {static_cast<std::uint16_t>(environment[0]), static_cast<std::uint16_t>(environment[2])};
}

// Sets the x87 registers to round to double while it lives. Where kernels use other registers, nothing changes.
class DoublePrecisionRegisters {
public:
    DoublePrecisionRegisters() {
        __asm__ volatile("fnstcw %0" : "=m"(before));
        set(static_cast<std::uint16_t>((before & ~0x0300) | 0x0200));
    }
    ~DoublePrecisionRegisters() { set(before); }
    DoublePrecisionRegisters(const DoublePrecisionRegisters&) = delete;
    DoublePrecisionRegisters& operator=(const DoublePrecisionRegisters&) = delete;

private:
    static void set(std::uint16_t control) { __asm__ volatile("fldcw %0" : : "m"(control)); }
    std::uint16_t before;
};

#else

// Other processors have no registers wider than a double. What a caller can set is the direction of rounding.
struct FloatState {
    int control;
    int tags;
};

inline FloatState floatState() { return {std::fegetround(), 0}; }

class DoublePrecisionRegisters {
public:
    DoublePrecisionRegisters() {}
};

#endif

}  // namespace test
