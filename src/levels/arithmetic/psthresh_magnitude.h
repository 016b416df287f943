// The comparison of a complex element's magnitude with a level, which the threshold kernels share.
//
// Squares are compared, so that no root is taken of an element that passes. Integer squares are exact. Those of `32fc`
// are formed in double precision, where they neither overflow nor vanish: the products are exact, their sum is rounded
// once. `64fc` elements whose squares would leave the range are moved into it by a power of two first, and the level
// with them.
#pragma once

#include "frame/simd_parts.h"

namespace tarn {

// An element, or pack of them, measured: its parts times a power of two, that factor, and their squares summed. Factors
// and squares are one for each element, or one for each part where a register has room for one element only.
template <typename D, typename S>
struct Measured {
    D parts;
    S factor, squares;
};

template <typename T, typename D>
TARN_INLINE D rangeFactor(D parts)
{
    if constexpr (std::is_same_v<T, Tarn64fc>) {
        const auto size = largerParts(parts);
        const auto up = select(less(size, splat<D>(0x1p-400)), splat<D>(0x1p600), splat<D>(1));
        return select(greater(size, splat<D>(0x1p500)), splat<D>(0x1p-600), up);
    } else {
        return splat<D>(1);
    }
}

template <typename X>
TARN_INLINE auto measure(X z)
{
    using T = Element<X>;
    const auto parts = asDoubles(z);
    const auto factor = rangeFactor<T>(parts);
    const auto moved = mul(parts, factor);
    const auto squares = squaredMagnitudes(moved);
    using D = std::remove_const_t<decltype(moved)>;
    using S = std::remove_const_t<decltype(squares)>;
    if constexpr (std::is_same_v<D, S>) {
        return Measured<D, S>{moved, factor, squares};
    } else if constexpr (std::is_same_v<T, Tarn64fc>) {
        return Measured<D, S>{moved, evenElements(factor), squares};
    } else {
        return Measured<D, S>{moved, splat<S>(1), squares};
    }
}

// True for an element whose magnitude compares with the level as asked.
template <typename Comparison, typename D, typename S>
TARN_INLINE S compareMagnitudes(Comparison comparison, Measured<D, S> z, Tarn64f level)
{
    const auto movedLevel = mul(splat<S>(level), z.factor);
    return comparison(z.squares, mul(movedLevel, movedLevel));
}

// The same as a mask over the elements.
template <typename T, typename Comparison, typename X>
TARN_INLINE auto isBeyond(Comparison comparison, X z, Part<T> level)
{
    if constexpr (std::is_same_v<T, Tarn16sc>) {
        // As unsigned numbers: the largest square is 2^31.
        const auto squares = retype<Tarn32u>(mulAddPairs(z, z));
        return comparison(squares, splat<Like<X, Tarn32u>>(static_cast<Tarn32u>(level * level)));
    } else {
        return elementMask<X>(compareMagnitudes(comparison, measure(z), level));
    }
}

} // namespace tarn
