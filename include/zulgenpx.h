/* zulgenpx: small signal transforms, each length a routine of its own. This header is plain C.

   Nothing is to be set up: any routine may be called first. All results are statuses; output goes to the caller's
   arrays. The processor's floating-point settings are neither read nor changed. Not-a-number and infinity go through the
   arithmetic as they will; the status is StatusOk all the same.

   Threads. Any number of threads may call at the same time, also on the same input, as long as their output arrays
   differ, and their Walsh-Hadamard buffers. No lock is taken. One thing is not free of this: a plan of the DCT-IV of more
   than 32 points serves one thread at a time.

   Arrays. Data is contiguous. Arrays and buffers need no alignment: any address will do. Source and destination may be
   the same array, and they may overlap in any other way, by any number of bytes and in either direction; of the source,
   only what the destination covers is changed. The buffer of a Walsh-Hadamard transform and the block of a plan must
   overlap neither of them.

   Stack. A call takes this much, on every target and at both element types: a complex DFT at most 2 KB, a real DFT or a
   Hartley transform 1 KB, a Walsh-Hadamard transform 2 KB, a DCT-IV of any length 12 KB, building and freeing a plan
   2 KB. What the core library takes for memory, and the C library for the sines of a plan, comes on top.

   Memory. Nothing is allocated, but for Walsh-Hadamard orders 8 to 13 called without a buffer and for plans made by
   InitAlloc. That memory comes from a library of its own, the core library: zulcore-7.0.dll, or libzulcore-7.0.so beside
   libzulgenpx-7.0.so. It is imported by name, so that another one may stand in its place. It exports two routines, which
   are called by the thread that calls here:

     void* ZULG_CALL zulMalloc(uint32_t bytes);    a block of that many bytes, or null; a multiple of 32 is best
     void ZULG_CALL zulFree(void* block);          such a block; null is allowed and does nothing

   A count of 0 is never asked for. In the DLL both names are undecorated. */
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

   A routine that returns anything but StatusOk has read nothing from its input and written nothing to its output (what
   the Init of a plan may write into its block is told there). Checks of arguments come in this order: length or order, pSrc, pDst, flag. So a bad length outranks a null pointer, and a null
   pointer outranks a bad flag. */
typedef int32_t ZulgStatus;
enum {
    StatusOk = 0,             /* done, the output is written */
    StatusPlanKindError = -5, /* DCT-IV: the plan is of no known kind */
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

/* -- Version -------------------------------------------------------------------------------------------------------

   ZULG_VERSION_MAJOR and ZULG_VERSION_MINOR are those of this header, the record is that of the library that is loaded.
   It is one constant; the caller neither frees nor changes it. All its fields are the same on every target, so that they
   tell the release, whatever the file is called: `name` is what the family of files is known by, the name of the DLL,
   also in libzulgenpx-7.0.so. */
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

   Accuracy, as the root of summed squared errors over summed squared results: in double precision below 2 * 2^-53, or
   4 * 2^-53 where N has a prime factor from 11 up; in single precision below 0.45 * 2^-24 (2 points, one rounded sum: 0.47), since all arithmetic is done in double and
   rounded once, at the store.

   Without a length in the name, the length is the argument `length`; the result is bit for bit that of the routine of
   that length. StatusSizeError outside 2 to 64. The same holds for the families below.

