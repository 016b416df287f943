/* Thresholds: elements limited against a level, by value or, if they are complex, by magnitude. */
#ifndef TARNS_THRESHOLD_H
#define TARNS_THRESHOLD_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Comparisons of the threshold functions that take one as an argument. It is a plain integer: 4 means greater, every
    other value means less. */
enum {
    tarnCmpLess = 0,   /**< elements below the level are limited */
    tarnCmpGreater = 4 /**< elements above the level are limited */
};

/** @defgroup threshold Thresholds
    Limits elements, replaces those beyond a level, or inverts without dividing by what is too small: clipping, gates,
    floors under logarithms.

    @code{.c}
    Tarn32f x[4] = {-2, 0.25F, 0.75F, 3};
    tarnsThreshold_LTValGTVal_32f_I(x, 4, -1, -1, 1, 1); // to -1 .. 1
    printf("%g %g %g %g\n", x[0], x[1], x[2], x[3]); // -1 0.25 0.75 1
    @endcode

    __Accuracy:__ elements that pass keep their bits, and comparisons are exact.

    __Cost:__ 0.5 to 1.07 of a plain loop; complex elements some 0.85.

    __Guide:__ [Working on vectors](docs/vectors.md).

    Real elements are compared with a level by value, complex ones by magnitude. Magnitudes are compared by their
    squares, re^2 + im^2 against level^2: exactly for `16sc`, in double precision for `32fc` and `64fc`, where no square
    overflows or vanishes. Elements that pass keep their bits.

    Scaling an element to a magnitude multiplies both parts by level / |z| and thereby keeps its phase; float parts are
    rounded in the current rounding mode, integer ones to nearest whatever that mode is. A zero has the phase of a
    positive real number, or of a negative one if the sign bit of its real part is set. The infinite parts of an element
    that is scaled or inverted become NaN, its finite ones 0.
    @{ */

