// Integer words: arithmetic, saturation, logic, shifts, comparison. Each for an element and for a register.
#pragma once

#include "frame/simd_pack.h"

#include <algorithm>
#include <limits>

namespace tarn {

template <typename T>
inline constexpr T lowest = std::numeric_limits<T>::lowest();
template <typename T>
inline constexpr T highest = std::numeric_limits<T>::max();

template <typename T>
concept Integer = std::is_integral_v<T>;

template <typename T>
using Unsigned = std::make_unsigned_t<T>;

// The wide value limited to the bounds of T.
template <Integer T, Integer W>
TARN_INLINE T clampTo(W x)
{
    return static_cast<T>(x < W{lowest<T>} ? W{lowest<T>} : x > W{highest<T>} ? W{highest<T>} : x);
}

// -- Bits ----------------------------------------------------------------------------------------------------------

struct BitAnd {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(a & b);
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        return {_mm_and_si128(a.v, b.v)};
    }
};
inline constexpr Word<BitAnd> bitAnd;

struct BitOr {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(a | b);
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        return {_mm_or_si128(a.v, b.v)};
    }
};
inline constexpr Word<BitOr> bitOr;

struct BitXor {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(a ^ b);
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        return {_mm_xor_si128(a.v, b.v)};
    }
};
inline constexpr Word<BitXor> bitXor;

// b without the bits of a.
struct BitAndNot {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(~a & b);
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        return {_mm_andnot_si128(a.v, b.v)};
    }
};
inline constexpr Word<BitAndNot> bitAndNot;

// -- Shifts by a common count: a count of the width or more shifts every bit out, leaving zeros, or signs where the
// shift
// -- is arithmetic. Right shifts are arithmetic for signed elements and logical for unsigned ones.

struct ShiftLeft {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        constexpr int width = 8 * static_cast<int>(sizeof(T));
        return n < width ? static_cast<T>(static_cast<Tarn64s>(static_cast<unsigned long long>(x) << n)) : T{0};
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> x, int n)
    {
        const __m128i count = _mm_cvtsi32_si128(n);
        if constexpr (sizeof(T) == 2) {
            return {_mm_sll_epi16(x.v, count)};
        } else if constexpr (sizeof(T) == 4) {
            return {_mm_sll_epi32(x.v, count)};
        } else {
            static_assert(sizeof(T) == 8);
            return {_mm_sll_epi64(x.v, count)};
        }
    }
};
inline constexpr Word<ShiftLeft> shiftLeft;

struct ShiftRight {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        constexpr int width = 8 * static_cast<int>(sizeof(T));
        if constexpr (std::is_signed_v<T>) {
            return static_cast<T>(x >> std::min(n, width - 1));
        } else {
            return n < width ? static_cast<T>(x >> n) : T{0};
        }
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> x, int n)
    {
        const __m128i count = _mm_cvtsi32_si128(n);
        if constexpr (std::is_same_v<T, Tarn16s>) {
            return {_mm_sra_epi16(x.v, count)};
        } else if constexpr (std::is_same_v<T, Tarn16u>) {
            return {_mm_srl_epi16(x.v, count)};
        } else if constexpr (std::is_same_v<T, Tarn32s>) {
            return {_mm_sra_epi32(x.v, count)};
        } else {
            static_assert(std::is_unsigned_v<T>);
            return {sizeof(T) == 4 ? _mm_srl_epi32(x.v, count) : _mm_srl_epi64(x.v, count)};
        }
    }
};
inline constexpr Word<ShiftRight> shiftRight;

// Right shift that brings in zeros whatever the element's sign.
struct ShiftRightLogical {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        return static_cast<T>(ShiftRight::of(static_cast<Unsigned<T>>(x), n));
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> x, int n)
    {
        return {ShiftRight::of(Vector<Unsigned<T>>{x.v}, n).v};
    }
};
inline constexpr Word<ShiftRightLogical> shiftRightLogical;

// -- Arithmetic modulo the element's width ---------------------------------------------------------------------------

struct AddInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(static_cast<Unsigned<T>>(a) + static_cast<Unsigned<T>>(b));
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (sizeof(T) == 1) {
            return {_mm_add_epi8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {_mm_add_epi16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {_mm_add_epi32(a.v, b.v)};
        } else {
            return {_mm_add_epi64(a.v, b.v)};
        }
    }
};

struct SubInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(static_cast<Unsigned<T>>(a) - static_cast<Unsigned<T>>(b));
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (sizeof(T) == 1) {
            return {_mm_sub_epi8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {_mm_sub_epi16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {_mm_sub_epi32(a.v, b.v)};
        } else {
            return {_mm_sub_epi64(a.v, b.v)};
        }
    }
};

// -- Comparison and choice. A mask is a bool for an element, all ones or zeros in each lane for a register. -----------

