// Transforms of any length by the power-of-two ones: k n is (k^2 + n^2 - (k - n)^2) / 2, and so the sum over x[n] times
// a root of index k n is a convolution of x[n] c[n] with the conjugate of the chirp c[k] = exp(-i pi k^2 / N).
#pragma once

#include "fft/psfft_convolving.h"
#include "levels/fft/psfft_calls.h"
#include "levels/transforms/psdft_calls.h"
#include "levels/transforms/psdft_convolve.h"

#include <climits>

namespace tarn::dft {

// The convolution of one call: data of `convLen` elements, and behind them the buffer of its transforms.
template <typename T>
class Convolution {
public:
    using C = PairOf<T>;
    using Fft = TransformCalls<C>;

    Convolution(const Spec<T>& spec, T* work) : spec(spec), data(asPairs(work)) {}

    C* points() const { return data; }

    // From the product of N points and the chirp to what is the spectrum but for a last product.
    TarnStatus run(int N) const
    {
        const int len = spec.convLen;
        const auto* const fft = static_cast<const typename Fft::Spec*>(spec.convFftSpec);
        auto* const buffer = reinterpret_cast<Tarn8u*>(data + len);
        if (N < len) {
            kernels<T>.zero(data + N, len - N);
        }
        if (const TarnStatus status = Fft::forward(data, data, fft, buffer)) {
            return status;
        }
        kernels<T>.multiply(data, spec.convKernel, data, len);
        return Fft::inverse(data, data, fft, buffer);
    }

private:
    const Spec<T>& spec;
    C* data;
};

template <typename T>
TarnStatus createConvolution(Spec<T>& spec, int N, const PairOf<T>* base, int baseLen)
{
    using C = PairOf<T>;
    using Fft = TransformCalls<C>;
    int order = 0;
    while ((1LL << order) < 2LL * N - 1) {
        ++order;
    }
    const long long len = 1LL << order;
    spec.convChirp = allocate<C>(N).release();
    spec.convKernel = allocate<C>(len).release();
    if (spec.convChirp == nullptr || spec.convKernel == nullptr) {
        return tarnStsNoMemErr;
    }
    spec.convLen = static_cast<int>(len);
    // The roots of twice as many points: made here, or those of a real transform of which this is the half.
    const bool isHalf = baseLen != N;
    const Owned<C[]> own(isHalf ? nullptr : kernels<T>.createBase(2 * N));
    if (!isHalf && !own) {
        return tarnStsNoMemErr;
    }
    fillChirp<T>(spec.convChirp, N, isHalf ? base : own.get());

    kernels<T>.conjugate(spec.convChirp, spec.convKernel, N);
    if (N < spec.convLen) {
        kernels<T>.zero(spec.convKernel + N, spec.convLen - N);
    }
    for (int j = 1; j < N; ++j) {
        spec.convKernel[spec.convLen - j] = spec.convKernel[j];
    }

    typename Fft::Spec* fft = nullptr;
    if (const TarnStatus status = Fft::initAlloc(&fft, order, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone)) {
        return status;
    }
    spec.convFftSpec = fft;
    if (const TarnStatus status = Fft::forward(spec.convKernel, spec.convKernel, fft, nullptr)) {
        return status;
    }
    fft::kernels<T>.scale(T{1} / static_cast<T>(spec.convLen), asParts(spec.convKernel), 2 * spec.convLen);

    int fftBytes = 0;
    Fft::getBufSize(fft, &fftBytes);
    const long long bytes = fftBytes + static_cast<long long>(sizeof(C)) * len + workAlignment;
    if (bytes > INT_MAX) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = static_cast<int>(bytes);
    return tarnStsNoErr;
}

// `enter` writes the points times the chirp, `leave` takes the results from there.
template <typename T, typename Enter, typename Leave>
TarnStatus convolve(const Spec<T>& spec, int N, T* work, Enter enter, Leave leave)
{
    const Chirp<T> chirp = {spec.convChirp, N};
    const Convolution<T> convolution(spec, work);
    enter(chirp, convolution.points());
    if (const TarnStatus status = convolution.run(N)) {
        return status;
    }
    leave(chirp, convolution.points());
    return tarnStsNoErr;
}

} // namespace tarn::dft

// The exported ones of a precision.
#define TARN_DFT_CONVOLUTIONS(T)                                                                                       \
    TarnStatus tarns_initDftConv_##T(tarn::dft::Spec<Tarn##T>* pSpec, int N, const Tarn##T##c* base, int baseLen)      \
    {                                                                                                                  \
        return tarn::dft::createConvolution(*pSpec, N, base, baseLen);                                                 \
    }                                                                                                                  \
    TarnStatus tarns_cDft_Conv_##T##c(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T##c* pSrc, Tarn##T##c* pDst, \
                                      int N, int direction, Tarn##T* work)                                             \
    {                                                                                                                  \
        return tarn::dft::convolve(                                                                                    \
            *pSpec, N, work, [&](const auto& chirp, auto* y) { chirp.enter(pSrc, y); },                                \
            [&](const auto& chirp, const auto* y) { chirp.leave(y, pDst, direction > 0); });                           \
    }                                                                                                                  \
    TarnStatus tarns_cDft_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrcRe,                       \
                                   const Tarn##T* pSrcIm, Tarn##T* pDstRe, Tarn##T* pDstIm, int direction,             \
                                   Tarn##T* work)                                                                      \
    {                                                                                                                  \
        return tarn::dft::convolve(                                                                                    \
            *pSpec, pSpec->length, work, [&](const auto& chirp, auto* y) { chirp.enterParts(pSrcRe, pSrcIm, y); },     \
            [&](const auto& chirp, const auto* y) { chirp.leaveParts(y, pDstRe, pDstIm, direction > 0); });            \
    }                                                                                                                  \
    TarnStatus tarns_rDftFwd_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc, Tarn##T* pDst,       \
                                      Tarn##T* work)                                                                   \
    {                                                                                                                  \
        return tarn::dft::convolve(                                                                                    \
            *pSpec, pSpec->length, work, [&](const auto& chirp, auto* y) { chirp.enterReal(pSrc, y); },                \
            [&](const auto& chirp, const auto* y) { chirp.leavePerm(y, pDst); });                                      \
    }                                                                                                                  \
    TarnStatus tarns_rDftInv_Conv_##T(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T* pSrc, Tarn##T* pDst,       \
                                      Tarn##T* work)                                                                   \
    {                                                                                                                  \
        return tarn::dft::convolve(                                                                                    \
            *pSpec, pSpec->length, work, [&](const auto& chirp, auto* y) { chirp.enterPerm(pSrc, y); },                \
            [&](const auto& chirp, const auto* y) { chirp.leaveReal(y, pDst); });                                      \
    }
