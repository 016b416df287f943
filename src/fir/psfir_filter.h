// Filtering with FIR states of floating taps: the direct road, overlap-save by transforms, in place.
#pragma once

#include "fft/psfft_convolving.h"
#include "fir/psfir_common.h"
#include "fir/psfir_memory.h"
#include "fir/psfir_shares.h"
#include "frame/overlap_save.h"
#include "levels/fir/psfir_block.h"
#include "levels/fir/psfirmr.h"
#include "tarns/convert.h"

namespace tarn {

// -- Samples and elements of the taps' type ---------------------------------------------------------------------------

template <typename T>
inline void samplesToTaps(const T* src, T* dst, int len)
{
    copyElements(src, dst, len);
}

// Outputs as samples: rounded to nearest and saturated if those are integers.
inline void outputsToSamples(const Tarn32f* src, Tarn16s* dst, int len, int scaleFactor)
{
    tarnsConvert_32f16s_Sfs(src, dst, len, tarnRndNear, scaleFactor);
}
inline void outputsToSamples(const Tarn64f* src, Tarn32f* dst, int len, int /*scaleFactor*/)
{
    tarnsConvert_64f32f(src, dst, len);
}
inline void outputsToSamples(const Tarn64f* src, Tarn32s* dst, int len, int scaleFactor)
{
    tarnsConvert_64f32s_Sfs(src, dst, len, tarnRndNear, scaleFactor);
}
inline void outputsToSamples(const Tarn64f* src, Tarn16s* dst, int len, int scaleFactor)
{
    convertRounded_64f16s(src, dst, len, scaleFactor);
}
template <typename T>
inline void outputsToSamples(const T* src, T* dst, int len, int /*scaleFactor*/)
{
    copyElements(src, dst, len);
}
template <typename T, typename S>
    requires(isComplex<T> && !std::is_same_v<T, S>)
inline void outputsToSamples(const T* src, S* dst, int len, int scaleFactor)
{
    outputsToSamples(reinterpret_cast<const Part<T>*>(src), reinterpret_cast<Part<S>*>(dst), 2 * len, scaleFactor);
}

// -- The direct road --------------------------------------------------------------------------------------------------

// Where outputs wait for their conversion: half of the scratch area. The other half is the in-place calls'.
inline constexpr int outputsAtOnce = scratchElements / 2;

template <typename T>
struct OutputScratch {
    T* outputs;
    int room;

