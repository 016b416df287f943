// Kernels of exact dot products of 16-bit integers. Pairs of products make 32-bit sums, which go to 64-bit lanes.
#include "levels/statistics/psdotprod.h"

#include "frame/reduce.h"
#include "frame/simd_mul.h"

using namespace tarn;

namespace {

// A pair sum lies from -2^31 + 2^16 to 2^31, one value too many for 32 bits. Moved up by this it is an unsigned one,
// which needs no sign on its way to 64 bits; the count of pair sums times this leaves at the end.
constexpr Tarn32s offset = highest<Tarn32s>;

TARN_INLINE Reduced<Tarn32u> moved(Reduced<Tarn32s> pairSum)
{
    return retype<Tarn32u>(add(pairSum, splat<Reduced<Tarn32s>>(offset)));
}

struct PartSums {
    Reduced<Tarn64s> re;
    Reduced<Tarn64s> im;
};

struct AddPartSums {
    TARN_INLINE PartSums operator()(PartSums a, PartSums b) const { return {add(a.re, b.re), add(a.im, b.im)}; }
};

// a.im ~b.im is -a.im b.im - a.im: unlike the negative of the lowest integer, the complement of every one exists.
struct TakeComplex {
    TARN_INLINE PartSums operator()(PartSums sum, Reduced<Tarn16sc> a, Reduced<Tarn16sc> b) const
    {
        const auto imaginaryParts = splat<Reduced<Tarn32s>>(static_cast<Tarn32s>(0xFFFF0000));
        const auto complemented = reinterpretPack<Tarn16sc>(bitXor(reinterpretPack<Tarn32s>(b), imaginaryParts));
        const auto re = add(mulAddPairs(a, complemented), shiftRight(reinterpretPack<Tarn32s>(a), 16));
        const auto im = mulAddPairs(a, swapParts(b));
        return {add(sum.re, pairSums(moved(re))), add(sum.im, pairSums(moved(im)))};
    }
};

// Sums over two elements lie in turn: a real one, an imaginary one.
struct TakeMixed {
    TARN_INLINE PartSums operator()(PartSums sum, Reduced<Tarn16s> a, Pack<Tarn16sc, reducedLanes<Tarn16s>> b) const
    {
        const auto real = pairsTwice(a);
        const auto lo = moved(mulAddPairs(lowHalf(real), partsOfPairs(lowHalf(b))));
        const auto hi = moved(mulAddPairs(highHalf(real), partsOfPairs(highHalf(b))));
        return {add(sum.re, add(widenEven(lo), widenEven(hi))), add(sum.im, add(widenOdd(lo), widenOdd(hi)))};
    }
};

// `pairs` is how many elements go into one of the sums that are moved up.
template <int step, int pairs, typename Take, typename One, typename A, typename B>
TARN_INLINE Tarn64sc sumParts(int len, Take take, One one, const A* a, const B* b)
{
    const auto none = splat<Reduced<Tarn64s>>(0);
    Accumulators<PartSums, 2> sums({none, none});
    Index i = takeSteps<step>(sums, 0, len, take, a, b);
    auto all = sums.joined(AddPartSums{});
    i = takePacks<step>(all, i, len, take, a, b);
    const Tarn64s excess = Tarn64s{i / pairs} * offset;
    Tarn64sc sum{foldLanes(all.re, add) - excess, foldLanes(all.im, add) - excess};
    takeElements(sum, i, len, one, a, b);
    return sum;
}

} // namespace

void DotProd_16s64s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn64s* pDp)
{
    constexpr int step = reducedLanes<Tarn16s>;
    const auto take = [](Reduced<Tarn16s> a, Reduced<Tarn16s> b) { return pairSums(moved(mulAddPairs(a, b))); };
    const auto one = [](Tarn32s a, Tarn32s b) { return Tarn64s{a * b}; };
    const Tarn64s sum = sumExact<step>(len, take, one, pSrc1, pSrc2);
    store(pDp, sum - Tarn64s{len / step * (step / 2)} * offset);
}

void DotProd_16sc64sc(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp)
{
    const auto one = [](Tarn64sc sum, Tarn16sc a, Tarn16sc b) {
        return Tarn64sc{sum.re + Tarn64s{a.re * b.re} - a.im * b.im, sum.im + Tarn64s{a.re * b.im} + a.im * b.re};
    };
    store(pDp, sumParts<reducedLanes<Tarn16sc>, 1>(len, TakeComplex{}, one, pSrc1, pSrc2));
}

void DotProd_16s16sc64sc(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp)
{
    const auto one = [](Tarn64sc sum, Tarn16s a, Tarn16sc b) { return Tarn64sc{sum.re + a * b.re, sum.im + a * b.im}; };
    store(pDp, sumParts<reducedLanes<Tarn16s>, 2>(len, TakeMixed{}, one, pSrc1, pSrc2));
}
