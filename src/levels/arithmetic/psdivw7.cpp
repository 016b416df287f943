// Kernels of quotients of two vectors.
#include "levels/arithmetic/psdiv.h"

#include "frame/simd.h"
#include "frame/walk_ordinary.h"
#include "levels/arithmetic/psdiv_quotients.h"

#include <array>

namespace tarn {
namespace {

// All elements one at a time.
template <typename D, typename Operation, typename... S>
TARN_INLINE int divideElements(D* pDst, int len, Operation operation, S... src)
{
    Met zeros;
    walkSingly(pDst, len, reportingTo(zeros, operation), src...);
    return zeros.any();
}

// Whole groups.
template <typename D, typename Grouped, typename S>
TARN_INLINE int divideGroups(D* pDst, int len, Grouped grouped, const S* pSrc1, const S* pSrc2)
{
    Met zeros;
    walkGroups<divisionGroup>(pDst, len, 0, reportingTo(zeros, grouped), reportingTo(zeros, QuotientOfElements{}),
                              pSrc1, pSrc2);
    return zeros.any();
}

// All elements by an operation that gives the same wherever an element lies.
template <typename D, typename Operation, typename S>
TARN_INLINE int divideAnywhere(D* pDst, int len, Operation operation, const S* pSrc1, const S* pSrc2)
{
    Met zeros;
    if constexpr (isComplex<D>) {
        walkAlike(pDst, len, reportingTo(zeros, operation), pSrc1, pSrc2);
    } else {
        walk(pDst, len, reportingTo(zeros, operation), pSrc1, pSrc2);
    }
    return zeros.any();
}

// -- Floats -----------------------------------------------------------------------------------------------------------

// By the processor's estimate of the reciprocal and one Newton step. Divisors whose reciprocal leaves the range of
// normal numbers leave the steps' range too, and what comes then is part of the result.
struct RefinedQuotient {
    template <typename X>
    TARN_INLINE X operator()(X divisor, X dividend) const
    {
        const auto estimate = approxReciprocal(divisor);
        return refined(dividend, estimate, mul(divisor, estimate));
    }

    template <typename X>
    static TARN_INLINE X refined(X dividend, X estimate, X product)
    {
        return mul(dividend, sub(add(estimate, estimate), mul(product, estimate)));
    }
};

// The same for blocks. A divisor times its estimate is positive, or 0, but for zeros, which have an infinite estimate:
// theirs is the processor's NaN, whose sign is set.
struct BlocksOfQuotients {
    Met& zeros;

    template <typename X>
    TARN_INLINE X ordinary(Doubts& doubts, X divisor, X dividend) const
    {
        if constexpr (!AnyRegister<X>) {
            const auto low = ordinary(doubts, lowHalf(divisor), lowHalf(dividend));
            return join(low, ordinary(doubts, highHalf(divisor), highHalf(dividend)));
        } else {
            const auto estimate = approxReciprocal(divisor);
            const auto product = mul(divisor, estimate);
            doubts.note(product);
            return RefinedQuotient::refined(dividend, estimate, product);
        }
    }
    template <typename X>
    X rare(X divisor, X dividend) const
    {
        if constexpr (X::size > divisionGroup) {
            const auto low = rare(lowHalf(divisor), lowHalf(dividend));
            return join(low, rare(highHalf(divisor), highHalf(dividend)));
        } else {
            return QuotientOfGroups<RefinedQuotient>{}(zeros, divisor, dividend);
        }
    }
};

constexpr int quotientsAtOnce = 16;

int divideBySteps(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len)
{
    Met zeros;
    const BlocksOfQuotients quotients{zeros};
    Index i = walkOrdinary<quotientsAtOnce>(pDst, 0, len, quotients, pSrc1, pSrc2);
    i = walkOrdinary<divisionGroup>(pDst, i, len, quotients, pSrc1, pSrc2);
    walkElements(pDst, i, len, reportingTo(zeros, QuotientOfElements{}), pSrc1, pSrc2);
    return zeros.any();
}

template <typename C>
struct ComplexQuotient {
    template <typename X>
    TARN_INLINE auto operator()(Met& zeros, X divisor, X dividend) const
    {
        const auto b = complexDivisorOf(divisor);
        const auto re = partAsDouble(reOf(dividend));
        const auto im = partAsDouble(imOf(dividend));
        auto quotient = complexQuotient(re, im, b);
        using P = std::remove_const_t<decltype(re)>;
        const auto zero = equal(b.squared, splat<P>(0));
        if (anyOf(zero)) {
            zeros.note(true);
            quotient = {tarn::select(zero, overZero(re), quotient.re), tarn::select(zero, overZero(im), quotient.im)};
        }
        return fromDoubleParts<C>(quotient);
    }
};

// -- 16 bits ----------------------------------------------------------------------------------------------------------

// Unscaled the quotient is formed in single precision, scaled in double and rounded to single then.
struct ScaledQuotientOfWords {
    bool scaled;
    Tarn64f factor;

