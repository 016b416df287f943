// The states of adaptive filters. Order and width of the fields are those that callers of the 32-bit library know.
#pragma once

#include "frame/object.h"
#include "frame/state.h"
#include "tarns/lms.h"

#include <algorithm>

namespace tarn {

// -- Block filters ----------------------------------------------------------------------------------------------------

template <typename S, Tarn32u id>
struct LmsState {
    using Sample = S;
    static constexpr Tarn32u identifier = id;

    Tarn32u idCtx;
    Tarn32f* pTaps;    // reversed: the first one meets the oldest sample
    Tarn32f* pDlyLine; // the first of four copies of a doubled line
    int dlyLineIndex;  // as callers give it
    int tapsLen;
    int dlyCopyStride; // bytes
};

// From this many taps on each sample has its window in the copy where it begins on a boundary; below it the windows
// slide along one line.
inline constexpr int copiesPayFrom = 80;

inline constexpr int lineCopies = 4;

// Where the parts of a state's block lie. Every copy lies one element further off the boundaries than the one before.
// The last one ends with the block.
struct LmsLayout {
    long long taps, line, stride, bytes;

    static constexpr LmsLayout of(long long tapsLen, long long fieldBytes)
    {
        const long long aligned = (8 * tapsLen + 27) & ~15LL;
        const long long fields = std::max(32LL, roundedUp(fieldBytes));
        const long long line = fields + roundedUp(4 * tapsLen);
        return {fields, line, aligned + static_cast<long long>(sizeof(Tarn32f)), line + lineCopies * aligned};
    }
};

// Elements between a copy and the next, and those of all copies together.
template <typename State>
inline int copyStride(const State* state)
{
    return state->dlyCopyStride / static_cast<int>(sizeof(Tarn32f));
}
template <typename State>
inline int lineRoom(const State* state)
{
    return lineCopies * (copyStride(state) - 1);
}

// -- Fixed point ------------------------------------------------------------------------------------------------------

template <typename T, typename S, Tarn32u id>
struct LmsRatesState {
    using Tap = T;
    using Sample = S;
    static constexpr Tarn32u identifier = id;

    Tarn32u idCtx;
    T* pTaps;    // reversed; the upper half of each counts
    S* pDlyLine; // doubled
    int tapsLen;
    int tapStep;
    int dlyLen;
    int updateDly;
    int dlyLineIndex; // as callers give it
    int mu;
    int muShift; // how far steps may leave 16 bits before they are scaled; 0: they never are
};

// -- Calls ------------------------------------------------------------------------------------------------------------

// Calls `run` if the state and the other pointers are good.
template <typename Run, typename State, typename... P>
TarnStatus withState(Run run, State* state, const P*... pointers)
{
    if (const TarnStatus status = checkObject(state, pointers...)) {
        return status;
    }
    run();
    return tarnStsNoErr;
}

// -- Delay lines ------------------------------------------------------------------------------------------------------

// Where a ring of places has the one that an index means. What callers give is not checked, and no index leads out of
// the line.
inline int placeInRing(int index, int len)
{
    if (index >= 0 && index < len) {
        return index;
    }
    const int rest = index % len;
    return rest < 0 ? rest + len : rest;
}

} // namespace tarn

struct TarnsFIRLMSState_32f : tarn::LmsState<Tarn32f, tarn::spelled("LMS1")> {};
struct TarnsFIRLMSState32f_16s : tarn::LmsState<Tarn16s, 0x004C4D53> {};
struct TarnsFIRLMSMRState32s_16s : tarn::LmsRatesState<Tarn32s, Tarn16s, tarn::spelled("LMSR")> {};
struct TarnsFIRLMSMRState32sc_16sc : tarn::LmsRatesState<Tarn32sc, Tarn16sc, tarn::spelled("LMSC")> {};
