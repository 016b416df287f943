// Front ends of packed spectra: products, conjugate products, and expansion to all bins.
#include "tarns/spectrum.h"

#include "frame/frontend.h"
#include "levels/psspectrum.h"

using namespace tarn;

namespace {

using PackingOf = Packing (*)(int len);

template <typename T, typename... Scale>
TarnStatus multiply(PackingOf packingOf, const T* pSrc1, const T* pSrc2, T* pDst, int len, Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDst)) {
        return status;
    }
    multiplySpectra(pSrc1, pSrc2, pDst, len, packingOf(len), scaleFactor...);
    return tarnStsNoErr;
}

template <typename T, typename... Scale>
TarnStatus multiplyInPlace(PackingOf packingOf, const T* pSrc, T* pSrcDst, int len, Scale... scaleFactor)
{
    return multiply<T>(packingOf, pSrc, pSrcDst, pSrcDst, len, scaleFactor...);
}

template <typename T>
TarnStatus multiplyConjugated(const T* pSrc, T* pSrcDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pSrcDst)) {
        return status;
    }
    multiplyByConjugate(pSrc, pSrcDst, len, packPacking(len));
    return tarnStsNoErr;
}

} // namespace

#define TARN_PRODUCT_FRONT_ENDS(NAME, TAG, PACKING)                                                   \
    TarnStatus NAME##_##TAG(const Tarn##TAG* pSrc1, const Tarn##TAG* pSrc2, Tarn##TAG* pDst, int len) \
    {                                                                                                 \
        return multiply(PACKING, pSrc1, pSrc2, pDst, len);                                            \
    }                                                                                                 \
    TarnStatus NAME##_##TAG##_I(const Tarn##TAG* pSrc, Tarn##TAG* pSrcDst, int len)                   \
    {                                                                                                 \
        return multiplyInPlace(PACKING, pSrc, pSrcDst, len);                                          \
    }

#define TARN_SCALED_PRODUCT_FRONT_ENDS(NAME, PACKING)                                                              \
    TarnStatus NAME##_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor) \
    {                                                                                                              \
        return multiply(PACKING, pSrc1, pSrc2, pDst, len, scaleFactor);                                            \
    }                                                                                                              \
    TarnStatus NAME##_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor)                    \
    {                                                                                                              \
        return multiplyInPlace(PACKING, pSrc, pSrcDst, len, scaleFactor);                                          \
    }

TARN_PRODUCT_FRONT_ENDS(tarnsMulPerm, 32f, permPacking)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPerm, 64f, permPacking)
TARN_SCALED_PRODUCT_FRONT_ENDS(tarnsMulPerm, permPacking)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPack, 32f, packPacking)
TARN_PRODUCT_FRONT_ENDS(tarnsMulPack, 64f, packPacking)
TARN_SCALED_PRODUCT_FRONT_ENDS(tarnsMulPack, packPacking)

TarnStatus tarnsMulPackConj_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return multiplyConjugated(pSrc, pSrcDst, len);
}

TarnStatus tarnsMulPackConj_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len)
{
    return multiplyConjugated(pSrc, pSrcDst, len);
}

#define TARN_EXPANSION_FRONT_ENDS(NAME, REAL, COMPLEX, EXPAND)                        \
    TarnStatus NAME##_##COMPLEX(const Tarn##REAL* pSrc, Tarn##COMPLEX* pDst, int len) \
    {                                                                                 \
        return runKernel(EXPAND<Tarn##COMPLEX>, pSrc, pDst, len);                     \
    }                                                                                 \
    TarnStatus NAME##_##COMPLEX##_I(Tarn##COMPLEX* pSrcDst, int len)                  \
    {                                                                                 \
        return runKernel(EXPAND<Tarn##COMPLEX>, asParts(pSrcDst), pSrcDst, len);      \
    }

TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 16s, 16sc, expandPerm)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 32f, 32fc, expandPerm)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPerm, 64f, 64fc, expandPerm)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 16s, 16sc, expandPack)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 32f, 32fc, expandPack)
TARN_EXPANSION_FRONT_ENDS(tarnsConjPack, 64f, 64fc, expandPack)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 16s, 16sc, expandCcs)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 32f, 32fc, expandCcs)
TARN_EXPANSION_FRONT_ENDS(tarnsConjCcs, 64f, 64fc, expandCcs)

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
