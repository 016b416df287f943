// Kernels of square roots. Those of types that can be negative tell whether an element was. The source may be the
// destination itself.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void owntarnsSqrt_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len, int scaleFactor);
TARN_KERNEL int owntarnsSqrt_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqrt_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsSqrt_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int scaleFactor);
TARN_KERNEL int owntarnsSqrt_64s(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor);
TARN_KERNEL int owntarnsSqrt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsSqrt_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL int owntarnsSqrt_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_KERNEL void owntarnsSqrt_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
