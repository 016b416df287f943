/* Differences with saturation and scale factors. */
#ifndef TARNS_SUBTRACT_H
#define TARNS_SUBTRACT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup subtract Subtraction
    Subtracts vectors, a constant from a vector, or a vector from a constant. Mind the order: of two vectors the first
    is taken from the second.

    @code{.c}
    const Tarn32f estimate[3] = {1, 2, 3}, recorded[3] = {1.5F, 1.5F, 3};
    Tarn32f cleaned[3];
    tarnsSub_32f(estimate, recorded, cleaned, 3); // recorded - estimate
    printf("%g %g %g\n", cleaned[0], cleaned[1], cleaned[2]); // 0.5 -0.5 0
    @endcode

    __Accuracy:__ integers are exact until their one rounding; floats are one IEEE subtraction each.

    __Cost:__ that of an addition: a plain loop's time for floats, 0.05 to 0.3 of it for scaled integers.

    __Guide:__ [The scale rule](docs/scale-rule.md), and [working on vectors](docs/vectors.md).

    Scaled forms (`Sfs`) answer with the exact difference times 2^-scaleFactor, rounded to the nearest integer, ties to
    the even one, saturated at the bounds of the element type; so a negative difference of bytes is 0. A positive factor
    shrinks, a negative one grows; no value is illegal. Integer forms without a scale saturate. Saturation is silent.
    Float forms are one IEEE subtraction an element in the current rounding mode: NaN, infinities and the sign of zero
    are as the processor gives them.
    @{ */

/** Subtracts the first vector from the second: pDst[i] = (pSrc2[i] - pSrc1[i]) * 2^-scaleFactor.

    @param pSrc1       what is subtracted, `len` elements
    @param pSrc2       what it is subtracted from, `len` elements
    @param pDst        destination, `len` elements; may be an operand itself, and must not overlap one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsSub_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSub_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsSub_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len,
                                      int scaleFactor);
TARN_API TarnStatus tarnsSub_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsSub_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len,
                                      int scaleFactor);
///@}

/** Subtracts a vector from another in place: pSrcDst[i] = (pSrcDst[i] - pSrc[i]) * 2^-scaleFactor.

    @param pSrc        what is subtracted, `len` elements
    @param pSrcDst     what it is subtracted from, and destination, `len` elements; must not overlap `pSrc` unless it is
    the same array
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsSub_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSub_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSub_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSub_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSub_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Subtracts the first vector from the second without a scale: pDst[i] = pSrc2[i] - pSrc1[i]. `16s` saturates; `16s32f`
    is exact.

    @param pSrc1 what is subtracted, `len` elements
    @param pSrc2 what it is subtracted from, `len` elements
    @param pDst  destination, `len` elements; may be an operand itself where the types agree, and must not overlap one
                 otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsSub_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSub_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSub_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSub_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSub_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len);
///@}

/** Subtracts a vector from another in place without a scale: pSrcDst[i] = pSrcDst[i] - pSrc[i]. `16s` saturates.

    @param pSrc    what is subtracted, `len` elements
    @param pSrcDst what it is subtracted from, and destination, `len` elements; must not overlap `pSrc` unless it is the
    same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsSub_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsSub_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSub_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsSub_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsSub_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len);
///@}

/** Subtracts a constant from a vector: pDst[i] = (pSrc[i] - val) * 2^-scaleFactor, for complex forms part by part.

    @param pSrc        vector, `len` elements
    @param val         constant
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor);
///@}

/** Subtracts a constant from a vector in place: pSrcDst[i] = (pSrcDst[i] - val) * 2^-scaleFactor, for complex forms
    part by part.

    @param val         constant
    @param pSrcDst     vector and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Subtracts a constant from a vector of floats: pDst[i] = pSrc[i] - val. In the real forms a `val` of 0 of either
    sign, or NaN, copies the vector: the NaN does not spread, and a zero keeps its sign. The complex forms always
    subtract.

    @param pSrc vector, `len` elements
    @param val  constant
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSubC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSubC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSubC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len);
///@}

/** Subtracts a constant from a vector in place: pSrcDst[i] = pSrcDst[i] - val. `16s` saturates. In the real float forms
    a `val` of 0 of either sign, or NaN, leaves the vector as it is; the complex forms always subtract.

    @param val     constant
    @param pSrcDst vector and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsSubC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSubC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsSubC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsSubC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len);
///@}

/** Subtracts a vector from a constant: pDst[i] = (val - pSrc[i]) * 2^-scaleFactor, for complex forms part by part.

    @param pSrc        vector, `len` elements
    @param val         constant
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubCRev_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor);
///@}

/** Subtracts a vector from a constant in place: pSrcDst[i] = (val - pSrcDst[i]) * 2^-scaleFactor, for complex forms
    part by part.

    @param val         constant
    @param pSrcDst     vector and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubCRev_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsSubCRev_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Subtracts a vector from a constant in floats: pDst[i] = val - pSrc[i]. No constant is special.

    @param pSrc vector, `len` elements
    @param val  constant
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubCRev_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSubCRev_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSubCRev_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSubCRev_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len);
///@}

/** Subtracts a vector from a constant in place: pSrcDst[i] = val - pSrcDst[i]. No constant is special.

    @param val     constant
    @param pSrcDst vector and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSubCRev_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSubCRev_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsSubCRev_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsSubCRev_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
