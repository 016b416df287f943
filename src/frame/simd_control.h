// The control and status word of the SSE unit, and the control word of the x87 unit.
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

inline unsigned short readX87Control()
{
    unsigned short word;
    asm volatile("fnstcw %0" : "=m"(word));
    return word;
}

inline void writeX87Control(unsigned value)
{
    const auto word = static_cast<unsigned short>(value);
    asm volatile("fldcw %0" : : "m"(word) : "memory");
}

// Fields of the words.
inline constexpr unsigned mxcsrRoundingField = 0x6000;
inline constexpr unsigned mxcsrExceptionMasks = 0x1F80;
inline constexpr unsigned mxcsrDenormalsAreZero = 0x0040;
inline constexpr unsigned mxcsrMasks = 0x1f80;                        // of all exceptions
inline constexpr unsigned mxcsrControls = 0xffc0;                     // all but the sticky flags
inline constexpr unsigned x87RoundingField = mxcsrRoundingField >> 3; // with the same values

} // namespace tarn
