// Words: arctangent, the angle of a complex number, sine and cosine, in single and double precision.
#pragma once

#include "frame/precise.h"
#include "frame/simd_approx.h"

namespace tarn {

// The angle of eighths / 8 of a turn plus arctan t, or minus it where the sign bit of `sign` is set.
template <typename X>
TARN_INLINE X angleFrom(X eighths, BitsLike<X> sign, X t)
{
    using T = Element<X>;
    const X z = mul(t, t);
    const X rest = mul(t, mul(z, splitPolynomial(z, arctangentCoefficients<T>)));
    const X base = mul(eighths, constant<X>(eighthTurn<T>[0]));
    const X signedT = flippedBy(sign, t);
    const X sum = add(base, signedT);
    const X lost = sub(signedT, sub(sum, base));
    const X baseRest = mul(eighths, constant<X>(eighthTurn<T>[1]));
    return add(sum, add(add(lost, baseRest), flippedBy(sign, rest)));
}

// The angle of eighths / 8 of a turn plus arctan(low / high) for 0 <= low <= high, or minus it.
template <typename X>
TARN_INLINE X angleOfRatio(X low, X high, X eighths, BitsLike<X> sign)
{
    // Near the diagonal the angle is taken from there: arctan(low / high) is an eighth of a turn less something. What
    // is left for the quotient is below the tangent of a quarter of a turn less 1 radian: with a larger one the
    // rounding of the quotient would weigh more in angles just below 1, where the last place is half as large.
    const auto isFlat = less(low, mul(high, constant<X>(Element<X>(0.64))));
    const X numerator = sub(low, clearFloatWhere(isFlat, high));
    const X denominator = add(high, clearFloatWhere(isFlat, low));
    const X one = clearFloatWhere(isFlat, constant<X>(1));
    return angleFrom(add(eighths, flippedBy(sign, one)), sign, div(numerator, denominator));
}

// In radians, from minus to plus a quarter of a turn; with the sign of x, and NaN for NaN.
struct Arctangent {
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return byRegister(x, [](auto r) { return ofRegister(r); });
    }

private:
    template <typename X>
    static TARN_INLINE X ofRegister(X x)
    {
        const X one = constant<X>(1);
        const X magnitude = absolute(x);
        const auto isSteep = greater(magnitude, one);
        // In this order a NaN passes.
        const X low = min(one, magnitude);
        const X high = max(one, magnitude);
        const X eighths = keepFloatWhere(isSteep, constant<X>(2));
        const X steepSign = keepFloatWhere(isSteep, constant<X>(-1));
        return flippedBy(bitsOf(x), angleOfRatio(low, high, eighths, bitsOf(steepSign)));
    }
};
inline constexpr Arctangent arctangent;

// The sine and the cosine of the same angle.
template <typename X>
struct SineAndCosine {
    X sine, cosine;
};

// x less the nearest multiple of a quarter of a turn, as a sum of two, and the multiple.
template <typename X>
struct QuarterReduced {
    BitsLike<X> quarters;
    X r, rest;
};

struct CircularMethod {
    // The integer multiples have exact products with the first parts of a quarter of a turn.
    template <typename X>
    static TARN_INLINE auto isOrdinary(X x)
    {
        return less(absolute(x), constant<X>(isSingle<Element<X>> ? 3000 : 1e6));
    }

    template <typename X>
    static TARN_INLINE QuarterReduced<X> reduce(X x)
    {
        using T = Element<X>;
        constexpr T inverse = T(precise::quartersPerRadian);
        const X spaced = add(mul(x, constant<X>(inverse)), constant<X>(noFraction<T>));
        const X k = sub(spaced, constant<X>(noFraction<T>));
        const auto part = [k](int i) { return mul(k, constant<X>(quarterTurn<T>[i])); };
        const X a = sub(x, part(0));
        const X second = part(1);
        const X b = sub(a, second);
        const X third = part(2);
        const X r = sub(b, third);
        const X lost = add(sub(sub(a, b), second), sub(sub(b, r), third));
        return {bitsOf(spaced), r, sub(lost, part(3))};
    }

    // Up to an eighth of a turn.
    template <typename X>
    static TARN_INLINE X sineOf(QuarterReduced<X> angle, X z)
    {
        const X cubic = mul(mul(angle.r, z), splitPolynomial(z, sineCoefficients<Element<X>>));
        return add(angle.r, add(cubic, angle.rest));
    }
    template <typename X>
    static TARN_INLINE X cosineOf(QuarterReduced<X> angle, X z)
    {
        const X one = constant<X>(1);
        const X half = mul(z, constant<X>(Element<X>(0.5)));
        const X sum = sub(one, half);
        const X lost = sub(sub(one, sum), half);
        const X quartic = mul(mul(z, z), splitPolynomial(z, cosineCoefficients<Element<X>>));
        return add(sum, add(lost, sub(quartic, mul(angle.r, angle.rest))));
    }

    template <typename X>
    static TARN_INLINE SineAndCosine<X> ordinary(X x)
    {
        using B = BitsLike<X>;
        constexpr int signShift = 8 * static_cast<int>(sizeof(Element<X>)) - 2;
        const auto angle = reduce(absolute(x)); // so that -0 keeps its sign
        const X z = mul(angle.r, angle.r);
        const B sine = bitsOf(sineOf(angle, z));
        const B cosine = bitsOf(cosineOf(angle, z));
        const B one = splat<B>(1);
        const B isOdd = sub(splat<B>(0), bitAnd(angle.quarters, one));
        const X first = floatOfBits(blend(isOdd, cosine, sine));
        const X second = floatOfBits(blend(isOdd, sine, cosine));
        const B sign = bitXor(shiftLeft(angle.quarters, signShift), bitsOf(x));
        return {flippedBy(sign, first), flippedBy(shiftLeft(add(angle.quarters, one), signShift), second)};
    }
};

template <typename T>
[[gnu::noinline, gnu::cold]] void computeRareAngles(const T* x, T* sines, T* cosines, int count)
{
    for (int i = 0; i < count; ++i) {
        if (!CircularMethod::isOrdinary(x[i])) {
            sines[i] = static_cast<T>(preciseSine(x[i]));
            cosines[i] = static_cast<T>(preciseCosine(x[i]));
        }
    }
}

// Of any angle in radians; NaN for infinities and NaN.
template <Float T>
TARN_INLINE SineAndCosine<T> sineAndCosine(T x)
{
    if (CircularMethod::isOrdinary(x)) {
        return CircularMethod::ordinary(x);
    }
    return {static_cast<T>(preciseSine(x)), static_cast<T>(preciseCosine(x))};
}
template <typename T, int N>
TARN_INLINE SineAndCosine<Pack<T, N>> sineAndCosine(Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        const auto lo = sineAndCosine(lowHalf(x));
        const auto hi = sineAndCosine(highHalf(x));
        return {join(lo.sine, hi.sine), join(lo.cosine, hi.cosine)};
    } else {
        auto y = CircularMethod::ordinary(x);
        if (!allOf(CircularMethod::isOrdinary(x))) [[unlikely]] {
            T angles[N];
            T sines[N];
            T cosines[N];
            store(angles, x);
            store(sines, y.sine);
            store(cosines, y.cosine);
            computeRareAngles(angles, sines, cosines, N);
            y = {loadPack<N>(sines), loadPack<N>(cosines)};
        }
        return y;
    }
}

} // namespace tarn
