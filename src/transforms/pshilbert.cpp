// Front ends of analytic signals, which are made of the library's Fourier transforms alone.
#include "tarns/hilbert.h"

#include "frame/bytes.h"
#include "frame/factor.h"
#include "frame/pairs.h"
#include "frame/simd_round.h"
#include "frame/spec.h"
#include "tarns/arithmetic.h"
#include "tarns/convert.h"
#include "tarns/data.h"
#include "tarns/dft.h"

#include <algorithm>

using namespace tarn;

namespace tarn::hilbert {

// One layout for all kinds.
struct Spec {
    int idCtx;
    int length;
    int bufSize; // what either transform needs
    TarnHintAlgorithm hint;
    TarnsDFTSpec_C_32fc* dftCSpec;
    TarnsDFTSpec_R_32f* dftRSpec;
};

} // namespace tarn::hilbert

struct TarnsHilbertSpec_32f32fc : tarn::hilbert::Spec {
    static constexpr int identifier = 0x4C4D5357;
};
struct TarnsHilbertSpec_16s32fc : tarn::hilbert::Spec {
    static constexpr int identifier = 0x4C4D5358;
};
struct TarnsHilbertSpec_16s16sc : tarn::hilbert::Spec {
    static constexpr int identifier = 0x4C4D5359;
};

namespace tarn::hilbert {
namespace {

TarnStatus createTransforms(Spec& spec)
{
    constexpr int flag = TARN_FFT_DIV_INV_BY_N;
    if (const TarnStatus status = tarnsDFTInitAlloc_C_32fc(&spec.dftCSpec, spec.length, flag, spec.hint)) {
        return status;
    }
    if (const TarnStatus status = tarnsDFTInitAlloc_R_32f(&spec.dftRSpec, spec.length, flag, spec.hint)) {
        return status;
    }
    int ofPairs = 0;
    int ofReals = 0;
    tarnsDFTGetBufSize_C_32fc(spec.dftCSpec, &ofPairs);
    tarnsDFTGetBufSize_R_32f(spec.dftRSpec, &ofReals);
    spec.bufSize = std::max(ofPairs, ofReals);
    return tarnStsNoErr;
}

// The caller has the object even if its transforms cannot be made, and may free it.
template <typename Object>
TarnStatus initAlloc(Object** ppSpec, int length, TarnHintAlgorithm hint)
{
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (length < 1) {
        return tarnStsSizeErr;
    }
    Object* const object = createObject<Object>();
    if (object == nullptr) {
        return tarnStsNoMemErr;
    }
    object->length = length;
    object->hint = hint;
    *ppSpec = object;
    return createTransforms(*object);
}

template <typename Object>
TarnStatus free(Object* pSpec)
{
    if (const TarnStatus status = checkObject(pSpec)) {
        return status;
    }
    if (pSpec->dftCSpec != nullptr) {
        if (const TarnStatus status = tarnsDFTFree_C_32fc(pSpec->dftCSpec)) {
            return status;
        }
    }
    if (pSpec->dftRSpec != nullptr) {
        if (const TarnStatus status = tarnsDFTFree_R_32f(pSpec->dftRSpec)) {
            return status;
        }
    }
    releaseObject(pSpec);
    return tarnStsNoErr;
}

// The pointers come before the object's kind here.
template <typename Object, typename S, typename D>
TarnStatus check(const Object* pSpec, const S* pSrc, const D* pDst)
{
    if (pSrc == nullptr || pDst == nullptr || pSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkObject(pSpec)) {
        return status;
    }
    return pSpec->dftRSpec == nullptr ? tarnStsNoMemErr : tarnStsNoErr;
}

// Work memory: on the stack as long as it is not too much for that.
class Area {
public:
    explicit Area(long long bytes)
    {
        if (bytes > largest) {
            own = allocate<Tarn8u>(bytes);
        }
        start = bytes > largest ? own.get() : static_cast<Tarn8u*>(stack);
    }

