// Plain model of the power-of-two transforms: radix 2 in extended precision, and the definition itself to prove it by.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

namespace tarn::test::model {

struct Bin {
    long double re = 0;
    long double im = 0;
};

/// exp(sign 2 pi i m / n).
inline Bin turn(int sign, std::size_t m, std::size_t n)
{
    const long double angle =
        2 * std::numbers::pi_v<long double> * static_cast<long double>(m % n) / static_cast<long double>(n);
    return {std::cos(angle), static_cast<long double>(sign) * std::sin(angle)};
}

/// At least so many angles of half a turn, a power of two: those of the longest transform yet, which are most of its
/// work.
inline const std::vector<Bin>& halfTurn(std::size_t count)
{
    static std::vector<Bin> turns;
    if (turns.size() < count) {
        turns.resize(count);
        for (std::size_t m = 0; m < count; ++m)
            turns[m] = turn(1, m, 2 * count);
    }
    return turns;
}

inline Bin product(Bin a, Bin b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

/// The definition: X[k] is the sum of x[n] exp(sign 2 pi i n k / N).
inline std::vector<Bin> transformByDefinition(const std::vector<Bin>& x, int sign)
{
    const std::size_t size = x.size();
    std::vector<Bin> result(size);
    for (std::size_t k = 0; k < size; ++k)
        for (std::size_t n = 0; n < size; ++n) {
            const Bin term = product(x[n], turn(sign, n * k, size));
            result[k].re += term.re;
            result[k].im += term.im;
        }
    return result;
}

/// The same for a length that is a power of two, by halving: even samples, odd samples.
inline std::vector<Bin> transform(std::vector<Bin> x, int sign)
{
    const std::size_t size = x.size();
    const auto& turns = halfTurn(size / 2);
    const std::size_t apart = turns.size() / std::max<std::size_t>(size / 2, 1);
    std::vector<Bin> other(size);
    // Each round takes the remaining stride apart and writes sums to the front half, differences to the back half.
    for (std::size_t stride = size / 2; stride > 0; stride /= 2) {
        for (std::size_t block = 0; block < size / 2; block += stride) {
            const Bin w = {turns[block * apart].re, static_cast<long double>(sign) * turns[block * apart].im};
            for (std::size_t i = 0; i < stride; ++i) {
                const Bin a = x[2 * block + i];
                const Bin b = product(x[2 * block + stride + i], w);
                other[block + i] = {a.re + b.re, a.im + b.im};
                other[block + size / 2 + i] = {a.re - b.re, a.im - b.im};
            }
        }
        std::swap(x, other);
    }
    return x;
}

} // namespace tarn::test::model
