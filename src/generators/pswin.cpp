// Front ends of the windows: Bartlett, Hann, Hamming and the generalised Blackman with its named settings.
#include "tarns/windows.h"

#include "frame/checks.h"
#include "frame/constants.h"
#include "frame/precise.h"
#include "frame/simd.h"
#include "levels/generators/pswin.h"

#include <cmath>

using namespace tarn;

namespace {

constexpr int shortestWindow = 3;

// Pointers, then the length.
template <typename... T>
TarnStatus checkWindow(int len, const T*... pointers)
{
    return check(len < shortestWindow ? 0 : len, pointers...);
}

// cos(stride t) with t = 2 pi / (len - 1). 16-bit elements multiply by the reciprocal, whose rounding shows in the last
// bit of the angle.
template <typename T>
double cosineAt(int stride, int len)
{
    const double turn = 2 * pi * stride;
    const double intervals = len - 1;
    return preciseCosine(std::is_integral_v<Part<T>> ? 1 / intervals * turn : turn / intervals);
}

template <typename T>
WindowCosines cosines(int stride, int len)
{
    const double one = cosineAt<T>(1, len);
    return {one, stride == 1 ? one : cosineAt<T>(stride, len)};
}

// Three elements of a window that begins and ends with zero.
template <typename T>
TarnStatus keepMiddle(const T* src, T* dst)
{
    const T middle = loadElement(src + 1);
    store(dst, T{});
    store(dst + 1, middle);
    store(dst + 2, T{});
    return tarnStsNoErr;
}

template <typename T>
TarnStatus bartlett(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = checkWindow(len, pSrc, pDst)) {
        return status;
    }
    if (len == shortestWindow) {
        return keepMiddle(pSrc, pDst);
    }
    windowBartlett(pSrc, pDst, len);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus raisedCosine(const T* pSrc, T* pDst, int len, RaisedCosineShape shape)
{
    windowRaisedCosine(pSrc, pDst, len, shape, cosines<T>(raisedCosineStride<T>, len));
    return tarnStsNoErr;
}

template <typename T>
TarnStatus hann(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = checkWindow(len, pSrc, pDst)) {
        return status;
    }
    // In double precision the weights at the ends are computed zeros, which spread an infinity as NaN.
    if (len == shortestWindow && !isDouble<T>) {
        return keepMiddle(pSrc, pDst);
    }
    return raisedCosine(pSrc, pDst, len, {0.5, 0.5});
}

template <typename T>
TarnStatus hamming(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = checkWindow(len, pSrc, pDst)) {
        return status;
    }
    return raisedCosine(pSrc, pDst, len, {0.54, 0.46});
}

// `alpha` comes in the precision of the interface.
template <typename T>
TarnStatus blackman(const T* pSrc, T* pDst, int len, LaneOf<T> alpha)
{
    if (const TarnStatus status = checkWindow(len, pSrc, pDst)) {
        return status;
    }
    if (len == shortestWindow) {
        return keepMiddle(pSrc, pDst);
    }
    windowBlackman(pSrc, pDst, len, alpha, cosines<T>(blackmanStride<T>, len));
    return tarnStsNoErr;
}

template <typename T>
TarnStatus blackmanStd(const T* pSrc, T* pDst, int len)
{
    return blackman(pSrc, pDst, len, static_cast<LaneOf<T>>(-0.16));
}

// The alpha of the fastest side lobe decay is undefined at three elements, so that the length comes before the pointers
// here.
template <typename T>
TarnStatus blackmanOpt(const T* pSrc, T* pDst, int len)
{
    if (len <= shortestWindow) {
        return tarnStsSizeErr;
    }
    const double root = 0.5 / preciseCosine(pi / (len - 1));
    return blackman(pSrc, pDst, len, static_cast<LaneOf<T>>(-(root * root)));
}

Tarn32f fromQ15(int value) { return static_cast<Tarn32f>(value * 0x1p-15); }

// Rounds half away from zero, unlike the kernels.
Tarn16s roundedAwayFromZero(double x)
{
    const double bounded = std::fmin(std::fmax(x, lowest<Tarn16s>), highest<Tarn16s>);
    return static_cast<Tarn16s>(bounded + (bounded < 0 ? -0.5 : 0.5));
}

} // namespace

TarnStatus tarnsWinBlackmanQ15_16s_ISfs(Tarn16s* pSrcDst, int len, int alphaQ15, int scaleFactor)
{
    const double factor = twoToMinusAny(scaleFactor);
    if (const TarnStatus status = checkWindow(len, pSrcDst)) {
        return status;
    }
    if (len == shortestWindow) {
        store(pSrcDst + 1, roundedAwayFromZero(loadElement(pSrcDst + 1) * factor));
        return keepMiddle(pSrcDst, pSrcDst);
    }
    const auto [one, stride] = cosines<Tarn16s>(blackmanStride<Tarn16s>, len);
    Blacman16s_q15sfs_W7(pSrcDst, len, fromQ15(alphaQ15), static_cast<Tarn32f>(factor), one, stride);
    return tarnStsNoErr;
}

#define TARN_WINDOW(STEM, TAG, WINDOW)                                                 \
    TarnStatus tarnsWin##STEM##_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                                  \
        return WINDOW(pSrc, pDst, len);                                                \
    }                                                                                  \
    TarnStatus tarnsWin##STEM##_##TAG##_I(Tarn##TAG* pSrcDst, int len)                 \
    {                                                                                  \
        return WINDOW(static_cast<const Tarn##TAG*>(pSrcDst), pSrcDst, len);           \
    }

#define TARN_WINDOW_ALPHA(STEM, TAG, ALPHA, VALUE)                                            \
    TarnStatus tarnsWin##STEM##_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, ALPHA) \
    {                                                                                         \
        return blackman(pSrc, pDst, len, VALUE);                                              \
    }                                                                                         \
    TarnStatus tarnsWin##STEM##_##TAG##_I(Tarn##TAG* pSrcDst, int len, ALPHA)                 \
    {                                                                                         \
        return blackman(static_cast<const Tarn##TAG*>(pSrcDst), pSrcDst, len, VALUE);         \
    }

#define TARN_WINDOWS(TAG, ALPHA)                         \
    TARN_WINDOW(Bartlett, TAG, bartlett)                 \
    TARN_WINDOW(Hann, TAG, hann)                         \
    TARN_WINDOW(Hamming, TAG, hamming)                   \
    TARN_WINDOW_ALPHA(Blackman, TAG, ALPHA alpha, alpha) \
    TARN_WINDOW(BlackmanStd, TAG, blackmanStd)           \
    TARN_WINDOW(BlackmanOpt, TAG, blackmanOpt)

TARN_WINDOWS(16s, Tarn32f)
TARN_WINDOWS(16sc, Tarn32f)
TARN_WINDOWS(32f, Tarn32f)
TARN_WINDOWS(32fc, Tarn32f)
TARN_WINDOWS(64f, Tarn64f)
TARN_WINDOWS(64fc, Tarn64f)
TARN_WINDOW_ALPHA(BlackmanQ15, 16s, int alphaQ15, fromQ15(alphaQ15))
TARN_WINDOW_ALPHA(BlackmanQ15, 16sc, int alphaQ15, fromQ15(alphaQ15))
