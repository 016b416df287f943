// The working arrangement of the radix-4 core: blocks of complex elements, the real parts in one register's width and
// the imaginary parts in the next. A butterfly is then arithmetic on whole registers, with no shuffle in it. Tables,
// and results that are left in this arrangement, have blocks of blockLanes<T> elements at every level; between the
// passes blocks are as wide as the level's vectors.
#pragma once

#include "levels/fft/psfft_butterflies.h"

#include <algorithm>
#include <cstddef>

namespace tarn::fft {

// A level's own blocks: their elements, where an element has its real part, and how far from it the imaginary one lies.
// Elements are named by their place in blocks of blockLanes<T>, in reals, and only the first one of such a block is.
// Single precision has enough elements in a block of the tables: wider ones cost more for gathering the factors and for
// what the first pass leaves in pieces than they save, as docs/performance.md shows.
template <typename T>
inline constexpr int workLanes = isDouble<T> ? std::max(blockLanes<T>, lanes<T>) : blockLanes<T>;
template <typename T>
TARN_INLINE std::ptrdiff_t placeInWork(std::ptrdiff_t at)
{
    constexpr int width = workLanes<T>;
    if constexpr (width == blockLanes<T>) {
        return at;
    } else {
        return at - at % (2 * width) / 2;
    }
}
template <int N, typename T>
TARN_INLINE Complex<Pack<T, N>> loadWork(const T* work, std::ptrdiff_t at)
{
    const T* const p = work + placeInWork<T>(at);
    return {loadAligned<N>(p), loadAligned<N>(p + workLanes<T>)};
}
template <typename T, int N>
TARN_INLINE void storeWork(T* work, std::ptrdiff_t at, Complex<Pack<T, N>> x)
{
    T* const p = work + placeInWork<T>(at);
    storeAligned(p, x.re);
    storeAligned(p + workLanes<T>, x.im);
}

// The factors of N elements from tables of blocks that come `stride` blocks apart.
template <int N, typename T>
TARN_INLINE Pack<T, N> gatherBlocks(const T* p, int stride)
{
    if constexpr (N == blockLanes<T>) {
        return loadAligned<N>(p);
    } else {
        return join(gatherBlocks<N / 2>(p, stride),
                    gatherBlocks<N / 2>(p + N / 2 / blockLanes<T> * stride * 2 * blockLanes<T>, stride));
    }
}
template <int N, typename T>
TARN_INLINE Complex<Pack<T, N>> loadFactors(const T* p)
{
    constexpr int powers = 3;
    return {gatherBlocks<N>(p, powers), gatherBlocks<N>(p + blockLanes<T>, powers)};
}

// A block of more elements as those of blockLanes<T>.
template <typename T, int N>
TARN_INLINE void storeBlocks(T* p, Complex<Pack<T, N>> x)
{
    if constexpr (N == blockLanes<T>) {
        storeBlock(p, x);
    } else {
        storeBlocks(p, Complex<Pack<T, N / 2>>{lowHalf(x.re), lowHalf(x.im)});
        storeBlocks(p + N, Complex<Pack<T, N / 2>>{highHalf(x.re), highHalf(x.im)});
    }
}

} // namespace tarn::fft
