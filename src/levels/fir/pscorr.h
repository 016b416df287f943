// Kernels of correlation, each of the direct sums for the lags that it is told. None of them checks an argument.
#pragma once

#include "frame/kernels.h"

// -- One vector with itself: pDst[n] for n from 0 to dstLen - 1, which is below srcLen --------------------------------

#define TARN_AUTOCORRELATION_KERNEL(NAME, S, T) TARN_KERNEL void NAME(const S* pSrc, int srcLen, T* pDst, int dstLen)
TARN_AUTOCORRELATION_KERNEL(ownAutoCorr_32f, Tarn32f, Tarn32f);
TARN_AUTOCORRELATION_KERNEL(ownAutoCorr_64f, Tarn64f, Tarn64f);
TARN_AUTOCORRELATION_KERNEL(ownAutoCorr_32fc, Tarn32fc, Tarn32fc);
TARN_AUTOCORRELATION_KERNEL(ownAutoCorr_64fc, Tarn64fc, Tarn64fc);
TARN_AUTOCORRELATION_KERNEL(ownAutoCorr_16s_Sfs, Tarn16s, Tarn32f);

// The same by transforms where there are many lags; the status of one that fails, or of an allocation.
TARN_KERNEL TarnStatus ownAutoCorr_16s32f(const Tarn16s* pSrc, int srcLen, Tarn32f* pDst, int dstLen);

namespace tarn {

// dst[i] = count - i, the number of products in the sum of lag i, in both parts of a complex element.
template <typename T>
void fillOverlaps(T* dst, int len, int count);

// srcDst[i] = src[i] conj(srcDst[i]); src may be srcDst.
template <typename T>
void multiplyByConjugate(const T* src, T* srcDst, int len);

} // namespace tarn

// -- Two vectors: lags lowLag to lowLag + dstLen - 1 ------------------------------------------------------------------

// FirstTriangle and LastTriangle serve the lags at which the vectors overlap in part, ForwFilter those at which all of
// the first one lies within the second, BackFilter those at which all of the second one lies within the first.
#define TARN_CROSSCORRELATION_KERNEL(NAME, S, T) \
    TARN_KERNEL void NAME(const S* pSrc1, int src1Len, const S* pSrc2, int src2Len, T* pDst, int dstLen, int lowLag)
#define TARN_CROSSCORRELATION_KERNELS(TAG, S, T)                \
    TARN_CROSSCORRELATION_KERNEL(ownFirstTriangle_##TAG, S, T); \
    TARN_CROSSCORRELATION_KERNEL(ownForwFilter_##TAG, S, T);    \
    TARN_CROSSCORRELATION_KERNEL(ownBackFilter_##TAG, S, T);    \
    TARN_CROSSCORRELATION_KERNEL(ownLastTriangle_##TAG, S, T)
TARN_CROSSCORRELATION_KERNELS(32f, Tarn32f, Tarn32f);
TARN_CROSSCORRELATION_KERNELS(64f, Tarn64f, Tarn64f);
TARN_CROSSCORRELATION_KERNELS(32fc, Tarn32fc, Tarn32fc);
TARN_CROSSCORRELATION_KERNELS(64fc, Tarn64fc, Tarn64fc);
TARN_CROSSCORRELATION_KERNELS(16s32f, Tarn16s, Tarn32f);

// The same lags by transforms.
#define TARN_CROSSCORRELATION_BY_FFT(TAG, T)                                                                      \
    TARN_KERNEL TarnStatus ownCrossByFFT_##TAG(const T* pSrc1, int src1Len, const T* pSrc2, int src2Len, T* pDst, \
                                               int dstLen, int lowLag)
TARN_CROSSCORRELATION_BY_FFT(32f, Tarn32f);
TARN_CROSSCORRELATION_BY_FFT(64f, Tarn64f);
TARN_CROSSCORRELATION_BY_FFT(32fc, Tarn32fc);
TARN_CROSSCORRELATION_BY_FFT(64fc, Tarn64fc);
TARN_KERNEL TarnStatus ownCrossByFFT_16s(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len,
                                         Tarn16s* pDst, int dstLen, int lowLag, int scaleFactor);
