/* zulgenpx: small signal transforms, each length a routine of its own. This header is plain C.

   Nothing is to be set up: any routine may be called first. All results are statuses; output goes to the caller's
   arrays. The processor's floating-point settings are neither read nor changed. Not-a-number and infinity go through
   the arithmetic as they will; the status is StatusOk all the same.

   Threads. Any number of threads may call at the same time, also on the same input, as long as each has its own output
   arrays and its own Walsh-Hadamard buffer. No lock is taken. A plan of the DCT-IV is the one exception: if it has more
   than 32 points, it serves one thread at a time.

   Arrays. Data is contiguous. Arrays and buffers need no alignment: any address will do. Source and destination may be
   the same array, and they may overlap in any other way, by any number of bytes and in either direction; of the source,
   only what the destination covers is changed. The buffer of a Walsh-Hadamard transform and the block of a plan must
   overlap neither of them.

   Stack. A call takes this much, on every target and at both element types: a complex DFT at most 2 KB, a real DFT or a
   Hartley transform 1 KB, a Walsh-Hadamard transform 2 KB, a DCT-IV of any length 12 KB, building and freeing a plan
   2 KB. What the core library takes for memory, and the C library for the sines of a plan, comes on top.

   Memory. Two things allocate: Walsh-Hadamard orders 8 to 13 called without a buffer, and InitAlloc, which makes a
   plan. The memory comes from the core library, a file of its own: zulcore-7.0.dll, or libzulcore-7.0.so in the folder
   of libzulgenpx-7.0.so. It is imported by name, so that another file of that name may take its place. It has to export
   two routines, in the DLL under these undecorated names:

     void* ZULG_CALL zulMalloc(uint32_t bytes);   gives a block of that many bytes, or null if there is none
     void ZULG_CALL zulFree(void* block);         takes a block of zulMalloc back; null is allowed and does nothing

   Both are called on the thread of the caller. A block begins at a multiple of 32. */
#ifndef ZULGENPX_H
#define ZULGENPX_H

#include <stdint.h>

/* On 32-bit Windows a routine removes its arguments from the stack itself. Elsewhere the platform's own convention
   holds. */
#if defined(_WIN32) && !defined(_WIN64)
#define ZULG_CALL __stdcall
#else
#define ZULG_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* -- Types ---------------------------------------------------------------------------------------------------------

   The suffix of a routine tells its element type:
     32f   float                      64f   double
     32fc  float re, then float im    64fc  double re, then double im
   These are the layouts of C's `float complex` and of std::complex<float>; a cast of the pointer is enough. */
typedef float Zulg32f;
typedef double Zulg64f;
typedef struct Zulg32fc {
    float re, im;
} Zulg32fc;
typedef struct Zulg64fc {
    double re, im;
} Zulg64fc;

/* -- Status --------------------------------------------------------------------------------------------------------

   A routine that returns anything but StatusOk has read nothing from its input and written nothing to its output; the
   one exception is Init of the DCT-IV, which may have written into the block. Checks come in this order: length or
   order, pSrc, pDst, flag. So a bad length outranks a null pointer, and a null pointer outranks a bad flag. */
typedef int32_t ZulgStatus;
enum {
    StatusOk = 0,             /* done, the output is written */
    StatusPlanKindError = -5, /* DCT-IV: the kind of the plan is unknown */
    StatusSizeError = -6,     /* length or order out of range */
    StatusNullPointer = -8,   /* a required pointer is null */
    StatusFlagError = -16     /* flag is not exactly one of 1, 2, 4, 8 */
};

/* -- Scale ---------------------------------------------------------------------------------------------------------

   The factor on every output of a transform of N points. It is one value, not a set of bits: 3 is refused.

     flag          value   forward   inverse     Hartley, Walsh-Hadamard   what NumPy calls it
     DivFwdByN         1       1/N         1                         1/N   norm="forward"
     DivInvByN         2         1       1/N                         1/N   norm="backward", the default there
     DivBySqrtN        4   1/sqrt(N) 1/sqrt(N)                 1/sqrt(N)   norm="ortho"
     NoDivByAny        8         1         1                           1   no scale in either direction

   The same flag forward and then inverse restores the input for 1, 2 and 4; 8 on both multiplies it by N. */
