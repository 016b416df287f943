// Neighbouring elements of an array as source and as destination of the walker: one step for every two of them. And the
// transform of whole vectors with them.
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

// A channel may lie where the source does: of no element that is still to be read has a result been written.
template <typename T, typename Operation>
TARN_INLINE void analyse(const T* pSrc, int len, T* pDstLow, T* pDstHigh, Operation operation)
{
    walk(twoArrays(pDstLow, pDstHigh), len / 2, operation, Neighbours<T>{pSrc});
}

template <typename T, typename Operation>
TARN_INLINE void synthesise(const T* pSrcLow, const T* pSrcHigh, T* pDst, int len, Operation operation)
{
    walk(NeighboursTo<T>{pDst}, len / 2, operation, pSrcLow, pSrcHigh);
}

// Of an odd length the last low value is the last element as it is.
template <typename T, typename Operation>
TARN_INLINE void synthesiseUnscaled(const T* pSrcLow, const T* pSrcHigh, T* pDst, int len, Operation operation)
{
    synthesise(pSrcLow, pSrcHigh, pDst, len, operation);
    if (len % 2 != 0) {
        moveElement(pDst + len - 1, pSrcLow + len / 2);
    }
}

} // namespace tarn
