/* The companded codes of telephony, A-law and mu-law. */
#ifndef TARNS_COMPANDING_H
#define TARNS_COMPANDING_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup companding A-law and mu-law
    The 8-bit codes of telephony as ITU-T Recommendation G.711 defines them, from and to linear samples and from one law
    to the other.

    @code{.c}
    const Tarn16s samples[3] = {0, 1000, -30000};
    Tarn8u codes[3];
    Tarn16s back[3];
    tarnsLinToALaw_16s8u(samples, codes, 3);
    tarnsALawToLin_8u16s(codes, back, 3);
    printf("%02X: %d %d %d\n", codes[0], back[0], back[1], back[2]); // D5: 8 1008 -30208
    @endcode

    __Accuracy:__ a byte is a sign, a segment of three bits and four bits within it; the steps double from segment to
    segment, so that the noise of coding stays 35 to 40 dB below the signal over some 40 dB of levels.

    __Cost:__ 0.5 to 1.3 ns a sample: 0.13 to 0.33 of a coder by bits, 0.56 to 0.99 of a decoder by a table.

    __Guide:__ [Coding](docs/coding.md).

    16-bit samples have their full range: what the Recommendation calls 13 bits (A-law) and 14 bits (mu-law) are their
    upper bits. Floats are taken as those samples divided by 32768: full scale is +-1.

    The sign bit is set for positive values, and A-law has every other bit inverted, as on the line: silence is 0xD5 in
    A-law and 0xFF in mu-law. A byte decoded and coded again is itself, but for mu-law's negative zero: 0x7F is 0, and 0
    is 0xFF.

    Source and destination of one element size may be the same array; other overlap is not defined.
    @{ */

/** Decodes to linear samples: pDst[i] = value of pSrc[i], the middle of its interval. A-law spans -32256 to 32256 and
    has no zero (its smallest values are +-8), mu-law -32124 to 32124. As floats the values are divided by 32768,
    exactly; they lie within -1 and 1, and a zero is +0.

    @param pSrc codes, `len` elements
    @param pDst linear samples, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsALawToLin_8u16s(const Tarn8u* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsALawToLin_8u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMuLawToLin_8u16s(const Tarn8u* pSrc, Tarn16s* pDst, int len);
TARN_API TarnStatus tarnsMuLawToLin_8u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len);
///@}

/** Encodes linear samples: pDst[i] = code of the interval that pSrc[i] lies in.

    Negative samples are taken as their one's complement, -s - 1: -1 has the magnitude of 0, and -32768 that of 32767.
    So the interval of each negative code is the mirror image of the positive one but for its ends, and some samples at
    the ends have another code than in coders that negate.

    Floats are multiplied by 32768 in single precision, limited to -32768 and 32767, and rounded to the nearest sample,
    halves away from zero: 0.5 is added to the magnitude, in single precision and the current rounding mode, and the
    fraction cut off. What rounds to the sample 0 has in mu-law the sign of the float, 0x7F if it is negative; -0 counts
    as positive, and so does a float that the processor takes for a zero. A NaN is coded as the sample 0, without the
    sign bit in mu-law: 0xD5 and 0x7F.

    @param pSrc linear samples, `len` elements
    @param pDst codes, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsLinToALaw_16s8u(const Tarn16s* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsLinToALaw_32f8u(const Tarn32f* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsLinToMuLaw_16s8u(const Tarn16s* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsLinToMuLaw_32f8u(const Tarn32f* pSrc, Tarn8u* pDst, int len);
///@}

/** Converts codes of one law to those of the other, by the tables of the Recommendation. That is not the same as
    decoding and coding again, and going there and back changes some bytes.

    @param pSrc codes, `len` elements
    @param pDst codes of the other law, `len` elements; may be `pSrc`
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsALawToMuLaw_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_API TarnStatus tarnsMuLawToALaw_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
