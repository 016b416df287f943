// Kernels of the mixed-radix transforms: tables, innermost transforms, merges, and the way through all of them.
#pragma once

#include "frame/kernels.h"
#include "levels/transforms/psdft_spec.h"

// -- The whole transform ---------------------------------------------------------------------------------------------

// Completes the factor records of a new object for transforms of N points, from `baseLen` roots, a multiple of N.
TARN_KERNEL TarnStatus tarns_initDftPrimeFact_32f(tarn::dft::Spec<Tarn32f>* pSpec, int N, const Tarn32fc* base,
                                                  int baseLen);
TARN_KERNEL TarnStatus tarns_initDftPrimeFact_64f(tarn::dft::Spec<Tarn64f>* pSpec, int N, const Tarn64fc* base,
                                                  int baseLen);

// In place or not, of interleaved pairs, of parts, and of real data (odd lengths, spectra in Perm order). The length is
// that of the records. `work` is on a boundary of 16 bytes and holds what the object says.
#define TARN_DFT_DECLARE_FACTORED(T, DIRECTION)                                                                        \
    TARN_KERNEL void tarns_cDft##DIRECTION##_PrimeFact_##T##c(                                                         \
        const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T##c* pSrc, Tarn##T##c* pDst, Tarn##T* work);               \
    TARN_KERNEL void tarns_crDft##DIRECTION##_PrimeFact_##T(const tarn::dft::Spec<Tarn##T>* pSpec,                     \
                                                            const Tarn##T* pSrcRe, const Tarn##T* pSrcIm,              \
                                                            Tarn##T* pDstRe, Tarn##T* pDstIm, Tarn##T* work);          \
    TARN_KERNEL void tarns_rDft##DIRECTION##_PrimeFact_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc, \
                                                           Tarn##T* pDst, Tarn##T* work)

TARN_DFT_DECLARE_FACTORED(32f, Fwd);
TARN_DFT_DECLARE_FACTORED(32f, Inv);
TARN_DFT_DECLARE_FACTORED(64f, Fwd);
TARN_DFT_DECLARE_FACTORED(64f, Inv);

// -- Innermost transforms --------------------------------------------------------------------------------------------
//
// Of 3 and 5 points: `count` of them in each of so many blocks. Transform i of block t reads its points from element
// perm[t] + i stride on, count * stride apart, and they leave their results one behind the other. Of any odd number of
// points, one block; `scratch` is on a boundary of 16 bytes and holds 2 q - 2 reals. Inverse real ones read one behind
// the other and write with the stride.
#define TARN_DFT_DECLARE_LEAVES(T, DIRECTION)                                                                          \
    TARN_KERNEL void tarns_cDft##DIRECTION##_Prime3_##T##c(const Tarn##T##c* pSrc, int stride, Tarn##T##c* pDst,       \
                                                           int count, int blocks, const int* perm);                    \
    TARN_KERNEL void tarns_cDft##DIRECTION##_Prime5_##T##c(const Tarn##T##c* pSrc, int stride, Tarn##T##c* pDst,       \
                                                           int count, int blocks, const int* perm);                    \
    TARN_KERNEL void tarns_cDft##DIRECTION##_Prime_##T##c(const Tarn##T##c* pSrc, int stride, Tarn##T##c* pDst, int q, \
                                                          int count, const Tarn##T##c* dirTab, Tarn##T* scratch);      \
    TARN_KERNEL void tarns_crDft##DIRECTION##_Prime3_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, int stride,     \
                                                         Tarn##T* pDstRe, Tarn##T* pDstIm, int count, int blocks,      \
                                                         const int* perm);                                             \
    TARN_KERNEL void tarns_crDft##DIRECTION##_Prime5_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, int stride,     \
                                                         Tarn##T* pDstRe, Tarn##T* pDstIm, int count, int blocks,      \
                                                         const int* perm);                                             \
    TARN_KERNEL void tarns_crDft##DIRECTION##_Prime_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, int stride,      \
                                                        Tarn##T* pDstRe, Tarn##T* pDstIm, int q, int count,            \
                                                        const Tarn##T##c* dirTab, Tarn##T* scratch);                   \
    TARN_KERNEL void tarns_rDft##DIRECTION##_Prime3_##T(const Tarn##T* pSrc, int stride, Tarn##T* pDst, int count,     \
                                                        int blocks, const int* perm);                                  \
    TARN_KERNEL void tarns_rDft##DIRECTION##_Prime5_##T(const Tarn##T* pSrc, int stride, Tarn##T* pDst, int count,     \
                                                        int blocks, const int* perm);                                  \
    TARN_KERNEL void tarns_rDft##DIRECTION##_Prime_##T(const Tarn##T* pSrc, int stride, Tarn##T* pDst, int q,          \
                                                       int count, const Tarn##T##c* dirTab, Tarn##T* scratch)

