// Words for complex elements, parts side by side: moves of the parts, conjugates, products, magnitudes.
#pragma once

#include "frame/simd_interleave.h"
#include "frame/simd_memory.h"
#include "frame/simd_mul.h"

namespace tarn {

// -- Moves of the parts -----------------------------------------------------------------------------------------------

// The real parts, and the imaginary parts.
struct ReOf {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Part<T> of(T z) { return z.re; }
    template <typename T, int N>
        requires(isComplex<T>&& isOneRegister<Part<T>, N>)
    static TARN_INLINE Pack<Part<T>, N> of(Pack<T, N> z)
    {
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            // A complex word times (1, 0) is the sign-extended part.
            return NarrowSaturated<Tarn16s>::of(mulAddPairs(z, splat<decltype(z)>({1, 0})));
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
    template <typename T, int N>
        requires(isComplex<T>&& isOneRegister<Part<T>, N>)
    static TARN_INLINE Pack<Part<T>, N> of(Pack<T, N> z)
    {
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            return NarrowSaturated<Tarn16s>::of(mulAddPairs(z, splat<decltype(z)>({0, 1})));
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
    template <RegisterOf<Part<C>> R>
    static TARN_INLINE Like<R, C> of(R re, R im)
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
    template <RegisterOf<Tarn16sc> R>
        requires WideRegister<R>
    static TARN_INLINE R of(R x) { return {native::shuffle<2, native::Exchanged>(x.v)}; }
    template <AnyRegister R>
        requires Float<Part<Element<R>>>
    static TARN_INLINE R of(R x) { return {native::exchanged(x.v)}; }
};
inline constexpr Word<SwapParts> swapParts;

// The real part in the places of both parts, and the imaginary part there.
struct BothRe {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.re, x.re}; }
    template <AnyRegister R>
        requires Float<Part<Element<R>>>
    static TARN_INLINE R of(R x) { return {native::evenTwice(x.v)}; }
};
inline constexpr Word<BothRe> bothRe;

struct BothIm {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.im, x.im}; }
    template <AnyRegister R>
        requires Float<Part<Element<R>>>
    static TARN_INLINE R of(R x) { return {native::oddTwice(x.v)}; }
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
    template <RegisterOf<Tarn16sc> R>
    static TARN_INLINE R of(R x)
    {
        const auto upperHalves = splat<SameBytes<R, Tarn32s>>(-0x10000).v;
        return {native::sub16(native::bitXor(x.v, upperHalves), upperHalves)};
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
    template <RegisterOf<Tarn16sc> R>
    static TARN_INLINE R of(R x)
    {
        const auto upperHalves = splat<SameBytes<R, Tarn32s>>(-0x10000).v;
        return {native::sub16s(native::bitXor(x.v, upperHalves), upperHalves)};
    }
    template <AnyRegister R>
        requires(isComplex<Element<R>>&& Float<Part<Element<R>>>)
    static TARN_INLINE R of(R x)
    {
        using P = Part<Element<R>>;
        using Parts = SameBytes<R, P>;
        alignas(R) static constexpr auto signs = [] {
            std::array<P, Parts::size> parts{};
            for (std::size_t i = 1; i < parts.size(); i += 2) {
                parts[i] = -P{0};
            }
            return parts;
        }();
        return {native::bitXor(x.v, loadAligned<Parts::size>(signs.data()).v)};
    }
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
    template <AnyRegister R>
        requires(isComplex<Element<R>>&& Float<Part<Element<R>>>)
    static TARN_INLINE R of(R a, R b)
    {
        const auto byRe = native::mul(native::evenTwice(b.v), a.v);
        const auto byIm = native::mul(native::oddTwice(b.v), SwapParts::of(a).v);
        return {native::subAdd(byRe, byIm)};
    }
};
inline constexpr Word<MulComplex> mulComplex;

// a times the conjugate of b: a.re b.re + a.im b.im, a.im b.re - a.re b.im. The products are negated after they are
// rounded, since a directed rounding mode tells -(x y) from (-x) y.
struct MulByConjugate {
    template <typename T>
        requires(isComplex<T>&& Float<Part<T>>)
    static TARN_INLINE T of(T a, T b) { return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im}; }
    template <AnyRegister R>
        requires(isComplex<Element<R>>&& Float<Part<Element<R>>>)
    static TARN_INLINE R of(R a, R b)
    {
        using Parts = SameBytes<R, Part<Element<R>>>;
        const auto byRe = native::mul(a.v, native::evenTwice(b.v));
        const auto byIm = native::mul(SwapParts::of(a).v, native::oddTwice(b.v));
        return {native::subAdd(byRe, InvertSigns::of(Parts{byIm}).v)};
    }
};
inline constexpr Word<MulByConjugate> mulByConjugate;

// The real part of a product, a.re b.re - a.im b.im: it fits 32 bits. The imaginary part is mulAddPairs of a and of b
// with its parts exchanged.
struct DifferenceOfParts {
    static TARN_INLINE Tarn32s of(Tarn16sc a, Tarn16sc b) { return Tarn32s{a.re} * b.re - Tarn32s{a.im} * b.im; }
    // The lowest word has no negative: -a.im is ~a.im + 1, and the b.im that makes the difference is added at the end,
    // where intermediate wraps cancel.
    template <RegisterOf<Tarn16sc> R>
    static TARN_INLINE Like<R, Tarn32s> of(R a, R b)
    {
        using Sums = Like<R, Tarn32s>;
        const auto upperHalves = splat<Sums>(-0x10000).v;
        const Sums flipped{native::mulAddPairs(native::bitXor(a.v, upperHalves), b.v)};
        return AddInteger::of(flipped, ShiftRight::of(Sums{b.v}, 16));
    }
};
inline constexpr Word<DifferenceOfParts> differenceOfParts;

// a minus b at even places, a plus b at odd ones.
struct SubAdd {
    template <FloatRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::subAdd(a.v, b.v)};
    }
};
inline constexpr Word<SubAdd> subAdd;

// x times w, where w is given as it is and with its parts exchanged: x is spread over both parts of the product.
struct MulSpread {
    template <RegisterOf<Tarn64fc> R>
    static TARN_INLINE R of(R x, SameBytes<R, Tarn64f> w, SameBytes<R, Tarn64f> swapped)
    {
        const auto byRe = native::mul(native::evenTwice(x.v), w.v);
        const auto byIm = native::mul(native::oddTwice(x.v), swapped.v);
        return {native::subAdd(byRe, byIm)};
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
    template <typename T, int N>
        requires(isComplex<T>&& Float<Part<T>>&& isOneRegister<Part<T>, N>)
    static TARN_INLINE Pack<Part<T>, N> of(Pack<T, N> x)
    {
        const auto lo = lowHalf(x).v;
        const auto hi = highHalf(x).v;
        return {native::pairSums(native::mul(lo, lo), native::mul(hi, hi))};
    }
    // Of pairs of parts.
    template <int N>
        requires(N > registerLanes<Tarn64f> && isOneRegister<Tarn64f, N / 2>)
    static TARN_INLINE Pack<Tarn64f, N / 2> of(Pack<Tarn64f, N> parts) { return of(reinterpretPack<Tarn64fc>(parts)); }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> onePair)
    {
        const __m128d squares = _mm_mul_pd(onePair.v, onePair.v);
        return {_mm_hadd_pd(squares, squares)};
    }
};
inline constexpr Word<SquaredMagnitudes> squaredMagnitudes;

} // namespace tarn
