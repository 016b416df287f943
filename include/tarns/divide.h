/* Quotients of vectors, by constants and of constants. */
#ifndef TARNS_DIVIDE_H
#define TARNS_DIVIDE_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup divide Division
    Divides vectors by each other, by a constant, or a constant by a vector. Mind the order: of two vectors the first is
    the divisor.

    @code{.c}
    const Tarn32f divisors[3] = {2, 0, 4}, dividends[3] = {1, -1, 3};
    Tarn32f quotients[3];
    const TarnStatus status = tarnsDiv_32f(divisors, dividends, quotients, 3);
    printf("%g %g %g, %d\n", quotients[0], quotients[1], quotients[2], status == tarnStsDivByZero); // 0.5 -inf 0.75, 1
    @endcode

    __Accuracy:__ `64f` is the nearest quotient; `32f` is within 4 units of the last place in arrays of 32 and more, and
    the nearest in shorter ones; integers round to nearest, bytes by a reciprocal of six decimals.

    __Cost:__ that of a loop of divisions for `64f`; 0.3 of a plain loop for `16s` and `8u`, 0.7 for `32s`.

    __Guide:__ [Quotients, roots, magnitudes and phases](docs/division-and-roots.md).

    A zero element of a divisor vector never stops a call. Its quotient has a value that is told here, all other
    elements are computed as usual, and the status is the warning `tarnStsDivByZero`. The sign of a zero divisor does
    not count.

    | Type              | positive / 0 | negative / 0 | 0 / 0 |
    | ----------------- | -----------: | -----------: | ----: |
    | `32f`, `64f`      | infinity     | -infinity    | NaN   |
    | `16s`             | 32767        | -32768       | 0     |
    | `32s`             | 2147483647   | -2147483648  | 0     |
    | `8u`              | 255          |              | 0     |
    | `16u`             | 65535        |              |       |

    A complex divisor is zero where re^2 + im^2 is, and each part of the quotient goes by the sign of that part of the
    dividend. A zero constant as the divisor is an error, and then nothing is written.

    Scaled forms (`Sfs`) multiply the quotient by 2^-scaleFactor, round it to the nearest integer, ties to the even one,
    and saturate it. A positive factor shrinks, a negative one grows; no value is illegal.
    @{ */

/** Divides the second vector by the first: pDst[i] = pSrc2[i] / pSrc1[i] * 2^-scaleFactor.

    `8u` multiplies by a reciprocal of six decimals, in single precision: 1/3 is 0.333333, 1/128 is 0.007813. The last
    rounding follows the caller's rounding mode.

    `16s` divides in single precision, scaled quotients in double precision rounded to single. From 32 elements on, if
    the three arrays lie alike with respect to boundaries of 32 bytes, the whole groups of sixteen elements that begin
    on such a boundary are computed from the processor's approximate reciprocal r of the divisor d instead: with
    e = 1 - d r and x = n r, y = x + e x, and the quotient is y + e e y. These conversions to integers follow the
    caller's rounding mode. Ties may go either way then; and at a factor of -16 a value of 2^31 saturates to -32768,
    since the conversion has no such integer. Of a group of four with a zero divisor each is divided by itself.

    `32s` divides in double precision. `16sc`, too, is computed in double precision, as the dividend times the conjugate
    of the divisor times the reciprocal of its squared modulus.

    @param pSrc1       divisor, `len` elements
    @param pSrc2       dividend, `len` elements
    @param pDst        destination, `len` elements; may be a source itself, and must not overlap one otherwise
    @param pSrc        divisor, `len` elements
    @param pSrcDst     dividend and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsDivByZero (a warning) if there was a zero divisor; tarnStsNullPtrErr for a null
            pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDiv_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDiv_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsDiv_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len,
                                      int scaleFactor);
TARN_API TarnStatus tarnsDiv_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsDiv_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDiv_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDiv_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDiv_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor);
///@}

/** Divides the second vector by the first: pDst[i] = pSrc2[i] / pSrc1[i].

    `32f`: fewer than 32 elements, and what more there are than a multiple of eight, are true quotients. All others are
    the dividend times r + r - d r r, where r is the processor's approximate reciprocal of the divisor d: good to about
    22 bits, and not the nearest float. So 1 / 3 may differ in its last bits between an array of 3 and one of 64.
    Divisors beyond some 1e38 give 0 there, those below some 1e-38 NaN or an infinity, since their reciprocals are no
    normal numbers. A group of eight with a zero divisor among them has true quotients.

    In true quotients a NaN divisor counts as zero, warning included; the dividend decides the value. In the others it
    gives NaN.

    `64f` is a true quotient everywhere, with the same groups for a NaN. `32fc` and `64fc` are computed in double
    precision, as the dividend times the conjugate of the divisor times the reciprocal of its squared modulus. That of
    `64fc` overflows or vanishes beyond some 1e154 and below 1e-162. Other NaN and infinities are as the processor gives
    them.

    @param pSrc1   divisor, `len` elements
    @param pSrc2   dividend, `len` elements
    @param pDst    destination, `len` elements; may be a source itself, and must not overlap one otherwise
    @param pSrc    divisor, `len` elements
    @param pSrcDst dividend and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsDivByZero (a warning) if there was a zero divisor; tarnStsNullPtrErr for a null
            pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDiv_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsDiv_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsDiv_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsDiv_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsDiv_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsDiv_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsDiv_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsDiv_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len);
///@}

/** Divides a vector by a constant: pDst[i] = pSrc[i] / val * 2^-scaleFactor. `8u` and `16s` multiply by the reciprocal
    of the constant, taken once in single precision; `8u` is rounded in the caller's rounding mode. `16sc` is computed
    in double precision.

    @param pSrc        dividend, `len` elements
    @param val         divisor
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst     dividend and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsDivByZeroErr
            for a zero constant */
///@{
TARN_API TarnStatus tarnsDivC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDivC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDivC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDivC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDivC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsDivC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor);
///@}

