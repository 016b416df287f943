// Delay lines: how a caller sees them, and the doubled line of filters that take a sample at a time.
#pragma once

#include "frame/bytes.h"
#include "frame/simd_pack.h"

namespace tarn {

// Elements of one type as elements of another that holds their values exactly, or, on the way back, held them before:
// then truncation loses nothing.
template <typename D, typename S>
inline D convertedTo(S x)
{
    if constexpr (isComplex<S>) {
        return {static_cast<Part<D>>(x.re), static_cast<Part<D>>(x.im)};
    } else {
        return static_cast<D>(x);
    }
}

template <typename S, typename D>
inline void copyConverted(const S* src, D* dst, int len)
{
    for (int i = 0; i < len; ++i) {
        store(dst + i, convertedTo<D>(loadElement(src + i)));
    }
}

// The same backwards: callers have the newest sample and the first tap in front, states have the oldest and the last.
template <typename S, typename D>
inline void reverseConverted(const S* src, D* dst, int len)
{
    for (int i = 0; i < len; ++i) {
        store(dst + i, convertedTo<D>(loadElement(src + len - 1 - i)));
    }
}

// A line from a caller's, or one of silence.
template <typename S, typename D>
inline void fillDelay(const S* pDlyLine, D* line, int len)
{
    if (pDlyLine == nullptr) {
        zeroFill(line, len);
    } else {
        reverseConverted(pDlyLine, line, len);
    }
}

// A doubled line has every sample twice, `len` apart, so that the newest `len` of them lie side by side wherever they
// begin. Takes one in and answers with the window that begins at the oldest then. The line may lie anywhere.
template <typename T>
TARN_INLINE T* enterSample(T* line, int& begin, int len, T sample)
{
    T* const place = line + begin;
    store(place, sample);
    store(place + len, sample);
    begin = begin + 1 == len ? 0 : begin + 1;
    return line + begin;
}

} // namespace tarn
