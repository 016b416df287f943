/* Generators of test signals: tones, triangle waves, ramps, chirps and random numbers. */
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

/** @defgroup ramps Ramps and chirps
    @{ */

/** Writes a straight line: pDst[n] = offset + slope n, each element from its own index, so that no error accumulates.

    The line is computed in single precision, so that from 2^24 elements on the index itself is rounded. Integers are
    rounded to nearest, halves away from zero, and saturate; elements without a sign are 0 wherever the line is not
    above 0. What a NaN becomes is 0 in 8 and 16 bits, the lowest value in `32s`, 2147483648 in `32u`.

    `64f` elements are computed in double precision in whole groups of eight from a 16-byte boundary on, if there are at
    least 9 of them and they lie at multiples of 8 bytes. What lies before and behind these groups, and any other array,
    is computed in single precision: neighbours may differ by the error of that.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param offset first value
    @param slope  what is added from element to element
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsVectorRamp_8u(Tarn8u* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_8s(Tarn8s* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_16u(Tarn16u* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_16s(Tarn16s* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_32u(Tarn32u* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_32s(Tarn32s* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_32f(Tarn32f* pDst, int len, Tarn32f offset, Tarn32f slope);
TARN_API TarnStatus tarnsVectorRamp_64f(Tarn64f* pDst, int len, Tarn32f offset, Tarn32f slope);
///@}

/** Writes the Jaehne signal: pDst[n] = magn sin(pi n^2 / (2 len)), a chirp whose frequency rises evenly from 0 to half
    the sampling rate. One element alone is 0.

    Integers with a sign are rounded half away from zero. Integers without one have no room for the negative half: the
    signal is moved and stretched so that its extremes become exactly 0 and `magn`, and rounded; this takes work memory
    of 8 bytes an element.

    Floats from a 16-byte boundary on are computed in groups of 16 bytes, `32f` with phases in single precision: their
    error grows with the phase, to 5 len 2^-24 of the amplitude at the end of the array. Elements before and behind
    the groups, arrays of fewer than 7 elements (3 of `64f`) and arrays at odd addresses are computed in double
   precision and rounded once.

    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @param magn amplitude, at least 0
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsMagnitudeErr for a `magn` that is negative or NaN, of elements with a sign; tarnStsNoMemErr if
            there is no memory, of elements without one; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsVectorJaehne_8u(Tarn8u* pDst, int len, Tarn8u magn);
TARN_API TarnStatus tarnsVectorJaehne_8s(Tarn8s* pDst, int len, Tarn8s magn);
TARN_API TarnStatus tarnsVectorJaehne_16u(Tarn16u* pDst, int len, Tarn16u magn);
TARN_API TarnStatus tarnsVectorJaehne_16s(Tarn16s* pDst, int len, Tarn16s magn);
TARN_API TarnStatus tarnsVectorJaehne_32u(Tarn32u* pDst, int len, Tarn32u magn);
TARN_API TarnStatus tarnsVectorJaehne_32s(Tarn32s* pDst, int len, Tarn32s magn);
TARN_API TarnStatus tarnsVectorJaehne_32f(Tarn32f* pDst, int len, Tarn32f magn);
TARN_API TarnStatus tarnsVectorJaehne_64f(Tarn64f* pDst, int len, Tarn64f magn);
///@}
/** @} */

/** @defgroup random Random numbers
    One generator serves them all: the sum of a linear congruential sequence, x' = 69069 x + 1013904243, and a
    subtract-with-borrow sequence to the modulus 2^32 - 18 (Marsaglia and Zaman, 1991), both of 32 bits.
    @{ */

/** Writes uniformly distributed numbers: pDst[n] = draw span + mid in double precision, draws being signed 32-bit
    integers, mid = (low + high) / 2 and span = (high - low) 2^-32. The numbers lie in [low, high); a `high` below `low`
    is accepted, and acts through the formula.

    `16s` numbers are rounded in the current rounding mode, so that `high` itself may come out; the bounds have half the
    weight of the numbers between them. `64f` numbers have the 32 random bits of one draw.

    Every call starts the generator from the seed, and leaves one of its words as the seed of the next call. So calls
   one after the other do not give the numbers of one long call: objects (tarnsRandUniformInitAlloc_32f() and kin) do.

    @param pDst  destination, `len` elements
    @param len   number of elements, at least 1
    @param low   lower bound
    @param high  upper bound
    @param pSeed the seed; becomes another one for the next call
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniform_Direct_16s(Tarn16s* pDst, int len, Tarn16s low, Tarn16s high, unsigned int* pSeed);
TARN_API TarnStatus tarnsRandUniform_Direct_32f(Tarn32f* pDst, int len, Tarn32f low, Tarn32f high, unsigned int* pSeed);
TARN_API TarnStatus tarnsRandUniform_Direct_64f(Tarn64f* pDst, int len, Tarn64f low, Tarn64f high, unsigned int* pSeed);
///@}

/** Writes normally distributed numbers of a mean and a standard deviation, by Marsaglia's polar method: pairs of draws
    are taken as a point (u1, u2) of the unit square until it lies in the circle, and stdDev sqrt(-2 ln(s) / s) u2 and
    the same of u1, with s = u1^2 + u2^2, are two independent numbers around 0. No number lies further from the mean
   than some 9 deviations.

    `16s` numbers are truncated towards zero and saturate; the mean of `32f` numbers is added in single precision. A
    negative deviation is accepted, and mirrors the numbers.

    Every call starts the generator from the seed, and leaves one of its words as the seed of the next call; the second
    number of a pair that an odd `len` leaves over is lost.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param mean   mean
    @param stdDev standard deviation
    @param pSeed  the seed; becomes another one for the next call
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGauss_Direct_16s(Tarn16s* pDst, int len, Tarn16s mean, Tarn16s stdDev,
                                              unsigned int* pSeed);
TARN_API TarnStatus tarnsRandGauss_Direct_32f(Tarn32f* pDst, int len, Tarn32f mean, Tarn32f stdDev,
                                              unsigned int* pSeed);
TARN_API TarnStatus tarnsRandGauss_Direct_64f(Tarn64f* pDst, int len, Tarn64f mean, Tarn64f stdDev,
                                              unsigned int* pSeed);
///@}

/** Random generators that go on from call to call. Each belongs to one caller at a time. */
///@{
typedef struct TarnsRandUniformState_8u TarnsRandUniformState_8u;
typedef struct TarnsRandUniformState_16s TarnsRandUniformState_16s;
typedef struct TarnsRandUniformState_32f TarnsRandUniformState_32f;
typedef struct TarnsRandGaussState_8u TarnsRandGaussState_8u;
typedef struct TarnsRandGaussState_16s TarnsRandGaussState_16s;
typedef struct TarnsRandGaussState_32f TarnsRandGaussState_32f;
///@}

