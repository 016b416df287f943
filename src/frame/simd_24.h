// 24-bit elements: three consecutive bytes, low byte first, as the walker's sources and destinations.
//
// Sixteen elements fill three registers. They are taken apart and put together by shifts of halves of a register, which
// hold two elements each.
#pragma once

#include "frame/simd_int.h"
#include "frame/simd_memory.h"

#include <cstddef>

namespace tarn {

// An element as it is stored, signed or not.
struct Stored24 {
    Tarn8u byte[3];
};
static_assert(sizeof(Stored24) == 3);

// As many as a register of bytes has, in three of them.
template <>
inline constexpr int registerLanes<Stored24> = registerBytes;

template <>
struct Pack<Stored24, registerBytes> {
    using Element = Stored24;
    static constexpr int size = registerBytes;
    Register<Tarn8u> first, second, third;
};

TARN_INLINE void store(Stored24* p, Register<Stored24> x)
{
    Tarn8u* const bytes = p->byte;
    store(bytes, x.first);
    store(bytes + registerBytes, x.second);
    store(bytes + 2 * registerBytes, x.third);
}

TARN_INLINE void storeStream(Stored24* p, Register<Stored24> x)
{
    Tarn8u* const bytes = p->byte;
    storeStream(bytes, x.first);
    storeStream(bytes + registerBytes, x.second);
    storeStream(bytes + 2 * registerBytes, x.third);
}

// An array of stored elements read as 32-bit ones, signed or not.
template <Integer W>
struct Source24 {
    using Element = Stored24;
    const Tarn8u* bytes;

    TARN_INLINE Source24 operator+(std::ptrdiff_t elements) const { return {bytes + 3 * elements}; }
};

template <Integer W>
TARN_INLINE W loadElement(Source24<W> source)
{
    const Tarn32s onTop =
        source.bytes[0] << 8 | source.bytes[1] << 16 | static_cast<Tarn8s>(source.bytes[2]) * 0x1000000;
    return static_cast<W>(static_cast<W>(onTop) >> 8);
}

// The four elements in the first twelve bytes.
template <Integer W>
TARN_INLINE Register<W> expand24(__m128i twelve)
{
    const __m128i pairs = _mm_unpacklo_epi64(twelve, _mm_srli_si128(twelve, 6));
    const __m128i even = _mm_and_si128(_mm_slli_epi64(pairs, 8), _mm_set_epi32(0, -0x100, 0, -0x100));
    const __m128i odd = _mm_and_si128(_mm_slli_epi64(pairs, 16), _mm_set_epi32(-0x100, 0, -0x100, 0));
    return ShiftRight::of(Register<W>{_mm_or_si128(even, odd)}, 8);
}

template <int N, Integer W>
TARN_INLINE Pack<W, N> loadPack(Source24<W> source)
{
    if constexpr (N > registerBytes) {
        return join(loadPack<N / 2>(source), loadPack<N / 2>(source + N / 2));
    } else {
        const auto at = [&](int byte) { return loadPack<registerBytes>(source.bytes + byte).v; };
        return join(join(expand24<W>(at(0)), expand24<W>(at(12))),
                    // The last four come with the bytes before them, since nothing is known of those behind.
                    join(expand24<W>(at(24)), expand24<W>(_mm_srli_si128(at(32), 4))));
    }
}

// The low 24 bits of each element.
struct Store24 {
    template <Integer W>
    static TARN_INLINE Stored24 of(W x)
    {
        return {{static_cast<Tarn8u>(x), static_cast<Tarn8u>(x >> 8), static_cast<Tarn8u>(x >> 16)}};
    }
    // Pairs of elements make 48 bits of 64. The first and the third register go together, and so do the others, so that
    // each half of a register holds pairs that are four apart, and four of them fill three words of either half.
    template <Integer W>
    static TARN_INLINE Register<Stored24> of(Pack<W, registerBytes> x)
    {
        const __m128i a = pairs(lowHalf(lowHalf(x)).v);
        const __m128i b = pairs(highHalf(lowHalf(x)).v);
        const __m128i c = pairs(lowHalf(highHalf(x)).v);
        const __m128i d = pairs(highHalf(highHalf(x)).v);
        const __m128i first = _mm_unpacklo_epi64(a, c);
        const __m128i second = _mm_unpackhi_epi64(a, c);
        const __m128i third = _mm_unpacklo_epi64(b, d);
        const __m128i fourth = _mm_unpackhi_epi64(b, d);
        const __m128i low = _mm_or_si128(first, _mm_slli_epi64(second, 48));
        const __m128i middle = _mm_or_si128(_mm_srli_epi64(second, 16), _mm_slli_epi64(third, 32));
        const __m128i high = _mm_or_si128(_mm_srli_epi64(third, 32), _mm_slli_epi64(fourth, 16));
        const __m128d across = _mm_shuffle_pd(_mm_castsi128_pd(high), _mm_castsi128_pd(low), 2);
        return {{_mm_unpacklo_epi64(low, middle)}, {_mm_castpd_si128(across)}, {_mm_unpackhi_epi64(middle, high)}};
    }

private:
    static TARN_INLINE __m128i pairs(__m128i x)
    {
        const __m128i even = _mm_and_si128(x, _mm_set_epi32(0, 0xFFFFFF, 0, 0xFFFFFF));
        const __m128i odd = _mm_and_si128(_mm_srli_epi64(x, 8), _mm_set_epi32(0xFFFF, -0x1000000, 0xFFFF, -0x1000000));
        return _mm_or_si128(even, odd);
    }
};
inline constexpr Word<Store24> store24;

} // namespace tarn
