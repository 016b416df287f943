#include "psspectrum_peer.h"

namespace tarn::bench {
namespace {

// The lengths measured are even.

template <class T>
void multiplyPairs(const T* a, const T* b, T* dst, int first, int end)
{
    for (int i = first; i < end; i += 2) {
        const T re = a[i] * b[i] - a[i + 1] * b[i + 1];
        const T im = a[i] * b[i + 1] + a[i + 1] * b[i];
        dst[i] = re;
        dst[i + 1] = im;
    }
}

template <class T>
void mulPerm(const T* a, const T* b, T* dst, int len)
{
    dst[0] = a[0] * b[0];
    dst[1] = a[1] * b[1];
    multiplyPairs(a, b, dst, 2, len);
}

Tarn16s saturated(int x) { return static_cast<Tarn16s>(x < -32768 ? -32768 : x > 32767 ? 32767 : x); }

float negated(float x) { return -x; }
double negated(double x) { return -x; }
Tarn16s negated(Tarn16s x) { return saturated(-x); }

template <class T, class C>
void expand(const T* pairs, C* dst, int len)
{
    for (int k = 1; k < len / 2; ++k) {
        const T re = pairs[2 * k - 2];
        const T im = pairs[2 * k - 1];
        dst[k] = {re, im};
        dst[len - k] = {re, negated(im)};
    }
}

template <class T, class C>
void conjPerm(const T* src, C* dst, int len)
{
    dst[0] = {src[0], 0};
    dst[len / 2] = {src[1], 0};
    expand(src + 2, dst, len);
}

template <class C>
void conjFlip(const C* src, C* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = {src[len - 1 - i].re, negated(src[len - 1 - i].im)};
}

} // namespace

void mulPermLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len) { mulPerm(a, b, dst, len); }

void mulPermLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len) { mulPerm(a, b, dst, len); }

void mulPermLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int shift)
{
    dst[0] = saturated(a[0] * b[0] >> shift);
    dst[1] = saturated(a[1] * b[1] >> shift);
    for (int i = 2; i < len; i += 2) {
        const int re = a[i] * b[i] - a[i + 1] * b[i + 1];
        const int im = a[i] * b[i + 1] + a[i + 1] * b[i];
        dst[i] = saturated(re >> shift);
        dst[i + 1] = saturated(im >> shift);
    }
}

void mulPackLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len)
{
    dst[0] = a[0] * b[0];
    multiplyPairs(a, b, dst, 1, len - 1);
    dst[len - 1] = a[len - 1] * b[len - 1];
}

void mulPackConjLoop(const Tarn32f* src, Tarn32f* srcDst, int len)
{
    srcDst[0] *= src[0];
    for (int i = 1; i < len - 1; i += 2) {
        const float re = src[i] * srcDst[i] + src[i + 1] * srcDst[i + 1];
        const float im = src[i + 1] * srcDst[i] - src[i] * srcDst[i + 1];
        srcDst[i] = re;
        srcDst[i + 1] = im;
    }
    srcDst[len - 1] *= src[len - 1];
}

void conjPermLoop(const Tarn32f* src, Tarn32fc* dst, int len) { conjPerm(src, dst, len); }

void conjPermLoop(const Tarn64f* src, Tarn64fc* dst, int len) { conjPerm(src, dst, len); }

void conjPermLoop(const Tarn16s* src, Tarn16sc* dst, int len) { conjPerm(src, dst, len); }

void conjPackLoop(const Tarn32f* src, Tarn32fc* dst, int len)
{
    dst[0] = {src[0], 0};
    dst[len / 2] = {src[len - 1], 0};
    expand(src + 1, dst, len);
}

void conjFlipLoop(const Tarn32fc* src, Tarn32fc* dst, int len) { conjFlip(src, dst, len); }

void conjFlipLoop(const Tarn16sc* src, Tarn16sc* dst, int len) { conjFlip(src, dst, len); }

} // namespace tarn::bench
