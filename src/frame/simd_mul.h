// Words that multiply: exact integer products, complex products, and the way of 32-bit products through doubles.
#pragma once

#include "frame/simd.h"

namespace tarn {

// -- Exact products of real elements ---------------------------------------------------------------------------------

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
    static TARN_INLINE auto of(Vector<Tarn8u> a, Vector<Tarn8u> b)
    {
        const auto x = widen(a);
        const auto y = widen(b);
        return Pack<Tarn16u, 2 * lanes<Tarn16u>>{{_mm_mullo_epi16(x.lo.v, y.lo.v)}, {_mm_mullo_epi16(x.hi.v, y.hi.v)}};
    }
    static TARN_INLINE auto of(Vector<Tarn16s> a, Vector<Tarn16s> b)
    {
        return fromHalves(_mm_mullo_epi16(a.v, b.v), _mm_mulhi_epi16(a.v, b.v));
    }
    // The unsigned product takes a negative b for b + 2^16, which is a too much in the upper half.
    static TARN_INLINE auto of(Vector<Tarn16u> a, Vector<Tarn16s> b)
    {
        const __m128i excess = _mm_and_si128(a.v, _mm_srai_epi16(b.v, 15));
        return fromHalves(_mm_mullo_epi16(a.v, b.v), _mm_sub_epi16(_mm_mulhi_epu16(a.v, b.v), excess));
    }
    static TARN_INLINE auto of(Vector<Tarn32s> a, Vector<Tarn32s> b)
    {
        const auto [even, odd] = evenOddProducts(a.v, b.v);
        return Pack<Tarn64s, 2 * lanes<Tarn64s>>{{_mm_unpacklo_epi64(even, odd)}, {_mm_unpackhi_epi64(even, odd)}};
    }

private:
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> fromHalves(__m128i low, __m128i high)
    {
        return {{_mm_unpacklo_epi16(low, high)}, {_mm_unpackhi_epi16(low, high)}};
    }
};
inline constexpr Word<MulWidened> mulWidened;

// a times b plus c in twice the width.
struct MulAddWidened {
    static TARN_INLINE Tarn32s of(Tarn16s a, Tarn16s b, Tarn16s c) { return Tarn32s{a} * b + c; }
    // The sum of the pair product (a, c) (b, 1).
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> of(Vector<Tarn16s> a, Vector<Tarn16s> b, Vector<Tarn16s> c)
    {
        const __m128i one = _mm_set1_epi16(1);
        return {{_mm_madd_epi16(_mm_unpacklo_epi16(a.v, c.v), _mm_unpacklo_epi16(b.v, one))},
                {_mm_madd_epi16(_mm_unpackhi_epi16(a.v, c.v), _mm_unpackhi_epi16(b.v, one))}};
    }
};
inline constexpr Word<MulAddWidened> mulAddWidened;

// -- Complex products ------------------------------------------------------------------------------------------------

// a.re b.re + a.im b.im modulo 2^32: with the parts of b turned and signed to suit, either part of a product.
struct DotParts {
    static TARN_INLINE Tarn32s of(Tarn16sc a, Tarn16sc b)
    {
        return AddInteger::of(Tarn32s{a.re} * b.re, Tarn32s{a.im} * b.im);
    }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn16sc> a, Vector<Tarn16sc> b) { return {_mm_madd_epi16(a.v, b.v)}; }
};
inline constexpr Word<DotParts> dotParts;

// Complex elements of the given parts.
struct JoinParts {
    static TARN_INLINE Tarn32sc of(Tarn32s re, Tarn32s im) { return {re, im}; }
    static TARN_INLINE Pack<Tarn32sc, 2 * lanes<Tarn32sc>> of(Vector<Tarn32s> re, Vector<Tarn32s> im)
    {
        return {{_mm_unpacklo_epi32(re.v, im.v)}, {_mm_unpackhi_epi32(re.v, im.v)}};
    }
};
inline constexpr Word<JoinParts> joinParts;

// Complex elements with `re` and `im` exchanged.
struct SwapParts {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.im, x.re}; }
    static TARN_INLINE Vector<Tarn16sc> of(Vector<Tarn16sc> x)
    {
        return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0xB1), 0xB1)};
    }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> x) { return {_mm_shuffle_ps(x.v, x.v, 0xB1)}; }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> x) { return {_mm_shuffle_pd(x.v, x.v, 1)}; }
};
inline constexpr Word<SwapParts> swapParts;