/** Limits elements on the side that `relOp` tells, as tarnsThreshold_LT_32f() or tarnsThreshold_GT_32f() and their like
    do.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param relOp tarnCmpGreater for the elements above the level; any other value for those below it
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s level, int relOp);
TARN_API TarnStatus tarnsThreshold_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level, int relOp);
TARN_API TarnStatus tarnsThreshold_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level, int relOp);
TARN_API TarnStatus tarnsThreshold_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level, int relOp);
TARN_API TarnStatus tarnsThreshold_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level, int relOp);
TARN_API TarnStatus tarnsThreshold_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level, int relOp);
///@}

/** Limits elements on the side that `relOp` tells, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param relOp tarnCmpGreater for the elements above the level; any other value for those below it
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_16s_I(Tarn16s* pSrcDst, int len, Tarn16s level, int relOp);
TARN_API TarnStatus tarnsThreshold_16sc_I(Tarn16sc* pSrcDst, int len, Tarn16s level, int relOp);
TARN_API TarnStatus tarnsThreshold_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level, int relOp);
TARN_API TarnStatus tarnsThreshold_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level, int relOp);
TARN_API TarnStatus tarnsThreshold_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level, int relOp);
TARN_API TarnStatus tarnsThreshold_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level, int relOp);
///@}

/** Limits elements below the level. Real ones: pDst[i] = pSrc[i] > level ? pSrc[i] : level, so that a NaN becomes the
    level, as does a zero equal to it. Complex ones with a magnitude below the level are scaled to it; those with a NaN
    part pass. For complex elements a level of 0 leaves everything as it is.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_LT_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_LT_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_LT_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LT_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LT_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LT_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LT_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32s level);
///@}

/** Limits elements below the level, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_LT_16s_I(Tarn16s* pSrcDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_LT_16sc_I(Tarn16sc* pSrcDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_LT_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LT_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LT_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LT_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LT_32s_I(Tarn32s* pSrcDst, int len, Tarn32s level);
///@}

/** Limits elements above the level. Real ones: pDst[i] = pSrc[i] < level ? pSrc[i] : level, so that a NaN becomes the
    level, as does a zero equal to it. Complex ones with a magnitude above the level are scaled to it; those with a NaN
    part pass. For complex elements a level of 0 makes every element +0.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_GT_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_GT_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_GT_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_GT_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_GT_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_GT_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level);
///@}

/** Limits elements above the level, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_GT_16s_I(Tarn16s* pSrcDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_GT_16sc_I(Tarn16sc* pSrcDst, int len, Tarn16s level);
TARN_API TarnStatus tarnsThreshold_GT_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_GT_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_GT_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_GT_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level);
///@}

/** Replaces elements below the level: pDst[i] = pSrc[i] < level ? value : pSrc[i], by magnitude for complex elements. A
    NaN, and a complex element with a NaN part, passes.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param value what stands in the place of elements below the level
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_LTVal_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s level, Tarn16s value);
TARN_API TarnStatus tarnsThreshold_LTVal_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level,
                                              Tarn16sc value);
TARN_API TarnStatus tarnsThreshold_LTVal_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level, Tarn32f value);
TARN_API TarnStatus tarnsThreshold_LTVal_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level,
                                              Tarn32fc value);
TARN_API TarnStatus tarnsThreshold_LTVal_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level, Tarn64f value);
TARN_API TarnStatus tarnsThreshold_LTVal_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level,
                                              Tarn64fc value);
///@}

/** Replaces elements below the level, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param value what stands in the place of elements below the level
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_LTVal_16s_I(Tarn16s* pSrcDst, int len, Tarn16s level, Tarn16s value);
TARN_API TarnStatus tarnsThreshold_LTVal_16sc_I(Tarn16sc* pSrcDst, int len, Tarn16s level, Tarn16sc value);
TARN_API TarnStatus tarnsThreshold_LTVal_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level, Tarn32f value);
TARN_API TarnStatus tarnsThreshold_LTVal_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level, Tarn32fc value);
TARN_API TarnStatus tarnsThreshold_LTVal_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level, Tarn64f value);
TARN_API TarnStatus tarnsThreshold_LTVal_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level, Tarn64fc value);
///@}

/** Replaces elements above the level: pDst[i] = pSrc[i] > level ? value : pSrc[i], by magnitude for complex elements. A
    NaN, and a complex element with a NaN part, passes.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param value what stands in the place of elements above the level
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_GTVal_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s level, Tarn16s value);
TARN_API TarnStatus tarnsThreshold_GTVal_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level,
                                              Tarn16sc value);
TARN_API TarnStatus tarnsThreshold_GTVal_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level, Tarn32f value);
TARN_API TarnStatus tarnsThreshold_GTVal_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level,
                                              Tarn32fc value);
TARN_API TarnStatus tarnsThreshold_GTVal_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level, Tarn64f value);
TARN_API TarnStatus tarnsThreshold_GTVal_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level,
                                              Tarn64fc value);
///@}

/** Replaces elements above the level, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level bound of the values, or of the magnitudes for complex elements, where it is at least 0; a NaN limits no
                 complex element
    @param value what stands in the place of elements above the level
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsThreshNegLevelErr for a `level` below 0 in a complex form */
///@{
TARN_API TarnStatus tarnsThreshold_GTVal_16s_I(Tarn16s* pSrcDst, int len, Tarn16s level, Tarn16s value);
TARN_API TarnStatus tarnsThreshold_GTVal_16sc_I(Tarn16sc* pSrcDst, int len, Tarn16s level, Tarn16sc value);
TARN_API TarnStatus tarnsThreshold_GTVal_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level, Tarn32f value);
TARN_API TarnStatus tarnsThreshold_GTVal_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level, Tarn32fc value);
TARN_API TarnStatus tarnsThreshold_GTVal_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level, Tarn64f value);
TARN_API TarnStatus tarnsThreshold_GTVal_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level, Tarn64fc value);
///@}

/** Replaces elements outside a band: pDst[i] = valueLT if pSrc[i] < levelLT, valueGT if pSrc[i] > levelGT, else
    pSrc[i]. With equal levels only elements equal to them pass, and NaN, which always does.

    @param pSrc    source, `len` elements
    @param pDst    destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len     number of elements, at least 1
    @param levelLT elements below it are replaced
    @param valueLT what they are replaced by
    @param levelGT elements above it are replaced; at least `levelLT`
    @param valueGT what they are replaced by
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsThresholdErr
    for a `levelLT` above `levelGT` */
