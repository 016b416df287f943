// The exception flags of the SSE unit, where a result depends on one or a call leaves without it.
#pragma once

#include "frame/simd_control.h"

namespace tarn {

inline constexpr unsigned mxcsrInvalid = 0x0001;
inline constexpr unsigned mxcsrUnderflow = 0x0010;

// Clears those of the flags that are set. Writing the word is slow, so that it is left alone if none is.
inline void clearFlags(unsigned flags)
{
    const unsigned word = readMxcsr();
    if ((word & flags) != 0) {
        writeMxcsr(word & ~flags);
    }
}

} // namespace tarn
