// What FIR states of all kinds share: checks, and the delay line as a caller sees it.
#pragma once

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/delay_line.h"
#include "frame/state.h"
#include "levels/fir/psfir.h"

namespace tarn {

template <typename State>
inline bool isSingleRate(const State* state)
{
    return state->idCtx == State::singleRateId;
}

// The checks of a call that makes something of taps.
template <typename... P>
inline TarnStatus checkTaps(int tapsLen, const P*... pointers)
{
    if ((!pointers || ...)) {
        return tarnStsNullPtrErr;
    }
    return tapsLen < 1 ? tarnStsFIRLenErr : tarnStsNoErr;
}

template <typename T>
inline void zeroElements(T* dst, int len)
{
    zeroFill(dst, len);
}

template <typename T>
inline void copyElements(const T* src, T* dst, int len)
{
    tarn::copy(src, dst, len);
}

// Where source and destination may overlap.
template <typename T>
inline void moveElements(const T* src, T* dst, int len)
{
    tarn::move(src, dst, len);
}

// -- The delay line: a caller's is newest first, a state's oldest first -----------------------------------------------

// How many samples a caller sees.
template <typename State>
inline int visibleDelay(const State* state)
{
    if constexpr (requires { state->pFFTSpec; }) {
        return state->dlyLen;
    } else {
        return isSingleRate(state) ? state->tapsLen : state->dlyLen;
    }
}

template <typename State, typename E>
inline void resetDelay(State* state, E* line, const typename State::Sample* pDlyLine)
{
    state->dlyLineIdx = 0;
    fillDelay(pDlyLine, line, visibleDelay(state));
}

// Calls `run` with the delay buffer as what it holds: multi-rate states keep samples as they are.
template <typename State, typename Run>
inline void withDelayLine(State* state, Run run)
{
    using Sample = typename std::remove_const_t<State>::Sample;
    if (isSingleRate(state)) {
        run(state->pDlyLine);
    } else {
        run(reinterpret_cast<Sample*>(state->pDlyLine));
    }
}

template <typename State>
inline TarnStatus setDelay(State* state, const typename State::Sample* pDlyLine)
{
    if (const TarnStatus status = checkState(state)) {
        return status;
    }
    withDelayLine(state, [=](auto* line) { resetDelay(state, line, pDlyLine); });
    return tarnStsNoErr;
}

template <typename State>
inline TarnStatus getDelay(const State* state, typename State::Sample* pDlyLine)
{
    if (const TarnStatus status = checkState(state, pDlyLine)) {
        return status;
    }
    withDelayLine(state,
                  [=](const auto* line) { reverseConverted(line + state->dlyLineIdx, pDlyLine, visibleDelay(state)); });
    return tarnStsNoErr;
}

// -- Calls ------------------------------------------------------------------------------------------------------------

template <typename State, typename... P>
inline TarnStatus checkFilter(const State* state, int numIters, const P*... pointers)
{
    if (const TarnStatus status = check(numIters, pointers..., state)) {
        return status;
    }
    return isOfFamily(state) ? tarnStsNoErr : tarnStsContextMatchErr;
}

// Calls `filter` for each part of at most `most` samples, with where it begins, up to the first that fails.
template <typename Filter>
inline TarnStatus forEachPart(int len, int most, Filter filter)
{
    TarnStatus status = tarnStsNoErr;
    int begin = 0;
    for (int left = len; status == tarnStsNoErr && left > 0; left -= most) {
        status = filter(begin, std::min(left, most));
        begin = left > most ? begin + most : len;
    }
    return status;
}

template <typename State>
inline TarnStatus runOne(typename State::Sample src, typename State::Sample* pDstVal, State* state, int scaleFactor = 0)
{
    if (pDstVal == nullptr || state == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (!isSingleRate(state)) {
        return tarnStsContextMatchErr;
    }
    oneKernel(state, src, pDstVal, scaleFactor);
    return tarnStsNoErr;
}

} // namespace tarn
