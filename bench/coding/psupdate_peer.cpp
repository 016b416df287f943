#include "psupdate_peer.h"

#include <algorithm>
#include <cmath>

namespace tarn::bench {
namespace {

template <class F>
Tarn32s converted(F y)
{
    constexpr double most = sizeof(F) == 4 ? 2147483520.0 : 2147483647.0;
    return static_cast<Tarn32s>(std::clamp(y, F(-2147483648.0), F(most)));
}

template <class F>
void linearLoop(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    F y = static_cast<F>(*average);
    for (int i = 0; i < len; ++i)
        y = static_cast<F>(alpha) * y + static_cast<F>(1 - alpha) * static_cast<F>(x[i] >> shift);
    *average = converted(y);
}

template <class F>
void powerLoop(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    F y = static_cast<F>(*average);
    for (int i = 0; i < len; ++i)
        y = static_cast<F>(alpha) * y + static_cast<F>(1 - alpha) * static_cast<F>((x[i] * x[i]) >> shift);
    *average = converted(y);
}

} // namespace

void linearLoop_32f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    linearLoop<Tarn32f>(x, len, average, shift, alpha);
}
void linearLoop_64f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    linearLoop<Tarn64f>(x, len, average, shift, alpha);
}
void powerLoop_32f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    powerLoop<Tarn32f>(x, len, average, shift, alpha);
}
void powerLoop_64f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha)
{
    powerLoop<Tarn64f>(x, len, average, shift, alpha);
}

void emphasisLoop(Tarn32f* x, int len, Tarn32f val)
{
    Tarn32f before = 0;
    for (int i = 0; i < len; ++i) {
        const Tarn32f now = x[i];
        x[i] = now - val * before;
        before = now;
    }
}

void emphasisLoop(Tarn16s* x, int len, Tarn32f val)
{
    Tarn32f before = 0;
    for (int i = 0; i < len; ++i) {
        const Tarn32f now = x[i];
        x[i] = static_cast<Tarn16s>(std::clamp(std::lrint(now - val * before), -32768L, 32767L));
        before = now;
    }
}

} // namespace tarn::bench
