// The states of wavelet banks. Order and width of the fields are those that callers of the 32-bit library know.
#pragma once

#include "tarns/wavelets.h"

namespace tarn {

// Every sample twice, `len` apart, so that the newest `len` of them lie side by side from `pos` on, the oldest first.
struct CircularLine {
    Tarn32f* pBuffer; // 2 len samples
    Tarn32s len;
    Tarn32s pos; // where the oldest sample is, and the next one goes
};

// What the block kernels need of a filter.
struct WaveletKernel {
    Tarn32s len;
    Tarn32f* pTaps;  // as they were given
    Tarn32f* pTable; // in vectors, as the kernel takes them
};

// -- Forward: filters that keep every second output -------------------------------------------------------------------

struct ConvDown2 {
    WaveletKernel* pKernel;
    CircularLine* pLine; // the newest len samples
    Tarn32s len;
    Tarn32f* pReversed; // the taps, the last one first
    Tarn32s phase;      // how many samples come in front of the next one that completes an output: 0 or 1
};

struct ConvDown2Offset {
    ConvDown2* pConv;
    CircularLine* pOffsetLine; // samples that are still to go in; null if there is no delay
    Tarn32s dlyLen;
};

// -- Inverse: filters of a signal that has zeros between its samples --------------------------------------------------

struct Up2Conv {
    WaveletKernel* pKernel;
    CircularLine* pLine; // the newest evenLen samples
    Tarn32s len;
    Tarn32s phase;  // 0: a sample goes in for the next output; 1: the next output is the second one of the last sample
    Tarn32f* pEven; // h[0], h[2], .., the last one first
    Tarn32s evenLen;
    Tarn32f* pOdd; // h[1], h[3], .., the last one first; null if there is none
    Tarn32s oddLen;
};

struct Up2ConvOffset {
    Up2Conv* pConv;
    CircularLine* pOffsetLine;
    Tarn32s dlyLen;
};

// Which function a state belongs to.
enum WaveletTag : Tarn32s {
    fwd32f = 41,
    fwd8u32f = 42,
    fwd8s32f = 43,
    fwd16u32f = 44,
    fwd16s32f = 45,
    inv32f = 50,
    inv32f8u = 51,
    inv32f8s = 52,
    inv32f16u = 53,
    inv32f16s = 54
};

// Floats on their way from or to other types: samples at full rate.
inline constexpr int scratchSamples = 1024;

// One channel of a bank, as a caller describes it.
struct WaveletFilter {
    const Tarn32f* pTaps;
    Tarn32s len;
    Tarn32s offs;
};

} // namespace tarn

struct TarnsWTFwdState {
    Tarn32s tag;
    tarn::ConvDown2Offset* pLow;
    tarn::ConvDown2Offset* pHigh;
    Tarn32f* pScratch; // null where nothing is converted
    Tarn32s scratchLen;
};

struct TarnsWTInvState {
    Tarn32s tag;
    tarn::Up2ConvOffset* pLow;
    tarn::Up2ConvOffset* pHigh;
    Tarn32f* pScratch;
    Tarn32s scratchLen;
};