    TARN_INLINE Tarn16s operator()(Met& zeros, Tarn16s divisor, Tarn16s dividend) const
    {
        if (divisor == 0) {
            zeros.note(true);
            return signedBound(dividend, highest<Tarn16s>, lowest<Tarn16s>, 0);
        }
        const Tarn32f value = scaled ? static_cast<Tarn32f>(static_cast<Tarn64f>(dividend) / divisor * factor)
                                     : static_cast<Tarn32f>(dividend) / static_cast<Tarn32f>(divisor);
        return roundedTo<Tarn16s>(value);
    }
};

// Sixteen words at a time, of which every four decide for themselves whether they have a zero divisor among them. The
// conversion follows the caller's rounding mode, where that of single elements does not.
struct WordsBySteps {
    Tarn32f factor;
    ScaledQuotientOfWords single;

    template <typename X>
    TARN_INLINE X operator()(Met& zeros, X divisor, X dividend) const
    {
        const auto quotient = narrowSaturated<Tarn16s>(roundToInteger(steps(toFloats(divisor), toFloats(dividend))));
        if (!anyOf(equal(divisor, splat<X>(0)))) {
            return quotient;
        }
        return withoutZeros(zeros, divisor, dividend, quotient);
    }

private:
    static constexpr std::size_t deciding = 4;

    template <typename X>
    static TARN_INLINE auto toFloats(X x)
    {
        return convert<Tarn32f>(widen(x));
    }

    template <typename X>
    TARN_INLINE X steps(X divisor, X dividend) const
    {
        const auto estimate = approxReciprocal(divisor);
        const auto error = sub(splat<X>(1), mul(divisor, estimate));
        const auto x = mul(dividend, estimate);
        const auto y = add(x, mul(error, x));
        const auto z = add(y, mul(mul(error, error), y));
        return mul(z, splat<X>(factor));
    }

    template <typename X>
    X withoutZeros(Met& zeros, X divisor, X dividend, X quotient) const
    {
        std::array<Tarn16s, X::size> divisors, dividends, quotients;
        store(divisors.data(), divisor);
        store(dividends.data(), dividend);
        store(quotients.data(), quotient);
        const NearestRounding nearest;
        for (std::size_t from = 0; from < divisors.size(); from += deciding) {
            const auto first = divisors.begin() + static_cast<std::ptrdiff_t>(from);
            if (std::find(first, first + deciding, Tarn16s{0}) != first + deciding) {
                for (std::size_t k = from; k < from + deciding; ++k) {
                    quotients[k] = single(zeros, divisors[k], dividends[k]);
                }
            }
        }
        return loadPack<X::size>(quotients.data());
    }
};

// The boundary from which words are divided by the steps, if all three arrays lie alike. It is part of the results,
// whatever the registers' width.
constexpr unsigned wordBoundary = 32;
constexpr int wordGroup = 16;
constexpr int lowestVectorScale = -16;

struct ComplexQuotientOfWords {
    Tarn64f factor;

    template <typename X>
    TARN_INLINE auto operator()(Met& zeros, X divisor, X dividend) const
    {
        const auto b = complexDivisorOf(divisor);
        const auto re = partAsDouble(reOf(dividend));
        const auto im = partAsDouble(imOf(dividend));
        auto quotient = complexQuotient(re, im, b);
        using P = std::remove_const_t<decltype(re)>;
        const auto zero = equal(b.squared, splat<P>(0));
        if (anyOf(zero)) {
            // Divided by the factor, which is a power of two, so that multiplying by it gives the bound itself.
            zeros.note(true);
            const Tarn64f inverse = 1 / factor;
            const auto bound = [inverse](P part) { return mul(boundOverZero<Tarn16s>(part), splat<P>(inverse)); };
            quotient = {tarn::select(zero, bound(re), quotient.re), tarn::select(zero, bound(im), quotient.im)};
        }
        return roundedComplex(quotient, factor);
    }
};

// -- 32 bits ----------------------------------------------------------------------------------------------------------

struct QuotientOf32s {
    Tarn64f factor;

