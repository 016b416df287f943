// Kernels of sample deviations: one pass for the sum and the sum of squares, then
// sqrt((n s2 - s1^2) / (n (n - 1))).
#include "levels/statistics/pssum.h"

#include "frame/reduce.h"
#include "frame/simd.h"

#include <cmath>

using namespace tarn;

namespace {

// The sum and the sum of squares, of elements or of lanes.
template <typename X>
struct Moments {
    X sum;
    X squares;
};

template <typename X>
TARN_INLINE Moments<X> operator+(Moments<X> a, Moments<X> b)
{
    return {add(a.sum, b.sum), add(a.squares, b.squares)};
}

template <typename X>
TARN_INLINE Moments<X> momentsOf(X x)
{
    return {x, mul(x, x)};
}

struct AddMoments {
    template <typename X>
    TARN_INLINE Moments<X> operator()(Moments<X> a, Moments<X> b) const
    {
        return a + b;
    }
    template <typename X>
    TARN_INLINE Moments<X> operator()(Moments<X> moments, X x) const
    {
        return moments + momentsOf(x);
    }
};

template <typename T>
TARN_INLINE Moments<T> foldMoments(Moments<Reduced<T>> moments)
{
    return {foldLanes(moments.sum, add), foldLanes(moments.squares, add)};
}

// n s2 - s1^2.
template <typename F>
TARN_INLINE F spread(F n, F sum, F squares)
{
    return n * squares - sum * sum;
}

// -- Single precision: totals in the extended format -----------------------------------------------------------------

struct ExtendedMoments {
    Extended sum = 0;
    Extended squares = 0;

    TARN_INLINE void take(Tarn32f element)
    {
        const Extended x = element;
        sum += x;
        squares += x * x;
    }
};

// The sign of the quotient decides, that of a negative zero and of a NaN included: nothing below zero gets to the root.
Tarn32f deviation(ExtendedMoments moments, int len)
{
    const Extended n = len;
    const Extended variance = spread(n, moments.sum, moments.squares) / (n * (n - 1));
    if (std::signbit(static_cast<Tarn64f>(variance))) {
        return 0;
    }
    return static_cast<Tarn32f>(std::sqrt(variance));
}

// The fast pass is worth its lanes from here on.
constexpr int longestScalar = 8;

// Partial sums in single precision never span more elements than this.
constexpr int fastBlock = 1024;

// Four vectors a step are summed among themselves first, so that a step costs the one lane set one addition.
TARN_INLINE Moments<Tarn32f> momentsOfBlock(const Tarn32f* p, Index len)
{
    constexpr int step = reducedLanes<Tarn32f>;
    const auto zero = splat<Reduced<Tarn32f>>(0);
    Moments<Reduced<Tarn32f>> moments{zero, zero};
    Index i = 0;
    for (; i <= len - 4 * step; i += 4 * step) {
        const auto x = loadPack<4 * step>(p + i);
        const auto sum =
            add(add(lowHalf(lowHalf(x)), highHalf(lowHalf(x))), add(lowHalf(highHalf(x)), highHalf(highHalf(x))));
        const auto squares = mul(x, x);
        moments =
            moments + Moments<Reduced<Tarn32f>>{sum, add(add(lowHalf(lowHalf(squares)), highHalf(lowHalf(squares))),
                                                         add(lowHalf(highHalf(squares)), highHalf(highHalf(squares))))};
    }
    i = takePacks<step>(moments, i, len, AddMoments{}, p);
    if (i <= len - 2) {
        moments = moments + momentsOf(loadHalf<step>(p + i));
        i += 2;
    }
    if (i < len) {
        moments = moments + momentsOf(inFirstLane<Reduced<Tarn32f>>(loadElement(p + i)));
    }
    return foldMoments(moments);
}

// -- 16-bit integers: exact totals -----------------------------------------------------------------------------------

// 32-bit lanes of the sum are emptied after so many elements.
constexpr int blockOf16Bits = 65536;

struct IntegerMoments {
    Reduced<Tarn32s> sum;
    Reduced<Tarn64s> squares;
};
struct AddIntegerMoments {
    TARN_INLINE IntegerMoments operator()(IntegerMoments a, IntegerMoments b) const
    {
        return {add(a.sum, b.sum), add(a.squares, b.squares)};
    }
    // Two squares of -32768 make 2^31, which unsigned lanes hold.
    TARN_INLINE IntegerMoments operator()(IntegerMoments moments, Reduced<Tarn16s> x) const
    {
        const auto squares = retype<Tarn32u>(mulAddPairs(x, x));
        return {add(moments.sum, pairSums(x)), add(moments.squares, pairSums(squares))};
    }
};

// No factor of 2 that an int names and that matters is further away: root and result have 16 and 31 bits.
constexpr int largestExponent = 20000;

} // namespace

