// The specification objects of the transforms of any length: made once for a length, only read by transforms.
#pragma once

#include "frame/object.h"
#include "frame/pairs.h"

namespace tarn::dft {

// One level of a mixed-radix transform of N points, which joins `factor` transforms of `remaining` points each.
struct Factor {
    int factor;
    int remaining;  // N divided by the factors up to this one
    int before;     // the product of the factors before this one
    int groupCount; // blocks of this level that run side by side
    void* dirTab;   // direct table of `factor` points, where there is no kernel of its own; levels share one
    void* twdTab;   // `factor` * `remaining` twiddle factors, all or fewer of them used
};

// No length has as many; behind the last one a record has the direct table of the innermost transforms.
inline constexpr int maxFactors = 20;

// One layout for all kinds of a precision. What a pointer points at is the object's own, of the library's allocator.
template <typename T>
struct Spec {
    int idCtx;
    int length;
    int doFwdDiv;
    int doInvDiv;
    T normFactor;
    TarnHintAlgorithm hint;
    int bufSize;
    int useFft;     // 1: the length is a power of two above 4
    int outOrdered; // 1: results are left in the order they come in
    int convLen;
    PairOf<T>* dirTab;
    T* fwdRecTab;
    T* invRecTab;
    PairOf<T>* convChirp;
    PairOf<T>* convKernel;
    void* fftSpec;     // of the kind of transform that the object is of
    void* convFftSpec; // interleaved complex
    int usePrimeFact;
    int lastFactor; // the index of the last level
    int* factPerm;
    Factor factors[maxFactors];
    void* laneTab; // tables of transforms that run side by side
};

} // namespace tarn::dft

#define TARN_DFT_DEFINE_SPEC(NAME, T, NUMBER)     \
    struct NAME : tarn::dft::Spec<T> {            \
        static constexpr int identifier = NUMBER; \
    }

TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_C_32fc, Tarn32f, 13);
TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_C_32f, Tarn32f, 14);
TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_R_32f, Tarn32f, 15);
TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_C_64fc, Tarn64f, 16);
TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_C_64f, Tarn64f, 17);
TARN_DFT_DEFINE_SPEC(TarnsDFTSpec_R_64f, Tarn64f, 18);
TARN_DFT_DEFINE_SPEC(TarnsDFTOutOrdSpec_C_32fc, Tarn32f, 0x4C4D535C);
TARN_DFT_DEFINE_SPEC(TarnsDFTOutOrdSpec_C_64fc, Tarn64f, 0x4C4D535D);
