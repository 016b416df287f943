// Building FIR states with floating taps, and their taps.
#pragma once

#include "fft/psfft_convolving.h"
#include "fir/psfir_common.h"
#include "fir/psfir_memory.h"
#include "levels/fir/psfirmr.h"

#include <omp.h>

namespace tarn {

// The taps' spectrum, by the work buffer of the first thread.
template <typename T>
inline TarnStatus transformTaps(const T* pTaps, FirFields<T>* state)
{
    copyElements(pTaps, state->pFFTTaps, state->tapsLen);
    zeroElements(state->pFFTTaps + state->tapsLen, state->fftLen - state->tapsLen);
    return TransformCalls<T>::forward(state->pFFTTaps, state->pFFTTaps, state->pFFTSpec, state->pFFTWork);
}

template <typename T>
inline void storeTaps(const T* pTaps, FirFields<T>* state)
{
    reverseConverted(pTaps, state->pTaps, state->tapsLen);
    writeTapTable(pTaps, state->tapsLen, state->pTapsX4);
}

// The order of the transform for so many taps: more than twice as long, so that at least half a block is of use.
constexpr int transformOrder(int tapsLen)
{
    int order = 2;
    while (1LL << order <= tapsLen) {
        ++order;
    }
    return order + 1;
}

// What a state is going to have.
template <typename T>
struct FirPlan {
    FirRegions<T> regions;
    int threads = 0;
    OwnedSpec<T> spec = nullptr;
    int fftLen = -1;
    int workSize = 0;

    // A transform if there are enough taps, and buffers for the threads.
    TarnStatus addRoadOfTransforms(int tapsLen)
    {
        using Calls = TransformCalls<T>;
        threads = omp_get_max_threads();
        regions.status = roundedUp(static_cast<long long>(sizeof(Tarn32s)) * threads);
        if (tapsLen < FirSizes<T>::transformFrom) {
            return tarnStsNoErr;
        }
        const int order = transformOrder(tapsLen);
        typename TransformOf<T>::Spec* created = nullptr;
        if (const TarnStatus status = Calls::initAlloc(&created, order, TARN_FFT_DIV_INV_BY_N, tarnAlgHintNone)) {
            return status;
        }
        spec.reset(created);
        if (const TarnStatus status = Calls::getBufSize(created, &workSize)) {
            return status;
        }
        workSize = static_cast<int>(roundedUp(workSize));
        fftLen = 1 << order;
        regions.spectrum = roundedUp(static_cast<long long>(sizeof(T)) << order);
        regions.buffers = (workSize + regions.spectrum) * threads;
        return tarnStsNoErr;
    }

