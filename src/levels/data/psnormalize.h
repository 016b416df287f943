// Kernels of normalization.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_NORMALIZE_KERNEL(TAG, DIVISOR) \
    TARN_KERNEL void ownsNormalize_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG vSub, DIVISOR vDiv)

TARN_DECLARE_NORMALIZE_KERNEL(32f, Tarn32f);
TARN_DECLARE_NORMALIZE_KERNEL(32fc, Tarn32f);
TARN_DECLARE_NORMALIZE_KERNEL(64f, Tarn64f);
TARN_DECLARE_NORMALIZE_KERNEL(64fc, Tarn64f);

TARN_KERNEL void ownsNormalize_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s vSub, int vDiv,
                                   int scaleFactor);
TARN_KERNEL void ownsNormalize_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16sc vSub, int vDiv,
                                    int scaleFactor);
