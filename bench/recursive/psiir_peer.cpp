#include "psiir_peer.h"

namespace tarn::bench {

namespace {

Tarn32f times(Tarn32f a, Tarn32f b) { return a * b; }
Tarn64f times(Tarn64f a, Tarn64f b) { return a * b; }
Tarn32fc times(Tarn32fc a, Tarn32fc b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
Tarn32f sum(Tarn32f a, Tarn32f b) { return a + b; }
Tarn64f sum(Tarn64f a, Tarn64f b) { return a + b; }
Tarn32fc sum(Tarn32fc a, Tarn32fc b) { return {a.re + b.re, a.im + b.im}; }
Tarn32f difference(Tarn32f a, Tarn32f b) { return a - b; }
Tarn64f difference(Tarn64f a, Tarn64f b) { return a - b; }
Tarn32fc difference(Tarn32fc a, Tarn32fc b) { return {a.re - b.re, a.im - b.im}; }

} // namespace

template <class T, class S>
void iirLoop(const T* taps, int order, T* d, const S* x, S* y, int len)
{
    const T* const b = taps + 1;
    const T* const a = b + order;
    for (int i = 0; i < len; ++i) {
        const T in = x[i];
        const T out = sum(times(taps[0], in), d[0]);
        for (int j = 0; j < order; ++j)
            d[j] = sum(difference(times(b[j], in), times(a[j], out)), d[j + 1]);
        y[i] = out;
    }
}
template void iirLoop(const Tarn32f*, int, Tarn32f*, const Tarn32f*, Tarn32f*, int);
template void iirLoop(const Tarn64f*, int, Tarn64f*, const Tarn64f*, Tarn64f*, int);
template void iirLoop(const Tarn32fc*, int, Tarn32fc*, const Tarn32fc*, Tarn32fc*, int);

template <class T>
void cascadeLoop(const T* taps, int sections, T* d, const T* x, T* y, int len)
{
    for (int i = 0; i < len; ++i) {
        T w = x[i];
        for (int s = 0; s < sections; ++s) {
            const T* const t = taps + 5 * s;
            T* const line = d + 2 * s;
            const T out = t[0] * w + line[0];
            line[0] = t[1] * w - t[3] * out + line[1];
            line[1] = t[2] * w - t[4] * out;
            w = out;
        }
        y[i] = w;
    }
}
template void cascadeLoop(const Tarn32f*, int, Tarn32f*, const Tarn32f*, Tarn32f*, int);
template void cascadeLoop(const Tarn64f*, int, Tarn64f*, const Tarn64f*, Tarn64f*, int);

} // namespace tarn::bench
