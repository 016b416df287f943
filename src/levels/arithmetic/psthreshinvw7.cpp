// Kernels of the thresholds that invert.
#include "frame/report.h"
#include "frame/rounding.h"
#include "levels/arithmetic/psthresh_magnitude.h"
#include "levels/arithmetic/psthreshold.h"

namespace {

using namespace tarn;

// x with its magnitude brought up to the level; a NaN counts as below it.
template <typename X>
TARN_INLINE X raised(X x, Element<X> level)
{
    return copySign(max(absolute(x), splat<X>(level)), x);
}

struct Inverted_32f {
    static constexpr int stepsAtOnce = 1;
    Tarn32f level;

    template <typename X>
    TARN_INLINE X operator()(bool& sawZero, X x) const
    {
        const auto divisor = raised(x, level);
        const auto estimate = approxReciprocal(divisor);
        const auto product = mul(divisor, estimate);
        const auto inverse = refineReciprocal(estimate, product);
        // Close to 1, or 0 where the inverse is too small: anything else is an estimate that left the range, and 0
        // times infinity.
        const auto useless = notLess(product, splat<X>(2));
        if (!anyOf(useless)) {
            return inverse;
        }
        sawZero = sawZero || anyOf(equal(divisor, splat<X>(0)));
        return tarn::select(useless, tarn::div(splat<X>(1), divisor), inverse);
    }
};

struct Inverted_64f {
    static constexpr int stepsAtOnce = 1;
    Tarn64f level;

    template <typename X>
    TARN_INLINE X operator()(bool& sawZero, X x) const
    {
        const auto divisor = raised(x, level);
        sawZero = sawZero || anyOf(equal(divisor, splat<X>(0)));
        return tarn::div(splat<X>(1), divisor);
    }
};

// 1 / z is the conjugate over the square. Below the level it is the conjugate at magnitude 1, over the level.
template <typename T>
struct InvertedComplex {
    static constexpr int stepsAtOnce = 1;
    Part<T> level;

    template <typename X>
    TARN_INLINE X operator()(bool& sawZero, X x) const
    {
        const auto z = measure(x);
        using D = decltype(z.parts);
        using S = decltype(z.squares);
        const auto conjugates = conjugateParts(z.parts);
        D inverse = mul(tarn::div(conjugates, inBothParts<D>(z.squares)), inBothParts<D>(z.factor));
        const auto below = compareMagnitudes(less, z, level);
        if (anyOf(below)) {
            const auto phases = tarn::div(conjugates, inBothParts<D>(squareRoot(z.squares)));
            inverse = tarn::select(inBothParts<D>(below), tarn::div(phases, splat<D>(level)), inverse);
        }
        const auto zero = equal(z.squares, splat<S>(0));
        if (anyOf(zero)) {
            inverse = tarn::select(inBothParts<D>(zero), ofZero(sawZero, conjugates), inverse);
        }
        return fromDoubles<X>(inverse);
    }

private:
    // A zero is raised to the level along the real axis.
    template <typename D>
    TARN_INLINE D ofZero(bool& sawZero, D conjugates) const
    {
        if (level == 0) {
            sawZero = true;
            return splat<D>(tarnConstantOfINF_64f);
        }
        return copySign(realParts<D>(1 / Tarn64f{level}), conjugates);
    }
};

template <typename Operation, typename T>
int invert(const T* pSrc, T* pDst, int len, Part<T> level)
{
    const MaskedExceptions masked;
    bool sawZero = false;
    walk(pDst, len, reportingTo(sawZero, Operation{level}), pSrc);
    return sawZero;
}

} // namespace

int owntarnsInvThresh_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, Tarn32f level)
{
    return invert<Inverted_32f>(pSrc, pDst, len, level);
}

int owntarnsInvThresh_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, Tarn64f level)
{
    return invert<Inverted_64f>(pSrc, pDst, len, level);
}

int owntarnsInvThresh_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, Tarn32f level)
{
    return invert<InvertedComplex<Tarn32fc>>(pSrc, pDst, len, level);
}

int owntarnsInvThresh_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, Tarn64f level)
{
    return invert<InvertedComplex<Tarn64fc>>(pSrc, pDst, len, level);
}
