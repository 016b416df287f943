// Kernels of FIR filters, and the inner calls behind the filter functions. None of them checks an argument.
#pragma once

#include "frame/kernels.h"
#include "levels/fir/psfir_state.h"

// -- Blocks: count outputs from count + tapsLen - 1 samples, as elements of the taps' type ----------------------------

// Each is also known to the templates as blockKernel, by its types.
#define TARN_FIR_BLOCK_KERNEL(LINKAGE, NAME, T, S)                                                   \
    LINKAGE void NAME(const tarn::Part<T>* pTapsX4, const S* pSrc, T* pDst, int count, int tapsLen); \
    namespace tarn {                                                                                 \
    inline void blockKernel(const Part<T>* pTapsX4, const S* pSrc, T* pDst, int count, int tapsLen)  \
    {                                                                                                \
        NAME(pTapsX4, pSrc, pDst, count, tapsLen);                                                   \
    }                                                                                                \
    }

TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR_32f, Tarn32f, Tarn32f)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR_32fc, Tarn32fc, Tarn32fc)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR32f_16s, Tarn32f, Tarn16s)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR32fc_16sc, Tarn32fc, Tarn16sc)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR_64f, Tarn64f, Tarn64f)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR_64fc, Tarn64fc, Tarn64fc)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR64f_32f, Tarn64f, Tarn32f)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR64fc_32fc, Tarn64fc, Tarn32fc)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR64f_32s, Tarn64f, Tarn32s)
TARN_FIR_BLOCK_KERNEL(, ownFIRSR64fc_32sc, Tarn64fc, Tarn32sc)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR64f_16s, Tarn64f, Tarn16s)
TARN_FIR_BLOCK_KERNEL(TARN_KERNEL, ownFIRSR64fc_16sc, Tarn64fc, Tarn16sc)

// -- Single samples: one enters the delay line, one output leaves -----------------------------------------------------

#define TARN_FIR_ONE_KERNEL(LINKAGE, NAME, TAIL, S)                                                            \
    LINKAGE void NAME(TarnsFIRState##TAIL* pState, S src, S* pDstVal);                                         \
    namespace tarn {                                                                                           \
    inline void oneKernel(TarnsFIRState##TAIL* pState, S src, S* pDstVal, int) { NAME(pState, src, pDstVal); } \
    }
#define TARN_FIR_ONE_KERNEL_SFS(LINKAGE, NAME, TAIL, S)                                    \
    LINKAGE void NAME(TarnsFIRState##TAIL* pState, S src, S* pDstVal, int scaleFactor);    \
    namespace tarn {                                                                       \
    inline void oneKernel(TarnsFIRState##TAIL* pState, S src, S* pDstVal, int scaleFactor) \
    {                                                                                      \
        NAME(pState, src, pDstVal, scaleFactor);                                           \
    }                                                                                      \
    }

TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownFIRSROne_32f, _32f, Tarn32f)
TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownFIRSROne_32fc, _32fc, Tarn32fc)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownsFIRSROne32f_16s_Sfs, 32f_16s, Tarn16s)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownsFIRSROne32fc_16sc_Sfs, 32fc_16sc, Tarn16sc)
TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownFIRSROne_64f, _64f, Tarn64f)
TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownFIRSROne_64fc, _64fc, Tarn64fc)
TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownsFIRSROne64f_32f, 64f_32f, Tarn32f)
TARN_FIR_ONE_KERNEL(TARN_KERNEL, ownsFIRSROne64fc_32fc, 64fc_32fc, Tarn32fc)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownsFIRSROne64f_32s_Sfs, 64f_32s, Tarn32s)
TARN_FIR_ONE_KERNEL_SFS(, ownsFIRSROne64fc_32sc_Sfs, 64fc_32sc, Tarn32sc)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownsFIRSROne64f_16s_Sfs, 64f_16s, Tarn16s)
TARN_FIR_ONE_KERNEL_SFS(, ownsFIRSROne64fc_16sc_Sfs, 64fc_16sc, Tarn16sc)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownFIRSROne32s_16s_Sfs, 32s_16s, Tarn16s)
TARN_FIR_ONE_KERNEL_SFS(TARN_KERNEL, ownFIRSROne32sc_16sc_Sfs, 32sc_16sc, Tarn16sc)

// -- Integer taps: blocks, the delay line included --------------------------------------------------------------------

