// The convention of 64-bit Windows: eight registers and the lower halves of xmm6 to xmm15 belong to the caller.
#include <array>

#include "tests/limits/x86_64_units.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint64_t, 9> kept;  // rbx, rbp, rdi, rsi, r12 to r15, and how far the stack pointer is off
    std::uint64_t flags;
    std::array<std::uint64_t, 20> vectors;  // xmm6 to xmm15
    Units units;
};

}  // namespace

// Loads the general registers that a callee must keep with 0x11 times their number, and the vector registers with what
// is after the five arguments; calls the routine and writes what it finds then.
extern "C" std::int32_t callWithState(void* routine, State* state, const std::uintptr_t* argumentsAndVectors);
__asm__(R"(
    .text
    .globl callWithState
callWithState:
    push %rbx
    push %rbp
    push %rdi
    push %rsi
    push %r12
    push %r13
    push %r14
    push %r15
    sub $232, %rsp
    movups %xmm6, 64(%rsp)
    movups %xmm7, 80(%rsp)
    movups %xmm8, 96(%rsp)
    movups %xmm9, 112(%rsp)
    movups %xmm10, 128(%rsp)
    movups %xmm11, 144(%rsp)
    movups %xmm12, 160(%rsp)
    movups %xmm13, 176(%rsp)
    movups %xmm14, 192(%rsp)
    movups %xmm15, 208(%rsp)
    mov %rdx, 40(%rsp)
    mov %rcx, %rax
    mov %r8, %r10
    movups 40(%r10), %xmm6
    movups 56(%r10), %xmm7
    movups 72(%r10), %xmm8
    movups 88(%r10), %xmm9
    movups 104(%r10), %xmm10
    movups 120(%r10), %xmm11
    movups 136(%r10), %xmm12
    movups 152(%r10), %xmm13
    movups 168(%r10), %xmm14
    movups 184(%r10), %xmm15
    mov 32(%r10), %r11
    mov %r11, 32(%rsp)
    mov (%r10), %rcx
    mov 8(%r10), %rdx
    mov 16(%r10), %r8
    mov 24(%r10), %r9
    mov %rsp, 48(%rsp)
    mov $0x1111111111111111, %rbx
    mov $0x2222222222222222, %rbp
    mov $0x3333333333333333, %rdi
    mov $0x4444444444444444, %rsi
    mov $0x5555555555555555, %r12
    mov $0x6666666666666666, %r13
    mov $0x7777777777777777, %r14
    mov $0x8888888888888888, %r15
    call *%rax
    mov 40(%rsp), %r8
    mov %rbx, (%r8)
    mov %rbp, 8(%r8)
    mov %rdi, 16(%r8)
    mov %rsi, 24(%r8)
    mov %r12, 32(%r8)
    mov %r13, 40(%r8)
    mov %r14, 48(%r8)
    mov %r15, 56(%r8)
    mov %rsp, %r9
    sub 48(%rsp), %r9
    mov %r9, 64(%r8)
    pushf
    pop 72(%r8)
    cld
    movups %xmm6, 80(%r8)
    movups %xmm7, 96(%r8)
    movups %xmm8, 112(%r8)
    movups %xmm9, 128(%r8)
    movups %xmm10, 144(%r8)
    movups %xmm11, 160(%r8)
    movups %xmm12, 176(%r8)
    movups %xmm13, 192(%r8)
    movups %xmm14, 208(%r8)
    movups %xmm15, 224(%r8)
    stmxcsr 240(%r8)
    fnstenv (%rsp)
    fldenv (%rsp)
    mov (%rsp), %r9w
    mov %r9w, 244(%r8)
    mov 8(%rsp), %r9w
    mov %r9w, 246(%r8)
    movups 64(%rsp), %xmm6
    movups 80(%rsp), %xmm7
    movups 96(%rsp), %xmm8
    movups 112(%rsp), %xmm9
    movups 128(%rsp), %xmm10
    movups 144(%rsp), %xmm11
    movups 160(%rsp), %xmm12
    movups 176(%rsp), %xmm13
    movups 192(%rsp), %xmm14
    movups 208(%rsp), %xmm15
    add $232, %rsp
    pop %r15
    pop %r14
    pop %r13
    pop %r12
    pop %rsi
    pop %rdi
    pop %rbp
    pop %rbx
    ret

    .globl spoil
spoil:
    mov $1, %rdi
    mov $1, %r15
    xorps %xmm9, %xmm9
    fldz
    std
    xor %eax, %eax
    ret
)");

const char* const whatSpoilChanges = " rdi r15 xmm9 direction tags";

namespace {

constexpr std::array<const char*, 9> names = {" rbx", " rbp", " rdi", " rsi", " r12", " r13", " r14", " r15", " rsp"};
constexpr std::uint64_t ones = 0x1111111111111111;

}  // namespace

Looked callUnder(Units due, void* routine, Arguments arguments) {
    arguments.resize(mostArguments);
    State found{};
    for (std::size_t i = 0; i < found.vectors.size(); ++i) arguments.push_back(0x123456789ABCDEF0 + i);
    Looked looked;
    setUnits(due);
    looked.result = callWithState(routine, &found, arguments.data());
    const std::string units = unitsChanged(due, found.units, found.flags);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (found.kept[i] != (i == 8 ? 0 : ones * (i + 1))) looked.changed += names[i];
    }
    for (std::size_t i = 0; i < found.vectors.size(); i += 2) {
        const std::uintptr_t* const own = &arguments[mostArguments + i];
        if (found.vectors[i] != own[0] || found.vectors[i + 1] != own[1])
            looked.changed += " xmm" + std::to_string(6 + i / 2);
    }
    looked.changed += units;
    return looked;
}

}  // namespace test
