// Overlap-save: a long convolution as cyclic ones of blocks, one after the other or shared out to threads.
//
// A block of `blockLen` elements begins with the `history` last ones of the block before, of which the filter has one
// more; its first `history` results are cyclic and of no use, the others are outputs.
#pragma once

#include "frame/simd_pack.h"
#include "frame/threads.h"

#include <bit>

namespace tarn {

// -- One block -------------------------------------------------------------------------------------------------------

// What follows a transform that fails: the end of the call where one thread works, and nothing where others could not
// be told.
enum class Failure { ends, isKept };

// Where a thread computes: a block, and the transform's work area.
template <typename T>
struct BlockBuffers {
    T* block;
    Tarn8u* work;
};

// Cyclic convolution with a filter whose spectrum is known. Calls has the transform's functions by the names `forward`,
// `multiply` (of spectra) and `inverse`.
template <typename Calls, typename T>
struct CyclicFilter {
    const typename Calls::Spec* spec;
    const T* spectrum;
    int blockLen;

    // The samples are the block itself, or a block in memory that is not to be written.
    template <Failure failure>
    TarnStatus apply(const T* samples, BlockBuffers<T> own) const
    {
        const TarnStatus status = Calls::forward(samples, own.block, spec, own.work);
        if (failure == Failure::ends && status != tarnStsNoErr) {
            return status;
        }
        Calls::multiply(spectrum, own.block, blockLen);
        return std::min(status, Calls::inverse(own.block, own.block, spec, own.work));
    }
};

// -- All blocks ------------------------------------------------------------------------------------------------------

// Nanoseconds of one thread for an element of a block and each stage of its transforms, there and back.
template <typename T>
inline constexpr double costOfStage = isComplex<T> ? 1.7 * costOfStage<Part<T>> : 0;
template <>
inline constexpr double costOfStage<Tarn32f> = 0.3;
template <>
inline constexpr double costOfStage<Tarn64f> = 0.5;

template <typename T>
inline double costOfBlocks(int blocks, int blockLen)
{
    return costOfStage<T> * blocks * blockLen * std::bit_width(static_cast<unsigned>(blockLen));
}

// Calls runBlock(b) for every block, up to the first that fails.
template <typename RunBlock>
inline TarnStatus runBlocksInTurn(int blocks, RunBlock runBlock)
{
    TarnStatus status = tarnStsNoErr;
    for (int b = 0; status == tarnStsNoErr && b < blocks; ++b) {
        status = runBlock(b);
    }
    return status;
}

// Calls runBlock(b, thread) for every block, whatever becomes of the others; block 0 is thread 0's. Each of at most
// `mostThreads` threads keeps its worst status in `statuses`; the result is the worst of all. Threads take runs of
// neighbouring blocks: where the outputs of two meet they take cache lines from each other, and so do their prefetches.
template <typename T, typename RunBlock>
inline TarnStatus runBlocksInShares(int blocks, int blockLen, int mostThreads, Tarn32s* statuses, RunBlock runBlock)
{
    const double cost = costOfBlocks<T>(blocks, blockLen);
    const int threads = threadsWorth(cost, mostThreads);
    std::fill_n(statuses, threads, tarnStsNoErr);
    shareOut(blocks, 1, cost, threads, [=](int begin, int end, int thread) {
        Tarn32s worst = statuses[thread];
        for (int b = begin; b < end; ++b) {
            worst = std::min<Tarn32s>(worst, runBlock(b, thread));
        }
        statuses[thread] = worst;
    });
    return static_cast<TarnStatus>(*std::min_element(statuses, statuses + threads));
}

} // namespace tarn
