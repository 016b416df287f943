// Kernels of phases, and of the way from polar coordinates.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void Phase_16s32f_W7(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void Phase_16sc32f_W7(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void Phase_32f_W7(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void Phase_32fc_W7(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void Phase_64f_W7(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_KERNEL void Phase_64fc_W7(const Tarn64fc* pSrc, Tarn64f* pDst, int len);

// Unscaled, and by a factor that multiplies.
TARN_KERNEL void Pase_16sf0_A6(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len);
TARN_KERNEL void Pase_16scf0_A6(const Tarn16sc* pSrc, Tarn16s* pDst, int len);
TARN_KERNEL void Pase_16s_A6(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, Tarn32f factor);
TARN_KERNEL void Pase_16sc_A6(const Tarn16sc* pSrc, Tarn16s* pDst, int len, Tarn32f factor);
TARN_KERNEL void Phase_32sc_W7(const Tarn32sc* pSrc, Tarn32s* pDst, int len, Tarn64f factor);

TARN_KERNEL void Plr2Crt_32f(const Tarn32f* pSrcMagn, const Tarn32f* pSrcPhase, Tarn32f* pDstRe, Tarn32f* pDstIm,
                             int len);
TARN_KERNEL void Plr2Crt_32fc(const Tarn32f* pSrcMagn, const Tarn32f* pSrcPhase, Tarn32fc* pDst, int len);
TARN_KERNEL void Plr2Crt_64f(const Tarn64f* pSrcMagn, const Tarn64f* pSrcPhase, Tarn64f* pDstRe, Tarn64f* pDstIm,
                             int len);
TARN_KERNEL void Plr2Crt_64fc(const Tarn64f* pSrcMagn, const Tarn64f* pSrcPhase, Tarn64fc* pDst, int len);

// Kernels without exported names: where the factor leaves the range of single precision.
namespace tarn {
void phaseByDoubles_16s(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, Tarn64f factor);
void phaseByDoubles_16sc(const Tarn16sc* pSrc, Tarn16s* pDst, int len, Tarn64f factor);
} // namespace tarn
