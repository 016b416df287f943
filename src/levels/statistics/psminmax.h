// Kernels of extremes, with and without their places, and of the order of a vector.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void owntarnsMin_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin);
TARN_KERNEL void owntarnsMin_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin);
TARN_KERNEL void owntarnsMin_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin);
TARN_KERNEL void owntarnsMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax);
TARN_KERNEL void owntarnsMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax);
TARN_KERNEL void owntarnsMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax);

TARN_KERNEL void MiniMax_8u_T7(const Tarn8u* pSrc, int len, Tarn8u* pMin, Tarn8u* pMax);
TARN_KERNEL void MiniMax_16u_W7(const Tarn16u* pSrc, int len, Tarn16u* pMin, Tarn16u* pMax);
TARN_KERNEL void MiniMax_16s_T7(const Tarn16s* pSrc, int len, Tarn16s* pMin, Tarn16s* pMax);
TARN_KERNEL void MiniMax_32s_T7(const Tarn32s* pSrc, int len, Tarn32s* pMin, Tarn32s* pMax);
TARN_KERNEL void MiniMax_32f_W7(const Tarn32f* pSrc, int len, Tarn32f* pMin, Tarn32f* pMax);
TARN_KERNEL void MiniMax_64f_T7(const Tarn64f* pSrc, int len, Tarn64f* pMin, Tarn64f* pMax);

// Extreme and index, block by block for long vectors; the `M6` ones go element by element.
TARN_KERNEL void ownsMinIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx);
TARN_KERNEL void ownsMinIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx);
TARN_KERNEL void ownsMinIndx_16s_M6(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx);
TARN_KERNEL void ownsMinIndx_32f_M6(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx);
TARN_KERNEL void ownsMinIndx_64f_M6(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pIndx);
TARN_KERNEL void ownsMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx);
TARN_KERNEL void ownsMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx);
TARN_KERNEL void ownsMaxIndx_16s_M6(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx);
TARN_KERNEL void ownsMaxIndx_32f_M6(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx);
TARN_KERNEL void ownsMaxIndx_64f_M6(const Tarn64f* pSrc, int len, Tarn64f* pMax, int* pIndx);

// The extreme of a block of whole steps (16 elements for 16s, 8 for 32f), read once.
TARN_KERNEL void ownsMinPrefetch_16s_A6(const Tarn16s* pSrc, int len, Tarn16s* pMin);
TARN_KERNEL void ownsMinPrefetch_32f_A6(const Tarn32f* pSrc, int len, Tarn32f* pMin);
TARN_KERNEL void ownsMaxPrefetch_16s_A6(const Tarn16s* pSrc, int len, Tarn16s* pMax);
TARN_KERNEL void ownsMaxPrefetch_32f_A6(const Tarn32f* pSrc, int len, Tarn32f* pMax);

// The index of the first element with the bits of *pValue; there is one, within whole steps.
TARN_KERNEL int ownsIndx_16s_A6(const Tarn16s* pSrc, const Tarn16s* pValue);
TARN_KERNEL int ownsIndx_32f_A6(const Tarn32f* pSrc, const Tarn32f* pValue);

TARN_DECLARE_KERNEL(ownsMinEvery_16s_I, VECTORS_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsMinEvery_32s_I, VECTORS_I, Tarn32s);
TARN_DECLARE_KERNEL(ownsMinEvery_32f_I, VECTORS_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsMaxEvery_16s_I, VECTORS_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsMaxEvery_32s_I, VECTORS_I, Tarn32s);
TARN_DECLARE_KERNEL(ownsMaxEvery_32f_I, VECTORS_I, Tarn32f);

// The float forms tell whether there was an element that is no finite number.
TARN_KERNEL void MaxOrder_16s_W7(const Tarn16s* pSrc, int len, int* pOrder);
TARN_KERNEL void MaxOrder_32s_W7(const Tarn32s* pSrc, int len, int* pOrder);
TARN_KERNEL int MaxOrder_32f_T7(const Tarn32f* pSrc, int len, int* pOrder);
TARN_KERNEL int MaxOrder_64f_T7(const Tarn64f* pSrc, int len, int* pOrder);

namespace tarn {

// Unsigned 32-bit extremes, which have no exported kernel.
void minMax_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, Tarn32u* pMax);

// The first index of an element equal to `value` or unordered with it; 0 if there is none.
template <typename T>
int firstMatch(const T* pSrc, int len, T value);

} // namespace tarn
