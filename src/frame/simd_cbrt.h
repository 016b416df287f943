// The word for cube roots, in single precision.
#pragma once

#include "frame/simd_approx.h"

namespace tarn {

// With |x| = 2^(3 k) m and m from 1 to 8, 2^k times the cube root of m: a polynomial, and two Newton steps
// y - (y^3 - m) / 3 y^2 whose quotients are products with the processor's estimate of the reciprocal. The first leaves
// an error of some 2^-17, the second that of its roundings.
struct CubeRootMethod {
    template <typename X>
    static TARN_INLINE auto isOrdinary(X x)
    {
        return isPositiveNormal(absolute(x));
    }

    template <typename X>
    static TARN_INLINE X ordinary(X x)
    {
        using B = BitsLike<X>;
        const X magnitude = absolute(x);
        const B bits = bitsOf(magnitude);
        // The exponent with a bias that is a multiple of three.
        const B exponent = add(shiftRight(bits, mantissaBits<Tarn32f>), splat<B>(biasOfThirds - exponentBias<Tarn32f>));
        const B third = truncateToInteger(mul(convert<Tarn32f>(exponent), constant<X>(1.0F / 3)));
        const B thrice = add(add(third, third), third);
        const X m = floatOfBits(sub(bits, shiftLeft(sub(thrice, splat<B>(biasOfThirds)), mantissaBits<Tarn32f>)));
        const X y = newtonStep(newtonStep(polynomial(m, cubeRootCoefficients<Tarn32f>), m), m);
        const B power = shiftLeft(sub(third, splat<B>(biasOfThirds / 3)), mantissaBits<Tarn32f>);
        return copySign(floatOfBits(add(bitsOf(y), power)), x);
    }

    // Zeros, infinities and NaN are their own roots; denormal numbers are moved into the range by a cube.
    static Tarn32f rare(Tarn32f x)
    {
        const Tarn32f moved = x * 0x1p24F;
        return isOrdinary(moved) && !(std::fabs(x) > 1) ? ordinary(moved) * 0x1p-8F : x + x;
    }

private:
    static constexpr int biasOfThirds = 129;

    template <typename X>
    static TARN_INLINE X newtonStep(X y, X m)
    {
        const X square = mul(y, y);
        const X excess = sub(mul(square, y), m);
        return sub(y, mul(excess, approxReciprocal(mul(square, constant<X>(3)))));
    }
};
// With the sign of x; infinite for infinities, NaN for NaN.
inline constexpr Approximation<CubeRootMethod> cubeRoot;

} // namespace tarn
