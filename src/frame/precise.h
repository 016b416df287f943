// Sine, cosine, exponential and logarithm of one double, within 0.501 units of the last place. They are made of
// additions and products that IEEE 754 fixes, so that their bits are the same under every ABI, compiler and width;
// those of the C library differ from one to the other. Tables, generators, windows and designs take their values here.
//
// A value is looked up where a table has it with 77 bits, and carried from there to the argument by a short series
// whose leading terms are kept as sums of two doubles; what is left as error before the last rounding is below 2^-10 of
// a unit.
#pragma once

#include "frame/factor.h"
#include "frame/polynomials.h"
#include "frame/precise_tables.h"
#include "frame/rounding.h"
#include "frame/simd_int.h"

#include <bit>
#include <cmath>

namespace tarn {

namespace precise {

// hi + lo, where lo is small beside hi.
struct Sum {
    double hi, lo;
};

// a + b exactly.
inline Sum sum(double a, double b)
{
    const double hi = a + b;
    const double fromB = hi - a;
    return {hi, (a - (hi - fromB)) + (b - fromB)};
}

// The same for |a| >= |b| or a = 0.
inline Sum sumOfLarger(double a, double b)
{
    const double hi = a + b;
    return {hi, b - (hi - a)};
}

// The upper 24 bits; what is left has 29.
inline double headOf(double x) { return static_cast<double>(static_cast<float>(x)); }

// An integer near x, for magnitudes below 2^51.
inline double nearInteger(double x)
{
    constexpr double noFraction = 0x1.8p52;
    return (x + noFraction) - noFraction;
}

// -- Circular functions -----------------------------------------------------------------------------------------------

// An angle as quarter turns, of which only the last two bits matter, and what is left, up to an eighth of a turn.
struct Angle {
    unsigned quarters;
    Sum rest;
};

// From here on the parts of half of pi no longer give exact products.
inline constexpr double manyQuarters = 0x1p20;

inline Angle smallAngle(double x)
{
    const double quarters = nearInteger(x * quartersPerRadian);
    const Sum a = sum(x - quarters * quarterTurn<Tarn64f>[0], -(quarters * quarterTurn<Tarn64f>[1]));
    const Sum b = sum(a.hi, -(quarters * quarterTurn<Tarn64f>[2]));
    return {static_cast<unsigned>(static_cast<int>(quarters)),
            sum(b.hi, b.lo + (a.lo - quarters * quarterTurn<Tarn64f>[3]))};
}

// A product of doubles to some 100 bits.
inline Sum product(double a, double b)
{
    const double aHead = headOf(a);
    const double bHead = headOf(b);
    const Sum inner = sumOfLarger(aHead * bHead, aHead * (b - bHead));
    const Sum all = sum(inner.hi, (a - aHead) * bHead);
    return sumOfLarger(all.hi, all.lo + inner.lo + (a - aHead) * (b - bHead));
}

// A finite argument from manyQuarters on: its integer mantissa times those digits of 2 / pi whose products lie between
// whole turns, of which nothing is to be seen, and 2^-138. No double comes nearer to a multiple of half of pi than some
// 2^-62, so that the rest has 76 good bits.
inline Angle largeAngle(double x)
{
    constexpr int words = 7;
    const auto bits = std::bit_cast<std::uint64_t>(x);
    const int exponent = static_cast<int>((bits >> 52) & 0x7ff) - 1075;
    const std::uint64_t mantissa = (bits & 0xfffffffffffff) | 0x10000000000000;
    const int first = exponent >= 2 ? (exponent - 2) / 32 : 0;

    // The product, lowest word first; it is in units of 2^-fractionBits.
    std::uint32_t fraction[words + 2] = {};
    for (int half = 0; half < 2; ++half) {
        const std::uint64_t factor = half == 0 ? mantissa & 0xffffffff : mantissa >> 32;
        std::uint64_t carry = 0;
        for (int i = 0; i < words; ++i) {
            carry += factor * twoOverPi[first + words - 1 - i] + fraction[i + half];
            fraction[i + half] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        fraction[words + half] = static_cast<std::uint32_t>(carry);
    }
    const int fractionBits = 32 * (first + words) - exponent;
    const auto bit = [&fraction](int i) { return (fraction[i / 32] >> (i % 32)) & 1; };
    unsigned quarters = bit(fractionBits) + 2 * bit(fractionBits + 1);

    // The nearer of the two multiples, and the distance from it.
    const bool above = bit(fractionBits - 1) != 0;
    quarters += above ? 1 : 0;
    double distance[4];
    int top = fractionBits - 1;
    while (top >= 4 * 24 && (bit(top) != 0) == above) {
        --top;
    }
    for (double& part : distance) {
        std::uint32_t digits = 0;
        for (int i = 0; i < 24; ++i, --top) {
            digits = 2 * digits + ((bit(top) != 0) != above ? 1 : 0);
        }
        part = static_cast<double>(digits) * twoToMinus<Tarn64f>(fractionBits - 1 - top);
    }
    const double sign = above ? -1.0 : 1.0;
    const Sum turns = sumOfLarger(sign * (distance[0] + distance[1]), sign * (distance[2] + distance[3]));
    const Sum angle = product(turns.hi, halfPi[0]);
    return {quarters, sumOfLarger(angle.hi, angle.lo + (turns.hi * halfPi[1] + turns.lo * halfPi[0]))};
}

inline Angle angleOf(double x)
{
    if (std::fabs(x) < manyQuarters) {
        return smallAngle(x);
    }
    const Angle angle = largeAngle(std::fabs(x));
    return x < 0 ? Angle{0 - angle.quarters, {-angle.rest.hi, -angle.rest.lo}} : angle;
}

inline double valueOf(Entry entry) { return entry.head + entry.rest; }

// table.head + table.rest + slope (d + dLo) + rest, for a d below 2^-7.
inline double carried(Entry table, Entry slope, double d, double dLo, double rest)
{
    const double dHead = headOf(d);
    const Sum leading = sumOfLarger(table.head, slope.head * dHead);
    return leading.hi +
           (leading.lo + (table.rest + (slope.head * (d - dHead) + (slope.rest * d + (slope.head * dLo + rest)))));
}

// The sine or the cosine of a rest of at least 0.
inline double sineOfRest(Sum r)
{
    const double step = nearInteger(r.hi * circleSteps);
    const double d = r.hi - step * (1.0 / circleSteps);
    const CircleEntry& at = circle[static_cast<int>(step)];
    const double z = d * d;
    const double cubic = d * z * (-1.0 / 6 + z * (1.0 / 120 - z * (1.0 / 5040)));
    const double square = z * (-0.5 + z * (1.0 / 24 - z * (1.0 / 720)));
    return carried(at.sine, at.cosine, d, r.lo, valueOf(at.sine) * (square - d * r.lo) + valueOf(at.cosine) * cubic);
}

inline double cosineOfRest(Sum r)
{
    const double step = nearInteger(r.hi * circleSteps);
    const double d = r.hi - step * (1.0 / circleSteps);
    const CircleEntry& at = circle[static_cast<int>(step)];
    const double z = d * d;
    const double cubic = d * z * (-1.0 / 6 + z * (1.0 / 120 - z * (1.0 / 5040)));
    const double square = z * (-0.5 + z * (1.0 / 24 - z * (1.0 / 720)));
    return carried(at.cosine, {-at.sine.head, -at.sine.rest}, d, r.lo,
                   valueOf(at.cosine) * (square - d * r.lo) - valueOf(at.sine) * cubic);
}

inline double sineOfAngle(Angle angle)
{
    const bool negative = std::signbit(angle.rest.hi);
    const Sum r = negative ? Sum{-angle.rest.hi, -angle.rest.lo} : angle.rest;
    const bool isCosine = angle.quarters % 2 != 0;
    const double magnitude = isCosine ? cosineOfRest(r) : sineOfRest(r);
    const bool lowerHalf = (angle.quarters & 2) != 0;
    return lowerHalf != (negative && !isCosine) ? -magnitude : magnitude;
}

// -- Exponential ------------------------------------------------------------------------------------------------------

// (y + yLo) 2^n, rounded once even if it is not normal; y lies between 0.5 and 4.
inline double scaledOnce(double y, double yLo, int n)
{
    constexpr int lowestNormal = -1022;
    if (n > lowestNormal || (n == lowestNormal && y >= 1)) {
        return (y + yLo) * twoToMinus<Tarn64f>(-(n / 2)) * twoToMinus<Tarn64f>(n / 2 - n);
    }
    // The last place of this sum is that of the result.
    const double spacer = twoToMinus<Tarn64f>(n - lowestNormal);
    const Sum spaced = sum(spacer, y);
    const double last = spaced.hi + (spaced.lo + yLo);
    return (last - spacer) * twoToMinus<Tarn64f>(-lowestNormal) * twoToMinus<Tarn64f>(lowestNormal - n);
}

// e to the power x = (y + yLo) 2^n, for |x| up to some 1400.
struct Power {
    double y, yLo;
    int n;
};
inline Power powerOfE(double x)
{
    const double steps = nearInteger(x * stepsPerNeper);
    const Sum reduced = sum(x - steps * powerStep[0], -(steps * powerStep[1]));
    const double d = reduced.hi;
    const double dLo = reduced.lo - steps * powerStep[2];
    const int step = static_cast<int>(steps);
    const Entry at = powers[step & (powerSteps - 1)];
    const double tail =
        d * d * (0.5 + d * (1.0 / 6 + d * (1.0 / 24 + d * (1.0 / 120 + d * (1.0 / 720 + d * (1.0 / 5040))))));
    const double dHead = headOf(d);
    const Sum leading = sumOfLarger(at.head, at.head * dHead);
    const double rest = leading.lo + (at.rest + (at.head * ((d - dHead) + (tail + dLo)) + at.rest * (d + tail)));
    return {leading.hi, rest, (step - (step & (powerSteps - 1))) / powerSteps};
}

inline double exponential(double x)
{
    constexpr double overflow = 0x1.62e42fefa39efp9;   // above it nothing is finite
    constexpr double underflow = -0x1.74910d52d3052p9; // below it all is less than half the lowest positive number
    if (!(x <= overflow)) {
        return x * HUGE_VAL;
    }
    if (x < underflow) {
        return 0;
    }
    const Power power = powerOfE(x);
    return scaledOnce(power.y, power.yLo, power.n);
}

// -- Logarithm --------------------------------------------------------------------------------------------------------

// Of a positive number.
inline double logarithm(double x)
{
    int exponent = -1023;
    if (x < 0x1p-1022) {
        x *= 0x1p54;
        exponent -= 54;
    }
    const auto bits = std::bit_cast<std::uint64_t>(x);
    exponent += static_cast<int>(bits >> 52);
    double m = std::bit_cast<double>((bits & 0xfffffffffffff) | 0x3ff0000000000000);
    const auto at = static_cast<int>((m - 1) * mantissaSteps + 0.5);
    if (at >= firstHalved) {
        m *= 0.5;
        ++exponent;
    }
    const auto& [factor, minusLog] = reciprocals[at];
    const double mHead = headOf(m);
    const Sum z = sum(mHead * factor - 1, (m - mHead) * factor);
    const double head = headOf(z.hi);
    const double halfSquareRest = 0.5 * (z.hi - head) * (z.hi + head) + z.hi * z.lo;
    const double series =
        1.0 / 3 +
        z.hi *
            (-1.0 / 4 + z.hi * (1.0 / 5 + z.hi * (-1.0 / 6 + z.hi * (1.0 / 7 + z.hi * (-1.0 / 8 + z.hi * (1.0 / 9))))));
    const Sum near = sumOfLarger(z.hi, -0.5 * head * head);
    const Sum all = sum(exponent * logOfTwo<Tarn64f>[0] + minusLog.head, near.hi);
    return all.hi + (all.lo + (near.lo + (z.lo - halfSquareRest + z.hi * z.hi * z.hi * series +
                                          (minusLog.rest + exponent * logOfTwo<Tarn64f>[1]))));
}

// A function evaluated by the library's own arithmetic, whatever the caller has set: it begins behind the guard and
// ends before it.
template <typename Function>
inline double guarded(double x, Function function)
{
    const StandardArithmetic guard;
    asm volatile("" : "+x"(x));
    double y = function(x);
    asm volatile("" : "+x"(y));
    return y;
}

} // namespace precise

// Radians; any finite argument is reduced exactly. NaN for infinities and NaN.
inline double preciseSine(double x)
{
    constexpr double itself = 0x1p-32; // below it the sine is the angle to 65 bits; and -0 stays what it is
    if (std::fabs(x) < itself) {
        return x;
    }
    return std::isfinite(x) ? precise::guarded(x, [](double a) { return precise::sineOfAngle(precise::angleOf(a)); })
                            : x - x;
}
inline double preciseCosine(double x)
{
    const auto cosine = [](double a) {
        auto angle = precise::angleOf(a);
        ++angle.quarters;
        return precise::sineOfAngle(angle);
    };
    return std::isfinite(x) ? precise::guarded(x, cosine) : x - x;
}

// Infinite for what is too large, 0 for what is too small; rounded once where the result is not normal.
inline double preciseExponential(double x) { return precise::guarded(x, precise::exponential); }

// -infinity for 0, NaN for what lies below it.
inline double preciseLogarithm(double x)
{
    return precise::guarded(x, [](double a) {
        if (a > 0 && a <= highest<Tarn64f>) {
            return precise::logarithm(a);
        }
        return a == 0 ? -HUGE_VAL : a < 0 ? tarnConstantOfNAN_64f : a;
    });
}

} // namespace tarn
