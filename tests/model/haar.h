// The Haar transform of one pair, as its definition reads.
#pragma once

#include "model/scale.h"

#include "tarncore.h"

#include <cstdint>
#include <limits>
#include <type_traits>

namespace tarn::model {

template <class T>
struct HaarPair {
    T first;
    T second;
};

/// Floats: the difference in the extended format, halved, and added to the first sample.
template <class T>
HaarPair<T> haarHalves(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>) {
        const long double half = (static_cast<long double>(b) - static_cast<long double>(a)) * 0.5L;
        return {static_cast<T>(static_cast<long double>(a) + half), static_cast<T>(half)};
    } else if constexpr (sizeof(T) <= 2) {
        return {scaled<T>(std::int64_t{a} + b, 1), scaled<T>(std::int64_t{b} - a, 1)};
    } else {
        // Halves are added, and what the bits below them make of it stands in tables.
        static constexpr int sumCorrect[16] = {0, 0, 0, 1, 0, 1, 1, 1, 0, 1, 0, 0, 1, 1, 0, 1};
        static constexpr int subCorrect[16] = {0, 0, 0, 1, 0, 0, -1, 0, 0, 1, 0, 0, -1, 0, 0, 0};
        const auto place = static_cast<std::size_t>((b & 3) + 4 * (a & 3));
        const std::int64_t sum = (std::int64_t{b} >> 1) + (std::int64_t{a} >> 1);
        const std::int64_t difference = (std::int64_t{b} >> 1) - (std::int64_t{a} >> 1);
        if (difference == std::numeric_limits<T>::max())
            return {sizeof(T) == 4 ? T{0} : static_cast<T>(sum + sumCorrect[place]), std::numeric_limits<T>::max()};
        return {static_cast<T>(sum + sumCorrect[place]), static_cast<T>(difference + subCorrect[place])};
    }
}

template <class T>
HaarPair<T> haarScaled(T a, T b, int scaleFactor)
{
    const int s = scaleFactor == std::numeric_limits<int>::max() ? scaleFactor : scaleFactor + 1;
    return {scaled<T>(exact(a) + exact(b), s), scaled<T>(exact(b) - exact(a), s)};
}

template <class T>
HaarPair<T> haarInverse(T low, T high)
{
    if constexpr (std::is_floating_point_v<T>)
        return {low - high, low + high};
    else
        return {saturated<T>(exact(low) - exact(high)), saturated<T>(exact(low) + exact(high))};
}

/// The second value of 16-bit samples at a factor of 1 is made from the first.
template <class T>
HaarPair<T> haarInverseScaled(T low, T high, int scaleFactor)
{
    if (std::is_same_v<T, Tarn16s> && scaleFactor == 1) {
        const Wide first = roundedQuotient(exact(low) - exact(high), 1);
        return {saturated<T>(first), saturated<T>(exact(high) + first)};
    }
    return {scaled<T>(exact(low) - exact(high), scaleFactor), scaled<T>(exact(low) + exact(high), scaleFactor)};
}

} // namespace tarn::model
