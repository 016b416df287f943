// Multi-rate FIR filters with integer taps: states, and front ends.
#include "tarns/fir.h"
#include "tarns/firmr.h"

#include "fir/psfirmr_checks.h"
#include "fir/psfirmr_filter.h"
#include "fir/psfirmr_names.h"
#include "fir/psfirs16s_taps.h"

using namespace tarn;

namespace {

// -- States -----------------------------------------------------------------------------------------------------------

// What a state is going to have.
template <typename State>
struct IntegerPlan {
    using S = typename State::Sample;
    using Regions = FirIntegerRegions<S>;

    FirRates rates;

    constexpr FirHead head() const { return FirHead::ofIntegers(rates); }
    constexpr long long rowBytes() const
    {
        return tapsOfRow(rates.history()) * static_cast<long long>(sizeof(S)) * (isComplex<S> ? 2 : 1);
    }
    constexpr Regions regions() const
    {
        // A row is multiplied whole: behind the last sample lie as many as it is longer than the history.
        constexpr int beyond = 8;
        const long long rows = rates.up == 1 ? 1 : outputsOfGroup * rates.up;
        return {roundedUp(rates.taps * static_cast<long long>(sizeof(typename State::Tap))),
                roundedUp((rates.history() + head().in + beyond) * static_cast<long long>(sizeof(S))),
                roundedUp((outputsOfGroup * rates.up + 1) * static_cast<long long>(sizeof(Tarn32s))),
                roundedUp(rows * rowBytes()), 0};
    }
    constexpr long long bytes() const { return regions().template total<State>() + Regions::slack; }

    template <typename KeepTaps>
    void build(State* state, const S* pDlyLine, int isAllocated, KeepTaps keepTaps) const
    {
        const FirHead own = head();
        regions().place(state);
        state->idCtx = State::multiRateId;
        state->tapsLen = static_cast<int>(rates.taps);
        state->upFactor = static_cast<int>(rates.up);
        state->upPhase = static_cast<int>(rates.upPhase);
        state->downFactor = static_cast<int>(rates.down);
        state->downPhase = static_cast<int>(rates.downPhase);
        state->inHeadLen = static_cast<int>(own.in);
        state->outHeadLen = static_cast<int>(own.out);
        state->tapsTableStride = static_cast<int>(rowBytes());
        state->dlyLen = static_cast<int>(rates.history());
        state->isAllocated = isAllocated;
        std::memset(static_cast<void*>(state->pDlyLine), 0, static_cast<std::size_t>(regions().delay));
        resetDelay(state, state->pDlyLine, pDlyLine);
        keepTaps(state);
    }
};

template <typename State, typename P, typename KeepTaps>
TarnStatus allocateRated(State** ppState, const P* pTaps, const FirRates& rates, const typename State::Sample* pDlyLine,
                         KeepTaps keepTaps)
{
    if (const TarnStatus status = checkRates(rates, ppState, pTaps)) {
        return status;
    }
    const IntegerPlan<State> plan{rates};
    Owned<Tarn8u[]> block = allocate<Tarn8u>(plan.bytes());
    *ppState = reinterpret_cast<State*>(block.get());
    if (!block) {
        return tarnStsNoMemErr;
    }
    plan.build(*ppState, pDlyLine, 1, keepTaps);
    static_cast<void>(block.release());
    return tarnStsNoErr;
}

template <typename State, typename P, typename KeepTaps>
TarnStatus buildRatedInBuffer(State** ppState, const P* pTaps, const FirRates& rates,
                              const typename State::Sample* pDlyLine, Tarn8u* pBuffer, KeepTaps keepTaps)
{
    if (const TarnStatus status = checkRates(rates, ppState, pTaps, pBuffer)) {
        return status;
    }
    const IntegerPlan<State> plan{rates};
    if (const TarnStatus status = checkBytes(plan.bytes())) {
        return status;
    }
    State* const state = placeInBuffer<State>(pBuffer);
    plan.build(state, pDlyLine, 0, keepTaps);
    *ppState = state;
    return tarnStsNoErr;
}

// With room for a set of taps, where those are given as floats.
template <typename State>
TarnStatus ratedSize(int tapsLen, int upFactor, int downFactor, int* pBufferSize, long long tapsBytes = 0)
{
    if (const TarnStatus status = checkFactors(tapsLen, upFactor, downFactor, pBufferSize)) {
        return status;
    }
    return storeBytes(IntegerPlan<State>{{tapsLen, upFactor, 0, downFactor, 0}}.bytes() + tapsBytes, pBufferSize);
}
constexpr long long convertedTapsBytes(int tapsLen) { return 4LL * tapsLen + 16; }

// -- Filters ----------------------------------------------------------------------------------------------------------

// Sums are exact, so that nothing tells which of the kernels an output came from.
template <typename State>
struct IntegerKernels {
    using S = typename State::Sample;

    static constexpr bool leavesOneBefore = true;

    const State* state;
    int scaleFactor;