// The imaginary part negated modulo 2^16, which leaves the lowest integer as it is.
struct ConjugateWrapped {
    static TARN_INLINE Tarn16sc of(Tarn16sc x) { return {x.re, SubInteger::of(Tarn16s{0}, x.im)}; }
    static TARN_INLINE Vector<Tarn16sc> of(Vector<Tarn16sc> x)
    {
        const __m128i upperHalves = _mm_slli_epi32(_mm_set1_epi32(-1), 16);
        return {_mm_sub_epi16(_mm_xor_si128(x.v, upperHalves), upperHalves)};
    }
};
inline constexpr Word<ConjugateWrapped> conjugateWrapped;

// a times b. Integer products have twice the width, where one value in all does not fit: the imaginary part is one
// above the highest integer if all four parts of the operands are the lowest. It is limited to the highest.
struct MulComplex {
    static TARN_INLINE Tarn32sc of(Tarn16sc a, Tarn16sc b)
    {
        const Tarn32s im = DotParts::of(a, SwapParts::of(b));
        return {SubInteger::of(Tarn32s{a.re} * b.re, Tarn32s{a.im} * b.im),
                im == lowest<Tarn32s> ? highest<Tarn32s> : im};
    }
    static TARN_INLINE Tarn64sc of(Tarn32sc a, Tarn32sc b)
    {
        const Tarn64s im = AddInteger::of(Tarn64s{a.re} * b.im, Tarn64s{a.im} * b.re);
        return {Tarn64s{a.re} * b.re - Tarn64s{a.im} * b.im, im == lowest<Tarn64s> ? highest<Tarn64s> : im};
    }
    // The lowest word has no negative: -a.im is ~a.im + 1, and the b.im that makes the difference is added at the end,
    // where intermediate wraps cancel. No sum of products but 2^31 has the pattern of the lowest integer.
    static TARN_INLINE auto of(Vector<Tarn16sc> a, Vector<Tarn16sc> b)
    {
        const __m128i upperHalves = _mm_slli_epi32(_mm_set1_epi32(-1), 16);
        const __m128i imOfB = _mm_srai_epi32(b.v, 16);
        const __m128i re = _mm_add_epi32(_mm_madd_epi16(_mm_xor_si128(a.v, upperHalves), b.v), imOfB);
        const __m128i im = _mm_madd_epi16(a.v, SwapParts::of(b).v);
        const __m128i tooHigh = _mm_cmpeq_epi32(im, _mm_set1_epi32(lowest<Tarn32s>));
        return JoinParts::of(Vector<Tarn32s>{re}, Vector<Tarn32s>{_mm_add_epi32(im, tooHigh)});
    }

    static TARN_INLINE auto of(Vector<Tarn32sc> a, Vector<Tarn32sc> b)
    {
        const auto straight = evenOddProducts(a.v, b.v);
        const auto crossed = evenOddProducts(a.v, _mm_shuffle_epi32(b.v, 0xB1));
        const __m128i re = _mm_sub_epi64(straight.even, straight.odd);
        const __m128i im = _mm_add_epi64(crossed.even, crossed.odd);
        // Here too no other sum comes that low: the upper half tells.
        const __m128i lowestHalves = _mm_cmpeq_epi32(im, _mm_set1_epi32(lowest<Tarn32s>));
        const __m128i limited = _mm_add_epi64(im, _mm_shuffle_epi32(lowestHalves, 0xF5));
        return Pack<Tarn64sc, 2 * lanes<Tarn64sc>>{{_mm_unpacklo_epi64(re, limited)},
                                                   {_mm_unpackhi_epi64(re, limited)}};
    }

    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T a, T b) { return {b.re * a.re - b.im * a.im, b.re * a.im + b.im * a.re}; }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> a, Vector<Tarn32fc> b)
    {
        const __m128 byRe = _mm_mul_ps(_mm_moveldup_ps(b.v), a.v);
        const __m128 byIm = _mm_mul_ps(_mm_movehdup_ps(b.v), SwapParts::of(a).v);
        return {_mm_addsub_ps(byRe, byIm)};
    }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> a, Vector<Tarn64fc> b)
    {
        const __m128d byRe = _mm_mul_pd(_mm_unpacklo_pd(b.v, b.v), a.v);
        const __m128d byIm = _mm_mul_pd(_mm_unpackhi_pd(b.v, b.v), SwapParts::of(a).v);
        return {_mm_addsub_pd(byRe, byIm)};
    }
};
inline constexpr Word<MulComplex> mulComplex;

