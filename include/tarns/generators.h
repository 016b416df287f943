/* Generators of test signals: tones, triangle waves, ramps and chirps. */
#ifndef TARNS_GENERATORS_H
#define TARNS_GENERATORS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup tones Tones
    Sinusoids, real or complex: test signals, carriers, oscillators that go on from call to call.

    @code{.c}
    Tarn32f tone[4], phase = 0;
    tarnsTone_Direct_32f(tone, 2, 1, 0.1F, &phase, tarnAlgHintAccurate);
    tarnsTone_Direct_32f(tone + 2, 2, 1, 0.1F, &phase, tarnAlgHintAccurate); // goes on
    printf("%.4f %.4f %.4f %.4f\n", tone[0], tone[1], tone[2], tone[3]); // 1.0000 0.8090 0.3090 -0.3090
    @endcode

    __Accuracy:__ a recurrence makes the samples. Its errors grow with their number in a call, and towards the
    frequencies 0 and 0.5 (0.499 is as 0.001). The accurate way, in units of the amplitude:

    | Frequency    | 1000 samples | 20,000 |  100,000 | 1,000,000 |
    | ------------ | -----------: | -----: | -------: | --------: |
    | 1e-6         |        2e-12 |  6e-10 |   1.4e-8 |      3e-7 |
    | 1e-5         |        4e-11 | 1.2e-8 |   6.1e-8 |      6e-7 |
    | 1e-4         |        4e-11 | 1.2e-9 |   6.1e-9 |    6.1e-8 |
    | 0.001        |        5e-12 |  1e-10 |  4.8e-10 |    4.8e-9 |
    | 0.01         |        3e-13 |  5e-12 |  2.6e-11 |   2.6e-10 |
    | 0.05 to 0.45 |      1.7e-13 | 3.4e-12 | 1.7e-11 |   1.7e-10 |

    In single precision that is rounded, 3e-8, and shows only where it is more. In calls of 1000 samples the first
    column holds for ever, but for the phase, which is rounded once a call.

    The fast way begins anew every 1024 samples (2048 in double precision), and so hardly drifts. In single precision it
    errs by 1e-6 to 1e-5 from a frequency of 0.01 on, by 7e-5 at 0.001, 1e-4 at 1e-4 and 5e-4 at 1e-5, and by 1e-4 next
    to multiples of 1/16, where a recurrence over eight samples is least determined. In double precision errors are up
    to 2e-10 at 100,000 samples and 6e-10 at a million, but 5e-9 and 4e-8 at 0.499, and 7e-8 and 4e-7 at 0.4999.

    __Cost:__ the fast way 0.6 ns a sample of `32f`, 0.02 of a loop with a cosine a sample, and the accurate one 1.6 ns.
    The fixed-point tones take a cosine a sample and never drift.

    __Guide:__ [Windows, tones and filter design](docs/windows.md).
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

/** Creates a tone object: in a block of the library's own, to be released by tarnsToneFree(), or in the caller's
    memory, of the size that tarnsToneGetStateSizeQ15_16s() tells and at any address.

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
    Triangle waves with a rising and a falling edge of any proportion: sawtooths, test signals, slow modulation.

    @code{.c}
    Tarn32f wave[4], phase = 0;
    tarnsTriangle_Direct_32f(wave, 4, 1, 0.125F, 0, &phase);
    printf("%.4f %.4f %.4f %.4f\n", wave[0], wave[1], wave[2], wave[3]); // 1.0000 0.5000 0.0000 -0.5000
    @endcode

    __Accuracy:__ the phase is advanced by additions in the precision of the samples, and so gathers their rounding;
    fixed-point waves count it in 2^-15 radians.

    __Cost:__ 1.3 ns a sample.

    __Guide:__ [Windows, tones and filter design](docs/windows.md).

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

/** Creates a triangle object: in a block of the library's own, to be released by tarnsTriangleFree(), or in the
    caller's memory, of the size that tarnsTriangleGetStateSizeQ15_16s() tells and at any address.

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
    Straight lines, and the Jaehne signal, a chirp that sweeps from frequency 0 to half the sampling rate.

    @code{.c}
    Tarn32f line[4];
    tarnsVectorRamp_32f(line, 4, 1, 0.5F);
    printf("%g %g %g %g\n", line[0], line[1], line[2], line[3]); // 1 1.5 2 2.5
    @endcode

    __Accuracy:__ no error accumulates: each element follows from its own index, in single precision. Phases of the
    chirp in `32f` are good to 3e-4 of a radian at the end of 1000 elements, and to 3e-2 at the end of 100,000.

    __Cost:__ a ramp 2.4 times `memset`, a chirp 0.12 (`32f`) to 0.3 (`64f`) of a loop of sines.

    __Guide:__ [Windows, tones and filter design](docs/windows.md).
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

#ifdef __cplusplus
}
#endif

#endif
