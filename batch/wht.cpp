// Batches of Walsh-Hadamard transforms.
#include "wht/wht.h"

#include "batch/batch.h"
#include "batch/checks.h"
#include "batch/one_by_one.h"
#include "kernel/scale.h"

namespace zulg {
namespace {

Status transformOne(const float* from, float* to, std::int32_t order, std::int32_t flag, float* buffer) {
    return zulgWHT_32f(from, to, order, flag, buffer);
}
Status transformOne(const double* from, double* to, std::int32_t order, std::int32_t flag, double* buffer) {
    return zulgWHT_64f(from, to, order, flag, buffer);
}

}  // namespace

// The buffer of one transform, and after it room for the elements of one.
template <class Element>
Status ZULG_CALL batchWhtGetBufferSize(std::int32_t order, std::int32_t* pSize) {
    if (order < lowestOrder || order > highestOrder) return StatusSizeError;
    const int elements = order < lowestBufferedOrder ? 0 : whtBufferElements(order) + (1 << order);
    *pSize = elements * static_cast<std::int32_t>(sizeof(Element));
    return StatusOk;
}

template <class Element>
Status ZULG_CALL batchWht(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                          std::int64_t dstStep, std::int64_t dstDistance, std::int32_t order, std::int32_t flag,
                          std::int64_t count, Element* pBuffer) {
    if (order < lowestOrder || order > highestOrder) return StatusSizeError;
    const bool hasBuffer = order >= lowestBufferedOrder;
    if (pSrc == nullptr || pDst == nullptr || (hasBuffer && pBuffer == nullptr)) return StatusNullPointer;
    if (!isFlag(flag)) return StatusFlagError;
    const Shape source{srcStep, srcDistance}, destination{dstStep, dstDistance};
    const std::int64_t points = std::int64_t{1} << order;
    if (!isAccepted(source, points, destination, points, count, sizeof(Element))) return StatusSizeError;
    Element few[1 << (lowestBufferedOrder - 1)];
    oneByOne<1>(pSrc, source, pDst, destination, {points, points}, count,
                hasBuffer ? pBuffer + whtBufferElements(order) : few,
                [=](const Element* from, Element* to) { transformOne(from, to, order, flag, pBuffer); });
    return StatusOk;
}

template Status ZULG_CALL batchWhtGetBufferSize<float>(std::int32_t, std::int32_t*);
template Status ZULG_CALL batchWhtGetBufferSize<double>(std::int32_t, std::int32_t*);
template Status ZULG_CALL batchWht<float>(const float*, std::int64_t, std::int64_t, float*, std::int64_t, std::int64_t,
                                          std::int32_t, std::int32_t, std::int64_t, float*);
template Status ZULG_CALL batchWht<double>(const double*, std::int64_t, std::int64_t, double*, std::int64_t,
                                           std::int64_t, std::int32_t, std::int32_t, std::int64_t, double*);

}  // namespace zulg
