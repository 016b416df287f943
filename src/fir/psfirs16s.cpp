// FIR filters with integer taps: states, and front ends.
#include "tarns/fir.h"

#include "fir/psfir_common.h"
#include "fir/psfir_memory.h"
#include "fir/psfir_names.h"
#include "fir/psfirs16s_taps.h"
#include "levels/fir/psfirmr.h"

#include <cmath>

using namespace tarn;

namespace {

Tarn32f tapToFloat(Tarn32s tap, int factor) { return std::ldexp(static_cast<Tarn32f>(tap), factor); }
Tarn32fc tapToFloat(Tarn32sc tap, int factor) { return {tapToFloat(tap.re, factor), tapToFloat(tap.im, factor)}; }

// -- States -----------------------------------------------------------------------------------------------------------

template <typename State>
using RegionsOf = FirIntegerRegions<typename State::Sample>;

// What does not depend on the form of the taps, and then the taps by `keepTaps`.
template <typename State, typename KeepTaps>
void build(State* state, int tapsLen, const typename State::Sample* pDlyLine, int isAllocated, KeepTaps keepTaps)
{
    RegionsOf<State>::of(tapsLen).place(state);
    state->idCtx = State::singleRateId;
    state->tapsLen = tapsLen;
    state->dlyLen = tapsLen;
    state->isAllocated = isAllocated;
    if constexpr (isComplex<typename State::Sample>) {
        state->inHeadLen = ((2 * tapsLen + 7) & ~7) + 2;
        state->tapsTableStride = 0;
    } else {
        state->inHeadLen = RegionsOf<State>::stride(tapsLen);
        state->tapsTableStride = RegionsOf<State>::stride(tapsLen);
    }
    resetDelay(state, state->pDlyLine, pDlyLine);
    keepTaps(state);
}

template <typename State, typename P, typename KeepTaps>
TarnStatus allocateState(State** ppState, const P* pTaps, int tapsLen, const typename State::Sample* pDlyLine,
                         KeepTaps keepTaps)
{
    if (const TarnStatus status = checkTaps(tapsLen, ppState, pTaps)) {
        return status;
    }
    Owned<Tarn8u[]> block = allocate<Tarn8u>(RegionsOf<State>::of(tapsLen).template total<State>());
    if (!block) {
        return tarnStsNoMemErr;
    }
    *ppState = reinterpret_cast<State*>(block.release());
    build(*ppState, tapsLen, pDlyLine, 1, keepTaps);
    return tarnStsNoErr;
}

// What a state takes of a caller's memory.
template <typename State>
long long bytesInMemory(int tapsLen)
{
    return RegionsOf<State>::of(tapsLen).template total<State>() + RegionsOf<State>::slack;
}

template <typename State>
TarnStatus stateSize(int tapsLen, int* pBufferSize)
{
    if (const TarnStatus status = checkTaps(tapsLen, pBufferSize)) {
        return status;
    }
    return storeBytes(bytesInMemory<State>(tapsLen), pBufferSize);
}

template <typename State, typename P, typename KeepTaps>
TarnStatus buildInBuffer(State** ppState, const P* pTaps, int tapsLen, const typename State::Sample* pDlyLine,
                         Tarn8u* pBuffer, KeepTaps keepTaps)
{
    if (const TarnStatus status = checkTaps(tapsLen, ppState, pTaps, pBuffer)) {
        return status;
    }
    if (const TarnStatus status = checkBytes(bytesInMemory<State>(tapsLen))) {
        return status;
    }
    *ppState = placeInBuffer<State>(pBuffer);
    build(*ppState, tapsLen, pDlyLine, 0, keepTaps);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus freeFilter(State* state)
{
    return freeState(state);
}

template <typename State, typename P, typename KeepTaps>
TarnStatus setTaps(const P* pTaps, State* state, KeepTaps keepTaps)
{
    if (const TarnStatus status = checkState(state, pTaps)) {
        return status;
    }
    keepTaps(state);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus getTaps(const State* state, typename State::Tap* pTaps, int* pTapsFactor)
{
    if (const TarnStatus status = checkState(state, pTaps, pTapsFactor)) {
        return status;
    }
    reverseConverted(state->pTaps, pTaps, state->tapsLen);
    store(pTapsFactor, state->tapsFactor);
    return tarnStsNoErr;
}

template <typename State, typename F>
TarnStatus getFloatTaps(const State* state, F* pTaps)
{
    if (const TarnStatus status = checkState(state, pTaps)) {
        return status;
    }
    for (int k = 0; k < state->tapsLen; ++k) {
        store(pTaps + k, tapToFloat(state->pTaps[state->tapsLen - 1 - k], state->tapsFactor));
    }
    return tarnStsNoErr;
}

// -- Filters ----------------------------------------------------------------------------------------------------------

TarnStatus filter(const Tarn16s* src, Tarn16s* dst, int len, TarnsFIRState32s_16s* state, int scaleFactor)
{
    ownFIRSR32s_16s_Sfs(src, dst, len, state, scaleFactor);
    return tarnStsNoErr;
}
TarnStatus filter(const Tarn16sc* src, Tarn16sc* dst, int len, TarnsFIRState32sc_16sc* state, int scaleFactor)
{
    ownFIRSR32sc_16sc_Sfs(src, dst, len, state, scaleFactor);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus runFilter(const typename State::Sample* src, typename State::Sample* dst, int len, State* state,
                     int scaleFactor)
{
    if (const TarnStatus status = checkFilter(state, len, src, dst)) {
        return status;
    }
    return isSingleRate(state) ? filter(src, dst, len, state, scaleFactor)
                               : rateFilter(state, src, dst, len, scaleFactor);
}

// Outputs overwrite samples that are still in the window: the kernel reads a copy in the scratch area.
template <typename State>
TarnStatus runInPlace(typename State::Sample* srcDst, int len, State* state, int scaleFactor)
{
    using S = typename State::Sample;
    if (const TarnStatus status = checkFilter(state, len, srcDst)) {
        return status;
    }
    if (!isSingleRate(state)) {
        return rateFilterInPlace(state, srcDst, len, scaleFactor);
    }
    S* const scratch = reinterpret_cast<S*>(state->pTmp);
    return forEachPart(len, RegionsOf<State>::scratchBytes / static_cast<int>(sizeof(S)), [=](int begin, int count) {
        copyElements(srcDst + begin, scratch, count);
        return filter(scratch, srcDst + begin, count, state, scaleFactor);
    });
}

} // namespace

TarnStatus ownsFIRInitAlloc16s_Q15(TarnsFIRState32s_16s** ppState, const Tarn16s* pTaps, int tapsLen,
                                   const Tarn16s* pDlyLine)
{
    return allocateState(ppState, pTaps, tapsLen, pDlyLine, [=](TarnsFIRState32s_16s* state) {
        reverseConverted(pTaps, state->pTaps, tapsLen);
        state->tapsFactor = -15;
        writeTable(state);
    });
}

void ownsFIRFree16s_Q15(TarnsFIRState32s_16s* pState) { freeFilter(pState); }

// Taps P with a factor, or floats.
#define TARN_DEFINE_FIR_INTEGER_STATE(TAIL, T, S)                                                                  \
    TarnStatus tarnsFIRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, int tapsFactor, \
                                       const S* pDlyLine)                                                          \
    {                                                                                                              \
        return allocateState(ppState, pTaps, tapsLen, pDlyLine,                                                    \
                             [=](auto* state) { storeTaps(state, pTaps, tapsFactor); });                           \
    }                                                                                                              \
    TarnStatus tarnsFIRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, int tapsFactor,      \
                                  const S* pDlyLine, Tarn8u* pBuffer)                                              \
    {                                                                                                              \
        return buildInBuffer(ppState, pTaps, tapsLen, pDlyLine, pBuffer,                                           \
                             [=](auto* state) { storeTaps(state, pTaps, tapsFactor); });                           \
    }                                                                                                              \
    TarnStatus tarnsFIRSetTaps##TAIL(const T* pTaps, TarnsFIRState##TAIL* pState, int tapsFactor)                  \
    {                                                                                                              \
        return setTaps(pTaps, pState, [=](auto* state) { storeTaps(state, pTaps, tapsFactor); });                  \
    }                                                                                                              \
    TarnStatus tarnsFIRGetTaps##TAIL(const TarnsFIRState##TAIL* pState, T* pTaps, int* pTapsFactor)                \
    {                                                                                                              \
        return getTaps(pState, pTaps, pTapsFactor);                                                                \
    }

#define TARN_DEFINE_FIR_FLOAT_TAPS_STATE(TAIL, T, S)                                                                  \
    TarnStatus tarnsFIRInitAlloc##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, const S* pDlyLine) \
    {                                                                                                                 \
        return allocateState(ppState, pTaps, tapsLen, pDlyLine, [=](auto* state) { storeFloatTaps(state, pTaps); });  \
    }                                                                                                                 \
    TarnStatus tarnsFIRInit##TAIL(TarnsFIRState##TAIL** ppState, const T* pTaps, int tapsLen, const S* pDlyLine,      \
                                  Tarn8u* pBuffer)                                                                    \
    {                                                                                                                 \
        return buildInBuffer(ppState, pTaps, tapsLen, pDlyLine, pBuffer,                                              \
                             [=](auto* state) { storeFloatTaps(state, pTaps); });                                     \
    }                                                                                                                 \
    TarnStatus tarnsFIRSetTaps##TAIL(const T* pTaps, TarnsFIRState##TAIL* pState)                                     \
    {                                                                                                                 \
        return setTaps(pTaps, pState, [=](auto* state) { storeFloatTaps(state, pTaps); });                            \
    }                                                                                                                 \
    TarnStatus tarnsFIRGetTaps##TAIL(const TarnsFIRState##TAIL* pState, T* pTaps)                                     \
    {                                                                                                                 \
        return getFloatTaps(pState, pTaps);                                                                           \
    }

