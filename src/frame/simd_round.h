// Words of conversion: single precision to integers and to double, floats as their bits.
#pragma once

#include "frame/simd_mul.h"

namespace tarn {

// An operation carried through one register after the other: its intermediate results then are few enough at a time for
// the eight registers of 32-bit code.
template <typename X, typename Operation>
TARN_INLINE auto byRegister(X x, Operation operation)
{
    if constexpr (isPack<X>) {
        if constexpr (X::size > lanes<Element<X>>) {
            return join(byRegister(x.lo, operation), byRegister(x.hi, operation));
        } else {
            return operation(x);
        }
    } else {
        return operation(x);
    }
}

// -- Widening --------------------------------------------------------------------------------------------------------

// What `widen` gives for signed elements, the upper halves made by a comparison: one for both, and it leaves the units
// that shift to the conversion that follows.
struct WidenBySign {
    static TARN_INLINE Tarn16s of(Tarn8s x) { return x; }
    static TARN_INLINE Tarn32s of(Tarn16s x) { return x; }
    static TARN_INLINE Pack<Tarn16s, 2 * lanes<Tarn16s>> of(Vector<Tarn8s> x)
    {
        const __m128i signs = _mm_cmpgt_epi8(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi8(x.v, signs)}, {_mm_unpackhi_epi8(x.v, signs)}};
    }
    static TARN_INLINE Pack<Tarn32s, 2 * lanes<Tarn32s>> of(Vector<Tarn16s> x)
    {
        const __m128i signs = _mm_cmpgt_epi16(_mm_setzero_si128(), x.v);
        return {{_mm_unpacklo_epi16(x.v, signs)}, {_mm_unpackhi_epi16(x.v, signs)}};
    }
};
inline constexpr Word<WidenBySign> widenBySign;

// -- Floats as integers ----------------------------------------------------------------------------------------------

// In the current rounding mode; what does not fit, NaN included, becomes the lowest integer.
struct RoundSingle {
    static TARN_INLINE Tarn32s of(Tarn32f x) { return _mm_cvtss_si32(_mm_set_ss(x)); }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32f> x) { return {_mm_cvtps_epi32(x.v)}; }
};
inline constexpr Word<RoundSingle> roundSingle;

// Towards zero; what does not fit, NaN included, becomes the lowest integer.
struct TruncateSingle {
    static TARN_INLINE Tarn32s of(Tarn32f x) { return _mm_cvttss_si32(_mm_set_ss(x)); }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32f> x) { return {_mm_cvttps_epi32(x.v)}; }
};
inline constexpr Word<TruncateSingle> truncateSingle;

// The conversion of another word, saturated at both ends. No float lies between the highest integer and 2^31, so that
// a limit from above cannot be a float: the lowest integer, which the conversion gives from 2^31 on, is inverted.
template <typename Conversion>
struct SaturateSingle {
    static constexpr Tarn32f beyond = 2147483648.0F;

    static TARN_INLINE Tarn32s of(Tarn32f x) { return x >= beyond ? highest<Tarn32s> : Conversion::of(x); }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32f> x)
    {
        const __m128i tooHigh = _mm_castps_si128(_mm_cmpge_ps(x.v, _mm_set1_ps(beyond)));
        return {_mm_xor_si128(Conversion::of(x).v, tooHigh)};
    }
};
inline constexpr Word<SaturateSingle<RoundSingle>> roundSaturated;
inline constexpr Word<SaturateSingle<TruncateSingle>> truncateSaturated;

// -- Between the precisions ------------------------------------------------------------------------------------------

// In the current rounding mode.
struct NarrowFloat {
    static TARN_INLINE Tarn32f of(Tarn64f x) { return static_cast<Tarn32f>(x); }
    static TARN_INLINE Vector<Tarn32f> of(Pack<Tarn64f, 2 * lanes<Tarn64f>> x)
    {
        return {_mm_movelh_ps(_mm_cvtpd_ps(x.lo.v), _mm_cvtpd_ps(x.hi.v))};
    }
};
inline constexpr Word<NarrowFloat> narrowFloat;

// -- Masks -----------------------------------------------------------------------------------------------------------

// x where the mask is set, 0 elsewhere.
struct KeepWhere {
    template <Integer T>
    static TARN_INLINE T of(bool mask, T x)
    {
        return mask ? x : T{0};
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> mask, Vector<T> x)
    {
        return {_mm_and_si128(mask.v, x.v)};
    }
};
inline constexpr Word<KeepWhere> keepWhere;

// -- The bits of single precision ------------------------------------------------------------------------------------

struct BitsOfSingle {
    static TARN_INLINE Tarn32s of(Tarn32f x) { return std::bit_cast<Tarn32s>(x); }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32f> x) { return {_mm_castps_si128(x.v)}; }
};
inline constexpr Word<BitsOfSingle> bitsOfSingle;

struct SingleOfBits {
    static TARN_INLINE Tarn32f of(Tarn32s x) { return std::bit_cast<Tarn32f>(x); }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32s> x) { return {_mm_castsi128_ps(x.v)}; }
};
inline constexpr Word<SingleOfBits> singleOfBits;

} // namespace tarn
