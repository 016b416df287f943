// Recombination for any even length: the rules are those of the power-of-two transforms, the tables are plain pairs.
#pragma once

#include "levels/fft/psfft_recombine.h"

namespace tarn::dft {

// The slots from `low` up and those from `high` down, in vectors, as long as the two do not meet.
template <int W, typename Rule, typename T>
TARN_INLINE void recombineVectors(const T* src, T* dst, int& low, int& high, const T* table)
{
    for (; low + W <= high - W + 1; low += W, high -= W) {
        const std::ptrdiff_t falling = 2 * (high - W + 1);
        const auto x =
            Rule::join(loadPairs<W>(src + 2 * low), loadPairsReversed<W>(src + falling), loadPairs<W>(table + 2 * low));
        storePairs(dst + 2 * low, x.low);
        storePairsReversed(dst + falling, x.high);
    }
}

// M complex slots in Perm order. Slot 0 is two real values, the sum and the difference of those before.
template <typename Rule, typename T>
inline void recombine(const T* src, T* dst, int M, const T* table)
{
    const T first = loadElement(src);
    const T last = loadElement(src + 1);
    int low = 1;
    int high = M - 1;
    constexpr int widest = lanes<T>;
    constexpr int narrowest = fft::blockLanes<T>;
    if constexpr (widest > narrowest) {
        recombineVectors<widest, Rule>(src, dst, low, high, table);
    }
    recombineVectors<narrowest, Rule>(src, dst, low, high, table);
    const auto slot = [](const T* p) { return Complex<T>{loadElement(p), loadElement(p + 1)}; };
    const auto put = [](T* p, Complex<T> x) {
        store(p, x.re);
        store(p + 1, x.im);
    };
    for (; low < high; ++low, --high) {
        const auto x = Rule::join(slot(src + 2 * low), slot(src + 2 * high), slot(table + 2 * low));
        put(dst + 2 * low, x.low);
        put(dst + 2 * high, x.high);
    }
    if (low == high) {
        put(dst + M, Rule::middle(slot(src + M)));
    }
    store(dst, first + last);
    store(dst + 1, first - last);
}

} // namespace tarn::dft