struct GreaterInteger {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a > b;
    }
    static TARN_INLINE Vector<Tarn8s> of(Vector<Tarn8s> a, Vector<Tarn8s> b) { return {_mm_cmpgt_epi8(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn16s> of(Vector<Tarn16s> a, Vector<Tarn16s> b) { return {_mm_cmpgt_epi16(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32s> a, Vector<Tarn32s> b) { return {_mm_cmpgt_epi32(a.v, b.v)}; }
    // The instructions compare signed lanes: moving both operands by half the range keeps the order.
    template <Integer T>
        requires std::is_unsigned_v<T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        using S = std::make_signed_t<T>;
        const auto middle = splat<Vector<S>>(lowest<S>);
        const Vector<S> aMoved{_mm_xor_si128(a.v, middle.v)};
        const Vector<S> bMoved{_mm_xor_si128(b.v, middle.v)};
        return {of(aMoved, bMoved).v};
    }
};

struct EqualInteger {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a == b;
    }
    template <Integer T>
        requires(sizeof(T) < 8)
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (sizeof(T) == 1) {
            return {_mm_cmpeq_epi8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {_mm_cmpeq_epi16(a.v, b.v)};
        } else {
            return {_mm_cmpeq_epi32(a.v, b.v)};
        }
    }
};

struct SelectInteger {
    template <Integer T>
    static TARN_INLINE T of(bool mask, T yes, T no)
    {
        return mask ? yes : no;
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> mask, Vector<T> yes, Vector<T> no)
    {
        return {_mm_or_si128(_mm_and_si128(mask.v, yes.v), _mm_andnot_si128(mask.v, no.v))};
    }
};

struct MinInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return a < b ? a : b;
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (std::is_same_v<T, Tarn8u>) {
            return {_mm_min_epu8(a.v, b.v)};
        } else if constexpr (std::is_same_v<T, Tarn16s>) {
            return {_mm_min_epi16(a.v, b.v)};
        } else {
            return SelectInteger::of(GreaterInteger::of(a, b), b, a);
        }
    }
};

struct MaxInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return a > b ? a : b;
    }
    template <Integer T>
    static TARN_INLINE Vector<T> of(Vector<T> a, Vector<T> b)
    {
        if constexpr (std::is_same_v<T, Tarn8u>) {
            return {_mm_max_epu8(a.v, b.v)};
        } else if constexpr (std::is_same_v<T, Tarn16s>) {
            return {_mm_max_epi16(a.v, b.v)};
        } else {
            return SelectInteger::of(GreaterInteger::of(a, b), a, b);
        }
    }
};

// -- Saturating arithmetic -------------------------------------------------------------------------------------------

struct AddSaturated {
    template <Integer T>
        requires(sizeof(T) <= 4)
    static TARN_INLINE T of(T a, T b)
    {
        using W = std::conditional_t<sizeof(T) == 4, Tarn64s, Tarn32s>;
        return clampTo<T>(static_cast<W>(W{a} + W{b}));
    }
    static TARN_INLINE Vector<Tarn8u> of(Vector<Tarn8u> a, Vector<Tarn8u> b) { return {_mm_adds_epu8(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn16u> of(Vector<Tarn16u> a, Vector<Tarn16u> b) { return {_mm_adds_epu16(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn16s> of(Vector<Tarn16s> a, Vector<Tarn16s> b) { return {_mm_adds_epi16(a.v, b.v)}; }
    // Carry out of the top: the wrapped sum is below an operand.
    static TARN_INLINE Vector<Tarn32u> of(Vector<Tarn32u> a, Vector<Tarn32u> b)
    {
        const auto sum = AddInteger::of(a, b);
        return BitOr::of(sum, GreaterInteger::of(a, sum));
    }
    // The sum wrapped where both operands have the sign that it lacks; the bound has their sign.
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32s> a, Vector<Tarn32s> b)
    {
        const auto sum = AddInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAndNot::of(BitXor::of(a, b), BitXor::of(a, sum)), 31);
        const auto bound = BitXor::of(ShiftRight::of(a, 31), splat<Vector<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(wrapped, bound, sum);
    }
};
inline constexpr Word<AddSaturated> addSaturated;

// a minus b.
struct SubSaturated {
    template <Integer T>
        requires(sizeof(T) <= 4)
    static TARN_INLINE T of(T a, T b)
    {
        using W = std::conditional_t<sizeof(T) == 4, Tarn64s, Tarn32s>;
        return clampTo<T>(static_cast<W>(W{a} - W{b}));
    }
    static TARN_INLINE Vector<Tarn8u> of(Vector<Tarn8u> a, Vector<Tarn8u> b) { return {_mm_subs_epu8(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn16u> of(Vector<Tarn16u> a, Vector<Tarn16u> b) { return {_mm_subs_epu16(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn16s> of(Vector<Tarn16s> a, Vector<Tarn16s> b) { return {_mm_subs_epi16(a.v, b.v)}; }
    static TARN_INLINE Vector<Tarn32s> of(Vector<Tarn32s> a, Vector<Tarn32s> b)
    {
        const auto difference = SubInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAnd::of(BitXor::of(a, b), BitXor::of(a, difference)), 31);
        const auto bound = BitXor::of(ShiftRight::of(a, 31), splat<Vector<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(wrapped, bound, difference);
    }
};
inline constexpr Word<SubSaturated> subSaturated;

} // namespace tarn
