// Words that change the width of elements: widening, sums on the way to wider lanes, saturated narrowing; and complex
// elements as their parts.
#pragma once

#include "frame/simd_float.h"
#include "frame/simd_interleave.h"

namespace tarn {

// -- Exact widening: unsigned elements get zeros on top, signed ones their sign; single precision becomes double. -----

// The type of twice the width: the signed one of integers, since it holds every value of an 8- or 16-bit element,
// unsigned ones included.
template <typename T>
using Wide = std::conditional_t<
    std::is_same_v<T, Tarn32f>, Tarn64f,
    std::conditional_t<sizeof(T) == 1, Tarn16s, std::conditional_t<sizeof(T) == 2, Tarn32s, Tarn64s>>>;

struct Widen {
    template <Integer T>
    static TARN_INLINE Wide<T> of(T x)
    {
        return Wide<T>{x};
    }
    template <RegisterOf<Tarn8u> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(R x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi8(x.v, zero)}, {_mm_unpackhi_epi8(x.v, zero)}};
    }
    template <RegisterOf<Tarn8s> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(R x)
    {
        return {{_mm_srai_epi16(_mm_unpacklo_epi8(x.v, x.v), 8)}, {_mm_srai_epi16(_mm_unpackhi_epi8(x.v, x.v), 8)}};
    }
    template <RegisterOf<Tarn16u> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(R x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi16(x.v, zero)}, {_mm_unpackhi_epi16(x.v, zero)}};
    }
    template <RegisterOf<Tarn16s> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(R x)
    {
        return {{_mm_srai_epi32(_mm_unpacklo_epi16(x.v, x.v), 16)}, {_mm_srai_epi32(_mm_unpackhi_epi16(x.v, x.v), 16)}};
    }
    static TARN_INLINE Tarn64f of(Tarn32f x) { return static_cast<Tarn64f>(x); }
    template <RegisterOf<Tarn32f> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn64f, 2 * registerLanes<Tarn64f>> of(R x)
    {
        return {{_mm_cvtps_pd(x.v)}, {_mm_cvtps_pd(_mm_movehl_ps(x.v, x.v))}};
    }
    // Where the result is one register.
    template <AnyRegister R>
        requires(2 * sizeof(R) <= widestRegister && sizeof(Element<R>) <= 4 && !isComplex<Element<R>>)
    static TARN_INLINE Like<R, Wide<Element<R>>> of(R x)
    {
        using T = Element<R>;
        if constexpr (std::is_same_v<T, Tarn32f>) {
            return {native::toDoubles(x.v)};
        } else if constexpr (std::is_same_v<T, Tarn8u>) {
            return {native::widen8u(x.v)};
        } else if constexpr (std::is_same_v<T, Tarn8s>) {
            return {native::widen8s(x.v)};
        } else if constexpr (std::is_same_v<T, Tarn16u>) {
            return {native::widen16u(x.v)};
        } else {
            static_assert(std::is_same_v<T, Tarn16s>);
            return {native::widen16s(x.v)};
        }
    }
};
inline constexpr Word<Widen> widen;

// What `widen` gives for signed elements, the upper halves made by a comparison: one for both, and it leaves the units
// that shift to the conversion that follows.
struct WidenBySign {
    static TARN_INLINE Tarn16s of(Tarn8s x) { return x; }
    static TARN_INLINE Tarn32s of(Tarn16s x) { return x; }
    template <RegisterOf<Tarn8s> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(R x)
    {
        const __m128i signs = _mm_cmpgt_epi8(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi8(x.v, signs)}, {_mm_unpackhi_epi8(x.v, signs)}};
    }
    template <RegisterOf<Tarn16s> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(R x)
    {
        const __m128i signs = _mm_cmpgt_epi16(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi16(x.v, signs)}, {_mm_unpackhi_epi16(x.v, signs)}};
    }
    template <AnyRegister R>
        requires(2 * sizeof(R) <= widestRegister)
    static TARN_INLINE auto of(R x) { return Widen::of(x); }
};
inline constexpr Word<WidenBySign> widenBySign;

