/* Design of FIR filters: taps of windowed ideal responses. */
#ifndef TARNS_FIRDESIGN_H
#define TARNS_FIRDESIGN_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup firdesign FIR design
    Designs the taps of low-pass, high-pass, band-pass and band-stop filters by windows.

    @code{.c}
    Tarn64f taps[63], gain;
    tarnsFIRGenLowpass_64f(0.1, taps, 63, tarnWinHamming, 1); // a tenth of the sampling rate
    tarnsSum_64f(taps, 63, &gain);
    printf("%.4f %d\n", gain, taps[0] == taps[62]); // 1.0000 1
    @endcode

    __Accuracy:__ the response is 6 dB down at the edges; stop bands reach -26 dB (Bartlett), -44 (Hann), -54 (Hamming)
    or -61 (Blackman).

    __Cost:__ 5 ns a tap.

    __Guide:__ [Windows, tones and filter design](docs/windows.md), section Filters.

    The ideal response of a filter is an infinite sinc; its middle, faded out by a window, makes the taps. They have
    linear phase: the filter delays by (tapsLen - 1) / 2 samples and has taps that are equal from both ends, to the
    last bit; only a high-pass of an even number has opposite signs in its right half.
    @{ */

/** Windows of the design functions. */
enum {
    tarnWinBartlett = 0, /**< tarnsWinBartlett_64f_I(): the end taps become 0 */
    tarnWinBlackman = 1, /**< tarnsWinBlackmanOpt_64f_I(): widest transition, stop band at -61 dB, falling fast */
    tarnWinHamming = 2,  /**< tarnsWinHamming_64f_I(): stop band at -54 dB */
    tarnWinHann = 3      /**< tarnsWinHann_64f_I(): stop band at -44 dB, falling */
};

/** Designs a low-pass or high-pass filter. With m the distance of a tap from the centre, m = 1, 2, ... for odd
    `tapsLen` and 1/2, 3/2, ... for even, the taps are

    - low-pass: 2 rFreq at the centre, sin(2 pi rFreq m) / (pi m) beside it;
    - high-pass: 1 - 2 rFreq at the centre, -sin(2 pi rFreq m) / (pi m) beside it; for even `tapsLen`
      cos(2 pi rFreq m) / (pi m) to the left and its negative to the right,

    times the window. The sines come from a tone's recurrence, in double precision.

    @param rFreq    cut-off frequency (half amplitude) in cycles per sample, above 0 and up to 0.5
    @param pTaps    destination, `tapsLen` elements
    @param tapsLen  number of taps, at least 5
    @param winType  one of the windows above; any other value: no window
    @param doNormal if not 0, the taps are scaled to unit gain at frequency 0 for the low-pass, at 0.5 for the high-pass
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `tapsLen` below 5 or a
            frequency out of range, a NaN included; tarnStsNullPtrErr if there is no memory; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsFIRGenLowpass_64f(Tarn64f rFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal);
TARN_API TarnStatus tarnsFIRGenHighpass_64f(Tarn64f rFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal);
///@}

/** Designs a band-pass or band-stop filter. With m the distance of a tap from the centre, m = 1, 2, ... for odd
    `tapsLen` and 1/2, 3/2, ... for even, the taps are

    - band-pass: 2 (rHighFreq - rLowFreq) at the centre, (sin(2 pi rHighFreq m) - sin(2 pi rLowFreq m)) / (pi m) beside
      it;
    - band-stop: 1 - 2 (rHighFreq - rLowFreq) at the centre, (sin(2 pi rLowFreq m) - sin(2 pi rHighFreq m)) / (pi m)
      beside it,

    times the window. The sines come from a tone's recurrence, in double precision. A band-stop filter of an even number
    of taps has no centre tap to pass what lies outside the band: use an odd number.

    @param rLowFreq  lower edge (half amplitude) in cycles per sample, above 0 and below `rHighFreq`
    @param rHighFreq upper edge in cycles per sample, up to 0.5
    @param pTaps     destination, `tapsLen` elements
    @param tapsLen   number of taps, at least 5
    @param winType   one of the windows above; any other value: no window
    @param doNormal  if not 0, the taps are scaled to unit gain at the middle of the band for the band-pass, at
    frequency 0 for the band-stop
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `tapsLen` below 5 or
            frequencies out of range or order, NaN included; tarnStsNullPtrErr if there is no memory; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsFIRGenBandpass_64f(Tarn64f rLowFreq, Tarn64f rHighFreq, Tarn64f* pTaps, int tapsLen,
                                            int winType, int doNormal);
TARN_API TarnStatus tarnsFIRGenBandstop_64f(Tarn64f rLowFreq, Tarn64f rHighFreq, Tarn64f* pTaps, int tapsLen,
                                            int winType, int doNormal);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
