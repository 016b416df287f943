// Front ends of sampling down and up.
#include "tarns/sampling.h"

#include "frame/frontend.h"
#include "levels/data/pssample.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus checkSample(const T* pSrc, int srcLen, const T* pDst, const int* pDstLen, int factor, const int* pPhase)
{
    if (const TarnStatus status = check(srcLen, pSrc, pDst, pDstLen, pPhase)) {
        return status;
    }
    if (factor < 1) {
        return tarnStsSampleFactorErr;
    }
    const int phase = loadElement(pPhase);
    return phase < 0 || phase >= factor ? tarnStsSamplePhaseErr : tarnStsNoErr;
}

// The kernels of one element width.
template <typename W>
struct SampleKernels {
    void (*downByTwo)(const W*, int, W*, int);
    void (*down)(const W*, W*, int, int);
    void (*upByTwo)(const W*, int, W*, int);
    void (*up)(const W*, int, W*, int, int);
};

#define TARN_SAMPLE_TABLE(TAG)                                                                            \
    constexpr SampleKernels<Tarn##TAG> sample_##TAG{ownsSampleDown##TAG##_2_W7, ownsSampleDown##TAG##_W7, \
                                                    ownsSampleUp##TAG##_2_W7, ownsSampleUp##TAG##_W7};
TARN_SAMPLE_TABLE(16s)
TARN_SAMPLE_TABLE(32f)
TARN_SAMPLE_TABLE(64f)
TARN_SAMPLE_TABLE(64fc)

template <typename W, typename T>
TarnStatus sampleDown(const SampleKernels<W>& kernels, const T* pSrc, int srcLen, T* pDst, int* pDstLen, int factor,
                      int* pPhase)
{
    static_assert(sizeof(W) == sizeof(T));
    if (const TarnStatus status = checkSample(pSrc, srcLen, pDst, pDstLen, factor, pPhase)) {
        return status;
    }
    const int phase = loadElement(pPhase);
    const int count = phase < srcLen ? (srcLen - 1 - phase) / factor + 1 : 0;
    const auto* const first = reinterpret_cast<const W*>(pSrc) + (count > 0 ? phase : 0);
    auto* const dst = reinterpret_cast<W*>(pDst);
    if (factor == 1) {
        copy(pSrc, pDst, srcLen);
    } else if (factor == 2) {
        kernels.downByTwo(first, count > 0 ? srcLen - phase : 0, dst, count);
    } else {
        kernels.down(first, dst, count, factor);
    }
    store(pDstLen, count);
    store(pPhase, static_cast<int>(phase + Tarn64s{count} * factor - srcLen));
    return tarnStsNoErr;
}

template <typename W, typename T>
TarnStatus sampleUp(const SampleKernels<W>& kernels, const T* pSrc, int srcLen, T* pDst, int* pDstLen, int factor,
                    const int* pPhase)
{
    static_assert(sizeof(W) == sizeof(T));
    if (const TarnStatus status = checkSample(pSrc, srcLen, pDst, pDstLen, factor, pPhase)) {
        return status;
    }
    const auto* const src = reinterpret_cast<const W*>(pSrc);
    auto* const dst = reinterpret_cast<W*>(pDst);
    if (factor == 1) {
        copy(pSrc, pDst, srcLen);
    } else if (factor == 2) {
        kernels.upByTwo(src, srcLen, dst, loadElement(pPhase));
    } else {
        kernels.up(src, srcLen, dst, factor, loadElement(pPhase));
    }
    store(pDstLen, wrappedProduct(srcLen, factor));
    return tarnStsNoErr;
}

} // namespace

#define TARN_SAMPLE_FRONT_ENDS(TAG, KERNELS)                                                                       \
    TarnStatus tarnsSampleDown_##TAG(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int* pDstLen, int factor, \
                                     int* pPhase)                                                                  \
    {                                                                                                              \
        return sampleDown(KERNELS, pSrc, srcLen, pDst, pDstLen, factor, pPhase);                                   \
    }                                                                                                              \
    TarnStatus tarnsSampleUp_##TAG(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int* pDstLen, int factor,   \
                                   int* pPhase)                                                                    \
    {                                                                                                              \
        return sampleUp(KERNELS, pSrc, srcLen, pDst, pDstLen, factor, pPhase);                                     \
    }

TARN_SAMPLE_FRONT_ENDS(16s, sample_16s)
TARN_SAMPLE_FRONT_ENDS(16sc, sample_32f)
TARN_SAMPLE_FRONT_ENDS(32f, sample_32f)
TARN_SAMPLE_FRONT_ENDS(32fc, sample_64f)
TARN_SAMPLE_FRONT_ENDS(64f, sample_64f)
TARN_SAMPLE_FRONT_ENDS(64fc, sample_64fc)
