// The five routines that the exports of the family lead to, for both element types.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

struct DctPlan;

template <class Element>
using Dct4Routine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, DctPlan* plan);
using Dct4InitRoutine = Status(ZULG_CALL*)(DctPlan** pPlan, std::int32_t length, std::uint8_t* pBuffer);
using Dct4InitAllocRoutine = Status(ZULG_CALL*)(DctPlan** pPlan, std::int32_t length);
using Dct4FreeRoutine = Status(ZULG_CALL*)(DctPlan* plan);

// Gives the bytes that Init needs. The size is written with StatusOk only; the pointer to it is not checked.
template <class Element>
Status ZULG_CALL dct4GetSize(std::int32_t length, std::int32_t* pSize);

// Builds a plan in the caller's block, which must be as long as GetSize says. The plan is written with StatusOk only.
template <class Element>
Status ZULG_CALL dct4Init(DctPlan** pPlan, std::int32_t length, std::uint8_t* pBuffer);

// Builds a plan in a block of the core library, which dct4Free gives back.
template <class Element>
Status ZULG_CALL dct4InitAlloc(DctPlan** pPlan, std::int32_t length);

template <class Element>
Status ZULG_CALL dct4Free(DctPlan* plan);

template <class Element>
Status ZULG_CALL dct4(const Element* pSrc, Element* pDst, DctPlan* plan);

}  // namespace zulg
