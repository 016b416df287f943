// Kernels of multi-rate FIR filters, and the inner calls behind the filter functions. None of them checks an argument.
#pragma once

#include "frame/kernels.h"
#include "frame/walk.h"
#include "levels/fir/psfirmr_rates.h"

// -- Outputs from compiled tables -------------------------------------------------------------------------------------
//
// A main kernel makes a multiple of four outputs from a cycle's beginning on and answers with the position after them.
// A tail handler makes any number of them from samples in front of `limit`, by the same sums; its integers have halves
// rounded away from zero.
//
// Of the macros TAIL is how the names end, T the type of the taps, S that of the samples; what follows is the scale
// factor of those that have one.

#define TARN_FIRMR_TABLE(T, S)                                                                \
    const T *pPhaseTaps, const S *pData, S *pDst, tarn::Index count, const Tarn32s *pOffsets, \
        const Tarn32s *pOffsetsEnd, tarn::Index position, int window
#define TARN_FIRMR_STEPS(T, S) \
    const T *pTaps, const S *pData, S *pDst, tarn::Index count, tarn::Index position, int window, int step

#define TARN_FIRMR_INDEXED_KERNELS(TAIL, T, S, ...)                                           \
    TARN_KERNEL tarn::Index ownsidx##TAIL(TARN_FIRMR_TABLE(T, S) __VA_OPT__(, ) __VA_ARGS__); \
    TARN_KERNEL void idxTail##TAIL(TARN_FIRMR_TABLE(T, S), tarn::Index limit __VA_OPT__(, ) __VA_ARGS__)
#define TARN_FIRMR_REAL_KERNELS(TAIL, T, S, ...)                                                          \
    TARN_KERNEL tarn::Index ownsdir##TAIL(TARN_FIRMR_TABLE(T, S) __VA_OPT__(, ) __VA_ARGS__);             \
    TARN_KERNEL void dirTail##TAIL(TARN_FIRMR_TABLE(T, S), tarn::Index limit __VA_OPT__(, ) __VA_ARGS__); \
    TARN_KERNEL tarn::Index ownsdec##TAIL(TARN_FIRMR_STEPS(T, S) __VA_OPT__(, ) __VA_ARGS__);             \
    TARN_KERNEL void decTail##TAIL(TARN_FIRMR_STEPS(T, S), tarn::Index limit __VA_OPT__(, ) __VA_ARGS__); \
    TARN_FIRMR_INDEXED_KERNELS(TAIL, T, S __VA_OPT__(, ) __VA_ARGS__)

namespace tarn {
template <FirForm form>
struct FormTag {
};
} // namespace tarn

// Each is also known to the templates as mainKernel and tailKernel, by form and state.
#define TARN_FIRMR_CALLS(FORM, TAG, NAME, TAIL, S, TABLE, ...)                                                     \
    namespace tarn {                                                                                               \
    inline void mainKernel(FormTag<FirForm::TAG>, const TarnsFIRState##TAIL* state, const S* data, S* dst,         \
                           Index count, Index position, [[maybe_unused]] int scaleFactor)                          \
    {                                                                                                              \
        owns##FORM##NAME(TARN_FIRMR_##TABLE(state, data, dst, count, position) __VA_OPT__(, ) __VA_ARGS__);        \
    }                                                                                                              \
    inline void tailKernel(FormTag<FirForm::TAG>, const TarnsFIRState##TAIL* state, const S* data, S* dst,         \
                           Index count, Index position, Index limit, [[maybe_unused]] int scaleFactor)             \
    {                                                                                                              \
        FORM##Tail##NAME(TARN_FIRMR_##TABLE(state, data, dst, count, position), limit __VA_OPT__(, ) __VA_ARGS__); \
    }                                                                                                              \
    }
#define TARN_FIRMR_TAPS_OF(STATE) reinterpret_cast<decltype((STATE)->pTaps)>((STATE)->pTapsX4)
#define TARN_FIRMR_DIRECT(STATE, DATA, DST, COUNT, POSITION)                                                         \
    TARN_FIRMR_TAPS_OF(STATE), DATA, DST, COUNT, (STATE)->pPhaseOffsets, (STATE)->pPhaseOffsets + (STATE)->upFactor, \
        POSITION, (STATE)->phaseTapsLen
