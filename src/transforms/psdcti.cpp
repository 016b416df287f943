// Front ends of the cosine transforms of 16-bit integers, which are computed in single precision.
#include "frame/spec.h"
#include "frame/workbuf.h"
#include "tarns/convert.h"
#include "tarns/dct.h"

#include <climits>

namespace tarn::dct {

// The single-precision functions of a direction.
struct Forward {
    using Object = TarnsDCTFwdSpec_32f;
    static constexpr auto initAlloc = tarnsDCTFwdInitAlloc_32f;
    static constexpr auto getBufSize = tarnsDCTFwdGetBufSize_32f;
    static constexpr auto transform = tarnsDCTFwd_32f;
    static constexpr auto free = tarnsDCTFwdFree_32f;
};
struct Inverse {
    using Object = TarnsDCTInvSpec_32f;
    static constexpr auto initAlloc = tarnsDCTInvInitAlloc_32f;
    static constexpr auto getBufSize = tarnsDCTInvGetBufSize_32f;
    static constexpr auto transform = tarnsDCTInv_32f;
    static constexpr auto free = tarnsDCTInvFree_32f;
};

// A length of 1 has no transform below it.
template <typename Direction>
struct FixedSpec {
    using Calls = Direction;
    int idCtx;
    int length;
    TarnHintAlgorithm hint;
    int bufSize;
    typename Direction::Object* floating;
};

template <typename Object>
void deleteSpec(Object* object)
{
    if (object->floating != nullptr) {
        Object::Calls::free(object->floating);
    }
    releaseObject(object);
}

// Samples have fewer bits than the errors of the fast routes: the hint is not passed on.
template <typename Object>
TarnStatus initAllocFixed(Object** ppSpec, int length, TarnHintAlgorithm hint)
{
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (length < 1) {
        return tarnStsSizeErr;
    }
    return createSpec(ppSpec, [=](Object& object) -> TarnStatus {
        using Calls = typename Object::Calls;
        object.length = length;
        object.hint = hint;
        if (length == 1) {
            return tarnStsNoErr;
        }
        if (const TarnStatus status = Calls::initAlloc(&object.floating, length, tarnAlgHintFast)) {
            return status;
        }
        int bytes = 0;
        Calls::getBufSize(object.floating, &bytes);
        const long long all = bytes + static_cast<long long>(sizeof(Tarn32f)) * length + workAlignment;
        if (all > INT_MAX) {
            return tarnStsNoMemErr;
        }
        object.bufSize = static_cast<int>(all);
        return tarnStsNoErr;
    });
}

template <typename Object>
TarnStatus transformFixed(const Tarn16s* pSrc, Tarn16s* pDst, const Object* pSpec, int scaleFactor, Tarn8u* pBuffer)
{
    if (const TarnStatus status = checkTransform(pSpec, pSrc, pDst)) {
        return status;
    }
    const int length = pSpec->length;
    if (length == 1) {
        const Tarn32s sample = loadElement(pSrc);
        return tarnsConvert_32s16s_Sfs(&sample, pDst, 1, scaleFactor);
    }
    const WorkBuffer work(pBuffer, pSpec->bufSize);
    if (work.failed()) {
        return tarnStsNoMemErr;
    }
    auto* const samples = work.as<Tarn32f>();
    tarnsConvert_16s32f(pSrc, samples, length);
    if (const TarnStatus status =
            Object::Calls::transform(samples, samples, pSpec->floating, reinterpret_cast<Tarn8u*>(samples + length))) {
        return status;
    }
    return tarnsConvert_32f16s_Sfs(samples, pDst, length, tarnRndNear, scaleFactor);
}

} // namespace tarn::dct

struct TarnsDCTFwdSpec_16s : tarn::dct::FixedSpec<tarn::dct::Forward> {
    static constexpr int identifier = 19;
};
struct TarnsDCTInvSpec_16s : tarn::dct::FixedSpec<tarn::dct::Inverse> {
    static constexpr int identifier = 20;
};

#define TARN_DCT_FIXED(DIRECTION)                                                                                    \
    TarnStatus tarnsDCT##DIRECTION##InitAlloc_16s(TarnsDCT##DIRECTION##Spec_16s** ppSpec, int length,                \
                                                  TarnHintAlgorithm hint)                                            \
    {                                                                                                                \
        return tarn::dct::initAllocFixed(ppSpec, length, hint);                                                      \
    }                                                                                                                \
    TarnStatus tarnsDCT##DIRECTION##Free_16s(TarnsDCT##DIRECTION##Spec_16s* pSpec) { return tarn::freeSpec(pSpec); } \
    TarnStatus tarnsDCT##DIRECTION##GetBufSize_16s(const TarnsDCT##DIRECTION##Spec_16s* pSpec, int* pSize)           \
    {                                                                                                                \
        return tarn::getBufSize(pSpec, pSize);                                                                       \
    }                                                                                                                \
    TarnStatus tarnsDCT##DIRECTION##_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst,                                     \
                                             const TarnsDCT##DIRECTION##Spec_16s* pSpec, int scaleFactor,            \
                                             Tarn8u* pBuffer)                                                        \
    {                                                                                                                \
        return tarn::dct::transformFixed(pSrc, pDst, pSpec, scaleFactor, pBuffer);                                   \
    }

TARN_DCT_FIXED(Fwd)
TARN_DCT_FIXED(Inv)
