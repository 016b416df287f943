// Kernels of the exponential. A source may be the destination itself.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void tarnsExp_32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void tarnsExp_64f_P6(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_KERNEL void tarnsExp_64f_I_P6(Tarn64f* pSrcDst, int len);
TARN_KERNEL void tarnsExp_32f_46f_P6(const Tarn32f* pSrc, Tarn64f* pDst, int len);
// Any scale factor but 0, whose results are a constant table.
TARN_KERNEL void Exp_64s_P6(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor);

namespace tarn {

// By a table of all results between 0 and the bound: constant ones for usual scale factors, for others one of the call.
void exponentials(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor);
void exponentials(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);
void exponentials(const Tarn64s* src, Tarn64s* dst, int len); // not scaled

} // namespace tarn