// a plus b in the wide type, exact.
struct SumWidened {
    template <Integer T>
    static TARN_INLINE Wide<T> of(T a, T b)
    {
        return static_cast<Wide<T>>(Wide<T>{a} + Wide<T>{b});
    }
    template <IntegerRegister R>
        requires(!std::is_same_v<Element<R>, Tarn16s> || !OnlyRegister<R>)
    static TARN_INLINE auto of(R a, R b) { return add(widen(a), widen(b)); }
    // The pair sums of a multiply-add by ones save the sign extensions.
    template <RegisterOf<Tarn16s> R>
        requires OnlyRegister<R>
    static TARN_INLINE TwiceAs<SameBytes<R, Tarn32s>> of(R a, R b)
    {
        const __m128i ones = _mm_set1_epi16(1);
        return {{_mm_madd_epi16(_mm_unpacklo_epi16(a.v, b.v), ones)},
                {_mm_madd_epi16(_mm_unpackhi_epi16(a.v, b.v), ones)}};
    }
};
inline constexpr Word<SumWidened> sumWidened;

// The unsigned elements at even places with zeros on top, and those at odd ones.
struct WidenEven {
    template <RegisterOf<Tarn32u> R>
    static TARN_INLINE SameBytes<R, Tarn64s> of(R x)
    {
        return {native::bitAnd(x.v, splat<SameBytes<R, Tarn64s>>(0xFFFFFFFF).v)};
    }
};
inline constexpr Word<WidenEven> widenEven;
struct WidenOdd {
    template <RegisterOf<Tarn32u> R>
    static TARN_INLINE SameBytes<R, Tarn64s> of(R x)
    {
        return ShiftRightLogical::of(SameBytes<R, Tarn64s>{x.v}, 32);
    }
};
inline constexpr Word<WidenOdd> widenOdd;

// The sum of each even lane and its odd neighbour, in lanes of twice the width.
struct PairSums {
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE SameBytes<R, Tarn32s> of(R x)
    {
        return {native::mulAddPairs(x.v, splat<R>(1).v)};
    }
    template <RegisterOf<Tarn32u> R>
    static TARN_INLINE SameBytes<R, Tarn64s> of(R x)
    {
        return AddInteger::of(WidenEven::of(x), WidenOdd::of(x));
    }
};
inline constexpr Word<PairSums> pairSums;

// The sum of the pair's magnitudes, each being the product with its own sign: |-32768| is no exception.
struct PairMagnitudes {
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE SameBytes<R, Tarn32u> of(R x)
    {
        const auto sign = native::bitOr(ShiftRight::of(x, 15).v, splat<R>(1).v);
        return {native::mulAddPairs(x.v, sign)};
    }
    template <RegisterOf<Tarn16u> R>
    static TARN_INLINE SameBytes<R, Tarn32u> of(R x)
    {
        using Sums = SameBytes<R, Tarn32u>;
        return AddInteger::of(Sums{native::bitAnd(x.v, splat<Sums>(0xFFFF).v)}, ShiftRight::of(Sums{x.v}, 16));
    }
};
inline constexpr Word<PairMagnitudes> pairMagnitudes;

// -- Saturated narrowing ---------------------------------------------------------------------------------------------

template <typename D>
struct NarrowSaturated {
    template <Integer W>
    static TARN_INLINE D of(W x)
    {
        return clampTo<D>(x);
    }
    template <RegisterOf<D> R>
    static TARN_INLINE R of(R x)
    {
        return x;
    }
    template <typename W, int N>
        requires(sizeof(W) == 2 * sizeof(D) && isOneRegister<D, N>)
    static TARN_INLINE Pack<D, N> of(Pack<W, N> x)
    {
        const auto first = lowHalf(x).v;
        const auto second = highHalf(x).v;
        if constexpr (std::is_same_v<D, Tarn8u>) {
            return {native::narrow16To8u(first, second)};
        } else if constexpr (std::is_same_v<D, Tarn8s>) {
            return {native::narrow16To8s(first, second)};
        } else if constexpr (std::is_same_v<D, Tarn16s>) {
            return {native::narrow32To16s(first, second)};
        } else {
            static_assert(std::is_same_v<D, Tarn32s>);
            const auto halves = reinterpretPack<Tarn32s>(x);
            const auto low = EvenElements::of(halves);
            const auto high = OddElements::of(halves);
            return SelectInteger::of(EqualInteger::of(ShiftRight::of(low, 31), high), low, BoundOfSign::of(high));
        }
    }
};
// The value limited to the bounds of D, which may be the type that it has already.
template <typename D>
inline constexpr Word<NarrowSaturated<D>> narrowSaturated;

