// Scale factors as floating-point numbers.
#pragma once

#include "tarncore.h"

#include <bit>
#include <cstdint>
#include <limits>

namespace tarn {

// 2^-s, built from its exponent field alone, so that it is exact and costs no call; s is at most the exponent's bias
// less one, and not below the bias negated.
template <typename T>
constexpr T twoToMinus(int s)
{
    if constexpr (sizeof(T) == sizeof(Tarn32f)) {
        return std::bit_cast<Tarn32f>(static_cast<std::uint32_t>(127 - s) << 23);
    } else {
        return std::bit_cast<Tarn64f>(static_cast<std::uint64_t>(1023 - s) << 52);
    }
}

// The same for any s: 0 beyond the lowest denormal, infinite beyond the highest number.
constexpr Tarn64f twoToMinusAny(int s)
{
    if (s <= 1022) {
        return s >= -1023 ? twoToMinus<Tarn64f>(s) : std::numeric_limits<Tarn64f>::infinity();
    }
    return s <= 1074 ? std::bit_cast<Tarn64f>(std::uint64_t{1} << (1074 - s)) : 0;
}

} // namespace tarn
