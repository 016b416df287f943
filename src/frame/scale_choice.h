// The choice among the five cases of a scaled operation within one kernel, for families whose kernels take the scale
// factor as it comes.
#pragma once

#include "frame/scale_exact.h"

namespace tarn {

// Calls run with the operation of Cases for a scale factor of at most limits.down; above it every result is 0.
template <typename Cases, typename Run>
TARN_INLINE void chooseCase(ScaleLimits limits, int scaleFactor, Run run)
{
    if (scaleFactor == 0) {
        run(typename Cases::Plain{});
    } else if (scaleFactor == 1) {
        run(typename Cases::One{});
    } else if (scaleFactor > 1) {
        run(typename Cases::Pos{scaleFactor});
    } else if (scaleFactor >= -limits.up) {
        run(typename Cases::Neg{-scaleFactor});
    } else {
        run(typename Cases::Sign{});
    }
}

// An operation on two operands that are one and the same.
template <typename Operation>
struct WithItself {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return Operation{}(x, x);
    }
};

// An operation on an array that needs no constant and no second operand.
template <typename Operation, typename S, typename D>
TARN_INLINE void applyUnary(Operation operation, const S* pSrc, D* pDst, int len)
{
    walk(pDst, len, operation, pSrc);
}

} // namespace tarn
