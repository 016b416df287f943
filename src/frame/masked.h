// A guard for kernels among whose results infinities and NaN are ordinary ones.
#pragma once

#include "frame/rounding.h"

namespace tarn {

// A caller who has floating-point exceptions trapped means his own arithmetic, not ours. No flag is left behind either.
class MaskedExceptions : KeptControl {
public:
    MaskedExceptions() { writeMxcsr(saved | allMasks); }

private:
    static constexpr unsigned allMasks = 0x1F80;
};

} // namespace tarn
