#include "psthreshold_peer.h"

#include <cmath>

namespace tarn::bench {

namespace {

template <class T>
void limit(const T* src, T* dst, int len, T level)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] > level ? src[i] : level;
}

template <class T>
void replace(const T* src, T* dst, int len, T level, T value)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] < level ? value : src[i];
}

} // namespace

void limitLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level) { limit(src, dst, len, level); }

void limitLoop(const Tarn64f* src, Tarn64f* dst, int len, Tarn64f level) { limit(src, dst, len, level); }

void limitLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s level) { limit(src, dst, len, level); }

void limitLoop(const Tarn32s* src, Tarn32s* dst, int len, Tarn32s level) { limit(src, dst, len, level); }

void limitLoop(const Tarn32fc* src, Tarn32fc* dst, int len, Tarn32f level)
{
    for (int i = 0; i < len; ++i) {
        const double square = double{src[i].re} * double{src[i].re} + double{src[i].im} * double{src[i].im};
        dst[i] = src[i];
        if (square < double{level} * double{level}) {
            const double factor = double{level} / std::sqrt(square);
            dst[i] = {static_cast<Tarn32f>(src[i].re * factor), static_cast<Tarn32f>(src[i].im * factor)};
        }
    }
}

void limitLoop(const Tarn16sc* src, Tarn16sc* dst, int len, Tarn16s level)
{
    for (int i = 0; i < len; ++i) {
        const int square = src[i].re * src[i].re + src[i].im * src[i].im;
        dst[i] = src[i];
        if (square < level * level) {
            const double factor = level / std::sqrt(static_cast<double>(square));
            dst[i] = {static_cast<Tarn16s>(std::lrint(src[i].re * factor)),
                      static_cast<Tarn16s>(std::lrint(src[i].im * factor))};
        }
    }
}

void replaceLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level, Tarn32f value)
{
    replace(src, dst, len, level, value);
}

void replaceLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s level, Tarn16s value)
{
    replace(src, dst, len, level, value);
}

void invertLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level)
{
    for (int i = 0; i < len; ++i) {
        const Tarn32f size = std::fabs(src[i]) > level ? std::fabs(src[i]) : level;
        dst[i] = 1 / std::copysign(size, src[i]);
    }
}

} // namespace tarn::bench
