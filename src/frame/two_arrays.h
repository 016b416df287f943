// Two arrays as one destination of the walker, for operations with two results.
//
//     walk(twoArrays(pDstRe, pDstIm), len, FromPolar{}, pSrcMagn, pSrcPhase);
//
// The operation answers with Both. All operands of a step are read before either result is written, so that each
// destination may be any of the sources.
#pragma once

#include "frame/walk.h"

namespace tarn {

template <typename A, typename B>
struct Both {
    A first;
    B second;
};
template <typename A, typename B>
Both(A, B) -> Both<A, B>;

template <typename A, typename B>
struct TwoArrays {
    using Element = Both<A, B>;
    A* first;
    B* second;

    TARN_INLINE TwoArrays operator+(Index elements) const { return {first + elements, second + elements}; }
};

template <typename A, typename B>
TARN_INLINE TwoArrays<A, B> twoArrays(A* first, B* second)
{
    return {first, second};
}

template <typename A, typename B>
inline constexpr int lanes<Both<A, B>> = std::max(lanes<A>, lanes<B>);

// The first array is brought to a boundary; the other one follows as it lies.
template <typename A, typename B>
TARN_INLINE int elementsToBoundary(TwoArrays<A, B> dst)
{
    return elementsToBoundary(dst.first);
}

template <typename A, typename B>
TARN_INLINE bool isOnBoundary(TwoArrays<A, B> dst)
{
    return isOnBoundary(dst.first) && isOnBoundary(dst.second);
}

template <typename A, typename B, typename X, typename Y>
TARN_INLINE void store(TwoArrays<A, B> dst, Both<X, Y> x)
{
    store(dst.first, x.first);
    store(dst.second, x.second);
}

template <typename A, typename B, typename X, typename Y>
TARN_INLINE void storeStream(TwoArrays<A, B> dst, Both<X, Y> x)
{
    storeStream(dst.first, x.first);
    storeStream(dst.second, x.second);
}

} // namespace tarn
