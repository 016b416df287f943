// Scale factors as floating-point numbers.
#pragma once

#include "tarncore.h"

#include <bit>
#include <cstdint>

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

} // namespace tarn
