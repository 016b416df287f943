// Kernels of dot products.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_DOT(NAME, A, B, D) TARN_KERNEL void NAME(const A* pSrc1, const B* pSrc2, int len, D* pDp)

TARN_DECLARE_DOT(ownsDotProd_32f, Tarn32f, Tarn32f, Tarn32f);
TARN_DECLARE_DOT(ownsDotProd_32fc, Tarn32fc, Tarn32fc, Tarn32fc);
TARN_DECLARE_DOT(ownsDotProd_32f32fc, Tarn32f, Tarn32fc, Tarn32fc);
TARN_DECLARE_DOT(ownsDotProd_64f, Tarn64f, Tarn64f, Tarn64f);
TARN_DECLARE_DOT(ownsDotProd_64fc, Tarn64fc, Tarn64fc, Tarn64fc);
TARN_DECLARE_DOT(ownsDotProd_64f64fc, Tarn64f, Tarn64fc, Tarn64fc);
TARN_DECLARE_DOT(ownsDotProd_32f64f, Tarn32f, Tarn32f, Tarn64f);
TARN_DECLARE_DOT(ownsDotProd_32fc64fc, Tarn32fc, Tarn32fc, Tarn64fc);
TARN_DECLARE_DOT(ownsDotProd_32f32fc64fc, Tarn32f, Tarn32fc, Tarn64fc);

// Exact sums of 16-bit products.
TARN_DECLARE_DOT(DotProd_16s64s, Tarn16s, Tarn16s, Tarn64s);
TARN_DECLARE_DOT(DotProd_16sc64sc, Tarn16sc, Tarn16sc, Tarn64sc);
TARN_DECLARE_DOT(DotProd_16s16sc64sc, Tarn16s, Tarn16sc, Tarn64sc);

// Sums of 32-bit products in double precision, scaled and rounded to nearest whatever the caller's rounding mode.
#define TARN_DECLARE_SCALED_DOT(NAME, A, B, D) \
    TARN_KERNEL void NAME(const A* pSrc1, const B* pSrc2, int len, D* pDp, int scaleFactor)

TARN_DECLARE_SCALED_DOT(ownsDotProd_32s_Sfs, Tarn32s, Tarn32s, Tarn32s);
TARN_DECLARE_SCALED_DOT(ownsDotProd_32sc_Sfs, Tarn32sc, Tarn32sc, Tarn32sc);
TARN_DECLARE_SCALED_DOT(ownsDotProd_32s32sc_Sfs, Tarn32s, Tarn32sc, Tarn32sc);
TARN_DECLARE_SCALED_DOT(ownsDotProd_16s32s32s_Sfs, Tarn16s, Tarn32s, Tarn32s);
