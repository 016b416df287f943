// Kernels of packed spectra: products, and expansion to all bins.
#pragma once

#include "frame/kernels.h"

// Either source may be the destination itself.
TARN_KERNEL void ownsMulPerm_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_KERNEL void ownsMulPerm_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_KERNEL void ownsMulPerm_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_KERNEL void ownsMulPack_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_KERNEL void ownsMulPack_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_KERNEL void ownsMulPack_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                     int scaleFactor);
TARN_KERNEL void ownsMulPackConj_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_KERNEL void ownsMulPackConj_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);

// The packed spectrum may lie where the bins begin.
TARN_KERNEL void ownsConjPerm_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_KERNEL void ownsConjPerm_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void ownsConjPerm_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);
TARN_KERNEL void ownsConjPack_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_KERNEL void ownsConjPack_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void ownsConjPack_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);
TARN_KERNEL void ownsConjCcs_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_KERNEL void ownsConjCcs_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void ownsConjCcs_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);

TARN_KERNEL void ownsConjFlip_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_KERNEL void ownsConjFlip_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void ownsConjFlip_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
