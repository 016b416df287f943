// Front ends of the transforms of any length, for one precision at a time.
#pragma once

#include "frame/transform.h"
#include "levels/transforms/psdft_small.h"
#include "levels/transforms/psdft_tables.h"
#include "tarns/dft.h"
#include "transforms/psdft_convolution.h"

#include <bit>

namespace tarn::dft {

// -- Kinds -----------------------------------------------------------------------------------------------------------

// The transform of powers of two that a kind hands them to.
template <typename Object>
struct PowerOfTwo;
template <>
struct PowerOfTwo<TarnsDFTSpec_C_32fc> : TransformCalls<Tarn32fc> {
};
template <>
struct PowerOfTwo<TarnsDFTOutOrdSpec_C_32fc> : TransformCalls<Tarn32fc> {
};
template <>
struct PowerOfTwo<TarnsDFTOutOrdSpec_C_64fc> : TransformCalls<Tarn64fc> {
};
template <>
struct PowerOfTwo<TarnsDFTSpec_R_32f> : TransformCalls<Tarn32f> {
};
template <>
struct PowerOfTwo<TarnsDFTSpec_C_64fc> : TransformCalls<Tarn64fc> {
};
template <>
struct PowerOfTwo<TarnsDFTSpec_R_64f> : TransformCalls<Tarn64f> {
};
template <>
struct PowerOfTwo<TarnsDFTSpec_C_32f> {
    using Spec = TarnsFFTSpec_C_32f;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_C_32f;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_32f;
    static constexpr auto forward = tarnsFFTFwd_CToC_32f;
    static constexpr auto inverse = tarnsFFTInv_CToC_32f;
    static constexpr auto free = tarnsFFTFree_C_32f;
};
template <>
struct PowerOfTwo<TarnsDFTSpec_C_64f> {
    using Spec = TarnsFFTSpec_C_64f;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_C_64f;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_64f;
    static constexpr auto forward = tarnsFFTFwd_CToC_64f;
    static constexpr auto inverse = tarnsFFTInv_CToC_64f;
    static constexpr auto free = tarnsFFTFree_C_64f;
};

template <typename Object>
inline constexpr bool isReal = std::is_same_v<Object, TarnsDFTSpec_R_32f> || std::is_same_v<Object, TarnsDFTSpec_R_64f>;

template <typename Object>
inline constexpr bool isOutOfOrder =
    std::is_same_v<Object, TarnsDFTOutOrdSpec_C_32fc> || std::is_same_v<Object, TarnsDFTOutOrdSpec_C_64fc>;

template <typename Object>
inline const auto* powerOfTwoSpec(const Object& spec)
{
    return static_cast<const typename PowerOfTwo<Object>::Spec*>(spec.fftSpec);
}

// -- Objects ---------------------------------------------------------------------------------------------------------

// Direct tables may be shared by records, wherever they stand.
inline void freeFactors(Factor* factors)
{
    for (int i = 0; i < maxFactors; ++i) {
        void* const shared = factors[i].dirTab;
        tarnsFree(factors[i].twdTab);
        tarnsFree(shared);
        for (int j = i; j < maxFactors && shared != nullptr; ++j) {
            if (factors[j].dirTab == shared) {
                factors[j].dirTab = nullptr;
            }
        }
    }
}

template <typename Object>
void deleteSpec(Object* object)
{
    using T = decltype(object->normFactor);
    for (void* table :
         {static_cast<void*>(object->dirTab), static_cast<void*>(object->fwdRecTab),
          static_cast<void*>(object->invRecTab), static_cast<void*>(object->convChirp),
          static_cast<void*>(object->convKernel), static_cast<void*>(object->factPerm), object->laneTab}) {
        tarnsFree(table);
    }
    freeFactors(object->factors);
    if (object->fftSpec != nullptr) {
        using Fft = PowerOfTwo<Object>;
        Fft::free(static_cast<typename Fft::Spec*>(object->fftSpec));
    }
    if (object->convFftSpec != nullptr) {
        using Fft = TransformCalls<PairOf<T>>;
        Fft::free(static_cast<typename Fft::Spec*>(object->convFftSpec));
    }
    releaseObject(object);
}

// The power-of-two transform scales for itself, as the flag says.
template <typename Object>
TarnStatus createPowerOfTwo(Object& spec, int flag)
{
    using Fft = PowerOfTwo<Object>;
    typename Fft::Spec* fft = nullptr;
    spec.useFft = 1;
    const int order = std::countr_zero(static_cast<unsigned>(spec.length));
    if (const TarnStatus status = Fft::initAlloc(&fft, order, flag, spec.hint)) {
        return status;
    }
    spec.fftSpec = fft;
    return Fft::getBufSize(fft, &spec.bufSize);
}

// Direct sums of so many points at most. Those of real points cost half as much.
template <typename Object>
inline int directLimit(int points)
{
    constexpr int largestRealDirect = 180;
    return isReal<Object> && points % 2 != 0 ? largestRealDirect : largestDirect;
}

template <typename Object>
TarnStatus createTables(Object& spec)
{
    using T = decltype(spec.normFactor);
    const int length = spec.length;
    const Owned<PairOf<T>[]> base(kernels<T>.createBase(length));
    if (!base) {
        return tarnStsNoMemErr;
    }
    // An even number of real points is half as many complex ones.
    const bool isHalved = isReal<Object> && length % 2 == 0;
    const int points = isHalved ? length / 2 : length;
    if (isHalved) {
        spec.fwdRecTab = kernels<T>.createForwardRec(length, base.get());
        spec.invRecTab = kernels<T>.createInverseRec(length, base.get());
        if (spec.fwdRecTab == nullptr || spec.invRecTab == nullptr) {
            return tarnStsNoMemErr;
        }
    }
    if (testDftPrimeFact(spec, points)) {
        spec.usePrimeFact = 1;
        spec.outOrdered = isOutOfOrder<Object> ? 1 : 0;
        return kernels<T>.initFactors(&spec, points, base.get(), length);
    }
    if (points > directLimit<Object>(length)) {
        return kernels<T>.initConvolution(&spec, points, base.get(), length);
    }
    spec.dirTab = kernels<T>.createDirect(points, base.get(), length);
    const auto bytes = isReal<Object> && !isHalved ? sizeof(T) : sizeof(PairOf<T>);
    spec.bufSize = static_cast<int>(bytes) * points + workAlignment;
    return spec.dirTab == nullptr ? tarnStsNoMemErr : tarnStsNoErr;
}

template <typename Object>
TarnStatus initAlloc(Object** ppSpec, int length, int flag, TarnHintAlgorithm hint)
{
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (length < 1) {
        return tarnStsSizeErr;
    }
    return createSpec(ppSpec, [=](Object& object) {
        object.length = length;
        object.hint = hint;
        const TarnStatus status = setScaling(object, flag, length);
        if (status != tarnStsNoErr || length <= smallLengths) {
            return status;
        }
        return std::has_single_bit(static_cast<unsigned>(length)) ? createPowerOfTwo(object, flag)
                                                                  : createTables(object);
    });
}

// -- Transforms ------------------------------------------------------------------------------------------------------

template <bool forward>
inline constexpr int directionOf = forward ? 1 : -1;

// What the call of a power-of-two transform of either direction is.
template <bool forward, typename Object>
inline constexpr auto powerOfTwo = forward ? PowerOfTwo<Object>::forward : PowerOfTwo<Object>::inverse;

template <bool forward, typename Object, typename T>
TarnStatus scaleResults(const Object& spec, TarnStatus status, T* dst, int len)
{
    if (status == tarnStsNoErr && isScaled<forward>(spec)) {
        fft::kernels<T>.scale(spec.normFactor, dst, len);
    }
    return status;
}

// N points of interleaved complex data, not scaled.
template <bool forward, typename T>
TarnStatus transformPairs(const Spec<T>& spec, int N, const T* src, T* dst, T* work)
{
    if (spec.usePrimeFact != 0) {
        directed<T, forward>.factors(&spec, asPairs(src), asPairs(dst), work);
    } else if (spec.dirTab != nullptr) {
        kernels<T>.direct(asPairs(src), asPairs(dst), N, directionOf<forward>, spec.dirTab, work);
    } else {
        return kernels<T>.convolution(&spec, asPairs(src), asPairs(dst), N, directionOf<forward>, work);
    }
    return tarnStsNoErr;
}

// The same of an object whose transforms may leave results in the order that they come in: where they are made.
template <bool forward, typename T>
TarnStatus transformOutOfOrder(const Spec<T>& spec, const T* src, T* dst, T* work);

template <bool forward, typename Object, typename T>
TarnStatus complexTransform(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmall<forward>(spec, spec.length - 1, tbl_cDFT_small<forward, T>, tbl_cDFT_norm_small<forward, T>,
                                     src, dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            if (spec.useFft != 0) {
                return powerOfTwo<forward, Object>(asPairs(src), asPairs(dst), powerOfTwoSpec(spec), work.as<Tarn8u>());
            }
            TarnStatus status = tarnStsNoErr;
            if constexpr (isOutOfOrder<Object>) {
                status = transformOutOfOrder<forward, T>(spec, src, dst, work.as<T>());
            } else {
                status = transformPairs<forward, T>(spec, spec.length, src, dst, work.as<T>());
            }
            return scaleResults<forward>(spec, status, dst, 2 * spec.length);
        },
        pSrc, pDst);
}

