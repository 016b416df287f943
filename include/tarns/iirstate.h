/* States of IIR filters: taps, delay line and tables of a recursive filter that lives across calls. */
#ifndef TARNS_IIRSTATE_H
#define TARNS_IIRSTATE_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup iirstate IIR filter states
    Makes, changes and frees the states that @ref iir filters with: one section of any order, or a cascade of biquads.

    @code{.c}
    const Tarn64f sections[12] = {0.2, 0.4, 0.2, 1, -0.4, 0.2, 1, 0, 0, 1, -0.5, 0}; // b0 b1 b2 a0 a1 a2, twice
    Tarn64f x[1000] = {1}, gain;
    TarnsIIRState_64f* state;
    if (tarnsIIRInitAlloc_BiQuad_64f(&state, sections, 2, NULL) == tarnStsNoErr) {
        tarnsIIR_64f_I(x, 1000, state); // the impulse response
        tarnsSum_64f(x, 1000, &gain); // that at frequency 0
        printf("%.4f\n", gain); // 2.0000
        tarnsIIRFree_64f(state);
    }
    @endcode

    __Accuracy:__ coefficients of one high order hold its poles far less precisely than those of sections do: from order
    five on take biquads.

    __Cost:__ new taps take as long as some tens of samples, 0.08 microseconds; no call but the first allocates.

    __Guide:__ [Recursive filters](docs/iir.md).

    A recursive filter is kept in one state. It is either one section of some order N,

        a0 y[n] = sum of b[k] x[n-k], k = 0..N, - sum of a[k] y[n-k], k = 1..N,

    or a cascade of sections of order two, biquads, each of which filters what the one before gives. Taps are divided
    by their leading denominator tap a0 when they are set. From order five on take biquads: the coefficients of one high
    order hold its poles far less precisely than those of its sections do.

    The end of a name tells the types: `_32f` has taps and samples of that type, `32f_16s` taps of type 32f and samples
    of type 16s. Everything is computed in the precision of the taps; samples are converted on the way in and out. The
    taps of `32s_16s` and `32sc_16sc` are integers times 2^-tapsFactor and become floats of single precision;
    `32s_16s32f` and `32sc_16sc32fc` take floats for the same kind of state.

    The delay line has N elements, or two a section, section 0 first. It is not a line of samples but that of the
    transposed direct form II: with taps divided by a0, element j holds after sample n

        sum of b[m] x[n+1+j-m] - a[m] y[n+1+j-m], m = j+1..N.

    Its elements have the precision in which the filter is computed, also where samples are integers.

    A state is made by `InitAlloc`, which allocates it, or by `Init` in memory of the caller, and belongs to one caller
    at a time. No call on it allocates, but for that which sets integer taps.
    @{ */

/** State of a filter; opaque. */
///@{
typedef struct TarnsIIRState_32f TarnsIIRState_32f;
typedef struct TarnsIIRState_32fc TarnsIIRState_32fc;
typedef struct TarnsIIRState32f_16s TarnsIIRState32f_16s;
typedef struct TarnsIIRState32fc_16sc TarnsIIRState32fc_16sc;
typedef struct TarnsIIRState32s_16s TarnsIIRState32s_16s;
typedef struct TarnsIIRState32sc_16sc TarnsIIRState32sc_16sc;
typedef struct TarnsIIRState32s_16s TarnsIIRState32s_16s32f;
typedef struct TarnsIIRState32sc_16sc TarnsIIRState32sc_16sc32fc;
typedef struct TarnsIIRState_64f TarnsIIRState_64f;
typedef struct TarnsIIRState_64fc TarnsIIRState_64fc;
typedef struct TarnsIIRState64f_32f TarnsIIRState64f_32f;
typedef struct TarnsIIRState64fc_32fc TarnsIIRState64fc_32fc;
typedef struct TarnsIIRState64f_32s TarnsIIRState64f_32s;
typedef struct TarnsIIRState64fc_32sc TarnsIIRState64fc_32sc;
typedef struct TarnsIIRState64f_16s TarnsIIRState64f_16s;
typedef struct TarnsIIRState64fc_16sc TarnsIIRState64fc_16sc;
///@}

/** Allocates and builds a state of one section.

    With taps that cannot be divided, a0 being 0 or a NaN, there is a state nevertheless: it is to be freed, or given
    other taps.

    @param ppState    where the state's address goes; it is freed by the `Free` function of the same name
    @param pTaps      the 2 `order` + 2 taps b0..bN, a0..aN; a0 is not 0
    @param order      order N of the filter, at least 0; 0 is a gain, whose delay line is empty
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^-tapsFactor, rounded to single precision
    @param pDlyLine   delay line to begin with, `order` elements; null for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState` or `pTaps`; tarnStsIIROrderErr for `order` below 0;
            tarnStsNoMemErr if there is no memory, or for an order whose state is beyond 2^31 - 1 bytes;
            tarnStsDivByZeroErr for a0 of 0 or NaN */
///@{
TARN_API TarnStatus tarnsIIRInitAlloc_32f(TarnsIIRState_32f** ppState, const Tarn32f* pTaps, int order,
                                          const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_32fc(TarnsIIRState_32fc** ppState, const Tarn32fc* pTaps, int order,
                                           const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32f_16s(TarnsIIRState32f_16s** ppState, const Tarn32f* pTaps, int order,
                                             const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32fc_16sc(TarnsIIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int order,
                                               const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32s_16s(TarnsIIRState32s_16s** ppState, const Tarn32s* pTaps, int order,
                                             int tapsFactor, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32sc_16sc(TarnsIIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int order,
                                               int tapsFactor, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32s_16s32f(TarnsIIRState32s_16s32f** ppState, const Tarn32f* pTaps, int order,
                                                const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32sc_16sc32fc(TarnsIIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                   int order, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_64f(TarnsIIRState_64f** ppState, const Tarn64f* pTaps, int order,
                                          const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_64fc(TarnsIIRState_64fc** ppState, const Tarn64fc* pTaps, int order,
                                           const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_32f(TarnsIIRState64f_32f** ppState, const Tarn64f* pTaps, int order,
                                             const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_32fc(TarnsIIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int order,
                                               const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_32s(TarnsIIRState64f_32s** ppState, const Tarn64f* pTaps, int order,
                                             const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_32sc(TarnsIIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int order,
                                               const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_16s(TarnsIIRState64f_16s** ppState, const Tarn64f* pTaps, int order,
                                             const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_16sc(TarnsIIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int order,
                                               const Tarn64fc* pDlyLine);
///@}

/** Allocates and builds a state of biquads. With taps that are refused there is a state nevertheless, as above.

    @param ppState    where the state's address goes; it is freed by the `Free` function of the same name
    @param pTaps      six taps a section: b0, b1, b2, a0, a1, a2; neither a0 nor b0 is 0
    @param numBq      number of sections, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^-tapsFactor, rounded to single precision
    @param pDlyLine   delay line to begin with, 2 `numBq` elements; null for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState` or `pTaps`; tarnStsIIROrderErr for `numBq` below 1;
            tarnStsNoMemErr as above; tarnStsDivByZeroErr for a section whose a0 or b0 is 0 or a NaN */
///@{
TARN_API TarnStatus tarnsIIRInitAlloc_BiQuad_32f(TarnsIIRState_32f** ppState, const Tarn32f* pTaps, int numBq,
                                                 const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_BiQuad_32fc(TarnsIIRState_32fc** ppState, const Tarn32fc* pTaps, int numBq,
                                                  const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32f_BiQuad_16s(TarnsIIRState32f_16s** ppState, const Tarn32f* pTaps, int numBq,
                                                    const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32fc_BiQuad_16sc(TarnsIIRState32fc_16sc** ppState, const Tarn32fc* pTaps,
                                                      int numBq, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32s_BiQuad_16s(TarnsIIRState32s_16s** ppState, const Tarn32s* pTaps, int numBq,
                                                    int tapsFactor, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32sc_BiQuad_16sc(TarnsIIRState32sc_16sc** ppState, const Tarn32sc* pTaps,
                                                      int numBq, int tapsFactor, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32s_BiQuad_16s32f(TarnsIIRState32s_16s32f** ppState, const Tarn32f* pTaps,
                                                       int numBq, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc32sc_BiQuad_16sc32fc(TarnsIIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                          int numBq, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_BiQuad_64f(TarnsIIRState_64f** ppState, const Tarn64f* pTaps, int numBq,
                                                 const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc_BiQuad_64fc(TarnsIIRState_64fc** ppState, const Tarn64fc* pTaps, int numBq,
                                                  const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_BiQuad_32f(TarnsIIRState64f_32f** ppState, const Tarn64f* pTaps, int numBq,
                                                    const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_BiQuad_32fc(TarnsIIRState64fc_32fc** ppState, const Tarn64fc* pTaps,
                                                      int numBq, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_BiQuad_32s(TarnsIIRState64f_32s** ppState, const Tarn64f* pTaps, int numBq,
                                                    const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_BiQuad_32sc(TarnsIIRState64fc_32sc** ppState, const Tarn64fc* pTaps,
                                                      int numBq, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64f_BiQuad_16s(TarnsIIRState64f_16s** ppState, const Tarn64f* pTaps, int numBq,
                                                    const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRInitAlloc64fc_BiQuad_16sc(TarnsIIRState64fc_16sc** ppState, const Tarn64fc* pTaps,
                                                      int numBq, const Tarn64fc* pDlyLine);
///@}

/** Tells how much memory `Init` needs for a section of some order.

    @param order       order of the filter, at least 0
    @param pBufferSize where the size goes, in bytes; it is enough at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsIIROrderErr for `order` below 0;
            tarnStsNoMemErr if the size is beyond the largest int */
///@{
TARN_API TarnStatus tarnsIIRGetStateSize_32f(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_32fc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32f_16s(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32fc_16sc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32s_16s(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32sc_16sc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32s_16s32f(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32sc_16sc32fc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_64f(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_64fc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_32f(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_32fc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_32s(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_32sc(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_16s(int order, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_16sc(int order, int* pBufferSize);
///@}

/** Tells how much memory `Init` needs for biquads.

    @param numBq       number of sections, at least 1
    @param pBufferSize where the size goes, in bytes; it is enough at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsIIROrderErr for `numBq` below 1;
            tarnStsNoMemErr if the size is beyond the largest int */
///@{
TARN_API TarnStatus tarnsIIRGetStateSize_BiQuad_32f(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_BiQuad_32fc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32f_BiQuad_16s(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32fc_BiQuad_16sc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32s_BiQuad_16s(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32sc_BiQuad_16sc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32s_BiQuad_16s32f(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize32sc_BiQuad_16sc32fc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_BiQuad_64f(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize_BiQuad_64fc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_BiQuad_32f(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_BiQuad_32fc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_BiQuad_32s(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_BiQuad_32sc(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64f_BiQuad_16s(int numBq, int* pBufferSize);
TARN_API TarnStatus tarnsIIRGetStateSize64fc_BiQuad_16sc(int numBq, int* pBufferSize);
///@}

/** Builds a state of one section in the caller's memory, which is the caller's again when the state is no longer used.

    @param ppState    where the state's address goes, which lies within `pBuffer`; also if the taps are refused
    @param pTaps      the 2 `order` + 2 taps b0..bN, a0..aN; a0 is not 0
    @param order      order N of the filter, at least 0; 0 is a gain, whose delay line is empty
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^-tapsFactor, rounded to single precision
    @param pDlyLine   delay line to begin with, `order` elements; null for silence
    @param pBuffer    memory of the size that `GetStateSize` tells, at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`, `pTaps` or `pBuffer`; tarnStsIIROrderErr for `order`
            below 0; tarnStsNoMemErr for an order that `GetStateSize` has no size for, or, with integer taps, if there
    is no memory to convert them in; tarnStsDivByZeroErr for a0 of 0 or NaN */
///@{
TARN_API TarnStatus tarnsIIRInit_32f(TarnsIIRState_32f** ppState, const Tarn32f* pTaps, int order,
                                     const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_32fc(TarnsIIRState_32fc** ppState, const Tarn32fc* pTaps, int order,
                                      const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32f_16s(TarnsIIRState32f_16s** ppState, const Tarn32f* pTaps, int order,
                                        const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32fc_16sc(TarnsIIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int order,
                                          const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32s_16s(TarnsIIRState32s_16s** ppState, const Tarn32s* pTaps, int order, int tapsFactor,
                                        const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32sc_16sc(TarnsIIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int order,
                                          int tapsFactor, const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32s_16s32f(TarnsIIRState32s_16s32f** ppState, const Tarn32f* pTaps, int order,
                                           const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32sc_16sc32fc(TarnsIIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps, int order,
                                              const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_64f(TarnsIIRState_64f** ppState, const Tarn64f* pTaps, int order,
                                     const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_64fc(TarnsIIRState_64fc** ppState, const Tarn64fc* pTaps, int order,
                                      const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_32f(TarnsIIRState64f_32f** ppState, const Tarn64f* pTaps, int order,
                                        const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_32fc(TarnsIIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int order,
                                          const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_32s(TarnsIIRState64f_32s** ppState, const Tarn64f* pTaps, int order,
                                        const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_32sc(TarnsIIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int order,
                                          const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_16s(TarnsIIRState64f_16s** ppState, const Tarn64f* pTaps, int order,
                                        const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_16sc(TarnsIIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int order,
                                          const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
///@}

/** Builds a state of biquads in the caller's memory.

    @param ppState    where the state's address goes, which lies within `pBuffer`; also if the taps are refused
    @param pTaps      six taps a section: b0, b1, b2, a0, a1, a2; neither a0 nor b0 is 0
    @param numBq      number of sections, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^-tapsFactor, rounded to single precision
    @param pDlyLine   delay line to begin with, 2 `numBq` elements; null for silence
    @param pBuffer    memory of the size that `GetStateSize` tells, at any address
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`, `pTaps` or `pBuffer`; tarnStsIIROrderErr for `numBq`
            below 1; tarnStsNoMemErr as above; tarnStsDivByZeroErr for a section whose a0 or b0 is 0 or a NaN */
///@{
TARN_API TarnStatus tarnsIIRInit_BiQuad_32f(TarnsIIRState_32f** ppState, const Tarn32f* pTaps, int numBq,
                                            const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_BiQuad_32fc(TarnsIIRState_32fc** ppState, const Tarn32fc* pTaps, int numBq,
                                             const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32f_BiQuad_16s(TarnsIIRState32f_16s** ppState, const Tarn32f* pTaps, int numBq,
                                               const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32fc_BiQuad_16sc(TarnsIIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int numBq,
                                                 const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32s_BiQuad_16s(TarnsIIRState32s_16s** ppState, const Tarn32s* pTaps, int numBq,
                                               int tapsFactor, const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32sc_BiQuad_16sc(TarnsIIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int numBq,
                                                 int tapsFactor, const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32s_BiQuad_16s32f(TarnsIIRState32s_16s32f** ppState, const Tarn32f* pTaps, int numBq,
                                                  const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit32sc_BiQuad_16sc32fc(TarnsIIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                     int numBq, const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_BiQuad_64f(TarnsIIRState_64f** ppState, const Tarn64f* pTaps, int numBq,
                                            const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit_BiQuad_64fc(TarnsIIRState_64fc** ppState, const Tarn64fc* pTaps, int numBq,
                                             const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_BiQuad_32f(TarnsIIRState64f_32f** ppState, const Tarn64f* pTaps, int numBq,
                                               const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_BiQuad_32fc(TarnsIIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int numBq,
                                                 const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_BiQuad_32s(TarnsIIRState64f_32s** ppState, const Tarn64f* pTaps, int numBq,
                                               const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_BiQuad_32sc(TarnsIIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int numBq,
                                                 const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64f_BiQuad_16s(TarnsIIRState64f_16s** ppState, const Tarn64f* pTaps, int numBq,
                                               const Tarn64f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsIIRInit64fc_BiQuad_16sc(TarnsIIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int numBq,
                                                 const Tarn64fc* pDlyLine, Tarn8u* pBuffer);
///@}

/** Replaces the taps of a state of either form. The delay line stays as it is, with what the old taps have put there.

    Two functions are peculiar for the sake of programs that know them so. That of `32s_16s` converts the taps before it
    looks at the state's kind, and answers tarnStsContextMatchErr also when it has set them. That of `32sc_16sc` knows
    the states of `_32fc` instead of its own: on its own it changes nothing and answers tarnStsContextMatchErr. Taps of
    such states are set through `32s_16s32f` and `32sc_16sc32fc`.

    @param pTaps      as many taps as the state was made with, in the same order
    @param pState     state
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^-tapsFactor
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind;
            tarnStsDivByZeroErr for a0 of 0 or NaN, or for such a b0 of a biquad: sections in front of it have their
            new taps then, but not their new tables, so that taps must be set again; tarnStsNoMemErr if there is no
            memory to convert integers in */
///@{
TARN_API TarnStatus tarnsIIRSetTaps_32f(const Tarn32f* pTaps, TarnsIIRState_32f* pState);
TARN_API TarnStatus tarnsIIRSetTaps_32fc(const Tarn32fc* pTaps, TarnsIIRState_32fc* pState);
TARN_API TarnStatus tarnsIIRSetTaps32f_16s(const Tarn32f* pTaps, TarnsIIRState32f_16s* pState);
TARN_API TarnStatus tarnsIIRSetTaps32fc_16sc(const Tarn32fc* pTaps, TarnsIIRState32fc_16sc* pState);
TARN_API TarnStatus tarnsIIRSetTaps32s_16s(const Tarn32s* pTaps, TarnsIIRState32s_16s* pState, int tapsFactor);
TARN_API TarnStatus tarnsIIRSetTaps32sc_16sc(const Tarn32sc* pTaps, TarnsIIRState32sc_16sc* pState, int tapsFactor);
TARN_API TarnStatus tarnsIIRSetTaps32s_16s32f(const Tarn32f* pTaps, TarnsIIRState32s_16s32f* pState);
TARN_API TarnStatus tarnsIIRSetTaps32sc_16sc32fc(const Tarn32fc* pTaps, TarnsIIRState32sc_16sc32fc* pState);
TARN_API TarnStatus tarnsIIRSetTaps_64f(const Tarn64f* pTaps, TarnsIIRState_64f* pState);
TARN_API TarnStatus tarnsIIRSetTaps_64fc(const Tarn64fc* pTaps, TarnsIIRState_64fc* pState);
TARN_API TarnStatus tarnsIIRSetTaps64f_32f(const Tarn64f* pTaps, TarnsIIRState64f_32f* pState);
TARN_API TarnStatus tarnsIIRSetTaps64fc_32fc(const Tarn64fc* pTaps, TarnsIIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsIIRSetTaps64f_32s(const Tarn64f* pTaps, TarnsIIRState64f_32s* pState);
TARN_API TarnStatus tarnsIIRSetTaps64fc_32sc(const Tarn64fc* pTaps, TarnsIIRState64fc_32sc* pState);
TARN_API TarnStatus tarnsIIRSetTaps64f_16s(const Tarn64f* pTaps, TarnsIIRState64f_16s* pState);
TARN_API TarnStatus tarnsIIRSetTaps64fc_16sc(const Tarn64fc* pTaps, TarnsIIRState64fc_16sc* pState);
///@}

/** Gives the delay line, as it is kept.

    @param pState   state of either form
    @param pDlyLine destination, as many elements as the delay line has
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIRGetDlyLine_32f(const TarnsIIRState_32f* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine_32fc(const TarnsIIRState_32fc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32f_16s(const TarnsIIRState32f_16s* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32fc_16sc(const TarnsIIRState32fc_16sc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32s_16s(const TarnsIIRState32s_16s* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32sc_16sc(const TarnsIIRState32sc_16sc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32s_16s32f(const TarnsIIRState32s_16s32f* pState, Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine32sc_16sc32fc(const TarnsIIRState32sc_16sc32fc* pState, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine_64f(const TarnsIIRState_64f* pState, Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine_64fc(const TarnsIIRState_64fc* pState, Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64f_32f(const TarnsIIRState64f_32f* pState, Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64fc_32fc(const TarnsIIRState64fc_32fc* pState, Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64f_32s(const TarnsIIRState64f_32s* pState, Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64fc_32sc(const TarnsIIRState64fc_32sc* pState, Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64f_16s(const TarnsIIRState64f_16s* pState, Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRGetDlyLine64fc_16sc(const TarnsIIRState64fc_16sc* pState, Tarn64fc* pDlyLine);
///@}

/** Sets the delay line.

    @param pState   state of either form
    @param pDlyLine new elements, as `GetDlyLine` gives them; null for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pState`; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIRSetDlyLine_32f(TarnsIIRState_32f* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine_32fc(TarnsIIRState_32fc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32f_16s(TarnsIIRState32f_16s* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32fc_16sc(TarnsIIRState32fc_16sc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32s_16s(TarnsIIRState32s_16s* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32sc_16sc(TarnsIIRState32sc_16sc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32s_16s32f(TarnsIIRState32s_16s32f* pState, const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine32sc_16sc32fc(TarnsIIRState32sc_16sc32fc* pState, const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine_64f(TarnsIIRState_64f* pState, const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine_64fc(TarnsIIRState_64fc* pState, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64f_32f(TarnsIIRState64f_32f* pState, const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64fc_32fc(TarnsIIRState64fc_32fc* pState, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64f_32s(TarnsIIRState64f_32s* pState, const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64fc_32sc(TarnsIIRState64fc_32sc* pState, const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64f_16s(TarnsIIRState64f_16s* pState, const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsIIRSetDlyLine64fc_16sc(TarnsIIRState64fc_16sc* pState, const Tarn64fc* pDlyLine);
///@}

/** Frees a state that `InitAlloc` made. A state in the caller's memory is left as it is.

    @param pState state of either form
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIRFree_32f(TarnsIIRState_32f* pState);
TARN_API TarnStatus tarnsIIRFree_32fc(TarnsIIRState_32fc* pState);
TARN_API TarnStatus tarnsIIRFree32f_16s(TarnsIIRState32f_16s* pState);
TARN_API TarnStatus tarnsIIRFree32fc_16sc(TarnsIIRState32fc_16sc* pState);
TARN_API TarnStatus tarnsIIRFree32s_16s(TarnsIIRState32s_16s* pState);
TARN_API TarnStatus tarnsIIRFree32sc_16sc(TarnsIIRState32sc_16sc* pState);
TARN_API TarnStatus tarnsIIRFree32s_16s32f(TarnsIIRState32s_16s32f* pState);
TARN_API TarnStatus tarnsIIRFree32sc_16sc32fc(TarnsIIRState32sc_16sc32fc* pState);
TARN_API TarnStatus tarnsIIRFree_64f(TarnsIIRState_64f* pState);
TARN_API TarnStatus tarnsIIRFree_64fc(TarnsIIRState_64fc* pState);
TARN_API TarnStatus tarnsIIRFree64f_32f(TarnsIIRState64f_32f* pState);
TARN_API TarnStatus tarnsIIRFree64fc_32fc(TarnsIIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsIIRFree64f_32s(TarnsIIRState64f_32s* pState);
TARN_API TarnStatus tarnsIIRFree64fc_32sc(TarnsIIRState64fc_32sc* pState);
TARN_API TarnStatus tarnsIIRFree64f_16s(TarnsIIRState64f_16s* pState);
TARN_API TarnStatus tarnsIIRFree64fc_16sc(TarnsIIRState64fc_16sc* pState);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
