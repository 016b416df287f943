// Front ends of the order of a vector. They test the length before the pointers.
#include "tarns/statistics.h"

#include "levels/statistics/psminmax.h"

namespace {

TarnStatus checkLengthFirst(int len, const void* pSrc, const void* pOrder)
{
    if (len < 1) {
        return tarnStsSizeErr;
    }
    if (pSrc == nullptr || pOrder == nullptr) {
        return tarnStsNullPtrErr;
    }
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsMaxOrder_16s(const Tarn16s* pSrc, int len, int* pOrder)
{
    if (const TarnStatus status = checkLengthFirst(len, pSrc, pOrder)) {
        return status;
    }
    MaxOrder_16s_W7(pSrc, len, pOrder);
    return tarnStsNoErr;
}

TarnStatus tarnsMaxOrder_32s(const Tarn32s* pSrc, int len, int* pOrder)
{
    if (const TarnStatus status = checkLengthFirst(len, pSrc, pOrder)) {
        return status;
    }
    MaxOrder_32s_W7(pSrc, len, pOrder);
    return tarnStsNoErr;
}

TarnStatus tarnsMaxOrder_32f(const Tarn32f* pSrc, int len, int* pOrder)
{
    if (const TarnStatus status = checkLengthFirst(len, pSrc, pOrder)) {
        return status;
    }
    return MaxOrder_32f_T7(pSrc, len, pOrder) != 0 ? tarnStsNanArg : tarnStsNoErr;
}

TarnStatus tarnsMaxOrder_64f(const Tarn64f* pSrc, int len, int* pOrder)
{
    if (const TarnStatus status = checkLengthFirst(len, pSrc, pOrder)) {
        return status;
    }
    return MaxOrder_64f_T7(pSrc, len, pOrder) != 0 ? tarnStsNanArg : tarnStsNoErr;
}
