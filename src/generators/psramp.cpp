// Front ends of the ramps.
#include "levels/generators/psramp.h"

#include "frame/checks.h"
#include "tarns/generators.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus makeRamp(T* pDst, int len, Tarn32f offset, Tarn32f slope)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    ramp(pDst, len, offset, slope);
    return tarnStsNoErr;
}

} // namespace

#define TARN_RAMP(TAG)                                                                        \
    TarnStatus tarnsVectorRamp_##TAG(Tarn##TAG* pDst, int len, Tarn32f offset, Tarn32f slope) \
    {                                                                                         \
        return makeRamp(pDst, len, offset, slope);                                            \
    }

TARN_RAMP(8u)
TARN_RAMP(8s)
TARN_RAMP(16u)
TARN_RAMP(16s)
TARN_RAMP(32u)
TARN_RAMP(32s)
TARN_RAMP(32f)
TARN_RAMP(64f)
