// The levels of mixed-radix transforms of complex data: innermost transforms, which read with a stride, and merges of
// sub-spectra. Neighbouring columns go through a butterfly together.
#pragma once

#include "frame/simd_apart.h"
#include "levels/transforms/psdft_transforms.h"
#include "levels/transforms/psdftfact_arrays.h"

namespace tarn::dft {

// -- Innermost transforms --------------------------------------------------------------------------------------------

// Where the transforms of a level begin in the array that is read or written with a stride: transform i of block t at
// perm[t] + i stride.
template <typename T>
struct StridedPlaces {
    std::ptrdiff_t stride;
    int count;
    const int* perm;
    int block = 0;
    int i = 0;

    std::ptrdiff_t next()
    {
        const std::ptrdiff_t place = perm[block] + i * stride;
        if (++i == count) {
            i = 0;
            ++block;
        }
        return place;
    }
    // What is left from transform u on.
    StridedPlaces from(int u) const { return {stride, count, perm, u / count, u % count}; }
    Places<T> nextLanes()
    {
        Places<T> at;
        for (auto& place : at) {
            place = next();
        }
        return at;
    }
};

// `count` transforms of q points in each block, one behind the other in dst.
template <int q, typename In, typename Out>
inline void leafOf(In src, std::ptrdiff_t stride, Out dst, int count, int blocks, const int* perm)
{
    using T = typename Out::Real;
    constexpr int width = blockLanes<T>;
    const std::ptrdiff_t distance = stride * count;
    const int all = count * blocks;
    StridedPlaces<T> places{stride, count, perm};
    int u = 0;
    for (; u + width <= all; u += width) {
        const auto at = places.nextLanes();
        Points<BlockPart<T>, q> x;
        In from = src;
        for (auto& point : x) {
            point = from.gathered(at);
            from = from + distance;
        }
        const auto y = transformPoints(x);
        repeat<q>([&](auto k) { dst.scatter(std::ptrdiff_t{u} * q + k, q, y[k]); });
    }
    for (; u < all; ++u) {
        const std::ptrdiff_t place = places.next();
        Points<T, q> x;
        repeat<q>([&](auto j) { x[j] = src.element(place + j * distance); });
        const auto y = transformPoints(x);
        repeat<q>([&](auto k) { dst.put(std::ptrdiff_t{u} * q + k, y[k]); });
    }
}

// Points of an array at a distance, for direct sums.
template <typename In>
struct Spaced {
    In array;
    std::ptrdiff_t distance;

