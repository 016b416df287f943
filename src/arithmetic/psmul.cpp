// Front ends of the products of two vectors.
#include "tarns/multiply.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psmul.h"

using namespace tarn;

namespace {

TARN_MUL_SCALED(TARN_TABULATE_SCALED_MEMBER)
constexpr VectorKernels<Tarn32s> mul_32s TARN_SCALED_TABLE(ownsMul_32s, productLimits_32s);
constexpr ScaledKernels<const Tarn16s*, const Tarn16s*, Tarn32s*, int> mul_16s32s
    TARN_SCALED_TABLE(ownsMul_16s32s, productLimits_16s32s);
constexpr ScaledKernels<const Tarn16u*, const Tarn16s*, Tarn16s*, int> mul_16u16s
    TARN_SCALED_TABLE(ownsMul_16u16s, productLimits_16u16s);

} // namespace

TARN_SCALED_VECTORS(Mul, 8u, runScaled, kernels_Mul_8u)
TARN_SCALED_VECTORS(Mul, 16s, runScaled, kernels_Mul_16s)
TARN_SCALED_VECTORS(Mul, 16sc, runScaled, kernels_Mul_16sc)
TARN_SCALED_VECTORS(Mul, 32s, runScaled, mul_32s)
TARN_SCALED_VECTORS(Mul, 32sc, runScaled, mul_32sc)
TARN_PLAIN_VECTORS(Mul, 16s, runKernel, ownsMul_16s)
TARN_PLAIN_VECTORS(Mul, 32f, runKernel, ownsMul_32f)
TARN_PLAIN_VECTORS(Mul, 64f, runKernel, ownsMul_64f)
TARN_PLAIN_VECTORS(Mul, 32fc, runKernel, ownsMul_32fc)
TARN_PLAIN_VECTORS(Mul, 64fc, runKernel, ownsMul_64fc)

TarnStatus tarnsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsMul_8u16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsMul_16s32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaled(mul_16s32s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_16u16s_Sfs(const Tarn16u* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaled(mul_16u16s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s32sc_Sfs(const Tarn32s* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(mul_32s32sc, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s32sc_ISfs(const Tarn32s* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return tarnsMul_32s32sc_Sfs(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