enum { DivFwdByN = 1, DivInvByN = 2, DivBySqrtN = 4, NoDivByAny = 8 };

/* -- Accuracy ------------------------------------------------------------------------------------------------------

   Each pair below is a bound and the worst that 100,000 inputs to each routine show (2^26/N to a DCT-IV from 4096
   points on). The bound is proved: none gets above it as long as no value overflows or is below the normal numbers. It
   is for the greatest error of one output, of a complex one the modulus, over the root mean square of the input times
   sqrt(N) and over the factor of the flag. Figures are the greatest of all lengths and targets;
   benchmarks/results/bounds.md has those of each length.

                                             64f, times 2^-53                32f, times 2^-24
                                         factor 1        any flag        factor 1        any flag
     complex, Hartley, no prime >= 11   107.05  30.47   125.85  41.68     8.01   7.95    15.63  15.58
     complex, Hartley, a prime >= 11    331.35  30.95   339.70  38.69     7.88   7.86    15.14  15.05
     real forward, no prime >= 11        79.54  20.04    98.34  32.37     8.01   7.83    15.63  15.35
     real forward, a prime >= 11        317.42  23.96   325.78  31.61     7.88   7.86    15.14  14.43
     real inverse, no prime >= 11       135.41  38.18   161.88  59.90    11.23  11.12    22.02  21.82
     real inverse, a prime >= 11        434.04  46.42   445.80  55.03    11.05  10.90    21.32  21.20
     Walsh-Hadamard, orders 1 to 7       79.24  33.66    99.59  45.31    11.32  11.31    14.57  14.47
     Walsh-Hadamard, orders 8 to 11     498.05 119.97   579.46 173.16    90.51  55.17   103.51  64.21
     Walsh-Hadamard, orders 12 and 13  1177.21 240.26  1340.03 347.14   271.53 143.77   297.52 147.75
     DCT-IV, 2 to 32 points              51.05  15.86                     8.60   8.36
     DCT-IV, 64 to 2048 points          992.98 127.62                   133.73  74.95
     DCT-IV, 4096 to 65536 points      9960.46 637.29                  1204.82 417.27

   Factor 1 stands for the flags that leave the result as it is, such as 8. Any flag takes in the rounding of the
   factors 1/N and 1/sqrt(N), which are stored as elements, and of the product. The DCT-IV has no factor.

   The DCT-IV as measured, pooled and worst: the root of the summed squared errors over the summed squared results, over
   100,000 inputs (2^28/N from 4096 points on). Greater errors of single calls are possible.

     N               2     4     8    16    32    64   128   256   512  1024  2048  4096  8192 16384 32768 65536
     64f pooled   0.65  1.19  1.38  1.59  1.56  1.73  1.86  1.97  2.08  2.16  2.26  2.43  2.63  2.77  2.90  2.96
         worst    1.91  3.63  3.90  3.61  3.04  2.84  2.60  2.54  2.49  2.43  2.45  2.59  2.73  2.84  2.95  3.00
     32f pooled   0.65  0.79  0.65  0.76  0.91  1.25  1.29  1.32  1.31  1.17  1.16  1.35  1.29  1.33  1.39  1.40
         worst    1.48  1.72  1.52  1.60  1.51  1.87  1.71  1.61  1.53  1.30  1.25  1.43  1.34  1.37  1.42  1.42

   In 32f, the DFT and Hartley transforms compute in double and round once, at the store. Walsh-Hadamard orders 8 to 11
   round once more, and 12 and 13 twice more, when they write to the buffer; a DCT-IV from 64 points on at least once,
   when it writes to its plan. On 32-bit Windows, registers are wider than a double unless the program has set them to
   53 bits. 64f results are better there. The bounds count that a value can be used both from its register and from
   memory, which differ by a rounding. Where a program has set them to 24 bits, 64f results are as exact as single
   ones: the bounds of 64f hold in units of 2^-24, but for a DCT-IV above 32 points, of which nothing is proved then.
   All of this is for rounding to nearest; in another direction errors are at most twice the bounds. */

