// The states of IIR filters. Order and width of the fields are those that callers of the 32-bit library know.
#pragma once

#include "frame/state.h"
#include "tarns/iirstate.h"

namespace tarn {

// Samples of a chunk: long calls are cut so that all that is computed on the way stays in the first-level cache.
inline constexpr int chunkSamples = 1024;

// A block of so many samples for each unit of order or section is the shortest that goes through the tables.
inline constexpr int tablesPayFrom = 4;

// The fields of a state that computes in elements of type T.
template <typename T>
struct IirFields {
    Tarn32u idCtx;
    T* pTaps;    // normalised: b0..bN, a1..aN; of a biquad b0, b1, b2, a1, a2
    T* pDlyLine; // accumulators of the transposed form, with a zero behind them if there is one section of any order
    int dlyLen;
    T* pTapsX; // numerators in the layout of the kernels
    T* pTapsY; // the recursion four samples ahead
    int numBq; // 0 for one section of any order
    T* pTapsOne;
    T* pTmp;  // chunkSamples elements
    T* pTmp2; // the same for samples of another type than T, null otherwise
    int isAllocated;
    int isSingly; // 1 if the tables would amplify rounding: then blocks go sample by sample, too
};

// A state for samples of type S.
template <typename T, typename S, Tarn32u order, Tarn32u biquad>
struct IirState : IirFields<T> {
    using Tap = T;
    using Sample = S;
    static constexpr Tarn32u orderId = order;
    static constexpr Tarn32u biquadId = biquad;
    static constexpr Tarn32u formIds[] = {order, biquad};
};

} // namespace tarn

#define TARN_IIR_STATE(TAIL, T, S, ORDER, BIQUAD) \
    struct TarnsIIRState##TAIL : tarn::IirState<T, S, tarn::spelled(ORDER), tarn::spelled(BIQUAD)> {}

TARN_IIR_STATE(_32f, Tarn32f, Tarn32f, "II01", "II02");
TARN_IIR_STATE(_32fc, Tarn32fc, Tarn32fc, "II03", "II04");
TARN_IIR_STATE(32f_16s, Tarn32f, Tarn16s, "II05", "II06");
TARN_IIR_STATE(32fc_16sc, Tarn32fc, Tarn16sc, "II07", "II08");
TARN_IIR_STATE(32s_16s, Tarn32f, Tarn16s, "II09", "II10");
TARN_IIR_STATE(32sc_16sc, Tarn32fc, Tarn16sc, "II11", "II12");
TARN_IIR_STATE(_64f, Tarn64f, Tarn64f, "II13", "II14");
TARN_IIR_STATE(_64fc, Tarn64fc, Tarn64fc, "II15", "II16");
TARN_IIR_STATE(64f_32f, Tarn64f, Tarn32f, "II17", "II18");
TARN_IIR_STATE(64fc_32fc, Tarn64fc, Tarn32fc, "II19", "II20");
TARN_IIR_STATE(64f_32s, Tarn64f, Tarn32s, "II21", "II22");
TARN_IIR_STATE(64fc_32sc, Tarn64fc, Tarn32sc, "II23", "II24");
TARN_IIR_STATE(64f_16s, Tarn64f, Tarn16s, "II25", "II26");
TARN_IIR_STATE(64fc_16sc, Tarn64fc, Tarn16sc, "II27", "II28");
