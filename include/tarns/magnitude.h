/* Magnitudes of complex vectors, and their squares. */
#ifndef TARNS_MAGNITUDE_H
#define TARNS_MAGNITUDE_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup magnitude Magnitudes and power spectra
    How large complex elements are: magnitudes, and power spectra, which are their squares.

    @code{.c}
    const Tarn32fc bins[2] = {{3, 4}, {0, -2}};
    Tarn32f size[2], power[2];
    tarnsMagnitude_32fc(bins, size, 2);
    tarnsPowerSpectr_32fc(bins, power, 2);
    printf("%.5f %.5f %g %g\n", size[0], size[1], power[0], power[1]); // 5.00000 2.00000 25 4
    @endcode

    __Accuracy:__ `tarnsMagnitude_32fc` is within 4 units of the last place, other floats are the nearest root of the
    rounded sum. Squares overflow beyond some 1e19 in single precision.

    __Cost:__ 0.3 to 0.6 of a plain loop for `32fc`, 0.5 for `64fc`; power spectra a plain loop's time.

    __Guide:__ [Quotients, roots, magnitudes and phases](docs/division-and-roots.md).

    Most functions exist in two shapes: of one complex array, and of the same numbers as two real arrays.

    Scaled forms (`Sfs`) multiply by 2^-scaleFactor, round to the nearest integer, ties to the even one, and saturate.
    A positive factor shrinks, a negative one grows; no value is illegal. Squares are formed in the element's own
    precision: they overflow where the square of a part does, and vanish where it does.
    @{ */

/** Computes magnitudes: pDst[i] = sqrt(re^2 + im^2) * 2^-scaleFactor.

    `16s_Sfs` and `16sc_Sfs` take the root of the exact sum of squares in single precision, `32sc_Sfs` of a sum in
    double precision. At a factor of 16 words give 1 where the sum exceeds 2^30.

    `32f`, `64f` and `64fc` take the correctly rounded root of the rounded sum, in the current rounding mode; so do
    `16s32f` and `16sc32f`. `32fc` multiplies the sum s by y / 2 (3 - s y y), with y the processor's approximation of
    1 / sqrt(s): within 4 units in the last place. Sums that are zero, infinite or no normal numbers have true roots.

    @param pSrcRe      real parts, `len` elements
    @param pSrcIm      imaginary parts, `len` elements
    @param pSrc        complex source, `len` elements
    @param pDst        destination, `len` reals; may be a source of its type itself, and must not overlap one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMagnitude_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                           int scaleFactor);
TARN_API TarnStatus tarnsMagnitude_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMagnitude_32sc_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMagnitude_16s32f(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMagnitude_16sc32f(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMagnitude_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMagnitude_32fc(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMagnitude_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMagnitude_64fc(const Tarn64fc* pSrc, Tarn64f* pDst, int len);
///@}

/** Computes power spectra: pDst[i] = (re^2 + im^2) * 2^-scaleFactor. The sum is exact before it is scaled; `16s32f` and
    `16sc32f` round it once to a float. Float forms round each square and the sum, in the current rounding mode.

    @param pSrcRe      real parts, `len` elements
    @param pSrcIm      imaginary parts, `len` elements
    @param pSrc        complex source, `len` elements
    @param pDst        destination, `len` reals; may be a source of its type itself, and must not overlap one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsPowerSpectr_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                             int scaleFactor);
TARN_API TarnStatus tarnsPowerSpectr_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsPowerSpectr_16s32f(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPowerSpectr_16sc32f(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPowerSpectr_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPowerSpectr_32fc(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPowerSpectr_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsPowerSpectr_64fc(const Tarn64fc* pSrc, Tarn64f* pDst, int len);
///@}

/** Computes squared magnitudes of 32-bit elements by way of floats: pDst[i] = (re^2 + im^2) * 2^-scaleFactor, converted
    in the current rounding mode.

    Four elements at a time have their parts converted to single precision, squared and added there. What is left over
    of the last group of four, and arrays of fewer than four, form the sum exactly and round it to single precision
    once. So an element may differ in its last digits with its place; only 24 bits of a square count anyhow.

    A value of 2^31 and above becomes -2147483648, since the conversion has no such integer. The invalid-operation and
    underflow flags of MXCSR are clear afterwards, also if they were set before.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` reals; must not overlap `pSrc`
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer; below -127 a zero element, too, becomes
                       -2147483648, being zero times infinity
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsMagSquared_32sc32s_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
