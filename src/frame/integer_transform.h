// Transforms of 16-bit samples with a scale factor, in what all families of transforms have alike: the way through the
// family's transforms of single precision, and the calls.
//
// A family is a struct that names:
//     sizeOf(spec)                the length N of an object's transforms
//     rescaled(x, scaleFactor)    the transform of one sample
//     hasFixedRoad                whether there are other ways to compute; if so isFixed(spec), and
//     fixedPairs<forward>, fixedParts<forward>, fixedToPerm, fixedFromPerm
// Its objects have the fields `fltSpec`, an object of floats or null, and `bufSize`; the constant `isReal` tells kinds.
#pragma once

#include "frame/frontend.h"
#include "frame/transform.h"
#include "tarns/convert.h"

#include <climits>

namespace tarn {

// The functions of a kind of objects of floats.
template <typename FloatSpec>
struct FloatCalls;

// -- Objects ---------------------------------------------------------------------------------------------------------

// Makes the object of floats for a length that InitAlloc takes as `length`, and the size of the work memory: N samples
// as floats, then what the transform of floats needs.
template <typename Object>
inline TarnStatus createFloatSpec(Object& spec, int size, int length, int flag, TarnHintAlgorithm hint)
{
    using Calls = FloatCalls<std::remove_pointer_t<decltype(spec.fltSpec)>>;
    if (const TarnStatus status = Calls::initAlloc(&spec.fltSpec, length, flag, hint)) {
        return status;
    }
    int floats = 0;
    Calls::getBufSize(spec.fltSpec, &floats);
    // The spectrum of real samples may take two values more.
    const long long own = Object::isReal ? 4LL * size + 8 : 8LL * size;
    const long long bytes = own + workAlignment + floats;
    if (bytes > INT_MAX) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = static_cast<int>(bytes);
    return tarnStsNoErr;
}

template <typename Object>
inline void freeFloatSpec(Object& spec)
{
    if (spec.fltSpec != nullptr) {
        FloatCalls<std::remove_pointer_t<decltype(spec.fltSpec)>>::free(spec.fltSpec);
    }
}

// -- Through floats --------------------------------------------------------------------------------------------------

// Packed samples to floats in Perm order.
template <typename Packing>
inline void convertToPerm(const Tarn16s* src, Tarn32f* perm, int size)
{
    if constexpr (std::is_same_v<Packing, PermPacking>) {
        tarnsConvert_16s32f(src, perm, size);
    } else {
        perm[0] = loadElement(src);
        if (size % 2 == 0) {
            perm[1] = loadElement(src + Packing::positionOfLast(size));
        }
        const int begin = PermPacking::firstPair(size);
        if (size > begin) {
            tarnsConvert_16s32f(src + Packing::firstPair(size), perm + begin, size - begin);
        }
    }
}

template <typename Family>
struct IntegerTransforms {
    template <bool forward, typename Object>
    static TarnStatus pairs(const Tarn16s* pSrc, Tarn16s* pDst, const Object* pSpec, int scaleFactor, Tarn8u* pBuffer)
    {
        const auto one = [=](const Object& spec, const Tarn16s* src, Tarn16s* dst) {
            return rescale(spec, scaleFactor, src, dst, 2);
        };
        const auto many = [=](const Object& spec, const WorkBuffer& work, const Tarn16s* src,
                              Tarn16s* dst) -> TarnStatus {
            if constexpr (Family::hasFixedRoad) {
                if (Family::isFixed(spec)) {
                    Family::template fixedPairs<forward>(spec, src, dst, scaleFactor, work);
                    return tarnStsNoErr;
                }
            }
            const int reals = 2 * Family::sizeOf(spec);
            auto* floats = work.as<Tarn32f>();
            auto* elements = work.as<Tarn32fc>();
            tarnsConvert_16s32f(src, floats, reals);
            const TarnStatus status = transform<forward>(spec, floats + reals, elements, elements);
            return status == tarnStsNoErr ? toSamples(floats, dst, reals, scaleFactor) : status;
        };
        return callTransform(pSpec, pBuffer, one, many, pSrc, pDst);
    }

