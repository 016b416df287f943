// Kernels of bitwise logic and of shifts by a constant.
#pragma once

#include "frame/kernels.h"

TARN_DECLARE_KERNEL(ownps_And_8u, VECTORS, Tarn8u);
TARN_DECLARE_KERNEL(ownps_And_8u_I, VECTORS_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_And_16u, VECTORS, Tarn16u);
TARN_DECLARE_KERNEL(ownps_And_16u_I, VECTORS_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_And_32u, VECTORS, Tarn32u);
TARN_DECLARE_KERNEL(ownps_And_32u_I, VECTORS_I, Tarn32u);
TARN_DECLARE_KERNEL(ownps_Or_8u, VECTORS, Tarn8u);
TARN_DECLARE_KERNEL(ownps_Or_8u_I, VECTORS_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_Or_16u, VECTORS, Tarn16u);
TARN_DECLARE_KERNEL(ownps_Or_16u_I, VECTORS_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_Or_32u, VECTORS, Tarn32u);
TARN_DECLARE_KERNEL(ownps_Or_32u_I, VECTORS_I, Tarn32u);
TARN_DECLARE_KERNEL(ownps_Xor_8u, VECTORS, Tarn8u);
TARN_DECLARE_KERNEL(ownps_Xor_8u_I, VECTORS_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_Xor_16u, VECTORS, Tarn16u);
TARN_DECLARE_KERNEL(ownps_Xor_16u_I, VECTORS_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_Xor_32u, VECTORS, Tarn32u);
TARN_DECLARE_KERNEL(ownps_Xor_32u_I, VECTORS_I, Tarn32u);
TARN_DECLARE_KERNEL(ownps_AndC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_KERNEL(ownps_AndC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_AndC_16u, CONSTANT, Tarn16u);
TARN_DECLARE_KERNEL(ownps_AndC_16u_I, CONSTANT_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_AndC_32u, CONSTANT, Tarn32u);
TARN_DECLARE_KERNEL(ownps_AndC_32u_I, CONSTANT_I, Tarn32u);
TARN_DECLARE_KERNEL(ownps_OrC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_KERNEL(ownps_OrC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_OrC_16u, CONSTANT, Tarn16u);
TARN_DECLARE_KERNEL(ownps_OrC_16u_I, CONSTANT_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_OrC_32u, CONSTANT, Tarn32u);
TARN_DECLARE_KERNEL(ownps_OrC_32u_I, CONSTANT_I, Tarn32u);
TARN_DECLARE_KERNEL(ownps_XorC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_KERNEL(ownps_XorC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownps_XorC_16u, CONSTANT, Tarn16u);
TARN_DECLARE_KERNEL(ownps_XorC_16u_I, CONSTANT_I, Tarn16u);
TARN_DECLARE_KERNEL(ownps_XorC_32u, CONSTANT, Tarn32u);
TARN_DECLARE_KERNEL(ownps_XorC_32u_I, CONSTANT_I, Tarn32u);

// Shifts by counts below the width.
TARN_KERNEL void ownps_LShift_8u(const Tarn8u* pSrc, int val, Tarn8u* pDst, int len);
TARN_KERNEL void ownps_LShift_8u_I(int val, Tarn8u* pSrcDst, int len);
TARN_KERNEL void ownps_LShift_16u(const Tarn16u* pSrc, int val, Tarn16u* pDst, int len);
TARN_KERNEL void ownps_LShift_16u_I(int val, Tarn16u* pSrcDst, int len);
TARN_KERNEL void ownps_LShift_32s(const Tarn32s* pSrc, int val, Tarn32s* pDst, int len);
TARN_KERNEL void ownps_LShift_32s_I(int val, Tarn32s* pSrcDst, int len);
TARN_KERNEL void ownps_RShift_8u(const Tarn8u* pSrc, int val, Tarn8u* pDst, int len);
TARN_KERNEL void ownps_RShift_8u_I(int val, Tarn8u* pSrcDst, int len);
TARN_KERNEL void ownps_RShift_16u(const Tarn16u* pSrc, int val, Tarn16u* pDst, int len);
TARN_KERNEL void ownps_RShift_16u_I(int val, Tarn16u* pSrcDst, int len);
TARN_KERNEL void ownps_RShift_16s(const Tarn16s* pSrc, int val, Tarn16s* pDst, int len);
TARN_KERNEL void ownps_RShift_16s_I(int val, Tarn16s* pSrcDst, int len);
TARN_KERNEL void ownps_RShift_32s(const Tarn32s* pSrc, int val, Tarn32s* pDst, int len);
TARN_KERNEL void ownps_RShift_32s_I(int val, Tarn32s* pSrcDst, int len);
