// Front ends of the running median.
#include "tarns/median.h"

#include "frame/checks.h"
#include "levels/recursive/psmedian.h"

using namespace tarn;

namespace {

template <typename... T>
TarnStatus checkMask(int len, int maskSize, const T*... pointers)
{
    const TarnStatus status = check(len, pointers...);
    return status == tarnStsNoErr && maskSize < 1 ? tarnStsSizeErr : status;
}

template <typename T>
TarnStatus filterApart(TarnStatus (*kernel)(const T*, T*, int, int), const T* pSrc, T* pDst, int len, int maskSize)
{
    const TarnStatus status = checkMask(len, maskSize, pSrc, pDst);
    return status != tarnStsNoErr ? status : kernel(pSrc, pDst, len, maskSize);
}

template <typename T>
TarnStatus filterInPlace(TarnStatus (*kernel)(T*, int, int), T* pSrcDst, int len, int maskSize)
{
    const TarnStatus status = checkMask(len, maskSize, pSrcDst);
    return status != tarnStsNoErr ? status : kernel(pSrcDst, len, maskSize);
}

} // namespace

#define TARN_MEDIAN_FRONT_ENDS(TAG, KERNEL)                                                           \
    TarnStatus tarnsFilterMedian_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, int maskSize) \
    {                                                                                                 \
        return filterApart(KERNEL, pSrc, pDst, len, maskSize);                                        \
    }                                                                                                 \
    TarnStatus tarnsFilterMedian_##TAG##_I(Tarn##TAG* pSrcDst, int len, int maskSize)                 \
    {                                                                                                 \
        return filterInPlace(owntarnsFilterMedian_##TAG##_I, pSrcDst, len, maskSize);                 \
    }

TARN_MEDIAN_FRONT_ENDS(8u, filterMedian<Tarn8u>)
TARN_MEDIAN_FRONT_ENDS(16s, filterMedian<Tarn16s>)
TARN_MEDIAN_FRONT_ENDS(32s, owntarnsFilterMedian_32s)
TARN_MEDIAN_FRONT_ENDS(32f, filterMedian<Tarn32f>)
TARN_MEDIAN_FRONT_ENDS(64f, filterMedian<Tarn64f>)
