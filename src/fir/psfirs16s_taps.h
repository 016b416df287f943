// The taps of FIR states with integer taps: shifted to 16 bits, and laid out for the kernels.
#pragma once

#include "fir/psfir_common.h"
#include "levels/fir/psfirmr_rates.h"

namespace tarn {

// The largest magnitude of 16-bit taps; one step below the type's.
inline constexpr Tarn32u largestTap = 32766;

constexpr Tarn32u magnitude(Tarn32s x) { return x < 0 ? 0U - static_cast<Tarn32u>(x) : static_cast<Tarn32u>(x); }

// How far taps have to be shifted to fit 16 bits, by the largest magnitude of all components.
inline int shiftOf(const Tarn32s* taps, int len)
{
    Tarn32u largest = 0;
    for (int i = 0; i < len; ++i) {
        largest = std::max(largest, magnitude(loadElement(taps + i)));
    }
    int shift = 0;
    while (largest >> shift > largestTap) {
        ++shift;
    }
    return shift;
}

// -- Tables -----------------------------------------------------------------------------------------------------------

// A tap of a multi-rate row, and what an entry of the row is.
inline void writeTap(const Tarn32s* tap, Tarn16s* row, long long i, long long /*listLen*/)
{
    row[i] = static_cast<Tarn16s>(tap == nullptr ? 0 : *tap);
}

// The pairs (re, -im), then the pairs (im, re).
inline void writeTap(const Tarn32sc* tap, Tarn16s* row, long long i, long long listLen)
{
    const Tarn32sc value = tap == nullptr ? Tarn32sc{0, 0} : *tap;
    Tarn16s* const first = row + 2 * i;
    Tarn16s* const second = first + 2 * listLen;
    first[0] = static_cast<Tarn16s>(value.re);
    first[1] = static_cast<Tarn16s>(sub(0, value.im)); // the lowest integer, made of a NaN, is its own
    second[0] = static_cast<Tarn16s>(value.im);
    second[1] = static_cast<Tarn16s>(value.re);
}

// Rows are of whole groups of taps, with zeros behind the last one.
inline long long tapsOfRow(long long history) { return (history + 3) & ~3LL; }

// A row for each output of a cycle, or one for all where every sample is an output's newest one.
template <typename State>
inline void writeRows(State* state)
{
    const FirRates rates{state->tapsLen, state->upFactor, state->upPhase, state->downFactor, state->downPhase};
    const long long listLen = tapsOfRow(rates.history());
    const long long words = state->tapsTableStride / static_cast<long long>(sizeof(Tarn16s));
    const long long rows = rates.up == 1 ? 1 : outputsOfGroup * rates.up;
    zeroElements(state->pTapsTable, static_cast<int>(rows * words));
    listPhases(rates, state->pTaps, state->pPhaseOffsets,
               [=](long long output, long long i, const typename State::Tap* tap) {
                   if (output < rows) {
                       writeTap(tap, state->pTapsTable + output * words, i, listLen);
                   }
               });
}

// Four copies of the reversed taps, each one word further from a boundary, with zeros between them.
inline void writeCopies(TarnsFIRState32s_16s* state)
{
    const int stride = state->tapsTableStride;
    zeroElements(state->pTapsTable, 4 * stride);
    for (int c = 0; c < 4; ++c) {
        for (int k = 0; k < state->tapsLen; ++k) {
            writeTap(state->pTaps + k, state->pTapsTable + c * stride + c + 1, k, 0);
        }
    }
}

inline void writeCopies(TarnsFIRState32sc_16sc* state)
{
    for (int k = 0; k < state->tapsLen; ++k) {
        writeTap(state->pTaps + k, state->pTapsTable, k, state->tapsLen);
    }
}

template <typename State>
inline void writeTable(State* state)
{
    if (isSingleRate(state)) {
        writeCopies(state);
    } else {
        writeRows(state);
    }
}

// -- Taps as a state keeps them ---------------------------------------------------------------------------------------

// Integer taps, of which the state keeps the upper bits.
template <typename State>
inline void storeTaps(State* state, const typename State::Tap* pTaps, int tapsFactor)
{
    const int parts = static_cast<int>(sizeof(typename State::Tap) / sizeof(Tarn32s));
    reverseConverted(pTaps, state->pTaps, state->tapsLen);
    auto* const components = reinterpret_cast<Tarn32s*>(state->pTaps);
    const int shift = shiftOf(components, parts * state->tapsLen);
    for (int i = 0; i < parts * state->tapsLen; ++i) {
        components[i] >>= shift;
    }
    state->tapsFactor = add(tapsFactor, shift); // modulo 2^32
    writeTable(state);
}

// Float taps F, which the state keeps as integers.
template <typename State, typename F>
inline void storeFloatTaps(State* state, const F* pTaps)
{
    constexpr int parts = static_cast<int>(sizeof(F) / sizeof(Tarn32f));
    auto* const components = reinterpret_cast<Tarn32s*>(state->pTaps);
    state->tapsFactor = scale32fTaps32s(reinterpret_cast<const Tarn32f*>(pTaps), components, parts * state->tapsLen);
    std::reverse(state->pTaps, state->pTaps + state->tapsLen);
    writeTable(state);
}

} // namespace tarn
