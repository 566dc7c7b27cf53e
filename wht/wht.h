// The routines that the exports of the Walsh-Hadamard family lead to.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

constexpr int lowestOrder = 1, highestOrder = 13;
constexpr int lowestBufferedOrder = 8;

template <class Element>
using WhtRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);

template <class Element>
using WhtDispatchRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t order, std::int32_t flag,
                                              Element* pBuffer);

// Transforms 2^order points. Orders up to 7 ignore pBuffer. From 8 on it has whtBufferElements(order) elements, or is
// null.
template <int order, class Element>
Status ZULG_CALL wht(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);

// The main area holds all points; orders 12 and 13 have a scratch area of one outer block after it.
constexpr int whtScratchElements(int order) { return order == 12 ? 256 : order == 13 ? 1024 : 0; }
constexpr int whtBufferElements(int order) {
    return order < lowestBufferedOrder ? 0 : (1 << order) + whtScratchElements(order);
}

}  // namespace zulg
