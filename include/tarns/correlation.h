/* Correlation of a vector with itself and with another one. */
#ifndef TARNS_CORRELATION_H
#define TARNS_CORRELATION_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup correlation Correlation
    How alike a vector and a delayed one are, for a range of delays: echoes, pitch, arrival times. Vectors are zero
    where they have no elements.

    @code{.c}
    const Tarn32f sent[3] = {1, -1, 2}, heard[6] = {0, 0, 1, -1, 2, 0};
    Tarn32f alike[4];
    tarnsCrossCorr_32f(sent, 3, heard, 6, alike, 4, 0); // lags 0 to 3
    printf("%g %g %g %g\n", alike[0], alike[1], alike[2], alike[3]); // 2 -3 6 -3
    @endcode

    __Accuracy:__ direct sums round each addition of their precision, in runs of 256; transforms agree up to rounding.

    __Cost:__ directly 0.1 to 0.45 of a plain loop, one lag alone 1.2; all lags of 4096 by 4096 elements by a transform
    0.013.

    __Guide:__ [Convolution and correlation](docs/convolution.md).

    Few lags are summed directly: in the order of the elements, in runs of 256, so that a lag's result does not depend
    on the others of the call. Complex sums are built of four sums of real products, and the products of real parts and
    of imaginary ones are summed apart. Many lags are computed by one transform, which agrees up to rounding. Directly a
    NaN or an infinity reaches the lags that it is part of, by transforms all of them.

    16-bit elements are computed in single precision, normalisation included. Then the results are scaled by
    2^-scaleFactor, rounded to the nearest integer, ties to even, in any rounding mode, and saturated.

    All calls run on the calling thread.
    @{ */

/** Correlates a vector with itself: pDst[n] = sum of conj(pSrc[i]) pSrc[i+n] over i from 0 to srcLen - 1 - n, for n
    from 0 to dstLen - 1. Lags from `srcLen` on are 0.

    With m the smaller of the lengths a transform of at least 2 srcLen points is taken from m = 856 on (16s, 32f, 64f),
    from 152 on (32fc), from 368 on (64fc).

    @param pSrc        vector, `srcLen` elements
    @param srcLen      its length, at least 1
    @param pDst        destination, `dstLen` elements; must not overlap `pSrc`
    @param dstLen      number of lags, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for a length below 1; tarnStsFftOrderErr
            for a vector that needs a transform of more than 2^30 points; tarnStsNoMemErr if there is not enough memory
 */
///@{
TARN_API TarnStatus tarnsAutoCorr_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_16s_Sfs(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int dstLen, int scaleFactor);
///@}

/** Correlates a vector with itself and multiplies every lag by 1 / srcLen, rounded to the type: the biased estimate.
    Otherwise the same as tarnsAutoCorr.

    @param pSrc        vector, `srcLen` elements
    @param srcLen      its length, at least 1
    @param pDst        destination, `dstLen` elements; must not overlap `pSrc`
    @param dstLen      number of lags, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return as tarnsAutoCorr */
///@{
TARN_API TarnStatus tarnsAutoCorr_NormA_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormA_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormA_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormA_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormA_16s_Sfs(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int dstLen,
                                                int scaleFactor);
///@}

/** Correlates a vector with itself and divides lag n by srcLen - n, the number of its products: the unbiased estimate.
    The last lags are means of few products. Single-precision quotients are those of tarnsDiv_32f, so the division of
    more than a few lags is a refined approximation. Otherwise the same as tarnsAutoCorr.

    @param pSrc        vector, `srcLen` elements
    @param srcLen      its length, at least 1
    @param pDst        destination, `dstLen` elements; must not overlap `pSrc`
    @param dstLen      number of lags, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return as tarnsAutoCorr; where memory for the divisors is missing, float results are left undivided */
///@{
TARN_API TarnStatus tarnsAutoCorr_NormB_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormB_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormB_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormB_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int dstLen);
TARN_API TarnStatus tarnsAutoCorr_NormB_16s_Sfs(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int dstLen,
                                                int scaleFactor);
///@}

/** Correlates two vectors: pDst[n] = sum of conj(pSrc1[i]) pSrc2[i + n + lowLag] over all i where both are there, for n
    from 0 to dstLen - 1. Lags below 1 - src1Len, and from `src2Len` on, are 0.

    With d the number of the other lags, and a and b the lengths, a transform of at least a + b - 1 points is taken
    where the integer part of d min(a, b) / max(a, b), computed in single precision, is above 383 (16s, 32f), 255
    (32fc), 511 (64f, 64fc). Directly, sums are in the order of `pSrc1`; in that of `pSrc2` for the lags at which it
    lies within a longer `pSrc1`.

    @param pSrc1       first vector, `src1Len` elements
    @param src1Len     its length, at least 1
    @param pSrc2       second vector, `src2Len` elements; may be `pSrc1`
    @param src2Len     its length, at least 1
    @param pDst        destination, `dstLen` elements; must not overlap the vectors
    @param dstLen      number of lags, at least 1
    @param lowLag      lag of the first one, any integer
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for a length below 1; tarnStsFftOrderErr
            for vectors that need a transform of more than 2^30 points; tarnStsNoMemErr if there is not enough memory */
///@{
TARN_API TarnStatus tarnsCrossCorr_32f(const Tarn32f* pSrc1, int src1Len, const Tarn32f* pSrc2, int src2Len,
                                       Tarn32f* pDst, int dstLen, int lowLag);
TARN_API TarnStatus tarnsCrossCorr_64f(const Tarn64f* pSrc1, int src1Len, const Tarn64f* pSrc2, int src2Len,
                                       Tarn64f* pDst, int dstLen, int lowLag);
TARN_API TarnStatus tarnsCrossCorr_32fc(const Tarn32fc* pSrc1, int src1Len, const Tarn32fc* pSrc2, int src2Len,
                                        Tarn32fc* pDst, int dstLen, int lowLag);
TARN_API TarnStatus tarnsCrossCorr_64fc(const Tarn64fc* pSrc1, int src1Len, const Tarn64fc* pSrc2, int src2Len,
                                        Tarn64fc* pDst, int dstLen, int lowLag);
TARN_API TarnStatus tarnsCrossCorr_16s_Sfs(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len,
                                           Tarn16s* pDst, int dstLen, int lowLag, int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
