/* Phases of complex vectors, and polar coordinates. */
#ifndef TARNS_POLAR_H
#define TARNS_POLAR_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup polar Phases and polar coordinates
    Phases, and the ways between Cartesian and polar coordinates.

    @code{.c}
    const Tarn32fc z[2] = {{0, 2}, {-1, 0}};
    Tarn32f size[2], angle[2];
    tarnsCartToPolar_32fc(z, size, angle, 2);
    printf("%.4f %.4f, %.4f %.4f\n", size[0], angle[0], size[1], angle[1]); // 2.0000 1.5708, 1.0000 3.1416
    @endcode

    __Accuracy:__ phases are within 1 unit of the last place, Cartesian parts within 2, at phases of any size.

    __Cost:__ phases take 0.05 of `atan2` in single precision and 0.16 in double; the way back 0.29 and 0.16 of a sine
    and a cosine.

    __Guide:__ [Quotients, roots, magnitudes and phases](docs/division-and-roots.md).

    Most functions exist in two shapes: of one complex array, and of the same numbers as two real arrays.

    Results are the same in all rounding modes of the caller, who finds the control word as it was.
    @{ */

/** Computes phases: pDst[i] = atan2(im, re) * 2^-scaleFactor in radians, from -Pi to Pi. The sign bits of both parts
    decide the quadrant: on the negative real axis the phase is Pi or -Pi as the imaginary part is 0 or -0, and the
    phase of a zero is 0, or Pi for a real part of -0. Two infinities lie on a diagonal. NaN gives NaN.

    The ratio of the smaller part to the larger goes through a polynomial of its own for each precision. `32f` and
    `16s32f` are within 1 unit in the last place, `64f` too.

    Scaled forms (`Sfs`) round to the nearest integer and saturate. From a factor of 2 on they make zeros, though a
    phase beyond 2 would round to 1. Words are computed in single precision, from a factor of -29 down in double
    precision, and rounded half away from zero then; `32sc` is computed in double precision.

    @param pSrcRe      real parts, `len` elements
    @param pSrcIm      imaginary parts, `len` elements
    @param pSrc        complex source, `len` elements
    @param pDst        destination, `len` reals; may be a source of its type itself, and must not overlap one otherwise
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsPhase_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                       int scaleFactor);
TARN_API TarnStatus tarnsPhase_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsPhase_32sc_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsPhase_16s32f(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPhase_16sc32f(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPhase_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPhase_32fc(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsPhase_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsPhase_64fc(const Tarn64fc* pSrc, Tarn64f* pDst, int len);
///@}

/** Converts Cartesian coordinates to polar ones: the magnitudes of tarnsMagnitude_32f or its kin, then the phases of
    tarnsPhase_32f or its kin. Each call checks its own arguments, and the second is made whatever the first one says:
    so with a null `pDstPhase` the magnitudes are written before the call fails, and with a null `pDstMagn` the phases.

    @param pSrcRe    real parts, `len` elements
    @param pSrcIm    imaginary parts, `len` elements
    @param pSrc      complex source, `len` elements
    @param pDstMagn  destination of the magnitudes, `len` elements; must not overlap a source
    @param pDstPhase destination of the phases, `len` elements; may be a source of its type itself, and must not overlap
                     one otherwise
    @param len       number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsCartToPolar_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDstMagn,
                                         Tarn32f* pDstPhase, int len);
TARN_API TarnStatus tarnsCartToPolar_32fc(const Tarn32fc* pSrc, Tarn32f* pDstMagn, Tarn32f* pDstPhase, int len);
TARN_API TarnStatus tarnsCartToPolar_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDstMagn,
                                         Tarn64f* pDstPhase, int len);
TARN_API TarnStatus tarnsCartToPolar_64fc(const Tarn64fc* pSrc, Tarn64f* pDstMagn, Tarn64f* pDstPhase, int len);
///@}

/** Converts polar coordinates to Cartesian ones: re = magn * cos(phase), im = magn * sin(phase). Sine and cosine come
    from polynomials after a reduction that is exact enough for phases of any size. In single precision the sine is
    within 1.003 units in the last place at all phases and the cosine within 0.981 at those to 3000, behind which it is
    the rounded one of double precision; both parts are within 2, in either precision. Infinite phases and NaN give NaN.

    @param pSrcMagn  magnitudes, `len` elements
    @param pSrcPhase phases in radians, `len` elements
    @param pDstRe    destination of the real parts, `len` elements; may be a source itself
    @param pDstIm    destination of the imaginary parts, `len` elements; may be a source itself
    @param pDst      complex destination, `len` elements; must not overlap a source
    @param len       number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsPolarToCart_32f(const Tarn32f* pSrcMagn, const Tarn32f* pSrcPhase, Tarn32f* pDstRe,
                                         Tarn32f* pDstIm, int len);
TARN_API TarnStatus tarnsPolarToCart_32fc(const Tarn32f* pSrcMagn, const Tarn32f* pSrcPhase, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsPolarToCart_64f(const Tarn64f* pSrcMagn, const Tarn64f* pSrcPhase, Tarn64f* pDstRe,
                                         Tarn64f* pDstIm, int len);
TARN_API TarnStatus tarnsPolarToCart_64fc(const Tarn64f* pSrcMagn, const Tarn64f* pSrcPhase, Tarn64fc* pDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
