// Front ends of the Sub family: a vector from a vector, a constant from a vector, a vector from a constant.
#include "tarns/subtract.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psadd.h"
#include "levels/arithmetic/pssub.h"

using namespace tarn;

namespace {

TARN_SUB_SCALED(TARN_TABULATE_SCALED_MEMBER)

// A constant of 0 changes nothing while nothing is scaled, nor in floating point.
template <typename T>
TarnStatus subConstant(const ConstantKernels<T>& kernels, const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, kernels, pSrc, val, pDst, len, scaleFactor);
}
template <typename T>
TarnStatus subConstant(void (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    return runUnlessNeutral(0, kernel, pSrc, val, pDst, len);
}

// Where the sign decides, bytes from which nothing is taken are above 0 or 0, as those to which nothing is added.
TarnStatus subByte(const ConstantKernels<Tarn8u>& kernels, const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len,
                   int scaleFactor)
{
    if (scaleFactor < -kernels.limits.up && val == 0) {
        return runKernel(ownsAddC_8u_Bound, pSrc, val, pDst, len);
    }
    return subConstant(kernels, pSrc, val, pDst, len, scaleFactor);
}

} // namespace

TARN_SCALED_VECTORS(Sub, 8u, runScaled, kernels_Sub_8u)
TARN_SCALED_VECTORS(Sub, 16s, runScaled, kernels_Sub_16s)
TARN_SCALED_VECTORS(Sub, 16sc, forwardParts, tarnsSub_16s_Sfs)
TARN_SCALED_VECTORS(Sub, 32s, runScaled, kernels_Sub_32s)
TARN_SCALED_VECTORS(Sub, 32sc, forwardParts, tarnsSub_32s_Sfs)
TARN_PLAIN_VECTORS(Sub, 16s, runKernel, ownsSub_16s)
TARN_PLAIN_VECTORS(Sub, 32f, runKernel, ownsSub_32f)
TARN_PLAIN_VECTORS(Sub, 64f, runKernel, ownsSub_64f)
TARN_PLAIN_VECTORS(Sub, 32fc, forwardParts, tarnsSub_32f)
TARN_PLAIN_VECTORS(Sub, 64fc, forwardParts, tarnsSub_64f)

TarnStatus tarnsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsSub_16s32f, pSrc1, pSrc2, pDst, len);
}

TARN_SCALED_CONSTANT(SubC, 8u, subByte, kernels_SubC_8u)
TARN_SCALED_CONSTANT(SubC, 16s, subConstant, kernels_SubC_16s)
TARN_SCALED_CONSTANT(SubC, 16sc, runScaled, subC_16sc)
TARN_SCALED_CONSTANT(SubC, 32s, subConstant, kernels_SubC_32s)
TARN_SCALED_CONSTANT(SubC, 32sc, runScaled, kernels_SubC_32sc)
TARN_PLAIN_CONSTANT(SubC, 32f, subConstant, ownsSubC_32f)
TARN_PLAIN_CONSTANT(SubC, 64f, subConstant, ownsSubC_64f)
TARN_PLAIN_CONSTANT(SubC, 32fc, runKernel, ownsSubC_32fc)
TARN_PLAIN_CONSTANT(SubC, 64fc, runKernel, ownsSubC_64fc)

TarnStatus tarnsSubC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len) { return tarnsSubC_16s_ISfs(val, pSrcDst, len, 0); }

TARN_SCALED_CONSTANT(SubCRev, 8u, runScaled, subCRev_8u)
TARN_SCALED_CONSTANT(SubCRev, 16s, runScaled, subCRev_16s)
TARN_SCALED_CONSTANT(SubCRev, 16sc, runScaled, subCRev_16sc)
TARN_SCALED_CONSTANT(SubCRev, 32s, runScaled, kernels_SubCRev_32s)
TARN_SCALED_CONSTANT(SubCRev, 32sc, runScaled, kernels_SubCRev_32sc)
TARN_PLAIN_CONSTANT(SubCRev, 32f, runKernel, ownsSubCRev_32f)
TARN_PLAIN_CONSTANT(SubCRev, 64f, runKernel, ownsSubCRev_64f)
TARN_PLAIN_CONSTANT(SubCRev, 32fc, runKernel, ownsSubCRev_32fc)
TARN_PLAIN_CONSTANT(SubCRev, 64fc, runKernel, ownsSubCRev_64fc)
