// Square roots by the processor's estimate of 1 / sqrt(x) and one Newton step, which is good to about 22 bits.
#pragma once

#include "frame/report.h"

namespace tarn {

// True where x is anything but a positive normal number: those are one interval of bits, which ends up below all others
// when it is moved to the lowest integers.
template <typename X>
TARN_INLINE auto isNotOrdinary(X x)
{
    constexpr Tarn32s toLowest = 0x7F800000;
    constexpr Tarn32s last = -0x01000001;
    using B = Like<X, Tarn32s>;
    return greater(add(bitsOf(x), splat<B>(toLowest)), splat<B>(last));
}

// x (y / 2) (3 - x y y) with the estimate y. Where x is no normal number, so that there is no estimate, it is the true
// root instead: NaN below zero. `onRare` is called with an x that has such a place.
template <typename X, typename OnRare>
TARN_INLINE X newtonRoot(X x, OnRare onRare)
{
    const auto estimate = approxReciprocalRoot(x);
    const auto product = mul(x, estimate);
    const auto root = mul(mul(splat<X>(0.5F), product), sub(splat<X>(3), mul(product, estimate)));
    Met rare;
    rare.note(isNotOrdinary(x));
    if (!rare.any()) [[likely]] {
        return root;
    }
    onRare(x);
    return tarn::select(isPositiveNormal(x), root, squareRoot(x));
}
template <typename X>
TARN_INLINE X newtonRoot(X x)
{
    return newtonRoot(x, [](X) {});
}

} // namespace tarn
