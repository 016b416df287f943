// The scale rule, for one element and for a vector, and the choice among the kernels that serve it.
//
// A scaled function answers with the exact result t times 2 to the power -s, rounded to the nearest integer, ties to
// the even one, saturated at the bounds of the destination. With q = floor(t / 2^s) the rounding is
//     (t + 2^(s-1) - 1 + (q & 1)) >> s.
#pragma once

#include "frame/simd.h"

namespace tarn {

// -- Rounding shifts -------------------------------------------------------------------------------------------------

// t / 2^s for s of 1 and more, rounded. t is an integer, or a vector of them, with room for adding 2^(s-1).
template <typename X>
TARN_INLINE X shiftRounded(X t, int s)
{
    using T = Element<X>;
    const auto half = splat<X>(static_cast<T>((Tarn64s{1} << (s - 1)) - 1));
    const auto oddQuotient = bitAnd(shiftRight(t, s), splat<X>(T{1}));
    return shiftRight(add(add(t, half), oddQuotient), s);
}

template <typename X>
TARN_INLINE X halveRounded(X t)
{
    return shiftRounded(t, 1);
}

// A 33-bit integer, or a vector of them, as a sum or difference of 32-bit ones needs it: floor(t / 2), and t modulo
// 2^32. Of 64-bit ones, a 65-bit integer, and of 16-bit ones one of 17 bits.
template <typename X>
struct Wide33 {
    X half;
    X wrapped;
};

template <typename X>
TARN_INLINE Wide33<X> exactSum(X a, X b)
{
    return {add(bitAnd(a, b), shiftRight(bitXor(a, b), 1)), add(a, b)};
}

// a minus b.
template <typename X>
TARN_INLINE Wide33<X> exactDifference(X a, X b)
{
    return {sub(shiftRight(bitXor(a, b), 1), bitAndNot(a, b)), sub(a, b)};
}

// One step down needs no more than the parity: a tie goes up from an odd half. From the very highest half, which only a
// difference reaches, it would leave 32 bits, and stays.
template <typename X>
TARN_INLINE X halveRounded(Wide33<X> t)
{
    const auto tieFromOdd = bitAnd(bitAnd(t.wrapped, t.half), splat<X>(1));
    if constexpr (sizeof(Element<X>) == 2) {
        return addSaturated(t.half, tieFromOdd);
    } else {
        const auto rounded = add(t.half, tieFromOdd);
        const auto leftRange =
            shiftRightLogical(bitAndNot(t.half, rounded), 8 * static_cast<int>(sizeof(Element<X>)) - 1);
        return sub(rounded, leftRange);
    }
}

// s of 2 and more. The rounding is done on the two lowest bits of t, so that nothing leaves 32 bits on the way.
template <typename X>
TARN_INLINE X shiftRounded(Wide33<X> t, int s)
{
    const auto half = splat<X>(static_cast<Element<X>>((1ull << (s - 1)) - 1));
    const auto oddQuotient = bitAnd(shiftRight(t.half, s - 1), splat<X>(1));
    const auto low = add(add(bitAnd(t.wrapped, splat<X>(3)), half), oddQuotient);
    return shiftRight(add(shiftRight(t.half, 1), shiftRightLogical(low, 2)), s - 2);
}

// -- The five cases of one operation ---------------------------------------------------------------------------------
//
// An operation on T offers two members, for elements and packs alike:
//     saturated(a, b)  the result limited to T, the answer at a scale of 0;
//     exact(a, b)      the exact result, an integer wide enough for shiftRounded, or a Wide33.
// Whatever lies beyond the bounds of T stays there under a left shift, and saturation keeps the sign and zero: so the
// growing and the bound case start from the saturated result.

template <typename Operation>
struct Saturated {
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return Operation::saturated(a, b);
    }
};

template <typename Operation>
struct Halved {
    static constexpr int stepsAtOnce = 2;
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return narrowSaturated<Element<X>>(halveRounded(Operation::exact(a, b)));
    }
};

template <typename Operation>
struct ShiftedDown {
    int s;
    static constexpr int stepsAtOnce = 2;
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return narrowSaturated<Element<X>>(shiftRounded(Operation::exact(a, b), s));
    }
};

template <typename Operation>
struct ShiftedUp {
    int n;
    static constexpr int stepsAtOnce = 2;
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return shiftLeftSaturated(Operation::saturated(a, b), n);
    }
};

// The bound on the side of a result's sign, 0 for 0.
template <typename X>
TARN_INLINE X signBound(X x)
{
    using T = Element<X>;
    const auto zero = splat<X>(T{0});
    const auto positive = select(greater(x, zero), splat<X>(highest<T>), zero);
    if constexpr (std::is_unsigned_v<T>) {
        return positive;
    } else {
        return select(less(x, zero), splat<X>(lowest<T>), positive);
    }
}

template <typename Operation>
struct Bound {
    static constexpr int stepsAtOnce = 2;
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return signBound(Operation::saturated(a, b));
    }
};

// The five of them together; the second form is for complex elements, where an operation acts on each part.
template <typename Operation>
struct Cases {
    using Plain = Saturated<Operation>;
    using One = Halved<Operation>;
    using Pos = ShiftedDown<Operation>;
    using Neg = ShiftedUp<Operation>;
    using Sign = Bound<Operation>;
};
template <typename Operation>
struct CasesPerPart {
    using Plain = PerPart<Saturated<Operation>>;
    using One = PerPart<Halved<Operation>>;
    using Pos = PerPart<ShiftedDown<Operation>>;
    using Neg = PerPart<ShiftedUp<Operation>>;
    using Sign = PerPart<Bound<Operation>>;
};

// -- The choice among the kernels -------------------------------------------------------------------------------------

// Where the rule becomes trivial: above `down` even the largest result rounds to 0, and below -`up` every result but 0
// saturates.
struct ScaleLimits {
    int down;
    int up;
};

// The five kernels of a scaled function, and its limits. Args are the kernels' arguments without the scale.
template <typename... Args>
struct ScaledKernels {
    ScaleLimits limits;
    void (*plain)(Args...);
    void (*one)(Args...);
    void (*pos)(Args..., int);
    void (*neg)(Args..., int);
    void (*bound)(Args...);

    // Runs the kernel for a scale factor of at most limits.down.
    void run(int scaleFactor, Args... args) const
    {
        if (scaleFactor == 0) {
            plain(args...);
        } else if (scaleFactor == 1) {
            one(args...);
        } else if (scaleFactor > 1) {
            pos(args..., scaleFactor);
        } else if (scaleFactor >= -limits.up) {
            neg(args..., -scaleFactor);
        } else {
            bound(args...);
        }
    }
};

// The kernels of the four shapes of frame/kernels.h.
template <typename T>
using VectorKernels = ScaledKernels<const T*, const T*, T*, int>;
template <typename T>
using VectorKernels_I = ScaledKernels<const T*, T*, int>;
template <typename T>
using ConstantKernels = ScaledKernels<const T*, T, T*, int>;
template <typename T>
using ConstantKernels_I = ScaledKernels<T, T*, int>;

} // namespace tarn
