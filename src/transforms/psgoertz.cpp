// Front ends of single bins.
#include "tarns/goertzel.h"

#include "frame/checks.h"
#include "frame/factor.h"
#include "frame/phase.h"
#include "frame/precise.h"
#include "levels/transforms/psgoertz.h"

#include <algorithm>

using namespace tarn;

namespace {

// A kernel of one bin or of two.
template <typename T, typename D>
using Kernel = void (*)(const T*, int, D*, const Tarn64fc*);

// False for a NaN.
constexpr bool isRelativeFrequency(Tarn64f x) { return x >= 0 && x < 1; }

// Checks, and as many bins as there are frequencies.
template <int count, typename T, typename D, typename Real>
TarnStatus bins(Kernel<T, D> kernel, const T* pSrc, int len, D* pVal, const Real* pFreq)
{
    Tarn64fc turns[count];
    for (int i = 0; i < count; ++i) {
        const Tarn64f freq = loadElement(pFreq + i);
        if (!isRelativeFrequency(freq)) {
            return tarnStsRelFreqErr;
        }
        const Tarn64f w = twoPi * freq;
        turns[i] = {preciseCosine(w), preciseSine(w)};
    }
    kernel(pSrc, len, pVal, turns);
    return tarnStsNoErr;
}

// The factor 2^-s. Beyond these limits every bin that is not 0 saturates, or vanishes.
Tarn32f scaleOf(int scaleFactor) { return twoToMinus<Tarn32f>(std::clamp(scaleFactor, -127, 126)); }

// The product is one of single precision, the addition of one half is exact.
Tarn16s scaled(Tarn32f value, Tarn32f scale)
{
    return roundedHalfAway(std::clamp(value * scale, Tarn32f{lowest<Tarn16s>}, Tarn32f{highest<Tarn16s>}));
}

template <int count, typename T>
TarnStatus scaledBins(Kernel<T, Tarn32fc> kernel, const T* pSrc, int len, Tarn16sc* pVal, const Tarn32f* pFreq,
                      int scaleFactor)
{
    Tarn32fc exact[count];
    if (const TarnStatus status = bins<count>(kernel, pSrc, len, static_cast<Tarn32fc*>(exact), pFreq)) {
        return status;
    }
    const Tarn32f scale = scaleOf(scaleFactor);
    for (int i = 0; i < count; ++i) {
        store(pVal + i, {scaled(exact[i].re, scale), scaled(exact[i].im, scale)});
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_GOERTZEL(TAG, T, D, REAL, KERNEL)                                             \
    TarnStatus tarnsGoertz_##TAG(const T* pSrc, int len, D* pVal, REAL rFreq)              \
    {                                                                                      \
        const TarnStatus status = check(len, pSrc, pVal);                                  \
        return status != tarnStsNoErr ? status : bins<1>(KERNEL, pSrc, len, pVal, &rFreq); \
    }
#define TARN_GOERTZEL_SCALED(TAG, T, KERNEL)                                                                   \
    TarnStatus tarnsGoertz_##TAG##_Sfs(const T* pSrc, int len, Tarn16sc* pVal, Tarn32f rFreq, int scaleFactor) \
    {                                                                                                          \
        const TarnStatus status = check(len, pSrc, pVal);                                                      \
        return status != tarnStsNoErr ? status : scaledBins<1>(KERNEL, pSrc, len, pVal, &rFreq, scaleFactor);  \
    }
#define TARN_GOERTZEL_TWO(TAG, T, REAL)                                                                       \
    TarnStatus tarnsGoertzTwo_##TAG(const T* pSrc, int len, T* pVal, const REAL* rFreq)                       \
    {                                                                                                         \
        const TarnStatus status = check(len, pSrc, pVal, rFreq);                                              \
        return status != tarnStsNoErr ? status : bins<2>(ownps_dkGoertzTwo_PX_##TAG, pSrc, len, pVal, rFreq); \
    }

TARN_GOERTZEL(32f, Tarn32f, Tarn32fc, Tarn32f, ownps_Goertz_PX_32f)
TARN_GOERTZEL(32fc, Tarn32fc, Tarn32fc, Tarn32f, ownps_dkGoertz_PX_32fc)
TARN_GOERTZEL(64fc, Tarn64fc, Tarn64fc, Tarn64f, ownps_dkGoertz_PX_64fc)
TARN_GOERTZEL_SCALED(16s, Tarn16s, ownps_Goertz_PX_16s_Sfs)
TARN_GOERTZEL_SCALED(16sc, Tarn16sc, ownps_dkGoertz_PX_16sc)
TARN_GOERTZEL_TWO(32fc, Tarn32fc, Tarn32f)
TARN_GOERTZEL_TWO(64fc, Tarn64fc, Tarn64f)

TarnStatus tarnsGoertzTwo_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pVal, const Tarn32f* rFreq, int scaleFactor)
{
    const TarnStatus status = check(len, pSrc, pVal, rFreq);
    return status != tarnStsNoErr ? status
                                  : scaledBins<2>(ownps_dkGoertzTwo_PX_16sc, pSrc, len, pVal, rFreq, scaleFactor);
}
