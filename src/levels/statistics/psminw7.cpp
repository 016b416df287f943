// Kernels of running extremes, of one vector and of two element by element.
#include "levels/statistics/psminmax.h"

#include "frame/reduce.h"

using namespace tarn;

namespace {

// The running value comes first in every selection, the new element second: the order decides where a NaN or a zero of
// either sign is about.

// The extreme of floats. Single elements lead to a vector boundary, one vector to twice that, and four side by side go
// on from there; an array that no element of lies on a boundary is taken as it is. All start from the first element.
template <typename T, typename Better>
TARN_INLINE void extremeOfFloats(Better better, const T* p, int len, T* result)
{
    constexpr int step = reducedLanes<T>;
    T extreme = loadElement(p);
    Index i = takeElements(extreme, 0, headOf(len, p), better, p);
    if (i <= len - 4 * step) {
        Accumulators<Reduced<T>, 4> extremes(splat<Reduced<T>>(loadElement(p)));
        if (addressOf(p + i) % (2 * reducedBytes) == reducedBytes) {
            extremes.at[0] = better(extremes.at[0], loadPack<step>(p + i));
            i += step;
        }
        i = takeSteps<step>(extremes, i, len, better, p);
        const auto& at = extremes.at;
        extreme = better(extreme, foldLanes(better(better(at[0], at[1]), better(at[2], at[3])), better));
    }
    takeElements(extreme, i, len, better, p);
    store(result, extreme);
}

template <typename Better>
TARN_INLINE void extremeOfIntegers(Better better, const Tarn16s* p, int len, Tarn16s* result)
{
    store(result, reduce<4>(loadElement(p), len, better, better, p));
}

} // namespace

void owntarnsMin_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin) { extremeOfIntegers(min, pSrc, len, pMin); }

void owntarnsMin_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin) { extremeOfFloats(min, pSrc, len, pMin); }

void owntarnsMin_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin) { extremeOfFloats(min, pSrc, len, pMin); }

void owntarnsMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax) { extremeOfIntegers(max, pSrc, len, pMax); }

void owntarnsMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax) { extremeOfFloats(max, pSrc, len, pMax); }

void owntarnsMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax) { extremeOfFloats(max, pSrc, len, pMax); }

TARN_DEFINE_KERNEL(ownsMinEvery_16s_I, VECTORS_I, Tarn16s, min)
TARN_DEFINE_KERNEL(ownsMinEvery_32s_I, VECTORS_I, Tarn32s, min)
TARN_DEFINE_KERNEL(ownsMinEvery_32f_I, VECTORS_I, Tarn32f, min)
TARN_DEFINE_KERNEL(ownsMaxEvery_16s_I, VECTORS_I, Tarn16s, max)
TARN_DEFINE_KERNEL(ownsMaxEvery_32s_I, VECTORS_I, Tarn32s, max)
TARN_DEFINE_KERNEL(ownsMaxEvery_32f_I, VECTORS_I, Tarn32f, max)
