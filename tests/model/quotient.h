// Plain models of division, one element at a time, with the places at which long arrays are computed by other steps.
#pragma once

#include "model/scale.h"

#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace tarn::model {

/// A quotient, and whether its divisor counted as zero.
template <class T>
struct Quotient {
    T value;
    bool zero = false;
};

/// What a dividend over zero gives in floating point.
template <class T>
T overZero(T dividend)
{
    constexpr T infinity = std::numeric_limits<T>::infinity();
    return dividend > 0 ? infinity : dividend < 0 ? -infinity : std::numeric_limits<T>::quiet_NaN();
}

template <class T>
Quotient<T> trueQuotient(T divisor, T dividend)
{
    if (divisor == 0 || std::isnan(divisor))
        return {overZero(dividend), true};
    volatile T quotient = dividend / divisor;
    return {quotient};
}

inline float approximateReciprocal(float x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }

/// r + r - d r r, times the dividend, every operation rounded once.
inline float refinedQuotient(float divisor, float dividend)
{
    const float r = approximateReciprocal(divisor);
    volatile float twice = 2 * r;
    volatile float product = divisor * r;
    volatile float square = product * r;
    volatile float reciprocal = twice - square;
    volatile float quotient = dividend * reciprocal;
    return quotient;
}

/// A whole array: groups of eight from its start if it has `shortest` elements, true quotients behind them and wherever
/// one of eight is zero.
template <class T, class Steps>
std::vector<Quotient<T>> quotientsInGroups(std::span<const T> divisors, std::span<const T> dividends,
                                           std::size_t shortest, Steps steps)
{
    constexpr std::size_t group = 8;
    const std::size_t whole = divisors.size() < shortest ? 0 : divisors.size() / group * group;
    std::vector<Quotient<T>> quotients;
    for (std::size_t i = 0; i < divisors.size(); ++i) {
        const auto first = divisors.begin() + static_cast<std::ptrdiff_t>(i / group * group);
        const bool byItself = i >= whole || std::count(first, first + group, T(0)) != 0;
        quotients.push_back(byItself ? trueQuotient(divisors[i], dividends[i])
                                     : Quotient<T>{steps(divisors[i], dividends[i])});
    }
    return quotients;
}

/// The nearest integer, ties to even, whatever the rounding mode, limited to the bounds of D.
template <class D, class T>
D nearest(T x)
{
    const T below = std::floor(x);
    const T gap = x - below; // exact: both have the same exponent or the smaller one of x
    const bool up = gap > T(0.5) || (gap == T(0.5) && std::fmod(below, T(2)) != 0);
    const long double rounded = static_cast<long double>(below) + (up ? 1 : 0);
    constexpr long double low = std::numeric_limits<D>::min();
    constexpr long double high = std::numeric_limits<D>::max();
    return static_cast<D>(rounded < low ? low : rounded > high ? high : rounded);
}

/// 2^-s. Factors beyond these limits give what the limits give.
inline double factorOf(int s) { return std::ldexp(1.0, -std::clamp(s, -127, 126)); }

/// What a dividend over zero gives in integers.
template <class D, class T>
D boundOverZero(T dividend)
{
    return dividend > 0 ? std::numeric_limits<D>::max() : dividend < 0 ? std::numeric_limits<D>::min() : D{0};
}

inline Quotient<std::int16_t> wordQuotient(std::int16_t divisor, std::int16_t dividend, int s)
{
    if (divisor == 0)
        return {boundOverZero<std::int16_t>(dividend), true};
    const float unscaled = static_cast<float>(dividend) / static_cast<float>(divisor);
    const double scaled = static_cast<double>(dividend) / divisor * factorOf(s);
    return {nearest<std::int16_t>(s == 0 ? unscaled : static_cast<float>(scaled))};
}

/// The steps of words in aligned groups: the conversion gives the lowest integer where 32 bits do not hold the value.
inline std::int16_t wordBySteps(std::int16_t divisor, std::int16_t dividend, int s)
{
    const auto d = static_cast<float>(divisor);
    const auto n = static_cast<float>(dividend);
    const float r = approximateReciprocal(d);
    volatile float dr = d * r;
    volatile float e = 1 - dr;
    volatile float x = n * r;
    volatile float ex = e * x;
    volatile float y = x + ex;
    volatile float ee = e * e;
    volatile float eey = ee * y;
    volatile float z = y + eey;
    volatile float value = z * static_cast<float>(factorOf(s));
    if (value >= 2147483648.0F || value < -2147483648.0F)
        return -32768;
    return static_cast<std::int16_t>(std::clamp(std::nearbyint(static_cast<double>(value)), -32768.0, 32767.0));
}

inline Quotient<std::int32_t> quotientOf32s(std::int32_t divisor, std::int32_t dividend, int s)
{
    if (divisor == 0)
        return {boundOverZero<std::int32_t>(dividend), true};
    const double quotient = static_cast<double>(dividend) / static_cast<double>(divisor);
    return {nearest<std::int32_t>(quotient * factorOf(s))};
}

/// 1 / i to six decimals, ties upwards, as the nearest float: found in integers, so that no rounding mode matters.
inline float decimalReciprocal(int i)
{
    const std::int64_t millionths = (2000000 / i + 1) / 2;
    // The nearest multiple of 2^-40, then its 24 bits: more bits than a float has for every reciprocal of a byte.
    const std::int64_t fixed = (millionths * (std::int64_t{1} << 40) + 500000) / 1000000;
    int shift = 0;
    while ((fixed >> shift) >= (std::int64_t{1} << 24))
        ++shift;
    return std::ldexp(static_cast<float>(roundedQuotient(fixed, shift)), shift - 40);
}

inline Quotient<std::uint8_t> byteQuotient(std::uint8_t divisor, std::uint8_t dividend, int s)
{
    if (divisor == 0)
        return {static_cast<std::uint8_t>(dividend > 0 ? 255 : 0), true};
    static const std::vector<float> reciprocals = [] {
        std::vector<float> table(1);
        for (int i = 1; i < 256; ++i)
            table.push_back(decimalReciprocal(i));
        return table;
    }();
    volatile float product = reciprocals[divisor] * static_cast<float>(dividend);
    volatile float value = product * static_cast<float>(factorOf(s));
    return {static_cast<std::uint8_t>(std::nearbyint(value < 255 ? value : 255.0F))};
}

/// The parts of a complex quotient in double precision.
struct ComplexQuotient {
    double re, im;
    bool zero = false;
};

inline ComplexQuotient complexQuotient(double bre, double bim, double are, double aim)
{
    volatile double rere = bre * bre;
    volatile double imim = bim * bim;
    volatile double squared = rere + imim;
    if (squared == 0)
        return {overZero(are), overZero(aim), true};
    volatile double reciprocal = 1 / squared;
    volatile double p = are * bre;
    volatile double q = aim * bim;
    volatile double r = aim * bre;
    volatile double t = are * bim;
    volatile double re = p + q;
    volatile double im = r - t;
    volatile double first = re * reciprocal;
    volatile double second = im * reciprocal;
    return {first, second};
}

} // namespace tarn::model
