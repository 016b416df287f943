// Plain model of transforms of any length: the length's prime factors one after the other, in extended precision.
#pragma once

#include "model/fft.h"

namespace tarn::test::model {

/// A length comes apart into its smallest factor p and the rest: p transforms of every p-th sample each, and their sums
/// with turned phases. The samples lie `stride` apart, and the turns are those of a length `stride` times as large.
inline std::vector<Bin> transformBySmallestFactor(const Bin* x, std::size_t size, std::size_t stride,
                                                  const std::vector<Bin>& turns)
{
    if (size == 1)
        return {*x};
    std::size_t p = 2;
    while (p * p <= size && size % p != 0)
        ++p;
    if (p * p > size)
        p = size;
    const std::size_t rest = size / p;
    std::vector<Bin> result(size);
    for (std::size_t j = 0; j < p; ++j) {
        const auto part = transformBySmallestFactor(x + j * stride, rest, p * stride, turns);
        std::size_t at = 0; // of j k modulo size
        for (std::size_t k = 0; k < size; ++k) {
            const Bin term = product(part[k % rest], turns[at * stride]);
            result[k].re += term.re;
            result[k].im += term.im;
            at = (at + j) % size;
        }
    }
    return result;
}

/// X[k] is the sum of x[n] exp(sign 2 pi i n k / N), for any N.
inline std::vector<Bin> transformOfAnyLength(const std::vector<Bin>& x, int sign)
{
    std::vector<Bin> turns(x.size());
    for (std::size_t m = 0; m < turns.size(); ++m)
        turns[m] = turn(sign, m, turns.size());
    return x.empty() ? x : transformBySmallestFactor(x.data(), x.size(), 1, turns);
}

} // namespace tarn::test::model
