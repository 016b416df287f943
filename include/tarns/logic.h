/* Bitwise logic and shifts of integer vectors. */
#ifndef TARNS_LOGIC_H
#define TARNS_LOGIC_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup logic Logic
    Bitwise and, or, exclusive or and complement of unsigned vectors: masks, flags, packed bits.

    @code{.c}
    const Tarn8u flags[3] = {0x81, 0x0F, 0xFF};
    Tarn8u low[3];
    tarnsAndC_8u(flags, 0x0F, low, 3);
    printf("%d %d %d\n", low[0], low[1], low[2]); // 1 15 15
    @endcode

    __Accuracy:__ exact.

    __Cost:__ bound by loads and stores: 0.55 to 1.04 of a plain loop that the compiler has made vectors of.

    __Guide:__ [Working on vectors](docs/vectors.md).

    Bitwise operations on unsigned vectors. Every bit of the result depends on the bits of its own place alone.
    @{ */

/** Keeps the bits that both operands have, of two vectors: pDst[i] = pSrc1[i] & pSrc2[i].

    @param pSrc1 first operand, `len` elements
    @param pSrc2 second operand, `len` elements
    @param pDst  destination, `len` elements; may be an operand itself, and must not overlap one otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAnd_8u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsAnd_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsAnd_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len);
///@}

/** Keeps the bits that both operands have, of two vectors in place: pSrcDst[i] = pSrcDst[i] & pSrc[i].

    @param pSrc    operand, `len` elements
    @param pSrcDst operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAnd_8u_I(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsAnd_16u_I(const Tarn16u* pSrc, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsAnd_32u_I(const Tarn32u* pSrc, Tarn32u* pSrcDst, int len);
///@}

/** Keeps the bits that both operands have, of a vector and a constant: pDst[i] = pSrc[i] & val.

    @param pSrc vector, `len` elements
    @param val  constant operand of every element
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAndC_8u(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsAndC_16u(const Tarn16u* pSrc, Tarn16u val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsAndC_32u(const Tarn32u* pSrc, Tarn32u val, Tarn32u* pDst, int len);
///@}

/** Keeps the bits that both operands have, of a vector and a constant in place: pSrcDst[i] = pSrcDst[i] & val.

    @param val     constant operand of every element
    @param pSrcDst operand and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsAndC_8u_I(Tarn8u val, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsAndC_16u_I(Tarn16u val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsAndC_32u_I(Tarn32u val, Tarn32u* pSrcDst, int len);
///@}

/** Joins the bits that either operand has, of two vectors: pDst[i] = pSrc1[i] | pSrc2[i].

    @param pSrc1 first operand, `len` elements
    @param pSrc2 second operand, `len` elements
    @param pDst  destination, `len` elements; may be an operand itself, and must not overlap one otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsOr_8u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsOr_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsOr_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len);
///@}

/** Joins the bits that either operand has, of two vectors in place: pSrcDst[i] = pSrcDst[i] | pSrc[i].

    @param pSrc    operand, `len` elements
    @param pSrcDst operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsOr_8u_I(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsOr_16u_I(const Tarn16u* pSrc, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsOr_32u_I(const Tarn32u* pSrc, Tarn32u* pSrcDst, int len);
///@}

/** Joins the bits that either operand has, of a vector and a constant: pDst[i] = pSrc[i] | val.

    @param pSrc vector, `len` elements
    @param val  constant operand of every element
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsOrC_8u(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsOrC_16u(const Tarn16u* pSrc, Tarn16u val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsOrC_32u(const Tarn32u* pSrc, Tarn32u val, Tarn32u* pDst, int len);
///@}

/** Joins the bits that either operand has, of a vector and a constant in place: pSrcDst[i] = pSrcDst[i] | val.

    @param val     constant operand of every element
    @param pSrcDst operand and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsOrC_8u_I(Tarn8u val, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsOrC_16u_I(Tarn16u val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsOrC_32u_I(Tarn32u val, Tarn32u* pSrcDst, int len);
///@}

/** Finds the bits in which the operands differ, of two vectors: pDst[i] = pSrc1[i] ^ pSrc2[i].

    @param pSrc1 first operand, `len` elements
    @param pSrc2 second operand, `len` elements
    @param pDst  destination, `len` elements; may be an operand itself, and must not overlap one otherwise
    @param len   number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsXor_8u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsXor_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsXor_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len);
///@}

/** Finds the bits in which the operands differ, of two vectors in place: pSrcDst[i] = pSrcDst[i] ^ pSrc[i].

    @param pSrc    operand, `len` elements
    @param pSrcDst operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsXor_8u_I(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsXor_16u_I(const Tarn16u* pSrc, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsXor_32u_I(const Tarn32u* pSrc, Tarn32u* pSrcDst, int len);
///@}

/** Finds the bits in which the operands differ, of a vector and a constant: pDst[i] = pSrc[i] ^ val.

    @param pSrc vector, `len` elements
    @param val  constant operand of every element
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsXorC_8u(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsXorC_16u(const Tarn16u* pSrc, Tarn16u val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsXorC_32u(const Tarn32u* pSrc, Tarn32u val, Tarn32u* pDst, int len);
///@}

/** Finds the bits in which the operands differ, of a vector and a constant in place: pSrcDst[i] = pSrcDst[i] ^ val.

    @param val     constant operand of every element
    @param pSrcDst operand and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsXorC_8u_I(Tarn8u val, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsXorC_16u_I(Tarn16u val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsXorC_32u_I(Tarn32u val, Tarn32u* pSrcDst, int len);
///@}

/** Turns every bit the other way: pDst[i] = ~pSrc[i].

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNot_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsNot_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsNot_32u(const Tarn32u* pSrc, Tarn32u* pDst, int len);
///@}

/** Turns every bit the other way in place: pSrcDst[i] = ~pSrcDst[i].

    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsNot_8u_I(Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsNot_16u_I(Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsNot_32u_I(Tarn32u* pSrcDst, int len);
///@}

/** @} */

/** @defgroup shifts Shifts
    Shifts every element by the same number of bits.

    @code{.c}
    Tarn16s x[3] = {1000, -1000, -7};
    tarnsRShiftC_16s_I(2, x, 3);
    printf("%d %d %d\n", x[0], x[1], x[2]); // 250 -250 -2
    @endcode

    __Accuracy:__ nothing is rounded: bits are lost, on the way right towards minus infinity. To divide by a power of
    two with rounding take a scale factor.

    __Cost:__ 0.03 to 0.15 of a plain loop for bytes, 0.2 to 0.3 for 16 bits, 0.9 for 32.

    __Guide:__ [Working on vectors](docs/vectors.md).

    Shifts by a constant number of bits. They are no scale factors: nothing is rounded and nothing saturates.
    @{ */

/** Shifts to the left: pDst[i] = pSrc[i] * 2^val modulo the element's range. Bits that leave at the top are lost, and
    so is all of an element when `val` is its width or more: the result is 0 then.

    @param pSrc source, `len` elements
    @param val  number of bits, at least 0
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsShiftErr for a
            negative `val` */
///@{
TARN_API TarnStatus tarnsLShiftC_8u(const Tarn8u* pSrc, int val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsLShiftC_16u(const Tarn16u* pSrc, int val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsLShiftC_16s(const Tarn16s* pSrc, int val, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsLShiftC_32s(const Tarn32s* pSrc, int val, Tarn32s* pDst, int len);
///@}

/** Shifts to the left, in place.

    @param val     number of bits, at least 0
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsShiftErr for a
            negative `val` */
///@{
TARN_API TarnStatus tarnsLShiftC_8u_I(int val, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsLShiftC_16u_I(int val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsLShiftC_16s_I(int val, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsLShiftC_32s_I(int val, Tarn32s* pSrcDst, int len);
///@}

/** Shifts to the right: pDst[i] = floor(pSrc[i] / 2^val). Zeros come in at the top of unsigned elements, copies of the
    sign at the top of signed ones. A `val` of the element's width or more is no error: unsigned elements become 0,
    signed ones 0 or -1 by their sign.

    @param pSrc source, `len` elements
    @param val  number of bits, at least 0
    @param pDst destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsShiftErr for a
            negative `val` */
///@{
TARN_API TarnStatus tarnsRShiftC_8u(const Tarn8u* pSrc, int val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsRShiftC_16u(const Tarn16u* pSrc, int val, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsRShiftC_16s(const Tarn16s* pSrc, int val, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsRShiftC_32s(const Tarn32s* pSrc, int val, Tarn32s* pDst, int len);
///@}

/** Shifts to the right, in place.

    @param val     number of bits, at least 0
    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsShiftErr for a
            negative `val` */
///@{
TARN_API TarnStatus tarnsRShiftC_8u_I(int val, Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsRShiftC_16u_I(int val, Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsRShiftC_16s_I(int val, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsRShiftC_32s_I(int val, Tarn32s* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
