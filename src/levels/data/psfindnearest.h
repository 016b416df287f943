// Kernels of the search for the nearest entry of a table.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void ownps_FindNearest_16u(const Tarn16u* pVals, Tarn16u* pOutVals, Tarn32s* pOutIndexes, int len,
                                       const Tarn16u* pTable, int tblLen);
TARN_KERNEL void ownps_FindNearestOne_16u(Tarn16u inpVal, Tarn16u* pOutVal, Tarn32s* pOutIndex, const Tarn16u* pTable,
                                          int tblLen);
