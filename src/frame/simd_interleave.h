// Words that take elements apart by even and odd places, and weave several vectors into one run of elements.
#pragma once

#include "frame/simd_pack.h"

#include <array>

namespace tarn {

// The elements of two vectors in turn, a0 b0 a1 b1 ...: the lower and the upper half of them.
struct ZipLow {
    template <typename T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (isSingle<T>) {
            return {_mm_unpacklo_ps(a.v, b.v)};
        } else if constexpr (isDouble<T>) {
            return {_mm_unpacklo_pd(a.v, b.v)};
        } else {
            static_assert(sizeof(T) == 2);
            return {_mm_unpacklo_epi16(a.v, b.v)};
        }
    }
};
struct ZipHigh {
    template <typename T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (isSingle<T>) {
            return {_mm_unpackhi_ps(a.v, b.v)};
        } else if constexpr (isDouble<T>) {
            return {_mm_unpackhi_pd(a.v, b.v)};
        } else {
            static_assert(sizeof(T) == 2);
            return {_mm_unpackhi_epi16(a.v, b.v)};
        }
    }
};

// The elements at even places of twice as many.
template <typename T, int N>
TARN_INLINE Vector<T> evenElements(Pack<T, N> x)
{
    static_assert(N == 2 * lanes<T>);
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_shuffle_ps(x.lo.v, x.hi.v, 0x88)};
    } else if constexpr (std::is_same_v<T, Tarn64f>) {
        return {_mm_unpacklo_pd(x.lo.v, x.hi.v)};
    } else {
        // Each with its sign in the place of its neighbour: nothing is left for the packing to saturate.
        static_assert(std::is_same_v<T, Tarn16s>);
        return {_mm_packs_epi32(_mm_srai_epi32(_mm_slli_epi32(x.lo.v, 16), 16),
                                _mm_srai_epi32(_mm_slli_epi32(x.hi.v, 16), 16))};
    }
}

// The elements of a vector at even places, or at odd ones, of a pack of zeros.
template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> spreadEven(Pack<T, N> x)
{
    const auto zero = splat<Pack<T, N>>(T{0});
    return {ZipLow::of(x, zero), ZipHigh::of(x, zero)};
}
template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> spreadOdd(Pack<T, N> x)
{
    const auto zero = splat<Pack<T, N>>(T{0});
    return {ZipLow::of(zero, x), ZipHigh::of(zero, x)};
}

// Channels woven into frames: the vectors in the order in which their elements lie in memory, one element of each
// channel, then the next one of each. A weave of the even channels zipped with one of the odd ones.
template <typename T, std::size_t Channels>
TARN_INLINE std::array<Vector<T>, Channels> weave(const std::array<Vector<T>, Channels>& channels)
{
    if constexpr (Channels == 1) {
        return channels;
    } else {
        std::array<Vector<T>, Channels / 2> even, odd;
        for (std::size_t i = 0; i < Channels / 2; ++i) {
            even[i] = channels[2 * i];
            odd[i] = channels[2 * i + 1];
        }
        even = weave(even);
        odd = weave(odd);
        std::array<Vector<T>, Channels> woven;
        for (std::size_t i = 0; i < Channels / 2; ++i) {
            woven[2 * i] = ZipLow::of(even[i], odd[i]);
            woven[2 * i + 1] = ZipHigh::of(even[i], odd[i]);
        }
        return woven;
    }
}

// The lower and the upper half of a vector, each to a place of its own.
template <typename T>
TARN_INLINE void storeHalves(T* low, T* high, Vector<T> x)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(low), reinterpret_cast<__m128i>(x.v));
    _mm_storeh_pi(reinterpret_cast<__m64*>(high), reinterpret_cast<__m128>(x.v));
}

} // namespace tarn
