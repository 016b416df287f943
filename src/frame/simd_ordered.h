// Sums and products that keep their operands in order. Of two NaNs the first operand's comes out, which compilers do
// not know: to them either order is as good, and they choose for the element and for the register as it suits the loop.
// With these words the result does not depend on where in an array an element lies.
#pragma once

#include "frame/simd_complex.h"

namespace tarn {

// Stamps an operation on elements and on registers of 16 bytes from the stem of its instruction. A register's operand
// is never in memory: the compiler would put an array there, of which nothing says that it is aligned.
#define TARN_ORDERED_OPERATION(NAME, STEM)                           \
    struct NAME {                                                    \
        static TARN_INLINE Tarn32f of(Tarn32f a, Tarn32f b)          \
        {                                                            \
            __asm__(STEM "ss\t%1, %0" : "+x"(a) : "xm"(b));          \
            return a;                                                \
        }                                                            \
        static TARN_INLINE Tarn64f of(Tarn64f a, Tarn64f b)          \
        {                                                            \
            __asm__(STEM "sd\t%1, %0" : "+x"(a) : "xm"(b));          \
            return a;                                                \
        }                                                            \
        template <Float T, int N>                                    \
            requires(sizeof(T) * N == 16)                            \
        static TARN_INLINE Pack<T, N> of(Pack<T, N> a, Pack<T, N> b) \
        {                                                            \
            if constexpr (isSingle<T>) {                             \
                __asm__(STEM "ps\t%1, %0" : "+x"(a.v) : "x"(b.v));   \
            } else {                                                 \
                __asm__(STEM "pd\t%1, %0" : "+x"(a.v) : "x"(b.v));   \
            }                                                        \
            return a;                                                \
        }                                                            \
    }
TARN_ORDERED_OPERATION(AddInOrder, "add");
TARN_ORDERED_OPERATION(MulInOrder, "mul");
#undef TARN_ORDERED_OPERATION

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
    template <int N>
        requires(sizeof(Tarn32fc) * N == 16)
    static TARN_INLINE Pack<Tarn32fc, N> of(Pack<Tarn32fc, N> a, Pack<Tarn32fc, N> b)
    {
        using Parts = Pack<Tarn32f, 2 * N>;
        const auto byRe = MulInOrder::of(Parts{_mm_moveldup_ps(b.v)}, Parts{a.v});
        const auto byIm = MulInOrder::of(Parts{_mm_movehdup_ps(b.v)}, Parts{SwapParts::of(a).v});
        return {_mm_addsub_ps(byRe.v, byIm.v)};
    }
    template <int N>
        requires(sizeof(Tarn64fc) * N == 16)
    static TARN_INLINE Pack<Tarn64fc, N> of(Pack<Tarn64fc, N> a, Pack<Tarn64fc, N> b)
    {
        using Parts = Pack<Tarn64f, 2 * N>;
        const auto byRe = MulInOrder::of(Parts{_mm_unpacklo_pd(b.v, b.v)}, Parts{a.v});
        const auto byIm = MulInOrder::of(Parts{_mm_unpackhi_pd(b.v, b.v)}, Parts{SwapParts::of(a).v});
        return {_mm_addsub_pd(byRe.v, byIm.v)};
    }
};
inline constexpr Word<MulComplexInOrder> mulComplexInOrder;

} // namespace tarn
