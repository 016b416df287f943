// The steps that conversions of every width share: a power of two applied to floats, the roundings, the scale rule.
#pragma once

#include "frame/factor.h"
#include "frame/rounding.h"
#include "frame/scale_exact.h"
#include "frame/simd_round.h"

namespace tarn {

// -- x times 2^-s ----------------------------------------------------------------------------------------------------

template <typename T>
struct ByFactor {
    T factor;
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return mul(x, splat<X>(factor));
    }
};

template <typename T>
struct ByFactors {
    T first, second;
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return mul(mul(x, splat<X>(first)), splat<X>(second));
    }
};

// Runs with the step that multiplies by 2^-s, whatever s is. Most powers are normal floats; the others take two steps,
// since an infinite factor would make a NaN of a zero, and a denormal one might be taken for zero. What the second step
// cannot reach either has become 0 or infinity. Only a result far below 1/2 is ever rounded.
template <typename T, typename Run>
TARN_INLINE void withPower(int s, Run run)
{
    constexpr int smallest = std::numeric_limits<T>::min_exponent - 1;
    constexpr int largest = std::numeric_limits<T>::max_exponent - 1;
    const int reached = std::clamp(s, -2 * largest, -2 * smallest);
    const int first = std::clamp(reached, -largest, -smallest);
    if (first == reached) {
        run(ByFactor<T>{twoToMinus<T>(first)});
    } else {
        run(ByFactors<T>{twoToMinus<T>(first), twoToMinus<T>(reached - first)});
    }
}

// -- Rounding to an integer ------------------------------------------------------------------------------------------

struct ToNearest {
    // The conversion instruction follows the control word.
    using Control = NearestRoundingOfDenormals;
    static constexpr const auto& single = roundToInteger;
    static constexpr const auto& saturated = roundSaturated;
    static constexpr const auto& twice = roundToInteger;
};

struct TowardsZero {
    using Control = KeptControl;
    static constexpr const auto& single = truncateToInteger;
    static constexpr const auto& saturated = truncateSaturated;
    static constexpr const auto& twice = truncateToInteger;
};

// -- The scale rule on 32-bit integers. Bounds limits them, where narrowing does not, and narrows. --------------------

template <typename Bounds>
struct Limited {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return Bounds::narrow(byRegister(x, [](auto t) { return Bounds::limit(t); }));
    }
};

template <typename Bounds>
struct RoundedDown {
    int s;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        const int count = s;
        const auto rounded = [count](auto t) { return Bounds::limit(shiftRounded(FullWidth{t}, count)); };
        return Bounds::narrow(byRegister(x, rounded));
    }
};

} // namespace tarn
