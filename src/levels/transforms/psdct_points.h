// Cosine transforms of few points, for single elements and for vectors of them side by side.
#pragma once

#include "frame/simd.h"

#include <array>

namespace tarn::dct {

// cos(pi k / 16).
template <typename T>
inline constexpr T cosines[] = {static_cast<T>(1),
                                static_cast<T>(0.98078528040323044913),
                                static_cast<T>(0.92387953251128675613),
                                static_cast<T>(0.83146961230254523708),
                                static_cast<T>(0.70710678118654752440),
                                static_cast<T>(0.55557023301960222474),
                                static_cast<T>(0.38268343236508977173),
                                static_cast<T>(0.19509032201612826785)};

template <typename X, std::size_t count>
using Points = std::array<X, count>;

// cosine * a + sine * b and sine * a - cosine * b.
template <typename X>
struct Turned {
    X plus, minus;

    TARN_INLINE Turned(X a, X b, Element<X> cosine, Element<X> sine)
        : plus(add(mul(a, splat<X>(cosine)), mul(b, splat<X>(sine)))),
          minus(sub(mul(a, splat<X>(sine)), mul(b, splat<X>(cosine))))
    {
    }
};

// -- Unscaled ---------------------------------------------------------------------------------------------------------

template <typename X>
TARN_INLINE Points<X, 4> forwardPoints(const Points<X, 4>& x)
{
    constexpr const auto& c = cosines<Element<X>>;
    const X p = add(x[0], x[3]);
    const X q = add(x[1], x[2]);
    const Turned<X> odd(sub(x[0], x[3]), sub(x[1], x[2]), c[2], c[6]);
    return {add(p, q), odd.plus, mul(sub(p, q), splat<X>(c[4])), odd.minus};
}

// The odd coefficients are two rotations, once the inner differences are turned by an eighth of a circle.
template <typename X>
TARN_INLINE Points<X, 8> forwardPoints(const Points<X, 8>& x)
{
    constexpr const auto& c = cosines<Element<X>>;
    const Points<X, 4> even =
        forwardPoints(Points<X, 4>{add(x[0], x[7]), add(x[1], x[6]), add(x[2], x[5]), add(x[3], x[4])});
    const X d0 = sub(x[0], x[7]);
    const X d1 = sub(x[1], x[6]);
    const X d2 = sub(x[2], x[5]);
    const X d3 = sub(x[3], x[4]);
    const X sum = mul(add(d1, d2), splat<X>(c[4]));
    const X difference = mul(sub(d1, d2), splat<X>(c[4]));
    const Turned<X> outer(add(d0, sum), add(d3, difference), c[1], c[7]);
    const Turned<X> inner(sub(d0, sum), sub(d3, difference), c[5], c[3]);
    return {even[0], outer.plus, even[1], inner.minus, even[2], inner.plus, even[3], outer.minus};
}

template <typename X>
TARN_INLINE Points<X, 4> inversePoints(const Points<X, 4>& y)
{
    constexpr const auto& c = cosines<Element<X>>;
    const X middle = mul(y[2], splat<X>(c[4]));
    const X p = add(y[0], middle);
    const X q = sub(y[0], middle);
    const Turned<X> odd(y[1], y[3], c[2], c[6]);
    return {add(p, odd.plus), add(q, odd.minus), sub(q, odd.minus), sub(p, odd.plus)};
}

template <typename X>
TARN_INLINE Points<X, 8> inversePoints(const Points<X, 8>& y)
{
    constexpr const auto& c = cosines<Element<X>>;
    const Points<X, 4> even = inversePoints(Points<X, 4>{y[0], y[2], y[4], y[6]});
    const Turned<X> outer(y[1], y[7], c[1], c[7]);
    const Turned<X> inner(y[5], y[3], c[5], c[3]);
    const X d0 = add(outer.plus, inner.plus);
    const X sum = sub(outer.plus, inner.plus);
    const X d3 = add(outer.minus, inner.minus);
    const X difference = sub(outer.minus, inner.minus);
    const X d1 = mul(add(sum, difference), splat<X>(c[4]));
    const X d2 = mul(sub(sum, difference), splat<X>(c[4]));
    return {add(even[0], d0), add(even[1], d1), add(even[2], d2), add(even[3], d3),
            sub(even[3], d3), sub(even[2], d2), sub(even[1], d1), sub(even[0], d0)};
}

// -- Orthonormal, by constants that hold the scale --------------------------------------------------------------------

template <typename T>
inline constexpr T sqrt_2d2 = static_cast<T>(0.70710678118654752440);
template <typename T>
inline constexpr T sqrt_2 = static_cast<T>(1.41421356237309504880);
template <typename T>
inline constexpr T sqrt_2d4 = static_cast<T>(0.35355339059327376220);
template <typename T>
inline constexpr T cos_1_8s = static_cast<T>(0.65328148243818826393);
template <typename T>
inline constexpr T cos_3_8s = static_cast<T>(0.27059805007309849220);
template <typename T>
inline constexpr T cos_2_16d = static_cast<T>(0.46193976625564337806);
template <typename T>
inline constexpr T sin_2_16d = static_cast<T>(0.19134171618254488586);
template <typename T>
inline constexpr T cos_1_16s = static_cast<T>(0.34675996133053686545);
template <typename T>
inline constexpr T sin_1_16s = static_cast<T>(0.06897484482073575450);
template <typename T>
inline constexpr T cos_5_16s = static_cast<T>(0.19642373959677554533);
template <typename T>
inline constexpr T sin_5_16s = static_cast<T>(0.29396890060483967924);

// One and two points are their own inverses.
struct One {
    template <typename T>
    static Points<T, 1> of(const Points<T, 1>& x)
    {
        return x;
    }
};
struct Two {
    template <typename T>
    static Points<T, 2> of(const Points<T, 2>& x)
    {
        const T a = x[0] * sqrt_2d2<T>;
        const T b = x[1] * sqrt_2d2<T>;
        return {a + b, a - b};
    }
};

struct ForwardFour {
    template <typename T>
    static Points<T, 4> of(const Points<T, 4>& x)
    {
        constexpr T half = T{1} / 2;
        const T p = x[0] + x[3];
        const T q = x[1] + x[2];
        const Turned<T> odd(x[0] - x[3], x[1] - x[2], cos_1_8s<T>, cos_3_8s<T>);
        return {half * (p + q), odd.plus, half * (p - q), odd.minus};
    }
};
struct InverseFour {
    template <typename T>
    static Points<T, 4> of(const Points<T, 4>& y)
    {
        constexpr T half = T{1} / 2;
        const T p = half * (y[0] + y[2]);
        const T q = half * (y[0] - y[2]);
        const Turned<T> odd(y[1], y[3], cos_1_8s<T>, cos_3_8s<T>);
        return {p + odd.plus, q + odd.minus, q - odd.minus, p - odd.plus};
    }
};

struct ForwardEight {
    template <typename T>
    static Points<T, 8> of(const Points<T, 8>& x)
    {
        const T p = (x[0] + x[7]) + (x[3] + x[4]);
        const T q = (x[1] + x[6]) + (x[2] + x[5]);
        const Turned<T> even((x[0] + x[7]) - (x[3] + x[4]), (x[1] + x[6]) - (x[2] + x[5]), cos_2_16d<T>, sin_2_16d<T>);
        const T d0 = (x[0] - x[7]) * sqrt_2<T>;
        const T d1 = x[1] - x[6];
        const T d2 = x[2] - x[5];
        const T d3 = (x[3] - x[4]) * sqrt_2<T>;
        const Turned<T> outer(d0 + (d1 + d2), d3 + (d1 - d2), cos_1_16s<T>, sin_1_16s<T>);
        const Turned<T> inner(d0 - (d1 + d2), d3 - (d1 - d2), cos_5_16s<T>, sin_5_16s<T>);
        return {sqrt_2d4<T> * (p + q), outer.plus, even.plus,  inner.minus,
                sqrt_2d4<T> * (p - q), inner.plus, even.minus, outer.minus};
    }
};
struct InverseEight {
    template <typename T>
    static Points<T, 8> of(const Points<T, 8>& y)
    {
        const T p = sqrt_2d4<T> * (y[0] + y[4]);
        const T q = sqrt_2d4<T> * (y[0] - y[4]);
        const Turned<T> even(y[2], y[6], cos_2_16d<T>, sin_2_16d<T>);
        const T e0 = p + even.plus;
        const T e1 = q + even.minus;
        const T e2 = q - even.minus;
        const T e3 = p - even.plus;
        const Turned<T> outer(y[1], y[7], cos_1_16s<T>, sin_1_16s<T>);
        const Turned<T> inner(y[5], y[3], cos_5_16s<T>, sin_5_16s<T>);
        const T d0 = (outer.plus + inner.plus) * sqrt_2<T>;
        const T sum = outer.plus - inner.plus;
        const T difference = outer.minus - inner.minus;
        const T d1 = sum + difference;
        const T d2 = sum - difference;
        const T d3 = (outer.minus + inner.minus) * sqrt_2<T>;
        return {e0 + d0, e1 + d1, e2 + d2, e3 + d3, e3 - d3, e2 - d2, e1 - d1, e0 - d0};
    }
};

template <typename Rule, std::size_t count, typename T>
void sDCT(const T* src, T* dst)
{
    Points<T, count> x;
    for (std::size_t i = 0; i < count; ++i) {
        x[i] = loadElement(src + i);
    }
    x = Rule::of(x);
    for (std::size_t i = 0; i < count; ++i) {
        store(dst + i, x[i]);
    }
}

// By the length less one; null where there is none.
template <typename T>
using SmallTable = std::array<void (*)(const T*, T*), 8>;
template <typename T>
inline constexpr SmallTable<T> tbl_sDCTfwd_small = {
    sDCT<One, 1, T>, sDCT<Two, 2, T>, nullptr, sDCT<ForwardFour, 4, T>,
    nullptr,         nullptr,         nullptr, sDCT<ForwardEight, 8, T>};
template <typename T>
inline constexpr SmallTable<T> tbl_sDCTinv_small = {
    sDCT<One, 1, T>, sDCT<Two, 2, T>, nullptr, sDCT<InverseFour, 4, T>,
    nullptr,         nullptr,         nullptr, sDCT<InverseEight, 8, T>};

} // namespace tarn::dct
