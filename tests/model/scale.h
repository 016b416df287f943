// The scale rule on one element: multiply by 2^-s, round to nearest with ties to even, saturate.
#pragma once

#include "model/wide.h"

#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace tarn::model {

template <std::integral T>
constexpr Wide exact(T value)
{
    if constexpr (std::is_unsigned_v<T>)
        return Wide::fromUnsigned(value);
    else
        return Wide(static_cast<std::int64_t>(value));
}

template <std::integral T>
inline constexpr Wide lowest = exact(std::numeric_limits<T>::min());
template <std::integral T>
inline constexpr Wide highest = exact(std::numeric_limits<T>::max());

/// `t` limited to the bounds of Dst.
template <std::integral Dst>
constexpr Dst saturated(Wide t)
{
    if (t < lowest<Dst>)
        return std::numeric_limits<Dst>::min();
    if (t > highest<Dst>)
        return std::numeric_limits<Dst>::max();
    return static_cast<Dst>(t.low);
}

template <std::integral Dst, std::integral T>
constexpr Dst saturated(T t)
{
    return saturated<Dst>(exact(t));
}

/// t / 2^s rounded to nearest, ties to even, for s from 0 up.
constexpr Wide roundedQuotient(Wide t, int s)
{
    // No 128-bit number reaches one half when divided by 2^129, so that larger divisors give the same 0.
    constexpr int zeroFrom = 129;
    const int halvings = s < zeroFrom ? s : zeroFrom;
    // Of the remainder it matters only how it compares with one half: the last bit that left q is worth one half, and
    // all the earlier ones together are worth less than that.
    Wide q = t;
    bool lastBit = false;
    bool earlierBits = false;
    for (int i = 0; i < halvings; ++i) {
        earlierBits = earlierBits || lastBit;
        lastBit = q.isOdd();
        q = q.halved();
    }
    const bool aboveHalf = lastBit && earlierBits;
    const bool tie = lastBit && !earlierBits;
    return aboveHalf || (tie && q.isOdd()) ? q + Wide(1) : q;
}

/// The same where the divisor fits 64 bits, by division with remainder.
constexpr std::int64_t roundedQuotient(std::int64_t t, int s)
{
    const std::int64_t divisor = std::int64_t{1} << s;
    std::int64_t q = t / divisor;
    std::int64_t f = t % divisor;
    if (f < 0) {
        f += divisor;
        q -= 1;
    }
    const std::int64_t half = divisor / 2;
    if (s > 0 && (f > half || (f == half && q % 2 != 0)))
        q += 1;
    return q;
}

/// t * 2^n limited to the bounds of Dst, for n from 0 up.
template <std::integral Dst>
constexpr Dst saturatedMultiple(Wide t, std::int64_t n)
{
    for (; n > 0 && t != Wide(0); --n) {
        // Once beyond the bounds, further doubling cannot bring it back; before that it cannot overflow.
        if (t < lowest<Dst> || t > highest<Dst>)
            break;
        t = t + t;
    }
    return saturated<Dst>(t);
}

/// The result of the exact value `t` at scale factor `s`, any int.
template <std::integral Dst>
constexpr Dst scaled(Wide t, int s)
{
    constexpr int largestDivisor = 62;
    if (s < 0)
        return saturatedMultiple<Dst>(t, -static_cast<std::int64_t>(s));
    if (t == Wide(static_cast<std::int64_t>(t.low))) {
        if (s <= largestDivisor)
            return saturated<Dst>(roundedQuotient(static_cast<std::int64_t>(t.low), s));
        if (s > 64) // less than one half
            return 0;
    }
    return saturated<Dst>(roundedQuotient(t, s));
}

template <std::integral Dst, std::integral T>
constexpr Dst scaled(T t, int s)
{
    return scaled<Dst>(exact(t), s);
}

} // namespace tarn::model
