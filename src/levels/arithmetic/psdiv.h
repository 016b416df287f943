// Kernels of quotients of two vectors, of which the first is the divisor. Each tells whether it met a zero divisor. The
// dividend may be the destination itself.
#pragma once

#include "frame/kernels.h"

#define TARN_DIV_PARAMETERS(TAG) const Tarn##TAG *pSrc1, const Tarn##TAG *pSrc2, Tarn##TAG *pDst, int len

// PX is the scalar loop. Aligned and Unalign are the vector loops: they take whole groups of eight elements.
#define TARN_DECLARE_FLOAT_DIV(TAG)                                      \
    TARN_KERNEL int ownps_dkDiv_##TAG(TARN_DIV_PARAMETERS(TAG));         \
    TARN_KERNEL int ownps_dkDiv_PX_##TAG(TARN_DIV_PARAMETERS(TAG));      \
    TARN_KERNEL int ownps_dkDiv_Aligned_##TAG(TARN_DIV_PARAMETERS(TAG)); \
    TARN_KERNEL int ownps_dkDiv_Unalign_##TAG(TARN_DIV_PARAMETERS(TAG))

TARN_DECLARE_FLOAT_DIV(32f);
TARN_DECLARE_FLOAT_DIV(64f);
TARN_DECLARE_FLOAT_DIV(32fc);
TARN_DECLARE_FLOAT_DIV(64fc);

TARN_KERNEL int ownps_dkDiv_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor);
TARN_KERNEL int ownps_dkDiv_PX_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor);
TARN_KERNEL int ownps_dkDiv_Aligned_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor);
TARN_KERNEL int ownps_dkDiv_16sc_Sfs(TARN_DIV_PARAMETERS(16sc), int scaleFactor);
TARN_KERNEL int ownps_dkDiv_PX_16sc_Sfs(TARN_DIV_PARAMETERS(16sc), int scaleFactor);
TARN_KERNEL int ownps_Div_32s_Sfs(TARN_DIV_PARAMETERS(32s), int scaleFactor);
TARN_KERNEL int ownps_Div_32s_PX_Sfs(TARN_DIV_PARAMETERS(32s), int scaleFactor);
TARN_KERNEL int ownps_Div_8u_Sfs(TARN_DIV_PARAMETERS(8u), int scaleFactor);
TARN_KERNEL int ownDiv8u_Sfs_ASM(TARN_DIV_PARAMETERS(8u), int scaleFactor);