/* -- Version -------------------------------------------------------------------------------------------------------

   The macros are of this header, the record is of the library that is loaded. The record is one constant; the caller
   neither frees nor changes it. It is the same on every target, so that it tells the release whatever the file is
   called: `name` is the name of the DLL in libzulgenpx-7.0.so too. */
#define ZULG_VERSION_MAJOR 7
#define ZULG_VERSION_MINOR 0

typedef struct LibVersion {
    int32_t major;
    int32_t minor;
    int32_t majorBuild;
    int32_t build;
    char targetCpu[4];     /* "px": generic floating-point code, no vector instructions */
    const char* name;      /* "zulgenpx-7.0.dll" */
    const char* version;   /* "7.0 build 205.58" */
    const char* buildDate; /* "Apr 18 2011" */
} LibVersion;

/* Cannot fail; the same address at each call. */
const LibVersion* ZULG_CALL zulgenGetLibVersion(void);

/* -- Complex DFT ---------------------------------------------------------------------------------------------------

     zulgDFTFwd_CToC_<N>_32fc   X[k] = scale * sum over n of x[n] exp(-2 pi i n k/N)     k = 0 .. N-1
     zulgDFTInv_CToC_<N>_32fc   x[n] = scale * sum over k of X[k] exp(+2 pi i n k/N)     n = 0 .. N-1
     and the same with _64fc

   pSrc    N complex elements, read only
   pDst    N complex elements, all of them written, nothing beyond them
   flag    one of the four scale flags

   All input is read before the first output is written, so that pDst may equal pSrc or overlap it in any way.

   Without a length in the name, the length is the argument `length`; the result is bit for bit that of the routine of
   that length. StatusSizeError outside 2 to 64. The same holds for the families below.

   Source: I. J. Good (1958) for the coprime factors, J. W. Cooley and J. W. Tukey (1965) for the powers of a prime,
   direct symmetric forms for 3, 5 and 7, C. M. Rader (1968) for the primes from 11 up. docs/constructions.md tells
   which length is built how. */

/* -- Real DFT ------------------------------------------------------------------------------------------------------

   The spectrum of N real values has X[N-k] = conj X[k], so that bins 0 .. N/2 tell all; X[0] and, for even N, X[N/2]
   are real. Three layouts hold this half spectrum in a flat array of reals:

     zulgDFTFwd_RToCCS_<N>_32f    zulgDFTInv_CCSToR_<N>_32f     and with _64f
     zulgDFTFwd_RToPack_<N>_32f   zulgDFTInv_PackToR_<N>_32f
     zulgDFTFwd_RToPerm_<N>_32f   zulgDFTInv_PermToR_<N>_32f

   Forward: N reals in, X[k] = scale * sum over n of x[n] exp(-2 pi i n k/N). Inverse: N reals out,
   y[n] = scale * sum over all k of X[k] exp(+2 pi i n k/N), the bins above N/2 taken as conjugates.

            elements             Re X[0]  Re X[N/2]  Re X[k]      Im X[k]       0 < k < N/2
     CCS    N+2, or N+1 (odd N)        0          N  2k           2k+1          slots 1 and N+1 hold +0.0
     Pack   N                          0        N-1  2k-1         2k
     Perm   N, even                    0          1  2k           2k+1
     Perm   N, odd                     0          -  2k-1         2k

     N   CCS                            Pack                      Perm
     2   R0 0 R1 0                      R0 R1                     R0 R1
     3   R0 0 R1 I1                     R0 R1 I1                  R0 R1 I1
     4   R0 0 R1 I1 R2 0                R0 R1 I1 R2               R0 R2 R1 I1
     5   R0 0 R1 I1 R2 I2               R0 R1 I1 R2 I2            R0 R1 I1 R2 I2
     6   R0 0 R1 I1 R2 I2 R3 0          R0 R1 I1 R2 I2 R3         R0 R3 R1 I1 R2 I2
     7   R0 0 R1 I1 R2 I2 R3 I3         R0 R1 I1 R2 I2 R3 I3      R0 R1 I1 R2 I2 R3 I3
     8   R0 0 R1 I1 R2 I2 R3 I3 R4 0    R0 R1 I1 R2 I2 R3 I3 R4   R0 R4 R1 I1 R2 I2 R3 I3
     9   R0 0 R1 I1 R2 I2 R3 I3 R4 I4   R0 R1 I1 R2 I2 R3 I3 R4 I4   the same as Pack

   NumPy's rfft returns the complex values X[0] .. X[N/2]: a CCS array is that array, real and imaginary parts in turn.
   Pack is it without the zeros; Perm, at even N, has Re X[N/2] in the place of the first zero.

   Forward CCS stores its zeros whatever the input and the flag. Inverse CCS reads slots 0 and 2 .. N only: N+1 elements
   suffice, and what is in the slots of the zeros has no effect. All layouts of one length give the same bits.
   All input is read before the first output is written, so that pDst may equal pSrc or overlap it in any way; a forward
   CCS routine writes its N+2 or N+1 elements all the same. A result that is zero may be a negative zero.

   Source: the constructions of the complex DFT, each reduced by the symmetry of the spectrum; docs/constructions.md. */
