// Conversions on one element: rounding of floats, half precision by its definition, stored 24-bit elements.
#pragma once

#include "model/scale.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tarn::model {

/// How a value between two integers, or two halves, is rounded.
enum class Rounding { toZero, toNearest };

/// Exact in the extended format, whatever the rounding mode: only floor and differences of neighbours are taken.
inline long double rounded(long double v, Rounding rounding)
{
    if (rounding == Rounding::toZero)
        return std::trunc(v);
    const long double below = std::floor(v);
    const long double fraction = v - below;
    const bool odd = std::fmod(below, 2.0L) != 0;
    return fraction > 0.5L || (fraction == 0.5L && odd) ? below + 1 : below;
}

/// x * 2^-s without rounding. Powers beyond the difference of any two exponents of doubles are all alike.
inline long double scaledExactly(double x, int s)
{
    constexpr int farthest = 2200;
    return std::ldexp(static_cast<long double>(x), -std::clamp(s, -farthest, farthest));
}

/// A float as an integer between two bounds; a NaN is the lower one.
inline std::int64_t toInteger(double x, int s, Rounding rounding, std::int64_t lower, std::int64_t upper)
{
    if (std::isnan(x))
        return lower;
    const long double v = rounded(scaledExactly(x, s), rounding);
    if (v <= static_cast<long double>(lower))
        return lower;
    if (v >= static_cast<long double>(upper))
        return upper;
    return static_cast<std::int64_t>(v);
}

template <std::integral Dst>
Dst toInteger(double x, int s, Rounding rounding)
{
    using Limits = std::numeric_limits<Dst>;
    return static_cast<Dst>(toInteger(x, s, rounding, Limits::min(), Limits::max()));
}

// -- Half precision ---------------------------------------------------------------------------------------------------

constexpr int halfBias = 15;
constexpr unsigned halfInfinity = 0x7C00;

/// The value of the pattern's magnitude, which is finite.
inline double halfMagnitude(unsigned bits)
{
    const int exponent = static_cast<int>(bits >> 10 & 0x1F);
    const int fraction = static_cast<int>(bits & 0x3FF);
    return exponent == 0 ? std::ldexp(fraction, -24) : std::ldexp(1024 + fraction, exponent - halfBias - 10);
}

inline bool halfIsNan(unsigned bits) { return (bits & 0x7FFF) > halfInfinity; }

inline double halfValue(unsigned bits)
{
    const unsigned magnitude = bits & 0x7FFF;
    const double value = halfIsNan(bits)             ? std::numeric_limits<double>::quiet_NaN()
                         : magnitude == halfInfinity ? std::numeric_limits<double>::infinity()
                                                     : halfMagnitude(magnitude);
    return (bits & 0x8000) != 0 ? -value : value;
}

/// The bits of a single: a NaN keeps sign and payload, which grows at its lower end.
inline std::uint32_t singleOfHalf(unsigned bits)
{
    const std::uint32_t sign = (bits & 0x8000) << 16;
    if ((bits & 0x7FFF) >= halfInfinity)
        return sign | 0x7F800000 | (bits & 0x3FF) << 13;
    return sign | std::bit_cast<std::uint32_t>(static_cast<float>(halfMagnitude(bits & 0x7FFF)));
}

/// The half of a finite value. The halves around it are found by bisection of the patterns, whose order is that of the
/// magnitudes.
inline unsigned halfOf(double value, Rounding rounding)
{
    const unsigned sign = std::signbit(value) ? 0x8000 : 0;
    const double magnitude = std::fabs(value);
    unsigned below = 0;
    unsigned above = halfInfinity;
    while (above - below > 1) {
        const unsigned middle = (below + above) / 2;
        (halfMagnitude(middle) <= magnitude ? below : above) = middle;
    }
    if (rounding == Rounding::toZero)
        return sign | below;
    // For rounding the pattern of infinity stands for the value that would follow.
    const double next = above == halfInfinity ? 65536.0 : halfMagnitude(above);
    const double down = magnitude - halfMagnitude(below);
    const double up = next - magnitude;
    const bool goesUp = up < down || (up == down && below % 2 == 1);
    return sign | (goesUp ? above : below);
}

/// The half of any single, given by its bits.
inline unsigned halfOfSingle(std::uint32_t bits, Rounding rounding)
{
    const unsigned sign = bits >> 16 & 0x8000;
    const std::uint32_t magnitude = bits & 0x7FFFFFFF;
    if (magnitude > 0x7F800000)
        return sign | halfInfinity | 0x200 | (magnitude >> 13 & 0x3FF);
    if (magnitude == 0x7F800000)
        return sign | halfInfinity;
    return sign | halfOf(std::bit_cast<float>(magnitude), rounding);
}

} // namespace tarn::model