// -- 64-bit results
// ----------------------------------------------------------------------------------------------------

// All ones where the element is negative, zeros elsewhere.
struct SignsOf64s {
    static TARN_INLINE Tarn64s of(Tarn64s x) { return x >> 63; }
    static TARN_INLINE Vector<Tarn64s> of(Vector<Tarn64s> x)
    {
        return {_mm_srai_epi32(_mm_shuffle_epi32(x.v, 0xF5), 31)};
    }
};
inline constexpr Word<SignsOf64s> signsOf64s;

// Right shift that brings in zeros.
struct ShiftRight64 {
    static TARN_INLINE Tarn64s of(Tarn64s x, int n) { return ShiftRightLogical::of(x, n); }
    static TARN_INLINE Vector<Tarn64s> of(Vector<Tarn64s> x, int n)
    {
        return {_mm_srl_epi64(x.v, _mm_cvtsi32_si128(n))};
    }
};
inline constexpr Word<ShiftRight64> shiftRight64;

// Limited to the bounds of 32 bits.
struct NarrowSaturated64 {
    static TARN_INLINE Tarn32s of(Tarn64s x) { return clampTo<Tarn32s>(x); }
    static TARN_INLINE Vector<Tarn32s> of(Pack<Tarn64s, 2 * lanes<Tarn64s>> x)
    {
        const __m128 lo = _mm_castsi128_ps(x.lo.v);
        const __m128 hi = _mm_castsi128_ps(x.hi.v);
        const Vector<Tarn32s> low{_mm_castps_si128(_mm_shuffle_ps(lo, hi, 0x88))};
        const Vector<Tarn32s> high{_mm_castps_si128(_mm_shuffle_ps(lo, hi, 0xDD))};
        const auto bound = BitXor::of(ShiftRight::of(high, 31), splat<Vector<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(EqualInteger::of(ShiftRight::of(low, 31), high), low, bound);
    }
};
inline constexpr Word<NarrowSaturated64> narrowSaturated64;

// -- 32-bit integers and doubles
// ---------------------------------------------------------------------------------------

// Exact.
template <>
struct Convert<Tarn64f> {
    static TARN_INLINE Tarn64f of(Tarn32s x) { return x; }
    static TARN_INLINE Pack<Tarn64f, 2 * lanes<Tarn64f>> of(Vector<Tarn32s> x)
    {
        return {{_mm_cvtepi32_pd(x.v)}, {_mm_cvtepi32_pd(_mm_shuffle_epi32(x.v, 0x4E))}};
    }
};

// In the current rounding mode; what does not fit, NaN included, becomes the lowest integer.
struct RoundDouble {
    static TARN_INLINE Tarn32s of(Tarn64f x) { return _mm_cvtsd_si32(_mm_set_sd(x)); }
    static TARN_INLINE Vector<Tarn32s> of(Pack<Tarn64f, 2 * lanes<Tarn64f>> x)
    {
        return {_mm_unpacklo_epi64(_mm_cvtpd_epi32(x.lo.v), _mm_cvtpd_epi32(x.hi.v))};
    }
};
inline constexpr Word<RoundDouble> roundDouble;

// Towards zero; what does not fit, NaN included, becomes the lowest integer.
struct TruncateDouble {
    static TARN_INLINE Tarn32s of(Tarn64f x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }
    static TARN_INLINE Vector<Tarn32s> of(Pack<Tarn64f, 2 * lanes<Tarn64f>> x)
    {
        return {_mm_unpacklo_epi64(_mm_cvttpd_epi32(x.lo.v), _mm_cvttpd_epi32(x.hi.v))};
    }
};
inline constexpr Word<TruncateDouble> truncateDouble;

} // namespace tarn
