// Plain model of the transforms of any length: the convolution with a chirp, whose power-of-two transforms are radix 2.
// In double precision for results in single precision, in extended precision for others.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <vector>

namespace tarn::test::model {

/// exp(sign 2 pi i m / n).
template <class Real>
std::complex<Real> rootOf(int sign, std::size_t m, std::size_t n)
{
    const Real angle = 2 * std::numbers::pi_v<Real> * static_cast<Real>(m % n) / static_cast<Real>(n);
    return {std::cos(angle), static_cast<Real>(sign) * std::sin(angle)};
}

/// In place, for a power of two, forward: differences first, so that no order of elements is needed in a convolution,
/// which does its products in the order that comes out. The way back takes that order.
template <class Real>
class Rounds {
public:
    explicit Rounds(std::size_t size) : size(size), turns(size / 2)
    {
        for (std::size_t m = 0; m < turns.size(); ++m)
            turns[m] = rootOf<Real>(-1, m, size);
    }

    void apart(std::vector<std::complex<Real>>& x) const
    {
        for (std::size_t half = size / 2; half > 0; half /= 2)
            for (std::size_t block = 0; block < size; block += 2 * half)
                for (std::size_t i = 0; i < half; ++i) {
                    const auto a = x[block + i];
                    const auto b = x[block + half + i];
                    x[block + i] = a + b;
                    x[block + half + i] = product(a - b, turns[i * (size / (2 * half))]);
                }
    }
    void together(std::vector<std::complex<Real>>& x) const
    {
        for (std::size_t half = 1; half < size; half *= 2)
            for (std::size_t block = 0; block < size; block += 2 * half)
                for (std::size_t i = 0; i < half; ++i) {
                    const auto a = x[block + i];
                    const auto b = product(x[block + half + i], std::conj(turns[i * (size / (2 * half))]));
                    x[block + i] = a + b;
                    x[block + half + i] = a - b;
                }
    }

    static std::complex<Real> product(std::complex<Real> a, std::complex<Real> b)
    {
        return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
    }

private:
    std::size_t size;
    std::vector<std::complex<Real>> turns;
};

/// X[k] is the sum of x[n] exp(sign 2 pi i n k / N).
template <class Real>
std::vector<std::complex<Real>> anyTransform(const std::vector<std::complex<Real>>& x, int sign)
{
    using C = std::complex<Real>;
    const std::size_t n = x.size();
    std::size_t size = 1;
    while (size < 2 * n - 1)
        size *= 2;
    static std::vector<Rounds<Real>> known;
    std::size_t at = 0;
    for (std::size_t s = 1; s < size; s *= 2)
        ++at;
    while (known.size() <= at)
        known.emplace_back(std::size_t{1} << known.size());
    const Rounds<Real>& rounds = known[at];

    std::vector<C> chirp(n);
    for (std::size_t k = 0; k < n; ++k)
        chirp[k] = rootOf<Real>(sign, static_cast<std::size_t>(std::uint64_t{k} * k % (2 * n)), 2 * n);
    std::vector<C> y(size);
    std::vector<C> kernel(size);
    for (std::size_t k = 0; k < n; ++k) {
        y[k] = Rounds<Real>::product(x[k], chirp[k]);
        kernel[k] = std::conj(chirp[k]);
        if (k > 0)
            kernel[size - k] = kernel[k];
    }
    rounds.apart(y);
    rounds.apart(kernel);
    for (std::size_t k = 0; k < size; ++k)
        y[k] = Rounds<Real>::product(y[k], kernel[k]) / static_cast<Real>(size);
    rounds.together(y);
    y.resize(n);
    for (std::size_t k = 0; k < n; ++k)
        y[k] = Rounds<Real>::product(y[k], chirp[k]);
    return y;
}

} // namespace tarn::test::model
