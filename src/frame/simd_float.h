// Floating-point words, and the words that integers and floats share under one name.
#pragma once

#include "frame/simd_int.h"

#include <cmath>

namespace tarn {

template <typename T>
concept Float = std::is_floating_point_v<T>;

// One word from parts that each serve some of the types.
template <typename... Parts>
struct Overloads : Parts... {
    using Parts::of...;
};

// An operation on parts, applied to complex elements.
template <typename Operation>
struct OnParts {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T a, T b) { return {Operation::of(a.re, b.re), Operation::of(a.im, b.im)}; }
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
    {
        return reinterpretPack<T>(Operation::of(reinterpretPack<Part<T>>(a), reinterpretPack<Part<T>>(b)));
    }
};

// Stamps an operation that is one instruction: the element, then the two register types.
#define TARN_FLOAT_OPERATION(NAME, EXPRESSION, PS, PD)                                                               \
    struct NAME {                                                                                                    \
        template <Float T>                                                                                           \
        static TARN_INLINE T of(T a, T b)                                                                            \
        {                                                                                                            \
            return EXPRESSION;                                                                                       \
        }                                                                                                            \
        static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> a, Register<Tarn32f> b) { return {PS(a.v, b.v)}; } \
        static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> a, Register<Tarn64f> b) { return {PD(a.v, b.v)}; } \
    }
TARN_FLOAT_OPERATION(AddFloat, a + b, _mm_add_ps, _mm_add_pd);
TARN_FLOAT_OPERATION(SubFloat, a - b, _mm_sub_ps, _mm_sub_pd);
TARN_FLOAT_OPERATION(Mul, a* b, _mm_mul_ps, _mm_mul_pd);
TARN_FLOAT_OPERATION(Div, a / b, _mm_div_ps, _mm_div_pd);
TARN_FLOAT_OPERATION(MinFloat, a < b ? a : b, _mm_min_ps, _mm_min_pd);
TARN_FLOAT_OPERATION(MaxFloat, a > b ? a : b, _mm_max_ps, _mm_max_pd);
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

// Stamps a float comparison: a bool for elements, a mask for registers. Unordered operands compare as IEEE says.
#define TARN_FLOAT_COMPARISON(NAME, OPERATOR, PS, PD)                                                                \
    struct NAME {                                                                                                    \
        template <Float T>                                                                                           \
        static TARN_INLINE bool of(T a, T b)                                                                         \
        {                                                                                                            \
            return a OPERATOR b;                                                                                     \
        }                                                                                                            \
        static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> a, Register<Tarn32f> b) { return {PS(a.v, b.v)}; } \
        static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> a, Register<Tarn64f> b) { return {PD(a.v, b.v)}; } \
    }
TARN_FLOAT_COMPARISON(GreaterFloat, >, _mm_cmpgt_ps, _mm_cmpgt_pd);
TARN_FLOAT_COMPARISON(LessFloat, <, _mm_cmplt_ps, _mm_cmplt_pd);
TARN_FLOAT_COMPARISON(EqualFloat, ==, _mm_cmpeq_ps, _mm_cmpeq_pd);
#undef TARN_FLOAT_COMPARISON

struct LessInteger {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a < b;
    }
    template <Integer T>
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
struct NotLess {
    template <Float T>
    static TARN_INLINE bool of(T a, T b)
    {
        return !(a < b);
    }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> a, Register<Tarn32f> b)
    {
        return {_mm_cmpnlt_ps(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> a, Register<Tarn64f> b)
    {
        return {_mm_cmpnlt_pd(a.v, b.v)};
    }
};
inline constexpr Word<NotLess> notLess;

// True unless x is below or above y: where either is a NaN, too.
struct EqualOrUnordered {
    template <typename T>
        requires(!isPack<T>)
    static TARN_INLINE bool of(T x, T y) { return !(x < y || x > y); }
    template <Integer T>
    static TARN_INLINE Register<T> of(Register<T> x, Register<T> y)
    {
        return EqualInteger::of(x, y);
    }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x, Register<Tarn32f> y)
    {
        return {_mm_or_ps(_mm_cmpeq_ps(x.v, y.v), _mm_cmpunord_ps(x.v, y.v))};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> x, Register<Tarn64f> y)
    {
        return {_mm_or_pd(_mm_cmpeq_pd(x.v, y.v), _mm_cmpunord_pd(x.v, y.v))};
    }
};
inline constexpr Word<EqualOrUnordered> matchesUnordered;

