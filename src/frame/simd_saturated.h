// Sums and differences of integers that saturate at the bounds of their type, for an element and for a register.
#pragma once

#include "frame/simd_int.h"

namespace tarn {

struct AddSaturated {
    template <Integer T>
        requires(sizeof(T) <= 4)
    static TARN_INLINE T of(T a, T b)
    {
        using W = std::conditional_t<sizeof(T) == 4, Tarn64s, Tarn32s>;
        return clampTo<T>(static_cast<W>(W{a} + W{b}));
    }
    static TARN_INLINE Tarn64s of(Tarn64s a, Tarn64s b)
    {
        Tarn64s result;
        return __builtin_add_overflow(a, b, &result) ? (a < 0 ? lowest<Tarn64s> : highest<Tarn64s>) : result;
    }
    template <RegisterOf<Tarn8s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::add8s(a.v, b.v)};
    }
    template <RegisterOf<Tarn8u> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::add8u(a.v, b.v)};
    }
    template <RegisterOf<Tarn16u> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::add16u(a.v, b.v)};
    }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::add16s(a.v, b.v)};
    }
    // Carry out of the top: the wrapped sum is below an operand.
    template <RegisterOf<Tarn32u> R>
    static TARN_INLINE R of(R a, R b)
    {
        const auto sum = AddInteger::of(a, b);
        return BitOr::of(sum, GreaterInteger::of(a, sum));
    }
    // The sum wrapped where both operands have the sign that it lacks; the bound has their sign.
    template <IntegerRegister R>
        requires(std::is_signed_v<Element<R>> && sizeof(Element<R>) >= 4)
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        constexpr int sign = 8 * static_cast<int>(sizeof(T)) - 1;
        const auto sum = AddInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAndNot::of(BitXor::of(a, b), BitXor::of(a, sum)), sign);
        const auto bound = BitXor::of(ShiftRight::of(a, sign), splat<R>(highest<T>));
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
    static TARN_INLINE Tarn64s of(Tarn64s a, Tarn64s b)
    {
        Tarn64s result;
        return __builtin_sub_overflow(a, b, &result) ? (a < 0 ? lowest<Tarn64s> : highest<Tarn64s>) : result;
    }
    template <RegisterOf<Tarn8s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::sub8s(a.v, b.v)};
    }
    template <RegisterOf<Tarn8u> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::sub8u(a.v, b.v)};
    }
    template <RegisterOf<Tarn16u> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::sub16u(a.v, b.v)};
    }
    template <RegisterOf<Tarn16s> R>
    static TARN_INLINE R of(R a, R b)
    {
        return {native::sub16s(a.v, b.v)};
    }
    template <IntegerRegister R>
        requires(std::is_signed_v<Element<R>> && sizeof(Element<R>) >= 4)
    static TARN_INLINE R of(R a, R b)
    {
        using T = Element<R>;
        constexpr int sign = 8 * static_cast<int>(sizeof(T)) - 1;
        const auto difference = SubInteger::of(a, b);
        const auto wrapped = ShiftRight::of(BitAnd::of(BitXor::of(a, b), BitXor::of(a, difference)), sign);
        const auto bound = BitXor::of(ShiftRight::of(a, sign), splat<R>(highest<T>));
        return SelectInteger::of(wrapped, bound, difference);
    }
};
inline constexpr Word<SubSaturated> subSaturated;

} // namespace tarn
