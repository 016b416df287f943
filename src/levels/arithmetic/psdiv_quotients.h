// The rules that the division kernels share: what a zero divisor gives, complex quotients, rounding to integers.
#pragma once

#include "frame/factor.h"
#include "frame/narrow_float.h"
#include "frame/report.h"
#include "frame/rounding.h"
#include "frame/simd.h"
#include "frame/walk_groups.h"
#include "frame/walk_singly.h"

#include <algorithm>

namespace tarn {

// From this length on, whole groups of so many elements go through the vector loops.
inline constexpr int shortestVector = 32;
inline constexpr int divisionGroup = 8;

// All elements by an operation that gives the same wherever an element lies.
template <typename D, typename Operation, typename... S>
TARN_INLINE void walkAlike(D* pDst, int len, Operation operation, S... src)
{
    walkGroups<divisionGroup>(pDst, len, 0, operation, operation, src...);
}

// The power of two of a scale factor in single precision. Factors beyond it change nothing any more: integers saturate
// or vanish before that.
template <typename T>
inline T quotientFactor(int scaleFactor)
{
    return twoToMinus<T>(std::clamp(scaleFactor, -127, 126));
}

// -- Zero divisors ----------------------------------------------------------------------------------------------------

// What a dividend over zero gives: the bound on its side, `neither` for zero and NaN.
template <typename X>
TARN_INLINE X signedBound(X dividend, Element<X> above, Element<X> below, Element<X> neither)
{
    const auto zero = splat<X>(0);
    return select(greater(dividend, zero), splat<X>(above),
                  select(less(dividend, zero), splat<X>(below), splat<X>(neither)));
}

TARN_INLINE Tarn32f overZero(Tarn32f dividend)
{
    return signedBound(dividend, tarnConstantOfINF_32f, tarnConstantOfINF_NEG_32f, tarnConstantOfNAN_32f);
}
template <typename X>
TARN_INLINE X overZero(X dividend)
{
    static_assert(isDouble<Element<X>>);
    return signedBound(dividend, tarnConstantOfINF_64f, tarnConstantOfINF_NEG_64f, tarnConstantOfNAN_64f);
}

// The same on the way to an integer of type D, in the type that it is computed in.
template <typename D, typename X>
TARN_INLINE X boundOverZero(X dividend)
{
    using T = Element<X>;
    return signedBound(dividend, T{highest<D>}, T{lowest<D>}, T{0});
}

// An element over another. A NaN is neither below nor above zero, and counts as one.
struct QuotientOfElements {
    template <Float T>
    TARN_INLINE T operator()(Met& zeros, T divisor, T dividend) const
    {
        if (divisor < 0 || divisor > 0) {
            return dividend / divisor;
        }
        zeros.note(true);
        return overZero(dividend);
    }
};

// A group of elements, by `Steps` unless one of the divisors is zero: then every element of it is divided by itself.
template <typename Steps>
struct QuotientOfGroups {
    template <typename X>
    TARN_INLINE X operator()(Met& zeros, X divisor, X dividend) const
    {
        Met here;
        here.note(equal(divisor, splat<X>(0)));
        if (here.any()) {
            const auto one = [&zeros](auto d, auto n) { return QuotientOfElements{}(zeros, d, n); };
            return eachElement(one, divisor, dividend);
        }
        return Steps{}(divisor, dividend);
    }
};

struct TrueQuotient {
    template <typename X>
    TARN_INLINE X operator()(X divisor, X dividend) const
    {
        return tarn::div(dividend, divisor);
    }
};

// -- Complex quotients ------------------------------------------------------------------------------------------------

// One part of a complex element, in double precision.
template <typename X>
TARN_INLINE auto partAsDouble(X part)
{
    if constexpr (isDouble<Element<X>>) {
        return part;
    } else if constexpr (isSingle<Element<X>>) {
        return widen(part);
    } else {
        return convert<Tarn64f>(widen(part));
    }
}

// A divisor: its parts, and the reciprocal of its squared modulus.
template <typename X>
struct ComplexDivisor {
    X re, im, squared, reciprocal;
};

template <typename X>
TARN_INLINE ComplexDivisor<X> complexDivisor(X re, X im)
{
    const auto squared = add(mul(re, re), mul(im, im));
    return {re, im, squared, tarn::div(splat<X>(1), squared)};
}

template <typename X>
TARN_INLINE auto complexDivisorOf(X divisor)
{
    return complexDivisor(partAsDouble(reOf(divisor)), partAsDouble(imOf(divisor)));
}

// The parts of a quotient.
template <typename X>
struct QuotientParts {
    X re, im;
};

template <typename X>
TARN_INLINE QuotientParts<X> complexQuotient(X re, X im, ComplexDivisor<X> b)
{
    return {mul(add(mul(re, b.re), mul(im, b.im)), b.reciprocal), mul(sub(mul(im, b.re), mul(re, b.im)), b.reciprocal)};
}

template <typename C, typename X>
TARN_INLINE auto fromDoubleParts(QuotientParts<X> z)
{
    if constexpr (isDouble<C>) {
        return complexFrom<C>(z.re, z.im);
    } else {
        return complexFrom<C>(narrowFloat(z.re), narrowFloat(z.im));
    }
}

template <typename X>
TARN_INLINE auto roundedComplex(QuotientParts<X> z, Tarn64f factor)
{
    const auto part = [=](X x) { return roundedTo<Tarn16s>(mul(x, splat<X>(factor))); };
    return complexFrom<Tarn16sc>(part(z.re), part(z.im));
}

} // namespace tarn
