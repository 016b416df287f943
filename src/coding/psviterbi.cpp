// Front ends of Viterbi decoding.
#include "tarns/viterbi.h"

#include "frame/checks.h"
#include "levels/coding/psviterbi.h"

using namespace tarn;

namespace {

// The arrays have the sizes of the trellis, whatever number is given for it: there is no length to check.
template <typename... T>
TarnStatus checkPointers(const T*... pointers)
{
    constexpr int goodLength = 1;
    return check(goodLength, pointers...);
}

} // namespace

TarnStatus tarnsGetVarPointDV_16sc(const Tarn16sc* pSrc, Tarn16sc* pBasePoint, Tarn32u* pSubsetError,
                                   const Tarn8u* pSubsetMap, int numStates)
{
    if (const TarnStatus status = checkPointers(pSrc, pBasePoint, pSubsetError, pSubsetMap)) {
        return status;
    }
    const auto kernel = numStates == 16 ? ownsGetVarPoint4_16sc : ownsGetVarPoint8_16sc;
    kernel(pSrc, pBasePoint, pSubsetError, pSubsetMap);
    return tarnStsNoErr;
}

TarnStatus tarnsBuildSymblTableDV4D_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable, int numStates,
                                         int bitInversion)
{
    if (const TarnStatus status = checkPointers(pSubsetError, pBranchTable)) {
        return status;
    }
    if (bitInversion != 0) {
        owntarnsBuild4DSymblTable_16sc(pSubsetError, pBranchTable, numStates, bitInversion);
    } else if (numStates == 16) {
        owntarnsBuild4DSymblTable16_16sc(pSubsetError, pBranchTable);
    } else if (numStates == 32) {
        owntarnsBuild4DSymblTable32_16sc(pSubsetError, pBranchTable);
    } else {
        owntarnsBuild4DSymblTable64_16sc(pSubsetError, pBranchTable);
    }
    return tarnStsNoErr;
}

TarnStatus tarnsCalcStatesDV_16sc(const Tarn16u* pPathMetric, const Tarn8u* pNextState, Tarn16u* pNewMetric,
                                  const Tarn32u* pBranchTable, Tarn32u* pSurvivor, int numStates, int offset)
{
    if (const TarnStatus status = checkPointers(pPathMetric, pNextState, pNewMetric, pBranchTable, pSurvivor)) {
        return status;
    }
    Tarn32u* const survivors = pSurvivor + offset;
    switch (numStates) {
    case 16:
        ownsCalcStates16_16sc(pPathMetric, pNextState, pNewMetric, pBranchTable, survivors);
        break;
    case 32:
        ownsCalcStates32_16sc(pPathMetric, pNextState, pNewMetric, pBranchTable, survivors);
        break;
    case 64:
        ownsCalcStates64_16sc(pPathMetric, pNextState, pNewMetric, pBranchTable, survivors);
        break;
    default:
        ownsCalcStates_16sc(pPathMetric, pNextState, pNewMetric, pBranchTable, survivors, numStates);
        break;
    }
    return tarnStsNoErr;
}

TarnStatus tarnsUpdatePathMetricsDV_16u(Tarn16u* pNewMetric, Tarn16u* pMinMetric, Tarn8u* pMinState,
                                        Tarn16u* pPathMetric, int numStates)
{
    if (const TarnStatus status = checkPointers(pNewMetric, pMinMetric, pMinState, pPathMetric)) {
        return status;
    }
    const auto kernel = numStates == 16   ? ownsUpdatePathMetrics16_16u
                        : numStates == 32 ? ownsUpdatePathMetrics32_16u
                                          : ownsUpdatePathMetrics64_16u;
    kernel(pNewMetric, pMinMetric, pMinState, pPathMetric);
    return tarnStsNoErr;
}
