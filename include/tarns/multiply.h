/* Products with saturation and scale factors, and their accumulation. */
#ifndef TARNS_MULTIPLY_H
#define TARNS_MULTIPLY_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup multiply Multiplication
    Multiplies two vectors, a vector by a constant, or adds the product of two vectors to a third one: gains, windows of
    one's own, spectra, weighted sums.

    @code{.c}
    const Tarn16s sound[3] = {20000, -20000, 7};
    Tarn16s quieter[3];
    tarnsMulC_16s_Sfs(sound, 181, quieter, 3, 8); // times 181 / 256, some -3 dB
    printf("%d %d %d\n", quieter[0], quieter[1], quieter[2]); // 14141 -14141 5
    @endcode

    __Accuracy:__ integers are exact until their one rounding, but for `32s` vectors, see below; floats are one IEEE
    product each, complex ones four products and two sums.

    __Cost:__ a plain loop's time for floats, and 0.05 to 0.4 of it for scaled integers.

    __Guide:__ [The scale rule](docs/scale-rule.md), and [working on vectors](docs/vectors.md).

    Scaled forms (`Sfs`) answer with the exact product times 2^-scaleFactor, rounded to the nearest integer, ties to the
    even one, saturated at the bounds of the destination's type. A positive factor shrinks, a negative one grows; no
    value is illegal. Integer forms without a scale saturate. Saturation is silent.

    Products of two 32-bit vectors (`32s`) go by way of doubles: the product of the first operand, the factor
    2^-scaleFactor and the second one, each rounded to 53 bits, is what is rounded to an integer. Above 2^53 that can
    differ from the exact product by which a constant multiplies (`tarnsMulC_32s_Sfs`) and complex elements are formed.

    The product of complex elements a and b is (a.re b.re - a.im b.im, a.re b.im + a.im b.re). In integers both parts
    are exact before they are scaled; in floating point each of the six operations rounds, in the current rounding mode.
    NaN, infinities and the sign of zero are as the processor gives them, but for the constants that are told below.
    @{ */

/** Multiplies two vectors: pDst[i] = pSrc1[i] * pSrc2[i] * 2^-scaleFactor. The destination has the type of the second
    source but in `16s32s`.

    @param pSrc1       first factor, `len` elements
    @param pSrc2       second factor, `len` elements
    @param pDst        destination, `len` elements; may be a source of its type itself, and must not overlap one
    otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMul_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsMul_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32s* pDst, int len,
                                        int scaleFactor);
TARN_API TarnStatus tarnsMul_16u16s_Sfs(const Tarn16u* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                        int scaleFactor);
TARN_API TarnStatus tarnsMul_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len,
                                      int scaleFactor);
TARN_API TarnStatus tarnsMul_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len,
                                     int scaleFactor);
TARN_API TarnStatus tarnsMul_32s32sc_Sfs(const Tarn32s* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len,
                                         int scaleFactor);
TARN_API TarnStatus tarnsMul_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len,
                                      int scaleFactor);
///@}

/** Multiplies a vector by another in place: pSrcDst[i] = pSrcDst[i] * pSrc[i] * 2^-scaleFactor.

    @param pSrc        factor, `len` elements
    @param pSrcDst     factor and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMul_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_32s32sc_ISfs(const Tarn32s* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMul_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Multiplies two vectors without a scale: pDst[i] = pSrc1[i] * pSrc2[i]. `16s` saturates; `8u16u` is exact; `16s32f`
    rounds the exact product to a float in the current rounding mode.

    @param pSrc1 first factor, `len` elements
    @param pSrc2 second factor, `len` elements
    @param pDst  destination, `len` elements; may be a source of its type itself, and must not overlap one otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsMul_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsMul_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMul_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMul_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMul_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsMul_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len);
///@}

/** Multiplies a vector by another in place without a scale: pSrcDst[i] = pSrcDst[i] * pSrc[i]. `16s` saturates.

    @param pSrc    factor, `len` elements
    @param pSrcDst factor and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMul_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsMul_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMul_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsMul_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsMul_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies a vector by a constant: pDst[i] = pSrc[i] * val * 2^-scaleFactor, the product being exact for every type.

    @param pSrc        vector, `len` elements
    @param val         constant
    @param pDst        destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor);
///@}

/** Multiplies a vector by a constant in place: pSrcDst[i] = pSrcDst[i] * val * 2^-scaleFactor, the product being exact
    for every type.

    @param val         constant
    @param pSrcDst     vector and destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor);
///@}

/** Multiplies a vector of floats by a constant: pDst[i] = pSrc[i] * val. In the real forms a `val` of 1 or NaN copies
    the vector, so that the NaN does not spread, and a `val` of 0 of either sign gives +0 everywhere, for infinities and
    NaN too. The complex forms always multiply.

    @param pSrc vector, `len` elements
    @param val  constant
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMulC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMulC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsMulC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len);
///@}

/** Multiplies a vector by a constant in place: pSrcDst[i] = pSrcDst[i] * val. `16s` saturates. In the real float forms
    a `val` of 1 or NaN leaves the vector as it is, and a `val` of 0 of either sign gives +0 everywhere; the complex
    forms always multiply.

    @param val     constant
    @param pSrcDst vector and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsMulC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMulC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsMulC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsMulC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len);
///@}

/** Multiplies a vector of floats by a constant and rounds to integers: pDst[i] = pSrc[i] * (val * 2^-scaleFactor),
    where the constant is scaled first. Both products round to single precision, the one of the constant in the current
    rounding mode. The result is rounded to the nearest integer, ties to the even one, whatever the current rounding
    mode, and saturates; NaN gives -32768.

    @param pSrc        vector, `len` elements
    @param val         constant
    @param pDst        destination, `len` elements; must not overlap `pSrc`
    @param len         number of elements, at least 1
    @param scaleFactor the constant is scaled by 2^-scaleFactor; below -127 it counts as -127, above 126 as 126
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsMulC_32f16s_Sfs(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len, int scaleFactor);

/** Multiplies a vector of floats by a constant and rounds to integers for products that are known to be low:
    pDst[i] = pSrc[i] * val, rounded in the current rounding mode. It saturates for products that fit 32 bits; beyond
    them, and for NaN, the result is -32768 whatever the sign.

    @param pSrc vector, `len` elements
    @param val  constant
    @param pDst destination, `len` elements; must not overlap `pSrc`
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsMulC_Low_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len);

/** Adds the product of two vectors to a third one: pSrcDst[i] = (pSrc1[i] * pSrc2[i] + pSrcDst[i]) * 2^-scaleFactor.
   The sum is exact in `16s` and `16s32s`; in `32s` the product, the sum and the scaled sum are doubles, each rounded to
    53 bits. A factor above 30 (`16s`, `16s32s`) or 62 (`32s`), from which on the product alone cannot count, gives
    zeros whatever the old values.

    @param pSrc1       first factor, `len` elements
    @param pSrc2       second factor, `len` elements
    @param pSrcDst     summand and destination, `len` elements; may be a source of its type itself, and must not overlap
                       one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddProduct_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pSrcDst, int len,
                                            int scaleFactor);
TARN_API TarnStatus tarnsAddProduct_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32s* pSrcDst, int len,
                                               int scaleFactor);
TARN_API TarnStatus tarnsAddProduct_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pSrcDst, int len,
                                            int scaleFactor);
///@}

/** Adds the product of two vectors of floats to a third one: pSrcDst[i] = pSrc1[i] * pSrc2[i] + pSrcDst[i]. The product
    is rounded before it is added.

    @param pSrc1   first factor, `len` elements
    @param pSrc2   second factor, `len` elements
    @param pSrcDst summand and destination, `len` elements; may be a source itself, and must not overlap one otherwise
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAddProduct_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsAddProduct_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pSrcDst, int len);
TARN_API TarnStatus tarnsAddProduct_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsAddProduct_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
