// Front ends of A-law and mu-law.
#include "tarns/companding.h"

#include "frame/frontend.h"
#include "levels/coding/pslaw.h"

using namespace tarn;

#define TARN_LAW_FRONT_END(NAME, S, D) \
    TarnStatus tarns##NAME(const S* pSrc, D* pDst, int len) { return runKernel(owns##NAME, pSrc, pDst, len); }

TARN_LAW_FRONT_END(ALawToLin_8u16s, Tarn8u, Tarn16s)
TARN_LAW_FRONT_END(ALawToLin_8u32f, Tarn8u, Tarn32f)
TARN_LAW_FRONT_END(MuLawToLin_8u16s, Tarn8u, Tarn16s)
TARN_LAW_FRONT_END(MuLawToLin_8u32f, Tarn8u, Tarn32f)

TARN_LAW_FRONT_END(LinToALaw_16s8u, Tarn16s, Tarn8u)
TARN_LAW_FRONT_END(LinToALaw_32f8u, Tarn32f, Tarn8u)
TARN_LAW_FRONT_END(LinToMuLaw_16s8u, Tarn16s, Tarn8u)
TARN_LAW_FRONT_END(LinToMuLaw_32f8u, Tarn32f, Tarn8u)

TARN_LAW_FRONT_END(ALawToMuLaw_8u, Tarn8u, Tarn8u)
TARN_LAW_FRONT_END(MuLawToALaw_8u, Tarn8u, Tarn8u)
