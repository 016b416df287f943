// Front ends of cube roots.
#include "tarns/roots.h"

#include "frame/factor.h"
#include "frame/frontend.h"
#include "levels/arithmetic/pscubrt.h"

#include <algorithm>

using namespace tarn;

namespace {

// Beyond these factors every root but 0 saturates, and every root rounds to 0.
constexpr int saturatingScale = -16;
constexpr int vanishingScale = 13;

} // namespace

TarnStatus tarnsCubrt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(CubeRoot32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsCubrt_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    CubeRoot32s16s_W7(pSrc, pDst, len, twoToMinus<Tarn32f>(std::clamp(scaleFactor, saturatingScale, vanishingScale)));
    return tarnStsNoErr;
}
