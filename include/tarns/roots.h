/* Absolute values, squares, square roots and cube roots. */
#ifndef TARNS_ROOTS_H
#define TARNS_ROOTS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup roots Absolute values, squares and roots
    Absolute values, squares, square roots and cube roots, element by element.

    @code{.c}
    const Tarn32f power[4] = {4, 2, 0, -1};
    Tarn32f root[4];
    const TarnStatus status = tarnsSqrt_32f(power, root, 4);
    printf("%g %.4f, %d\n", root[0], root[1], status == tarnStsSqrtNegArg); // 2 1.4142, 1
    @endcode

    __Accuracy:__ absolute values and squares are exact or rounded once; `tarnsSqrt_32f` is within 4 units of the last
    place in arrays of 11 and more (3.25 at worst over all significands), `tarnsCubrt_32f` within 1, `tarnsSqrt_64f` the
    nearest.

    __Cost:__ square roots 1.0 to 1.5 of a loop of `sqrtps` in single precision, 0.5 of a plain loop in double; cube
    roots 0.05 of `cbrtf`.

    __Guide:__ [Quotients, roots, magnitudes and phases](docs/division-and-roots.md).

    Element by element. Scaled forms (`Sfs`) answer with the result times 2^-scaleFactor, rounded to the nearest
    integer, ties to the even one, saturated at the bounds of the element type. A positive factor shrinks, a negative
    one grows; no value is illegal. Saturation is silent.
    @{ */

/** Takes absolute values: pDst[i] = |pSrc[i]|. The integer forms saturate: the lowest integer, which has no negative,
    gives the highest. The float forms clear the sign bit and nothing else, of a NaN too.

    @param pSrc    source, `len` elements
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst source and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAbs_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsAbs_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len);
TARN_API TarnStatus tarnsAbs_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsAbs_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsAbs_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsAbs_32s_I(Tarn32s* pSrcDst, int len);
TARN_API TarnStatus tarnsAbs_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsAbs_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Squares elements: pDst[i] = pSrc[i]^2 * 2^-scaleFactor. Integer squares are exact before they are scaled. Complex
    elements are multiplied by themselves: (re^2 - im^2, 2 re im), the integer parts exact, the float ones with a
    rounding for each product and for the sum. Float forms follow IEEE arithmetic in the current rounding mode, NaN and
    infinities included.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst     source and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSqr_8u_Sfs(const Tarn8u* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16u_Sfs(const Tarn16u* pSrc, Tarn16u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_8u_ISfs(Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16s_ISfs(Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16u_ISfs(Tarn16u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_16sc_ISfs(Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqr_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSqr_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSqr_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSqr_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsSqr_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSqr_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsSqr_64f_I(Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsSqr_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Takes square roots: pDst[i] = sqrt(pSrc[i]) * 2^-scaleFactor. An element below zero has none: the integer forms give
    0 for it, the float forms NaN; all others are computed as usual, and the status is the warning `tarnStsSqrtNegArg`.
    A zero keeps its sign, and is not negative; a NaN stays one and is not either.

    `8u`, `16u` and `16s` form the root in single precision, `64s` in the extended format of 64 bits. Both are rounded
    to the nearest integer whatever the caller's rounding mode.

    `64f` is the correctly rounded root. `32f` is so too in arrays of fewer than 11 elements, in front of the first
    boundary of 16 bytes in the destination, and behind the last whole group of eight elements from there on. In the
    groups it is x (y / 2) (3 - x y y) with y, the processor's approximation of 1 / sqrt(x): within 4 units in the last
    place. Zeros, infinities, denormal and negative numbers have true roots there, too.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst     source and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsSqrtNegArg (a warning) if an element was below zero; tarnStsNullPtrErr for a null
            pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSqrt_8u_Sfs(const Tarn8u* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_16u_Sfs(const Tarn16u* pSrc, Tarn16u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_64s_Sfs(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_8u_ISfs(Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_16s_ISfs(Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_16u_ISfs(Tarn16u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_64s_ISfs(Tarn64s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSqrt_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSqrt_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSqrt_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Takes principal square roots of complex elements: pDst[i] = sqrt(pSrc[i]) * 2^-scaleFactor, the root whose real part
    is not negative; on the negative real axis the imaginary part has the sign of the element's, that of a zero
    included.

    All forms are computed in double precision: with t = sqrt((|re| + |z|) / 2) the parts are t and im / 2t, and change
    places where re is negative. `32fc` is within 1 unit in the last place of each part, `64fc` within 3, at any
    magnitude. An infinite imaginary part makes both parts infinite; an infinite real part gives infinity and zero.
    Other NaN spread to both parts. Floating-point exceptions are masked for the duration of the call, and leave no
    flags. Nothing is warned of.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst     source and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSqrt_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_16sc_ISfs(Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSqrt_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSqrt_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsSqrt_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsSqrt_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Takes cube roots: pDst[i] = cbrt(pSrc[i]) * 2^-scaleFactor, with the sign of the element.

    `32f` is a polynomial and two Newton steps by the processor's approximate reciprocal, for groups of four elements
    from the start: within 1 unit in the last place of normal arguments. What is left over of the groups is the
    nearest float. Infinities, zeros and NaN are their own roots. `32s16s` rounds the nearest float's multiple to the
    nearest integer, ties to the even one, and saturates it. Neither depends on the caller's rounding mode.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements; may be `pSrc` itself where the types agree, and must not overlap it
                       otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsCubrt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsCubrt_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
