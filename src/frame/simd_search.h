// Words that search a few sorted elements at once.
#pragma once

#include "frame/simd_float.h"

#include <bit>

namespace tarn {

// Elements that wordsNotAbove compares.
inline constexpr int wordsSearched = 2 * lanes<Tarn16u>;

// How many of so many sorted words, from an address on, are not above a value.
TARN_INLINE int wordsNotAbove(const Tarn16u* sorted, Tarn16u value)
{
    const auto above = greater(loadPack<wordsSearched>(sorted), splat<Pack<Tarn16u, wordsSearched>>(value));
    const int set = _mm_movemask_epi8(_mm_packs_epi16(above.lo.v, above.hi.v));
    return std::countr_zero(static_cast<unsigned>(set) | 1u << wordsSearched);
}

} // namespace tarn
