// Kernels that multiply two vectors.
#pragma once

#include "frame/family.h"

namespace tarn {

// Where a product of two elements of a type rounds to 0 whatever they are, and where it saturates unless it is 0. A
// complex product is the sum of two, one bit longer.
inline constexpr ScaleLimits productLimits_8u{16, 7};
inline constexpr ScaleLimits productLimits_16s{30, 15};
inline constexpr ScaleLimits productLimits_16u16s{31, 15};
inline constexpr ScaleLimits productLimits_16s32s{30, 30};
inline constexpr ScaleLimits productLimits_16sc{31, 15};
inline constexpr ScaleLimits productLimits_32s{62, 31};
inline constexpr ScaleLimits productLimits_32sc{63, 31};

// The kernels without exported names, as tables.
using MixedKernels = ScaledKernels<const Tarn32s*, const Tarn32sc*, Tarn32sc*, int>;
extern const MixedKernels mul_32s32sc;
extern const VectorKernels<Tarn32sc> mul_32sc;

} // namespace tarn

#define TARN_MUL_SCALED(X)                                   \
    X(Mul, VECTORS, 8u, Bytes, productLimits_8u, EXPORTED)   \
    X(Mul, VECTORS, 16s, Words, productLimits_16s, EXPORTED) \
    X(Mul, VECTORS, 16sc, ComplexWords, productLimits_16sc, EXPORTED)

#define TARN_MUL_PLAIN(X)                    \
    X(Mul, VECTORS, 32f, mulInOrder)         \
    X(Mul, VECTORS, 64f, mulInOrder)         \
    X(Mul, VECTORS, 32fc, mulComplexInOrder) \
    X(Mul, VECTORS, 64fc, mulComplexInOrder)

TARN_MUL_SCALED(TARN_DECLARE_SCALED_MEMBER)
TARN_MUL_PLAIN(TARN_DECLARE_PLAIN_MEMBER)

// Products of 32-bit integers go by way of doubles.
TARN_DECLARE_SCALED_KERNELS(ownsMul_32s, VECTORS, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_32s_I, VECTORS_I, Tarn32s);
TARN_DECLARE_SIGN_HIDDEN(ownsMul_32s, VECTORS, Tarn32s)

// Shapes of two vectors whose types differ; T is the type that the shape does not name.
#define TARN_TO_32S_PARAMETERS(T) const T *pSrc1, const T *pSrc2, Tarn32s *pDst, int len
#define TARN_TO_32S_ARGUMENTS pSrc1, pSrc2, pDst, len
#define TARN_WITH_16U_PARAMETERS(T) const Tarn16u *pSrc1, const T *pSrc2, T *pDst, int len
#define TARN_WITH_16U_ARGUMENTS pSrc1, pSrc2, pDst, len

TARN_DECLARE_SCALED_KERNELS(ownsMul_16s32s, TO_32S, Tarn16s);
TARN_DECLARE_SIGN_HIDDEN(ownsMul_16s32s, TO_32S, Tarn16s)
TARN_DECLARE_SCALED_KERNELS(ownsMul_16u16s, WITH_16U, Tarn16s);
TARN_DECLARE_KERNEL(ownsMul_16u16s_Bound, WITH_16U, Tarn16s);

TARN_KERNEL void ownsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len);
TARN_KERNEL void ownsMul_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
