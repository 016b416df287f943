// Front ends of the power-of-two transforms, for one precision at a time.
#pragma once

#include "frame/frontend.h"
#include "frame/packing.h"
#include "frame/spec.h"
#include "frame/workbuf.h"
#include "levels/fft/psfft_calls.h"
#include "levels/fft/psfft_small.h"
#include "tarns/fft.h"

#include <climits>

namespace tarn::fft {

// Complex orders up to which the core reads natural order through the reading table; up to `last` it takes data that
// has been reversed before, and above comes the block route.
struct Routes {
    int reading;
    int last;
};
template <typename Object>
inline constexpr Routes routes = {14, 14};
template <>
inline constexpr Routes routes<TarnsFFTSpec_C_32fc> = {15, 16};
template <>
inline constexpr Routes routes<TarnsFFTSpec_C_32f> = {16, 16};
template <>
inline constexpr Routes routes<TarnsFFTSpec_R_32f> = {15, 16};

template <typename Object>
using ElementOfSpec = decltype(Object::normFactor);

// A real transform has a complex one of half the length at its core.
template <typename Object>
inline constexpr bool isReal = std::is_same_v<Object, TarnsFFTSpec_R_32f> || std::is_same_v<Object, TarnsFFTSpec_R_64f>;

// -- Objects ---------------------------------------------------------------------------------------------------------

template <typename Object>
void deleteSpec(Object* object)
{
    for (void* table : object->tables) {
        tarnsFree(table);
    }
    releaseObject(object);
}

// The tables of the complex transform of 2^order points.
template <typename Object, typename T>
TarnStatus createComplexTables(Object& spec, int order, const T* base, int baseOrder)
{
    constexpr Routes route = routes<Object>;
    if (order > route.last) {
        return kernels<T>.createLarge(&spec, order, base, baseOrder);
    }
    if (!spec.keep(twdTab, kernels<T>.createStages(order, base, baseOrder))) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = (static_cast<int>(2 * sizeof(T)) << order) + workAlignment;
    return tarnStsNoErr;
}

template <typename Object>
TarnStatus createTables(Object& spec)
{
    using T = ElementOfSpec<Object>;
    const int order = isReal<Object> ? spec.order - 1 : spec.order;
    // Without this table, the largest, the others would be made for nothing.
    if ((2LL * sizeof(T)) << order > INT_MAX) {
        return tarnStsNoMemErr;
    }
    constexpr auto createReversal = [](int n) {
        return n <= routes<Object>.reading ? tarns_createTabBitRevNorm(n) : tarns_createTabBitRev(n);
    };
    if (!spec.keep(bitRevTab, createReversal(order))) {
        return tarnStsNoMemErr;
    }
    const Owned<T[]> base(kernels<T>.createBase(spec.order));
    if (!base) {
        return tarnStsNoMemErr;
    }
    if (const TarnStatus status = createComplexTables(spec, order, base.get(), spec.order)) {
        return status;
    }
    if constexpr (isReal<Object>) {
        if (!spec.keep(realRecTab, kernels<T>.createRealRec(spec.order, base.get())) ||
            !spec.keep(ccsRecTab, kernels<T>.createCcsRec(spec.order, base.get()))) {
            return tarnStsNoMemErr;
        }
    }
    return tarnStsNoErr;
}

template <typename Object>
TarnStatus initAlloc(Object** ppSpec, int order, int flag, TarnHintAlgorithm hint)
{
    constexpr int largestOrder = 30;
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (order < 0 || order > largestOrder) {
        return tarnStsFftOrderErr;
    }
    return createSpec(ppSpec, [=](Object& object) {
        object.order = order;
        object.hint = hint;
        const TarnStatus status = setScaling(object, flag, 1 << order);
        return status == tarnStsNoErr && order >= smallOrders ? createTables(object) : status;
    });
}

// -- Transforms
// --------------------------------------------------------------------------------------------------------

// The small transform that the object asks for, with its factor if it has one.
template <bool forward, typename T, typename Plain, typename Norm, typename... Array>
void runSmall(const Spec<T>& spec, const Plain& plain, const Norm& norm, Array*... arrays)
{
    const auto order = static_cast<std::size_t>(spec.order);
    if (isScaled<forward>(spec)) {
        norm[order](arrays..., spec.normFactor);
    } else {
        plain[order](arrays...);
    }
}

// The complex transform of 2^order points of interleaved data, scaled as the object says.
template <bool forward, typename Object, typename T>
void transformPairs(const Object& spec, const T* src, T* dst, int order, T* work)
{
    constexpr Routes route = routes<Object>;
    const int size = 1 << order;
    if (order <= route.reading) {
        directed<T, forward>.reading(asPairs(src), asPairs(dst), size, spec.table(twdTab), spec.reversal(), work);
    } else {
        reversePairs(src, dst, size, spec.reversal());
        if (order > route.last) {
            directed<T, forward>.large(&spec, asPairs(dst), order, work);
            return;
        }
        directed<T, forward>.inPlace(asPairs(dst), size, spec.table(twdTab), work, 1);
    }
    if (isScaled<forward>(spec)) {
        kernels<T>.scale(spec.normFactor, dst, 2 * size);
    }
}

template <bool forward, typename Object, typename T>
TarnStatus complexTransform(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkTransform(pSpec, pSrc, pDst)) {
        return status;
    }
    if (pSpec->order < smallOrders) {
        runSmall<forward>(*pSpec, tbl_cFFT_small<forward, T>, tbl_cFFT_norm_small<forward, T>, pSrc, pDst);
        return tarnStsNoErr;
    }
    const WorkBuffer work(pBuffer, pSpec->bufSize);
    if (work.failed()) {
        return tarnStsNoMemErr;
    }
    transformPairs<forward>(*pSpec, pSrc, pDst, pSpec->order, work.as<T>());
    return tarnStsNoErr;
}

