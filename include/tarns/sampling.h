/* Samples of a signal normalized, joined from channels, left out and spread. */
#ifndef TARNS_SAMPLING_H
#define TARNS_SAMPLING_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup sampling Normalization, joining, sampling
    Takes an offset and a scale away, joins channels into frames, leaves samples out and puts zeros between them.

    @code{.c}
    const Tarn32f x[6] = {0, 1, 2, 3, 4, 5};
    Tarn32f every[2];
    int phase = 1, count;
    tarnsSampleDown_32f(x, 6, every, &count, 3, &phase); // every third, from the second on
    printf("%d: %g %g\n", count, every[0], every[1]); // 2: 1 4
    @endcode

    __Accuracy:__ samples are moved, not filtered: what lies above half of the new rate folds back. To change a rate
    properly take @ref firmr. `tarnsNormalize` multiplies by the rounded reciprocal.

    __Cost:__ 0.13 to 0.5 of a plain loop; normalization 0.9 in floats, 0.2 in integers.

    __Guide:__ [Working on vectors](docs/vectors.md).
    @{ */

/** Takes an offset away and divides: pDst[i] = (pSrc[i] - vSub) / vDiv. Complex elements have a complex offset and a
    real divisor. The division is one multiplication by 1 / vDiv, so that results may differ from those of a division in
    the last place; each operation is rounded in the current rounding mode, and NaN and infinities follow it.

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @param vSub offset
    @param vDiv divisor, of a magnitude of at least 1.1754943508222875e-38, the smallest normal single
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsDivByZeroErr
    for a smaller divisor or NaN */
///@{
TARN_API TarnStatus tarnsNormalize_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f vSub, Tarn32f vDiv);
TARN_API TarnStatus tarnsNormalize_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f vSub, Tarn64f vDiv);
TARN_API TarnStatus tarnsNormalize_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32fc vSub, Tarn32f vDiv);
TARN_API TarnStatus tarnsNormalize_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64fc vSub, Tarn64f vDiv);
///@}

/** Takes an offset away from integers and divides: pDst[i] = (pSrc[i] - vSub) / vDiv * 2^-scaleFactor, for each part if
    complex. The difference is exact and is multiplied by the double 2^-scaleFactor / vDiv; the product is rounded to
    nearest, ties to even, whatever the current rounding mode is, and saturated at the bounds of `16s`.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len         number of elements, at least 1
    @param vSub        offset
    @param vDiv        divisor, not 0
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsDivByZeroErr
    for a `vDiv` of 0 */
///@{
TARN_API TarnStatus tarnsNormalize_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s vSub, int vDiv,
                                           int scaleFactor);
TARN_API TarnStatus tarnsNormalize_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16sc vSub, int vDiv,
                                            int scaleFactor);
///@}

/** Joins channels into frames: pDst[i * nChannels + c] = pSrc[c][i], limited to -32768 and 32767 and converted to an
    integer in the current rounding mode, normally to nearest with ties to even. A NaN becomes -32768.

    @param pSrc      `nChannels` pointers to channels of `chanLen` elements each
    @param nChannels number of channels, at least 1
    @param chanLen   number of elements of each channel, at least 1
    @param pDst      destination, `nChannels` times `chanLen` elements; must not overlap a channel
    @return tarnStsNoErr; checked in this order: tarnStsNullPtrErr for a null `pDst`; tarnStsSizeErr for `nChannels` or
            `chanLen` below 1; tarnStsNullPtrErr for a null `pSrc` or a null channel */
TARN_API TarnStatus tarnsJoin_32f16s_D2L(const Tarn32f** pSrc, int nChannels, int chanLen, Tarn16s* pDst);

/** Leaves samples out: pDst[i] = pSrc[phase + i * factor], for every such index below `srcLen`. Elements keep their
    bits.

    @param pSrc    source, `srcLen` elements
    @param srcLen  number of elements of the source, at least 1
    @param pDst    destination, room for as many elements as are taken; may be `pSrc` itself, and must not overlap it
                   otherwise
    @param pDstLen gets the number of elements taken, which is 0 for a phase of `srcLen` or more
    @param factor  distance of the elements taken, at least 1
    @param pPhase  index of the first element taken, from 0 to `factor` - 1. It becomes the phase at which the next
    block of the same signal goes on.
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `srcLen` below 1;
            tarnStsSampleFactorErr for `factor` below 1; tarnStsSamplePhaseErr for a phase out of range */
///@{
TARN_API TarnStatus tarnsSampleDown_16s(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int* pDstLen, int factor,
                                        int* pPhase);
TARN_API TarnStatus tarnsSampleDown_16sc(const Tarn16sc* pSrc, int srcLen, Tarn16sc* pDst, int* pDstLen, int factor,
                                         int* pPhase);
TARN_API TarnStatus tarnsSampleDown_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int* pDstLen, int factor,
                                        int* pPhase);
TARN_API TarnStatus tarnsSampleDown_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int* pDstLen, int factor,
                                         int* pPhase);
TARN_API TarnStatus tarnsSampleDown_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int* pDstLen, int factor,
                                        int* pPhase);
TARN_API TarnStatus tarnsSampleDown_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int* pDstLen, int factor,
                                         int* pPhase);
///@}

/** Puts zeros between samples: pDst[phase + i * factor] = pSrc[i], all other elements 0. Elements keep their bits.

    @param pSrc    source, `srcLen` elements
    @param srcLen  number of elements of the source, at least 1
    @param pDst    destination, `srcLen` times `factor` elements; must not overlap `pSrc`
    @param pDstLen gets `srcLen` times `factor`
    @param factor  number of elements that each one of the source becomes, at least 1
    @param pPhase  place of the sample among them, from 0 to `factor` - 1; left as it is
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `srcLen` below 1;
            tarnStsSampleFactorErr for `factor` below 1; tarnStsSamplePhaseErr for a phase out of range */
///@{
TARN_API TarnStatus tarnsSampleUp_16s(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int* pDstLen, int factor,
                                      int* pPhase);
TARN_API TarnStatus tarnsSampleUp_16sc(const Tarn16sc* pSrc, int srcLen, Tarn16sc* pDst, int* pDstLen, int factor,
                                       int* pPhase);
TARN_API TarnStatus tarnsSampleUp_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int* pDstLen, int factor,
                                      int* pPhase);
TARN_API TarnStatus tarnsSampleUp_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int* pDstLen, int factor,
                                       int* pPhase);
TARN_API TarnStatus tarnsSampleUp_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int* pDstLen, int factor,
                                      int* pPhase);
TARN_API TarnStatus tarnsSampleUp_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int* pDstLen, int factor,
                                       int* pPhase);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
