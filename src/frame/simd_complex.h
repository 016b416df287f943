// Words for complex elements, parts side by side: moves of the parts, conjugates, products, magnitudes.
#pragma once

#include "frame/simd_interleave.h"
#include "frame/simd_mul.h"

namespace tarn {

// -- Moves of the parts -----------------------------------------------------------------------------------------------

// The real parts, and the imaginary parts.
struct ReOf {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Part<T> of(T z) { return z.re; }
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Register<Part<T>> of(Pack<T, 2 * registerLanes<T>> z)
    {
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            // A complex word times (1, 0) is the sign-extended part.
            return NarrowSaturated<Tarn16s>::of(mulAddPairs(z, splat<decltype(z)>({1, 0})));
        } else if constexpr (std::is_same_v<T, Tarn32sc>) {
            return reinterpretPack<Tarn32s>(evenElements(reinterpretPack<Tarn32f>(z)));
        } else {
            return evenElements(reinterpretPack<Part<T>>(z));
        }
    }
};
inline constexpr Word<ReOf> reOf;

struct ImOf {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Part<T> of(T z) { return z.im; }
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Register<Part<T>> of(Pack<T, 2 * registerLanes<T>> z)
    {
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            return NarrowSaturated<Tarn16s>::of(mulAddPairs(z, splat<decltype(z)>({0, 1})));
        } else if constexpr (std::is_same_v<T, Tarn32sc>) {
            return reinterpretPack<Tarn32s>(oddElements(reinterpretPack<Tarn32f>(z)));
        } else {
            return oddElements(reinterpretPack<Part<T>>(z));
        }
    }
};
inline constexpr Word<ImOf> imOf;

// Complex elements C of these parts.
template <typename C>
struct ComplexFrom {
    static TARN_INLINE C of(Part<C> re, Part<C> im) { return {re, im}; }
    static TARN_INLINE Pack<C, 2 * registerLanes<C>> of(Register<Part<C>> re, Register<Part<C>> im)
    {
        return reinterpretPack<C>(zip(re, im));
    }
};
template <typename C>
inline constexpr Word<ComplexFrom<C>> complexFrom;

// Complex words of the given parts, each saturated.
struct JoinNarrowed {
    static TARN_INLINE Tarn16sc of(Tarn32s re, Tarn32s im) { return {clampTo<Tarn16s>(re), clampTo<Tarn16s>(im)}; }
    static TARN_INLINE Register<Tarn16sc> of(Register<Tarn32s> re, Register<Tarn32s> im)
    {
        const __m128i apart = _mm_packs_epi32(re.v, im.v);
        return {_mm_unpacklo_epi16(apart, _mm_unpackhi_epi64(apart, apart))};
    }
};
inline constexpr Word<JoinNarrowed> joinNarrowed;

// Complex elements with `re` and `im` exchanged; a pack of floats is taken for interleaved parts.
struct SwapParts {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.im, x.re}; }
    static TARN_INLINE Register<Tarn16sc> of(Register<Tarn16sc> x)
    {
        return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0xB1), 0xB1)};
    }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x) { return {_mm_shuffle_ps(x.v, x.v, 0xB1)}; }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> x) { return {_mm_shuffle_pd(x.v, x.v, 1)}; }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> x) { return {_mm_shuffle_ps(x.v, x.v, 0xB1)}; }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> x) { return {_mm_shuffle_pd(x.v, x.v, 1)}; }
};
inline constexpr Word<SwapParts> swapParts;

// The real part in the places of both parts, and the imaginary part there.
struct BothRe {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.re, x.re}; }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> x) { return {_mm_moveldup_ps(x.v)}; }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> x) { return {_mm_unpacklo_pd(x.v, x.v)}; }
};
inline constexpr Word<BothRe> bothRe;

struct BothIm {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.im, x.im}; }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> x) { return {_mm_movehdup_ps(x.v)}; }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> x) { return {_mm_unpackhi_pd(x.v, x.v)}; }
};
inline constexpr Word<BothIm> bothIm;

// Two pairs of 16-bit parts as two real parts, then two imaginary ones.
struct PartsOfPairs {
    static TARN_INLINE Register<Tarn16s> of(Register<Tarn16sc> x)
    {
        return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0xD8), 0xD8)};
    }
};
inline constexpr Word<PartsOfPairs> partsOfPairs;

// Pairs of real elements, each pair twice: partners of the parts of pairs.
struct PairsTwice {
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(Register<Tarn16s> x)
    {
        return {{_mm_unpacklo_epi32(x.v, x.v)}, {_mm_unpackhi_epi32(x.v, x.v)}};
    }
};
inline constexpr Word<PairsTwice> pairsTwice;

// -- Conjugates and products ------------------------------------------------------------------------------------------

