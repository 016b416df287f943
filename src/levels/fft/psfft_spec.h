// The specification object of the floating-point transforms: made once for a length, only read by transforms.
#pragma once

#include "frame/object.h"

namespace tarn::fft {

// Block levels of the large orders.
inline constexpr int maxLevels = 3;

// What an object owns besides itself: each null or a block of the library's allocator.
enum Table {
    bitRevTab,
    twdTab,
    twdL2Tab,    // twiddles of a route that no order takes: stays null
    twdL2TopTab, // likewise
    realRecTab,
    ccsRecTab,
    blkStageTab, // one for each level
    blkTwdTab = blkStageTab + maxLevels,
    tableCount = blkTwdTab + maxLevels
};

// One layout for the three kinds of a precision.
template <typename T>
struct Spec {
    int idCtx;
    int order;
    int doFwdDiv;
    int doInvDiv;
    T normFactor;
    TarnHintAlgorithm hint;
    int bufSize;
    void* tables[tableCount];

    const T* table(int which) const { return static_cast<const T*>(tables[which]); }
    const Tarn32s* reversal() const { return static_cast<const Tarn32s*>(tables[bitRevTab]); }
    // Keeps a table; false if there was no memory for it.
    template <typename E>
    bool keep(int which, Owned<E[]> table)
    {
        tables[which] = table.release();
        return tables[which] != nullptr;
    }
    template <typename E>
    bool keep(int which, E* table)
    {
        return keep(which, Owned<E[]>(table));
    }
};

} // namespace tarn::fft

#define TARN_FFT_DEFINE_SPEC(NAME, T, NUMBER)     \
    struct NAME : tarn::fft::Spec<T> {            \
        static constexpr int identifier = NUMBER; \
    }

TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_C_32fc, Tarn32f, 4);
TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_C_32f, Tarn32f, 5);
TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_R_32f, Tarn32f, 6);
TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_C_64fc, Tarn64f, 7);
TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_C_64f, Tarn64f, 8);
TARN_FFT_DEFINE_SPEC(TarnsFFTSpec_R_64f, Tarn64f, 9);
