// Kernels that square each element. The source may be the destination itself.
#pragma once

#include "frame/kernels.h"

// Scale factors above these limits leave nothing of any square.
namespace tarn {
inline constexpr ScaleLimits squareLimits_8u{16, 7};
inline constexpr ScaleLimits squareLimits_16s{30, 14};
inline constexpr ScaleLimits squareLimits_16u{32, 15};
inline constexpr ScaleLimits squareLimits_16sc{31, 15};
} // namespace tarn

TARN_KERNEL void owntarnsSqr_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqr_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqr_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqr_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqr_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsSqr_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void owntarnsSqr_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_KERNEL void owntarnsSqr_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
