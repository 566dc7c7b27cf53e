// Declares the kernels: one routine for each family, length and element type. Definitions are in kernels/.
#pragma once

#include <cstdint>

#include "frame/platform.h"

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

template <class Element>
using DispatchRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

// Gives the bytes that an order or a length needs.
using SizeRoutine = Status(ZULG_CALL*)(std::int32_t order, std::int32_t* pSize);

// A complex kernel sees its arrays as pairs of elements.
template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag);

// Calls the kernel of the given length.
template <Family family, class Element>
Status ZULG_CALL dispatch(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

}  // namespace zulg
