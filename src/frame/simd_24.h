// 24-bit elements: three consecutive bytes, low byte first, as the walker's sources and destinations.
//
// Sixteen elements fill three registers, and four of them the first twelve bytes of one: there they are taken apart and
// put together by shifts of its halves, which hold two elements each.
#pragma once

#include "frame/simd.h"

namespace tarn {

// An element as it is stored, signed or not.
struct Stored24 {
    Tarn8u byte[3];
};
static_assert(sizeof(Stored24) == 3);

template <>
inline constexpr int lanes<Stored24> = vectorBytes;

template <>
struct Pack<Stored24, vectorBytes> {
    using Element = Stored24;
    static constexpr int size = vectorBytes;
    Vector<Tarn8u> first, second, third;
};

TARN_INLINE void store(Stored24* p, Pack<Stored24, vectorBytes> x)
{
    Tarn8u* const bytes = p->byte;
    store(bytes, x.first);
    store(bytes + vectorBytes, x.second);
    store(bytes + 2 * vectorBytes, x.third);
}

TARN_INLINE void storeStream(Stored24* p, Pack<Stored24, vectorBytes> x)
{
    Tarn8u* const bytes = p->byte;
    storeStream(bytes, x.first);
    storeStream(bytes + vectorBytes, x.second);
    storeStream(bytes + 2 * vectorBytes, x.third);
}

// An array of stored elements read as 32-bit ones, signed or not.
template <Integer W>
struct Source24 {
    using Element = Stored24;
    const Tarn8u* bytes;

    TARN_INLINE Source24 operator+(int elements) const { return {bytes + 3 * elements}; }
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
TARN_INLINE Vector<W> expand24(__m128i twelve)
{
    const __m128i pairs = _mm_unpacklo_epi64(twelve, _mm_srli_si128(twelve, 6));
    const __m128i even = _mm_and_si128(_mm_slli_epi64(pairs, 8), _mm_set_epi32(0, -0x100, 0, -0x100));
    const __m128i odd = _mm_and_si128(_mm_slli_epi64(pairs, 16), _mm_set_epi32(-0x100, 0, -0x100, 0));
    return ShiftRight::of(Vector<W>{_mm_or_si128(even, odd)}, 8);
}

template <int N, Integer W>
TARN_INLINE Pack<W, N> loadPack(Source24<W> source)
{
    static_assert(N == vectorBytes);
    const auto at = [&](int byte) { return loadPack<vectorBytes>(source.bytes + byte).v; };
    return join(join(expand24<W>(at(0)), expand24<W>(at(12))),
                // The last four come with the bytes before them, since nothing is known of those behind.
                join(expand24<W>(at(24)), expand24<W>(_mm_srli_si128(at(32), 4))));
}

// The low 24 bits of each element.
struct Store24 {
    template <Integer W>
    static TARN_INLINE Stored24 of(W x)
    {
        return {{static_cast<Tarn8u>(x), static_cast<Tarn8u>(x >> 8), static_cast<Tarn8u>(x >> 16)}};
    }
    template <Integer W>
    static TARN_INLINE Pack<Stored24, vectorBytes> of(Pack<W, vectorBytes> x)
    {
        const __m128i a = twelve(x.lo.lo.v);
        const __m128i b = twelve(x.lo.hi.v);
        const __m128i c = twelve(x.hi.lo.v);
        const __m128i d = twelve(x.hi.hi.v);
        return {{_mm_or_si128(a, _mm_slli_si128(b, 12))},
                {_mm_or_si128(_mm_srli_si128(b, 4), _mm_slli_si128(c, 8))},
                {_mm_or_si128(_mm_srli_si128(c, 8), _mm_slli_si128(d, 4))}};
    }

private:
    static TARN_INLINE __m128i twelve(__m128i x)
    {
        const __m128i even = _mm_and_si128(x, _mm_set_epi32(0, 0xFFFFFF, 0, 0xFFFFFF));
        const __m128i odd = _mm_and_si128(_mm_srli_epi64(x, 8), _mm_set_epi32(0xFFFF, -0x1000000, 0xFFFF, -0x1000000));
        const __m128i pairs = _mm_or_si128(even, odd);
        const __m128i upper = _mm_unpackhi_epi64(pairs, _mm_setzero_si128());
        return _mm_or_si128(_mm_move_epi64(pairs), _mm_slli_si128(upper, 6));
    }
};
inline constexpr Word<Store24> store24;

} // namespace tarn
