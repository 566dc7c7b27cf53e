// What every kernel of the family does around its blocks: the checks in their order, the factor that the flag selects,
// and the buffer of the large orders.
#pragma once

#include "kernel/core_library.h"
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

// Calls run(buffer) with the caller's buffer, or with one that is allocated for the time of the call. A refused
// allocation is not checked for: the family has no status for it. A caller avoids the risk by passing a buffer.
template <int order, class Element, class Run>
ZULG_INLINE void withBuffer(Element* pBuffer, const Run& run) {
    constexpr std::uint32_t bytes = whtBufferElements(order) * sizeof(Element);
    Element* const buffer = pBuffer != nullptr ? pBuffer : static_cast<Element*>(zulMalloc(bytes));
    run(buffer);
    if (pBuffer == nullptr) zulFree(buffer);
}

}  // namespace zulg
