// Sums and differences of integers that saturate at the bounds of their type, for an element and for a register.
#pragma once

#include "frame/simd_int.h"

namespace tarn {

// The bound on the side of a sign: the lowest integer for negative ones, the highest for others.
struct BoundOfSign {
    template <Integer T>
    static TARN_INLINE T of(T x)
    {
        return x < 0 ? lowest<T> : highest<T>;
    }
    template <IntegerRegister R>
    static TARN_INLINE R of(R x)
    {
        using T = Element<R>;
        static_assert(std::is_signed_v<T>);
        constexpr int sign = 8 * static_cast<int>(sizeof(T)) - 1;
        return BitXor::of(ShiftRight::of(x, sign), splat<R>(highest<T>));
    }
};
inline constexpr Word<BoundOfSign> boundOfSign;

// Stamps a saturated operation from its operator and the stem of its instructions. Where registers have none, the
// WRAPPED result has left the range where its sign is not that of the first operand although the operands' signs ALLOW
// no other; the bound has the first operand's sign.
#define TARN_SATURATED_OPERATION(NAME, OPERATOR, STEM, WRAPPED, ALLOW)                       \
    struct NAME {                                                                            \
        template <Integer T>                                                                 \
            requires(sizeof(T) <= 4)                                                         \
        static TARN_INLINE T of(T a, T b)                                                    \
        {                                                                                    \
            using W = std::conditional_t<sizeof(T) == 4, Tarn64s, Tarn32s>;                  \
            return clampTo<T>(static_cast<W>(W{a} OPERATOR W{b}));                           \
        }                                                                                    \
        static TARN_INLINE Tarn64s of(Tarn64s a, Tarn64s b)                                  \
        {                                                                                    \
            Tarn64s result;                                                                  \
            return __builtin_##STEM##_overflow(a, b, &result) ? BoundOfSign::of(a) : result; \
        }                                                                                    \
        template <IntegerRegister R>                                                         \
            requires(sizeof(Element<R>) <= 2 || std::is_signed_v<Element<R>>)                \
        static TARN_INLINE R of(R a, R b)                                                    \
        {                                                                                    \
            using T = Element<R>;                                                            \
            if constexpr (std::is_same_v<T, Tarn8s>) {                                       \
                return {native::STEM##8s(a.v, b.v)};                                         \
            } else if constexpr (std::is_same_v<T, Tarn8u>) {                                \
                return {native::STEM##8u(a.v, b.v)};                                         \
            } else if constexpr (std::is_same_v<T, Tarn16s>) {                               \
                return {native::STEM##16s(a.v, b.v)};                                        \
            } else if constexpr (std::is_same_v<T, Tarn16u>) {                               \
                return {native::STEM##16u(a.v, b.v)};                                        \
            } else {                                                                         \
                const auto result = WRAPPED::of(a, b);                                       \
                const auto left = ALLOW::of(BitXor::of(a, b), BitXor::of(a, result));        \
                const auto mask = ShiftRight::of(left, 8 * static_cast<int>(sizeof(T)) - 1); \
                return SelectInteger::of(mask, BoundOfSign::of(a), result);                  \
            }                                                                                \
        }                                                                                    \
    }
TARN_SATURATED_OPERATION(AddWithinBounds, +, add, AddInteger, BitAndNot);
TARN_SATURATED_OPERATION(SubSaturated, -, sub, SubInteger, BitAnd);
#undef TARN_SATURATED_OPERATION

// Carry out of the top: the wrapped sum is below an operand.
struct AddBelowCarry {
    template <RegisterOf<Tarn32u> R>
    static TARN_INLINE R of(R a, R b)
    {
        const auto sum = AddInteger::of(a, b);
        return BitOr::of(sum, GreaterInteger::of(a, sum));
    }
};
using AddSaturated = Overloads<AddWithinBounds, AddBelowCarry>;
inline constexpr Word<AddSaturated> addSaturated;
inline constexpr Word<SubSaturated> subSaturated; // a minus b

} // namespace tarn
