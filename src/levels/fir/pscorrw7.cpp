// Kernels of correlation.
#include "levels/fir/pscorr.h"

#include "frame/bytes.h"
#include "levels/fir/pscorr_sums.h"

using namespace tarn;

// -- One vector with itself -------------------------------------------------------------------------------------------

#define TARN_DEFINE_AUTOCORRELATION(NAME, S, T)                      \
    void NAME(const S* pSrc, int srcLen, T* pDst, int dstLen)        \
    {                                                                \
        zeroFill(pDst, dstLen);                                      \
        addCorrelation(pSrc, srcLen, pSrc, srcLen, pDst, dstLen, 0); \
    }
TARN_DEFINE_AUTOCORRELATION(ownAutoCorr_32f, Tarn32f, Tarn32f)
TARN_DEFINE_AUTOCORRELATION(ownAutoCorr_64f, Tarn64f, Tarn64f)
TARN_DEFINE_AUTOCORRELATION(ownAutoCorr_32fc, Tarn32fc, Tarn32fc)
TARN_DEFINE_AUTOCORRELATION(ownAutoCorr_64fc, Tarn64fc, Tarn64fc)
TARN_DEFINE_AUTOCORRELATION(ownAutoCorr_16s_Sfs, Tarn16s, Tarn32f)

namespace tarn {

template <typename T>
void fillOverlaps(T* dst, int len, int count)
{
    for (int i = 0; i < len; ++i) {
        const auto overlap = static_cast<Part<T>>(count - i);
        if constexpr (isComplex<T>) {
            store(dst + i, {overlap, overlap});
        } else {
            store(dst + i, overlap);
        }
    }
}
template void fillOverlaps(Tarn32f*, int, int);
template void fillOverlaps(Tarn64f*, int, int);
template void fillOverlaps(Tarn32fc*, int, int);
template void fillOverlaps(Tarn64fc*, int, int);

template <typename T>
void multiplyByConjugate(const T* src, T* srcDst, int len)
{
    walk(srcDst, len, mulByConjugate, src, srcDst);
}
template void multiplyByConjugate(const Tarn32fc*, Tarn32fc*, int);
template void multiplyByConjugate(const Tarn64fc*, Tarn64fc*, int);

} // namespace tarn

// -- Two vectors ------------------------------------------------------------------------------------------------------

// In BackFilter it is the elements of the second vector that all sums have. They meet those of the first one as in the
// correlation of the second with the first, which has the lags the other way round and conjugates.
#define TARN_DEFINE_CROSSCORRELATION(NAME, S, T)                                                         \
    void NAME(const S* pSrc1, int src1Len, const S* pSrc2, int src2Len, T* pDst, int dstLen, int lowLag) \
    {                                                                                                    \
        zeroFill(pDst, dstLen);                                                                          \
        addCorrelation(pSrc1, src1Len, pSrc2, src2Len, pDst, dstLen, lowLag);                            \
    }
#define TARN_DEFINE_CROSSCORRELATION_BACK(NAME, S, T)                                                           \
    void NAME(const S* pSrc1, int src1Len, const S* pSrc2, int src2Len, T* pDst, int dstLen, int lowLag)        \
    {                                                                                                           \
        zeroFill(pDst, dstLen);                                                                                 \
        addCorrelation(pSrc2, src2Len, pSrc1, src1Len, pDst, dstLen, 1LL - dstLen - lowLag, Results::backward); \
    }
#define TARN_DEFINE_CROSSCORRELATIONS(TAG, S, T)                 \
    TARN_DEFINE_CROSSCORRELATION(ownFirstTriangle_##TAG, S, T)   \
    TARN_DEFINE_CROSSCORRELATION(ownForwFilter_##TAG, S, T)      \
    TARN_DEFINE_CROSSCORRELATION_BACK(ownBackFilter_##TAG, S, T) \
    TARN_DEFINE_CROSSCORRELATION(ownLastTriangle_##TAG, S, T)
TARN_DEFINE_CROSSCORRELATIONS(32f, Tarn32f, Tarn32f)
TARN_DEFINE_CROSSCORRELATIONS(64f, Tarn64f, Tarn64f)
TARN_DEFINE_CROSSCORRELATIONS(32fc, Tarn32fc, Tarn32fc)
TARN_DEFINE_CROSSCORRELATIONS(64fc, Tarn64fc, Tarn64fc)
TARN_DEFINE_CROSSCORRELATIONS(16s32f, Tarn16s, Tarn32f)