#define ZULG_CCS_LENGTH(N) ((N) / 2 * 2 + 2)
#define ZULG_PACK_LENGTH(N) (N)
#define ZULG_PERM_LENGTH(N) (N)

/* -- Hartley transform ---------------------------------------------------------------------------------------------

     zulgHartley_<N>_32f   out[k] = scale * sum over j of in[j] (cos(2 pi j k/N) + sin(2 pi j k/N))   k = 0 .. N-1
     and the same with _64f

   pSrc    N reals, read only
   pDst    N reals, all of them written, after all input is read: it may equal pSrc or overlap it in any way
   flag    1 and 2 both divide by N, 4 by sqrt(N); the transform is its own inverse up to that factor

   With X the DFT of the same input, out[k] = Re X[k] - Im X[k].

   Source: R. N. Bracewell (1983). Each length is the real DFT of this library, forward or inverse, with one stage of
   sums and differences. */

/* -- Walsh-Hadamard transform --------------------------------------------------------------------------------------

     zulgWHT_<O>_32f       out[k] = scale * sum over j of (-1)^(bits set in both j and k) in[j]   k = 0 .. N-1, N = 2^O
     zulgWHT_32f           the same with the order O as an argument: StatusSizeError outside 1 to 13
     zulgWHTGetBufferSize_32f   bytes of the buffer of an order, 0 for orders 1 to 7: StatusSizeError outside 1 to 13,
                           *pSize then as it was. pSize is not checked: a null pointer faults
     and the same with _64f

   pSrc     N reals, read only
   pDst     N reals, all of them written, after all input is read: it may equal pSrc or overlap it in any way
   flag     1 and 2 both divide by N, 4 by sqrt(N); the transform is its own inverse up to that factor
   pBuffer  is ignored by orders 1 to 7. Orders 8 to 13 work through it; it must not overlap pSrc or pDst:

              order            8     9    10    11     12     13
              bytes, 32f    1024  2048  4096  8192  17408  36864     twice as many in 64f

            With a null pointer the routine takes a block of that size from the core library for the time of the call.
            Where the core library has none, the call faults: pass a buffer where that matters. Two calls at one time
            need two buffers. What is left in a buffer after a call has no meaning.

   Rows are in natural (Sylvester) order: row k is that of the Kronecker power of (1 1; 1 -1). Integers come out exact
   at flag 8 as long as every sum fits the element.

   Source: J. Hadamard (1893), J. L. Walsh (1923); the fast form: K. W. Henderson (1964), W. K. Pratt, J. Kane and
   H. C. Andrews (1969). */

