// Kernels of the cosine transforms. Unscaled means without the factors that make the transform orthonormal:
// forward y[k] = sum of x[n] cos(pi (2 n + 1) k / (2 N)), inverse x[n] = sum of y[k] times the same cosine.
#pragma once

#include "frame/kernels.h"
#include "levels/transforms/psdct_spec.h"

// -- Tables, from tarnsMalloc_8u; null if there is no memory ---------------------------------------------------------

// One period, cos(2 pi j / (4 N)) for j below 4 N; behind it the factors of the direct sums, row by row.
TARN_KERNEL Tarn32f* tarns_createTabDct_Dir_32f(int N);
TARN_KERNEL Tarn64f* tarns_createTabDct_Dir_64f(int N);

// 0.5 / cos(pi (2 i + 1) / (2 M)) for i below M / 2, for M = N, N / 2, ... down to 16; N is a power of two.
TARN_KERNEL Tarn32f* tarns_createTabDct_Pow2_32f(int N);
TARN_KERNEL Tarn64f* tarns_createTabDct_Pow2_64f(int N);

#define TARN_DCT_DECLARE_KERNELS(T)                                                                                \
    /* Direct sums, up to 100 points, unscaled; in place or not. `work` holds N elements. */                       \
    TARN_KERNEL void tarns_sDctFwd_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T* dirTab,       \
                                           Tarn##T* work);                                                         \
    TARN_KERNEL void tarns_sDctInv_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T* dirTab);      \
    /* Powers of two from 16 on, unscaled; in place or not. `work` holds M elements, as the destination does. */   \
    TARN_KERNEL void tarns_sDctFwd_Pow2_##T(const Tarn##T* pSrc, Tarn##T* pDst, int M, const Tarn##T* table,       \
                                            Tarn##T* work);                                                        \
    TARN_KERNEL void tarns_sDctInv_Pow2_##T(const Tarn##T* pSrc, Tarn##T* pDst, int M, const Tarn##T* table,       \
                                            Tarn##T* work);                                                        \
    /* By the library's Fourier transforms, scaled. The first ones make what an object needs, bufSize included. */ \
    TARN_KERNEL TarnStatus tarns_initDctFwd_Fft_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N);                       \
    TARN_KERNEL TarnStatus tarns_initDctInv_Fft_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N);                       \
    TARN_KERNEL TarnStatus tarns_initDctFwd_Conv_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N);                      \
    TARN_KERNEL TarnStatus tarns_initDctInv_Conv_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N);                      \
    TARN_KERNEL TarnStatus tarns_sDctFwd_Fft_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,       \
                                                 Tarn##T* pDst, Tarn##T* work);                                    \
    TARN_KERNEL TarnStatus tarns_sDctInv_Fft_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,       \
                                                 Tarn##T* pDst, Tarn##T* work);                                    \
    TARN_KERNEL TarnStatus tarns_sDctFwd_Conv_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,      \
                                                  Tarn##T* pDst, Tarn##T* work);                                   \
    TARN_KERNEL TarnStatus tarns_sDctInv_Conv_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,      \
                                                  Tarn##T* pDst, Tarn##T* work)

TARN_DCT_DECLARE_KERNELS(32f);
TARN_DCT_DECLARE_KERNELS(64f);

namespace tarn::dct {

// What the routes do to their data around the Fourier transforms, and tables.
template <typename T>
struct Kernels {
    // Scales coefficients: the first, and all others. In place or not.
    static void scale(const T* src, T* dst, int N, T first, T others);

    // out[k] = (cos, sin)(pi k / (2 N)) times a scale, (first, 0) for k = 0.
    static void fillTurns(PairOf<T>* out, int N, double first, double others);
    // The coefficients of a real spectrum of 2 N points in Perm order, and back.
    static void leaveSpectrum(const T* perm, const PairOf<T>* out, T* dst, int N);
    static void enterSpectrum(const T* src, const PairOf<T>* out, T* perm, int N);

    // Samples with even index as they rise, then those with odd index as they fall; and back.
    static void splitHalves(const T* src, T* dst, int N);
    static void joinHalves(const T* src, T* dst, int N);
    // The coefficients of the spectrum of N such points in Perm order, and back.
    static void leaveHalves(const T* perm, const PairOf<T>* out, T* dst, int N);
    static void enterHalves(const T* src, const PairOf<T>* out, T* perm, int N);

    // The chirp's conjugate, mirrored about place 0 of L.
    static void fillKernel(PairOf<T>* kernel, const PairOf<T>* chirp, int N, int L);
    // N reals taken for pairs, times the chirp, zeros up to L; and N coefficients of what comes out of the convolution.
    static void enterSignal(const Spec<T>& spec, const T* src, PairOf<T>* y);
    static void leaveSlots(const Spec<T>& spec, const PairOf<T>* y, T* dst);
    // The other way.
    static void enterSlots(const Spec<T>& spec, const T* src, PairOf<T>* y);
    static void leaveSignal(const Spec<T>& spec, const PairOf<T>* y, T* dst);
};

extern template struct Kernels<Tarn32f>;
extern template struct Kernels<Tarn64f>;

} // namespace tarn::dct