void owntarnsStdDev_32f_Accur(const Tarn32f* pSrc, int len, Tarn32f* pStdDev)
{
    ExtendedMoments even;
    ExtendedMoments odd;
    int i = 0;
    for (; i <= len - 4; i += 4) {
        even.take(loadElement(pSrc + i));
        odd.take(loadElement(pSrc + i + 1));
        even.take(loadElement(pSrc + i + 2));
        odd.take(loadElement(pSrc + i + 3));
    }
    ExtendedMoments all{even.sum + odd.sum, even.squares + odd.squares};
    for (; i < len; ++i) {
        all.take(loadElement(pSrc + i));
    }
    store(pStdDev, deviation(all, len));
}

void owntarnsStdDev_32f_Fast(const Tarn32f* pSrc, int len, Tarn32f* pStdDev)
{
    ExtendedMoments moments;
    const int head = len <= longestScalar ? len : elementsToBoundary<reducedBytes>(pSrc);
    int i = 0;
    for (; i < head; ++i) {
        moments.take(loadElement(pSrc + i));
    }
    for (int taken = 0; i < len; i += taken) {
        taken = std::min(len - i, fastBlock);
        const auto block = momentsOfBlock(pSrc + i, taken);
        moments.sum += Extended{block.sum};
        moments.squares += Extended{block.squares};
    }
    store(pStdDev, deviation(moments, len));
}

void owntarnsStdDev_64f(const Tarn64f* pSrc, int len, Tarn64f* pStdDev)
{
    constexpr int step = reducedLanes<Tarn64f>;
    const auto zero = splat<Reduced<Tarn64f>>(0);
    Accumulators<Moments<Reduced<Tarn64f>>, 2> moments({zero, zero});
    Index i = takeSteps<step>(moments, 0, len, AddMoments{}, pSrc);
    i = takePacks<step>(moments.at[0], i, len, AddMoments{}, pSrc);
    if (i < len) {
        moments.at[0] = moments.at[0] + momentsOf(inFirstLane<Reduced<Tarn64f>>(loadElement(pSrc + i)));
    }
    const auto total = foldMoments(moments.joined(AddMoments{}));
    const Tarn64f n = len;
    // A NaN counts as negative: the maximum is its second operand.
    const Tarn64f variance = max(spread(n, total.sum, total.squares), 0.0) / (n * (n - 1));
    store(pStdDev, squareRoot(variance));
}

void owntarnsStdDev_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pStdDev, int scaleFactor)
{
    constexpr int step = reducedLanes<Tarn16s>;
    const IntegerMoments none{splat<Reduced<Tarn32s>>(0), splat<Reduced<Tarn64s>>(0)};
    Tarn64s sum = 0;
    Tarn64s squares = 0;
    for (int first = 0, taken = 0; first < len; first += taken) {
        taken = std::min(len - first, blockOf16Bits);
        auto lanesOfAll = none;
        Index i = takePacks<step>(lanesOfAll, 0, taken, AddIntegerMoments{}, pSrc + first);
        sum += foldLanes(lanesOfAll.sum, add);
        squares += foldLanes(lanesOfAll.squares, add);
        for (; i < taken; ++i) {
            const Tarn64s x = loadElement(pSrc + first + i);
            sum += x;
            squares += x * x;
        }
    }
    const Extended n = len;
    const Extended measured = spread<Extended>(n, static_cast<Extended>(sum), static_cast<Extended>(squares));
    const Extended root = std::sqrt((measured > 0 ? measured : 0) / (n * (n - 1)));
    const Extended scaled = std::scalbn(root, -std::clamp(scaleFactor, -largestExponent, largestExponent));
    store(pStdDev, static_cast<Tarn32s>(std::lrint(std::min(scaled, Extended{highest<Tarn32s>}))));
}
