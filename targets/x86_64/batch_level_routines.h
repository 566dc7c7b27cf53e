// The routines of the batch library that each of its levels has. The first level is the target itself, whose routines
// batch.h declares.
#pragma once

#include "batch/batch.h"

namespace zulg::x86_64_v3 {

template <Family family, class Element>
Status ZULG_CALL batch(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                       std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                       std::int64_t count);

template <Family family>
Status ZULG_CALL batchInSingle(const float* pSrc, std::int64_t srcStep, std::int64_t srcDistance, float* pDst,
                               std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                               std::int64_t count);

}  // namespace zulg::x86_64_v3
