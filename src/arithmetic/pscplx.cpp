// Front ends of conjugates, and of complex vectors taken apart and put together.
#include "tarns/cplx.h"

#include "frame/frontend.h"
#include "levels/arithmetic/pscplx.h"

using namespace tarn;

namespace {

// The imaginary parts of doubles lie one double behind the real ones.
void imaginaryParts_64fc(const Tarn64fc* pSrc, Tarn64f* pDst, int len)
{
    ownsReal_64fc_W7(reinterpret_cast<const Tarn64fc*>(asParts(pSrc) + 1), pDst, len);
}

template <typename C>
TarnStatus split(const C* pSrc, Part<C>* pDstRe, Part<C>* pDstIm, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDstRe, pDstIm)) {
        return status;
    }
    if constexpr (isDouble<C>) {
        ownsReal_64fc_W7(pSrc, pDstRe, len);
        imaginaryParts_64fc(pSrc, pDstIm, len);
    } else {
        splitParts(pSrc, pDstRe, pDstIm, len);
    }
    return tarnStsNoErr;
}

template <typename C>
using JoinKernel = void (*)(const Part<C>*, C*, int);

// One of the sources may be missing, and stands for zeros then.
template <typename C>
TarnStatus joinedParts(void (*both)(const Part<C>*, const Part<C>*, C*, int), JoinKernel<C> real,
                       JoinKernel<C> imaginary, const Part<C>* pSrcRe, const Part<C>* pSrcIm, C* pDst, int len)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    if (pSrcRe == nullptr && pSrcIm == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (pSrcIm == nullptr) {
        real(pSrcRe, pDst, len);
    } else if (pSrcRe == nullptr) {
        imaginary(pSrcIm, pDst, len);
    } else {
        both(pSrcRe, pSrcIm, pDst, len);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_CPLX_FRONT_ENDS(C, T, IMAG)                                                                           \
    TarnStatus tarnsConj_##C(const Tarn##C* pSrc, Tarn##C* pDst, int len)                                          \
    {                                                                                                              \
        return runKernel(ownsConj_##C##_T7, pSrc, pDst, len);                                                      \
    }                                                                                                              \
    TarnStatus tarnsConj_##C##_I(Tarn##C* pSrcDst, int len)                                                        \
    {                                                                                                              \
        if (const TarnStatus status = check(len, pSrcDst)) {                                                       \
            return status;                                                                                         \
        }                                                                                                          \
        ownsConj_##C##_I_T7(pSrcDst, len);                                                                         \
        return tarnStsNoErr;                                                                                       \
    }                                                                                                              \
    TarnStatus tarnsReal_##C(const Tarn##C* pSrc, Tarn##T* pDstRe, int len)                                        \
    {                                                                                                              \
        return runKernel(ownsReal_##C##_W7, pSrc, pDstRe, len);                                                    \
    }                                                                                                              \
    TarnStatus tarnsImag_##C(const Tarn##C* pSrc, Tarn##T* pDstIm, int len)                                        \
    {                                                                                                              \
        return runKernel(IMAG, pSrc, pDstIm, len);                                                                 \
    }                                                                                                              \
    TarnStatus tarnsCplxToReal_##C(const Tarn##C* pSrc, Tarn##T* pDstRe, Tarn##T* pDstIm, int len)                 \
    {                                                                                                              \
        return split(pSrc, pDstRe, pDstIm, len);                                                                   \
    }                                                                                                              \
    TarnStatus tarnsRealToCplx_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##C* pDst, int len)           \
    {                                                                                                              \
        return joinedParts<Tarn##C>(ownsRealToCplx_##T##_W7, ownsRealToCplxRe_##T##_W7, ownsRealToCplxIm_##T##_W7, \
                                    pSrcRe, pSrcIm, pDst, len);                                                    \
    }

TARN_CPLX_FRONT_ENDS(16sc, 16s, ownsImag_16sc_W7)
TARN_CPLX_FRONT_ENDS(32fc, 32f, ownsImag_32fc_W7)
TARN_CPLX_FRONT_ENDS(64fc, 64f, imaginaryParts_64fc)
