// Plain loops beside the quotients.
#include "psdiv_peer.h"

#include <cmath>

namespace tarn::bench {
namespace {

template <class T>
void divideFloats(const T* a, const T* b, T* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = b[i] / a[i];
}

template <class T>
void divideIntegers(const T* a, const T* b, T* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<T>(std::lrint(static_cast<double>(b[i]) / static_cast<double>(a[i])));
}

} // namespace

void divLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len) { divideFloats(a, b, dst, len); }

void divLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len) { divideFloats(a, b, dst, len); }

void divLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* dst, int len)
{
    for (int i = 0; i < len; ++i) {
        const double re = a[i].re;
        const double im = a[i].im;
        const double scale = 1 / (re * re + im * im);
        dst[i] = {static_cast<float>((b[i].re * re + b[i].im * im) * scale),
                  static_cast<float>((b[i].im * re - b[i].re * im) * scale)};
    }
}

void divLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len) { divideIntegers(a, b, dst, len); }

void divLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len) { divideIntegers(a, b, dst, len); }

void divLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len) { divideIntegers(a, b, dst, len); }

} // namespace tarn::bench
