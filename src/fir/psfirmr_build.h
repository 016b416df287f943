// Building multi-rate FIR states with floating taps.
#pragma once

#include "fir/psfir_build.h"
#include "fir/psfirmr_checks.h"

namespace tarn {

// What a state of one form is going to have.
template <typename T>
struct RatesPlan {
    FirRates rates;
    FirForm form;

    constexpr bool isDirect() const { return form == FirForm::direct; }
    // Taps of an output as they are compiled.
    constexpr long long window() const { return isDirect() ? rates.padded() / rates.up : rates.history(); }
    constexpr FirHead head() const { return FirHead::of(rates, window()); }

    constexpr FirRegions<T> regions() const
    {
        constexpr auto size = static_cast<long long>(sizeof(T));
        const long long groups = rates.up;
        const long long offsets = (isDirect() ? groups : outputsOfGroup * groups) + 1;
        return {roundedUp(rates.taps * size),
                roundedUp((rates.history() + head().in + 1) * size),
                0,
                roundedUp(offsets * static_cast<long long>(sizeof(Tarn32s))),
                outputsOfGroup * groups * window() * size,
                0,
                0,
                rates.up == 1 ? FirRegions<T>::scratchBytes() : 0};
    }

    // What callers of the 32-bit library know. It is more than the regions, and room for memory that begins anywhere.
    constexpr long long bytes() const
    {
        constexpr auto size = static_cast<long long>(sizeof(T));
        const long long room = (isDirect() ? 4 : 8) * rates.padded();
        const FirRegions<T> own = regions();
        return own.taps + outputsOfGroup * rates.padded() * size + own.offsets +
               size * std::max<long long>(room, scratchElements) + own.delay + (isDirect() ? 16 : 0) +
               FirRegions<T>::fields();
    }

    void build(FirFields<T>* state, const T* pTaps, Tarn32u id) const
    {
        const FirHead own = head();
        regions().place(state);
        state->idCtx = id;
        state->tapsLen = static_cast<int>(rates.taps);
        state->upFactor = static_cast<int>(rates.up);
        state->upPhase = static_cast<int>(rates.upPhase);
        state->downFactor = static_cast<int>(rates.down);
        state->downPhase = static_cast<int>(rates.downPhase);
        state->inHeadLen = static_cast<int>(own.in);
        state->outHeadLen = static_cast<int>(own.out);
        state->phaseTapsLen = static_cast<int>(window());
        state->form = static_cast<int>(form);
        state->dlyLen = static_cast<int>(rates.history());
        state->dlyLineIdx = 0;
        state->pFFTSpec = nullptr;
        state->fftLen = -1;
        state->pFFTBlocks = nullptr;
        state->fftWorkSize = 0;
        state->threads = 0;
        // A kernel may multiply the sample behind the last one by zero: no NaN is to lie there.
        std::memset(static_cast<void*>(state->pDlyLine), 0, static_cast<std::size_t>(regions().delay));
        compileTaps(pTaps, state);
    }

    static FirRates ratesOf(const FirFields<T>* state)
    {
        return {state->tapsLen, state->upFactor, state->upPhase, state->downFactor, state->downPhase};
    }

    static void compileDirect(const T* pTaps, FirFields<T>* state)
    {
        reverseConverted(pTaps, state->pTaps, state->tapsLen);
        writeDirectPhases(ratesOf(state), state->pTaps, state->pPhaseOffsets, tableOf(state));
    }
    static void compileLists(const T* pTaps, FirFields<T>* state)
    {
        reverseConverted(pTaps, state->pTaps, state->tapsLen);
        writeListedPhases(ratesOf(state), state->pTaps, state->pPhaseOffsets, tableOf(state));
    }

private:
    static T* tableOf(FirFields<T>* state) { return reinterpret_cast<T*>(state->pTapsX4); }
};

// A state in a block of the library's; null where there is none.
template <typename T>
inline TarnStatus allocatePlan(FirFields<T>** ppState, const RatesPlan<T>& plan, const T* pTaps, Tarn32u id)
{
    const long long bytes = plan.bytes();
    Owned<Tarn8u[]> block = allocate<Tarn8u>(bytes);
    auto* const state = reinterpret_cast<FirFields<T>*>(block.get());
    *ppState = state;
    if (!block) {
        return tarnStsNoMemErr;
    }
    plan.build(state, pTaps, id);
    state->isAllocated = 1;
    static_cast<void>(block.release());
    return tarnStsNoErr;
}

template <typename T>
inline TarnStatus placePlan(FirFields<T>** ppState, const RatesPlan<T>& plan, const T* pTaps, Tarn32u id,
                            Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkBytes(plan.bytes())) {
        return status;
    }
    auto* const state = placeInBuffer<FirFields<T>>(pBuffer);
    plan.build(state, pTaps, id);
    state->isAllocated = 0;
    *ppState = state;
    return tarnStsNoErr;
}

