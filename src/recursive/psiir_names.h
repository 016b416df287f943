// Macros that stamp the names of IIR families; they stand at the end of a unit. A tail is given in its two halves, HEAD
// and REST, between which the names of biquads have their word; FILTER says whether results have a scale factor.
#pragma once

// The builders of the states that compute in a type.
#define TARN_DEFINE_IIR_BUILDERS(T)                                                                                    \
    TarnStatus ownsIIRInitAlloc_##T(IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int order,                     \
                                    const Tarn##T* pDlyLine, int isConverting, Tarn32u id)                             \
    {                                                                                                                  \
        return buildAllocated(ppState, pTaps, {order, 0, isConverting != 0}, pDlyLine, id);                            \
    }                                                                                                                  \
    TarnStatus ownsIIRInitAlloc_BiQuad_##T(IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int numBq,              \
                                           const Tarn##T* pDlyLine, int isConverting, Tarn32u id)                      \
    {                                                                                                                  \
        return buildAllocated(ppState, pTaps, {0, numBq, isConverting != 0}, pDlyLine, id);                            \
    }                                                                                                                  \
    TarnStatus ownsIIRInit_##T(IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int order, const Tarn##T* pDlyLine, \
                               Tarn8u* pBuffer, int isConverting, Tarn32u id)                                          \
    {                                                                                                                  \
        return buildInBuffer(ppState, pTaps, {order, 0, isConverting != 0}, pDlyLine, pBuffer, id);                    \
    }                                                                                                                  \
    TarnStatus ownsIIRInit_BiQuad_##T(IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int numBq,                   \
                                      const Tarn##T* pDlyLine, Tarn8u* pBuffer, int isConverting, Tarn32u id)          \
    {                                                                                                                  \
        return buildInBuffer(ppState, pTaps, {0, numBq, isConverting != 0}, pDlyLine, pBuffer, id);                    \
    }                                                                                                                  \
    TarnStatus ownsIIRSetTaps_##T(const Tarn##T* pTaps, IirFields<Tarn##T>* pState)                                    \
    {                                                                                                                  \
        return storeOrderTaps(pTaps, pState);                                                                          \
    }                                                                                                                  \
    TarnStatus ownsIIRSetTaps_BiQuad_##T(const Tarn##T* pTaps, IirFields<Tarn##T>* pState)                             \
    {                                                                                                                  \
        return storeSectionTaps(pTaps, pState);                                                                        \
    }

// Integer taps have a factor, others none.
#define TARN_IIR_PARAMETER_0
#define TARN_IIR_PARAMETER_tapsFactor , int tapsFactor

// The making of states of one form, from taps of type G: OF makes the form of COUNT. FACTOR is tapsFactor or 0.
#define TARN_DEFINE_IIR_MAKERS(NAME, STATE, G, E, COUNT, CHECK, OF, FACTOR)                                          \
    TarnStatus tarnsIIRInitAlloc##NAME(STATE** ppState, const G* pTaps, int COUNT TARN_IIR_PARAMETER_##FACTOR,       \
                                       const E* pDlyLine)                                                            \
    {                                                                                                                \
        const TarnStatus status = CHECK(COUNT, ppState, pTaps);                                                      \
        return status != tarnStsNoErr ? status : allocateState(ppState, pTaps, OF<STATE>(COUNT), pDlyLine, FACTOR);  \
    }                                                                                                                \
    TarnStatus tarnsIIRInit##NAME(STATE** ppState, const G* pTaps, int COUNT TARN_IIR_PARAMETER_##FACTOR,            \
                                  const E* pDlyLine, Tarn8u* pBuffer)                                                \
    {                                                                                                                \
        const TarnStatus status = CHECK(COUNT, ppState, pTaps, pBuffer);                                             \
        return status != tarnStsNoErr ? status                                                                       \
                                      : placeState(ppState, pTaps, OF<STATE>(COUNT), pDlyLine, pBuffer, FACTOR);     \
    }                                                                                                                \
    TarnStatus tarnsIIRGetStateSize##NAME(int COUNT, int* pBufferSize)                                               \
    {                                                                                                                \
        const TarnStatus status = CHECK(COUNT, pBufferSize);                                                         \
        return status != tarnStsNoErr ? status : storeBytes(IirRegions<E>::reported(OF<STATE>(COUNT)), pBufferSize); \
    }