#define TARN_FIRMR_INDEXED(STATE, DATA, DST, COUNT, POSITION)            \
    TARN_FIRMR_TAPS_OF(STATE), DATA, DST, COUNT, (STATE)->pPhaseOffsets, \
        (STATE)->pPhaseOffsets + outputsOfGroup*(STATE)->upFactor, POSITION, (STATE)->phaseTapsLen
#define TARN_FIRMR_STEPPED(STATE, DATA, DST, COUNT, POSITION)                                                 \
    TARN_FIRMR_TAPS_OF(STATE), DATA, DST, COUNT, POSITION + (STATE)->pPhaseOffsets[0], (STATE)->phaseTapsLen, \
        (STATE)->pPhaseOffsets[1] - (STATE)->pPhaseOffsets[0]

#define TARN_FIRMR_INDEXED_FAMILY(NAME, TAIL, T, S) \
    TARN_FIRMR_INDEXED_KERNELS(NAME, T, S);         \
    TARN_FIRMR_CALLS(idx, indexed, NAME, TAIL, S, INDEXED)
#define TARN_FIRMR_INDEXED_FAMILY_SFS(TAIL, T, S)                  \
    TARN_FIRMR_INDEXED_KERNELS(TAIL##_Sfs, T, S, int scaleFactor); \
    TARN_FIRMR_CALLS(idx, indexed, TAIL##_Sfs, TAIL, S, INDEXED, scaleFactor)
#define TARN_FIRMR_REAL_FAMILY(TAIL, T, S)                    \
    TARN_FIRMR_REAL_KERNELS(TAIL, T, S);                      \
    TARN_FIRMR_CALLS(dir, direct, TAIL, TAIL, S, DIRECT)      \
    TARN_FIRMR_CALLS(dec, decimating, TAIL, TAIL, S, STEPPED) \
    TARN_FIRMR_CALLS(idx, indexed, TAIL, TAIL, S, INDEXED)
#define TARN_FIRMR_REAL_FAMILY_SFS(TAIL, T, S)                                   \
    TARN_FIRMR_REAL_KERNELS(TAIL##_Sfs, T, S, int scaleFactor);                  \
    TARN_FIRMR_CALLS(dir, direct, TAIL##_Sfs, TAIL, S, DIRECT, scaleFactor)      \
    TARN_FIRMR_CALLS(dec, decimating, TAIL##_Sfs, TAIL, S, STEPPED, scaleFactor) \
    TARN_FIRMR_CALLS(idx, indexed, TAIL##_Sfs, TAIL, S, INDEXED, scaleFactor)

TARN_FIRMR_REAL_FAMILY(_32f, Tarn32f, Tarn32f)
TARN_FIRMR_REAL_FAMILY_SFS(32f_16s, Tarn32f, Tarn16s)
TARN_FIRMR_REAL_FAMILY(_64f, Tarn64f, Tarn64f)
TARN_FIRMR_REAL_FAMILY(64f_32f, Tarn64f, Tarn32f)
TARN_FIRMR_REAL_FAMILY_SFS(64f_32s, Tarn64f, Tarn32s)
TARN_FIRMR_REAL_FAMILY_SFS(64f_16s, Tarn64f, Tarn16s)
TARN_FIRMR_INDEXED_FAMILY(_32fc, _32fc, Tarn32fc, Tarn32fc)
TARN_FIRMR_INDEXED_FAMILY_SFS(32fc_16sc, Tarn32fc, Tarn16sc)
TARN_FIRMR_INDEXED_FAMILY(_64fc, _64fc, Tarn64fc, Tarn64fc)
TARN_FIRMR_INDEXED_FAMILY(64fc_32fc, 64fc_32fc, Tarn64fc, Tarn32fc)
TARN_FIRMR_INDEXED_FAMILY_SFS(64fc_32sc, Tarn64fc, Tarn32sc)
TARN_FIRMR_INDEXED_FAMILY_SFS(64fc_16sc, Tarn64fc, Tarn16sc)

// -- States -----------------------------------------------------------------------------------------------------------
//
// Builders serve all families whose taps have their type; samples before the first one are left to the caller. Each is
// also known to the templates by the type of the taps: buildRated, buildRatedAt, storeRatedSize, compileTaps.

#define TARN_FIRMR_RATES int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase
#define TARN_FIRMR_VALUES(RATES)                                                                     \
    static_cast<int>((RATES).taps), static_cast<int>((RATES).up), static_cast<int>((RATES).upPhase), \
        static_cast<int>((RATES).down), static_cast<int>((RATES).downPhase)

#define TARN_FIRMR_FORM_BUILDERS(FORM, T)                                                                            \
    TARN_KERNEL TarnStatus FORM##FIRMRInitAlloc_##T(tarn::FirFields<Tarn##T>** ppState, const Tarn##T* pTaps,        \
                                                    TARN_FIRMR_RATES, Tarn32u id);                                   \
    TARN_KERNEL TarnStatus FORM##FIRMRInit_##T(tarn::FirFields<Tarn##T>** ppState, const Tarn##T* pTaps,             \
                                               TARN_FIRMR_RATES, Tarn32u id, Tarn8u* pBuffer);                       \
    TARN_KERNEL TarnStatus FORM##FIRMRGetStateSize_##T(int tapsLen, int upFactor, int downFactor, int* pBufferSize); \
    TARN_KERNEL void FORM##FIRMRSetTaps_##T(const Tarn##T* pTaps, tarn::FirFields<Tarn##T>* pState)

#define TARN_FIRMR_TAPS(T)                                                                                             \
    TARN_KERNEL void ownsFIRMRSetTaps_##T(const Tarn##T* pTaps, tarn::FirFields<Tarn##T>* pState);                     \
    namespace tarn {                                                                                                   \
    inline void compileTaps(const Tarn##T* pTaps, FirFields<Tarn##T>* pState) { ownsFIRMRSetTaps_##T(pTaps, pState); } \
    }

#define TARN_FIRMR_REAL_BUILDERS(T)                                                                                    \
    TARN_FIRMR_FORM_BUILDERS(dir, T);                                                                                  \
    TARN_FIRMR_FORM_BUILDERS(idx, T);                                                                                  \
    TARN_FIRMR_TAPS(T)                                                                                                 \
    namespace tarn {                                                                                                   \
    inline TarnStatus buildRated(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, const FirRates& rates,            \
                                 Tarn32u id)                                                                           \
    {                                                                                                                  \
        return rates.form() == FirForm::direct ? dirFIRMRInitAlloc_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id)   \
                                               : idxFIRMRInitAlloc_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id);  \
    }                                                                                                                  \
    inline TarnStatus buildRatedAt(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, const FirRates& rates,          \
                                   Tarn32u id, Tarn8u* pBuffer)                                                        \
    {                                                                                                                  \
        return rates.form() == FirForm::direct                                                                         \
                   ? dirFIRMRInit_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id, pBuffer)                           \
                   : idxFIRMRInit_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id, pBuffer);                          \
    }                                                                                                                  \
    inline TarnStatus storeRatedSize(const FirFields<Tarn##T>*, int tapsLen, int upFactor, int downFactor, int* pSize) \
    {                                                                                                                  \
        const FirRates rates{tapsLen, upFactor, 0, downFactor, 0};                                                     \
        return rates.form() == FirForm::direct ? dirFIRMRGetStateSize_##T(tapsLen, upFactor, downFactor, pSize)        \
                                               : idxFIRMRGetStateSize_##T(tapsLen, upFactor, downFactor, pSize);       \
    }                                                                                                                  \
    }
#define TARN_FIRMR_COMPLEX_BUILDERS(T)                                                                                 \
    TARN_KERNEL TarnStatus ownsFIRMRInitAlloc_##T(tarn::FirFields<Tarn##T>** ppState, const Tarn##T* pTaps,            \
                                                  TARN_FIRMR_RATES, Tarn32u id);                                       \
    TARN_KERNEL TarnStatus ownsFIRMRInit_##T(tarn::FirFields<Tarn##T>** ppState, const Tarn##T* pTaps,                 \
                                             TARN_FIRMR_RATES, Tarn32u id, Tarn8u* pBuffer);                           \
    TARN_KERNEL TarnStatus ownsFIRMRGetStateSize_##T(int tapsLen, int upFactor, int downFactor, int* pBufferSize);     \
    TARN_FIRMR_TAPS(T)                                                                                                 \
    namespace tarn {                                                                                                   \
    inline TarnStatus buildRated(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, const FirRates& rates,            \
                                 Tarn32u id)                                                                           \
    {                                                                                                                  \
        return ownsFIRMRInitAlloc_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id);                                   \
    }                                                                                                                  \
    inline TarnStatus buildRatedAt(FirFields<Tarn##T>** ppState, const Tarn##T* pTaps, const FirRates& rates,          \
                                   Tarn32u id, Tarn8u* pBuffer)                                                        \
    {                                                                                                                  \
        return ownsFIRMRInit_##T(ppState, pTaps, TARN_FIRMR_VALUES(rates), id, pBuffer);                               \
    }                                                                                                                  \
    inline TarnStatus storeRatedSize(const FirFields<Tarn##T>*, int tapsLen, int upFactor, int downFactor, int* pSize) \
    {                                                                                                                  \
        return ownsFIRMRGetStateSize_##T(tapsLen, upFactor, downFactor, pSize);                                        \
    }                                                                                                                  \
    }

