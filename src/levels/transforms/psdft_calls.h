// The kernels of the transforms of any length by precision and direction.
#pragma once

#include "levels/transforms/psdft.h"
#include "levels/transforms/psdftfact.h"

namespace tarn::dft {

// What there is once for a precision.
template <typename T>
struct Kernels {
    PairOf<T>* (*createBase)(int N);
    PairOf<T>* (*createDirect)(int N, const PairOf<T>* base, int baseLen);
    T* (*createForwardRec)(int N, const PairOf<T>* base);
    T* (*createInverseRec)(int N, const PairOf<T>* base);
    void (*recombineForward)(T* data, int M, const T* table);
    void (*recombineInverse)(const T* src, T* dst, int M, const T* table);
    void (*direct)(const PairOf<T>* src, PairOf<T>* dst, int N, int direction, const PairOf<T>* table, T* work);
    void (*directParts)(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, int N, int direction,
                        const PairOf<T>* table, T* work);
    TarnStatus (*initFactors)(Spec<T>* spec, int N, const PairOf<T>* base, int baseLen);
    TarnStatus (*initConvolution)(Spec<T>* spec, int N, const PairOf<T>* base, int baseLen);
    TarnStatus (*convolution)(const Spec<T>* spec, const PairOf<T>* src, PairOf<T>* dst, int N, int direction, T* work);
    TarnStatus (*convolutionParts)(const Spec<T>* spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                                   int direction, T* work);
    void (*multiply)(const PairOf<T>* src1, const PairOf<T>* src2, PairOf<T>* dst, int len);
    void (*zero)(PairOf<T>* dst, int len);
    void (*conjugate)(const PairOf<T>* src, PairOf<T>* dst, int len);
};

// What there is for each direction.
template <typename T>
struct DirectedKernels {
    void (*factors)(const Spec<T>* spec, const PairOf<T>* src, PairOf<T>* dst, T* work);
    void (*factorsParts)(const Spec<T>* spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, T* work);
    void (*realFactors)(const Spec<T>* spec, const T* src, T* dst, T* work);
    void (*realDirect)(const T* src, T* dst, int N, const PairOf<T>* table, T* work);
    TarnStatus (*realConvolution)(const Spec<T>* spec, const T* src, T* dst, T* work);
};

template <typename T>
inline constexpr Kernels<T> kernels{};
template <typename T, bool forward>
inline constexpr DirectedKernels<T> directed{};

#define TARN_DFT_TABULATE(T)                                                                       \
    template <>                                                                                    \
    inline constexpr Kernels<Tarn##T> kernels<Tarn##T>{                                            \
        tarns_createTabDftBase_##T,   tarns_createTabDftDir_##T,  tarns_createTabDftFwdRec_##T,    \
        tarns_createTabDftInvRec_##T, tarns_rDftFwdRecombine_##T, tarns_rDftInvRecombine_##T,      \
        tarns_cDft_Dir_##T##c,        tarns_cDft_Dir_##T,         tarns_initDftPrimeFact_##T,      \
        tarns_initDftConv_##T,        tarns_cDft_Conv_##T##c,     tarns_cDft_Conv_##T,             \
        tarns_cbMpy3_##T##c,          tarns_cbZero_##T##c,        tarns_cbConj2_##T##c};           \
    template <>                                                                                    \
    inline constexpr DirectedKernels<Tarn##T> directed<Tarn##T, true>{                             \
        tarns_cDftFwd_PrimeFact_##T##c, tarns_crDftFwd_PrimeFact_##T, tarns_rDftFwd_PrimeFact_##T, \
        tarns_rDftFwd_Dir_##T, tarns_rDftFwd_Conv_##T};                                            \
    template <>                                                                                    \
    inline constexpr DirectedKernels<Tarn##T> directed<Tarn##T, false>{                            \
        tarns_cDftInv_PrimeFact_##T##c, tarns_crDftInv_PrimeFact_##T, tarns_rDftInv_PrimeFact_##T, \
        tarns_rDftInv_Dir_##T, tarns_rDftInv_Conv_##T};

TARN_DFT_TABULATE(32f)
TARN_DFT_TABULATE(64f)
#undef TARN_DFT_TABULATE

} // namespace tarn::dft
