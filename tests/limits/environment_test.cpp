// What a call of any routine must leave as it was, by the convention of x86-64 on Linux: the registers that belong to
// the caller, the stack pointer, the control words of both floating-point units, the tag word, the direction flag. The
// upper halves of the vector registers are clean after it, so that the caller's own code is not slowed down; but not
// after Walsh-Hadamard transforms of 8 points and more, which are compiled for size, where GCC does not clear them. And
// no call raises a floating-point exception other than inexact on finite data of moderate size.
#include <cpuid.h>
#include <xmmintrin.h>

#include <array>
#include <cstdint>
#include <cstring>

#include "tests/dct4/planned.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

// What the routine below finds.
struct State {
    std::array<std::uint64_t, 7> kept;  // rbx, rbp, r12 to r15, and the stack pointer
    std::uint64_t flags;
    std::uint32_t mxcsr;
    std::uint16_t control, tags;
};

}  // namespace

// Loads the registers that a callee must keep with 0x11 times their number, the stack pointer with what it is, and the
// flags with the direction flag clear; calls routine(a, b, c, d) and writes what it finds then.
extern "C" std::int32_t callAndLook(void* routine, State* state, const void* a, const void* b, std::uint64_t c,
                                    const void* d);
__asm__(R"(
    .text
    .globl callAndLook
    .type callAndLook, @function
callAndLook:
    push %rbx
    push %rbp
    push %r12
    push %r13
    push %r14
    push %r15
    sub $72, %rsp
    mov %rsi, 16(%rsp)
    mov %rdi, %rax
    mov %rdx, %rdi
    mov %rcx, %rsi
    mov %r8, %rdx
    mov %r9, %rcx
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
    .size callAndLook, .-callAndLook
)");

namespace {

constexpr State due = {{0x1111111111111111, 0x2222222222222222, 0x3333333333333333, 0x4444444444444444,
                        0x5555555555555555, 0x6666666666666666, 0},
                       0,
                       0,
                       0x037F,
                       0xFFFF};
constexpr std::uint32_t usual = 0x1F80, status = 0x3F;
constexpr std::uint64_t directionFlag = 0x400;

bool canAskForUpperHalves() {
    unsigned a, b, c, d;
    return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4) != 0;
}

// Whether the processor takes the upper halves of the vector registers to be in use.
bool upperHalvesAreInUse() {
    std::uint32_t low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return (low & 4) != 0;
}

class Surroundings : public KernelTest {
protected:
    // A call by its four arguments: every routine has at most that many beside the order of a dispatcher.
    State look(void* routine, const void* pSrc, void* pDst, std::uint64_t third, const void* fourth) const {
        State found{};
        if (canAskForUpperHalves()) __asm__ volatile("vzeroupper" ::: "memory");
        EXPECT_EQ(callAndLook(routine, &found, pSrc, pDst, third, fourth), StatusOk);
        if (canAskForUpperHalves()) {
            EXPECT_FALSE(upperHalvesAreInUse());
        }
        return found;
    }
    template <class Element>
    State lookAtCall(const std::vector<Element>& source, std::vector<Element>& found) {
        if (transform.takes == Takes::Plan) {
            Planned<Element> planned(transform.length);
            return look(reinterpret_cast<void*>(dct4Routines<Element>().run), source.data(), found.data(),
                        reinterpret_cast<std::uint64_t>(planned.plan), nullptr);
        }
        std::vector<Element> buffer(static_cast<std::size_t>(bufferElements(transform.order)) + 1);
        void* const given = transform.takes == Takes::FlagAndNullBuffer ? nullptr : buffer.data();
        return look(requiredAddress(transform.kernelName()), source.data(), found.data(), DivBySqrtN, given);
    }
};

TEST_P(Surroundings, AreAsTheyWere) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        const auto source = subject.randomSource();
        auto destination = subject.destination();
        for (std::uint32_t control : {usual, usual | 0x6000, usual | 0x8040, usual | 0x2000}) {
            _mm_setcsr(control);
            const State found = lookAtCall(source, destination);
            _mm_setcsr(usual);
            EXPECT_EQ(found.kept, due.kept);
            EXPECT_EQ(found.mxcsr & ~status, control & ~status) << "rounding, masks, flushing";
            EXPECT_EQ(found.flags & directionFlag, 0u);
            EXPECT_EQ(found.control, due.control);
            EXPECT_EQ(found.tags, due.tags);
        }
    });
}

// Exceptions are not masked but for inexact and denormal operands: one that is raised ends the program.
TEST_P(Surroundings, SeeNoExceptionButInexact) {
    withSubject([&]<class Element>(Subject<Element>& subject) {
        auto destination = subject.destination();
        const auto zeros = subject.zeroSource();
        for (int round = 0; round < 4; ++round) {
            const auto source = round == 0 ? zeros : subject.randomSource();
            _mm_setcsr(0x1100);
            const State found = lookAtCall(source, destination);
            _mm_setcsr(usual);
            EXPECT_EQ(found.mxcsr & 0x1D, 0u) << "invalid, zero divide, overflow, underflow";
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, Surroundings, testing::ValuesIn(allTransforms()), testName);

// The routine that looks must see what it looks for.
extern "C" std::int32_t spoil();
__asm__(R"(
    .text
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

TEST(SurroundingsOf, ARoutineThatSpoilsThemAreSeen) {
    State found{};
    callAndLook(reinterpret_cast<void*>(spoil), &found, nullptr, nullptr, 0, nullptr);
    __asm__ volatile("fninit");
    EXPECT_NE(found.kept[0], due.kept[0]);
    EXPECT_NE(found.kept[4], due.kept[4]);
    EXPECT_EQ(found.kept[2], due.kept[2]);
    EXPECT_NE(found.flags & directionFlag, 0u);
    EXPECT_NE(found.tags, due.tags);
}

}  // namespace
}  // namespace test
