// Macros that stamp the names of multi-rate FIR families; they stand at the end of a unit.
#pragma once

#define TARN_FIRMR_GIVEN() \
    FirRates { tapsLen, upFactor, upPhase, downFactor, downPhase }

// States with taps of type T: how they are built in each form.
#define TARN_DEFINE_FIRMR_PLAN(PREFIX, T, FORM)                                                                        \
    TarnStatus PREFIX##FIRMRInitAlloc_##T(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, TARN_FIRMR_RATES,        \
                                          Tarn32u id)                                                                  \
    {                                                                                                                  \
        return allocatePlan(ppState, RatesPlan<Tarn##T>{TARN_FIRMR_GIVEN(), FORM}, pTaps, id);                         \
    }                                                                                                                  \
    TarnStatus PREFIX##FIRMRInit_##T(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, TARN_FIRMR_RATES, Tarn32u id, \
                                     Tarn8u* pBuffer)                                                                  \
    {                                                                                                                  \
        return placePlan(ppState, RatesPlan<Tarn##T>{TARN_FIRMR_GIVEN(), FORM}, pTaps, id, pBuffer);                   \
    }                                                                                                                  \
    TarnStatus PREFIX##FIRMRGetStateSize_##T(int tapsLen, int upFactor, int downFactor, int* pBufferSize)              \
    {                                                                                                                  \
        return storePlanSize<Tarn##T>(FORM, FirRates{tapsLen, upFactor, 0, downFactor, 0}, pBufferSize);               \
    }

#define TARN_DEFINE_FIRMR_REAL_BUILDERS(T)                                                 \
    TARN_DEFINE_FIRMR_PLAN(dir, T, FirForm::direct)                                        \
    TARN_DEFINE_FIRMR_PLAN(idx, T, upFactor == 1 ? FirForm::decimating : FirForm::indexed) \
    void dirFIRMRSetTaps_##T(const Tarn##T* pTaps, FirFields<Tarn##T>* pState)             \
    {                                                                                      \
        RatesPlan<Tarn##T>::compileDirect(pTaps, pState);                                  \
    }                                                                                      \
    void idxFIRMRSetTaps_##T(const Tarn##T* pTaps, FirFields<Tarn##T>* pState)             \
    {                                                                                      \
        RatesPlan<Tarn##T>::compileLists(pTaps, pState);                                   \
    }                                                                                      \
    void ownsFIRMRSetTaps_##T(const Tarn##T* pTaps, FirFields<Tarn##T>* pState)            \
    {                                                                                      \
        if (RatesPlan<Tarn##T>::ratesOf(pState).form() == FirForm::direct) {               \
            dirFIRMRSetTaps_##T(pTaps, pState);                                            \
        } else {                                                                           \
            idxFIRMRSetTaps_##T(pTaps, pState);                                            \
        }                                                                                  \
    }
#define TARN_DEFINE_FIRMR_COMPLEX_BUILDERS(T)                                   \
    TARN_DEFINE_FIRMR_PLAN(owns, T, FirForm::indexed)                           \
    void ownsFIRMRSetTaps_##T(const Tarn##T* pTaps, FirFields<Tarn##T>* pState) \
    {                                                                           \
        RatesPlan<Tarn##T>::compileLists(pTaps, pState);                        \
    }

// States of a family: TAIL is how its names end, T the type of the taps, S that of the samples.
#define TARN_DEFINE_FIRMR_STATE(TAIL, T, S)                                                               \
    TarnStatus tarnsFIRMRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, TARN_FIRMR_RATES, \
                                         const S* pDlyLine)                                               \
    {                                                                                                     \
        return allocateRated(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine);                               \
    }                                                                                                     \
    TarnStatus tarnsFIRMRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, TARN_FIRMR_RATES,      \
                                    const S* pDlyLine, Tarn8u* pBuffer)                                   \
    {                                                                                                     \
        return buildRatedInBuffer(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine, pBuffer);                 \
    }                                                                                                     \
    TarnStatus tarnsFIRMRGetStateSize##TAIL(int tapsLen, int upFactor, int downFactor, int* pBufferSize)  \
    {                                                                                                     \
        return ratedSize<TarnsFIRState##TAIL>(tapsLen, upFactor, downFactor, pBufferSize);                \
    }

// Filters whose results have no scale, and those with one.
#define TARN_DEFINE_FIRMR_FILTER(TAIL, S)                                                          \
    TarnStatus tarnsFIRMR##TAIL(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters) \
    {                                                                                              \
        return filterRates(pState, pSrc, pDst, numIters);                                          \
    }                                                                                              \
    TarnStatus tarnsFIRMR##TAIL##_I(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters)         \
    {                                                                                              \
        return filterRatesInPlace(pState, pSrcDst, numIters);                                      \
    }
#define TARN_DEFINE_FIRMR_FILTER_SFS(TAIL, S)                                                                  \
    TarnStatus tarnsFIRMR##TAIL##_Sfs(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters,       \
                                      int scaleFactor)                                                         \
    {                                                                                                          \
        return filterRates(pState, pSrc, pDst, numIters, scaleFactor);                                         \
    }                                                                                                          \
    TarnStatus tarnsFIRMR##TAIL##_ISfs(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters, int scaleFactor) \
    {                                                                                                          \
        return filterRatesInPlace(pState, pSrcDst, numIters, scaleFactor);                                     \
    }

#define TARN_DEFINE_FIRMR_DRIVER(PREFIX, FORM, TAIL, S)                                         \
    void PREFIX##FIRMR##TAIL(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters) \
    {                                                                                           \
        filterByForm<FORM>(pState, pSrc, pDst, numIters);                                       \
    }
#define TARN_DEFINE_FIRMR_DRIVER_SFS(PREFIX, FORM, TAIL, S)                                                            \
    void PREFIX##FIRMR##TAIL##_Sfs(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters, int scaleFactor) \
    {                                                                                                                  \
        filterByForm<FORM>(pState, pSrc, pDst, numIters, scaleFactor);                                                 \
    }
#define TARN_DEFINE_FIRMR_DRIVERS(SUFFIX, TAIL, S)                          \
    TARN_DEFINE_FIRMR_DRIVER##SUFFIX(dir, FirForm::direct, TAIL, S)         \
        TARN_DEFINE_FIRMR_DRIVER##SUFFIX(dec, FirForm::decimating, TAIL, S) \
            TARN_DEFINE_FIRMR_DRIVER##SUFFIX(idx, FirForm::indexed, TAIL, S)
