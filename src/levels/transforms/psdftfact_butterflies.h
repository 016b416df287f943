// Transforms of 2, 3, 4, 5 and any other odd number of points, of single elements and of vectors of them, for the
// levels of mixed-radix transforms. All go forward: whoever exchanges real and imaginary parts before and after has the
// inverse.
#pragma once

#include "frame/simd_apart.h"
#include "frame/walk.h"
#include "levels/transforms/psdft_tables.h"

#include <array>

namespace tarn::dft {

// Cosines and negative sines of the first angles of three and five points.
template <typename T>
inline constexpr T C_1_3 = static_cast<T>(-0.5);
template <typename T>
inline constexpr T S_1_3 = static_cast<T>(-0.86602540378443864676);
template <typename T>
inline constexpr T C_1_5 = static_cast<T>(0.30901699437494742410);
template <typename T>
inline constexpr T C_2_5 = static_cast<T>(-0.80901699437494742410);
template <typename T>
inline constexpr T S_1_5 = static_cast<T>(-0.95105651629515357212);
template <typename T>
inline constexpr T S_2_5 = static_cast<T>(-0.58778525229247312917);

template <typename X, int count>
using Points = std::array<Complex<X>, static_cast<std::size_t>(count)>;

template <typename X>
TARN_INLINE Complex<X> scaled(Complex<X> x, Element<X> factor)
{
    return {mul(x.re, splat<X>(factor)), mul(x.im, splat<X>(factor))};
}

template <typename X>
TARN_INLINE Points<X, 2> transformPoints(const Points<X, 2>& x)
{
    return {x[0] + x[1], x[0] - x[1]};
}

template <typename X>
TARN_INLINE Points<X, 3> transformPoints(const Points<X, 3>& x)
{
    using T = Element<X>;
    const auto sum = x[1] + x[2];
    const auto turned = scaled(x[1] - x[2], S_1_3<T>);
    const auto middle = x[0] + scaled(sum, C_1_3<T>);
    return {x[0] + sum, plusTurned(middle, turned), minusTurned(middle, turned)};
}

template <typename X>
TARN_INLINE Points<X, 4> transformPoints(const Points<X, 4>& x)
{
    const auto s0 = x[0] + x[2];
    const auto s1 = x[0] - x[2];
    const auto t0 = x[1] + x[3];
    const auto t1 = x[1] - x[3];
    return {s0 + t0, minusTurned(s1, t1), s0 - t0, plusTurned(s1, t1)};
}

template <typename X>
TARN_INLINE Points<X, 5> transformPoints(const Points<X, 5>& x)
{
    using T = Element<X>;
    const auto s1 = x[1] + x[4];
    const auto d1 = x[1] - x[4];
    const auto s2 = x[2] + x[3];
    const auto d2 = x[2] - x[3];
    const auto a1 = x[0] + (scaled(s1, C_1_5<T>) + scaled(s2, C_2_5<T>));
    const auto b1 = scaled(d1, S_1_5<T>) + scaled(d2, S_2_5<T>);
    const auto a2 = x[0] + (scaled(s1, C_2_5<T>) + scaled(s2, C_1_5<T>));
    const auto b2 = scaled(d1, S_2_5<T>) - scaled(d2, S_1_5<T>);
    return {x[0] + (s1 + s2), plusTurned(a1, b1), plusTurned(a2, b2), minusTurned(a2, b2), minusTurned(a1, b1)};
}

// Any odd number p of points. point(j) gives them, each once, before put(k, value) takes results 0, then k and p - k.
// `pairs` has room for p - 1 sums and differences of the points j and p - j, of which the results are made.
template <typename X, typename Point, typename Put>
TARN_INLINE void transformOdd(int p, const Element<X>* roots, Complex<X>* pairs, Point point, Put put)
{
    const Complex<X> first = point(0);
    Complex<X> total = first;
    for (int j = 1; j < p - j; ++j) {
        const auto low = point(j);
        const auto high = point(p - j);
        pairs[2 * j - 2] = low + high;
        pairs[2 * j - 1] = low - high;
        total = total + pairs[2 * j - 2];
    }
    put(0, total);
    for (int k = 1; k < p - k; ++k) {
        Complex<X> a = first;
        Complex<X> b = {splat<X>(0), splat<X>(0)};
        int e = 0;
        for (int j = 0; j < p - 1; j += 2) {
            e += k;
            e -= e >= p ? p : 0;
            a = a + scaled(pairs[j], roots[2 * e]);
            b = b + scaled(pairs[j + 1], roots[2 * e + 1]);
        }
        put(k, plusTurned(a, b));
        put(p - k, minusTurned(a, b));
    }
}

} // namespace tarn::dft
