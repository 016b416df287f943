// Kernels of the thresholds that change the magnitude of complex elements and keep their phase.
#include "frame/rounding.h"
#include "levels/arithmetic/psthresh_magnitude.h"
#include "levels/arithmetic/psthreshold.h"
#include "tarns/threshold.h"

namespace {

using namespace tarn;

// Elements of magnitude 0 have the phase of their signed zeros: that of a positive or negative real number.
template <typename D>
TARN_INLINE D realWithSigns(Tarn64f magnitude, D signedZeros)
{
    return copySign(realParts<D>(magnitude), signedZeros);
}

// The parts of elements moved to the magnitude `level`, part * level / magnitude. The order is the element type's: the
// products of integers are exact, so that ties are told when the division comes last; a quotient of two doubles may
// leave the range, unless it is that of a part and its own magnitude.
template <typename T, typename D, typename S>
TARN_INLINE D scaledTo(Tarn64f level, Measured<D, S> z)
{
    const auto magnitude = squareRoot(z.squares);
    D scaled;
    if constexpr (std::is_same_v<T, Tarn16sc>) {
        scaled = tarn::div(mul(z.parts, splat<D>(level)), inBothParts<D>(magnitude));
    } else if constexpr (std::is_same_v<T, Tarn64fc>) {
        scaled = mul(tarn::div(z.parts, inBothParts<D>(magnitude)), splat<D>(level));
    } else {
        scaled = mul(z.parts, inBothParts<D>(tarn::div(splat<S>(level), magnitude)));
    }
    const auto zero = equal(z.squares, splat<S>(0));
    return anyOf(zero) ? tarn::select(inBothParts<D>(zero), realWithSigns(level, z.parts), scaled) : scaled;
}

template <typename Comparison, typename T>
struct MagnitudeLimited {
    static constexpr int stepsAtOnce = 1;

    Comparison comparison;
    Part<T> level;

    template <typename X>
    TARN_INLINE X operator()(X z) const
    {
        const auto beyond = isBeyond<T>(comparison, z, level);
        if (!anyOf(beyond)) {
            return z;
        }
        return tarn::select(beyond, fromDoubles<X>(scaledTo<T>(level, measure(z))), z);
    }
};

template <typename Comparison, typename T>
void limitBeyond(Comparison comparison, const T* pSrc, T* pDst, int len, Part<T> level)
{
    walk(pDst, len, MagnitudeLimited<Comparison, T>{comparison, level}, pSrc);
}

template <typename T>
void limitMagnitude(const T* pSrc, T* pDst, int len, Part<T> level, int relOp)
{
    if (relOp == tarnCmpGreater) {
        limitBeyond(greater, pSrc, pDst, len, level);
    } else {
        limitBeyond(less, pSrc, pDst, len, level);
    }
}

} // namespace

void owntarnsThresh_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16s level, int relOp)
{
    const NearestRounding rounding;
    limitMagnitude(pSrc, pDst, len, level, relOp);
}

void owntarnsThresh_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level, int relOp)
{
    limitMagnitude(pSrc, pDst, len, level, relOp);
}

void owntarnsThresh_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level, int relOp)
{
    limitMagnitude(pSrc, pDst, len, level, relOp);
}
