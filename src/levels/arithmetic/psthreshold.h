// Kernels of the thresholds. In place the source is the destination.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_THRESHOLD_KERNELS(TAG, LEVEL)                                                                  \
    TARN_KERNEL void owntarnsThresh_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level, int relOp); \
    TARN_KERNEL void owntarnsThreshLTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level,      \
                                                 Tarn##TAG value);                                                  \
    TARN_KERNEL void owntarnsThreshGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level,      \
                                                 Tarn##TAG value)

TARN_DECLARE_THRESHOLD_KERNELS(16s, Tarn16s);
TARN_DECLARE_THRESHOLD_KERNELS(16sc, Tarn16s);
TARN_DECLARE_THRESHOLD_KERNELS(32f, Tarn32f);
TARN_DECLARE_THRESHOLD_KERNELS(32fc, Tarn32f);
TARN_DECLARE_THRESHOLD_KERNELS(64f, Tarn64f);
TARN_DECLARE_THRESHOLD_KERNELS(64fc, Tarn64f);
TARN_KERNEL void owntarnsThresh_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32s level, int relOp);

#define TARN_DECLARE_BAND_KERNEL(TAG)                                                                            \
    TARN_KERNEL void owntarnsThreshLTValueGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len,         \
                                                        Tarn##TAG levelLT, Tarn##TAG valueLT, Tarn##TAG levelGT, \
                                                        Tarn##TAG valueGT)

TARN_DECLARE_BAND_KERNEL(16s);
TARN_DECLARE_BAND_KERNEL(32f);
TARN_DECLARE_BAND_KERNEL(64f);

// Nonzero if a division by zero gave an infinity.
#define TARN_DECLARE_INVERSE_KERNEL(TAG, LEVEL) \
    TARN_KERNEL int owntarnsInvThresh_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level)

TARN_DECLARE_INVERSE_KERNEL(32f, Tarn32f);
TARN_DECLARE_INVERSE_KERNEL(32fc, Tarn32f);
TARN_DECLARE_INVERSE_KERNEL(64f, Tarn64f);
TARN_DECLARE_INVERSE_KERNEL(64fc, Tarn64f);
