// Wavelet banks as they are told: one output at a time, from the whole stream, in wide floats.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace tarn::test::wavelet {

using Wide = long double;

struct Filter {
    std::vector<float> taps;
    int offs = 0;

    int len() const { return static_cast<int>(taps.size()); }
};

/// A value, and the sum of the magnitudes of what was added up to it.
struct Sum {
    Wide value = 0;
    Wide magnitude = 0;

    void add(Wide term)
    {
        value += term;
        magnitude += std::fabs(term);
    }
    Sum operator+(const Sum& other) const { return {value + other.value, magnitude + other.magnitude}; }
};

/// One channel of a forward bank: low[k] = sum of h[j] x[2k - j - o].
inline std::vector<Sum> forward(const Filter& filter, const std::vector<float>& x)
{
    std::vector<Sum> y(x.size() / 2);
    for (std::size_t k = 0; k < y.size(); ++k) {
        for (int j = 0; j < filter.len(); ++j) {
            const long at = 2 * static_cast<long>(k) - j - filter.offs;
            if (at >= 0 && at < static_cast<long>(x.size()))
                y[k].add(static_cast<Wide>(filter.taps[static_cast<std::size_t>(j)]) * x[static_cast<std::size_t>(at)]);
        }
    }
    return y;
}

/// One channel's part of an inverse bank: y[n] = sum of h[j] u[n - j - o], u[2k] = x[k]. There is no sample after the
/// newest one, and an offset of -1 filters as 1 does.
inline std::vector<Sum> inverse(const Filter& filter, const std::vector<float>& x)
{
    std::vector<Sum> y(2 * x.size());
    const int offs = filter.offs == -1 ? 1 : filter.offs;
    for (std::size_t n = 0; n < y.size(); ++n) {
        for (int j = 0; j < filter.len(); ++j) {
            const long at = static_cast<long>(n) - j - offs;
            if (at >= 0 && at % 2 == 0)
                y[n].add(static_cast<Wide>(filter.taps[static_cast<std::size_t>(j)]) *
                         x[static_cast<std::size_t>(at / 2)]);
        }
    }
    return y;
}

/// How far a sum in single precision may be from it, in whatever order its terms are added.
inline Wide bound(const Sum& sum, int terms)
{
    return (static_cast<Wide>(terms) + 2) * 0x1p-24L * sum.magnitude + 0x1p-149L;
}

/// Outputs at the beginning of a block that are sums in double precision: as many inputs, forward, or outputs, inverse.
inline int headOf(const Filter& filter, int phase) { return filter.len() - ((filter.len() & 1) ^ phase); }

} // namespace tarn::test::wavelet
