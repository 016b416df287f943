// Kernels of the thresholds on real elements, and of those on magnitudes that replace an element.
#include "levels/arithmetic/psthreshold.h"

#include "levels/arithmetic/psthresh_magnitude.h"
#include "tarns/threshold.h"

namespace {

using namespace tarn;

// `value` where x lies on the wrong side of the level; a NaN lies on neither.
template <typename Comparison, typename T>
struct Replaced {
    Comparison isBeyond;
    T level, value;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return tarn::select(isBeyond(x, splat<X>(level)), splat<X>(value), x);
    }
};

template <typename T>
struct Banded {
    T levelLT, valueLT, levelGT, valueGT;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        const auto aboveDone = tarn::select(greater(x, splat<X>(levelGT)), splat<X>(valueGT), x);
        return tarn::select(less(x, splat<X>(levelLT)), splat<X>(valueLT), aboveDone);
    }
};

template <typename Comparison, typename T>
struct ReplacedByMagnitude {
    Comparison comparison;
    Part<T> level;
    T value;

    template <typename X>
    TARN_INLINE X operator()(X z) const
    {
        return tarn::select(isBeyond<T>(comparison, z, level), splat<X>(value), z);
    }
};

// The instructions answer with their second operand where the two are unordered: a NaN becomes the level.
template <typename T>
void limit(const T* pSrc, T* pDst, int len, T level, int relOp)
{
    if (relOp == tarnCmpGreater) {
        walk(pDst, len, WithConstant<Word<Min>, T>{min, level}, pSrc);
    } else {
        walk(pDst, len, WithConstant<Word<Max>, T>{max, level}, pSrc);
    }
}

template <typename Comparison, typename T>
void replace(Comparison comparison, const T* pSrc, T* pDst, int len, Part<T> level, T value)
{
    if constexpr (isComplex<T>) {
        walk(pDst, len, ReplacedByMagnitude<Comparison, T>{comparison, level, value}, pSrc);
    } else {
        walk(pDst, len, Replaced<Comparison, T>{comparison, level, value}, pSrc);
    }
}

} // namespace

#define TARN_LIMIT_KERNEL(TAG)                                                                             \
    void owntarnsThresh_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG level, int relOp) \
    {                                                                                                      \
        limit(pSrc, pDst, len, level, relOp);                                                              \
    }

TARN_LIMIT_KERNEL(16s)
TARN_LIMIT_KERNEL(32s)
TARN_LIMIT_KERNEL(32f)
TARN_LIMIT_KERNEL(64f)

#define TARN_REPLACE_KERNELS(TAG, LEVEL)                                                                            \
    void owntarnsThreshLTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level, Tarn##TAG value) \
    {                                                                                                               \
        replace(less, pSrc, pDst, len, level, value);                                                               \
    }                                                                                                               \
    void owntarnsThreshGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level, Tarn##TAG value) \
    {                                                                                                               \
        replace(greater, pSrc, pDst, len, level, value);                                                            \
    }

TARN_THRESHOLDS(TARN_REPLACE_KERNELS)

#define TARN_BAND_KERNEL(TAG)                                                                                   \
    void owntarnsThreshLTValueGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG levelLT, \
                                            Tarn##TAG valueLT, Tarn##TAG levelGT, Tarn##TAG valueGT)            \
    {                                                                                                           \
        walk(pDst, len, Banded<Tarn##TAG>{levelLT, valueLT, levelGT, valueGT}, pSrc);                           \
    }

TARN_BAND_THRESHOLDS(TARN_BAND_KERNEL)
