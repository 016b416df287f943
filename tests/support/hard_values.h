// Values on which arithmetic goes wrong, for every element type, and deterministic fillings of arrays with them.
//
//     for (Tarn16s a : hardValues<Tarn16s>()) ...
//     randomFill(array, seed);                     // hard and random values mixed
//     randomFill(array, seed, Values::unit);       // tame: floats in [-1, 1), small integers
//
// Signalling NaNs are left out, because a float passed or returned by value on i386 may lose its signalling bit on the
// way. Families that move bits test them by sweeping unsigned words.
#pragma once

#include "support/element.h"
#include "support/guarded.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace tarn::test {

/// What an array is filled with.
enum class Values {
    mixed,  ///< hard values and random ones, about half and half
    hard,   ///< hard values only
    random, ///< uniform bits for integers; for floats uniform sign, significand and any exponent of a finite number
    unit    ///< floats in [-1, 1); integers within a sixteenth of their range around zero (from zero if unsigned)
};

/// A small generator of our own: the same sequence on every platform and ABI.
class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed * 0x9E3779B97F4A7C15u + 0xD1B54A32D192ED03u) {}

    std::uint64_t next()
    {
        state += 0x9E3779B97F4A7C15u;
        std::uint64_t z = state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    /// Uniform in [0, bound).
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(next() % bound); }
    /// Uniform in [0, 1), 53 bits.
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

private:
    std::uint64_t state;
};

namespace detail {

template <class T>
std::vector<T> hardIntegers()
{
    using Limits = std::numeric_limits<T>;
    std::vector<T> values;
    auto add = [&](T value) {
        if (std::find(values.begin(), values.end(), value) == values.end())
            values.push_back(value);
    };
    for (int i = 0; i < 3; ++i) {
        add(static_cast<T>(i));
        add(static_cast<T>(-i));
        add(static_cast<T>(Limits::max() - static_cast<T>(i)));
        add(static_cast<T>(Limits::min() + static_cast<T>(i)));
    }
    for (int bit = 2; bit < Limits::digits; ++bit) {
        const T power = static_cast<T>(T{1} << bit);
        // Around every power for the narrow types; the wide ones would take most of a sweep for it.
        const int around = Limits::digits <= 32 ? 1 : (bit % 8 == 7 || bit % 8 == 0 ? 1 : 0);
        for (int i = -around; i <= around; ++i) {
            add(static_cast<T>(power + static_cast<T>(i)));
            if constexpr (Limits::is_signed)
                add(static_cast<T>(-power + static_cast<T>(i)));
        }
    }
    return values;
}

template <class T>
std::vector<T> hardFloats()
{
    using Limits = std::numeric_limits<T>;
    using Bits = BitsOf<T>;
    const T positive[] = {
        T(0),
        T(1),
        Limits::infinity(),
        Limits::max(),
        Limits::min(),
        Limits::denorm_min(),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(Limits::min()) - 1)), // the largest denormal
        Limits::quiet_NaN(),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(Limits::quiet_NaN()) | 0x1234)),
        // Ties, and their neighbours on both sides.
        T(0.5),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(T(0.5)) - 1)),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(T(0.5)) + 1)),
        T(1.5),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(T(1.5)) - 1)),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(T(1.5)) + 1)),
        T(2.5),
        T(3.5),
        T(2),
        T(3),
        T(4),
        T(0.25),
        T(1) + Limits::epsilon(),
        std::bit_cast<T>(static_cast<Bits>(std::bit_cast<Bits>(T(1)) - 1)),
        // The edges of the integer types, with ties at them.
        T(126.5),
        T(127.5),
        T(128.5),
        T(254.5),
        T(255),
        T(255.5),
        T(256),
        T(32766.5),
        T(32767),
        T(32767.5),
        T(32768),
        T(32768.5),
        T(65534.5),
        T(65535),
        T(65535.5),
        T(65536),
        T(2147483520.0),
        T(2147483647.0),
        T(2147483647.5),
        T(2147483648.0),
        T(2147483648.5),
        T(2147483904.0),
        T(4294967040.0),
        T(4294967295.0),
        T(4294967296.0),
        T(9223372036854775808.0),
        T(8388607.5),
        T(8388609.0),
        T(16777215.0),
        T(16777217.0),
        T(4503599627370497.5),
        T(1e10),
        T(1e-10),
        T(3.14159265358979323846),
        T(0.1),
        T(1e30),
        T(1e-30),
    };
    std::vector<T> values;
    for (T value : positive) {
        values.push_back(value);
        values.push_back(-value);
    }
    return values;
}

