// Kernels of data movement: copy, move, zero, set, flip, swap of bytes. Lengths of the byte kernels are in bytes.
#pragma once

#include "frame/kernels.h"

#include <cstddef>

TARN_KERNEL void ownsCopy_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_KERNEL void ownsMove_8u_W7(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_KERNEL void ownsZero_8u(Tarn8u* pDst, int len);

TARN_KERNEL void ownsSet_8u(Tarn8u val, Tarn8u* pDst, int len);
TARN_KERNEL void ownsSet_16u(Tarn16u val, Tarn16u* pDst, int len);
TARN_KERNEL void ownsSet_32s(Tarn32s val, Tarn32s* pDst, int len);
TARN_KERNEL void ownsSet_64s(Tarn64s val, Tarn64s* pDst, int len);
TARN_KERNEL void ownsSet_64sc(Tarn64sc val, Tarn64sc* pDst, int len);

TARN_KERNEL void ownsFlip_8u_T7(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_KERNEL void ownsFlip_16u_T7(const Tarn16u* pSrc, Tarn16u* pDst, int len);
TARN_KERNEL void ownsFlip_32f_T7(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL void ownsFlip_64f_T7(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_KERNEL void ownsFlip_8u_I_W7(Tarn8u* pSrcDst, int len);
TARN_KERNEL void ownsFlip_16u_I_W7(Tarn16u* pSrcDst, int len);
TARN_KERNEL void ownsFlip_32f_I_W7(Tarn32f* pSrcDst, int len);
TARN_KERNEL void ownsFlip_64f_I_W7(Tarn64f* pSrcDst, int len);

TARN_KERNEL void ownsSwapBytes_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len);
TARN_KERNEL void ownsSwapBytes_16u_I(Tarn16u* pSrcDst, int len);
TARN_KERNEL void ownsSwapBytes_24u(const Tarn8u* pSrc, Tarn8u* pDst, int len);
TARN_KERNEL void ownsSwapBytes_24u_I(Tarn8u* pSrcDst, int len);
TARN_KERNEL void ownsSwapBytes_32u(const Tarn32u* pSrc, Tarn32u* pDst, int len);
TARN_KERNEL void ownsSwapBytes_32u_I(Tarn32u* pSrcDst, int len);

namespace tarn {

// Arrays of any size in bytes, by the byte kernels. Front ends come here: an element's width times a length may be more
// than a kernel's length holds.
void copyBytes(const Tarn8u* src, Tarn8u* dst, std::size_t bytes);
void moveBytes(const Tarn8u* src, Tarn8u* dst, std::size_t bytes);
void zeroBytes(Tarn8u* dst, std::size_t bytes);

} // namespace tarn
