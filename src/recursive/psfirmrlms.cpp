// Adaptive filters in fixed point, whose steps are calls of their own: a sample enters, an output is computed, the taps
// are changed.
#include "levels/recursive/psfirmrlms.h"
#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/delay_line.h"

using namespace tarn;

namespace {

// -- States -----------------------------------------------------------------------------------------------------------

template <typename State>
void fillTaps(State* state, const typename State::Tap* pTaps)
{
    fillDelay(pTaps, state->pTaps, state->tapsLen);
}

template <typename State>
void fillLine(State* state, const typename State::Sample* pDlyLine, int dlyLineIndex)
{
    const int len = state->dlyLen;
    state->dlyLineIndex = dlyLineIndex;
    if (pDlyLine == nullptr) {
        zeroFill(state->pDlyLine, 2 * len);
    } else {
        move(pDlyLine, state->pDlyLine, len);
        copy<typename State::Sample>(state->pDlyLine, state->pDlyLine + len, len);
    }
}

template <typename State>
TarnStatus allocateState(State** ppState, const typename State::Tap* pTaps, int tapsLen,
                         const typename State::Sample* pDlyLine, int dlyLineIndex, int tapStep, int updateDly, int mu)
{
    if (ppState == nullptr) {
        return tarnStsNullPtrErr;
    }
    const long long dlyLen = updateDly + static_cast<long long>(tapsLen) * tapStep;
    if (tapsLen < 1 || tapStep < 1 || updateDly < 0 || dlyLineIndex < 0 || dlyLineIndex >= dlyLen) {
        return tarnStsSizeErr;
    }
    auto taps = allocate<typename State::Tap>(tapsLen);
    auto line = allocate<typename State::Sample>(2 * dlyLen);
    State* const state = taps && line ? createObject<State>() : nullptr;
    if (state == nullptr) {
        return tarnStsNoMemErr;
    }
    state->pTaps = taps.release();
    state->pDlyLine = line.release();
    state->tapsLen = tapsLen;
    state->tapStep = tapStep;
    state->dlyLen = static_cast<int>(dlyLen);
    state->updateDly = updateDly;
    state->mu = mu;
    fillTaps(state, pTaps);
    fillLine(state, pDlyLine, dlyLineIndex);
    store(ppState, state);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus freeRates(State* state)
{
    if (state == nullptr) {
        return tarnStsNoErr;
    }
    if (const TarnStatus status = checkObject(state)) {
        return status;
    }
    tarnsFree(state->pTaps);
    tarnsFree(state->pDlyLine);
    releaseObject(state);
    return tarnStsNoErr;
}

// -- Places in the line -----------------------------------------------------------------------------------------------

// The window that the taps are changed by begins at the oldest sample that a tap meets; the one that is filtered,
// `updateDly` samples later.
template <typename State>
const typename State::Sample* updateWindow(const State* state)
{
    return state->pDlyLine + placeInRing(state->dlyLineIndex, state->dlyLen) + state->tapStep - 1;
}
template <typename State>
const typename State::Sample* outputWindow(const State* state)
{
    return updateWindow(state) + state->updateDly;
}

template <typename State>
void putSample(State* state, typename State::Sample val)
{
    int begin = placeInRing(state->dlyLineIndex, state->dlyLen);
    enterSample(state->pDlyLine, begin, state->dlyLen, val);
    state->dlyLineIndex = begin;
}

template <typename State>
TarnStatus getValue(const State* state, typename State::Sample* pDlyVal, int index)
{
    if (const TarnStatus status = checkObject(state, pDlyVal)) {
        return status;
    }
    if (index < 0 || index > state->dlyLen) {
        return tarnStsBadArgErr;
    }
    // Behind its end the doubled line goes on as before.
    const long long place = placeInRing(state->dlyLineIndex, state->dlyLen) + static_cast<long long>(state->updateDly) +
                            state->tapStep + index - 1;
    store(pDlyVal, state->pDlyLine[place % state->dlyLen]);
    return tarnStsNoErr;
}

// -- Steps of the taps ------------------------------------------------------------------------------------------------

constexpr int fractionBits = 15; // of mu

Tarn32s timesMu(Tarn32s err, int mu) { return wrappedProduct(err, mu); }
Tarn32sc timesMu(Tarn32sc err, int mu) { return {timesMu(err.re, mu), timesMu(err.im, mu)}; }

Tarn32s rounded(Tarn32s v) { return add(v, Tarn32s{1} << (fractionBits - 1)) >> fractionBits; }
Tarn32sc rounded(Tarn32sc v) { return {rounded(v.re), rounded(v.im)}; }

Tarn32s shifted(Tarn32s v, int t) { return v >> t; }
Tarn32sc shifted(Tarn32sc v, int t) { return {v.re >> t, v.im >> t}; }

// Half the magnitude.
Tarn32s halfSize(Tarn32s v) { return (v == lowest<Tarn32s> ? highest<Tarn32s> : v < 0 ? -v : v) >> 1; }
Tarn32s halfSize(Tarn32sc v) { return std::max(halfSize(v.re), halfSize(v.im)); }

// The least shift, of at most all bits of the fraction, that leaves no more than 2^muShift of half the magnitude.
int shiftToFit(Tarn32s half, int muShift)
{
    int t = 0;
    while (t < fractionBits && (half >> t) > (1LL << std::min(muShift, 31))) {
        ++t;
    }
    return t;
}

template <typename State, typename E>
void updateTaps(const State* state, E err)
{
    const E v = timesMu(err, state->mu);
    E g = rounded(v);
    int shift = 0;
    if (state->muShift >= 1) {
        const int t = shiftToFit(halfSize(v), state->muShift);
        g = shifted(v, t);
        shift = fractionBits - t;
    }
    adaptToWindow(state->pTaps, updateWindow(state), state->tapsLen, state->tapStep, g, shift);
}

template <typename State>
void filterLine(const State* state, typename State::Tap* pDstVal)
{
    filterWindow(state->pTaps, outputWindow(state), state->tapsLen, state->tapStep, pDstVal);
}

} // namespace

#define TARN_DEFINE_LMS_RATES(TAIL, T, S)                                                                             \
    TarnStatus tarnsFIRLMSMRInitAlloc##TAIL(TarnsFIRLMSMRState##TAIL** ppState, const T* pTaps, int tapsLen,          \
                                            const S* pDlyLine, int dlyLineIndex, int tapStep, int updateDly, int mu)  \
    {                                                                                                                 \
        return allocateState(ppState, pTaps, tapsLen, pDlyLine, dlyLineIndex, tapStep, updateDly, mu);                \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRFree##TAIL(TarnsFIRLMSMRState##TAIL* pState) { return freeRates(pState); }                \
    TarnStatus tarnsFIRLMSMRSetTaps##TAIL(TarnsFIRLMSMRState##TAIL* pState, const T* pTaps)                           \
    {                                                                                                                 \
        return withState([=] { fillTaps(pState, pTaps); }, pState);                                                   \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRGetTaps##TAIL(const TarnsFIRLMSMRState##TAIL* pState, T* pTaps)                           \
    {                                                                                                                 \
        return withState([=] { reverseConverted(pState->pTaps, pTaps, pState->tapsLen); }, pState, pTaps);            \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRGetTapsPointer##TAIL(TarnsFIRLMSMRState##TAIL* pState, T** ppTaps)                        \
    {                                                                                                                 \
        if (pState == nullptr || ppTaps == nullptr) {                                                                 \
            return tarnStsNullPtrErr;                                                                                 \
        }                                                                                                             \
        store(ppTaps, pState->pTaps);                                                                                 \
        return tarnStsNoErr;                                                                                          \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRSetDlyLine##TAIL(TarnsFIRLMSMRState##TAIL* pState, const S* pDlyLine, int dlyLineIndex)   \
    {                                                                                                                 \
        return withState([=] { fillLine(pState, pDlyLine, dlyLineIndex); }, pState);                                  \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRGetDlyLine##TAIL(const TarnsFIRLMSMRState##TAIL* pState, S* pDlyLine, int* pDlyLineIndex) \
    {                                                                                                                 \
        return withState(                                                                                             \
            [=] {                                                                                                     \
                copy<S>(pState->pDlyLine, pDlyLine, pState->dlyLen);                                                  \
                store(pDlyLineIndex, pState->dlyLineIndex);                                                           \
            },                                                                                                        \
            pState, pDlyLine, pDlyLineIndex);                                                                         \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRGetDlyVal##TAIL(const TarnsFIRLMSMRState##TAIL* pState, S* pDlyVal, int index)            \
    {                                                                                                                 \
        return getValue(pState, pDlyVal, index);                                                                      \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRSetMu##TAIL(TarnsFIRLMSMRState##TAIL* pState, int mu)                                     \
    {                                                                                                                 \
        return withState([=] { pState->mu = mu; }, pState);                                                           \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRPutVal##TAIL(S val, TarnsFIRLMSMRState##TAIL* pState)                                     \
    {                                                                                                                 \
        return withState([=] { putSample(pState, val); }, pState);                                                    \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMROne##TAIL(T* pDstVal, TarnsFIRLMSMRState##TAIL* pState)                                   \
    {                                                                                                                 \
        return withState([=] { filterLine(pState, pDstVal); }, pState, pDstVal);                                      \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMROneVal##TAIL(S val, T* pDstVal, TarnsFIRLMSMRState##TAIL* pState)                         \
    {                                                                                                                 \
        return withState(                                                                                             \
            [=] {                                                                                                     \
                putSample(pState, val);                                                                               \
                filterLine(pState, pDstVal);                                                                          \
            },                                                                                                        \
            pState, pDstVal);                                                                                         \
    }                                                                                                                 \
    TarnStatus tarnsFIRLMSMRUpdateTaps##TAIL(T errVal, TarnsFIRLMSMRState##TAIL* pState)                              \
    {                                                                                                                 \
        return withState([=] { updateTaps(pState, errVal); }, pState);                                                \
    }

TARN_DEFINE_LMS_RATES(32s_16s, Tarn32s, Tarn16s)
TARN_DEFINE_LMS_RATES(32sc_16sc, Tarn32sc, Tarn16sc)