TARN_KERNEL void ownFIRSR32s_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, TarnsFIRState32s_16s* pState,
                                     int scaleFactor);
TARN_KERNEL void ownFIRSR32sc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                       TarnsFIRState32sc_16sc* pState, int scaleFactor);

// -- Float taps as 16-bit integers ------------------------------------------------------------------------------------

// Rounds len components, halves away from zero, after scaling by the power of two that brings the largest magnitude
// into 16383.5..32767; answers with e, where the taps are the integers times 2^e.
TARN_KERNEL int scale32fTaps32s(const Tarn32f* pSrc, Tarn32s* pDst, int len);

namespace tarn {

// pDst[i] = pSrc[i] 2^-scaleFactor, rounded to nearest, ties to even, saturated; a NaN becomes the lowest integer.
void convertRounded_64f16s(const Tarn64f* pSrc, Tarn16s* pDst, int len, int scaleFactor);

} // namespace tarn

// -- States for the length of a call ----------------------------------------------------------------------------------

// A state of taps in Q15, kept as they are, and with the samples of pDlyLine, newest first.
TARN_KERNEL TarnStatus ownsFIRInitAlloc16s_Q15(TarnsFIRState32s_16s** ppState, const Tarn16s* pTaps, int tapsLen,
                                               const Tarn16s* pDlyLine);
TARN_KERNEL void ownsFIRFree16s_Q15(TarnsFIRState32s_16s* pState);

// -- Inner calls ------------------------------------------------------------------------------------------------------

// Builders of allocated states; each serves all families whose taps have its type. The delay line is left to the
// caller.
#define TARN_FIR_BUILDER(T)                                                                                            \
    TARN_KERNEL TarnStatus ownsFIRInitAlloc_##T(tarn::FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int tapsLen, \
                                                Tarn32u id);                                                           \
    namespace tarn {                                                                                                   \
    inline TarnStatus buildAllocated(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int tapsLen, Tarn32u id)      \
    {                                                                                                                  \
        return ownsFIRInitAlloc_##T(ppState, pTaps, tapsLen, id);                                                      \
    }                                                                                                                  \
    }
TARN_FIR_BUILDER(32f)
TARN_FIR_BUILDER(32fc)
TARN_FIR_BUILDER(64f)
TARN_FIR_BUILDER(64fc)

#define TARN_FIR_INNER(TAIL, S)                                                                                 \
    TARN_KERNEL TarnStatus tarnsFIRSR##TAIL(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState); \
    TARN_KERNEL TarnStatus fftFIRSR##TAIL(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState);   \
    TARN_KERNEL TarnStatus tarnsFIRSR##TAIL##_I(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState)
#define TARN_FIR_INNER_SFS(TAIL, S)                                                                                  \
    TARN_KERNEL TarnStatus tarnsFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState, \
                                                  int scaleFactor);                                                  \
    TARN_KERNEL TarnStatus ownsFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,  \
                                                 int scaleFactor);                                                   \
    TARN_KERNEL TarnStatus fftFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,   \
                                                int scaleFactor);                                                    \
    TARN_KERNEL TarnStatus tarnsFIRSR##TAIL##_ISfs(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState,            \
                                                   int scaleFactor)

TARN_FIR_INNER(_32f, Tarn32f);
TARN_FIR_INNER(_32fc, Tarn32fc);
TARN_FIR_INNER_SFS(32f_16s, Tarn16s);
TARN_FIR_INNER_SFS(32fc_16sc, Tarn16sc);
TARN_FIR_INNER(_64f, Tarn64f);
TARN_FIR_INNER(_64fc, Tarn64fc);
TARN_FIR_INNER(64f_32f, Tarn32f);
TARN_FIR_INNER(64fc_32fc, Tarn32fc);
TARN_FIR_INNER_SFS(64f_32s, Tarn32s);
TARN_FIR_INNER_SFS(64fc_32sc, Tarn32sc);
TARN_FIR_INNER_SFS(64f_16s, Tarn16s);
TARN_FIR_INNER_SFS(64fc_16sc, Tarn16sc);

// The direct road of one block.
TARN_KERNEL TarnStatus ownsFIRSR64f_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, TarnsFIRState64f_32f* pState);
TARN_KERNEL TarnStatus ownsFIRSR64fc_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters,
                                          TarnsFIRState64fc_32fc* pState);
