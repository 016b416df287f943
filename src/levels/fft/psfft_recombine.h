// Recombination: a real transform of 2 M points out of a complex one of M points, and back. The spectrum is in Perm
// order, so that slot k of a complex view is X[k].
#pragma once

#include "frame/object.h"
#include "frame/simd_apart.h"
#include "frame/simd_move.h"
#include "levels/fft/psfft_work.h"

namespace tarn::fft {

// A table of values (A[k], B[k]) for k from 1 to a quarter of the real length, in blocks of recombinedLanes<T>: A, then
// B. They are made of the cosines and sines of k, which stand in the base table.
template <typename T>
constexpr int recombinedLanes(long long slots)
{
    return slots < workLanes<T> ? std::max(blockLanes<T>, static_cast<int>(slots)) : workLanes<T>;
}

template <typename T, typename Values>
inline Owned<T[]> recombinationTable(int order, const T* base, Values values)
{
    const long long slots = order <= 3 ? 2 : (1LL << order) / 4;
    Owned<T[]> table = allocate<T>(2 * slots);
    if (!table) {
        return table;
    }
    if (order <= 3) {
        // Transforms this short do not recombine.
        std::fill_n(table.get(), 2 * slots, T{0});
        return table;
    }
    constexpr int step = blockLanes<T>;
    const int group = recombinedLanes<T>(slots);
    const int quarter = (1 << order) / 4;
    for (int i = 0; i < slots; i += step) {
        const int k = i + 1;
        T* const block = table.get() + 2 * (i - i % group) + i % group;
        const auto [a, b] = values(reverse(loadPack<step>(base + quarter - k - (step - 1))), loadPack<step>(base + k));
        store(block, a);
        store(block + group, b);
    }
    return table;
}

template <typename T>
inline Owned<T[]> realRecombinationTable(int order, const T* base)
{
    using X = BlockPart<T>;
    const auto half = splat<X>(T{1} / 2);
    return recombinationTable(order, base, [=](X cosines, X sines) {
        return std::pair<X, X>{mul(half, cosines), sub(half, mul(half, sines))};
    });
}

template <typename T>
inline Owned<T[]> ccsRecombinationTable(int order, const T* base)
{
    using X = BlockPart<T>;
    return recombinationTable(order, base, [](X cosines, X sines) {
        return std::pair<X, X>{cosines, invertSigns(sines)};
    });
}

// The slots of a rising and a falling index.
template <typename X>
struct Facing {
    Complex<X> low, high;
};

// Z[k] and Z[M - k] of the half-length transform to X[k] and X[M - k].
struct ToSpectrum {
    template <typename X>
    static TARN_INLINE Facing<X> join(Complex<X> low, Complex<X> high, Complex<X> factor)
    {
        const X a = sub(low.re, high.re);
        const X b = add(low.im, high.im);
        const X q = add(mul(factor.re, b), mul(factor.im, a));
        const X p = sub(mul(factor.im, b), mul(factor.re, a));
        return {{add(high.re, q), sub(p, high.im)}, {sub(low.re, q), sub(p, low.im)}};
    }
    template <typename X>
    static TARN_INLINE Complex<X> middle(Complex<X> x)
    {
        return {x.re, -x.im};
    }
};

// X[k] and X[M - k] to 2 Z[k] and 2 Z[M - k].
struct FromSpectrum {
    template <typename X>
    static TARN_INLINE Facing<X> join(Complex<X> low, Complex<X> high, Complex<X> factor)
    {
        const X a = sub(low.re, high.re);
        const X c = add(low.re, high.re);
        const X b = add(low.im, high.im);
        const X e = sub(low.im, high.im);
        const X q = sub(mul(factor.im, a), mul(factor.re, b));
        const X p = add(mul(factor.im, b), mul(factor.re, a));
        return {{add(c, q), add(e, p)}, {sub(c, q), sub(p, e)}};
    }
    template <typename X>
    static TARN_INLINE Complex<X> middle(Complex<X> x)
    {
        return {2 * x.re, -2 * x.im};
    }
};

// Slots 1 to M - 1 but the middle one, N at a time from both ends, or fewer if there are not as many.
template <typename Rule, int N, typename T>
TARN_INLINE void recombineFacing(const T* src, T* dst, int M, const T* table)
{
    if constexpr (N > blockLanes<T>) {
        if (M / 2 < N) {
            recombineFacing<Rule, N / 2>(src, dst, M, table);
            return;
        }
    }
    const T* srcLow = src + 2;
    T* dstLow = dst + 2;
    const T* srcHigh = src + 2 * (M - N);
    T* dstHigh = dst + 2 * (M - N);
    for (int k = 1; k < M / 2; k += N) {
        const auto x = Rule::join(loadPairs<N>(srcLow), loadPairsReversed<N>(srcHigh), loadWork<N>(table));
        storePairs(dstLow, x.low);
        storePairsReversed(dstHigh, x.high);
        srcLow += 2 * N;
        dstLow += 2 * N;
        srcHigh -= 2 * N;
        dstHigh -= 2 * N;
        table += 2 * N;
    }
}

// Joins slots 1 to M - 1; slot 0 is the caller's. The last vector reaches the middle slot, which is its own opposite
// and is therefore written after all others. M is 1, 2 or a power of two that the table has been made for.
template <typename Rule, typename T>
inline void recombine(const T* src, T* dst, int M, const T* table)
{
    if (M <= 1) {
        return;
    }
    const Complex<T> middle = Rule::middle(Complex<T>{loadElement(src + M), loadElement(src + M + 1)});
    if (M > 2) {
        recombineFacing<Rule, workLanes<T>>(src, dst, M, table);
    }
    store(dst + M, middle.re);
    store(dst + M + 1, middle.im);
}

} // namespace tarn::fft
