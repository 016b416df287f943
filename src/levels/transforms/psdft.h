// Kernels of the transforms of any length: tables, direct sums, convolution with a chirp, recombination.
#pragma once

#include "frame/kernels.h"
#include "levels/transforms/psdft_spec.h"

// -- Tables, from tarnsMalloc_8u; null if there is no memory ---------------------------------------------------------

// The roots of one, (cos(2 pi j / N), -sin(2 pi j / N)) for j below N: what every other table is made of.
TARN_KERNEL Tarn32fc* tarns_createTabDftBase_32f(int N);
TARN_KERNEL Tarn64fc* tarns_createTabDftBase_64f(int N);

// The direct table: every baseLen / N-th root, so N in all, and behind them 2 N words, the numbers 2 j for j below N
// twice: stepping through them by less than N words at a time counts modulo N.
TARN_KERNEL Tarn32fc* tarns_createTabDftDir_32f(int N, const Tarn32fc* base, int baseLen);
TARN_KERNEL Tarn64fc* tarns_createTabDftDir_64f(int N, const Tarn64fc* base, int baseLen);

// The factors that join a complex transform of half the length to a real one of N points, and those that take it apart:
// pairs (A, B) for k from 0, (N + 3) / 4 of them; `base` has the N roots.
TARN_KERNEL Tarn32f* tarns_createTabDftFwdRec_32f(int N, const Tarn32fc* base);
TARN_KERNEL Tarn64f* tarns_createTabDftFwdRec_64f(int N, const Tarn64fc* base);
TARN_KERNEL Tarn32f* tarns_createTabDftInvRec_32f(int N, const Tarn32fc* base);
TARN_KERNEL Tarn64f* tarns_createTabDftInvRec_64f(int N, const Tarn64fc* base);

// -- Recombination of M complex slots in Perm order, in place, and from array to array or in place -------------------

TARN_KERNEL void tarns_rDftFwdRecombine_32f(Tarn32f* pData, int M, const Tarn32f* table);
TARN_KERNEL void tarns_rDftFwdRecombine_64f(Tarn64f* pData, int M, const Tarn64f* table);
TARN_KERNEL void tarns_rDftInvRecombine_32f(const Tarn32f* pSrc, Tarn32f* pDst, int M, const Tarn32f* table);
TARN_KERNEL void tarns_rDftInvRecombine_64f(const Tarn64f* pSrc, Tarn64f* pDst, int M, const Tarn64f* table);

// -- Direct sums over N points ----------------------------------------------------------------------------------------
//
// `direction` is 1 forward and -1 inverse. `work` is on a boundary of 16 bytes and holds N elements. In place or not.
#define TARN_DFT_DECLARE_DIRECT(T)                                                                              \
    TARN_KERNEL void tarns_cDft_Dir_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int N, int direction,      \
                                           const Tarn##T##c* dirTab, Tarn##T* work);                            \
    TARN_KERNEL void tarns_cDft_Dir_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe,          \
                                        Tarn##T* pDstIm, int N, int direction, const Tarn##T##c* dirTab,        \
                                        Tarn##T* work);                                                         \
    TARN_KERNEL void tarns_rDftFwd_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T##c* dirTab, \
                                           Tarn##T* work);                                                      \
    TARN_KERNEL void tarns_rDftInv_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T##c* dirTab, \
                                           Tarn##T* work)

TARN_DFT_DECLARE_DIRECT(32f);
TARN_DFT_DECLARE_DIRECT(64f);

// -- Convolution with a chirp -----------------------------------------------------------------------------------------
//
// The object's tables for N points, from `baseLen` roots, N or 2 N of them. `work` is on a boundary of 16 bytes and
// holds `convLen` complex elements and the buffer of the convolution's transforms. In place or not.
#define TARN_DFT_DECLARE_CONVOLUTION(T)                                                                                \
    TARN_KERNEL TarnStatus tarns_initDftConv_##T(tarn::dft::Spec<Tarn##T>* pSpec, int N, const Tarn##T##c* base,       \
                                                 int baseLen);                                                         \
    TARN_KERNEL TarnStatus tarns_cDft_Conv_##T##c(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T##c* pSrc,       \
                                                  Tarn##T##c* pDst, int N, int direction, Tarn##T* work);              \
    TARN_KERNEL TarnStatus tarns_cDft_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrcRe,           \
                                               const Tarn##T* pSrcIm, Tarn##T* pDstRe, Tarn##T* pDstIm, int direction, \
                                               Tarn##T* work);                                                         \
    TARN_KERNEL TarnStatus tarns_rDftFwd_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,          \
                                                  Tarn##T* pDst, Tarn##T* work);                                       \
    TARN_KERNEL TarnStatus tarns_rDftInv_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,          \
                                                  Tarn##T* pDst, Tarn##T* work)

TARN_DFT_DECLARE_CONVOLUTION(32f);
TARN_DFT_DECLARE_CONVOLUTION(64f);

// -- Blocks of complex elements: product element by element, zeros, conjugates --------------------------------------

TARN_KERNEL void tarns_cbMpy3_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len);
TARN_KERNEL void tarns_cbMpy3_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len);
TARN_KERNEL void tarns_cbZero_32fc(Tarn32fc* pDst, int len);
TARN_KERNEL void tarns_cbZero_64fc(Tarn64fc* pDst, int len);
TARN_KERNEL void tarns_cbConj2_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void tarns_cbConj2_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
