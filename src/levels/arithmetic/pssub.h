// Kernels of the Sub family. Of two vectors the first is taken from the second, and a vector from the one in place.
#pragma once

#include "frame/family.h"

namespace tarn {

// A difference of bytes has no bit more than a byte and the sign; of words or longer ones it reaches twice the bounds.
inline constexpr ScaleLimits differenceLimits_8u{8, 7};
inline constexpr ScaleLimits differenceLimits_16s{16, 15};
inline constexpr ScaleLimits differenceLimits_32s{32, 30};

// The kernels without exported names, as tables.
extern const ConstantKernels<Tarn16sc> subC_16sc;
extern const ConstantKernels<Tarn8u> subCRev_8u;
extern const ConstantKernels<Tarn16s> subCRev_16s;
extern const ConstantKernels<Tarn16sc> subCRev_16sc;

} // namespace tarn

#define TARN_SUB_SCALED(X)                                           \
    X(Sub, VECTORS, 8u, RealRev, differenceLimits_8u, EXPORTED)      \
    X(Sub, VECTORS, 16s, RealRev, differenceLimits_16s, EXPORTED)    \
    X(Sub, VECTORS, 32s, RealRev, differenceLimits_32s, HIDDEN)      \
    X(SubC, CONSTANT, 8u, Real, differenceLimits_8u, EXPORTED)       \
    X(SubC, CONSTANT, 16s, Real, differenceLimits_16s, EXPORTED)     \
    X(SubC, CONSTANT, 32s, Real, differenceLimits_32s, HIDDEN)       \
    X(SubC, CONSTANT, 32sc, Complex, differenceLimits_32s, HIDDEN)   \
    X(SubCRev, CONSTANT, 32s, RealRev, differenceLimits_32s, HIDDEN) \
    X(SubCRev, CONSTANT, 32sc, ComplexRev, differenceLimits_32s, HIDDEN)

#define TARN_SUB_PLAIN(X)                          \
    X(Sub, VECTORS, 32f, subFromSecond)            \
    X(Sub, VECTORS, 64f, subFromSecond)            \
    X(SubC, CONSTANT, 32f, sub)                    \
    X(SubC, CONSTANT, 64f, sub)                    \
    X(SubC, CONSTANT, 32fc, subParts)              \
    X(SubC, CONSTANT, 64fc, subParts)              \
    X(SubCRev, CONSTANT, 32f, subFromSecond)       \
    X(SubCRev, CONSTANT, 64f, subFromSecond)       \
    X(SubCRev, CONSTANT, 32fc, subPartsFromSecond) \
    X(SubCRev, CONSTANT, 64fc, subPartsFromSecond)

TARN_SUB_SCALED(TARN_DECLARE_SCALED_MEMBER)
TARN_SUB_PLAIN(TARN_DECLARE_PLAIN_MEMBER)

TARN_KERNEL void ownsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);

// Of these only the kernels in place are exported.
TARN_DECLARE_SCALED_KERNELS(ownsSubC_16sc_I, CONSTANT_I, Tarn16sc);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_16s_I, CONSTANT_I, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsSubCRev_16sc_I, CONSTANT_I, Tarn16sc);
TARN_DECLARE_KERNEL(ownsSubC_16sc_I_Bound, CONSTANT_I, Tarn16sc);
TARN_DECLARE_KERNEL(ownsSubCRev_16s_I_Bound, CONSTANT_I, Tarn16s);
TARN_DECLARE_KERNEL(ownsSubCRev_16sc_I_Bound, CONSTANT_I, Tarn16sc);
