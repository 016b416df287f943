// Loops whose counters the compiler knows.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

namespace unrolling {
template <int... i, typename Body>
TARN_INLINE void each(std::integer_sequence<int, i...> /*counters*/, [[maybe_unused]] Body body)
{
    (body(std::integral_constant<int, i>{}), ...);
}
} // namespace unrolling

// Calls body(0), .., body(count - 1), each with a type of its own for its number.
template <int count, typename Body>
TARN_INLINE void unroll(Body body)
{
    unrolling::each(std::make_integer_sequence<int, count>{}, body);
}

} // namespace tarn
