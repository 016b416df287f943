// From sums of FIR filters with floating taps to samples: the roundings of multi-rate filters and direct calls.
#pragma once

#include "levels/data/psconvert_scale.h"

namespace tarn {

// 2^-scaleFactor as two factors, for powers that are no normal numbers.
template <typename T>
struct TwoFactors {
    T first, second;

    explicit TwoFactors(int scaleFactor) : first(0), second(1)
    {
        withPower<T>(scaleFactor, [&](auto power) { take(power); });
    }
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return mul(mul(x, splat<X>(first)), splat<X>(second));
    }

private:
    void take(ByFactor<T> power) { first = power.factor; }
    void take(ByFactors<T> power)
    {
        first = power.first;
        second = power.second;
    }
};

// Within the bounds of an integer type; a NaN becomes the lowest.
template <typename D, typename X>
TARN_INLINE X limitedTo(X x)
{
    return min(max(x, splat<X>(lowest<D>)), splat<X>(highest<D>));
}

template <int N>
TARN_INLINE void storeIntegers(Tarn16s* dst, Pack<Tarn32s, N> x)
{
    storeNarrowed(dst, x);
}
template <int N>
TARN_INLINE void storeIntegers(Tarn32s* dst, Pack<Tarn32s, N> x)
{
    store(dst, x);
}

// Sums as they are, or in single precision.
struct Unscaled {
    template <typename S, Float T, int N>
    TARN_INLINE void put(S* dst, Pack<T, N> sums) const
    {
        if constexpr (std::is_same_v<S, T>) {
            store(dst, sums);
        } else {
            store(dst, narrowFloat(sums));
        }
    }
};

// Rounded in the current mode.
template <typename T>
struct RoundedByConversion {
    TwoFactors<T> scale;

    template <typename S, int N>
    TARN_INLINE void put(S* dst, Pack<T, N> sums) const
    {
        storeIntegers(dst, roundToInteger(limitedTo<S>(scale(sums))));
    }
};

// Halves away from zero.
template <typename T>
struct RoundedAway {
    TwoFactors<T> scale;

    template <typename S, int N>
    TARN_INLINE void put(S* dst, Pack<T, N> sums) const
    {
        const auto limited = limitedTo<S>(scale(sums));
        if constexpr (isDouble<T>) {
            storeAway(dst, limited);
        } else {
            storeAway(dst, widen(limited));
        }
    }

private:
    template <typename S, int N>
    TARN_INLINE static void storeAway(S* dst, Pack<Tarn64f, N> x)
    {
        using X = Pack<Tarn64f, N>;
        const auto half = select(less(x, splat<X>(0)), splat<X>(-0.5), splat<X>(0.5));
        storeIntegers(dst, truncateToInteger(add(x, half)));
    }
};

} // namespace tarn
