// Complex data whose real and imaginary parts lie apart, one part to a pack: arithmetic, and the moves between that
// arrangement and interleaved pairs.
#pragma once

#include "frame/simd_complex.h"
#include "frame/simd_interleave.h"
#include "frame/simd_memory.h"

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

// -- Interleaved pairs ------------------------------------------------------------------------------------------------

// Pairs taken apart.
template <typename T, int N>
TARN_INLINE Complex<Pack<T, N>> deinterleave(Pack<T, N> lo, Pack<T, N> hi)
{
    return {evenElements(join(lo, hi)), oddElements(join(lo, hi))};
}

// N interleaved pairs at any address.
template <int N, Float T>
TARN_INLINE Complex<Pack<T, N>> loadPairs(const T* p)
{
    return deinterleave(loadPack<N>(p), loadPack<N>(p + N));
}
template <Float T, int N>
TARN_INLINE void storePairs(T* p, Complex<Pack<T, N>> x)
{
    store(p, zipLow(x.re, x.im));
    store(p + N, zipHigh(x.re, x.im));
}

// The same with the pairs in opposite order.
template <int N, Float T>
TARN_INLINE Complex<Pack<T, N>> loadPairsReversed(const T* p)
{
    if constexpr (N > registerLanes<T>) {
        const auto lo = loadPairsReversed<N / 2>(p);
        const auto hi = loadPairsReversed<N / 2>(p + N);
        return {{hi.re, lo.re}, {hi.im, lo.im}};
    } else {
        const auto lo = loadPack<N>(p);
        const auto hi = loadPack<N>(p + N);
        if constexpr (std::is_same_v<T, Tarn32f>) {
            return {{_mm_shuffle_ps(hi.v, lo.v, 0x22)}, {_mm_shuffle_ps(hi.v, lo.v, 0x77)}};
        } else {
            return deinterleave(hi, lo);
        }
    }
}
template <Float T, int N>
TARN_INLINE void storePairsReversed(T* p, Complex<Pack<T, N>> x)
{
    if constexpr (N > registerLanes<T>) {
        storePairsReversed(p, Complex<Pack<T, N / 2>>{highHalf(x.re), highHalf(x.im)});
        storePairsReversed(p + N, Complex<Pack<T, N / 2>>{lowHalf(x.re), lowHalf(x.im)});
    } else {
        const auto lo = zipLow(x.re, x.im);
        const auto hi = zipHigh(x.re, x.im);
        if constexpr (std::is_same_v<T, Tarn32f>) {
            // The stores turn the halves around for nothing, where shuffles would wait for each other.
            storeHalves(p + 2, p, hi);
            storeHalves(p + 6, p + 4, lo);
        } else {
            store(p, hi);
            store(p + N, lo);
        }
    }
}

} // namespace tarn
