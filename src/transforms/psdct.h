// Front ends of the cosine transforms, for one precision at a time, and their routes through Fourier transforms.
#pragma once

#include "fft/psfft_convolving.h"
#include "frame/bytes.h"
#include "frame/spec.h"
#include "frame/transform.h"
#include "levels/fft/psfft_calls.h"
#include "levels/transforms/psdct.h"
#include "levels/transforms/psdct_points.h"
#include "levels/transforms/psdft.h"
#include "levels/transforms/psdft_convolve.h"
#include "levels/transforms/psdft_tables.h"
#include "tarns/dct.h"

#include <bit>
#include <climits>
#include <cmath>

namespace tarn::dct {

// Powers of two above this one go through a real Fourier transform where accuracy is asked for.
inline constexpr int largestExact = 512;

// -- The kernels by precision -----------------------------------------------------------------------------------------

template <typename T>
struct Calls;

#define TARN_DCT_CALLS(T)                                                      \
    template <>                                                                \
    struct Calls<Tarn##T> {                                                    \
        static constexpr auto createDirect = tarns_createTabDct_Dir_##T;       \
        static constexpr auto createPow2 = tarns_createTabDct_Pow2_##T;        \
        static constexpr auto createRoots = tarns_createTabDftBase_##T;        \
        static constexpr auto createForwardRec = tarns_createTabDftFwdRec_##T; \
        static constexpr auto createInverseRec = tarns_createTabDftInvRec_##T; \
        static constexpr auto forwardDirect = tarns_sDctFwd_Dir_##T;           \
        static constexpr auto inverseDirect = tarns_sDctInv_Dir_##T;           \
        static constexpr auto forwardPow2 = tarns_sDctFwd_Pow2_##T;            \
        static constexpr auto inversePow2 = tarns_sDctInv_Pow2_##T;            \
        static constexpr auto initForwardFft = tarns_initDctFwd_Fft_##T;       \
        static constexpr auto initInverseFft = tarns_initDctInv_Fft_##T;       \
        static constexpr auto initForwardConv = tarns_initDctFwd_Conv_##T;     \
        static constexpr auto initInverseConv = tarns_initDctInv_Conv_##T;     \
        static constexpr auto forwardFft = tarns_sDctFwd_Fft_##T;              \
        static constexpr auto inverseFft = tarns_sDctInv_Fft_##T;              \
        static constexpr auto forwardConv = tarns_sDctFwd_Conv_##T;            \
        static constexpr auto inverseConv = tarns_sDctInv_Conv_##T;            \
        static constexpr auto multiply = tarns_cbMpy3_##T##c;                  \
    }
TARN_DCT_CALLS(32f);
TARN_DCT_CALLS(64f);
#undef TARN_DCT_CALLS

template <typename T>
struct DftCalls;

#define TARN_DCT_DFT_CALLS(T)                                        \
    template <>                                                      \
    struct DftCalls<Tarn##T> {                                       \
        static constexpr auto initAlloc = tarnsDFTInitAlloc_R_##T;   \
        static constexpr auto getBufSize = tarnsDFTGetBufSize_R_##T; \
        static constexpr auto forward = tarnsDFTFwd_RToPerm_##T;     \
        static constexpr auto inverse = tarnsDFTInv_PermToR_##T;     \
        static constexpr auto free = tarnsDFTFree_R_##T;             \
    }
TARN_DCT_DFT_CALLS(32f);
TARN_DCT_DFT_CALLS(64f);
#undef TARN_DCT_DFT_CALLS

// -- Objects ---------------------------------------------------------------------------------------------------------

template <typename Object>
using ElementOfSpec = decltype(Object::scale0);