template <bool forward, typename T>
TarnStatus transformParts(const Spec<T>& spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, T* work)
{
    if (spec.usePrimeFact != 0) {
        directed<T, forward>.factorsParts(&spec, srcRe, srcIm, dstRe, dstIm, work);
    } else if (spec.dirTab != nullptr) {
        kernels<T>.directParts(srcRe, srcIm, dstRe, dstIm, spec.length, directionOf<forward>, spec.dirTab, work);
    } else {
        return kernels<T>.convolutionParts(&spec, srcRe, srcIm, dstRe, dstIm, directionOf<forward>, work);
    }
    return tarnStsNoErr;
}

template <bool forward, typename Object, typename T>
TarnStatus splitTransform(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm) {
            return runSmall<forward>(spec, spec.length - 1, tbl_crDFT_small<forward, T>,
                                     tbl_crDFT_norm_small<forward, T>, srcRe, srcIm, dstRe, dstIm);
        },
        [](const Object& spec, const WorkBuffer& work, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm) {
            if (spec.useFft != 0) {
                return powerOfTwo<forward, Object>(srcRe, srcIm, dstRe, dstIm, powerOfTwoSpec(spec), work.as<Tarn8u>());
            }
            const TarnStatus status = transformParts<forward, T>(spec, srcRe, srcIm, dstRe, dstIm, work.as<T>());
            scaleResults<forward>(spec, status, dstRe, spec.length);
            return scaleResults<forward>(spec, status, dstIm, spec.length);
        },
        pSrcRe, pSrcIm, pDstRe, pDstIm);
}

