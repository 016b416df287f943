// Words: exponential and natural logarithm of single and double precision, within one unit of the last place.
#pragma once

#include "frame/precise.h"
#include "frame/simd_approx.h"

namespace tarn {

// e to the power x = 2^k e^r with an integer k, r at most half of ln 2 in magnitude.
struct ExponentialMethod {
    // Where neither the result nor the power of two leaves the normal numbers. False for a NaN.
    template <typename X>
    static TARN_INLINE auto isOrdinary(X x)
    {
        return less(absolute(x), constant<X>(isSingle<Element<X>> ? 87 : 708));
    }

    template <typename X>
    static TARN_INLINE X ordinary(X x)
    {
        using T = Element<X>;
        constexpr T inverse = T(0x1.71547652b82fep+0);
        // With k comes the bias of its exponent, so that a shift makes the power.
        constexpr T spacer = noFraction<T> + exponentBias<T>;
        const X spaced = add(mul(x, constant<X>(inverse)), constant<X>(spacer));
        const X k = sub(spaced, constant<X>(spacer));
        const X high = sub(x, mul(k, constant<X>(logOfTwo<T>[0])));
        const X low = mul(k, constant<X>(logOfTwo<T>[1]));
        const X r = sub(high, low);
        X square = mul(mul(r, r), splitPolynomial(r, exponentialCoefficients<T>));
        if constexpr (isDouble<T>) { // where the sum of all roundings comes near to a whole unit
            square = add(square, sub(sub(high, r), low));
        }
        const X y = add(add(square, r), constant<X>(1));
        return mul(y, floatOfBits(shiftLeft(bitsOf(spaced), mantissaBits<T>)));
    }

    template <Float T>
    static T rare(T x)
    {
        return std::isnan(x) ? x + x : static_cast<T>(preciseExponential(x));
    }
};
// Infinite for what is too large, 0 for what is too small, NaN for NaN.
inline constexpr Approximation<ExponentialMethod> exponential;

// ln x = k ln 2 + ln m with m = 1 + f from the root of one half to that of two.
struct LogarithmMethod {
    // Positive normal numbers.
    template <typename X>
    static TARN_INLINE auto isOrdinary(X x)
    {
        return isPositiveNormal(x);
    }

    template <typename X>
    static TARN_INLINE X ordinary(X x)
    {
        using T = Element<X>;
        using B = BitsLike<X>;
        using I = Element<B>;
        constexpr I one = std::bit_cast<I>(T{1});
        constexpr I rootOfHalf = std::bit_cast<I>(isSingle<T> ? T(0x1.6a09e6p-1) : T(0x1.6a09e667f3bcdp-1));
        constexpr I mantissa = (I{1} << mantissaBits<T>)-1;
        // The exponent, biased, as a float's last bits.
        constexpr T spacer = isSingle<T> ? T(0x1p23) : T(0x1p52);

        const B moved = add(bitsOf(x), splat<B>(one - rootOfHalf));
        const B exponent = bitOr(shiftRightLogical(moved, mantissaBits<T>), splat<B>(std::bit_cast<I>(spacer)));
        const X k = sub(floatOfBits(exponent), constant<X>(spacer + exponentBias<T>));
        const X m = floatOfBits(add(bitAnd(moved, splat<B>(mantissa)), splat<B>(rootOfHalf)));
        const X f = sub(m, constant<X>(1));

        // What the leading sum loses goes in with the small terms.
        const X leading = mul(k, constant<X>(logOfTwo<T>[0]));
        const X sum = add(leading, f);
        const X lost = sub(f, sub(sum, leading));
        return add(sum, add(add(mul(k, constant<X>(logOfTwo<T>[1])), lost), curvature(f)));
    }

    template <Float T>
    static T rare(T x)
    {
        return std::isnan(x) ? x + x : static_cast<T>(preciseLogarithm(x));
    }

private:
    // ln(1 + f) - f.
    template <typename X>
    static TARN_INLINE X curvature(X f)
    {
        using T = Element<X>;
        const X halfSquare = mul(mul(f, f), constant<X>(T(0.5)));
        if constexpr (isSingle<T>) {
            return sub(mul(mul(mul(f, f), f), splitPolynomial(f, logarithmCoefficients<T>)), halfSquare);
        } else {
            // With s = f / (2 + f): ln(1 + f) = 2 atanh(s) = f - f^2 / 2 + s (f^2 / 2 + 2 atanh(s) / s - 2).
            const X s = div(f, add(f, constant<X>(2)));
            const X z = mul(s, s);
            const X rest = mul(z, splitPolynomial(z, areaTangentCoefficients<T>));
            return sub(mul(s, add(halfSquare, rest)), halfSquare);
        }
    }
};
// -infinity for 0, NaN with the sign set below it, infinity for infinity.
inline constexpr Approximation<LogarithmMethod> logarithm;

} // namespace tarn
