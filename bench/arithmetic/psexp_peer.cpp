#include "psexp_peer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn::bench {

void expLoop(const Tarn32f* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::exp(src[i]);
}
void expLoop(const Tarn64f* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::exp(src[i]);
}
void expLoop(const Tarn32f* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::exp(static_cast<Tarn64f>(src[i]));
}
void lnLoop(const Tarn32f* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::log(src[i]);
}
void lnLoop(const Tarn64f* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::log(src[i]);
}
void lnLoop(const Tarn64f* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn32f>(std::log(src[i]));
}
void atanLoop(const Tarn32f* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::atan(src[i]);
}
void atanLoop(const Tarn64f* src, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = std::atan(src[i]);
}

namespace {

template <class D>
D rounded(double x)
{
    constexpr auto bound = static_cast<double>(std::numeric_limits<D>::max());
    return x >= bound ? std::numeric_limits<D>::max() : static_cast<D>(x + 0.5);
}

} // namespace

template <class T>
void expLoop(const T* src, T* dst, int len, int scaleFactor)
{
    const double factor = std::ldexp(1.0, -scaleFactor);
    for (int i = 0; i < len; ++i)
        dst[i] = rounded<T>(std::exp(static_cast<double>(src[i])) * factor);
}
template void expLoop(const Tarn16s*, Tarn16s*, int, int);
template void expLoop(const Tarn32s*, Tarn32s*, int, int);
template void expLoop(const Tarn64s*, Tarn64s*, int, int);

template <class S, class D>
void lnLoop(const S* src, D* dst, int len, int scaleFactor)
{
    const double factor = std::ldexp(1.0, -scaleFactor);
    for (int i = 0; i < len; ++i)
        dst[i] = rounded<D>(std::log(static_cast<double>(src[i])) * factor);
}
template void lnLoop(const Tarn16s*, Tarn16s*, int, int);
template void lnLoop(const Tarn32s*, Tarn32s*, int, int);
template void lnLoop(const Tarn32s*, Tarn16s*, int, int);

void decibelLoop(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    const double factor = std::ldexp(10.0, -scaleFactor);
    for (int i = 0; i < len; ++i)
        dst[i] = rounded<Tarn32s>(std::log10(static_cast<double>(src[i])) * factor);
}

} // namespace tarn::bench