    template <bool forward, typename Object>
    static TarnStatus parts(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe, Tarn16s* pDstIm,
                            const Object* pSpec, int scaleFactor, Tarn8u* pBuffer)
    {
        const auto one = [=](const Object& spec, const Tarn16s* srcRe, const Tarn16s* srcIm, Tarn16s* dstRe,
                             Tarn16s* dstIm) {
            if (Family::sizeOf(spec) != 1) {
                return false;
            }
            const Tarn16s im = loadElement(srcIm);
            store(dstRe, Family::rescaled(loadElement(srcRe), scaleFactor));
            store(dstIm, Family::rescaled(im, scaleFactor));
            return true;
        };
        const auto many = [=](const Object& spec, const WorkBuffer& work, const Tarn16s* srcRe, const Tarn16s* srcIm,
                              Tarn16s* dstRe, Tarn16s* dstIm) -> TarnStatus {
            if constexpr (Family::hasFixedRoad) {
                if (Family::isFixed(spec)) {
                    Family::template fixedParts<forward>(spec, srcRe, srcIm, dstRe, dstIm, scaleFactor, work);
                    return tarnStsNoErr;
                }
            }
            const int size = Family::sizeOf(spec);
            auto* re = work.as<Tarn32f>();
            Tarn32f* im = re + size;
            tarnsConvert_16s32f(srcRe, re, size);
            tarnsConvert_16s32f(srcIm, im, size);
            if (const TarnStatus status = transform<forward>(spec, im + size, re, im, re, im)) {
                return status;
            }
            toSamples(re, dstRe, size, scaleFactor);
            return toSamples(im, dstIm, size, scaleFactor);
        };
        return callTransform(pSpec, pBuffer, one, many, pSrcRe, pSrcIm, pDstRe, pDstIm);
    }

    template <typename Packing, typename Object>
    static TarnStatus realForward(const Tarn16s* pSrc, Tarn16s* pDst, const Object* pSpec, int scaleFactor,
                                  Tarn8u* pBuffer)
    {
        const auto one = [=](const Object& spec, const Tarn16s* src, Tarn16s* dst) {
            const bool isOne = rescale(spec, scaleFactor, src, dst, 1);
            if (isOne) {
                Packing::finish(dst, 1);
            }
            return isOne;
        };
        const auto many = [=](const Object& spec, const WorkBuffer& work, const Tarn16s* src,
                              Tarn16s* dst) -> TarnStatus {
            const int size = Family::sizeOf(spec);
            if constexpr (Family::hasFixedRoad) {
                if (Family::isFixed(spec)) {
                    Family::fixedToPerm(spec, src, dst, scaleFactor, work);
                    Packing::finish(dst, size);
                    return tarnStsNoErr;
                }
            }
            auto* floats = work.as<Tarn32f>();
            tarnsConvert_16s32f(src, floats, size);
            if (const TarnStatus status = transform<true>(spec, floats + size, floats, floats)) {
                return status;
            }
            toSamples(floats, dst, size, scaleFactor);
            Packing::finish(dst, size);
            return tarnStsNoErr;
        };
        return callTransform(pSpec, pBuffer, one, many, pSrc, pDst);
    }

    template <typename Packing, typename Object>
    static TarnStatus realInverse(const Tarn16s* pSrc, Tarn16s* pDst, const Object* pSpec, int scaleFactor,
                                  Tarn8u* pBuffer)
    {
        const auto one = [=](const Object& spec, const Tarn16s* src, Tarn16s* dst) {
            return rescale(spec, scaleFactor, src, dst, 1);
        };
        const auto many = [=](const Object& spec, const WorkBuffer& work, const Tarn16s* src,
                              Tarn16s* dst) -> TarnStatus {
            const int size = Family::sizeOf(spec);
            if constexpr (Family::hasFixedRoad) {
                if (Family::isFixed(spec)) {
                    Family::template fixedFromPerm<Packing>(spec, src, dst, scaleFactor, work);
                    return tarnStsNoErr;
                }
            }
            auto* floats = work.as<Tarn32f>();
            convertToPerm<Packing>(src, floats, size);
            const TarnStatus status = transform<false>(spec, floats + size, floats, floats);
            return status == tarnStsNoErr ? toSamples(floats, dst, size, scaleFactor) : status;
        };
        return callTransform(pSpec, pBuffer, one, many, pSrc, pDst);
    }

private:
    // The transform of length 1, of so many samples; false if the length is another one.
    template <typename Object>
    static bool rescale(const Object& spec, int scaleFactor, const Tarn16s* src, Tarn16s* dst, int count)
    {
        if (Family::sizeOf(spec) != 1) {
            return false;
        }
        for (int i = 0; i < count; ++i) {
            store(dst + i, Family::rescaled(loadElement(src + i), scaleFactor));
        }
        return true;
    }

    // The transform of floats, whose work memory begins at `free`.
    template <bool forward, typename Object, typename... Array>
    static TarnStatus transform(const Object& spec, Tarn32f* free, Array*... arrays)
    {
        using Calls = FloatCalls<std::remove_pointer_t<decltype(spec.fltSpec)>>;
        auto* buffer = reinterpret_cast<Tarn8u*>(free);
        return forward ? Calls::forward(arrays..., spec.fltSpec, buffer)
                       : Calls::inverse(arrays..., spec.fltSpec, buffer);
    }