// The imaginary part negated modulo 2^16, which leaves the lowest integer as it is.
struct ConjugateWrapped {
    static TARN_INLINE Tarn16sc of(Tarn16sc x) { return {x.re, SubInteger::of(Tarn16s{0}, x.im)}; }
    static TARN_INLINE Register<Tarn16sc> of(Register<Tarn16sc> x)
    {
        const __m128i upperHalves = _mm_slli_epi32(_mm_set1_epi32(-1), 16);
        return {_mm_sub_epi16(_mm_xor_si128(x.v, upperHalves), upperHalves)};
    }
};
inline constexpr Word<ConjugateWrapped> conjugateWrapped;

// The conjugate: bits of floats change in the sign alone, NaN included; integers saturate, so that the lowest becomes
// the highest.
struct Conjugate {
    static TARN_INLINE Tarn16sc of(Tarn16sc x) { return {x.re, SubSaturated::of(Tarn16s{0}, x.im)}; }
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T x) { return {x.re, -x.im}; }
    // -x is ~x + 1, and in the upper halves the mask is the -1 to flip by and to take away.
    static TARN_INLINE Register<Tarn16sc> of(Register<Tarn16sc> x)
    {
        const __m128i upperHalves = _mm_set1_epi32(-0x10000);
        return {_mm_subs_epi16(_mm_xor_si128(x.v, upperHalves), upperHalves)};
    }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> x)
    {
        return {_mm_xor_ps(x.v, _mm_setr_ps(0.0F, -0.0F, 0.0F, -0.0F))};
    }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> x) { return {_mm_xor_pd(x.v, _mm_setr_pd(0.0, -0.0))}; }
};
inline constexpr Word<Conjugate> conjugate;

// a times b. Integer products have twice the width, where one value in all does not fit: the imaginary part is one
// above the highest integer if all four parts of the operands are the lowest. It is limited to the highest.
struct MulComplex {
    static TARN_INLINE Tarn32sc of(Tarn16sc a, Tarn16sc b)
    {
        const Tarn32s im = MulAddPairs::of(a, SwapParts::of(b));
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
    static TARN_INLINE auto of(Register<Tarn16sc> a, Register<Tarn16sc> b)
    {
        const __m128i upperHalves = _mm_slli_epi32(_mm_set1_epi32(-1), 16);
        const __m128i imOfB = _mm_srai_epi32(b.v, 16);
        const __m128i re = _mm_add_epi32(_mm_madd_epi16(_mm_xor_si128(a.v, upperHalves), b.v), imOfB);
        const __m128i im = _mm_madd_epi16(a.v, SwapParts::of(b).v);
        const __m128i tooHigh = _mm_cmpeq_epi32(im, _mm_set1_epi32(lowest<Tarn32s>));
        return ComplexFrom<Tarn32sc>::of(Register<Tarn32s>{re}, Register<Tarn32s>{_mm_add_epi32(im, tooHigh)});
    }

    static TARN_INLINE auto of(Register<Tarn32sc> a, Register<Tarn32sc> b)
    {
        const auto straight = evenOddProducts(a.v, b.v);
        const auto crossed = evenOddProducts(a.v, _mm_shuffle_epi32(b.v, 0xB1));
        const __m128i re = _mm_sub_epi64(straight.even, straight.odd);
        const __m128i im = _mm_add_epi64(crossed.even, crossed.odd);
        // Here too no other sum comes that low: the upper half tells.
        const __m128i lowestHalves = _mm_cmpeq_epi32(im, _mm_set1_epi32(lowest<Tarn32s>));
        const __m128i limited = _mm_add_epi64(im, _mm_shuffle_epi32(lowestHalves, 0xF5));
        return Pack<Tarn64sc, 2 * registerLanes<Tarn64sc>>{{_mm_unpacklo_epi64(re, limited)},
                                                           {_mm_unpackhi_epi64(re, limited)}};
    }

    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T a, T b) { return {b.re * a.re - b.im * a.im, b.re * a.im + b.im * a.re}; }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> a, Register<Tarn32fc> b)
    {
        const __m128 byRe = _mm_mul_ps(_mm_moveldup_ps(b.v), a.v);
        const __m128 byIm = _mm_mul_ps(_mm_movehdup_ps(b.v), SwapParts::of(a).v);
        return {_mm_addsub_ps(byRe, byIm)};
    }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> a, Register<Tarn64fc> b)
    {
        const __m128d byRe = _mm_mul_pd(_mm_unpacklo_pd(b.v, b.v), a.v);
        const __m128d byIm = _mm_mul_pd(_mm_unpackhi_pd(b.v, b.v), SwapParts::of(a).v);
        return {_mm_addsub_pd(byRe, byIm)};
    }
};
inline constexpr Word<MulComplex> mulComplex;

