#include "coding/pslaw_peer.h"

namespace tarn::bench {
namespace {

inline int highestBit(unsigned x) { return 31 - __builtin_clz(x); }

inline Tarn8u muLaw(int linear)
{
    constexpr int bias = 0x84;
    const int mask = linear >= 0 ? 0xFF : 0x7F;
    linear = linear >= 0 ? bias + linear : bias - linear;
    const int segment = highestBit(static_cast<unsigned>(linear | 0xFF)) - 7;
    if (segment >= 8)
        return static_cast<Tarn8u>(0x7F ^ mask);
    return static_cast<Tarn8u>(((segment << 4) | ((linear >> (segment + 3)) & 0xF)) ^ mask);
}

inline Tarn8u aLaw(int linear)
{
    const int mask = linear >= 0 ? 0xD5 : 0x55;
    if (linear < 0)
        linear = -linear - 1;
    const int segment = highestBit(static_cast<unsigned>(linear | 0xFF)) - 7;
    if (segment >= 8)
        return static_cast<Tarn8u>(0x7F ^ mask);
    return static_cast<Tarn8u>(((segment << 4) | ((linear >> (segment != 0 ? segment + 3 : 4)) & 0xF)) ^ mask);
}

inline int sample(Tarn16s x) { return x; }
inline int sample(Tarn32f x)
{
    const float v = x * 32768;
    if (v > 32767)
        return 32767;
    if (v < -32768)
        return -32768;
    return static_cast<int>(v >= 0 ? v + 0.5F : v - 0.5F);
}

template <class S>
void aLawLoop(const S* __restrict src, Tarn8u* __restrict dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = aLaw(sample(src[i]));
}
template <class S>
void muLawLoop(const S* __restrict src, Tarn8u* __restrict dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = muLaw(sample(src[i]));
}

template <class D>
void tableLoop(const D* __restrict table, const Tarn8u* __restrict src, D* __restrict dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = table[src[i]];
}

} // namespace

void aLawBitSearch(const Tarn16s* src, Tarn8u* dst, int len) { aLawLoop(src, dst, len); }
void muLawBitSearch(const Tarn16s* src, Tarn8u* dst, int len) { muLawLoop(src, dst, len); }
void aLawBitSearch(const Tarn32f* src, Tarn8u* dst, int len) { aLawLoop(src, dst, len); }
void muLawBitSearch(const Tarn32f* src, Tarn8u* dst, int len) { muLawLoop(src, dst, len); }

void fromTable(const Tarn16s* table, const Tarn8u* src, Tarn16s* dst, int len) { tableLoop(table, src, dst, len); }
void fromTable(const Tarn32f* table, const Tarn8u* src, Tarn32f* dst, int len) { tableLoop(table, src, dst, len); }
void fromTable(const Tarn8u* table, const Tarn8u* src, Tarn8u* dst, int len) { tableLoop(table, src, dst, len); }

} // namespace tarn::bench
