/* zulgenpx_batch: many transforms of zulgenpx in one call. This header is plain C. It comes with a library of its own,
   libzulgenpx-batch-7.0.so, which uses libzulgenpx-7.0.so of the same folder; on 64-bit Windows it is
   zulgenpx-batch-7.0.dll, and 32-bit Windows has none.

   A batch is `count` transforms of one family, length, element type and flag. Each gives bit for bit what the routine
   of zulgenpx.h gives for it alone: a batch saves calls and loads, and where registers hold several transforms it does
   as many at once.

   Arrays. Element k of transform j is at pSrc[k * srcStep + j * srcDistance], and its result at
   pDst[k * dstStep + j * dstDistance]. Steps and distances count elements of the array's type; they may be negative,
   and those of the source may be 0. Nothing needs to be aligned. Usual shapes, for N elements:

                                                    step      distance
     one transform after the other                     1             N     fast
     side by side, as in the columns of a matrix   count             1     fast
     every second row of a matrix of C columns         1         2 * C     fast
     one transform backwards                          -1             -

   Fast shapes must be those of both arrays. Any other is done one transform at a time: its elements are collected in a
   buffer of 1 KB, transformed and put back. A half spectrum is an array of reals, and its elements are these reals:
   N+2 or N+1 of CCS, N of Pack and Perm.

   In place. pDst may be pSrc if the steps and the distances of both are equal. Otherwise the elements that are written
   must be other ones than those that are read; where they overlap, the results have no meaning. Of a half spectrum and
   N reals in one array with equal steps, the distance must be that of the longer one in both.

   Statuses are those of zulgenpx.h. The checks come in this order: length or order (StatusSizeError), pointers
   (StatusNullPointer), flag (StatusFlagError) or plan (StatusPlanKindError), then the shapes: StatusSizeError if count
   is negative, if the place of an element, in bytes, is no number of 64 bits, or if two results would be in one place.
   On a refusal nothing is read or written. A batch of no transforms is accepted, and nothing is read or written.

   Nothing is allocated, and there is no state: any number of threads may call at the same time, each with its own
   destination, buffer and plan. To use several threads on one batch, give each a part of the transforms.

   Stack. A call takes at most 6 KB, a DCT-IV at most 13 KB. */
#ifndef ZULGENPX_BATCH_H
#define ZULGENPX_BATCH_H

#include "zulgenpx.h"

#ifdef __cplusplus
extern "C" {
#endif

/* -- DFT and Hartley transform -------------------------------------------------------------------------------------

     zulgBatchDFTFwd_CToC_32fc(pSrc, srcStep, srcDistance, pDst, dstStep, dstDistance, length, flag, count)
     and the same with DFTInv_CToC, and with _64fc
     zulgBatchDFTFwd_RToCCS_32f   DFTFwd_RToPack   DFTFwd_RToPerm   and the same with _64f
     zulgBatchDFTInv_CCSToR_32f   DFTInv_PackToR   DFTInv_PermToR
     zulgBatchHartley_32f

   The families, layouts, scale and literature are those of zulgenpx.h.

   pSrc, srcStep, srcDistance   the source and its shape. Of the half spectra of CCS, the imaginary parts of the real
                                bins have no effect, and the last of them, at even lengths, is not read
   pDst, dstStep, dstDistance   the destination and its shape. All elements of each transform are written and nothing
                                between them
   length                       2 to 64
   flag                         one of the four scale flags
   count                        how many transforms, 0 or more */

/* -- The same computed in single -----------------------------------------------------------------------------------

     zulgBatchSingleDFTFwd_CToC_32fc, and so for each family above with _32fc or _32f

   The routines above compute singles in double and round once. These compute in single: registers hold twice as many,
   and every step rounds. Arguments, statuses and shapes are the same. The result of a transform is the same bits at
   every shape, count and level. Pooled relative errors over random inputs are below 1.5 * 2^-24 at factor 1; those of
   the routines above are below 0.5 * 2^-24.

   Where the errors would be greater, these routines do what the ones above do, bit for bit: at the lengths with a prime
   factor from 11 up, other than 13 and 26, and at 49, 54 and 63. */

/* -- Walsh-Hadamard transform --------------------------------------------------------------------------------------

     zulgBatchWHT_32f(pSrc, srcStep, srcDistance, pDst, dstStep, dstDistance, order, flag, count, pBuffer)
     zulgBatchWHTGetBufferSize_32f(order, pSize)
     and the same with _64f

   order     1 to 13
   pBuffer   for orders 8 to 13 as many bytes as zulgBatchWHTGetBufferSize says; orders 1 to 7 ignore it. Nothing is
             allocated here: a null pointer at orders 8 to 13 is refused with StatusNullPointer. It must not overlap
             source or destination. What is left in it has no meaning

   GetBufferSize: StatusSizeError outside 1 to 13, *pSize then as it was. pSize is not checked. */

/* -- DCT-IV --------------------------------------------------------------------------------------------------------

     zulgBatchDCT4_32f(pSrc, srcStep, srcDistance, pDst, dstStep, dstDistance, plan, count, pBuffer)
     zulgBatchDCT4GetBufferSize_32f(length, pSize)
     and the same with _64f

   plan      of zulgDCT4Init or zulgDCT4InitAlloc of zulgenpx.h; its length is that of each transform. It serves one
             thread at a time
   pBuffer   where dstStep or srcStep is not 1, room for one transform: as many bytes as GetBufferSize says. A null
             pointer is then refused with StatusNullPointer. Where both steps are 1 it is ignored

   GetBufferSize: StatusSizeError for a length below 2 or above 2^27, *pSize then as it was. pSize is not checked. */

/* -- All routines ------------------------------------------------------------------------------------------------ */
#include "zulgenpx_batch_routines.h"

#ifdef __cplusplus
}
#endif

#endif