/** Divides a vector by a constant: pDst[i] = pSrc[i] * (1 / val), the reciprocal rounded first. The product is that of
    tarnsMulC_32f and tarnsMulC_64f with their shortcuts: a reciprocal of 1 copies, and one of 0, that of an infinity,
    makes zeros of NaN too.

    The constant is looked at before anything else: a zero of either sign or a NaN gives tarnStsDivByZeroErr even where
    a pointer is null or the length is wrong.

    @param pSrc    dividend, `len` elements
    @param val     divisor
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst dividend and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsDivByZeroErr for a constant that is zero or NaN, before the other two:
            tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDivC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsDivC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsDivC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsDivC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len);
///@}

/** Divides a complex vector by a constant: pDst[i] = pSrc[i] * conjugate(val) * (1 / |val|^2), in double precision,
    with the last factor taken once.

    @param pSrc    dividend, `len` elements
    @param val     divisor
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst dividend and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsDivByZeroErr
            if both parts of the constant are zero */
///@{
TARN_API TarnStatus tarnsDivC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsDivC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsDivC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsDivC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len);
///@}

/** Divides a constant by each element: pDst[i] = val / pSrc[i]. `16u` divides in single precision, rounds to the
    nearest integer, ties to the even one, and saturates. `32f` is a true quotient; a NaN element counts as zero in
    arrays of fewer than 16 elements, behind the last multiple of eight, and in a group of eight that has a zero.

    A zero constant makes zeros, of zero elements too, and without a warning. In `32f` a NaN constant does the same; the
    source is not tested then, and the other checks are made. `16u` makes no checks at all on this way: a length below 1
    is no error, and a null destination is the caller's fault.

    @param pSrc    divisor, `len` elements
    @param val     dividend
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst divisor and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsDivByZero (a warning) if there was a zero element; tarnStsNullPtrErr for a null
            pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDivCRev_16u(const Tarn16u* pSrc, Tarn16u val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsDivCRev_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsDivCRev_16u_I(Tarn16u val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsDivCRev_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
