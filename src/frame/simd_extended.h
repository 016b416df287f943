// The extended format of 64 significant bits, in which some results are defined: what plain C++ does not say.
#pragma once

#include "tarncore.h"

namespace tarn {

using Extended = long double;

// ln 2 as the processor has it.
inline Extended naturalLogOfTwo()
{
    Extended x;
    asm("fldln2" : "=t"(x));
    return x;
}

// ln x by the processor's own instruction, ln 2 times the binary logarithm: -infinity for 0, NaN below it.
inline Extended naturalLog(Extended x)
{
    Extended log;
    asm("fyl2x" : "=t"(log) : "0"(x), "u"(naturalLogOfTwo()) : "st(1)");
    return log;
}

// e^x for finite x, by the processor's instructions for powers of two.
inline Extended naturalExponential(Extended x)
{
    Extended power;
    Extended whole;
    asm("fldl2e\n\t"
        "fmulp\n\t"
        "fld %%st(0)\n\t"
        "frndint\n\t"
        "fsubr %%st(0), %%st(1)\n\t"
        "fxch\n\t"
        "f2xm1\n\t"
        "fld1\n\t"
        "faddp\n\t"
        "fscale"
        : "=t"(power), "=u"(whole)
        : "0"(x));
    return power;
}

} // namespace tarn