// -- Real signals ----------------------------------------------------------------------------------------------------

// An odd number of real points, in Perm order on the side of the spectrum.
template <bool forward, typename T>
TarnStatus transformReals(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    if (spec.usePrimeFact != 0) {
        directed<T, forward>.realFactors(&spec, src, dst, work);
    } else if (spec.dirTab != nullptr) {
        directed<T, forward>.realDirect(src, dst, spec.length, spec.dirTab, work);
    } else {
        return directed<T, forward>.realConvolution(&spec, src, dst, work);
    }
    return tarnStsNoErr;
}

template <typename T>
TarnStatus forwardByHalf(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int half = spec.length / 2;
    const TarnStatus status = transformPairs<true>(spec, half, src, dst, work);
    if (status == tarnStsNoErr) {
        kernels<T>.recombineForward(dst, half, spec.fwdRecTab);
    }
    return status;
}

template <typename Packing, typename T>
TarnStatus inverseByHalf(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int half = spec.length / 2;
    const T first = loadElement(src);
    const T last = loadElement(src + Packing::positionOfLast(spec.length));
    const T* const perm = Packing::toPerm(src, dst, spec.length);
    if (perm != src) {
        store(dst, first);
        store(dst + 1, last);
    }
    kernels<T>.recombineInverse(perm, dst, half, spec.invRecTab);
    storeSumAndDifference(dst, first, last);
    return transformPairs<false>(spec, half, static_cast<const T*>(dst), dst, work);
}

template <typename Packing, typename Object, typename T>
TarnStatus realForward(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    const TarnStatus status = callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmall<true>(spec, spec.length - 1, tbl_rDFT_small<true, T>, tbl_rDFT_norm_small<true, T>, src,
                                  dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            if (spec.useFft != 0) {
                return PowerOfTwo<Object>::forward(src, dst, powerOfTwoSpec(spec), work.as<Tarn8u>());
            }
            const TarnStatus done = spec.length % 2 != 0 ? transformReals<true>(spec, src, dst, work.as<T>())
                                                         : forwardByHalf<T>(spec, src, dst, work.as<T>());
            return scaleResults<true>(spec, done, dst, spec.length);
        },
        pSrc, pDst);
    if (status == tarnStsNoErr) {
        Packing::finish(pDst, pSpec->length);
    }
    return status;
}

// A power-of-two transform that takes each format.
template <typename Packing>
struct FromFormat;
template <>
struct FromFormat<PermPacking> {
    static constexpr auto inverse32f = tarnsFFTInv_PermToR_32f;
    static constexpr auto inverse64f = tarnsFFTInv_PermToR_64f;
};
template <>
struct FromFormat<PackPacking> {
    static constexpr auto inverse32f = tarnsFFTInv_PackToR_32f;
    static constexpr auto inverse64f = tarnsFFTInv_PackToR_64f;
};
template <>
struct FromFormat<CcsPacking> {
    static constexpr auto inverse32f = tarnsFFTInv_CCSToR_32f;
    static constexpr auto inverse64f = tarnsFFTInv_CCSToR_64f;
};

template <typename Packing, typename T>
constexpr auto inverseOfPowerOfTwo()
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return FromFormat<Packing>::inverse32f;
    } else {
        return FromFormat<Packing>::inverse64f;
    }
}

template <typename Packing, typename Object, typename T>
TarnStatus realInverse(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            return runSmallFromPerm<Packing>(spec, spec.length - 1, spec.length, tbl_rDFT_small<false, T>,
                                             tbl_rDFT_norm_small<false, T>, src, dst);
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            if (spec.useFft != 0) {
                return inverseOfPowerOfTwo<Packing, T>()(src, dst, powerOfTwoSpec(spec), work.as<Tarn8u>());
            }
            const TarnStatus done =
                spec.length % 2 != 0
                    ? transformReals<false>(spec, Packing::toPerm(src, dst, spec.length), dst, work.as<T>())
                    : inverseByHalf<Packing, T>(spec, src, dst, work.as<T>());
            return scaleResults<false>(spec, done, dst, spec.length);
        },
        pSrc, pDst);
}

} // namespace tarn::dft

#define TARN_DFT_FRONT_ENDS(T) TARN_TRANSFORM_FRONT_ENDS(DFT, dft, T, length)
