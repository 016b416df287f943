// Kernels of A-law and mu-law.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_LAW_KERNEL(NAME, S, D) TARN_KERNEL void NAME(const S* pSrc, D* pDst, int len)

TARN_DECLARE_LAW_KERNEL(ownsALawToLin_8u16s, Tarn8u, Tarn16s);
TARN_DECLARE_LAW_KERNEL(ownsALawToLin_8u32f, Tarn8u, Tarn32f);
TARN_DECLARE_LAW_KERNEL(ownsMuLawToLin_8u16s, Tarn8u, Tarn16s);
TARN_DECLARE_LAW_KERNEL(ownsMuLawToLin_8u32f, Tarn8u, Tarn32f);

TARN_DECLARE_LAW_KERNEL(ownsLinToALaw_16s8u, Tarn16s, Tarn8u);
TARN_DECLARE_LAW_KERNEL(ownsLinToALaw_32f8u, Tarn32f, Tarn8u);
TARN_DECLARE_LAW_KERNEL(ownsLinToMuLaw_16s8u, Tarn16s, Tarn8u);
TARN_DECLARE_LAW_KERNEL(ownsLinToMuLaw_32f8u, Tarn32f, Tarn8u);

TARN_DECLARE_LAW_KERNEL(ownsALawToMuLaw_8u, Tarn8u, Tarn8u);
TARN_DECLARE_LAW_KERNEL(ownsMuLawToALaw_8u, Tarn8u, Tarn8u);
