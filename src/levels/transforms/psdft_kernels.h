// The kernels of the transforms of any length: tables, direct sums, recombination. Stamped for one precision a unit.
#pragma once

#include "levels/transforms/psdft.h"
#include "levels/transforms/psdft_recombine.h"
#include "levels/transforms/psdft_transforms.h"

#define TARN_DFT_DEFINE_KERNELS(T)                                                                                 \
    Tarn##T##c* tarns_createTabDftBase_##T(int N) { return dft::baseTable<Tarn##T>(N).release(); }                 \
    Tarn##T##c* tarns_createTabDftDir_##T(int N, const Tarn##T##c* base, int baseLen)                              \
    {                                                                                                              \
        return dft::directTable(N, base, baseLen).release();                                                       \
    }                                                                                                              \
    Tarn##T* tarns_createTabDftFwdRec_##T(int N, const Tarn##T##c* base)                                           \
    {                                                                                                              \
        return dft::forwardRecombinationTable(N, base).release();                                                  \
    }                                                                                                              \
    Tarn##T* tarns_createTabDftInvRec_##T(int N, const Tarn##T##c* base)                                           \
    {                                                                                                              \
        return dft::inverseRecombinationTable(N, base).release();                                                  \
    }                                                                                                              \
    void tarns_rDftFwdRecombine_##T(Tarn##T* pData, int M, const Tarn##T* table)                                   \
    {                                                                                                              \
        dft::recombine<fft::ToSpectrum>(pData, pData, M, table);                                                   \
    }                                                                                                              \
    void tarns_rDftInvRecombine_##T(const Tarn##T* pSrc, Tarn##T* pDst, int M, const Tarn##T* table)               \
    {                                                                                                              \
        dft::recombine<fft::FromSpectrum>(pSrc, pDst, M, table);                                                   \
    }                                                                                                              \
    void tarns_cDft_Dir_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int N, int direction,                     \
                               const Tarn##T##c* dirTab, Tarn##T* work)                                            \
    {                                                                                                              \
        dft::directTransform(dft::PairsIn<Tarn##T>{asParts(pSrc)}, dft::PairsOut<Tarn##T>{asParts(pDst)}, N,       \
                             direction, dft::Roots<Tarn##T>{dirTab, N}, work);                                     \
    }                                                                                                              \
    void tarns_cDft_Dir_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe, Tarn##T* pDstIm, int N, \
                            int direction, const Tarn##T##c* dirTab, Tarn##T* work)                                \
    {                                                                                                              \
        dft::directTransform(dft::PartsIn<Tarn##T>{pSrcRe, pSrcIm}, dft::PartsOut<Tarn##T>{pDstRe, pDstIm}, N,     \
                             direction, dft::Roots<Tarn##T>{dirTab, N}, work);                                     \
    }                                                                                                              \
    void tarns_rDftFwd_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T##c* dirTab, Tarn##T* work) \
    {                                                                                                              \
        dft::directToPerm(pSrc, pDst, N, dft::Roots<Tarn##T>{dirTab, N}, work);                                    \
    }                                                                                                              \
    void tarns_rDftInv_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T##c* dirTab, Tarn##T* work) \
    {                                                                                                              \
        dft::directFromPerm(pSrc, pDst, N, dft::Roots<Tarn##T>{dirTab, N}, work);                                  \
    }
