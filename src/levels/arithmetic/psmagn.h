// Kernels of magnitudes and of their squares, the power spectra.
#pragma once

#include "frame/kernels.h"

// Scale factors from -14 on; below them every magnitude but 0 saturates, which the kernels see to.
TARN_KERNEL void owntarnsMagn_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                      int scaleFactor);
TARN_KERNEL void owntarnsMagn_16sc16s_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsMagn_32sc32s_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor);
TARN_KERNEL void owntarnsMagn_16s32f(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsMagn_16sc32f(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsMagn_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsMagn_32fc(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void owntarnsMagn_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_KERNEL void owntarnsMagn_64fc(const Tarn64fc* pSrc, Tarn64f* pDst, int len);

TARN_KERNEL void tarnsPwrStr_16s_T7(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                    int scaleFactor);
TARN_KERNEL void tarnsPwrStr_16sc_T7(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor);
TARN_KERNEL void tarnsPwrStr_16s32f_T7(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void tarnsPwrStr_16sc32f_T7(const Tarn16sc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void tarnsPwrStr_32f_T7(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDst, int len);
TARN_KERNEL void tarnsPwrStr_32fc_T7(const Tarn32fc* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void tarnsPwrStr_64f_T7(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDst, int len);
TARN_KERNEL void tarnsPwrStr_64fc_T7(const Tarn64fc* pSrc, Tarn64f* pDst, int len);

// The factor is one that multiplies.
TARN_KERNEL void ownMagSquared_Sfs_W7(const Tarn32sc* pSrc, Tarn32s* pDst, int len, Tarn32f factor);

// From this factor on nothing of a magnitude of 16 bits is left, or of its square.
namespace tarn {
inline constexpr int magnitudeVanishes_16s = 17;
inline constexpr int powerVanishes_16s = 32;
} // namespace tarn
