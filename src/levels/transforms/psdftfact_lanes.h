// Transforms of several signals at once, one in each lane: no shuffle is left in them, whatever their length.
#pragma once

#include "levels/transforms/psdftfact_arrays.h"

namespace tarn::dft {

// A mixed-radix transform of one element of each lane after the other. Innermost transforms of `leaf` points, 2, 4
// or an odd number, and merges of growing transforms, whose factors are there once for each lane.
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

// Longer ones need more of the stack and of the nearest cache than there should be.
inline constexpr int longestLanes = 1024;

template <typename T>
inline constexpr int realsOfLanes = 2 * blockLanes<T>;

template <typename T>
TARN_INLINE Lanes<T> loadLanes(const T* p)
{
    return {loadAligned<blockLanes<T>>(p), loadAligned<blockLanes<T>>(p + blockLanes<T>)};
}
template <typename T>
TARN_INLINE void storeLanes(T* p, Lanes<T> x)
{
    storeAligned(p, x.re);
    storeAligned(p + blockLanes<T>, x.im);
}

// The work area of one transform, and its points as a source or a destination.
template <typename T>
struct LaneArea {
    T* points;

    TARN_INLINE Lanes<T> get(int i) const { return loadLanes(static_cast<const T*>(points + i * realsOfLanes<T>)); }
    TARN_INLINE void put(int i, Lanes<T> x) const { storeLanes(points + i * realsOfLanes<T>, x); }
};

template <int q, typename T, typename Source, typename Sink>
inline void laneLeaves(const LanePlan<T>& plan, Source source, Sink sink)
{
    const int* const starts = plan.starts;
    const int count = plan.length / q;
    for (int t = 0, at = 0; t < count; ++t, at += q) {
        const int start = starts[t];
        Points<BlockPart<T>, q> x;
        repeat<q>([&](auto j) { x[j] = source.get(start + j * count); });
        x = transformPoints(x);
        repeat<q>([&](auto k) { sink.put(at + k, x[k]); });
    }
}

template <typename T, typename Source, typename Sink>
inline void laneLeavesAny(const LanePlan<T>& plan, Source source, Sink sink)
{
    Lanes<T> pairs[largestDirect];
    const int q = plan.leaf;
    const int count = plan.length / q;
    for (int t = 0; t < count; ++t) {
        const int start = plan.starts[t];
        transformOdd<BlockPart<T>>(
            q, plan.leafRoots, pairs, [&](int j) { return source.get(start + j * count); },
            [&](int k, Lanes<T> y) { sink.put(t * q + k, y); });
    }
}

template <int p, typename T, typename Sink>
inline void laneMerge(const LanePlan<T>& plan, int q, const T* twd, LaneArea<T> area, Sink sink)
{
    constexpr int width = realsOfLanes<T>;
    const int size = p * q;
    for (int at = 0; at < plan.length; at += size) {
        Points<BlockPart<T>, p> x;
        repeat<p>([&](auto j) { x[j] = area.get(at + j * q); });
        x = transformPoints(x);
        repeat<p>([&](auto j) { sink.put(at + j * q, x[j]); });
    }
    for (int k = 1; k < q; ++k, twd += width * (p - 1)) {
        for (int at = k; at < plan.length; at += size) {
            Points<BlockPart<T>, p> x;
            x[0] = area.get(at);
            repeat<p - 1>([&](auto j) { x[j + 1] = times(area.get(at + (j + 1) * q), loadLanes(twd + width * j)); });
            x = transformPoints(x);
            repeat<p>([&](auto j) { sink.put(at + j * q, x[j]); });
        }
    }
}

template <typename T, typename Sink>
inline void laneMergeAny(const LanePlan<T>& plan, int p, int q, const T* roots, const T* twd, LaneArea<T> area,
                         Sink sink)
{
    constexpr int width = realsOfLanes<T>;
    Lanes<T> pairs[largestDirect];
    for (int k = 0; k < q; ++k) {
        const T* const factors = twd + width * (p - 1) * (k - 1);
        for (int at = k; at < plan.length; at += p * q) {
            transformOdd<BlockPart<T>>(
                p, roots, pairs,
                [&](int j) {
                    const auto x = area.get(at + j * q);
                    return j == 0 || k == 0 ? x : times(x, loadLanes(factors + width * (j - 1)));
                },
                [&](int j, Lanes<T> y) { sink.put(at + j * q, y); });
        }
    }
}

// Every point is read before the first one is written to the sink, unless the length is that of a leaf.
template <typename T, typename Source, typename Sink>
inline void transformLanes(const LanePlan<T>& plan, Source source, LaneArea<T> area, Sink sink)
{
    const auto leaves = [&](auto to) {
        switch (plan.leaf) {
        case 2:
            return laneLeaves<2>(plan, source, to);
        case 3:
            return laneLeaves<3>(plan, source, to);
        case 4:
            return laneLeaves<4>(plan, source, to);
        case 5:
            return laneLeaves<5>(plan, source, to);
        default:
            return laneLeavesAny(plan, source, to);
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
