/* Window functions: weights for spectral analysis and filter design. */
#ifndef TARNS_WINDOWS_H
#define TARNS_WINDOWS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup windows Windows
    Fades the ends of a stretch of signal out: before a Fourier transform, so that a strong tone does not cover a weak
    one some bins away, and in filter design.

    @code{.c}
    Tarn32f frame[5] = {1, 1, 1, 1, 1};
    tarnsWinHann_32f_I(frame, 5);
    printf("%g %g %g %g %g\n", frame[0], frame[1], frame[2], frame[3], frame[4]); // 0 0.5 1 0.5 0
    @endcode

    __Accuracy:__ a recurrence makes the weights, and drifts with the square of the length. The worst errors of Hann and
    Hamming windows of all lengths up to those given, of 16-bit elements of full scale in units of their last place, of
    floats in units of the largest weight:

    | Elements |   400 |    1000 |    4000 |  16,384 |  50,000 | 100,000 | 1,000,000 |
    | -------- | ----: | ------: | ------: | ------: | ------: | ------: | --------: |
    | `16s`    |   0.7 |       2 |      23 |     350 |    3200 |  15,000 |   silence |
    | `16sc`   |   1.4 |       6 |      87 |    1400 |  15,000 | silence |   silence |
    | `32f`    |  3e-8 |    3e-8 |    3e-8 |    3e-8 |    3e-8 |  3.3e-8 |    3.1e-7 |
    | `32fc`   |  3e-8 |    3e-8 |    3e-8 |    3e-8 |  3.3e-8 |    4e-8 |    1.2e-6 |
    | `64f`    | 6e-14 | 3.5e-13 | 4.8e-12 | 8.6e-11 | 7.8e-10 |    3e-9 |    2.8e-7 |
    | `64fc`   | 2e-13 | 1.2e-12 | 1.9e-11 | 3.5e-10 | 3.1e-9  |  1.1e-8 |    1.2e-6 |

    Blackman windows err up to 1.6 times as much, in `64f` from 1026 elements on six times; in `32f` they have 1e-7 up
    to 1025 elements, where their weights are of single precision. Bartlett windows of 16 bits stay within 1.4 units up
    to 16,384 elements and within 12 up to 200,000. Kaiser windows do not drift.

    __16-bit elements:__ the recurrence is one of single precision, whose factor rounds to 2 from 103,000 elements on
    (`16sc` from 51,500): then the window is silence throughout, or the pedestal if it is Hamming's. From some 600
    elements on, `16sc` from 300, the drift passes one unit: convert longer signals to `32f`, window those and convert
    back.

    __Cost:__ 0.03 to 0.13 of a loop with a cosine an element, Blackman in single and double precision and Bartlett in
    single 0.2 to 0.3.

    __Guide:__ [Windows, tones and filter design](docs/windows.md).

    Every function multiplies an array by a symmetric window: pDst[n] = w[n] pSrc[n] and
    pDst[len - 1 - n] = w[n] pSrc[len - 1 - n] for n below len / 2. The middle element of an odd number has the weight 1
    and is copied, or left alone. Of a complex element both parts are multiplied by the same weight.

    No weight is the result of a cosine of its own: two cosines start a second-order recurrence
    y[n+s] = 2 cos(s t) y[n] - y[n-s], with t = 2 pi / (len - 1). It runs in single precision for 16-bit elements and in
    double or extended precision for the others. The product with a weight is rounded to the element's type. 16-bit
    elements are rounded by the processor's conversion to integer in the current rounding mode (to nearest, ties to
    even, unless the caller changed it) and saturated; a product beyond the range of 32-bit integers, which only
    extreme values of alpha reach, becomes -32768 as in that conversion.

    The weights at the ends are computed values: where they are zero, an infinity or a NaN there becomes a NaN.
    @{ */

/** Multiplies by a triangular window: w[n] = 2 n / (len - 1).

    The weights grow by additions of the rounded step, four or two of them at a time, or, from 1282 elements of single
    precision on, one at a time in extended precision. With three elements the ends are set to zero.

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinBartlett_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsWinBartlett_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBartlett_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBartlett_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBartlett_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBartlett_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBartlett_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies by a Hann window: w[n] = 0.5 - 0.5 cos(n t), a raised cosine, with t = 2 pi / (len - 1).

    With three elements the ends are set to zero, but for double precision, where the zero weight is computed.

    Convert 16-bit elements to `32f` first if there are more than some 600, or 300 complex ones: the weights drift.

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinHann_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWinHann_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsWinHann_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWinHann_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsWinHann_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsWinHann_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsWinHann_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHann_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHann_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHann_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHann_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHann_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies by a Hamming window: w[n] = 0.54 - 0.46 cos(n t), a raised cosine on a pedestal, with t = 2 pi / (len -
    1).

    Convert 16-bit elements to `32f` first if there are more than some 600, or 300 complex ones: the weights drift.

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinHamming_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsWinHamming_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHamming_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHamming_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHamming_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHamming_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinHamming_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies by a generalised Blackman window: w[n] = (alpha + 1) / 2 - 0.5 cos(n t) - alpha / 2 cos(2 n t), with t =
    2 pi / (len - 1).

    Computed as (alpha + 0.5) - y - 4 alpha y^2 with y = 0.5 cos(n t). Above 1025 elements of single or double precision
    the whole weight is formed in extended precision. With three elements the ends are set to zero; in single precision
    they always are, whatever stood there. In double precision they carry the rounding of alpha + 0.5.

    Convert 16-bit elements to `32f` first if there are more than some 600, or 300 complex ones: the weights drift.

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @param alpha   weight of the second harmonic, any value: weights may exceed 1, and 16-bit elements saturate
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinBlackman_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f alpha);
TARN_API TarnStatus tarnsWinBlackman_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f alpha);
TARN_API TarnStatus tarnsWinBlackman_16s_I(Tarn16s* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_16sc_I(Tarn16sc* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_32f_I(Tarn32f* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinBlackman_64f_I(Tarn64f* pSrcDst, int len, Tarn64f alpha);
TARN_API TarnStatus tarnsWinBlackman_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f alpha);
///@}

/** Multiplies by a generalised Blackman window with alpha = -0.16, the customary one; see tarnsWinBlackman_32f().

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinBlackmanStd_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanStd_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies by a generalised Blackman window with alpha = -(0.5 / cos(pi / (len - 1)))^2, for which the side lobes
    fall fastest; see tarnsWinBlackman_32f().

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 4
    @return tarnStsNoErr; tarnStsSizeErr for `len` below 4, tested first; tarnStsNullPtrErr for a null pointer */
///@{
TARN_API TarnStatus tarnsWinBlackmanOpt_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsWinBlackmanOpt_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies by a generalised Blackman window with a fixed-point alpha = alphaQ15 2^-15, rounded to single precision;
    see tarnsWinBlackman_32f().

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 3
    @param alphaQ15 alpha in units of 2^-15, any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
///@{
TARN_API TarnStatus tarnsWinBlackmanQ15_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinBlackmanQ15_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinBlackmanQ15_16s_I(Tarn16s* pSrcDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinBlackmanQ15_16sc_I(Tarn16sc* pSrcDst, int len, int alphaQ15);
///@}

/** Multiplies by a generalised Blackman window with a fixed-point alpha, scaled: every element, the middle one of an
    odd number included, is multiplied by 2^-scaleFactor as well. Results are rounded to nearest, ties to even, and
    saturated; with three elements the middle one is rounded half away from zero, and the ends are set to zero.

    @param pSrcDst     array of `len` elements
    @param len         number of elements, at least 3
    @param alphaQ15    alpha in units of 2^-15, any value
    @param scaleFactor any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 3 */
TARN_API TarnStatus tarnsWinBlackmanQ15_16s_ISfs(Tarn16s* pSrcDst, int len, int alphaQ15, int scaleFactor);

/** Multiplies by a Kaiser window: pDst[n] = pSrc[n] w[n] with w[n] = I0(|alpha| sqrt(n (len - 1 - n))) / I0(|alpha|
    (len - 1) / 2), I0 being the modified Bessel function of the first kind and order 0. The shape that textbooks call
    beta is
    |alpha| (len - 1) / 2: it trades the width of the main lobe against the level of the side lobes, which no window of
    the same length beats. 0 leaves the signal as it is.

    I0 comes from polynomials: the weights are within 1.1e-4 of the formula in single precision (16-bit and `32f`
    elements), 1.4e-5 in double precision, the largest errors being where |alpha| sqrt(n (len - 1 - n)) is just below
    3.75 or 4. The middle element of an odd number is not touched. 16-bit results
    are rounded in the current rounding mode and saturated.

    @param pSrc    source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst    destination, `len` elements
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @param alpha   shape, of either sign; |alpha| (len - 1) / 2 is at most 38
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsKaiserHugeErr for |alpha| (len - 1) / 2 above 38; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsWinKaiser_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_16s_I(Tarn16s* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_16sc_I(Tarn16sc* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_32f_I(Tarn32f* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_64f_I(Tarn64f* pSrcDst, int len, Tarn32f alpha);
TARN_API TarnStatus tarnsWinKaiser_64fc_I(Tarn64fc* pSrcDst, int len, Tarn32f alpha);
///@}

/** Multiplies by a Kaiser window with a fixed-point alpha = alphaQ15 2^-15; see tarnsWinKaiser_32f().

    @param pSrc     source, `len` elements; may be the destination, must not overlap it otherwise
    @param pDst     destination, `len` elements
    @param pSrcDst  array of `len` elements
    @param len      number of elements, at least 1
    @param alphaQ15 alpha in units of 2^-15
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsKaiserHugeErr for |alpha| (len - 1) / 2 above 38; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsWinKaiserQ15_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinKaiserQ15_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinKaiserQ15_16s_I(Tarn16s* pSrcDst, int len, int alphaQ15);
TARN_API TarnStatus tarnsWinKaiserQ15_16sc_I(Tarn16sc* pSrcDst, int len, int alphaQ15);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
