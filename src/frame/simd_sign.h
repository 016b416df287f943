// Words on the sign bits of floats alone.
#pragma once

#include "frame/simd_float.h"

namespace tarn {

// True if any lane has its sign set, whatever else it is.
struct AnySign {
    template <Float T>
    static TARN_INLINE bool of(T x)
    {
        return std::signbit(x);
    }
    static TARN_INLINE bool of(Register<Tarn32f> x) { return _mm_movemask_ps(x.v) != 0; }
    static TARN_INLINE bool of(Register<Tarn64f> x) { return _mm_movemask_pd(x.v) != 0; }
};

} // namespace tarn
