// Recursive filters by their definition, in complex long double, one sample at a time; and classic designs to try them
// with.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace tarn::test::iir {

using Wide = long double;
using Number = std::complex<Wide>;
using Numbers = std::vector<Number>;

/// A filter of some order, or a cascade, as a list of sections with taps divided by a0: b0..bN, a1..aN.
struct Section {
    Numbers b, a;
};
using Filter = std::vector<Section>;

/// Products part by part: those of std::complex mend infinities.
inline Number product(Number x, Number y)
{
    return {x.real() * y.real() - x.imag() * y.imag(), x.real() * y.imag() + x.imag() * y.real()};
}

/// The filter that taps as they are given to a state mean.
inline Filter filterOf(const Numbers& taps, bool isOrder)
{
    const std::size_t size = isOrder ? taps.size() / 2 : 3;
    Filter filter;
    for (std::size_t begin = 0; begin < taps.size(); begin += 2 * size) {
        Section section;
        const Number a0 = taps[begin + size];
        for (std::size_t k = 0; k < size; ++k) {
            section.b.push_back(taps[begin + k] / a0);
            if (k > 0)
                section.a.push_back(taps[begin + size + k] / a0);
        }
        filter.push_back(section);
    }
    return filter;
}

/// y[n] = sum of b[k] x[n-k] - sum of a[k] y[n-k], after an accumulator line d: what section n leaves in its line is
/// left in `lines`, one line behind the other.
inline Numbers run(const Filter& filter, Numbers signal, Numbers& lines)
{
    std::size_t begin = 0;
    for (const Section& s : filter) {
        const std::size_t n = s.a.size();
        Number* const d = lines.data() + begin;
        for (Number& sample : signal) {
            const Number x = sample;
            const Number y = product(s.b[0], x) + (n > 0 ? d[0] : Number{});
            for (std::size_t j = 0; j < n; ++j)
                d[j] = product(s.b[j + 1], x) - product(s.a[j], y) + (j + 1 < n ? d[j + 1] : Number{});
            sample = y;
        }
        begin += n;
    }
    return signal;
}

inline std::size_t delayOf(const Filter& filter)
{
    std::size_t n = 0;
    for (const Section& s : filter)
        n += s.a.size();
    return n;
}

} // namespace tarn::test::iir
