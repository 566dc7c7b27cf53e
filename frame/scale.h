// Scale flags: what they mean in each direction, the factors as stored, and the choice between them.
#pragma once

#include <type_traits>

#include "frame/kernel.h"

namespace zulg {

// What the flags mean: forward families divide by N at one flag, inverse ones at the other, transforms that are their
// own inverse at both.
struct ForwardFlags {
    static constexpr bool isDivided(std::int32_t flag) { return flag == DivFwdByN; }
};
struct InverseFlags {
    static constexpr bool isDivided(std::int32_t flag) { return flag == DivInvByN; }
};
struct InvolutionFlags {
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

// Calls run(scale) with the factor of the flag, or refuses the flag. The run is inside, so that the refusals of a
// kernel stand before its arithmetic and no jump goes back to them.
template <class Flags, class Factor, class Run>
ZULG_INLINE Status withScale(std::int32_t flag, const Run& run) {
    std::remove_const_t<decltype(Factor::one)> scale;
    if (flag == NoDivByAny) {
        scale = Factor::one;
    } else if (flag == DivBySqrtN) {
        scale = Factor::inverseRoot;
    } else if (flag == DivFwdByN || flag == DivInvByN) {
        scale = Flags::isDivided(flag) ? Factor::inverse : Factor::one;
    } else {
        return StatusFlagError;
    }
    run(scale);
    return StatusOk;
}

}  // namespace zulg
