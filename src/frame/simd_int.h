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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> x, int n)
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
    static TARN_INLINE Register<T> of(Register<T> x, int n)
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
    static TARN_INLINE Register<T> of(Register<T> x, int n)
    {
        return {ShiftRight::of(Register<Unsigned<T>>{x.v}, n).v};
    }
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn64s> x, int n)
    {
        return {_mm_srl_epi64(x.v, _mm_cvtsi32_si128(n))};
    }
};
inline constexpr Word<ShiftRightLogical> shiftRightLogical;

// All ones where the element is negative, zeros elsewhere.
struct SignsOf64s {
    static TARN_INLINE Tarn64s of(Tarn64s x) { return x >> 63; }
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn64s> x)
    {
        return {_mm_srai_epi32(_mm_shuffle_epi32(x.v, 0xF5), 31)};
    }
};
inline constexpr Word<SignsOf64s> signsOf64s;

// -- Arithmetic modulo the element's width ---------------------------------------------------------------------------

struct AddInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(static_cast<Unsigned<T>>(a) + static_cast<Unsigned<T>>(b));
    }
    template <Integer T>
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<Tarn8s> of(Register<Tarn8s> a, Register<Tarn8s> b)
    {
        return {_mm_cmpgt_epi8(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn16s> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return {_mm_cmpgt_epi16(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn32s> a, Register<Tarn32s> b)
    {
        return {_mm_cmpgt_epi32(a.v, b.v)};
    }
    // The instructions compare signed lanes: moving both operands by half the range keeps the order.
    template <Integer T>
        requires std::is_unsigned_v<T>
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
    {
        using S = std::make_signed_t<T>;
        const auto middle = splat<Register<S>>(lowest<S>);
        const Register<S> aMoved{_mm_xor_si128(a.v, middle.v)};
        const Register<S> bMoved{_mm_xor_si128(b.v, middle.v)};
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> mask, Register<T> yes, Register<T> no)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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
    static TARN_INLINE Register<T> of(Register<T> a, Register<T> b)
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

// x where the mask is set, 0 elsewhere.
struct KeepWhere {
    template <Integer T>
    static TARN_INLINE T of(bool mask, T x)
    {
        return mask ? x : T{0};
    }
    template <Integer T>
    static TARN_INLINE Register<T> of(Register<T> mask, Register<T> x)
    {
        return {_mm_and_si128(mask.v, x.v)};
    }
};
inline constexpr Word<KeepWhere> keepWhere;

// The elements moved by half their range, as signed for unsigned ones and back, which keeps their order: the
// instructions compare signed lanes.
struct MoveOrder {
    template <Integer T>
    using Opposite = std::conditional_t<std::is_unsigned_v<T>, std::make_signed_t<T>, std::make_unsigned_t<T>>;

    template <Integer T>
    static TARN_INLINE Opposite<T> of(T x)
    {
        using U = Unsigned<T>;
        return static_cast<Opposite<T>>(static_cast<U>(x) ^ (U{1} << (8 * sizeof(T) - 1)));
    }
    template <Integer T>
    static TARN_INLINE Register<Opposite<T>> of(Register<T> x)
    {
        return {_mm_xor_si128(x.v, splat<Register<std::make_signed_t<T>>>(lowest<std::make_signed_t<T>>).v)};
    }
};
inline constexpr Word<MoveOrder> moveOrder;

// |a - b|.
struct Distance {
    static TARN_INLINE Tarn16u of(Tarn16s a, Tarn16s b) { return static_cast<Tarn16u>(a > b ? a - b : b - a); }
    static TARN_INLINE Register<Tarn16u> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return {_mm_sub_epi16(_mm_max_epi16(a.v, b.v), _mm_min_epi16(a.v, b.v))};
    }
};
inline constexpr Word<Distance> distance;

// -- Saturating arithmetic -------------------------------------------------------------------------------------------

struct AddSaturated {
    template <Integer T>
        requires(sizeof(T) <= 4)
    static TARN_INLINE T of(T a, T b)
    {
        using W = std::conditional_t<sizeof(T) == 4, Tarn64s, Tarn32s>;
        return clampTo<T>(static_cast<W>(W{a} + W{b}));
    }
    static TARN_INLINE Register<Tarn8u> of(Register<Tarn8u> a, Register<Tarn8u> b) { return {_mm_adds_epu8(a.v, b.v)}; }
    static TARN_INLINE Register<Tarn16u> of(Register<Tarn16u> a, Register<Tarn16u> b)
    {
        return {_mm_adds_epu16(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn16s> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return {_mm_adds_epi16(a.v, b.v)};
    }
    // Carry out of the top: the wrapped sum is below an operand.
    static TARN_INLINE Register<Tarn32u> of(Register<Tarn32u> a, Register<Tarn32u> b)
    {
        const auto sum = AddInteger::of(a, b);
        return BitOr::of(sum, GreaterInteger::of(a, sum));
    }
    // The sum wrapped where both operands have the sign that it lacks; the bound has their sign.
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn32s> a, Register<Tarn32s> b)
    {
        const auto sum = AddInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAndNot::of(BitXor::of(a, b), BitXor::of(a, sum)), 31);
        const auto bound = BitXor::of(ShiftRight::of(a, 31), splat<Register<Tarn32s>>(highest<Tarn32s>));
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
    static TARN_INLINE Register<Tarn8u> of(Register<Tarn8u> a, Register<Tarn8u> b) { return {_mm_subs_epu8(a.v, b.v)}; }
    static TARN_INLINE Register<Tarn16u> of(Register<Tarn16u> a, Register<Tarn16u> b)
    {
        return {_mm_subs_epu16(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn16s> of(Register<Tarn16s> a, Register<Tarn16s> b)
    {
        return {_mm_subs_epi16(a.v, b.v)};
    }
    static TARN_INLINE Register<Tarn32s> of(Register<Tarn32s> a, Register<Tarn32s> b)
    {
        const auto difference = SubInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAnd::of(BitXor::of(a, b), BitXor::of(a, difference)), 31);
        const auto bound = BitXor::of(ShiftRight::of(a, 31), splat<Register<Tarn32s>>(highest<Tarn32s>));
        return SelectInteger::of(wrapped, bound, difference);
    }
};
inline constexpr Word<SubSaturated> subSaturated;

} // namespace tarn
