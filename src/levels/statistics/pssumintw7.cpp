// Kernels of exact integer sums.
#include "levels/statistics/pssum.h"

#include "frame/reduce.h"
#include "frame/simd_mul.h"

using namespace tarn;

namespace {

// 32-bit lanes of 16-bit elements are emptied after so many, long before they could overflow.
constexpr int blockOf16Bits = 65536;

struct AddPairs {
    TARN_INLINE Reduced<Tarn32s> operator()(Reduced<Tarn32s> sum, Reduced<Tarn16s> x) const
    {
        return add(sum, pairSums(x));
    }
};

// Real and imaginary parts, two elements of a vector in each lane.
struct PartSums {
    Reduced<Tarn32s> re;
    Reduced<Tarn32s> im;
};
struct AddPairsOfParts {
    TARN_INLINE PartSums operator()(PartSums sum, Reduced<Tarn16sc> x) const
    {
        // Sign extension of either half of a 32-bit lane.
        const auto element = reinterpretPack<Tarn32s>(x);
        return {add(sum.re, shiftRight(shiftLeft(element, 16), 16)), add(sum.im, shiftRight(element, 16))};
    }
};
struct AddPartSums {
    TARN_INLINE PartSums operator()(PartSums a, PartSums b) const { return {add(a.re, b.re), add(a.im, b.im)}; }
};

} // namespace

void owntarnsSum_16s64f(const Tarn16s* pSrc, int len, Tarn64f* pSum)
{
    constexpr int step = reducedLanes<Tarn16s>;
    Tarn64f total = 0;
    for (int first = 0, taken = 0; first < len; first += taken) {
        taken = std::min(len - first, blockOf16Bits);
        const auto* p = pSrc + first;
        Accumulators<Reduced<Tarn32s>, 2> sums(splat<Reduced<Tarn32s>>(0));
        Index i = takeSteps<step>(sums, 0, taken, AddPairs{}, p);
        auto lanesOfAll = sums.joined(add);
        i = takePacks<step>(lanesOfAll, i, taken, AddPairs{}, p);
        Tarn32s sum = foldLanes(lanesOfAll, add);
        takeElements(
            sum, i, taken, [](Tarn32s s, Tarn16s x) { return s + x; }, p);
        total += sum;
    }
    store(pSum, total);
}

void owntarnsSum_16sc64fc(const Tarn16sc* pSrc, int len, Tarn64fc* pSum)
{
    constexpr int step = reducedLanes<Tarn16sc>;
    const auto none = splat<Reduced<Tarn32s>>(0);
    Tarn64fc total{0, 0};
    for (int first = 0, taken = 0; first < len; first += taken) {
        taken = std::min(len - first, blockOf16Bits);
        const auto* p = pSrc + first;
        Accumulators<PartSums, 2> sums(PartSums{none, none});
        Index i = takeSteps<step>(sums, 0, taken, AddPairsOfParts{}, p);
        auto lanesOfAll = sums.joined(AddPartSums{});
        i = takePacks<step>(lanesOfAll, i, taken, AddPairsOfParts{}, p);
        Tarn32sc sum{foldLanes(lanesOfAll.re, add), foldLanes(lanesOfAll.im, add)};
        takeElements(
            sum, i, taken,
            [](Tarn32sc s, Tarn16sc x) {
                return Tarn32sc{s.re + x.re, s.im + x.im};
            },
            p);
        total.re += sum.re;
        total.im += sum.im;
    }
    store(pSum, total);
}

void ownsSum_32s64s_W7(const Tarn32s* pSrc, int len, Tarn64s* pSum)
{
    const auto signExtendedPairs = [](Reduced<Tarn32s> x) {
        const auto wide = reinterpretPack<Tarn64s>(complexFrom<Tarn32sc>(x, shiftRight(x, 31)));
        return add(lowHalf(wide), highHalf(wide));
    };
    store(pSum, sumExact<reducedLanes<Tarn32s>>(
                    len, signExtendedPairs, [](Tarn32s x) { return Tarn64s{x}; }, pSrc));
}
