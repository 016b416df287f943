/* Two-channel wavelet filter banks. */
#ifndef TARNS_WAVELETS_H
#define TARNS_WAVELETS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup wavelets Wavelet filter banks
    Splits a stream into bands of half the rate by filters of any wavelet, and joins them: denoising, coding, analysis
    by scale.

    @code{.c}
    const Tarn32f low[2] = {0.5F, 0.5F}, high[2] = {0.5F, -0.5F}, x[4] = {1, 3, 6, 2};
    Tarn32f means[2], differences[2];
    TarnsWTFwdState_32f* state;
    if (tarnsWTFwdInitAlloc_32f(&state, low, 2, -1, high, 2, -1) == tarnStsNoErr) {
        tarnsWTFwd_32f(x, means, differences, 2, state);
        printf("%g %g, %g %g\n", means[0], means[1], differences[0], differences[1]); // 2 4, 1 -2
        tarnsWTFwdFree_32f(state);
    }
    @endcode

    __Accuracy:__ sums of single precision; blocks of the filter's length begin with sums in double.

    __Cost:__ 8 taps 0.67 ns an output forward and 0.78 ns back: 0.2 to 0.4 of a loop for any number of taps.

    __Guide:__ [Wavelet filter banks](docs/wavelets.md).

    One level of a wavelet transform of a stream. A forward bank splits a signal into a low and a high channel of half
    its rate:

        low[k] = sum of h[j] x[2k - j - o], j = 0..len-1

    with the taps h, their number `len` and the offset o of the low channel, and high[k] alike with those of the high
    one. An inverse bank joins two such channels into one signal of the full rate. u being a channel with zeros between
    its samples, u[2k] = low[k] and u[2k+1] = 0, its part of the result is

        y[n] = sum of h[j] u[n - j - o], j = 0..len-1

    and the result is the sum of both channels' parts. Any filters will do, each of a length and an offset of its own:
    those of a wavelet, for which inverse follows forward without loss but for rounding and a delay; offsets bring the
    channels of unequal filters together. docs/wavelets.md tells which delay which filters have, and goes through three
    levels.

    A stream comes in calls of any lengths. What is before its beginning is zero, or what the delay lines were set to. A
    bank has no end of its own: as many zeros as it delays push the last samples out.

    The end of a name tells the types: everything is computed in single precision from taps of type 32f. Forward banks
    `8u32f`, `8s32f`, `16u32f` and `16s32f` take integer samples; inverse banks `32f8u`, `32f8s`, `32f16u` and `32f16s`
    give them, rounded to nearest, ties to even, and saturated.

    Outputs at the beginning of a call, about as many as there are taps, are sums in double precision, rounded once;
    those behind them are summed in single precision. So a signal that is cut otherwise differs by rounding. Banks with
    integer samples are cut into chunks of 1024 samples on their own.

    A state belongs to one caller at a time. No call but `InitAlloc` allocates. Every call looks at the whole state
    before it touches anything: one of the other direction, of another type, freed or spoilt is refused.
    @{ */

/** State of a forward bank, and of an inverse one; opaque. A state knows its type, which shows in its functions' names
    alone. */
///@{
typedef struct TarnsWTFwdState TarnsWTFwdState;
typedef struct TarnsWTInvState TarnsWTInvState;
typedef TarnsWTFwdState TarnsWTFwdState_32f;
typedef TarnsWTFwdState TarnsWTFwdState_8u32f;
typedef TarnsWTFwdState TarnsWTFwdState_8s32f;
typedef TarnsWTFwdState TarnsWTFwdState_16u32f;
typedef TarnsWTFwdState TarnsWTFwdState_16s32f;
typedef TarnsWTInvState TarnsWTInvState_32f;
typedef TarnsWTInvState TarnsWTInvState_32f8u;
typedef TarnsWTInvState TarnsWTInvState_32f8s;
typedef TarnsWTInvState TarnsWTInvState_32f16u;
typedef TarnsWTInvState TarnsWTInvState_32f16s;
///@}

/** Allocates and builds a state, with zeros in its delay lines.

    An offset delays: by so many samples of the full rate. A forward bank may have -1, which takes the sample that comes
    after: low[k] = sum of h[j] x[2k + 1 - j]. In an inverse bank, which has no later sample, -1 filters as 1 does.

    @param ppState   where the state's address goes; null if there is no memory. It is freed by the `Free` function of
                     the same name
    @param pTapsLow  taps of the low channel, `lenLow` elements
    @param lenLow    number of taps, at least 1
    @param offsLow   offset of the low channel, at least -1
    @param pTapsHigh taps of the high channel, `lenHigh` elements
    @param lenHigh   number of taps, at least 1
    @param offsHigh  offset of the high channel, at least -1
    @return tarnStsNoErr; in this order: tarnStsNullPtrErr for a null `ppState` or `pTapsLow`; tarnStsSizeErr for
            `lenLow` below 1; tarnStsNullPtrErr for a null `pTapsHigh`; tarnStsSizeErr for `lenHigh` below 1;
            tarnStsWtOffsetErr for an offset below -1; tarnStsNoMemErr if there is no memory, or for a state beyond
            2^31 - 1 bytes */
///@{
TARN_API TarnStatus tarnsWTFwdInitAlloc_32f(TarnsWTFwdState_32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                            int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTFwdInitAlloc_8u32f(TarnsWTFwdState_8u32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                              int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTFwdInitAlloc_8s32f(TarnsWTFwdState_8s32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                              int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTFwdInitAlloc_16u32f(TarnsWTFwdState_16u32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                               int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTFwdInitAlloc_16s32f(TarnsWTFwdState_16s32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                               int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTInvInitAlloc_32f(TarnsWTInvState_32f** ppState, const Tarn32f* pTapsLow, int lenLow,
                                            int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTInvInitAlloc_32f8u(TarnsWTInvState_32f8u** ppState, const Tarn32f* pTapsLow, int lenLow,
                                              int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTInvInitAlloc_32f8s(TarnsWTInvState_32f8s** ppState, const Tarn32f* pTapsLow, int lenLow,
                                              int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTInvInitAlloc_32f16u(TarnsWTInvState_32f16u** ppState, const Tarn32f* pTapsLow, int lenLow,
                                               int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
TARN_API TarnStatus tarnsWTInvInitAlloc_32f16s(TarnsWTInvState_32f16s** ppState, const Tarn32f* pTapsLow, int lenLow,
                                               int offsLow, const Tarn32f* pTapsHigh, int lenHigh, int offsHigh);
///@}

/** Splits 2 `dstLen` samples into `dstLen` of each channel. Source and destinations do not overlap.

    @param pSrc     samples, 2 `dstLen` elements
    @param pDstLow  low channel, `dstLen` elements
    @param pDstHigh high channel, `dstLen` elements
    @param dstLen   number of samples of a channel, at least 1
    @param pState   state of the bank
    @return tarnStsNoErr; in this order: tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for one that is not
            the function's, or not whole; tarnStsNullPtrErr for any other null pointer; tarnStsSizeErr for `dstLen`
            below 1 */
///@{
TARN_API TarnStatus tarnsWTFwd_32f(const Tarn32f* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen,
                                   TarnsWTFwdState_32f* pState);
TARN_API TarnStatus tarnsWTFwd_8u32f(const Tarn8u* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen,
                                     TarnsWTFwdState_8u32f* pState);
TARN_API TarnStatus tarnsWTFwd_8s32f(const Tarn8s* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen,
                                     TarnsWTFwdState_8s32f* pState);
TARN_API TarnStatus tarnsWTFwd_16u32f(const Tarn16u* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen,
                                      TarnsWTFwdState_16u32f* pState);
TARN_API TarnStatus tarnsWTFwd_16s32f(const Tarn16s* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen,
                                      TarnsWTFwdState_16s32f* pState);
///@}

/** Joins `srcLen` samples of each channel into 2 `srcLen` samples. Sources and destination do not overlap.

    Note the order of the checks: a wrong length is told before a missing destination.

    @param pSrcLow  low channel, `srcLen` elements
    @param pSrcHigh high channel, `srcLen` elements
    @param srcLen   number of samples of a channel, at least 1
    @param pDst     samples, 2 `srcLen` elements
    @param pState   state of the bank
    @return tarnStsNoErr; in this order: tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for one that is not
            the function's, or not whole; tarnStsNullPtrErr for a null source; tarnStsSizeErr for `srcLen` below 1;
            tarnStsNullPtrErr for a null `pDst` */
///@{
TARN_API TarnStatus tarnsWTInv_32f(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, Tarn32f* pDst,
                                   TarnsWTInvState_32f* pState);
TARN_API TarnStatus tarnsWTInv_32f8u(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, Tarn8u* pDst,
                                     TarnsWTInvState_32f8u* pState);
TARN_API TarnStatus tarnsWTInv_32f8s(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, Tarn8s* pDst,
                                     TarnsWTInvState_32f8s* pState);
TARN_API TarnStatus tarnsWTInv_32f16u(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, Tarn16u* pDst,
                                      TarnsWTInvState_32f16u* pState);
TARN_API TarnStatus tarnsWTInv_32f16s(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, Tarn16s* pDst,
                                      TarnsWTInvState_32f16s* pState);
///@}

/** Sets the delay lines of both channels, or gets them: the samples that outputs to come still depend on, the oldest
    first. A state that is set to what another one gave goes on exactly as that one does.

    A channel of a forward bank has `len` + `offs` - 1 samples, those of the signal; with an offset of -1 it has one
    less than without any (none if `len` is 1). One of an inverse bank has the (`offs` + `len` - 1) / 2 newest samples
    of the channel, rounded down; with an offset of -1 there are `len` / 2.

    @param pState   state of the bank
    @param pDlyLow  delay line of the low channel
    @param pDlyHigh delay line of the high channel; neither pointer is null, even for a line without samples
    @return tarnStsNoErr; in this order: tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for one that is not
            the function's, or not whole; tarnStsNullPtrErr for a null delay line */
///@{
TARN_API TarnStatus tarnsWTFwdSetDlyLine_32f(TarnsWTFwdState_32f* pState, const Tarn32f* pDlyLow,
                                             const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdSetDlyLine_8u32f(TarnsWTFwdState_8u32f* pState, const Tarn32f* pDlyLow,
                                               const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdSetDlyLine_8s32f(TarnsWTFwdState_8s32f* pState, const Tarn32f* pDlyLow,
                                               const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdSetDlyLine_16u32f(TarnsWTFwdState_16u32f* pState, const Tarn32f* pDlyLow,
                                                const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdSetDlyLine_16s32f(TarnsWTFwdState_16s32f* pState, const Tarn32f* pDlyLow,
                                                const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdGetDlyLine_32f(const TarnsWTFwdState_32f* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdGetDlyLine_8u32f(const TarnsWTFwdState_8u32f* pState, Tarn32f* pDlyLow,
                                               Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdGetDlyLine_8s32f(const TarnsWTFwdState_8s32f* pState, Tarn32f* pDlyLow,
                                               Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdGetDlyLine_16u32f(const TarnsWTFwdState_16u32f* pState, Tarn32f* pDlyLow,
                                                Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTFwdGetDlyLine_16s32f(const TarnsWTFwdState_16s32f* pState, Tarn32f* pDlyLow,
                                                Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvSetDlyLine_32f(TarnsWTInvState_32f* pState, const Tarn32f* pDlyLow,
                                             const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvSetDlyLine_32f8u(TarnsWTInvState_32f8u* pState, const Tarn32f* pDlyLow,
                                               const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvSetDlyLine_32f8s(TarnsWTInvState_32f8s* pState, const Tarn32f* pDlyLow,
                                               const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvSetDlyLine_32f16u(TarnsWTInvState_32f16u* pState, const Tarn32f* pDlyLow,
                                                const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvSetDlyLine_32f16s(TarnsWTInvState_32f16s* pState, const Tarn32f* pDlyLow,
                                                const Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvGetDlyLine_32f(const TarnsWTInvState_32f* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvGetDlyLine_32f8u(const TarnsWTInvState_32f8u* pState, Tarn32f* pDlyLow,
                                               Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvGetDlyLine_32f8s(const TarnsWTInvState_32f8s* pState, Tarn32f* pDlyLow,
                                               Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvGetDlyLine_32f16u(const TarnsWTInvState_32f16u* pState, Tarn32f* pDlyLow,
                                                Tarn32f* pDlyHigh);
TARN_API TarnStatus tarnsWTInvGetDlyLine_32f16s(const TarnsWTInvState_32f16s* pState, Tarn32f* pDlyLow,
                                                Tarn32f* pDlyHigh);
///@}

/** Frees a state.

    @param pState state of the bank
    @return tarnStsNoErr; tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for one that is not the function's,
            or not whole: it is not freed then */
///@{
TARN_API TarnStatus tarnsWTFwdFree_32f(TarnsWTFwdState_32f* pState);
TARN_API TarnStatus tarnsWTFwdFree_8u32f(TarnsWTFwdState_8u32f* pState);
TARN_API TarnStatus tarnsWTFwdFree_8s32f(TarnsWTFwdState_8s32f* pState);
TARN_API TarnStatus tarnsWTFwdFree_16u32f(TarnsWTFwdState_16u32f* pState);
TARN_API TarnStatus tarnsWTFwdFree_16s32f(TarnsWTFwdState_16s32f* pState);
TARN_API TarnStatus tarnsWTInvFree_32f(TarnsWTInvState_32f* pState);
TARN_API TarnStatus tarnsWTInvFree_32f8u(TarnsWTInvState_32f8u* pState);
TARN_API TarnStatus tarnsWTInvFree_32f8s(TarnsWTInvState_32f8s* pState);
TARN_API TarnStatus tarnsWTInvFree_32f16u(TarnsWTInvState_32f16u* pState);
TARN_API TarnStatus tarnsWTInvFree_32f16s(TarnsWTInvState_32f16s* pState);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
