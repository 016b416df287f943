// Words that change the width of elements: widening, sums on the way to wider lanes, saturated narrowing; and complex
// elements as their parts.
#pragma once

#include "frame/simd_float.h"

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
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(Register<Tarn8u> x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi8(x.v, zero)}, {_mm_unpackhi_epi8(x.v, zero)}};
    }
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(Register<Tarn8s> x)
    {
        return {{_mm_srai_epi16(_mm_unpacklo_epi8(x.v, x.v), 8)}, {_mm_srai_epi16(_mm_unpackhi_epi8(x.v, x.v), 8)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(Register<Tarn16u> x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi16(x.v, zero)}, {_mm_unpackhi_epi16(x.v, zero)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(Register<Tarn16s> x)
    {
        return {{_mm_srai_epi32(_mm_unpacklo_epi16(x.v, x.v), 16)}, {_mm_srai_epi32(_mm_unpackhi_epi16(x.v, x.v), 16)}};
    }
    static TARN_INLINE Tarn64f of(Tarn32f x) { return static_cast<Tarn64f>(x); }
    static TARN_INLINE Pack<Tarn64f, 2 * registerLanes<Tarn64f>> of(Register<Tarn32f> x)
    {
        return {{_mm_cvtps_pd(x.v)}, {_mm_cvtps_pd(_mm_movehl_ps(x.v, x.v))}};
    }
};
inline constexpr Word<Widen> widen;

// What `widen` gives for signed elements, the upper halves made by a comparison: one for both, and it leaves the units
// that shift to the conversion that follows.
struct WidenBySign {
    static TARN_INLINE Tarn16s of(Tarn8s x) { return x; }
    static TARN_INLINE Tarn32s of(Tarn16s x) { return x; }
    static TARN_INLINE Pack<Tarn16s, 2 * registerLanes<Tarn16s>> of(Register<Tarn8s> x)
    {
        const __m128i signs = _mm_cmpgt_epi8(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi8(x.v, signs)}, {_mm_unpackhi_epi8(x.v, signs)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(Register<Tarn16s> x)
    {
        const __m128i signs = _mm_cmpgt_epi16(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi16(x.v, signs)}, {_mm_unpackhi_epi16(x.v, signs)}};
    }
};
inline constexpr Word<WidenBySign> widenBySign;

// a plus b in the wide type, exact.
struct SumWidened {
    template <Integer T>
    static TARN_INLINE Wide<T> of(T a, T b)
    {
        return static_cast<Wide<T>>(Wide<T>{a} + Wide<T>{b});
    }
    template <Integer T>
    static TARN_INLINE auto of(Register<T> a, Register<T> b)
    {
        return add(widen(a), widen(b));
    }
    // The pair sums of a multiply-add by ones save the sign extensions.
    static TARN_INLINE Pack<Tarn32s, 2 * registerLanes<Tarn32s>> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        const __m128i ones = _mm_set1_epi16(1);
        return {{_mm_madd_epi16(_mm_unpacklo_epi16(a.v, b.v), ones)},
                {_mm_madd_epi16(_mm_unpackhi_epi16(a.v, b.v), ones)}};
    }
};
inline constexpr Word<SumWidened> sumWidened;

// The unsigned elements at even places with zeros on top, and those at odd ones.
struct WidenEven {
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn32u> x)
    {
        return {_mm_and_si128(x.v, _mm_set_epi32(0, -1, 0, -1))};
    }
};
inline constexpr Word<WidenEven> widenEven;
struct WidenOdd {
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn32u> x) { return {_mm_srli_epi64(x.v, 32)}; }
};
inline constexpr Word<WidenOdd> widenOdd;

// The sum of each even lane and its odd neighbour, in lanes of twice the width.
struct PairSums {
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn16s> x) { return {_mm_madd_epi16(x.v, _mm_set1_epi16(1))}; }
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn32u> x)
    {
        return AddInteger::of(WidenEven::of(x), WidenOdd::of(x));
    }
};
inline constexpr Word<PairSums> pairSums;

