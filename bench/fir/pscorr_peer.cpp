#include "pscorr_peer.h"

#include <algorithm>
#include <cmath>

namespace tarn::bench {

namespace {

template <class Sum, class T, class Finish>
void loop(const T* x, int xLen, const T* y, int yLen, T* dst, int dstLen, int lowLag, Finish finish)
{
    for (int n = 0; n < dstLen; ++n) {
        const int lag = lowLag + n;
        Sum sum = 0;
        for (int i = std::max(0, -lag); i < std::min(xLen, yLen - lag); ++i)
            sum += static_cast<Sum>(x[i]) * static_cast<Sum>(y[i + lag]);
        dst[n] = finish(sum);
    }
}

template <class T>
T same(T x)
{
    return x;
}

} // namespace

void correlationLoop(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst, int dstLen, int lowLag)
{
    loop<Tarn32f>(x, xLen, y, yLen, dst, dstLen, lowLag, same<Tarn32f>);
}
void correlationLoop(const Tarn64f* x, int xLen, const Tarn64f* y, int yLen, Tarn64f* dst, int dstLen, int lowLag)
{
    loop<Tarn64f>(x, xLen, y, yLen, dst, dstLen, lowLag, same<Tarn64f>);
}
void correlationLoop(const Tarn16s* x, int xLen, const Tarn16s* y, int yLen, Tarn16s* dst, int dstLen, int lowLag)
{
    loop<Tarn32f>(x, xLen, y, yLen, dst, dstLen, lowLag, [](Tarn32f sum) {
        return static_cast<Tarn16s>(std::clamp(std::nearbyint(sum * 0x1p-20F), -32768.0F, 32767.0F));
    });
}

void correlationLoop(const Tarn32fc* x, int xLen, const Tarn32fc* y, int yLen, Tarn32fc* dst, int dstLen, int lowLag)
{
    for (int n = 0; n < dstLen; ++n) {
        const int lag = lowLag + n;
        Tarn32fc sum = {0, 0};
        for (int i = std::max(0, -lag); i < std::min(xLen, yLen - lag); ++i) {
            sum.re += x[i].re * y[i + lag].re + x[i].im * y[i + lag].im;
            sum.im += x[i].re * y[i + lag].im - x[i].im * y[i + lag].re;
        }
        dst[n] = sum;
    }
}

} // namespace tarn::bench