TARN_FIRMR_REAL_BUILDERS(32f)
TARN_FIRMR_REAL_BUILDERS(64f)
TARN_FIRMR_COMPLEX_BUILDERS(32fc)
TARN_FIRMR_COMPLEX_BUILDERS(64fc)

// -- Filters ----------------------------------------------------------------------------------------------------------

// Each is also known to the templates as rateFilter and rateFilterInPlace, by the state's type.
#define TARN_FIRMR_FILTER(TAIL, S)                                                                              \
    TARN_KERNEL TarnStatus tarnsFIRMR##TAIL(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters); \
    TARN_KERNEL TarnStatus tarnsFIRMR##TAIL##_I(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters);         \
    namespace tarn {                                                                                            \
    inline TarnStatus rateFilter(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters, int)        \
    {                                                                                                           \
        return tarnsFIRMR##TAIL(pState, pSrc, pDst, numIters);                                                  \
    }                                                                                                           \
    inline TarnStatus rateFilterInPlace(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters, int)             \
    {                                                                                                           \
        return tarnsFIRMR##TAIL##_I(pState, pSrcDst, numIters);                                                 \
    }                                                                                                           \
    }
#define TARN_FIRMR_FILTER_SFS(TAIL, S)                                                                               \
    TARN_KERNEL TarnStatus tarnsFIRMR##TAIL##_Sfs(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters, \
                                                  int scaleFactor);                                                  \
    TARN_KERNEL TarnStatus tarnsFIRMR##TAIL##_ISfs(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters,            \
                                                   int scaleFactor);                                                 \
    namespace tarn {                                                                                                 \
    inline TarnStatus rateFilter(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters, int scaleFactor) \
    {                                                                                                                \
        return tarnsFIRMR##TAIL##_Sfs(pState, pSrc, pDst, numIters, scaleFactor);                                    \
    }                                                                                                                \
    inline TarnStatus rateFilterInPlace(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters, int scaleFactor)      \
    {                                                                                                                \
        return tarnsFIRMR##TAIL##_ISfs(pState, pSrcDst, numIters, scaleFactor);                                      \
    }                                                                                                                \
    }

