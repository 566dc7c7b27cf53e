// Declares the kernels: one routine for each family, length and element type. Their names are in the namespace of the
// target, so that those of two targets can be in one library.
#pragma once

#include <cstdint>

#include "kernel/platform.h"
#include "value.h"

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

inline namespace ZULG_TARGET {

// A complex kernel sees its arrays as pairs of elements.
template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag);

}  // namespace ZULG_TARGET

}  // namespace zulg
