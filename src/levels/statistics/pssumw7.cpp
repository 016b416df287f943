// Kernels of floating-point sums.
#include "levels/statistics/pssum.h"

#include "frame/reduce.h"
#include "frame/simd_extended.h"

using namespace tarn;

namespace {

// -- Accurate pass: eight accumulators in the extended format --------------------------------------------------------

constexpr int accurateStep = 8;
using EightSums = std::array<Extended, accurateStep>;

TARN_INLINE void addEight(EightSums& sums, const Tarn32f* p)
{
    repeat<accurateStep>([&](auto k) { sums[k] += Extended{loadElement(p + k)}; });
}

// Adds all whole steps and tells where they end. The accumulators turn through the processor's register stack, and two
// steps at a time take half as many exchanges to bring them back.
TARN_INLINE Index addSteps(EightSums& sums, const Tarn32f* p, Index len)
{
    Index i = 0;
    for (; i <= len - 2 * accurateStep; i += 2 * accurateStep) {
        addEight(sums, p + i);
        addEight(sums, p + i + accurateStep);
    }
    if (i <= len - accurateStep) {
        addEight(sums, p + i);
        i += accurateStep;
    }
    return i;
}

// -- Fast pass: single precision within a block, the extended format between blocks ----------------------------------

// Partial sums in single precision never span more elements than this.
constexpr int fastBlock = 32768;

constexpr int fastAccumulators = 4;

// An array on a boundary of the narrowest register.
struct OnBoundary {
    const Tarn32f* p;

    TARN_INLINE OnBoundary operator+(Index elements) const { return {p + elements}; }
};
template <int N>
TARN_INLINE auto loadPack(OnBoundary source)
{
    return loadAligned<N>(source.p);
}

template <typename Source>
TARN_INLINE void sumBlock(Source source, const Tarn32f* p, int len, Tarn32f* sums)
{
    constexpr int step = reducedLanes<Tarn32f>;
    Accumulators<Reduced<Tarn32f>, fastAccumulators> sumsOf(splat<Reduced<Tarn32f>>(0));
    Index i = takeSteps<step>(sumsOf, 0, len, add, source);
    auto sum = sumsOf.joined(add);
    i = takePacks<step>(sum, i, len, add, source);
    if (i <= len - 2) {
        sum = add(sum, loadHalf<step>(p + i));
        i += 2;
    }
    if (i < len) {
        sum = add(sum, inFirstLane<Reduced<Tarn32f>>(loadElement(p + i)));
    }
    const auto evenAndOdd = foldTo<2>(sum, add);
    store(sums, firstLane(evenAndOdd));
    store(sums + 1, firstLane(lanesDown<1>(evenAndOdd)));
}

// The total of a real array, and of a complex one as its parts; elements go to it one by one or as sums of a block.
struct RealTotal {
    Extended sum = 0;

    TARN_INLINE void addElement(Tarn32f x) { sum += Extended{x}; }
    TARN_INLINE void addBlock(Tarn32f even, Tarn32f odd)
    {
        sum += Extended{even};
        sum += Extended{odd};
    }
};
struct ComplexTotal {
    Extended re = 0;
    Extended im = 0;

    TARN_INLINE void addElement(Tarn32fc x) { addBlock(x.re, x.im); }
    TARN_INLINE void addBlock(Tarn32f even, Tarn32f odd)
    {
        re += Extended{even};
        im += Extended{odd};
    }
};

// An array that does not start on a vector boundary, as far as whole floats can tell, is added element by element all
// the way: walking to the boundary would change which elements meet in a lane, and so the result.
template <typename Total, typename T>
TARN_INLINE Total sumFast(const T* p, int len)
{
    constexpr int parts = sizeof(T) / sizeof(Tarn32f);
    constexpr int block = fastBlock / parts;
    Total total;
    const auto offset = addressOf(p) % reducedBytes;
    if (offset / sizeof(Tarn32f) != 0) {
        for (int i = 0; i < len; ++i) {
            total.addElement(loadElement(p + i));
        }
        return total;
    }
    const auto core = offset != 0 ? ownsSumNoAlg : ownsSumAlg;
    for (int i = 0, taken = 0; i < len; i += taken) {
        taken = std::min(len - i, block);
        std::array<Tarn32f, 2> sums;
        core(reinterpret_cast<const Tarn32f*>(p + i), parts * taken, sums.data());
        total.addBlock(sums[0], sums[1]);
    }
    return total;
}

// -- Double precision: four vectors of accumulators ------------------------------------------------------------------

// Sums the elements at even places and those at odd ones, onto what `first` has in its lanes.
TARN_INLINE Reduced<Tarn64f> sumDoubles(Reduced<Tarn64f> first, const Tarn64f* p, Index len)
{
    constexpr int step = reducedLanes<Tarn64f>;
    Accumulators<Reduced<Tarn64f>, 4> sums(splat<Reduced<Tarn64f>>(0));
    sums.at[0] = first;
    Index i = takeSteps<step>(sums, 0, len, add, p);
    const auto upper = add(sums.at[2], sums.at[3]);
    auto sum = add(add(sums.at[0], sums.at[1]), upper);
    i = takePacks<step>(sum, i, len, add, p);
    if (i < len) {
        sum = add(sum, inFirstLane<Reduced<Tarn64f>>(loadElement(p + i)));
    }
    return sum;
}

// True if the array starts one double past a vector boundary.
bool isOddMultiple(const Tarn64f* p) { return addressOf(p) % reducedBytes == sizeof(Tarn64f); }

} // namespace

