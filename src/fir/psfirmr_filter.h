// Filtering with multi-rate FIR states: one driver for all forms, which ask for their kernels by position.
#pragma once

#include "fir/psfir_common.h"
#include "fir/psfir_memory.h"
#include "fir/psfir_shares.h"
#include "frame/threads.h"
#include "levels/fir/psfirmr.h"

namespace tarn {

template <typename State>
inline typename State::Sample* rawDelay(State* state)
{
    return reinterpret_cast<typename State::Sample*>(state->pDlyLine);
}

// A filter call. Kernels are given by
//
//     void main(const S* data, S* dst, Index first, Index count)                whole windows, count a multiple of four
//     void tail(const S* data, S* dst, Index first, Index count, Index limit)   samples in front of data + limit
//     Index sharedAmong(int numIters, Index count)                              how many of main's outputs are to be
//     its void share(int numIters, const S* data, S* dst, Index first, Index count) the same as main, by several
//     threads
//
// for outputs from `first` on, whose windows are found from `data`, where output 0 of the call has its history.
template <typename Kernels, typename State, typename S>
inline void driveRates(const Kernels& kernels, State* state, const S* src, S* dst, int numIters)
{
    const Index inputs = static_cast<Index>(state->downFactor) * numIters;
    const Index outputs = static_cast<Index>(state->upFactor) * numIters;
    const Index cycle = static_cast<Index>(outputsOfGroup) * state->upFactor;
    const Index history = state->dlyLen;
    const Index limit = history + inputs;
    S* const line = rawDelay(state);
    if (inputs <= state->inHeadLen - (Kernels::leavesOneBefore ? 1 : 0)) {
        const auto count = static_cast<int>(inputs);
        copyElements(src, line + history, count);
        line[limit] = S{}; // a tap that is zero may stand for it
        const Index whole = outputs - outputs % cycle;
        kernels.main(line, dst, 0, whole);
        kernels.tail(line, dst + whole, whole, outputs - whole, limit);
        moveElements(line + count, line, state->dlyLen);
        return;
    }
    copyElements(src, line + history, state->inHeadLen);
    const Index head = state->outHeadLen;
    kernels.main(line, dst, 0, head);
    // From here on the caller's samples themselves. The last cycle is the tail's, so that nothing behind them is read.
    const S* const data = src - history;
    const Index left = outputs - head;
    Index whole = left - left % cycle;
    whole -= whole > 0 ? cycle : 0;
    whole = kernels.sharedAmong(numIters, whole);
    copyElements(src + inputs - history, line, state->dlyLen);
    kernels.share(numIters, data, dst + head, head, whole);
    kernels.tail(data, dst + head + whole, head + whole, left - whole, limit);
}

// -- Floating taps ----------------------------------------------------------------------------------------------------

// How the kernels of a family are called, by state and form.
template <FirForm form, typename State>
struct FormKernels {
    using T = typename State::Tap;
    using S = typename State::Sample;

    static constexpr bool leavesOneBefore = form == FirForm::decimating;

    const State* state;
    int scaleFactor;

    void main(const S* data, S* dst, Index first, Index count) const
    {
        mainKernel(FormTag<form>{}, state, data, dst, count, positionOf(first), scaleFactor);
    }
    void tail(const S* data, S* dst, Index first, Index count, Index limit) const
    {
        tailKernel(FormTag<form>{}, state, data, dst, count, positionOf(first), limit, scaleFactor);
    }

    // A long call is cut into as many equal parts of whole cycles as there are threads for it by the settings, and the
    // tail gets what does not divide: it rounds integers in its own way, so that the settings show in the result,
    // though not how many threads were free for the work, or worth it.
    Index sharedAmong(int numIters, Index count) const
    {
        if (numIters <= longestOnOneThread<T>) {
            return count;
        }
        return count - count % (static_cast<Index>(cycle()) * threadsOfCall());
    }
    void share(int numIters, const S* data, S* dst, Index first, Index count) const
    {
        const double cost = costOfProduct<T> * static_cast<double>(count) * (state->phaseTapsLen + productsOfTraffic);
        const int threads = numIters > longestOnOneThread<T> ? threadsWorth(cost, mostThreads) : 1;
        const int grain = outputsTogether / cycle() + 1;
        const Index step = cycle();
        shareOut(static_cast<int>(count / step), grain, cost, threads, [=, this](int begin, int end, int /*thread*/) {
            main(data, dst + step * begin, first + step * begin, step * (end - begin));
        });
    }

private:
    static constexpr int mostThreads = 64;
    static constexpr int outputsTogether = 64; // some cache lines, which are not cut between threads

    int cycle() const { return outputsOfGroup * state->upFactor; }
    // Whole iterations lie before it.
    Index positionOf(Index output) const { return output / state->upFactor * state->downFactor; }
};

template <FirForm form, typename State, typename S>
inline void filterByForm(State* state, const S* src, S* dst, int numIters, int scaleFactor = 0)
{
    driveRates(FormKernels<form, State>{state, scaleFactor}, state, src, dst, numIters);
}

template <typename State, typename S>
inline TarnStatus filterRates(State* state, const S* src, S* dst, int numIters, int scaleFactor = 0)
{
    if constexpr (isComplex<S>) {
        if (state->form != static_cast<int>(FirForm::indexed)) {
            return tarnStsContextMatchErr;
        }
        filterByForm<FirForm::indexed>(state, src, dst, numIters, scaleFactor);
        return tarnStsNoErr;
    } else {
        switch (static_cast<FirForm>(state->form)) {
        case FirForm::direct:
            driveForm(FormTag<FirForm::direct>{}, state, src, dst, numIters, scaleFactor);
            return tarnStsNoErr;
        case FirForm::decimating:
            driveForm(FormTag<FirForm::decimating>{}, state, src, dst, numIters, scaleFactor);
            return tarnStsNoErr;
        case FirForm::indexed:
            driveForm(FormTag<FirForm::indexed>{}, state, src, dst, numIters, scaleFactor);
            return tarnStsNoErr;
        }
        return tarnStsContextMatchErr;
    }
}

// -- In place ---------------------------------------------------------------------------------------------------------

// By way of a copy of the samples.
template <typename State, typename S>
inline TarnStatus filterCopy(State* state, S* srcDst, int numIters, int scaleFactor)
{
    const long long count = static_cast<long long>(state->downFactor) * numIters;
    const Owned<S[]> copy = allocate<S>(count);
    if (!copy) {
        return tarnStsNoMemErr;
    }
    copyElements<S>(srcDst, copy.get(), static_cast<int>(count));
    return rateFilter(state, copy.get(), srcDst, numIters, scaleFactor);
}

// One output for each iteration waits in the scratch area. The parts follow each other by their outputs, whatever the
// number of samples that each consumes.
template <typename State, typename S>
inline TarnStatus filterRatesInPlace(State* state, S* srcDst, int numIters, int scaleFactor = 0)
{
    if (state->upFactor != 1) {
        return filterCopy(state, srcDst, numIters, scaleFactor);
    }
    S* const scratch = reinterpret_cast<S*>(state->pTmp);
    return forEachPart(numIters, sameTypes<State> ? scratchElements : 2 * scratchElements, [=](int begin, int count) {
        S* const part = srcDst + begin;
        const TarnStatus status = rateFilter(state, part, scratch, count, scaleFactor);
        if (status == tarnStsNoErr) {
            copyElements(scratch, part, count);
        }
        return status;
    });
}

} // namespace tarn
