// The Haar transform of integers: sums and differences that are exact, and a step of the scale rule on each.
#pragma once

#include "frame/scale_exact.h"
#include "levels/coding/pswthaar.h"
#include "levels/coding/pswthaar_pairs.h"

namespace tarn {

template <typename X>
inline constexpr bool isNarrow = sizeof(Element<X>) <= 2;

// -- Exact results ----------------------------------------------------------------------------------------------------

// Integers in the type in which there is room for a sum: of twice the width, or one bit more.
template <typename X>
TARN_INLINE auto exactOf(X x)
{
    if constexpr (isNarrow<X>) {
        return widen(x);
    } else {
        return Wide33<X>{shiftRight(x, 1), x};
    }
}
template <typename X>
TARN_INLINE auto exactSumOf(X a, X b)
{
    if constexpr (isNarrow<X>) {
        return sumWidened(a, b);
    } else {
        return exactSum(a, b);
    }
}
// a minus b.
template <typename X>
TARN_INLINE auto exactDifferenceOf(X a, X b)
{
    if constexpr (isNarrow<X>) {
        return sub(widen(a), widen(b));
    } else {
        return exactDifference(a, b);
    }
}

// The sum of both of a pair, and the second minus the first.
template <typename X>
TARN_INLINE auto sumOfPair(Both<X, X> x)
{
    return exactSumOf(x.first, x.second);
}
template <typename X>
TARN_INLINE auto differenceOfPair(Both<X, X> x)
{
    return exactDifferenceOf(x.second, x.first);
}

template <int N>
TARN_INLINE auto sumOfPair(PairsInPlace<Tarn16s, N> x)
{
    return mulAddPairs(x.elements, splat<Pack<Tarn16s, 2 * N>>(1));
}
template <int N>
TARN_INLINE auto differenceOfPair(PairsInPlace<Tarn16s, N> x)
{
    constexpr Tarn32s minusOneAndOne = 0x0001FFFF;
    return mulAddPairs(x.elements, reinterpretPack<Tarn16s>(splat<Pack<Tarn32s, N>>(minusOneAndOne)));
}

// There is no such instruction for bytes; a pair of them is a word.
template <int N>
TARN_INLINE auto bytesOfPair(PairsInPlace<Tarn8s, N> x)
{
    const auto words = reinterpretPack<Tarn16s>(x.elements);
    return Both{shiftRight(shiftLeft(words, 8), 8), shiftRight(words, 8)};
}
template <int N>
TARN_INLINE auto sumOfPair(PairsInPlace<Tarn8s, N> x)
{
    const auto bytes = bytesOfPair(x);
    return add(bytes.first, bytes.second);
}
template <int N>
TARN_INLINE auto differenceOfPair(PairsInPlace<Tarn8s, N> x)
{
    const auto bytes = bytesOfPair(x);
    return sub(bytes.second, bytes.first);
}

// -- Operations -------------------------------------------------------------------------------------------------------

template <typename Step>
struct HaarForward {
    static constexpr int stepsAtOnce = 1;
    Step step;

    template <typename X>
    TARN_INLINE auto operator()(X pair) const
    {
        return Both{step(sumOfPair(pair)), step(differenceOfPair(pair))};
    }
};

template <typename Step>
struct HaarInverse {
    static constexpr int stepsAtOnce = 1;
    Step step;

    template <typename X>
    TARN_INLINE auto operator()(X low, X high) const
    {
        return Both{step(exactDifferenceOf(low, high)), step(exactSumOf(low, high))};
    }
};

struct SaturatedHaarInverse {
    template <typename X>
    TARN_INLINE auto operator()(X low, X high) const
    {
        return Both{subSaturated(low, high), addSaturated(low, high)};
    }
};

// Calls run with the step that divides by 2^s, rounds and saturates; s is at most the width of T.
template <typename T, typename Run>
TARN_INLINE void withStep(int s, Run run)
{
    if (s == 0) {
        run(LimitStep<T>{});
    } else if (s == 1) {
        run(HalveStep<T>{});
    } else if (s > 1) {
        run(ShiftDownStep<T>{s});
    } else if (s > -bitsOfType<T>) {
        run(ShiftUpStep<T>{-s});
    } else {
        run(SignStep<T>{});
    }
}

// -- Whole vectors ----------------------------------------------------------------------------------------------------

// Operation is one for pairs that halves their sums; of an odd length the last element is a low value as it is.
template <typename T, typename Operation>
TARN_INLINE void analyseHalves(const T* pSrc, int len, T* pDstLow, T* pDstHigh, Operation operation)
{
    const T last = loadElement(pSrc + len - 1);
    analyse(pSrc, len, pDstLow, pDstHigh, operation);
    if (len % 2 != 0) {
        store(pDstLow + len / 2, last);
    }
}

// One scale factor is one halving already. An odd last element counts as a pair of two equal ones.
template <typename T>
TARN_INLINE void analyseScaled(const T* pSrc, int len, T* pDstLow, T* pDstHigh, int scaleFactor)
{
    withStep<T>(scaleFactor + 1, [=](auto step) {
        analyse(pSrc, len, pDstLow, pDstHigh, HaarForward<decltype(step)>{step});
        if (len % 2 != 0) {
            const T last = loadElement(pSrc + len - 1);
            store(pDstLow + len / 2, step(exactSumOf(last, last)));
        }
    });
}

template <typename T, typename Step>
TARN_INLINE void synthesiseLast(const T* pSrcLow, T* pDst, int len, Step step)
{
    if (len % 2 != 0) {
        store(pDst + len - 1, step(exactOf(loadElement(pSrcLow + len / 2))));
    }
}

template <typename T>
TARN_INLINE void synthesiseScaled(const T* pSrcLow, const T* pSrcHigh, T* pDst, int len, int scaleFactor)
{
    withStep<T>(scaleFactor, [=](auto step) {
        synthesise(pSrcLow, pSrcHigh, pDst, len, HaarInverse<decltype(step)>{step});
        synthesiseLast(pSrcLow, pDst, len, step);
    });
}

} // namespace tarn