    template <typename X>
    TARN_INLINE X operator()(Met& zeros, X divisor, X dividend) const
    {
        const auto d = convert<Tarn64f>(divisor);
        const auto n = convert<Tarn64f>(dividend);
        using P = std::remove_const_t<decltype(d)>;
        const auto zero = equal(d, splat<P>(0));
        zeros.note(zero);
        const auto quotient = mul(tarn::div(n, d), splat<P>(factor));
        return roundedTo<Tarn32s>(tarn::select(zero, boundOverZero<Tarn32s>(n), quotient));
    }
};

constexpr int shortestVector_32s = 12;

// -- 8 bits -----------------------------------------------------------------------------------------------------------

// 1 / i to six decimals, ties upwards, as the nearest floats. These digits are part of the results. Over zero stands
// what makes the highest byte of any dividend but zero.
constexpr std::array<Tarn32f, 256> reciprocal8u = [] {
    std::array<Tarn32f, 256> table{};
    table[0] = 4290772992.0F;
    for (int i = 1; i < 256; ++i) {
        const int millionths = (2 * 1000000 + i) / (2 * i);
        table[static_cast<std::size_t>(i)] = static_cast<Tarn32f>(millionths / 1000000.0);
    }
    return table;
}();

struct QuotientOfBytes {
    Tarn32f factor;

    TARN_INLINE Tarn8u operator()(Met& zeros, Tarn8u divisor, Tarn8u dividend) const
    {
        const bool zero = divisor == 0;
        zeros.note(zero);
        const Tarn32f quotient = limited(reciprocal8u[divisor] * static_cast<Tarn32f>(dividend));
        return static_cast<Tarn8u>(roundToInteger(zero && dividend != 0 ? Tarn32f{highest<Tarn8u>} : quotient));
    }
    template <int N>
    TARN_INLINE Pack<Tarn8u, N> operator()(Met& zeros, Pack<Tarn8u, N> divisor, Pack<Tarn8u, N> dividend) const
    {
        using X = Pack<Tarn8u, N>;
        const auto numbers = convert<Tarn32f>(widen(widen(dividend)));
        const auto quotient = limited(mul(reciprocals(divisor), numbers));
        const auto bytes = narrowSaturated<Tarn8u>(narrowSaturated<Tarn16s>(roundToInteger(quotient)));
        const auto zero = equal(divisor, splat<X>(0));
        zeros.note(zero);
        return tarn::select(bitAndNot(equal(dividend, splat<X>(0)), zero), splat<X>(highest<Tarn8u>), bytes);
    }

private:
    template <typename X>
    TARN_INLINE X limited(X quotient) const
    {
        return min(mul(quotient, splat<X>(factor)), splat<X>(Tarn32f{highest<Tarn8u>}));
    }

    template <int N>
    static TARN_INLINE Pack<Tarn32f, N> reciprocals(Pack<Tarn8u, N> divisor)
    {
        std::array<Tarn8u, N> at;
        store(at.data(), divisor);
        return lookUp<N>(at.data());
    }
    template <int N>
    static TARN_INLINE Pack<Tarn32f, N> lookUp(const Tarn8u* at)
    {
        if constexpr (N > 4) {
            return join(lookUp<N / 2>(at), lookUp<N / 2>(at + N / 2));
        } else {
            return lanesOf(reciprocal8u[at[0]], reciprocal8u[at[1]], reciprocal8u[at[2]], reciprocal8u[at[3]]);
        }
    }
};

} // namespace
} // namespace tarn

using namespace tarn;

// Short arrays, and what is left over of whole groups, go through the scalar loop.
#define TARN_DEFINE_FLOAT_DIV(TAG, GROUPS, SINGLE)                                                                   \
    int ownps_dkDiv_PX_##TAG(TARN_DIV_PARAMETERS(TAG)) { return divideElements(pDst, len, SINGLE{}, pSrc1, pSrc2); } \
    int ownps_dkDiv_Aligned_##TAG(TARN_DIV_PARAMETERS(TAG)) { return GROUPS; }                                       \
    int ownps_dkDiv_Unalign_##TAG(TARN_DIV_PARAMETERS(TAG))                                                          \
    {                                                                                                                \
        return ownps_dkDiv_Aligned_##TAG(pSrc1, pSrc2, pDst, len);                                                   \
    }                                                                                                                \
    int ownps_dkDiv_##TAG(TARN_DIV_PARAMETERS(TAG))                                                                  \
    {                                                                                                                \
        const int whole = len < shortestVector ? 0 : len - len % divisionGroup;                                      \
        const int met = whole == 0 ? 0 : ownps_dkDiv_Aligned_##TAG(pSrc1, pSrc2, pDst, whole);                       \
        return met | ownps_dkDiv_PX_##TAG(pSrc1 + whole, pSrc2 + whole, pDst + whole, len - whole);                  \
    }

