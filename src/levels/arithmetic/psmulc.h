// Kernels that multiply a vector and a constant.
#pragma once

#include "frame/kernels.h"
#include "levels/arithmetic/psmul.h"

#define TARN_MULC_SCALED(X) X(MulC, CONSTANT, 16sc, ComplexWords, productLimits_16sc, EXPORTED)

#define TARN_MULC_PLAIN(X)                     \
    X(MulC, CONSTANT, 32f, mulInOrder)         \
    X(MulC, CONSTANT, 64f, mulInOrder)         \
    X(MulC, CONSTANT, 32fc, mulComplexInOrder) \
    X(MulC, CONSTANT, 64fc, mulComplexInOrder)

TARN_MULC_SCALED(TARN_DECLARE_SCALED_MEMBER)
TARN_MULC_PLAIN(TARN_DECLARE_PLAIN_MEMBER)

// Where the sign decides bytes, the kernel of another family serves out of place.
TARN_DECLARE_SCALED_KERNELS(ownsMulC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownsMulC_8u_I_Bound, CONSTANT_I, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMulC_16s_I, CONSTANT_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsMulC_16s_I_Bound, CONSTANT_I, Tarn16s);

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

namespace tarn {

// The kernels without exported names, as tables: the exact products of 32-bit integers.
extern const ConstantKernels<Tarn32s> mulC_32s;
extern const ConstantKernels<Tarn32sc> mulC_32sc;

} // namespace tarn