    TARN_INLINE auto operator[](int j) const { return array.element(j * distance); }
};

// From so many transforms on they go side by side, else each by sums that are side by side in themselves: whether they
// do must not follow from the width.
inline constexpr int fewestLeavesTogether = 4;

// Calls alone(place, u) for each of few transforms; of many, together(places, u) for as many neighbours from u on as a
// vector has lanes, the last ones maybe twice.
template <typename T, typename Alone, typename Together>
TARN_INLINE void forAllLeaves(StridedPlaces<T> places, int blocks, Alone alone, Together together)
{
    constexpr int width = blockLanes<T>;
    static_assert(width <= fewestLeavesTogether);
    const int all = places.count * blocks;
    if (all < fewestLeavesTogether) {
        for (int u = 0; u < all; ++u) {
            alone(places.next(), std::ptrdiff_t{u});
        }
        return;
    }
    for (int u = 0; u < all; u += width) {
        const int first = std::min(u, all - width);
        together(places.from(first).nextLanes(), std::ptrdiff_t{first});
    }
}

// Any odd q; scratch holds 2 q - 2 reals on a boundary.
template <typename In, typename Out, typename T>
inline void leafAny(In src, std::ptrdiff_t stride, Out dst, int q, int count, int blocks, const int* perm,
                    const PairOf<T>* dirTab, T* scratch)
{
    const std::ptrdiff_t distance = stride * count;
    forAllLeaves(
        StridedPlaces<T>{stride, count, perm}, blocks,
        [&](std::ptrdiff_t at, std::ptrdiff_t u) {
            directSums<true>(Spaced<In>{src + at, distance}, dst + u * q, q, Roots<T>(dirTab, q), scratch);
        },
        [&](const Places<T>& at, std::ptrdiff_t u) {
            Lanes<T> pairs[largestDirect];
            transformOdd<BlockPart<T>>(
                q, asParts(dirTab), static_cast<Lanes<T>*>(pairs),
                [&](int j) { return (src + j * distance).gathered(at); },
                [&](int k, Lanes<T> y) { dst.scatter(u * q + k, q, y); });
        });
}

// -- Merges ----------------------------------------------------------------------------------------------------------

// p spectra of q points become one of p q, in each of so many blocks. In place or not. Columns are taken one by one, in
// all blocks, so that their factors are fetched once.
template <int p, typename In, typename Out, typename T>
inline void mergeOf(In src, Out dst, int q, int blocks, const T* twd)
{
    constexpr int width = blockLanes<T>;
    const std::ptrdiff_t size = std::ptrdiff_t{p} * q;
    for (std::ptrdiff_t at = 0; at < blocks * size; at += size) {
        Points<T, p> x;
        repeat<p>([&](auto j) { x[j] = src.element(at + j * q); });
        const auto y = transformPoints(x);
        repeat<p>([&](auto j) { dst.put(at + j * q, y[j]); });
    }
    const auto column = [&](int k, const auto& factors, auto load) __attribute__((always_inline))
    {
        for (std::ptrdiff_t at = k; at < blocks * size; at += size) {
            using X = decltype(factors[0].re);
            Points<std::remove_cvref_t<X>, p> x;
            x[0] = load(at);
            repeat<p - 1>([&](auto j) { x[j + 1] = times(load(at + (j + 1) * q), factors[j]); });
            const auto y = transformPoints(x);
            repeat<p>([&](auto j) { dst.put(at + j * q, y[j]); });
        }
    };
    constexpr int row = 2 * (p - 1);
    int k = 1;
    for (; k + width <= q; k += width) {
        column(k, twiddleColumns<p - 1>(twd + row * k), [&](std::ptrdiff_t at) { return src.neighbours(at); });
    }
    for (; k < q; ++k) {
        column(k, twiddlesOf<p - 1>(twd + row * k), [&](std::ptrdiff_t at) { return src.element(at); });
    }
}

// Any odd p, one block; scratch holds 2 p - 2 reals.
template <typename In, typename Out, typename T>
inline void mergeAny(In src, Out dst, int p, int q, const PairOf<T>* dirTab, const PairOf<T>* twdTab, T* scratch)
{
    constexpr int width = blockLanes<T>;
    const T* const roots = asParts(dirTab);
    const auto place = [q](int j, int k) { return std::ptrdiff_t{j} * q + k; };
    const auto column = [&](int k, auto* pairs, auto load, auto factor) __attribute__((always_inline))
    {
        using X = decltype(pairs[0].re);
        transformOdd<std::remove_cvref_t<X>>(
            p, roots, pairs,
            [&](int j) {
                const auto x = load(place(j, k));
                return j == 0 || k == 0 ? x : times(x, factor(std::ptrdiff_t{k} * p + j));
            },
            [&](int j, auto y) { dst.put(place(j, k), y); });
    };
    const PairArray<const T, false> factors{asParts(twdTab)};
    const auto single = [&](int k) {
        column(
            k, reinterpret_cast<Complex<T>*>(scratch), [&](std::ptrdiff_t i) { return src.element(i); },
            [&](std::ptrdiff_t i) { return factors.element(i); });
    };
    single(0);
    int k = 1;
    for (; k + width <= q; k += width) {
        Lanes<T> pairs[largestDirect];
        const auto rows = spaced<T>(p);
        column(
            k, pairs, [&](std::ptrdiff_t i) { return src.neighbours(i); },
            [&](std::ptrdiff_t i) { return (factors + i).gathered(rows); });
    }
    for (; k < q; ++k) {
        single(k);
    }
}

} // namespace tarn::dft