TARN_DEFINE_FLOAT_DIV(32f, divideBySteps(pSrc1, pSrc2, pDst, len), QuotientOfElements)
TARN_DEFINE_FLOAT_DIV(64f, divideGroups(pDst, len, QuotientOfGroups<TrueQuotient>{}, pSrc1, pSrc2), QuotientOfElements)
TARN_DEFINE_FLOAT_DIV(32fc, divideAnywhere(pDst, len, ComplexQuotient<Tarn32fc>{}, pSrc1, pSrc2),
                      ComplexQuotient<Tarn32fc>)
TARN_DEFINE_FLOAT_DIV(64fc, divideAnywhere(pDst, len, ComplexQuotient<Tarn64fc>{}, pSrc1, pSrc2),
                      ComplexQuotient<Tarn64fc>)

int ownps_dkDiv_PX_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor)
{
    const NearestRounding nearest;
    const ScaledQuotientOfWords single{scaleFactor != 0, quotientFactor<Tarn64f>(scaleFactor)};
    return divideElements(pDst, len, single, pSrc1, pSrc2);
}

int ownps_dkDiv_Aligned_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor)
{
    if (scaleFactor < lowestVectorScale) {
        return ownps_dkDiv_PX_16s_Sfs(pSrc1, pSrc2, pDst, len, scaleFactor);
    }
    Met zeros;
    const ScaledQuotientOfWords single{scaleFactor != 0, quotientFactor<Tarn64f>(scaleFactor)};
    walkGroups<wordGroup>(pDst, len, 0, reportingTo(zeros, WordsBySteps{quotientFactor<Tarn32f>(scaleFactor), single}),
                          reportingTo(zeros, single), pSrc1, pSrc2);
    return zeros.any();
}

int ownps_dkDiv_16s_Sfs(TARN_DIV_PARAMETERS(16s), int scaleFactor)
{
    const auto gap = (0 - addressOf(pDst)) % wordBoundary;
    const auto liesAlike = [=](const Tarn16s* p) { return (addressOf(p) - addressOf(pDst)) % wordBoundary == 0; };
    const bool inGroups = len >= shortestVector && liesAlike(pSrc1) && liesAlike(pSrc2) && gap % sizeof(Tarn16s) == 0;
    const int head = inGroups ? static_cast<int>(gap / sizeof(Tarn16s)) : len;
    const int whole = inGroups ? (len - head) / wordGroup * wordGroup : 0;
    const int tail = head + whole;
    int met = ownps_dkDiv_PX_16s_Sfs(pSrc1, pSrc2, pDst, head, scaleFactor);
    met |= ownps_dkDiv_Aligned_16s_Sfs(pSrc1 + head, pSrc2 + head, pDst + head, whole, scaleFactor);
    met |= ownps_dkDiv_PX_16s_Sfs(pSrc1 + tail, pSrc2 + tail, pDst + tail, len - tail, scaleFactor);
    return met;
}

int ownps_dkDiv_PX_16sc_Sfs(TARN_DIV_PARAMETERS(16sc), int scaleFactor)
{
    const NearestRounding nearest;
    return divideElements(pDst, len, ComplexQuotientOfWords{quotientFactor<Tarn64f>(scaleFactor)}, pSrc1, pSrc2);
}

int ownps_dkDiv_16sc_Sfs(TARN_DIV_PARAMETERS(16sc), int scaleFactor)
{
    const NearestRounding nearest;
    return divideAnywhere(pDst, len, ComplexQuotientOfWords{quotientFactor<Tarn64f>(scaleFactor)}, pSrc1, pSrc2);
}

int ownps_Div_32s_PX_Sfs(TARN_DIV_PARAMETERS(32s), int scaleFactor)
{
    const NearestRounding nearest;
    return divideElements(pDst, len, QuotientOf32s{quotientFactor<Tarn32f>(scaleFactor)}, pSrc1, pSrc2);
}

int ownps_Div_32s_Sfs(TARN_DIV_PARAMETERS(32s), int scaleFactor)
{
    if (len < shortestVector_32s) {
        return ownps_Div_32s_PX_Sfs(pSrc1, pSrc2, pDst, len, scaleFactor);
    }
    const NearestRounding nearest;
    return divideAnywhere(pDst, len, QuotientOf32s{quotientFactor<Tarn32f>(scaleFactor)}, pSrc1, pSrc2);
}

int ownDiv8u_Sfs_ASM(TARN_DIV_PARAMETERS(8u), int scaleFactor)
{
    return divideAnywhere(pDst, len, QuotientOfBytes{quotientFactor<Tarn32f>(scaleFactor)}, pSrc1, pSrc2);
}

int ownps_Div_8u_Sfs(TARN_DIV_PARAMETERS(8u), int scaleFactor)
{
    return ownDiv8u_Sfs_ASM(pSrc1, pSrc2, pDst, len, scaleFactor);
}
