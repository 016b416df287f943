// Kernels of norms of one vector and of the difference of two.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_NORM(NAME, DIFF_NAME, T, D)             \
    TARN_KERNEL void NAME(const T* pSrc, int len, D* pNorm); \
    TARN_KERNEL void DIFF_NAME(const T* pSrc1, const T* pSrc2, int len, D* pNorm)

TARN_DECLARE_NORM(ownps_Norm_Inf_32f, ownps_NormDiff_Inf_32f, Tarn32f, Tarn32f);
TARN_DECLARE_NORM(ownps_Norm_L1_32f, ownps_NormDiff_L1_32f, Tarn32f, Tarn32f);
TARN_DECLARE_NORM(ownps_Norm_L2_32f, ownps_NormDiff_L2_32f, Tarn32f, Tarn32f);
TARN_DECLARE_NORM(ownps_Norm_Inf_64f, ownps_NormDiff_Inf_64f, Tarn64f, Tarn64f);
TARN_DECLARE_NORM(ownps_Norm_L1_64f, ownps_NormDiff_L1_64f, Tarn64f, Tarn64f);
TARN_DECLARE_NORM(ownps_Norm_L2_64f, ownps_NormDiff_L2_64f, Tarn64f, Tarn64f);

// 16-bit elements: the largest magnitude, the sum of up to 65536 magnitudes, the sum of squares. No root, no scale.
TARN_DECLARE_NORM(ownps_Norm_Inf_16s32s, ownps_NormDiff_Inf_16s32s, Tarn16s, Tarn32s);
TARN_DECLARE_NORM(ownps_Norm_L1_16s32u, ownps_NormDiff_L1_16s32u, Tarn16s, Tarn32u);
TARN_DECLARE_NORM(ownps_Norm_L2_16s64s, ownps_NormDiff_L2_16s64s, Tarn16s, Tarn64s);

TARN_DECLARE_NORM(Norm_32fc_Inf_T7, NormDiff_32fc_Inf_T7, Tarn32fc, Tarn32f);
TARN_DECLARE_NORM(Norm_32fc_L1_T7, NormDiff_32fc_L1_T7, Tarn32fc, Tarn64f);
TARN_DECLARE_NORM(Norm_32fc_L2_T7, NormDiff_32fc_L2_T7, Tarn32fc, Tarn64f);
TARN_DECLARE_NORM(Norm_64fc_Inf_T7, NormDiff_64fc_Inf_T7, Tarn64fc, Tarn64f);
TARN_DECLARE_NORM(Norm_64fc_L1_T7, NormDiff_64fc_L1_T7, Tarn64fc, Tarn64f);
TARN_DECLARE_NORM(Norm_64fc_L2_T7, NormDiff_64fc_L2_T7, Tarn64fc, Tarn64f);

// Defines both kernels of a norm by a functor that takes a source, the vector itself or the view of a difference.
#define TARN_DEFINE_NORM(NAME, DIFF_NAME, T, D, OPERATION, VIEW)                 \
    void NAME(const T* pSrc, int len, D* pNorm) { OPERATION(pSrc, len, pNorm); } \
    void DIFF_NAME(const T* pSrc1, const T* pSrc2, int len, D* pNorm) { OPERATION(VIEW{pSrc1, pSrc2}, len, pNorm); }
