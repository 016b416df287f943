// Integer words: arithmetic, logic, shifts, comparison. Each for an element and for a register.
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

template <typename X>
concept IntegerRegister = AnyRegister<X> && Integer<Element<X>>;

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
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::bitAnd(a.v, b.v)};
    }
};
inline constexpr Word<BitAnd> bitAnd;

struct BitOr {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(a | b);
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::bitOr(a.v, b.v)};
    }
};
inline constexpr Word<BitOr> bitOr;

struct BitXor {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(a ^ b);
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::bitXor(a.v, b.v)};
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
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::bitAndNot(a.v, b.v)};
    }
};
inline constexpr Word<BitAndNot> bitAndNot;

// -- Shifts by a common count ----------------------------------------------------------------------------------------

// A count of the width or more shifts every bit out, leaving zeros, or signs where the shift is arithmetic. Right
// shifts are arithmetic for signed elements and logical for unsigned ones.

struct ShiftLeft {
    template <Integer T>
    static TARN_INLINE T of(T x, int n)
    {
        constexpr int width = 8 * static_cast<int>(sizeof(T));
        return n < width ? static_cast<T>(static_cast<Tarn64s>(static_cast<unsigned long long>(x) << n)) : T{0};
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R x, int n)
    {
        using T = Element<R>;
        if constexpr (sizeof(T) == 2) {
            return {native::shiftLeft16(x.v, n)};
        } else if constexpr (sizeof(T) == 4) {
            return {native::shiftLeft32(x.v, n)};
        } else {
            static_assert(sizeof(T) == 8);
            return {native::shiftLeft64(x.v, n)};
        }
    }
};
inline constexpr Word<ShiftLeft> shiftLeft;

// All ones where the element is negative, zeros elsewhere.
struct SignsOf64s {
    static TARN_INLINE Tarn64s of(Tarn64s x) { return x >> 63; }
    template <RegisterOf<Tarn64s> R>
        requires WideRegister<R>
    static TARN_INLINE R of(R x) { return {native::signs64(x.v)}; }
    static TARN_INLINE Register<Tarn64s> of(Register<Tarn64s> x)
    {
        return {_mm_srai_epi32(_mm_shuffle_epi32(x.v, 0xF5), 31)};
    }
};
inline constexpr Word<SignsOf64s> signsOf64s;

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
    template <IntegerRegister R>
    static TARN_INLINE R of(R x, int n)
    {
        using T = Element<R>;
        if constexpr (std::is_same_v<T, Tarn16s>) {
            return {native::shiftRight16s(x.v, n)};
        } else if constexpr (std::is_same_v<T, Tarn16u>) {
            return {native::shiftRight16u(x.v, n)};
        } else if constexpr (std::is_same_v<T, Tarn32s>) {
            return {native::shiftRight32s(x.v, n)};
        } else if constexpr (std::is_same_v<T, Tarn64s>) {
            // There is no such instruction: what is negative is inverted, shifted, and inverted back.
            const auto signs = SignsOf64s::of(x);
            const auto positive = BitXor::of(x, signs);
            return BitXor::of(R{native::shiftRight64u(positive.v, n)}, signs);
        } else {
            static_assert(std::is_unsigned_v<T>);
            return {sizeof(T) == 4 ? native::shiftRight32u(x.v, n) : native::shiftRight64u(x.v, n)};
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
    template <IntegerRegister R>
        requires(!std::is_same_v<Element<R>, Tarn64s>)
    static TARN_INLINE R of(R x, int n)
    {
        using T = Element<R>;
        return {ShiftRight::of(Like<R, Unsigned<T>>{x.v}, n).v};
    }
    template <RegisterOf<Tarn64s> R>
    static TARN_INLINE R of(R x, int n)
    {
        return {native::shiftRight64u(x.v, n)};
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
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        if constexpr (sizeof(T) == 1) {
            return {native::add8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {native::add16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {native::add32(a.v, b.v)};
        } else {
            return {native::add64(a.v, b.v)};
        }
    }
};

struct SubInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return static_cast<T>(static_cast<Unsigned<T>>(a) - static_cast<Unsigned<T>>(b));
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        if constexpr (sizeof(T) == 1) {
            return {native::sub8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {native::sub16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {native::sub32(a.v, b.v)};
        } else {
            return {native::sub64(a.v, b.v)};
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
    template <RegisterOf<Tarn8s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::greater8s(a.v, b.v)};
    }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::greater16s(a.v, b.v)};
    }
    template <RegisterOf<Tarn32s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::greater32s(a.v, b.v)};
    }
    // The sign of b - a, or of b where the difference may have left 64 bits.
    template <RegisterOf<Tarn64s> R>
    static TARN_INLINE R of(R a, R b)
    {
        const auto ofDifference = BitAndNot::of(BitXor::of(a, b), SubInteger::of(b, a));
        return SignsOf64s::of(BitOr::of(BitAndNot::of(a, b), ofDifference));
    }
    // The instructions compare signed lanes: moving both operands by half the range keeps the order.
    template <IntegerRegister R>
        requires std::is_unsigned_v<Element<R>>
    static TARN_INLINE R of(R a, R b)
    {
        using S = std::make_signed_t<Element<R>>;
        const auto middle = splat<Like<R, S>>(lowest<S>);
        const Like<R, S> aMoved{native::bitXor(a.v, middle.v)};
        const Like<R, S> bMoved{native::bitXor(b.v, middle.v)};
        return {of(aMoved, bMoved).v};
    }
};

