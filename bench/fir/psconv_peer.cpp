#include "psconv_peer.h"

#include <algorithm>
#include <cmath>

namespace tarn::bench {

namespace {

template <class Sum, class T, class Finish>
void loop(const T* x, int xLen, const T* y, int yLen, T* dst, Finish finish)
{
    for (int k = 0; k < xLen + yLen - 1; ++k) {
        Sum sum = 0;
        for (int i = std::max(0, k - yLen + 1); i <= std::min(k, xLen - 1); ++i)
            sum += static_cast<Sum>(x[i]) * static_cast<Sum>(y[k - i]);
        dst[k] = finish(sum);
    }
}

template <class T>
T same(T x)
{
    return x;
}

} // namespace

void convolutionLoop(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst)
{
    loop<Tarn32f>(x, xLen, y, yLen, dst, same<Tarn32f>);
}
void convolutionLoop(const Tarn64f* x, int xLen, const Tarn64f* y, int yLen, Tarn64f* dst)
{
    loop<Tarn64f>(x, xLen, y, yLen, dst, same<Tarn64f>);
}
void convolutionLoop(const Tarn16s* x, int xLen, const Tarn16s* y, int yLen, Tarn16s* dst)
{
    loop<Tarn32f>(x, xLen, y, yLen, dst, [](Tarn32f sum) {
        return static_cast<Tarn16s>(std::clamp(std::nearbyint(sum * 0x1p-14F), -32768.0F, 32767.0F));
    });
}

void convolutionRows(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* __restrict dst)
{
    std::fill_n(dst, xLen + yLen - 1, 0.0F);
    for (int j = 0; j < yLen; ++j)
        for (int i = 0; i < xLen; ++i)
            dst[i + j] += x[i] * y[j];
}

void cyclicLoop(const Tarn32f* x, const Tarn32f* y, Tarn32f* dst)
{
    for (int k = 0; k < 8; ++k) {
        Tarn32f sum = 0;
        for (int i = 0; i < 8; ++i)
            sum += x[i] * y[(k - i) & 7];
        dst[k] = sum;
    }
}
void cyclicLoop(const Tarn32f* x, const Tarn32fc* y, Tarn32fc* dst)
{
    for (int k = 0; k < 4; ++k) {
        Tarn32fc sum = {0, 0};
        for (int i = 0; i < 4; ++i) {
            sum.re += x[i] * y[(k - i) & 3].re;
            sum.im += x[i] * y[(k - i) & 3].im;
        }
        dst[k] = sum;
    }
}
void cyclicLoop(const Tarn16s* x, const Tarn16s* y, Tarn16s* dst)
{
    for (int k = 0; k < 8; ++k) {
        int sum = 0;
        for (int i = 0; i < 8; ++i)
            sum += x[i] * y[(k - i) & 7];
        dst[k] = static_cast<Tarn16s>(std::clamp(sum >> 14, -32768, 32767));
    }
}

} // namespace tarn::bench
