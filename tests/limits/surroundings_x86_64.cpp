// The convention of x86-64 on Linux.
#include <array>

#include "tests/limits/x86_64_units.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint64_t, 7> kept;  // rbx, rbp, r12 to r15, and how far the stack pointer is off
    std::uint64_t flags;
    Units units;
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
constexpr std::array<std::uint64_t, 7> expected = {0x1111111111111111,
                                                   0x2222222222222222,
                                                   0x3333333333333333,
                                                   0x4444444444444444,
                                                   0x5555555555555555,
                                                   0x6666666666666666,
                                                   0};

}  // namespace

Looked callUnder(Units due, void* routine, Arguments arguments) {
    arguments.resize(mostArguments);
    State found{};
    Looked looked;
    setUnits(due);
    looked.result = callWithState(routine, &found, arguments.data());
    const std::string units = unitsChanged(due, found.units, found.flags);
    for (std::size_t i = 0; i < names.size(); ++i) looked.changed += found.kept[i] == expected[i] ? "" : names[i];
    looked.changed += units;
    return looked;
}

}  // namespace test
