// Buffers that all the contestants of a benchmark share, filled with data on which arithmetic behaves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace tarn::bench {

enum class Fill {
    signal, ///< floats of magnitude 0.5 to 1.5 and either sign; integers up to a quarter of the range, never zero
    ones    ///< plus and minus one in turn; one for unsigned types
};

/// 64-byte aligned memory for slot 0 to 7 of at least `bytes`, kept and reused. The slots are staggered, so that arrays
/// do not fall on the same cache sets.
void* buffer(unsigned slot, std::size_t bytes);

namespace detail {

std::uint32_t nextRandom(std::uint32_t& state);

template <class T>
T sample(std::uint32_t& state, Fill fill)
{
    const std::uint32_t bits = nextRandom(state);
    const bool negative = (bits & 1) != 0;
    if constexpr (std::is_floating_point_v<T>) {
        const T magnitude = fill == Fill::ones ? T(1) : T(0.5) + static_cast<T>(bits >> 8) * T(0x1p-24);
        return negative ? -magnitude : magnitude;
    } else if constexpr (std::is_integral_v<T>) {
        constexpr unsigned unused = sizeof(T) >= sizeof bits ? 3 : 32 - 8 * sizeof(T) + 3;
        const auto magnitude = fill == Fill::ones ? std::uint32_t{1} : (bits >> unused) + 1;
        return negative && std::is_signed_v<T> ? static_cast<T>(-static_cast<std::int64_t>(magnitude))
                                               : static_cast<T>(magnitude);
    } else {
        using Real = decltype(T::re);
        const auto re = sample<Real>(state, fill);
        return T{re, sample<Real>(state, fill)};
    }
}

} // namespace detail

/// `n` elements of T in the slot.
template <class T>
T* filledBuffer(unsigned slot, int n, Fill fill)
{
    const auto count = static_cast<std::size_t>(n);
    auto* const elements = static_cast<T*>(buffer(slot, count * sizeof(T)));
    // One block of fresh values, repeated: long enough for no branch predictor to learn.
    constexpr std::size_t blockLength = 8192;
    std::uint32_t state = slot + 1;
    for (std::size_t i = 0; i < count && i < blockLength; ++i)
        elements[i] = detail::sample<T>(state, fill);
    for (std::size_t done = blockLength; done < count; done += blockLength) {
        const std::size_t rest = count - done < blockLength ? count - done : blockLength;
        std::memcpy(elements + done, elements, rest * sizeof(T));
    }
    return elements;
}

} // namespace tarn::bench
