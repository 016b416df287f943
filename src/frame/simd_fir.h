// Words of filters: sums of complex elements, products with a spread sample, sums across lanes.
#pragma once

#include "frame/simd_mul.h"

namespace tarn {

// a plus b; complex elements part by part.
struct AddElements {
    template <typename T>
    static TARN_INLINE T of(T a, T b) requires isComplex<T>
    {
        return {add(a.re, b.re), add(a.im, b.im)};
    }
    template <Float T>
    static TARN_INLINE T of(T a, T b)
    {
        return add(a, b);
    }
    template <typename T, int N>
        requires(N == lanes<T>)
    static TARN_INLINE Pack<T, N> of(Pack<T, N> a, Pack<T, N> b)
    {
        return reinterpretPack<T>(add(reinterpretPack<Part<T>>(a), reinterpretPack<Part<T>>(b)));
    }
};
inline constexpr Word<AddElements> addElements;

// x times w, where w is given as it is and with its parts exchanged: x is spread over both parts of the product.
TARN_INLINE Vector<Tarn64fc> mulSpread(Vector<Tarn64fc> x, Vector<Tarn64f> w, Vector<Tarn64f> swapped)
{
    const __m128d byRe = _mm_mul_pd(_mm_unpacklo_pd(x.v, x.v), w.v);
    const __m128d byIm = _mm_mul_pd(_mm_unpackhi_pd(x.v, x.v), swapped.v);
    return {_mm_addsub_pd(byRe, byIm)};
}

// x[2k] y[2k] + x[2k+1] y[2k+1] modulo 2^32.
TARN_INLINE Vector<Tarn32s> mulAddPairs(Vector<Tarn16s> x, Vector<Tarn16s> y) { return {_mm_madd_epi16(x.v, y.v)}; }

// The sums of the lanes of four registers, in their order.
TARN_INLINE Vector<Tarn32s> sumsOfLanes(Vector<Tarn32s> a, Vector<Tarn32s> b, Vector<Tarn32s> c, Vector<Tarn32s> d)
{
    const __m128i ab = _mm_add_epi32(_mm_unpacklo_epi32(a.v, b.v), _mm_unpackhi_epi32(a.v, b.v));
    const __m128i cd = _mm_add_epi32(_mm_unpacklo_epi32(c.v, d.v), _mm_unpackhi_epi32(c.v, d.v));
    return {_mm_add_epi32(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd))};
}

// The sum of the lanes of one register.
TARN_INLINE Tarn32s sumOfLanes(Vector<Tarn32s> x)
{
    const __m128i pairs = _mm_add_epi32(x.v, _mm_shuffle_epi32(x.v, 0x4E));
    return _mm_cvtsi128_si32(_mm_add_epi32(pairs, _mm_shuffle_epi32(pairs, 0xB1)));
}
TARN_INLINE Tarn32f sumOfLanes(Vector<Tarn32f> x)
{
    const __m128 pairs = _mm_add_ps(x.v, _mm_movehl_ps(x.v, x.v));
    return _mm_cvtss_f32(_mm_add_ss(pairs, _mm_shuffle_ps(pairs, pairs, 1)));
}
TARN_INLINE Tarn64f sumOfLanes(Vector<Tarn64f> x) { return _mm_cvtsd_f64(_mm_add_sd(x.v, _mm_unpackhi_pd(x.v, x.v))); }

// A register from an address on a vector boundary, which can be an operand of the instruction that uses it.
template <Float T>
TARN_INLINE Vector<T> loadOperand(const T* p)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_load_ps(p)};
    } else {
        return {_mm_load_pd(p)};
    }
}

// As many elements as half a register holds in its lower half, zeros above.
template <Float T>
TARN_INLINE Vector<T> loadHalf(const T* p)
{
    return {reinterpret_cast<Native<T>>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}

} // namespace tarn
