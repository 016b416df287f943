// Front ends of squares.
#include "tarns/roots.h"

#include "frame/frontend.h"
#include "levels/arithmetic/pssqr.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus squareScaled(void (*kernel)(const T*, T*, int, int), ScaleLimits limits, const T* pSrc, T* pDst, int len,
                        int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (scaleFactor > limits.down) {
        zeroFill(pDst, len);
    } else {
        kernel(pSrc, pDst, len, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_SCALED_SQR_FRONT_ENDS(TAG)                                                                            \
    TarnStatus tarnsSqr_##TAG##_Sfs(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, int scaleFactor)              \
    {                                                                                                              \
        return squareScaled(owntarnsSqr_##TAG, squareLimits_##TAG, pSrc, pDst, len, scaleFactor);                  \
    }                                                                                                              \
    TarnStatus tarnsSqr_##TAG##_ISfs(Tarn##TAG* pSrcDst, int len, int scaleFactor)                                 \
    {                                                                                                              \
        return squareScaled<Tarn##TAG>(owntarnsSqr_##TAG, squareLimits_##TAG, pSrcDst, pSrcDst, len, scaleFactor); \
    }
#define TARN_SQR_FRONT_ENDS(TAG)                                               \
    TarnStatus tarnsSqr_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                          \
        return runKernel(owntarnsSqr_##TAG, pSrc, pDst, len);                  \
    }                                                                          \
    TarnStatus tarnsSqr_##TAG##_I(Tarn##TAG* pSrcDst, int len)                 \
    {                                                                          \
        return runKernel<Tarn##TAG>(owntarnsSqr_##TAG, pSrcDst, pSrcDst, len); \
    }

TARN_SCALED_SQR_FRONT_ENDS(8u)
TARN_SCALED_SQR_FRONT_ENDS(16s)
TARN_SCALED_SQR_FRONT_ENDS(16u)
TARN_SCALED_SQR_FRONT_ENDS(16sc)
TARN_SQR_FRONT_ENDS(32f)
TARN_SQR_FRONT_ENDS(32fc)
TARN_SQR_FRONT_ENDS(64f)
TARN_SQR_FRONT_ENDS(64fc)
