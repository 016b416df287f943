/* Running averages of samples and of their squares, and pre-emphasis. */
#ifndef TARNS_UPDATE_H
#define TARNS_UPDATE_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup update Running averages, pre-emphasis
    Running averages of levels and powers, and the pre-emphasis of speech coders.

    @code{.c}
    Tarn32f x[4] = {1, 1, 1, -1};
    tarnsPreemphasize_32f(x, 4, 0.5F); // x[n] - 0.5 x[n-1]
    printf("%g %g %g %g\n", x[0], x[1], x[2], x[3]); // 1 0.5 0.5 -1.5
    @endcode

    __Accuracy:__ averages are computed in double precision, or in single where the hint asks for speed, and saturate.

    __Cost:__ 0.13 to 0.5 of a plain loop; pre-emphasis 0.2 (16 bits) and 0.3 (floats).

    __Guide:__ [Coding](docs/coding.md).
    @{ */

/** Updates a first-order average with a block of samples. With y from `*pSrcDst`, for each sample in order

        tarnsUpdateLinear_16s32s_I     y = alpha * y + (1 - alpha) * (pSrc[n] >> srcShiftRight)
        tarnsUpdatePower_16s32s_I      y = alpha * y + (1 - alpha) * ((pSrc[n] * pSrc[n]) >> srcShiftRight)

    and y goes back to `*pSrcDst`, saturated. Shifts are arithmetic: they round down. Squares have all their 32 bits.

    `alpha` is the integer that it is; it is no fraction in disguise. So only 1, which leaves y alone, 0, which
    takes the last sample, and -1 keep y within bounds: with any other one it grows by a factor of `alpha` a sample,
    unless y and all the samples are equal.

    The arithmetic is of doubles, or of single-precision floats where the hint asks for speed. Blocks of samples are
    taken at once in closed form, of as many as keep the products exact: a result that fits 32 bits is exact, or in
    single precision exact if it and the samples' contributions fit 24 bits.

    | Function | `alpha` | `hint` | Computed in | Saturated and converted |
    | --- | --- | --- | --- | --- |
    | linear | -6 to 8 | tarnAlgHintFast | `Tarn32f` | at -2147483648 and 2147483520; to nearest |
    | linear | -180 to 181 | otherwise | double | at -2147483648 and 2147483647; to nearest |
    | linear | any other one | any | double | at -2147483648 and 2147483647; towards zero |
    | power | any | tarnAlgHintFast | `Tarn32f` | at -2147483648 and 2147483520; to nearest |
    | power | any | otherwise | double | at -2147483648 and 2147483647; to nearest |

    In `Tarn32f` an initial y of more than 24 bits is rounded, too, though `alpha` be 1.

    @param pSrc          samples, `len` elements
    @param len           number of samples, at least 1
    @param pSrcDst       the average, one element
    @param srcShiftRight shift of the samples, or of their squares. Values beyond 0 to 15, or 0 to 31 of squares, count
                         as the nearer bound
    @param alpha         weight of the average so far; 1 - `alpha` is that of a sample
    @param hint          tarnAlgHintFast for single precision
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsUpdateLinear_16s32s_I(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight,
                                               Tarn16s alpha, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsUpdatePower_16s32s_I(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight,
                                              Tarn16s alpha, TarnHintAlgorithm hint);
///@}

/** Pre-emphasizes a signal, which raises the high frequencies of speech: y[n] = x[n] - val * x[n - 1], in place, x[-1]
    being 0. No history is kept: a signal that comes in blocks needs its last sample taken along by the caller, and two
    calls on two halves differ from one call in the first sample of the second half.

    Product and difference are in single precision and in the current rounding mode. Samples of `16s` are converted to
    `Tarn32f` and back by the processor's conversion in the same mode, normally to nearest with ties to even, and
    saturated; a result beyond 32 bits, or a NaN, is -32768.

    @param pSrcDst signal, `len` elements
    @param len     number of elements, at least 1
    @param val     coefficient, for speech some 0.95
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsPreemphasize_32f(Tarn32f* pSrcDst, int len, Tarn32f val);
TARN_API TarnStatus tarnsPreemphasize_16s(Tarn16s* pSrcDst, int len, Tarn32f val);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
