// The cosine transform by its definition.
#pragma once

#include <cmath>
#include <span>
#include <vector>

namespace tarn::test::model {

/// cos(2 pi j / (4 N)) for j below 4 N.
inline std::vector<long double> dctPeriod(std::size_t N)
{
    std::vector<long double> period(4 * N);
    for (std::size_t j = 0; j < period.size(); ++j)
        period[j] = std::cos(2 * 3.14159265358979323846264338327950288L * static_cast<long double>(j) /
                             static_cast<long double>(4 * N));
    return period;
}

/// c(k).
inline long double dctFactor(std::size_t N, std::size_t k)
{
    return std::sqrt((k == 0 ? 1.0L : 2.0L) / static_cast<long double>(N));
}

/// Sums in T, which is long double where every bit counts.
template <class T = long double, class X>
std::vector<long double> dctForward(std::span<const X> x)
{
    const std::size_t N = x.size();
    const auto exact = dctPeriod(N);
    const std::vector<T> period(exact.begin(), exact.end());
    std::vector<long double> y(N);
    for (std::size_t k = 0; k < N; ++k) {
        T sum = 0;
        for (std::size_t n = 0, at = k; n < N; ++n) {
            sum += static_cast<T>(x[n]) * period[at];
            at += 2 * k;
            at -= at >= 4 * N ? 4 * N : 0;
        }
        y[k] = dctFactor(N, k) * static_cast<long double>(sum);
    }
    return y;
}

template <class T = long double, class X>
std::vector<long double> dctInverse(std::span<const X> y)
{
    const std::size_t N = y.size();
    const auto exact = dctPeriod(N);
    const std::vector<T> period(exact.begin(), exact.end());
    std::vector<T> scaled(N);
    for (std::size_t k = 0; k < N; ++k)
        scaled[k] = static_cast<T>(dctFactor(N, k) * static_cast<long double>(y[k]));
    std::vector<long double> x(N);
    for (std::size_t n = 0; n < N; ++n) {
        T sum = 0;
        for (std::size_t k = 0, at = 0; k < N; ++k) {
            sum += scaled[k] * period[at];
            at += 2 * n + 1;
            at -= at >= 4 * N ? 4 * N : 0;
        }
        x[n] = static_cast<long double>(sum);
    }
    return x;
}

} // namespace tarn::test::model
