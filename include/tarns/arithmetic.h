/* Vector arithmetic with saturation and scale factors. */
#ifndef TARNS_ARITHMETIC_H
#define TARNS_ARITHMETIC_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup add Addition
    Adds two vectors, or a constant to a vector: mixing, offsets, sums of bytes that need more bits.

    @code{.c}
    const Tarn16s a[4] = {30000, 1, -7, 5}, b[4] = {30000, 2, 4, -2};
    Tarn16s mix[4];
    tarnsAdd_16s_Sfs(a, b, mix, 4, 1); // half the sum
    printf("%d %d %d %d\n", mix[0], mix[1], mix[2], mix[3]); // 30000 2 -2 2
    tarnsAddC_16s_I(10, mix, 4);
    printf("%d %d\n", mix[0], mix[1]); // 30010 12
    @endcode

    __Accuracy:__ integers are exact until their one rounding; floats are one IEEE addition each.

    __Cost:__ in cache one store of a vector a cycle: a plain loop's time for floats, 0.05 to 0.3 of it for scaled
    integers.

    __Guide:__ [The scale rule](docs/scale-rule.md), and [working on vectors](docs/vectors.md).

    Scaled forms (`Sfs`) answer with the exact sum times 2^-scaleFactor, rounded to the nearest integer, ties to the
    even one, saturated at the bounds of the element type. A positive factor shrinks, a negative one grows; no value is
    illegal. Integer forms without a scale saturate. Saturation is silent. Float forms are one IEEE addition an element
    in the current rounding mode: NaN, infinities and the sign of zero are as the processor gives them.
    @{ */

/** Adds two vectors: pDst[i] = (pSrc1[i] + pSrc2[i]) * 2^-scaleFactor.

    @param pSrc1       first operand, `len` elements
    @param pSrc2       second operand, `len` elements
    @param pDst        destination, `len` elements; may be an operand itself, and must not overlap one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsAdd_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAdd_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsAdd_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len,
                                      int scaleFactor);
TARN_API TarnStatus tarnsAdd_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsAdd_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len,
                                      int scaleFactor);
///@}

/** Adds a vector to another in place: pSrcDst[i] = (pSrcDst[i] + pSrc[i]) * 2^-scaleFactor.

    @param pSrc        operand, `len` elements
    @param pSrcDst     operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsAdd_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAdd_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAdd_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAdd_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAdd_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Adds two vectors without a scale: pDst[i] = pSrc1[i] + pSrc2[i]. `16u`, `16s` and `32u` saturate; `8u16u` and
    `16s32f` cannot overflow and are exact.

    @param pSrc1 first operand, `len` elements
    @param pSrc2 second operand, `len` elements
    @param pDst  destination, `len` elements; may be an operand itself where the types agree, and must not overlap one
                 otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsAdd_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsAdd_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsAdd_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsAdd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsAdd_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len);
TARN_API TarnStatus tarnsAdd_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsAdd_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsAdd_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsAdd_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len);
///@}

/** Adds a vector to another in place without a scale: pSrcDst[i] = pSrcDst[i] + pSrc[i]. `16s` saturates.

    @param pSrc    operand, `len` elements
    @param pSrcDst operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 (for the complex
            forms the length is tested before the pointers, and also when twice `len` leaves 32 bits) */
///@{
TARN_API TarnStatus tarnsAdd_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsAdd_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsAdd_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsAdd_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsAdd_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len);
///@}

/** Adds a constant to a vector: pDst[i] = (pSrc[i] + val) * 2^-scaleFactor, for complex forms part by part.

    @param pSrc        vector, `len` elements
    @param val         constant
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor);
///@}

/** Adds a constant to a vector in place: pSrcDst[i] = (pSrcDst[i] + val) * 2^-scaleFactor, for complex forms part by
    part.

    @param val         constant
    @param pSrcDst     vector and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsAddC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Adds a constant to a vector of floats: pDst[i] = pSrc[i] + val. In the real forms a `val` of 0 of either sign, or
    NaN, copies the vector: the NaN does not spread, and a -0 stays what it is. The complex forms always add.

    @param pSrc vector, `len` elements
    @param val  constant
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsAddC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsAddC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsAddC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len);
///@}

/** Adds a constant to a vector in place: pSrcDst[i] = pSrcDst[i] + val. `16s` saturates. In the real float forms a
    `val` of 0 of either sign, or NaN, leaves the vector as it is; the complex forms always add.

    @param val     constant
    @param pSrcDst vector and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsAddC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsAddC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsAddC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsAddC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
