// Front ends of the Kaiser window.
#include "tarns/windows.h"

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/simd_pack.h"
#include "levels/generators/pskaiser.h"

#include <cmath>

using namespace tarn;

namespace {

// Above it I0 would leave the range of single precision in the kernels.
constexpr double largestArgument = 38.0;

template <typename T, typename Real>
using Kernel = void (*)(const T*, const T*, T*, T*, int, Real, Real);

// alpha times the number of intervals: of a float in single precision, unlike the product that the limit is for.
double intervalsTimes(int len, Tarn32f alpha) { return static_cast<Tarn32f>(len - 1) * alpha; }
double intervalsTimes(int len, double alpha) { return (len - 1) * alpha; }

template <typename T, typename Real, typename Alpha>
TarnStatus kaiser(Kernel<T, Real> kernel, const T* pSrc, T* pDst, int len, Alpha alpha)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (std::fabs(static_cast<double>(alpha)) * (len - 1) / 2.0 > largestArgument) {
        return tarnStsKaiserHugeErr;
    }
    if (len == 1) {
        tarn::move(pSrc, pDst, 1);
        return tarnStsNoErr;
    }
    const double argument = intervalsTimes(len, alpha) / 2.0;
    const double inv = 1.0 / (isDouble<T> ? ownsBessel_64f(argument) : ownsBessel_32f(argument));
    kernel(pSrc, pSrc + (len - 1), pDst, pDst + (len - 1), len, static_cast<Real>(alpha), static_cast<Real>(inv));
    return tarnStsNoErr;
}

double fromQ15(int value) { return value * 0x1p-15; }

} // namespace

#define TARN_KAISER(STEM, TAG, ALPHA, VALUE)                                                  \
    TarnStatus tarnsWin##STEM##_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, ALPHA) \
    {                                                                                         \
        return kaiser(Kaiser_##TAG##_W7, pSrc, pDst, len, VALUE);                             \
    }                                                                                         \
    TarnStatus tarnsWin##STEM##_##TAG##_I(Tarn##TAG* pSrcDst, int len, ALPHA)                 \
    {                                                                                         \
        return kaiser(Kaiser_##TAG##_W7, pSrcDst, pSrcDst, len, VALUE);                       \
    }

TARN_KAISER(Kaiser, 16s, Tarn32f alpha, alpha)
TARN_KAISER(Kaiser, 16sc, Tarn32f alpha, alpha)
TARN_KAISER(Kaiser, 32f, Tarn32f alpha, alpha)
TARN_KAISER(Kaiser, 32fc, Tarn32f alpha, alpha)
TARN_KAISER(Kaiser, 64f, Tarn32f alpha, alpha)
TARN_KAISER(Kaiser, 64fc, Tarn32f alpha, alpha)
TARN_KAISER(KaiserQ15, 16s, int alphaQ15, fromQ15(alphaQ15))
TARN_KAISER(KaiserQ15, 16sc, int alphaQ15, fromQ15(alphaQ15))
