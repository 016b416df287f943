// Kernels of the Kaiser window.
//
// I0 is evaluated by polynomials: of x up to a threshold, above it of threshold / x, times exp(x) / sqrt(x) (Abramowitz
// and Stegun 9.8.1 and 9.8.2; longer ones for double precision). The normaliser and the kernels each have coefficients
// of their own; they differ in a few places, and both are part of the result.
#include "levels/generators/pskaiser.h"

#include "frame/mirror.h"
#include "frame/precise.h"
#include "frame/simd_approx.h"

#include <array>
#include <cmath>

namespace tarn {

namespace {

// The weights that are made at once: what fills no such group is weighted in extended precision.
template <Float T>
using Lanes = Pack<T, 16 / static_cast<int>(sizeof(T))>;

// -- Coefficients, the constant first ---------------------------------------------------------------------------------

template <Float T>
inline constexpr T threshold = isSingle<T> ? T{3.75} : T{4};
template <Float T>
inline constexpr T overThreshold = isSingle<T> ? T(0.26666666666666666) : T{0.25};

// What is published for single precision.
constexpr double smallPublished[] = {1.0, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
constexpr double largePublished[] = {0.39894228,  0.01328592, 0.00225319,  -0.00157565, 0.00916281,
                                     -0.02057706, 0.02635537, -0.01647633, 0.00392377};

constexpr double smallNormaliser[] = {0.9999999985, 4.0000001935, 3.9999959541, 1.777809969,
                                      0.4443189384, 0.0713758187, 0.0075942968, 0.0008267816};
constexpr double largeNormaliser[] = {0.3989422809,  0.0124667783,  0.0017623668,  0.00026,      0.0022585672,
                                      -0.0128314822, 0.0495811118,  -0.1209940805, 0.1895476618, -0.1867783276,
                                      0.1113315511,  -0.0366694767, 0.0051246015};

template <Float T>
inline constexpr T smallOfKernel[1] = {};
template <>
inline constexpr Tarn32f smallOfKernel<Tarn32f>[] = {1.0F,        3.5156229F, 3.0899424F, 1.2067492F,
                                                     0.26687756F, 0.0360768F, 0.0045813F};
template <>
inline constexpr Tarn64f smallOfKernel<Tarn64f>[] = {0.9999999985, 4.000003096,  3.9999959541, 1.777809969,
                                                     0.4443189384, 0.0713758187, 0.0075942968, 0.000674193709375};
template <Float T>
inline constexpr T largeOfKernel[1] = {};
template <>
inline constexpr Tarn32f largeOfKernel<Tarn32f>[] = {0.39894228F,  0.01328592F, 0.00225319F,  -0.00157565F, 0.00916281F,
                                                     -0.02057706F, 0.02635537F, -0.01647633F, 0.00392377F};
template <>
inline constexpr Tarn64f largeOfKernel<Tarn64f>[] = {
    0.3989422809,        0.0124667783,  0.0017623668,        0.00026,       0.0022585681074049, -0.0128314822,
    0.04958113163828737, -0.1209940805, 0.18954771930079328, -0.1867783276, 0.1113315511,       -0.0366694767,
    0.0051246015};

// The same scheme in another precision than the coefficients'.
template <typename X, typename C, std::size_t count>
X evaluate(X x, const C (&coefficients)[count])
{
    X sum = coefficients[count - 1];
    for (std::size_t i = count - 1; i-- > 0;) {
        sum = sum * x + static_cast<X>(coefficients[i]);
    }
    return sum;
}

// -- Weights ----------------------------------------------------------------------------------------------------------

// 1 / x: the estimate and one Newton step.
TARN_INLINE Lanes<Tarn32f> refinedReciprocal(Lanes<Tarn32f> x)
{
    const auto e = approxReciprocal(x);
    return mul(e, sub(splat<Lanes<Tarn32f>>(2), mul(x, e)));
}

// 1 / sqrt(x) likewise.
TARN_INLINE Lanes<Tarn32f> refinedReciprocalRoot(Lanes<Tarn32f> x)
{
    const auto e = approxReciprocalRoot(x);
    return mul(mul(splat<Lanes<Tarn32f>>(0.5F), e), sub(splat<Lanes<Tarn32f>>(3), mul(x, mul(e, e))));
}

// e^x for x up to 38: 2^k times a quotient of polynomials of what is left.
TARN_INLINE Lanes<Tarn32f> exponentialOf(Lanes<Tarn32f> x)
{
    using X = Lanes<Tarn32f>;
    const X spaced = add(mul(x, splat<X>(1.4426950216293335F)), splat<X>(12582912.0F));
    const X k = sub(spaced, splat<X>(12582912.0F));
    const X z = add(add(x, mul(k, splat<X>(-0.693359375F))), mul(k, splat<X>(0.00021219444170128554F)));
    const X square = mul(z, z);
    const X odd = mul(z, add(square, splat<X>(60)));
    const X even = mul(splat<X>(12), add(square, splat<X>(10)));
    const X quotient = mul(add(even, odd), refinedReciprocal(sub(even, odd)));
    // The last bits of `spaced` are k.
    return floatOfBits(add(bitsOf(quotient), shiftLeft(bitsOf(spaced), 23)));
}

TARN_INLINE Lanes<Tarn32f> besselOfLarge(Lanes<Tarn32f> r)
{
    using X = Lanes<Tarn32f>;
    const X divisor = tarn::select(equal(r, splat<X>(0)), splat<X>(1), r);
    const X s = mul(splat<X>(threshold<Tarn32f>), refinedReciprocal(divisor));
    const X grown = mul(exponentialOf(r), refinedReciprocalRoot(divisor));
    return mul(grown, polynomial(s, largeOfKernel<Tarn32f>));
}

TARN_INLINE Lanes<Tarn64f> besselOfLarge(Lanes<Tarn64f> r)
{
    using X = Lanes<Tarn64f>;
    auto values = lanesAsArray(r);
    for (Tarn64f& x : values) {
        x = static_cast<Tarn64f>(naturalExponential(Extended{x}));
    }
    const X s = tarn::div(splat<X>(threshold<Tarn64f>), r);
    const X grown = tarn::div(loadPack<X::size>(values.data()), squareRoot(r));
    return mul(grown, polynomial(s, largeOfKernel<Tarn64f>));
}

// I0 of lanes. The large branch is left out where no lane needs it.
template <Float T>
TARN_INLINE Lanes<T> besselOf(Lanes<T> r)
{
    using X = Lanes<T>;
    const X t = mul(r, splat<X>(overThreshold<T>));
    const X small = polynomial(mul(t, t), smallOfKernel<T>);
    const auto isSmall = less(r, splat<X>(threshold<T>));
    if (allOf(isSmall)) {
        return small;
    }
    return tarn::select(isSmall, small, besselOfLarge(r));
}

// The same of one value in extended precision.
template <Float T>
Extended besselOfOne(Extended r)
{
    if (r < Extended{threshold<T>}) {
        const Extended t = r * Extended{overThreshold<T>};
        return evaluate(t * t, smallOfKernel<T>);
    }
    return naturalExponential(r) / std::sqrt(r) * evaluate(Extended{threshold<T>} / r, largeOfKernel<T>);
}

// The weights of the walk from both ends, in lanes of the precision F.
template <Float F, int parts>
struct KaiserWeights {
    static constexpr int group = Lanes<F>::size;
    using X = Lanes<F>;

    X index;
    int done = 0;
    int len;
    F alpha;
    F inv;

    KaiserWeights(int length, F shape, F scale) : len(length), alpha(shape), inv(scale)
    {
        std::array<F, group> first;
        for (int i = 0; i < group; ++i) {
            first[static_cast<std::size_t>(i)] = static_cast<F>(i);
        }
        index = loadPack<group>(first.data());
    }

    TARN_INLINE auto next()
    {
        const X q = mul(sub(splat<X>(static_cast<F>(len - 1)), index), index);
        const X r = absolute(mul(squareRoot(q), splat<X>(alpha)));
        index = add(index, splat<X>(F{group}));
        done += group;
        const X weights = mul(besselOf(r), splat<X>(inv));
        if constexpr (parts == 2) {
            return twice(weights);
        } else {
            return weights;
        }
    }

    std::array<Extended, group> rest() const
    {
        std::array<Extended, group> weights{};
        for (int i = 0; i < group && done + i < len / 2; ++i) {
            const Extended n = done + i;
            const Extended r = std::fabs(std::sqrt((len - 1 - n) * n) * Extended{alpha});
            weights[static_cast<std::size_t>(i)] = besselOfOne<F>(r) * Extended{inv};
        }
        return weights;
    }
};

} // namespace

} // namespace tarn

using namespace tarn;

Tarn64f ownsBessel_32f(Tarn64f x)
{
    const double magnitude = std::fabs(x);
    if (magnitude < 3.75) {
        const double t = magnitude * 0.26666666666666666;
        return evaluate(t * t, smallPublished);
    }
    return preciseExponential(magnitude) / std::sqrt(magnitude) * evaluate(3.75 / magnitude, largePublished);
}

Tarn64f ownsBessel_64f(Tarn64f x)
{
    const double magnitude = std::fabs(x);
    if (magnitude < 4.0) {
        const double t = magnitude * 0.25;
        return evaluate(t * t, smallNormaliser);
    }
    return preciseExponential(magnitude) / std::sqrt(magnitude) * evaluate(4.0 / magnitude, largeNormaliser);
}

#define TARN_KAISER_KERNEL(TAG, REAL)                                                             \
    void Kaiser_##TAG##_W7(const Tarn##TAG* pSrc, const Tarn##TAG* /*pSrcLast*/, Tarn##TAG* pDst, \
                           Tarn##TAG* /*pDstLast*/, int len, REAL alpha, REAL inv)                \
    {                                                                                             \
        walkMirrored(pSrc, pDst, len, KaiserWeights<REAL, partsOf<Tarn##TAG>>(len, alpha, inv));  \
    }

TARN_KAISER_KERNEL(16s, Tarn32f)
TARN_KAISER_KERNEL(16sc, Tarn32f)
TARN_KAISER_KERNEL(32f, Tarn32f)
TARN_KAISER_KERNEL(32fc, Tarn32f)
TARN_KAISER_KERNEL(64f, Tarn64f)
TARN_KAISER_KERNEL(64fc, Tarn64f)
