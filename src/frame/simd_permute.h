// Words that put the lanes of one register in another order.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

// Lanes a, b, c and d of four.
template <int a, int b, int c, int d, typename T>
TARN_INLINE Pack<T, 4> fourLanes(Pack<T, 4> x)
{
    static_assert(sizeof(T) == 4, "four lanes fill a register");
    return {
        reinterpret_cast<Native<T>>(_mm_shuffle_epi32(reinterpret_cast<__m128i>(x.v), a | b << 2 | c << 4 | d << 6))};
}

} // namespace tarn
