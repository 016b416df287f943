// Kernels that multiply a vector and a constant.
#pragma once

#include "frame/kernels.h"
#include "levels/arithmetic/psmul.h"

TARN_DECLARE_SCALED_KERNELS(ownsMulC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_16s_I, CONSTANT_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_16sc, CONSTANT, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_16sc_I, CONSTANT_I, Tarn16sc);
TARN_DECLARE_KERNEL(ownsMulC_8u_I_Bound, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownsMulC_16s_I_Bound, CONSTANT_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsMulC_16sc_Bound, CONSTANT, Tarn16sc);
TARN_DECLARE_KERNEL(ownsMulC_16sc_I_Bound, CONSTANT_I, Tarn16sc);

// Halving is a shift like any other here.
TARN_DECLARE_KERNEL(ownsMulC_16s, CONSTANT, Tarn16s);
TARN_KERNEL void ownsMulC_16s_PosSfs(TARN_CONSTANT_PARAMETERS(Tarn16s), int scaleFactor);
TARN_KERNEL void ownsMulC_16s_NegSfs(TARN_CONSTANT_PARAMETERS(Tarn16s), int shift);
TARN_DECLARE_KERNEL(ownsMulC_16s_Bound, CONSTANT, Tarn16s);

// The twins for a constant whose imaginary part is the lowest word, which has no negative.
#define TARN_DECLARE_OVERFLOW_KERNELS(NAME, SHAPE)                                           \
    TARN_KERNEL void NAME##_Ovf(TARN_##SHAPE##_PARAMETERS(Tarn16sc));                        \
    TARN_KERNEL void NAME##_1OvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc));                    \
    TARN_KERNEL void NAME##_PosOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int scaleFactor); \
    TARN_KERNEL void NAME##_NegOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int shift);       \
    TARN_KERNEL void NAME##_BoundOvf(TARN_##SHAPE##_PARAMETERS(Tarn16sc))
TARN_DECLARE_OVERFLOW_KERNELS(ownsMulC_16sc, CONSTANT);
TARN_DECLARE_OVERFLOW_KERNELS(ownsMulC_16sc_I, CONSTANT_I);

TARN_KERNEL void ownsMulC_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len);
TARN_KERNEL void ownsMulC_Low_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len);
TARN_DECLARE_KERNEL(ownsMulC_32f, CONSTANT, Tarn32f);
TARN_DECLARE_KERNEL(ownsMulC_32f_I, CONSTANT_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsMulC_64f, CONSTANT, Tarn64f);
TARN_DECLARE_KERNEL(ownsMulC_64f_I, CONSTANT_I, Tarn64f);
TARN_DECLARE_KERNEL(ownsMulC_32fc, CONSTANT, Tarn32fc);
TARN_DECLARE_KERNEL(ownsMulC_32fc_I, CONSTANT_I, Tarn32fc);
TARN_DECLARE_KERNEL(ownsMulC_64fc, CONSTANT, Tarn64fc);
TARN_DECLARE_KERNEL(ownsMulC_64fc_I, CONSTANT_I, Tarn64fc);

namespace tarn {

// The kernels without exported names, as tables: the exact products of 32-bit integers.
extern const ConstantKernels<Tarn32s> mulC_32s;
extern const ConstantKernels_I<Tarn32s> mulC_32s_I;
extern const ConstantKernels<Tarn32sc> mulC_32sc;
extern const ConstantKernels_I<Tarn32sc> mulC_32sc_I;

} // namespace tarn
