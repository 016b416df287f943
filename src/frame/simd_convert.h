// Words that change the element type: widening, saturated narrowing, conversion, complex elements as their parts.
#pragma once

#include "frame/simd_float.h"

namespace tarn {

// -- Exact widening: unsigned elements get zeros on top, signed ones their sign. -------------------------------------

// The signed type of twice the width: it holds every value of an 8- or 16-bit element, unsigned ones included.
template <typename T>
using Wide = std::conditional_t<sizeof(T) == 1, Tarn16s, std::conditional_t<sizeof(T) == 2, Tarn32s, Tarn64s>>;

struct Widen {
    template <Integer T>
    static TARN_INLINE Wide<T> of(T x)
    {
        return Wide<T>{x};
    }
    static TARN_INLINE Pack<Tarn16s, 2 * lanes<Tarn16s>> of(Vector<Tarn8u> x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi8(x.v, zero)}, {_mm_unpackhi_epi8(x.v, zero)}};
    }
    static TARN_INLINE Pack<Tarn16s, 2 * lanes<Tarn16s>> of(Vector<Tarn8s> x)
    {
        return {{_mm_srai_epi16(_mm_unpacklo_epi8(x.v, x.v), 8)}, {_mm_srai_epi16(_mm_unpackhi_epi8(x.v, x.v), 8)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> of(Vector<Tarn16u> x)
    {
        const __m128i zero = _mm_setzero_si128();
        return {{_mm_unpacklo_epi16(x.v, zero)}, {_mm_unpackhi_epi16(x.v, zero)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> of(Vector<Tarn16s> x)
    {
        return {{_mm_srai_epi32(_mm_unpacklo_epi16(x.v, x.v), 16)}, {_mm_srai_epi32(_mm_unpackhi_epi16(x.v, x.v), 16)}};
    }
};
inline constexpr Word<Widen> widen;

// a plus b in the wide type, exact.
struct SumWidened {
    template <Integer T>
    static TARN_INLINE Wide<T> of(T a, T b)
    {
        return static_cast<Wide<T>>(Wide<T>{a} + Wide<T>{b});
    }
    template <Integer T>
    static TARN_INLINE auto of(Vector<T> a, Vector<T> b)
    {
        return add(widen(a), widen(b));
    }
    // The pair sums of a multiply-add by ones save the sign extensions.
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> of(Vector<Tarn16s> a, Vector<Tarn16s> b)
    {
        const __m128i ones = _mm_set1_epi16(1);
        return {{_mm_madd_epi16(_mm_unpacklo_epi16(a.v, b.v), ones)},
                {_mm_madd_epi16(_mm_unpackhi_epi16(a.v, b.v), ones)}};
    }
};
inline constexpr Word<SumWidened> sumWidened;

// -- Saturated narrowing ---------------------------------------------------------------------------------------------

template <typename D>
struct NarrowSaturated {
    template <Integer W>
    static TARN_INLINE D of(W x)
    {
        return clampTo<D>(x);
    }
    static TARN_INLINE Vector<D> of(Pack<D, lanes<D>> x) { return x; }
    template <typename W>
        requires(sizeof(W) == 2 * sizeof(D))
    static TARN_INLINE Vector<D> of(Pack<W, lanes<D>> x)
    {
        if constexpr (std::is_same_v<D, Tarn8u>) {
            return {_mm_packus_epi16(x.lo.v, x.hi.v)};
        } else if constexpr (std::is_same_v<D, Tarn8s>) {
            return {_mm_packs_epi16(x.lo.v, x.hi.v)};
        } else {
            static_assert(std::is_same_v<D, Tarn16s>);
            return {_mm_packs_epi32(x.lo.v, x.hi.v)};
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
    static TARN_INLINE Vector<T> of(Vector<T> x, int n) { return narrowSaturated<T>(shiftLeft(widen(x), n)); }
    // The shift lost something where shifting back does not give the operand.
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32s> x, int n)
    {
        const auto shifted = ShiftLeft::of(x, n);
        const auto bound = BitXor::of(ShiftRight::of(x, 31), splat<Vector<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(EqualInteger::of(ShiftRight::of(shifted, n), x), shifted, bound);
    }
};
inline constexpr Word<ShiftLeftSaturated> shiftLeftSaturated;

// -- Conversion to floating point in the current rounding mode -------------------------------------------------------

template <typename D>
struct Convert;

template <>
struct Convert<Tarn32f> {
    static TARN_INLINE Tarn32f of(Tarn32s x) { return static_cast<Tarn32f>(x); }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32s> x) { return {_mm_cvtepi32_ps(x.v)}; }
};
template <typename D>
inline constexpr Word<Convert<D>> convert;

// Single precision as double, exact.
struct WidenFloat {
    static TARN_INLINE Tarn64f of(Tarn32f x) { return static_cast<Tarn64f>(x); }
    static TARN_INLINE Pack<Tarn64f, 2 * lanes<Tarn64f>> of(Vector<Tarn32f> x)
    {
        return {{_mm_cvtps_pd(x.v)}, {_mm_cvtps_pd(_mm_movehl_ps(x.v, x.v))}};
    }
};
inline constexpr Word<WidenFloat> widenFloat;

// The same bits under a type of the same width.
template <typename U>
struct Retype {
    template <typename T>
        requires(std::is_arithmetic_v<T> && sizeof(T) == sizeof(U))
    static TARN_INLINE U of(T x) { return std::bit_cast<U>(x); }
    template <typename T>
    static TARN_INLINE Vector<U> of(Vector<T> x)
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
