/* Exponential, logarithms and arctangent of vectors. */
#ifndef TARNS_EXPONENTIAL_H
#define TARNS_EXPONENTIAL_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup exponential Exponential, logarithm, arctangent
    Exponentials, natural logarithms, decibels and arctangents of single elements: levels, gains, angles.

    @code{.c}
    const Tarn32f x[4] = {0, 1, 2, 10};
    Tarn32f e[4];
    tarnsExp_32f(x, e, 4);
    tarnsLn_32f_I(e, 4); // and back
    printf("%g %g %g %g\n", e[0], e[1], e[2], e[3]); // 0 1 2 10
    const Tarn32s powers[2] = {1000, 500};
    Tarn32s decibels[2];
    tarns10Log10_32s_Sfs(powers, decibels, 2, -4); // in sixteenths
    printf("%d %d\n", decibels[0], decibels[1]); // 480 432
    @endcode

    __Accuracy:__ floats are within 1 unit of the last place over all arguments in either precision; integers come from
    tables, with rules of their own.

    __Cost:__ 1.6 ns an element for exponentials in single precision, 5.6 ns in double; 2.2 and 5.9 for logarithms, 1.9
    and 9 for arctangents: 0.04 to 0.25 of the C library.

    __Guide:__ [Exponential, logarithm, arctangent, sine and cosine](docs/functions.md).

    Float forms are polynomials on vectors, with coefficients of our own: see the error of each, in units of the last
    place of the exact result. Their bits depend neither on the caller's rounding mode nor on the place of an element,
    and are the same under every ABI. Integer forms look their results up: there are few. No form leaves a trace in the
    floating-point control or status word.
    @{ */

/** Takes the exponential of floats: pDst[i] = e^pSrc[i].

    Argument reduction to |r| <= ln 2 / 2 with a polynomial of degree 6, in double precision 11. The error is at most
    0.997 units of the last place over all arguments in single precision, 0.92 in double; where the result is denormal,
    or near overflow, at most 0.51. Infinite above the range of the format, 0 below it, without a warning; NaN for NaN.

    @param pSrc    arguments, `len` elements
    @param pDst    destination, `len` elements; may be the source itself where the types agree, and must not overlap it
                   otherwise
    @param pSrcDst arguments and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsExp_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsExp_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsExp_32f64f(const Tarn32f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsExp_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsExp_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Takes the exponential of integers: pDst[i] = e^pSrc[i] * 2^-scaleFactor, one half added and the fraction cut off,
    saturated at the upper bound.

    The result comes from a table: constant ones for scale factors from -16 to 16 (`16s`), from -31 to 31 (`32s`), and
    of 0 (`64s`), of which the narrow ones with a negative factor reach down to x = -12 and -22, below which they give
    0; for any other factor a table is made in the call. There the power of e and the factor are those of double
    precision, and a product of 0 and infinity counts as 0.

    @param pSrc        arguments, `len` elements
    @param pDst        destination, `len` elements; may be the source itself, and must not overlap it otherwise
    @param pSrcDst     arguments and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsExp_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsExp_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsExp_64s_Sfs(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsExp_16s_ISfs(Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsExp_32s_ISfs(Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsExp_64s_ISfs(Tarn64s* pSrcDst, int len, int scaleFactor);
///@}

/** Takes the natural logarithm of floats: pDst[i] = ln pSrc[i].

    A polynomial of degree 10 on mantissas from the root of one half to that of two; in double precision 2 atanh(s) of
    s = (m - 1) / (m + 1). The error is at most 0.92 units of the last place, over all arguments in single precision.
    0 gives -infinity and a negative element NaN with its sign bit set, with a warning; infinity gives infinity, NaN
    gives NaN. All elements are computed in any case. The status belongs to the call: threads do not share it.

    @param pSrc    arguments, `len` elements
    @param pDst    destination, `len` elements; may be the source itself where the types agree, and must not overlap it
                   otherwise
    @param pSrcDst arguments and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; the warnings
            tarnStsLnNegArg if there was a negative element, else tarnStsLnZeroArg if there was a zero of either sign */
///@{
TARN_API TarnStatus tarnsLn_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsLn_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsLn_64f32f(const Tarn64f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsLn_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsLn_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Takes the natural logarithm of integers: pDst[i] = ln pSrc[i] * 2^-scaleFactor, saturated.

    `32s` and `32s16s`: from a scale factor of 0 on the logarithm is rounded to the nearest integer and then shifted
    right, which cuts the fraction off instead of rounding it; elements below 2 give 0. With a negative factor the
    logarithm is that of single precision, multiplied and rounded to nearest; elements below 1 give the lowest integer.

    `16s`: for factors from 0 to 4 the scaled logarithm is rounded to nearest, above 4 it is 0. For a factor of -1 it is
    the rounded logarithm of the square; from 182 on it is put together of the logarithms of the halved element and of
    a power of two, each rounded, and may be off by one. From -2 to -15 one half is added to the exact product and the
    fraction cut off; below that elements from 2 on give 32767. Elements below 2 give 0.

    @param pSrc        arguments, `len` elements
    @param pDst        destination, `len` elements; may be the source itself where the types agree, and must not overlap
                       it otherwise
    @param pSrcDst     arguments and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; a warning if there are
            elements below 1: the first of them decides, tarnStsLnZeroArg for 0, tarnStsLnNegArg for a negative one */
///@{
TARN_API TarnStatus tarnsLn_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsLn_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsLn_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsLn_16s_ISfs(Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsLn_32s_ISfs(Tarn32s* pSrcDst, int len, int scaleFactor);
///@}

/** Gives the decibels of a power: pDst[i] = 10 log10(pSrc[i]) * 2^-scaleFactor, saturated.

    From a scale factor of 0 on the result has a grain of 2 decibels (from 12 on it is even, with 93 for the very
    largest) and is shifted right, which cuts the fraction off; elements below 2 give 0. **Elements of 7, of 8 and from
    10 to 14 are left alone:** the destination keeps what it held, in place the element itself. With a negative factor
    the logarithm is that of single precision, multiplied and rounded to nearest, of all elements from 1 on; those below
    give the lowest integer.

    @param pSrc        arguments, `len` elements
    @param pDst        destination, `len` elements; may be the source itself, and must not overlap it otherwise
    @param pSrcDst     arguments and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; a warning if there are
            elements below 1: the first of them decides, tarnStsLnZeroArg for 0, tarnStsLnNegArg for a negative one */
///@{
TARN_API TarnStatus tarns10Log10_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarns10Log10_32s_ISfs(Tarn32s* pSrcDst, int len, int scaleFactor);
///@}

/** Takes the arctangent: pDst[i] = arctan pSrc[i] in radians, from -pi / 2 to pi / 2.

    Magnitudes above 1 are reduced through their reciprocal, those near 1 through the angle to the diagonal; what is
    left, up to 0.64, goes through a polynomial in its square of degree 5, in double precision 14. The error is at most
    0.88 units of the last place. Infinities give plus or minus pi / 2, a zero keeps its sign, NaN gives NaN.

    @param pSrc    arguments, `len` elements
    @param pDst    destination, `len` elements; may be the source itself, and must not overlap it otherwise
    @param pSrcDst arguments and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsArctan_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsArctan_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsArctan_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsArctan_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
