// The scale rule for operations that form their exact result in every case: a chain of the operation and one of five
// steps down to the destination's type.
#pragma once

#include "frame/kernels.h"
#include "frame/simd_mul.h"

namespace tarn {

// An exact result that uses every bit of its lanes, so that nothing can be added to it.
template <typename X>
struct FullWidth {
    X value;
};
template <typename X>
FullWidth(X) -> FullWidth<X>;

// Rounding to even is the same on either side of zero, and a magnitude has the room that its sign leaves. There is no
// arithmetic shift of 64-bit lanes either.
template <int N>
TARN_INLINE Pack<Tarn64s, N> shiftRounded(FullWidth<Pack<Tarn64s, N>> t, int s)
{
    using X = Pack<Tarn64s, N>;
    const auto signs = signsOf64s(t.value);
    const auto magnitude = sub(bitXor(t.value, signs), signs);
    const auto half = splat<X>((Tarn64s{1} << (s - 1)) - 1);
    const auto oddQuotient = bitAnd(shiftRightLogical(magnitude, s), splat<X>(1));
    const auto rounded = shiftRightLogical(add(add(magnitude, half), oddQuotient), s);
    return sub(bitXor(rounded, signs), signs);
}

// The mean of two operands, rounded down, has no more bits than they have; it is one step of the shift.
template <typename X>
TARN_INLINE X shiftRounded(FullWidth<X> t, int s)
{
    using T = Element<X>;
    const auto half = splat<X>(static_cast<T>((Tarn64s{1} << (s - 1)) - 1));
    const auto oddQuotient = bitAnd(shiftRight(t.value, s), splat<X>(T{1}));
    const auto increment = add(half, oddQuotient);
    const auto mean = add(bitAnd(t.value, increment), shiftRight(bitXor(t.value, increment), 1));
    return shiftRight(mean, s - 1);
}

template <typename X>
TARN_INLINE X halveRounded(FullWidth<X> t)
{
    return shiftRounded(t, 1);
}

// An exact result whose lanes stand in an order of their own, till they are narrowed.
template <typename X>
struct InLanes {
    X value;
};
template <typename X>
InLanes(X) -> InLanes<X>;

template <typename X>
TARN_INLINE InLanes<X> shiftRounded(InLanes<X> t, int s)
{
    return {shiftRounded(t.value, s)};
}
template <typename X>
TARN_INLINE InLanes<X> halveRounded(InLanes<X> t)
{
    return {halveRounded(t.value)};
}

// -- An exact result limited to the bounds of D -----------------------------------------------------------------------

template <typename D, typename X>
TARN_INLINE auto limitTo(X t)
{
    if constexpr (std::is_same_v<Element<X>, D>) {
        return t;
    } else if constexpr (std::is_same_v<Element<X>, Tarn64s>) {
        static_assert(std::is_same_v<D, Tarn32s>);
        return narrowSaturated<Tarn32s>(t);
    } else {
        return narrowSaturated<D>(t);
    }
}

// The narrowing of vectors takes 16 bits for signed ones, so what is above the bound leaves before.
template <typename D, typename X>
TARN_INLINE auto limitTo(FullWidth<X> t)
{
    if constexpr (std::is_same_v<Element<X>, Tarn16u>) {
        const auto excess = subSaturated(t.value, splat<X>(highest<D>));
        return narrowSaturated<D>(sub(t.value, excess));
    } else {
        return limitTo<D>(t.value);
    }
}

template <typename D, typename X>
TARN_INLINE auto limitTo(InLanes<X> t)
{
    static_assert(std::is_same_v<D, Tarn16s>);
    return narrowSaturatedInLanes(t.value);
}

// A 33-bit integer fits 32 bits where its upper ones agree.
template <typename D, typename X>
TARN_INLINE X limitTo(Wide33<X> t)
{
    static_assert(std::is_same_v<D, Element<X>>);
    constexpr int sign = 8 * static_cast<int>(sizeof(D)) - 1;
    return select(equal(shiftRight(t.half, sign), shiftRight(t.wrapped, sign)), t.wrapped, boundOfSign(t.half));
}

// -- Complex results part by part -------------------------------------------------------------------------------------

// The step carried out on `re` and `im` alike, D being the complex type that comes out.
template <typename D, typename X, typename Step>
TARN_INLINE auto eachPart(FullWidth<X> t, Step step)
{
    using P = Part<Element<X>>;
    if constexpr (isPack<X>) {
        return reinterpretPack<D>(step(FullWidth{reinterpretPack<P>(t.value)}));
    } else {
        return D{step(FullWidth{t.value.re}), step(FullWidth{t.value.im})};
    }
}
template <typename D, typename X, typename Step>
TARN_INLINE auto eachPart(X t, Step step)
{
    using P = Part<Element<X>>;
    if constexpr (isPack<X>) {
        return reinterpretPack<D>(step(reinterpretPack<P>(t)));
    } else {
        return D{step(t.re), step(t.im)};
    }
}

template <typename D, typename Step, typename X>
TARN_INLINE auto finish(Step step, X t)
{
    if constexpr (isComplex<D>) {
        return eachPart<D>(t, step);
    } else {
        return step(t);
    }
}

// -- The five steps; D is a real type ---------------------------------------------------------------------------------

template <typename D>
struct LimitStep {
    template <typename X>
    TARN_INLINE auto operator()(X t) const
    {
        return limitTo<D>(t);
    }
};

template <typename D>
struct HalveStep {
    template <typename X>
    TARN_INLINE auto operator()(X t) const
    {
        return limitTo<D>(halveRounded(t));
    }
};

template <typename D>
struct ShiftDownStep {
    int s;
    template <typename X>
    TARN_INLINE auto operator()(X t) const
    {
        return limitTo<D>(shiftRounded(t, s));
    }
};

template <typename D>
struct ShiftUpStep {
    int n;
    template <typename X>
    TARN_INLINE auto operator()(X t) const
    {
        return shiftLeftSaturated(limitTo<D>(t), n);
    }
};

template <typename D>
struct SignStep {
    template <typename X>
    TARN_INLINE auto operator()(X t) const
    {
        return signBound(limitTo<D>(t));
    }
};

// -- The five kernels' operations -------------------------------------------------------------------------------------

// An operation followed by a step. The step comes first, since its count is what differs from call to call.
template <typename D, typename Operation, typename Step>
struct Chain {
    static constexpr int stepsAtOnce = std::is_same_v<Step, LimitStep<Part<D>>> ? 4 : 2;
    Step step{};
    Operation operation{};

    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        return finish<D>(step, operation(x...));
    }
};

// The cases of an operation that answers with its exact result: an integer wide enough for shiftRounded, a FullWidth,
// an InLanes or a Wide33, of elements or packs. D is the destination's type, which may be complex.
template <typename D, typename Operation>
struct ExactCases {
    using Plain = Chain<D, Operation, LimitStep<Part<D>>>;
    using One = Chain<D, Operation, HalveStep<Part<D>>>;
    using Pos = Chain<D, Operation, ShiftDownStep<Part<D>>>;
    using Neg = Chain<D, Operation, ShiftUpStep<Part<D>>>;
    using Sign = Chain<D, Operation, SignStep<Part<D>>>;
};

} // namespace tarn
