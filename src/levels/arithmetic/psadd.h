// Kernels of the Add family.
#pragma once

#include "frame/family.h"

namespace tarn {

// A sum has one bit more than its operands.
inline constexpr ScaleLimits sumLimits_8u{9, 7};
inline constexpr ScaleLimits sumLimits_16s{16, 15};
inline constexpr ScaleLimits sumLimits_32s{32, 30};

} // namespace tarn

#define TARN_ADD_SCALED(X)                                    \
    X(Add, VECTORS, 8u, Real, sumLimits_8u, EXPORTED)         \
    X(Add, VECTORS, 16s, Real, sumLimits_16s, EXPORTED)       \
    X(Add, VECTORS, 32s, Real, sumLimits_32s, HIDDEN)         \
    X(AddC, CONSTANT, 8u, Real, sumLimits_8u, EXPORTED)       \
    X(AddC, CONSTANT, 16s, Real, sumLimits_16s, EXPORTED)     \
    X(AddC, CONSTANT, 16sc, Complex, sumLimits_16s, EXPORTED) \
    X(AddC, CONSTANT, 32s, Real, sumLimits_32s, HIDDEN)       \
    X(AddC, CONSTANT, 32sc, Complex, sumLimits_32s, HIDDEN)

#define TARN_ADD_PLAIN(X)                    \
    X(Add, VECTORS, 32f, addInOrder)         \
    X(Add, VECTORS, 64f, addInOrder)         \
    X(AddC, CONSTANT, 32f, addInOrder)       \
    X(AddC, CONSTANT, 64f, addInOrder)       \
    X(AddC, CONSTANT, 32fc, addPartsInOrder) \
    X(AddC, CONSTANT, 64fc, addPartsInOrder)

TARN_ADD_SCALED(TARN_DECLARE_SCALED_MEMBER)
TARN_ADD_PLAIN(TARN_DECLARE_PLAIN_MEMBER)

TARN_KERNEL void ownsAdd_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len);
TARN_KERNEL void ownsAdd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len);
TARN_DECLARE_KERNEL(ownsAdd_16u, VECTORS, Tarn16u);
TARN_DECLARE_KERNEL(ownsAdd_32u, VECTORS, Tarn32u);