struct SelectFloat {
    template <Float T>
    static TARN_INLINE T of(bool mask, T yes, T no)
    {
        return mask ? yes : no;
    }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> mask, Register<Tarn32f> yes, Register<Tarn32f> no)
    {
        return {_mm_or_ps(_mm_and_ps(mask.v, yes.v), _mm_andnot_ps(mask.v, no.v))};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> mask, Register<Tarn64f> yes, Register<Tarn64f> no)
    {
        return {_mm_or_pd(_mm_and_pd(mask.v, yes.v), _mm_andnot_pd(mask.v, no.v))};
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
        if constexpr (N > registerLanes<T>) {
            return of(mask.lo) || of(mask.hi);
        } else {
            return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask.v)) != 0;
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
        if constexpr (N > registerLanes<T>) {
            return of(mask.lo) && of(mask.hi);
        } else {
            return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask.v)) == 0xFFFF;
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
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x)
    {
        constexpr auto lowestNormal = std::numeric_limits<Tarn32f>::min();
        return {
            _mm_and_ps(_mm_cmpge_ps(x.v, _mm_set1_ps(lowestNormal)), _mm_cmple_ps(x.v, _mm_set1_ps(highest<Tarn32f>)))};
    }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> x)
    {
        constexpr auto lowestNormal = std::numeric_limits<Tarn64f>::min();
        return {
            _mm_and_pd(_mm_cmpge_pd(x.v, _mm_set1_pd(lowestNormal)), _mm_cmple_pd(x.v, _mm_set1_pd(highest<Tarn64f>)))};
    }
};
inline constexpr Word<IsPositiveNormal> isPositiveNormal;

// -- Signs ------------------------------------------------------------------------------------------------------------

// The bits of both, and those of b that a lacks; what sign bits are taken apart and put together with.
struct FloatBits {
    static TARN_INLINE Register<Tarn32f> both(Register<Tarn32f> a, Register<Tarn32f> b)
    {
        return {_mm_and_ps(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn64f> both(Register<Tarn64f> a, Register<Tarn64f> b)
    {
        return {_mm_and_pd(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn32f> rest(Register<Tarn32f> a, Register<Tarn32f> b)
    {
        return {_mm_andnot_ps(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn64f> rest(Register<Tarn64f> a, Register<Tarn64f> b)
    {
        return {_mm_andnot_pd(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn32f> either(Register<Tarn32f> a, Register<Tarn32f> b)
    {
        return {_mm_or_ps(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn64f> either(Register<Tarn64f> a, Register<Tarn64f> b)
    {
        return {_mm_or_pd(a.v, b.v)};
    }
};

// x without its sign.
struct Absolute {
    template <Float T>
    static TARN_INLINE T of(T x)
    {
        return std::fabs(x);
    }
    template <Float T>
    static TARN_INLINE Register<T> of(Register<T> x)
    {
        return FloatBits::rest(splat<Register<T>>(-T{0}), x);
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
    template <Float T>
    static TARN_INLINE Register<T> of(Register<T> x, Register<T> sign)
    {
        const auto signBit = splat<Register<T>>(-T{0});
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
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x) { return {_mm_xor_ps(x.v, _mm_set1_ps(-0.0F))}; }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> x) { return {_mm_xor_pd(x.v, _mm_set1_pd(-0.0))}; }
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
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x) { return {_mm_sqrt_ps(x.v)}; }
    static TARN_INLINE Register<Tarn64f> of(Register<Tarn64f> x) { return {_mm_sqrt_pd(x.v)}; }
};
inline constexpr Word<SquareRoot> squareRoot;

// 1 / x with an error of at most 1.5 * 2^-12 of the result, +-infinity for +-0, +-0 for what would be denormal, and
// denormals taken as zeros. The bits are the processor's own.
struct ApproxReciprocal {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x) { return {_mm_rcp_ps(x.v)}; }
};
inline constexpr Word<ApproxReciprocal> approxReciprocal;

// 1 / sqrt(x) to the same accuracy; NaN below zero.
struct ApproxReciprocalRoot {
    static TARN_INLINE Tarn32f of(Tarn32f x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }
    static TARN_INLINE Register<Tarn32f> of(Register<Tarn32f> x) { return {_mm_rsqrt_ps(x.v)}; }
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
