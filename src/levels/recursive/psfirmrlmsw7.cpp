// Adaptive filters in fixed point, whose output and whose step of the taps are calls of their own. All sums are modulo
// 2^32.
#include "frame/checks.h"
#include "frame/reduce.h"
#include "frame/simd_complex.h"
#include "frame/simd_mul.h"
#include "levels/recursive/psfirmrlms.h"

using namespace tarn;

namespace {

// -- Samples of a window ----------------------------------------------------------------------------------------------

// Registers of 32-bit sums, one for each tap.
constexpr int sumsAtOnce = lanes<Tarn32s>;
using Sums = Vector<Tarn32s>;

// Samples with the one behind each: as pairs, the product with (w, 0) is that with the first one. So samples two apart
// need not be taken apart.
using Pairs = Pack<Tarn16s, 2 * sumsAtOnce>;
using Complex = Pack<Tarn16sc, sumsAtOnce>;

// Elements of 32 bits, or pairs of 16-bit ones, from places a step apart.
template <int N>
TARN_INLINE Pack<Tarn32s, N> gather(const void* p, std::ptrdiff_t stepBytes)
{
    const auto* const bytes = static_cast<const Tarn8u*>(p);
    if constexpr (N > registerLanes<Tarn32s>) {
        return {gather<N / 2>(bytes, stepBytes), gather<N / 2>(bytes + N / 2 * stepBytes, stepBytes)};
    } else {
        const auto at = [=](int k) { return loadElement(reinterpret_cast<const Tarn32s*>(bytes + k * stepBytes)); };
        return lanesOf(at(0), at(1), at(2), at(3));
    }
}

struct EverySecond {
    TARN_INLINE Pairs operator()(const Tarn16s* window, int i) const
    {
        return loadPack<Pairs::size>(window + 2 * std::ptrdiff_t{i});
    }
};
struct EveryStep {
    std::ptrdiff_t step;
    TARN_INLINE Pairs operator()(const Tarn16s* window, int i) const
    {
        return reinterpretPack<Tarn16s>(
            gather<sumsAtOnce>(window + i * step, step * static_cast<std::ptrdiff_t>(sizeof(Tarn16s))));
    }
    TARN_INLINE Complex operator()(const Tarn16sc* window, int i) const
    {
        return reinterpretPack<Tarn16sc>(
            gather<sumsAtOnce>(window + i * step, step * static_cast<std::ptrdiff_t>(sizeof(Tarn16sc))));
    }
};
struct EverySample {
    TARN_INLINE Complex operator()(const Tarn16sc* window, int i) const { return loadPack<Complex::size>(window + i); }
};

// -- One at a time ----------------------------------------------------------------------------------------------------

TARN_INLINE Tarn16s upperHalf(Tarn32s tap) { return static_cast<Tarn16s>(tap >> 16); }

TARN_INLINE Tarn32s productWithTap(Tarn32s tap, Tarn16s x) { return mulWidened(upperHalf(tap), x); }
TARN_INLINE Tarn32sc productWithTap(Tarn32sc tap, Tarn16sc x)
{
    const Tarn16sc w{upperHalf(tap.re), upperHalf(tap.im)};
    return {differenceOfParts(w, x), mulAddPairs(w, swapParts(x))};
}

TARN_INLINE Tarn32s stepOfTap(Tarn16s x, Tarn32s g, int shift) { return shiftRight(wrappedProduct(x, g), shift); }
TARN_INLINE Tarn32sc stepOfTap(Tarn16sc x, Tarn32sc g, int shift)
{
    const Tarn32s re = add(wrappedProduct(x.re, g.re), wrappedProduct(x.im, g.im));
    const Tarn32s im = sub(wrappedProduct(x.re, g.im), wrappedProduct(x.im, g.re));
    return {shiftRight(re, shift), shiftRight(im, shift)};
}

// The sums from tap i on.
template <typename T, typename S>
TARN_INLINE T sumOfRest(T sum, const T* taps, const S* window, int i, int tapsLen, int step)
{
    for (; i < tapsLen; ++i) {
        sum = add(sum, productWithTap(loadElement(taps + i), loadElement(window + std::ptrdiff_t{i} * step)));
    }
    return sum;
}

template <typename T, typename S>
TARN_INLINE void adaptRest(T* taps, const S* window, int i, int tapsLen, int step, T g, int shift)
{
    for (; i < tapsLen; ++i) {
        const T gain = stepOfTap(loadElement(window + std::ptrdiff_t{i} * step), g, shift);
        store(taps + i, add(loadElement(taps + i), gain));
    }
}

// -- Real filters -----------------------------------------------------------------------------------------------------

// Neighbouring samples.
void filterNeighbours(const Tarn32s* taps, const Tarn16s* window, int tapsLen, Tarn32s* dst)
{
    constexpr int step = lanes<Tarn16s>;
    Sums sums = splat<Sums>(0);
    int i = 0;
    for (; i <= tapsLen - step; i += step) {
        const auto upper = narrowSaturated<Tarn16s>(shiftRight(loadPack<step>(taps + i), 16));
        sums = add(sums, mulAddPairs(upper, loadPack<step>(window + i)));
    }
    store(dst, sumOfRest(foldLanes(sums, add), taps, window, i, tapsLen, 1));
}

template <typename Samples>
TARN_INLINE void filterPairs(const Tarn32s* taps, const Tarn16s* window, int tapsLen, int step, Samples samples,
                             Tarn32s* dst)
{
    Sums sums = splat<Sums>(0);
    int i = 0;
    for (; i <= tapsLen - sumsAtOnce; i += sumsAtOnce) {
        const auto upper = shiftRightLogical(loadPack<sumsAtOnce>(taps + i), 16);
        sums = add(sums, mulAddPairs(reinterpretPack<Tarn16s>(upper), samples(window, i)));
    }
    store(dst, sumOfRest(foldLanes(sums, add), taps, window, i, tapsLen, step));
}

void adaptNeighbours(Tarn32s* taps, const Tarn16s* window, int tapsLen, int g, int shift)
{
    constexpr int step = lanes<Tarn16s>;
    const auto factor = splat<Vector<Tarn16s>>(static_cast<Tarn16s>(g));
    int i = 0;
    for (; i <= tapsLen - step; i += step) {
        const auto gain = shiftRight(mulWidened(loadPack<step>(window + i), factor), shift);
        store(taps + i, add(loadPack<step>(taps + i), gain));
    }
    adaptRest(taps, window, i, tapsLen, 1, g, shift);
}

template <typename Samples>
TARN_INLINE void adaptPairs(Tarn32s* taps, const Tarn16s* window, int tapsLen, int step, Samples samples, int g,
                            int shift)
{
    constexpr int lowerHalf = 0xFFFF;
    const auto factor = reinterpretPack<Tarn16s>(splat<Sums>(g & lowerHalf));
    int i = 0;
    for (; i <= tapsLen - sumsAtOnce; i += sumsAtOnce) {
        const auto gain = shiftRight(mulAddPairs(samples(window, i), factor), shift);
        store(taps + i, add(loadPack<sumsAtOnce>(taps + i), gain));
    }
    adaptRest(taps, window, i, tapsLen, step, g, shift);
}

// -- Complex filters --------------------------------------------------------------------------------------------------

TARN_INLINE Complex upperHalves(const Tarn32sc* taps)
{
    const auto parts = loadPack<2 * sumsAtOnce>(reinterpret_cast<const Tarn32s*>(taps));
    return reinterpretPack<Tarn16sc>(narrowSaturated<Tarn16s>(shiftRight(parts, 16)));
}

template <typename Samples>
TARN_INLINE void filterComplex(const Tarn32sc* taps, const Tarn16sc* window, int tapsLen, int step, Samples samples,
                               Tarn32sc* dst)
{
    Sums re = splat<Sums>(0);
    Sums im = re;
    int i = 0;
    for (; i <= tapsLen - sumsAtOnce; i += sumsAtOnce) {
        const Complex w = upperHalves(taps + i);
        const Complex x = samples(window, i);
        re = add(re, differenceOfParts(w, x));
        im = add(im, mulAddPairs(w, swapParts(x)));
    }
    const Tarn32sc sum{foldLanes(re, add), foldLanes(im, add)};
    store(dst, sumOfRest(sum, taps, window, i, tapsLen, step));
}

// By the parts of a g that fit 16 bits.
template <typename Samples>
TARN_INLINE void adaptComplex(Tarn32sc* taps, const Tarn16sc* window, int tapsLen, int step, Samples samples,
                              Tarn32sc g, int shift)
{
    const auto factor = splat<Complex>({static_cast<Tarn16s>(g.re), static_cast<Tarn16s>(g.im)});
    const Complex swapped = swapParts(factor);
    int i = 0;
    for (; i <= tapsLen - sumsAtOnce; i += sumsAtOnce) {
        const Complex x = samples(window, i);
        const auto re = shiftRight(mulAddPairs(x, factor), shift);
        const auto im = shiftRight(differenceOfParts(x, swapped), shift);
        const auto gain = reinterpretPack<Tarn32s>(complexFrom<Tarn32sc>(re, im));
        auto* const parts = reinterpret_cast<Tarn32s*>(taps + i);
        store(parts, add(loadPack<2 * sumsAtOnce>(parts), gain));
    }
    adaptRest(taps, window, i, tapsLen, step, g, shift);
}

// The lowest 16-bit integer is left to the plain loop, since no product of two of them fits 32 bits twice.
constexpr bool fitsProducts(Tarn32s g) { return g > lowest<Tarn16s> && g <= highest<Tarn16s>; }

} // namespace

