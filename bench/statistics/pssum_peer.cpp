#include "pssum_peer.h"

#include <algorithm>
#include <cmath>

namespace tarn::bench {

#pragma GCC push_options
#pragma GCC optimize("O3", "fast-math")

void sumLoop(const Tarn32f* x, int len, Tarn32f* sum)
{
    Tarn32f s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i];
    *sum = s;
}

void dotLoop(const Tarn32f* x, const Tarn32f* y, int len, Tarn32f* dot)
{
    Tarn32f s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i] * y[i];
    *dot = s;
}

void dotLoop(const Tarn64f* x, const Tarn64f* y, int len, Tarn64f* dot)
{
    Tarn64f s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i] * y[i];
    *dot = s;
}

void deviationLoop(const Tarn32f* x, int len, Tarn32f* deviation)
{
    Tarn32f s1 = 0;
    Tarn32f s2 = 0;
    for (int i = 0; i < len; ++i) {
        s1 += x[i];
        s2 += x[i] * x[i];
    }
    const Tarn32f n = static_cast<Tarn32f>(len);
    *deviation = std::sqrt((n * s2 - s1 * s1) / (n * (n - 1)));
}

void normLoop(const Tarn32f* x, int len, Tarn32f* norm)
{
    Tarn32f s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i] * x[i];
    *norm = std::sqrt(s);
}

void largestLoop(const Tarn32f* x, int len, Tarn32f* largest)
{
    Tarn32f m = 0;
    for (int i = 0; i < len; ++i) {
        const Tarn32f magnitude = x[i] < 0 ? -x[i] : x[i];
        m = m > magnitude ? m : magnitude;
    }
    *largest = m;
}

#pragma GCC pop_options

void sumExtendedLoop(const Tarn32f* x, int len, Tarn32f* sum)
{
    long double s[8] = {};
    int i = 0;
    for (; i <= len - 8; i += 8) {
        s[0] += x[i];
        s[1] += x[i + 1];
        s[2] += x[i + 2];
        s[3] += x[i + 3];
        s[4] += x[i + 4];
        s[5] += x[i + 5];
        s[6] += x[i + 6];
        s[7] += x[i + 7];
    }
    for (; i < len; ++i)
        s[0] += x[i];
    *sum = static_cast<Tarn32f>(((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7])));
}

void logLoop(const Tarn32f* x, int len, Tarn32f* sum)
{
    Tarn32f s = 0;
    for (int i = 0; i < len; ++i)
        s += std::log(x[i]);
    *sum = s;
}

void sumLoop(const Tarn16s* x, int len, Tarn32s* sum)
{
    Tarn32s s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i];
    *sum = s;
}

void sumLoop(const Tarn32s* x, int len, Tarn32s* sum)
{
    Tarn64s s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i];
    *sum = static_cast<Tarn32s>(std::clamp<Tarn64s>(s, -2147483647 - 1, 2147483647));
}

void dotLoop(const Tarn16s* x, const Tarn16s* y, int len, Tarn64s* dot)
{
    Tarn64s s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i] * y[i];
    *dot = s;
}

void dotScaledLoop(const Tarn16s* x, const Tarn16s* y, int len, Tarn16s* dot)
{
    Tarn64s s = 0;
    for (int i = 0; i < len; ++i)
        s += x[i] * y[i];
    *dot = static_cast<Tarn16s>(std::clamp<Tarn64s>((s + 8) >> 4, -32768, 32767));
}

void smallestIndexLoop(const Tarn16s* x, int len, int* index)
{
    int best = 0;
    for (int i = 1; i < len; ++i)
        if (x[i] < x[best])
            best = i;
    *index = best;
}

template <typename T>
void extremesLoop(const T* x, int len, T* extremes)
{
    T smallest = x[0];
    T largest = x[0];
    for (int i = 0; i < len; ++i) {
        smallest = smallest < x[i] ? smallest : x[i];
        largest = largest > x[i] ? largest : x[i];
    }
    extremes[0] = smallest;
    extremes[1] = largest;
}

template void extremesLoop(const Tarn8u*, int, Tarn8u*);
template void extremesLoop(const Tarn16u*, int, Tarn16u*);
template void extremesLoop(const Tarn16s*, int, Tarn16s*);
template void extremesLoop(const Tarn32u*, int, Tarn32u*);
template void extremesLoop(const Tarn32s*, int, Tarn32s*);
template void extremesLoop(const Tarn32f*, int, Tarn32f*);
template void extremesLoop(const Tarn64f*, int, Tarn64f*);

} // namespace tarn::bench
