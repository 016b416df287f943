/* Generators of test signals: tones and triangle waves. */
#ifndef TARNS_GENERATORS_H
#define TARNS_GENERATORS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup tones Tones
    @{ */

/** Writes a sinusoid: pDst[n] = magn cos(2 pi rFreq n + phase), with magn sin(2 pi rFreq n + phase) as the imaginary
    part of complex elements.

    With the hint tarnAlgHintFast the array is cut into blocks of 1024 samples (2048 in double precision), each of which
    starts from true cosines; the recurrence y[n+8] = 2 cos(16 pi rFreq) y[n] - y[n-8] runs on from the 17th sample in
    single precision (four steps in double). Any other hint selects one recurrence over the whole array in double
    precision.

    16-bit samples are truncated towards zero, but for the blocks' samples from the 17th on, which are rounded to
    nearest; what leaves the range saturates. A NaN frequency passes the checks and makes every sample a NaN, -32768 in
    16 bits.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param magn   amplitude, above 0
    @param rFreq  frequency in cycles per sample, 0 up to but not including 0.5
    @param pPhase phase of the first sample in radians, 0 up to but not including 2 pi; becomes the phase of the sample
                  behind the last one, again in that range, so that the next call continues the tone
    @param hint   tarnAlgHintFast for speed; any other value for accuracy
    @return the first that applies of: tarnStsNullPtrErr for a null `pPhase`; tarnStsToneMagnErr; tarnStsToneFreqErr;
            tarnStsTonePhaseErr for a parameter out of range; tarnStsNullPtrErr for a null `pDst`; tarnStsSizeErr for
            `len` below 1; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsTone_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn32f rFreq, Tarn32f* pPhase,
                                         TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsTone_Direct_16sc(Tarn16sc* pDst, int len, Tarn16s magn, Tarn32f rFreq, Tarn32f* pPhase,
                                          TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsTone_Direct_32f(Tarn32f* pDst, int len, Tarn32f magn, Tarn32f rFreq, Tarn32f* pPhase,
                                         TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsTone_Direct_32fc(Tarn32fc* pDst, int len, Tarn32f magn, Tarn32f rFreq, Tarn32f* pPhase,
                                          TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsTone_Direct_64f(Tarn64f* pDst, int len, Tarn64f magn, Tarn64f rFreq, Tarn64f* pPhase,
                                         TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsTone_Direct_64fc(Tarn64fc* pDst, int len, Tarn64f magn, Tarn64f rFreq, Tarn64f* pPhase,
                                          TarnHintAlgorithm hint);
///@}

/** Writes a sinusoid with fixed-point parameters: pDst[n] = magn cos(2 pi f n + phase), with f = rFreqQ15 2^-15 and
    phase = phaseQ15 2^-15. Every sample is a cosine of its own, rounded half away from zero.

    @param pDst     destination, `len` elements
    @param len      number of elements, at least 1
    @param magn     amplitude, at least 1
    @param rFreqQ15 frequency in units of 2^-15 cycles per sample, 0 to 16383
    @param phaseQ15 phase of the first sample in units of 2^-15 radians, 0 to 205886
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsToneMagnErr; tarnStsToneFreqErr; tarnStsTonePhaseErr for a parameter out of range; tarnStsNoErr */
TARN_API TarnStatus tarnsToneQ15_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15);

/** A tone that goes on from call to call. It belongs to one caller at a time. */
typedef struct TarnsToneState_16s TarnsToneState_16s;

/** Create a tone object: in a block of the library's own, to be released by tarnsToneFree(), or in the caller's memory,
    of the size that tarnsToneGetStateSizeQ15_16s() tells and at any address.

    @param ppState  where the address of the new object goes; not touched on error
    @param pState   memory that becomes the object; not touched on error
    @param magn     amplitude, at least 1
    @param rFreqQ15 frequency in units of 2^-15 cycles per sample, 0 to 16383
    @param phaseQ15 phase of the first sample in units of 2^-15 radians, 0 to 205886
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsToneMagnErr; tarnStsToneFreqErr;
            tarnStsTonePhaseErr for a parameter out of range; tarnStsNoMemErr if there is no memory; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsToneInitAllocQ15_16s(TarnsToneState_16s** ppState, Tarn16s magn, Tarn16s rFreqQ15,
                                              Tarn32s phaseQ15);
TARN_API TarnStatus tarnsToneInitQ15_16s(TarnsToneState_16s* pState, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15);
///@}

/** Tells how much memory a tone object takes.

    @param pSize where the number of bytes goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsToneGetStateSizeQ15_16s(int* pSize);

/** Writes the next samples of a tone, as tarnsToneQ15_Direct_16s() makes them: two calls give the samples of one call
   of their joint length. The index of a sample is a 32-bit number and wraps around.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the tone
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no tone; tarnStsNoErr */
TARN_API TarnStatus tarnsToneQ15_16s(Tarn16s* pDst, int len, TarnsToneState_16s* pState);

/** Releases a tone object. One that was built in the caller's memory is left as it is.

    @param pState the tone
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object that is no tone */
TARN_API TarnStatus tarnsToneFree(TarnsToneState_16s* pState);
/** @} */

/** @defgroup triangles Triangle waves
    A period of 2 pi radians starts at the upper peak, falls for pi + asym radians to the lower one, and rises for
    pi - asym radians back: with A = pi + asym and B = pi - asym the wave is t(p) = magn (1 - 2 p / A) for phases p up
    to A and t(p) = magn (2 p - 3 pi - asym) / B above it.
    @{ */