    bool failed() const { return start == nullptr; }
    // A boundary of 16 bytes; the allocator's blocks are on one.
    Tarn8u* get() const { return start; }

private:
    static constexpr int largest = 16384;
    Owned<Tarn8u[]> own;
    Tarn8u* start;
    alignas(16) Tarn8u stack[largest];
};

// A length of 1 or 2 has no frequency that could be turned.
constexpr int shortest = 3;

TarnStatus analytic(const Spec& spec, const Tarn32f* src, Tarn32fc* dst, Tarn8u* work)
{
    if (const TarnStatus status = tarnsDFTFwd_RToCCS_32f(src, asParts(dst), spec.dftRSpec, work)) {
        return status;
    }
    const int half = spec.length / 2;
    const int between = half + spec.length % 2 - 1;
    tarnsAdd_32fc_I(dst + 1, dst + 1, between);
    tarnsZero_32fc(dst + half + 1, between);
    return tarnsDFTInv_CToC_32fc(dst, dst, spec.dftCSpec, work);
}

TarnStatus transform(const Spec& spec, const Tarn32f* src, Tarn32fc* dst)
{
    if (spec.length < shortest) {
        const Tarn32f first = loadElement(src);
        if (spec.length == 2) {
            store(dst + 1, {loadElement(src + 1), 0});
        }
        store(dst, {first, 0});
        return tarnStsNoErr;
    }
    const Area area(spec.bufSize);
    return area.failed() ? tarnStsNoMemErr : analytic(spec, src, dst, area.get());
}

// Samples as floats, and the transforms' own memory behind them.
constexpr int boundary = 15;

TarnStatus transform(const Spec& spec, const Tarn16s* src, Tarn32fc* dst)
{
    const int length = spec.length;
    if (length < shortest) {
        for (int i = length - 1; i >= 0; --i) {
            store(dst + i, {convert<Tarn32f>(Tarn32s{loadElement(src + i)}), 0});
        }
        return tarnStsNoErr;
    }
    const Area area(spec.bufSize + static_cast<long long>(sizeof(Tarn32f)) * length + boundary);
    if (area.failed()) {
        return tarnStsNoMemErr;
    }
    auto* const samples = reinterpret_cast<Tarn32f*>(area.get());
    tarnsConvert_16s32f(src, samples, length);
    return analytic(spec, samples, dst, reinterpret_cast<Tarn8u*>(samples + length));
}

// Truncated, unlike all longer ones.
Tarn16s scaledSample(Tarn16s sample, int scaleFactor)
{
    const Tarn32f value = convert<Tarn32f>(Tarn32s{sample}) * twoToMinus<Tarn32f>(std::clamp(scaleFactor, -127, 126));
    return static_cast<Tarn16s>(
        truncateToInteger(std::clamp(value, Tarn32f{lowest<Tarn16s>}, Tarn32f{highest<Tarn16s>})));
}

TarnStatus transform(const Spec& spec, const Tarn16s* src, Tarn16sc* dst, int scaleFactor)
{
    const int length = spec.length;
    if (length < shortest) {
        for (int i = length - 1; i >= 0; --i) {
            store(dst + i, {scaledSample(loadElement(src + i), scaleFactor), 0});
        }
        return tarnStsNoErr;
    }
    const Area area(spec.bufSize + static_cast<long long>(sizeof(Tarn32fc)) * length + boundary);
    if (area.failed()) {
        return tarnStsNoMemErr;
    }
    auto* const pairs = reinterpret_cast<Tarn32fc*>(area.get());
    Tarn32f* const samples = asParts(pairs);
    tarnsConvert_16s32f(src, samples, length);
    if (const TarnStatus status = analytic(spec, samples, pairs, reinterpret_cast<Tarn8u*>(pairs + length))) {
        return status;
    }
    return tarnsConvert_32f16s_Sfs(samples, asParts(dst), 2 * length, tarnRndNear, scaleFactor);
}

template <typename Object, typename S, typename D, typename... Scale>
TarnStatus run(const S* pSrc, D* pDst, const Object* pSpec, Scale... scaleFactor)
{
    if (const TarnStatus status = check(pSpec, pSrc, pDst)) {
        return status;
    }
    return transform(*pSpec, pSrc, pDst, scaleFactor...);
}

} // namespace
} // namespace tarn::hilbert

#define TARN_HILBERT_OBJECT(KIND)                                                                                 \
    TarnStatus tarnsHilbertInitAlloc_##KIND(TarnsHilbertSpec_##KIND** ppSpec, int length, TarnHintAlgorithm hint) \
    {                                                                                                             \
        return tarn::hilbert::initAlloc(ppSpec, length, hint);                                                    \
    }                                                                                                             \
    TarnStatus tarnsHilbertFree_##KIND(TarnsHilbertSpec_##KIND* pSpec) { return tarn::hilbert::free(pSpec); }

TARN_HILBERT_OBJECT(32f32fc)
TARN_HILBERT_OBJECT(16s32fc)
TARN_HILBERT_OBJECT(16s16sc)

TarnStatus tarnsHilbert_32f32fc(const Tarn32f* pSrc, Tarn32fc* pDst, const TarnsHilbertSpec_32f32fc* pSpec)
{
    return tarn::hilbert::run(pSrc, pDst, pSpec);
}

TarnStatus tarnsHilbert_16s32fc(const Tarn16s* pSrc, Tarn32fc* pDst, const TarnsHilbertSpec_16s32fc* pSpec)
{
    return tarn::hilbert::run(pSrc, pDst, pSpec);
}

TarnStatus tarnsHilbert_16s16sc_Sfs(const Tarn16s* pSrc, Tarn16sc* pDst, const TarnsHilbertSpec_16s16sc* pSpec,
                                    int scaleFactor)
{
    return tarn::hilbert::run(pSrc, pDst, pSpec, scaleFactor);
}
