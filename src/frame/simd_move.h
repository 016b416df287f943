// Words that move elements and bytes without changing them.
#pragma once

#include "frame/simd_int.h"

namespace tarn {

// Leaves everything where it is.
struct Identity {
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return x;
    }
};

// The elements in opposite order; one element is its own reverse.
struct Reverse {
    template <typename T>
        requires(!isPack<T>)
    static TARN_INLINE T of(T x) { return x; }
    template <typename T, int N>
    static TARN_INLINE Pack<T, N> of(Pack<T, N> x)
    {
        if constexpr (fillsWideRegister<T, N> && sizeof(T) <= 8) {
            return {native::shuffle<sizeof(T), native::Backward>(x.v)};
        } else if constexpr (N > registerLanes<T>) {
            return {of(highHalf(x)), of(lowHalf(x))};
        } else if constexpr (N == 1) {
            return x;
        } else if constexpr (sizeof(T) == 8) {
            const __m128d both = reinterpret_cast<__m128d>(x.v);
            return {reinterpret_cast<Native<T>>(_mm_shuffle_pd(both, both, 1))};
        } else if constexpr (sizeof(T) == 4) {
            return {reinterpret_cast<Native<T>>(_mm_shuffle_epi32(reinterpret_cast<__m128i>(x.v), 0x1B))};
        } else if constexpr (sizeof(T) == 2) {
            const __m128i inHalves = _mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0x1B), 0x1B);
            return {_mm_shuffle_epi32(inHalves, 0x4E)};
        } else {
            static_assert(sizeof(T) == 1);
            // Of the two shifts one is done as a product: they would wait for the same ports as the three shuffles.
            const __m128i pairs = of(Register<Tarn16u>{x.v}).v;
            return {_mm_or_si128(_mm_slli_epi16(pairs, 8), _mm_mulhi_epu16(pairs, _mm_set1_epi16(256)))};
        }
    }
};
inline constexpr Word<Reverse> reverse;

// Elements of so many parts in opposite order; each keeps its parts as they are.
template <int parts, Float T, int N>
TARN_INLINE Pack<T, N> reverseElements(Pack<T, N> x)
{
    if constexpr (parts == 1) {
        return reverse(x);
    } else if constexpr (N > registerLanes<T>) {
        return {reverseElements<parts>(highHalf(x)), reverseElements<parts>(lowHalf(x))};
    } else if constexpr (registerLanes<T> == parts) {
        return x;
    } else {
        static_assert(isSingle<T> && parts == 2);
        return reinterpretPack<T>(reverse(reinterpretPack<Tarn32fc>(x)));
    }
}

// The bytes within each element in opposite order.
struct SwapBytes {
    static TARN_INLINE Tarn16u of(Tarn16u x) { return __builtin_bswap16(x); }
    static TARN_INLINE Tarn32u of(Tarn32u x) { return __builtin_bswap32(x); }
    template <AnyRegister R>
        requires WideRegister<R>
    static TARN_INLINE R of(R x) { return {native::shuffle<1, native::BytesBackward<sizeof(Element<R>)>>(x.v)}; }
    static TARN_INLINE Register<Tarn16u> of(Register<Tarn16u> x)
    {
        return {_mm_or_si128(_mm_slli_epi16(x.v, 8), _mm_srli_epi16(x.v, 8))};
    }
    static TARN_INLINE Register<Tarn32u> of(Register<Tarn32u> x)
    {
        const __m128i halves = _mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0xB1), 0xB1);
        return {of(Register<Tarn16u>{halves}).v};
    }
};
inline constexpr Word<SwapBytes> swapBytes;

// Vectors only: every byte n places up or down the register, zeros behind it.
template <int n, typename T>
TARN_INLINE Register<T> shiftBytesUp(Register<T> x)
{
    return {_mm_slli_si128(x.v, n)};
}
template <int n, typename T>
TARN_INLINE Register<T> shiftBytesDown(Register<T> x)
{
    return {_mm_srli_si128(x.v, n)};
}

} // namespace tarn
