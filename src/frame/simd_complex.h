// Words for complex data whose real and imaginary parts lie apart, one part to a register, and the moves between that
// arrangement and interleaved pairs.
#pragma once

#include "frame/simd_float.h"

#include <array>

namespace tarn {

// A complex number, or as many of them as a pack has lanes.
template <typename X>
struct Complex {
    X re, im;
};

template <typename X>
TARN_INLINE Complex<X> operator+(Complex<X> a, Complex<X> b)
{
    return {add(a.re, b.re), add(a.im, b.im)};
}

template <typename X>
TARN_INLINE Complex<X> operator-(Complex<X> a, Complex<X> b)
{
    return {sub(a.re, b.re), sub(a.im, b.im)};
}

// a + i b.
template <typename X>
TARN_INLINE Complex<X> plusTurned(Complex<X> a, Complex<X> b)
{
    return {sub(a.re, b.im), add(a.im, b.re)};
}

// a - i b.
template <typename X>
TARN_INLINE Complex<X> minusTurned(Complex<X> a, Complex<X> b)
{
    return {add(a.re, b.im), sub(a.im, b.re)};
}

// x w.
template <typename X>
TARN_INLINE Complex<X> times(Complex<X> x, Complex<X> w)
{
    return {sub(mul(x.re, w.re), mul(x.im, w.im)), add(mul(x.re, w.im), mul(x.im, w.re))};
}

// x times the conjugate of w.
template <typename X>
TARN_INLINE Complex<X> timesConjugate(Complex<X> x, Complex<X> w)
{
    return {add(mul(x.re, w.re), mul(x.im, w.im)), sub(mul(x.im, w.re), mul(x.re, w.im))};
}

// -- Interleaved pairs: a register holds lanes<T> / 2 complex numbers ------------------------------------------------

// Re and im of each pair exchanged.
template <Float T>
TARN_INLINE Vector<T> swapParts(Vector<T> x)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_shuffle_ps(x.v, x.v, 0xB1)};
    } else {
        return {_mm_shuffle_pd(x.v, x.v, 1)};
    }
}

// a minus b at even places, a plus b at odd ones.
template <Float T>
TARN_INLINE Vector<T> subAdd(Vector<T> a, Vector<T> b)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_addsub_ps(a.v, b.v)};
    } else {
        return {_mm_addsub_pd(a.v, b.v)};
    }
}

// The sign of every element inverted, that of a zero and of a NaN too.
template <Float T>
TARN_INLINE Vector<T> invertSigns(Vector<T> x)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_xor_ps(x.v, _mm_set1_ps(-0.0f))};
    } else {
        return {_mm_xor_pd(x.v, _mm_set1_pd(-0.0))};
    }
}

// -- Memory and arrangement ------------------------------------------------------------------------------------------

// A register from an address on a vector boundary: unlike an access to any address, it can be an instruction's operand.
template <Float T>
TARN_INLINE Vector<T> loadAligned(const T* p)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_load_ps(p)};
    } else {
        return {_mm_load_pd(p)};
    }
}

template <Float T>
TARN_INLINE void storeAligned(T* p, Vector<T> x)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        _mm_store_ps(p, x.v);
    } else {
        _mm_store_pd(p, x.v);
    }
}

// The elements at even places of two registers, and those at odd places: pairs taken apart.
template <Float T>
TARN_INLINE Complex<Vector<T>> deinterleave(Vector<T> lo, Vector<T> hi)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {{_mm_shuffle_ps(lo.v, hi.v, 0x88)}, {_mm_shuffle_ps(lo.v, hi.v, 0xDD)}};
    } else {
        return {{_mm_unpacklo_pd(lo.v, hi.v)}, {_mm_unpackhi_pd(lo.v, hi.v)}};
    }
}

// The lower halves of two registers, and the upper halves.
template <Float T>
TARN_INLINE Vector<T> lowHalves(Vector<T> a, Vector<T> b)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_movelh_ps(a.v, b.v)};
    } else {
        return {_mm_unpacklo_pd(a.v, b.v)};
    }
}
template <Float T>
TARN_INLINE Vector<T> highHalves(Vector<T> a, Vector<T> b)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_movehl_ps(b.v, a.v)};
    } else {
        return {_mm_unpackhi_pd(a.v, b.v)};
    }
}

// The lower half and the upper half of a vector of pairs.
template <Float T>
TARN_INLINE Vector<T> interleaveLow(Complex<Vector<T>> x)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_unpacklo_ps(x.re.v, x.im.v)};
    } else {
        return {_mm_unpacklo_pd(x.re.v, x.im.v)};
    }
}
template <Float T>
TARN_INLINE Vector<T> interleaveHigh(Complex<Vector<T>> x)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_unpackhi_ps(x.re.v, x.im.v)};
    } else {
        return {_mm_unpackhi_pd(x.re.v, x.im.v)};
    }
}

// lanes<T> interleaved pairs at any address.
template <Float T>
TARN_INLINE Complex<Vector<T>> loadPairs(const T* p)
{
    return deinterleave(loadPack<lanes<T>>(p), loadPack<lanes<T>>(p + lanes<T>));
}
template <Float T>
TARN_INLINE void storePairs(T* p, Complex<Vector<T>> x)
{
    store(p, interleaveLow(x));
    store(p + lanes<T>, interleaveHigh(x));
}

// The same with the pairs in opposite order.
template <Float T>
TARN_INLINE Complex<Vector<T>> loadPairsReversed(const T* p)
{
    const Vector<T> lo = loadPack<lanes<T>>(p);
    const Vector<T> hi = loadPack<lanes<T>>(p + lanes<T>);
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return {{_mm_shuffle_ps(hi.v, lo.v, 0x22)}, {_mm_shuffle_ps(hi.v, lo.v, 0x77)}};
    } else {
        return deinterleave(hi, lo);
    }
}
template <Float T>
TARN_INLINE void storePairsReversed(T* p, Complex<Vector<T>> x)
{
    const Vector<T> lo = interleaveLow(x);
    const Vector<T> hi = interleaveHigh(x);
    if constexpr (std::is_same_v<T, Tarn32f>) {
        store(p, Vector<T>{_mm_shuffle_ps(hi.v, hi.v, 0x4E)});
        store(p + lanes<T>, Vector<T>{_mm_shuffle_ps(lo.v, lo.v, 0x4E)});
    } else {
        store(p, hi);
        store(p + lanes<T>, lo);
    }
}

// As many rows as a register has lanes, turned into columns.
template <Float T>
using Square = std::array<Vector<T>, lanes<T>>;

template <Float T>
TARN_INLINE Square<T> transpose(Square<T> rows)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        const __m128 low01 = _mm_unpacklo_ps(rows[0].v, rows[1].v);
        const __m128 low23 = _mm_unpacklo_ps(rows[2].v, rows[3].v);
        const __m128 high01 = _mm_unpackhi_ps(rows[0].v, rows[1].v);
        const __m128 high23 = _mm_unpackhi_ps(rows[2].v, rows[3].v);
        return {Vector<T>{_mm_movelh_ps(low01, low23)}, Vector<T>{_mm_movehl_ps(low23, low01)},
                Vector<T>{_mm_movelh_ps(high01, high23)}, Vector<T>{_mm_movehl_ps(high23, high01)}};
    } else {
        return {Vector<T>{_mm_unpacklo_pd(rows[0].v, rows[1].v)}, Vector<T>{_mm_unpackhi_pd(rows[0].v, rows[1].v)}};
    }
}

} // namespace tarn
