// Sinusoids by the second-order recurrence y[n+s] = 2 cos(s w) y[n] - y[n-s].
#pragma once

#include "frame/simd.h"

namespace tarn {

// The recurrence with the lanes of P side by side: P is a pack, or a scalar of any precision.
template <typename P>
struct Recurrence {
    P current;
    P following;
    P factor; // 2 cos(s w)

    // Gives the current values and moves on to the next ones.
    TARN_INLINE P advance()
    {
        const P now = current;
        const P afterwards = sub(mul(factor, following), current);
        current = following;
        following = afterwards;
        return now;
    }
};

template <typename P>
struct LaneCountOf {
    static constexpr int value = 1;
};
template <typename T, int N>
struct LaneCountOf<Pack<T, N>> {
    static constexpr int value = N;
};
template <typename P>
inline constexpr int laneCount = LaneCountOf<P>::value;

// A pack, or a scalar, of consecutive values.
template <typename P>
TARN_INLINE P fromArray(const Element<P>* values)
{
    if constexpr (isPack<P>) {
        return loadPack<laneCount<P>>(values);
    } else {
        return *values;
    }
}

// The recurrence that goes on from given values, as many as the lanes of two steps.
template <typename P>
TARN_INLINE Recurrence<P> recurrenceFrom(const Element<P>* values, Element<P> factor)
{
    return {fromArray<P>(values), fromArray<P>(values + laneCount<P>), splat<P>(factor)};
}

} // namespace tarn
