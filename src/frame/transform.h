// The calls of transforms: checks, transforms that need no table, work memory, all others. What a family does in each
// place it hands in; the macros at the end make its functions.
#pragma once

#include "frame/packing.h"
#include "frame/spec.h"
#include "frame/workbuf.h"

namespace tarn {

// A call on `arrays`. `small` does what needs neither table nor buffer, and answers whether that was all; `large` gets
// the work memory and answers the status of the call.
template <typename Object, typename Small, typename Large, typename... Array>
inline TarnStatus callTransform(const Object* pSpec, Tarn8u* pBuffer, Small small, Large large, Array*... arrays)
{
    if (const TarnStatus status = checkTransform(pSpec, arrays...)) {
        return status;
    }
    if (small(*pSpec, arrays...)) {
        return tarnStsNoErr;
    }
    const WorkBuffer work(pBuffer, pSpec->bufSize);
    if (work.failed()) {
        return tarnStsNoMemErr;
    }
    return large(*pSpec, work, arrays...);
}

// The transform at this place of the tables of those without and with a factor, as the object asks for. False if there
// is none.
template <bool forward, typename Object, typename Plain, typename Norm, typename... Array>
inline bool runSmall(const Object& spec, int place, const Plain& plain, const Norm& norm, Array*... arrays)
{
    const auto at = static_cast<std::size_t>(place);
    if (at >= plain.size()) {
        return false;
    }
    if (isScaled<forward>(spec)) {
        norm[at](arrays..., spec.normFactor);
    } else {
        plain[at](arrays...);
    }
    return true;
}

// The same of a packed spectrum of `size` values, which the transforms of the tables take in Perm order.
template <typename Packing, typename Object, typename Plain, typename Norm, typename T>
inline bool runSmallFromPerm(const Object& spec, int place, int size, const Plain& plain, const Norm& norm,
                             const T* src, T* dst)
{
    constexpr int mostReals = 8;
    T perm[mostReals];
    if (static_cast<std::size_t>(place) >= plain.size()) {
        return false;
    }
    copyToPerm<Packing>(src, static_cast<T*>(perm), size);
    return runSmall<false>(spec, place, plain, norm, static_cast<const T*>(perm), dst);
}

// Slot 0 of the half-length transform and the first two reals of Perm order are each other's sum and difference, up to
// a factor of 2.
template <typename T>
inline void storeSumAndDifference(T* dst, T a, T b)
{
    store(dst, a + b);
    store(dst + 1, a - b);
}

} // namespace tarn

// The functions of a kind of objects. FAMILY is FFT and such, SIZE the name of the argument that tells the length; what
// they call is in namespace tarn::SPACE.
#define TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, KIND, SIZE)                                            \
    TarnStatus tarns##FAMILY##InitAlloc_##KIND(Tarns##FAMILY##Spec_##KIND** ppSpec, int SIZE, int flag,        \
                                               TarnHintAlgorithm hint)                                         \
    {                                                                                                          \
        return tarn::SPACE::initAlloc(ppSpec, SIZE, flag, hint);                                               \
    }                                                                                                          \
    TarnStatus tarns##FAMILY##Free_##KIND(Tarns##FAMILY##Spec_##KIND* pSpec) { return tarn::freeSpec(pSpec); } \
    TarnStatus tarns##FAMILY##GetBufSize_##KIND(const Tarns##FAMILY##Spec_##KIND* pSpec, int* pSize)           \
    {                                                                                                          \
        return tarn::getBufSize(pSpec, pSize);                                                                 \
    }

// Interleaved complex data, complex data in two arrays, real data.
#define TARN_TRANSFORM_PAIRS_FRONT_ENDS(FAMILY, SPACE, T, DIRECTION, FORWARD)                                     \
    TarnStatus tarns##FAMILY##DIRECTION##_CToC_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst,                   \
                                                      const Tarns##FAMILY##Spec_C_##T##c* pSpec, Tarn8u* pBuffer) \
    {                                                                                                             \
        return tarn::SPACE::complexTransform<FORWARD>(tarn::asParts(pSrc), tarn::asParts(pDst), pSpec, pBuffer);  \
    }
#define TARN_TRANSFORM_PARTS_FRONT_ENDS(FAMILY, SPACE, T, DIRECTION, FORWARD)                                     \
    TarnStatus tarns##FAMILY##DIRECTION##_CToC_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe, \
                                                   Tarn##T* pDstIm, const Tarns##FAMILY##Spec_C_##T* pSpec,       \
                                                   Tarn8u* pBuffer)                                               \
    {                                                                                                             \
        return tarn::SPACE::splitTransform<FORWARD>(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer);              \
    }
#define TARN_TRANSFORM_REAL_FRONT_ENDS(FAMILY, SPACE, T, PACKED, PACKING)                                    \
    TarnStatus tarns##FAMILY##Fwd_RTo##PACKED##_##T(const Tarn##T* pSrc, Tarn##T* pDst,                      \
                                                    const Tarns##FAMILY##Spec_R_##T* pSpec, Tarn8u* pBuffer) \
    {                                                                                                        \
        return tarn::SPACE::realForward<tarn::PACKING>(pSrc, pDst, pSpec, pBuffer);                          \
    }                                                                                                        \
    TarnStatus tarns##FAMILY##Inv_##PACKED##ToR_##T(const Tarn##T* pSrc, Tarn##T* pDst,                      \
                                                    const Tarns##FAMILY##Spec_R_##T* pSpec, Tarn8u* pBuffer) \
    {                                                                                                        \
        return tarn::SPACE::realInverse<tarn::PACKING>(pSrc, pDst, pSpec, pBuffer);                          \
    }

// All functions of one precision.
#define TARN_TRANSFORM_FRONT_ENDS(FAMILY, SPACE, T, SIZE)               \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, C_##T##c, SIZE)     \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, C_##T, SIZE)        \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, R_##T, SIZE)        \
    TARN_TRANSFORM_PAIRS_FRONT_ENDS(FAMILY, SPACE, T, Fwd, true)        \
    TARN_TRANSFORM_PAIRS_FRONT_ENDS(FAMILY, SPACE, T, Inv, false)       \
    TARN_TRANSFORM_PARTS_FRONT_ENDS(FAMILY, SPACE, T, Fwd, true)        \
    TARN_TRANSFORM_PARTS_FRONT_ENDS(FAMILY, SPACE, T, Inv, false)       \
    TARN_TRANSFORM_REAL_FRONT_ENDS(FAMILY, SPACE, T, Perm, PermPacking) \
    TARN_TRANSFORM_REAL_FRONT_ENDS(FAMILY, SPACE, T, Pack, PackPacking) \
    TARN_TRANSFORM_REAL_FRONT_ENDS(FAMILY, SPACE, T, CCS, CcsPacking)
