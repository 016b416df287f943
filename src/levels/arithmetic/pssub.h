// Kernels of the Sub family. Of two vectors the first is taken from the second, and a vector from the one in place.
#pragma once

#include "frame/kernels.h"

TARN_DECLARE_SCALED_KERNELS(ownsSub_8u, VECTORS, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsSub_8u_I, VECTORS_I, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsSub_16s, VECTORS, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSub_16s_I, VECTORS_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSub_32s, VECTORS, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsSub_32s_I, VECTORS_I, Tarn32s);
TARN_DECLARE_KERNEL(ownsSub_8u_Bound, VECTORS, Tarn8u);
TARN_DECLARE_KERNEL(ownsSub_8u_I_Bound, VECTORS_I, Tarn8u);
TARN_DECLARE_KERNEL(ownsSub_16s_Bound, VECTORS, Tarn16s);
TARN_DECLARE_KERNEL(ownsSub_16s_I_Bound, VECTORS_I, Tarn16s);

TARN_KERNEL void ownsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_DECLARE_KERNEL(ownsSub_32f, VECTORS, Tarn32f);
TARN_DECLARE_KERNEL(ownsSub_32f_I, VECTORS_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsSub_64f, VECTORS, Tarn64f);
TARN_DECLARE_KERNEL(ownsSub_64f_I, VECTORS_I, Tarn64f);

TARN_DECLARE_SCALED_KERNELS(ownsSubC_8u, CONSTANT, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_8u_I, CONSTANT_I, Tarn8u);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_16s, CONSTANT, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_16s_I, CONSTANT_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_16sc_I, CONSTANT_I, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_32s, CONSTANT, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_32s_I, CONSTANT_I, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_32sc, CONSTANT, Tarn32sc);
TARN_DECLARE_SCALED_KERNELS(ownsSubC_32sc_I, CONSTANT_I, Tarn32sc);
TARN_DECLARE_KERNEL(ownsSubC_8u_Bound, CONSTANT, Tarn8u);
TARN_DECLARE_KERNEL(ownsSubC_8u_I_Bound, CONSTANT_I, Tarn8u);
TARN_DECLARE_KERNEL(ownsSubC_16s_Bound, CONSTANT, Tarn16s);
TARN_DECLARE_KERNEL(ownsSubC_16s_I_Bound, CONSTANT_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsSubC_16sc_I_Bound, CONSTANT_I, Tarn16sc);

TARN_DECLARE_KERNEL(ownsSubC_32f, CONSTANT, Tarn32f);
TARN_DECLARE_KERNEL(ownsSubC_32f_I, CONSTANT_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsSubC_64f, CONSTANT, Tarn64f);
TARN_DECLARE_KERNEL(ownsSubC_64f_I, CONSTANT_I, Tarn64f);
TARN_DECLARE_KERNEL(ownsSubC_32fc, CONSTANT, Tarn32fc);
TARN_DECLARE_KERNEL(ownsSubC_32fc_I, CONSTANT_I, Tarn32fc);
TARN_DECLARE_KERNEL(ownsSubC_64fc, CONSTANT, Tarn64fc);
TARN_DECLARE_KERNEL(ownsSubC_64fc_I, CONSTANT_I, Tarn64fc);

TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_16s_I, CONSTANT_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_16sc_I, CONSTANT_I, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_32s, CONSTANT, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_32s_I, CONSTANT_I, Tarn32s);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_32sc, CONSTANT, Tarn32sc);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_32sc_I, CONSTANT_I, Tarn32sc);
TARN_DECLARE_KERNEL(ownsSubCRev_16s_I_Bound, CONSTANT_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsSubCRev_16sc_I_Bound, CONSTANT_I, Tarn16sc);

TARN_DECLARE_KERNEL(ownsSubCRev_32f, CONSTANT, Tarn32f);
TARN_DECLARE_KERNEL(ownsSubCRev_32f_I, CONSTANT_I, Tarn32f);
TARN_DECLARE_KERNEL(ownsSubCRev_64f, CONSTANT, Tarn64f);
TARN_DECLARE_KERNEL(ownsSubCRev_64f_I, CONSTANT_I, Tarn64f);
TARN_DECLARE_KERNEL(ownsSubCRev_32fc, CONSTANT, Tarn32fc);
TARN_DECLARE_KERNEL(ownsSubCRev_32fc_I, CONSTANT_I, Tarn32fc);
TARN_DECLARE_KERNEL(ownsSubCRev_64fc, CONSTANT, Tarn64fc);
TARN_DECLARE_KERNEL(ownsSubCRev_64fc_I, CONSTANT_I, Tarn64fc);

namespace tarn {

// A difference of bytes has no bit more than a byte and the sign; of words or longer ones it reaches twice the bounds.
inline constexpr ScaleLimits differenceLimits_8u{8, 7};
inline constexpr ScaleLimits differenceLimits_16s{16, 15};
inline constexpr ScaleLimits differenceLimits_32s{32, 30};

// The kernels without exported names, as tables.
extern const ConstantKernels<Tarn16sc> subC_16sc;
extern const ConstantKernels<Tarn8u> subCRev_8u;
extern const ConstantKernels_I<Tarn8u> subCRev_8u_I;
extern const ConstantKernels<Tarn16s> subCRev_16s;
extern const ConstantKernels<Tarn16sc> subCRev_16sc;

// The case that the sign decides, where it has no exported name.
void subBound_32s(TARN_VECTORS_PARAMETERS(Tarn32s));
void subBound_32s_I(TARN_VECTORS_I_PARAMETERS(Tarn32s));
void subCBound_32s(TARN_CONSTANT_PARAMETERS(Tarn32s));
void subCBound_32s_I(TARN_CONSTANT_I_PARAMETERS(Tarn32s));
void subCBound_32sc(TARN_CONSTANT_PARAMETERS(Tarn32sc));
void subCBound_32sc_I(TARN_CONSTANT_I_PARAMETERS(Tarn32sc));
void subCRevBound_32s(TARN_CONSTANT_PARAMETERS(Tarn32s));
void subCRevBound_32s_I(TARN_CONSTANT_I_PARAMETERS(Tarn32s));
void subCRevBound_32sc(TARN_CONSTANT_PARAMETERS(Tarn32sc));
void subCRevBound_32sc_I(TARN_CONSTANT_I_PARAMETERS(Tarn32sc));

} // namespace tarn
