/* Norms and dot products. */
#ifndef TARNS_NORMS_H
#define TARNS_NORMS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup norms Norms
    How large a vector is, or how far two vectors are apart: the largest magnitude, the sum of magnitudes, or the root
    of the sum of squares.

    @code{.c}
    const Tarn32f x[3] = {3, -4, 12};
    Tarn32f peak, total, length;
    tarnsNorm_Inf_32f(x, 3, &peak);
    tarnsNorm_L1_32f(x, 3, &total);
    tarnsNorm_L2_32f(x, 3, &length);
    printf("%g %g %g\n", peak, total, length); // 12 19 13
    @endcode

    __Accuracy:__ 16-bit norms are exact up to the last step; float norms err by some roundings of their own precision.
    Complex elements of 32 bits are squared without scaling, in single precision. Parts
    beyond 1.8e19 have infinite squares, and Inf and L1 become NaN; L2 is infinite as soon as the sum of the squares is
    beyond 3.4e38. Elements below 1.1e-19, whose squares are denormal, count as 0 in Inf and make L1 an infinity or NaN,
    and L2 loses digits below 1e-20. Multiply such a vector by a power of two first, by tarnsMulC_32fc().

    __Cost:__ 0.75 of a dot product in single precision.

    __Guide:__ [Reductions and their accuracy](docs/statistics.md).

    Of a vector, or of the difference of two. With |d| the magnitude of an element, absolute value or complex magnitude:
    Inf is the largest |d|, L1 the sum of |d|, L2 the square root of the sum of |d|^2.

    16-bit norms are exact up to the last step. Float norms are computed in lanes of their own precision, `32fc` ones by
    the processor's estimate of a reciprocal root with one Newton step, and joined in double precision. NaN and
    infinities follow the arithmetic; complex forms leave the invalid-operation and underflow flags of the SSE unit
    cleared.

    Scaled forms truncate, unlike the rest of the library.
    @{ */

/** Computes the maximum norm of a vector: *pNorm = max of |pSrc[i]|. The 16-bit result is exact: 32768 for -32768. In
    the scaled form the value v is taken as it is at a scaleFactor of 0, shifted right by it from 1 to 31, and 0 above
    that; below 0 it is shifted left by up to 31 bits and saturates at 2147483647.

    `32fc` elements are squared without scaling: magnitudes beyond 1.8e19 make NaN, and those below 1.1e-19 count as 0.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNorm_Inf_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_Inf_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_Inf_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_Inf_32fc32f(const Tarn32fc* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_Inf_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_Inf_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor);
///@}

/** Computes the sum norm of a vector: *pNorm = sum of |pSrc[i]|. 16-bit sums are exact; as a float, one of up to 65536
    elements is converted as a signed integer with 2^32 added to a negative one, a longer one is rounded once. In the
    scaled form the value v is taken as it is at a scaleFactor of 0 (the 32 bits of it, for up to 65536 elements),
    shifted right by it from 1 to 31 (63 for more elements), and 0 above that; below 0 it is shifted left by up to 31
    bits (32) and saturates at 2147483647.

    `32fc` elements are squared without scaling: magnitudes beyond 1.8e19 make NaN, and those below 1.1e-19 an infinity
    or NaN.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNorm_L1_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_L1_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L1_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_L1_32fc64f(const Tarn32fc* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L1_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L1_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor);
///@}

/** Computes the Euclidean norm of a vector: *pNorm = sqrt(sum of |pSrc[i]|^2). 16-bit sums are exact, their root is
    formed in double precision. In the scaled form the root is divided, for a negative factor multiplied, by the signed
    32-bit integer 1 << (|scaleFactor| mod 32): a factor of 32 changes nothing, and one of 31 negates. The result is
    truncated towards zero and saturates at 2147483647.

    `32fc` elements are squared without scaling: the norm is infinite if the squares add up to more than 3.4e38, and
    loses digits where magnitudes are below 1e-19.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNorm_L2_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_L2_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L2_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNorm_L2_32fc64f(const Tarn32fc* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L2_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNorm_L2_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor);
///@}

/** Computes the maximum norm of a difference: *pNorm = max of |pSrc1[i] - pSrc2[i]|. Differences of 16-bit elements are
    formed exactly. In the scaled form the value v is taken as it is at a scaleFactor of 0, shifted right by it from 1
    to 31, and 0 above that; below 0 it is shifted left by up to 31 bits and saturates at 2147483647.

    @param pSrc1       first vector, `len` elements
    @param pSrc2       second vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNormDiff_Inf_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_Inf_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_Inf_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_Inf_32fc32f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_Inf_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_Inf_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                                 int scaleFactor);
///@}

/** Computes the sum norm of a difference: *pNorm = sum of |pSrc1[i] - pSrc2[i]|. Differences of 16-bit elements are
    formed exactly. In the scaled form the value v is taken as it is at a scaleFactor of 0 (the 32 bits of it, for up to
    65536 elements), shifted right by it from 1 to 31 (63 for more elements), and 0 above that; below 0 it is shifted
    left by up to 31 bits (32) and saturates at 2147483647.

    @param pSrc1       first vector, `len` elements
    @param pSrc2       second vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNormDiff_L1_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L1_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L1_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L1_32fc64f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L1_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L1_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                                int scaleFactor);
///@}

/** Computes the Euclidean norm of a difference: *pNorm = sqrt(sum of |pSrc1[i] - pSrc2[i]|^2). Differences of 16-bit
    elements are formed exactly. In the scaled form the root is divided, for a negative factor multiplied, by the signed
    32-bit integer 1 << (|scaleFactor| mod 32): a factor of 32 changes nothing, and one of 31 negates. The result is
    truncated towards zero and saturates at 2147483647.

    @param pSrc1       first vector, `len` elements
    @param pSrc2       second vector, `len` elements
    @param len         number of elements, at least 1
    @param pNorm       where the norm goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, in the way told above
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNormDiff_L2_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L2_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L2_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L2_32fc64f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L2_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm);
TARN_API TarnStatus tarnsNormDiff_L2_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                                int scaleFactor);
///@}
/** @} */

/** @defgroup dotproducts Dot products
    Sums of the products of two vectors: correlation at one lag, projections, energies.

    @code{.c}
    const Tarn16s a[3] = {30000, 30000, 1}, b[3] = {30000, 30000, -1};
    Tarn64s exact;
    tarnsDotProd_16s64s(a, b, 3, &exact);
    printf("%lld\n", exact); // 1799999999
    @endcode

    __Accuracy:__ 16-bit products are summed exactly; `32f` has single-precision lanes, and `32f64f` exact products in
    double-precision ones.

    __Cost:__ 0.4 to 0.5 of a loop with `-ffast-math`, and of a plain loop of integers; 0.15 to 0.2 of `cblas_sdot`.

    __Guide:__ [Reductions and their accuracy](docs/statistics.md).

    *pDp = sum of pSrc1[i] * pSrc2[i]. No operand is conjugated: complex products are
    (ar br - ai bi) + j (ar bi + ai br). A real element multiplies both parts of a complex one.
    @{ */

/** Computes dot products of floats. Products are formed and summed in lanes of the elements' precision, or, where the
    result is wider, of elements converted to double precision first. NaN and infinities spread.

    @param pSrc1 first vector, `len` elements
    @param pSrc2 second vector, `len` elements
    @param len   number of elements, at least 1
    @param pDp   where the dot product goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDotProd_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pDp);
TARN_API TarnStatus tarnsDotProd_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32fc* pDp);
TARN_API TarnStatus tarnsDotProd_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32fc* pDp);
TARN_API TarnStatus tarnsDotProd_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pDp);
TARN_API TarnStatus tarnsDotProd_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64fc* pDp);
TARN_API TarnStatus tarnsDotProd_64f64fc(const Tarn64f* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64fc* pDp);
TARN_API TarnStatus tarnsDotProd_32f64f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn64f* pDp);
TARN_API TarnStatus tarnsDotProd_32fc64fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64fc* pDp);
TARN_API TarnStatus tarnsDotProd_32f32fc64fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64fc* pDp);
///@}

/** Computes dot products of 16-bit integers. The sum is exact in 64 bits; as a float it is rounded once.

    @param pSrc1 first vector, `len` elements
    @param pSrc2 second vector, `len` elements
    @param len   number of elements, at least 1
    @param pDp   where the dot product goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDotProd_16s64s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn64s* pDp);
TARN_API TarnStatus tarnsDotProd_16sc64sc(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp);
TARN_API TarnStatus tarnsDotProd_16s16sc64sc(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp);
TARN_API TarnStatus tarnsDotProd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pDp);
TARN_API TarnStatus tarnsDotProd_16sc32fc(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32fc* pDp);
TARN_API TarnStatus tarnsDotProd_16s16sc32fc(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32fc* pDp);
///@}

/** Computes scaled dot products of 16-bit integers: the exact sum times 2^-scaleFactor, rounded to the nearest integer,
    ties to the even one, saturated. A factor counts as 31 above that, and as -15 (16-bit results) or -31 below that.

    @param pSrc1       first vector, `len` elements
    @param pSrc2       second vector, `len` elements
    @param len         number of elements, at least 1
    @param pDp         where the dot product goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDotProd_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn16s* pDp,
                                         int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn16sc* pDp,
                                          int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16s16sc_Sfs(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn16sc* pDp,
                                             int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pDp,
                                            int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16sc32sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32sc* pDp,
                                              int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16s16sc32sc_Sfs(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32sc* pDp,
                                                 int scaleFactor);
///@}

/** Computes scaled dot products of 32-bit integers: products are formed and summed in double precision, so that sums
    beyond 53 bits are rounded; the total times 2^-scaleFactor is rounded to the nearest integer, ties to the even one,
    whatever the caller's rounding mode, and saturated. A factor counts as 93 above that and as -31 below that.

    @param pSrc1       first vector, `len` elements
    @param pSrc2       second vector, `len` elements
    @param len         number of elements, at least 1
    @param pDp         where the dot product goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsDotProd_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, int len, Tarn32s* pDp,
                                         int scaleFactor);
TARN_API TarnStatus tarnsDotProd_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, int len, Tarn32sc* pDp,
                                          int scaleFactor);
TARN_API TarnStatus tarnsDotProd_32s32sc_Sfs(const Tarn32s* pSrc1, const Tarn32sc* pSrc2, int len, Tarn32sc* pDp,
                                             int scaleFactor);
TARN_API TarnStatus tarnsDotProd_16s32s32s_Sfs(const Tarn16s* pSrc1, const Tarn32s* pSrc2, int len, Tarn32s* pDp,
                                               int scaleFactor);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
