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

// Sets the x87 registers to round to so many bits, 64, 53 or 24, while it lives. Where kernels use other registers,
// nothing changes, nor does anything for 0 bits.
class RegistersOfBits {
public:
    explicit RegistersOfBits(int bits) {
        __asm__ volatile("fnstcw %0" : "=m"(before));
        const int precision = bits == 24 ? 0x0000 : bits == 53 ? 0x0200 : bits == 64 ? 0x0300 : before & 0x0300;
        set(static_cast<std::uint16_t>((before & ~0x0300) | precision));
    }
    // What else has been set in the meantime is kept.
    ~RegistersOfBits() {
        std::uint16_t now;
        __asm__ volatile("fnstcw %0" : "=m"(now));
        set(static_cast<std::uint16_t>((now & ~0x0300) | (before & 0x0300)));
    }
    RegistersOfBits(const RegistersOfBits&) = delete;
    RegistersOfBits& operator=(const RegistersOfBits&) = delete;

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

class RegistersOfBits {
public:
    explicit RegistersOfBits(int) {}
};

#endif

// Registers that round to double.
class DoublePrecisionRegisters : RegistersOfBits {
public:
    DoublePrecisionRegisters() : RegistersOfBits(53) {}
};

}  // namespace test
