// Front ends of quotients of two vectors.
#include "tarns/divide.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psdiv.h"

using namespace tarn;

namespace {

template <typename T, typename... Scale>
TarnStatus divide(int (*kernel)(const T*, const T*, T*, int, Scale...), const T* pSrc1, const T* pSrc2, T* pDst,
                  int len, Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDst)) {
        return status;
    }
    return kernel(pSrc1, pSrc2, pDst, len, scaleFactor...) != 0 ? tarnStsDivByZero : tarnStsNoErr;
}

} // namespace

#define TARN_SCALED_DIV_FRONT_ENDS(TAG, KERNEL)                                                               \
    TarnStatus tarnsDiv_##TAG##_Sfs(const Tarn##TAG* pSrc1, const Tarn##TAG* pSrc2, Tarn##TAG* pDst, int len, \
                                    int scaleFactor)                                                          \
    {                                                                                                         \
        return divide(KERNEL, pSrc1, pSrc2, pDst, len, scaleFactor);                                          \
    }                                                                                                         \
    TarnStatus tarnsDiv_##TAG##_ISfs(const Tarn##TAG* pSrc, Tarn##TAG* pSrcDst, int len, int scaleFactor)     \
    {                                                                                                         \
        return tarnsDiv_##TAG##_Sfs(pSrc, pSrcDst, pSrcDst, len, scaleFactor);                                \
    }
#define TARN_DIV_FRONT_ENDS(TAG)                                                                        \
    TarnStatus tarnsDiv_##TAG(const Tarn##TAG* pSrc1, const Tarn##TAG* pSrc2, Tarn##TAG* pDst, int len) \
    {                                                                                                   \
        return divide(ownps_dkDiv_##TAG, pSrc1, pSrc2, pDst, len);                                      \
    }                                                                                                   \
    TarnStatus tarnsDiv_##TAG##_I(const Tarn##TAG* pSrc, Tarn##TAG* pSrcDst, int len)                   \
    {                                                                                                   \
        return tarnsDiv_##TAG(pSrc, pSrcDst, pSrcDst, len);                                             \
    }

TARN_SCALED_DIV_FRONT_ENDS(8u, ownps_Div_8u_Sfs)
TARN_SCALED_DIV_FRONT_ENDS(16s, ownps_dkDiv_16s_Sfs)
TARN_SCALED_DIV_FRONT_ENDS(16sc, ownps_dkDiv_16sc_Sfs)
TARN_SCALED_DIV_FRONT_ENDS(32s, ownps_Div_32s_Sfs)
TARN_DIV_FRONT_ENDS(32f)
TARN_DIV_FRONT_ENDS(64f)
TARN_DIV_FRONT_ENDS(32fc)
TARN_DIV_FRONT_ENDS(64fc)
