// The routines of the Walsh-Hadamard family in registers of several lanes: the same passes and the same buffer, and in
// each lane the steps of the blocks in the same order.
#pragma once

#include "wht/wht.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <int order, class Element>
Status ZULG_CALL whtInLanes(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);

}  // namespace ZULG_TARGET
}  // namespace zulg
