/* Movement of data: copies, fills, order of elements and bytes. */
#ifndef TARNS_DATA_H
#define TARNS_DATA_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup movement Copy, move, set, flip, swap
    Copies, moves, fills, clears and reverses arrays, and swaps the bytes of their elements.

    @code{.c}
    Tarn32f x[5] = {1, 2, 3, 4, 5};
    tarnsMove_32f(x, x + 1, 4); // the two may overlap
    tarnsSet_32f(9, x, 1);
    tarnsFlip_32f_I(x, 5);
    printf("%g %g %g %g %g\n", x[0], x[1], x[2], x[3], x[4]); // 4 3 2 1 9
    @endcode

    __Accuracy:__ exact movement of bits: NaN payloads and negative zeros survive.

    __Cost:__ that of `memcpy`, `memmove` and `memset`; reversed bytes and swapped ones up to 2.6 times a copy in cache.

    __Guide:__ [Working on vectors](docs/vectors.md).
    @{ */

/** Copies an array: pDst[i] = pSrc[i].

    @param pSrc source, `len` elements; must not overlap `pDst`, but may be the same array
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsCopy_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsCopy_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsCopy_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsCopy_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsCopy_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsCopy_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsCopy_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
///@}

/** Copies an array to a place that may overlap it, in either direction: no element is overwritten before it is read.

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMove_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsMove_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsMove_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsMove_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMove_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsMove_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMove_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
///@}

/** Writes zero bytes: pDst[i] = 0, +0 for floats.

    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsZero_8u(Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsZero_16s(Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsZero_16sc(Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsZero_32f(Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsZero_32fc(Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsZero_64f(Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsZero_64fc(Tarn64fc* pDst, int len);
///@}

/** Writes one value to every element: pDst[i] = val. A complex value is written as the pair.

    @param val  the value
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSet_8u(Tarn8u val, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsSet_16s(Tarn16s val, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsSet_16sc(Tarn16sc val, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsSet_32s(Tarn32s val, Tarn32s* pDst, int len);
TARN_API TarnStatus tarnsSet_32sc(Tarn32sc val, Tarn32sc* pDst, int len);
TARN_API TarnStatus tarnsSet_32f(Tarn32f val, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsSet_32fc(Tarn32fc val, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsSet_64s(Tarn64s val, Tarn64s* pDst, int len);
TARN_API TarnStatus tarnsSet_64sc(Tarn64sc val, Tarn64sc* pDst, int len);
TARN_API TarnStatus tarnsSet_64f(Tarn64f val, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsSet_64fc(Tarn64fc val, Tarn64fc* pDst, int len);
///@}

/** Turns an array round: pDst[i] = pSrc[len - 1 - i].

    @param pSrc source, `len` elements; must not overlap `pDst`, but may be the same array
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsFlip_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsFlip_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsFlip_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsFlip_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
///@}

/** Turns an array round in place; the middle element of an odd number stays.

    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsFlip_8u_I(Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsFlip_16u_I(Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsFlip_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsFlip_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Reverses the bytes within each element, between big- and little-endian order. An element of the `24u` form is three
    consecutive bytes, of which the middle one stays.

    @param pSrc source, `len` elements; must not overlap `pDst`, but may be the same array
    @param pDst destination, `len` elements
    @param len  number of elements (not of bytes), at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSwapBytes_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len);
TARN_API TarnStatus tarnsSwapBytes_24u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsSwapBytes_32u(const Tarn32u* pSrc, Tarn32u* pDst, int len);
///@}

/** Reverses the bytes within each element in place.

    @param pSrcDst array of `len` elements
    @param len     number of elements (not of bytes), at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSwapBytes_16u_I(Tarn16u* pSrcDst, int len);
TARN_API TarnStatus tarnsSwapBytes_24u_I(Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsSwapBytes_32u_I(Tarn32u* pSrcDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
