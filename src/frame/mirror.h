// Walks an array from both ends at once: a symmetric window computes each weight once and applies it twice.
#pragma once

#include "frame/simd.h"

namespace tarn {

template <typename T>
inline constexpr int partsOf = static_cast<int>(sizeof(T) / sizeof(Part<T>));

// dst = src times the weight, for one element, rounded to the element's type once.
template <typename T, Float W>
TARN_INLINE void multiplyElement(const T* src, T* dst, W weight)
{
    for (int i = 0; i < partsOf<T>; ++i) {
        const auto x = loadElement(reinterpret_cast<const Part<T>*>(src) + i);
        store(reinterpret_cast<Part<T>*>(dst) + i, toSample<Part<T>>(static_cast<W>(x) * weight));
    }
}

// dst[n] = src[n] w[n] and dst[len - 1 - n] = src[len - 1 - n] w[n] for n below len / 2; the middle element of an odd
// number is copied. dst may be src.
//
// `weights` makes the weights in order:
//     group    how many elements next() is for;
//     next()   their weights as lanes of the type that the samples are multiplied in, repeated for each part;
//     rest()   an array of the group's weights, for the elements that do not fill one: called once, at the end.
template <typename T, typename Weights>
TARN_INLINE void walkMirrored(const T* src, T* dst, int len, Weights weights)
{
    constexpr int group = Weights::group;
    constexpr int parts = partsOf<T>;
    const int half = len / 2;
    const auto load = [&](int k) { return loadSamples<group * parts>(reinterpret_cast<const Part<T>*>(src + k)); };
    const auto put = [&](int k, auto x) { storeSamples(reinterpret_cast<Part<T>*>(dst + k), x); };

    int n = 0;
    for (; n <= half - group; n += group) {
        const auto w = weights.next();
        const int mirrored = len - n - group;
        put(n, mul(load(n), w));
        put(mirrored, mul(load(mirrored), reverseElements<parts>(w)));
    }
    const auto rest = weights.rest();
    for (int i = 0; n < half; ++n, ++i) {
        multiplyElement(src + n, dst + n, rest[static_cast<std::size_t>(i)]);
        multiplyElement(src + len - 1 - n, dst + len - 1 - n, rest[static_cast<std::size_t>(i)]);
    }
    if (len % 2 != 0) {
        store(dst + half, loadElement(src + half));
    }
}

// The same with one weight at a time, in any precision: `next` makes it.
template <typename T, typename Next>
TARN_INLINE void walkMirroredElements(const T* src, T* dst, int len, Next next)
{
    const int half = len / 2;
    for (int n = 0; n < half; ++n) {
        const auto weight = next();
        multiplyElement(src + n, dst + n, weight);
        multiplyElement(src + len - 1 - n, dst + len - 1 - n, weight);
    }
    if (len % 2 != 0) {
        store(dst + half, loadElement(src + half));
    }
}

} // namespace tarn
