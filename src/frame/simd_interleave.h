// Words that take elements apart by even and odd places, weave several vectors into one run of elements, and turn rows
// into columns.
#pragma once

#include "frame/simd_pack.h"

#include <array>

namespace tarn {

// The elements of two packs in turn, a0 b0 a1 b1 ...
struct Zip {
    template <AnyRegister R>
    static TARN_INLINE TwiceAs<R> of(R a, R b)
    {
        return {low(a, b), high(a, b)};
    }
    template <WideRegister R>
    static TARN_INLINE R low(R a, R b)
    {
        return {native::shuffle<sizeof(Element<R>), native::ZipLow>(a.v, b.v)};
    }
    template <WideRegister R>
    static TARN_INLINE R high(R a, R b)
    {
        return {native::shuffle<sizeof(Element<R>), native::ZipHigh>(a.v, b.v)};
    }
    template <typename T>
    static TARN_INLINE Register<T> low(Register<T> a, Register<T> b)
    {
        if constexpr (registerLanes<T> == 1) {
            return a;
        } else if constexpr (isSingle<T>) {
            return {_mm_unpacklo_ps(a.v, b.v)};
        } else if constexpr (isDouble<T>) {
            return {_mm_unpacklo_pd(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {_mm_unpacklo_epi32(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {_mm_unpacklo_epi16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 8) {
            return {_mm_unpacklo_epi64(a.v, b.v)};
        } else {
            static_assert(sizeof(T) == 1);
            return {_mm_unpacklo_epi8(a.v, b.v)};
        }
    }
    template <typename T>
    static TARN_INLINE Register<T> high(Register<T> a, Register<T> b)
    {
        if constexpr (registerLanes<T> == 1) {
            return b;
        } else if constexpr (isSingle<T>) {
            return {_mm_unpackhi_ps(a.v, b.v)};
        } else if constexpr (isDouble<T>) {
            return {_mm_unpackhi_pd(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {_mm_unpackhi_epi32(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {_mm_unpackhi_epi16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 8) {
            return {_mm_unpackhi_epi64(a.v, b.v)};
        } else {
            static_assert(sizeof(T) == 1);
            return {_mm_unpackhi_epi8(a.v, b.v)};
        }
    }
};
inline constexpr Word<Zip> zip;

// The lower half of what zip gives, and the upper half.
template <typename T, int N>
TARN_INLINE Pack<T, N> zipLow(Pack<T, N> a, Pack<T, N> b)
{
    if constexpr (isOneRegister<T, N>) {
        return Zip::low(a, b);
    } else {
        return zip(lowHalf(a), lowHalf(b));
    }
}
template <typename T, int N>
TARN_INLINE Pack<T, N> zipHigh(Pack<T, N> a, Pack<T, N> b)
{
    if constexpr (isOneRegister<T, N>) {
        return Zip::high(a, b);
    } else {
        return zip(highHalf(a), highHalf(b));
    }
}

// Every element twice: one real factor for both parts of a complex element.
template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> twice(Pack<T, N> x)
{
    return zip(x, x);
}

// The elements at even places of twice as many, and those at odd ones.
struct EvenElements {
    template <typename T, int N>
        requires(N > registerLanes<T> && isOneRegister<T, N / 2>)
    static TARN_INLINE Pack<T, N / 2> of(Pack<T, N> x)
    {
        if constexpr (WideRegister<Pack<T, N / 2>>) {
            return {native::shuffle<sizeof(T), native::Even>(lowHalf(x).v, highHalf(x).v)};
        } else if constexpr (registerLanes<T> == 1) {
            return lowHalf(x);
        } else if constexpr (sizeof(T) == 4) {
            return {reinterpret_cast<Native<T>>(
                _mm_shuffle_ps(reinterpret_cast<__m128>(lowHalf(x).v), reinterpret_cast<__m128>(highHalf(x).v), 0x88))};
        } else if constexpr (std::is_same_v<T, Tarn64s>) {
            return {_mm_unpacklo_epi64(lowHalf(x).v, highHalf(x).v)};
        } else if constexpr (std::is_same_v<T, Tarn64f>) {
            return {_mm_unpacklo_pd(lowHalf(x).v, highHalf(x).v)};
        } else {
            // Each with its sign in the place of its neighbour: nothing is left for the packing to saturate.
            static_assert(std::is_same_v<T, Tarn16s>);
            return {_mm_packs_epi32(_mm_srai_epi32(_mm_slli_epi32(lowHalf(x).v, 16), 16),
                                    _mm_srai_epi32(_mm_slli_epi32(highHalf(x).v, 16), 16))};
        }
    }
};
inline constexpr Word<EvenElements> evenElements;
struct OddElements {
    template <typename T, int N>
        requires(N > registerLanes<T> && isOneRegister<T, N / 2>)
    static TARN_INLINE Pack<T, N / 2> of(Pack<T, N> x)
    {
        if constexpr (WideRegister<Pack<T, N / 2>>) {
            return {native::shuffle<sizeof(T), native::Odd>(lowHalf(x).v, highHalf(x).v)};
        } else if constexpr (registerLanes<T> == 1) {
            return highHalf(x);
        } else if constexpr (sizeof(T) == 4) {
            return {reinterpret_cast<Native<T>>(
                _mm_shuffle_ps(reinterpret_cast<__m128>(lowHalf(x).v), reinterpret_cast<__m128>(highHalf(x).v), 0xDD))};
        } else if constexpr (std::is_same_v<T, Tarn64s>) {
            return {_mm_unpackhi_epi64(lowHalf(x).v, highHalf(x).v)};
        } else {
            static_assert(std::is_same_v<T, Tarn64f>);
            return {_mm_unpackhi_pd(lowHalf(x).v, highHalf(x).v)};
        }
    }
};
inline constexpr Word<OddElements> oddElements;

// The elements of a vector at even places, or at odd ones, of a pack of zeros.
template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> spreadEven(Pack<T, N> x)
{
    return zip(x, splat<Pack<T, N>>(T{}));
}
template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> spreadOdd(Pack<T, N> x)
{
    return zip(splat<Pack<T, N>>(T{}), x);
}

// The lower halves of two packs, and the upper halves.
template <typename T, int N>
TARN_INLINE Pack<T, N> lowHalves(Pack<T, N> a, Pack<T, N> b)
{
    if constexpr (fillsWideRegister<T, N>) {
        return {native::shuffle<registerBytes / 2, native::LowHalves>(a.v, b.v)};
    } else if constexpr (N > registerLanes<T>) {
        return {lowHalf(a), lowHalf(b)};
    } else if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_movelh_ps(a.v, b.v)};
    } else {
        return {_mm_unpacklo_pd(a.v, b.v)};
    }
}
template <typename T, int N>
TARN_INLINE Pack<T, N> highHalves(Pack<T, N> a, Pack<T, N> b)
{
    if constexpr (fillsWideRegister<T, N>) {
        return {native::shuffle<registerBytes / 2, native::HighHalves>(a.v, b.v)};
    } else if constexpr (N > registerLanes<T>) {
        return {highHalf(a), highHalf(b)};
    } else if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_movehl_ps(b.v, a.v)};
    } else {
        return {_mm_unpackhi_pd(a.v, b.v)};
    }
}

// Channels woven into frames: the vectors in the order in which their elements lie in memory, one element of each
// channel, then the next one of each. A weave of the even channels zipped with one of the odd ones.
template <typename T, int N, std::size_t Channels>
TARN_INLINE std::array<Pack<T, N>, Channels> weave(const std::array<Pack<T, N>, Channels>& channels)
{
    if constexpr (Channels == 1) {
        return channels;
    } else {
        std::array<Pack<T, N>, Channels / 2> even, odd;
        for (std::size_t i = 0; i < Channels / 2; ++i) {
            even[i] = channels[2 * i];
            odd[i] = channels[2 * i + 1];
        }
        even = weave(even);
        odd = weave(odd);
        std::array<Pack<T, N>, Channels> woven;
        for (std::size_t i = 0; i < Channels / 2; ++i) {
            woven[2 * i] = zipLow(even[i], odd[i]);
            woven[2 * i + 1] = zipHigh(even[i], odd[i]);
        }
        return woven;
    }
}

// As many rows as a register has lanes, turned into columns.
template <typename T>
using Square = std::array<Register<T>, registerLanes<T>>;

template <typename T>
TARN_INLINE Square<T> transpose(Square<T> rows)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        const __m128 low01 = _mm_unpacklo_ps(rows[0].v, rows[1].v);
        const __m128 low23 = _mm_unpacklo_ps(rows[2].v, rows[3].v);
        const __m128 high01 = _mm_unpackhi_ps(rows[0].v, rows[1].v);
        const __m128 high23 = _mm_unpackhi_ps(rows[2].v, rows[3].v);
        return {Register<T>{_mm_movelh_ps(low01, low23)}, Register<T>{_mm_movehl_ps(low23, low01)},
                Register<T>{_mm_movelh_ps(high01, high23)}, Register<T>{_mm_movehl_ps(high23, high01)}};
    } else {
        return {Register<T>{_mm_unpacklo_pd(rows[0].v, rows[1].v)}, Register<T>{_mm_unpackhi_pd(rows[0].v, rows[1].v)}};
    }
}

} // namespace tarn
