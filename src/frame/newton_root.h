// Square roots by the processor's estimate of 1 / sqrt(x) and one Newton step, which is good to about 22 bits.
#pragma once

#include "frame/walk_ordinary.h"

namespace tarn {

// x (y / 2) (3 - x y y) with the estimate y. Where x is no positive normal number there is no estimate, and what comes
// is negative, or a NaN with its sign set, or the positive NaN that x is.
template <typename X>
TARN_INLINE X ordinaryRoot(X x)
{
    const auto estimate = approxReciprocalRoot(x);
    const auto product = mul(x, estimate);
    return mul(mul(splat<X>(0.5F), product), sub(splat<X>(3), mul(product, estimate)));
}

// The same, and the true root where x is no positive normal number: NaN below zero.
template <typename X>
TARN_INLINE X newtonRoot(X x)
{
    return tarn::select(isPositiveNormal(x), ordinaryRoot(x), squareRoot(x));
}

} // namespace tarn
