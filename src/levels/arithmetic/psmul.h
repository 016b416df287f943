// Kernels that multiply two vectors.
#pragma once

#include "frame/kernels.h"

// Shapes of two vectors whose types differ; T is the type that the shape does not name.
#define TARN_TO_32S_PARAMETERS(T) const T *pSrc1, const T *pSrc2, Tarn32s *pDst, int len
#define TARN_TO_32S_ARGUMENTS pSrc1, pSrc2, pDst, len
#define TARN_WITH_16U_PARAMETERS(T) const Tarn16u *pSrc1, const T *pSrc2, T *pDst, int len
#define TARN_WITH_16U_ARGUMENTS pSrc1, pSrc2, pDst, len

TARN_DECLARE_SCALED_KERNELS(ownsMul_8u, VECTORS, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMul_8u_I, VECTORS_I, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16s, VECTORS, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16s_I, VECTORS_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16s32s, TO_32S, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16u16s, WITH_16U, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16sc, VECTORS, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsMul_16sc_I, VECTORS_I, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsMul_32s, VECTORS, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsMul_32s_I, VECTORS_I, Tarn32s);
TARN_DECLARE_KERNEL(ownsMul_8u_Bound, VECTORS, Tarn8u);
TARN_DECLARE_KERNEL(ownsMul_8u_I_Bound, VECTORS_I, Tarn8u);
TARN_DECLARE_KERNEL(ownsMul_16s_Bound, VECTORS, Tarn16s);
TARN_DECLARE_KERNEL(ownsMul_16s_I_Bound, VECTORS_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsMul_16u16s_Bound, WITH_16U, Tarn16s);
TARN_DECLARE_KERNEL(ownsMul_16sc_Bound, VECTORS, Tarn16sc);
TARN_DECLARE_KERNEL(ownsMul_16sc_I_Bound, VECTORS_I, Tarn16sc);

TARN_KERNEL void ownsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len);
TARN_KERNEL void ownsMul_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_DECLARE_KERNEL(ownsMul_32f, VECTORS, Tarn32f);
TARN_DECLARE_KERNEL(ownsMul_32f_I, VECTORS_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsMul_64f, VECTORS, Tarn64f);
TARN_DECLARE_KERNEL(ownsMul_64f_I, VECTORS_I, Tarn64f);
TARN_DECLARE_KERNEL(ownsMul_32fc, VECTORS, Tarn32fc);
TARN_DECLARE_KERNEL(ownsMul_32fc_I, VECTORS_I, Tarn32fc);
TARN_DECLARE_KERNEL(ownsMul_64fc, VECTORS, Tarn64fc);
TARN_DECLARE_KERNEL(ownsMul_64fc_I, VECTORS_I, Tarn64fc);

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
using MixedKernels_I = ScaledKernels<const Tarn32s*, Tarn32sc*, int>;
extern const MixedKernels mul_32s32sc;
extern const MixedKernels_I mul_32s32sc_I;
extern const VectorKernels<Tarn32sc> mul_32sc;
extern const VectorKernels_I<Tarn32sc> mul_32sc_I;

// The case that the sign decides, where it has no exported name.
void mulBound_16s32s(TARN_TO_32S_PARAMETERS(Tarn16s));
void mulBound_32s(TARN_VECTORS_PARAMETERS(Tarn32s));
void mulBound_32s_I(TARN_VECTORS_I_PARAMETERS(Tarn32s));

} // namespace tarn
