// Floating-point words, and the words that integers and floats share under one name.
#pragma once

#include "frame/simd_saturated.h"

#include <cmath>

namespace tarn {

template <typename T>
concept Float = std::is_floating_point_v<T>;

template <typename X>
concept FloatRegister = AnyRegister<X> && Float<Element<X>>;

// An operation on parts, applied to complex elements.
template <typename Operation>
struct OnParts {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T a, T b) { return {Operation::of(a.re, b.re), Operation::of(a.im, b.im)}; }
    template <AnyRegister R>
        requires isComplex<Element<R>>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        return reinterpretPack<T>(Operation::of(reinterpretPack<Part<T>>(a), reinterpretPack<Part<T>>(b)));
    }
};

// Stamps an operation that is one instruction: the element, then the registers. Comparisons give a bool for elements
// and a mask for registers; unordered operands compare as IEEE says.
#define TARN_FLOAT_OPERATION(NAME, EXPRESSION, INSTRUCTION) \
    struct NAME {                                           \
        template <Float T>                                  \
        static TARN_INLINE auto of(T a, T b)                \
        {                                                   \
            return EXPRESSION;                              \
        }                                                   \
        template <FloatRegister R>                          \
        static TARN_INLINE R of(R a, R b)                   \
        {                                                   \
            return {native::INSTRUCTION(a.v, b.v)};         \
        }                                                   \
    }
TARN_FLOAT_OPERATION(AddFloat, a + b, add);
TARN_FLOAT_OPERATION(SubFloat, a - b, sub);
TARN_FLOAT_OPERATION(Mul, a* b, mul);
TARN_FLOAT_OPERATION(Div, a / b, div);
TARN_FLOAT_OPERATION(MinFloat, a < b ? a : b, min);
TARN_FLOAT_OPERATION(MaxFloat, a > b ? a : b, max);
TARN_FLOAT_OPERATION(GreaterFloat, a > b, greater);
TARN_FLOAT_OPERATION(LessFloat, a < b, less);
TARN_FLOAT_OPERATION(EqualFloat, a == b, equal);
TARN_FLOAT_OPERATION(NotLess, !(a < b), notLess);
TARN_FLOAT_OPERATION(Unordered, a != a || b != b, unordered);
#undef TARN_FLOAT_OPERATION

using AddReal = Overloads<AddInteger, AddFloat>;
using Add = Overloads<AddReal, OnParts<AddReal>>;
inline constexpr Word<Add> add;
using SubReal = Overloads<SubInteger, SubFloat>;
using Sub = Overloads<SubReal, OnParts<SubReal>>; // a minus b
inline constexpr Word<Sub> sub;
inline constexpr Word<Mul> mul;
inline constexpr Word<Div> div;

// The smaller or the larger, and b where the two are unordered or both zero.
using Min = Overloads<MinInteger, MinFloat>;
inline constexpr Word<Min> min;
using Max = Overloads<MaxInteger, MaxFloat>;
inline constexpr Word<Max> max;

// The sum of coefficients[i] z^i, from the highest power down.
template <typename X, std::size_t count>
TARN_INLINE X polynomial(X z, const Element<X> (&coefficients)[count])
{
    X sum = splat<X>(coefficients[count - 1]);
    for (std::size_t i = count - 1; i-- > 0;) {
        sum = add(mul(sum, z), splat<X>(coefficients[i]));
    }
    return sum;
}

// -- Comparison and choice --------------------------------------------------------------------------------------------

struct LessInteger {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a < b;
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return GreaterInteger::of(b, a);
    }
};

using Greater = Overloads<GreaterInteger, GreaterFloat>;
inline constexpr Word<Greater> greater;
using Less = Overloads<LessInteger, LessFloat>;
inline constexpr Word<Less> less;
using Equal = Overloads<EqualInteger, EqualFloat>;
inline constexpr Word<Equal> equal;

// True where a is not below b: also where the two are unordered.
inline constexpr Word<NotLess> notLess;

// True where either is a NaN.
inline constexpr Word<Unordered> unordered;

// True unless x is below or above y: where either is a NaN, too.
struct EqualOrUnordered {
    template <typename T>
        requires(!isPack<T>)
    static TARN_INLINE bool of(T x, T y) { return !(x < y || x > y); }
    template <IntegerRegister R>
    static TARN_INLINE R of(R x, R y)
    {
        return EqualInteger::of(x, y);
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x, R y)
    {
        return {native::bitOr(native::equal(x.v, y.v), native::unordered(x.v, y.v))};
    }
};
inline constexpr Word<EqualOrUnordered> matchesUnordered;

struct SelectFloat {
    template <Float T>
    static TARN_INLINE T of(bool mask, T yes, T no)
    {
        return mask ? yes : no;
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R mask, R yes, R no)
    {
        return {native::select(mask.v, yes.v, no.v)};
    }
};

// Of complex elements by masks over whole elements; the bits of either, unchanged.
struct SelectComplex {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(bool mask, T yes, T no) { return mask ? yes : no; }
    template <typename M, int K, typename T, int N>
        requires isComplex<T>
    static TARN_INLINE Pack<T, N> of(Pack<M, K> mask, Pack<T, N> yes, Pack<T, N> no)
    {
        using P = Part<T>;
        constexpr Word<Overloads<SelectInteger, SelectFloat>> ofParts;
        return reinterpretPack<T>(ofParts(reinterpretPack<P>(mask), reinterpretPack<P>(yes), reinterpretPack<P>(no)));
    }
};

