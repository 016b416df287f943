// Transforms of several signals at once, one in each lane: no shuffle is left in them, whatever their length.
#pragma once

#include "levels/transforms/psdftfact_arrays.h"

namespace tarn::dft {

// A mixed-radix transform of one element of each lane after the other. Innermost transforms of `leaf` points, 2, 4
// or an odd number, and merges of growing transforms, whose factors are there once for each lane of 16 bytes.
inline constexpr int mostMerges = 20;
template <typename T>
struct LanePlan {
    int length;
    int leaf;
    int merges;
    int radix[mostMerges];
    const T* twiddles[mostMerges]; // rows of radix - 1 factors, from the second row on
    const T* roots[mostMerges];    // of a radix without butterfly of its own
    const T* leafRoots;
    const int* starts; // the first points of the innermost transforms, in the order of their results
};

// Longer ones need more of the stack and of the nearest cache than there should be. Which are longer does not follow
// from the width: it decides what a transform is made of.
inline constexpr int longestLanes = 1024;
template <typename T>
inline constexpr int realsOfArea = 2 * blockLanes<T>* longestLanes;

// The most transforms that go side by side.
template <typename T>
inline constexpr int widestLanes = widestRegister / static_cast<int>(sizeof(T));

// Of a factor's real part and of its imaginary part, in the tables.
template <typename T>
inline constexpr int realsOfFactor = 2 * blockLanes<T>;

// W of the same factors.
template <int W, typename T>
TARN_INLINE Complex<Pack<T, W>> factorInLanes(const T* p)
{
    return {loadRepeated<W>(p), loadRepeated<W>(p + blockLanes<T>)};
}

// The work area of W transforms as a source or a destination: points at equal distances from one on.
template <typename T, int W>
struct LaneArea {
    T* points;
    int distance = 2 * W;