/* -- DCT-IV --------------------------------------------------------------------------------------------------------

   ****************************************************************************************************************
   *  Before anything else:                                                                                       *
   *  - Lengths are powers of two from 2 to 2^27 in 32f, to 2^26 in 64f.                                          *
   *  - The lengths 2^k + 1 from 9 on are accepted too. Never use them: they read and write one element past the  *
   *    arrays, leave others unwritten, and compute nothing of use.                                               *
   *  - Nor use longer powers of two: byte counts wrap around at 32 bits. GetSize refuses some and reports far too*
   *    small a size for others, and Init writes past the block.                                                  *
   *  - Never move or copy the block of a plan: the plan refers to its own addresses.                             *
   *  - A plan of more than 32 points serves one thread at a time: each run writes vectors inside the plan. Two   *
   *    runs at one time overwrite each other's values: the results are wrong, and nothing is reported.           *
   *  - Free is for plans of InitAlloc only. A plan of Init needs no freeing: stop using the block.               *
   ****************************************************************************************************************

     zulgDCT4_32f           y[k] = sum over n of x[n] cos(pi (n + 1/2)(k + 1/2)/N)   k = 0 .. N-1; no scale, no flag
     zulgDCT4GetSize_32f    bytes of the plan of a length
     zulgDCT4Init_32f       builds a plan in the caller's block of that many bytes
     zulgDCT4InitAlloc_32f  builds a plan in a block of the core library
     zulgDCT4Free_32f       gives a plan of InitAlloc back
     and the same with _64f

   pSrc    N reals, read only
   pDst    N reals, all of them written, after all input is read: it may equal pSrc or overlap it in any way
   plan    of that length and that element type; may be run any number of times

   A multiple of 32 is best for the address of a block, but any other will do. There is one exception: on 32-bit
   Windows, a block above 2 GiB that does not begin at a multiple of 32 needs 31 bytes more than GetSize says.

   Twice gives N/2 times the input. Sizes are the same on every target:

     N         2 to 32    64   128   256   512   1024   2048   4096   8192   16384   32768    65536
     32f           224  1184  1696  2720  4768   8864  17056  35072  68864  136384  271552   541760
     64f           224  1696  2720  4768  8864  17056  33440  68800 136384  271424  541760  1082176

   GetSize    StatusSizeError for a length that is not accepted; *pSize then as it was. pSize is not checked: a null
              pointer faults
   Init       StatusNullPointer, StatusSizeError; *pPlan then as it was. It refuses a length only after it has built a
              part of the plan. By then it has written at most 2 KB and 5/4 N elements of the block; 256 bytes, for a
              length below 1
   InitAlloc  the same statuses, and StatusNullPointer where the core library has no memory. Nothing is left to be freed
   Free       StatusNullPointer
   DCT4       StatusNullPointer, StatusPlanKindError if the plan's kind is unknown; the destination is then untouched

   Example, a plan in memory of one's own:

     float x[64] = {1}, y[64];
     int32_t bytes;
     ZulgDCT4Plan_32f* plan;
     if (zulgDCT4GetSize_32f(64, &bytes) != StatusOk) return 1;
     uint8_t* memory = (uint8_t*)malloc((size_t)bytes + 31);
     if (memory == NULL) return 1;
     uint8_t* block = memory + (32 - (uintptr_t)memory % 32) % 32;
     if (zulgDCT4Init_32f(&plan, 64, block) != StatusOk) return 1;
     zulgDCT4_32f(x, y, plan);
     printf("%.4f\n", y[0]);  // prints 0.9999
     free(memory);            // the plan and all that it has

   Source: fold and skew transforms, decimated in time: P. Duhamel and H. Hollmann (1984), M. Vetterli and
   H. J. Nussbaumer (1984); docs/constructions.md. */
typedef struct ZulgDCT4Plan_32f ZulgDCT4Plan_32f;
typedef struct ZulgDCT4Plan_64f ZulgDCT4Plan_64f;

/* -- All routines, one to a line -------------------------------------------------------------------------------- */
#include "zulgenpx_routines.h"

#ifdef __cplusplus
}
#endif

#endif
