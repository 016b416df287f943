/* Absolute values, squares, square roots and cube roots. */
#ifndef TARNS_ROOTS_H
#define TARNS_ROOTS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup roots Absolute values, squares and roots
    Element by element. Scaled forms (`Sfs`) answer with the result times 2^-scaleFactor, rounded to the nearest
    integer, ties to the even one, saturated at the bounds of the element type. A positive factor shrinks, a negative
    one grows; no value is illegal. Saturation is silent.
    @{ */

/** Absolute values: pDst[i] = |pSrc[i]|. The integer forms saturate: the lowest integer, which has no negative, gives
    the highest. The float forms clear the sign bit and nothing else, of a NaN too.

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

/** Squares: pDst[i] = pSrc[i]^2 * 2^-scaleFactor. Integer squares are exact before they are scaled. Complex elements
    are multiplied by themselves: (re^2 - im^2, 2 re im), the integer parts exact, the float ones with a rounding for
    each product and for the sum. Float forms follow IEEE arithmetic in the current rounding mode, NaN and infinities
    included.

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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