    // One of as many equal shares.
    OutputScratch share(int thread, int threads) const
    {
        const int part = room / threads;
        return {outputs + static_cast<std::ptrdiff_t>(part) * thread, part};
    }
};

// Outputs of samples or of elements of the taps' type, by way of the scratch area where they have to be converted.
template <typename State, typename X>
inline void filterStretch(const State* state, const X* src, typename State::Sample* dst, int len,
                          OutputScratch<typename State::Tap> scratch, int scaleFactor)
{
    if constexpr (sameTypes<State>) {
        if (len > 0) {
            blockKernel(state->pTapsX4, src, dst, len, state->tapsLen);
        }
    } else {
        forEachPart(len, scratch.room, [=](int begin, int count) {
            blockKernel(state->pTapsX4, src + begin, scratch.outputs, count, state->tapsLen);
            outputsToSamples(scratch.outputs, dst + begin, count, scaleFactor);
            return tarnStsNoErr;
        });
    }
}

// Each thread gets some of the scratch area, of which there is no more.
inline constexpr int mostThreadsOfStretch = 64;

// Outputs that are not cut between threads: some cache lines.
inline constexpr int outputsTogether = 64;

template <typename State>
inline void filterStretchInShares(const State* state, const typename State::Sample* src, typename State::Sample* dst,
                                  int len, OutputScratch<typename State::Tap> scratch, int scaleFactor)
{
    const double cost = costOfProduct<typename State::Tap> * len * (state->tapsLen + productsOfTraffic);
    const int threads = threadsWorth(cost, mostThreadsOfStretch);
    shareOut(len, outputsTogether, cost, threads, [=](int begin, int end, int thread) {
        filterStretch(state, src + begin, dst + begin, end - begin, scratch.share(thread, threads), scaleFactor);
    });
}

// The first outputs come from the delay buffer, until the window has left it; the others read the caller's samples. By
// then the delay line is what the next call wants.
template <typename State>
inline void filterDirect(const typename State::Sample* src, typename State::Sample* dst, int len, State* state,
                         int scaleFactor)
{
    using T = typename State::Tap;
    const int tapsLen = state->tapsLen;
    const OutputScratch<T> scratch{reinterpret_cast<T*>(state->pTmp), outputsAtOnce};
    T* const window = state->pDlyLine + state->dlyLineIdx;
    state->dlyLineIdx = 0;
    if (len <= state->inHeadLen) {
        samplesToTaps(src, window + tapsLen, len);
        filterStretch(state, window + 1, dst, len, scratch, scaleFactor);
        moveElements(window + len, state->pDlyLine, tapsLen);
        return;
    }
    const int head = (tapsLen + tapsOfPass - 1) & -tapsOfPass;
    samplesToTaps(src, window + tapsLen, state->inHeadLen);
    filterStretch(state, window + 1, dst, head, scratch, scaleFactor);
    samplesToTaps(src + len - tapsLen, state->pDlyLine, tapsLen);
    const auto* const bulk = src + head - tapsLen + 1;
    if (len > longestOnOneThread<T>) {
        filterStretchInShares(state, bulk, dst + head, len - head, scratch, scaleFactor);
    } else {
        filterStretch(state, bulk, dst + head, len - head, scratch, scaleFactor);
    }
}

template <typename State>
inline TarnStatus runDirect(const typename State::Sample* src, typename State::Sample* dst, int len, State* state,
                            int scaleFactor = 0)
{
    if (len > 0) {
        filterDirect(src, dst, len, state, scaleFactor);
    }
    return tarnStsNoErr;
}

// -- The road of transforms -------------------------------------------------------------------------------------------

template <typename T>
inline BlockBuffers<T> buffersOf(const FirFields<T>* state, int thread)
{
    const std::ptrdiff_t bytes = thread * threadBytes<T>(state->fftWorkSize, state->fftLen);
    return {reinterpret_cast<T*>(reinterpret_cast<Tarn8u*>(state->pFFTBlocks) + bytes), state->pFFTWork + bytes};
}

// Overlap-save of one call: blocks of fftLen samples, of which the last fftLen + 1 - tapsLen give outputs.
template <typename State>
class OverlapSave {
    using T = typename State::Tap;
    using S = typename State::Sample;
    using Calls = TransformCalls<T>;

public:
    OverlapSave(const S* pSrc, S* pDst, int numIters, State* pState, int factor)
        : src(pSrc), dst(pDst), len(numIters), state(pState), scaleFactor(factor), history(pState->tapsLen - 1),
          useful(pState->fftLen - history)
    {
    }

    TarnStatus run() const
    {
        const BlockBuffers<T> own = buffersOf<T>(state, 0);
        copyElements(state->pDlyLine + state->dlyLineIdx + 1, own.block, history);
        state->dlyLineIdx = 0;
        if (len <= useful) {
            return filterShort(own);
        }
        return len > longestOnOneThread<T> ? filterInShares() : filterInTurn();
    }

private:
    int blockCount() const { return (len - 1) / useful + 1; }

    TarnStatus filterInTurn() const
    {
        const BlockBuffers<T> own = buffersOf<T>(state, 0);
        return runBlocksInTurn(blockCount(), [=, this](int b) { return filterBlock<Failure::ends>(b, own); });
    }

    TarnStatus filterInShares() const
    {
        return runBlocksInShares<T>(
            blockCount(), state->fftLen, state->threads, state->pThreadStatus,
            [this](int b, int thread) { return filterBlock<Failure::isKept>(b, buffersOf<T>(state, thread)); });
    }

    template <Failure failure>
    TarnStatus filterBlock(int b, BlockBuffers<T> own) const
    {
        return b == 0 ? filterFirst<failure>(own) : filterLater<failure>(useful * b, own);
    }

    // All samples fit one block, which is also where the next call's delay line is found.
    TarnStatus filterShort(BlockBuffers<T> own) const
    {
        samplesToTaps(src, own.block + history, len);
        copyElements(own.block + len - 1, state->pDlyLine, history + 1);
        zeroElements(own.block + history + len, useful - len);
        return convolve<Failure::ends>(own.block, own, dst, len);
    }

    // The block whose history is the delay line.
    template <Failure failure>
    TarnStatus filterFirst(BlockBuffers<T> own) const
    {
        samplesToTaps(src, own.block + history, useful);
        const TarnStatus status = convolve<failure>(own.block, own, dst, useful);
        if (failure == Failure::ends && status != tarnStsNoErr) {
            return status;
        }
        samplesToTaps(src + len - history - 1, state->pDlyLine, history + 1);
        return status;
    }

