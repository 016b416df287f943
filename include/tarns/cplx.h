/* Conjugates, and complex vectors taken apart into real and imaginary parts and put together. */
#ifndef TARNS_CPLX_H
#define TARNS_CPLX_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup cplx Complex vectors and their parts
    Conjugates complex vectors, takes them apart and puts them together.

    @code{.c}
    const Tarn32f re[2] = {1, 2};
    Tarn32fc z[2];
    Tarn32f im[2];
    tarnsRealToCplx_32f(re, NULL, z, 2); // no imaginary parts: zeros
    z[1].im = 5;
    tarnsConj_32fc_I(z, 2);
    tarnsImag_32fc(z, im, 2);
    printf("%g %g\n", z[1].re, im[1]); // 2 -5
    @endcode

    __Accuracy:__ exact.

    __Cost:__ taking apart and putting together take 1.6 to 1.8 of the time of `memcpy` for the same bytes, in cache.

    __Guide:__ [Working on vectors](docs/vectors.md).

    No value is computed here but the negative imaginary part of a conjugate; all bits of floats are kept, those of NaN
    too.
    @{ */

/** Conjugates a vector: pDst[i] = (re, -im) of pSrc[i]. The negative of 16 bits saturates, so that -32768 becomes
    32767; of a float the sign bit changes, that of a zero or a NaN too. In opposite order: tarnsConjFlip_32fc and its
    kin.

    @param pSrc    source, `len` elements
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst source and destination, `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConj_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsConj_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsConj_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsConj_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsConj_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsConj_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Takes the real parts: pDstRe[i] = re of pSrc[i].

    @param pSrc   source, `len` complex elements
    @param pDstRe destination, `len` reals; must not overlap `pSrc`
    @param len    number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsReal_16sc(const Tarn16sc* pSrc, Tarn16s* pDstRe, int len);
TARN_API TarnStatus tarnsReal_32fc(const Tarn32fc* pSrc, Tarn32f* pDstRe, int len);
TARN_API TarnStatus tarnsReal_64fc(const Tarn64fc* pSrc, Tarn64f* pDstRe, int len);
///@}

/** Takes the imaginary parts: pDstIm[i] = im of pSrc[i].

    @param pSrc   source, `len` complex elements
    @param pDstIm destination, `len` reals; must not overlap `pSrc`
    @param len    number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsImag_16sc(const Tarn16sc* pSrc, Tarn16s* pDstIm, int len);
TARN_API TarnStatus tarnsImag_32fc(const Tarn32fc* pSrc, Tarn32f* pDstIm, int len);
TARN_API TarnStatus tarnsImag_64fc(const Tarn64fc* pSrc, Tarn64f* pDstIm, int len);
///@}

/** Takes a complex vector apart: pDstRe[i] = re, pDstIm[i] = im of pSrc[i].

    @param pSrc   source, `len` complex elements
    @param pDstRe destination of the real parts, `len` reals; must not overlap `pSrc`
    @param pDstIm destination of the imaginary parts, `len` reals; must overlap neither of the others
    @param len    number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsCplxToReal_16sc(const Tarn16sc* pSrc, Tarn16s* pDstRe, Tarn16s* pDstIm, int len);
TARN_API TarnStatus tarnsCplxToReal_32fc(const Tarn32fc* pSrc, Tarn32f* pDstRe, Tarn32f* pDstIm, int len);
TARN_API TarnStatus tarnsCplxToReal_64fc(const Tarn64fc* pSrc, Tarn64f* pDstRe, Tarn64f* pDstIm, int len);
///@}

/** Puts a complex vector together: pDst[i] = (pSrcRe[i], pSrcIm[i]). Here a null pointer is an argument like any other:
    a missing source stands for zeros, so that a real vector becomes a complex one without an array of zeros.

    @param pSrcRe real parts, `len` reals, or null for zeros
    @param pSrcIm imaginary parts, `len` reals, or null for zeros
    @param pDst   destination, `len` complex elements; must not overlap the sources
    @param len    number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null destination; tarnStsSizeErr for `len` below 1; then
            tarnStsNullPtrErr if both sources are null, so that a bad length is found before that */
///@{
TARN_API TarnStatus tarnsRealToCplx_16s(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsRealToCplx_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsRealToCplx_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64fc* pDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
