// Kernels that square each element.
#include "levels/arithmetic/pssqr.h"

#include "frame/scale_choice.h"
#include "levels/arithmetic/psproducts.h"

namespace tarn {
namespace {

using Bytes = ExactCases<Tarn8u, WithItself<FullProduct>>;
using Words = ExactCases<Tarn16s, WithItself<ProductOfWords>>;
using ComplexWords = ExactCases<Tarn16sc, WithItself<ComplexProduct>>;

// -- Unsigned words, whose squares fill 32 bits without a sign --------------------------------------------------------

// The product by the word taken for a signed one lacks 2^16 times the word where the sign was a bit of the number.
template <typename X>
TARN_INLINE auto squareOfUnsigned(X x)
{
    using Signed = Like<X, Tarn16s>;
    const auto asSigned = retype<Tarn16s>(x);
    const auto product = retype<Tarn32u>(mulWidened(x, asSigned));
    const auto missing = bitAnd(x, retype<Tarn16u>(shiftRight(asSigned, 15)));
    static_assert(std::is_same_v<Signed, std::remove_const_t<decltype(asSigned)>>);
    return add(product, shiftLeft(retype<Tarn32u>(widen(missing)), 16));
}

template <typename X>
TARN_INLINE auto limitToUnsignedWord(X t)
{
    const auto fits = equal(shiftRight(t, 16), splat<X>(0));
    const auto limited = select(fits, t, splat<X>(highest<Tarn16u>));
    // Each word with its own top bit for a sign: nothing is left for the narrowing to saturate.
    const auto withSign = shiftRight(retype<Tarn32s>(shiftLeft(limited, 16)), 16);
    return retype<Tarn16u>(narrowSaturated<Tarn16s>(withSign));
}

struct UnsignedWords {
    struct Plain {
        template <typename X>
        TARN_INLINE auto operator()(X x) const
        {
            return limitToUnsignedWord(squareOfUnsigned(x));
        }
    };
    struct Pos {
        int s;
        template <typename X>
        TARN_INLINE auto operator()(X x) const
        {
            // From the third bit on, one bit less with what it loses kept in the last one rounds alike, and leaves room
            // for what is added on the way.
            const int ahead = s > 2 ? 1 : 0;
            const auto t = squareOfUnsigned(x);
            using W = std::remove_const_t<decltype(t)>;
            const auto halved = bitOr(shiftRight(t, ahead), bitAnd(t, splat<W>(static_cast<Tarn32u>(ahead))));
            return limitToUnsignedWord(shiftRounded(halved, s - ahead));
        }
    };
    struct One {
        template <typename X>
        TARN_INLINE auto operator()(X x) const
        {
            return Pos{1}(x);
        }
    };
    struct Neg {
        int n;
        template <typename X>
        TARN_INLINE auto operator()(X x) const
        {
            const auto t = squareOfUnsigned(x);
            using W = std::remove_const_t<decltype(t)>;
            const auto fits = equal(shiftRight(t, 16), splat<W>(0));
            return limitToUnsignedWord(shiftLeft(select(fits, t, splat<W>(highest<Tarn16u>)), n));
        }
    };
    struct Sign {
        template <typename X>
        TARN_INLINE auto operator()(X x) const
        {
            return signBound(x);
        }
    };
};

struct FloatSquare {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return mul(x, x);
    }
};

struct ComplexSquare {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return mulComplex(x, x);
    }
};

} // namespace
} // namespace tarn

using namespace tarn;

#define TARN_DEFINE_SCALED_SQUARE(TAG, CASES)                                                                          \
    void owntarnsSqr_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, int scaleFactor)                           \
    {                                                                                                                  \
        chooseCase<CASES>(squareLimits_##TAG, scaleFactor, [=](auto square) { applyUnary(square, pSrc, pDst, len); }); \
    }
#define TARN_DEFINE_SQUARE(TAG, OPERATION)                                  \
    void owntarnsSqr_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                       \
        applyUnary(OPERATION{}, pSrc, pDst, len);                           \
    }

TARN_DEFINE_SCALED_SQUARE(8u, Bytes)
TARN_DEFINE_SCALED_SQUARE(16s, Words)
TARN_DEFINE_SCALED_SQUARE(16u, UnsignedWords)
TARN_DEFINE_SCALED_SQUARE(16sc, ComplexWords)
TARN_DEFINE_SQUARE(32f, FloatSquare)
TARN_DEFINE_SQUARE(32fc, ComplexSquare)
TARN_DEFINE_SQUARE(64f, FloatSquare)
TARN_DEFINE_SQUARE(64fc, ComplexSquare)
