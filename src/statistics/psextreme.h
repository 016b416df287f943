// What the front ends of minimum and maximum share.
#pragma once

#include "frame/checks.h"

namespace tarn {

// From these lengths on the kernels that go by blocks pay.
inline constexpr int blocks_16s = 32;
inline constexpr int blocks_32f = 34;

template <typename T>
inline TarnStatus extreme(void (*kernel)(const T*, int, T*), const T* pSrc, int len, T* pExtreme)
{
    if (const TarnStatus status = check(len, pSrc, pExtreme)) {
        return status;
    }
    kernel(pSrc, len, pExtreme);
    return tarnStsNoErr;
}

// The place is optional: without it the call is that of the extreme alone.
template <typename T>
inline TarnStatus extremeAndIndex(TarnStatus (*alone)(const T*, int, T*), void (*kernel)(const T*, int, T*, int*),
                                  const T* pSrc, int len, T* pExtreme, int* pIndx)
{
    if (pIndx == nullptr) {
        return alone(pSrc, len, pExtreme);
    }
    if (const TarnStatus status = check(len, pSrc, pExtreme)) {
        return status;
    }
    kernel(pSrc, len, pExtreme, pIndx);
    return tarnStsNoErr;
}

} // namespace tarn
