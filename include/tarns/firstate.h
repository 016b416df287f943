/* States of FIR filters: taps, delay line and buffers of a filter that lives across calls. */
#ifndef TARNS_FIRSTATE_H
#define TARNS_FIRSTATE_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup firstate FIR filter states
    Makes, changes and frees the states that @ref fir filters with: taps, delay line and what long filters need.

    @code{.c}
    const Tarn32f taps[3] = {1, 2, 3}, other[3] = {1, 0, 0};
    const Tarn32f x[2] = {1, 1};
    Tarn32f y[2], past[3];
    TarnsFIRState_32f* state;
    if (tarnsFIRInitAlloc_32f(&state, taps, 3, NULL) == tarnStsNoErr) {
        tarnsFIR_32f(x, y, 2, state);
        tarnsFIRSetTaps_32f(other, state); // in mid-stream
        tarnsFIRGetDlyLine_32f(state, past);
        printf("%g %g, %g %g %g\n", y[0], y[1], past[0], past[1], past[2]); // 1 3, 1 1 0
        tarnsFIRFree_32f(state);
    }
    @endcode

    __Accuracy:__ taps are kept as they are; those of `32s_16s` and its kin keep 16 bits.

    __Cost:__ of 128 taps, which are transformed, 4.5 microseconds to make a state and 0.7 for new taps; of 32, which
    are not, 0.15 and 0.06.

    __Guide:__ [FIR filters](docs/fir.md).

    A filter of `tapsLen` taps is kept in one state: the taps in the layouts that the kernels want, a delay line with
    the last `tapsLen` samples, and, for long filters, the spectrum of the taps and the buffers of filtering by
    transforms (overlap-save). Nothing about the taps is computed in a filter call.

    The end of a name tells the types: `_32f` has taps and samples of that type, `32f_16s` taps of type 32f and samples
    of type 16s. What is computed is computed in the type of the taps; samples are converted on the way in and out. The
    taps of `32s_16s` and `32sc_16sc` are integers times 2^tapsFactor, kept with 16 bits; those of `32s_16s32f` and
    `32sc_16sc32fc` are floats that are kept in the same form, in the same kind of state.

    A state is made by `InitAlloc`, which allocates it, or by `Init` in memory of the caller. Only the former filters by
    transforms: with 64 taps or more if they are real and single, 32 if real and double, 16 if complex; integer taps
    never do. See the page on FIR filters.

    A filter may change the rate of a signal: its states are built by the functions of firmr.h, and taken by all
    functions here.

    A state belongs to one caller at a time. Its buffers are made for as many threads as OpenMP would use at its
    creation.
    @{ */

/** State of a filter; opaque. */
///@{
typedef struct TarnsFIRState_32f TarnsFIRState_32f;
typedef struct TarnsFIRState_32fc TarnsFIRState_32fc;
typedef struct TarnsFIRState32f_16s TarnsFIRState32f_16s;
typedef struct TarnsFIRState32fc_16sc TarnsFIRState32fc_16sc;
typedef struct TarnsFIRState_64f TarnsFIRState_64f;
typedef struct TarnsFIRState_64fc TarnsFIRState_64fc;
typedef struct TarnsFIRState64f_32f TarnsFIRState64f_32f;
typedef struct TarnsFIRState64fc_32fc TarnsFIRState64fc_32fc;
typedef struct TarnsFIRState64f_32s TarnsFIRState64f_32s;
typedef struct TarnsFIRState64fc_32sc TarnsFIRState64fc_32sc;
typedef struct TarnsFIRState64f_16s TarnsFIRState64f_16s;
typedef struct TarnsFIRState64fc_16sc TarnsFIRState64fc_16sc;
typedef struct TarnsFIRState32s_16s TarnsFIRState32s_16s;
typedef struct TarnsFIRState32sc_16sc TarnsFIRState32sc_16sc;
typedef struct TarnsFIRState32s_16s TarnsFIRState32s_16s32f;
typedef struct TarnsFIRState32sc_16sc TarnsFIRState32sc_16sc32fc;
///@}

/** Allocates and builds a state.

    Integer taps are shifted right, without rounding, until the largest magnitude of their components is at most 32766;
    `tapsFactor` grows by the same number. Float taps that are kept as integers (`32s_16s32f`, `32sc_16sc32fc`) are
    multiplied by the power of two that brings the largest magnitude into 16383.5..32767 and rounded, halves away from
    zero; at least one has to be finite and not zero for the filter to be of any use.

    @param ppState    where the state's address goes; it is freed by the `Free` function of the same name
    @param pTaps      taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen    number of taps, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine   the samples before the first one, newest first, `tapsLen` elements; null for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState` or `pTaps`; tarnStsFIRLenErr for `tapsLen` below 1;
            tarnStsNoMemErr if there is no memory; the status of a transform that could not be made, such as
            tarnStsFftOrderErr for a filter beyond its largest length */
///@{
TARN_API TarnStatus tarnsFIRInitAlloc_32f(TarnsFIRState_32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                          const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc_32fc(TarnsFIRState_32fc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                           const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32f_16s(TarnsFIRState32f_16s** ppState, const Tarn32f* pTaps, int tapsLen,
                                             const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32fc_16sc(TarnsFIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                               const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc_64f(TarnsFIRState_64f** ppState, const Tarn64f* pTaps, int tapsLen,
                                          const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc_64fc(TarnsFIRState_64fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                           const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64f_32f(TarnsFIRState64f_32f** ppState, const Tarn64f* pTaps, int tapsLen,
                                             const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64fc_32fc(TarnsFIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                               const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64f_32s(TarnsFIRState64f_32s** ppState, const Tarn64f* pTaps, int tapsLen,
                                             const Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64fc_32sc(TarnsFIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                               const Tarn32sc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64f_16s(TarnsFIRState64f_16s** ppState, const Tarn64f* pTaps, int tapsLen,
                                             const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc64fc_16sc(TarnsFIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                               const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32s_16s(TarnsFIRState32s_16s** ppState, const Tarn32s* pTaps, int tapsLen,
                                             int tapsFactor, const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32sc_16sc(TarnsFIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int tapsLen,
                                               int tapsFactor, const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32s_16s32f(TarnsFIRState32s_16s32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                                const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRInitAlloc32sc_16sc32fc(TarnsFIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                   int tapsLen, const Tarn16sc* pDlyLine);
///@}

/** Tells how much memory `Init` needs.

    @param tapsLen     number of taps, at least 1
    @param pBufferSize where the size goes, in bytes; it has room for a buffer at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsFIRLenErr for `tapsLen` below 1;
            tarnStsNoMemErr if the size is beyond the largest int */
///@{
TARN_API TarnStatus tarnsFIRGetStateSize_32f(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize_32fc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32f_16s(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32fc_16sc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize_64f(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize_64fc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64f_32f(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64fc_32fc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64f_32s(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64fc_32sc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64f_16s(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize64fc_16sc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32s_16s(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32sc_16sc(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32s_16s32f(int tapsLen, int* pBufferSize);
TARN_API TarnStatus tarnsFIRGetStateSize32sc_16sc32fc(int tapsLen, int* pBufferSize);
///@}

/** Builds a state in the caller's memory. It filters without transforms, whatever its length, and is not freed: the
    memory is the caller's again when the state is no longer used. Taps are treated as by `InitAlloc`.

    @param ppState    where the state's address goes, which lies within `pBuffer`
    @param pTaps      taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen    number of taps, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine   the samples before the first one, newest first, `tapsLen` elements; null for silence
    @param pBuffer    memory of the size that `GetStateSize` tells, at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`, `pTaps` or `pBuffer`; tarnStsFIRLenErr for `tapsLen`
            below 1; tarnStsNoMemErr for so many taps that `GetStateSize` has no size for them */
///@{
TARN_API TarnStatus tarnsFIRInit_32f(TarnsFIRState_32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                     const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit_32fc(TarnsFIRState_32fc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                      const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32f_16s(TarnsFIRState32f_16s** ppState, const Tarn32f* pTaps, int tapsLen,
                                        const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32fc_16sc(TarnsFIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                          const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit_64f(TarnsFIRState_64f** ppState, const Tarn64f* pTaps, int tapsLen,
                                     const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit_64fc(TarnsFIRState_64fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                      const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64f_32f(TarnsFIRState64f_32f** ppState, const Tarn64f* pTaps, int tapsLen,
                                        const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64fc_32fc(TarnsFIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                          const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64f_32s(TarnsFIRState64f_32s** ppState, const Tarn64f* pTaps, int tapsLen,
                                        const Tarn32s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64fc_32sc(TarnsFIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                          const Tarn32sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64f_16s(TarnsFIRState64f_16s** ppState, const Tarn64f* pTaps, int tapsLen,
                                        const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit64fc_16sc(TarnsFIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                          const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32s_16s(TarnsFIRState32s_16s** ppState, const Tarn32s* pTaps, int tapsLen,
                                        int tapsFactor, const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32sc_16sc(TarnsFIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int tapsLen,
                                          int tapsFactor, const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32s_16s32f(TarnsFIRState32s_16s32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                           const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRInit32sc_16sc32fc(TarnsFIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                              const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
///@}

/** Replaces the taps; the delay line stays, so that a signal goes on without a gap. Taps are treated as by `InitAlloc`.

    @param pTaps      taps, as many as the state has; the first one applies to the newest sample
    @param pState     state
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind; the
            status of the taps' transform if that fails */
///@{
TARN_API TarnStatus tarnsFIRSetTaps_32f(const Tarn32f* pTaps, TarnsFIRState_32f* pState);
TARN_API TarnStatus tarnsFIRSetTaps_32fc(const Tarn32fc* pTaps, TarnsFIRState_32fc* pState);
TARN_API TarnStatus tarnsFIRSetTaps32f_16s(const Tarn32f* pTaps, TarnsFIRState32f_16s* pState);
TARN_API TarnStatus tarnsFIRSetTaps32fc_16sc(const Tarn32fc* pTaps, TarnsFIRState32fc_16sc* pState);
TARN_API TarnStatus tarnsFIRSetTaps_64f(const Tarn64f* pTaps, TarnsFIRState_64f* pState);
TARN_API TarnStatus tarnsFIRSetTaps_64fc(const Tarn64fc* pTaps, TarnsFIRState_64fc* pState);
TARN_API TarnStatus tarnsFIRSetTaps64f_32f(const Tarn64f* pTaps, TarnsFIRState64f_32f* pState);
TARN_API TarnStatus tarnsFIRSetTaps64fc_32fc(const Tarn64fc* pTaps, TarnsFIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsFIRSetTaps64f_32s(const Tarn64f* pTaps, TarnsFIRState64f_32s* pState);
TARN_API TarnStatus tarnsFIRSetTaps64fc_32sc(const Tarn64fc* pTaps, TarnsFIRState64fc_32sc* pState);
TARN_API TarnStatus tarnsFIRSetTaps64f_16s(const Tarn64f* pTaps, TarnsFIRState64f_16s* pState);
TARN_API TarnStatus tarnsFIRSetTaps64fc_16sc(const Tarn64fc* pTaps, TarnsFIRState64fc_16sc* pState);
TARN_API TarnStatus tarnsFIRSetTaps32s_16s(const Tarn32s* pTaps, TarnsFIRState32s_16s* pState, int tapsFactor);
TARN_API TarnStatus tarnsFIRSetTaps32sc_16sc(const Tarn32sc* pTaps, TarnsFIRState32sc_16sc* pState, int tapsFactor);
TARN_API TarnStatus tarnsFIRSetTaps32s_16s32f(const Tarn32f* pTaps, TarnsFIRState32s_16s32f* pState);
TARN_API TarnStatus tarnsFIRSetTaps32sc_16sc32fc(const Tarn32fc* pTaps, TarnsFIRState32sc_16sc32fc* pState);
///@}

/** Gives the taps back, in their natural order. Those of integer filters are what is kept of them: the taps after the
    shift and their own factor, or those integers times 2^factor.

    @param pState      state
    @param pTaps       destination, as many elements as the state has taps
    @param pTapsFactor integer taps: where the factor goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRGetTaps_32f(const TarnsFIRState_32f* pState, Tarn32f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps_32fc(const TarnsFIRState_32fc* pState, Tarn32fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps32f_16s(const TarnsFIRState32f_16s* pState, Tarn32f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps32fc_16sc(const TarnsFIRState32fc_16sc* pState, Tarn32fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps_64f(const TarnsFIRState_64f* pState, Tarn64f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps_64fc(const TarnsFIRState_64fc* pState, Tarn64fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64f_32f(const TarnsFIRState64f_32f* pState, Tarn64f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64fc_32fc(const TarnsFIRState64fc_32fc* pState, Tarn64fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64f_32s(const TarnsFIRState64f_32s* pState, Tarn64f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64fc_32sc(const TarnsFIRState64fc_32sc* pState, Tarn64fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64f_16s(const TarnsFIRState64f_16s* pState, Tarn64f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps64fc_16sc(const TarnsFIRState64fc_16sc* pState, Tarn64fc* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps32s_16s(const TarnsFIRState32s_16s* pState, Tarn32s* pTaps, int* pTapsFactor);
TARN_API TarnStatus tarnsFIRGetTaps32sc_16sc(const TarnsFIRState32sc_16sc* pState, Tarn32sc* pTaps, int* pTapsFactor);
TARN_API TarnStatus tarnsFIRGetTaps32s_16s32f(const TarnsFIRState32s_16s32f* pState, Tarn32f* pTaps);
TARN_API TarnStatus tarnsFIRGetTaps32sc_16sc32fc(const TarnsFIRState32sc_16sc32fc* pState, Tarn32fc* pTaps);
///@}

/** Gives the delay line: pDlyLine[i] is the sample that came in i samples before the newest one.

    @param pState   state
    @param pDlyLine destination, as many elements as the state has taps; of a multi-rate state
                    (tapsLen + upFactor - 1) / upFactor elements
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRGetDlyLine_32f(const TarnsFIRState_32f* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine_32fc(const TarnsFIRState_32fc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32f_16s(const TarnsFIRState32f_16s* pState, Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32fc_16sc(const TarnsFIRState32fc_16sc* pState, Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine_64f(const TarnsFIRState_64f* pState, Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine_64fc(const TarnsFIRState_64fc* pState, Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64f_32f(const TarnsFIRState64f_32f* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64fc_32fc(const TarnsFIRState64fc_32fc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64f_32s(const TarnsFIRState64f_32s* pState, Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64fc_32sc(const TarnsFIRState64fc_32sc* pState, Tarn32sc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64f_16s(const TarnsFIRState64f_16s* pState, Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine64fc_16sc(const TarnsFIRState64fc_16sc* pState, Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32s_16s(const TarnsFIRState32s_16s* pState, Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32sc_16sc(const TarnsFIRState32sc_16sc* pState, Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32s_16s32f(const TarnsFIRState32s_16s32f* pState, Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRGetDlyLine32sc_16sc32fc(const TarnsFIRState32sc_16sc32fc* pState, Tarn16sc* pDlyLine);
///@}

/** Replaces the delay line.

    @param pState   state
    @param pDlyLine samples, newest first, as many as the state has taps, or (tapsLen + upFactor - 1) / upFactor of a
                    multi-rate state; null for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null state; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRSetDlyLine_32f(TarnsFIRState_32f* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine_32fc(TarnsFIRState_32fc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32f_16s(TarnsFIRState32f_16s* pState, const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32fc_16sc(TarnsFIRState32fc_16sc* pState, const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine_64f(TarnsFIRState_64f* pState, const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine_64fc(TarnsFIRState_64fc* pState, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64f_32f(TarnsFIRState64f_32f* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64fc_32fc(TarnsFIRState64fc_32fc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64f_32s(TarnsFIRState64f_32s* pState, const Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64fc_32sc(TarnsFIRState64fc_32sc* pState, const Tarn32sc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64f_16s(TarnsFIRState64f_16s* pState, const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine64fc_16sc(TarnsFIRState64fc_16sc* pState, const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32s_16s(TarnsFIRState32s_16s* pState, const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32sc_16sc(TarnsFIRState32sc_16sc* pState, const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32s_16s32f(TarnsFIRState32s_16s32f* pState, const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRSetDlyLine32sc_16sc32fc(TarnsFIRState32sc_16sc32fc* pState, const Tarn16sc* pDlyLine);
///@}

/** Frees a state of `InitAlloc` with all that belongs to it. One of `Init` is left alone.

    @param pState state, not to be used any more
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIRFree_32f(TarnsFIRState_32f* pState);
TARN_API TarnStatus tarnsFIRFree_32fc(TarnsFIRState_32fc* pState);
TARN_API TarnStatus tarnsFIRFree32f_16s(TarnsFIRState32f_16s* pState);
TARN_API TarnStatus tarnsFIRFree32fc_16sc(TarnsFIRState32fc_16sc* pState);
TARN_API TarnStatus tarnsFIRFree_64f(TarnsFIRState_64f* pState);
TARN_API TarnStatus tarnsFIRFree_64fc(TarnsFIRState_64fc* pState);
TARN_API TarnStatus tarnsFIRFree64f_32f(TarnsFIRState64f_32f* pState);
TARN_API TarnStatus tarnsFIRFree64fc_32fc(TarnsFIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsFIRFree64f_32s(TarnsFIRState64f_32s* pState);
TARN_API TarnStatus tarnsFIRFree64fc_32sc(TarnsFIRState64fc_32sc* pState);
TARN_API TarnStatus tarnsFIRFree64f_16s(TarnsFIRState64f_16s* pState);
TARN_API TarnStatus tarnsFIRFree64fc_16sc(TarnsFIRState64fc_16sc* pState);
TARN_API TarnStatus tarnsFIRFree32s_16s(TarnsFIRState32s_16s* pState);
TARN_API TarnStatus tarnsFIRFree32sc_16sc(TarnsFIRState32sc_16sc* pState);
TARN_API TarnStatus tarnsFIRFree32s_16s32f(TarnsFIRState32s_16s32f* pState);
TARN_API TarnStatus tarnsFIRFree32sc_16sc32fc(TarnsFIRState32sc_16sc32fc* pState);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