    static TarnStatus toSamples(const Tarn32f* floats, Tarn16s* dst, int count, int scaleFactor)
    {
        return tarnsConvert_32f16s_Sfs(floats, dst, count, tarnRndNear, scaleFactor);
    }
};

} // namespace tarn

// FloatCalls of a family's kind of objects.
#define TARN_DEFINE_FLOAT_CALLS(FAMILY, KIND, FORWARD, INVERSE)              \
    template <>                                                              \
    struct tarn::FloatCalls<Tarns##FAMILY##Spec_##KIND> {                    \
        static constexpr auto initAlloc = tarns##FAMILY##InitAlloc_##KIND;   \
        static constexpr auto free = tarns##FAMILY##Free_##KIND;             \
        static constexpr auto getBufSize = tarns##FAMILY##GetBufSize_##KIND; \
        static constexpr auto forward = tarns##FAMILY##Fwd_##FORWARD;        \
        static constexpr auto inverse = tarns##FAMILY##Inv_##INVERSE;        \
    };
#define TARN_DEFINE_ALL_FLOAT_CALLS(FAMILY)                       \
    TARN_DEFINE_FLOAT_CALLS(FAMILY, C_32fc, CToC_32fc, CToC_32fc) \
    TARN_DEFINE_FLOAT_CALLS(FAMILY, C_32f, CToC_32f, CToC_32f)    \
    TARN_DEFINE_FLOAT_CALLS(FAMILY, R_32f, RToPerm_32f, PermToR_32f)

// The functions of a family. Namespace tarn::SPACE has its IntegerTransforms by the name of Transforms, and
// initAlloc(), whose argument SIZE tells the length.
#define TARN_INTEGER_COMPLEX_FRONT_ENDS(FAMILY, SPACE, DIRECTION, FORWARD)                                            \
    TarnStatus tarns##FAMILY##DIRECTION##_CToC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst,                         \
                                                        const Tarns##FAMILY##Spec_C_16sc* pSpec, int scaleFactor,     \
                                                        Tarn8u* pBuffer)                                              \
    {                                                                                                                 \
        return tarn::SPACE::Transforms::pairs<FORWARD>(tarn::asParts(pSrc), tarn::asParts(pDst), pSpec, scaleFactor,  \
                                                       pBuffer);                                                      \
    }                                                                                                                 \
    TarnStatus tarns##FAMILY##DIRECTION##_CToC_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe, \
                                                       Tarn16s* pDstIm, const Tarns##FAMILY##Spec_C_16s* pSpec,       \
                                                       int scaleFactor, Tarn8u* pBuffer)                              \
    {                                                                                                                 \
        return tarn::SPACE::Transforms::parts<FORWARD>(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, scaleFactor, pBuffer);  \
    }

#define TARN_INTEGER_REAL_FRONT_ENDS(FAMILY, SPACE, PACKED, PACKING)                                                  \
    TarnStatus tarns##FAMILY##Fwd_RTo##PACKED##_16s_Sfs(                                                              \
        const Tarn16s* pSrc, Tarn16s* pDst, const Tarns##FAMILY##Spec_R_16s* pSpec, int scaleFactor, Tarn8u* pBuffer) \
    {                                                                                                                 \
        return tarn::SPACE::Transforms::realForward<tarn::PACKING>(pSrc, pDst, pSpec, scaleFactor, pBuffer);          \
    }                                                                                                                 \
    TarnStatus tarns##FAMILY##Inv_##PACKED##ToR_16s_Sfs(                                                              \
        const Tarn16s* pSrc, Tarn16s* pDst, const Tarns##FAMILY##Spec_R_16s* pSpec, int scaleFactor, Tarn8u* pBuffer) \
    {                                                                                                                 \
        return tarn::SPACE::Transforms::realInverse<tarn::PACKING>(pSrc, pDst, pSpec, scaleFactor, pBuffer);          \
    }

#define TARN_INTEGER_FRONT_ENDS(FAMILY, SPACE, SIZE)               \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, C_16sc, SIZE)  \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, C_16s, SIZE)   \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(FAMILY, SPACE, R_16s, SIZE)   \
    TARN_INTEGER_COMPLEX_FRONT_ENDS(FAMILY, SPACE, Fwd, true)      \
    TARN_INTEGER_COMPLEX_FRONT_ENDS(FAMILY, SPACE, Inv, false)     \
    TARN_INTEGER_REAL_FRONT_ENDS(FAMILY, SPACE, Perm, PermPacking) \
    TARN_INTEGER_REAL_FRONT_ENDS(FAMILY, SPACE, Pack, PackPacking) \
    TARN_INTEGER_REAL_FRONT_ENDS(FAMILY, SPACE, CCS, CcsPacking)
