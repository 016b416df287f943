// Scale factors on what reductions end with: one total, an integer of 64 bits or a double that holds one.
#pragma once

#include "frame/scale.h"
#include "frame/simd_round.h"

namespace tarn {

// |scaleFactor|, of the lowest integer too.
constexpr unsigned magnitudeOf(int scaleFactor)
{
    const auto bits = static_cast<unsigned>(scaleFactor);
    return scaleFactor < 0 ? 0 - bits : bits;
}

// Between which bounds a factor counts as it is. Beyond them it counts as the bound.
struct FactorBounds {
    int up;
    int down;
};

// t times 2^-scaleFactor, rounded to nearest, ties to even, saturated at the bounds of D.
template <typename D>
inline D scaleTotal(Tarn64s t, int scaleFactor, FactorBounds bounds)
{
    if (scaleFactor < 0) {
        const int n = -std::max(scaleFactor, -bounds.up);
        if (t > (Tarn64s{highest<D>} >> n)) {
            return highest<D>;
        }
        if (t < (Tarn64s{lowest<D>} >> n)) {
            return lowest<D>;
        }
        return static_cast<D>(ShiftLeft::of(t, n));
    }
    if (scaleFactor > 0) {
        t = shiftRounded(t, std::min(scaleFactor, bounds.down));
    }
    return clampTo<D>(t);
}

// x halved so many times, or doubled for a negative factor, one rounding each time should it get that small. Once a
// step changes nothing no further one will.
inline Tarn64f scaleByHalving(Tarn64f x, int scaleFactor)
{
    const Tarn64f step = scaleFactor > 0 ? 0.5 : 2.0;
    for (unsigned steps = 0; steps != magnitudeOf(scaleFactor); ++steps) {
        const Tarn64f scaled = x * step;
        if (scaled == x) {
            break;
        }
        x = scaled;
    }
    return x;
}

} // namespace tarn
