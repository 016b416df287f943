// Kernels of the Haar transform of 8-bit and 16-bit integers.
#include "levels/coding/pswthaar.h"
#include "levels/coding/pswthaar_scaled.h"

namespace {

using namespace tarn;

template <typename X>
TARN_INLINE X lowestBit(X x)
{
    return bitAnd(x, splat<X>(1));
}

// Half of sum and difference, ties to even. Both have the same parity, and where it is odd the rounded half is the
// floor, plus one if that is odd too.
template <typename T>
struct Halves {
    static constexpr int stepsAtOnce = 2;

    TARN_INLINE Both<T, T> operator()(Both<T, T> pair) const
    {
        constexpr HalveStep<T> step{};
        return {step(sumOfPair(pair)), step(differenceOfPair(pair))};
    }

    template <int N>
    TARN_INLINE auto operator()(PairsInPlace<T, N> pairs) const
    {
        const auto sum = sumOfPair(pairs);
        const auto difference = differenceOfPair(pairs);
        const auto odd = narrowSaturated<T>(lowestBit(sum));
        const auto low = narrowSaturated<T>(shiftRight(sum, 1));
        const auto high = narrowSaturated<T>(shiftRight(difference, 1));
        return Both{add(low, bitAnd(low, odd)), addSaturated(high, bitAnd(high, odd))};
    }
};

// A scale factor of 1: the second value is the first one plus h, not (l + h) / 2 rounded by itself. They differ in the
// ties where h is odd. The sum is formed before the first one is saturated, and needs no limit.
struct HalvedFromTheFirst {
    static constexpr int stepsAtOnce = 1;

    template <typename X>
    TARN_INLINE auto operator()(X low, X high) const
    {
        using T = Element<X>;
        const auto first = halveRounded(exactDifferenceOf(low, high));
        const auto second = add(first, widen(high));
        return Both{narrowSaturated<T>(first), narrowSaturated<T>(second)};
    }
};

} // namespace

void ownsWTHaarFwd_8s(const Tarn8s* pSrc, int len, Tarn8s* pDstLow, Tarn8s* pDstHigh)
{
    analyseHalves(pSrc, len, pDstLow, pDstHigh, Halves<Tarn8s>{});
}

void ownsWTHaarFwd_16s(const Tarn16s* pSrc, int len, Tarn16s* pDstLow, Tarn16s* pDstHigh)
{
    analyseHalves(pSrc, len, pDstLow, pDstHigh, Halves<Tarn16s>{});
}

void ownsWTHaarFwd_8s_Sfs(const Tarn8s* pSrc, int len, Tarn8s* pDstLow, Tarn8s* pDstHigh, int scaleFactor)
{
    analyseScaled(pSrc, len, pDstLow, pDstHigh, scaleFactor);
}

void ownsWTHaarFwd_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pDstLow, Tarn16s* pDstHigh, int scaleFactor)
{
    analyseScaled(pSrc, len, pDstLow, pDstHigh, scaleFactor);
}

void ownsWTHaarInv_8s(const Tarn8s* pSrcLow, const Tarn8s* pSrcHigh, Tarn8s* pDst, int len)
{
    synthesiseUnscaled(pSrcLow, pSrcHigh, pDst, len, SaturatedHaarInverse{});
}

void ownsWTHaarInv_16s(const Tarn16s* pSrcLow, const Tarn16s* pSrcHigh, Tarn16s* pDst, int len)
{
    synthesiseUnscaled(pSrcLow, pSrcHigh, pDst, len, SaturatedHaarInverse{});
}

void ownsWTHaarInv_8s_Sfs(const Tarn8s* pSrcLow, const Tarn8s* pSrcHigh, Tarn8s* pDst, int len, int scaleFactor)
{
    synthesiseScaled(pSrcLow, pSrcHigh, pDst, len, scaleFactor);
}

void ownsWTHaarInv_16s_Sfs(const Tarn16s* pSrcLow, const Tarn16s* pSrcHigh, Tarn16s* pDst, int len, int scaleFactor)
{
    if (scaleFactor == 1) {
        synthesise(pSrcLow, pSrcHigh, pDst, len, HalvedFromTheFirst{});
        synthesiseLast(pSrcLow, pDst, len, HalveStep<Tarn16s>{});
    } else {
        synthesiseScaled(pSrcLow, pSrcHigh, pDst, len, scaleFactor);
    }
}
