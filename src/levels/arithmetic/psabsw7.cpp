// Kernels of absolute values.
#include "levels/arithmetic/psabs.h"

#include "frame/scale_choice.h"
#include "frame/simd.h"

namespace tarn {
namespace {

struct AbsoluteWord {
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return max(x, subSaturated(splat<X>(0), x));
    }
};

// The lowest integer is its own negative: as the only result below zero it goes down by one, which wraps to the
// highest.
struct Absolute_32s {
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        const auto sign = shiftRight(x, 31);
        const auto wrapped = sub(bitXor(x, sign), sign);
        return add(wrapped, shiftRight(wrapped, 31));
    }
};

} // namespace
} // namespace tarn

using namespace tarn;

void owntarnsAbs_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len) { applyUnary(AbsoluteWord{}, pSrc, pDst, len); }

void owntarnsAbs_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len) { applyUnary(Absolute_32s{}, pSrc, pDst, len); }

void owntarnsAbs_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len) { applyUnary(absolute, pSrc, pDst, len); }

void owntarnsAbs_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len) { applyUnary(absolute, pSrc, pDst, len); }
