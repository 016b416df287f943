// Kernels of conversion. Scale factors have been brought into the range of the function; `rndMode` 0 truncates, any
// other value rounds to nearest.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_CONVERSION(NAME, S, D) TARN_KERNEL void NAME(const S* pSrc, D* pDst, int len)
#define TARN_DECLARE_SCALED_CONVERSION(NAME, S, D) \
    TARN_KERNEL void NAME(const S* pSrc, D* pDst, int len, int scaleFactor)

TARN_DECLARE_CONVERSION(ownsConvert_8s16s_W7, Tarn8s, Tarn16s);
TARN_DECLARE_CONVERSION(ownsConvert_16s32s_W7, Tarn16s, Tarn32s);
TARN_DECLARE_CONVERSION(ownsConvert_24u32u_W7, Tarn8u, Tarn32u);
TARN_DECLARE_CONVERSION(ownsConvert_24s32s_W7, Tarn8u, Tarn32s);

TARN_DECLARE_CONVERSION(ownsConvert_8s32f_W7, Tarn8s, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_8u32f_W7, Tarn8u, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_16s32f_W7, Tarn16s, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_16u32f_W7, Tarn16u, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_24s32f_W7, Tarn8u, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_24u32f_W7, Tarn8u, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_32s32f_W7, Tarn32s, Tarn32f);
TARN_DECLARE_CONVERSION(ownsConvert_16s64f_Sfs0_W7, Tarn16s, Tarn64f);
TARN_DECLARE_CONVERSION(owntarnsCnvrt_32s64f, Tarn32s, Tarn64f);
TARN_DECLARE_CONVERSION(ownsConvert_32f64f_W7, Tarn32f, Tarn64f);
TARN_DECLARE_CONVERSION(ownsConvert_64f32f_W7, Tarn64f, Tarn32f);

// Multiplied by 2^-scaleFactor.
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_16s32f_SfsPosNeg_W7, Tarn16s, Tarn32f);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_16s64f_SfsPosNeg_W7, Tarn16s, Tarn64f);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s32f_SfsPosNeg_W7, Tarn32s, Tarn32f);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s64f_SfsPosNeg_W7, Tarn32s, Tarn64f);

// By the scale rule: without a scale, for a positive scale factor, for a negative one, which comes negated.
TARN_DECLARE_CONVERSION(ownsConvert_32s16s_W7, Tarn32s, Tarn16s);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s16s_SfsPos_W7, Tarn32s, Tarn16s);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s16s_SfsNeg_W7, Tarn32s, Tarn16s);
TARN_DECLARE_CONVERSION(ownsConvert_32s24s_Sfs0_W7, Tarn32s, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s24s_SfsPos_W7, Tarn32s, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32s24s_SfsNeg_W7, Tarn32s, Tarn8u);
TARN_DECLARE_CONVERSION(ownsConvert_32u24u_Sfs0_W7, Tarn32u, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32u24u_SfsPos_W7, Tarn32u, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32u24u_SfsNeg_W7, Tarn32u, Tarn8u);

// Floats as integers; any scale factor.
#define TARN_DECLARE_ROUNDED_CONVERSION(NAME, S, D)                            \
    TARN_KERNEL void NAME##0_W7(const S* pSrc, D* pDst, int len, int rndMode); \
    TARN_KERNEL void NAME##PosNeg_W7(const S* pSrc, D* pDst, int len, int rndMode, int scaleFactor)

TARN_DECLARE_ROUNDED_CONVERSION(ownsConvert_32f8s_Sfs, Tarn32f, Tarn8s);
TARN_DECLARE_ROUNDED_CONVERSION(ownsConvert_32f8u_Sfs, Tarn32f, Tarn8u);
TARN_DECLARE_ROUNDED_CONVERSION(ownsConvert_32f16s_Sfs, Tarn32f, Tarn16s);
TARN_DECLARE_ROUNDED_CONVERSION(ownsConvert_32f16u_Sfs, Tarn32f, Tarn16u);
TARN_DECLARE_ROUNDED_CONVERSION(ownsConvert_32f32s_Sfs, Tarn32f, Tarn32s);
TARN_KERNEL void owntarnsCnvrt_64f32s_Sfs(const Tarn64f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor);
TARN_DECLARE_CONVERSION(ownsConvert_32f24s_Sfs0_W7, Tarn32f, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32f24s_SfsPosNeg_W7, Tarn32f, Tarn8u);
TARN_DECLARE_CONVERSION(ownsConvert_32f24u_Sfs0_W7, Tarn32f, Tarn8u);
TARN_DECLARE_SCALED_CONVERSION(ownsConvert_32f24u_SfsPosNeg_W7, Tarn32f, Tarn8u);

// Half precision; here only a `rndMode` of exactly 1 rounds to nearest.
TARN_KERNEL void ownsConvert_16s16f_W7(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode);
TARN_KERNEL void ownsConvert_32f16f_W7(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode);
TARN_DECLARE_CONVERSION(ownsConvert_16f32f_W7, Tarn16s, Tarn32f);
TARN_KERNEL void owntarnsCnvrt_16f16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor);
