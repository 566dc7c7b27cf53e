// What every kernel of the family does first: the checks in their order, and the factor that the flag selects.
#pragma once

#include "kernel/scale.h"
#include "wht/wht.h"

namespace zulg {

// 1/sqrt(2^order): a power of two, or a power of two times sqrt(1/2).
template <int order>
struct WhtRoot {
    static constexpr double inverseRoot = (order % 2 == 0 ? 1.0 : 0.7071067811865475) / (1 << order / 2);
};

template <int order, class Element, class Run>
ZULG_INLINE Status whtChecked(const Element* pSrc, const Element* pDst, std::int32_t flag, const Run& run) {
    return withScale<InvolutionFlags, Scale<Element, 1 << order, WhtRoot<order>>>(pSrc, pDst, flag, run);
}

}  // namespace zulg
