// Plain loops beside windows and tones.
#include "pswin_peer.h"

#include <cmath>

namespace tarn::bench {
namespace {

// A Hann window as one writes it down.
template <class T>
void window(const T* src, T* dst, int len)
{
    const float t = 6.2831853F / static_cast<float>(len - 1);
    for (int n = 0; n < len; ++n) {
        const float weight = 0.5F - 0.5F * cosf(t * static_cast<float>(n));
        if constexpr (requires { src->re; }) {
            dst[n].re = static_cast<decltype(T::re)>(src[n].re * weight);
            dst[n].im = static_cast<decltype(T::re)>(src[n].im * weight);
        } else {
            dst[n] = static_cast<T>(src[n] * weight);
        }
    }
}

} // namespace

void windowLoop(const Tarn16s* src, Tarn16s* dst, int len) { window(src, dst, len); }
void windowLoop(const Tarn16sc* src, Tarn16sc* dst, int len) { window(src, dst, len); }
void windowLoop(const Tarn32f* src, Tarn32f* dst, int len) { window(src, dst, len); }
void windowLoop(const Tarn32fc* src, Tarn32fc* dst, int len) { window(src, dst, len); }
void windowLoop(const Tarn64f* src, Tarn64f* dst, int len) { window(src, dst, len); }
void windowLoop(const Tarn64fc* src, Tarn64fc* dst, int len) { window(src, dst, len); }

void toneLoop(Tarn32f* dst, int len, Tarn32f magn, Tarn32f freq, Tarn32f phase)
{
    const float w = 6.2831853F * freq;
    for (int n = 0; n < len; ++n)
        dst[n] = magn * cosf(w * static_cast<float>(n) + phase);
}

} // namespace tarn::bench
