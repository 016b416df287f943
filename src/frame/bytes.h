// Arrays of elements moved as bytes, of which there may be more than a 32-bit length holds.
#pragma once

#include "levels/data/pscopyca.h"

namespace tarn {

// How many bytes an array takes; the length is not negative.
template <typename T>
constexpr std::size_t byteCount(int len)
{
    return static_cast<std::size_t>(len) * sizeof(T);
}

template <typename T>
inline void zeroFill(T* pDst, int len)
{
    zeroBytes(reinterpret_cast<Tarn8u*>(pDst), byteCount<T>(len));
}

template <typename T>
inline void copy(const T* pSrc, T* pDst, int len)
{
    copyBytes(reinterpret_cast<const Tarn8u*>(pSrc), reinterpret_cast<Tarn8u*>(pDst), byteCount<T>(len));
}

// Where source and destination may overlap.
template <typename T>
inline void move(const T* pSrc, T* pDst, int len)
{
    moveBytes(reinterpret_cast<const Tarn8u*>(pSrc), reinterpret_cast<Tarn8u*>(pDst), byteCount<T>(len));
}

} // namespace tarn
