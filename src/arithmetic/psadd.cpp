// Front ends of the Add family: two vectors, a vector and a constant.
#include "tarns/arithmetic.h"
#include "tarns/data.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psadd.h"

using namespace tarn;

namespace {

TARN_ADD_SCALED(TARN_TABULATE_SCALED_MEMBER)

// A constant of 0 changes nothing while nothing is scaled, nor in floating point.
template <typename T>
TarnStatus addConstant(const ConstantKernels<T>& kernels, const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, kernels, pSrc, val, pDst, len, scaleFactor);
}
template <typename T>
TarnStatus addConstant(void (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    return runUnlessNeutral(0, kernel, pSrc, val, pDst, len);
}

// Every sum of bytes with a constant above 0 is above 0, so that where the sign decides it decides alike for all.
TarnStatus addByte(const ConstantKernels<Tarn8u>& kernels, const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len,
                   int scaleFactor)
{
    if (scaleFactor < -kernels.limits.up && val > 0) {
        const TarnStatus status = check(len, pSrc, pDst);
        return status ? status : tarnsSet_8u(255, pDst, len);
    }
    return addConstant(kernels, pSrc, val, pDst, len, scaleFactor);
}

} // namespace

TARN_SCALED_VECTORS(Add, 8u, runScaled, kernels_Add_8u)
TARN_SCALED_VECTORS(Add, 16s, runScaled, kernels_Add_16s)
TARN_SCALED_VECTORS(Add, 16sc, forwardParts, tarnsAdd_16s_Sfs)
TARN_SCALED_VECTORS(Add, 32s, runScaled, kernels_Add_32s)
TARN_SCALED_VECTORS(Add, 32sc, forwardParts, tarnsAdd_32s_Sfs)
TARN_PLAIN_VECTORS(Add, 16s, runKernel, ownsAdd_16s)
TARN_PLAIN_VECTORS(Add, 32f, runKernel, ownsAdd_32f)
TARN_PLAIN_VECTORS(Add, 64f, runKernel, ownsAdd_64f)
TARN_PLAIN_VECTORS(Add, 32fc, forwardParts, tarnsAdd_32f)
TARN_PLAIN_VECTORS(Add, 64fc, forwardParts, tarnsAdd_64f)

TarnStatus tarnsAdd_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsAdd_8u16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsAdd_16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsAdd_16s32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len)
{
    return runKernel(ownsAdd_32u, pSrc1, pSrc2, pDst, len);
}

TARN_SCALED_CONSTANT(AddC, 8u, addByte, kernels_AddC_8u)
TARN_SCALED_CONSTANT(AddC, 16s, addConstant, kernels_AddC_16s)
TARN_SCALED_CONSTANT(AddC, 16sc, runScaled, kernels_AddC_16sc)
TARN_SCALED_CONSTANT(AddC, 32s, addConstant, kernels_AddC_32s)
TARN_SCALED_CONSTANT(AddC, 32sc, runScaled, kernels_AddC_32sc)
TARN_PLAIN_CONSTANT(AddC, 32f, addConstant, ownsAddC_32f)
TARN_PLAIN_CONSTANT(AddC, 64f, addConstant, ownsAddC_64f)
TARN_PLAIN_CONSTANT(AddC, 32fc, runKernel, ownsAddC_32fc)
TARN_PLAIN_CONSTANT(AddC, 64fc, runKernel, ownsAddC_64fc)

TarnStatus tarnsAddC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len) { return tarnsAddC_16s_ISfs(val, pSrcDst, len, 0); }
