// Words of conversion between integers and floating point, floats as their bits, and samples as the lanes that they are
// computed in.
#pragma once

#include "frame/simd_control.h"
#include "frame/simd_convert.h"

#include <bit>

namespace tarn {

// -- Integers as floats, in the current rounding mode -----------------------------------------------------------------

template <typename D>
struct Convert;

template <>
struct Convert<Tarn32f> {
    static TARN_INLINE Tarn32f of(Tarn32s x) { return static_cast<Tarn32f>(x); }
    template <RegisterOf<Tarn32s> R>
    static TARN_INLINE Like<R, Tarn32f> of(R x)
    {
        return {native::toFloats(x.v)};
    }
};
template <typename D>
inline constexpr Word<Convert<D>> convert;

// Exact.
template <>
struct Convert<Tarn64f> {
    static TARN_INLINE Tarn64f of(Tarn32s x) { return x; }
    template <RegisterOf<Tarn32s> R>
        requires(2 * sizeof(R) <= widestRegister)
    static TARN_INLINE Like<R, Tarn64f> of(R x) { return {native::toDoubles(x.v)}; }
    template <RegisterOf<Tarn32s> R>
        requires OnlyRegister<R>
    static TARN_INLINE Pack<Tarn64f, 2 * registerLanes<Tarn64f>> of(R x)
    {
        return {{_mm_cvtepi32_pd(x.v)}, {_mm_cvtepi32_pd(_mm_shuffle_epi32(x.v, 0x4E))}};
    }
};

// -- Floats as integers -----------------------------------------------------------------------------------------------

// Stamps a conversion; what does not fit, NaN included, becomes the lowest integer.
#define TARN_CONVERSION_TO_INTEGER(NAME, INSTRUCTION, CVT)                                                      \
    struct NAME {                                                                                               \
        static TARN_INLINE Tarn32s of(Tarn32f x) { return _mm_##CVT##ss_si32(_mm_set_ss(x)); }                  \
        static TARN_INLINE Tarn32s of(Tarn64f x) { return _mm_##CVT##sd_si32(_mm_set_sd(x)); }                  \
        template <FloatRegister R>                                                                              \
            requires(isSingle<Element<R>> || WideRegister<R>)                                                   \
        static TARN_INLINE Like<R, Tarn32s> of(R x) { return {native::INSTRUCTION(x.v)}; }                      \
        template <int N>                                                                                        \
            requires(N == 2 * registerLanes<Tarn64f> && widestRegister == registerBytes)                        \
        static TARN_INLINE Register<Tarn32s> of(Pack<Tarn64f, N> x)                                             \
        {                                                                                                       \
            return {_mm_unpacklo_epi64(_mm_##CVT##pd_epi32(lowHalf(x).v), _mm_##CVT##pd_epi32(highHalf(x).v))}; \
        }                                                                                                       \
    }
TARN_CONVERSION_TO_INTEGER(RoundToInteger, round, cvt); // in the current rounding mode
inline constexpr Word<RoundToInteger> roundToInteger;
TARN_CONVERSION_TO_INTEGER(TruncateToInteger, truncate, cvtt); // towards zero
inline constexpr Word<TruncateToInteger> truncateToInteger;
#undef TARN_CONVERSION_TO_INTEGER

// The conversion of another word, saturated at both ends. No single-precision number lies between the highest integer
// and 2^31, so that a limit from above cannot be one: the lowest integer, which the conversion gives from 2^31 on, is
// inverted. Doubles have that limit.
template <typename Conversion>
struct SaturatedConversion {
    static constexpr Tarn32f beyond = 2147483648.0F;

    static TARN_INLINE Tarn32s of(Tarn32f x) { return x >= beyond ? highest<Tarn32s> : Conversion::of(x); }
    static TARN_INLINE Tarn32s of(Tarn64f x)
    {
        return Conversion::of(x > highest<Tarn32s> ? Tarn64f{highest<Tarn32s>} : x);
    }
    template <RegisterOf<Tarn32f> R>
    static TARN_INLINE Like<R, Tarn32s> of(R x)
    {
        const R tooHigh{native::notBelow(x.v, splat<R>(beyond).v)};
        return BitXor::of(Conversion::of(x), reinterpretPack<Tarn32s>(tooHigh));
    }
};
inline constexpr Word<SaturatedConversion<RoundToInteger>> roundSaturated;
inline constexpr Word<SaturatedConversion<TruncateToInteger>> truncateSaturated;

// Rounded in the current mode and saturated to the bounds of D, which are limits as floats, so that nothing leaves 32
// bits in the conversion. A NaN becomes the lowest value.
template <Integer D, typename X>
TARN_INLINE auto roundLimited(X x)
{
    return narrowSaturated<D>(roundToInteger(min(max(x, splat<X>(lowest<D>)), splat<X>(highest<D>))));
}

// -- The bits of floats -----------------------------------------------------------------------------------------------

struct BitsOf {
    static TARN_INLINE Tarn32s of(Tarn32f x) { return std::bit_cast<Tarn32s>(x); }
    static TARN_INLINE Tarn64s of(Tarn64f x) { return std::bit_cast<Tarn64s>(x); }
    template <FloatRegister R>
        requires(sizeof(Element<R>) >= 4)
    static TARN_INLINE auto of(R x)
    {
        return reinterpretPack<std::conditional_t<sizeof(Element<R>) == 4, Tarn32s, Tarn64s>>(x);
    }
};
inline constexpr Word<BitsOf> bitsOf;

struct FloatOfBits {
    static TARN_INLINE Tarn32f of(Tarn32s x) { return std::bit_cast<Tarn32f>(x); }
    static TARN_INLINE Tarn64f of(Tarn64s x) { return std::bit_cast<Tarn64f>(x); }
    template <IntegerRegister R>
        requires(sizeof(Element<R>) >= 4)
    static TARN_INLINE auto of(R x)
    {
        return reinterpretPack<std::conditional_t<sizeof(Element<R>) == 4, Tarn32f, Tarn64f>>(x);
    }
};
inline constexpr Word<FloatOfBits> floatOfBits;

// -- Samples as the lanes that they are computed in, and lanes as samples ---------------------------------------------

// The type in which samples of a kind are multiplied: 16-bit ones as single-precision floats.
template <typename T>
using LaneOf = std::conditional_t<isDouble<T>, Tarn64f, Tarn32f>;

template <int N, Float T>
TARN_INLINE Pack<T, N> loadSamples(const T* p)
{
    return loadPack<N>(p);
}
template <int N>
TARN_INLINE Pack<Tarn32f, N> loadSamples(const Tarn16s* p)
{
    if constexpr (fillsWideRegister<Tarn32f, N>) {
        return Convert<Tarn32f>::of(Widen::of(loadPack<N>(p)));
    } else if constexpr (N > registerLanes<Tarn32f>) {
        return {loadSamples<N / 2>(p), loadSamples<N / 2>(p + N / 2)};
    } else {
        const __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        return {_mm_cvtepi32_ps(_mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16))};
    }
}

// Integers saturated to 16 bits.
template <int N>
TARN_INLINE void storeNarrowed(Tarn16s* p, Pack<Tarn32s, N> x)
{
    if constexpr (fillsWideRegister<Tarn32s, N>) {
        store(p, NarrowSaturated<Tarn16s>::of(x));
    } else if constexpr (N > registerLanes<Tarn32s>) {
        storeNarrowed(p, lowHalf(x));
        storeNarrowed(p + N / 2, highHalf(x));
    } else {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_packs_epi32(x.v, x.v));
    }
}

// 16-bit samples are rounded by the conversion instruction and saturated: beyond 32 bits, and from a NaN, they become
// the lowest value.
template <Float T, int N>
TARN_INLINE void storeSamples(T* p, Pack<T, N> x)
{
    store(p, x);
}
template <int N>
TARN_INLINE void storeSamples(Tarn16s* p, Pack<Tarn32f, N> x)
{
    storeNarrowed(p, roundToInteger(x));
}

// To an integer in the rounding mode of the vector unit, whose conversions the other elements of an array go through:
// callers may have set the two units differently. The compiler's own rint() rounds magnitudes where it sees no more
// than single or double precision, which is wrong for negative values in a directed mode.
inline long double roundExtended(long double x)
{
    const unsigned short own = readX87Control();
    const auto lent =
        static_cast<unsigned short>((own & ~x87RoundingField) | ((readMxcsr() & mxcsrRoundingField) >> 3));
    asm("fldcw %1\n\tfrndint\n\tfldcw %2" : "+t"(x) : "m"(lent), "m"(own));
    return x;
}

// One sample of a value in any precision, with the same rounding and the same bounds.
template <typename T, Float X>
TARN_INLINE T toSample(X x)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(x);
    } else if constexpr (std::is_same_v<X, Tarn32f>) {
        return narrowSaturated<T>(roundToInteger(x));
    } else {
        const long double rounded = roundExtended(x);
        const bool fits = rounded >= lowest<Tarn32s> && rounded <= highest<Tarn32s>;
        return narrowSaturated<T>(fits ? static_cast<Tarn32s>(rounded) : lowest<Tarn32s>);
    }
}

} // namespace tarn
