// Front ends of sample deviations, which need two elements at least.
#include "tarns/statistics.h"

#include "frame/checks.h"
#include "frame/simd.h"
#include "levels/statistics/pssum.h"

using namespace tarn;

namespace {

template <typename... T>
TarnStatus checkSample(int len, const T*... pointers)
{
    return check(len < 2 ? 0 : len, pointers...);
}

} // namespace

TarnStatus tarnsStdDev_32f(const Tarn32f* pSrc, int len, Tarn32f* pStdDev, TarnHintAlgorithm hint)
{
    if (const TarnStatus status = checkSample(len, pSrc, pStdDev)) {
        return status;
    }
    (hint == tarnAlgHintFast ? owntarnsStdDev_32f_Fast : owntarnsStdDev_32f_Accur)(pSrc, len, pStdDev);
    return tarnStsNoErr;
}

TarnStatus tarnsStdDev_64f(const Tarn64f* pSrc, int len, Tarn64f* pStdDev)
{
    if (const TarnStatus status = checkSample(len, pSrc, pStdDev)) {
        return status;
    }
    owntarnsStdDev_64f(pSrc, len, pStdDev);
    return tarnStsNoErr;
}

TarnStatus tarnsStdDev_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pStdDev, int scaleFactor)
{
    if (const TarnStatus status = checkSample(len, pSrc, pStdDev)) {
        return status;
    }
    owntarnsStdDev_16s32s_Sfs(pSrc, len, pStdDev, scaleFactor);
    return tarnStsNoErr;
}

TarnStatus tarnsStdDev_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pStdDev, int scaleFactor)
{
    if (const TarnStatus status = checkSample(len, pSrc, pStdDev)) {
        return status;
    }
    Tarn32s deviation;
    owntarnsStdDev_16s32s_Sfs(pSrc, len, &deviation, scaleFactor);
    store(pStdDev, clampTo<Tarn16s>(deviation));
    return tarnStsNoErr;
}
