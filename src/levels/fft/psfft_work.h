// The working arrangement of the radix-4 core: blocks of complex elements, the real parts in one register's width and
// the imaginary parts in the next. A butterfly is then arithmetic on whole registers, with no shuffle in it. What is
// left in this arrangement for a caller has blocks of blockLanes<T> elements at every level. Between the passes blocks
// are as wide as the level's vectors where a transform is long enough to fill them, and so are the blocks of factors in
// tables.
#pragma once

#include "frame/simd_transpose.h"
#include "levels/fft/psfft_butterflies.h"

#include <algorithm>
#include <cstddef>

namespace tarn::fft {

template <typename T>
inline constexpr int workLanes = std::max(blockLanes<T>, lanes<T>);
// Levels whose first pass has to weave quadruples into wider blocks.
template <typename T>
inline constexpr bool hasWideBlocks = workLanes<T> > blockLanes<T>;

template <int W, typename T>
TARN_INLINE Complex<Pack<T, W>> loadWork(const T* p)
{
    return {loadAligned<W>(p), loadAligned<W>(p + W)};
}
template <typename T, int W>
TARN_INLINE void storeWork(T* p, Complex<Pack<T, W>> x)
{
    storeAligned(p, x.re);
    storeAligned(p + W, x.im);
}

// Blocks of more elements from those of blockLanes<T>, and as those, at any address.
template <int W, typename T>
TARN_INLINE Complex<Pack<T, W>> loadBlocks(const T* p)
{
    if constexpr (W == blockLanes<T>) {
        return {loadPack<W>(p), loadPack<W>(p + W)};
    } else {
        const auto both = reinterpretPack<Tarn64fc>(loadPack<2 * W>(p));
        return {reinterpretPack<T>(evenElements(both)), reinterpretPack<T>(oddElements(both))};
    }
}
template <typename T, int W>
TARN_INLINE void storeBlocks(T* p, Complex<Pack<T, W>> x)
{
    if constexpr (W == blockLanes<T>) {
        store(p, x.re);
        store(p + W, x.im);
    } else {
        const auto re = reinterpretPack<Tarn64fc>(x.re);
        const auto im = reinterpretPack<Tarn64fc>(x.im);
        store(p, reinterpretPack<T>(zipLow(re, im)));
        store(p + W, reinterpretPack<T>(zipHigh(re, im)));
    }
}

// Two bits in opposite order.
inline constexpr int reversedOfFour[] = {0, 2, 1, 3};

// The lengths of the stages: the first pass has finished transforms of 4 or, in odd orders, 8 points.
constexpr bool isOddOrder(int size) { return (static_cast<unsigned>(size) & 0xAAAAAAAAu) != 0; }
constexpr int firstStage(int size) { return isOddOrder(size) ? 32 : 16; }

// The width of the blocks that a transform of bit-reversed data works in, and leaves its results in.
template <typename T>
constexpr int arrangedLanes(std::ptrdiff_t size)
{
    // Two stages at least: the one that the first pass does when it weaves, and the last.
    return hasWideBlocks<T> && size >= 4 * firstStage(static_cast<int>(size)) ? workLanes<T> : blockLanes<T>;
}

// The factors W(k), W(2k) and W(3k) of one stage, k below L / 4, stand in blocks of so many k: of each power the real
// parts, then the imaginary ones.
template <typename T>
constexpr int factorLanes(int L)
{
    return hasWideBlocks<T> ? std::min(L / 4, workLanes<T>) : blockLanes<T>;
}
// Where in a stage table the stage of length L begins: before it lie 3/4 of each shorter length.
template <typename T>
TARN_INLINE const T* stageTwiddles(const T* twd, int first, int L)
{
    return twd + (L - first) / 2;
}
// Where the factors of k begin in blocks of `group`, a power of two.
template <typename T>
TARN_INLINE const T* factorsOf(const T* stage, int group, int k)
{
    const std::ptrdiff_t within = k & (group - 1);
    return stage + 6 * (k - within) + within;
}

// The factors at `w` as a function of the power, from 0: those of N consecutive k; those of four, in every group of
// four lanes; that of one, in every lane.
template <int N, typename T>
TARN_INLINE auto factorsAt(const T* w, int group)
{
    return [=](int power) __attribute__((always_inline))
    {
        const T* const p = w + 2 * group * power;
        return Complex<Pack<T, N>>{loadAligned<N>(p), loadAligned<N>(p + group)};
    };
}
template <int N, typename T>
TARN_INLINE auto factorsRepeated(const T* w, int group)
{
    return [=](int power) __attribute__((always_inline))
    {
        const T* const p = w + 2 * group * power;
        return Complex<Pack<T, N>>{repeatFour<N>(p), repeatFour<N>(p + group)};
    };
}
template <int N, typename T>
TARN_INLINE auto factorsSpread(const T* w, int group)
{
    return [=](int power) __attribute__((always_inline))
    {
        const T* const p = w + 2 * group * power;
        return Complex<Pack<T, N>>{splat<Pack<T, N>>(p[0]), splat<Pack<T, N>>(p[group])};
    };
}

} // namespace tarn::fft
