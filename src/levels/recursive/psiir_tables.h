// Layouts of the tables that IIR blocks are filtered with, and arithmetic of real and complex elements under one name.
#pragma once

#include "frame/simd.h"
#include "frame/simd_approx.h"

namespace tarn {

// Outputs of one step, whatever the type: the tables look so many samples ahead.
inline constexpr int ahead = 4;

// -- Elements ---------------------------------------------------------------------------------------------------------

template <typename T>
TARN_INLINE T product(T a, T b)
{
    if constexpr (isComplex<Element<T>>) {
        return mulComplex(a, b);
    } else {
        return mul(a, b);
    }
}

template <typename T>
constexpr T one()
{
    if constexpr (isComplex<T>) {
        return {1, 0};
    } else {
        return 1;
    }
}

template <typename T>
TARN_INLINE T negated(T x)
{
    if constexpr (isComplex<T>) {
        return {-x.re, -x.im};
    } else {
        return -x;
    }
}

// -- Groups of outputs ------------------------------------------------------------------------------------------------

// The parts of `ahead` elements.
template <typename T>
inline constexpr int groupParts = ahead* static_cast<int>(sizeof(T) / sizeof(Part<T>));
template <typename T>
using Group = Pack<Part<T>, groupParts<T>>;

template <typename T>
TARN_INLINE Group<T> loadGroup(const T* p)
{
    return loadPack<groupParts<T>>(reinterpret_cast<const Part<T>*>(p));
}
template <typename T>
TARN_INLINE Group<T> loadAlignedGroup(const T* p)
{
    return loadAligned<groupParts<T>>(reinterpret_cast<const Part<T>*>(p));
}
template <typename T>
TARN_INLINE void storeGroup(T* p, Group<T> x)
{
    store(reinterpret_cast<Part<T>*>(p), x);
}

// The last element of a group, zeros in front of it.
template <typename T>
TARN_INLINE Group<T> lastAlone(Group<T> x)
{
    using P = Part<T>;
    alignas(registerBytes) static constexpr struct Mask {
        P lanes[groupParts<T>] = {};
        constexpr Mask()
        {
            using Bits = std::conditional_t<sizeof(P) == sizeof(Tarn32u), std::uint32_t, std::uint64_t>;
            for (int i = groupParts<T> / ahead * (ahead - 1); i < groupParts<T>; ++i) {
                lanes[i] = std::bit_cast<P>(static_cast<Bits>(~Bits{0}));
            }
        }
    } mask;
    return keepFloatWhere(loadAligned<groupParts<T>>(mask.lanes), x);
}

// A sum of products of runs of elements, groups for instance, with single elements. Complex products are summed by the
// parts of the elements, and joined at the end: each takes two multiplications then, and no exchange of parts.
template <typename T, typename Run = Group<T>>
struct WeightedSum;

template <Float T, typename Run>
struct WeightedSum<T, Run> {
    Run sum;

    static TARN_INLINE WeightedSum of(Run x) { return {x}; }
    // The element in lane k of `from`.
    template <int k>
    static TARN_INLINE WeightedSum weighted(Run weights, Group<T> from)
    {
        return {mul(weights, splatLane<k>(from))};
    }
    static TARN_INLINE WeightedSum weighted(Run weights, const T* x)
    {
        return {mul(weights, splat<Run>(loadElement(x)))};
    }
    TARN_INLINE WeightedSum operator+(WeightedSum other) const { return {add(sum, other.sum)}; }
    TARN_INLINE Run total() const { return sum; }
};

template <typename T, typename Run>
    requires isComplex<T>
struct WeightedSum<T, Run> {
    Run byRe, byIm;

    static TARN_INLINE WeightedSum of(Run x) { return {x, splat<Run>(0)}; }
    template <int k>
    static TARN_INLINE WeightedSum weighted(Run weights, Group<T> from)
    {
        return {mul(weights, splatLane<2 * k>(from)), mul(weights, splatLane<2 * k + 1>(from))};
    }
    static TARN_INLINE WeightedSum weighted(Run weights, const T* x)
    {
        const auto* const parts = reinterpret_cast<const Part<T>*>(x);
        return {mul(weights, splat<Run>(loadElement(parts))), mul(weights, splat<Run>(loadElement(parts + 1)))};
    }
    TARN_INLINE WeightedSum operator+(WeightedSum other) const
    {
        return {add(byRe, other.byRe), add(byIm, other.byIm)};
    }
    TARN_INLINE Run total() const { return subAdd(byRe, swapParts(byIm)); }
};

// -- Numerators -------------------------------------------------------------------------------------------------------

// Each of them as often as 16 bytes hold it; of complex ones the real part, then the imaginary one.
inline constexpr int unitBytes = 16;

template <typename T>
struct Numerators {
    using P = Part<T>;
    static constexpr int copies = unitBytes / static_cast<int>(sizeof(P));
    static constexpr int width = isComplex<T> ? 2 * copies : copies; // parts
    static constexpr int elements = width * static_cast<int>(sizeof(P)) / static_cast<int>(sizeof(T));

    static void write(const T* taps, int count, T* table)
    {
        auto* parts = reinterpret_cast<P*>(table);
        for (int k = 0; k < count; ++k, parts += width) {
            const auto* const tap = reinterpret_cast<const P*>(taps + k);
            for (int i = 0; i < width; ++i) {
                store(parts + i, tap[i / copies]);
            }
        }
    }

    // The tap at a place of the table times a run of elements.
    template <typename Run>
    static TARN_INLINE WeightedSum<T, Run> times(const T* tap, Run x)
    {
        const auto* const unit = reinterpret_cast<const P*>(tap);
        if constexpr (isComplex<T>) {
            return {mul(x, repeated<Run::size>(unit)), mul(x, repeated<Run::size>(unit + copies))};
        } else {
            return {mul(x, repeated<Run::size>(unit))};
        }
    }

private:
    template <int N>
    static TARN_INLINE Pack<P, N> repeated(const P* unit)
    {
        if constexpr (N > copies) {
            const auto half = repeated<N / 2>(unit);
            return {half, half};
        } else {
            return loadAligned<N>(unit);
        }
    }
};

} // namespace tarn
