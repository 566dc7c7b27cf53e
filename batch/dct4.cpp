// Batches of DCT-IV transforms.
#include "batch/batch.h"
#include "batch/checks.h"
#include "batch/one_by_one.h"
#include "dct4/records.h"

namespace zulg {
namespace {

Status transformOne(const float* from, float* to, DctPlan* plan) {
    return zulgDCT4_32f(from, to, reinterpret_cast<ZulgDCT4Plan_32f*>(plan));
}
Status transformOne(const double* from, double* to, DctPlan* plan) {
    return zulgDCT4_64f(from, to, reinterpret_cast<ZulgDCT4Plan_64f*>(plan));
}

constexpr std::int32_t longestPlan = 1 << 27;

}  // namespace

template <class Element>
Status ZULG_CALL batchDct4GetBufferSize(std::int32_t length, std::int32_t* pSize) {
    if (length < 2 || length > longestPlan) return StatusSizeError;
    *pSize = length * static_cast<std::int32_t>(sizeof(Element));
    return StatusOk;
}

template <class Element>
Status ZULG_CALL batchDct4(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                           std::int64_t dstStep, std::int64_t dstDistance, DctPlan* plan, std::int64_t count,
                           Element* pBuffer) {
    const bool needsBuffer = srcStep != 1 || dstStep != 1;
    if (pSrc == nullptr || pDst == nullptr || plan == nullptr || (needsBuffer && pBuffer == nullptr))
        return StatusNullPointer;
    if (!isKnown(plan->kind)) return StatusPlanKindError;
    const Shape source{srcStep, srcDistance}, destination{dstStep, dstDistance};
    const std::int64_t points = plan->length;
    if (!isAccepted(source, points, destination, points, count, sizeof(Element))) return StatusSizeError;
    oneByOne<1>(pSrc, source, pDst, destination, {points, points}, count, pBuffer,
                [=](const Element* from, Element* to) { transformOne(from, to, plan); });
    return StatusOk;
}

template Status ZULG_CALL batchDct4GetBufferSize<float>(std::int32_t, std::int32_t*);
template Status ZULG_CALL batchDct4GetBufferSize<double>(std::int32_t, std::int32_t*);
template Status ZULG_CALL batchDct4<float>(const float*, std::int64_t, std::int64_t, float*, std::int64_t, std::int64_t,
                                           DctPlan*, std::int64_t, float*);
template Status ZULG_CALL batchDct4<double>(const double*, std::int64_t, std::int64_t, double*, std::int64_t,
                                            std::int64_t, DctPlan*, std::int64_t, double*);

}  // namespace zulg
