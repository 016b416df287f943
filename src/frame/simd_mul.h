// Words that multiply integers exactly.
#pragma once

#include "frame/simd_convert.h"
#include "frame/simd_interleave.h"

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
    template <RegisterOf<Tarn8u> R>
    static TARN_INLINE auto of(R a, R b)
    {
        return lowProducts(widen(a), widen(b));
    }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE auto of(R a, R b)
    {
        return fromHalves(R{native::mulLow16(a.v, b.v)}, R{native::mulHigh16s(a.v, b.v)});
    }
    // The unsigned product takes a negative b for b + 2^16, which is a too much in the upper half.
    template <RegisterOf<Tarn16u> R>
    static TARN_INLINE auto of(R a, Like<R, Tarn16s> b)
    {
        const auto excess = native::bitAnd(a.v, ShiftRight::of(b, 15).v);
        return fromHalves(R{native::mulLow16(a.v, b.v)}, R{native::sub16(native::mulHigh16u(a.v, b.v), excess)});
    }
    template <RegisterOf<Tarn32s> R>
        requires WideRegister<R>
    static TARN_INLINE Like<R, Tarn64s> of(R a, R b)
    {
        using Products = SameBytes<R, Tarn64s>;
        const auto upper = [](R x) { return ShiftRightLogical::of(Products{x.v}, 32).v; };
        const Products even{native::mulEven32s(a.v, b.v)};
        const Products odd{native::mulEven32s(upper(a), upper(b))};
        return zip(even, odd);
    }
    static TARN_INLINE auto of(Register<Tarn32s> a, Register<Tarn32s> b)
    {
        const auto [even, odd] = evenOddProducts(a.v, b.v);
        return Pack<Tarn64s, 2 * registerLanes<Tarn64s>>{{_mm_unpacklo_epi64(even, odd)},
                                                         {_mm_unpackhi_epi64(even, odd)}};
    }

private:
    template <int N>
    static TARN_INLINE Pack<Tarn16u, N> lowProducts(Pack<Tarn16s, N> x, Pack<Tarn16s, N> y)
    {
        if constexpr (isOneRegister<Tarn16s, N>) {
            return {native::mulLow16(x.v, y.v)};
        } else {
            return join(lowProducts(lowHalf(x), lowHalf(y)), lowProducts(highHalf(x), highHalf(y)));
        }
    }
    template <AnyRegister R>
    static TARN_INLINE Like<R, Tarn32s> fromHalves(R low, R high)
    {
        return reinterpretPack<Tarn32s>(zip(low, high));
    }
};
inline constexpr Word<MulWidened> mulWidened;

// What is made in lanes leaves the elements of a wider register in the order of its instructions, which work within
// each 16 bytes and need no others then; narrowSaturatedInLanes brings them back.

// a times b in twice the width, in lanes.
struct MulWidenedInLanes {
    static TARN_INLINE Tarn32s of(Tarn16s a, Tarn16s b) { return MulWidened::of(a, b); }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE Like<R, Tarn32s> of(R a, R b)
    {
        const auto low = native::mulLow16(a.v, b.v);
        const auto high = native::mulHigh16s(a.v, b.v);
        using Half = SameBytes<R, Tarn32s>;
        return join(Half{native::zipLow16InLanes(low, high)}, Half{native::zipHigh16InLanes(low, high)});
    }
};
inline constexpr Word<MulWidenedInLanes> mulWidenedInLanes;

// a times b plus c in twice the width, in lanes: the sum of the pair product (a, c) (b, 1).
struct MulAddWidenedInLanes {
    static TARN_INLINE Tarn32s of(Tarn16s a, Tarn16s b, Tarn16s c) { return Tarn32s{a} * b + c; }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE Like<R, Tarn32s> of(R a, R b, R c)
    {
        using Half = SameBytes<R, Tarn32s>;
        const auto one = splat<R>(1).v;
        return join(Half{native::mulAddPairs(native::zipLow16InLanes(a.v, c.v), native::zipLow16InLanes(b.v, one))},
                    Half{native::mulAddPairs(native::zipHigh16InLanes(a.v, c.v), native::zipHigh16InLanes(b.v, one))});
    }
};
inline constexpr Word<MulAddWidenedInLanes> mulAddWidenedInLanes;

// The squares of unsigned elements, in their order.
struct Squares {
    template <RegisterOf<Tarn16u> R>
    static TARN_INLINE Like<R, Tarn32u> of(R x)
    {
        return reinterpretPack<Tarn32u>(zip(R{native::mulLow16(x.v, x.v)}, R{native::mulHigh16u(x.v, x.v)}));
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
    template <AnyRegister R>
        requires std::is_same_v<Part<Element<R>>, Tarn16s>
    static TARN_INLINE SameBytes<R, Tarn32s> of(R a, R b) { return {native::mulAddPairs(a.v, b.v)}; }
};
inline constexpr Word<MulAddPairs> mulAddPairs;

} // namespace tarn