template <bool forward, typename Object, typename T>
TarnStatus splitTransform(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Object* pSpec, Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkTransform(pSpec, pSrcRe, pSrcIm, pDstRe, pDstIm)) {
        return status;
    }
    const int order = pSpec->order;
    if (order < smallOrders) {
        runSmall<forward>(*pSpec, tbl_crFFT_small<forward, T>, tbl_crFFT_norm_small<forward, T>, pSrcRe, pSrcIm, pDstRe,
                          pDstIm);
        return tarnStsNoErr;
    }
    const WorkBuffer work(pBuffer, pSpec->bufSize);
    if (work.failed()) {
        return tarnStsNoMemErr;
    }
    const int size = 1 << order;
    if (order > routes<Object>.last) {
        reverseParts(pSrcRe, pDstRe, size, pSpec->reversal());
        reverseParts(pSrcIm, pDstIm, size, pSpec->reversal());
        directed<T, forward>.largeParts(pSpec, pDstRe, pDstIm, order, work.as<T>());
        return tarnStsNoErr;
    }
    directed<T, forward>.readingParts(pSrcRe, pSrcIm, pDstRe, pDstIm, size, pSpec->table(twdTab), pSpec->reversal(),
                                      work.as<T>());
    if (isScaled<forward>(*pSpec)) {
        kernels<T>.scale(pSpec->normFactor, pDstRe, size);
        kernels<T>.scale(pSpec->normFactor, pDstIm, size);
    }
    return tarnStsNoErr;
}

// -- Real signals ----------------------------------------------------------------------------------------------------

// Slot 0 of the half-length transform and the first two reals of Perm order are each other's sum and difference, up to
// a factor of 2.
template <typename T>
void storeSumAndDifference(T* dst, T a, T b)
{
    store(dst, a + b);
    store(dst + 1, a - b);
}

template <typename Packing, typename Object, typename T>
TarnStatus realForward(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkTransform(pSpec, pSrc, pDst)) {
        return status;
    }
    const int size = 1 << pSpec->order;
    if (pSpec->order < smallOrders) {
        runSmall<true>(*pSpec, tbl_rFFT_small<true, T>, tbl_rFFT_norm_small<true, T>, pSrc, pDst);
    } else {
        const WorkBuffer work(pBuffer, pSpec->bufSize);
        if (work.failed()) {
            return tarnStsNoMemErr;
        }
        transformPairs<true>(*pSpec, pSrc, pDst, pSpec->order - 1, work.as<T>());
        storeSumAndDifference(pDst, loadElement(pDst), loadElement(pDst + 1));
        kernels<T>.recombineReal(pDst, size / 2, 1, pSpec->table(realRecTab));
    }
    Packing::finish(pDst, size);
    return tarnStsNoErr;
}

