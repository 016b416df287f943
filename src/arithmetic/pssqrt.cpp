// Front ends of square roots.
#include "tarns/roots.h"

#include "frame/frontend.h"
#include "levels/arithmetic/pssqrt.h"

using namespace tarn;

namespace {

// Kernels of types that have negative elements tell of them.
template <typename T, typename... Scale>
TarnStatus extractRoots(int (*kernel)(const T*, T*, int, Scale...), const T* pSrc, T* pDst, int len,
                        Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return kernel(pSrc, pDst, len, scaleFactor...) != 0 ? tarnStsSqrtNegArg : tarnStsNoErr;
}
template <typename T, typename... Scale>
TarnStatus extractRoots(void (*kernel)(const T*, T*, int, Scale...), const T* pSrc, T* pDst, int len,
                        Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    kernel(pSrc, pDst, len, scaleFactor...);
    return tarnStsNoErr;
}

} // namespace

#define TARN_SCALED_SQRT_FRONT_ENDS(TAG)                                                               \
    TarnStatus tarnsSqrt_##TAG##_Sfs(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, int scaleFactor) \
    {                                                                                                  \
        return extractRoots(owntarnsSqrt_##TAG, pSrc, pDst, len, scaleFactor);                         \
    }                                                                                                  \
    TarnStatus tarnsSqrt_##TAG##_ISfs(Tarn##TAG* pSrcDst, int len, int scaleFactor)                    \
    {                                                                                                  \
        return extractRoots<Tarn##TAG>(owntarnsSqrt_##TAG, pSrcDst, pSrcDst, len, scaleFactor);        \
    }
#define TARN_SQRT_FRONT_ENDS(TAG)                                                  \
    TarnStatus tarnsSqrt_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len)    \
    {                                                                              \
        return extractRoots(owntarnsSqrt_##TAG, pSrc, pDst, len);                  \
    }                                                                              \
    TarnStatus tarnsSqrt_##TAG##_I(Tarn##TAG* pSrcDst, int len)                    \
    {                                                                              \
        return extractRoots<Tarn##TAG>(owntarnsSqrt_##TAG, pSrcDst, pSrcDst, len); \
    }

TARN_SCALED_SQRT_FRONT_ENDS(8u)
TARN_SCALED_SQRT_FRONT_ENDS(16s)
TARN_SCALED_SQRT_FRONT_ENDS(16u)
TARN_SCALED_SQRT_FRONT_ENDS(16sc)
TARN_SCALED_SQRT_FRONT_ENDS(64s)
TARN_SQRT_FRONT_ENDS(32f)
TARN_SQRT_FRONT_ENDS(32fc)
TARN_SQRT_FRONT_ENDS(64f)
TARN_SQRT_FRONT_ENDS(64fc)
