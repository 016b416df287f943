/* Single bins of a Fourier transform, at any frequency. */
#ifndef TARNS_GOERTZEL_H
#define TARNS_GOERTZEL_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup goertzel Single bins
    Finds how strong one frequency is, or two, without a whole spectrum: dialling tones, pilots, hum.

    @code{.c}
    const Tarn32f x[8] = {1, 0, -1, 0, 1, 0, -1, 0};
    Tarn32fc bin;
    tarnsGoertz_32f(x, 8, &bin, 0.25F); // a quarter of the sampling rate
    printf("%.4f\n", bin.re); // 4.0000
    @endcode

    __Accuracy:__ double precision throughout: errors of some 2^-53 `len` / sin(2 pi rFreq) for samples of magnitude 1.

    __Cost:__ 3.4 ns a sample, three operations that wait for each other, and 0.1 microseconds a call; two bins take as
    long as one.

    __Guide:__ [Analytic signals and single bins](docs/analytic-signals.md).

    Goertzel's recurrence: a resonator without loss at the angular step w = 2 pi rFreq takes the samples,

        t = 2 cos(w) u - v + pSrc[n],  v = u,  u = t     from u = v = 0,

    and of its last two states comes the bin, u exp(i w) - v. That is exp(i w len) times the sum of
    pSrc[n] exp(-i w n): at rFreq = m / len, where the factor is 1, bin m of the forward DFT of the samples. Off those
    frequencies the magnitude is still that of the sum, but the phase counts from the sample behind the last one and
    not from the first; multiply by exp(-i w len) to count from the first.

    One real multiplication a sample and part makes it the way to a few bins, or to frequencies that no DFT has. The
    recurrence runs in double precision for every type, its operations in the order above.

    Its rounding errors grow towards frequencies 0 and 0.5, where the states become larger than any bin: for samples of
    magnitude 1, errors of some 2^-53 `len` / sin(w) are to be expected, and of 2^-53 `len`^2 at worst.
    tarnsGoertzTwo_32fc() loses more there: it rounds the states to single precision before it forms the bins of them.

    Every result is written after the last sample is read. NaN and infinities spread as the arithmetic spreads them.
    @{ */

/** Computes one bin of a vector of floats, rounded to the type of the result once.

    @param pSrc  vector, `len` elements; a real one has imaginary parts of 0
    @param len   number of elements, at least 1
    @param pVal  where the bin goes
    @param rFreq frequency in cycles per sample, 0 up to but not including 1; -0 is 0
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsRelFreqErr for
            a frequency out of range or NaN */
///@{
TARN_API TarnStatus tarnsGoertz_32f(const Tarn32f* pSrc, int len, Tarn32fc* pVal, Tarn32f rFreq);
TARN_API TarnStatus tarnsGoertz_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pVal, Tarn32f rFreq);
TARN_API TarnStatus tarnsGoertz_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pVal, Tarn64f rFreq);
///@}

/** Computes one bin of a vector of 16-bit integers, times 2^-scaleFactor. The bin is rounded to single precision,
    scaled, and rounded to the nearest integer, halves away from zero (unlike the scale rule of other families), and
    saturates at the bounds of the type. A full-scale sine at the bin's frequency gives 16384 `len` before it is scaled.

    @param pSrc        vector, `len` elements; a real one has imaginary parts of 0
    @param len         number of elements, at least 1
    @param pVal        where the bin goes
    @param rFreq       frequency in cycles per sample, 0 up to but not including 1; -0 is 0
    @param scaleFactor the bin is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsRelFreqErr for
            a frequency out of range or NaN */
///@{
TARN_API TarnStatus tarnsGoertz_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16sc* pVal, Tarn32f rFreq, int scaleFactor);
TARN_API TarnStatus tarnsGoertz_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pVal, Tarn32f rFreq, int scaleFactor);
///@}

/** Computes two bins of a vector of complex floats in one pass, which takes hardly longer than one. Each is what the
    function of one bin gives, but for `32fc`, which rounds the states of the recurrences to single precision before it
    forms the bins of them.

    @param pSrc  vector, `len` elements
    @param len   number of elements, at least 1
    @param pVal  where the bins go, two elements
    @param rFreq two frequencies in cycles per sample, 0 up to but not including 1; -0 is 0
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsRelFreqErr for
            a frequency out of range or NaN */
///@{
TARN_API TarnStatus tarnsGoertzTwo_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pVal, const Tarn32f* rFreq);
TARN_API TarnStatus tarnsGoertzTwo_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pVal, const Tarn64f* rFreq);
///@}

/** Computes two bins of a vector of complex 16-bit integers in one pass, scaled and rounded as tarnsGoertz_16sc_Sfs()
    does it.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pVal        where the bins go, two elements
    @param rFreq       two frequencies in cycles per sample, 0 up to but not including 1; -0 is 0
    @param scaleFactor the bins are scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsRelFreqErr for
            a frequency out of range or NaN */
TARN_API TarnStatus tarnsGoertzTwo_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pVal, const Tarn32f* rFreq,
                                            int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
