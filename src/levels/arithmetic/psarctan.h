// Kernels of the arctangent. The source may be the destination itself.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void Atan_A6(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void Atan_W7(const Tarn64f* pSrc, Tarn64f* pDst, int len);
