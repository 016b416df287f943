/* Convolution of two vectors, and cyclic convolutions of 4 and 8 points. */
#ifndef TARNS_CONVOLUTION_H
#define TARNS_CONVOLUTION_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup convolution Convolution
    All that two finite vectors give when one slides along the other: the sound of a room, the product of two
    polynomials; and building blocks for code that splits long cyclic convolutions into short ones. A filter that lives
    on from call to call is a [FIR filter](@ref fir).

    @code{.c}
    const Tarn32f a[3] = {1, 2, 3}, b[2] = {1, -1};
    Tarn32f c[4];
    tarnsConv_32f(a, 3, b, 2, c);
    printf("%g %g %g %g\n", c[0], c[1], c[2], c[3]); // 1 1 1 -3
    @endcode

    __Accuracy:__ direct sums round each addition of their precision, in runs of 256; transforms err by some 1e-7
    (single) of the largest outputs. 16-bit results are those of single precision, scaled and rounded.

    __Cost:__ directly 0.2 to 0.3 of a plain loop; by transforms 0.014 of it for 16,384 by 1024 elements.

    __Guide:__ [Convolution and correlation](docs/convolution.md).
    @{ */

/** Convolves two vectors: pDst[k] = sum of pSrc1[i] pSrc2[k-i] over all i where both are there, for k from 0 to
    src1Len + src2Len - 2. The two may be exchanged.

    With a the longer length, b the shorter and D = a + b - 1 there are three methods:

        D < 512 or b < 64    direct: outputs are summed in the order of the shorter vector (of the second one if both
                             are as long), in runs of 256 elements, for 4096 elements of the longer vector at a time
        a >= 3 b             overlap-save: transforms of 2^n points, at least 4 b and less than 8 b
        otherwise            one transform of 2^n points, at least D

    Results of the three agree up to rounding. On the first one a NaN or an infinity reaches the outputs that it is part
    of, on the others all outputs of its transform. Of vectors exchanged the first method may round differently, and
    only if they are equally long.

    Overlap-save of more than 4096 elements is shared out to threads if the call is worth it, except with 16-bit
    elements. There are as many threads as OpenMP's settings allow; the results are the same on any number of them, and
    the caller's rounding mode holds in all.

    16-bit elements are computed in single precision; the results are scaled by 2^-scaleFactor, rounded to the nearest
    integer, ties to even, in any rounding mode, and saturated. Sums beyond 2^24 have been rounded before.

    @param pSrc1       first vector, `src1Len` elements
    @param src1Len     its length, at least 1
    @param pSrc2       second vector, `src2Len` elements; may be `pSrc1`
    @param src2Len     its length, at least 1
    @param pDst        destination, src1Len + src2Len - 1 elements; must not overlap the vectors
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for a length below 1, or if 32 bits do
    not hold the length of the destination; tarnStsFftOrderErr for lengths that need a transform of more than 2^30
            points; tarnStsNoMemErr if there is not enough memory */
///@{
TARN_API TarnStatus tarnsConv_32f(const Tarn32f* pSrc1, int src1Len, const Tarn32f* pSrc2, int src2Len, Tarn32f* pDst);
TARN_API TarnStatus tarnsConv_64f(const Tarn64f* pSrc1, int src1Len, const Tarn64f* pSrc2, int src2Len, Tarn64f* pDst);
TARN_API TarnStatus tarnsConv_16s_Sfs(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len,
                                      Tarn16s* pDst, int scaleFactor);
///@}

/** Convolves two vectors of N elements cyclically: pDst[k] = sum of pSrc1[i] pSrc2[(k-i) mod N] over i from 0 to N - 1,
    with N = 8, or N = 4 for `4x4`. These functions check nothing.

    Floats are summed in the order of `pSrc1`, each product and each sum rounded once in the current mode.

    16-bit elements are multiplied and summed modulo 2^32. A positive `scaleFactor` shifts the sum right, towards minus
    infinity: unlike elsewhere nothing is rounded. A negative one shifts it left, and what leaves 32 bits is lost. Then
    the sum is saturated to 16 bits.

    @param pSrc1       first vector, N elements
    @param pSrc2       second vector, N elements
    @param pDst        destination, N elements; may be one of the vectors, must not overlap them otherwise
    @param scaleFactor number of shifts to the right, or if negative to the left; any value. 32 and more leave a sign (0
                       or -1) on the right, and 0 on the left
    @return tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsConvCyclic8x8_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst);
TARN_API TarnStatus tarnsConvCyclic4x4_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst);
TARN_API TarnStatus tarnsConvCyclic8x8_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst,
                                               int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
