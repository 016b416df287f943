// Kernels of direct FIR calls: filters without a state, on a caller's taps and delay line.
#pragma once

#include "frame/walk.h"

namespace tarn {

// The families: the words of taps and samples in their names, and their types.
#define TARN_FIR_DIRECT_FAMILIES(UNSCALED, SCALED, INTEGER) \
    UNSCALED(, 32f, Tarn32f, Tarn32f)                       \
    UNSCALED(, 32fc, Tarn32fc, Tarn32fc)                    \
    UNSCALED(, 64f, Tarn64f, Tarn64f)                       \
    UNSCALED(, 64fc, Tarn64fc, Tarn64fc)                    \
    UNSCALED(64f, 32f, Tarn64f, Tarn32f)                    \
    UNSCALED(64fc, 32fc, Tarn64fc, Tarn32fc)                \
    SCALED(32f, 16s, Tarn32f, Tarn16s)                      \
    SCALED(32fc, 16sc, Tarn32fc, Tarn16sc)                  \
    SCALED(64f, 32s, Tarn64f, Tarn32s)                      \
    SCALED(64fc, 32sc, Tarn64fc, Tarn32sc)                  \
    SCALED(64f, 16s, Tarn64f, Tarn16s)                      \
    SCALED(64fc, 16sc, Tarn64fc, Tarn16sc)                  \
    INTEGER(32s, 16s, Tarn32s, Tarn16s)                     \
    INTEGER(32sc, 16sc, Tarn32sc, Tarn16sc)

// A caller's filter. The true taps of integers are those given times 2^tapsFactor.
template <typename T>
struct DirectTaps {
    const T* taps;
    int tapsLen;
    int tapsFactor;
    int scaleFactor;
};

// How the rate changes.
struct DirectRates {
    int up, upPhase, down, downPhase;
};

// count outputs by a doubled delay line, whose window begins at *pIndex. The destination may be the source.
#define TARN_FIR_DIRECT_KERNEL(T, S)                                                                             \
    void filterDirectly(const DirectTaps<T>& filter, const S* src, S* dst, int count, S* line, Tarn32s* pIndex); \
    void changeRate(const DirectTaps<T>& filter, const DirectRates& rates, const S* src, S* dst, int numIters, S* line);
#define TARN_FIR_DIRECT_OF(TAPS, SAMPLES, T, S) TARN_FIR_DIRECT_KERNEL(T, S)
TARN_FIR_DIRECT_FAMILIES(TARN_FIR_DIRECT_OF, TARN_FIR_DIRECT_OF, TARN_FIR_DIRECT_OF)
TARN_FIR_DIRECT_KERNEL(Tarn16s, Tarn16s)

} // namespace tarn
