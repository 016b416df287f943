// Square roots by the processor's estimate of 1 / sqrt(x) and one Newton step, which is good to about 22 bits.
#pragma once

#include "frame/simd.h"

namespace tarn {

// x (y / 2) (3 - x y y) with the estimate y. Where x is no normal number, so that there is no estimate, it is the true
// root instead: NaN below zero.
template <typename X>
TARN_INLINE X newtonRoot(X x)
{
    const auto estimate = approxReciprocalRoot(x);
    const auto product = mul(x, estimate);
    const auto root = mul(mul(splat<X>(0.5F), product), sub(splat<X>(3), mul(product, estimate)));
    const auto isOrdinary = isPositiveNormal(x);
    if (allOf(isOrdinary)) {
        return root;
    }
    return tarn::select(isOrdinary, root, squareRoot(x));
}

} // namespace tarn