void ownLMSMROne32s_16s(const Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, Tarn32s* pDstVal)
{
    if (tapStep == 1) {
        filterNeighbours(pTaps, pWindow, tapsLen, pDstVal);
    } else if (tapStep == 2) {
        filterPairs(pTaps, pWindow, tapsLen, tapStep, EverySecond{}, pDstVal);
    } else {
        filterPairs(pTaps, pWindow, tapsLen, tapStep, EveryStep{tapStep}, pDstVal);
    }
}

void ownLMSMROne32sc_16sc(const Tarn32sc* pTaps, const Tarn16sc* pWindow, int tapsLen, int tapStep, Tarn32sc* pDstVal)
{
    if (tapStep == 1) {
        filterComplex(pTaps, pWindow, tapsLen, tapStep, EverySample{}, pDstVal);
    } else {
        filterComplex(pTaps, pWindow, tapsLen, tapStep, EveryStep{tapStep}, pDstVal);
    }
}

void ownLMSMRUpdate32s_16s(Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, int g, int shift)
{
    if (tapStep == 1) {
        adaptNeighbours(pTaps, pWindow, tapsLen, g, shift);
    } else if (tapStep == 2) {
        adaptPairs(pTaps, pWindow, tapsLen, tapStep, EverySecond{}, g, shift);
    } else {
        adaptPairs(pTaps, pWindow, tapsLen, tapStep, EveryStep{tapStep}, g, shift);
    }
}

void tarn::adaptToWindow(Tarn32s* pTaps, const Tarn16s* pWindow, int tapsLen, int tapStep, Tarn32s g, int shift)
{
    if (fitsProducts(g)) {
        ownLMSMRUpdate32s_16s(pTaps, pWindow, tapsLen, tapStep, g, shift);
    } else {
        adaptRest(pTaps, pWindow, 0, tapsLen, tapStep, g, shift);
    }
}

void tarn::adaptToWindow(Tarn32sc* pTaps, const Tarn16sc* pWindow, int tapsLen, int tapStep, Tarn32sc g, int shift)
{
    if (!fitsProducts(g.re) || !fitsProducts(g.im)) {
        adaptRest(pTaps, pWindow, 0, tapsLen, tapStep, g, shift);
    } else if (tapStep == 1) {
        adaptComplex(pTaps, pWindow, tapsLen, tapStep, EverySample{}, g, shift);
    } else {
        adaptComplex(pTaps, pWindow, tapsLen, tapStep, EveryStep{tapStep}, g, shift);
    }
}
