// Plain models of FIR filters, one output at a time: in the stated order of additions, and in long double with a bound
// of the error that another order may make.
#pragma once

#include "support/element.h"

#include "tarncore.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace tarn::test::fir {

namespace detail {
template <class T>
struct ComponentOf {
    using type = T;
};
template <ComplexElement T>
struct ComponentOf<T> {
    using type = RealOf<T>;
};
} // namespace detail

/// What a complex element is made of, or a real element itself.
template <class T>
using Component = typename detail::ComponentOf<T>::type;

template <class T>
T product(T x, T h)
{
    // Single precision multiplies by the negated imaginary part, which matters where rounding is not to nearest.
    if constexpr (std::is_same_v<T, Tarn32fc>) {
        const volatile Tarn32f negated = -h.im; // or the compiler would make a difference of it
        return {x.re * h.re + x.im * negated, x.im * h.re + x.re * h.im};
    } else if constexpr (ComplexElement<T>)
        return {x.re * h.re - x.im * h.im, x.im * h.re + x.re * h.im};
    else
        return x * h;
}

template <class T>
T sum(T a, T b)
{
    if constexpr (ComplexElement<T>)
        return {a.re + b.re, a.im + b.im};
    else
        return a + b;
}

/// An element as one of another type that holds its value.
template <class D, class S>
D as(S x)
{
    if constexpr (ComplexElement<S>)
        return {static_cast<RealOf<D>>(x.re), static_cast<RealOf<D>>(x.im)};
    else
        return static_cast<D>(x);
}

/// The samples in the type of the taps, behind `history` of them (oldest first).
template <class T, class S>
std::vector<T> withHistory(const std::vector<S>& history, const std::vector<S>& samples)
{
    std::vector<T> all;
    for (const S& x : history)
        all.push_back(as<T>(x));
    for (const S& x : samples)
        all.push_back(as<T>(x));
    return all;
}

/// Outputs of the direct road: passes of four taps, oldest samples first. `line` has taps.size() samples of history.
template <class T>
std::vector<T> blockOutputs(const std::vector<T>& taps, const std::vector<T>& line)
{
    const std::size_t count = taps.size();
    std::vector<T> outputs;
    for (std::size_t end = count; end < line.size(); ++end) {
        const T* window = &line[end - count + 1];
        T total{};
        for (std::size_t k = 0; k < count; k += 4) {
            const std::size_t left = count - k;
            const auto p = [&](std::size_t j) { return product(window[k + j], taps[count - 1 - k - j]); };
            T pass = p(0);
            if (left > 1)
                pass = sum(pass, p(1));
            if (left == 3)
                pass = sum(pass, p(2));
            if (left > 3)
                pass = sum(pass, sum(p(2), p(3)));
            total = k == 0 ? pass : sum(total, pass);
        }
        outputs.push_back(total);
    }
    return outputs;
}

/// The same as a plain sum in order, which short real filters of single samples promise.
template <class T>
std::vector<T> outputsInOrder(const std::vector<T>& taps, const std::vector<T>& line)
{
    const std::size_t count = taps.size();
    std::vector<T> outputs;
    for (std::size_t end = count; end < line.size(); ++end) {
        T total{};
        for (std::size_t j = 0; j < count; ++j)
            total = sum(total, product(line[end - count + 1 + j], taps[count - 1 - j]));
        outputs.push_back(total);
    }
    return outputs;
}

struct LongComplex {
    long double re = 0;
    long double im = 0;
};

/// The outputs to the precision of long double.
template <class T>
std::vector<LongComplex> exactOutputs(const std::vector<T>& taps, const std::vector<T>& line)
{
    const std::size_t count = taps.size();
    std::vector<LongComplex> outputs;
    for (std::size_t end = count; end < line.size(); ++end) {
        LongComplex total;
        for (std::size_t j = 0; j < count; ++j) {
            const T x = line[end - j];
            const T h = taps[j];
            if constexpr (ComplexElement<T>) {
                total.re += static_cast<long double>(x.re) * h.re - static_cast<long double>(x.im) * h.im;
                total.im += static_cast<long double>(x.im) * h.re + static_cast<long double>(x.re) * h.im;
            } else {
                total.re += static_cast<long double>(x) * h;
            }
        }
        outputs.push_back(total);
    }
    return outputs;
}

template <class T>
long double magnitude(T x)
{
    if constexpr (ComplexElement<T>)
        return std::hypot(static_cast<long double>(x.re), static_cast<long double>(x.im));
    else
        return std::fabs(static_cast<long double>(x));
}

/// What `operations` roundings one after the other can do to a sum of products of these taps with samples of at most
/// that magnitude.
template <class T>
long double orderBound(const std::vector<T>& taps, long double largestSample, int operations)
{
    long double all = 0;
    for (const T& h : taps)
        all += magnitude(h);
    return operations * static_cast<long double>(std::numeric_limits<Component<T>>::epsilon()) * all * largestSample;
}

/// What a transform of `len` points, a product and a transform back can do: each of their 2 log2(len) stages rounds a
/// few times, and an error of one point reaches all of them, so that norms count.
template <class T>
long double transformBound(const std::vector<T>& taps, long double largestSample, int len)
{
    long double power = 0;
    for (const T& h : taps)
        power += magnitude(h) * magnitude(h);
    const long double stages = 2 * std::log2(static_cast<long double>(len)) + 2;
    return 4 * stages * static_cast<long double>(std::numeric_limits<Component<T>>::epsilon()) * std::sqrt(power) *
           largestSample * std::sqrt(static_cast<long double>(len));
}

/// A float times 2^-scaleFactor as an integer: to nearest, ties to even, saturated; a NaN becomes the lowest.
template <class D>
D rounded(long double x, int scaleFactor)
{
    const long double lowest = std::numeric_limits<D>::lowest();
    const long double highest = std::numeric_limits<D>::max();
    if (std::isnan(x))
        return std::numeric_limits<D>::lowest();
    const long double scaled = std::ldexp(x, -scaleFactor);
    if (scaled <= lowest)
        return std::numeric_limits<D>::lowest();
    if (scaled >= highest)
        return std::numeric_limits<D>::max();
    auto integer = static_cast<std::int64_t>(scaled); // towards zero
    const long double rest = scaled - static_cast<long double>(integer);
    const std::int64_t away = scaled < 0 ? -1 : 1;
    if (std::fabs(rest) > 0.5L || (std::fabs(rest) == 0.5L && integer % 2 != 0))
        integer += away;
    return static_cast<D>(integer);
}

/// An output as a sample, as blocks make one.
template <class S, class T>
S asSample(T y, int scaleFactor)
{
    if constexpr (ComplexElement<S>)
        return {asSample<RealOf<S>>(y.re, scaleFactor), asSample<RealOf<S>>(y.im, scaleFactor)};
    else if constexpr (std::is_integral_v<S>)
        return rounded<S>(static_cast<long double>(y), scaleFactor);
    else
        return static_cast<S>(y);
}

template <class S, class T>
std::vector<S> asSamples(const std::vector<T>& outputs, int scaleFactor)
{
    std::vector<S> samples;
    for (const T& y : outputs)
        samples.push_back(asSample<S>(y, scaleFactor));
    return samples;
}

} // namespace tarn::test::fir
