// Words of the reductions: lanes folded into one, pairs of elements summed on the way to wider lanes, and the search.
#pragma once

#include "frame/simd.h"

namespace tarn {

// -- Lanes of one register -------------------------------------------------------------------------------------------

// Lane i gets what lane i + k has; the uppermost k become zeros.
template <int k, typename T, int N>
    requires(N == lanes<T>)
TARN_INLINE Pack<T, N> lanesDown(Pack<T, N> x)
{
    constexpr int bytes = k * static_cast<int>(sizeof(T));
    return {reinterpret_cast<Native<T>>(_mm_srli_si128(reinterpret_cast<__m128i>(x.v), bytes))};
}

template <typename T, int N>
    requires(N == lanes<T>)
TARN_INLINE T firstLane(Pack<T, N> x)
{
    if constexpr (isSingle<T>) {
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
    requires(N == lanes<T>)
TARN_INLINE Pack<T, N> withFirstLane(Pack<T, N> x, T value)
{
    if constexpr (isSingle<T>) {
        return {_mm_move_ss(x.v, _mm_set_ss(value))};
    } else {
        static_assert(isDouble<T>);
        return {_mm_move_sd(x.v, _mm_set_sd(value))};
    }
}

// The upper half of the lanes joined to the lower half, until `left` lanes remain, which are the lowest: four lanes
// fold as 0 with 2 and 1 with 3, then those two.
template <int left, typename T, int N, typename Join>
    requires(N == lanes<T>)
TARN_INLINE Pack<T, N> foldTo(Pack<T, N> x, Join join)
{
    if constexpr (left == N) {
        return x;
    } else {
        const auto half = foldTo<2 * left>(x, join);
        return join(half, lanesDown<left>(half));
    }
}
template <typename T, int N, typename Join>
    requires(N == lanes<T>)
TARN_INLINE T foldLanes(Pack<T, N> x, Join join) { return firstLane(foldTo<1>(x, join)); }

// A register with x in lane 0 and zeros above it.
template <typename X>
TARN_INLINE X inFirstLane(Element<X> x)
{
    if constexpr (isSingle<Element<X>>) {
        return {_mm_set_ss(x)};
    } else {
        static_assert(isDouble<Element<X>>);
        return {_mm_set_sd(x)};
    }
}

// Two floats in the lowest lanes, zeros above.
TARN_INLINE Vector<Tarn32f> loadTwo(const Tarn32f* p)
{
    return {reinterpret_cast<__m128>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}

// -- Complex elements ------------------------------------------------------------------------------------------------

// The real part in the places of both parts, and the imaginary part there.
struct BothRe {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.re, x.re}; }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> x) { return {_mm_moveldup_ps(x.v)}; }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> x) { return {_mm_unpacklo_pd(x.v, x.v)}; }
};
inline constexpr Word<BothRe> bothRe;

struct BothIm {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T x) { return {x.im, x.im}; }
    static TARN_INLINE Vector<Tarn32fc> of(Vector<Tarn32fc> x) { return {_mm_movehdup_ps(x.v)}; }
    static TARN_INLINE Vector<Tarn64fc> of(Vector<Tarn64fc> x) { return {_mm_unpackhi_pd(x.v, x.v)}; }
};
inline constexpr Word<BothIm> bothIm;

// Real elements as complex ones with the element in both parts.
TARN_INLINE Pack<Tarn32fc, 2 * lanes<Tarn32fc>> inBothParts(Vector<Tarn32f> x)
{
    return {{_mm_unpacklo_ps(x.v, x.v)}, {_mm_unpackhi_ps(x.v, x.v)}};
}
TARN_INLINE Pack<Tarn64fc, 2 * lanes<Tarn64fc>> inBothParts(Vector<Tarn64f> x)
{
    return {{_mm_unpacklo_pd(x.v, x.v)}, {_mm_unpackhi_pd(x.v, x.v)}};
}
template <typename T, int N>
TARN_INLINE auto inBothParts(Pack<T, N> x)
{
    return join(inBothParts(x.lo), inBothParts(x.hi));
}

