// Front ends of products of two vectors added to a third.
#include "tarns/multiply.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psaddproduct.h"

using namespace tarn;

namespace {

// Above the upper limits the product alone rounds to 0. The old value, which could be worth more, goes with it.
constexpr VectorKernels<Tarn16s> addProduct_16s TARN_SCALED_TABLE(ownsAddProduct_16s, (ScaleLimits{30, 14}));
constexpr ScaledKernels<const Tarn16s*, const Tarn16s*, Tarn32s*, int> addProduct_16s32s{{30, 30},
                                                                                         ownsAddProduct_16s32s,
                                                                                         ownsAddProduct_16s32s_1Sfs,
                                                                                         ownsAddProduct_16s32s_PosSfs,
                                                                                         ownsAddProduct_16s32s_NegSfs,
                                                                                         addProductBound_16s32s};
constexpr VectorKernels<Tarn32s> addProduct_32s{{62, 30},
                                                ownsAddProduct_32s,
                                                ownsAddProduct_32s_1Sfs,
                                                ownsAddProduct_32s_PosSfs,
                                                ownsAddProduct_32s_NegSfs,
                                                addProductBound_32s};

} // namespace

TarnStatus tarnsAddProduct_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pSrcDst, int len,
                                   int scaleFactor)
{
    return runScaled(addProduct_16s, pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddProduct_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32s* pSrcDst, int len,
                                      int scaleFactor)
{
    return runScaled(addProduct_16s32s, pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddProduct_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pSrcDst, int len,
                                   int scaleFactor)
{
    return runScaled(addProduct_32s, pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddProduct_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pSrcDst, int len)
{
    return runKernel(addProduct_32f, pSrc1, pSrc2, pSrcDst, len);
}

TarnStatus tarnsAddProduct_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pSrcDst, int len)
{
    return runKernel(addProduct_64f, pSrc1, pSrc2, pSrcDst, len);
}

TarnStatus tarnsAddProduct_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsAddProduct_32fc, pSrc1, pSrc2, pSrcDst, len);
}

TarnStatus tarnsAddProduct_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsAddProduct_64fc, pSrc1, pSrc2, pSrcDst, len);
}
