// Front ends of the exponential.
#include "tarns/exponential.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psexp.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus scaledExponential(const T* pSrc, T* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if constexpr (sizeof(T) < sizeof(Tarn64s)) {
        exponentials(pSrc, pDst, len, scaleFactor);
    } else if (scaleFactor == 0) {
        exponentials(pSrc, pDst, len);
    } else {
        Exp_64s_P6(pSrc, pDst, len, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_SCALED_EXP(TAG)                                                                          \
    TarnStatus tarnsExp_##TAG##_Sfs(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, int scaleFactor) \
    {                                                                                                 \
        return scaledExponential(pSrc, pDst, len, scaleFactor);                                       \
    }                                                                                                 \
    TarnStatus tarnsExp_##TAG##_ISfs(Tarn##TAG* pSrcDst, int len, int scaleFactor)                    \
    {                                                                                                 \
        return scaledExponential<Tarn##TAG>(pSrcDst, pSrcDst, len, scaleFactor);                      \
    }

TARN_SCALED_EXP(16s)
TARN_SCALED_EXP(32s)
TARN_SCALED_EXP(64s)

TarnStatus tarnsExp_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(tarnsExp_32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsExp_32f_I(Tarn32f* pSrcDst, int len)
{
    return runKernel<Tarn32f>(tarnsExp_32f_W7, pSrcDst, pSrcDst, len);
}

TarnStatus tarnsExp_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    return runKernel(tarnsExp_64f_P6, pSrc, pDst, len);
}

TarnStatus tarnsExp_64f_I(Tarn64f* pSrcDst, int len)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    tarnsExp_64f_I_P6(pSrcDst, len);
    return tarnStsNoErr;
}

TarnStatus tarnsExp_32f64f(const Tarn32f* pSrc, Tarn64f* pDst, int len)
{
    return runKernel(tarnsExp_32f_46f_P6, pSrc, pDst, len);
}