// re^2 + im^2 of complex elements, as many real lanes; three operations, three roundings.
TARN_INLINE Vector<Tarn32f> squaredMagnitudesOf(Pack<Tarn32fc, 2 * lanes<Tarn32fc>> x)
{
    const __m128 lo = _mm_mul_ps(x.lo.v, x.lo.v);
    const __m128 hi = _mm_mul_ps(x.hi.v, x.hi.v);
    return {_mm_hadd_ps(lo, hi)};
}
TARN_INLINE Vector<Tarn64f> squaredMagnitudesOf(Pack<Tarn64fc, 2 * lanes<Tarn64fc>> x)
{
    const __m128d lo = _mm_mul_pd(x.lo.v, x.lo.v);
    const __m128d hi = _mm_mul_pd(x.hi.v, x.hi.v);
    return {_mm_hadd_pd(lo, hi)};
}

// The lower part's sum less the upper one's, and their sum: (a0 - b0, a1 + b1, ...).
TARN_INLINE Vector<Tarn32f> subAddLanes(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {_mm_addsub_ps(a.v, b.v)}; }
TARN_INLINE Vector<Tarn64f> subAddLanes(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {_mm_addsub_pd(a.v, b.v)}; }

// -- 16-bit elements: pairs become one lane of 32 bits ---------------------------------------------------------------

// a[2k] b[2k] + a[2k+1] b[2k+1] modulo 2^32. It leaves 32 bits in one case: 2^31, from four times the lowest element.
TARN_INLINE Vector<Tarn32s> pairProducts(Vector<Tarn16s> a, Vector<Tarn16s> b) { return {_mm_madd_epi16(a.v, b.v)}; }

TARN_INLINE Vector<Tarn32s> pairSums(Vector<Tarn16s> x) { return {_mm_madd_epi16(x.v, _mm_set1_epi16(1))}; }

// The sum of the pair's magnitudes, each being the product with its own sign: |-32768| is no exception.
TARN_INLINE Vector<Tarn32u> pairMagnitudes(Vector<Tarn16s> x)
{
    const __m128i sign = _mm_or_si128(_mm_srai_epi16(x.v, 15), _mm_set1_epi16(1));
    return {_mm_madd_epi16(x.v, sign)};
}
TARN_INLINE Vector<Tarn32u> pairMagnitudes(Vector<Tarn16u> x)
{
    return {_mm_add_epi32(_mm_and_si128(x.v, _mm_set1_epi32(0xFFFF)), _mm_srli_epi32(x.v, 16))};
}

// The squares of unsigned elements, in their order.
TARN_INLINE Pack<Tarn32u, 2 * lanes<Tarn32u>> squares(Vector<Tarn16u> x)
{
    const __m128i low = _mm_mullo_epi16(x.v, x.v);
    const __m128i high = _mm_mulhi_epu16(x.v, x.v);
    return {{_mm_unpacklo_epi16(low, high)}, {_mm_unpackhi_epi16(low, high)}};
}

// |a - b|.
struct Distance {
    static TARN_INLINE Tarn16u of(Tarn16s a, Tarn16s b) { return static_cast<Tarn16u>(a > b ? a - b : b - a); }
    static TARN_INLINE Vector<Tarn16u> of(Vector<Tarn16s> a, Vector<Tarn16s> b)
    {
        return {_mm_sub_epi16(_mm_max_epi16(a.v, b.v), _mm_min_epi16(a.v, b.v))};
    }
};
inline constexpr Word<Distance> distance;

// Pairs of 16-bit complex elements: their real parts, then their imaginary parts.
TARN_INLINE Vector<Tarn16s> partsOfPairs(Vector<Tarn16sc> x)
{
    return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(x.v, 0xD8), 0xD8)};
}
// Pairs of real elements, each pair twice: partners of the parts of pairs.
TARN_INLINE Pack<Tarn16s, 2 * lanes<Tarn16s>> pairsTwice(Vector<Tarn16s> x)
{
    return {{_mm_unpacklo_epi32(x.v, x.v)}, {_mm_unpackhi_epi32(x.v, x.v)}};
}

