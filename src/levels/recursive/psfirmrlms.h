// Kernels of adaptive filters in fixed point. None of them checks an argument.
//
// Taps are 32-bit integers, and what is filtered with are their upper halves. A window's samples lie `tapStep` apart;
// pWindow is where its oldest one is, and behind the newest one there is another in the line.
#pragma once

#include "frame/kernels.h"
#include "levels/recursive/pslms_state.h"

// *pDstVal = sum of (pTaps[i] >> 16) pWindow[i tapStep], modulo 2^32.
TARN_KERNEL void ownLMSMROne32s_16s(const Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep,
                                    Tarn32s* pDstVal);
TARN_KERNEL void ownLMSMROne32sc_16sc(const Tarn32sc* pTaps, const Tarn16sc* pWindow, int tapsLen, int tapStep,
                                      Tarn32sc* pDstVal);

// pTaps[i] += (pWindow[i tapStep] g) >> shift, modulo 2^32, for a g of magnitude below 2^15.
TARN_KERNEL void ownLMSMRUpdate32s_16s(Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, int g,
                                       int shift);

namespace tarn {

// The kernels by their types.
inline void filterWindow(const Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, Tarn32s* pDstVal)
{
    ownLMSMROne32s_16s(pTaps, pWindow, tapsLen, tapStep, pDstVal);
}
inline void filterWindow(const Tarn32sc* pTaps, const Tarn16sc* pWindow, int tapsLen, int tapStep, Tarn32sc* pDstVal)
{
    ownLMSMROne32sc_16sc(pTaps, pWindow, tapsLen, tapStep, pDstVal);
}

// The same step of the taps for any g; complex ones gain the product of the conjugate sample.
void adaptToWindow(Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, Tarn32s g, int shift);
void adaptToWindow(Tarn32sc* pTaps, const Tarn16sc* pWindow, int tapsLen, int tapStep, Tarn32sc g, int shift);

} // namespace tarn
