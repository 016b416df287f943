// The specification objects of the cosine transforms: made once for a length and a direction, only read by transforms.
#pragma once

#include "frame/object.h"
#include "frame/pairs.h"
#include "levels/fft/psfft_kinds.h"
#include "tarns/dft.h"

namespace tarn::dct {

// Direct sums end here, and convolutions with a chirp begin, where the length is no power of two.
inline constexpr int largestDirect = 100;

// The real transform of any length.
template <typename T>
struct DftOf;
template <>
struct DftOf<Tarn32f> {
    using Spec = TarnsDFTSpec_R_32f;
};
template <>
struct DftOf<Tarn64f> {
    using Spec = TarnsDFTSpec_R_64f;
};

// One layout for both directions of a precision. What a pointer points at is the object's own.
template <typename T>
struct Spec {
    int idCtx;
    int length;
    TarnHintAlgorithm hint;
    int bufSize;
    T scale0;     // of coefficient 0
    T scaleK;     // of all others
    int useSmall; // 1: a length without tables
    int usePow2;
    int useFft; // 1, and usePow2 as well: a real transform of twice the length
    int useConv;
    int convLen; // of the transforms that convolve with the chirp
    T* dirTab;
    T* pow2Tab;
    PairOf<T>* outTab; // what coefficient k is turned and scaled by
    T* recTab;
    PairOf<T>* convChirp;
    PairOf<T>* convKernel;
    typename TransformOf<T>::Spec* fftRSpec;
    typename TransformOf<PairOf<T>>::Spec* fftCSpec;
    typename DftOf<T>::Spec* dftRSpec; // in place of the chirp, where the length has small factors only
};

} // namespace tarn::dct

#define TARN_DCT_DEFINE_SPEC(NAME, T, NUMBER)     \
    struct NAME : tarn::dct::Spec<T> {            \
        static constexpr int identifier = NUMBER; \
    }

TARN_DCT_DEFINE_SPEC(TarnsDCTFwdSpec_32f, Tarn32f, 21);
TARN_DCT_DEFINE_SPEC(TarnsDCTInvSpec_32f, Tarn32f, 22);
TARN_DCT_DEFINE_SPEC(TarnsDCTFwdSpec_64f, Tarn64f, 23);
TARN_DCT_DEFINE_SPEC(TarnsDCTInvSpec_64f, Tarn64f, 24);
