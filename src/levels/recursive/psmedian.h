// Kernels of the running median. `maskSize` is at least 1 and `len` is, too; the first and the last element stay.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_SMALL_MEDIANS(TAG)                                            \
    TARN_KERNEL void owntarnsFilterMedian3_##TAG##_I(Tarn##TAG* pSrcDst, int len); \
    TARN_KERNEL void owntarnsFilterMedian5_##TAG##_I(Tarn##TAG* pSrcDst, int len); \
    TARN_KERNEL void owntarnsFilterMedian7_##TAG##_I(Tarn##TAG* pSrcDst, int len); \
    TARN_KERNEL void owntarnsFilterMedian9_##TAG##_I(Tarn##TAG* pSrcDst, int len)

TARN_DECLARE_SMALL_MEDIANS(8u);
TARN_DECLARE_SMALL_MEDIANS(16s);
TARN_DECLARE_SMALL_MEDIANS(32f);
TARN_DECLARE_SMALL_MEDIANS(64f);

// Any mask: the status is that of the call.
TARN_KERNEL TarnStatus owntarnsFilterMedian_8u_I(Tarn8u* pSrcDst, int len, int maskSize);
TARN_KERNEL TarnStatus owntarnsFilterMedian_16s_I(Tarn16s* pSrcDst, int len, int maskSize);
TARN_KERNEL TarnStatus owntarnsFilterMedian_32s_I(Tarn32s* pSrcDst, int len, int maskSize);
TARN_KERNEL TarnStatus owntarnsFilterMedian_32f_I(Tarn32f* pSrcDst, int len, int maskSize);
TARN_KERNEL TarnStatus owntarnsFilterMedian_64f_I(Tarn64f* pSrcDst, int len, int maskSize);
TARN_KERNEL TarnStatus owntarnsFilterMedian_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, int maskSize);

// A sorted window of `maskSize` elements slides over the data. There is room for two windows at `pWork`, each rounded
// up to a multiple of `windowGranule` (psmedian_window.h).
TARN_KERNEL void owntarnsFilterMedianX_32f_I(Tarn32f* pSrcDst, int len, int maskSize, Tarn32f* pWork);
TARN_KERNEL void owntarnsFilterMedianX_64f_I(Tarn64f* pSrcDst, int len, int maskSize, Tarn64f* pWork);

// Ascending.
TARN_KERNEL void owntarnsTarn32sSort(Tarn32s* pSrcDst, int len);
TARN_KERNEL void owntarnsTarn32fSort(Tarn32f* pSrcDst, int len);
TARN_KERNEL void owntarnsTarn64fSort(Tarn64f* pSrcDst, int len);

namespace tarn {

// What the kernels in place do with the source as destination.
template <typename T>
TarnStatus filterMedian(const T* pSrc, T* pDst, int len, int maskSize);

} // namespace tarn