struct EqualInteger {
    template <Integer T>
    static TARN_INLINE bool of(T a, T b)
    {
        return a == b;
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        if constexpr (sizeof(T) == 1) {
            return {native::equal8(a.v, b.v)};
        } else if constexpr (sizeof(T) == 2) {
            return {native::equal16(a.v, b.v)};
        } else if constexpr (sizeof(T) == 4) {
            return {native::equal32(a.v, b.v)};
        } else {
            // The sign of the upper half, kept if the lower halves agree as well.
            const R halves{native::equal32(a.v, b.v)};
            return SignsOf64s::of(BitAnd::of(halves, ShiftLeft::of(halves, 32)));
        }
    }
};

struct SelectInteger {
    template <Integer T>
    static TARN_INLINE T of(bool mask, T yes, T no)
    {
        return mask ? yes : no;
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R mask, R yes, R no)
    {
        return {native::select(mask.v, yes.v, no.v)};
    }
};

struct MinInteger {
    template <Integer T>
    static TARN_INLINE T of(T a, T b)
    {
        return a < b ? a : b;
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        if constexpr (std::is_same_v<T, Tarn8u>) {
            return {native::min8u(a.v, b.v)};
        } else if constexpr (std::is_same_v<T, Tarn16s>) {
            return {native::min16s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn8s>) {
            return {native::min8s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn16u>) {
            return {native::min16u(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn32s>) {
            return {native::min32s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn32u>) {
            return {native::min32u(a.v, b.v)};
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
    template <IntegerRegister R>
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        if constexpr (std::is_same_v<T, Tarn8u>) {
            return {native::max8u(a.v, b.v)};
        } else if constexpr (std::is_same_v<T, Tarn16s>) {
            return {native::max16s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn8s>) {
            return {native::max8s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn16u>) {
            return {native::max16u(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn32s>) {
            return {native::max32s(a.v, b.v)};
        } else if constexpr (WideRegister<R> && std::is_same_v<T, Tarn32u>) {
            return {native::max32u(a.v, b.v)};
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
    template <IntegerRegister R>
    static TARN_INLINE R of(R mask, R x)
    {
        return {native::bitAnd(mask.v, x.v)};
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
    template <IntegerRegister R>
    static TARN_INLINE Like<R, Opposite<Element<R>>> of(R x)
    {
        using S = std::make_signed_t<Element<R>>;
        return {native::bitXor(x.v, splat<Like<R, S>>(lowest<S>).v)};
    }
};
inline constexpr Word<MoveOrder> moveOrder;

// |a - b|.
struct Distance {
    static TARN_INLINE Tarn16u of(Tarn16s a, Tarn16s b) { return static_cast<Tarn16u>(a > b ? a - b : b - a); }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE Like<R, Tarn16u> of(R a, R b)
    {
        return {native::sub16(native::max16s(a.v, b.v), native::min16s(a.v, b.v))};
    }
};
inline constexpr Word<Distance> distance;

} // namespace tarn
