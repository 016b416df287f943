// Floating-point values as integers of any width: limited first, so that the conversion has an integer for each.
#pragma once

#include "frame/simd.h"

namespace tarn {

// Limited to the bounds of D and rounded in the current mode; a NaN becomes one of the bounds.
template <typename D, typename X>
TARN_INLINE auto roundedTo(X value)
{
    using T = Element<X>;
    const auto limited = max(min(value, splat<X>(static_cast<T>(highest<D>))), splat<X>(static_cast<T>(lowest<D>)));
    const auto whole = [](auto x) {
        if constexpr (isSingle<T>) {
            return roundToInteger(x);
        } else {
            return roundToInteger(x);
        }
    }(limited);
    using W = std::remove_const_t<decltype(whole)>;
    if constexpr (sizeof(D) == 1) {
        return narrowSaturated<D>(narrowSaturated<Tarn16s>(whole));
    } else if constexpr (std::is_same_v<D, Tarn16u>) {
        // Signed words hold it once it is moved by half their range.
        const auto moved = retype<Tarn16u>(narrowSaturated<Tarn16s>(sub(whole, splat<W>(32768))));
        return bitXor(moved, splat<std::remove_const_t<decltype(moved)>>(0x8000));
    } else {
        static_assert(!isSingle<T> || sizeof(D) < sizeof(Tarn32s), "no float is the highest integer of 32 bits");
        return narrowSaturated<D>(whole);
    }
}

} // namespace tarn
