/* Written by `generate write`; do not edit. The rule: generator/output/exports.cpp.
   The routines of the batch library. Included by zulgenpx_batch.h, which tells what each does. */
ZulgStatus ZULG_CALL zulgBatchDCT4GetBufferSize_32f(int32_t length, int32_t* pSize);
ZulgStatus ZULG_CALL zulgBatchDCT4GetBufferSize_64f(int32_t length, int32_t* pSize);
ZulgStatus ZULG_CALL zulgBatchDCT4_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    ZulgDCT4Plan_32f* plan, int64_t count, Zulg32f* pBuffer);
ZulgStatus ZULG_CALL zulgBatchDCT4_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    ZulgDCT4Plan_64f* plan, int64_t count, Zulg64f* pBuffer);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_CToC_32fc(
    const Zulg32fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_CToC_64fc(
    const Zulg64fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToCCS_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToCCS_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToPack_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToPack_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToPerm_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTFwd_RToPerm_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_CCSToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_CCSToR_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_CToC_32fc(
    const Zulg32fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_CToC_64fc(
    const Zulg64fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_PackToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_PackToR_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_PermToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchDFTInv_PermToR_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchHartley_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchHartley_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTFwd_CToC_32fc(
    const Zulg32fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTFwd_RToCCS_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTFwd_RToPack_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTFwd_RToPerm_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTInv_CCSToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTInv_CToC_32fc(
    const Zulg32fc* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32fc* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTInv_PackToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleDFTInv_PermToR_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchSingleHartley_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t length, int32_t flag, int64_t count);
ZulgStatus ZULG_CALL zulgBatchWHTGetBufferSize_32f(int32_t order, int32_t* pSize);
ZulgStatus ZULG_CALL zulgBatchWHTGetBufferSize_64f(int32_t order, int32_t* pSize);
ZulgStatus ZULG_CALL zulgBatchWHT_32f(
    const Zulg32f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg32f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t order, int32_t flag, int64_t count, Zulg32f* pBuffer);
ZulgStatus ZULG_CALL zulgBatchWHT_64f(
    const Zulg64f* pSrc, int64_t srcStep, int64_t srcDistance, Zulg64f* pDst, int64_t dstStep, int64_t dstDistance,
    int32_t order, int32_t flag, int64_t count, Zulg64f* pBuffer);
