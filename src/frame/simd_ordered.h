// Sums and products that keep their operands in order. Of two NaNs the first operand's comes out, which compilers do
// not know: to them either order is as good, and they choose for the element and for the register as it suits the loop.
// With these words the result does not depend on where in an array an element lies.
#pragma once

#include "frame/simd_complex.h"

namespace tarn {

// Stamps an operation on elements and on registers from the stem of its instruction. A register's operand is never in
// memory: the compiler would put an array there, of which nothing says that it is aligned. Where registers are wider
// than 16 bytes the instructions are those of three operands, since the others would wait for what lies above.
#if TARNS_REGISTER_BYTES > 16
#define TARN_IN_ORDER(STEM, SUFFIX, OPERAND, a, b) \
    __asm__("v" STEM SUFFIX "\t%2, %1, %0" : "=x"(a) : "x"(a), OPERAND(b))
#else
#define TARN_IN_ORDER(STEM, SUFFIX, OPERAND, a, b) __asm__(STEM SUFFIX "\t%1, %0" : "+x"(a) : OPERAND(b))
#endif
#define TARN_ORDERED_OPERATION(NAME, STEM)                  \
    struct NAME {                                           \
        static TARN_INLINE Tarn32f of(Tarn32f a, Tarn32f b) \
        {                                                   \
            TARN_IN_ORDER(STEM, "ss", "xm", a, b);          \
            return a;                                       \
        }                                                   \
        static TARN_INLINE Tarn64f of(Tarn64f a, Tarn64f b) \
        {                                                   \
            TARN_IN_ORDER(STEM, "sd", "xm", a, b);          \
            return a;                                       \
        }                                                   \
        template <FloatRegister R>                          \
        static TARN_INLINE R of(R a, R b)                   \
        {                                                   \
            if constexpr (isSingle<Element<R>>) {           \
                TARN_IN_ORDER(STEM, "ps", "x", a.v, b.v);   \
            } else {                                        \
                TARN_IN_ORDER(STEM, "pd", "x", a.v, b.v);   \
            }                                               \
            return a;                                       \
        }                                                   \
    }
TARN_ORDERED_OPERATION(AddInOrder, "add");
TARN_ORDERED_OPERATION(MulInOrder, "mul");
#undef TARN_ORDERED_OPERATION
#undef TARN_IN_ORDER

inline constexpr Word<AddInOrder> addInOrder;
inline constexpr Word<MulInOrder> mulInOrder;
inline constexpr PerPart<Word<AddInOrder>> addPartsInOrder{addInOrder};

// a times b of complex numbers: the first operand of every product is a part of b, that of the sum the product by its
// real part.
struct MulComplexInOrder {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE T of(T a, T b)
    {
        return {MulInOrder::of(b.re, a.re) - MulInOrder::of(b.im, a.im),
                AddInOrder::of(MulInOrder::of(b.re, a.im), MulInOrder::of(b.im, a.re))};
    }
    template <AnyRegister R>
        requires(isComplex<Element<R>>&& Float<Part<Element<R>>>)
    static TARN_INLINE R of(R a, R b)
    {
        using Parts = SameBytes<R, Part<Element<R>>>;
        const auto byRe = MulInOrder::of(Parts{native::evenTwice(b.v)}, Parts{a.v});
        const auto byIm = MulInOrder::of(Parts{native::oddTwice(b.v)}, Parts{SwapParts::of(a).v});
        return {native::subAdd(byRe.v, byIm.v)};
    }
};
inline constexpr Word<MulComplexInOrder> mulComplexInOrder;

} // namespace tarn