// One input, one output: a real filter is single-rate then.
template <typename State>
inline bool staysSingleRate(int upFactor, int downFactor)
{
    return !isComplex<typename State::Tap> && upFactor == 1 && downFactor == 1;
}

// The samples before the first one.
template <typename State>
inline void adoptRated(FirFields<typename State::Tap>* fields, State** ppState, const typename State::Sample* pDlyLine)
{
    State* const state = static_cast<State*>(fields);
    *ppState = state;
    if (state != nullptr) {
        resetDelay(state, reinterpret_cast<typename State::Sample*>(state->pDlyLine), pDlyLine);
    }
}

template <typename State>
inline TarnStatus allocateRated(State** ppState, const typename State::Tap* pTaps, const FirRates& rates,
                                const typename State::Sample* pDlyLine)
{
    if (const TarnStatus status = checkRates(rates, ppState, pTaps)) {
        return status;
    }
    if (staysSingleRate<State>(static_cast<int>(rates.up), static_cast<int>(rates.down))) {
        const TarnStatus status = allocateState(ppState, pTaps, static_cast<int>(rates.taps), pDlyLine);
        if (status == tarnStsNoMemErr) {
            *ppState = nullptr;
        }
        return status;
    }
    FirFields<typename State::Tap>* fields = nullptr;
    const TarnStatus status = buildRated(&fields, pTaps, rates, State::multiRateId);
    adoptRated(fields, ppState, pDlyLine);
    return status;
}

template <typename State>
inline TarnStatus buildRatedInBuffer(State** ppState, const typename State::Tap* pTaps, const FirRates& rates,
                                     const typename State::Sample* pDlyLine, Tarn8u* pBuffer)
{
    using T = typename State::Tap;
    if (const TarnStatus status = checkRates(rates, ppState, pTaps, pBuffer)) {
        return status;
    }
    if (staysSingleRate<State>(static_cast<int>(rates.up), static_cast<int>(rates.down))) {
        return buildInBuffer(ppState, pTaps, static_cast<int>(rates.taps), pDlyLine, pBuffer);
    }
    FirFields<T>* fields = nullptr;
    const TarnStatus status = buildRatedAt(&fields, pTaps, rates, State::multiRateId, pBuffer);
    if (status == tarnStsNoErr) {
        adoptRated(fields, ppState, pDlyLine);
    }
    return status;
}

template <typename State>
inline TarnStatus ratedSize(int tapsLen, int upFactor, int downFactor, int* pBufferSize)
{
    if (const TarnStatus status = checkFactors(tapsLen, upFactor, downFactor, pBufferSize)) {
        return status;
    }
    if (staysSingleRate<State>(upFactor, downFactor)) {
        return stateSize<State>(tapsLen, pBufferSize);
    }
    return storeRatedSize(static_cast<const FirFields<typename State::Tap>*>(nullptr), tapsLen, upFactor, downFactor,
                          pBufferSize);
}

template <typename T>
inline TarnStatus storePlanSize(FirForm form, const FirRates& rates, int* pBufferSize)
{
    return storeBytes(RatesPlan<T>{rates, form}.bytes(), pBufferSize);
}

} // namespace tarn
