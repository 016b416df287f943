/* One level of the Haar wavelet transform of a whole vector. */
#ifndef TARNS_HAAR_H
#define TARNS_HAAR_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup haar Haar wavelet
    One level of the simplest wavelet: pairs of neighbours become a mean and a difference, and come back.

    @code{.c}
    const Tarn32f x[4] = {1, 3, 6, 2};
    Tarn32f low[2], high[2], y[4];
    tarnsWTHaarFwd_32f(x, 4, low, high);
    tarnsWTHaarInv_32f(low, high, y, 4);
    printf("%g %g, %g %g\n", low[0], low[1], high[0], high[1]); // 2 4, 1 -2
    printf("%g %g %g %g\n", y[0], y[1], y[2], y[3]); // 1 3 6 2
    @endcode

    __Accuracy:__ floats come back within two units of the last place of the larger one of a pair; integers off by one
    in a quarter of all samples, or exactly by a scale factor of -1 and then 1.

    __Cost:__ forward 2.5 to 8 times a copy, back 1.4 to 5.7 times: 0.14 to 0.55 of a plain loop for integers, that of a
    loop for floats.

    __Guide:__ [The Haar wavelet](docs/haar.md).

    Pairs of neighbours become a low value, their mean, and a high value, half their difference; the inverse takes sum
    and difference of the two. With a = pSrc[2k] and b = pSrc[2k + 1]:

        low[k] = (a + b) / 2    high[k] = (b - a) / 2         x[2k] = low[k] - high[k]    x[2k + 1] = low[k] + high[k]

    What surprises those who know other definitions:

    - There is no square root of 2. The textbook's orthonormal transform is sqrt(2) times both channels; here a constant
      signal keeps its level from the one scale to the next, and nothing can overflow.
    - The high channel is the second sample minus the first.
    - Integers do not come back exactly. Sum and difference are halved and rounded each by itself, ties to even. They
      are odd together, in half of all pairs, and then one of the two samples comes back off by one: a quarter of all
      samples. The scaled forms offer a transform that loses nothing.
    - The length is always that of the vector at full rate. Of an odd number of samples the last one is the last low
      value, and has no partner in the high channel.

    Further levels are further calls on the low channel.
    @{ */

/** Computes one level forward: pDstLow[k] = (a + b) / 2, pDstHigh[k] = (b - a) / 2.

    Integers are rounded to nearest, ties to even; nothing overflows on the way, and a high value of 127.5 or 32767.5 is
    the highest value of the type. The same holds for `32s` and `64s`, with one rule more: where (b >> 1) - (a >> 1) is
    the highest value, which takes the two highest and the two lowest samples there are, that is the high value, and in
    `32s` the low value is 0.

    Floats: h = (b - a) * 0.5 in the extended format of 64 significant bits; high is h, and low is a + h, each rounded
    once to the type of the samples. The difference of two samples thus cannot overflow. The format is that of the x87
    unit and follows its control word. If `a` is infinite the low value is a NaN; -0 and -0 have a low value of +0.

    @param pSrc     source, `len` elements
    @param len      number of elements of the source, at least 1
    @param pDstLow  low channel, (`len` + 1) / 2 elements; may be `pSrc`, and must not overlap it otherwise
    @param pDstHigh high channel, `len` / 2 elements, so that of one sample it is not touched; may be `pSrc`, too, but
                    must not overlap the low channel
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsWTHaarFwd_8s(const Tarn8s* pSrc, int len, Tarn8s* pDstLow, Tarn8s* pDstHigh);
TARN_API TarnStatus tarnsWTHaarFwd_16s(const Tarn16s* pSrc, int len, Tarn16s* pDstLow, Tarn16s* pDstHigh);
TARN_API TarnStatus tarnsWTHaarFwd_32s(const Tarn32s* pSrc, int len, Tarn32s* pDstLow, Tarn32s* pDstHigh);
TARN_API TarnStatus tarnsWTHaarFwd_64s(const Tarn64s* pSrc, int len, Tarn64s* pDstLow, Tarn64s* pDstHigh);
TARN_API TarnStatus tarnsWTHaarFwd_32f(const Tarn32f* pSrc, int len, Tarn32f* pDstLow, Tarn32f* pDstHigh);
TARN_API TarnStatus tarnsWTHaarFwd_64f(const Tarn64f* pSrc, int len, Tarn64f* pDstLow, Tarn64f* pDstHigh);
///@}

/** Computes one level back: pDst[2k] = l - h, pDst[2k + 1] = l + h, with l = pSrcLow[k] and h = pSrcHigh[k]; of an odd
    length the last element is the last one of the low channel. Integers saturate at the bounds of their type; floats
    are one operation each in the current rounding mode, and NaN and infinities follow it.

    @param pSrcLow  low channel, (`len` + 1) / 2 elements
    @param pSrcHigh high channel, `len` / 2 elements
    @param pDst     destination, `len` elements; must not overlap the channels
    @param len      number of elements of the destination, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsWTHaarInv_8s(const Tarn8s* pSrcLow, const Tarn8s* pSrcHigh, Tarn8s* pDst, int len);
TARN_API TarnStatus tarnsWTHaarInv_16s(const Tarn16s* pSrcLow, const Tarn16s* pSrcHigh, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWTHaarInv_32s(const Tarn32s* pSrcLow, const Tarn32s* pSrcHigh, Tarn32s* pDst, int len);
TARN_API TarnStatus tarnsWTHaarInv_64s(const Tarn64s* pSrcLow, const Tarn64s* pSrcHigh, Tarn64s* pDst, int len);
TARN_API TarnStatus tarnsWTHaarInv_32f(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWTHaarInv_64f(const Tarn64f* pSrcLow, const Tarn64f* pSrcHigh, Tarn64f* pDst, int len);
///@}

/** Computes one level forward with a scale: pDstLow[k] = (a + b) * 2^-(scaleFactor + 1), pDstHigh[k] = (b - a) *
    2^-(scaleFactor + 1), rounded to nearest, ties to even, and saturated. The halving of the transform is one step of
    the scale: it is at a factor of -1 that sum and difference come out as they are. They do so without loss where they
    fit, and tarnsWTHaarInv at a factor of 1 then gives back every sample.

    A factor of 0 is the function without a scale, with its rule for the ends of `32s` and `64s`. Of an odd length the
    last element counts as a pair of two equal ones. Every factor is legal: from the width of the type in bits up all
    results are 0, and from one below the negative width down every result is a bound of the type, or 0.

    @param pSrc        source, `len` elements
    @param len         number of elements of the source, at least 1
    @param pDstLow     low channel, (`len` + 1) / 2 elements; may be `pSrc`, and must not overlap it otherwise
    @param pDstHigh    high channel, `len` / 2 elements; may be `pSrc`, too, but must not overlap the low channel
    @param scaleFactor see above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsWTHaarFwd_8s_Sfs(const Tarn8s* pSrc, int len, Tarn8s* pDstLow, Tarn8s* pDstHigh,
                                          int scaleFactor);
TARN_API TarnStatus tarnsWTHaarFwd_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pDstLow, Tarn16s* pDstHigh,
                                           int scaleFactor);
TARN_API TarnStatus tarnsWTHaarFwd_32s_Sfs(const Tarn32s* pSrc, int len, Tarn32s* pDstLow, Tarn32s* pDstHigh,
                                           int scaleFactor);
TARN_API TarnStatus tarnsWTHaarFwd_64s_Sfs(const Tarn64s* pSrc, int len, Tarn64s* pDstLow, Tarn64s* pDstHigh,
                                           int scaleFactor);
///@}

/** Computes one level back with a scale: pDst[2k] = (l - h) * 2^-scaleFactor, pDst[2k + 1] = (l + h) * 2^-scaleFactor,
    rounded to nearest, ties to even, and saturated; of an odd length the last element is the last low value scaled
    alike. Here the factor means what it means elsewhere: see [the scale rule](docs/scale-rule.md).

    One case differs: `16s` at a factor of 1 computes the second value as h plus the first one, before that is
    saturated. Where l + h is odd this may round the other way.

    @param pSrcLow     low channel, (`len` + 1) / 2 elements
    @param pSrcHigh    high channel, `len` / 2 elements
    @param pDst        destination, `len` elements; must not overlap the channels
    @param len         number of elements of the destination, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsWTHaarInv_8s_Sfs(const Tarn8s* pSrcLow, const Tarn8s* pSrcHigh, Tarn8s* pDst, int len,
                                          int scaleFactor);
TARN_API TarnStatus tarnsWTHaarInv_16s_Sfs(const Tarn16s* pSrcLow, const Tarn16s* pSrcHigh, Tarn16s* pDst, int len,
                                           int scaleFactor);
TARN_API TarnStatus tarnsWTHaarInv_32s_Sfs(const Tarn32s* pSrcLow, const Tarn32s* pSrcHigh, Tarn32s* pDst, int len,
                                           int scaleFactor);
TARN_API TarnStatus tarnsWTHaarInv_64s_Sfs(const Tarn64s* pSrcLow, const Tarn64s* pSrcHigh, Tarn64s* pDst, int len,
                                           int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
