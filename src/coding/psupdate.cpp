// Front ends of running averages and of pre-emphasis.
#include "tarns/update.h"

#include "frame/checks.h"
#include "levels/coding/psupdate.h"

#include <algorithm>

using namespace tarn;

TarnStatus tarnsUpdateLinear_16s32s_I(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha,
                                      TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pSrcDst)) {
        return status;
    }
    const int shift = std::clamp(srcShiftRight, 0, 15);
    if (alpha < -180 || alpha >= 182) {
        owntarnsUpdLin_16s32s_I(pSrc, len, pSrcDst, shift, alpha);
    } else if (hint == tarnAlgHintFast && alpha >= -6 && alpha < 9) {
        owntarnsUpdLinFst_16s32s_I_ASM(pSrc, len, pSrcDst, shift, alpha);
    } else {
        owntarnsUpdLinAcc_16s32s_I_ASM(pSrc, len, pSrcDst, shift, alpha);
    }
    return tarnStsNoErr;
}

TarnStatus tarnsUpdatePower_16s32s_I(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha,
                                     TarnHintAlgorithm hint)
{
    if (const TarnStatus status = check(len, pSrc, pSrcDst)) {
        return status;
    }
    const int shift = std::clamp(srcShiftRight, 0, 31);
    if (hint == tarnAlgHintFast) {
        owntarnsUpdPowFst_16s32s_I_ASM(pSrc, len, pSrcDst, shift, alpha);
    } else {
        owntarnsUpdPowAcc_16s32s_I_ASM(pSrc, len, pSrcDst, shift, alpha);
    }
    return tarnStsNoErr;
}

TarnStatus tarnsPreemphasize_32f(Tarn32f* pSrcDst, int len, Tarn32f val)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    ownsPreemphasize_32f(pSrcDst, len, val);
    return tarnStsNoErr;
}

TarnStatus tarnsPreemphasize_16s(Tarn16s* pSrcDst, int len, Tarn32f val)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    ownsPreemphasize_16s(pSrcDst, len, val);
    return tarnStsNoErr;
}
