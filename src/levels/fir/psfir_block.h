// Block kernels of FIR filters: y[i] = the sum over j of h[T-1-j] x[i+j], T taps, in passes of four taps.
//
// The order of the additions is part of the result. The first pass takes the four taps h[T-1] to h[T-4], or all of them
// if there are no more; each later one takes the next four, the last one what is left. A pass adds its products as
// (p0 + p1) + (p2 + p3), or (p0 + p1) + p2, and its sum is added to those of the passes before.
#pragma once

#include "frame/samples.h"
#include "levels/fir/psfir_taps.h"

namespace tarn {

inline constexpr int tapsOfPass = 4;

// Outputs of the narrowest register: the 16 bytes in which the table of the taps has its multiples.
template <typename T>
inline constexpr int blockLanes = 16 / static_cast<int>(sizeof(T));

// x times the tap, x being an element or a register of them.
template <typename X, typename T>
TARN_INLINE X tapProduct(const T* src, const Part<T>* tap)
{
    if constexpr (isPack<X>) {
        return TapLayout<T>::multiply(loadPack<X::size>(src), tap);
    } else {
        return TapLayout<T>::multiply(loadElement(src), tap);
    }
}

// The sum of one pass of `taps` taps, of which the last one in the table comes first.
template <int taps, typename X, typename T>
TARN_INLINE X passSum(const T* src, const Part<T>* tap)
{
    constexpr int width = TapLayout<T>::width;
    if constexpr (taps == 1) {
        return tapProduct<X>(src, tap);
    } else if constexpr (taps == 2) {
        return add(tapProduct<X>(src, tap), tapProduct<X>(src + 1, tap - width));
    } else if constexpr (taps == 3) {
        return add(passSum<2, X>(src, tap), tapProduct<X>(src + 2, tap - 2 * width));
    } else {
        static_assert(taps == tapsOfPass);
        return add(passSum<2, X>(src, tap), passSum<2, X>(src + 2, tap - 2 * width));
    }
}

// `count` registers, or elements, of outputs with all their passes. The sums stay in registers from pass to pass, which
// changes no bit.
template <typename X, int count, typename T>
struct Outputs {
    static constexpr int step = [] {
        if constexpr (isPack<X>) {
            return X::size;
        } else {
            return 1;
        }
    }();

    const T* src;
    const Part<T>* tap;
    X sums[count];

    template <int taps, bool first>
    TARN_INLINE void pass()
    {
        for (int i = 0; i < count; ++i) {
            const X sum = passSum<taps, X>(src + step * i, tap);
            sums[i] = first ? sum : add(sums[i], sum);
        }
        src += taps;
        tap -= TapLayout<T>::width * taps;
    }

    template <bool first>
    TARN_INLINE void shortPass(int taps)
    {
        if (taps == 3) {
            pass<3, first>();
        } else if (taps == 2) {
            pass<2, first>();
        } else {
            pass<1, first>();
        }
    }

    TARN_INLINE void load(const T* p)
    {
        for (int i = 0; i < count; ++i) {
            if constexpr (isPack<X>) {
                sums[i] = loadPack<step>(p + step * i);
            } else {
                sums[i] = loadElement(p + i);
            }
        }
    }

    TARN_INLINE void put(T* p) const
    {
        for (int i = 0; i < count; ++i) {
            store(p + step * i, sums[i]);
        }
    }
};

// With `more` the destination already has the sums of the passes before.
template <typename X, int count, bool more, typename T>
TARN_INLINE void filterOutputs(const Part<T>* table, const T* src, T* dst, int tapsLen)
{
    Outputs<X, count, T> outputs{src, table + TapLayout<T>::width * (tapsLen - 1), {}};
    int left = tapsLen;
    if constexpr (more) {
        outputs.load(dst);
    } else if (left < tapsOfPass) {
        outputs.template shortPass<true>(left);
        outputs.put(dst);
        return;
    } else {
        outputs.template pass<tapsOfPass, true>();
        left -= tapsOfPass;
    }
    for (; left >= tapsOfPass; left -= tapsOfPass) {
        outputs.template pass<tapsOfPass, false>();
    }
    if (left > 0) {
        outputs.template shortPass<false>(left);
    }
    outputs.put(dst);
}

// Registers of outputs between two walks over the taps: with two of them the four taps of a pass stay in registers. The
// widest level has twice the registers; nearly all of its loads of samples cross lines of the cache and take two slots,
// so that fewer loads of taps count.
inline constexpr int outputRegisters = widestRegister == 64 ? 4 : 2;

template <bool more = false, typename T>
void filterBlock(const Part<T>* table, const T* src, T* dst, int len, int tapsLen)
{
    constexpr int step = lanes<T>;
    constexpr int block = outputRegisters * step;
    int i = 0;
    for (; i <= len - block; i += block) {
        filterOutputs<Pack<T, step>, outputRegisters, more>(table, src + i, dst + i, tapsLen);
    }
    for (; i <= len - step; i += step) {
        filterOutputs<Pack<T, step>, 1, more>(table, src + i, dst + i, tapsLen);
    }
    if constexpr (step > blockLanes<T>) {
        for (; i <= len - blockLanes<T>; i += blockLanes<T>) {
            filterOutputs<Pack<T, blockLanes<T>>, 1, more>(table, src + i, dst + i, tapsLen);
        }
    }
    for (; i < len; ++i) {
        filterOutputs<T, 1, more>(table, src + i, dst + i, tapsLen);
    }
}

// -- Samples of another type ------------------------------------------------------------------------------------------

// What is converted at once: outputs, and taps in whole passes. Each sample is converted once for that many outputs
// instead of once a tap, and both lie in the first-level cache.
inline constexpr int convertedOutputs = 512;
inline constexpr int convertedTaps = 64 * tapsOfPass;

// The same with samples of type S. The destination holds the sums between one stretch of taps and the next.
template <typename T, typename S>
void filterConverted(const Part<T>* table, const S* src, T* dst, int len, int tapsLen)
{
    T samples[convertedOutputs + convertedTaps - 1];
    for (std::ptrdiff_t i = 0; i < len; i += convertedOutputs) {
        const int outputs = static_cast<int>(std::min<std::ptrdiff_t>(convertedOutputs, len - i));
        for (int j = 0; j < tapsLen; j += convertedTaps) {
            const int taps = std::min(convertedTaps, tapsLen - j);
            const Part<T>* const lastTaps = table + TapLayout<T>::width * (tapsLen - j - taps);
            samplesToTaps(src + i + j, samples, outputs + taps - 1);
            if (j == 0) {
                filterBlock(lastTaps, samples, dst + i, outputs, taps);
            } else {
                filterBlock<true>(lastTaps, samples, dst + i, outputs, taps);
            }
        }
    }
}

} // namespace tarn
