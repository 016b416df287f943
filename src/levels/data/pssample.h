// Kernels that leave samples out and put zeros between them. Elements of one width share them: `16sc` takes those of
// `32f`, `32fc` those of `64f`. Sources start at the first sample that is taken.
#pragma once

#include "frame/kernels.h"

// Every second element, or every `factor`-th one: `count` of them, of a source of `srcLen`.
#define TARN_DECLARE_SAMPLE_DOWN_KERNELS(TAG)                                                                   \
    TARN_KERNEL void ownsSampleDown##TAG##_2_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int count); \
    TARN_KERNEL void ownsSampleDown##TAG##_W7(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int count, int factor)

// Elements at `phase` of every pair, or of every `factor` elements, and zeros between them.
#define TARN_DECLARE_SAMPLE_UP_KERNELS(TAG)                                                                   \
    TARN_KERNEL void ownsSampleUp##TAG##_2_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int phase); \
    TARN_KERNEL void ownsSampleUp##TAG##_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int factor, int phase)

TARN_DECLARE_SAMPLE_DOWN_KERNELS(16s);
TARN_DECLARE_SAMPLE_DOWN_KERNELS(32f);
TARN_DECLARE_SAMPLE_DOWN_KERNELS(64f);
TARN_DECLARE_SAMPLE_DOWN_KERNELS(64fc);
TARN_DECLARE_SAMPLE_UP_KERNELS(16s);
TARN_DECLARE_SAMPLE_UP_KERNELS(32f);
TARN_DECLARE_SAMPLE_UP_KERNELS(64f);
TARN_DECLARE_SAMPLE_UP_KERNELS(64fc);
