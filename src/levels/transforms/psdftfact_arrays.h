// Arrays of complex elements as the levels of a mixed-radix transform see them: pairs or parts, element by element and
// in vectors of neighbours, or of elements from several places.
#pragma once

#include "frame/simd_lanes.h"
#include "frame/simd_memory.h"
#include "levels/fft/psfft_butterflies.h"
#include "levels/transforms/psdftfact_butterflies.h"

#include <cstddef>

namespace tarn::dft {

using fft::blockLanes;
using fft::BlockPart;

// Neighbours, or one element of each of so many transforms.
template <typename T>
using Lanes = fft::Block<T>;

// Where as many elements lie.
template <typename T>
using Places = std::array<std::ptrdiff_t, blockLanes<T>>;
template <typename T>
TARN_INLINE Places<T> spaced(std::ptrdiff_t distance)
{
    Places<T> at;
    repeat<blockLanes<T>>([&](auto i) { at[i] = i * distance; });
    return at;
}

// Pairs in memory; with exchanged parts, a forward transform of them is an inverse one.
template <typename P, bool exchanged>
struct PairArray {
    using Real = std::remove_const_t<P>;
    P* p;

    TARN_INLINE PairArray operator+(std::ptrdiff_t elements) const { return {p + 2 * elements}; }

    TARN_INLINE Complex<Real> element(std::ptrdiff_t i) const
    {
        return outward(Complex<Real>{loadElement(p + 2 * i), loadElement(p + 2 * i + 1)});
    }
    template <int W = blockLanes<Real>>
    TARN_INLINE Complex<Pack<Real, W>> neighbours(std::ptrdiff_t i) const
    {
        return outward(loadPairs<W>(static_cast<const Real*>(p + 2 * i)));
    }
    // The elements at so many places.
    TARN_INLINE Lanes<Real> gathered(const Places<Real>& at) const
    {
        if constexpr (blockLanes<Real> == 4) {
            return outward(deinterleave(loadTwoPairs<Real>(p + 2 * at[0], p + 2 * at[1]),
                                        loadTwoPairs<Real>(p + 2 * at[2], p + 2 * at[3])));
        } else {
            return outward(deinterleave(loadPack<2>(static_cast<const Real*>(p + 2 * at[0])),
                                        loadPack<2>(static_cast<const Real*>(p + 2 * at[1]))));
        }
    }

    TARN_INLINE void put(std::ptrdiff_t i, Complex<Real> x) const
    {
        x = outward(x);
        store(p + 2 * i, x.re);
        store(p + 2 * i + 1, x.im);
    }
    template <int W>
    TARN_INLINE void put(std::ptrdiff_t i, Complex<Pack<Real, W>> x) const
    {
        storePairs(p + 2 * i, outward(x));
    }
    // To places `distance` apart.
    TARN_INLINE void scatter(std::ptrdiff_t i, std::ptrdiff_t distance, Lanes<Real> x) const
    {
        x = outward(x);
        Real* to = p + 2 * i;
        const std::ptrdiff_t step = 2 * distance;
        if constexpr (blockLanes<Real> == 4) {
            storeHalves(to, to + step, zipLow(x.re, x.im));
            storeHalves(to + 2 * step, to + 3 * step, zipHigh(x.re, x.im));
        } else {
            store(to, zipLow(x.re, x.im));
            store(to + step, zipHigh(x.re, x.im));
        }
    }

private:
    template <typename X>
    static TARN_INLINE Complex<X> outward(Complex<X> x)
    {
        if constexpr (exchanged) {
            return {x.im, x.re};
        } else {
            return x;
        }
    }
};

// Parts in arrays of their own: whoever exchanges the arrays has the inverse.
template <typename P>
struct PartArrays {
    using Real = std::remove_const_t<P>;
    P* re;
    P* im;

    TARN_INLINE PartArrays operator+(std::ptrdiff_t elements) const { return {re + elements, im + elements}; }

    TARN_INLINE Complex<Real> element(std::ptrdiff_t i) const { return {loadElement(re + i), loadElement(im + i)}; }
    template <int W = blockLanes<Real>>
    TARN_INLINE Complex<Pack<Real, W>> neighbours(std::ptrdiff_t i) const
    {
        return {loadPack<W>(static_cast<const Real*>(re + i)), loadPack<W>(static_cast<const Real*>(im + i))};
    }
    TARN_INLINE Lanes<Real> gathered(const Places<Real>& at) const { return {gatheredOf(re, at), gatheredOf(im, at)}; }

    TARN_INLINE void put(std::ptrdiff_t i, Complex<Real> x) const
    {
        store(re + i, x.re);
        store(im + i, x.im);
    }
    template <int W>
    TARN_INLINE void put(std::ptrdiff_t i, Complex<Pack<Real, W>> x) const
    {
        store(re + i, x.re);
        store(im + i, x.im);
    }
    TARN_INLINE void scatter(std::ptrdiff_t i, std::ptrdiff_t distance, Lanes<Real> x) const
    {
        const auto at = spaced<Real>(distance);
        scatterOf(re + i, at, x.re);
        scatterOf(im + i, at, x.im);
    }
    // Reals of one array from so many places, and to places so far apart.
    static TARN_INLINE BlockPart<Real> gatheredOf(const Real* p, const Places<Real>& at)
    {
        const auto lane = [&](int i) {
            return splat<BlockPart<Real>>(loadElement(p + at[static_cast<std::size_t>(i)]));
        };
        if constexpr (blockLanes<Real> == 4) {
            return lowHalves(zipLow(lane(0), lane(1)), zipLow(lane(2), lane(3)));
        } else {
            return zipLow(lane(0), lane(1));
        }
    }
    static TARN_INLINE void scatterOf(Real* p, const Places<Real>& at, BlockPart<Real> x)
    {
        alignas(fft::blockBytes) Real lane[blockLanes<Real>];
        storeAligned(static_cast<Real*>(lane), x);
        repeat<blockLanes<Real>>([&](auto i) { store(p + at[i], lane[i]); });
    }
};

// Rows of `count` twiddle factors, one row a column: those of neighbouring columns, factor by factor.
template <int count, typename T>
TARN_INLINE Points<BlockPart<T>, count> twiddleColumns(const T* row)
{
    constexpr int width = blockLanes<T>;
    Points<BlockPart<T>, count> factors;
    if constexpr (2 * count < width) {
        factors[0] = loadPairs<width>(row);
    } else {
        // As many as fill a register with their parts, the last ones once more if they are odd.
        constexpr int atOnce = width / 2;
        for (int i = 0; i < count; i += atOnce) {
            const int at = std::min(i, count - atOnce);
            Square<T> square;
            for (int column = 0; column < width; ++column) {
                square[column] = loadPack<width>(row + 2 * (at + count * column));
            }
            square = transpose<T>(square);
            for (int j = 0; j < atOnce; ++j) {
                factors[at + j] = {square[2 * j], square[2 * j + 1]};
            }
        }
    }
    return factors;
}
template <int count, typename T>
TARN_INLINE Points<T, count> twiddlesOf(const T* row)
{
    Points<T, count> factors;
    for (int i = 0; i < count; ++i) {
        factors[i] = {row[2 * i], row[2 * i + 1]};
    }
    return factors;
}

} // namespace tarn::dft
