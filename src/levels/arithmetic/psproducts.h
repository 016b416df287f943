// The operations that the kernels of Mul, MulC and AddProduct share.
#pragma once

#include "frame/factor.h"
#include "frame/rounding.h"
#include "frame/scale_exact.h"
#include "frame/simd_mul.h"

namespace tarn {

// -- Exact products ---------------------------------------------------------------------------------------------------

// Rounding a product of words needs one bit less than they have together.
struct ExactProduct {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return mulWidened(a, b);
    }
};

// The same on the way to words.
struct ProductOfWords {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return InLanes{mulWidenedInLanes(a, b)};
    }
};

// Bytes, an unsigned word and a signed one, or 32 bits each: rounding may carry out of the top, or has no other form.
struct FullProduct {
    template <typename X, typename Y>
    TARN_INLINE auto operator()(X a, Y b) const
    {
        return FullWidth{mulWidened(a, b)};
    }
};

struct ComplexProduct {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return FullWidth{mulComplex(a, b)};
    }
};

// -- 32-bit products by way of doubles --------------------------------------------------------------------------------
//
// A double holds 53 bits of a product, and that is what these functions promise: the product is rounded to a double
// first, which can make it differ from the exact one above 2^53. Unscaled there is no difference, since what lies
// within the bounds of 32 bits is exact.

template <typename X>
TARN_INLINE X limitTo32s(X t)
{
    return max(min(t, splat<X>(Tarn64f{highest<Tarn32s>})), splat<X>(Tarn64f{lowest<Tarn32s>}));
}

// What an operation on doubles gives, as an integer. Operation::plain is the unscaled result.
template <typename Operation>
struct WholeOf {
    static constexpr int stepsAtOnce = 1;

    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        return truncateToInteger(limitTo32s(Operation::plain(convert<Tarn64f>(x)...)));
    }
};

// Operation::scaled has the factor applied where its rounding asks for it. Runs in the mode that rounds to nearest.
template <typename Operation>
struct ScaledWholeOf {
    Tarn64f factor;
    static constexpr int stepsAtOnce = 1;

    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        return roundToInteger(limitTo32s(Operation::scaled(factor, convert<Tarn64f>(x)...)));
    }
};

// The sign of the result, and zero, survive the limits.
template <typename Operation>
struct SignOfWhole {
    static constexpr int stepsAtOnce = 1;

    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        return signBound(WholeOf<Operation>{}(x...));
    }
};

template <typename Operation, typename... Args>
TARN_INLINE void applyScaledByDoubles(int scaleFactor, Args... args)
{
    const NearestRounding nearest;
    apply(ScaledWholeOf<Operation>{twoToMinus<Tarn64f>(scaleFactor)}, args...);
}

} // namespace tarn

// The kernels of a scaled operation on 32-bit integers that goes by way of doubles.
#define TARN_DEFINE_SCALED_KERNELS_BY_DOUBLES(NAME, SHAPE, OPERATION)                 \
    TARN_DEFINE_KERNEL(NAME, SHAPE, Tarn32s, tarn::WholeOf<OPERATION>{})              \
    void NAME##_1Sfs(TARN_##SHAPE##_PARAMETERS(Tarn32s))                              \
    {                                                                                 \
        tarn::applyScaledByDoubles<OPERATION>(1, TARN_##SHAPE##_ARGUMENTS);           \
    }                                                                                 \
    void NAME##_PosSfs(TARN_##SHAPE##_PARAMETERS(Tarn32s), int scaleFactor)           \
    {                                                                                 \
        tarn::applyScaledByDoubles<OPERATION>(scaleFactor, TARN_##SHAPE##_ARGUMENTS); \
    }                                                                                 \
    void NAME##_NegSfs(TARN_##SHAPE##_PARAMETERS(Tarn32s), int shift)                 \
    {                                                                                 \
        tarn::applyScaledByDoubles<OPERATION>(-shift, TARN_##SHAPE##_ARGUMENTS);      \
    }