// 32-bit lanes in the order that MulWidenedInLanes and its like leave, as words in their own.
struct NarrowSaturatedInLanes {
    static TARN_INLINE Tarn16s of(Tarn32s x) { return NarrowSaturated<Tarn16s>::of(x); }
    template <int N>
        requires(isOneRegister<Tarn16s, N>)
    static TARN_INLINE Pack<Tarn16s, N> of(Pack<Tarn32s, N> x)
    {
        return {native::narrow32To16sInLanes(lowHalf(x).v, highHalf(x).v)};
    }
};
inline constexpr Word<NarrowSaturatedInLanes> narrowSaturatedInLanes;

// x times 2 to the power n, saturated; n is below the element's width.
struct ShiftLeftSaturated {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        if constexpr (sizeof(T) == 8) {
            const auto shifted = ShiftLeft::of(x, n);
            return (shifted >> n) == x ? shifted : BoundOfSign::of(x);
        } else {
            return clampTo<T>(static_cast<Tarn64s>(static_cast<unsigned long long>(Tarn64s{x}) << n));
        }
    }
    template <IntegerRegister R>
        requires(sizeof(Element<R>) <= 2)
    static TARN_INLINE R of(R x, int n) { return narrowSaturated<Element<R>>(shiftLeft(widen(x), n)); }
    // The shift lost something where shifting back does not give the operand.
    template <IntegerRegister R>
        requires(sizeof(Element<R>) >= 4)
    static TARN_INLINE R of(R x, int n)
    {
        const auto shifted = ShiftLeft::of(x, n);
        return SelectInteger::of(EqualInteger::of(ShiftRight::of(shifted, n), x), shifted, BoundOfSign::of(x));
    }
};
inline constexpr Word<ShiftLeftSaturated> shiftLeftSaturated;

// Double precision as single, in the current rounding mode.
struct NarrowFloat {
    static TARN_INLINE Tarn32f of(Tarn64f x) { return static_cast<Tarn32f>(x); }
    template <RegisterOf<Tarn64f> R>
        requires WideRegister<R>
    static TARN_INLINE Like<R, Tarn32f> of(R x) { return {native::toFloats(x.v)}; }
    template <int N>
        requires(N == 2 * registerLanes<Tarn64f> && widestRegister == registerBytes)
    static TARN_INLINE Register<Tarn32f> of(Pack<Tarn64f, N> x)
    {
        return {_mm_movelh_ps(_mm_cvtpd_ps(lowHalf(x).v), _mm_cvtpd_ps(highHalf(x).v))};
    }
};
inline constexpr Word<NarrowFloat> narrowFloat;

// The same bits under a type of the same width.
template <typename U>
struct Retype {
    template <typename T>
        requires(std::is_arithmetic_v<T> && sizeof(T) == sizeof(U))
    static TARN_INLINE U of(T x) { return std::bit_cast<U>(x); }
    template <AnyRegister R>
    static TARN_INLINE SameBytes<R, U> of(R x)
    {
        return reinterpretPack<U>(x);
    }
};
template <typename U>
inline constexpr Word<Retype<U>> retype;

// -- Complex elements as their parts ---------------------------------------------------------------------------------

// Applies an operation on parts to complex operands, to `re` and `im` alike.
template <typename Operation>
struct PerPart {
    Operation operation;

    template <typename T>
    TARN_INLINE T operator()(T a, T b) const requires isComplex<T>
    {
        return {operation(a.re, b.re), operation(a.im, b.im)};
    }
    template <typename T, int N>
    TARN_INLINE Pack<T, N> operator()(Pack<T, N> a, Pack<T, N> b) const
    {
        return reinterpretPack<T>(operation(reinterpretPack<Part<T>>(a), reinterpretPack<Part<T>>(b)));
    }
};

} // namespace tarn