template <class T>
std::vector<T> makeHardValues()
{
    if constexpr (ComplexElement<T>) {
        using Real = RealOf<T>;
        const std::vector<Real> reals = makeHardValues<Real>();
        const std::size_t n = reals.size();
        std::vector<T> values;
        for (std::size_t stride : {std::size_t{0}, std::size_t{1}, n / 3, n / 2 + 1})
            for (std::size_t i = 0; i < n; ++i)
                values.push_back(T{reals[i], reals[(i + stride) % n]});
        return values;
    } else if constexpr (std::is_floating_point_v<T>) {
        return hardFloats<T>();
    } else if constexpr (std::is_integral_v<T>) {
        return hardIntegers<T>();
    } else {
        // Three-byte elements: bounds, and bytes that all differ.
        return {T{{0, 0, 0}},    T{{1, 0, 0}}, T{{0xFF, 0xFF, 0xFF}}, T{{0xFF, 0xFF, 0x7F}},
                T{{0, 0, 0x80}}, T{{1, 2, 3}}, T{{0xFE, 0xFF, 0xFF}}, T{{0, 0x80, 0}}};
    }
}

} // namespace detail

/// Bounds and their neighbours, zeros, powers of two and their neighbours; for floats also both zeros, infinities,
/// quiet NaNs of either sign and with a payload, denormals, ties of rounding to integer and the edges of the integer
/// types. Complex values pair them.
template <class T>
const std::vector<T>& hardValues()
{
    static const std::vector<T> values = detail::makeHardValues<T>();
    return values;
}

/// One value of the kind.
template <class T>
T randomValue(Random& random, Values kind = Values::mixed)
{
    if constexpr (ComplexElement<T>) {
        const auto re = randomValue<RealOf<T>>(random, kind);
        const auto im = randomValue<RealOf<T>>(random, kind);
        return T{re, im};
    } else {
        if (kind == Values::hard || (kind == Values::mixed && (random.next() >> 40) % 2 == 0)) {
            const std::vector<T>& hard = hardValues<T>();
            return hard[random.below(hard.size())];
        }
        if constexpr (std::is_floating_point_v<T>) {
            if (kind == Values::unit)
                return static_cast<T>(2 * random.unit() - 1);
            using Bits = BitsOf<T>;
            for (;;) {
                const auto value = std::bit_cast<T>(static_cast<Bits>(random.next()));
                if (value - value == 0)
                    return value;
            }
        } else if constexpr (std::is_integral_v<T>) {
            const T value = static_cast<T>(random.next());
            return kind == Values::unit ? static_cast<T>(value / 16) : value;
        } else {
            T value;
            for (auto& byte : value.bytes)
                byte = static_cast<unsigned char>(random.next());
            return value;
        }
    }
}

template <class T>
std::vector<T> randomValues(std::size_t len, std::uint64_t seed, Values kind = Values::mixed)
{
    Random random(seed);
    std::vector<T> values;
    values.reserve(len);
    for (std::size_t i = 0; i < len; ++i)
        values.push_back(randomValue<T>(random, kind));
    return values;
}

template <class T>
void randomFill(GuardedArray<T>& array, std::uint64_t seed, Values kind = Values::mixed)
{
    array.assign(randomValues<T>(array.size(), seed, kind));
}

template <class T>
void randomFill(std::span<T> values, std::uint64_t seed, Values kind = Values::mixed)
{
    Random random(seed);
    for (T& value : values)
        value = randomValue<T>(random, kind);
}

} // namespace tarn::test
