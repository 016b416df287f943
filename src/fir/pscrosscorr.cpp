// Front ends of the correlation of two vectors.
#include "fir/pscorr_transforms.h"
#include "frame/checks.h"
#include "tarns/correlation.h"

using namespace tarn;

namespace {

// The vectors, and the lags that a kernel or a transform is to compute: lowLag to lowLag + len - 1.
template <typename S>
struct Vectors {
    const S* src1;
    int src1Len;
    const S* src2;
    int src2Len;
};
template <typename D>
struct Lags {
    D* dst;
    int len;
    long long low;
};

// -- By a transform ---------------------------------------------------------------------------------------------------

// The second vector is delayed so far that lag 1 - src1Len becomes the first result.
template <typename S>
TarnStatus correlateByTransform(const Vectors<S>& v, Lags<S> lags, int scaleFactor = 0)
{
    using T = ComputedIn<S>;
    CorrelationCall<T> call;
    const long long needed = static_cast<long long>(v.src1Len) + v.src2Len - 1;
    if (const TarnStatus status = call.prepare(orderOfSize(needed, smallestCorrelationOrder), 2)) {
        return status;
    }
    const int delay = v.src1Len - 1;
    T* const conjugated = call.block(0);
    T* const delayed = call.block(1);
    extendByZeros(v.src1, v.src1Len, conjugated, call.size());
    zeroFill(delayed, delay);
    extendByZeros(v.src2, v.src2Len, delayed + delay, call.size() - delay);
    for (T* const data : {conjugated, delayed}) {
        if (const TarnStatus status = call.forward(data)) {
            return status;
        }
    }
    CorrelationCalls<T>::correlate(delayed, conjugated, call.size());
    if (const TarnStatus status = call.inverse(conjugated)) {
        return status;
    }
    toResults(conjugated + std::max(0LL, delay + lags.low), lags.dst, lags.len, scaleFactor);
    return tarnStsNoErr;
}

// -- Directly ---------------------------------------------------------------------------------------------------------

template <typename S>
struct Kernels {
    using Kernel = void (*)(const S*, int, const S*, int, ComputedIn<S>*, int, int);

