/* States of multi-rate FIR filters. */
#ifndef TARNS_FIRMR_H
#define TARNS_FIRMR_H

#include "tarns/firstate.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup firmr Multi-rate FIR filters
    Builds states that change the rate of a signal by upFactor / downFactor: resampling, decimation, interpolation.

    @code{.c}
    const Tarn32f taps[2] = {1, 1}, x[4] = {1, 2, 3, 4};
    Tarn32f y[8];
    TarnsFIRState_32f* state;
    if (tarnsFIRMRInitAlloc_32f(&state, taps, 2, 2, 0, 1, 0, NULL) == tarnStsNoErr) {
        tarnsFIR_32f(x, y, 4, state); // 4 samples in, 8 out
        printf("%g %g %g %g\n", y[0], y[1], y[2], y[3]); // 1 1 2 2
        tarnsFIRFree_32f(state);
    }
    @endcode

    __Accuracy:__ that of sums in the type of the taps.

    __Cost:__ 0.3 to 0.43 of a polyphase loop, 0.04 of liquid-dsp's.

    __Guide:__ [FIR filters](docs/fir.md), section Change of rate.

    A multi-rate filter changes the rate of a signal by upFactor / downFactor. It computes what one gets by inserting
    upFactor - 1 zeros between samples, filtering with the taps, and keeping every downFactor-th result: input n stands
    at time n upFactor + upPhase of the fast clock, output m at time m downFactor + downPhase, and

        y[m] = sum of h[k] x[n] over all k and n with n upFactor + upPhase + k = m downFactor + downPhase

    No zero is ever stored. The taps are compiled when the state is built: for each phase of the output there is a list
    of taps and the place of the samples that they belong to.

    The state is one of firstate.h, and of its family: the functions there set and get taps and delay line and free it.
    tarnsFIR...() of fir.h filter with it, where an iteration consumes `downFactor` samples and produces `upFactor`
    outputs. Every call begins a new pattern of phases, which whole iterations complete, so a signal can be cut into
    calls of any number of iterations. tarnsFIROne...() refuses such a state.

    The delay line has (tapsLen + upFactor - 1) / upFactor samples, in integer division: those that an output may need.

    There are three ways to compile real filters. With
    ratio = tapsLen / (tapsLen + 3 downFactor), in single precision, the taps of four outputs are laid over one window,
    with zeros where a sample is none of an output's, if the ratio is above 0.5 (above 0.3 where upFactor is not 1).
    Otherwise each output has a window and a list of its own; where upFactor is 1 all outputs share one list. Complex
    filters and those with integer taps always have windows of their own. Real filters in floating point without change
    of rate (both factors 1) are single-rate states.
    @{ */

/** Allocates and builds a state.

    @param ppState    where the state's address goes; null if there is no memory. It is freed by tarnsFIRFree...()
    @param pTaps      taps, `tapsLen` elements; treated as by tarnsFIRInitAlloc...()
    @param tapsLen    number of taps, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param upFactor   time between two samples on the fast clock, at least 1
    @param upPhase    time of the first sample, 0 to upFactor - 1
    @param downFactor time between two outputs on the fast clock, at least 1
    @param downPhase  time of the first output, 0 to downFactor - 1
    @param pDlyLine   the samples before the first one, newest first, (tapsLen + upFactor - 1) / upFactor elements; null
                      for silence
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState` or `pTaps`; tarnStsFIRLenErr for `tapsLen` below 1;
            tarnStsFIRMRFactorErr for a factor below 1; tarnStsFIRMRPhaseErr for a phase out of range; tarnStsNoMemErr
            if there is no memory, or the state would be larger than 2^31 - 1 bytes; without change of rate the status
            of tarnsFIRInitAlloc...() */
///@{
TARN_API TarnStatus tarnsFIRMRInitAlloc_32f(TarnsFIRState_32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc_32fc(TarnsFIRState_32fc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                             int upFactor, int upPhase, int downFactor, int downPhase,
                                             const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32f_16s(TarnsFIRState32f_16s** ppState, const Tarn32f* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32fc_16sc(TarnsFIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                                 int upFactor, int upPhase, int downFactor, int downPhase,
                                                 const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc_64f(TarnsFIRState_64f** ppState, const Tarn64f* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc_64fc(TarnsFIRState_64fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                             int upFactor, int upPhase, int downFactor, int downPhase,
                                             const Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64f_32f(TarnsFIRState64f_32f** ppState, const Tarn64f* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               const Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64fc_32fc(TarnsFIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                                 int upFactor, int upPhase, int downFactor, int downPhase,
                                                 const Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64f_32s(TarnsFIRState64f_32s** ppState, const Tarn64f* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               const Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64fc_32sc(TarnsFIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                                 int upFactor, int upPhase, int downFactor, int downPhase,
                                                 const Tarn32sc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64f_16s(TarnsFIRState64f_16s** ppState, const Tarn64f* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc64fc_16sc(TarnsFIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                                 int upFactor, int upPhase, int downFactor, int downPhase,
                                                 const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32s_16s(TarnsFIRState32s_16s** ppState, const Tarn32s* pTaps, int tapsLen,
                                               int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase,
                                               const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32sc_16sc(TarnsFIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int tapsLen,
                                                 int tapsFactor, int upFactor, int upPhase, int downFactor,
                                                 int downPhase, const Tarn16sc* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32s_16s32f(TarnsFIRState32s_16s32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                                  int upFactor, int upPhase, int downFactor, int downPhase,
                                                  const Tarn16s* pDlyLine);
TARN_API TarnStatus tarnsFIRMRInitAlloc32sc_16sc32fc(TarnsFIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                     int tapsLen, int upFactor, int upPhase, int downFactor,
                                                     int downPhase, const Tarn16sc* pDlyLine);
///@}

/** Builds a state in memory of the caller.

    @param ppState    where the state's address goes, which lies in `pBuffer`
    @param pTaps      taps, as for `InitAlloc`
    @param tapsLen    number of taps, at least 1
    @param tapsFactor integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param upFactor   time between two samples on the fast clock, at least 1
    @param upPhase    time of the first sample, 0 to upFactor - 1
    @param downFactor time between two outputs on the fast clock, at least 1
    @param downPhase  time of the first output, 0 to downFactor - 1
    @param pDlyLine   the samples before the first one, newest first, or null for silence
    @param pBuffer    memory at any address, as many bytes as `GetStateSize` gives; it has to live as long as the state
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppState`, `pTaps` or `pBuffer`; tarnStsFIRLenErr for `tapsLen`
            below 1; tarnStsFIRMRFactorErr for a factor below 1; tarnStsFIRMRPhaseErr for a phase out of range;
            tarnStsNoMemErr for a state of more than 2^31 - 1 bytes */
///@{
TARN_API TarnStatus tarnsFIRMRInit_32f(TarnsFIRState_32f** ppState, const Tarn32f* pTaps, int tapsLen, int upFactor,
                                       int upPhase, int downFactor, int downPhase, const Tarn32f* pDlyLine,
                                       Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit_32fc(TarnsFIRState_32fc** ppState, const Tarn32fc* pTaps, int tapsLen, int upFactor,
                                        int upPhase, int downFactor, int downPhase, const Tarn32fc* pDlyLine,
                                        Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32f_16s(TarnsFIRState32f_16s** ppState, const Tarn32f* pTaps, int tapsLen,
                                          int upFactor, int upPhase, int downFactor, int downPhase,
                                          const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32fc_16sc(TarnsFIRState32fc_16sc** ppState, const Tarn32fc* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit_64f(TarnsFIRState_64f** ppState, const Tarn64f* pTaps, int tapsLen, int upFactor,
                                       int upPhase, int downFactor, int downPhase, const Tarn64f* pDlyLine,
                                       Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit_64fc(TarnsFIRState_64fc** ppState, const Tarn64fc* pTaps, int tapsLen, int upFactor,
                                        int upPhase, int downFactor, int downPhase, const Tarn64fc* pDlyLine,
                                        Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64f_32f(TarnsFIRState64f_32f** ppState, const Tarn64f* pTaps, int tapsLen,
                                          int upFactor, int upPhase, int downFactor, int downPhase,
                                          const Tarn32f* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64fc_32fc(TarnsFIRState64fc_32fc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn32fc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64f_32s(TarnsFIRState64f_32s** ppState, const Tarn64f* pTaps, int tapsLen,
                                          int upFactor, int upPhase, int downFactor, int downPhase,
                                          const Tarn32s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64fc_32sc(TarnsFIRState64fc_32sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn32sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64f_16s(TarnsFIRState64f_16s** ppState, const Tarn64f* pTaps, int tapsLen,
                                          int upFactor, int upPhase, int downFactor, int downPhase,
                                          const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit64fc_16sc(TarnsFIRState64fc_16sc** ppState, const Tarn64fc* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32s_16s(TarnsFIRState32s_16s** ppState, const Tarn32s* pTaps, int tapsLen,
                                          int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase,
                                          const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32sc_16sc(TarnsFIRState32sc_16sc** ppState, const Tarn32sc* pTaps, int tapsLen,
                                            int tapsFactor, int upFactor, int upPhase, int downFactor, int downPhase,
                                            const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32s_16s32f(TarnsFIRState32s_16s32f** ppState, const Tarn32f* pTaps, int tapsLen,
                                             int upFactor, int upPhase, int downFactor, int downPhase,
                                             const Tarn16s* pDlyLine, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFIRMRInit32sc_16sc32fc(TarnsFIRState32sc_16sc32fc** ppState, const Tarn32fc* pTaps,
                                                int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                                const Tarn16sc* pDlyLine, Tarn8u* pBuffer);
///@}

/** Gives the size of a state in memory of the caller.

    @param tapsLen     number of taps, at least 1
    @param upFactor    time between two samples on the fast clock, at least 1
    @param downFactor  time between two outputs on the fast clock, at least 1
    @param pBufferSize where the number of bytes goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsFIRLenErr for `tapsLen` below 1;
            tarnStsFIRMRFactorErr for a factor below 1; tarnStsNoMemErr for more than 2^31 - 1 bytes */
///@{
TARN_API TarnStatus tarnsFIRMRGetStateSize_32f(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize_32fc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32f_16s(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32fc_16sc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize_64f(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize_64fc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64f_32f(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64fc_32fc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64f_32s(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64fc_32sc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64f_16s(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize64fc_16sc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32s_16s(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32sc_16sc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32s_16s32f(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
TARN_API TarnStatus tarnsFIRMRGetStateSize32sc_16sc32fc(int tapsLen, int upFactor, int downFactor, int* pBufferSize);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
