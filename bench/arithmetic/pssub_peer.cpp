// Plain loops beside the Sub family.
#include "pssub_peer.h"

#include "support/scale_loop.h"

namespace tarn::bench {

void subLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = b[i] - a[i];
}

void subLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn8u>(b[i] - a[i], s);
}

void subLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(b[i] - a[i], s);
}

void subLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn32s>(Tarn64s{b[i]} - a[i], s);
}

void subConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] - val;
}

void subFromConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = val - src[i];
}

void subFromConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(val - src[i], s);
}

} // namespace tarn::bench
