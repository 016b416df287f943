// The states of FIR filters. Order and width of the fields are those that callers of the 32-bit library know.
#pragma once

#include "frame/state.h"
#include "levels/fft/psfft_kinds.h"
#include "tarns/firstate.h"

namespace tarn {

// The fields of a state with taps of type T. Those marked MR have a meaning in multi-rate states only.
template <typename T>
struct FirFields {
    Tarn32u idCtx;
    T* pTaps;                                // in reversed order, for the dot product of a single sample
    T* pDlyLine;                             // MR: samples of type S
    int tapsLen;                             // at least 1
    int upFactor;                            // MR
    int inHeadLen;                           // samples of one call that may pass through the delay buffer
    int downFactor;                          // MR
    int outHeadLen;                          // MR
    typename TransformOf<T>::Spec* pFFTSpec; // null without FFT road
    T* pFFTTaps;                             // the taps' spectrum, null without FFT road
    int fftLen;                              // -1 without FFT road
    int dlyLineIdx;                          // where the newest tapsLen samples begin in the delay buffer
    Tarn32s* pPhaseOffsets;                  // MR, null otherwise
    Part<T>* pTapsX4;                        // in the layout of the block kernel; MR: compiled per phase
    int phaseTapsLen;                        // MR
    int form;                                // MR
    int dlyLen;                              // samples that a caller sees of the delay line
    T* pFFTBlocks;                           // fftLen elements for the first thread
    Tarn8u* pFFTWork;                        // fftWorkSize bytes for it, right before
    int fftWorkSize;
    Tarn8u* pTmp;
    Tarn32s* pThreadStatus; // null in the caller's memory
    int isAllocated;        // 1 if the library owns the block
    int upPhase;            // MR
    int downPhase;          // MR
    int threads;            // for how many the buffers of the FFT road were made
};

// A state with taps of type T for samples of type S.
template <typename T, typename S, Tarn32u singleRate, Tarn32u multiRate>
struct FirState : FirFields<T> {
    using Tap = T;
    using Sample = S;
    static constexpr Tarn32u singleRateId = singleRate;
    static constexpr Tarn32u multiRateId = multiRate;
    static constexpr Tarn32u formIds[] = {singleRate, multiRate};
};

// A state with integer taps: S is Tarn16s or Tarn16sc, T the same kind of 32-bit element.
template <typename T, typename S, Tarn32u singleRate, Tarn32u multiRate>
struct FirIntegerState {
    using Tap = T;
    using Sample = S;
    static constexpr Tarn32u singleRateId = singleRate;
    static constexpr Tarn32u multiRateId = multiRate;
    static constexpr Tarn32u formIds[] = {singleRate, multiRate};

    Tarn32u idCtx;
    T* pTaps; // in reversed order, shifted to 16 bits
    S* pDlyLine;
    int tapsLen;
    int upFactor; // MR
    int inHeadLen;
    int downFactor;         // MR
    int outHeadLen;         // MR
    int tapsFactor;         // the taps are those stored times 2^tapsFactor
    Tarn16s* pTapsTable;    // in the layout of the kernels
    int dlyLineIdx;         // as above
    Tarn32s* pPhaseOffsets; // MR
    int tapsTableStride;    // words from one copy of the taps to the next; MR: bytes of a row
    int dlyLen;             // MR
    Tarn8u* pTmp;
    int isAllocated;
    int upPhase;   // MR
    int downPhase; // MR
};

} // namespace tarn

#define TARN_FIR_STATE(TAIL, KIND, T, S, SINGLE, MULTI) \
    struct TarnsFIRState##TAIL : tarn::KIND<T, S, tarn::spelled(SINGLE), tarn::spelled(MULTI)> {}

TARN_FIR_STATE(_32f, FirState, Tarn32f, Tarn32f, "FI01", "FI03");
TARN_FIR_STATE(_32fc, FirState, Tarn32fc, Tarn32fc, "FI02", "FI04");
TARN_FIR_STATE(32f_16s, FirState, Tarn32f, Tarn16s, "FI05", "FI07");
TARN_FIR_STATE(32fc_16sc, FirState, Tarn32fc, Tarn16sc, "FI06", "FI08");
TARN_FIR_STATE(32s_16s, FirIntegerState, Tarn32s, Tarn16s, "FI09", "FI11");
TARN_FIR_STATE(32sc_16sc, FirIntegerState, Tarn32sc, Tarn16sc, "FI10", "FI12");
TARN_FIR_STATE(_64f, FirState, Tarn64f, Tarn64f, "FI13", "FI15");
TARN_FIR_STATE(_64fc, FirState, Tarn64fc, Tarn64fc, "FI14", "FI16");
TARN_FIR_STATE(64f_32f, FirState, Tarn64f, Tarn32f, "FI17", "FI19");
TARN_FIR_STATE(64fc_32fc, FirState, Tarn64fc, Tarn32fc, "FI18", "FI20");
TARN_FIR_STATE(64f_32s, FirState, Tarn64f, Tarn32s, "FI21", "FI23");
TARN_FIR_STATE(64fc_32sc, FirState, Tarn64fc, Tarn32sc, "FI22", "FI24");
TARN_FIR_STATE(64f_16s, FirState, Tarn64f, Tarn16s, "FI25", "FI27");
TARN_FIR_STATE(64fc_16sc, FirState, Tarn64fc, Tarn16sc, "FI26", "FI28");
