// The kernels of the power-of-two transforms by precision and direction.
#pragma once

#include "frame/pairs.h"
#include "levels/fft/psfft.h"

namespace tarn::fft {

// What there is once for a precision.
template <typename T>
struct Kernels {
    T* (*createBase)(int order);
    T* (*createStages)(int order, const T* base, int baseOrder);
    TarnStatus (*createLarge)(Spec<T>* spec, int order, const T* base, int baseOrder);
    T* (*createRealRec)(int order, const T* base);
    T* (*createCcsRec)(int order, const T* base);
    void (*recombineReal)(T* data, int M, int direction, const T* table);
    void (*recombineCcs)(const T* src, T* dst, int M, int direction, const T* table);
    void (*scale)(T factor, T* data, int len);
    void (*reversePairs)(const PairOf<T>* src, PairOf<T>* dst, int size, const Tarn32s* table);
    void (*reversePairsInPlace)(PairOf<T>* data, int size, const Tarn32s* table);
    void (*reverseParts)(const T* src, T* dst, int size, const Tarn32s* table);
    void (*merge)(const PairOf<T>* cols, PairOf<T>* work, const T* grid, int forward, int C, int R);
    void (*split)(PairOf<T>* cols, const PairOf<T>* work, int C, int R, int interleave);
    void (*mergeParts)(const T* re, const T* im, PairOf<T>* work, const T* grid, int forward, int C, int R);
    void (*splitParts)(T* re, T* im, const PairOf<T>* work, int C, int R);
};

// What there is for each direction.
template <typename T>
struct DirectedKernels {
    void (*reading)(const PairOf<T>* src, PairOf<T>* dst, int size, const T* twd, const Tarn32s* rev, T* work);
    void (*readingParts)(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, int size, const T* twd, const Tarn32s* rev,
                         T* work);
    void (*inPlace)(PairOf<T>* data, int size, const T* twd, T* work, int interleave);
    void (*inPlaceParts)(T* re, T* im, int size, const T* twd, T* work);
    void (*large)(const Spec<T>* spec, PairOf<T>* data, int order, T* work);
    void (*largeParts)(const Spec<T>* spec, T* re, T* im, int order, T* work);
};

template <typename T>
inline constexpr Kernels<T> kernels{};
template <>
inline constexpr Kernels<Tarn32f> kernels<Tarn32f>{tarns_createTabTwdBase_32f,
                                                   tarns_createTabTwd_L1_32f,
                                                   tarns_createTabTwd_Large_32f,
                                                   tarns_createTabTwdRealRec_32f,
                                                   tarns_createTabTwdCcsRec_32f,
                                                   tarns_cRealRecombine_32f,
                                                   tarns_cCcsRecombine_32f,
                                                   tarns_rbMpy1_32f,
                                                   tarns_BitRev2_C,
                                                   tarns_BitRev1_C,
                                                   tarns_BitRev2_S,
                                                   tarns_cFftBlkMergeMpy_32fc,
                                                   tarns_cFftBlkSplit_32fc,
                                                   tarns_crFftBlkMergeMpy_32f,
                                                   tarns_crFftBlkSplit_32f};
template <>
inline constexpr Kernels<Tarn64f> kernels<Tarn64f>{tarns_createTabTwdBase_64f,
                                                   tarns_createTabTwd_L1_64f,
                                                   tarns_createTabTwd_Large_64f,
                                                   tarns_createTabTwdRealRec_64f,
                                                   tarns_createTabTwdCcsRec_64f,
                                                   tarns_cRealRecombine_64f,
                                                   tarns_cCcsRecombine_64f,
                                                   tarns_rbMpy1_64f,
                                                   tarns_BitRev2_Z,
                                                   tarns_BitRev1_Z,
                                                   tarns_BitRev2_D,
                                                   tarns_cFftBlkMergeMpy_64fc,
                                                   tarns_cFftBlkSplit_64fc,
                                                   tarns_crFftBlkMergeMpy_64f,
                                                   tarns_crFftBlkSplit_64f};

template <typename T, bool forward>
inline constexpr DirectedKernels<T> directed{};
template <>
inline constexpr DirectedKernels<Tarn32f> directed<Tarn32f, true>{tarns_cRadix4FwdNorm_32fc, tarns_crRadix4FwdNorm_32f,
                                                                  tarns_cRadix4Fwd_32fc,     tarns_crRadix4Fwd_32f,
                                                                  tarns_cFftFwd_Large_32fc,  tarns_crFftFwd_Large_32f};
template <>
inline constexpr DirectedKernels<Tarn32f> directed<Tarn32f, false>{tarns_cRadix4InvNorm_32fc, tarns_crRadix4InvNorm_32f,
                                                                   tarns_cRadix4Inv_32fc,     tarns_crRadix4Inv_32f,
                                                                   tarns_cFftInv_Large_32fc,  tarns_crFftInv_Large_32f};
template <>
inline constexpr DirectedKernels<Tarn64f> directed<Tarn64f, true>{tarns_cRadix4FwdNorm_64fc, tarns_crRadix4FwdNorm_64f,
                                                                  tarns_cRadix4Fwd_64fc,     tarns_crRadix4Fwd_64f,
                                                                  tarns_cFftFwd_Large_64fc,  tarns_crFftFwd_Large_64f};
template <>
inline constexpr DirectedKernels<Tarn64f> directed<Tarn64f, false>{tarns_cRadix4InvNorm_64fc, tarns_crRadix4InvNorm_64f,
                                                                   tarns_cRadix4Inv_64fc,     tarns_crRadix4Inv_64f,
                                                                   tarns_cFftInv_Large_64fc,  tarns_crFftInv_Large_64f};

// The reversal of real or imaginary parts in place, which knows elements by their size alone.
inline void reversePartsInPlace(Tarn32f* data, int size, const Tarn32s* table) { tarns_BitRev1_4(data, size, table); }
inline void reversePartsInPlace(Tarn64f* data, int size, const Tarn32s* table) { tarns_BitRev1_D(data, size, table); }

// From array to array, or in place where they are one.
template <typename T>
inline void reversePairs(const T* src, T* dst, int size, const Tarn32s* table)
{
    if (src == dst) {
        kernels<T>.reversePairsInPlace(asPairs(dst), size, table);
    } else {
        kernels<T>.reversePairs(asPairs(src), asPairs(dst), size, table);
    }
}
template <typename T>
inline void reverseParts(const T* src, T* dst, int size, const Tarn32s* table)
{
    if (src == dst) {
        reversePartsInPlace(dst, size, table);
    } else {
        kernels<T>.reverseParts(src, dst, size, table);
    }
}

} // namespace tarn::fft
