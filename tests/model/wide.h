// A 128-bit signed integer of plain operations, for exact results that need more than 64 bits (a 32-bit complex product
// needs 65). Written for 32-bit platforms too, which have no such type of their own.
#pragma once

#include <compare>
#include <cstdint>

namespace tarn::model {

/// Two's complement in two words. Sums and products must fit; nothing here checks that they do.
struct Wide {
    std::int64_t high = 0;
    std::uint64_t low = 0;

    constexpr Wide() = default;
    // Implicit on purpose: models mix it with plain integers.
    constexpr Wide(std::int64_t value) : high(value < 0 ? -1 : 0), low(static_cast<std::uint64_t>(value)) {}
    constexpr Wide(std::int64_t highWord, std::uint64_t lowWord) : high(highWord), low(lowWord) {}

    static constexpr Wide fromUnsigned(std::uint64_t value) { return {0, value}; }

    friend constexpr Wide operator+(Wide a, Wide b)
    {
        const std::uint64_t low = a.low + b.low;
        const std::uint64_t carry = low < a.low ? 1 : 0;
        return {
            static_cast<std::int64_t>(static_cast<std::uint64_t>(a.high) + static_cast<std::uint64_t>(b.high) + carry),
            low};
    }
    friend constexpr Wide operator-(Wide a)
    {
        return Wide{static_cast<std::int64_t>(~static_cast<std::uint64_t>(a.high)), ~a.low} + Wide(1);
    }
    friend constexpr Wide operator-(Wide a, Wide b) { return a + -b; }

    friend constexpr bool operator==(const Wide&, const Wide&) = default;
    friend constexpr std::strong_ordering operator<=>(const Wide& a, const Wide& b)
    {
        return a.high != b.high ? a.high <=> b.high : a.low <=> b.low;
    }

    /// Half of the number, rounded towards minus infinity.
    constexpr Wide halved() const { return {high >> 1, (low >> 1) | (static_cast<std::uint64_t>(high) << 63)}; }
    constexpr bool isOdd() const { return (low & 1) != 0; }
};

/// The exact product, by additions of doubled multiples.
constexpr Wide product(Wide a, Wide b)
{
    const bool negative = (a < Wide(0)) != (b < Wide(0));
    Wide x = a < Wide(0) ? -a : a;
    Wide y = b < Wide(0) ? -b : b;
    Wide sum;
    while (!(y == Wide(0))) {
        if (y.isOdd())
            sum = sum + x;
        x = x + x;
        y = y.halved();
    }
    return negative ? -sum : sum;
}

} // namespace tarn::model
