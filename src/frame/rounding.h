// Guards that hold the rounding mode of the SSE unit while a kernel runs and give the caller's own back.
#pragma once

#include "frame/simd_control.h"

namespace tarn {

// Takes note of the control word, and puts it back at the end of its scope. The whole word comes back, its sticky
// exception flags included: what a kernel computes with, floats on the way from integers to integers for instance, is
// no business of the caller's, and a word that is put back in some rounding modes and not in others would be a trap.
class KeptControl {
public:
    KeptControl() : saved(readMxcsr()) {}
    ~KeptControl() { writeMxcsr(saved); }
    KeptControl(const KeptControl&) = delete;
    KeptControl& operator=(const KeptControl&) = delete;

protected:
    const unsigned saved;
};

// Round to nearest, ties to even. `withNearest` are further bits that are cleared along with a foreign rounding mode; a
// caller who rounds to nearest anyway keeps them as they are.
template <unsigned withNearest>
class RoundingGuard : KeptControl {
public:
    RoundingGuard()
    {
        if ((saved & mxcsrRoundingField) != 0) {
            writeMxcsr(saved & ~(mxcsrRoundingField | withNearest));
        }
    }
};

// Round to nearest, denormals as they are, all exceptions masked: what the approximations are computed under, so that
// their bits depend on nothing that a caller has set.
class StandardArithmetic : KeptControl {
public:
    StandardArithmetic()
    {
        if ((saved & mxcsrControls) != mxcsrMasks) {
            writeMxcsr((saved & ~mxcsrControls) | mxcsrMasks);
        }
    }
};

// A caller who has floating-point exceptions trapped means his own arithmetic: where divisions by zero are among the
// results, say, no trap is sprung. No flag is left behind either.
class MaskedExceptions : KeptControl {
public:
    MaskedExceptions() { writeMxcsr(saved | mxcsrExceptionMasks); }
};

using NearestRounding = RoundingGuard<0>;
using NearestRoundingOfDenormals = RoundingGuard<mxcsrDenormalsAreZero>;

} // namespace tarn
