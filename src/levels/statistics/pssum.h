// Kernels of sums, deviations and sums of logarithms. They write sums in the precision in which they leave the
// accumulators; rounding to the result's type is the caller's.
#pragma once

#include "frame/kernels.h"

// Single precision, accurate pass and fast pass.
TARN_KERNEL void owntarnsSum_32f_Accur(const Tarn32f* pSrc, int len, Tarn64f* pSum);
TARN_KERNEL void owntarnsSum_32f_Fast(const Tarn32f* pSrc, int len, Tarn64f* pSum);
TARN_KERNEL void owntarnsSum_32fc_Accur(const Tarn32fc* pSrc, int len, Tarn64fc* pSum);
TARN_KERNEL void owntarnsSum_32fc_Fast(const Tarn32fc* pSrc, int len, Tarn64fc* pSum);

// The vector core of the fast pass for one block: writes the sum of the elements at even places and the sum of those at
// odd places. The one loads from a vector boundary, the other from any address.
TARN_KERNEL void ownsSumAlg(const Tarn32f* pSrc, int len, Tarn32f* pSums);
TARN_KERNEL void ownsSumNoAlg(const Tarn32f* pSrc, int len, Tarn32f* pSums);

TARN_KERNEL void owntarnsSum_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum);
TARN_KERNEL void owntarnsSum_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pSum);

// Exact integer sums.
TARN_KERNEL void owntarnsSum_16s64f(const Tarn16s* pSrc, int len, Tarn64f* pSum);
TARN_KERNEL void owntarnsSum_16sc64fc(const Tarn16sc* pSrc, int len, Tarn64fc* pSum);
TARN_KERNEL void ownsSum_32s64s_W7(const Tarn32s* pSrc, int len, Tarn64s* pSum);

// Sample deviations.
TARN_KERNEL void owntarnsStdDev_32f_Accur(const Tarn32f* pSrc, int len, Tarn32f* pStdDev);
TARN_KERNEL void owntarnsStdDev_32f_Fast(const Tarn32f* pSrc, int len, Tarn32f* pStdDev);
TARN_KERNEL void owntarnsStdDev_64f(const Tarn64f* pSrc, int len, Tarn64f* pStdDev);
TARN_KERNEL void owntarnsStdDev_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pStdDev, int scaleFactor);

// Sums of logarithms, in the extended format. The result is the status of the first element that has no logarithm.
TARN_KERNEL int Sum_Ln32f_W7(const Tarn32f* pSrc, int len, long double* pSum);
TARN_KERNEL int Sum_Ln64f_W7(const Tarn64f* pSrc, int len, long double* pSum);
TARN_KERNEL int Sum_Ln16s_W7(const Tarn16s* pSrc, int len, long double* pSum);
