// Comparison of arrays to the bit, or within a stated tolerance, with messages that say where and how they differ.
//
//     EXPECT_TRUE(arraysMatch<Tarn32f>(expected, actual.data(), n));                 // bits, any NaN equals any NaN
//     EXPECT_TRUE(arraysMatch<Tarn32f>(expected, actual.data(), n, {.nan = NanRule::sameBits}));
//     EXPECT_TRUE(arraysMatch<Tarn32f>(expected, actual.data(), n, {.ulps = 2}));    // why 2: say so in the test
#pragma once

#include "support/element.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <span>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace tarn::test {

enum class NanRule {
    anyNan,  ///< any NaN equals any other: which operand's payload survives is the processor's business
    sameBits ///< NaNs must agree in sign and payload
};

/// What counts as equal. With all tolerances 0 it is the bits: -0 differs from +0.
struct Match {
    NanRule nan = NanRule::anyNan;
    double ulps = 0;     ///< units in the last place of the expected value
    double absolute = 0; ///< allowed difference, added to the other two
    double relative = 0; ///< allowed difference as a fraction of the expected value

    bool exact() const { return ulps == 0 && absolute == 0 && relative == 0; }
};

namespace detail {

template <class T>
bool matchesFloat(const void* expected, const void* actual, const Match& match)
{
    BitsOf<T> expectedBits;
    BitsOf<T> actualBits;
    std::memcpy(&expectedBits, expected, sizeof expectedBits);
    std::memcpy(&actualBits, actual, sizeof actualBits);
    if (expectedBits == actualBits)
        return true;
    T e;
    T a;
    std::memcpy(&e, expected, sizeof e);
    std::memcpy(&a, actual, sizeof a);
    if (std::isnan(e) || std::isnan(a))
        return std::isnan(e) && std::isnan(a) && match.nan == NanRule::anyNan;
    if (match.exact() || std::isinf(e) || std::isinf(a))
        return false;
    const T magnitude = std::fabs(e);
    using Limits = std::numeric_limits<T>;
    const int exponent =
        magnitude == 0 ? Limits::min_exponent : std::max(std::ilogb(magnitude) + 1, Limits::min_exponent);
    const long double ulp = std::ldexp(1.0L, exponent - Limits::digits);
    const long double difference = std::fabs(static_cast<long double>(e) - static_cast<long double>(a));
    return difference <= match.ulps * ulp + match.absolute + match.relative * static_cast<long double>(magnitude);
}

template <class T>
bool matchesInteger(const void* expected, const void* actual, const Match& match)
{
    T e;
    T a;
    std::memcpy(&e, expected, sizeof e);
    std::memcpy(&a, actual, sizeof a);
    if (e == a)
        return true;
    if (match.exact())
        return false;
    const long double difference = std::fabs(static_cast<long double>(e) - static_cast<long double>(a));
    return difference <= match.ulps + match.absolute + match.relative * std::fabs(static_cast<long double>(e));
}

} // namespace detail

/// Whether the element at `actual` is what is expected. Neither address needs to be aligned, and no value is passed
/// through a register on the way, so that signalling NaNs keep their bits.
template <class T>
bool elementMatches(const void* expected, const void* actual, const Match& match = {})
{
    if constexpr (ComplexElement<T>) {
        using Real = RealOf<T>;
        const auto* e = static_cast<const unsigned char*>(expected);
        const auto* a = static_cast<const unsigned char*>(actual);
        return elementMatches<Real>(e, a, match) && elementMatches<Real>(e + sizeof(Real), a + sizeof(Real), match);
    } else if constexpr (std::is_floating_point_v<T>) {
        return detail::matchesFloat<T>(expected, actual, match);
    } else if constexpr (std::is_integral_v<T>) {
        return detail::matchesInteger<T>(expected, actual, match);
    } else {
        return std::memcmp(expected, actual, sizeof(T)) == 0;
    }
}

/// Whether two values are equal: `EXPECT_TRUE(valuesMatch(-0.0f, result))` sees the sign of a zero.
template <class T>
::testing::AssertionResult valuesMatch(const std::type_identity_t<T>& expected, const T& actual,
                                       const Match& match = {})
{
    if (elementMatches<T>(&expected, &actual, match))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "expected " << toText(expected) << ", got " << toText(actual);
}

/// Whether `len` elements agree. `actual` may be misaligned. The message tells the first few differences and, if
/// given, the context.
template <class T>
::testing::AssertionResult arraysMatch(const void* expected, const void* actual, std::size_t len,
                                       const Match& match = {}, const std::string& context = {})
{
    if (len == 0 || std::memcmp(expected, actual, len * sizeof(T)) == 0)
        return ::testing::AssertionSuccess();
    const auto* e = static_cast<const unsigned char*>(expected);
    const auto* a = static_cast<const unsigned char*>(actual);
    std::size_t differing = 0;
    std::ostringstream text;
    for (std::size_t i = 0; i < len; ++i) {
        if (elementMatches<T>(e + i * sizeof(T), a + i * sizeof(T), match))
            continue;
        if (++differing > 4)
            continue;
        T expectedValue;
        T actualValue;
        std::memcpy(&expectedValue, e + i * sizeof(T), sizeof(T));
        std::memcpy(&actualValue, a + i * sizeof(T), sizeof(T));
        text << "\n  [" << i << "] expected " << toText(expectedValue) << ", got " << toText(actualValue);
    }
    if (differing == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << differing << " of " << len << " elements differ"
                                         << (context.empty() ? "" : ", ") << context << text.str();
}

template <class T>
::testing::AssertionResult arraysMatch(const std::vector<T>& expected, const GuardedArray<T>& actual,
                                       const Match& match = {}, const std::string& context = {})
{
    if (expected.size() != actual.size())
        return ::testing::AssertionFailure() << "expected " << expected.size() << " elements, got " << actual.size();
    return arraysMatch<T>(expected.data(), actual.bytes(), expected.size(), match,
                          context.empty() ? "the array " + toString(actual.placement()) : context);
}

} // namespace tarn::test
