// Front ends of the arctangent.
#include "tarns/exponential.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psarctan.h"

using namespace tarn;

#define TARN_ARCTAN(TAG, KERNEL)                                                  \
    TarnStatus tarnsArctan_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                             \
        return runKernel(KERNEL, pSrc, pDst, len);                                \
    }                                                                             \
    TarnStatus tarnsArctan_##TAG##_I(Tarn##TAG* pSrcDst, int len)                 \
    {                                                                             \
        return runKernel<Tarn##TAG>(KERNEL, pSrcDst, pSrcDst, len);               \
    }

TARN_ARCTAN(32f, Atan_A6)
TARN_ARCTAN(64f, Atan_W7)
