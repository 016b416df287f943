// The exported kernels of the mixed-radix transforms. The inverse is the forward transform of exchanged parts, whether
// they lie in pairs or in arrays of their own.
#pragma once

#include "levels/transforms/psdftfact.h"
#include "levels/transforms/psdftfact_route.h"

namespace tarn::dft {

template <bool forward, typename T>
TARN_INLINE auto pairsFrom(const T* p)
{
    return PairArray<const Part<T>, !forward>{asParts(p)};
}
template <bool forward, typename T>
TARN_INLINE auto pairsTo(T* p)
{
    return PairArray<Part<T>, !forward>{asParts(p)};
}
template <bool forward, typename T>
TARN_INLINE PartArrays<T> partsOf(T* re, T* im)
{
    return forward ? PartArrays<T>{re, im} : PartArrays<T>{im, re};
}

} // namespace tarn::dft

#define TARN_DFT_DEFINE_FACTORED(T, DIRECTION, FORWARD)                                                          \
    void tarns_cDft##DIRECTION##_PrimeFact_##T##c(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T##c* pSrc, \
                                                  Tarn##T##c* pDst, Tarn##T* work)                               \
    {                                                                                                            \
        tarn::dft::transformPairs<FORWARD>(*pSpec, asParts(pSrc), asParts(pDst), work);                          \
    }                                                                                                            \
    void tarns_crDft##DIRECTION##_PrimeFact_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrcRe,    \
                                                const Tarn##T* pSrcIm, Tarn##T* pDstRe, Tarn##T* pDstIm,         \
                                                Tarn##T* work)                                                   \
    {                                                                                                            \
        const auto from = tarn::dft::partsOf<FORWARD>(pSrcRe, pSrcIm);                                           \
        const auto to = tarn::dft::partsOf<FORWARD>(pDstRe, pDstIm);                                             \
        tarn::dft::transformParts(*pSpec, from.re, from.im, to.re, to.im, work);                                 \
    }                                                                                                            \
    void tarns_rDft##DIRECTION##_PrimeFact_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,       \
                                               Tarn##T* pDst, Tarn##T* work)                                     \
    {                                                                                                            \
        tarn::dft::transformReals<FORWARD>(*pSpec, pSrc, pDst, work);                                            \
    }

// Innermost transforms of P points; REAL is the real one's template.
#define TARN_DFT_DEFINE_LEAF(T, DIRECTION, FORWARD, P, REAL)                                                           \
    void tarns_cDft##DIRECTION##_Prime##P##_##T##c(const Tarn##T##c* pSrc, int stride, Tarn##T##c* pDst, int count,    \
                                                   int blocks, const int* perm)                                        \
    {                                                                                                                  \
        tarn::dft::leafOf<P>(tarn::dft::pairsFrom<FORWARD>(pSrc), stride, tarn::dft::pairsTo<FORWARD>(pDst), count,    \
                             blocks, perm);                                                                            \
    }                                                                                                                  \
    void tarns_crDft##DIRECTION##_Prime##P##_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, int stride,             \
                                                 Tarn##T* pDstRe, Tarn##T* pDstIm, int count, int blocks,              \
                                                 const int* perm)                                                      \
    {                                                                                                                  \
        tarn::dft::leafOf<P>(tarn::dft::partsOf<FORWARD>(pSrcRe, pSrcIm), stride,                                      \
                             tarn::dft::partsOf<FORWARD>(pDstRe, pDstIm), count, blocks, perm);                        \
    }                                                                                                                  \
    void tarns_rDft##DIRECTION##_Prime##P##_##T(const Tarn##T* pSrc, int stride, Tarn##T* pDst, int count, int blocks, \
                                                const int* perm)                                                       \
    {                                                                                                                  \
        tarn::dft::REAL<P>(pSrc, stride, pDst, count, blocks, perm);                                                   \
    }

#define TARN_DFT_DEFINE_LEAVES(T, DIRECTION, FORWARD, REAL, REAL_ANY)                                                  \
    TARN_DFT_DEFINE_LEAF(T, DIRECTION, FORWARD, 3, REAL)                                                               \
    TARN_DFT_DEFINE_LEAF(T, DIRECTION, FORWARD, 5, REAL)                                                               \
    void tarns_cDft##DIRECTION##_Prime_##T##c(const Tarn##T##c* pSrc, int stride, Tarn##T##c* pDst, int q, int count,  \
                                              const Tarn##T##c* dirTab, Tarn##T* scratch)                              \
    {                                                                                                                  \
        tarn::dft::leafAny(tarn::dft::pairsFrom<FORWARD>(pSrc), stride, tarn::dft::pairsTo<FORWARD>(pDst), q, count,   \
                           1, static_cast<const int*>(tarn::dft::oneBlock), dirTab, scratch);                          \
    }                                                                                                                  \
    void tarns_crDft##DIRECTION##_Prime_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, int stride, Tarn##T* pDstRe, \
                                            Tarn##T* pDstIm, int q, int count, const Tarn##T##c* dirTab,               \
                                            Tarn##T* scratch)                                                          \
    {                                                                                                                  \
        tarn::dft::leafAny(tarn::dft::partsOf<FORWARD>(pSrcRe, pSrcIm), stride,                                        \
                           tarn::dft::partsOf<FORWARD>(pDstRe, pDstIm), q, count, 1,                                   \
                           static_cast<const int*>(tarn::dft::oneBlock), dirTab, scratch);                             \
    }                                                                                                                  \
    void tarns_rDft##DIRECTION##_Prime_##T(const Tarn##T* pSrc, int stride, Tarn##T* pDst, int q, int count,           \
                                           const Tarn##T##c* dirTab, Tarn##T* scratch)                                 \
    {                                                                                                                  \
        tarn::dft::REAL_ANY(pSrc, stride, pDst, q, count, 1, static_cast<const int*>(tarn::dft::oneBlock), dirTab,     \
                            scratch);                                                                                  \
    }