#define TARN_DEFINE_IIR_STATE_OF(HEAD, REST, G, E, FACTOR)                                                             \
    TARN_DEFINE_IIR_MAKERS(HEAD##_##REST, TarnsIIRState##HEAD##_##REST, G, E, order, checkOrder, ofOrder, FACTOR)      \
    TARN_DEFINE_IIR_MAKERS(HEAD##_BiQuad_##REST, TarnsIIRState##HEAD##_##REST, G, E, numBq, checkSections, ofSections, \
                           FACTOR)                                                                                     \
    TarnStatus tarnsIIRGetDlyLine##HEAD##_##REST(const TarnsIIRState##HEAD##_##REST* pState, E* pDlyLine)              \
    {                                                                                                                  \
        return getDelay(pState, pDlyLine);                                                                             \
    }                                                                                                                  \
    TarnStatus tarnsIIRSetDlyLine##HEAD##_##REST(TarnsIIRState##HEAD##_##REST* pState, const E* pDlyLine)              \
    {                                                                                                                  \
        return setDelay(pState, pDlyLine);                                                                             \
    }                                                                                                                  \
    TarnStatus tarnsIIRFree##HEAD##_##REST(TarnsIIRState##HEAD##_##REST* pState) { return freeState(pState); }

#define TARN_DEFINE_IIR_STATE(HEAD, REST, E)                                                        \
    TARN_DEFINE_IIR_STATE_OF(HEAD, REST, E, E, 0)                                                   \
    TarnStatus tarnsIIRSetTaps##HEAD##_##REST(const E* pTaps, TarnsIIRState##HEAD##_##REST* pState) \
    {                                                                                               \
        return setTaps(pTaps, pState);                                                              \
    }
#define TARN_DEFINE_IIR_INTEGER_STATE(HEAD, REST, G, E, ORDER, BIQUAD)                                              \
    TARN_DEFINE_IIR_STATE_OF(HEAD, REST, G, E, tapsFactor)                                                          \
    TarnStatus tarnsIIRSetTaps##HEAD##_##REST(const G* pTaps, TarnsIIRState##HEAD##_##REST* pState, int tapsFactor) \
    {                                                                                                               \
        return setIntegerTaps(pTaps, pState, tapsFactor, spelled(ORDER), spelled(BIQUAD));                          \
    }

// The inner calls of a form, which cut a call into chunks, and the filters.
#define TARN_DEFINE_IIR_FILTER(TAIL, S)                                                       \
    TarnStatus tarnsIIRAR##TAIL(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState) \
    {                                                                                         \
        return runOrder(pSrc, pDst, len, pState);                                             \
    }                                                                                         \
    TarnStatus tarnsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState) \
    {                                                                                         \
        return runSections(pSrc, pDst, len, pState);                                          \
    }                                                                                         \
    TarnStatus tarnsIIR##TAIL(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState)   \
    {                                                                                         \
        if (const TarnStatus status = checkFilter(len, pState, pSrc, pDst)) {                 \
            return status;                                                                    \
        }                                                                                     \
        return isOrder(pState) ? tarnsIIRAR##TAIL(pSrc, pDst, len, pState)                    \
                               : tarnsIIRBQ##TAIL(pSrc, pDst, len, pState);                   \
    }                                                                                         \
    TarnStatus tarnsIIR##TAIL##_I(S* pSrcDst, int len, TarnsIIRState##TAIL* pState)           \
    {                                                                                         \
        return tarnsIIR##TAIL(pSrcDst, pSrcDst, len, pState);                                 \
    }                                                                                         \
    TarnStatus tarnsIIROne##TAIL(S src, S* pDstVal, TarnsIIRState##TAIL* pState)              \
    {                                                                                         \
        return runOne(src, pDstVal, pState);                                                  \
    }

#define TARN_DEFINE_IIR_FILTER_SFS(TAIL, S)                                                                          \
    TarnStatus tarnsIIRAR##TAIL##_Sfs(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState, int scaleFactor) \
    {                                                                                                                \
        return runOrder(pSrc, pDst, len, pState, scaleFactor);                                                       \
    }                                                                                                                \
    TarnStatus tarnsIIRBQ##TAIL##_Sfs(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState, int scaleFactor) \
    {                                                                                                                \
        return runSections(pSrc, pDst, len, pState, scaleFactor);                                                    \
    }                                                                                                                \
    TarnStatus tarnsIIR##TAIL##_Sfs(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState, int scaleFactor)   \
    {                                                                                                                \
        if (const TarnStatus status = checkFilter(len, pState, pSrc, pDst)) {                                        \
            return status;                                                                                           \
        }                                                                                                            \
        return isOrder(pState) ? tarnsIIRAR##TAIL##_Sfs(pSrc, pDst, len, pState, scaleFactor)                        \
                               : tarnsIIRBQ##TAIL##_Sfs(pSrc, pDst, len, pState, scaleFactor);                       \
    }                                                                                                                \
    TarnStatus tarnsIIR##TAIL##_ISfs(S* pSrcDst, int len, TarnsIIRState##TAIL* pState, int scaleFactor)              \
    {                                                                                                                \
        return tarnsIIR##TAIL##_Sfs(pSrcDst, pSrcDst, len, pState, scaleFactor);                                     \
    }                                                                                                                \
    TarnStatus tarnsIIROne##TAIL##_Sfs(S src, S* pDstVal, TarnsIIRState##TAIL* pState, int scaleFactor)              \
    {                                                                                                                \
        return runOne(src, pDstVal, pState, scaleFactor);                                                            \
    }
