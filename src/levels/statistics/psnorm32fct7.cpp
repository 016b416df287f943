// Kernels of norms of complex floats.
#include "levels/statistics/psnorm.h"

#include "frame/flags.h"
#include "frame/reduce.h"
#include "frame/simd.h"

using namespace tarn;

namespace {

// sqrt(p) for single-precision lanes: with the processor's estimate e of 1 / sqrt(p), a = p e is a first root, and one
// Newton step refines it to (3 - a e) a / 2. The estimate for 0 is infinite, so that a group with a 0 takes full roots.
TARN_INLINE Reduced<Tarn32f> rootOf(Reduced<Tarn32f> p)
{
    if (anyOf(equal(p, splat<Reduced<Tarn32f>>(0)))) {
        return squareRoot(p);
    }
    const auto e = approxReciprocalRoot(p);
    const auto a = mul(p, e);
    return mul(mul(splat<Reduced<Tarn32f>>(0.5F), sub(splat<Reduced<Tarn32f>>(3), mul(a, e))), a);
}
TARN_INLINE Reduced<Tarn64f> rootOf(Reduced<Tarn64f> p) { return squareRoot(p); }
TARN_INLINE Tarn32f rootOf(Tarn32f p) { return squareRoot(p); }
TARN_INLINE Tarn64f rootOf(Tarn64f p) { return squareRoot(p); }

// The lanes' sum in double precision.
TARN_INLINE Tarn64f joinInDouble(Reduced<Tarn32f> sum)
{
    const auto wide = widen(sum);
    return foldLanes(add(lowHalf(wide), highHalf(wide)), add);
}
TARN_INLINE Tarn64f joinInDouble(Reduced<Tarn64f> sum) { return foldLanes(sum, add); }

// The sum of what `of` makes of squared magnitudes: lanes of the elements' precision, then doubles.
template <typename S, typename Of>
TARN_INLINE Tarn64f sumOver(S src, int len, Of of)
{
    using P = Part<decltype(loadElement(src))>;
    constexpr int step = reducedLanes<P>;
    const auto take = [of](auto sum, auto x) { return add(sum, of(squaredMagnitudes(x))); };
    Accumulators<Reduced<P>, 2> sums(splat<Reduced<P>>(0));
    Index i = takeSteps<step>(sums, 0, len, take, src);
    auto all = sums.joined(add);
    i = takePacks<step>(all, i, len, take, src);
    Tarn64f total = joinInDouble(all);
    for (; i < len; ++i) {
        total += Tarn64f{of(squaredMagnitudes(loadElement(src + i)))};
    }
    return total;
}

// What the estimates of roots raise on the way to a good result is no business of the caller's.
template <typename T>
TARN_INLINE void leave(T norm, T* result)
{
    settle(norm);
    store(result, norm);
    clearFlags(mxcsrInvalid | mxcsrUnderflow);
}

struct LargestMagnitude {
    template <typename S, typename P>
    TARN_INLINE void operator()(S src, int len, P* norm) const
    {
        constexpr int step = reducedLanes<P>;
        const auto take = [](auto largest, auto x) { return max(largest, rootOf(squaredMagnitudes(x))); };
        auto lanesOfAll = splat<Reduced<P>>(0);
        const Index i = takePacks<step>(lanesOfAll, 0, len, take, src);
        P largest = foldLanes(lanesOfAll, max);
        takeElements(largest, i, len, take, src);
        leave(largest, norm);
    }
};

struct SumOfMagnitudes {
    template <typename S>
    TARN_INLINE void operator()(S src, int len, Tarn64f* norm) const
    {
        leave(sumOver(src, len, [](auto squared) { return rootOf(squared); }), norm);
    }
};

struct RootOfSquares {
    template <typename S>
    TARN_INLINE void operator()(S src, int len, Tarn64f* norm) const
    {
        leave(squareRoot(sumOver(src, len, Identity{})), norm);
    }
};

} // namespace

TARN_DEFINE_NORM(Norm_32fc_Inf_T7, NormDiff_32fc_Inf_T7, Tarn32fc, Tarn32f, LargestMagnitude{}, DifferenceOf<Tarn32fc>)
TARN_DEFINE_NORM(Norm_32fc_L1_T7, NormDiff_32fc_L1_T7, Tarn32fc, Tarn64f, SumOfMagnitudes{}, DifferenceOf<Tarn32fc>)
TARN_DEFINE_NORM(Norm_32fc_L2_T7, NormDiff_32fc_L2_T7, Tarn32fc, Tarn64f, RootOfSquares{}, DifferenceOf<Tarn32fc>)
TARN_DEFINE_NORM(Norm_64fc_Inf_T7, NormDiff_64fc_Inf_T7, Tarn64fc, Tarn64f, LargestMagnitude{}, DifferenceOf<Tarn64fc>)
TARN_DEFINE_NORM(Norm_64fc_L1_T7, NormDiff_64fc_L1_T7, Tarn64fc, Tarn64f, SumOfMagnitudes{}, DifferenceOf<Tarn64fc>)
TARN_DEFINE_NORM(Norm_64fc_L2_T7, NormDiff_64fc_L2_T7, Tarn64fc, Tarn64f, RootOfSquares{}, DifferenceOf<Tarn64fc>)
