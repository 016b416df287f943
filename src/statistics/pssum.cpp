// Front ends of sums.
#include "tarns/statistics.h"

#include "frame/checks.h"
#include "frame/scale_total.h"
#include "levels/statistics/pssum.h"

using namespace tarn;

namespace {

// A total of 32-bit elements has 63 bits.
constexpr FactorBounds bounds_32s{31, 63};

} // namespace

TarnStatus tarnsSum_32f(const Tarn32f* pSrc, int len, Tarn32f* pSum, TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn64f sum;
    (hint == tarnAlgHintFast ? owntarnsSum_32f_Fast : owntarnsSum_32f_Accur)(pSrc, len, &sum);
    store(pSum, static_cast<Tarn32f>(sum));
    return tarnStsNoErr;
}

TarnStatus tarnsSum_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pSum, TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn64fc sum;
    (hint == tarnAlgHintFast ? owntarnsSum_32fc_Fast : owntarnsSum_32fc_Accur)(pSrc, len, &sum);
    store(pSum, {static_cast<Tarn32f>(sum.re), static_cast<Tarn32f>(sum.im)});
    return tarnStsNoErr;
}

TarnStatus tarnsSum_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    owntarnsSum_64f(pSrc, len, pSum);
    return tarnStsNoErr;
}

TarnStatus tarnsSum_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pSum)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    owntarnsSum_64fc(pSrc, len, pSum);
    return tarnStsNoErr;
}

TarnStatus tarnsSum_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pSum, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn64f sum;
    owntarnsSum_16s64f(pSrc, len, &sum);
    store(pSum, roundSaturated(scaleByHalving(sum, scaleFactor)));
    return tarnStsNoErr;
}

TarnStatus tarnsSum_16sc32sc_Sfs(const Tarn16sc* pSrc, int len, Tarn32sc* pSum, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn64fc sum;
    owntarnsSum_16sc64fc(pSrc, len, &sum);
    store(pSum,
          {roundSaturated(scaleByHalving(sum.re, scaleFactor)), roundSaturated(scaleByHalving(sum.im, scaleFactor))});
    return tarnStsNoErr;
}

TarnStatus tarnsSum_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pSum, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn32s sum;
    const TarnStatus status = tarnsSum_16s32s_Sfs(pSrc, len, &sum, scaleFactor);
    store(pSum, clampTo<Tarn16s>(sum));
    return status;
}

TarnStatus tarnsSum_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pSum, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn32sc sum;
    const TarnStatus status = tarnsSum_16sc32sc_Sfs(pSrc, len, &sum, scaleFactor);
    store(pSum, {clampTo<Tarn16s>(sum.re), clampTo<Tarn16s>(sum.im)});
    return status;
}

TarnStatus tarnsSum_32s_Sfs(const Tarn32s* pSrc, int len, Tarn32s* pSum, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    Tarn64s sum;
    ownsSum_32s64s_W7(pSrc, len, &sum);
    store(pSum, scaleTotal<Tarn32s>(sum, scaleFactor, bounds_32s));
    return tarnStsNoErr;
}
