#include "psfir_peer.h"

namespace tarn::bench {

namespace {

template <class T>
void realLoop(const T* h, int taps, const T* x, T* y, int len)
{
    for (int i = 0; i < len; ++i) {
        T sum = 0;
        for (int k = 0; k < taps; ++k)
            sum += h[k] * x[i + k];
        y[i] = sum;
    }
}

} // namespace

void firLoop(const Tarn32f* h, int taps, const Tarn32f* x, Tarn32f* y, int len) { realLoop(h, taps, x, y, len); }
void firLoop(const Tarn64f* h, int taps, const Tarn64f* x, Tarn64f* y, int len) { realLoop(h, taps, x, y, len); }

void firLoop(const Tarn32fc* h, int taps, const Tarn32fc* x, Tarn32fc* y, int len)
{
    for (int i = 0; i < len; ++i) {
        Tarn32fc sum = {0, 0};
        for (int k = 0; k < taps; ++k) {
            sum.re += h[k].re * x[i + k].re - h[k].im * x[i + k].im;
            sum.im += h[k].re * x[i + k].im + h[k].im * x[i + k].re;
        }
        y[i] = sum;
    }
}

void firLoop(const Tarn32s* h, int taps, const Tarn16s* x, Tarn16s* y, int len)
{
    for (int i = 0; i < len; ++i) {
        int sum = 0;
        for (int k = 0; k < taps; ++k)
            sum += h[k] * x[i + k];
        const int rounded = (sum + (1 << 14)) >> 15;
        y[i] = static_cast<Tarn16s>(rounded < -32768 ? -32768 : rounded > 32767 ? 32767 : rounded);
    }
}

} // namespace tarn::bench
