// Front ends of the correlation of a vector with itself.
#include "fir/pscorr_transforms.h"
#include "frame/frontend.h"
#include "tarns/correlation.h"
#include "tarns/divide.h"
#include "tarns/multiply.h"

using namespace tarn;

namespace {

// -- Lags, directly or by a transform ---------------------------------------------------------------------------------

// So many lags are worth a transform.
template <typename T>
constexpr int fewestTransformed = 856;
template <>
constexpr int fewestTransformed<Tarn32fc> = 152;
template <>
constexpr int fewestTransformed<Tarn64fc> = 368;

void directKernel(const Tarn32f* src, int srcLen, Tarn32f* dst, int len) { ownAutoCorr_32f(src, srcLen, dst, len); }
void directKernel(const Tarn64f* src, int srcLen, Tarn64f* dst, int len) { ownAutoCorr_64f(src, srcLen, dst, len); }
void directKernel(const Tarn32fc* src, int srcLen, Tarn32fc* dst, int len) { ownAutoCorr_32fc(src, srcLen, dst, len); }
void directKernel(const Tarn64fc* src, int srcLen, Tarn64fc* dst, int len) { ownAutoCorr_64fc(src, srcLen, dst, len); }
void directKernel(const Tarn16s* src, int srcLen, Tarn32f* dst, int len) { ownAutoCorr_16s_Sfs(src, srcLen, dst, len); }

template <typename S>
TarnStatus correlateByTransform(const S* src, int srcLen, ComputedIn<S>* dst, int len)
{
    using T = ComputedIn<S>;
    CorrelationCall<T> call;
    if (const TarnStatus status = call.prepare(orderOfSize(2LL * srcLen, smallestCorrelationOrder), 1)) {
        return status;
    }
    T* const data = call.block(0);
    extendByZeros(src, srcLen, data, call.size());
    if (const TarnStatus status = call.forward(data)) {
        return status;
    }
    CorrelationCalls<T>::correlate(data, data, call.size());
    if (const TarnStatus status = call.inverse(data)) {
        return status;
    }
    copy(data, dst, len);
    return tarnStsNoErr;
}

// `len` is at most srcLen.
template <typename S>
TarnStatus correlateLags(const S* src, int srcLen, ComputedIn<S>* dst, int len)
{
    if (len >= fewestTransformed<ComputedIn<S>>) {
        return correlateByTransform(src, srcLen, dst, len);
    }
    directKernel(src, srcLen, dst, len);
    return tarnStsNoErr;
}

// -- Normalisation ----------------------------------------------------------------------------------------------------

// Each makes of the first `len` lags of a vector what its functions promise.
struct Plain {
    template <typename T>
    static TarnStatus normalise(T* /*lags*/, int /*len*/, int /*srcLen*/)
    {
        return tarnStsNoErr;
    }
};

TarnStatus multiply(Tarn32f factor, Tarn32f* lags, int len) { return tarnsMulC_32f_I(factor, lags, len); }
TarnStatus multiply(Tarn64f factor, Tarn64f* lags, int len) { return tarnsMulC_64f_I(factor, lags, len); }

struct NormA {
    template <typename T>
    static TarnStatus normalise(T* lags, int len, int srcLen)
    {
        return multiply(static_cast<Part<T>>(1.0 / srcLen), asParts(lags), partCount<T>(len));
    }

    template <typename T>
    static constexpr int partCount(int len)
    {
        return isComplex<T> ? 2 * len : len;
    }
};

TarnStatus divide(const Tarn32f* divisors, Tarn32f* lags, int len) { return tarnsDiv_32f_I(divisors, lags, len); }
TarnStatus divide(const Tarn64f* divisors, Tarn64f* lags, int len) { return tarnsDiv_64f_I(divisors, lags, len); }

struct NormB {
    template <typename T>
    static TarnStatus normalise(T* lags, int len, int srcLen)
    {
        const auto divisors = allocate<T>(len);
        if (!divisors) {
            return tarnStsNoMemErr;
        }
        fillOverlaps(divisors.get(), len, srcLen);
        return divide(asParts(divisors.get()), asParts(lags), NormA::partCount<T>(len));
    }
};

// -- Calls ------------------------------------------------------------------------------------------------------------

template <typename Norm, typename T>
TarnStatus correlate(const T* pSrc, int srcLen, T* pDst, int dstLen)
{
    if (const TarnStatus status = check(std::min(srcLen, dstLen), pSrc, pDst)) {
        return status;
    }
    const int len = std::min(srcLen, dstLen);
    if (const TarnStatus status = correlateLags(pSrc, srcLen, pDst, len)) {
        return status;
    }
    zeroFill(pDst + len, dstLen - len);
    return Norm::normalise(pDst, len, srcLen);
}

template <typename Norm>
TarnStatus correlate(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int dstLen, int scaleFactor)
{
    if (const TarnStatus status = check(std::min(srcLen, dstLen), pSrc, pDst)) {
        return status;
    }
    const int len = std::min(srcLen, dstLen);
    const auto lags = allocate<Tarn32f>(len);
    if (!lags) {
        return tarnStsNoMemErr;
    }
    if (const TarnStatus status = ownAutoCorr_16s32f(pSrc, srcLen, lags.get(), len)) {
        return status;
    }
    if (const TarnStatus status = Norm::normalise(lags.get(), len, srcLen)) {
        return status;
    }
    toResults(lags.get(), pDst, len, scaleFactor);
    zeroFill(pDst + len, dstLen - len);
    return tarnStsNoErr;
}

} // namespace

TarnStatus ownAutoCorr_16s32f(const Tarn16s* pSrc, int srcLen, Tarn32f* pDst, int dstLen)
{
    return correlateLags(pSrc, srcLen, pDst, dstLen);
}

#define TARN_AUTOCORRELATIONS(STEM, NORM)                                                                  \
    TarnStatus STEM##_32f(const Tarn32f* pSrc, int srcLen, Tarn32f* pDst, int dstLen)                      \
    {                                                                                                      \
        return correlate<NORM>(pSrc, srcLen, pDst, dstLen);                                                \
    }                                                                                                      \
    TarnStatus STEM##_64f(const Tarn64f* pSrc, int srcLen, Tarn64f* pDst, int dstLen)                      \
    {                                                                                                      \
        return correlate<NORM>(pSrc, srcLen, pDst, dstLen);                                                \
    }                                                                                                      \
    TarnStatus STEM##_32fc(const Tarn32fc* pSrc, int srcLen, Tarn32fc* pDst, int dstLen)                   \
    {                                                                                                      \
        return correlate<NORM>(pSrc, srcLen, pDst, dstLen);                                                \
    }                                                                                                      \
    TarnStatus STEM##_64fc(const Tarn64fc* pSrc, int srcLen, Tarn64fc* pDst, int dstLen)                   \
    {                                                                                                      \
        return correlate<NORM>(pSrc, srcLen, pDst, dstLen);                                                \
    }                                                                                                      \
    TarnStatus STEM##_16s_Sfs(const Tarn16s* pSrc, int srcLen, Tarn16s* pDst, int dstLen, int scaleFactor) \
    {                                                                                                      \
        return correlate<NORM>(pSrc, srcLen, pDst, dstLen, scaleFactor);                                   \
    }
TARN_AUTOCORRELATIONS(tarnsAutoCorr, Plain)
TARN_AUTOCORRELATIONS(tarnsAutoCorr_NormA, NormA)
TARN_AUTOCORRELATIONS(tarnsAutoCorr_NormB, NormB)
