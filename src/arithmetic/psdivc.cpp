// Front ends of quotients by a constant, and of a constant by a vector.
#include "tarns/divide.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psdivc.h"
#include "tarns/data.h"
#include "tarns/multiply.h"

using namespace tarn;

namespace {

template <typename T>
bool isZero(T val)
{
    if constexpr (isComplex<T>) {
        return val.re == 0 && val.im == 0;
    } else {
        return val == 0;
    }
}

template <typename T, typename... Scale>
TarnStatus divideByConstant(void (*kernel)(const T*, T, T*, int, Scale...), const T* pSrc, T val, T* pDst, int len,
                            Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (isZero(val)) {
        return tarnStsDivByZeroErr;
    }
    kernel(pSrc, val, pDst, len, scaleFactor...);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus divideConstant(int (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return kernel(pSrc, val, pDst, len) != 0 ? tarnStsDivByZero : tarnStsNoErr;
}

} // namespace

#define TARN_SCALED_DIVC_FRONT_ENDS(TAG)                                                                              \
    TarnStatus tarnsDivC_##TAG##_Sfs(const Tarn##TAG* pSrc, Tarn##TAG val, Tarn##TAG* pDst, int len, int scaleFactor) \
    {                                                                                                                 \
        return divideByConstant(ownps_dkDivC_##TAG##_Sfs, pSrc, val, pDst, len, scaleFactor);                         \
    }                                                                                                                 \
    TarnStatus tarnsDivC_##TAG##_ISfs(Tarn##TAG val, Tarn##TAG* pSrcDst, int len, int scaleFactor)                    \
    {                                                                                                                 \
        return divideByConstant<Tarn##TAG>(ownps_dkDivC_##TAG##_Sfs, pSrcDst, val, pSrcDst, len, scaleFactor);        \
    }
#define TARN_COMPLEX_DIVC_FRONT_ENDS(TAG)                                                      \
    TarnStatus tarnsDivC_##TAG(const Tarn##TAG* pSrc, Tarn##TAG val, Tarn##TAG* pDst, int len) \
    {                                                                                          \
        return divideByConstant(ownps_dkDivC_##TAG, pSrc, val, pDst, len);                     \
    }                                                                                          \
    TarnStatus tarnsDivC_##TAG##_I(Tarn##TAG val, Tarn##TAG* pSrcDst, int len)                 \
    {                                                                                          \
        return divideByConstant<Tarn##TAG>(ownps_dkDivC_##TAG, pSrcDst, val, pSrcDst, len);    \
    }
// Here the constant is looked at first; pointers and length are left to the product by its reciprocal.
#define TARN_FLOAT_DIVC_FRONT_ENDS(TAG)                                                                     \
    TarnStatus tarnsDivC_##TAG(const Tarn##TAG* pSrc, Tarn##TAG val, Tarn##TAG* pDst, int len)              \
    {                                                                                                       \
        return equalOrUnordered(val, 0) ? tarnStsDivByZeroErr : tarnsMulC_##TAG(pSrc, 1 / val, pDst, len);  \
    }                                                                                                       \
    TarnStatus tarnsDivC_##TAG##_I(Tarn##TAG val, Tarn##TAG* pSrcDst, int len)                              \
    {                                                                                                       \
        return equalOrUnordered(val, 0) ? tarnStsDivByZeroErr : tarnsMulC_##TAG##_I(1 / val, pSrcDst, len); \
    }

TARN_SCALED_DIVC_FRONT_ENDS(8u)
TARN_SCALED_DIVC_FRONT_ENDS(16s)
TARN_SCALED_DIVC_FRONT_ENDS(16sc)
TARN_COMPLEX_DIVC_FRONT_ENDS(32fc)
TARN_COMPLEX_DIVC_FRONT_ENDS(64fc)
TARN_FLOAT_DIVC_FRONT_ENDS(32f)
TARN_FLOAT_DIVC_FRONT_ENDS(64f)

// Zero over anything is zero, over zero too, and nothing is tested then.
TarnStatus tarnsDivCRev_16u(const Tarn16u* pSrc, Tarn16u val, Tarn16u* pDst, int len)
{
    if (val == 0) {
        if (len >= 1) {
            zeroFill(pDst, len);
        }
        return tarnStsNoErr;
    }
    return divideConstant(ownps_dkDivCRev_16u, pSrc, val, pDst, len);
}

TarnStatus tarnsDivCRev_16u_I(Tarn16u val, Tarn16u* pSrcDst, int len)
{
    return tarnsDivCRev_16u(pSrcDst, val, pSrcDst, len);
}

TarnStatus tarnsDivCRev_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len)
{
    return equalOrUnordered(val, 0) ? tarnsZero_32f(pDst, len)
                                    : divideConstant(ownps_DivCRev_32f, pSrc, val, pDst, len);
}

TarnStatus tarnsDivCRev_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len)
{
    return tarnsDivCRev_32f(pSrcDst, val, pSrcDst, len);
}
