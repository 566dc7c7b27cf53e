// Declares the kernels: one routine for each family, length and element type. Definitions are in kernels/.
#pragma once

#include <cstdint>

#include "kernel/platform.h"

namespace zulg {

using Status = ZulgStatus;

enum class Family {
    DFTFwd_CToC,
    DFTInv_CToC,
    DFTFwd_RToCCS,
    DFTFwd_RToPack,
    DFTFwd_RToPerm,
    DFTInv_CCSToR,
    DFTInv_PackToR,
    DFTInv_PermToR,
    Hartley
};

constexpr int shortestLength = 2, longestLength = 64;

template <class Element>
using KernelRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag);

// A complex kernel sees its arrays as pairs of elements.
template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag);

}  // namespace zulg
