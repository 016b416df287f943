// From 32-bit sums of FIR filters with integer taps to 16-bit samples: shifted, then saturated.
#pragma once

#include "frame/scale_exact.h"
#include "frame/simd.h"

namespace tarn {

// The three ways to multiply a sum by 2^s.
struct SumUnshifted {
    template <typename X>
    TARN_INLINE X operator()(X sum) const
    {
        return sum;
    }
};
struct SumShiftedUp {
    int n;
    template <typename X>
    TARN_INLINE X operator()(X sum) const
    {
        return shiftLeft(sum, n);
    }
};
struct SumShiftedDown {
    int n;
    template <typename X>
    TARN_INLINE X operator()(X sum) const
    {
        return shiftRounded(FullWidth<X>{sum}, n);
    }
};
// By more than the width: no sum reaches one half any more.
struct SumShiftedOut {
    template <typename X>
    TARN_INLINE X operator()(X) const
    {
        return splat<X>(0);
    }
};

// Calls `run` with the step that multiplies by 2^(tapsFactor - scaleFactor).
template <typename Run>
TARN_INLINE void withShift(int tapsFactor, int scaleFactor, Run run)
{
    constexpr int width = 32;
    const Tarn64s s = Tarn64s{tapsFactor} - scaleFactor;
    if (s == 0) {
        run(SumUnshifted{});
    } else if (s > 0) {
        run(SumShiftedUp{static_cast<int>(std::min<Tarn64s>(s, width))});
    } else if (s > -width) {
        run(SumShiftedDown{static_cast<int>(-s)});
    } else {
        run(SumShiftedOut{});
    }
}

template <typename Shift>
TARN_INLINE Tarn16sc toSample(Tarn32sc sum, Shift shift)
{
    return {narrowSaturated<Tarn16s>(shift(sum.re)), narrowSaturated<Tarn16s>(shift(sum.im))};
}

} // namespace tarn
