// Front ends of means.
#include "tarns/statistics.h"

#include "frame/checks.h"
#include "frame/rounding.h"
#include "frame/scale_total.h"
#include "frame/simd.h"
#include "levels/statistics/pssum.h"

using namespace tarn;

namespace {

// To the nearest integer whatever the caller's rounding mode. What does not fit becomes the lowest one.
Tarn32s roundNearest(Tarn64f x)
{
    const NearestRounding guard;
    settle(x);
    Tarn32s rounded = roundToInteger(x);
    settle(rounded);
    return rounded;
}

} // namespace

TarnStatus tarnsMean_32f(const Tarn32f* pSrc, int len, Tarn32f* pMean, TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64f sum;
    (hint == tarnAlgHintFast ? owntarnsSum_32f_Fast : owntarnsSum_32f_Accur)(pSrc, len, &sum);
    store(pMean, static_cast<Tarn32f>(sum / len));
    return tarnStsNoErr;
}

TarnStatus tarnsMean_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pMean, TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64fc sum;
    (hint == tarnAlgHintFast ? owntarnsSum_32fc_Fast : owntarnsSum_32fc_Accur)(pSrc, len, &sum);
    store(pMean, {static_cast<Tarn32f>(sum.re / len), static_cast<Tarn32f>(sum.im / len)});
    return tarnStsNoErr;
}

TarnStatus tarnsMean_64f(const Tarn64f* pSrc, int len, Tarn64f* pMean)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64f sum;
    owntarnsSum_64f(pSrc, len, &sum);
    store(pMean, sum / len);
    return tarnStsNoErr;
}

// The only mean that multiplies by a reciprocal, so that its parts are rounded twice.
TarnStatus tarnsMean_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pMean)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64fc sum;
    owntarnsSum_64fc(pSrc, len, &sum);
    const Tarn64f reciprocal = 1.0 / len;
    store(pMean, {sum.re * reciprocal, sum.im * reciprocal});
    return tarnStsNoErr;
}

// The upper end saturates, the lower one keeps the low 16 bits: callers know the one from the other.
TarnStatus tarnsMean_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pMean, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64f sum;
    owntarnsSum_16s64f(pSrc, len, &sum);
    const Tarn64f mean = scaleByHalving(sum, scaleFactor) / len;
    store(pMean, static_cast<Tarn16s>(roundNearest(mean > highest<Tarn16s> ? highest<Tarn16s> : mean)));
    return tarnStsNoErr;
}

TarnStatus tarnsMean_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pMean, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pMean)) {
        return status;
    }
    Tarn64fc sum;
    owntarnsSum_16sc64fc(pSrc, len, &sum);
    const auto part = [=](Tarn64f total) {
        const Tarn64f mean = scaleByHalving(total, scaleFactor) / len;
        return clampTo<Tarn16s>(roundNearest(mean > highest<Tarn32s> ? highest<Tarn32s> : mean));
    };
    store(pMean, {part(sum.re), part(sum.im)});
    return tarnStsNoErr;
}
