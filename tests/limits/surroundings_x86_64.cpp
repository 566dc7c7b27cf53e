// The convention of x86-64 on Linux.
#include <xmmintrin.h>

#include <array>

#include "tests/limits/surroundings.h"
#include "tests/limits/upper_halves.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint64_t, 7> kept;  // rbx, rbp, r12 to r15, and how far the stack pointer is off
    std::uint64_t flags;
    std::uint32_t mxcsr;
    std::uint16_t control, tags;
};

}  // namespace

// Loads the registers that a callee must keep with 0x11 times their number, and the flags with the direction flag
// clear; calls the routine with five arguments and writes what it finds then.
extern "C" std::int32_t callWithState(void* routine, State* state, const std::uintptr_t* arguments);
__asm__(R"(
    .text
    .globl callWithState
    .type callWithState, @function
callWithState:
    push %rbx
    push %rbp
    push %r12
    push %r13
    push %r14
    push %r15
    sub $72, %rsp
    mov %rsi, 16(%rsp)
    mov %rdi, %rax
    mov %rdx, %r10
    mov (%r10), %rdi
    mov 8(%r10), %rsi
    mov 16(%r10), %rdx
    mov 24(%r10), %rcx
    mov 32(%r10), %r8
    mov %rsp, 24(%rsp)
    mov $0x1111111111111111, %rbx
    mov $0x2222222222222222, %rbp
    mov $0x3333333333333333, %r12
    mov $0x4444444444444444, %r13
    mov $0x5555555555555555, %r14
    mov $0x6666666666666666, %r15
    call *%rax
    mov 16(%rsp), %r8
    mov %rbx, (%r8)
    mov %rbp, 8(%r8)
    mov %r12, 16(%r8)
    mov %r13, 24(%r8)
    mov %r14, 32(%r8)
    mov %r15, 40(%r8)
    mov %rsp, %r9
    sub 24(%rsp), %r9
    mov %r9, 48(%r8)
    pushf
    pop 56(%r8)
    cld
    stmxcsr 64(%r8)
    sub $32, %rsp
    fnstenv (%rsp)
    fldenv (%rsp)
    mov (%rsp), %r9w
    mov %r9w, 68(%r8)
    mov 8(%rsp), %r9w
    mov %r9w, 70(%r8)
    add $32, %rsp
    add $72, %rsp
    pop %r15
    pop %r14
    pop %r13
    pop %r12
    pop %rbp
    pop %rbx
    ret
    .size callWithState, .-callWithState

    .globl spoil
    .type spoil, @function
spoil:
    mov $1, %rbx
    mov $1, %r14
    fldz
    std
    xor %eax, %eax
    ret
    .size spoil, .-spoil
)");

const char* const whatSpoilChanges = " rbx r14 direction tags";

namespace {

constexpr std::array<const char*, 7> names = {" rbx", " rbp", " r12", " r13", " r14", " r15", " rsp"};
constexpr std::array<std::uint64_t, 7> due = {0x1111111111111111,
                                              0x2222222222222222,
                                              0x3333333333333333,
                                              0x4444444444444444,
                                              0x5555555555555555,
                                              0x6666666666666666,
                                              0};
constexpr std::uint32_t usual = 0x1F80, raised = 0x1D, status = 0x3F;
constexpr std::uint64_t directionFlag = 0x400;

// Rounding to nearest; towards zero; flushing of small numbers; rounding down.
constexpr std::uint32_t settings[] = {usual, usual | 0x6000, usual | 0x8040, usual | 0x2000};

bool wereInUse = false;

Looked callUnder(std::uint32_t mxcsr, std::uint16_t control, void* routine, Arguments arguments) {
    arguments.resize(mostArguments);
    State found{};
    Looked looked;
    cleanUpperHalves();
    __asm__ volatile("fldcw %0" : : "m"(control));
    _mm_setcsr(mxcsr);
    looked.result = callWithState(routine, &found, arguments.data());
    _mm_setcsr(usual);
    __asm__ volatile("fninit");
    wereInUse = upperHalvesAreInUse();
    for (std::size_t i = 0; i < names.size(); ++i) looked.changed += found.kept[i] == due[i] ? "" : names[i];
    if ((found.flags & directionFlag) != 0) looked.changed += " direction";
    if ((found.mxcsr & ~status) != (mxcsr & ~status)) looked.changed += " mxcsr";
    if ((found.mxcsr & raised) != 0) looked.changed += " exceptions";
    if (found.control != control) looked.changed += " control";
    if (found.tags != 0xFFFF) looked.changed += " tags";
    return looked;
}

}  // namespace

int waysToCall() { return std::size(settings); }

Looked callAndLook(void* routine, const Arguments& arguments, int way) {
    return callUnder(settings[way], 0x037F, routine, arguments);
}

Looked callUnmasked(void* routine, const Arguments& arguments) { return callUnder(0x1100, 0x0362, routine, arguments); }

bool upperHalvesWereInUse() { return wereInUse; }

}  // namespace test
