/* Conversion between element types. */
#ifndef TARNS_CONVERT_H
#define TARNS_CONVERT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup convert Conversion
    Makes a vector of one element type of a vector of another: samples as they come from files and devices become floats
    to compute with, and go back rounded and saturated.

    @code{.c}
    const Tarn32f x[4] = {0.5F, 1.5F, -3.25F, 40000};
    Tarn16s samples[4];
    tarnsConvert_32f16s_Sfs(x, samples, 4, tarnRndNear, 0);
    printf("%d %d %d %d\n", samples[0], samples[1], samples[2], samples[3]); // 0 2 -3 32767
    @endcode

    __Accuracy:__ to wider types exact; to narrower ones rounded once, by `rndMode` or to nearest, and saturated.

    __Cost:__ 0.03 to 0.4 of a plain loop for all that rounds to integers, about a loop's time for what only widens.

    __Guide:__ [Conversions and rounding](docs/conversions.md).

    The type of the source comes first in a name, that of the destination last. `24u` and `24s` elements are three
    consecutive bytes, low byte first, at any address; their arrays are passed as pointers to bytes, element i starting
    at byte 3 i. `16f` elements are half-precision floats: sign, 5 bits of exponent, 10 bits of significand, infinities
    and NaN where the exponent is 0x7C00; their arrays are passed as pointers to Tarn16s, which hold the bits.

    Source and destination may be the same array where their elements have the same size or the destination's are
    smaller; any other overlap is undefined. Saturation is silent.
    @{ */

/** Rounding of floats to integers and to half precision, the values of `rndMode`. Conversions that have no such
    argument and are not exact use the current rounding mode of the caller, unless they say otherwise. */
enum {
    tarnRndZero = 0, /**< towards zero */
    tarnRndNear = 1  /**< to nearest, ties to even */
};

/** Widens integers: pDst[i] = pSrc[i], exact.

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_8s16s(const Tarn8s* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsConvert_16s32s(const Tarn16s* pSrc, Tarn32s* pDst, int len);
TARN_API TarnStatus tarnsConvert_24u32u(const Tarn8u* pSrc, Tarn32u* pDst, int len);
TARN_API TarnStatus tarnsConvert_24s32s(const Tarn8u* pSrc, Tarn32s* pDst, int len);
///@}

/** Converts to floating point: pDst[i] = pSrc[i]. Exact but for `32s32f`, which is one conversion in the current
    rounding mode. For `32s32f` the arrays may overlap in any way.

    @param pSrc source, `len` elements; a NaN of `32f64f` stays one
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_8s32f(const Tarn8s* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_8u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_16s32f(const Tarn16s* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_16u32f(const Tarn16u* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_24s32f(const Tarn8u* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_24u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_32s32f(const Tarn32s* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsConvert_32s64f(const Tarn32s* pSrc, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsConvert_32f64f(const Tarn32f* pSrc, Tarn64f* pDst, int len);
///@}

/** Converts scaled integers to floating point: pDst[i] = pSrc[i] * 2^-scaleFactor.

    The integer is converted first, exactly but for `32s32f`, where it is rounded in the current rounding mode; the
    multiplication by the power of two is exact.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor any integer; limited to -112..126 (`16s32f`), -1008..1022 (`16s64f`), -96..126 (`32s32f`),
                       -992..1022 (`32s64f`), between which no result leaves the range of normal floats
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_16s32f_Sfs(const Tarn16s* pSrc, Tarn32f* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_16s64f_Sfs(const Tarn16s* pSrc, Tarn64f* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32s32f_Sfs(const Tarn32s* pSrc, Tarn32f* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32s64f_Sfs(const Tarn32s* pSrc, Tarn64f* pDst, int len, int scaleFactor);
///@}

/** Narrows integers: pDst[i] = pSrc[i], limited to -32768..32767.

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsConvert_32s16s(const Tarn32s* pSrc, Tarn16s* pDst, int len);

/** Narrows scaled integers: pDst[i] = pSrc[i] * 2^-scaleFactor, rounded to the nearest integer, ties to the even one,
    and saturated at -32768 and 32767 (`16s`), -8388608 and 8388607 (`24s`), 0 and 16777215 (`24u`).

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements
    @param len         number of elements, at least 1
    @param scaleFactor any integer; limited to -15..31 (`32s16s`), -31..31 (the 24-bit forms). Any larger one gives the
                       same as 31, although the exact rule would give 0
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32s24s_Sfs(const Tarn32s* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32u24u_Sfs(const Tarn32u* pSrc, Tarn8u* pDst, int len, int scaleFactor);
///@}

/** Converts floats to scaled integers: pDst[i] = pSrc[i] * 2^-scaleFactor, rounded, saturated at the bounds of the
    destination's type. A NaN becomes the lower bound, an infinity the bound of its sign.

    The caller's rounding mode does not matter, and the control word of the floating-point unit, its flags included, is
    the same afterwards. Where the caller takes denormals for zeros, `rndMode` 0 does so as well, and rounding to
    nearest does unless the caller's rounding mode is another one.

    @param pSrc        source, `len` elements
    @param pDst        destination, `len` elements
    @param len         number of elements, at least 1
    @param rndMode     tarnRndZero truncates; any other value rounds to nearest, ties to even
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_32f8s_Sfs(const Tarn32f* pSrc, Tarn8s* pDst, int len, int rndMode, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32f8u_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int rndMode, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32f16s_Sfs(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32f16u_Sfs(const Tarn32f* pSrc, Tarn16u* pDst, int len, int rndMode, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32f32s_Sfs(const Tarn32f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor);
TARN_API TarnStatus tarnsConvert_64f32s_Sfs(const Tarn64f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor);
///@}

/** Converts floats to scaled 24-bit integers: pDst[i] = pSrc[i] * 2^-scaleFactor, rounded to nearest, ties to even,
    saturated at -8388608 and 8388607 (`24s`) or 0 and 16777215 (`24u`). A NaN becomes the lower bound. The caller's
    rounding mode does not matter, and the control word is the same afterwards.

    @param pSrc        source, `len` elements
    @param pDst        destination, 3 `len` bytes
    @param len         number of elements, at least 1
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_32f24s_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsConvert_32f24u_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor);
///@}

/** Converts double to single precision: pDst[i] = pSrc[i], one conversion an element in the current rounding mode. What
    is too large becomes an infinity or the largest float, as the mode has it; a NaN stays one.

    @param pSrc source, `len` elements
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsConvert_64f32f(const Tarn64f* pSrc, Tarn32f* pDst, int len);

/** Converts to half precision: pDst[i] = pSrc[i], rounded as IEEE 754 has it for either mode, denormal results
    included.

    Rounding to nearest makes an infinity of what is 65520 or more; truncation makes 65504, the largest half, of all
    finite values above. Infinities and the sign of zero stay. A NaN becomes a quiet NaN with its sign and the top ten
    bits of its payload. The caller's rounding mode does not matter, and the control word is the same afterwards.

    @param pSrc    source, `len` elements
    @param pDst    destination, the bits of `len` halves
    @param len     number of elements, at least 1
    @param rndMode tarnRndNear rounds to nearest, ties to even; any other value truncates
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConvert_16s16f(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode);
TARN_API TarnStatus tarnsConvert_32f16f(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode);
///@}

/** Converts half to single precision: pDst[i] = pSrc[i], exact for all 65536 patterns in any state of the control word.
    A NaN keeps its sign and its payload, which becomes the upper part of the longer one, quiet or not.

    @param pSrc source, the bits of `len` halves
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsConvert_16f32f(const Tarn16s* pSrc, Tarn32f* pDst, int len);

/** Converts halves to scaled integers: pDst[i] = pSrc[i] * 2^-scaleFactor, rounded, saturated at -32768 and 32767. A
    NaN becomes -32768, an infinity the bound of its sign. The caller's rounding mode does not matter, and the control
    word is the same afterwards.

    @param pSrc        source, the bits of `len` halves
    @param pDst        destination, `len` elements
    @param len         number of elements, at least 1
    @param rndMode     tarnRndNear rounds to nearest, ties to even; any other value truncates
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
TARN_API TarnStatus tarnsConvert_16f16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
