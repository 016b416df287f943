// Roots in the extended format, and what leads from integers of 64 bits to it and back.
#pragma once

#include "frame/simd_control.h"
#include "frame/simd_extended.h"

#include <limits>

namespace tarn {

inline Extended squareRootExtended(Extended x)
{
    asm("fsqrt" : "+t"(x));
    return x;
}

// In the rounding mode of the x87 unit, saturated. The conversion has the lowest integer for whatever does not fit.
inline Tarn64s roundExtendedSaturated(Extended x)
{
    constexpr Extended beyond = 0x1p63L;
    Tarn64s rounded;
    asm("fistpll %0" : "=m"(rounded) : "t"(x) : "st");
    return x >= beyond ? std::numeric_limits<Tarn64s>::max() : rounded;
}

// Has the x87 unit round to nearest, ties to even, and gives the caller's mode back.
class NearestExtended {
public:
    NearestExtended() : saved(readX87Control())
    {
        if ((saved & x87RoundingField) != 0) {
            writeX87Control(saved & ~x87RoundingField);
        }
    }
    ~NearestExtended()
    {
        if ((saved & x87RoundingField) != 0) {
            writeX87Control(saved);
        }
    }
    NearestExtended(const NearestExtended&) = delete;
    NearestExtended& operator=(const NearestExtended&) = delete;

private:
    const unsigned saved;
};

} // namespace tarn
