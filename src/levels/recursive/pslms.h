// Kernels of adaptive filters in floating point, and of the normalised one in Q15. None of them checks an argument.
#pragma once

#include "frame/bytes.h"
#include "frame/kernels.h"
#include "frame/samples.h"
#include "levels/recursive/pslms_state.h"

// -- Blocks -----------------------------------------------------------------------------------------------------------

// On a line of samples: pSrc is where the window of the first sample begins, and that of each one after it an element
// further.
TARN_KERNEL void ownsLMS_32f(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu,
                             Tarn32f* pTaps, int tapsLen);
TARN_KERNEL void ownsLMS_32f16s(const Tarn32f* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu,
                                Tarn32f* pTaps, int tapsLen);

// By the state's four copies of its delay line, which take the samples in; all in the state goes on.
TARN_KERNEL void ownLMS_32f(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu,
                            TarnsFIRLMSState_32f* pState);
TARN_KERNEL void ownLMS32f_16s(const Tarn16s* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu,
                               TarnsFIRLMSState32f_16s* pState);

// -- One sample, by what the caller owns ------------------------------------------------------------------------------

TARN_KERNEL void ownLMSOne_32f(Tarn32f src, Tarn32f refVal, Tarn32f* pDstVal, Tarn32f* pTapsInv, int tapsLen,
                               Tarn32f mu, Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_KERNEL void ownLMSOne32f_16s(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32f* pTapsInv, int tapsLen,
                                  Tarn32f mu, Tarn16s* pDlyLine, int* pDlyLineIndex);
TARN_KERNEL void ownLMSOneQ15_16s_64t(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32s* pTapsInv, int tapsLen,
                                      int mu, Tarn16s* pDlyLine, int* pDlyLineIndex);

namespace tarn {

// Samples on their way into a line.
inline void takeSamples(const Tarn32f* src, Tarn32f* line, int len) { copy(src, line, len); }
inline void takeSamples(const Tarn16s* src, Tarn32f* line, int len) { samplesToTaps(src, line, len); }

// The kernels by their types.
inline void adaptAlong(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu, Tarn32f* pTaps,
                       int tapsLen)
{
    ownsLMS_32f(pSrc, pRef, pDst, len, mu, pTaps, tapsLen);
}
inline void adaptAlong(const Tarn32f* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu, Tarn32f* pTaps,
                       int tapsLen)
{
    ownsLMS_32f16s(pSrc, pRef, pDst, len, mu, pTaps, tapsLen);
}
inline void adaptInCopies(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu,
                          TarnsFIRLMSState_32f* pState)
{
    ownLMS_32f(pSrc, pRef, pDst, len, mu, pState);
}
inline void adaptInCopies(const Tarn16s* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu,
                          TarnsFIRLMSState32f_16s* pState)
{
    ownLMS32f_16s(pSrc, pRef, pDst, len, mu, pState);
}

} // namespace tarn
