// Recombination for any even length: the rules are those of the power-of-two transforms, the tables are plain pairs.
#pragma once

#include "levels/fft/psfft_recombine.h"

namespace tarn::dft {

// M complex slots in Perm order. Slot 0 is two real values, the sum and the difference of those before.
template <typename Rule, typename T>
inline void recombine(const T* src, T* dst, int M, const T* table)
{
    constexpr int width = fft::blockLanes<T>;
    const T first = loadElement(src);
    const T last = loadElement(src + 1);
    int low = 1;
    int high = M - 1;
    // Whole vectors as long as the slots that rise and those that fall do not meet.
    for (; low + width <= high - width + 1; low += width, high -= width) {
        const T* const falling = src + 2 * (high - width + 1);
        const auto x = Rule::join(loadPairs<width>(src + 2 * low), loadPairsReversed<width>(falling),
                                  loadPairs<width>(table + 2 * low));
        storePairs(dst + 2 * low, x.low);
        storePairsReversed(dst + 2 * (high - width + 1), x.high);
    }
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
