// Words across the lanes of a pack: lanes moved, folded into one, looked at one by one; packs built of scalars.
#pragma once

#include "frame/simd_float.h"

#include <array>

namespace tarn {

// An operation carried through one register after the other: its intermediate results then are few enough at a time for
// the eight registers of 32-bit code.
template <typename X, typename Operation>
TARN_INLINE auto byRegister(X x, Operation operation)
{
    if constexpr (isPack<X>) {
        if constexpr (AnyRegister<X>) {
            return operation(x);
        } else {
            return join(byRegister(lowHalf(x), operation), byRegister(highHalf(x), operation));
        }
    } else {
        return operation(x);
    }
}

// -- Single lanes -----------------------------------------------------------------------------------------------------

template <typename T, int N>
TARN_INLINE T firstLane(Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        return firstLane(lowHalf(x));
    } else if constexpr (isSingle<T>) {
        return _mm_cvtss_f32(x.v);
    } else if constexpr (isDouble<T>) {
        return _mm_cvtsd_f64(x.v);
    } else if constexpr (sizeof(T) == 8) {
        Tarn64s lowest;
        _mm_storel_epi64(reinterpret_cast<__m128i*>(&lowest), x.v);
        return lowest;
    } else {
        return static_cast<T>(_mm_cvtsi128_si32(x.v));
    }
}

// x with another value in lane 0.
template <typename T, int N>
TARN_INLINE Pack<T, N> withFirstLane(Pack<T, N> x, T value)
{
    if constexpr (N > registerLanes<T>) {
        return {withFirstLane(lowHalf(x), value), highHalf(x)};
    } else if constexpr (isSingle<T>) {
        return {_mm_move_ss(x.v, _mm_set_ss(value))};
    } else {
        static_assert(isDouble<T>);
        return {_mm_move_sd(x.v, _mm_set_sd(value))};
    }
}

// A pack with x in lane 0 and zeros above it.
template <typename X>
TARN_INLINE X inFirstLane(Element<X> x)
{
    using T = Element<X>;
    if constexpr (X::size > registerLanes<T>) {
        return {inFirstLane<HalfOf<X>>(x), splat<HalfOf<X>>(T{0})};
    } else if constexpr (isSingle<T>) {
        return {_mm_set_ss(x)};
    } else {
        static_assert(isDouble<T>);
        return {_mm_set_sd(x)};
    }
}

// Lane k in all places.
template <int k, typename T, int N>
TARN_INLINE Pack<T, N> splatLane(Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        constexpr int half = N / 2;
        const auto spread = k < half ? splatLane<k % half>(lowHalf(x)) : splatLane<k % half>(highHalf(x));
        return {spread, spread};
    } else if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_shuffle_ps(x.v, x.v, 0x55 * k)};
    } else {
        static_assert(std::is_same_v<T, Tarn64f>);
        return {_mm_shuffle_pd(x.v, x.v, 3 * k)};
    }
}

// A register of the given lanes, the first one lowest.
TARN_INLINE Register<Tarn32f> lanesOf(Tarn32f a, Tarn32f b, Tarn32f c, Tarn32f d) { return {_mm_setr_ps(a, b, c, d)}; }
TARN_INLINE Register<Tarn64f> lanesOf(Tarn64f a, Tarn64f b) { return {_mm_setr_pd(a, b)}; }
TARN_INLINE Register<Tarn32s> lanesOf(Tarn32s a, Tarn32s b, Tarn32s c, Tarn32s d)
{
    return {_mm_setr_epi32(a, b, c, d)};
}

// Lane k in all lanes.
template <int k, Float T, int N>
TARN_INLINE Pack<T, N> spreadLane(Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        const auto half = spreadLane<k % (N / 2)>(k < N / 2 ? lowHalf(x) : highHalf(x));
        return {half, half};
    } else if constexpr (isSingle<T>) {
        return {_mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(x.v), k * 0x55))};
    } else {
        return {_mm_castsi128_pd(_mm_shuffle_epi32(_mm_castpd_si128(x.v), k == 0 ? 0x44 : 0xEE))};
    }
}

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

