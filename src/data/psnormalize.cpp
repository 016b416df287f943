// Front ends of normalization.
#include "tarns/sampling.h"

#include "frame/frontend.h"
#include "levels/data/psnormalize.h"

using namespace tarn;

namespace {

// The reciprocal of a divisor below the smallest normal single could overflow, whatever type the divisor has. A NaN is
// not at least that either.
template <typename T, typename D>
TarnStatus normalize(void (*kernel)(const T*, T*, int, T, D), const T* pSrc, T* pDst, int len, T vSub, D vDiv)
{
    constexpr Tarn64f leastDivisor = std::numeric_limits<Tarn32f>::min();
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (!(std::fabs(Tarn64f{vDiv}) >= leastDivisor)) {
        return tarnStsDivByZeroErr;
    }
    kernel(pSrc, pDst, len, vSub, vDiv);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus normalizeWords(void (*kernel)(const T*, T*, int, T, int, int), const T* pSrc, T* pDst, int len, T vSub,
                          int vDiv, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (vDiv == 0) {
        return tarnStsDivByZeroErr;
    }
    kernel(pSrc, pDst, len, vSub, vDiv, scaleFactor);
    return tarnStsNoErr;
}

} // namespace

#define TARN_NORMALIZE_FRONT_END(TAG, DIVISOR)                                                                     \
    TarnStatus tarnsNormalize_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG vSub, DIVISOR vDiv) \
    {                                                                                                              \
        return normalize(ownsNormalize_##TAG, pSrc, pDst, len, vSub, vDiv);                                        \
    }

TARN_NORMALIZE_FRONT_END(32f, Tarn32f)
TARN_NORMALIZE_FRONT_END(32fc, Tarn32f)
TARN_NORMALIZE_FRONT_END(64f, Tarn64f)
TARN_NORMALIZE_FRONT_END(64fc, Tarn64f)

TarnStatus tarnsNormalize_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s vSub, int vDiv, int scaleFactor)
{
    return normalizeWords(ownsNormalize_16s, pSrc, pDst, len, vSub, vDiv, scaleFactor);
}

TarnStatus tarnsNormalize_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16sc vSub, int vDiv,
                                   int scaleFactor)
{
    return normalizeWords(ownsNormalize_16sc, pSrc, pDst, len, vSub, vDiv, scaleFactor);
}