// a times the conjugate of b: a.re b.re + a.im b.im, a.im b.re - a.re b.im. The products are negated after they are
// rounded, since a directed rounding mode tells -(x y) from (-x) y.
struct MulByConjugate {
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T a, T b) { return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im}; }
    static TARN_INLINE Register<Tarn32fc> of(Register<Tarn32fc> a, Register<Tarn32fc> b)
    {
        const __m128 byRe = _mm_mul_ps(a.v, _mm_moveldup_ps(b.v));
        const __m128 byIm = _mm_mul_ps(SwapParts::of(a).v, _mm_movehdup_ps(b.v));
        return {_mm_addsub_ps(byRe, _mm_xor_ps(byIm, _mm_set1_ps(-0.0F)))};
    }
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> a, Register<Tarn64fc> b)
    {
        const __m128d byRe = _mm_mul_pd(a.v, _mm_unpacklo_pd(b.v, b.v));
        const __m128d byIm = _mm_mul_pd(SwapParts::of(a).v, _mm_unpackhi_pd(b.v, b.v));
        return {_mm_addsub_pd(byRe, _mm_xor_pd(byIm, _mm_set1_pd(-0.0)))};
    }
};
inline constexpr Word<MulByConjugate> mulByConjugate;

// The real part of a product, a.re b.re - a.im b.im: it fits 32 bits. The imaginary part is mulAddPairs of a and of b
// with its parts exchanged.
struct DifferenceOfParts {
    static TARN_INLINE Tarn32s of(Tarn16sc a, Tarn16sc b) { return Tarn32s{a.re} * b.re - Tarn32s{a.im} * b.im; }
    // The lowest word has no negative: -a.im is ~a.im + 1, and the b.im that makes the difference is added at the end,
    // where intermediate wraps cancel.
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn16sc> a, Register<Tarn16sc> b)
    {
        const __m128i upperHalves = _mm_set1_epi32(-0x10000);
        const __m128i flipped = _mm_madd_epi16(_mm_xor_si128(a.v, upperHalves), b.v);
        return {_mm_add_epi32(flipped, _mm_srai_epi32(b.v, 16))};
    }
};
inline constexpr Word<DifferenceOfParts> differenceOfParts;

// a minus b at even places, a plus b at odd ones.
struct SubAdd {
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> a, Register<Tarn32f> b)
    {
        return {_mm_addsub_ps(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> a, Register<Tarn64f> b)
    {
        return {_mm_addsub_pd(a.v, b.v)};
    }
};
inline constexpr Word<SubAdd> subAdd;

// x times w, where w is given as it is and with its parts exchanged: x is spread over both parts of the product.
struct MulSpread {
    static TARN_INLINE Register<Tarn64fc> of(Register<Tarn64fc> x, Register<Tarn64f> w, Register<Tarn64f> swapped)
    {
        const __m128d byRe = _mm_mul_pd(_mm_unpacklo_pd(x.v, x.v), w.v);
        const __m128d byIm = _mm_mul_pd(_mm_unpackhi_pd(x.v, x.v), swapped.v);
        return {_mm_addsub_pd(byRe, byIm)};
    }
};
inline constexpr Word<MulSpread> mulSpread;

// -- Magnitudes -------------------------------------------------------------------------------------------------------

// re^2 + im^2, three operations and three roundings: of complex elements, or of pairs of parts. Of one pair alone in
// both lanes.
struct SquaredMagnitudes {
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE Part<T> of(T x) { return x.re * x.re + x.im * x.im; }
    static TARN_INLINE Register<Tarn32f> of(Pack<Tarn32fc, 2 * registerLanes<Tarn32fc>> x)
    {
        const __m128 lo = _mm_mul_ps(x.lo.v, x.lo.v);
        const __m128 hi = _mm_mul_ps(x.hi.v, x.hi.v);
        return {_mm_hadd_ps(lo, hi)};
    }
    static TARN_INLINE Register<Tarn64f> of(Pack<Tarn64fc, 2 * registerLanes<Tarn64fc>> x)
    {
        return of(reinterpretPack<Tarn64f>(x));
    }
    static TARN_INLINE Register<Tarn64f> of(Pack<Tarn64f, 2 * registerLanes<Tarn64f>> parts)
    {
        const __m128d lo = _mm_mul_pd(parts.lo.v, parts.lo.v);
        const __m128d hi = _mm_mul_pd(parts.hi.v, parts.hi.v);
        return {_mm_hadd_pd(lo, hi)};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> onePair)
    {
        const __m128d squares = _mm_mul_pd(onePair.v, onePair.v);
        return {_mm_hadd_pd(squares, squares)};
    }
};
inline constexpr Word<SquaredMagnitudes> squaredMagnitudes;

} // namespace tarn