TARN_FIRMR_FILTER(_32f, Tarn32f)
TARN_FIRMR_FILTER(_32fc, Tarn32fc)
TARN_FIRMR_FILTER_SFS(32f_16s, Tarn16s)
TARN_FIRMR_FILTER_SFS(32fc_16sc, Tarn16sc)
TARN_FIRMR_FILTER(_64f, Tarn64f)
TARN_FIRMR_FILTER(_64fc, Tarn64fc)
TARN_FIRMR_FILTER(64f_32f, Tarn32f)
TARN_FIRMR_FILTER(64fc_32fc, Tarn32fc)
TARN_FIRMR_FILTER_SFS(64f_32s, Tarn32s)
TARN_FIRMR_FILTER_SFS(64fc_32sc, Tarn32sc)
TARN_FIRMR_FILTER_SFS(64f_16s, Tarn16s)
TARN_FIRMR_FILTER_SFS(64fc_16sc, Tarn16sc)
TARN_FIRMR_FILTER_SFS(32s_16s, Tarn16s)
TARN_FIRMR_FILTER_SFS(32sc_16sc, Tarn16sc)

// What drives each form of real filters; driveForm to the templates.
#define TARN_FIRMR_DRIVER(FORM, TAG, NAME, TAIL, S, ...)                                                            \
    TARN_KERNEL void FORM##FIRMR##NAME(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst,                         \
                                       int numIters __VA_OPT__(, ) __VA_ARGS__);                                    \
    namespace tarn {                                                                                                \
    inline void driveForm(FormTag<FirForm::TAG>, TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters, \
                          [[maybe_unused]] int scaleFactor)                                                         \
    {                                                                                                               \
        FORM##FIRMR##NAME(pState, pSrc, pDst, numIters __VA_OPT__(, scaleFactor));                                  \
    }                                                                                                               \
    }
