// Plain models of correlation and convolution: in the stated order of additions, every operation rounded once, and in
// long double with a bound for other orders.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <vector>

namespace tarn::model {

/// Real values have imaginary parts of zero.
using Sequence = std::vector<std::complex<double>>;

/// What the library rounds to.
enum class Precision { single, twice };

inline double rounded(double x, Precision precision)
{
    return precision == Precision::single ? static_cast<double>(static_cast<float>(x)) : x;
}
inline double epsilon(Precision precision)
{
    return precision == Precision::single ? 0x1p-23 : std::numeric_limits<double>::epsilon();
}

/// The index of the element of y that x[i] is multiplied by in output n.
enum class Partner {
    above, ///< n + i: a correlation
    below  ///< n - i: a convolution
};

/// Output n as the direct method adds it up: terms in the order of x in runs of 256, each run from zero, onto `before`.
inline std::complex<double> sumInOrder(const Sequence& x, const Sequence& y, long long n, Partner partner,
                                       Precision precision, std::complex<double> before = 0)
{
    constexpr std::size_t termsOfRun = 256;
    const auto fused = [precision](double sum, double a, double b) {
        return rounded(sum + rounded(a * b, precision), precision);
    };
    std::complex<double> total = before;
    for (std::size_t run = 0; run < x.size(); run += termsOfRun) {
        std::complex<double> byRe;
        std::complex<double> byIm;
        bool any = false;
        for (std::size_t i = run; i < std::min(run + termsOfRun, x.size()); ++i) {
            const auto index = n + (partner == Partner::above ? 1 : -1) * static_cast<long long>(i);
            if (index < 0 || index >= static_cast<long long>(y.size()))
                continue;
            const auto s = y[static_cast<std::size_t>(index)];
            byRe = {fused(byRe.real(), x[i].real(), s.real()), fused(byRe.imag(), x[i].real(), s.imag())};
            byIm = {fused(byIm.real(), x[i].imag(), s.real()), fused(byIm.imag(), x[i].imag(), s.imag())};
            any = true;
        }
        if (any) {
            const double re = rounded(byRe.real() + byIm.imag(), precision);
            const double im = rounded(byRe.imag() - byIm.real(), precision);
            total = {rounded(total.real() + re, precision), rounded(total.imag() + im, precision)};
        }
    }
    return total;
}

/// The direct convolution of the longer vector a with b, for 4096 elements of a at a time.
inline Sequence convolveInOrder(const Sequence& a, const Sequence& b, Precision precision)
{
    constexpr std::size_t longestChunk = 4096;
    Sequence results(a.size() + b.size() - 1);
    for (std::size_t first = 0; first < a.size(); first += longestChunk) {
        const std::size_t end = std::min(first + longestChunk, a.size());
        const Sequence chunk(a.begin() + static_cast<std::ptrdiff_t>(first),
                             a.begin() + static_cast<std::ptrdiff_t>(end));
        for (std::size_t k = 0; k < chunk.size() + b.size() - 1; ++k)
            results[first + k] =
                sumInOrder(b, chunk, static_cast<long long>(k), Partner::below, precision, results[first + k]);
    }
    return results;
}

/// Lags from lowLag on, directly. `backwards` is the order of the lags at which all of a shorter y lies within x.
inline Sequence correlateInOrder(const Sequence& x, const Sequence& y, std::size_t len, long long lowLag,
                                 Precision precision)
{
    Sequence results(len);
    const auto a = static_cast<long long>(x.size());
    const auto b = static_cast<long long>(y.size());
    for (std::size_t n = 0; n < len; ++n) {
        const long long lag = lowLag + static_cast<long long>(n);
        const bool inside = a > b && lag >= b - a && lag < 0;
        results[n] = inside ? std::conj(sumInOrder(y, x, -lag, Partner::above, precision))
                            : sumInOrder(x, y, lag, Partner::above, precision);
    }
    return results;
}

/// The exact sums.
inline Sequence exactLags(const Sequence& x, const Sequence& y, std::size_t len, long long lowLag)
{
    Sequence results(len);
    for (std::size_t n = 0; n < len; ++n) {
        const long long lag = lowLag + static_cast<long long>(n);
        std::complex<long double> sum;
        const long long first = std::max(0LL, -lag);
        const long long end = std::min(static_cast<long long>(x.size()), static_cast<long long>(y.size()) - lag);
        for (long long i = first; i < end; ++i) {
            const std::complex<long double> xi(x[static_cast<std::size_t>(i)]);
            const std::complex<long double> yi(y[static_cast<std::size_t>(i + lag)]);
            sum += std::complex<long double>(xi.real() * yi.real() + xi.imag() * yi.imag(),
                                             xi.real() * yi.imag() - xi.imag() * yi.real());
        }
        results[n] = {static_cast<double>(sum.real()), static_cast<double>(sum.imag())};
    }
    return results;
}
inline Sequence exactConvolution(const Sequence& a, const Sequence& b)
{
    Sequence mirrored(b.rbegin(), b.rend());
    for (auto& value : mirrored)
        value = std::conj(value);
    return exactLags(mirrored, a, a.size() + b.size() - 1, 1 - static_cast<long long>(b.size()));
}

/// What a transform of `points`, a product and a transform back can do to any output: each of their stages rounds a few
/// times, and an error of one point reaches all of them, so that norms count.
inline double transformBound(const Sequence& x, const Sequence& y, double points, Precision precision)
{
    const auto power = [](const Sequence& values) {
        double sum = 0;
        for (const auto& value : values)
            sum += std::norm(value);
        return sum;
    };
    return 4 * (2 * std::log2(points) + 2) * epsilon(precision) * std::sqrt(power(x) * power(y));
}

} // namespace tarn::model