// The sum of the pair's magnitudes, each being the product with its own sign: |-32768| is no exception.
struct PairMagnitudes {
    static TARN_INLINE Register<Tarn32u> of(Register<Tarn16s> x)
    {
        const __m128i sign = _mm_or_si128(_mm_srai_epi16(x.v, 15), _mm_set1_epi16(1));
        return {_mm_madd_epi16(x.v, sign)};
    }
    static TARN_INLINE Register<Tarn32u> of(Register<Tarn16u> x)
    {
        return {_mm_add_epi32(_mm_and_si128(x.v, _mm_set1_epi32(0xFFFF)), _mm_srli_epi32(x.v, 16))};
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
    static TARN_INLINE Register<D> of(Pack<D, registerLanes<D>> x) { return x; }
    template <typename W>
        requires(sizeof(W) == 2 * sizeof(D))
    static TARN_INLINE Register<D> of(Pack<W, registerLanes<D>> x)
    {
        if constexpr (std::is_same_v<D, Tarn8u>) {
            return {_mm_packus_epi16(x.lo.v, x.hi.v)};
        } else if constexpr (std::is_same_v<D, Tarn8s>) {
            return {_mm_packs_epi16(x.lo.v, x.hi.v)};
        } else if constexpr (std::is_same_v<D, Tarn16s>) {
            return {_mm_packs_epi32(x.lo.v, x.hi.v)};
        } else {
            static_assert(std::is_same_v<D, Tarn32s>);
            const __m128 lo = _mm_castsi128_ps(x.lo.v);
            const __m128 hi = _mm_castsi128_ps(x.hi.v);
            const Register<Tarn32s> low{_mm_castps_si128(_mm_shuffle_ps(lo, hi, 0x88))};
            const Register<Tarn32s> high{_mm_castps_si128(_mm_shuffle_ps(lo, hi, 0xDD))};
            const auto bound = BitXor::of(ShiftRight::of(high, 31), splat<Register<Tarn32s>>(highest<Tarn32s>));
            return SelectInteger::of(EqualInteger::of(ShiftRight::of(low, 31), high), low, bound);
        }
    }
};
// The value limited to the bounds of D, which may be the type that it has already.
template <typename D>
inline constexpr Word<NarrowSaturated<D>> narrowSaturated;

// x times 2 to the power n, saturated; n is below the element's width.
struct ShiftLeftSaturated {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        return clampTo<T>(static_cast<Tarn64s>(static_cast<unsigned long long>(Tarn64s{x}) << n));
    }
    template <Integer T>
        requires(sizeof(T) <= 2)
    static TARN_INLINE Register<T> of(Register<T> x, int n) { return narrowSaturated<T>(shiftLeft(widen(x), n)); }
    // The shift lost something where shifting back does not give the operand.
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn32s> x, int n)
    {
        const auto shifted = ShiftLeft::of(x, n);
        const auto bound = BitXor::of(ShiftRight::of(x, 31), splat<Register<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(EqualInteger::of(ShiftRight::of(shifted, n), x), shifted, bound);
    }
};
inline constexpr Word<ShiftLeftSaturated> shiftLeftSaturated;

// Double precision as single, in the current rounding mode.
struct NarrowFloat {
    static TARN_INLINE Tarn32f of(Tarn64f x) { return static_cast<Tarn32f>(x); }
    static TARN_INLINE Register<Tarn32f> of(Pack<Tarn64f, 2 * registerLanes<Tarn64f>> x)
    {
        return {_mm_movelh_ps(_mm_cvtpd_ps(x.lo.v), _mm_cvtpd_ps(x.hi.v))};
    }
};
inline constexpr Word<NarrowFloat> narrowFloat;

// The same bits under a type of the same width.
template <typename U>
struct Retype {
    template <typename T>
        requires(std::is_arithmetic_v<T> && sizeof(T) == sizeof(U))
    static TARN_INLINE U of(T x) { return std::bit_cast<U>(x); }
    template <typename T>
    static TARN_INLINE Register<U> of(Register<T> x)
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