TARN_DFT_DECLARE_LEAVES(32f, Fwd);
TARN_DFT_DECLARE_LEAVES(32f, Inv);
TARN_DFT_DECLARE_LEAVES(64f, Fwd);
TARN_DFT_DECLARE_LEAVES(64f, Inv);

// -- Merges ----------------------------------------------------------------------------------------------------------
//
// p spectra of q points become one of p q, in each of so many blocks: for p up to 5 by rows of p - 1 twiddle factors
// from the second one on, for any odd p by rows of p. Complex ones in place or not; real ones not in place, the inverse
// taking one spectrum apart into p.
#define TARN_DFT_DECLARE_MERGE(T, DIRECTION, P)                                                                  \
    TARN_KERNEL void tarns_cDft##DIRECTION##_Fact##P##_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int q,   \
                                                              int blocks, const Tarn##T##c* twdTab);             \
    TARN_KERNEL void tarns_crDft##DIRECTION##_Fact##P##_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm,        \
                                                            Tarn##T* pDstRe, Tarn##T* pDstIm, int q, int blocks, \
                                                            const Tarn##T##c* twdTab)
#define TARN_DFT_DECLARE_REAL_MERGE(T, DIRECTION, P)                                                              \
    TARN_KERNEL void tarns_rDft##DIRECTION##_Fact##P##_##T(const Tarn##T* pSrc, Tarn##T* pDst, int q, int blocks, \
                                                           const Tarn##T##c* twdTab)
#define TARN_DFT_DECLARE_MERGES(T, DIRECTION)                                                                         \
    TARN_DFT_DECLARE_MERGE(T, DIRECTION, 2);                                                                          \
    TARN_DFT_DECLARE_MERGE(T, DIRECTION, 3);                                                                          \
    TARN_DFT_DECLARE_MERGE(T, DIRECTION, 4);                                                                          \
    TARN_DFT_DECLARE_MERGE(T, DIRECTION, 5);                                                                          \
    TARN_DFT_DECLARE_REAL_MERGE(T, DIRECTION, 3);                                                                     \
    TARN_DFT_DECLARE_REAL_MERGE(T, DIRECTION, 5);                                                                     \
    TARN_KERNEL void tarns_cDft##DIRECTION##_Fact_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int p, int q,      \
                                                         const Tarn##T##c* dirTab, const Tarn##T##c* twdTab,          \
                                                         Tarn##T* scratch);                                           \
    TARN_KERNEL void tarns_crDft##DIRECTION##_Fact_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe, \
                                                       Tarn##T* pDstIm, int p, int q, const Tarn##T##c* dirTab,       \
                                                       const Tarn##T##c* twdTab, Tarn##T* scratch);                   \
    TARN_KERNEL void tarns_rDft##DIRECTION##_Fact_##T(const Tarn##T* pSrc, Tarn##T* pDst, int p, int q,               \
                                                      const Tarn##T##c* dirTab, const Tarn##T##c* twdTab,             \
                                                      Tarn##T* scratch)

TARN_DFT_DECLARE_MERGES(32f, Fwd);
TARN_DFT_DECLARE_MERGES(32f, Inv);
TARN_DFT_DECLARE_MERGES(64f, Fwd);
TARN_DFT_DECLARE_MERGES(64f, Inv);
