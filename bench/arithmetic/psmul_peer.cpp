// Plain loops beside the products.
#include "psmul_peer.h"

#include "support/scale_loop.h"

#include <cmath>

namespace tarn::bench {
namespace {

template <class T>
T times(T a, T b)
{
    if constexpr (requires { a.re; })
        return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
    else
        return a * b;
}

Tarn16sc times(Tarn16sc a, Tarn16sc b, int s)
{
    return {scaled<Tarn16s>(Tarn64s{a.re * b.re} - a.im * b.im, s),
            scaled<Tarn16s>(Tarn64s{a.re * b.im} + a.im * b.re, s)};
}

} // namespace

void mulLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] * b[i];
}

void mulLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] * b[i];
}

void mulLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = times(a[i], b[i]);
}

void mulLoop(const Tarn64fc* a, const Tarn64fc* b, Tarn64fc* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = times(a[i], b[i]);
}

void mulLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn8u>(a[i] * b[i], s);
}

void mulLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(a[i] * b[i], s);
}

void mulLoop(const Tarn16s* a, const Tarn16s* b, Tarn32s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn32s>(a[i] * b[i], s);
}

void mulLoop(const Tarn16u* a, const Tarn16s* b, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(a[i] * b[i], s);
}

void mulLoop(const Tarn16sc* a, const Tarn16sc* b, Tarn16sc* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = times(a[i], b[i], s);
}

void mulLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn32s>(Tarn64s{a[i]} * b[i], s);
}

void mulLoop(const Tarn32s* a, const Tarn32sc* b, Tarn32sc* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = {scaled<Tarn32s>(Tarn64s{a[i]} * b[i].re, s), scaled<Tarn32s>(Tarn64s{a[i]} * b[i].im, s)};
}

// The data leave the one sum of products that does not fit 64 bits aside.
void mulLoop(const Tarn32sc* a, const Tarn32sc* b, Tarn32sc* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = {scaled<Tarn32s>(Tarn64s{a[i].re} * b[i].re - Tarn64s{a[i].im} * b[i].im, s),
                  scaled<Tarn32s>(Tarn64s{a[i].re} * b[i].im + Tarn64s{a[i].im} * b[i].re, s)};
}

void mulConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] * val;
}

void mulConstantLoop(const Tarn32fc* src, Tarn32fc val, Tarn32fc* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = times(src[i], val);
}

void mulConstantLoop(const Tarn8u* src, Tarn8u val, Tarn8u* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn8u>(src[i] * val, s);
}

void mulConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(src[i] * val, s);
}

void mulConstantLoop(const Tarn16sc* src, Tarn16sc val, Tarn16sc* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = times(src[i], val, s);
}

void mulConstantLoop(const Tarn32s* src, Tarn32s val, Tarn32s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn32s>(Tarn64s{src[i]} * val, s);
}

void mulConstantLoop(const Tarn32f* src, Tarn32f val, Tarn16s* dst, int len, int s)
{
    const Tarn32f factor = std::ldexp(val, -s);
    for (int i = 0; i < len; ++i) {
        const Tarn32f product = src[i] * factor;
        const Tarn32f limited = product < -32768 ? -32768 : product > 32767 ? 32767 : product;
        dst[i] = static_cast<Tarn16s>(std::lrint(limited));
    }
}

void addProductLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* sum, int len)
{
    for (int i = 0; i < len; ++i)
        sum[i] = a[i] * b[i] + sum[i];
}

void addProductLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* sum, int len)
{
    for (int i = 0; i < len; ++i) {
        const Tarn32fc product = times(a[i], b[i]);
        sum[i] = {product.re + sum[i].re, product.im + sum[i].im};
    }
}

void addProductLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* sum, int len, int s)
{
    for (int i = 0; i < len; ++i)
        sum[i] = scaled<Tarn16s>(a[i] * b[i] + sum[i], s);
}

void addProductLoop(const Tarn16s* a, const Tarn16s* b, Tarn32s* sum, int len, int s)
{
    for (int i = 0; i < len; ++i)
        sum[i] = scaled<Tarn32s>(Tarn64s{a[i] * b[i]} + sum[i], s);
}

void addProductLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* sum, int len, int s)
{
    for (int i = 0; i < len; ++i)
        sum[i] = scaled<Tarn32s>(Tarn64s{a[i]} * b[i] + sum[i], s);
}

} // namespace tarn::bench