// -- 32-bit lanes on their way into 64 bits --------------------------------------------------------------------------

// The lanes at even places, and those at odd ones.
TARN_INLINE Vector<Tarn64s> evenLanes(Vector<Tarn32u> x) { return {_mm_and_si128(x.v, _mm_set_epi32(0, -1, 0, -1))}; }
TARN_INLINE Vector<Tarn64s> oddLanes(Vector<Tarn32u> x) { return {_mm_srli_epi64(x.v, 32)}; }

// The sum of each even lane and its odd neighbour.
TARN_INLINE Vector<Tarn64s> pairSums(Vector<Tarn32u> x) { return add(evenLanes(x), oddLanes(x)); }

// -- Order -----------------------------------------------------------------------------------------------------------

// The elements moved by half their range, as signed for unsigned ones and back, which keeps their order: the
// instructions compare signed lanes.
struct MoveOrder {
    template <Integer T>
    using Opposite = std::conditional_t<std::is_unsigned_v<T>, std::make_signed_t<T>, std::make_unsigned_t<T>>;

    template <Integer T>
    static TARN_INLINE Opposite<T> of(T x)
    {
        using U = Unsigned<T>;
        return static_cast<Opposite<T>>(static_cast<U>(x) ^ (U{1} << (8 * sizeof(T) - 1)));
    }
    template <Integer T>
    static TARN_INLINE Vector<Opposite<T>> of(Vector<T> x)
    {
        return {_mm_xor_si128(x.v, splat<Vector<std::make_signed_t<T>>>(lowest<std::make_signed_t<T>>).v)};
    }
};
inline constexpr Word<MoveOrder> moveOrder;

// True unless x is below or above y: where either is a NaN, too.
struct EqualOrUnordered {
    template <typename T>
        requires(!isPack<T>)
    static TARN_INLINE bool of(T x, T y) { return !(x < y || x > y); }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> x, Vector<T> y)
    {
        return EqualInteger::of(x, y);
    }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> x, Vector<Tarn32f> y)
    {
        return {_mm_or_ps(_mm_cmpeq_ps(x.v, y.v), _mm_cmpunord_ps(x.v, y.v))};
    }
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> x, Vector<Tarn64f> y)
    {
        return {_mm_or_pd(_mm_cmpeq_pd(x.v, y.v), _mm_cmpunord_pd(x.v, y.v))};
    }
};
inline constexpr Word<EqualOrUnordered> matchesUnordered;

// The first lane that a mask has set; there is one.
template <typename T, int N>
    requires(N == lanes<T>)
TARN_INLINE int firstSet(Pack<T, N> mask)
{
    const int bytes = _mm_movemask_epi8(reinterpret_cast<__m128i>(mask.v));
    return std::countr_zero(static_cast<unsigned>(bytes)) / static_cast<int>(sizeof(T));
}

// -- Memory ----------------------------------------------------------------------------------------------------------

// From an address on a vector boundary, where the load is part of the instruction that uses it.
template <int N, typename T>
TARN_INLINE Pack<T, N> loadOnBoundary(const T* p)
{
    static_assert(N == lanes<T> && isSingle<T>);
    return {_mm_load_ps(reinterpret_cast<const float*>(p))};
}

// The value is there once the program gets here: what is read of the status word afterwards has seen its computation,
// and a control word that was written before has been in force for what is computed of it.
TARN_INLINE void settle(Tarn32f& x) { asm volatile("" : "+x"(x)); }
TARN_INLINE void settle(Tarn64f& x) { asm volatile("" : "+x"(x)); }
TARN_INLINE void settle(Tarn32s& x) { asm volatile("" : "+r"(x)); }
template <typename T, int N>
    requires(N == lanes<T>)
TARN_INLINE void settle(Pack<T, N>& x) { asm volatile("" : "+x"(x.v)); }

} // namespace tarn