   Source: I. J. Good (1958) for the coprime factors, J. W. Cooley and J. W. Tukey (1965) for the powers of a prime,
   direct symmetric forms for 3, 5 and 7, C. M. Rader (1968) for the primes from 11 up. docs/constructions.md tells which length is built how. */

/* -- Real DFT ------------------------------------------------------------------------------------------------------

   The spectrum of N real values has X[N-k] = conj X[k], so that bins 0 .. N/2 tell all; X[0] and, for even N, X[N/2] are
   real. Three layouts hold this half spectrum in a flat array of reals:

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
   suffice, and what stands in the slots of the zeros is of no effect. All layouts of one length give the same bits.
   All input is read before the first output is written, so that pDst may equal pSrc or overlap it in any way; a forward
   CCS routine writes its N+2 or N+1 elements all the same. A result that is zero may be a negative zero.

   Accuracy: below 3 * 2^-53 in double, below 0.45 * 2^-24 in single precision (2 points, one rounded sum: 0.47).

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

   Accuracy: below 3.5 * 2^-53 in double, below 0.45 * 2^-24 in single precision (2 points, one rounded sum: 0.47).

   Source: R. N. Bracewell (1983). Each length is the real DFT of this library, forward or inverse, with one stage of
   sums and differences. */

/* -- Walsh-Hadamard transform --------------------------------------------------------------------------------------

     zulgWHT_<O>_32f       out[k] = scale * sum over j of (-1)^(bits set in both j and k) in[j]   k = 0 .. N-1, N = 2^O
     zulgWHT_32f           the same with the order O as an argument: StatusSizeError outside 1 to 13
     zulgWHTGetBufferSize_32f   bytes of the buffer of an order, 0 up to order 7: StatusSizeError outside 1 to 13, *pSize
                           then as it was. pSize must be valid: null is not checked for
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

   Accuracy: below 0.45 sqrt(O + 1) * 2^-53 in double; in single precision, where values are rounded only when they are
   written to the buffer or the destination, below 0.45 * 2^-24 up to order 7 (order 1, one rounded sum: 0.47), 0.64 up
   to 11 and 0.78 at 12 and 13.

   Source: J. Hadamard (1893), J. L. Walsh (1923); the fast form: K. W. Henderson (1964), W. K. Pratt, J. Kane and
   H. C. Andrews (1969). */

/* -- DCT-IV ----------------------------------------------------------------------------------------------------------

   ****************************************************************************************************************
   *  Before anything else:                                                                                       *
   *  - Lengths are powers of two from 2 to 2^27 in 32f, to 2^26 in 64f.                                          *
   *  - The lengths 2^k + 1 from 9 on are accepted too. Never use them: they read and write one element past the  *
   *    arrays, leave others unwritten, and compute nothing of use.                                               *
   *  - Nor use longer ones: their byte counts wrap around at 32 bits. GetSize refuses some of them and reports a *
   *    size that is far too small for others, and Init refuses none.                                             *
   *  - Never move or copy the block of a plan: the plan refers to its own addresses.                             *
   *  - A plan of more than 32 points serves one thread at a time: each run writes vectors inside the plan. Two   *
   *    runs at one time overwrite each other's values; both results are wrong, and nothing is reported.          *
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

   The block of a plan may begin at any address; a multiple of 32 is best. Only on 32-bit Windows, for a block above the
   2 GiB line that begins at no multiple of 32, take 31 bytes more than GetSize says.

   Twice gives N/2 times the input. Sizes are the same on every target:

     N         2 to 32    64   128   256   512   1024   2048   4096   8192   16384   32768    65536
     32f           224  1184  1696  2720  4768   8864  17056  35072  68864  136384  271552   541760
     64f           224  1696  2720  4768  8864  17056  33440  68800 136384  271424  541760  1082176

   GetSize    StatusSizeError for a length that is not accepted; *pSize then as it was. pSize must be valid: null is not
              checked for
   Init       StatusNullPointer, StatusSizeError; *pPlan then as it was. A length that GetSize refuses is built in part
              before Init refuses it too: of the block are then written at most 5/4 N elements and 2 KB, and at most 256
              bytes for lengths below 1
   InitAlloc  the same statuses, and StatusNullPointer where the core library has no memory. Nothing is left to be freed
   Free       StatusNullPointer
   DCT4       StatusNullPointer, StatusPlanKindError if the plan is of no known kind; the destination is then untouched

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

   Accuracy, as the root of summed squared errors over summed squared results: 64f below 1.8 (16 points), 2.8 (1024) and
   3.6 (65536) times 2^-53; 32f below 1.0, 1.6 and 1.9 times 2^-24, as values are held in double inside a pass.

   Source: fold and skew transforms, decimated in time: P. Duhamel and H. Hollmann (1984), M. Vetterli and
   H. J. Nussbaumer (1984); docs/constructions.md. */
typedef struct ZulgDCT4Plan_32f ZulgDCT4Plan_32f;
typedef struct ZulgDCT4Plan_64f ZulgDCT4Plan_64f;

/* -- All routines, one to a line ------------------------------------------------------------------------------------ */
#include "zulgenpx_routines.h"

#ifdef __cplusplus
}
#endif

#endif
