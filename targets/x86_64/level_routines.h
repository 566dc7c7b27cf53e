// The routines of the native library that each of its levels has.
#pragma once

#include "dct4/in_lanes.h"
#include "kernel/kernel.h"
#include "wht/in_lanes.h"

// The first level is the target itself, whose routines these headers declare.
namespace zulg::x86_64_v3 {

template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag);

template <int order, class Element>
Status ZULG_CALL whtInLanes(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);

template <class Element>
Status ZULG_CALL dct4InLanes(const Element* pSrc, Element* pDst, DctPlan* plan);

}  // namespace zulg::x86_64_v3
