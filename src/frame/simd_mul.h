// Words that multiply integers exactly.
#pragma once

#include "frame/simd_convert.h"

namespace tarn {

// The 64-bit products of the signed 32-bit lanes at even places, and of those at odd ones. The instruction takes lanes
// for unsigned: a negative operand counts 2^32 too much, which is the other operand too much in the upper half.
struct EvenOddProducts {
    __m128i even, odd;
};
TARN_INLINE EvenOddProducts evenOddProducts(__m128i a, __m128i b)
{
    const __m128i excess =
        _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(a, 31), b), _mm_and_si128(_mm_srai_epi32(b, 31), a));
    const __m128i upperHalves = _mm_slli_epi64(_mm_set1_epi32(-1), 32);
    return {
        _mm_sub_epi64(_mm_mul_epu32(a, b), _mm_slli_epi64(excess, 32)),
        _mm_sub_epi64(_mm_mul_epu32(_mm_srli_epi64(a, 32), _mm_srli_epi64(b, 32)), _mm_and_si128(excess, upperHalves))};
}

// a times b in twice the width; both operands are bytes, words of which the second is signed, or signed and 32 bits.
struct MulWidened {
    static TARN_INLINE Tarn16u of(Tarn8u a, Tarn8u b) { return static_cast<Tarn16u>(a * b); }
    static TARN_INLINE Tarn32s of(Tarn16s a, Tarn16s b) { return Tarn32s{a} * b; }
    static TARN_INLINE Tarn32s of(Tarn16u a, Tarn16s b) { return Tarn32s{a} * b; }
    static TARN_INLINE Tarn64s of(Tarn32s a, Tarn32s b) { return Tarn64s{a} * b; }
    static TARN_INLINE auto of(Register<Tarn8u> a, Register<Tarn8u> b)
    {
        const auto x = widen(a);
        const auto y = widen(b);
        return Pack<Tarn16u, 2 * registerLanes<Tarn16u>>{{_mm_mullo_epi16(x.lo.v, y.lo.v)},
                                                         {_mm_mullo_epi16(x.hi.v, y.hi.v)}};
    }
    static TARN_INLINE auto of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return fromHalves(_mm_mullo_epi16(a.v, b.v), _mm_mulhi_epi16(a.v, b.v));
    }
    // The unsigned product takes a negative b for b + 2^16, which is a too much in the upper half.
    static TARN_INLINE auto of(Register<Tarn16u> a, Register<Tarn16s> b)
    {
        const __m128i excess = _mm_and_si128(a.v, _mm_srai_epi16(b.v, 15));
        return fromHalves(_mm_mullo_epi16(a.v, b.v), _mm_sub_epi16(_mm_mulhi_epu16(a.v, b.v), excess));
    }
    static TARN_INLINE auto of(Register<Tarn32s> a, Register<Tarn32s> b)
    {
        const auto [even, odd] = evenOddProducts(a.v, b.v);
        return Pack<Tarn64s, 2 * registerLanes<Tarn64s>>{{_mm_unpacklo_epi64(even, odd)},
                                                         {_mm_unpackhi_epi64(even, odd)}};
    }

private:
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> fromHalves(__m128i low, __m128i high)
    {
        return {{_mm_unpacklo_epi16(low, high)}, {_mm_unpackhi_epi16(low, high)}};
    }
};
inline constexpr Word<MulWidened> mulWidened;

// a times b plus c in twice the width.
struct MulAddWidened {
    static TARN_INLINE Tarn32s of(Tarn16s a, Tarn16s b, Tarn16s c) { return Tarn32s{a} * b + c; }
    // The sum of the pair product (a, c) (b, 1).
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(Register<Tarn16s> a, Register<Tarn16s> b,
                                                                    Register<Tarn16s> c)
    {
        const __m128i one = _mm_set1_epi16(1);
        return {{_mm_madd_epi16(_mm_unpacklo_epi16(a.v, c.v), _mm_unpacklo_epi16(b.v, one))},
                {_mm_madd_epi16(_mm_unpackhi_epi16(a.v, c.v), _mm_unpackhi_epi16(b.v, one))}};
    }
};
inline constexpr Word<MulAddWidened> mulAddWidened;

// The squares of unsigned elements, in their order.
struct Squares {
    static TARN_INLINE Pack<Tarn32u, 2 * registerLanes<Tarn32u>> of(Register<Tarn16u> x)
    {
        const __m128i low = _mm_mullo_epi16(x.v, x.v);
        const __m128i high = _mm_mulhi_epu16(x.v, x.v);
        return {{_mm_unpacklo_epi16(low, high)}, {_mm_unpackhi_epi16(low, high)}};
    }
};
inline constexpr Word<Squares> squares;

// The sum of the products of a pair of elements, or of the two parts of a complex one, modulo 2^32. It leaves 32 bits
// in one case: 2^31, from four times the lowest element. With the parts of b turned and signed to suit it is either
// part of a complex product.
struct MulAddPairs {
    static TARN_INLINE Tarn32s of(Tarn16sc a, Tarn16sc b)
    {
        return AddInteger::of(Tarn32s{a.re} * b.re, Tarn32s{a.im} * b.im);
    }
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn16sc> a, Register<Tarn16sc> b)
    {
        return {_mm_madd_epi16(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return {_mm_madd_epi16(a.v, b.v)};
    }
};
inline constexpr Word<MulAddPairs> mulAddPairs;

} // namespace tarn
