// Plain loops beside roots, magnitudes, phases, and complex vectors taken apart.
#include "psmagn_peer.h"

#include <xmmintrin.h>

#include <cmath>

namespace tarn::bench {

// As a compiler would vectorise the loop that need not set errno.
void sqrtLoop(const Tarn32f* src, Tarn32f* dst, int len)
{
    int i = 0;
    for (; i <= len - 4; i += 4)
        _mm_storeu_ps(dst + i, _mm_sqrt_ps(_mm_loadu_ps(src + i)));
    for (; i < len; ++i)
        dst[i] = std::sqrt(src[i]);
}

void sqrtLoop(const Tarn64f* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::sqrt(src[i]);
}

void cbrtLoop(const Tarn32f* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::cbrt(src[i]);
}

void magnitudeLoop(const Tarn32fc* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::sqrt(src[i].re * src[i].re + src[i].im * src[i].im);
}

void magnitudeLoop(const Tarn64fc* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::sqrt(src[i].re * src[i].re + src[i].im * src[i].im);
}

void powerLoop(const Tarn32fc* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i].re * src[i].re + src[i].im * src[i].im;
}

void phaseLoop(const Tarn32fc* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::atan2(src[i].im, src[i].re);
}

void phaseLoop(const Tarn64fc* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::atan2(src[i].im, src[i].re);
}

void fromPolarLoop(const Tarn32f* magn, const Tarn32f* phase, Tarn32fc* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = {magn[i] * std::cos(phase[i]), magn[i] * std::sin(phase[i])};
}

void fromPolarLoop(const Tarn64f* magn, const Tarn64f* phase, Tarn64fc* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = {magn[i] * std::cos(phase[i]), magn[i] * std::sin(phase[i])};
}

} // namespace tarn::bench
