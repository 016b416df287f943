// The random generator as it is told: one draw at a time, in wide integers.
#pragma once

#include "tarncore.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace tarn::model {

class Random {
public:
    explicit Random(std::uint32_t seed) : lag{seed, next(seed), next(next(seed))} {}

    std::int32_t draw()
    {
        lcg = next(lcg);
        std::int64_t t = (static_cast<std::int64_t>(lag[1]) - static_cast<std::int64_t>(lag[2]) + carry) & 0xFFFFFFFF;
        carry = t >= 0x80000000 ? -1 : 0;
        t = (t - (carry != 0 ? 18 : 0)) & 0xFFFFFFFF;
        lag[2] = lag[1];
        lag[1] = lag[0];
        lag[0] = static_cast<std::uint64_t>(t);
        const std::uint64_t sum = (lag[0] + lcg) & 0xFFFFFFFF;
        return static_cast<std::int32_t>(static_cast<std::int64_t>(sum) - (sum >= 0x80000000 ? 0x100000000 : 0));
    }
    std::uint32_t seed() const { return static_cast<std::uint32_t>(lag[0]); }

private:
    static std::uint64_t next(std::uint64_t x) { return (x * 69069 + 1013904243) & 0xFFFFFFFF; }

    std::uint64_t lcg = 1131199209;
    std::uint64_t lag[3];
    int carry = -1;
};

// In double precision whatever the compiler keeps in registers.
inline double rounded(long double x)
{
    const volatile double stored = static_cast<double>(x);
    return stored;
}

class Uniform {
public:
    template <class T>
    Uniform(T low, T high, std::uint32_t seed) : random(seed)
    {
        using Wide = std::conditional_t<std::is_same_v<T, double>, double, long double>;
        mid = rounded((static_cast<Wide>(low) + static_cast<Wide>(high)) * static_cast<Wide>(0.5));
        span = rounded((static_cast<Wide>(high) - static_cast<Wide>(low)) / static_cast<Wide>(4294967296.0));
    }
    double next() { return rounded(rounded(random.draw() * span) + mid); }
    std::uint32_t seed() const { return random.seed(); }

private:
    Random random;
    double mid, span;
};

// Deviations around 0 with the given width, pair by pair.
class Normal {
public:
    Normal(double width, std::uint32_t seed) : random(seed), deviation(width) {}

    double next()
    {
        if (isWaiting) {
            isWaiting = false;
            return rounded(rounded(deviation * factor) * waiting);
        }
        constexpr double unit = 0x1.ffffffffffd09p-32;
        double first = 0;
        double s = 0;
        do {
            waiting = rounded(random.draw() * unit);
            first = rounded(random.draw() * unit);
            s = rounded(rounded(waiting * waiting) + rounded(first * first));
        } while (s >= 1 || s == 0);
        const double logarithm = rounded(std::log(static_cast<long double>(s)));
        factor = rounded(std::sqrt(rounded(rounded(-2 * logarithm) / s)));
        isWaiting = true;
        return rounded(rounded(deviation * factor) * first);
    }
    std::uint32_t seed() const { return random.seed(); }

private:
    Random random;
    double deviation;
    double factor = 0;
    double waiting = 0;
    bool isWaiting = false;
};

} // namespace tarn::model
