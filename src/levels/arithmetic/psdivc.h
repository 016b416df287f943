// Kernels of quotients by a constant, and of a constant by each element. Those that can meet a zero divisor tell
// whether they did. The source may be the destination itself.
#pragma once

#include "frame/kernels.h"

#define TARN_DIVC_PARAMETERS(TAG) const Tarn##TAG *pSrc, Tarn##TAG val, Tarn##TAG *pDst, int len

TARN_KERNEL void ownps_dkDivC_8u_Sfs(TARN_DIVC_PARAMETERS(8u), int scaleFactor);
TARN_KERNEL void ownps_dkDivC_16s_Sfs(TARN_DIVC_PARAMETERS(16s), int scaleFactor);
TARN_KERNEL void ownps_dkDivC_PX_16s_Sfs(TARN_DIVC_PARAMETERS(16s), int scaleFactor);
TARN_KERNEL void ownps_dkDivC_16sc_Sfs(TARN_DIVC_PARAMETERS(16sc), int scaleFactor);
TARN_KERNEL void ownps_dkDivC_32fc(TARN_DIVC_PARAMETERS(32fc));
TARN_KERNEL void ownps_dkDivC_64fc(TARN_DIVC_PARAMETERS(64fc));

// The constant is not zero.
TARN_KERNEL int ownps_dkDivCRev_16u(TARN_DIVC_PARAMETERS(16u));
TARN_KERNEL int ownps_dkDivCRev_PX_16u(TARN_DIVC_PARAMETERS(16u));
TARN_KERNEL int ownps_DivCRev_32f(TARN_DIVC_PARAMETERS(32f));
TARN_KERNEL int ownps_dkDivCRev_PX_32f(TARN_DIVC_PARAMETERS(32f));
