// Floating-point words, and the words that integers and floats share under one name.
#pragma once

#include "frame/simd_int.h"

#include <cmath>

namespace tarn {

template <typename T>
concept Float = std::is_floating_point_v<T>;

// Stamps the element overload and the two register overloads of an operation that is one instruction.
#define TARN_FLOAT_WORD(NAME, EXPRESSION, PS, PD)                                                          \
    template <Float T>                                                                                     \
    static TARN_INLINE T of(T a, T b)                                                                      \
    {                                                                                                      \
        return EXPRESSION;                                                                                 \
    }                                                                                                      \
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {PS(a.v, b.v)}; } \
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {PD(a.v, b.v)}; }

struct Add : AddInteger {
    using AddInteger::of;
    TARN_FLOAT_WORD(add, a + b, _mm_add_ps, _mm_add_pd)
};
inline constexpr Word<Add> add;

// a minus b.
struct Sub : SubInteger {
    using SubInteger::of;
    TARN_FLOAT_WORD(sub, a - b, _mm_sub_ps, _mm_sub_pd)
};
inline constexpr Word<Sub> sub;

struct Mul {
    TARN_FLOAT_WORD(mul, a* b, _mm_mul_ps, _mm_mul_pd)
};
inline constexpr Word<Mul> mul;

struct Div {
    TARN_FLOAT_WORD(div, a / b, _mm_div_ps, _mm_div_pd)
};
inline constexpr Word<Div> div;

// The smaller, and b where the two are unordered or both zero.
struct Min : MinInteger {
    using MinInteger::of;
    TARN_FLOAT_WORD(min, a < b ? a : b, _mm_min_ps, _mm_min_pd)
};
inline constexpr Word<Min> min;

// The larger, and b where the two are unordered or both zero.
struct Max : MaxInteger {
    using MaxInteger::of;
    TARN_FLOAT_WORD(max, a > b ? a : b, _mm_max_ps, _mm_max_pd)
};
inline constexpr Word<Max> max;

#undef TARN_FLOAT_WORD

// Stamps a float comparison: a bool for elements, a mask for registers. Unordered operands compare as IEEE says.
#define TARN_FLOAT_COMPARISON(OPERATOR, PS, PD)                                                            \
    template <Float T>                                                                                     \
    static TARN_INLINE bool of(T a, T b)                                                                   \
    {                                                                                                      \
        return a OPERATOR b;                                                                               \
    }                                                                                                      \
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {PS(a.v, b.v)}; } \
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {PD(a.v, b.v)}; }

struct Greater : GreaterInteger {
    using GreaterInteger::of;
    TARN_FLOAT_COMPARISON(>, _mm_cmpgt_ps, _mm_cmpgt_pd)
};
inline constexpr Word<Greater> greater;

struct Less {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a < b;
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        return GreaterInteger::of(b, a);
    }
    TARN_FLOAT_COMPARISON(<, _mm_cmplt_ps, _mm_cmplt_pd)
};
inline constexpr Word<Less> less;

struct Equal : EqualInteger {
    using EqualInteger::of;
    TARN_FLOAT_COMPARISON(==, _mm_cmpeq_ps, _mm_cmpeq_pd)
};
inline constexpr Word<Equal> equal;

#undef TARN_FLOAT_COMPARISON

// `yes` where the mask is set, `no` elsewhere.
struct Select : SelectInteger {
    using SelectInteger::of;
    template <Float T>
    static TARN_INLINE T of(bool mask, T yes, T no)
    {
        return mask ? yes : no;
    }
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> mask, Vector<Tarn32f> yes, Vector<Tarn32f> no)
    {
        return {_mm_or_ps(_mm_and_ps(mask.v, yes.v), _mm_andnot_ps(mask.v, no.v))};
    }
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> mask, Vector<Tarn64f> yes, Vector<Tarn64f> no)
    {
        return {_mm_or_pd(_mm_and_pd(mask.v, yes.v), _mm_andnot_pd(mask.v, no.v))};
    }
};
inline constexpr Word<Select> select;

// True if any lane of the mask is set.
struct AnyOf {
    static TARN_INLINE bool of(bool mask) { return mask; }
    template <typename T, int N>
    static TARN_INLINE bool of(Pack<T, N> mask)
    {
        if constexpr (N > lanes<T>) {
            return of(mask.lo) || of(mask.hi);
        } else {
            return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask.v)) != 0;
        }
    }
};
inline constexpr Word<AnyOf> anyOf;

} // namespace tarn
