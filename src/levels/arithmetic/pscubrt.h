// Kernels of cube roots. The source may be the destination itself.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void CubeRoot32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len);
// The factor is one that multiplies.
TARN_KERNEL void CubeRoot32s16s_W7(const Tarn32s* pSrc, Tarn16s* pDst, int len, Tarn32f factor);