// -- Folding ----------------------------------------------------------------------------------------------------------

// Lane i gets what lane i + k has; the uppermost k become zeros.
template <int k, typename T, int N>
TARN_INLINE Pack<T, N> lanesDown(Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        static_assert(k == N / 2, "whole halves, or lanes of the narrowest register");
        return {highHalf(x), splat<Pack<T, N / 2>>(T{})};
    } else {
        constexpr int bytes = k * static_cast<int>(sizeof(T));
        return {reinterpret_cast<Native<T>>(_mm_srli_si128(reinterpret_cast<__m128i>(x.v), bytes))};
    }
}

// The upper half of the lanes joined to the lower half, until `left` lanes remain, which are the lowest: four lanes
// fold as 0 with 2 and 1 with 3, then those two. What is left of several registers is one of them at least.
template <int left, typename T, int N, typename Join>
TARN_INLINE auto foldTo(Pack<T, N> x, Join join)
{
    if constexpr (left == N) {
        return x;
    } else if constexpr (N > registerLanes<T>) {
        return foldTo<left>(join(lowHalf(x), highHalf(x)), join);
    } else {
        const auto half = foldTo<2 * left>(x, join);
        return join(half, lanesDown<left>(half));
    }
}
template <typename T, int N, typename Join>
TARN_INLINE T foldLanes(Pack<T, N> x, Join join)
{
    return firstLane(foldTo<1>(x, join));
}

// The sums of the lanes of four registers, in their order.
TARN_INLINE Register<Tarn32s> sumsOfLanes(Register<Tarn32s> a, Register<Tarn32s> b, Register<Tarn32s> c,
                                          Register<Tarn32s> d)
{
    const __m128i ab = _mm_add_epi32(_mm_unpacklo_epi32(a.v, b.v), _mm_unpackhi_epi32(a.v, b.v));
    const __m128i cd = _mm_add_epi32(_mm_unpacklo_epi32(c.v, d.v), _mm_unpackhi_epi32(c.v, d.v));
    return {_mm_add_epi32(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd))};
}

// -- Search -----------------------------------------------------------------------------------------------------------

// The first lane that a mask has set; there is one.
template <typename T, int N>
TARN_INLINE int firstSet(Pack<T, N> mask)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        return std::countr_zero(native::bytesSet(reinterpretPack<Tarn8u>(mask).v)) / static_cast<int>(sizeof(T));
    } else {
        return anyOf(mask.lo) ? firstSet(mask.lo) : N / 2 + firstSet(mask.hi);
    }
}

// Elements that wordsNotAbove compares.
inline constexpr int wordsSearched = 2 * registerLanes<Tarn16u>;

// How many of so many sorted words, from an address on, are not above a value.
TARN_INLINE int wordsNotAbove(const Tarn16u* sorted, Tarn16u value)
{
    const auto above = greater(loadPack<wordsSearched>(sorted), splat<Pack<Tarn16u, wordsSearched>>(value));
    const int set = _mm_movemask_epi8(_mm_packs_epi16(lowHalf(above).v, highHalf(above).v));
    return std::countr_zero(static_cast<unsigned>(set) | 1u << wordsSearched);
}

// -- Order of computation ---------------------------------------------------------------------------------------------

// The value is there once the program gets here: what is read of the status word afterwards has seen its computation,
// and a control word that was written before has been in force for what is computed of it.
TARN_INLINE void settle(Tarn32f& x) { asm volatile("" : "+x"(x)); }
TARN_INLINE void settle(Tarn64f& x) { asm volatile("" : "+x"(x)); }
TARN_INLINE void settle(Tarn32s& x) { asm volatile("" : "+r"(x)); }
template <typename T, int N>
TARN_INLINE void settle(Pack<T, N>& x)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        asm volatile("" : "+x"(x.v));
    } else {
        settle(x.lo);
        settle(x.hi);
    }
}

} // namespace tarn
