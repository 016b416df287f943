// Kernels of multi-rate FIR filters with floating taps.
#include "levels/fir/psfirmr.h"
#include "levels/fir/psfirmr_sums.h"

using namespace tarn;

namespace {

// What becomes of sums.
template <typename T, typename S>
struct Finishing {
    static auto main(int scaleFactor) { return RoundedByConversion<Part<T>>{TwoFactors<Part<T>>{scaleFactor}}; }
    static auto tail(int scaleFactor) { return RoundedAway<Part<T>>{TwoFactors<Part<T>>{scaleFactor}}; }
};
template <typename T, typename S>
    requires Float<Part<S>>
struct Finishing<T, S> {
    static auto main(int) { return Unscaled{}; }
    static auto tail(int) { return Unscaled{}; }
};

} // namespace

// SCALE is the scale factor of a name, or what stands for one that has none.
#define TARN_DEFINE_FIRMR_TABLE_KERNELS(FORM, PHASES, TAIL, T, S, SCALE, ...)                                         \
    Index owns##FORM##TAIL(TARN_FIRMR_TABLE(T, S) __VA_OPT__(, ) __VA_ARGS__)                                         \
    {                                                                                                                 \
        return filterGroups<T>(PHASES<T, S>{pPhaseTaps, pData, pOffsets, pOffsetsEnd, position, window}, pDst, count, \
                               Finishing<T, S>::main(SCALE));                                                         \
    }                                                                                                                 \
    void FORM##Tail##TAIL(TARN_FIRMR_TABLE(T, S), Index limit __VA_OPT__(, ) __VA_ARGS__)                             \
    {                                                                                                                 \
        filterTail<T>(PHASES<T, S>{pPhaseTaps, pData, pOffsets, pOffsetsEnd, position, window}, pDst, count,          \
                      pData + limit, Finishing<T, S>::tail(SCALE));                                                   \
    }
#define TARN_DEFINE_FIRMR_REAL_KERNELS(TAIL, T, S, SCALE, ...)                                                  \
    TARN_DEFINE_FIRMR_TABLE_KERNELS(dir, DirectPhases, TAIL, T, S, SCALE __VA_OPT__(, ) __VA_ARGS__)            \
    TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, TAIL, T, S, SCALE __VA_OPT__(, ) __VA_ARGS__)           \
    Index ownsdec##TAIL(TARN_FIRMR_STEPS(T, S) __VA_OPT__(, ) __VA_ARGS__)                                      \
    {                                                                                                           \
        return filterGroups<T>(DecimatingPhases<T, S>{pTaps, pData, position, window, step}, pDst, count,       \
                               Finishing<T, S>::main(SCALE));                                                   \
    }                                                                                                           \
    void decTail##TAIL(TARN_FIRMR_STEPS(T, S), Index limit __VA_OPT__(, ) __VA_ARGS__)                          \
    {                                                                                                           \
        filterTail<T>(DecimatingPhases<T, S>{pTaps, pData, position, window, step}, pDst, count, pData + limit, \
                      Finishing<T, S>::tail(SCALE));                                                            \
    }

TARN_DEFINE_FIRMR_REAL_KERNELS(_32f, Tarn32f, Tarn32f, 0)
TARN_DEFINE_FIRMR_REAL_KERNELS(32f_16s_Sfs, Tarn32f, Tarn16s, scaleFactor, int scaleFactor)
TARN_DEFINE_FIRMR_REAL_KERNELS(_64f, Tarn64f, Tarn64f, 0)
TARN_DEFINE_FIRMR_REAL_KERNELS(64f_32f, Tarn64f, Tarn32f, 0)
TARN_DEFINE_FIRMR_REAL_KERNELS(64f_32s_Sfs, Tarn64f, Tarn32s, scaleFactor, int scaleFactor)
TARN_DEFINE_FIRMR_REAL_KERNELS(64f_16s_Sfs, Tarn64f, Tarn16s, scaleFactor, int scaleFactor)

TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, _32fc, Tarn32fc, Tarn32fc, 0)
TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, 32fc_16sc_Sfs, Tarn32fc, Tarn16sc, scaleFactor, int scaleFactor)
TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, _64fc, Tarn64fc, Tarn64fc, 0)
TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, 64fc_32fc, Tarn64fc, Tarn32fc, 0)
TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, 64fc_32sc_Sfs, Tarn64fc, Tarn32sc, scaleFactor, int scaleFactor)
TARN_DEFINE_FIRMR_TABLE_KERNELS(idx, IndexedPhases, 64fc_16sc_Sfs, Tarn64fc, Tarn16sc, scaleFactor, int scaleFactor)
