// Words of windows and generators: samples of any width as floating-point lanes and back, lanes repeated, built of
// scalars, and put in opposite order.
#pragma once

#include "frame/simd_control.h"
#include "frame/simd_round.h"

#include <array>

namespace tarn {

// Every lane twice: one real factor for both parts of a complex element.
template <Float T, int N>
TARN_INLINE Pack<T, 2 * N> twice(Pack<T, N> x)
{
    if constexpr (N > lanes<T>) {
        return {twice(x.lo), twice(x.hi)};
    } else if constexpr (isSingle<T>) {
        return {{_mm_unpacklo_ps(x.v, x.v)}, {_mm_unpackhi_ps(x.v, x.v)}};
    } else {
        return {{_mm_unpacklo_pd(x.v, x.v)}, {_mm_unpackhi_pd(x.v, x.v)}};
    }
}

// A register of the given lanes, the first one lowest.
TARN_INLINE Vector<Tarn32f> lanesOf(Tarn32f a, Tarn32f b, Tarn32f c, Tarn32f d) { return {_mm_setr_ps(a, b, c, d)}; }
TARN_INLINE Vector<Tarn64f> lanesOf(Tarn64f a, Tarn64f b) { return {_mm_setr_pd(a, b)}; }

// The lanes as an array, of one lane for a scalar.
template <Float T>
TARN_INLINE std::array<T, 1> lanesAsArray(T x)
{
    return {x};
}
template <typename T, int N>
TARN_INLINE std::array<T, N> lanesAsArray(Pack<T, N> x)
{
    std::array<T, N> values;
    store(values.data(), x);
    return values;
}

// Elements of so many parts in opposite order; each keeps its parts as they are.
template <int parts, Float T, int N>
TARN_INLINE Pack<T, N> reverseElements(Pack<T, N> x)
{
    if constexpr (parts == 1) {
        return reverse(x);
    } else if constexpr (N > lanes<T>) {
        return {reverseElements<parts>(x.hi), reverseElements<parts>(x.lo)};
    } else if constexpr (lanes<T> == parts) {
        return x;
    } else {
        static_assert(isSingle<T> && parts == 2);
        return reinterpretPack<T>(reverse(reinterpretPack<Tarn32fc>(x)));
    }
}

// -- Samples as the lanes that they are computed in, and lanes as samples --------------------------------------------

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
    if constexpr (N > lanes<Tarn32f>) {
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
    if constexpr (N > lanes<Tarn32s>) {
        storeNarrowed(p, x.lo);
        storeNarrowed(p + N / 2, x.hi);
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
    storeNarrowed(p, roundSingle(x));
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
        return narrowSaturated<T>(roundSingle(x));
    } else {
        const long double rounded = roundExtended(x);
        const bool fits = rounded >= lowest<Tarn32s> && rounded <= highest<Tarn32s>;
        return narrowSaturated<T>(fits ? static_cast<Tarn32s>(rounded) : lowest<Tarn32s>);
    }
}

} // namespace tarn
