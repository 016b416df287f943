// Macros that stamp the names of FIR families; they stand at the end of a unit.
#pragma once

// The builder of the families with taps of a type.
#define TARN_DEFINE_FIR_BUILDER(T)                                                                               \
    TarnStatus ownsFIRInitAlloc_##T(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int tapsLen, Tarn32u id) \
    {                                                                                                            \
        return allocateFields(ppState, pTaps, tapsLen, id);                                                      \
    }

// States: TAIL is how the family's names end, T the type of the taps, S that of the samples.
#define TARN_DEFINE_FIR_DELAY(TAIL, S)                                                  \
    TarnStatus tarnsFIRGetDlyLine##TAIL(const TarnsFIRState##TAIL* pState, S* pDlyLine) \
    {                                                                                   \
        return getDelay(pState, pDlyLine);                                              \
    }                                                                                   \
    TarnStatus tarnsFIRSetDlyLine##TAIL(TarnsFIRState##TAIL* pState, const S* pDlyLine) \
    {                                                                                   \
        return setDelay(pState, pDlyLine);                                              \
    }                                                                                   \
    TarnStatus tarnsFIRFree##TAIL(TarnsFIRState##TAIL* pState) { return freeFilter(pState); }

#define TARN_DEFINE_FIR_STATE(TAIL, T, S)                                                                             \
    TarnStatus tarnsFIRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, const S* pDlyLine) \
    {                                                                                                                 \
        return allocateState(ppState, pTaps, tapsLen, pDlyLine);                                                      \
    }                                                                                                                 \
    TarnStatus tarnsFIRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, const S* pDlyLine,      \
                                  Tarn8u* pBuffer)                                                                    \
    {                                                                                                                 \
        return buildInBuffer(ppState, pTaps, tapsLen, pDlyLine, pBuffer);                                             \
    }                                                                                                                 \
    TarnStatus tarnsFIRGetStateSize##TAIL(int tapsLen, int* pBufferSize)                                              \
    {                                                                                                                 \
        return stateSize<TarnsFIRState##TAIL>(tapsLen, pBufferSize);                                                  \
    }                                                                                                                 \
    TarnStatus tarnsFIRSetTaps##TAIL(const T* pTaps, TarnsFIRState##TAIL* pState) { return setTaps(pTaps, pState); }  \
    TarnStatus tarnsFIRGetTaps##TAIL(const TarnsFIRState##TAIL* pState, T* pTaps) { return getTaps(pState, pTaps); }  \
    TARN_DEFINE_FIR_DELAY(TAIL, S)

// Filters whose results have no scale, and those with one.
#define TARN_DEFINE_FIR_FILTER(TAIL, S)                                                            \
    TarnStatus tarnsFIR##TAIL(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState)   \
    {                                                                                              \
        return runFilter(pSrc, pDst, numIters, pState);                                            \
    }                                                                                              \
    TarnStatus tarnsFIR##TAIL##_I(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState)           \
    {                                                                                              \
        return runInPlace(pSrcDst, numIters, pState);                                              \
    }                                                                                              \
    TarnStatus tarnsFIROne##TAIL(S src, S* pDstVal, TarnsFIRState##TAIL* pState)                   \
    {                                                                                              \
        return runOne(src, pDstVal, pState);                                                       \
    }                                                                                              \
    TarnStatus tarnsFIRSR##TAIL(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState) \
    {                                                                                              \
        return runDirect(pSrc, pDst, numIters, pState);                                            \
    }                                                                                              \
    TarnStatus fftFIRSR##TAIL(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState)   \
    {                                                                                              \
        return runTransforms(pSrc, pDst, numIters, pState);                                        \
    }                                                                                              \
    TarnStatus tarnsFIRSR##TAIL##_I(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState)         \
    {                                                                                              \
        return runPartsInPlace(pSrcDst, numIters, pState);                                         \
    }

#define TARN_DEFINE_FIR_CALLS_SFS(TAIL, S)                                                                   \
    TarnStatus tarnsFIR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,       \
                                    int scaleFactor)                                                         \
    {                                                                                                        \
        return runFilter(pSrc, pDst, numIters, pState, scaleFactor);                                         \
    }                                                                                                        \
    TarnStatus tarnsFIR##TAIL##_ISfs(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState, int scaleFactor) \
    {                                                                                                        \
        return runInPlace(pSrcDst, numIters, pState, scaleFactor);                                           \
    }                                                                                                        \
    TarnStatus tarnsFIROne##TAIL##_Sfs(S src, S* pDstVal, TarnsFIRState##TAIL* pState, int scaleFactor)      \
    {                                                                                                        \
        return runOne(src, pDstVal, pState, scaleFactor);                                                    \
    }

#define TARN_DEFINE_FIR_FILTER_SFS(TAIL, S)                                                                    \
    TARN_DEFINE_FIR_CALLS_SFS(TAIL, S)                                                                         \
    TarnStatus tarnsFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,       \
                                      int scaleFactor)                                                         \
    {                                                                                                          \
        return runDirect(pSrc, pDst, numIters, pState, scaleFactor);                                           \
    }                                                                                                          \
    TarnStatus ownsFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,        \
                                     int scaleFactor)                                                          \
    {                                                                                                          \
        return runDirect(pSrc, pDst, numIters, pState, scaleFactor);                                           \
    }                                                                                                          \
    TarnStatus fftFIRSR##TAIL##_Sfs(const S* pSrc, S* pDst, int numIters, TarnsFIRState##TAIL* pState,         \
                                    int scaleFactor)                                                           \
    {                                                                                                          \
        return runTransforms(pSrc, pDst, numIters, pState, scaleFactor);                                       \
    }                                                                                                          \
    TarnStatus tarnsFIRSR##TAIL##_ISfs(S* pSrcDst, int numIters, TarnsFIRState##TAIL* pState, int scaleFactor) \
    {                                                                                                          \
        return runPartsInPlace(pSrcDst, numIters, pState, scaleFactor);                                        \
    }