    TARN_INLINE Complex<Pack<T, W>> get(int i) const
    {
        const T* const p = points + i * distance;
        return {loadAligned<W>(p), loadAligned<W>(p + W)};
    }
    TARN_INLINE void put(int i, Complex<Pack<T, W>> x) const
    {
        storeAligned(points + i * distance, x.re);
        storeAligned(points + i * distance + W, x.im);
    }
    TARN_INLINE LaneArea from(int i, int step) const { return {points + i * distance, step * distance}; }
};

template <int q, int W, typename T, typename Source, typename Sink>
inline void laneLeaves(const LanePlan<T>& plan, Source source, Sink sink)
{
    const int* start = plan.starts;
    const int length = plan.length;
    const int count = length / q;
    for (int at = 0; at < length; at += q) {
        const auto in = source.from(*start++, count);
        const auto out = sink.from(at, 1);
        Points<Pack<T, W>, q> x;
        repeat<q>([&](auto j) { x[j] = in.get(j); });
        x = transformPoints(x);
        repeat<q>([&](auto k) { out.put(k, x[k]); });
    }
}

template <int W, typename T, typename Source, typename Sink>
inline void laneLeavesAny(const LanePlan<T>& plan, Source source, Sink sink)
{
    Complex<Pack<T, W>> pairs[largestDirect];
    const int q = plan.leaf;
    const int count = plan.length / q;
    for (int t = 0; t < count; ++t) {
        const auto in = source.from(plan.starts[t], count);
        const auto out = sink.from(t * q, 1);
        transformOdd<Pack<T, W>>(
            q, plan.leafRoots, static_cast<Complex<Pack<T, W>>*>(pairs), [&](int j) { return in.get(j); },
            [&](int k, Complex<Pack<T, W>> y) { out.put(k, y); });
    }
}

// Where results go: in place, as far as the compiler can see, if they go to the area itself.
template <typename T, int W, typename Sink>
TARN_INLINE auto resultsTo(LaneArea<T, W> area, Sink sink)
{
    if constexpr (std::is_same_v<Sink, LaneArea<T, W>>) {
        return area;
    } else {
        return sink;
    }
}

// From `area`, in place or to another destination.
template <int p, typename T, int W, typename Sink>
inline void laneMerge(const LanePlan<T>& plan, int q, const T* twd, LaneArea<T, W> area, Sink sink)
{
    constexpr int width = realsOfFactor<T>;
    const int length = plan.length;
    const int size = p * q;
    for (int at = 0; at < length; at += size) {
        const auto in = area.from(at, q);
        const auto out = resultsTo(area, sink).from(at, q);
        Points<Pack<T, W>, p> x;
        repeat<p>([&](auto j) { x[j] = in.get(j); });
        x = transformPoints(x);
        repeat<p>([&](auto j) { out.put(j, x[j]); });
    }
    const auto butterfly = [&](int at, const T* factors) __attribute__((always_inline))
    {
        const auto in = area.from(at, q);
        const auto out = resultsTo(area, sink).from(at, q);
        Points<Pack<T, W>, p> x;
        x[0] = in.get(0);
        repeat<p - 1>([&](auto j) { x[j + 1] = times(in.get(j + 1), factorInLanes<W>(factors + width * j)); });
        x = transformPoints(x);
        repeat<p>([&](auto j) { out.put(j, x[j]); });
    };
    if (size == length) {
        for (int k = 1; k < q; ++k, twd += width * (p - 1)) {
            butterfly(k, twd);
        }
        return;
    }
    for (int k = 1; k < q; ++k, twd += width * (p - 1)) {
        for (int at = k; at < length; at += size) {
            butterfly(at, twd);
        }
    }
}

template <typename T, int W, typename Sink>
inline void laneMergeAny(const LanePlan<T>& plan, int p, int q, const T* roots, const T* twd, LaneArea<T, W> area,
                         Sink sink)
{
    constexpr int width = realsOfFactor<T>;
    Complex<Pack<T, W>> pairs[largestDirect];
    for (int k = 0; k < q; ++k) {
        const T* const factors = twd + width * (p - 1) * (k - 1);
        for (int at = k; at < plan.length; at += p * q) {
            const auto in = area.from(at, q);
            const auto out = resultsTo(area, sink).from(at, q);
            transformOdd<Pack<T, W>>(
                p, roots, static_cast<Complex<Pack<T, W>>*>(pairs),
                [&](int j) {
                    const auto x = in.get(j);
                    return j == 0 || k == 0 ? x : times(x, factorInLanes<W>(factors + width * (j - 1)));
                },
                [&](int j, Complex<Pack<T, W>> y) { out.put(j, y); });
        }
    }
}

// Every point is read before the first one is written to the sink, unless the length is that of a leaf.
template <typename T, int W, typename Source, typename Sink>
inline void transformLanes(const LanePlan<T>& plan, Source source, LaneArea<T, W> area, Sink sink)
{
    const auto leaves = [&](auto to) {
        switch (plan.leaf) {
        case 2:
            return laneLeaves<2, W>(plan, source, to);
        case 3:
            return laneLeaves<3, W>(plan, source, to);
        case 4:
            return laneLeaves<4, W>(plan, source, to);
        case 5:
            return laneLeaves<5, W>(plan, source, to);
        default:
            return laneLeavesAny<W>(plan, source, to);
        }
    };
    if (plan.merges == 0) {
        leaves(sink);
        return;
    }
    leaves(area);
    const auto merge = [&](int i, int q, auto to) {
        const T* const twd = plan.twiddles[i];
        switch (plan.radix[i]) {
        case 2:
            return laneMerge<2>(plan, q, twd, area, to);
        case 3:
            return laneMerge<3>(plan, q, twd, area, to);
        case 4:
            return laneMerge<4>(plan, q, twd, area, to);
        case 5:
            return laneMerge<5>(plan, q, twd, area, to);
        default:
            return laneMergeAny(plan, plan.radix[i], q, plan.roots[i], twd, area, to);
        }
    };
    int q = plan.leaf;
    for (int i = 0; i < plan.merges - 1; ++i) {
        merge(i, q, area);
        q *= plan.radix[i];
    }
    merge(plan.merges - 1, q, sink);
}

} // namespace tarn::dft
