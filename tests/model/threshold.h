// Thresholds on one element, as the formulas say. Magnitudes in double precision, those of integers exactly.
#pragma once

#include "support/element.h"
#include "tarncore.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace tarn::model {

template <class T>
T limitedBelow(T x, T level)
{
    return x > level ? x : level;
}
template <class T>
T limitedAbove(T x, T level)
{
    return x < level ? x : level;
}

/// How the magnitude of an element compares with a level that is not negative: -1, 0, 1, and 2 for unordered.
inline int compareMagnitude(Tarn16sc z, Tarn16s level)
{
    const std::int64_t square = std::int64_t{z.re} * z.re + std::int64_t{z.im} * z.im;
    const std::int64_t bound = std::int64_t{level} * level;
    return (square > bound) - (square < bound);
}
template <class T>
int compareMagnitude(T z, decltype(z.re) level)
{
    const double re = z.re;
    const double im = z.im;
    const double square = re * re + im * im;
    const double bound = double{level} * double{level};
    if (std::isnan(square) || std::isnan(bound))
        return 2;
    return (square > bound) - (square < bound);
}

/// part * level / sqrt(square) rounded to nearest, ties to even, by comparing squares: no rounding mode has a say.
inline Tarn16s scaledPart(Tarn16s part, Tarn16s level, std::int64_t square)
{
    const std::int64_t doubled = 2 * std::int64_t{std::abs(part)} * level;
    // The largest r with r - 1/2 below the quotient, or equal to it where that is a tie and r even.
    std::int64_t r = 0;
    for (std::int64_t step = std::int64_t{1} << 15; step > 0; step /= 2) {
        const std::uint64_t odd = static_cast<std::uint64_t>(2 * (r + step) - 1);
        const std::uint64_t left = odd * odd * static_cast<std::uint64_t>(square);
        const std::uint64_t right = static_cast<std::uint64_t>(doubled) * static_cast<std::uint64_t>(doubled);
        // odd^2 * square would leave 64 bits where odd is far too large.
        const bool tooLarge =
            static_cast<double>(odd) * static_cast<double>(odd) * static_cast<double>(square) > 1.5e19;
        if (!tooLarge && (left < right || (left == right && (r + step) % 2 == 0)))
            r += step;
    }
    return static_cast<Tarn16s>(part < 0 ? -r : r);
}

/// The element at the magnitude `level` and with its own phase; a zero is taken for a real number of its sign.
inline Tarn16sc scaledTo(Tarn16sc z, Tarn16s level)
{
    const std::int64_t square = std::int64_t{z.re} * z.re + std::int64_t{z.im} * z.im;
    if (square == 0)
        return {level, 0};
    return {scaledPart(z.re, level, square), scaledPart(z.im, level, square)};
}
template <class T>
T scaledTo(T z, decltype(z.re) level)
{
    using Real = decltype(z.re);
    const double re = z.re;
    const double im = z.im;
    const double square = re * re + im * im;
    if (square == 0)
        return {std::copysign(level, z.re), z.im};
    const double magnitude = std::sqrt(square);
    if constexpr (sizeof(Real) == sizeof(double)) {
        return {re / magnitude * level, im / magnitude * level};
    } else {
        const double factor = double{level} / magnitude;
        return {static_cast<Real>(re * factor), static_cast<Real>(im * factor)};
    }
}

template <class T, class Real>
T magnitudeLimited(T z, Real level, bool above)
{
    if (level == 0)
        return above ? T{0, 0} : z;
    return compareMagnitude(z, level) == (above ? 1 : -1) ? scaledTo(z, level) : z;
}

inline double inverse(double x, double level)
{
    const double size = std::fabs(x) > level ? std::fabs(x) : level;
    return 1 / std::copysign(size, x);
}

/// The processor's own estimate and one Newton step.
inline float inverse(float x, float level)
{
    const float size = std::fabs(x) > level ? std::fabs(x) : level;
    const float divisor = std::copysign(size, x);
    float estimate;
    asm("rcpss %1, %0" : "=x"(estimate) : "x"(divisor));
    const float product = divisor * estimate;
    if (std::isnan(product) || std::isinf(product))
        return 1 / divisor;
    const float difference = 2 - product;
    return estimate * difference;
}

template <class T>
T complexInverse(T z, decltype(z.re) level)
{
    using Real = decltype(z.re);
    const double re = z.re;
    const double im = z.im;
    const double square = re * re + im * im;
    if (square == 0 && level == 0)
        return {static_cast<Real>(HUGE_VAL), static_cast<Real>(HUGE_VAL)};
    if (square == 0)
        return {static_cast<Real>(std::copysign(1 / double{level}, re)), -z.im};
    if (compareMagnitude(z, level) != -1)
        return {static_cast<Real>(re / square), static_cast<Real>(-im / square)};
    const double magnitude = std::sqrt(square);
    return {static_cast<Real>(re / magnitude / level), static_cast<Real>(-im / magnitude / level)};
}

} // namespace tarn::model
