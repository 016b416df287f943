// Kernels of running averages and of pre-emphasis.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_UPDATE_KERNEL(NAME) \
    TARN_KERNEL void NAME(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)

// alpha from -180 to 181, of the fast one from -6 to 8; shifts to 15.
TARN_DECLARE_UPDATE_KERNEL(owntarnsUpdLinFst_16s32s_I_ASM);
TARN_DECLARE_UPDATE_KERNEL(owntarnsUpdLinAcc_16s32s_I_ASM);
// Any alpha, and its own conversion; shifts to 15.
TARN_DECLARE_UPDATE_KERNEL(owntarnsUpdLin_16s32s_I);
// Any alpha; shifts to 31.
TARN_DECLARE_UPDATE_KERNEL(owntarnsUpdPowFst_16s32s_I_ASM);
TARN_DECLARE_UPDATE_KERNEL(owntarnsUpdPowAcc_16s32s_I_ASM);

TARN_KERNEL void ownsPreemphasize_32f(Tarn32f* pSrcDst, int len, Tarn32f val);
TARN_KERNEL void ownsPreemphasize_16s(Tarn16s* pSrcDst, int len, Tarn32f val);
