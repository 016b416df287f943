// Words of packed spectra: conjugates, products by conjugates, and products of 16-bit pairs modulo 2^32.
#pragma once

#include "frame/simd_mul.h"

namespace tarn {

// The conjugate: bits of floats change in the sign alone, NaN included; integers saturate, so that the lowest becomes
// the highest.
struct Conjugate {
    static TARN_INLINE Tarn16sc of(Tarn16sc x) { return {x.re, SubSaturated::of(Tarn16s{0}, x.im)}; }
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T x) { return {x.re, -x.im}; }
    // -x is ~x + 1, and in the upper halves the mask is the -1 to flip by and to take away.
    static TARN_INLINE Vector<Tarn16sc> of(Vector<Tarn16sc> x)
    {
        const __m128i upperHalves = _mm_set1_epi32(-0x10000);
        return {_mm_subs_epi16(_mm_xor_si128(x.v, upperHalves), upperHalves)};
    }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> x)
    {
        return {_mm_xor_ps(x.v, _mm_setr_ps(0.0F, -0.0F, 0.0F, -0.0F))};
    }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> x) { return {_mm_xor_pd(x.v, _mm_setr_pd(0.0, -0.0))}; }
};
inline constexpr Word<Conjugate> conjugate;

// a times the conjugate of b: a.re b.re + a.im b.im, a.im b.re - a.re b.im. The products are negated after they are
// rounded, since a directed rounding mode tells -(x y) from (-x) y.
struct MulByConjugate {
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T a, T b) { return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im}; }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> a, Vector<Tarn32fc> b)
    {
        const __m128 byRe = _mm_mul_ps(a.v, _mm_moveldup_ps(b.v));
        const __m128 byIm = _mm_mul_ps(SwapParts::of(a).v, _mm_movehdup_ps(b.v));
        return {_mm_addsub_ps(byRe, _mm_xor_ps(byIm, _mm_set1_ps(-0.0F)))};
    }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> a, Vector<Tarn64fc> b)
    {
        const __m128d byRe = _mm_mul_pd(a.v, _mm_unpacklo_pd(b.v, b.v));
        const __m128d byIm = _mm_mul_pd(SwapParts::of(a).v, _mm_unpackhi_pd(b.v, b.v));
        return {_mm_addsub_pd(byRe, _mm_xor_pd(byIm, _mm_set1_pd(-0.0)))};
    }
};
inline constexpr Word<MulByConjugate> mulByConjugate;

// The real part of a product, a.re b.re - a.im b.im: it fits 32 bits. The imaginary part is dotParts of a and of b with
// its parts exchanged.
struct DifferenceOfParts {
    static TARN_INLINE Tarn32s of(Tarn16sc a, Tarn16sc b) { return Tarn32s{a.re} * b.re - Tarn32s{a.im} * b.im; }
    // The lowest word has no negative: -a.im is ~a.im + 1, and the b.im that makes the difference is added at the end,
    // where intermediate wraps cancel.
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn16sc> a, Vector<Tarn16sc> b)
    {
        const __m128i upperHalves = _mm_set1_epi32(-0x10000);
        const __m128i flipped = _mm_madd_epi16(_mm_xor_si128(a.v, upperHalves), b.v);
        return {_mm_add_epi32(flipped, _mm_srai_epi32(b.v, 16))};
    }
};
inline constexpr Word<DifferenceOfParts> differenceOfParts;

// Complex words of the given parts, each saturated.
struct JoinNarrowed {
    static TARN_INLINE Tarn16sc of(Tarn32s re, Tarn32s im) { return {clampTo<Tarn16s>(re), clampTo<Tarn16s>(im)}; }
    static TARN_INLINE Vector<Tarn16sc> of(Vector<Tarn32s> re, Vector<Tarn32s> im)
    {
        const __m128i apart = _mm_packs_epi32(re.v, im.v);
        return {_mm_unpacklo_epi16(apart, _mm_unpackhi_epi64(apart, apart))};
    }
};
inline constexpr Word<JoinNarrowed> joinNarrowed;

} // namespace tarn
