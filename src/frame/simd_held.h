// One element on its way from one place to another, in a register that takes it whole. The compiler may copy a double
// of a 32-bit program in two halves, and reading it back at once would wait until both have left the store buffer.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

template <typename T>
TARN_INLINE auto hold(const T* p)
{
    if constexpr (sizeof(T) == 8) {
        __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        asm("" : "+x"(x)); // as it is, a copy through two general registers to the compiler
        return x;
    } else {
        return loadElement(p);
    }
}

template <typename T>
TARN_INLINE void release(T* p, decltype(hold(p)) element)
{
    if constexpr (sizeof(T) == 8) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p), element);
    } else {
        store(p, element);
    }
}

// The element itself, to be computed with.
template <typename T>
TARN_INLINE T valueOf(decltype(hold(static_cast<const T*>(nullptr))) element)
{
    if constexpr (std::is_same_v<T, Tarn64f>) {
        return _mm_cvtsd_f64(_mm_castsi128_pd(element));
    } else {
        return element;
    }
}

template <typename T>
TARN_INLINE void moveElement(T* to, const T* from)
{
    release(to, hold(from));
}

template <typename T>
TARN_INLINE void swapElements(T* a, T* b)
{
    const auto x = hold(a);
    moveElement(a, b);
    release(b, x);
}

} // namespace tarn
