// Front ends of the power-of-two transforms, for one precision at a time.
#pragma once

#include "fft/psfft_creation.h"
#include "frame/frontend.h"
#include "frame/transform.h"
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
    return createForOrder(ppSpec, order, hint, [=](Object& object) {
        const TarnStatus status = setScaling(object, flag, 1 << order);
        return status == tarnStsNoErr && order >= smallOrders ? createTables(object) : status;
    });
}

// -- Transforms ------------------------------------------------------------------------------------------------------

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
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmall<forward>(spec, spec.order, tbl_cFFT_small<forward, T>, tbl_cFFT_norm_small<forward, T>, src,
                                     dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            transformPairs<forward>(spec, src, dst, spec.order, work.as<T>());
            return tarnStsNoErr;
        },
        pSrc, pDst);
}

template <bool forward, typename Object, typename T>
TarnStatus splitTransform(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm) {
            return runSmall<forward>(spec, spec.order, tbl_crFFT_small<forward, T>, tbl_crFFT_norm_small<forward, T>,
                                     srcRe, srcIm, dstRe, dstIm);
        },
        [](const Object& spec, const WorkBuffer& work, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm) {
            const int size = 1 << spec.order;
            if (spec.order > routes<Object>.last) {
                reverseParts(srcRe, dstRe, size, spec.reversal());
                reverseParts(srcIm, dstIm, size, spec.reversal());
                directed<T, forward>.largeParts(&spec, dstRe, dstIm, spec.order, work.as<T>());
                return tarnStsNoErr;
            }
            directed<T, forward>.readingParts(srcRe, srcIm, dstRe, dstIm, size, spec.table(twdTab), spec.reversal(),
                                              work.as<T>());
            if (isScaled<forward>(spec)) {
                kernels<T>.scale(spec.normFactor, dstRe, size);
                kernels<T>.scale(spec.normFactor, dstIm, size);
            }
            return tarnStsNoErr;
        },
        pSrcRe, pSrcIm, pDstRe, pDstIm);
}

// -- Real signals ----------------------------------------------------------------------------------------------------

template <typename Packing, typename Object, typename T>
TarnStatus realForward(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    const TarnStatus status = callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmall<true>(spec, spec.order, tbl_rFFT_small<true, T>, tbl_rFFT_norm_small<true, T>, src, dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            transformPairs<true>(spec, src, dst, spec.order - 1, work.as<T>());
            storeSumAndDifference(dst, loadElement(dst), loadElement(dst + 1));
            kernels<T>.recombineReal(dst, (1 << spec.order) / 2, 1, spec.table(realRecTab));
            return tarnStsNoErr;
        },
        pSrc, pDst);
    if (status == tarnStsNoErr) {
        Packing::finish(pDst, 1 << pSpec->order);
    }
    return status;
}

template <typename Packing, typename Object, typename T>
TarnStatus realInverse(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmallFromPerm<Packing>(spec, spec.order, 1 << spec.order, tbl_rFFT_small<false, T>,
                                             tbl_rFFT_norm_small<false, T>, src, dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            const int size = 1 << spec.order;
            const T first = loadElement(src);
            const T last = loadElement(src + Packing::positionOfLast(size));
            const T* perm = Packing::toPerm(src, dst, size);
            storeSumAndDifference(dst, first, last);
            kernels<T>.recombineCcs(perm, dst, size / 2, -1, spec.table(ccsRecTab));
            transformPairs<false>(spec, static_cast<const T*>(dst), dst, spec.order - 1, work.as<T>());
            return tarnStsNoErr;
        },
        pSrc, pDst);
}

} // namespace tarn::fft

#define TARN_FFT_FRONT_ENDS(T) TARN_TRANSFORM_FRONT_ENDS(FFT, fft, T, order)
