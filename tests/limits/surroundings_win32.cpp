// The convention of 32-bit Windows: ebx, ebp, esi and edi belong to the caller, the routine takes its arguments from
// the stack, and the stack may be aligned to 4 bytes only.
#include <xmmintrin.h>

#include <array>

#include "tests/limits/surroundings.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint32_t, 4> kept;  // ebx, ebp, esi, edi
    std::int32_t stack;                 // how far the stack pointer is off, beside the arguments
    std::uint32_t flags, mxcsr;
    std::uint16_t control, status, tags;
};

}  // namespace

// Loads the registers that a callee must keep with 0x11111111 times their number, puts the arguments on the stack so
// that it ends `misaligned` bytes below a multiple of 16, calls the routine and writes what it finds then.
extern "C" std::int32_t callWithState(void* routine, State* state, const std::uintptr_t* arguments, std::size_t count,
                                      std::size_t misaligned);
__asm__(R"(
    .text
    .globl _callWithState
_callWithState:
    push %ebp
    push %ebx
    push %esi
    push %edi
    mov %esp, ownStack
    mov 20(%esp), %eax
    mov 24(%esp), %edx
    mov %edx, stateOfCall
    mov 28(%esp), %edx
    mov 32(%esp), %ecx
    mov 36(%esp), %ebx
    and $-16, %esp
    sub $64, %esp
    sub %ebx, %esp
    lea (%esp,%ecx,4), %esp
    mov %esp, stackBefore
1:
    test %ecx, %ecx
    jz 2f
    pushl -4(%edx,%ecx,4)
    dec %ecx
    jmp 1b
2:
    mov $0x11111111, %ebx
    mov $0x22222222, %ebp
    mov $0x33333333, %esi
    mov $0x44444444, %edi
    call *%eax
    mov stateOfCall, %ecx
    mov %ebx, (%ecx)
    mov %ebp, 4(%ecx)
    mov %esi, 8(%ecx)
    mov %edi, 12(%ecx)
    mov %esp, %edx
    sub stackBefore, %edx
    mov %edx, 16(%ecx)
    mov ownStack, %esp
    pushf
    pop 20(%ecx)
    cld
    stmxcsr 24(%ecx)
    sub $32, %esp
    fnstenv (%esp)
    mov (%esp), %dx
    mov %dx, 28(%ecx)
    mov 4(%esp), %dx
    mov %dx, 30(%ecx)
    mov 8(%esp), %dx
    mov %dx, 32(%ecx)
    add $32, %esp
    fninit
    pop %edi
    pop %esi
    pop %ebx
    pop %ebp
    ret

    .globl "_spoil@0"
"_spoil@0":
    mov $1, %ebx
    mov $1, %edi
    fldz
    std
    xor %eax, %eax
    ret

    .lcomm ownStack, 4
    .lcomm stackBefore, 4
    .lcomm stateOfCall, 4
)");

const char* const whatSpoilChanges = " ebx edi direction tags";

namespace {

constexpr std::array<const char*, 4> names = {" ebx", " ebp", " esi", " edi"};
constexpr std::uint32_t usualVectors = 0x1F80, directionFlag = 0x400;

// Registers of 64, 53 and 24 bits.
constexpr int precisions[] = {0x0300, 0x0200, 0x0000};
// To nearest, down, up, towards zero.
constexpr int directions[] = {0x0000, 0x0400, 0x0800, 0x0C00};
constexpr int masked = 0x7F, maskedButFour = 0x62;
constexpr std::uint16_t raised = 0x5D;  // invalid, zero divide, overflow, underflow, and a fault of the register stack

Looked callUnder(int control, void* routine, const Arguments& arguments, std::size_t misaligned) {
    State found{};
    Looked looked;
    const auto due = static_cast<std::uint16_t>(control);
    __asm__ volatile("fninit\n\tfldcw %0" : : "m"(due));
    looked.result = callWithState(routine, &found, arguments.data(), arguments.size(), misaligned);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (found.kept[i] != 0x11111111 * (i + 1)) looked.changed += names[i];
    }
    if (found.stack != 0) looked.changed += " esp";
    if ((found.flags & directionFlag) != 0) looked.changed += " direction";
    if (found.mxcsr != usualVectors) looked.changed += " mxcsr";
    if ((found.status & raised) != 0) looked.changed += " exceptions";
    if (found.control != due) looked.changed += " control";
    if (found.tags != 0xFFFF) looked.changed += " tags";
    return looked;
}

}  // namespace

// Each precision with each direction, and with each alignment of the stack.
int waysToCall() { return 3 * 4; }

Looked callAndLook(void* routine, const Arguments& arguments, int way) {
    return callUnder(masked | precisions[way % 3] | directions[way / 3 % 4], routine, arguments,
                     static_cast<std::size_t>(way % 4 * 4));
}

Looked callUnmasked(void* routine, const Arguments& arguments) {
    return callUnder(maskedButFour | 0x0300, routine, arguments, 4);
}

bool upperHalvesWereInUse() { return false; }

}  // namespace test
