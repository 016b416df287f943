// Front ends of magnitudes and power spectra.
#include "tarns/magnitude.h"

#include "frame/factor.h"
#include "frame/frontend.h"
#include "levels/arithmetic/psmagn.h"

using namespace tarn;

namespace {

// A scaled kernel, from some factor on of no use.
template <typename Kernel, typename D, typename... S>
TarnStatus measureScaled(Kernel kernel, int vanishes, D* pDst, int len, int scaleFactor, const S*... pSrc)
{
    if (const TarnStatus status = check(len, pSrc..., pDst)) {
        return status;
    }
    if (scaleFactor >= vanishes) {
        zeroFill(pDst, len);
    } else {
        kernel(pSrc..., pDst, len, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsMagnitude_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, int scaleFactor)
{
    return measureScaled(owntarnsMagn_16s_Sfs, magnitudeVanishes_16s, pDst, len, scaleFactor, pSrcRe, pSrcIm);
}

TarnStatus tarnsMagnitude_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return measureScaled(owntarnsMagn_16sc16s_Sfs, magnitudeVanishes_16s, pDst, len, scaleFactor, pSrc);
}

TarnStatus tarnsMagnitude_32sc_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    owntarnsMagn_32sc32s_Sfs(pSrc, pDst, len, scaleFactor);
    return tarnStsNoErr;
}

TarnStatus tarnsPowerSpectr_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len,
                                    int scaleFactor)
{
    return measureScaled(tarnsPwrStr_16s_T7, powerVanishes_16s, pDst, len, scaleFactor, pSrcRe, pSrcIm);
}

TarnStatus tarnsPowerSpectr_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return measureScaled(tarnsPwrStr_16sc_T7, powerVanishes_16s, pDst, len, scaleFactor, pSrc);
}

#define TARN_FRONT_END_OF_PARTS(NAME, S, D, KERNEL)                                       \
    TarnStatus NAME(const Tarn##S* pSrcRe, const Tarn##S* pSrcIm, Tarn##D* pDst, int len) \
    {                                                                                     \
        return runKernel(KERNEL, pSrcRe, pSrcIm, pDst, len);                              \
    }
#define TARN_FRONT_END_OF_COMPLEX(NAME, S, D, KERNEL) \
    TarnStatus NAME(const Tarn##S* pSrc, Tarn##D* pDst, int len) { return runKernel(KERNEL, pSrc, pDst, len); }

TARN_FRONT_END_OF_PARTS(tarnsMagnitude_16s32f, 16s, 32f, owntarnsMagn_16s32f)
TARN_FRONT_END_OF_COMPLEX(tarnsMagnitude_16sc32f, 16sc, 32f, owntarnsMagn_16sc32f)
TARN_FRONT_END_OF_PARTS(tarnsMagnitude_32f, 32f, 32f, owntarnsMagn_32f)
TARN_FRONT_END_OF_COMPLEX(tarnsMagnitude_32fc, 32fc, 32f, owntarnsMagn_32fc)
TARN_FRONT_END_OF_PARTS(tarnsMagnitude_64f, 64f, 64f, owntarnsMagn_64f)
TARN_FRONT_END_OF_COMPLEX(tarnsMagnitude_64fc, 64fc, 64f, owntarnsMagn_64fc)
TARN_FRONT_END_OF_PARTS(tarnsPowerSpectr_16s32f, 16s, 32f, tarnsPwrStr_16s32f_T7)
TARN_FRONT_END_OF_COMPLEX(tarnsPowerSpectr_16sc32f, 16sc, 32f, tarnsPwrStr_16sc32f_T7)
TARN_FRONT_END_OF_PARTS(tarnsPowerSpectr_32f, 32f, 32f, tarnsPwrStr_32f_T7)
TARN_FRONT_END_OF_COMPLEX(tarnsPowerSpectr_32fc, 32fc, 32f, tarnsPwrStr_32fc_T7)
TARN_FRONT_END_OF_PARTS(tarnsPowerSpectr_64f, 64f, 64f, tarnsPwrStr_64f_T7)
TARN_FRONT_END_OF_COMPLEX(tarnsPowerSpectr_64fc, 64fc, 64f, tarnsPwrStr_64fc_T7)

TarnStatus tarnsMagSquared_32sc32s_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    ownMagSquared_Sfs_W7(pSrc, pDst, len, static_cast<Tarn32f>(twoToMinusAny(scaleFactor)));
    return tarnStsNoErr;
}