    // The block whose outputs begin at i. A full one is transformed from the caller's samples if they need no
    // conversion.
    template <Failure failure>
    TarnStatus filterLater(int i, BlockBuffers<T> own) const
    {
        const S* const window = src + i - history;
        const int left = len - i;
        if constexpr (sameTypes<State>) {
            if (left >= state->fftLen) {
                return convolve<failure>(window, own, dst + i, useful);
            }
        }
        const int filled = left >= useful ? state->fftLen : left + history;
        samplesToTaps(window, own.block, filled);
        zeroElements(own.block + filled, state->fftLen - filled);
        return convolve<failure>(own.block, own, dst + i, std::min(left, useful));
    }

    // The outputs of a block.
    template <Failure failure>
    TarnStatus convolve(const T* samples, BlockBuffers<T> own, S* outputs, int count) const
    {
        const CyclicFilter<Calls, T> filter{state->pFFTSpec, state->pFFTTaps, state->fftLen};
        const TarnStatus status = filter.template apply<failure>(samples, own);
        if (failure == Failure::isKept || status == tarnStsNoErr) {
            outputsToSamples(own.block + history, outputs, count, scaleFactor);
        }
        return status;
    }

    const S* src;
    S* dst;
    int len;
    State* state;
    int scaleFactor;
    int history; // samples of a block that belong to outputs of the one before
    int useful;  // outputs of a block
};

template <typename State>
inline TarnStatus runTransforms(const typename State::Sample* src, typename State::Sample* dst, int len, State* state,
                                int scaleFactor = 0)
{
    return len < 1 ? tarnStsNoErr : OverlapSave<State>(src, dst, len, state, scaleFactor).run();
}

// -- Calls ------------------------------------------------------------------------------------------------------------

template <typename State>
inline bool takesTransforms(const State* state, int len)
{
    return state->fftLen >= 1 && state->fftLen < len;
}

template <typename State>
inline TarnStatus runFilter(const typename State::Sample* src, typename State::Sample* dst, int len, State* state,
                            int scaleFactor = 0)
{
    if (const TarnStatus status = checkFilter(state, len, src, dst)) {
        return status;
    }
    if (!isSingleRate(state)) {
        return rateFilter(state, src, dst, len, scaleFactor);
    }
    return takesTransforms(state, len) ? runTransforms(src, dst, len, state, scaleFactor)
                                       : runDirect(src, dst, len, state, scaleFactor);
}

// The bulk of the direct road reads samples that are outputs already, and so does the next block of the other one. So
// outputs, or a copy of the samples where outputs need the first half for themselves, wait in the scratch area.
template <typename State>
inline TarnStatus runPartsInPlace(typename State::Sample* srcDst, int len, State* state, int scaleFactor = 0)
{
    using S = typename State::Sample;
    S* const scratch = reinterpret_cast<S*>(state->pTmp);
    if constexpr (sameTypes<State>) {
        return forEachPart(len, scratchElements, [=](int begin, int count) {
            S* const part = srcDst + begin;
            const TarnStatus status = takesTransforms(state, count) ? runTransforms(part, scratch, count, state)
                                                                    : runDirect(part, scratch, count, state);
            if (status == tarnStsNoErr) {
                copyElements(scratch, part, count);
            }
            return status;
        });
    } else if (takesTransforms(state, len)) {
        return forEachPart(len, 2 * scratchElements, [=](int begin, int count) {
            S* const part = srcDst + begin;
            const TarnStatus status = runTransforms(part, scratch, count, state, scaleFactor);
            if (status == tarnStsNoErr) {
                copyElements(scratch, part, count);
            }
            return status;
        });
    } else {
        S* const copy = reinterpret_cast<S*>(state->pTmp + FirRegions<typename State::Tap>::scratchBytes() / 2);
        return forEachPart(len, scratchElements, [=](int begin, int count) {
            S* const part = srcDst + begin;
            copyElements(part, copy, count);
            return runDirect(copy, part, count, state, scaleFactor);
        });
    }
}

template <typename State>
inline TarnStatus runInPlace(typename State::Sample* srcDst, int len, State* state, int scaleFactor = 0)
{
    if (const TarnStatus status = checkFilter(state, len, srcDst)) {
        return status;
    }
    return isSingleRate(state) ? runPartsInPlace(srcDst, len, state, scaleFactor)
                               : rateFilterInPlace(state, srcDst, len, scaleFactor);
}

} // namespace tarn
