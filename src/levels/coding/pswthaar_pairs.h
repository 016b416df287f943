// Neighbouring elements of an array as source and as destination of the walker: one step for every two of them.
#pragma once

#include "frame/two_arrays.h"

namespace tarn {

// Pairs of narrow elements as they lie in memory: their sums and differences fall to instructions that join neighbours,
// and they are not taken apart.
template <typename T, int N>
struct PairsInPlace {
    Pack<T, 2 * N> elements;
};

// Elements 2 i and 2 i + 1 as operand i: as Both, or PairsInPlace where they are narrow.
template <typename T>
struct Neighbours {
    using Element = T;
    const T* p;

    TARN_INLINE Neighbours operator+(Index pairs) const { return {p + 2 * pairs}; }
};

template <typename T>
TARN_INLINE Both<T, T> loadElement(Neighbours<T> source)
{
    return {tarn::loadElement(source.p), tarn::loadElement(source.p + 1)};
}
template <int N, typename T>
TARN_INLINE auto loadPack(Neighbours<T> source)
{
    const auto elements = tarn::loadPack<2 * N>(source.p);
    if constexpr (sizeof(T) <= 2) {
        return PairsInPlace<T, N>{elements};
    } else {
        return Both{evenElements(elements), oddElements(elements)};
    }
}

// Results of which Both go to elements 2 i and 2 i + 1.
template <typename T>
struct NeighboursTo {
    using Element = Both<T, T>;
    T* p;

    TARN_INLINE NeighboursTo operator+(Index pairs) const { return {p + 2 * pairs}; }
};

template <typename T>
TARN_INLINE int elementsToBoundary(NeighboursTo<T> dst)
{
    const int elements = elementsToBoundary(dst.p);
    return elements % 2 == 0 ? elements / 2 : 0;
}

template <typename T>
TARN_INLINE bool isOnBoundary(NeighboursTo<T> dst)
{
    return isOnBoundary(dst.p);
}

template <typename T, typename X>
TARN_INLINE void store(NeighboursTo<T> dst, Both<X, X> x)
{
    if constexpr (isPack<X>) {
        store(dst.p, zip(x.first, x.second));
    } else {
        store(dst.p, x.first);
        store(dst.p + 1, x.second);
    }
}

template <typename T, typename X>
TARN_INLINE void storeStream(NeighboursTo<T> dst, Both<X, X> x)
{
    storeStream(dst.p, zip(x.first, x.second));
}

} // namespace tarn