    Kernel firstTriangle;
    Kernel forwFilter;
    Kernel backFilter;
    Kernel lastTriangle;
};

#define TARN_CROSSCORRELATION_TABLE(TAG)                                                        \
    {                                                                                           \
        ownFirstTriangle_##TAG, ownForwFilter_##TAG, ownBackFilter_##TAG, ownLastTriangle_##TAG \
    }
template <typename S>
constexpr Kernels<S> kernels = TARN_CROSSCORRELATION_TABLE(32f);
template <>
constexpr Kernels<Tarn64f> kernels<Tarn64f> = TARN_CROSSCORRELATION_TABLE(64f);
template <>
constexpr Kernels<Tarn32fc> kernels<Tarn32fc> = TARN_CROSSCORRELATION_TABLE(32fc);
template <>
constexpr Kernels<Tarn64fc> kernels<Tarn64fc> = TARN_CROSSCORRELATION_TABLE(64fc);
template <>
constexpr Kernels<Tarn16s> kernels<Tarn16s> = TARN_CROSSCORRELATION_TABLE(16s32f);

// Lags at which the overlap grows, those at which all of the shorter vector overlaps, and those at which it shrinks.
template <typename S>
void correlateDirectly(const Vectors<S>& v, Lags<ComputedIn<S>> lags)
{
    const bool isFirstShorter = v.src1Len <= v.src2Len;
    const long long inside = isFirstShorter ? 0 : v.src2Len - v.src1Len;
    const long long shrinking = isFirstShorter ? v.src2Len - v.src1Len : 0;
    const auto take = [&](typename Kernels<S>::Kernel kernel, long long end) {
        const int count = static_cast<int>(std::clamp<long long>(end - lags.low, 0, lags.len));
        if (count > 0) {
            kernel(v.src1, v.src1Len, v.src2, v.src2Len, lags.dst, count, static_cast<int>(lags.low));
            lags = {lags.dst + count, lags.len - count, lags.low + count};
        }
    };
    take(kernels<S>.firstTriangle, inside);
    take(isFirstShorter ? kernels<S>.forwFilter : kernels<S>.backFilter, shrinking);
    take(kernels<S>.lastTriangle, v.src2Len);
}

// -- Calls ------------------------------------------------------------------------------------------------------------

// Up to which estimate of its cost the direct method is taken.
template <typename S>
constexpr float dearestDirect = 383;
template <>
constexpr float dearestDirect<Tarn32fc> = 255;
template <>
constexpr float dearestDirect<Tarn64f> = 511;
template <>
constexpr float dearestDirect<Tarn64fc> = 511;

// Whether the integer part of the estimate, which single precision is enough for, is above the limit.
template <typename S>
bool takesTransform(const Vectors<S>& v, int len)
{
    const auto shorter = static_cast<float>(std::min(v.src1Len, v.src2Len));
    const auto longer = static_cast<float>(std::max(v.src1Len, v.src2Len));
    return static_cast<float>(len) * shorter / longer >= dearestDirect<S> + 1;
}

// Lags that have products. Of the others the outputs are zero, and none is left to compute.
template <typename S>
Lags<S> zeroWithoutOverlap(const Vectors<S>& v, Lags<S> lags)
{
    const long long below = std::clamp<long long>(1LL - v.src1Len - lags.low, 0, lags.len);
    const int zeros = static_cast<int>(below);
    zeroFill(lags.dst, zeros);
    lags = {lags.dst + zeros, lags.len - zeros, lags.low + zeros};
    const int rest = static_cast<int>(std::clamp<long long>(v.src2Len - lags.low, 0, lags.len));
    zeroFill(lags.dst + rest, lags.len - rest);
    lags.len = rest;
    return lags;
}

template <typename S>
TarnStatus correlate(const S* pSrc1, int src1Len, const S* pSrc2, int src2Len, S* pDst, int dstLen, int lowLag,
                     int scaleFactor = 0)
{
    if (const TarnStatus status = check(std::min({src1Len, src2Len, dstLen}), pSrc1, pSrc2, pDst)) {
        return status;
    }
    const Vectors<S> vectors{pSrc1, src1Len, pSrc2, src2Len};
    const Lags<S> lags = zeroWithoutOverlap(vectors, {pDst, dstLen, lowLag});
    if (lags.len < 1) {
        return tarnStsNoErr;
    }
    if (takesTransform(vectors, lags.len)) {
        return correlateByTransform(vectors, lags, scaleFactor);
    }
    if constexpr (std::is_same_v<S, ComputedIn<S>>) {
        correlateDirectly(vectors, lags);
    } else {
        const auto sums = allocate<ComputedIn<S>>(lags.len);
        if (!sums) {
            return tarnStsNoMemErr;
        }
        correlateDirectly(vectors, {sums.get(), lags.len, lags.low});
        toResults(sums.get(), lags.dst, lags.len, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_CROSSCORRELATION(TAG)                                                                            \
    TarnStatus ownCrossByFFT_##TAG(const Tarn##TAG* pSrc1, int src1Len, const Tarn##TAG* pSrc2, int src2Len,  \
                                   Tarn##TAG* pDst, int dstLen, int lowLag)                                   \
    {                                                                                                         \
        return correlateByTransform<Tarn##TAG>({pSrc1, src1Len, pSrc2, src2Len}, {pDst, dstLen, lowLag});     \
    }                                                                                                         \
    TarnStatus tarnsCrossCorr_##TAG(const Tarn##TAG* pSrc1, int src1Len, const Tarn##TAG* pSrc2, int src2Len, \
                                    Tarn##TAG* pDst, int dstLen, int lowLag)                                  \
    {                                                                                                         \
        return correlate(pSrc1, src1Len, pSrc2, src2Len, pDst, dstLen, lowLag);                               \
    }
TARN_CROSSCORRELATION(32f)
TARN_CROSSCORRELATION(64f)
TARN_CROSSCORRELATION(32fc)
TARN_CROSSCORRELATION(64fc)

TarnStatus ownCrossByFFT_16s(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len, Tarn16s* pDst,
                             int dstLen, int lowLag, int scaleFactor)
{
    return correlateByTransform<Tarn16s>({pSrc1, src1Len, pSrc2, src2Len}, {pDst, dstLen, lowLag}, scaleFactor);
}

TarnStatus tarnsCrossCorr_16s_Sfs(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len, Tarn16s* pDst,
                                  int dstLen, int lowLag, int scaleFactor)
{
    return correlate(pSrc1, src1Len, pSrc2, src2Len, pDst, dstLen, lowLag, scaleFactor);
}
