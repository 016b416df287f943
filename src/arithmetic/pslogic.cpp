// Front ends of bitwise logic.
#include "tarns/logic.h"

#include "frame/frontend.h"
#include "levels/arithmetic/pslogic.h"

using namespace tarn;

#define TARN_LOGIC_FRONT_ENDS(OP, TAG)                                                                     \
    TarnStatus tarns##OP##_##TAG(const Tarn##TAG* pSrc1, const Tarn##TAG* pSrc2, Tarn##TAG* pDst, int len) \
    {                                                                                                      \
        return runKernel(ownps_##OP##_##TAG, pSrc1, pSrc2, pDst, len);                                     \
    }                                                                                                      \
    TarnStatus tarns##OP##_##TAG##_I(const Tarn##TAG* pSrc, Tarn##TAG* pSrcDst, int len)                   \
    {                                                                                                      \
        return runKernel(ownps_##OP##_##TAG##_I, pSrc, pSrcDst, len);                                      \
    }                                                                                                      \
    TarnStatus tarns##OP##C_##TAG(const Tarn##TAG* pSrc, Tarn##TAG val, Tarn##TAG* pDst, int len)          \
    {                                                                                                      \
        return runKernel(ownps_##OP##C_##TAG, pSrc, val, pDst, len);                                       \
    }                                                                                                      \
    TarnStatus tarns##OP##C_##TAG##_I(Tarn##TAG val, Tarn##TAG* pSrcDst, int len)                          \
    {                                                                                                      \
        return runKernel(ownps_##OP##C_##TAG##_I, val, pSrcDst, len);                                      \
    }

TARN_LOGIC_FRONT_ENDS(And, 8u)
TARN_LOGIC_FRONT_ENDS(And, 16u)
TARN_LOGIC_FRONT_ENDS(And, 32u)
TARN_LOGIC_FRONT_ENDS(Or, 8u)
TARN_LOGIC_FRONT_ENDS(Or, 16u)
TARN_LOGIC_FRONT_ENDS(Or, 32u)
TARN_LOGIC_FRONT_ENDS(Xor, 8u)
TARN_LOGIC_FRONT_ENDS(Xor, 16u)
TARN_LOGIC_FRONT_ENDS(Xor, 32u)

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
