// The convention of 64-bit ARM: x19 to x29 and d8 to d15 belong to the caller. The processor need not have traps for
// exceptions, so that the flags of those that were raised are looked at.
#include <array>

#include "tests/limits/surroundings.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint64_t, 11> kept;    // x19 to x29
    std::uint64_t stack;                   // how far the stack pointer is off
    std::array<std::uint64_t, 8> vectors;  // d8 to d15
    std::uint64_t control, status;
};

}  // namespace

// Loads the registers that a callee must keep with their number times 0x101, calls the routine with five arguments and
// writes what it finds then.
extern "C" std::int32_t callWithState(void* routine, State* state, const std::uintptr_t* arguments);
__asm__(R"(
    .text
    .globl callWithState
    .type callWithState, %function
callWithState:
    stp x29, x30, [sp, #-192]!
    stp x19, x20, [sp, #16]
    stp x21, x22, [sp, #32]
    stp x23, x24, [sp, #48]
    stp x25, x26, [sp, #64]
    stp x27, x28, [sp, #80]
    stp d8, d9, [sp, #96]
    stp d10, d11, [sp, #112]
    stp d12, d13, [sp, #128]
    stp d14, d15, [sp, #144]
    str x1, [sp, #160]
    mov x9, sp
    str x9, [sp, #168]
    mov x9, x0
    mov x10, x2
    mov x19, #0x1313
    mov x20, #0x1414
    mov x21, #0x1515
    mov x22, #0x1616
    mov x23, #0x1717
    mov x24, #0x1818
    mov x25, #0x1919
    mov x26, #0x1A1A
    mov x27, #0x1B1B
    mov x28, #0x1C1C
    mov x29, #0x1D1D
    mov x11, #0x0808
    fmov d8, x11
    mov x11, #0x0909
    fmov d9, x11
    mov x11, #0x0A0A
    fmov d10, x11
    mov x11, #0x0B0B
    fmov d11, x11
    mov x11, #0x0C0C
    fmov d12, x11
    mov x11, #0x0D0D
    fmov d13, x11
    mov x11, #0x0E0E
    fmov d14, x11
    mov x11, #0x0F0F
    fmov d15, x11
    ldp x0, x1, [x10]
    ldp x2, x3, [x10, #16]
    ldr x4, [x10, #32]
    blr x9
    ldr x10, [sp, #160]
    stp x19, x20, [x10]
    stp x21, x22, [x10, #16]
    stp x23, x24, [x10, #32]
    stp x25, x26, [x10, #48]
    stp x27, x28, [x10, #64]
    mov x11, sp
    ldr x12, [sp, #168]
    sub x11, x11, x12
    stp x29, x11, [x10, #80]
    stp d8, d9, [x10, #96]
    stp d10, d11, [x10, #112]
    stp d12, d13, [x10, #128]
    stp d14, d15, [x10, #144]
    mrs x11, fpcr
    mrs x12, fpsr
    stp x11, x12, [x10, #160]
    ldp x19, x20, [sp, #16]
    ldp x21, x22, [sp, #32]
    ldp x23, x24, [sp, #48]
    ldp x25, x26, [sp, #64]
    ldp x27, x28, [sp, #80]
    ldp d8, d9, [sp, #96]
    ldp d10, d11, [sp, #112]
    ldp d12, d13, [sp, #128]
    ldp d14, d15, [sp, #144]
    ldp x29, x30, [sp], #192
    ret
    .size callWithState, .-callWithState

    .globl spoil
    .type spoil, %function
spoil:
    mov x19, #1
    mov x28, #1
    fmov d12, x19
    mov x0, #0xC00000
    msr fpcr, x0
    mov x0, #0
    ret
    .size spoil, .-spoil
)");

const char* const whatSpoilChanges = " x19 x28 d12 fpcr";

namespace {

constexpr std::uint64_t step = 0x101;
constexpr std::uint64_t raised = 0xF;  // invalid, zero divide, overflow, underflow

// To nearest, up, down, towards zero; small numbers flushed; every not-a-number the same.
constexpr std::uint64_t settings[] = {0, 0x400000, 0x800000, 0xC00000, 0x1000000, 0x2000000};

Looked callUnder(std::uint64_t control, void* routine, Arguments arguments) {
    arguments.resize(mostArguments);
    State found{};
    Looked looked;
    __asm__ volatile("msr fpcr, %0\n\tmsr fpsr, xzr" : : "r"(control));
    looked.result = callWithState(routine, &found, arguments.data());
    __asm__ volatile("msr fpcr, xzr");
    for (std::size_t i = 0; i < found.kept.size(); ++i) {
        if (found.kept[i] != step * (19 + i)) looked.changed += " x" + std::to_string(19 + i);
    }
    if (found.stack != 0) looked.changed += " sp";
    for (std::size_t i = 0; i < found.vectors.size(); ++i) {
        if (found.vectors[i] != step * (8 + i)) looked.changed += " d" + std::to_string(8 + i);
    }
    if (found.control != control) looked.changed += " fpcr";
    if ((found.status & raised) != 0) looked.changed += " exceptions";
    return looked;
}

}  // namespace

int waysToCall() { return std::size(settings); }

Looked callAndLook(void* routine, const Arguments& arguments, int way) {
    return callUnder(settings[way], routine, arguments);
}

Looked callUnmasked(void* routine, const Arguments& arguments) { return callUnder(0, routine, arguments); }

bool upperHalvesWereInUse() { return false; }

}  // namespace test
