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
    template <FloatRegister R>
    static TARN_INLINE bool of(R x)
    {
        return native::anySign(x.v);
    }
};

} // namespace tarn