/** Create a generator of uniformly distributed numbers: in a block of the library's own, to be released by
    tarnsRandUniformFree_8u() and kin, or in the caller's memory, of the size that tarnsRandUniformGetSize_16s() tells
    and at any address.

    @param ppState where the address of the new object goes; not touched on error
    @param pState  memory that becomes the object
    @param low     lower bound
    @param high    upper bound
    @param seed    where the generator begins; any value
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsNoMemErr if there is no memory;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniformInitAlloc_8u(TarnsRandUniformState_8u** ppState, Tarn8u low, Tarn8u high,
                                                 unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInitAlloc_16s(TarnsRandUniformState_16s** ppState, Tarn16s low, Tarn16s high,
                                                  unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInitAlloc_32f(TarnsRandUniformState_32f** ppState, Tarn32f low, Tarn32f high,
                                                  unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInit_16s(TarnsRandUniformState_16s* pState, Tarn16s low, Tarn16s high,
                                             unsigned int seed);
///@}

/** Create a generator of normally distributed numbers: in a block of the library's own, to be released by
    tarnsRandGaussFree_8u() and kin, or in the caller's memory, of the size that tarnsRandGaussGetSize_16s() tells and
    at any address.

    @param ppState where the address of the new object goes; not touched on error
    @param pState  memory that becomes the object
    @param mean    mean
    @param stdDev  standard deviation
    @param seed    where the generator begins; any value
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsNoMemErr if there is no memory;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGaussInitAlloc_8u(TarnsRandGaussState_8u** ppState, Tarn8u mean, Tarn8u stdDev,
                                               unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInitAlloc_16s(TarnsRandGaussState_16s** ppState, Tarn16s mean, Tarn16s stdDev,
                                                unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInitAlloc_32f(TarnsRandGaussState_32f** ppState, Tarn32f mean, Tarn32f stdDev,
                                                unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInit_16s(TarnsRandGaussState_16s* pState, Tarn16s mean, Tarn16s stdDev,
                                           unsigned int seed);
///@}

/** Tell how much memory a generator takes.

    @param pSize where the number of bytes goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
///@{
TARN_API TarnStatus tarnsRandUniformGetSize_16s(int* pSize);
TARN_API TarnStatus tarnsRandGaussGetSize_16s(int* pSize);
///@}

/** Writes the next uniformly distributed numbers, as tarnsRandUniform_Direct_32f() makes them, but that integers are
    truncated towards zero: two calls give the numbers of one call of their joint length.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the generator
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no such generator; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniform_8u(Tarn8u* pDst, int len, TarnsRandUniformState_8u* pState);
TARN_API TarnStatus tarnsRandUniform_16s(Tarn16s* pDst, int len, TarnsRandUniformState_16s* pState);
TARN_API TarnStatus tarnsRandUniform_32f(Tarn32f* pDst, int len, TarnsRandUniformState_32f* pState);
///@}

/** Writes the next normally distributed numbers, as tarnsRandGauss_Direct_32f() makes them; the second number of a pair
    waits for the next call, so that two calls give the numbers of one call of their joint length.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the generator
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no such generator; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGauss_8u(Tarn8u* pDst, int len, TarnsRandGaussState_8u* pState);
TARN_API TarnStatus tarnsRandGauss_16s(Tarn16s* pDst, int len, TarnsRandGaussState_16s* pState);
TARN_API TarnStatus tarnsRandGauss_32f(Tarn32f* pDst, int len, TarnsRandGaussState_32f* pState);
///@}

/** Releases a generator of the library's own; one in the caller's memory needs no release, and must not be given here.

    @param pState the generator
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object that is no such
            generator */
///@{
TARN_API TarnStatus tarnsRandUniformFree_8u(TarnsRandUniformState_8u* pState);
TARN_API TarnStatus tarnsRandUniformFree_16s(TarnsRandUniformState_16s* pState);
TARN_API TarnStatus tarnsRandUniformFree_32f(TarnsRandUniformState_32f* pState);
TARN_API TarnStatus tarnsRandGaussFree_8u(TarnsRandGaussState_8u* pState);
TARN_API TarnStatus tarnsRandGaussFree_16s(TarnsRandGaussState_16s* pState);
TARN_API TarnStatus tarnsRandGaussFree_32f(TarnsRandGaussState_32f* pState);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
