// Kernels that join channels: one for each number of channels up to seven, one for more, and vector twins that answer
// nonzero if they did the work.
#pragma once

#include "frame/kernels.h"

#define TARN_DECLARE_JOIN_KERNEL(N) \
    TARN_KERNEL void ownsJoin_32f16s_C##N(const Tarn32f* const* pSrc, Tarn16s* pDst, int chanLen)
#define TARN_DECLARE_JOIN_TWIN(N) \
    TARN_KERNEL int ownsJoin_32f16s_C##N##_W7(const Tarn32f* const* pSrc, Tarn16s* pDst, int chanLen)

TARN_DECLARE_JOIN_KERNEL(1);
TARN_DECLARE_JOIN_KERNEL(2);
TARN_DECLARE_JOIN_KERNEL(3);
TARN_DECLARE_JOIN_KERNEL(4);
TARN_DECLARE_JOIN_KERNEL(5);
TARN_DECLARE_JOIN_KERNEL(6);
TARN_DECLARE_JOIN_KERNEL(7);
TARN_DECLARE_JOIN_TWIN(2);
TARN_DECLARE_JOIN_TWIN(3);
TARN_DECLARE_JOIN_TWIN(4);
TARN_DECLARE_JOIN_TWIN(5);
TARN_DECLARE_JOIN_TWIN(6);
TARN_DECLARE_JOIN_TWIN(7);
TARN_KERNEL void ownsJoin_32f16s(const Tarn32f* const* pSrc, int nChannels, Tarn16s* pDst, int chanLen);
TARN_KERNEL int ownsJoin_32f16s_MoreC7_W7(const Tarn32f* const* pSrc, int nChannels, Tarn16s* pDst, int chanLen);
