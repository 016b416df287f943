// Kernels of absolute values. The source may be the destination itself.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void owntarnsAbs_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len);
TARN_KERNEL void owntarnsAbs_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len);
TARN_KERNEL void owntarnsAbs_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsAbs_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len);
