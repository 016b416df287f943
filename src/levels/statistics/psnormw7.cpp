// Kernels of norms of real floats and of 16-bit integers.
#include "levels/statistics/psnorm.h"

#include "frame/reduce.h"
#include "frame/simd.h"

using namespace tarn;

namespace {

// Vectors of accumulators: as many as hide the latency of an addition.
constexpr int accumulators = 4;

// -- Floats: lanes of the elements' own precision --------------------------------------------------------------------

struct LargestMagnitude {
    template <typename S, typename T>
    TARN_INLINE void operator()(S src, int len, T* norm) const
    {
        const auto take = [](auto largest, auto x) { return max(largest, absolute(x)); };
        store(norm, reduce<accumulators>(T{0}, len, take, max, src));
    }
};

struct SumOfMagnitudes {
    template <typename S, typename T>
    TARN_INLINE void operator()(S src, int len, T* norm) const
    {
        const auto take = [](auto sum, auto x) { return add(sum, absolute(x)); };
        store(norm, reduce<accumulators>(T{0}, len, take, add, src));
    }
};

struct RootOfSquares {
    template <typename S, typename T>
    TARN_INLINE void operator()(S src, int len, T* norm) const
    {
        const auto take = [](auto sum, auto x) { return add(sum, mul(x, x)); };
        store(norm, squareRoot(reduce<accumulators>(T{0}, len, take, add, src)));
    }
};

// -- 16-bit integers -------------------------------------------------------------------------------------------------

// Differences have 17 bits; their magnitudes fit 16 unsigned ones.
using Distances = Elementwise<Word<Distance>, Tarn16s>;

struct LargestOf16Bits {
    TARN_INLINE void operator()(const Tarn16s* src, int len, Tarn32s* norm) const
    {
        constexpr int step = reducedLanes<Tarn16s>;
        const auto none = splat<Reduced<Tarn16s>>(0);
        Accumulators<Extremes<Reduced<Tarn16s>>, 2> states({none, none});
        Index i = takeSteps<step>(states, 0, len, WidenExtremes{}, src);
        auto all = states.joined(WidenExtremes{});
        i = takePacks<step>(all, i, len, WidenExtremes{}, src);
        auto extremes = foldExtremes<Tarn16s>(all);
        takeElements(extremes, i, len, WidenExtremes{}, src);
        store(norm, std::max<int>(extremes.largest, -extremes.smallest));
    }
    TARN_INLINE void operator()(Distances src, int len, Tarn32s* norm) const
    {
        const auto take = [](auto largest, auto x) { return max(largest, moveOrder(x)); };
        store(norm, moveOrder(reduce<accumulators>(lowest<Tarn16s>, len, take, max, src)));
    }
};

struct SumOf16Bits {
    template <typename S>
    TARN_INLINE void operator()(S src, int len, Tarn32u* norm) const
    {
        constexpr int step = reducedLanes<Tarn16s>;
        const auto take = [](Reduced<Tarn32u> sum, auto x) { return add(sum, pairMagnitudes(x)); };
        Accumulators<Reduced<Tarn32u>, 2> sums(splat<Reduced<Tarn32u>>(0));
        Index i = takeSteps<step>(sums, 0, len, take, src);
        auto all = sums.joined(add);
        i = takePacks<step>(all, i, len, take, src);
        Tarn32u total = foldLanes(all, add);
        const auto takeOne = [](Tarn32u sum, int x) { return sum + static_cast<Tarn32u>(x < 0 ? -x : x); };
        takeElements(total, i, len, takeOne, src);
        store(norm, total);
    }
};

struct SquaresOf16Bits {
    template <typename S>
    TARN_INLINE void operator()(S src, int len, Tarn64s* norm) const
    {
        const auto square = [](Tarn64s x) { return x * x; };
        store(norm, sumExact<reducedLanes<Tarn16s>>(
                        len, [](auto x) { return squaresInLanes(x); }, square, src));
    }

private:
    // Two squares of the lowest integer make 2^31, which unsigned lanes hold.
    static TARN_INLINE Reduced<Tarn64s> squaresInLanes(Reduced<Tarn16s> x)
    {
        return pairSums(retype<Tarn32u>(mulAddPairs(x, x)));
    }
    static TARN_INLINE Reduced<Tarn64s> squaresInLanes(Reduced<Tarn16u> x)
    {
        const auto all = squares(x);
        return add(pairSums(lowHalf(all)), pairSums(highHalf(all)));
    }
};

} // namespace

TARN_DEFINE_NORM(ownps_Norm_Inf_32f, ownps_NormDiff_Inf_32f, Tarn32f, Tarn32f, LargestMagnitude{},
                 DifferenceOf<Tarn32f>)
TARN_DEFINE_NORM(ownps_Norm_L1_32f, ownps_NormDiff_L1_32f, Tarn32f, Tarn32f, SumOfMagnitudes{}, DifferenceOf<Tarn32f>)
TARN_DEFINE_NORM(ownps_Norm_L2_32f, ownps_NormDiff_L2_32f, Tarn32f, Tarn32f, RootOfSquares{}, DifferenceOf<Tarn32f>)
TARN_DEFINE_NORM(ownps_Norm_Inf_64f, ownps_NormDiff_Inf_64f, Tarn64f, Tarn64f, LargestMagnitude{},
                 DifferenceOf<Tarn64f>)
TARN_DEFINE_NORM(ownps_Norm_L1_64f, ownps_NormDiff_L1_64f, Tarn64f, Tarn64f, SumOfMagnitudes{}, DifferenceOf<Tarn64f>)
TARN_DEFINE_NORM(ownps_Norm_L2_64f, ownps_NormDiff_L2_64f, Tarn64f, Tarn64f, RootOfSquares{}, DifferenceOf<Tarn64f>)
TARN_DEFINE_NORM(ownps_Norm_Inf_16s32s, ownps_NormDiff_Inf_16s32s, Tarn16s, Tarn32s, LargestOf16Bits{}, Distances)
TARN_DEFINE_NORM(ownps_Norm_L1_16s32u, ownps_NormDiff_L1_16s32u, Tarn16s, Tarn32u, SumOf16Bits{}, Distances)
TARN_DEFINE_NORM(ownps_Norm_L2_16s64s, ownps_NormDiff_L2_16s64s, Tarn16s, Tarn64s, SquaresOf16Bits{}, Distances)
