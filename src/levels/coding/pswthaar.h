// Kernels of the Haar transform. `len` is that of the vector at full rate; scale factors are none that leave only
// zeros.
#pragma once

#include "frame/kernels.h"

namespace tarn {
template <typename T>
inline constexpr int bitsOfType = 8 * static_cast<int>(sizeof(T));
} // namespace tarn

#define TARN_DECLARE_HAAR_KERNELS(TAG)                                                                             \
    TARN_KERNEL void ownsWTHaarFwd_##TAG(const Tarn##TAG* pSrc, int len, Tarn##TAG* pDstLow, Tarn##TAG* pDstHigh); \
    TARN_KERNEL void ownsWTHaarInv_##TAG(const Tarn##TAG* pSrcLow, const Tarn##TAG* pSrcHigh, Tarn##TAG* pDst, int len)
#define TARN_DECLARE_SCALED_HAAR_KERNELS(TAG)                                                                        \
    TARN_DECLARE_HAAR_KERNELS(TAG);                                                                                  \
    TARN_KERNEL void ownsWTHaarFwd_##TAG##_Sfs(const Tarn##TAG* pSrc, int len, Tarn##TAG* pDstLow,                   \
                                               Tarn##TAG* pDstHigh, int scaleFactor);                                \
    TARN_KERNEL void ownsWTHaarInv_##TAG##_Sfs(const Tarn##TAG* pSrcLow, const Tarn##TAG* pSrcHigh, Tarn##TAG* pDst, \
                                               int len, int scaleFactor)

TARN_DECLARE_SCALED_HAAR_KERNELS(8s);
TARN_DECLARE_SCALED_HAAR_KERNELS(16s);
TARN_DECLARE_SCALED_HAAR_KERNELS(32s);
TARN_DECLARE_SCALED_HAAR_KERNELS(64s);
TARN_DECLARE_HAAR_KERNELS(32f);
TARN_DECLARE_HAAR_KERNELS(64f);
