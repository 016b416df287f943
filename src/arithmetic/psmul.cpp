// Front ends of the products of two vectors.
#include "tarns/multiply.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psmul.h"

using namespace tarn;

namespace {

constexpr VectorKernels<Tarn8u> mul_8u TARN_SCALED_TABLE(ownsMul_8u, productLimits_8u);
constexpr VectorKernels_I<Tarn8u> mul_8u_I TARN_SCALED_TABLE(ownsMul_8u_I, productLimits_8u);
constexpr VectorKernels<Tarn16s> mul_16s TARN_SCALED_TABLE(ownsMul_16s, productLimits_16s);
constexpr VectorKernels_I<Tarn16s> mul_16s_I TARN_SCALED_TABLE(ownsMul_16s_I, productLimits_16s);
constexpr ScaledKernels<const Tarn16s*, const Tarn16s*, Tarn32s*, int> mul_16s32s{
    productLimits_16s32s,  ownsMul_16s32s,        ownsMul_16s32s_1Sfs,
    ownsMul_16s32s_PosSfs, ownsMul_16s32s_NegSfs, mulBound_16s32s};
constexpr ScaledKernels<const Tarn16u*, const Tarn16s*, Tarn16s*, int> mul_16u16s
    TARN_SCALED_TABLE(ownsMul_16u16s, productLimits_16u16s);
constexpr VectorKernels<Tarn16sc> mul_16sc TARN_SCALED_TABLE(ownsMul_16sc, productLimits_16sc);
constexpr VectorKernels_I<Tarn16sc> mul_16sc_I TARN_SCALED_TABLE(ownsMul_16sc_I, productLimits_16sc);
constexpr VectorKernels<Tarn32s> mul_32s{productLimits_32s,  ownsMul_32s,        ownsMul_32s_1Sfs,
                                         ownsMul_32s_PosSfs, ownsMul_32s_NegSfs, mulBound_32s};
constexpr VectorKernels_I<Tarn32s> mul_32s_I{productLimits_32s,    ownsMul_32s_I,        ownsMul_32s_I_1Sfs,
                                             ownsMul_32s_I_PosSfs, ownsMul_32s_I_NegSfs, mulBound_32s_I};

} // namespace

TarnStatus tarnsMul_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor)
{
    return runScaled(mul_8u, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_8u_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsMul_8u16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len)
{
    return runKernel(ownsMul_16s, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len)
{
    return runKernel(ownsMul_16s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMul_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaled(mul_16s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_16s_I, pSrc, pSrcDst, len, scaleFactor);
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

TarnStatus tarnsMul_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(mul_16sc, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_16sc_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaled(mul_32s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_32s_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s32sc_Sfs(const Tarn32s* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(mul_32s32sc, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_32s32sc_ISfs(const Tarn32s* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_32s32sc_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMul_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(mul_32sc, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsMul_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mul_32sc_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMul_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsMul_32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsMul_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMul_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len)
{
    return runKernel(ownsMul_64f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len)
{
    return runKernel(ownsMul_64f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMul_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len)
{
    return runKernel(ownsMul_32fc, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsMul_32fc_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMul_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len)
{
    return runKernel(ownsMul_64fc, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsMul_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsMul_64fc_I, pSrc, pSrcDst, len);
}
