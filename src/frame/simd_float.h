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

// Stamps an operation that is one instruction: the element, then the two register types.
#define TARN_FLOAT_OPERATION(NAME, EXPRESSION, PS, PD)                                                         \
    struct NAME {                                                                                              \
        template <Float T>                                                                                     \
        static TARN_INLINE T of(T a, T b)                                                                      \
        {                                                                                                      \
            return EXPRESSION;                                                                                 \
        }                                                                                                      \
        static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {PS(a.v, b.v)}; } \
        static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {PD(a.v, b.v)}; } \
    }
TARN_FLOAT_OPERATION(AddFloat, a + b, _mm_add_ps, _mm_add_pd);
TARN_FLOAT_OPERATION(SubFloat, a - b, _mm_sub_ps, _mm_sub_pd);
TARN_FLOAT_OPERATION(Mul, a* b, _mm_mul_ps, _mm_mul_pd);
TARN_FLOAT_OPERATION(Div, a / b, _mm_div_ps, _mm_div_pd);
TARN_FLOAT_OPERATION(MinFloat, a < b ? a : b, _mm_min_ps, _mm_min_pd);
TARN_FLOAT_OPERATION(MaxFloat, a > b ? a : b, _mm_max_ps, _mm_max_pd);
#undef TARN_FLOAT_OPERATION

using Add = Overloads<AddInteger, AddFloat>;
inline constexpr Word<Add> add;
using Sub = Overloads<SubInteger, SubFloat>; // a minus b
inline constexpr Word<Sub> sub;
inline constexpr Word<Mul> mul;
inline constexpr Word<Div> div;

// The smaller or the larger, and b where the two are unordered or both zero.
using Min = Overloads<MinInteger, MinFloat>;
inline constexpr Word<Min> min;
using Max = Overloads<MaxInteger, MaxFloat>;
inline constexpr Word<Max> max;

// Stamps a float comparison: a bool for elements, a mask for registers. Unordered operands compare as IEEE says.
#define TARN_FLOAT_COMPARISON(NAME, OPERATOR, PS, PD)                                                          \
    struct NAME {                                                                                              \
        template <Float T>                                                                                     \
        static TARN_INLINE bool of(T a, T b)                                                                   \
        {                                                                                                      \
            return a OPERATOR b;                                                                               \
        }                                                                                                      \
        static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> a, Vector<Tarn32f> b) { return {PS(a.v, b.v)}; } \
        static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> a, Vector<Tarn64f> b) { return {PD(a.v, b.v)}; } \
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
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
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

struct SelectFloat {
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

// `yes` where the mask is set, `no` elsewhere.
using Select = Overloads<SelectInteger, SelectFloat>;
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

// True if all lanes of the mask are set.
struct AllOf {
    static TARN_INLINE bool of(bool mask) { return mask; }
    template <typename T, int N>
    static TARN_INLINE bool of(Pack<T, N> mask)
    {
        if constexpr (N > lanes<T>) {
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
    static TARN_INLINE Vector<Tarn32f> of(Vector<Tarn32f> x)
    {
        constexpr auto lowestNormal = std::numeric_limits<Tarn32f>::min();
        return {
            _mm_and_ps(_mm_cmpge_ps(x.v, _mm_set1_ps(lowestNormal)), _mm_cmple_ps(x.v, _mm_set1_ps(highest<Tarn32f>)))};
    }
    static TARN_INLINE Vector<Tarn64f> of(Vector<Tarn64f> x)
    {
        constexpr auto lowestNormal = std::numeric_limits<Tarn64f>::min();
        return {
            _mm_and_pd(_mm_cmpge_pd(x.v, _mm_set1_pd(lowestNormal)), _mm_cmple_pd(x.v, _mm_set1_pd(highest<Tarn64f>)))};
    }
};
inline constexpr Word<IsPositiveNormal> isPositiveNormal;

} // namespace tarn