#define TARN_FIRMR_DRIVERS(NAME, TAIL, S, ...)                                   \
    TARN_FIRMR_DRIVER(dir, direct, NAME, TAIL, S __VA_OPT__(, ) __VA_ARGS__)     \
    TARN_FIRMR_DRIVER(dec, decimating, NAME, TAIL, S __VA_OPT__(, ) __VA_ARGS__) \
    TARN_FIRMR_DRIVER(idx, indexed, NAME, TAIL, S __VA_OPT__(, ) __VA_ARGS__)

TARN_FIRMR_DRIVERS(_32f, _32f, Tarn32f)
TARN_FIRMR_DRIVERS(32f_16s_Sfs, 32f_16s, Tarn16s, int scaleFactor)
TARN_FIRMR_DRIVERS(_64f, _64f, Tarn64f)
TARN_FIRMR_DRIVERS(64f_32f, 64f_32f, Tarn32f)
TARN_FIRMR_DRIVERS(64f_32s_Sfs, 64f_32s, Tarn32s, int scaleFactor)
TARN_FIRMR_DRIVERS(64f_16s_Sfs, 64f_16s, Tarn16s, int scaleFactor)

// Integer taps: a call, the delay line included.
TARN_KERNEL void ownFIRMR32s_16s_Sfs(TarnsFIRState32s_16s* pState, const Tarn16s* pSrc, Tarn16s* pDst, int numIters,
                                     int scaleFactor);
TARN_KERNEL void ownFIRMR32sc_16sc_Sfs(TarnsFIRState32sc_16sc* pState, const Tarn16sc* pSrc, Tarn16sc* pDst,
                                       int numIters, int scaleFactor);

namespace tarn {

// Outputs of integer taps from `first` on, which begins a group: by whole windows, whose number is a multiple of four,
// or by samples in front of `limit`.
void integerPhases(const TarnsFIRState32s_16s* state, const Tarn16s* data, Tarn16s* dst, Index first, Index count,
                   int scaleFactor);
void integerPhases(const TarnsFIRState32sc_16sc* state, const Tarn16sc* data, Tarn16sc* dst, Index first, Index count,
                   int scaleFactor);
void integerTail(const TarnsFIRState32s_16s* state, const Tarn16s* data, Tarn16s* dst, Index first, Index count,
                 Index limit, int scaleFactor);
void integerTail(const TarnsFIRState32sc_16sc* state, const Tarn16sc* data, Tarn16sc* dst, Index first, Index count,
                 Index limit, int scaleFactor);

} // namespace tarn