#define TARN_DEFINE_FIR_INTEGER_FILTER(TAIL, S)                          \
    TarnStatus tarnsFIRGetStateSize##TAIL(int tapsLen, int* pBufferSize) \
    {                                                                    \
        return stateSize<TarnsFIRState##TAIL>(tapsLen, pBufferSize);     \
    }                                                                    \
    TARN_DEFINE_FIR_DELAY(TAIL, S)                                       \
    TARN_DEFINE_FIR_CALLS_SFS(TAIL, S)

TARN_DEFINE_FIR_INTEGER_STATE(32s_16s, Tarn32s, Tarn16s)
TARN_DEFINE_FIR_INTEGER_STATE(32sc_16sc, Tarn32sc, Tarn16sc)
TARN_DEFINE_FIR_FLOAT_TAPS_STATE(32s_16s32f, Tarn32f, Tarn16s)
TARN_DEFINE_FIR_FLOAT_TAPS_STATE(32sc_16sc32fc, Tarn32fc, Tarn16sc)

TARN_DEFINE_FIR_INTEGER_FILTER(32s_16s, Tarn16s)
TARN_DEFINE_FIR_INTEGER_FILTER(32sc_16sc, Tarn16sc)
TARN_DEFINE_FIR_INTEGER_FILTER(32s_16s32f, Tarn16s)
TARN_DEFINE_FIR_INTEGER_FILTER(32sc_16sc32fc, Tarn16sc)
