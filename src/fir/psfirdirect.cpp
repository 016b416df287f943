// Front ends of direct FIR calls.
#include "tarns/fir.h"
#include "tarns/firdirect.h"

#include "fir/psfirmr_checks.h"
#include "frame/object.h"
#include "levels/fir/psfir.h"
#include "levels/fir/psfirdirect.h"

using namespace tarn;

namespace {

// -- Checks -----------------------------------------------------------------------------------------------------------

template <typename... P>
bool hasNull(const P*... pointers)
{
    return (!pointers || ...);
}

// What follows the checks of the samples.
template <typename T, typename S>
TarnStatus checkFilter(const T* pTaps, int tapsLen, const S* pDlyLine, const int* pDlyLineIndex)
{
    if (const TarnStatus status = checkTaps(tapsLen, pTaps)) {
        return status;
    }
    return hasNull(pDlyLine, pDlyLineIndex) ? tarnStsNullPtrErr : tarnStsNoErr;
}

// With Q15 taps all pointers come first, and the index is checked as well.
TarnStatus checkFilter(const Tarn16s* pTaps, int tapsLen, const Tarn16s* pDlyLine, const int* pDlyLineIndex)
{
    if (const TarnStatus status = checkTaps(tapsLen, pTaps, pDlyLine, pDlyLineIndex)) {
        return status;
    }
    const int index = loadElement(pDlyLineIndex);
    return index < 0 || index >= tapsLen ? tarnStsDlyLineIndexErr : tarnStsNoErr;
}

// -- One rate ---------------------------------------------------------------------------------------------------------

template <typename T, typename S>
TarnStatus filterOne(const S* src, S* dst, const DirectTaps<T>& filter, S* pDlyLine, int* pDlyLineIndex)
{
    if (hasNull(src, dst)) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkFilter(filter.taps, filter.tapsLen, pDlyLine, pDlyLineIndex)) {
        return status;
    }
    filterDirectly(filter, src, dst, 1, pDlyLine, pDlyLineIndex);
    return tarnStsNoErr;
}

template <typename T, typename S>
TarnStatus runBlock(const S* src, S* dst, int numIters, const DirectTaps<T>& filter, S* pDlyLine, int* pDlyLineIndex)
{
    filterDirectly(filter, src, dst, numIters, pDlyLine, pDlyLineIndex);
    return tarnStsNoErr;
}

// By a state of integer taps, for its kernels.
TarnStatus runBlock(const Tarn16s* src, Tarn16s* dst, int numIters, const DirectTaps<Tarn16s>& filter,
                    Tarn16s* pDlyLine, int* pDlyLineIndex)
{
    TarnsFIRState32s_16s* state = nullptr;
    if (const TarnStatus status =
            ownsFIRInitAlloc16s_Q15(&state, filter.taps, filter.tapsLen, pDlyLine + loadElement(pDlyLineIndex))) {
        return status;
    }
    const TarnStatus status = src == dst ? tarnsFIR32s_16s_ISfs(dst, numIters, state, filter.scaleFactor)
                                         : tarnsFIR32s_16s_Sfs(src, dst, numIters, state, filter.scaleFactor);
    store(pDlyLineIndex, 0);
    tarnsFIRGetDlyLine32s_16s(state, pDlyLine);
    ownsFIRFree16s_Q15(state);
    return status;
}

template <typename T, typename S>
TarnStatus filterBlock(const S* src, S* dst, int numIters, const DirectTaps<T>& filter, S* pDlyLine, int* pDlyLineIndex)
{
    if (const TarnStatus status = check(numIters, src, dst)) {
        return status;
    }
    if (const TarnStatus status = checkFilter(filter.taps, filter.tapsLen, pDlyLine, pDlyLineIndex)) {
        return status;
    }
    return runBlock(src, dst, numIters, filter, pDlyLine, pDlyLineIndex);
}

// -- Two rates --------------------------------------------------------------------------------------------------------

template <typename T, typename S>
TarnStatus checkRatesCall(const S* src, const S* dst, int numIters, const DirectTaps<T>& filter,
                          const DirectRates& rates, const S* pDlyLine)
{
    if (const TarnStatus status = check(numIters, src, dst)) {
        return status;
    }
    const FirRates given{filter.tapsLen, rates.up, rates.upPhase, rates.down, rates.downPhase};
    if (const TarnStatus status = checkRates(given, filter.taps)) {
        return status;
    }
    return pDlyLine == nullptr ? tarnStsNullPtrErr : tarnStsNoErr;
}

template <typename T, typename S>
TarnStatus filterRates(const S* src, S* dst, int numIters, const DirectTaps<T>& filter, const DirectRates& rates,
                       S* pDlyLine)
{
    if (const TarnStatus status = checkRatesCall(src, dst, numIters, filter, rates, pDlyLine)) {
        return status;
    }
    changeRate(filter, rates, src, dst, numIters, pDlyLine);
    return tarnStsNoErr;
}

template <typename T, typename S>
TarnStatus filterRatesInPlace(S* srcDst, int numIters, const DirectTaps<T>& filter, const DirectRates& rates,
                              S* pDlyLine)
{
    if (const TarnStatus status = checkRatesCall(srcDst, srcDst, numIters, filter, rates, pDlyLine)) {
        return status;
    }
    const long long count = static_cast<long long>(rates.down) * numIters;
    const Owned<S[]> copied = allocate<S>(count);
    if (!copied) {
        return tarnStsNoMemErr;
    }
    copyElements<S>(srcDst, copied.get(), static_cast<int>(count));
    changeRate(filter, rates, copied.get(), srcDst, numIters, pDlyLine);
    return tarnStsNoErr;
}

} // namespace

