// Front ends of absolute values.
#include "tarns/roots.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psabs.h"

using namespace tarn;

#define TARN_ABS_FRONT_ENDS(TAG)                                               \
    TarnStatus tarnsAbs_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                          \
        return runKernel(owntarnsAbs_##TAG, pSrc, pDst, len);                  \
    }                                                                          \
    TarnStatus tarnsAbs_##TAG##_I(Tarn##TAG* pSrcDst, int len)                 \
    {                                                                          \
        return runKernel<Tarn##TAG>(owntarnsAbs_##TAG, pSrcDst, pSrcDst, len); \
    }

TARN_ABS_FRONT_ENDS(16s)
TARN_ABS_FRONT_ENDS(32s)
TARN_ABS_FRONT_ENDS(32f)
TARN_ABS_FRONT_ENDS(64f)