///@{
TARN_API TarnStatus tarnsThreshold_LTValGTVal_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s levelLT,
                                                  Tarn16s valueLT, Tarn16s levelGT, Tarn16s valueGT);
TARN_API TarnStatus tarnsThreshold_LTValGTVal_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f levelLT,
                                                  Tarn32f valueLT, Tarn32f levelGT, Tarn32f valueGT);
TARN_API TarnStatus tarnsThreshold_LTValGTVal_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f levelLT,
                                                  Tarn64f valueLT, Tarn64f levelGT, Tarn64f valueGT);
///@}

/** Replaces elements outside a band, in place.

    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @param levelLT elements below it are replaced
    @param valueLT what they are replaced by
    @param levelGT elements above it are replaced; at least `levelLT`
    @param valueGT what they are replaced by
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsThresholdErr
    for a `levelLT` above `levelGT` */
///@{
TARN_API TarnStatus tarnsThreshold_LTValGTVal_16s_I(Tarn16s* pSrcDst, int len, Tarn16s levelLT, Tarn16s valueLT,
                                                    Tarn16s levelGT, Tarn16s valueGT);
TARN_API TarnStatus tarnsThreshold_LTValGTVal_32f_I(Tarn32f* pSrcDst, int len, Tarn32f levelLT, Tarn32f valueLT,
                                                    Tarn32f levelGT, Tarn32f valueGT);
TARN_API TarnStatus tarnsThreshold_LTValGTVal_64f_I(Tarn64f* pSrcDst, int len, Tarn64f levelLT, Tarn64f valueLT,
                                                    Tarn64f levelGT, Tarn64f valueGT);
///@}

/** Inverts elements, those below the level as if they had its magnitude: pDst[i] = 1 / x, where x is pSrc[i] with its
    magnitude raised to `level` if it is less. So no result is larger than 1 / level. A real NaN counts as below the
    level; in a complex element it gives NaN.

    The inverse of `32f` is the processor's approximate reciprocal after one Newton step, r (2 - x r): good to some 23
    bits, but not correctly rounded, and 0 where it would be denormal. Zeros, infinities and denormals are divided into
    1 instead. `64f` is a division. Complex elements are inverted in double precision: the conjugate over the square of
    the magnitude.

    With a level of 0 a zero gives infinity, of its own sign if it is real, in both parts if it is complex; the status
    tells. The floating-point control and status word is left as it was found, its exception flags included.

    @param pSrc  source, `len` elements
    @param pDst  destination, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param len   number of elements, at least 1
    @param level least magnitude of what is inverted, at least 0
    @return tarnStsNoErr; tarnStsInvZero if a division by zero gave an infinity, all elements being done nevertheless;
            tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsThreshNegLevelErr for a
            `level` below 0 or NaN */
///@{
TARN_API TarnStatus tarnsThreshold_LTInv_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LTInv_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LTInv_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LTInv_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level);
///@}

/** Inverts elements, those below the level as if they had its magnitude, in place.

    @param pSrcDst array of `len` elements
    @param len   number of elements, at least 1
    @param level least magnitude of what is inverted, at least 0
    @return tarnStsNoErr; tarnStsInvZero if a division by zero gave an infinity, all elements being done nevertheless;
            tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsThreshNegLevelErr for a
            `level` below 0 or NaN */
///@{
TARN_API TarnStatus tarnsThreshold_LTInv_32f_I(Tarn32f* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LTInv_32fc_I(Tarn32fc* pSrcDst, int len, Tarn32f level);
TARN_API TarnStatus tarnsThreshold_LTInv_64f_I(Tarn64f* pSrcDst, int len, Tarn64f level);
TARN_API TarnStatus tarnsThreshold_LTInv_64fc_I(Tarn64fc* pSrcDst, int len, Tarn64f level);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