    // Makes a state of the memory: all but its delay line and its owner, the specification's included.
    void build(FirFields<T>* state, const T* pTaps, int tapsLen, Tarn32u id) const
    {
        regions.place(state);
        state->pFFTBlocks = state->pFFTWork == nullptr ? nullptr : reinterpret_cast<T*>(state->pFFTWork + workSize);
        state->idCtx = id;
        state->tapsLen = tapsLen;
        state->dlyLen = tapsLen;
        state->dlyLineIdx = 0;
        state->inHeadLen = ((tapsLen + 3) & ~3) + 1;
        state->pFFTSpec = spec.get();
        state->fftLen = fftLen;
        state->fftWorkSize = workSize;
        state->threads = threads;
        storeTaps(pTaps, state);
    }
};

// Allocates and builds a state, all but its delay line. The builder of the families with taps of type T.
template <typename T>
inline TarnStatus allocateFields(FirFields<T>** ppState, const T* pTaps, int tapsLen, Tarn32u id)
{
    FirPlan<T> plan{FirRegions<T>::direct(tapsLen)};
    if (const TarnStatus status = plan.addRoadOfTransforms(tapsLen)) {
        return status;
    }
    Owned<Tarn8u[]> block = allocate<Tarn8u>(plan.regions.total() + FirSizes<T>::surplus(plan.threads));
    if (!block) {
        return tarnStsNoMemErr;
    }
    auto* const state = reinterpret_cast<FirFields<T>*>(block.get());
    *ppState = state;
    plan.build(state, pTaps, tapsLen, id);
    state->isAllocated = 1;
    if (plan.spec != nullptr) {
        if (const TarnStatus status = transformTaps(pTaps, state)) {
            return status;
        }
    }
    // Both are the state's now.
    static_cast<void>(plan.spec.release());
    static_cast<void>(block.release());
    return tarnStsNoErr;
}

template <typename State>
inline TarnStatus allocateState(State** ppState, const typename State::Tap* pTaps, int tapsLen,
                                const typename State::Sample* pDlyLine)
{
    if (const TarnStatus status = checkTaps(tapsLen, ppState, pTaps)) {
        return status;
    }
    FirFields<typename State::Tap>* fields = nullptr;
    const TarnStatus status = buildAllocated(&fields, pTaps, tapsLen, State::singleRateId);
    if (fields != nullptr) {
        *ppState = static_cast<State*>(fields);
    }
    if (status == tarnStsNoErr) {
        resetDelay(*ppState, fields->pDlyLine, pDlyLine);
    }
    return status;
}

// What a state takes of a caller's memory.
template <typename T>
inline long long bytesInMemory(int tapsLen)
{
    return FirRegions<T>::direct(tapsLen).total() + FirSizes<T>::slack(omp_get_max_threads());
}

template <typename State>
inline TarnStatus stateSize(int tapsLen, int* pBufferSize)
{
    if (const TarnStatus status = checkTaps(tapsLen, pBufferSize)) {
        return status;
    }
    return storeBytes(bytesInMemory<typename State::Tap>(tapsLen), pBufferSize);
}

template <typename State>
inline TarnStatus buildInBuffer(State** ppState, const typename State::Tap* pTaps, int tapsLen,
                                const typename State::Sample* pDlyLine, Tarn8u* pBuffer)
{
    using T = typename State::Tap;
    if (const TarnStatus status = checkTaps(tapsLen, ppState, pTaps, pBuffer)) {
        return status;
    }
    if (const TarnStatus status = checkBytes(bytesInMemory<T>(tapsLen))) {
        return status;
    }
    State* const state = placeInBuffer<State>(pBuffer);
    *ppState = state;
    FirPlan<T>{FirRegions<T>::direct(tapsLen)}.build(state, pTaps, tapsLen, State::singleRateId);
    state->isAllocated = 0;
    resetDelay(state, state->pDlyLine, pDlyLine);
    return tarnStsNoErr;
}

// Multi-rate states compile their taps in ways of their own, and have no transform.
template <typename State>
inline TarnStatus setTaps(const typename State::Tap* pTaps, State* state)
{
    using T = typename State::Tap;
    if (const TarnStatus status = checkState(state, pTaps)) {
        return status;
    }
    if (!isSingleRate(state)) {
        compileTaps(pTaps, state);
        return tarnStsNoErr;
    }
    storeTaps<T>(pTaps, state);
    if (state->tapsLen < FirSizes<T>::transformFrom || state->pFFTSpec == nullptr) {
        return tarnStsNoErr;
    }
    const TarnStatus status = transformTaps<T>(pTaps, state);
    if (status != tarnStsNoErr) {
        TransformCalls<T>::free(state->pFFTSpec);
        state->pFFTSpec = nullptr;
        // Filters in double precision go on without transforms. The others are left with a road that fails.
        if (isDouble<T>) {
            state->fftLen = -1;
            state->pFFTTaps = nullptr;
        }
    }
    return status;
}

template <typename State>
inline TarnStatus getTaps(const State* state, typename State::Tap* pTaps)
{
    if (const TarnStatus status = checkState(state, pTaps)) {
        return status;
    }
    reverseConverted(state->pTaps, pTaps, state->tapsLen);
    return tarnStsNoErr;
}

template <typename State>
inline TarnStatus freeFilter(State* state)
{
    return freeState(state, [](State& own) {
        if (own.pFFTSpec != nullptr) {
            TransformCalls<typename State::Tap>::free(own.pFFTSpec);
        }
    });
}

} // namespace tarn
