// Scale flags: what they mean in each direction, the factors as stored, and the choice between them.
#pragma once

#include <type_traits>

#include "frame/kernel.h"

namespace zulg {

// What the flags mean: forward families divide by N at one flag, inverse ones at the other, transforms that are their
// own inverse at both. `Flags` is the same type for all families of a direction, and so is what depends on it.
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

// The stored factors of one length: of the width of the data, 1/N exact and rounded once, 1/sqrt(N) the double of the
// graph rounded on.
template <class Element, int length, class Graph>
struct Scale {
    static constexpr Element one = 1;
    static constexpr Element inverse = Element{1} / Element{length};
    static constexpr Element inverseRoot = static_cast<Element>(Graph::inverseRoot);
};

// The factors by flag. A flag is a single bit, so that half of it is a place in a short table.
template <class Flags, class Factor>
struct FactorsByFlag {
    using Element = std::remove_const_t<decltype(Factor::one)>;

    static constexpr Element divided(std::int32_t flag) { return Flags::isDivided(flag) ? Factor::inverse : Factor::one; }
    static constexpr Element factors[] = {divided(DivFwdByN), divided(DivInvByN), Factor::inverseRoot, {}, Factor::one};
    static_assert(DivFwdByN == 1 && DivInvByN == 2 && DivBySqrtN == 4 && NoDivByAny == 8);

    static constexpr std::uint32_t flags = 1 << DivFwdByN | 1 << DivInvByN | 1 << DivBySqrtN | 1 << NoDivByAny;
};

// A status that is in its register before what comes next: a refusal is then a jump forward to the one return, and no
// code of its own behind the kernel, which would jump back.
ZULG_INLINE Status settled(Status status) {
    asm volatile("" : "+r"(status));
    return status;
}

// Checks the arguments in their order and calls run(scale) with the factor of the flag, which is looked up.
template <class Flags, class Factor, class Run>
ZULG_INLINE Status withScale(const void* pSrc, const void* pDst, std::int32_t flag, const Run& run) {
    using Factors = FactorsByFlag<Flags, Factor>;
    const std::uint32_t bit = static_cast<std::uint32_t>(flag);
    Status status = settled(StatusNullPointer);
    if (pSrc != nullptr && pDst != nullptr) {
        status = settled(StatusFlagError);
        if (bit <= NoDivByAny && (Factors::flags >> bit & 1) != 0) {
            run(Factors::factors[flag >> 1]);
            status = StatusOk;
        }
    }
    return status;
}

}  // namespace zulg
