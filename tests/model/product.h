// Products of elements of any type, exact or rounded to the 53 bits of a double, by integers alone: no rounding mode
// has a say in them.
#pragma once

#include "model/scale.h"

#include <cstdint>

namespace tarn::model {

/// The exact product of two real elements of up to 32 bits at scale factor s.
template <class D, class A, class B>
D scaledProduct(A a, B b, int s)
{
    if constexpr (requires { b.re; }) {
        using P = decltype(D::re);
        if constexpr (requires { a.re; }) {
            const auto times = [](auto x, auto y) { return Wide(static_cast<std::int64_t>(x) * y); };
            return {scaled<P>(times(a.re, b.re) - times(a.im, b.im), s),
                    scaled<P>(times(a.re, b.im) + times(a.im, b.re), s)};
        } else {
            return {scaledProduct<P>(a, b.re, s), scaledProduct<P>(a, b.im, s)};
        }
    } else {
        return scaled<D>(static_cast<std::int64_t>(a) * static_cast<std::int64_t>(b), s);
    }
}

/// The nearest number that has 53 bits, ties to the even one.
constexpr std::int64_t asDouble(std::int64_t t)
{
    constexpr int digits = 53;
    const bool negative = t < 0;
    const std::uint64_t magnitude = negative ? 0 - static_cast<std::uint64_t>(t) : static_cast<std::uint64_t>(t);
    int excess = 0;
    while (excess < 64 - digits && (magnitude >> (digits + excess)) != 0)
        ++excess;
    const Wide rounded = roundedQuotient(Wide::fromUnsigned(magnitude), excess);
    const auto value = static_cast<std::int64_t>(rounded.low << excess);
    return negative ? -value : value;
}
static_assert(asDouble((std::int64_t{1} << 53) + 1) == std::int64_t{1} << 53);
static_assert(asDouble(-(std::int64_t{1} << 53) - 3) == -(std::int64_t{1} << 53) - 4);
static_assert(asDouble((std::int64_t{1} << 60) + 129) == (std::int64_t{1} << 60) + 256);

/// The product of 32-bit integers as doubles give it: rounded to 53 bits first, then scaled.
constexpr std::int32_t productByDoubles(std::int32_t a, std::int32_t b, int s)
{
    return scaled<std::int32_t>(asDouble(std::int64_t{a} * b), s);
}

/// The same with a summand, which is added before the scale.
constexpr std::int32_t sumByDoubles(std::int32_t a, std::int32_t b, std::int32_t sum, int s)
{
    return scaled<std::int32_t>(asDouble(asDouble(std::int64_t{a} * b) + sum), s);
}

} // namespace tarn::model
