// Front ends of bitwise logic.
#include "tarns/logic.h"

#include "frame/family.h"
#include "frame/frontend.h"
#include "levels/arithmetic/pslogic.h"

using namespace tarn;

#define TARN_LOGIC_FRONT_ENDS(OP, TAG, WORD)                   \
    TARN_PLAIN_VECTORS(OP, TAG, runKernel, ownps_##OP##_##TAG) \
    TARN_PLAIN_CONSTANT(OP##C, TAG, runKernel, ownps_##OP##C_##TAG)

TARN_LOGIC(TARN_LOGIC_FRONT_ENDS)

#define TARN_NOT_FRONT_ENDS(TAG)                                               \
    TarnStatus tarnsNot_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                          \
        return tarnsXorC_##TAG(pSrc, highest<Tarn##TAG>, pDst, len);           \
    }                                                                          \
    TarnStatus tarnsNot_##TAG##_I(Tarn##TAG* pSrcDst, int len)                 \
    {                                                                          \
        return tarnsXorC_##TAG##_I(highest<Tarn##TAG>, pSrcDst, len);          \
    }

TARN_NOT_FRONT_ENDS(8u)
TARN_NOT_FRONT_ENDS(16u)
TARN_NOT_FRONT_ENDS(32u)