void owntarnsSum_32f_Accur(const Tarn32f* pSrc, int len, Tarn64f* pSum)
{
    EightSums a{};
    Index i = addSteps(a, pSrc, len);
    for (; i < len; ++i) {
        a[0] += Extended{loadElement(pSrc + i)};
    }
    const Extended sum = ((a[0] + a[4]) + (a[2] + a[6])) + ((a[1] + a[5]) + (a[3] + a[7]));
    store(pSum, static_cast<Tarn64f>(sum));
}

void owntarnsSum_32fc_Accur(const Tarn32fc* pSrc, int len, Tarn64fc* pSum)
{
    const auto* p = reinterpret_cast<const Tarn32f*>(pSrc);
    EightSums a{};
    Index i = addSteps(a, p, Index{2} * len) / 2;
    Extended re = (a[0] + a[4]) + (a[2] + a[6]);
    Extended im = (a[1] + a[5]) + (a[3] + a[7]);
    for (; i < len; ++i) {
        const auto x = loadElement(pSrc + i);
        re += Extended{x.re};
        im += Extended{x.im};
    }
    store(pSum, {static_cast<Tarn64f>(re), static_cast<Tarn64f>(im)});
}

void ownsSumAlg(const Tarn32f* pSrc, int len, Tarn32f* pSums) { sumBlock(OnBoundary{pSrc}, pSrc, len, pSums); }

void ownsSumNoAlg(const Tarn32f* pSrc, int len, Tarn32f* pSums) { sumBlock(pSrc, pSrc, len, pSums); }

void owntarnsSum_32f_Fast(const Tarn32f* pSrc, int len, Tarn64f* pSum)
{
    store(pSum, static_cast<Tarn64f>(sumFast<RealTotal>(pSrc, len).sum));
}

void owntarnsSum_32fc_Fast(const Tarn32fc* pSrc, int len, Tarn64fc* pSum)
{
    const auto total = sumFast<ComplexTotal>(pSrc, len);
    store(pSum, {static_cast<Tarn64f>(total.re), static_cast<Tarn64f>(total.im)});
}

void owntarnsSum_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum)
{
    Reduced<Tarn64f> sum;
    if (isOddMultiple(pSrc)) {
        const Tarn64f first = loadElement(pSrc);
        if (len == 1) {
            store(pSum, first);
            return;
        }
        sum = sumDoubles(inFirstLane<Reduced<Tarn64f>>(first), pSrc + 1, len - 1);
    } else {
        sum = sumDoubles(splat<Reduced<Tarn64f>>(0), pSrc, len);
    }
    store(pSum, firstLane(add(lanesDown<1>(sum), sum)));
}

void owntarnsSum_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pSum)
{
    const auto* p = reinterpret_cast<const Tarn64f*>(pSrc);
    if (isOddMultiple(p)) {
        // The first real part alone brings the rest to a boundary, where its pairs hold an imaginary part and the next
        // real one: the accumulators have exchanged their roles.
        const auto first = reverse(inFirstLane<Reduced<Tarn64f>>(loadElement(p)));
        store(reinterpret_cast<Tarn64f*>(pSum), reverse(sumDoubles(first, p + 1, Index{2} * len - 1)));
    } else {
        store(reinterpret_cast<Tarn64f*>(pSum), sumDoubles(splat<Reduced<Tarn64f>>(0), p, Index{2} * len));
    }
}