template <typename Object>
void deleteSpec(Object* object)
{
    using T = ElementOfSpec<Object>;
    tarnsFree(object->dirTab);
    tarnsFree(object->pow2Tab);
    tarnsFree(object->outTab);
    tarnsFree(object->recTab);
    tarnsFree(object->convChirp);
    tarnsFree(object->convKernel);
    const OwnedSpec<T> real(object->fftRSpec);
    const OwnedSpec<PairOf<T>> pairs(object->fftCSpec);
    if (object->dftRSpec != nullptr) {
        DftCalls<T>::free(object->dftRSpec);
    }
    releaseObject(object);
}

// Sizes of work memory have room for alignment, and must fit their field.
template <typename T>
TarnStatus setBufSize(Spec<T>& spec, long long bytes)
{
    if (bytes > INT_MAX - workAlignment) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = static_cast<int>(bytes) + workAlignment;
    return tarnStsNoErr;
}

// The factors of coefficients on their way out of a spectrum, or half of them into one.
template <typename T>
TarnStatus createTurns(Spec<T>& spec, int N, bool forward)
{
    spec.outTab = allocate<PairOf<T>>(N).release();
    if (spec.outTab == nullptr) {
        return tarnStsNoMemErr;
    }
    const double root = std::sqrt(static_cast<double>(N));
    Kernels<T>::fillTurns(spec.outTab, N, 1.0 / root, (forward ? 1.4142135623730951 : 0.7071067811865476) / root);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus initFft(Spec<T>& spec, int N, bool forward)
{
    if (const TarnStatus status = createTurns(spec, N, forward)) {
        return status;
    }
    const int order = std::countr_zero(static_cast<unsigned>(N)) + 1;
    if (const TarnStatus status =
            TransformCalls<T>::initAlloc(&spec.fftRSpec, order, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone)) {
        return status;
    }
    int bytes = 0;
    TransformCalls<T>::getBufSize(spec.fftRSpec, &bytes);
    return setBufSize(spec, 2LL * N * static_cast<long long>(sizeof(T)) + bytes);
}

// The spectrum of the chirp that a convolution multiplies by; 1 / L is in it.
template <typename T>
TarnStatus createConvolution(Spec<T>& spec, int N)
{
    using C = PairOf<T>;
    const int L = spec.convLen;
    Kernels<T>::fillKernel(spec.convKernel, spec.convChirp, N, L);
    if (const TarnStatus status =
            TransformCalls<C>::forward(spec.convKernel, spec.convKernel, spec.fftCSpec, nullptr)) {
        return status;
    }
    fft::kernels<T>.scale(T{1} / static_cast<T>(L), asParts(spec.convKernel), 2 * L);
    return tarnStsNoErr;
}

// Where the real transform of the length has small factors only, it is some five times as fast as the convolution.
template <typename T>
bool hasSmallFactors(int N)
{
    constexpr int largest = 31;
    dft::Spec<T> trial{};
    if (!dft::testDftPrimeFact(trial, N % 2 == 0 ? N / 2 : N)) {
        return false;
    }
    int highest = trial.factors[trial.lastFactor].remaining;
    for (int i = 0; i <= trial.lastFactor; ++i) {
        highest = std::max(highest, trial.factors[i].factor);
    }
    return highest <= largest;
}

// Samples of a transform of the length itself, whose own work memory begins behind them.
constexpr std::ptrdiff_t halvesLength(int N) { return (std::ptrdiff_t{N} + 3) / 4 * 4; }

// The work memory is what the convolution would need, and ample.
template <typename T>
TarnStatus initHalves(Spec<T>& spec, int N)
{
    if (const TarnStatus status = DftCalls<T>::initAlloc(&spec.dftRSpec, N, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone)) {
        return status;
    }
    int bytes = 0;
    DftCalls<T>::getBufSize(spec.dftRSpec, &bytes);
    const long long all = halvesLength(N) * static_cast<long long>(sizeof(T)) + bytes + workAlignment;
    spec.bufSize = std::max(spec.bufSize, static_cast<int>(std::min<long long>(all, INT_MAX)));
    return all > INT_MAX ? tarnStsNoMemErr : tarnStsNoErr;
}

template <typename T>
TarnStatus initConv(Spec<T>& spec, int N, bool forward)
{
    using C = PairOf<T>;
    int order = 0;
    while ((1LL << order) < 2LL * N - 1) {
        ++order;
    }
    // Without this table, the largest, the others would be made for nothing.
    const long long tableBytes = static_cast<long long>(sizeof(C)) << order;
    if (tableBytes > INT_MAX) {
        return tarnStsNoMemErr;
    }
    spec.convLen = 1 << order;
    if (const TarnStatus status = createTurns(spec, N, forward)) {
        return status;
    }
    if (const TarnStatus status =
            TransformCalls<C>::initAlloc(&spec.fftCSpec, order, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone)) {
        return status;
    }
    int bytes = 0;
    TransformCalls<C>::getBufSize(spec.fftCSpec, &bytes);
    if (const TarnStatus status = setBufSize(spec, bytes + tableBytes)) {
        return status;
    }
    if (hasSmallFactors<T>(N)) {
        return initHalves(spec, N);
    }
    spec.convKernel = allocate<C>(spec.convLen).release();
    spec.convChirp = allocate<C>(N).release();
    if (spec.convKernel == nullptr || spec.convChirp == nullptr) {
        return tarnStsNoMemErr;
    }
    const Owned<C[]> roots(Calls<T>::createRoots(2 * N));
    if (!roots) {
        return tarnStsNoMemErr;
    }
    spec.recTab = (forward ? Calls<T>::createForwardRec : Calls<T>::createInverseRec)(2 * N, roots.get());
    if (spec.recTab == nullptr) {
        return tarnStsNoMemErr;
    }
    dft::fillChirp<T>(spec.convChirp, N, roots.get());
    return createConvolution(spec, N);
}

template <bool forward, typename T>
TarnStatus createTables(Spec<T>& spec, int N)
{
    const double root = std::sqrt(static_cast<double>(N));
    spec.scale0 = static_cast<T>(1.0 / root);
    spec.scaleK = static_cast<T>(std::sqrt(2.0) / root);
    if (!std::has_single_bit(static_cast<unsigned>(N))) {
        if (N > largestDirect) {
            spec.useConv = 1;
            return (forward ? Calls<T>::initForwardConv : Calls<T>::initInverseConv)(&spec, N);
        }
        spec.dirTab = Calls<T>::createDirect(N);
    } else {
        spec.usePow2 = 1;
        if (spec.hint == tarnAlgHintAccurate && N > largestExact) {
            spec.useFft = 1;
            return (forward ? Calls<T>::initForwardFft : Calls<T>::initInverseFft)(&spec, N);
        }
        spec.pow2Tab = Calls<T>::createPow2(N);
    }
    if (spec.dirTab == nullptr && spec.pow2Tab == nullptr) {
        return tarnStsNoMemErr;
    }
    return setBufSize(spec, static_cast<long long>(sizeof(T)) * N);
}

template <bool forward, typename Object>
TarnStatus initAlloc(Object** ppSpec, int length, TarnHintAlgorithm hint)
{
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (length < 1) {
        return tarnStsSizeErr;
    }
    return createSpec(ppSpec, [=](Object& object) -> TarnStatus {
        object.length = length;
        object.hint = hint;
        constexpr int largestSmall = 8;
        if (length <= largestSmall && std::has_single_bit(static_cast<unsigned>(length))) {
            object.useSmall = 1;
            return tarnStsNoErr;
        }
        return createTables<forward>(object, length);
    });
}

// -- Transforms ------------------------------------------------------------------------------------------------------

template <typename T>
TarnStatus forwardFft(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    auto* const buffer = reinterpret_cast<Tarn8u*>(work + 2 * static_cast<std::ptrdiff_t>(N));
    copy(src, work, N);
    zeroFill(work + N, N);
    if (const TarnStatus status = TransformCalls<T>::forward(work, work, spec.fftRSpec, buffer)) {
        return status;
    }
    Kernels<T>::leaveSpectrum(work, spec.outTab, dst, N);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverseFft(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    auto* const buffer = reinterpret_cast<Tarn8u*>(work + 2 * static_cast<std::ptrdiff_t>(N));
    Kernels<T>::enterSpectrum(src, spec.outTab, work, N);
    if (const TarnStatus status = TransformCalls<T>::inverse(work, work, spec.fftRSpec, buffer)) {
        return status;
    }
    copy(static_cast<const T*>(work), dst, N);
    return tarnStsNoErr;
}

// The cyclic convolution with the chirp, in place.
template <typename T>
TarnStatus convolve(const Spec<T>& spec, PairOf<T>* y)
{
    using Transform = TransformCalls<PairOf<T>>;
    auto* const buffer = reinterpret_cast<Tarn8u*>(y + spec.convLen);
    if (const TarnStatus status = Transform::forward(y, y, spec.fftCSpec, buffer)) {
        return status;
    }
    Calls<T>::multiply(y, spec.convKernel, y, spec.convLen);
    return Transform::inverse(y, y, spec.fftCSpec, buffer);
}

template <typename T>
TarnStatus forwardHalves(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    auto* const buffer = reinterpret_cast<Tarn8u*>(work + halvesLength(N));
    Kernels<T>::splitHalves(src, work, N);
    if (const TarnStatus status = DftCalls<T>::forward(work, work, spec.dftRSpec, buffer)) {
        return status;
    }
    Kernels<T>::leaveHalves(work, spec.outTab, dst, N);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverseHalves(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    auto* const buffer = reinterpret_cast<Tarn8u*>(work + halvesLength(N));
    Kernels<T>::enterHalves(src, spec.outTab, work, N);
    if (const TarnStatus status = DftCalls<T>::inverse(work, work, spec.dftRSpec, buffer)) {
        return status;
    }
    Kernels<T>::joinHalves(work, dst, N);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus forwardConv(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    if (spec.dftRSpec != nullptr) {
        return forwardHalves(spec, src, dst, work);
    }
    PairOf<T>* const y = asPairs(work);
    Kernels<T>::enterSignal(spec, src, y);
    if (const TarnStatus status = convolve(spec, y)) {
        return status;
    }
    Kernels<T>::leaveSlots(spec, y, dst);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverseConv(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    if (spec.dftRSpec != nullptr) {
        return inverseHalves(spec, src, dst, work);
    }
    PairOf<T>* const y = asPairs(work);
    Kernels<T>::enterSlots(spec, src, y);
    if (const TarnStatus status = convolve(spec, y)) {
        return status;
    }
    Kernels<T>::leaveSignal(spec, y, dst);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus forwardTransform(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    if (spec.useFft != 0) {
        return Calls<T>::forwardFft(&spec, src, dst, work);
    }
    if (spec.useConv != 0) {
        return Calls<T>::forwardConv(&spec, src, dst, work);
    }
    if (spec.usePow2 != 0) {
        Calls<T>::forwardPow2(src, dst, N, spec.pow2Tab, work);
    } else {
        Calls<T>::forwardDirect(src, dst, N, spec.dirTab, work);
    }
    Kernels<T>::scale(dst, dst, N, spec.scale0, spec.scaleK);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus inverseTransform(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const int N = spec.length;
    if (spec.useFft != 0) {
        return Calls<T>::inverseFft(&spec, src, dst, work);
    }
    if (spec.useConv != 0) {
        return Calls<T>::inverseConv(&spec, src, dst, work);
    }
    if (spec.usePow2 != 0) {
        Kernels<T>::scale(src, dst, N, spec.scale0, spec.scaleK);
        Calls<T>::inversePow2(dst, dst, N, spec.pow2Tab, work);
    } else {
        Kernels<T>::scale(src, work, N, spec.scale0, spec.scaleK);
        Calls<T>::inverseDirect(work, dst, N, spec.dirTab);
    }
    return tarnStsNoErr;
}

template <bool forward, typename Object, typename T>
TarnStatus transform(const T* pSrc, T* pDst, const Object* pSpec, Tarn8u* pBuffer)
{
    return callTransform(
        pSpec, pBuffer,
        [](const Object& spec, const T* src, T* dst) {
            if (spec.useSmall != 0) {
                constexpr const auto& small = forward ? tbl_sDCTfwd_small<T> : tbl_sDCTinv_small<T>;
                small[static_cast<std::size_t>(spec.length) - 1](src, dst);
            }
            return spec.useSmall != 0;
        },
        [](const Object& spec, const WorkBuffer& work, const T* src, T* dst) {
            constexpr auto run = forward ? forwardTransform<T> : inverseTransform<T>;
            return run(spec, src, dst, work.as<T>());
        },
        pSrc, pDst);
}

} // namespace tarn::dct

// The functions of one precision.

#define TARN_DCT_ROUTES(T, DIRECTION, FORWARD, direction)                                                   \
    TarnStatus tarns_initDct##DIRECTION##_Fft_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N)                   \
    {                                                                                                       \
        return tarn::dct::initFft(*pSpec, N, FORWARD);                                                      \
    }                                                                                                       \
    TarnStatus tarns_initDct##DIRECTION##_Conv_##T(tarn::dct::Spec<Tarn##T>* pSpec, int N)                  \
    {                                                                                                       \
        return tarn::dct::initConv(*pSpec, N, FORWARD);                                                     \
    }                                                                                                       \
    TarnStatus tarns_sDct##DIRECTION##_Fft_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc,  \
                                               Tarn##T* pDst, Tarn##T* work)                                \
    {                                                                                                       \
        return tarn::dct::direction##Fft(*pSpec, pSrc, pDst, work);                                         \
    }                                                                                                       \
    TarnStatus tarns_sDct##DIRECTION##_Conv_##T(const tarn::dct::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc, \
                                                Tarn##T* pDst, Tarn##T* work)                               \
    {                                                                                                       \
        return tarn::dct::direction##Conv(*pSpec, pSrc, pDst, work);                                        \
    }

#define TARN_DCT_DIRECTION_FRONT_ENDS(T, DIRECTION, FORWARD)                                                         \
    TarnStatus tarnsDCT##DIRECTION##InitAlloc_##T(TarnsDCT##DIRECTION##Spec_##T** ppSpec, int length,                \
                                                  TarnHintAlgorithm hint)                                            \
    {                                                                                                                \
        return tarn::dct::initAlloc<FORWARD>(ppSpec, length, hint);                                                  \
    }                                                                                                                \
    TarnStatus tarnsDCT##DIRECTION##Free_##T(TarnsDCT##DIRECTION##Spec_##T* pSpec) { return tarn::freeSpec(pSpec); } \
    TarnStatus tarnsDCT##DIRECTION##GetBufSize_##T(const TarnsDCT##DIRECTION##Spec_##T* pSpec, int* pSize)           \
    {                                                                                                                \
        return tarn::getBufSize(pSpec, pSize);                                                                       \
    }                                                                                                                \
    TarnStatus tarnsDCT##DIRECTION##_##T(const Tarn##T* pSrc, Tarn##T* pDst,                                         \
                                         const TarnsDCT##DIRECTION##Spec_##T* pSpec, Tarn8u* pBuffer)                \
    {                                                                                                                \
        return tarn::dct::transform<FORWARD>(pSrc, pDst, pSpec, pBuffer);                                            \
    }

#define TARN_DCT_FRONT_ENDS(T)                  \
    TARN_DCT_ROUTES(T, Fwd, true, forward)      \
    TARN_DCT_ROUTES(T, Inv, false, inverse)     \
    TARN_DCT_DIRECTION_FRONT_ENDS(T, Fwd, true) \
    TARN_DCT_DIRECTION_FRONT_ENDS(T, Inv, false)