template <typename Packing, typename Object, typename T>
TarnStatus realInverse(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkTransform(pSpec, pSrc, pDst)) {
        return status;
    }
    const int size = 1 << pSpec->order;
    if (pSpec->order < smallOrders) {
        T perm[1 << (smallOrders - 1)];
        copyToPerm<Packing>(pSrc, static_cast<T*>(perm), size);
        runSmall<false>(*pSpec, tbl_rFFT_small<false, T>, tbl_rFFT_norm_small<false, T>, static_cast<const T*>(perm),
                        pDst);
        return tarnStsNoErr;
    }
    const WorkBuffer work(pBuffer, pSpec->bufSize);
    if (work.failed()) {
        return tarnStsNoMemErr;
    }
    const T first = loadElement(pSrc);
    const T last = loadElement(pSrc + Packing::positionOfLast(size));
    const T* perm = Packing::toPerm(pSrc, pDst, size);
    storeSumAndDifference(pDst, first, last);
    kernels<T>.recombineCcs(perm, pDst, size / 2, -1, pSpec->table(ccsRecTab));
    transformPairs<false>(*pSpec, static_cast<const T*>(pDst), pDst, pSpec->order - 1, work.as<T>());
    return tarnStsNoErr;
}

} // namespace tarn::fft

// The functions of one precision.

#define TARN_FFT_OBJECT_FRONT_ENDS(KIND)                                                                           \
    TarnStatus tarnsFFTInitAlloc_##KIND(TarnsFFTSpec_##KIND** ppSpec, int order, int flag, TarnHintAlgorithm hint) \
    {                                                                                                              \
        return tarn::fft::initAlloc(ppSpec, order, flag, hint);                                                    \
    }                                                                                                              \
    TarnStatus tarnsFFTFree_##KIND(TarnsFFTSpec_##KIND* pSpec) { return tarn::freeSpec(pSpec); }                   \
    TarnStatus tarnsFFTGetBufSize_##KIND(const TarnsFFTSpec_##KIND* pSpec, int* pSize)                             \
    {                                                                                                              \
        return tarn::getBufSize(pSpec, pSize);                                                                     \
    }

#define TARN_FFT_COMPLEX_FRONT_ENDS(T, DIRECTION, FORWARD)                                                       \
    TarnStatus tarnsFFT##DIRECTION##_CToC_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst,                       \
                                                 const TarnsFFTSpec_C_##T##c* pSpec, Tarn8u* pBuffer)            \
    {                                                                                                            \
        return tarn::fft::complexTransform<FORWARD>(tarn::asParts(pSrc), tarn::asParts(pDst), pSpec, pBuffer);   \
    }                                                                                                            \
    TarnStatus tarnsFFT##DIRECTION##_CToC_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe,     \
                                              Tarn##T* pDstIm, const TarnsFFTSpec_C_##T* pSpec, Tarn8u* pBuffer) \
    {                                                                                                            \
        return tarn::fft::splitTransform<FORWARD>(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, pBuffer);               \
    }

#define TARN_FFT_REAL_FRONT_ENDS(T, PACKED, PACKING)                                                              \
    TarnStatus tarnsFFTFwd_RTo##PACKED##_##T(const Tarn##T* pSrc, Tarn##T* pDst, const TarnsFFTSpec_R_##T* pSpec, \
                                             Tarn8u* pBuffer)                                                     \
    {                                                                                                             \
        return tarn::fft::realForward<tarn::PACKING>(pSrc, pDst, pSpec, pBuffer);                                 \
    }                                                                                                             \
    TarnStatus tarnsFFTInv_##PACKED##ToR_##T(const Tarn##T* pSrc, Tarn##T* pDst, const TarnsFFTSpec_R_##T* pSpec, \
                                             Tarn8u* pBuffer)                                                     \
    {                                                                                                             \
        return tarn::fft::realInverse<tarn::PACKING>(pSrc, pDst, pSpec, pBuffer);                                 \
    }

#define TARN_FFT_FRONT_ENDS(T)                     \
    TARN_FFT_OBJECT_FRONT_ENDS(C_##T##c)           \
    TARN_FFT_OBJECT_FRONT_ENDS(C_##T)              \
    TARN_FFT_OBJECT_FRONT_ENDS(R_##T)              \
    TARN_FFT_COMPLEX_FRONT_ENDS(T, Fwd, true)      \
    TARN_FFT_COMPLEX_FRONT_ENDS(T, Inv, false)     \
    TARN_FFT_REAL_FRONT_ENDS(T, Perm, PermPacking) \
    TARN_FFT_REAL_FRONT_ENDS(T, Pack, PackPacking) \
    TARN_FFT_REAL_FRONT_ENDS(T, CCS, CcsPacking)
