// Plain loops beside the generators.
#include "psgenerators_peer.h"

#include <cmath>
#include <random>

namespace tarn::bench {
namespace {

template <class T>
void chirp(T* dst, int len, T magn)
{
    const double k = 1.5707963267948966 / len;
    for (int n = 0; n < len; ++n)
        dst[n] = static_cast<T>(magn * std::sin(k * n * n));
}

std::mt19937 twister;

template <class T>
void uniform(T* dst, int len)
{
    std::uniform_real_distribution<T> distribution(0, 1);
    for (int n = 0; n < len; ++n)
        dst[n] = distribution(twister);
}

template <class T>
void normal(T* dst, int len)
{
    std::normal_distribution<T> distribution(0, 1);
    for (int n = 0; n < len; ++n)
        dst[n] = distribution(twister);
}

double bessel(double x)
{
    if (x < 3.75) {
        const double u = (x / 3.75) * (x / 3.75);
        return 1 +
               u * (3.5156229 + u * (3.0899424 + u * (1.2067492 + u * (0.2659732 + u * (0.0360768 + u * 0.0045813)))));
    }
    const double s = 3.75 / x;
    const double p =
        0.39894228 +
        s * (0.01328592 +
             s * (0.00225319 +
                  s * (-0.00157565 +
                       s * (0.00916281 + s * (-0.02057706 + s * (0.02635537 + s * (-0.01647633 + s * 0.00392377)))))));
    return std::exp(x) / std::sqrt(x) * p;
}

template <class T>
void kaiser(const T* src, T* dst, int len, double alpha)
{
    const double inverse = 1 / bessel(alpha * (len - 1) / 2);
    for (int n = 0; n < len; ++n)
        dst[n] = static_cast<T>(src[n] * bessel(alpha * std::sqrt(static_cast<double>(len - 1 - n) * n)) * inverse);
}

} // namespace

void rampLoop(Tarn32f* dst, int len, Tarn32f offset, Tarn32f slope)
{
    for (int n = 0; n < len; ++n)
        dst[n] = offset + slope * static_cast<Tarn32f>(n);
}

void chirpLoop(Tarn32f* dst, int len, Tarn32f magn) { chirp(dst, len, magn); }
void chirpLoop(Tarn64f* dst, int len, Tarn64f magn) { chirp(dst, len, magn); }
void uniformLoop(Tarn32f* dst, int len) { uniform(dst, len); }
void uniformLoop(Tarn64f* dst, int len) { uniform(dst, len); }
void normalLoop(Tarn32f* dst, int len) { normal(dst, len); }
void normalLoop(Tarn64f* dst, int len) { normal(dst, len); }
void kaiserLoop(const Tarn32f* src, Tarn32f* dst, int len, double alpha) { kaiser(src, dst, len, alpha); }
void kaiserLoop(const Tarn64f* src, Tarn64f* dst, int len, double alpha) { kaiser(src, dst, len, alpha); }
void kaiserLoop(const Tarn16s* src, Tarn16s* dst, int len, double alpha) { kaiser(src, dst, len, alpha); }

} // namespace tarn::bench
