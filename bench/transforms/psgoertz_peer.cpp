#include "transforms/psgoertz_peer.h"

namespace tarn::bench {
namespace {

template <class T>
Tarn64fc realLoop(const T* src, int len, Tarn64fc turn)
{
    const double factor = 2 * turn.re;
    double u = 0;
    double v = 0;
    for (int n = 0; n < len; ++n) {
        const double t = factor * u - v + static_cast<double>(src[n]);
        v = u;
        u = t;
    }
    return {u * turn.re - v, u * turn.im};
}

template <class T>
Tarn64fc complexLoop(const T* src, int len, Tarn64fc turn)
{
    const double factor = 2 * turn.re;
    Tarn64fc u{};
    Tarn64fc v{};
    for (int n = 0; n < len; ++n) {
        const Tarn64fc t{factor * u.re - v.re + static_cast<double>(src[n].re),
                         factor * u.im - v.im + static_cast<double>(src[n].im)};
        v = u;
        u = t;
    }
    return {-u.im * turn.im - v.re + u.re * turn.re, u.re * turn.im - v.im + u.im * turn.re};
}

} // namespace

Tarn64fc goertzelLoop(const Tarn32f* src, int len, Tarn64fc turn) { return realLoop(src, len, turn); }
Tarn64fc goertzelLoop(const Tarn16s* src, int len, Tarn64fc turn) { return realLoop(src, len, turn); }
Tarn64fc goertzelLoop(const Tarn32fc* src, int len, Tarn64fc turn) { return complexLoop(src, len, turn); }
Tarn64fc goertzelLoop(const Tarn64fc* src, int len, Tarn64fc turn) { return complexLoop(src, len, turn); }
Tarn64fc goertzelLoop(const Tarn16sc* src, int len, Tarn64fc turn) { return complexLoop(src, len, turn); }

} // namespace tarn::bench
