#include "pslogic_peer.h"

namespace tarn::bench {

namespace {

template <class T>
void shiftLeft(const T* src, int val, T* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<T>(static_cast<unsigned>(src[i]) << val);
}

template <class T>
void shiftRight(const T* src, int val, T* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<T>(src[i] >> val);
}

} // namespace

void andLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] & b[i];
}

void andLoop(const Tarn32u* a, const Tarn32u* b, Tarn32u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] & b[i];
}

void orLoop(const Tarn32u* a, const Tarn32u* b, Tarn32u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = a[i] | b[i];
}

void xorConstantLoop(const Tarn16u* src, Tarn16u val, Tarn16u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] ^ val;
}

void xorConstantLoop(const Tarn32u* src, Tarn32u val, Tarn32u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = src[i] ^ val;
}

void notLoop(const Tarn8u* src, Tarn8u* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn8u>(~src[i]);
}

void shiftLeftLoop(const Tarn8u* src, int val, Tarn8u* dst, int len) { shiftLeft(src, val, dst, len); }

void shiftLeftLoop(const Tarn16u* src, int val, Tarn16u* dst, int len) { shiftLeft(src, val, dst, len); }

void shiftLeftLoop(const Tarn32s* src, int val, Tarn32s* dst, int len) { shiftLeft(src, val, dst, len); }

void shiftRightLoop(const Tarn8u* src, int val, Tarn8u* dst, int len) { shiftRight(src, val, dst, len); }

void shiftRightLoop(const Tarn16s* src, int val, Tarn16s* dst, int len) { shiftRight(src, val, dst, len); }

void shiftRightLoop(const Tarn32s* src, int val, Tarn32s* dst, int len) { shiftRight(src, val, dst, len); }

} // namespace tarn::bench
