// Kernels of Viterbi decoding. Numbers in their names are those of the trellis' states, or of the subsets of its
// points.
#pragma once

#include "frame/kernels.h"

// The nearest points of four subsets, or of eight.
#define TARN_VAR_POINT_PARAMETERS \
    const Tarn16sc *pSrc, Tarn16sc *pBasePoint, Tarn32u *pSubsetError, const Tarn8u *pSubsetMap
TARN_KERNEL void ownsGetVarPoint4_16sc(TARN_VAR_POINT_PARAMETERS);
TARN_KERNEL void ownsGetVarPoint8_16sc(TARN_VAR_POINT_PARAMETERS);

// Branch tables: without inversion, and the general form, for 64 states if it is neither 16 nor 32.
TARN_KERNEL void owntarnsBuild4DSymblTable16_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable);
TARN_KERNEL void owntarnsBuild4DSymblTable32_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable);
TARN_KERNEL void owntarnsBuild4DSymblTable64_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable);
TARN_KERNEL void owntarnsBuild4DSymblTable_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable, int numStates,
                                                int bitInversion);

// One step of the trellis; the survivors are those of the step. The general form has 16 branches a state.
#define TARN_CALC_STATES_PARAMETERS                                                                         \
    const Tarn16u *pPathMetric, const Tarn8u *pNextState, Tarn16u *pNewMetric, const Tarn32u *pBranchTable, \
        Tarn32u *pSurvivor
TARN_KERNEL void ownsCalcStates16_16sc(TARN_CALC_STATES_PARAMETERS);
TARN_KERNEL void ownsCalcStates32_16sc(TARN_CALC_STATES_PARAMETERS);
TARN_KERNEL void ownsCalcStates64_16sc(TARN_CALC_STATES_PARAMETERS);
TARN_KERNEL void ownsCalcStates_16sc(TARN_CALC_STATES_PARAMETERS, int numStates);

#define TARN_UPDATE_METRICS_PARAMETERS Tarn16u *pNewMetric, Tarn16u *pMinMetric, Tarn8u *pMinState, Tarn16u *pPathMetric
TARN_KERNEL void ownsUpdatePathMetrics16_16u(TARN_UPDATE_METRICS_PARAMETERS);
TARN_KERNEL void ownsUpdatePathMetrics32_16u(TARN_UPDATE_METRICS_PARAMETERS);
TARN_KERNEL void ownsUpdatePathMetrics64_16u(TARN_UPDATE_METRICS_PARAMETERS);
