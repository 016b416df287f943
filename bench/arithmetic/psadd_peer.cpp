#include "psadd_peer.h"

#include "support/scale_loop.h"

namespace tarn::bench {

void addLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] + b[i];
}

void addLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] + b[i];
}

void addLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn8u>(a[i] + b[i], s);
}

void addLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(a[i] + b[i], s);
}

void addLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn32s>(Tarn64s{a[i]} + b[i], s);
}

void addSaturatedLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len)
{
    for (int i = 0; i < len; ++i) {
        const int sum = a[i] + b[i];
        dst[i] = static_cast<Tarn16s>(sum < -32768 ? -32768 : sum > 32767 ? 32767 : sum);
    }
}

void addConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] + val;
}

void addConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(src[i] + val, s);
}

} // namespace tarn::bench
