// What the block kernels of both directions have in common: they go through filters by pairs of taps.
#pragma once

#include "frame/simd.h"
#include "levels/coding/pswt.h"

#include <array>
#include <type_traits>

namespace tarn::wavelet {

using V = Vector<Tarn32f>;
inline constexpr int width = V::size;

// Filters of up to so many pairs have loops of their own. Others are gone through in passes of four pairs.
inline constexpr int mostPairs = 5;
inline constexpr int pairsOfPass = 4;

// Calls pass(count, isFirst) for passes of four pairs and for one with the pairs that are left; both are constants.
template <typename Pass>
TARN_INLINE void inPasses(int pairs, Pass pass)
{
    constexpr std::integral_constant<int, pairsOfPass> whole;
    pass(whole, std::true_type{});
    for (pairs -= pairsOfPass; pairs >= pairsOfPass; pairs -= pairsOfPass) {
        pass(whole, std::false_type{});
    }
    if (pairs == 3) {
        pass(std::integral_constant<int, 3>{}, std::false_type{});
    } else if (pairs == 2) {
        pass(std::integral_constant<int, 2>{}, std::false_type{});
    } else if (pairs == 1) {
        pass(std::integral_constant<int, 1>{}, std::false_type{});
    }
}

// Writes `count` outputs, or pairs of them.
using BlockLoop = void (*)(const Tarn32f*, Tarn32f*, std::ptrdiff_t, const WaveletKernel&);

} // namespace tarn::wavelet
