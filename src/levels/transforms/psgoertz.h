// Kernels of single bins: Goertzel's recurrence in double precision. A turn is exp(i w), w being the angular step.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_GOERTZEL(NAME, T, D) TARN_KERNEL void NAME(const T* pSrc, int len, D* pVal, const Tarn64fc* pTurns)

// One turn, one bin. The integer kinds leave it unscaled.
TARN_DECLARE_GOERTZEL(ownps_Goertz_PX_32f, Tarn32f, Tarn32fc);
TARN_DECLARE_GOERTZEL(ownps_Goertz_PX_16s_Sfs, Tarn16s, Tarn32fc);
TARN_DECLARE_GOERTZEL(ownps_dkGoertz_PX_32fc, Tarn32fc, Tarn32fc);
TARN_DECLARE_GOERTZEL(ownps_dkGoertz_PX_64fc, Tarn64fc, Tarn64fc);
TARN_DECLARE_GOERTZEL(ownps_dkGoertz_PX_16sc, Tarn16sc, Tarn32fc);

// Two of each.
TARN_DECLARE_GOERTZEL(ownps_dkGoertzTwo_PX_32fc, Tarn32fc, Tarn32fc);
TARN_DECLARE_GOERTZEL(ownps_dkGoertzTwo_PX_64fc, Tarn64fc, Tarn64fc);
TARN_DECLARE_GOERTZEL(ownps_dkGoertzTwo_PX_16sc, Tarn16sc, Tarn32fc);