// TAPS and SAMPLES are the words around `Direct`, SFS and ISFS how the names end; what follows are the arguments that
// not all have. FACTORS are the factors of taps and of results.
#define TARN_DEFINE_FIR_DIRECT(TAPS, SAMPLES, SFS, ISFS, T, S, FACTOR, SCALE, FACTORS)                                 \
    TarnStatus tarnsFIROne##TAPS##_Direct_##SAMPLES##SFS(S src, S* pDstVal, const T* pTaps, int tapsLen FACTOR(),      \
                                                         S* pDlyLine, int* pDlyLineIndex SCALE())                      \
    {                                                                                                                  \
        return filterOne(&src, pDstVal, DirectTaps<T>{pTaps, tapsLen, FACTORS()}, pDlyLine, pDlyLineIndex);            \
    }                                                                                                                  \
    TarnStatus tarnsFIROne##TAPS##_Direct_##SAMPLES##ISFS(S* pSrcDstVal, const T* pTaps, int tapsLen FACTOR(),         \
                                                          S* pDlyLine, int* pDlyLineIndex SCALE())                     \
    {                                                                                                                  \
        return filterOne(pSrcDstVal, pSrcDstVal, DirectTaps<T>{pTaps, tapsLen, FACTORS()}, pDlyLine, pDlyLineIndex);   \
    }                                                                                                                  \
    TarnStatus tarnsFIR##TAPS##_Direct_##SAMPLES##SFS(const S* pSrc, S* pDst, int numIters, const T* pTaps,            \
                                                      int tapsLen FACTOR(), S* pDlyLine, int* pDlyLineIndex SCALE())   \
    {                                                                                                                  \
        return filterBlock(pSrc, pDst, numIters, DirectTaps<T>{pTaps, tapsLen, FACTORS()}, pDlyLine, pDlyLineIndex);   \
    }                                                                                                                  \
    TarnStatus tarnsFIR##TAPS##_Direct_##SAMPLES##ISFS(S* pSrcDst, int numIters, const T* pTaps, int tapsLen FACTOR(), \
                                                       S* pDlyLine, int* pDlyLineIndex SCALE())                        \
    {                                                                                                                  \
        return filterBlock(pSrcDst, pSrcDst, numIters, DirectTaps<T>{pTaps, tapsLen, FACTORS()}, pDlyLine,             \
                           pDlyLineIndex);                                                                             \
    }                                                                                                                  \
    TarnStatus tarnsFIRMR##TAPS##_Direct_##SAMPLES##SFS(const S* pSrc, S* pDst, int numIters, const T* pTaps,          \
                                                        int tapsLen FACTOR(), int upFactor, int upPhase,               \
                                                        int downFactor, int downPhase, S* pDlyLine SCALE())            \
    {                                                                                                                  \
        return filterRates(pSrc, pDst, numIters, DirectTaps<T>{pTaps, tapsLen, FACTORS()},                             \
                           DirectRates{upFactor, upPhase, downFactor, downPhase}, pDlyLine);                           \
    }                                                                                                                  \
    TarnStatus tarnsFIRMR##TAPS##_Direct_##SAMPLES##ISFS(S* pSrcDst, int numIters, const T* pTaps,                     \
                                                         int tapsLen FACTOR(), int upFactor, int upPhase,              \
                                                         int downFactor, int downPhase, S* pDlyLine SCALE())           \
    {                                                                                                                  \
        return filterRatesInPlace(pSrcDst, numIters, DirectTaps<T>{pTaps, tapsLen, FACTORS()},                         \
                                  DirectRates{upFactor, upPhase, downFactor, downPhase}, pDlyLine);                    \
    }

#define TARN_FIR_NO_ARGUMENT()
#define TARN_FIR_TAPS_FACTOR() , int tapsFactor
#define TARN_FIR_SCALE_FACTOR() , int scaleFactor
#define TARN_FIR_NO_FACTORS() 0, 0
#define TARN_FIR_SCALED() 0, scaleFactor
#define TARN_FIR_BOTH_FACTORS() tapsFactor, scaleFactor
#define TARN_FIR_Q15_FACTORS() -15, scaleFactor

#define TARN_FIR_DIRECT_UNSCALED(TAPS, SAMPLES, T, S) \
    TARN_DEFINE_FIR_DIRECT(TAPS, SAMPLES, , _I, T, S, TARN_FIR_NO_ARGUMENT, TARN_FIR_NO_ARGUMENT, TARN_FIR_NO_FACTORS)
#define TARN_FIR_DIRECT_SCALED(TAPS, SAMPLES, T, S)                                                       \
    TARN_DEFINE_FIR_DIRECT(TAPS, SAMPLES, _Sfs, _ISfs, T, S, TARN_FIR_NO_ARGUMENT, TARN_FIR_SCALE_FACTOR, \
                           TARN_FIR_SCALED)
#define TARN_FIR_DIRECT_INTEGER(TAPS, SAMPLES, T, S)                                                      \
    TARN_DEFINE_FIR_DIRECT(TAPS, SAMPLES, _Sfs, _ISfs, T, S, TARN_FIR_TAPS_FACTOR, TARN_FIR_SCALE_FACTOR, \
                           TARN_FIR_BOTH_FACTORS)

TARN_FIR_DIRECT_FAMILIES(TARN_FIR_DIRECT_UNSCALED, TARN_FIR_DIRECT_SCALED, TARN_FIR_DIRECT_INTEGER)
TARN_DEFINE_FIR_DIRECT(, 16s, _Sfs, _ISfs, Tarn16s, Tarn16s, TARN_FIR_NO_ARGUMENT, TARN_FIR_SCALE_FACTOR,
                       TARN_FIR_Q15_FACTORS)