// `yes` where the mask is set, `no` elsewhere.
using Select = Overloads<SelectInteger, SelectFloat, SelectComplex>;
inline constexpr Word<Select> select;

// True if any lane of the mask is set.
struct AnyOf {
    static TARN_INLINE bool of(bool mask) { return mask; }
    template <typename T, int N>
    static TARN_INLINE bool of(Pack<T, N> mask)
    {
        if constexpr (AnyRegister<Pack<T, N>>) {
            return native::anySet(reinterpretPack<Tarn8u>(mask).v);
        } else {
            return of(mask.lo) || of(mask.hi);
        }
    }
};
inline constexpr Word<AnyOf> anyOf;

// True if all lanes of the mask are set.
struct AllOf {
    static TARN_INLINE bool of(bool mask) { return mask; }
    template <typename T, int N>
    static TARN_INLINE bool of(Pack<T, N> mask)
    {
        if constexpr (AnyRegister<Pack<T, N>>) {
            return native::allSet(reinterpretPack<Tarn8u>(mask).v);
        } else {
            return of(mask.lo) && of(mask.hi);
        }
    }
};
inline constexpr Word<AllOf> allOf;

// True for positive normal numbers: above 0, not denormal, not infinite, no NaN.
struct IsPositiveNormal {
    template <Float T>
    static TARN_INLINE bool of(T x)
    {
        return x >= std::numeric_limits<T>::min() && x <= highest<T>;
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x)
    {
        using T = Element<R>;
        return {native::bitAnd(native::notBelow(x.v, splat<R>(std::numeric_limits<T>::min()).v),
                               native::notAbove(x.v, splat<R>(highest<T>).v))};
    }
};
inline constexpr Word<IsPositiveNormal> isPositiveNormal;

// -- Signs ------------------------------------------------------------------------------------------------------------

// The bits of both, and those of b that a lacks; what sign bits are taken apart and put together with.
struct FloatBits {
    template <FloatRegister R>
    static TARN_INLINE R both(R a, R b)
    {
        return {native::bitAnd(a.v, b.v)};
    }
    template <FloatRegister R>
    static TARN_INLINE R rest(R a, R b)
    {
        return {native::bitAndNot(a.v, b.v)};
    }
    template <FloatRegister R>
    static TARN_INLINE R either(R a, R b)
    {
        return {native::bitOr(a.v, b.v)};
    }
};

// x without its sign.
struct Absolute {
    template <Float T>
    static TARN_INLINE T of(T x)
    {
        return std::fabs(x);
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x)
    {
        return FloatBits::rest(splat<R>(-Element<R>{0}), x);
    }
};
inline constexpr Word<Absolute> absolute;

// x with the sign of another value.
struct CopySign {
    template <Float T>
    static TARN_INLINE T of(T x, T sign)
    {
        return std::copysign(x, sign);
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x, R sign)
    {
        const auto signBit = splat<R>(-Element<R>{0});
        return FloatBits::either(FloatBits::rest(signBit, x), FloatBits::both(signBit, sign));
    }
};
inline constexpr Word<CopySign> copySign;

// The sign of every element inverted, that of a zero and of a NaN too.
struct InvertSigns {
    template <Float T>
    static TARN_INLINE T of(T x)
    {
        return -x;
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x)
    {
        return {native::bitXor(x.v, splat<R>(-Element<R>{0}).v)};
    }
};
inline constexpr Word<InvertSigns> invertSigns;

// -- Roots, and the hardware's approximations -------------------------------------------------------------------------

// Correctly rounded; NaN below zero.
struct SquareRoot {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }
    static TARN_INLINE Tarn64f of(Tarn64f x)
    {
        const __m128d both = _mm_set1_pd(x);
        return _mm_cvtsd_f64(_mm_sqrt_sd(both, both));
    }
    template <FloatRegister R>
    static TARN_INLINE R of(R x)
    {
        return {native::squareRoot(x.v)};
    }
};
inline constexpr Word<SquareRoot> squareRoot;

// 1 / x with an error of at most 1.5 * 2^-12 of the result, +-infinity for +-0, +-0 for what would be denormal, and
// denormals taken as zeros. The bits are the processor's own.
struct ApproxReciprocal {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
    template <RegisterOf<Tarn32f> R>
    static TARN_INLINE R of(R x)
    {
        return {native::approxReciprocal(x.v)};
    }
};
inline constexpr Word<ApproxReciprocal> approxReciprocal;

// 1 / sqrt(x) to the same accuracy; NaN below zero.
struct ApproxReciprocalRoot {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }
    template <RegisterOf<Tarn32f> R>
    static TARN_INLINE R of(R x)
    {
        return {native::approxReciprocalRoot(x.v)};
    }
};
inline constexpr Word<ApproxReciprocalRoot> approxReciprocalRoot;

// One Newton step, r (2 - x r): an estimate r of 1 / x with twice as many bits right, given the product x r, which
// callers also look at to see whether the estimate was of any use.
template <typename X>
TARN_INLINE X refineReciprocal(X estimate, X product)
{
    return mul(estimate, sub(splat<X>(2), product));
}

} // namespace tarn
