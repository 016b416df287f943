// Words for runs of elements that overlap: lanes moved across the registers of packs, and addresses.
#pragma once

#include "frame/simd_float.h"

namespace tarn {

// Every lane gets what the next one has, the last one the first lane of `behind`; and the other way, where the first
// one gets the last lane of `before`.
template <typename T, int N>
TARN_INLINE Pack<T, N> fromNextLanes(Pack<T, N> x, Pack<T, N> behind)
{
    if constexpr (N > registerLanes<T>) {
        return {fromNextLanes(lowHalf(x), highHalf(x)), fromNextLanes(highHalf(x), lowHalf(behind))};
    } else {
        constexpr int bytes = static_cast<int>(sizeof(T));
        const __m128i down = _mm_srli_si128(reinterpret_cast<__m128i>(x.v), bytes);
        const __m128i last = _mm_slli_si128(reinterpret_cast<__m128i>(behind.v), registerBytes - bytes);
        return {reinterpret_cast<Native<T>>(_mm_or_si128(down, last))};
    }
}
template <typename T, int N>
TARN_INLINE Pack<T, N> fromPreviousLanes(Pack<T, N> x, Pack<T, N> before)
{
    if constexpr (N > registerLanes<T>) {
        return {fromPreviousLanes(lowHalf(x), highHalf(before)), fromPreviousLanes(highHalf(x), lowHalf(x))};
    } else {
        constexpr int bytes = static_cast<int>(sizeof(T));
        const __m128i up = _mm_slli_si128(reinterpret_cast<__m128i>(x.v), bytes);
        const __m128i first = _mm_srli_si128(reinterpret_cast<__m128i>(before.v), registerBytes - bytes);
        return {reinterpret_cast<Native<T>>(_mm_or_si128(up, first))};
    }
}

// N of the lanes that a and b have one behind the other, from lane k of a on.
template <int k, Float T, int N>
TARN_INLINE Pack<T, N> slide(Pack<T, N> a, Pack<T, N> b)
{
    if constexpr (k == 0) {
        return a;
    } else if constexpr (N > registerLanes<T> && k >= N / 2) {
        return {slide<k - N / 2>(highHalf(a), lowHalf(b)), slide<k - N / 2>(lowHalf(b), highHalf(b))};
    } else if constexpr (N > registerLanes<T>) {
        return {slide<k>(lowHalf(a), highHalf(a)), slide<k>(highHalf(a), lowHalf(b))};
    } else if constexpr (isDouble<T>) {
        return {_mm_shuffle_pd(a.v, b.v, 1)};
    } else {
        // Odd places are half of the middle and half of a neighbour.
        const __m128 middle = _mm_shuffle_ps(a.v, b.v, 0x4E);
        if constexpr (k == 1) {
            return {_mm_shuffle_ps(a.v, middle, 0x99)};
        } else if constexpr (k == 2) {
            return {middle};
        } else {
            return {_mm_shuffle_ps(middle, b.v, 0x99)};
        }
    }
}

// An address of which the compiler is to know nothing more: in loops over what overlaps from turn to turn it would keep
// what it has loaded, in more registers than there are.
template <typename T>
TARN_INLINE void settleAddress(T*& p)
{
    asm volatile("" : "+r"(p));
}

} // namespace tarn
