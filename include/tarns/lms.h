/* Adaptive FIR filters, by least mean squares: for blocks, for single samples without a state, and in fixed point with
   steps of their own. */
#ifndef TARNS_LMS_H
#define TARNS_LMS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup lms Adaptive filtering of blocks
    Filters that learn their taps, block by block: echo and noise cancellation, equalization, identification.

    @code{.c}
    Tarn32f x[4000], d[4000], y[4000], taps[3];
    unsigned int seed = 1;
    TarnsFIRLMSState_32f* state;
    tarnsRandUniform_Direct_32f(x, 4000, -1, 1, &seed);
    tarnsMulC_32f(x, 0.5F, d, 4000); // what is to be learnt: half of the newest sample
    if (tarnsFIRLMSInitAlloc_32f(&state, NULL, 3, NULL, 0) == tarnStsNoErr) {
        tarnsFIRLMS_32f(x, d, y, 4000, 0.05F, state);
        tarnsFIRLMSGetTaps_32f(state, taps);
        printf("%.3f %d\n", taps[0], taps[1] < 0.001F && taps[1] > -0.001F); // 0.500 1
        tarnsFIRLMSFree_32f(state);
    }
    @endcode

    __Accuracy:__ single precision; what the reference has that is not of the samples leaves an error that grows with
    the step size.

    __Cost:__ some 30 cycles a sample and two more for four taps: 0.88 of a plain loop for 8 taps, 0.3 for 80, 0.18 for
    512.

    __Guide:__ [Adaptive filters](docs/adaptive-filters.md).

    A filter whose taps h follow what it is to give: with the newest sample x[n] and the reference d[n] that its output
    y[n] should be,

        y[n] = sum of h[k] x[n-k] over k from 0 to tapsLen - 1
        e[n] = d[n] - y[n]
        h[k] = h[k] + 2 mu e[n] x[n-k]                                   (least mean squares)

    The step size mu is half of that of textbooks which have h + mu e x. Small ones converge slowly and to a small
    error; from 1 / (tapsLen P) on, for samples of power P, the filter does not converge at all. What is computed when
    it diverges follows IEEE arithmetic up to infinity and NaN, and then for good.

    `_32f` is all of single precision. `32f_16s` has samples, references and outputs of 16 bits and taps of single
    precision, which count 2^-16: y is the sum times 2^-16, and h changes by mu 2^-15 e[n] x[n-k], with an e[n] of the
    output before it is rounded.

    Sums are taken in single precision, oldest samples first, as sixteen partial sums of every sixteenth product, or as
    many as there are, and then all of them together. Results depend neither on how a signal is cut into blocks nor on
    addresses.
    @{ */

/** State of a filter; opaque. */
///@{
typedef struct TarnsFIRLMSState_32f TarnsFIRLMSState_32f;
typedef struct TarnsFIRLMSState32f_16s TarnsFIRLMSState32f_16s;
///@}

/** Allocates a state.

    The delay line is a ring of the last `tapsLen` samples, of which element `dlyLineIndex` is the oldest. The index is
    kept as it is given; one beyond the ring means its place modulo `tapsLen`.

    @param ppState      where the state's address goes; it is freed by the `Free` function of the same name
    @param pTaps        taps to begin with, `tapsLen` elements; the first one applies to the newest sample. Null for
                        zeros
    @param tapsLen      number of taps, at least 1
    @param pDlyLine     delay line to begin with, `tapsLen` elements; null for silence
    @param dlyLineIndex where its oldest sample is
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`; tarnStsSizeErr for `tapsLen` below 1; tarnStsNoMemErr
            if there is no memory */
///@{
TARN_API TarnStatus tarnsFIRLMSInitAlloc_32f(TarnsFIRLMSState_32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                             const Tarn32f* pDlyLine, int dlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSInitAlloc32f_16s(TarnsFIRLMSState32f_16s** ppState, const Tarn32f* pTaps, int tapsLen,
                                                const Tarn16s* pDlyLine, int dlyLineIndex);
///@}

/** Frees a state. Its identifier is not looked at.

    @param pState state, not to be used any more; null is accepted
    @return tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsFIRLMSFree_32f(TarnsFIRLMSState_32f* pState);
TARN_API TarnStatus tarnsFIRLMSFree32f_16s(TarnsFIRLMSState32f_16s* pState);
///@}

/** Gives the taps as they are now, the one of the newest sample first.

    @param pState state
    @param pTaps  destination, as many elements as the state has taps
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSGetTaps_32f(const TarnsFIRLMSState_32f* pState, Tarn32f* pTaps);
TARN_API TarnStatus tarnsFIRLMSGetTaps32f_16s(const TarnsFIRLMSState32f_16s* pState, Tarn32f* pTaps);
///@}

/** Replaces the delay line.

    @param pState       state
    @param pDlyLine     ring of samples, as many as the state has taps; null for silence
    @param dlyLineIndex where its oldest sample is
    @return tarnStsNoErr; tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSSetDlyLine_32f(TarnsFIRLMSState_32f* pState, const Tarn32f* pDlyLine, int dlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSSetDlyLine32f_16s(TarnsFIRLMSState32f_16s* pState, const Tarn16s* pDlyLine,
                                                 int dlyLineIndex);
///@}

/** Gives the delay line as it lies, a ring whose oldest sample is at the index. Below 80 taps the index is 0 after a
    block.

    @param pState        state
    @param pDlyLine      destination, as many elements as the state has taps
    @param pDlyLineIndex where the index goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSGetDlyLine_32f(const TarnsFIRLMSState_32f* pState, Tarn32f* pDlyLine,
                                              int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSGetDlyLine32f_16s(const TarnsFIRLMSState32f_16s* pState, Tarn16s* pDlyLine,
                                                 int* pDlyLineIndex);
///@}

/** Filters a block, and changes the taps after every sample of it. With a `mu` of 0 they stay, and the filter is a FIR.

    Outputs of 16 bits are rounded in the current rounding mode and saturated; a NaN becomes the lowest value. The
    destination may be the source, or the reference.

    @param pSrc   samples, `len` elements
    @param pRef   what the outputs should be, `len` elements
    @param pDst   outputs, `len` elements
    @param len    number of samples, at least 1
    @param mu     step size
    @param pState state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsContextMatchErr
            for a state of another kind, in this order */
///@{
TARN_API TarnStatus tarnsFIRLMS_32f(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu,
                                    TarnsFIRLMSState_32f* pState);
TARN_API TarnStatus tarnsFIRLMS32f_16s(const Tarn16s* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu,
                                       TarnsFIRLMSState32f_16s* pState);
///@}

/** @} */

/** @defgroup lmsdirect Adaptive filtering without a state
    Filters that learn, a sample a call, for a caller who has the taps and the delay line himself.

    @code{.c}
    Tarn32f taps[2] = {0}, line[4] = {0}, y;
    int index = 0, n;
    for (n = 0; n < 200; ++n) // x = 1, -1, 1, ... and the reference is twice that
        tarnsFIRLMSOne_Direct_32f(n % 2 ? -1.0F : 1.0F, n % 2 ? -2.0F : 2.0F, &y, taps, 2, 0.1F, line, &index);
    printf("%.3f\n", y); // -2.000
    @endcode

    __Accuracy:__ single precision, or Q15 with steps that the energy in the window normalises.

    __Cost:__ 0.64 to 0.93 of a loop over a block; in Q15 0.1 of one.

    __Guide:__ [Adaptive filters](docs/adaptive-filters.md).

    The same filter, a sample a call, for a caller who has the taps and the delay line himself. Taps stand in the order
    of the delay window: the first one meets the oldest sample. The delay line is a doubled ring of 2 tapsLen elements:
    a sample goes to places `*pDlyLineIndex` and tapsLen further, then the index goes on, from tapsLen - 1 to 0, and the
    window is the tapsLen elements from it on, oldest first.
    @{ */

/** Filters one sample and changes the taps:

        y = sum of pTapsInv[j] window[j], j = 0..tapsLen - 1
        pTapsInv[j] = pTapsInv[j] + 2 mu (refVal - y) window[j]

    in single precision, also where samples have 16 bits; then the output is rounded in the current rounding mode and
    saturated, and the y of the error is not.

    @param src           sample
    @param refVal        what the output should be
    @param pDstVal       where the output goes
    @param pTapsInv      taps, `tapsLen` elements, oldest sample first
    @param tapsLen       number of taps, at least 1
    @param mu            step size
    @param pDlyLine      delay line, 2 `tapsLen` elements
    @param pDlyLineIndex its index, 0 to tapsLen - 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `tapsLen` below 1;
            tarnStsDlyLineIndexErr for an index out of its range */
///@{
TARN_API TarnStatus tarnsFIRLMSOne_Direct_32f(Tarn32f src, Tarn32f refVal, Tarn32f* pDstVal, Tarn32f* pTapsInv,
                                              int tapsLen, Tarn32f mu, Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSOne_Direct32f_16s(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32f* pTapsInv,
                                                 int tapsLen, Tarn32f mu, Tarn16s* pDlyLine, int* pDlyLineIndex);
///@}

/** Filters one sample by taps in Q15, and changes them by a step that is normalised by the energy in the window, so
    that it suits signals of any power:

        y = 2^-15 sum of pTapsInv[j] window[j]
        g = mu (refVal - y) / sum of window[j]^2
        pTapsInv[j] = pTapsInv[j] + g window[j], rounded in the current rounding mode, limited to 32 bits

    in double precision. The output is y rounded to nearest, ties to even, and saturated. In a window of silence nothing
    is computed: the sample enters the line, `*pDstVal` and the taps stay as they are.

    @param src           sample
    @param refVal        what the output should be
    @param pDstVal       where the output goes
    @param pTapsInv      taps, times 2^15, `tapsLen` elements, oldest sample first
    @param tapsLen       number of taps, at least 1
    @param mu            step size times 2^15: 32768 makes the error of a sample that comes again zero, and from 65536
                         on the filter does not converge
    @param pDlyLine      delay line, 2 `tapsLen` elements
    @param pDlyLineIndex its index, 0 to tapsLen - 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `tapsLen` below 1;
            tarnStsDlyLineIndexErr for an index out of its range */
TARN_API TarnStatus tarnsFIRLMSOne_DirectQ15_16s(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32s* pTapsInv,
                                                 int tapsLen, int mu, Tarn16s* pDlyLine, int* pDlyLineIndex);

/** @} */

/** @defgroup lmsrates Adaptive filtering in fixed point
    Filters of integer samples that learn, with every step a call of its own: for errors that are known late, or not for
    every sample, as in modems.

    @code{.c}
    const Tarn32s none[1] = {0};
    Tarn32s y = 0;
    int n;
    TarnsFIRLMSMRState32s_16s* state;
    if (tarnsFIRLMSMRInitAlloc32s_16s(&state, none, 1, NULL, 0, 1, 0, 200000) == tarnStsNoErr) {
        for (n = 0; n < 100; ++n) {
            tarnsFIRLMSMROneVal32s_16s(10000, &y, state);
            tarnsFIRLMSMRUpdateTaps32s_16s(5000 - (y >> 15), state); // half of the sample is wanted
        }
        printf("%d\n", y >> 15); // 5000
        tarnsFIRLMSMRFree32s_16s(state);
    }
    @endcode

    __Accuracy:__ integers modulo 2^32; an error times the step size below 2^14 changes nothing.

    __Cost:__ 0.8 to 1.06 of a loop over a whole block.

    __Guide:__ [Adaptive filters](docs/adaptive-filters.md).

    A filter of integer samples whose steps are calls of their own, so that they may go at different rates: a sample is
    put in (`PutVal`), an output is computed (`One`), the taps are changed by an error that the caller has found
    (`UpdateTaps`). An echo canceller in a modem puts in every sample and computes an output for each symbol, say.

    Taps apply to every `tapStep`-th sample. An error is known `updateDly` samples after the output that it belongs to:
    the taps are changed by the window of back then. With samples x, x[0] the newest,

        output = sum of (h[k] >> 16) x[k tapStep]
        h[k] = h[k] + x[updateDly + k tapStep] ((err mu + 2^14) >> 15)

    where the upper 16 bits of a 32-bit tap are what filters, and the lower ones gather small steps. All of it is modulo
    2^32, the product of error and step size included: nothing is rounded, scaled or saturated but what stands here.
    Complex filters (`32sc_16sc`) have the complex product in the output and that of the conjugate sample in the step.

    The delay line is a ring of updateDly + tapsLen tapStep samples, of which element `dlyLineIndex` is the oldest. The
    index is kept as it is given; one beyond the ring means its place modulo that length.
    @{ */

/** State of a filter; opaque. */
///@{
typedef struct TarnsFIRLMSMRState32s_16s TarnsFIRLMSMRState32s_16s;
typedef struct TarnsFIRLMSMRState32sc_16sc TarnsFIRLMSMRState32sc_16sc;
///@}

/** Allocates a state.

    @param ppState      where the state's address goes; it is freed by the `Free` function of the same name
    @param pTaps        taps to begin with, `tapsLen` elements; the first one applies to the newest sample. Null for
                        zeros
    @param tapsLen      number of taps, at least 1
    @param pDlyLine     delay line to begin with, `updateDly` + `tapsLen` `tapStep` elements; null for silence
    @param dlyLineIndex where its oldest sample is, below their number
    @param tapStep      distance of the samples that taps apply to, at least 1
    @param updateDly    how many samples after its output an error is known, at least 0
    @param mu           step size times 2^15
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`; tarnStsSizeErr for a `tapsLen` or `tapStep` below 1, a
            negative `updateDly`, or a `dlyLineIndex` out of its range; tarnStsNoMemErr if there is no memory */
///@{
TARN_API TarnStatus tarnsFIRLMSMRInitAlloc32s_16s(TarnsFIRLMSMRState32s_16s** ppState, const Tarn32s* pTaps,
                                                  int tapsLen, const Tarn16s* pDlyLine, int dlyLineIndex, int tapStep,
                                                  int updateDly, int mu);
TARN_API TarnStatus tarnsFIRLMSMRInitAlloc32sc_16sc(TarnsFIRLMSMRState32sc_16sc** ppState, const Tarn32sc* pTaps,
                                                    int tapsLen, const Tarn16sc* pDlyLine, int dlyLineIndex,
                                                    int tapStep, int updateDly, int mu);
///@}

/** Frees a state.

    @param pState state, not to be used any more; null is accepted
    @return tarnStsNoErr; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRFree32s_16s(TarnsFIRLMSMRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRLMSMRFree32sc_16sc(TarnsFIRLMSMRState32sc_16sc* pState);
///@}

/** Replaces the taps.

    @param pState state
    @param pTaps  taps, as many as the state has, the one of the newest sample first; null for zeros
    @return tarnStsNoErr; tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRSetTaps32s_16s(TarnsFIRLMSMRState32s_16s* pState, const Tarn32s* pTaps);
TARN_API TarnStatus tarnsFIRLMSMRSetTaps32sc_16sc(TarnsFIRLMSMRState32sc_16sc* pState, const Tarn32sc* pTaps);
///@}

/** Gives the taps as they are now, the one of the newest sample first.

    @param pState state
    @param pTaps  destination, as many elements as the state has taps
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRGetTaps32s_16s(const TarnsFIRLMSMRState32s_16s* pState, Tarn32s* pTaps);
TARN_API TarnStatus tarnsFIRLMSMRGetTaps32sc_16sc(const TarnsFIRLMSMRState32sc_16sc* pState, Tarn32sc* pTaps);
///@}

/** Gives the address of the taps themselves, in the state: the one of the oldest sample first.

    @param pState  state; its identifier is not looked at
    @param ppTaps where the address goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
///@{
TARN_API TarnStatus tarnsFIRLMSMRGetTapsPointer32s_16s(TarnsFIRLMSMRState32s_16s* pState, Tarn32s** ppTaps);
TARN_API TarnStatus tarnsFIRLMSMRGetTapsPointer32sc_16sc(TarnsFIRLMSMRState32sc_16sc* pState, Tarn32sc** ppTaps);
///@}

/** Replaces the delay line.

    @param pState       state
    @param pDlyLine     ring of samples, `updateDly` + `tapsLen` `tapStep` elements; null for silence
    @param dlyLineIndex where its oldest sample is
    @return tarnStsNoErr; tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRSetDlyLine32s_16s(TarnsFIRLMSMRState32s_16s* pState, const Tarn16s* pDlyLine,
                                                   int dlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSMRSetDlyLine32sc_16sc(TarnsFIRLMSMRState32sc_16sc* pState, const Tarn16sc* pDlyLine,
                                                     int dlyLineIndex);
///@}

/** Gives the delay line as it lies, a ring whose oldest sample is at the index.

    @param pState        state
    @param pDlyLine      destination, `updateDly` + `tapsLen` `tapStep` elements
    @param pDlyLineIndex where the index goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRGetDlyLine32s_16s(const TarnsFIRLMSMRState32s_16s* pState, Tarn16s* pDlyLine,
                                                   int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIRLMSMRGetDlyLine32sc_16sc(const TarnsFIRLMSMRState32sc_16sc* pState, Tarn16sc* pDlyLine,
                                                     int* pDlyLineIndex);
///@}

/** Gives one sample of the delay line: the one that stands `updateDly` + `tapStep` + `index` - 1 places behind the
    oldest, where the ring begins again at its end.

    @param pState  state
    @param pDlyVal where the sample goes
    @param index   0 for the oldest sample of the window that is filtered; at most the length of the delay line
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind;
            tarnStsBadArgErr for an `index` that is negative or above the length */
///@{
TARN_API TarnStatus tarnsFIRLMSMRGetDlyVal32s_16s(const TarnsFIRLMSMRState32s_16s* pState, Tarn16s* pDlyVal, int index);
TARN_API TarnStatus tarnsFIRLMSMRGetDlyVal32sc_16sc(const TarnsFIRLMSMRState32sc_16sc* pState, Tarn16sc* pDlyVal,
                                                    int index);
///@}

/** Replaces the step size, which may be done between any two steps.

    @param pState state
    @param mu     step size times 2^15
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRSetMu32s_16s(TarnsFIRLMSMRState32s_16s* pState, int mu);
TARN_API TarnStatus tarnsFIRLMSMRSetMu32sc_16sc(TarnsFIRLMSMRState32sc_16sc* pState, int mu);
///@}

/** Puts a sample into the delay line.

    @param val    sample
    @param pState state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRPutVal32s_16s(Tarn16s val, TarnsFIRLMSMRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRLMSMRPutVal32sc_16sc(Tarn16sc val, TarnsFIRLMSMRState32sc_16sc* pState);
///@}

/** Computes an output of the samples that are in the delay line, by the taps as they are now.

    @param pDstVal where the output goes
    @param pState  state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMROne32s_16s(Tarn32s* pDstVal, TarnsFIRLMSMRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRLMSMROne32sc_16sc(Tarn32sc* pDstVal, TarnsFIRLMSMRState32sc_16sc* pState);
///@}

/** Puts a sample into the delay line and computes an output.

    @param val     sample
    @param pDstVal where the output goes
    @param pState  state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMROneVal32s_16s(Tarn16s val, Tarn32s* pDstVal, TarnsFIRLMSMRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRLMSMROneVal32sc_16sc(Tarn16sc val, Tarn32sc* pDstVal, TarnsFIRLMSMRState32sc_16sc* pState);
///@}

/** Changes the taps by an error, which belongs to the output of `updateDly` samples ago.

    @param errVal error
    @param pState state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRLMSMRUpdateTaps32s_16s(Tarn32s errVal, TarnsFIRLMSMRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRLMSMRUpdateTaps32sc_16sc(Tarn32sc errVal, TarnsFIRLMSMRState32sc_16sc* pState);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
