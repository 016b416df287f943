// Words that move all lanes of a pack by one, across its registers.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

// Every lane gets what the next one has, the last one the first lane of `behind`; and the other way, where the first
// one gets the last lane of `before`.
template <typename T, int N>
TARN_INLINE Pack<T, N> fromNextLanes(Pack<T, N> x, Pack<T, N> behind)
{
    if constexpr (N > registerLanes<T>) {
        return {fromNextLanes(x.lo, x.hi), fromNextLanes(x.hi, behind.lo)};
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
        return {fromPreviousLanes(x.lo, before.hi), fromPreviousLanes(x.hi, x.lo)};
    } else {
        constexpr int bytes = static_cast<int>(sizeof(T));
        const __m128i up = _mm_slli_si128(reinterpret_cast<__m128i>(x.v), bytes);
        const __m128i first = _mm_srli_si128(reinterpret_cast<__m128i>(before.v), registerBytes - bytes);
        return {reinterpret_cast<Native<T>>(_mm_or_si128(up, first))};
    }
}

} // namespace tarn
