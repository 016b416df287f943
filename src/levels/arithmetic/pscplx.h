// Kernels of conjugates, and of complex vectors taken apart and put together.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_CPLX_KERNELS(C, T)                                                                             \
    TARN_KERNEL void ownsConj_##C##_T7(const Tarn##C* pSrc, Tarn##C* pDst, int len);                                \
    TARN_KERNEL void ownsConj_##C##_I_T7(Tarn##C* pSrcDst, int len);                                                \
    TARN_KERNEL void ownsReal_##C##_W7(const Tarn##C* pSrc, Tarn##T* pDst, int len);                                \
    TARN_KERNEL void ownsRealToCplx_##T##_W7(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##C* pDst, int len); \
    TARN_KERNEL void ownsRealToCplxRe_##T##_W7(const Tarn##T* pSrcRe, Tarn##C* pDst, int len);                      \
    TARN_KERNEL void ownsRealToCplxIm_##T##_W7(const Tarn##T* pSrcIm, Tarn##C* pDst, int len)

TARN_DECLARE_CPLX_KERNELS(16sc, 16s);
TARN_DECLARE_CPLX_KERNELS(32fc, 32f);
TARN_DECLARE_CPLX_KERNELS(64fc, 64f);

// Imaginary parts of 64fc are what ownsReal_64fc_W7 finds one double further on: it touches no other part than those it
// copies.
TARN_KERNEL void ownsImag_16sc_W7(const Tarn16sc* pSrc, Tarn16s* pDst, int len);
TARN_KERNEL void ownsImag_32fc_W7(const Tarn32fc* pSrc, Tarn32f* pDst, int len);

namespace tarn {

// Both parts in one pass, which reads each element once: of 16sc and 32fc. Registers of two doubles gain nothing by it.
template <typename C>
void splitParts(const C* src, Part<C>* re, Part<C>* im, int len);

} // namespace tarn
