// Plain models of sums: every lane is an element of an array, every step of the stated order a statement.
#pragma once

#include "tarncore.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace tarn::model {

using Extended = long double;

inline std::span<const Tarn32f> asParts(std::span<const Tarn32fc> x)
{
    return {reinterpret_cast<const Tarn32f*>(x.data()), 2 * x.size()};
}
inline std::span<const Tarn64f> asParts(std::span<const Tarn64fc> x)
{
    return {reinterpret_cast<const Tarn64f*>(x.data()), 2 * x.size()};
}

/// Accurate complex pass: eight accumulators that stay in place, then the elements that are left.
inline Tarn64fc sumAccurate(std::span<const Tarn32fc> x)
{
    Extended a[8] = {};
    std::size_t i = 0;
    for (; i + 4 <= x.size(); i += 4)
        for (std::size_t k = 0; k < 4; ++k) {
            a[2 * k] += x[i + k].re;
            a[2 * k + 1] += x[i + k].im;
        }
    Extended re = (a[0] + a[4]) + (a[2] + a[6]);
    Extended im = (a[1] + a[5]) + (a[3] + a[7]);
    for (; i < x.size(); ++i) {
        re += x[i].re;
        im += x[i].im;
    }
    return {static_cast<double>(re), static_cast<double>(im)};
}

/// A block of the fast pass: four vectors of four lanes, joined, then what is left by four, by two and by one.
inline void fastBlock(std::span<const Tarn32f> x, Tarn32f* sums)
{
    Tarn32f v[4][4] = {};
    std::size_t i = 0;
    for (; i + 16 <= x.size(); i += 16)
        for (std::size_t j = 0; j < 4; ++j)
            for (std::size_t k = 0; k < 4; ++k)
                v[j][k] += x[i + 4 * j + k];
    Tarn32f lane[4];
    for (std::size_t k = 0; k < 4; ++k) {
        const Tarn32f outer = v[0][k] + v[2][k];
        const Tarn32f inner = v[1][k] + v[3][k];
        lane[k] = outer + inner;
    }
    for (; i + 4 <= x.size(); i += 4)
        for (std::size_t k = 0; k < 4; ++k)
            lane[k] += x[i + k];
    if (i + 2 <= x.size()) {
        lane[0] += x[i];
        lane[1] += x[i + 1];
        i += 2;
    }
    if (i < x.size())
        lane[0] += x[i];
    sums[0] = lane[0] + lane[2];
    sums[1] = lane[1] + lane[3];
}

/// The fast pass over an array that lies `offset` bytes past a vector boundary. `even` and `odd` are one accumulator
/// for a real array, and two for the parts of a complex one.
inline void sumFast(std::span<const Tarn32f> x, std::size_t offset, Extended& even, Extended& odd)
{
    constexpr std::size_t block = 32768;
    if ((offset & 12) != 0) {
        for (std::size_t i = 0; i < x.size(); ++i)
            (i % 2 == 0 ? even : odd) += x[i];
        return;
    }
    for (std::size_t i = 0; i < x.size(); i += block) {
        Tarn32f sums[2];
        fastBlock(x.subspan(i, std::min(block, x.size() - i)), sums);
        even += sums[0];
        odd += sums[1];
    }
}
inline Tarn64f sumFast(std::span<const Tarn32f> x, std::size_t offset)
{
    Extended sum = 0;
    sumFast(x, offset, sum, sum);
    return static_cast<Tarn64f>(sum);
}
inline Tarn64fc sumFast(std::span<const Tarn32fc> x, std::size_t offset)
{
    Extended re = 0;
    Extended im = 0;
    sumFast(asParts(x), offset, re, im);
    return {static_cast<Tarn64f>(re), static_cast<Tarn64f>(im)};
}

/// Eight accumulators of doubles, folded, and the tail at even and odd places, from what a[0] and a[1] start with.
inline void sumDoubles(std::span<const Tarn64f> x, Tarn64f& even, Tarn64f& odd)
{
    Tarn64f a[8] = {even, odd};
    std::size_t i = 0;
    for (; i + 8 <= x.size(); i += 8)
        for (std::size_t k = 0; k < 8; ++k)
            a[k] += x[i + k];
    a[4] += a[6];
    a[5] += a[7];
    even = a[0] + a[2];
    even += a[4];
    odd = a[1] + a[3];
    odd += a[5];
    for (std::size_t k = 0; i < x.size(); ++i, ++k)
        (k % 2 == 0 ? even : odd) += x[i];
}
inline Tarn64f sum(std::span<const Tarn64f> x, std::size_t offset)
{
    Tarn64f even = 0;
    Tarn64f odd = 0;
    if (offset % 16 == 8) {
        even = x[0];
        if (x.size() == 1)
            return even;
        x = x.subspan(1);
    }
    sumDoubles(x, even, odd);
    return odd + even;
}
inline Tarn64fc sum(std::span<const Tarn64fc> x, std::size_t offset)
{
    const auto parts = asParts(x);
    if (offset % 16 == 8) {
        Tarn64f im = 0;
        Tarn64f re = parts[0];
        sumDoubles(parts.subspan(1), im, re);
        return {re, im};
    }
    Tarn64f re = 0;
    Tarn64f im = 0;
    sumDoubles(parts, re, im);
    return {re, im};
}

/// The exact sum of one part of 16-bit elements, and the literal scaling of it.
template <class T, class Of>
std::int64_t exactSum(std::span<const T> x, Of of)
{
    std::int64_t sum = 0;
    for (const T& element : x)
        sum += of(element);
    return sum;
}

inline Tarn64f halvedOrDoubled(Tarn64f x, int scaleFactor)
{
    for (; scaleFactor > 0; --scaleFactor)
        x *= 0.5;
    for (; scaleFactor < 0; ++scaleFactor)
        x *= 2;
    return x;
}

/// The conversion instruction: the current rounding mode, and the lowest integer for what does not fit.
inline Tarn32s converted(Tarn64f x)
{
    const Tarn64f rounded = std::nearbyint(x);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        return std::numeric_limits<Tarn32s>::min();
    return static_cast<Tarn32s>(rounded);
}

inline Tarn32s scaledSum(std::int64_t sum, int scaleFactor)
{
    const Tarn64f x = halvedOrDoubled(static_cast<Tarn64f>(sum), scaleFactor);
    return converted(std::min(x, 2147483647.0));
}

template <class T>
T saturatedTo(std::int64_t x)
{
    return static_cast<T>(std::clamp<std::int64_t>(x, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

} // namespace tarn::model