    void main(const S* data, S* dst, Index first, Index count) const
    {
        integerPhases(state, data, dst, first, count, scaleFactor);
    }
    void tail(const S* data, S* dst, Index first, Index count, Index limit) const
    {
        integerTail(state, data, dst, first, count, limit, scaleFactor);
    }
    Index sharedAmong(int /*numIters*/, Index count) const { return count; }
    void share(int /*numIters*/, const S* data, S* dst, Index first, Index count) const
    {
        main(data, dst, first, count);
    }
};

} // namespace

void ownFIRMR32s_16s_Sfs(TarnsFIRState32s_16s* pState, const Tarn16s* pSrc, Tarn16s* pDst, int numIters,
                         int scaleFactor)
{
    driveRates(IntegerKernels<TarnsFIRState32s_16s>{pState, scaleFactor}, pState, pSrc, pDst, numIters);
}

void ownFIRMR32sc_16sc_Sfs(TarnsFIRState32sc_16sc* pState, const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                           int scaleFactor)
{
    driveRates(IntegerKernels<TarnsFIRState32sc_16sc>{pState, scaleFactor}, pState, pSrc, pDst, numIters);
}

#define TARN_DEFINE_FIRMR_INTEGER_STATE(TAIL, T, S)                                                                   \
    TarnStatus tarnsFIRMRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, int tapsFactor,  \
                                         int upFactor, int upPhase, int downFactor, int downPhase, const S* pDlyLine) \
    {                                                                                                                 \
        return allocateRated(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine,                                            \
                             [=](auto* state) { storeTaps(state, pTaps, tapsFactor); });                              \
    }                                                                                                                 \
    TarnStatus tarnsFIRMRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, int tapsFactor,       \
                                    int upFactor, int upPhase, int downFactor, int downPhase, const S* pDlyLine,      \
                                    Tarn8u* pBuffer)                                                                  \
    {                                                                                                                 \
        return buildRatedInBuffer(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine, pBuffer,                              \
                                  [=](auto* state) { storeTaps(state, pTaps, tapsFactor); });                         \
    }                                                                                                                 \
    TarnStatus tarnsFIRMRGetStateSize##TAIL(int tapsLen, int upFactor, int downFactor, int* pBufferSize)              \
    {                                                                                                                 \
        return ratedSize<TarnsFIRState##TAIL>(tapsLen, upFactor, downFactor, pBufferSize);                            \
    }                                                                                                                 \
    TarnStatus tarnsFIRMR##TAIL##_Sfs(TarnsFIRState##TAIL* pState, const S* pSrc, S* pDst, int numIters,              \
                                      int scaleFactor)                                                                \
    {                                                                                                                 \
        ownFIRMR##TAIL##_Sfs(pState, pSrc, pDst, numIters, scaleFactor);                                              \
        return tarnStsNoErr;                                                                                          \
    }                                                                                                                 \
    TarnStatus tarnsFIRMR##TAIL##_ISfs(TarnsFIRState##TAIL* pState, S* pSrcDst, int numIters, int scaleFactor)        \
    {                                                                                                                 \
        return filterCopy(pState, pSrcDst, numIters, scaleFactor);                                                    \
    }

#define TARN_DEFINE_FIRMR_FLOAT_TAPS_STATE(TAIL, T, S)                                                    \
    TarnStatus tarnsFIRMRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, TARN_FIRMR_RATES, \
                                         const S* pDlyLine)                                               \
    {                                                                                                     \
        return allocateRated(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine,                                \
                             [=](auto* state) { storeFloatTaps(state, pTaps); });                         \
    }                                                                                                     \
    TarnStatus tarnsFIRMRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, TARN_FIRMR_RATES,      \
                                    const S* pDlyLine, Tarn8u* pBuffer)                                   \
    {                                                                                                     \
        return buildRatedInBuffer(ppState, pTaps, TARN_FIRMR_GIVEN(), pDlyLine, pBuffer,                  \
                                  [=](auto* state) { storeFloatTaps(state, pTaps); });                    \
    }                                                                                                     \
    TarnStatus tarnsFIRMRGetStateSize##TAIL(int tapsLen, int upFactor, int downFactor, int* pBufferSize)  \
    {                                                                                                     \
        return ratedSize<TarnsFIRState##TAIL>(tapsLen, upFactor, downFactor, pBufferSize,                 \
                                              convertedTapsBytes(tapsLen));                               \
    }

TARN_DEFINE_FIRMR_INTEGER_STATE(32s_16s, Tarn32s, Tarn16s)
TARN_DEFINE_FIRMR_INTEGER_STATE(32sc_16sc, Tarn32sc, Tarn16sc)
TARN_DEFINE_FIRMR_FLOAT_TAPS_STATE(32s_16s32f, Tarn32f, Tarn16s)
TARN_DEFINE_FIRMR_FLOAT_TAPS_STATE(32sc_16sc32fc, Tarn32fc, Tarn16sc)
