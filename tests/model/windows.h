// The windows as their definitions: every weight from one list of cosines, and one element after the other.
#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <type_traits>
#include <vector>

namespace tarn::model {

enum class Window { bartlett, hann, hamming, blackman };

/// How an element type runs the recurrence of a window: how far a step reaches, in which precision, and how many pairs
/// of elements are served at once. Pairs that do not fill such a group are weighted in extended precision.
enum class Precision { single, twice, extended };
struct Run {
    int stride;
    Precision precision;
    int group;
};

template <class T>
struct Real {
    using type = T;
};
template <class T>
    requires requires(T x) { x.re; }
struct Real<T> {
    using type = decltype(T::re);
};
template <class T>
using RealPart = typename Real<T>::type;
template <class T>
inline constexpr bool isPair = !std::is_same_v<RealPart<T>, T>;

template <class T>
Run runOf(Window window)
{
    using R = RealPart<T>;
    if (std::is_integral_v<R>)
        return isPair<T> ? Run{2, Precision::single, 2} : Run{4, Precision::single, 4};
    if (std::is_same_v<R, double>)
        return isPair<T> ? Run{1, Precision::twice, 1} : Run{2, Precision::twice, 2};
    if (window == Window::blackman)
        return {1, Precision::extended, isPair<T> ? 2 : 4};
    return isPair<T> ? Run{1, Precision::twice, 2} : Run{2, Precision::twice, 4};
}

inline constexpr double pi = 3.14159265358979323846;

/// In extended precision and rounded once, so that no library's last bits show.
inline double cosine(double x) { return static_cast<double>(std::cos(static_cast<long double>(x))); }

/// cos(multiple 2 pi / (len - 1)), with the angle as the element type forms it.
template <class T>
double cosineOf(int multiple, int len)
{
    if (std::is_integral_v<RealPart<T>>)
        return cosine((1.0 / (len - 1)) * (multiple * 2 * pi));
    return cosine((multiple * 2 * pi) / (len - 1));
}

/// y[n] = first cos(n t): the first two steps in extended precision, the rest in that of the lanes.
template <class Lane>
std::vector<Lane> cosineSequence(double first, double one, double stepped, int stride, int count)
{
    std::vector<long double> start = {first};
    long double before = first * static_cast<long double>(one);
    for (int n = 1; n < 2 * stride; ++n) {
        const long double last = start.back();
        start.push_back(2 * static_cast<long double>(one) * last - before);
        before = last;
    }
    std::vector<Lane> y(start.begin(), start.end());
    const auto factor = static_cast<Lane>(2 * stepped);
    while (y.size() < static_cast<std::size_t>(count)) {
        const Lane product = factor * y[y.size() - static_cast<std::size_t>(stride)];
        y.push_back(product - y[y.size() - 2 * static_cast<std::size_t>(stride)]);
    }
    return y;
}

/// The weight of a value of the sequence, in the precision X.
template <class X>
X weightOf(Window window, double alpha, X y)
{
    if (window == Window::hann)
        return static_cast<X>(0.5) - y;
    if (window == Window::hamming)
        return static_cast<X>(0.54) - y;
    const auto sum = static_cast<X>(alpha + 0.5);
    const auto factor = static_cast<X>(-4 * alpha);
    const X square = y * y;
    const X inner = sum - y;
    const X outer = factor * square;
    return inner + outer;
}

/// To 16 bits as the processor converts: to nearest, what leaves 32 bits or is no number becomes the lowest value.
template <class X>
Tarn16s roundedSample(X x)
{
    const X rounded = std::nearbyint(x);
    if (!(rounded >= static_cast<X>(-2147483648.0) && rounded < static_cast<X>(2147483648.0)))
        return -32768;
    return static_cast<Tarn16s>(rounded < -32768 ? X(-32768) : rounded > 32767 ? X(32767) : rounded);
}

/// An element times a weight, the product formed in X.
template <class T, class X>
T weighted(T element, X weight)
{
    if constexpr (isPair<T>) {
        return {weighted(element.re, weight), weighted(element.im, weight)};
    } else {
        const X product = static_cast<X>(element) * weight;
        if constexpr (std::is_integral_v<T>)
            return roundedSample(product);
        else
            return static_cast<T>(product);
    }
}

/// Writes the pairs of a window whose weights the two functions give: `inGroup` in the precision in which elements are
/// multiplied, `left` in extended precision for those behind the last group.
template <class T, class InGroup, class Left>
std::vector<T> windowed(std::span<const T> src, int group, InGroup inGroup, Left left)
{
    std::vector<T> dst(src.begin(), src.end());
    const int len = static_cast<int>(src.size());
    const int grouped = len / 2 / group * group;
    for (int n = 0; n < len / 2; ++n) {
        for (const int place : {n, len - 1 - n}) {
            T& x = dst[static_cast<std::size_t>(place)];
            x = n < grouped ? weighted(x, inGroup(n)) : weighted(x, left(n));
        }
    }
    return dst;
}

template <class T>
std::vector<T> bartlett(std::span<const T> src)
{
    using X = std::conditional_t<std::is_same_v<RealPart<T>, double>, double, float>;
    const int len = static_cast<int>(src.size());
    const int half = len / 2;
    const X step = static_cast<X>(2.0 / (len - 1));
    if (std::is_same_v<RealPart<T>, float> && half > 640) {
        std::vector<long double> w(1, 0);
        for (int n = 1; n < half; ++n)
            w.push_back(w.back() + static_cast<long double>(step));
        const auto at = [&](int n) { return w[static_cast<std::size_t>(n)]; };
        return windowed(src, 1, at, at);
    }
    const int group = sizeof(X) == 8 ? 2 : 4;
    std::vector<X> w;
    for (int n = 0; n < half; ++n)
        w.push_back(n < group ? static_cast<X>(n) * step
                              : w[static_cast<std::size_t>(n - group)] + static_cast<X>(group) * step);
    const auto at = [&](int n) { return w[static_cast<std::size_t>(n)]; };
    return windowed(src, group, at, [&](int n) { return static_cast<long double>(at(n)); });
}

/// Hann, Hamming and Blackman. Lane is the type of the recurrence, X that of the weight before it meets the element.
template <class T, class Lane, class X>
std::vector<T> cosineWindow(std::span<const T> src, Window window, double alpha, Run run)
{
    const int len = static_cast<int>(src.size());
    const double first = window == Window::hamming ? 0.46 : 0.5;
    const auto y = cosineSequence<Lane>(first, cosineOf<T>(1, len), cosineOf<T>(run.stride, len), run.stride, len / 2);
    // Raised cosines of single precision are rounded to it before they are used, wherever they were formed.
    const bool rounded = std::is_same_v<X, float> && std::is_same_v<Lane, double>;
    const auto value = [&](int n) { return y[static_cast<std::size_t>(n)]; };
    const auto inGroup = [&](int n) {
        if (rounded)
            return static_cast<X>(weightOf(window, alpha, value(n)));
        return weightOf(window, alpha, static_cast<X>(value(n)));
    };
    const auto left = [&](int n) {
        if (rounded)
            return static_cast<long double>(
                static_cast<X>(weightOf(window, alpha, static_cast<long double>(value(n)))));
        return weightOf(window, alpha, static_cast<long double>(static_cast<X>(value(n))));
    };
    return windowed(src, run.group, inGroup, left);
}

/// The window with the end elements as they come out.
template <class T>
std::vector<T> window(std::span<const T> src, Window kind, double alpha = 0)
{
    using R = RealPart<T>;
    const int len = static_cast<int>(src.size());
    const bool zeroEnds = len == 3 && (kind == Window::bartlett || kind == Window::blackman ||
                                       (kind == Window::hann && !std::is_same_v<R, double>));
    std::vector<T> dst;
    const Run run = runOf<T>(kind);
    if (zeroEnds)
        dst.assign(src.begin(), src.end());
    else if (kind == Window::bartlett)
        dst = bartlett(src);
    else if (kind == Window::blackman && !std::is_integral_v<R> && len / 2 > 512)
        dst = cosineWindow<T, long double, long double>(src, kind, alpha, {1, Precision::extended, 1});
    else if (run.precision == Precision::extended)
        dst = cosineWindow<T, long double, float>(src, kind, alpha, run);
    else if (run.precision == Precision::single)
        dst = cosineWindow<T, float, float>(src, kind, alpha, run);
    else
        dst =
            cosineWindow<T, double, std::conditional_t<std::is_same_v<R, float>, float, double>>(src, kind, alpha, run);
    if (zeroEnds || (kind == Window::blackman && std::is_same_v<R, float>)) {
        dst.front() = T{};
        dst.back() = T{};
    }
    return dst;
}

/// The alpha with the fastest decay of the side lobes.
inline double optimalAlpha(int len)
{
    const double quotient = 0.5 / cosine(pi / (len - 1));
    return -(quotient * quotient);
}

/// The weight as the formula has it, for accuracy.
inline long double trueWeight(Window kind, int n, int len, long double alpha)
{
    const long double truePi = 3.141592653589793238462643383279502884L;
    const long double t = 2 * truePi / (len - 1);
    switch (kind) {
    case Window::bartlett:
        return 2.0L * n / (len - 1);
    case Window::hann:
        return 0.5L - 0.5L * std::cos(n * t);
    case Window::hamming:
        return 0.54L - 0.46L * std::cos(n * t);
    default:
        return (alpha + 1) / 2 - 0.5L * std::cos(n * t) - alpha / 2 * std::cos(2 * n * t);
    }
}

} // namespace tarn::model
