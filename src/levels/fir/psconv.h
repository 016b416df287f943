// Kernels of convolution. None of them checks an argument.
#pragma once

#include "frame/kernels.h"

// Add the convolution of a long vector and a short one to the destination, src1Len + src2Len - 1 elements.
TARN_KERNEL void ownConv_32f(const Tarn32f* pSrc1, int src1Len, const Tarn32f* pSrc2, int src2Len, Tarn32f* pDst);
TARN_KERNEL void ownConv_64f(const Tarn64f* pSrc1, int src1Len, const Tarn64f* pSrc2, int src2Len, Tarn64f* pDst);

// Cyclic convolutions of 8 and of 4 elements; the destination may be a source.
TARN_KERNEL void ownConvCyclic8x8_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst);
TARN_KERNEL void ownConvCyclic4x4_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst);
TARN_KERNEL void ownConvCyclic8x8_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int scaleFactor);
