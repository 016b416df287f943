// Kernels of the thresholds. In place the source is the destination.
#pragma once

#include "frame/kernels.h"

// The element types, and those of their levels: all have limits and replaced values, real ones a band, floats an
// inverse.
#define TARN_THRESHOLDS(X) \
    X(16s, Tarn16s)        \
    X(16sc, Tarn16s)       \
    X(32f, Tarn32f)        \
    X(32fc, Tarn32f)       \
    X(64f, Tarn64f)        \
    X(64fc, Tarn64f)
#define TARN_BAND_THRESHOLDS(X) X(16s) X(32f) X(64f)
#define TARN_INVERSE_THRESHOLDS(X) \
    X(32f, Tarn32f)                \
    X(32fc, Tarn32f)               \
    X(64f, Tarn64f)                \
    X(64fc, Tarn64f)

#define TARN_DECLARE_THRESHOLD_KERNELS(TAG, LEVEL)                                                                  \
    TARN_KERNEL void owntarnsThresh_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level, int relOp); \
    TARN_KERNEL void owntarnsThreshLTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level,      \
                                                 Tarn##TAG value);                                                  \
    TARN_KERNEL void owntarnsThreshGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level,      \
                                                 Tarn##TAG value);

TARN_THRESHOLDS(TARN_DECLARE_THRESHOLD_KERNELS)
TARN_KERNEL void owntarnsThresh_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32s level, int relOp);

#define TARN_DECLARE_BAND_KERNEL(TAG)                                                                            \
    TARN_KERNEL void owntarnsThreshLTValueGTValue_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len,         \
                                                        Tarn##TAG levelLT, Tarn##TAG valueLT, Tarn##TAG levelGT, \
                                                        Tarn##TAG valueGT);

TARN_BAND_THRESHOLDS(TARN_DECLARE_BAND_KERNEL)

// Nonzero if a division by zero gave an infinity.
#define TARN_DECLARE_INVERSE_KERNEL(TAG, LEVEL) \
    TARN_KERNEL int owntarnsInvThresh_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level);

TARN_INVERSE_THRESHOLDS(TARN_DECLARE_INVERSE_KERNEL)
