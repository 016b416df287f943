// Front ends of packed spectra: products, conjugate products, and expansion to all bins.
#include "tarns/spectrum.h"

#include "frame/frontend.h"
#include "levels/fft/psspectrum.h"

using namespace tarn;

namespace {

using ScaledProduct = void (*)(const Tarn16s*, const Tarn16s*, Tarn16s*, int, int);

TarnStatus multiplyScaled(ScaledProduct kernel, const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                          int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDst)) {
        return status;
    }
    kernel(pSrc1, pSrc2, pDst, len, scaleFactor);
    return tarnStsNoErr;
}

} // namespace

#define TARN_PRODUCT_FRONT_ENDS(NAME, TAG, KERNEL)                                                    \
    TarnStatus NAME##_##TAG(const Tarn##TAG* pSrc1, const Tarn##TAG* pSrc2, Tarn##TAG* pDst, int len) \
    {                                                                                                 \
        return runKernel(KERNEL, pSrc1, pSrc2, pDst, len);                                            \
    }                                                                                                 \
    TarnStatus NAME##_##TAG##_I(const Tarn##TAG* pSrc, Tarn##TAG* pSrcDst, int len)                   \
    {                                                                                                 \
        return runKernel(KERNEL, pSrc, pSrcDst, pSrcDst, len);                                        \
    }

#define TARN_SCALED_PRODUCT_FRONT_ENDS(NAME, KERNEL)                                                               \
    TarnStatus NAME##_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor) \
    {                                                                                                              \
        return multiplyScaled(KERNEL, pSrc1, pSrc2, pDst, len, scaleFactor);                                       \
    }                                                                                                              \
    TarnStatus NAME##_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor)                    \
    {                                                                                                              \
        return multiplyScaled(KERNEL, pSrc, pSrcDst, pSrcDst, len, scaleFactor);                                   \
    }

TARN_PRODUCT_FRONT_ENDS(tarnsMulPerm, 32f, ownsMulPerm_32f)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPerm, 64f, ownsMulPerm_64f)
TARN_SCALED_PRODUCT_FRONT_ENDS(tarnsMulPerm, ownsMulPerm_16s_Sfs)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPack, 32f, ownsMulPack_32f)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPack, 64f, ownsMulPack_64f)
TARN_SCALED_PRODUCT_FRONT_ENDS(tarnsMulPack, ownsMulPack_16s_Sfs)

TarnStatus tarnsMulPackConj_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsMulPackConj_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMulPackConj_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len)
{
    return runKernel(ownsMulPackConj_64f_I, pSrc, pSrcDst, len);
}

#define TARN_EXPANSION_FRONT_ENDS(NAME, REAL, COMPLEX, KERNEL)                        \
    TarnStatus NAME##_##COMPLEX(const Tarn##REAL* pSrc, Tarn##COMPLEX* pDst, int len) \
    {                                                                                 \
        return runKernel(KERNEL, pSrc, pDst, len);                                    \
    }                                                                                 \
    TarnStatus NAME##_##COMPLEX##_I(Tarn##COMPLEX* pSrcDst, int len)                  \
    {                                                                                 \
        return runKernel(KERNEL, asParts(pSrcDst), pSrcDst, len);                     \
    }

TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 16s, 16sc, ownsConjPerm_16sc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 32f, 32fc, ownsConjPerm_32fc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 64f, 64fc, ownsConjPerm_64fc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 16s, 16sc, ownsConjPack_16sc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 32f, 32fc, ownsConjPack_32fc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 64f, 64fc, ownsConjPack_64fc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 16s, 16sc, ownsConjCcs_16sc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 32f, 32fc, ownsConjCcs_32fc)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 64f, 64fc, ownsConjCcs_64fc)

TarnStatus tarnsConjFlip_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len)
{
    return runKernel(ownsConjFlip_16sc, pSrc, pDst, len);
}

TarnStatus tarnsConjFlip_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len)
{
    return runKernel(ownsConjFlip_32fc, pSrc, pDst, len);
}

TarnStatus tarnsConjFlip_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len)
{
    return runKernel(ownsConjFlip_64fc, pSrc, pDst, len);
}
