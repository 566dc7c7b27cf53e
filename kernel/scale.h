// Scale flags: what they mean in each direction, the factors as stored, and the choice between them.
#pragma once

#include "kernel/kernel.h"

namespace zulg {

// Which flags divide by N: DivFwdByN in forward families, DivInvByN in inverse ones, and both where a transform is its
// own inverse. `Flags` is the same type for all families of a direction, so that all kernels of one graph in that
// direction share a table of factors.
struct ForwardFlags {
    using Flags = ForwardFlags;
    static constexpr bool isDivided(std::int32_t flag) { return flag == DivFwdByN; }
};
struct InverseFlags {
    using Flags = InverseFlags;
    static constexpr bool isDivided(std::int32_t flag) { return flag == DivInvByN; }
};
struct InvolutionFlags {
    using Flags = InvolutionFlags;
    static constexpr bool isDivided(std::int32_t) { return true; }
};

// The stored factors of one length, in the type of the data. 1/N is rounded once. 1/sqrt(N) is the double that the
// graph states, rounded to that type.
template <class Number, int length, class Graph>
struct Scale {
    using Element = Number;

    static constexpr Element one = 1;
    static constexpr Element inverse = Element{1} / Element{length};
    static constexpr Element inverseRoot = static_cast<Element>(Graph::inverseRoot);
};

// The factors by flag. The flags are 1, 2, 4 and 8, so that half of a flag is an index into a table of five factors.
template <class Flags, class Factor>
struct FactorsByFlag {
    using Element = typename Factor::Element;

    static constexpr Element divided(std::int32_t flag) {
        return Flags::isDivided(flag) ? Factor::inverse : Factor::one;
    }
    static constexpr Element factors[] = {divided(DivFwdByN), divided(DivInvByN), Factor::inverseRoot, {}, Factor::one};
    static_assert(DivFwdByN == 1 && DivInvByN == 2 && DivBySqrtN == 4 && NoDivByAny == 8);
};

// The flags as bits of one word: bit `flag` is set. Kernels test it in place, where the compiler lays out the refusal.
constexpr std::uint32_t flagBits = 1 << DivFwdByN | 1 << DivInvByN | 1 << DivBySqrtN | 1 << NoDivByAny;
constexpr bool isFlag(std::int32_t flag) {
    return static_cast<std::uint32_t>(flag) <= NoDivByAny && (flagBits >> flag & 1) != 0;
}

// Puts a status into its register before the test that follows. A refusal is then a forward jump to the single return.
// Without the empty asm the compiler places the code of a refusal after the kernel, from where it jumps backwards to
// the return. The test of the machine code forbids backward jumps, since they would be loops.
ZULG_INLINE Status settled(Status status) {
#ifdef ZULG_GNU_CPP
    asm volatile("" : "+r"(status));
#endif
    return status;
}

// Checks the arguments in their order, then calls run(scale) with the factor of the flag.
template <class Flags, class Factor, class Run>
ZULG_INLINE Status withScale(const void* pSrc, const void* pDst, std::int32_t flag, const Run& run) {
    using Factors = FactorsByFlag<Flags, Factor>;
    const std::uint32_t bit = static_cast<std::uint32_t>(flag);
    Status status = settled(StatusNullPointer);
    if (pSrc != nullptr && pDst != nullptr) {
        status = settled(StatusFlagError);
        if (bit <= NoDivByAny && (flagBits >> bit & 1) != 0) {
            run(Factors::factors[flag >> 1]);
            status = StatusOk;
        }
    }
    return status;
}

}  // namespace zulg
