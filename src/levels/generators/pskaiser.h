// Kernels of the Kaiser window: weights I0(|alpha sqrt(n (len - 1 - n))|) inv, and the modified Bessel function I0 of
// which inv is the reciprocal at the window's middle.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL Tarn64f ownsBessel_32f(Tarn64f x);
TARN_KERNEL Tarn64f ownsBessel_64f(Tarn64f x);

// Pointers to the first and to the last element; len is at least 2.
#define TARN_DECLARE_KAISER_KERNEL(TAG, REAL)                                                             \
    TARN_KERNEL void Kaiser_##TAG##_W7(const Tarn##TAG* pSrc, const Tarn##TAG* pSrcLast, Tarn##TAG* pDst, \
                                       Tarn##TAG* pDstLast, int len, REAL alpha, REAL inv)

TARN_DECLARE_KAISER_KERNEL(16s, Tarn32f);
TARN_DECLARE_KAISER_KERNEL(16sc, Tarn32f);
TARN_DECLARE_KAISER_KERNEL(32f, Tarn32f);
TARN_DECLARE_KAISER_KERNEL(32fc, Tarn32f);
TARN_DECLARE_KAISER_KERNEL(64f, Tarn64f);
TARN_DECLARE_KAISER_KERNEL(64fc, Tarn64f);