#define TARN_DFT_DEFINE_MERGE(T, DIRECTION, FORWARD, P)                                                                \
    void tarns_cDft##DIRECTION##_Fact##P##_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int q, int blocks,         \
                                                  const Tarn##T##c* twdTab)                                            \
    {                                                                                                                  \
        tarn::dft::mergeOf<P>(tarn::dft::pairsTo<FORWARD>(const_cast<Tarn##T##c*>(pSrc)),                              \
                              tarn::dft::pairsTo<FORWARD>(pDst), q, blocks, asParts(twdTab));                          \
    }                                                                                                                  \
    void tarns_crDft##DIRECTION##_Fact##P##_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe,         \
                                                Tarn##T* pDstIm, int q, int blocks, const Tarn##T##c* twdTab)          \
    {                                                                                                                  \
        tarn::dft::mergeOf<P>(tarn::dft::partsOf<FORWARD>(const_cast<Tarn##T*>(pSrcRe), const_cast<Tarn##T*>(pSrcIm)), \
                              tarn::dft::partsOf<FORWARD>(pDstRe, pDstIm), q, blocks, asParts(twdTab));                \
    }
#define TARN_DFT_DEFINE_REAL_MERGE(T, DIRECTION, P, REAL)                                             \
    void tarns_rDft##DIRECTION##_Fact##P##_##T(const Tarn##T* pSrc, Tarn##T* pDst, int q, int blocks, \
                                               const Tarn##T##c* twdTab)                              \
    {                                                                                                 \
        tarn::dft::REAL<P>(pSrc, pDst, q, blocks, asParts(twdTab));                                   \
    }

#define TARN_DFT_DEFINE_MERGES(T, DIRECTION, FORWARD, REAL, REAL_ANY)                                                 \
    TARN_DFT_DEFINE_MERGE(T, DIRECTION, FORWARD, 2)                                                                   \
    TARN_DFT_DEFINE_MERGE(T, DIRECTION, FORWARD, 3)                                                                   \
    TARN_DFT_DEFINE_MERGE(T, DIRECTION, FORWARD, 4)                                                                   \
    TARN_DFT_DEFINE_MERGE(T, DIRECTION, FORWARD, 5)                                                                   \
    TARN_DFT_DEFINE_REAL_MERGE(T, DIRECTION, 3, REAL)                                                                 \
    TARN_DFT_DEFINE_REAL_MERGE(T, DIRECTION, 5, REAL)                                                                 \
    void tarns_cDft##DIRECTION##_Fact_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int p, int q,                  \
                                             const Tarn##T##c* dirTab, const Tarn##T##c* twdTab, Tarn##T* scratch)    \
    {                                                                                                                 \
        tarn::dft::mergeAny(tarn::dft::pairsTo<FORWARD>(const_cast<Tarn##T##c*>(pSrc)),                               \
                            tarn::dft::pairsTo<FORWARD>(pDst), p, q, dirTab, twdTab, scratch);                        \
    }                                                                                                                 \
    void tarns_crDft##DIRECTION##_Fact_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe,             \
                                           Tarn##T* pDstIm, int p, int q, const Tarn##T##c* dirTab,                   \
                                           const Tarn##T##c* twdTab, Tarn##T* scratch)                                \
    {                                                                                                                 \
        tarn::dft::mergeAny(tarn::dft::partsOf<FORWARD>(const_cast<Tarn##T*>(pSrcRe), const_cast<Tarn##T*>(pSrcIm)),  \
                            tarn::dft::partsOf<FORWARD>(pDstRe, pDstIm), p, q, dirTab, twdTab, scratch);              \
    }                                                                                                                 \
    void tarns_rDft##DIRECTION##_Fact_##T(const Tarn##T* pSrc, Tarn##T* pDst, int p, int q, const Tarn##T##c* dirTab, \
                                          const Tarn##T##c* twdTab, Tarn##T* scratch)                                 \
    {                                                                                                                 \
        tarn::dft::REAL_ANY(pSrc, pDst, p, q, dirTab, twdTab, scratch);                                               \
    }

#define TARN_DFT_DEFINE_PRIME_FACT(T)                                                                                  \
    TarnStatus tarns_initDftPrimeFact_##T(tarn::dft::Spec<Tarn##T>* pSpec, int N, const Tarn##T##c* base, int baseLen) \
    {                                                                                                                  \
        return tarn::dft::initPrimeFact<Tarn##T>(*pSpec, N, base, baseLen);                                            \
    }                                                                                                                  \
    TARN_DFT_DEFINE_FACTORED(T, Fwd, true)                                                                             \
    TARN_DFT_DEFINE_FACTORED(T, Inv, false)                                                                            \
    TARN_DFT_DEFINE_LEAVES(T, Fwd, true, leafToPerm, leafAnyToPerm)                                                    \
    TARN_DFT_DEFINE_LEAVES(T, Inv, false, leafFromPerm, leafAnyFromPerm)                                               \
    TARN_DFT_DEFINE_MERGES(T, Fwd, true, mergePerm, mergeAnyPerm)                                                      \
    TARN_DFT_DEFINE_MERGES(T, Inv, false, splitPerm, splitAnyPerm)
