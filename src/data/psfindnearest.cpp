// Front ends of the search for the nearest entry of a table.
#include "tarns/sort.h"

#include "frame/checks.h"
#include "levels/data/psfindnearest.h"

using namespace tarn;

TarnStatus tarnsFindNearest_16u(const Tarn16u* pVals, Tarn16u* pOutVals, Tarn32s* pOutIndexes, int len,
                                const Tarn16u* pTable, int tblLen)
{
    if (const TarnStatus status = check(len, pVals, pOutVals, pOutIndexes, pTable)) {
        return status;
    }
    if (tblLen < 1) {
        return tarnStsSizeErr;
    }
    ownps_FindNearest_16u(pVals, pOutVals, pOutIndexes, len, pTable, tblLen);
    return tarnStsNoErr;
}

TarnStatus tarnsFindNearestOne_16u(Tarn16u inpVal, Tarn16u* pOutVal, Tarn32s* pOutIndex, const Tarn16u* pTable,
                                   int tblLen)
{
    if (const TarnStatus status = check(tblLen, pOutVal, pOutIndex, pTable)) {
        return status;
    }
    ownps_FindNearestOne_16u(inpVal, pOutVal, pOutIndex, pTable, tblLen);
    return tarnStsNoErr;
}
