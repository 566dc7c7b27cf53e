// The routines that the exports of the batch library lead to.
#pragma once

#include <cstdint>

#include "dct4/dct4.h"
#include "kernel/kernel.h"

namespace zulg {

template <class Element>
using BatchRoutine = Status(ZULG_CALL*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance,
                                        Element* pDst, std::int64_t dstStep, std::int64_t dstDistance,
                                        std::int32_t length, std::int32_t flag, std::int64_t count);

template <class Element>
using BatchWhtRoutine = Status(ZULG_CALL*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance,
                                           Element* pDst, std::int64_t dstStep, std::int64_t dstDistance,
                                           std::int32_t order, std::int32_t flag, std::int64_t count, Element* pBuffer);

template <class Element>
using BatchDct4Routine = Status(ZULG_CALL*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance,
                                            Element* pDst, std::int64_t dstStep, std::int64_t dstDistance,
                                            DctPlan* plan, std::int64_t count, Element* pBuffer);

inline namespace ZULG_TARGET {

// The DFT and Hartley families. A complex routine sees its arrays as pairs of elements; steps and distances are in
// elements of the public header all the same.
template <Family family, class Element>
Status ZULG_CALL batch(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                       std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                       std::int64_t count);

// The same computed in single.
template <Family family>
Status ZULG_CALL batchInSingle(const float* pSrc, std::int64_t srcStep, std::int64_t srcDistance, float* pDst,
                               std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                               std::int64_t count);

}  // namespace ZULG_TARGET

template <class Element>
Status ZULG_CALL batchWht(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                          std::int64_t dstStep, std::int64_t dstDistance, std::int32_t order, std::int32_t flag,
                          std::int64_t count, Element* pBuffer);
template <class Element>
Status ZULG_CALL batchWhtGetBufferSize(std::int32_t order, std::int32_t* pSize);

template <class Element>
Status ZULG_CALL batchDct4(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                           std::int64_t dstStep, std::int64_t dstDistance, DctPlan* plan, std::int64_t count,
                           Element* pBuffer);
template <class Element>
Status ZULG_CALL batchDct4GetBufferSize(std::int32_t length, std::int32_t* pSize);

}  // namespace zulg
