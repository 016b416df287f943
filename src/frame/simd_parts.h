// Complex elements as pairs of doubles, real part first, for arithmetic that needs more than the elements' own
// precision. One element is a register of its own, so that elements and packs go through the same instructions.
#pragma once

#include "frame/simd_complex.h"
#include "frame/simd_interleave.h"
#include "frame/simd_round.h"

namespace tarn {

// The parts of an element, or of all elements of a pack. Exact.
template <typename X>
TARN_INLINE auto asDoubles(X z)
{
    using T = Element<X>;
    if constexpr (!isPack<X>) {
        if constexpr (std::is_same_v<T, Tarn64fc>) {
            return loadPack<registerLanes<Tarn64f>>(&z.re);
        } else {
            return Register<Tarn64f>{_mm_set_pd(z.im, z.re)};
        }
    } else if constexpr (std::is_same_v<T, Tarn64fc>) {
        return reinterpretPack<Tarn64f>(z);
    } else if constexpr (std::is_same_v<T, Tarn16sc>) {
        return convert<Tarn64f>(widen(reinterpretPack<Tarn16s>(z)));
    } else {
        static_assert(std::is_same_v<T, Tarn32fc>);
        return widen(reinterpretPack<Tarn32f>(z));
    }
}

// The element, or pack of them, that has these parts: rounded in the current rounding mode, and saturated if it is of
// integers.
template <typename X, int N>
TARN_INLINE X fromDoubles(Pack<Tarn64f, N> parts)
{
    using T = Element<X>;
    if constexpr (!isPack<X>) {
        Tarn64fc z;
        store(&z.re, parts);
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            return {clampTo<Tarn16s>(roundToInteger(z.re)), clampTo<Tarn16s>(roundToInteger(z.im))};
        } else {
            return {static_cast<Part<T>>(z.re), static_cast<Part<T>>(z.im)};
        }
    } else if constexpr (std::is_same_v<T, Tarn64fc>) {
        return reinterpretPack<T>(parts);
    } else if constexpr (std::is_same_v<T, Tarn16sc>) {
        return reinterpretPack<T>(narrowSaturated<Tarn16s>(roundToInteger(parts)));
    } else {
        static_assert(std::is_same_v<T, Tarn32fc>);
        return reinterpretPack<T>(narrowFloat(parts));
    }
}

// What squaredMagnitudes gives, or comes of it, in the places of both parts again.
template <typename D, int N>
TARN_INLINE D inBothParts(Pack<Tarn64f, N> perElement)
{
    if constexpr (D::size == N) {
        return perElement;
    } else {
        return twice(perElement);
    }
}

// The larger of |re| and |im| in the places of both.
struct LargerParts {
    template <RegisterOf<Tarn64f> R>
    static TARN_INLINE R of(R parts)
    {
        const auto sizes = Absolute::of(parts);
        return {native::max(sizes.v, native::exchanged(sizes.v))};
    }
};
inline constexpr Word<LargerParts> largerParts;

// The conjugates.
struct ConjugateParts {
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> parts)
    {
        return {_mm_xor_pd(parts.v, _mm_set_pd(-0.0, 0.0))};
    }
};
inline constexpr Word<ConjugateParts> conjugateParts;

// `re` in the place of every real part, 0 in that of every imaginary one.
template <typename D>
TARN_INLINE D realParts(Tarn64f re)
{
    if constexpr (D::size > registerLanes<Tarn64f>) {
        const auto half = realParts<HalfOf<D>>(re);
        return {half, half};
    } else {
        return {_mm_set_sd(re)};
    }
}

// A mask that compares what squaredMagnitudes gives, as a mask over the elements themselves: a bool, or a pack whose
// lanes cover an element each.
template <typename X, int N>
TARN_INLINE auto elementMask(Pack<Tarn64f, N> mask)
{
    if constexpr (!isPack<X>) {
        return anyOf(mask);
    } else if constexpr (sizeof(Element<X>) == 2 * sizeof(Tarn64f)) {
        return inBothParts<Pack<Tarn64f, 2 * X::size>>(mask);
    } else {
        return mask;
    }
}

} // namespace tarn
