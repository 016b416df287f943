// What the vector approximations are built of: constants, bits of floats, and the way out for rare arguments. All of
// it takes an element or a register of any width.
#pragma once

#include "frame/polynomials.h"
#include "frame/simd_lanes.h"
#include "frame/simd_round.h"

namespace tarn {

// A constant for the places of X.
template <typename X>
TARN_INLINE X constant(Element<X> value)
{
    return splat<X>(value);
}

// The integers of a float's width, as many as X has.
template <typename X>
using BitsLike = Like<X, std::conditional_t<isSingle<Element<X>>, Tarn32s, Tarn64s>>;

// The bits of a that a mask of bits selects, elsewhere those of b.
template <typename B>
TARN_INLINE B blend(B mask, B a, B b)
{
    return bitOr(bitAnd(mask, a), bitAndNot(mask, b));
}

// x where a mask of comparison is set, 0 elsewhere, and the other way round.
struct KeepFloatWhere {
    template <Float T>
    static TARN_INLINE T of(bool mask, T x)
    {
        return mask ? x : T{0};
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R mask, R x)
    {
        return FloatBits::both(mask, x);
    }
};
inline constexpr Word<KeepFloatWhere> keepFloatWhere;

struct ClearFloatWhere {
    template <Float T>
    static TARN_INLINE T of(bool mask, T x)
    {
        return mask ? T{0} : x;
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R mask, R x)
    {
        return FloatBits::rest(mask, x);
    }
};
inline constexpr Word<ClearFloatWhere> clearFloatWhere;

// x with its sign flipped where the sign bit of `sign` is set.
template <typename X>
TARN_INLINE X flippedBy(BitsLike<X> sign, X x)
{
    const auto signBit = splat<BitsLike<X>>(lowest<Element<BitsLike<X>>>);
    return floatOfBits(bitXor(bitsOf(x), bitAnd(sign, signBit)));
}

// The polynomial as that of its even and that of its odd coefficients, in the square of z, and each of them so again if
// it is still long: one long chain of products and sums would have the others wait for their results.
template <std::size_t first = 0, std::size_t step = 1, typename X, std::size_t count>
TARN_INLINE X splitPolynomial(X z, const Element<X> (&coefficients)[count])
{
    constexpr std::size_t terms = (count - first + step - 1) / step;
    constexpr std::size_t shortChain = 5;
    if constexpr (terms <= shortChain) {
        X sum = constant<X>(coefficients[first + (terms - 1) * step]);
        for (std::size_t i = terms - 1; i-- > 0;) {
            sum = add(mul(sum, z), constant<X>(coefficients[first + i * step]));
        }
        return sum;
    } else {
        const X square = mul(z, z);
        const X odd = splitPolynomial<first + step, 2 * step>(square, coefficients);
        return add(splitPolynomial<first, 2 * step>(square, coefficients), mul(odd, z));
    }
}

// Adding this to a float leaves the nearest integer in its last bits; taking it away again leaves the integer itself.
template <typename T>
inline constexpr T noFraction = isSingle<T> ? T{0x1.8p23} : T{0x1.8p52};

template <typename T>
inline constexpr int mantissaBits = std::numeric_limits<T>::digits - 1;
template <typename T>
inline constexpr int exponentBias = std::numeric_limits<T>::max_exponent - 1;

// Lanes that the method is not made for, one after the other.
template <typename Method, typename T>
[[gnu::noinline, gnu::cold]] void computeRare(Method method, const T* x, T* y, int count)
{
    for (int i = 0; i < count; ++i) {
        if (!method.isOrdinary(x[i])) {
            y[i] = method.rare(x[i]);
        }
    }
}

// The method's `ordinary` where its `isOrdinary` says so, `rare` elsewhere: a register takes the former as a whole, and
// elements that need the latter are looked for only if there are any.
template <typename Method>
struct Approximation {
    Method method;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return byRegister(x, [this](auto r) { return this->ofRegister(r); });
    }

private:
    template <Float T>
    TARN_INLINE T ofRegister(T x) const
    {
        return method.isOrdinary(x) ? method.ordinary(x) : method.rare(x);
    }
    template <typename T, int N>
    TARN_INLINE Pack<T, N> ofRegister(Pack<T, N> x) const
    {
        auto y = method.ordinary(x);
        if (!allOf(method.isOrdinary(x))) [[unlikely]] {
            T arguments[N];
            T values[N];
            store(arguments, x);
            store(values, y);
            computeRare(method, arguments, values, N);
            y = loadPack<N>(values);
        }
        return y;
    }
};

} // namespace tarn
