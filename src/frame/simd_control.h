// The control and status word of the SSE unit.
#pragma once

#include <pmmintrin.h>

namespace tarn {

// Neither moves across loads and stores of the program: what was loaded after a write of the word is computed on under
// it, and what is stored before the next one was.

inline unsigned readMxcsr()
{
    const unsigned word = _mm_getcsr();
    asm volatile("" : : : "memory");
    return word;
}

inline void writeMxcsr(unsigned word)
{
    asm volatile("" : : : "memory");
    _mm_setcsr(word);
    asm volatile("" : : : "memory");
}

// Fields of the word.
inline constexpr unsigned mxcsrRoundingField = 0x6000;
inline constexpr unsigned mxcsrDenormalsAreZero = 0x0040;

} // namespace tarn
