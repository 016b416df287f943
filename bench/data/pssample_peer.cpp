#include "pssample_peer.h"

#include <algorithm>
#include <cmath>

namespace tarn::bench {

namespace {

template <class T>
void sampleDown(const T* src, int srcLen, T* dst, int factor, int phase)
{
    for (int i = phase; i < srcLen; i += factor)
        *dst++ = src[i];
}

template <class T>
void sampleUp(const T* src, int srcLen, T* dst, int factor, int phase)
{
    std::fill(dst, dst + srcLen * factor, T(0));
    for (int i = 0; i < srcLen; ++i)
        dst[phase + i * factor] = src[i];
}

} // namespace

void normalizeLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f vSub, Tarn32f vDiv)
{
    const Tarn32f reciprocal = 1 / vDiv;
    for (int i = 0; i < len; ++i)
        dst[i] = (src[i] - vSub) * reciprocal;
}

void normalizeLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s vSub, int vDiv, int scaleFactor)
{
    const double factor = std::ldexp(1.0, -scaleFactor) / vDiv;
    for (int i = 0; i < len; ++i) {
        const double x = (src[i] - vSub) * factor;
        dst[i] = static_cast<Tarn16s>(std::lrint(std::min(std::max(x, -32768.0), 32767.0)));
    }
}

void joinLoop(const Tarn32f* const* src, int nChannels, int chanLen, Tarn16s* dst)
{
    for (int i = 0; i < chanLen; ++i) {
        for (int c = 0; c < nChannels; ++c)
            dst[i * nChannels + c] =
                static_cast<Tarn16s>(std::lrint(std::min(std::max(src[c][i], -32768.0F), 32767.0F)));
    }
}

void sampleDownLoop(const Tarn16s* src, int srcLen, Tarn16s* dst, int factor, int phase)
{
    sampleDown(src, srcLen, dst, factor, phase);
}

void sampleDownLoop(const Tarn32f* src, int srcLen, Tarn32f* dst, int factor, int phase)
{
    sampleDown(src, srcLen, dst, factor, phase);
}

void sampleUpLoop(const Tarn16s* src, int srcLen, Tarn16s* dst, int factor, int phase)
{
    sampleUp(src, srcLen, dst, factor, phase);
}

void sampleUpLoop(const Tarn32f* src, int srcLen, Tarn32f* dst, int factor, int phase)
{
    sampleUp(src, srcLen, dst, factor, phase);
}

} // namespace tarn::bench
