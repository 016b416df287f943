// Front ends of the Haar transform.
#include "tarns/haar.h"

#include "frame/frontend.h"
#include "levels/coding/pswthaar.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus forward(void (*kernel)(const T*, int, T*, T*), const T* pSrc, int len, T* pDstLow, T* pDstHigh)
{
    if (const TarnStatus status = check(len, pSrc, pDstLow, pDstHigh)) {
        return status;
    }
    kernel(pSrc, len, pDstLow, pDstHigh);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverse(void (*kernel)(const T*, const T*, T*, int), const T* pSrcLow, const T* pSrcHigh, T* pDst, int len)
{
    return runKernel(kernel, pSrcLow, pSrcHigh, pDst, len);
}

// Forward the halving is one more step of the scale: a factor of the width leaves only zeros.
template <typename T>
TarnStatus forwardScaled(TarnStatus (*unscaled)(const T*, int, T*, T*), void (*kernel)(const T*, int, T*, T*, int),
                         const T* pSrc, int len, T* pDstLow, T* pDstHigh, int scaleFactor)
{
    if (scaleFactor == 0) {
        return unscaled(pSrc, len, pDstLow, pDstHigh);
    }
    if (const TarnStatus status = check(len, pSrc, pDstLow, pDstHigh)) {
        return status;
    }
    if (scaleFactor >= bitsOfType<T>) {
        zeroFill(pDstLow, len - len / 2);
        if (len > 1) {
            zeroFill(pDstHigh, len / 2);
        }
    } else {
        kernel(pSrc, len, pDstLow, pDstHigh, scaleFactor);
    }
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverseScaled(TarnStatus (*unscaled)(const T*, const T*, T*, int),
                         void (*kernel)(const T*, const T*, T*, int, int), const T* pSrcLow, const T* pSrcHigh, T* pDst,
                         int len, int scaleFactor)
{
    if (scaleFactor == 0) {
        return unscaled(pSrcLow, pSrcHigh, pDst, len);
    }
    if (const TarnStatus status = check(len, pSrcLow, pSrcHigh, pDst)) {
        return status;
    }
    if (scaleFactor > bitsOfType<T>) {
        zeroFill(pDst, len);
    } else {
        kernel(pSrcLow, pSrcHigh, pDst, len, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_HAAR(TAG)                                                                                             \
    TarnStatus tarnsWTHaarFwd_##TAG(const Tarn##TAG* pSrc, int len, Tarn##TAG* pDstLow, Tarn##TAG* pDstHigh)       \
    {                                                                                                              \
        return forward(ownsWTHaarFwd_##TAG, pSrc, len, pDstLow, pDstHigh);                                         \
    }                                                                                                              \
    TarnStatus tarnsWTHaarInv_##TAG(const Tarn##TAG* pSrcLow, const Tarn##TAG* pSrcHigh, Tarn##TAG* pDst, int len) \
    {                                                                                                              \
        return inverse(ownsWTHaarInv_##TAG, pSrcLow, pSrcHigh, pDst, len);                                         \
    }
#define TARN_SCALED_HAAR(TAG)                                                                                      \
    TARN_HAAR(TAG)                                                                                                 \
    TarnStatus tarnsWTHaarFwd_##TAG##_Sfs(const Tarn##TAG* pSrc, int len, Tarn##TAG* pDstLow, Tarn##TAG* pDstHigh, \
                                          int scaleFactor)                                                         \
    {                                                                                                              \
        return forwardScaled(tarnsWTHaarFwd_##TAG, ownsWTHaarFwd_##TAG##_Sfs, pSrc, len, pDstLow, pDstHigh,        \
                             scaleFactor);                                                                         \
    }                                                                                                              \
    TarnStatus tarnsWTHaarInv_##TAG##_Sfs(const Tarn##TAG* pSrcLow, const Tarn##TAG* pSrcHigh, Tarn##TAG* pDst,    \
                                          int len, int scaleFactor)                                                \
    {                                                                                                              \
        return inverseScaled(tarnsWTHaarInv_##TAG, ownsWTHaarInv_##TAG##_Sfs, pSrcLow, pSrcHigh, pDst, len,        \
                             scaleFactor);                                                                         \
    }

TARN_SCALED_HAAR(8s)
TARN_SCALED_HAAR(16s)
TARN_SCALED_HAAR(32s)
TARN_SCALED_HAAR(64s)
TARN_HAAR(32f)
TARN_HAAR(64f)