/** Writes a triangle wave: pDst[n] = t(2 pi rFreq n + phase), with the same wave at a phase (3 pi + asym) / 2 further
   on as the imaginary part of complex elements; for asym = 0 it stands to the real part as a sine to a cosine.

    The phase advances in the precision of the samples, in single precision for 16-bit ones, which are rounded to
   nearest and saturate. A NaN frequency or asymmetry passes the checks and makes samples NaN, -32768 in 16 bits. At
    asym = -pi, where the falling edge has no width, a phase of 0 has no value and gives a NaN as well.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param magn   amplitude, above 0
    @param rFreq  frequency in cycles per sample, 0 up to but not including 0.5
    @param asym   asymmetry in radians, -pi up to but not including pi
    @param pPhase phase of the first sample in radians, 0 up to but not including 2 pi; becomes the phase of the sample
                  behind the last one, again in that range, so that the next call continues the wave
    @return the first that applies of: tarnStsNullPtrErr for a null `pPhase`; tarnStsTrnglMagnErr; tarnStsTrnglFreqErr;
            tarnStsTrnglAsymErr; tarnStsTrnglPhaseErr for a parameter out of range; tarnStsNullPtrErr for a null `pDst`;
            tarnStsSizeErr for `len` below 1; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsTriangle_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn32f rFreq, Tarn32f asym,
                                             Tarn32f* pPhase);
TARN_API TarnStatus tarnsTriangle_Direct_16sc(Tarn16sc* pDst, int len, Tarn16s magn, Tarn32f rFreq, Tarn32f asym,
                                              Tarn32f* pPhase);
TARN_API TarnStatus tarnsTriangle_Direct_32f(Tarn32f* pDst, int len, Tarn32f magn, Tarn32f rFreq, Tarn32f asym,
                                             Tarn32f* pPhase);
TARN_API TarnStatus tarnsTriangle_Direct_32fc(Tarn32fc* pDst, int len, Tarn32f magn, Tarn32f rFreq, Tarn32f asym,
                                              Tarn32f* pPhase);
TARN_API TarnStatus tarnsTriangle_Direct_64f(Tarn64f* pDst, int len, Tarn64f magn, Tarn64f rFreq, Tarn64f asym,
                                             Tarn64f* pPhase);
TARN_API TarnStatus tarnsTriangle_Direct_64fc(Tarn64fc* pDst, int len, Tarn64f magn, Tarn64f rFreq, Tarn64f asym,
                                              Tarn64f* pPhase);
///@}

/** Writes a triangle wave with fixed-point parameters. A value walks along the edges in double precision and is
   mirrored where it passes a peak; samples are rounded half away from zero.

    @param pDst     destination, `len` elements
    @param len      number of elements, at least 1
    @param magn     amplitude, at least 1
    @param rFreqQ15 frequency in units of 2^-15 cycles per sample, 0 to 16383
    @param phaseQ15 phase of the first sample in units of 2^-15 radians, 0 to 205886
    @param asymQ15  asymmetry in units of 2^-15 radians, -102943 to 102943
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsTrnglMagnErr; tarnStsTrnglFreqErr; tarnStsTrnglPhaseErr; tarnStsTrnglAsymErr for a parameter out of
            range; tarnStsNoErr */
TARN_API TarnStatus tarnsTriangleQ15_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn16s rFreqQ15,
                                                Tarn32s phaseQ15, Tarn32s asymQ15);

/** A triangle wave that goes on from call to call. It belongs to one caller at a time. */
typedef struct TarnsTriangleState_16s TarnsTriangleState_16s;

/** Create a triangle object: in a block of the library's own, to be released by tarnsTriangleFree(), or in the caller's
    memory, of the size that tarnsTriangleGetStateSizeQ15_16s() tells and at any address.

    @param ppState  where the address of the new object goes; not touched on error
    @param pState   memory that becomes the object; not touched on error
    @param magn     amplitude, at least 1
    @param rFreqQ15 frequency in units of 2^-15 cycles per sample, 0 to 16383
    @param phaseQ15 phase of the first sample in units of 2^-15 radians, 0 to 205886
    @param asymQ15  asymmetry in units of 2^-15 radians, -102943 to 102943
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsTrnglMagnErr; tarnStsTrnglFreqErr;
            tarnStsTrnglPhaseErr; tarnStsTrnglAsymErr for a parameter out of range; tarnStsNoMemErr if there is no
            memory; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsTriangleInitAllocQ15_16s(TarnsTriangleState_16s** ppState, Tarn16s magn, Tarn16s rFreqQ15,
                                                  Tarn32s phaseQ15, Tarn32s asymQ15);
TARN_API TarnStatus tarnsTriangleInitQ15_16s(TarnsTriangleState_16s* pState, Tarn16s magn, Tarn16s rFreqQ15,
                                             Tarn32s phaseQ15, Tarn32s asymQ15);
///@}

/** Tells how much memory a triangle object takes.

    @param pSize where the number of bytes goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsTriangleGetStateSizeQ15_16s(int* pSize);

/** Writes the next samples of a triangle wave, as tarnsTriangleQ15_Direct_16s() makes them: two calls give the samples
    of one call of their joint length.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the triangle wave
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no triangle wave; tarnStsNoErr */
TARN_API TarnStatus tarnsTriangleQ15_16s(Tarn16s* pDst, int len, TarnsTriangleState_16s* pState);

/** Releases a triangle object. One that was built in the caller's memory is left as it is.

    @param pState the triangle wave
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object that is no triangle
            wave */
TARN_API TarnStatus tarnsTriangleFree(TarnsTriangleState_16s* pState);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
