// Kernels of sorting.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_SORT_KERNELS(TAG)                                      \
    TARN_KERNEL void ownsSortAscend_##TAG##_I(Tarn##TAG* pSrcDst, int len); \
    TARN_KERNEL void ownsSortDescend_##TAG##_I(Tarn##TAG* pSrcDst, int len)

TARN_DECLARE_SORT_KERNELS(8u);
TARN_DECLARE_SORT_KERNELS(16s);
TARN_DECLARE_SORT_KERNELS(32s);
TARN_DECLARE_SORT_KERNELS(32f);
TARN_DECLARE_SORT_KERNELS(64f);
