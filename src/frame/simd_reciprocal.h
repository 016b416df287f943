// Words around division: the hardware's approximations, square roots, and the signs and tests that go with them.
#pragma once

#include "frame/simd_float.h"

namespace tarn {

// 1 / x with an error of at most 1.5 * 2^-12 of the result, +-infinity for +-0, +-0 for what would be denormal, and
// denormals taken as zeros. The bits are the processor's own.
struct ApproxReciprocal {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> x) { return {_mm_rcp_ps(x.v)}; }
};
inline constexpr Word<ApproxReciprocal> approxReciprocal;

// 1 / sqrt(x) to the same accuracy; NaN below zero.
struct ApproxReciprocalRoot {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> x) { return {_mm_rsqrt_ps(x.v)}; }
};
inline constexpr Word<ApproxReciprocalRoot> approxReciprocalRoot;

// One Newton step, r (2 - x r): an estimate r of 1 / x with twice as many bits right, given the product x r, which
// callers also look at to see whether the estimate was of any use.
template <typename X>
TARN_INLINE X refineReciprocal(X estimate, X product)
{
    return mul(estimate, sub(splat<X>(2), product));
}

// Correctly rounded; NaN below zero.
struct SquareRoot {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }
    static TARN_INLINE Tarn64f of(Tarn64f x)
    {
        const __m128d both = _mm_set1_pd(x);
        return _mm_cvtsd_f64(_mm_sqrt_sd(both, both));
    }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> x) { return {_mm_sqrt_ps(x.v)}; }
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> x) { return {_mm_sqrt_pd(x.v)}; }
};
inline constexpr Word<SquareRoot> squareRoot;

// The bits of both, and those of b that a lacks; what sign bits are taken apart and put together with.
struct FloatBits {
    static TARN_INLINE Vector<Tarn32f> both(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {_mm_and_ps(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn64f> both(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {_mm_and_pd(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn32f> rest(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {_mm_andnot_ps(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn64f> rest(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {_mm_andnot_pd(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn32f> either(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {_mm_or_ps(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn64f> either(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {_mm_or_pd(a.v, b.v)}; }
};

// x without its sign.
struct Absolute {
    template <Float T>
    static TARN_INLINE T of(T x)
    {
        return std::fabs(x);
    }
    template <Float T>
    static TARN_INLINE Vector<T> of(Vector<T> x)
    {
        return FloatBits::rest(splat<Vector<T>>(-T{0}), x);
    }
};
inline constexpr Word<Absolute> absolute;

// x with the sign of another value.
struct CopySign {
    template <Float T>
    static TARN_INLINE T of(T x, T sign)
    {
        return std::copysign(x, sign);
    }
    template <Float T>
    static TARN_INLINE Vector<T> of(Vector<T> x, Vector<T> sign)
    {
        const auto signBit = splat<Vector<T>>(-T{0});
        return FloatBits::either(FloatBits::rest(signBit, x), FloatBits::both(signBit, sign));
    }
};
inline constexpr Word<CopySign> copySign;

// True where a is not below b: also where the two are unordered.
struct NotLess {
    template <Float T>
    static TARN_INLINE bool of(T a, T b)
    {
        return !(a < b);
    }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {_mm_cmpnlt_ps(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {_mm_cmpnlt_pd(a.v, b.v)}; }
};
inline constexpr Word<NotLess> notLess;

} // namespace tarn
