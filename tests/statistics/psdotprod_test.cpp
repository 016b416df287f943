// Dot products: exact integer sums and their scale, doubles rounded to nearest in every mode, float lanes within
// bounds.
#include "model/scale.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"
#include "tarns/norms.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn::test {
namespace {

// -- 16-bit integers: exact ------------------------------------------------------------------------------------------

struct Exact {
    std::int64_t re = 0;
    std::int64_t im = 0;
};
void addProduct(Exact& sum, std::int64_t a, std::int64_t b) { sum.re += a * b; }
void addProduct(Exact& sum, Tarn16s a, Tarn16sc b)
{
    sum.re += std::int64_t{a} * b.re;
    sum.im += std::int64_t{a} * b.im;
}
void addProduct(Exact& sum, Tarn16sc a, Tarn16sc b)
{
    sum.re += std::int64_t{a.re} * b.re - std::int64_t{a.im} * b.im;
    sum.im += std::int64_t{a.re} * b.im + std::int64_t{a.im} * b.re;
}

template <class A, class B>
Exact exactDot(std::span<const A> x, std::span<const B> y)
{
    Exact sum;
    for (std::size_t i = 0; i < x.size(); ++i)
        addProduct(sum, x[i], y[i]);
    return sum;
}

// What `part` makes of each part, as a D.
template <class D, class Part>
D resultOf(const Exact& sum, Part part)
{
    if constexpr (ComplexElement<D>)
        return D{part(sum.re), part(sum.im)};
    else
        return part(sum.re);
}

template <class D, class A, class B, class Call, class Part>
void sweepExact(Call call, Part part, const SweepOptions& options = {})
{
    sweepReduction<D, A, B>(
        call, [&](std::span<const A> x, std::span<const B> y) { return resultOf<D>(exactDot(x, y), part); }, options);
}

template <class A, class B, class S, class F, class D16, class D32>
void expectExactFamily(TarnStatus (*wide)(const A*, const B*, int, S*),
                       TarnStatus (*asFloat)(const A*, const B*, int, F*),
                       TarnStatus (*narrow)(const A*, const B*, int, D16*, int),
                       TarnStatus (*integer)(const A*, const B*, int, D32*, int))
{
    sweepExact<S, A, B>(wide, [](std::int64_t x) { return static_cast<Tarn64s>(x); });
    sweepExact<F, A, B>(asFloat, [](std::int64_t x) { return static_cast<Tarn32f>(static_cast<long double>(x)); },
                        {.depth = Depth::quick});
    for (int s : scaleFactors(-31, 31)) {
        SCOPED_TRACE(s);
        sweepExact<D16, A, B>([&](const A* p, const B* q, int len, D16* r) { return narrow(p, q, len, r, s); },
                              [&](std::int64_t x) { return model::scaled<Tarn16s>(x, std::clamp(s, -15, 31)); },
                              {.depth = Depth::quick});
        sweepExact<D32, A, B>([&](const A* p, const B* q, int len, D32* r) { return integer(p, q, len, r, s); },
                              [&](std::int64_t x) { return model::scaled<Tarn32s>(x, std::clamp(s, -31, 31)); },
                              {.depth = Depth::quick});
    }
    // The pair sum that leaves 32 bits, in every place.
    for (int len : {1, 2, 3, 7, 8, 9, 16, 33, 1000}) {
        std::vector<A> x(static_cast<std::size_t>(len));
        std::vector<B> y(static_cast<std::size_t>(len));
        auto* first = reinterpret_cast<Tarn16s*>(x.data());
        auto* second = reinterpret_cast<Tarn16s*>(y.data());
        std::fill_n(first, x.size() * sizeof(A) / 2, Tarn16s{-32768});
        std::fill_n(second, y.size() * sizeof(B) / 2, Tarn16s{-32768});
        S result{};
        EXPECT_EQ(tarnStsNoErr, wide(x.data(), y.data(), len, &result));
        const auto expected = resultOf<S>(exactDot(std::span<const A>(x), std::span<const B>(y)),
                                          [](std::int64_t t) { return Tarn64s{t}; });
        EXPECT_TRUE(valuesMatch(expected, result));
    }
}

TEST(DotProd_16s, IsExact)
{
    expectExactFamily(tarnsDotProd_16s64s, tarnsDotProd_16s32f, tarnsDotProd_16s_Sfs, tarnsDotProd_16s32s_Sfs);
}

TEST(DotProd_16sc, IsExact)
{
    expectExactFamily(tarnsDotProd_16sc64sc, tarnsDotProd_16sc32fc, tarnsDotProd_16sc_Sfs, tarnsDotProd_16sc32sc_Sfs);
}

TEST(DotProd_16s16sc, IsExact)
{
    expectExactFamily(tarnsDotProd_16s16sc64sc, tarnsDotProd_16s16sc32fc, tarnsDotProd_16s16sc_Sfs,
                      tarnsDotProd_16s16sc32sc_Sfs);
}

TEST(DotProd_16s, Corners)
{
    const Tarn16s lowest[] = {-32768, -32768};
    Tarn64s wide = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s64s(lowest, lowest, 2, &wide));
    EXPECT_EQ(Tarn64s{1} << 31, wide);
    const Tarn16s one[] = {5, 1, 1};
    const Tarn16s other[] = {1, 2, 0};
    Tarn16s result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s_Sfs(one, other, 1, &result, 1));
    EXPECT_EQ(2, result);
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s_Sfs(one, other, 3, &result, 1));
    EXPECT_EQ(4, result);
}

TEST(DotProd_16s, LongVectorsStayExact)
{
    const int len = 300001;
    const std::vector<Tarn16s> low(len, -32768);
    const std::vector<Tarn16s> high(len, 32767);
    Tarn64s wide = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s64s(low.data(), low.data(), len, &wide));
    EXPECT_EQ(Tarn64s{len} << 30, wide);
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s64s(low.data(), high.data(), len, &wide));
    EXPECT_EQ(-Tarn64s{len} * 32768 * 32767, wide);
    Tarn32s limited = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_16s32s_Sfs(low.data(), high.data(), len, &limited, 0));
    EXPECT_EQ(INT_MIN, limited);
}

// -- 32-bit integers through doubles ---------------------------------------------------------------------------------

Tarn32s roundedScaled(double total, int s)
{
    const RoundingModeScope scope(RoundingMode::nearest);
    const double x = std::ldexp(total, -std::clamp(s, -31, 93));
    if (x > 2147483647.0)
        return INT_MAX;
    return x < -2147483648.0 ? INT_MIN : static_cast<Tarn32s>(std::nearbyint(x));
}

// Operands whose sums are exact in a double, so that no order of summation shows.
template <class T>
std::vector<T> tame(std::size_t len, std::uint64_t seed)
{
    constexpr int bitsAway = 12;
    Random random(seed);
    const auto one = [&] { return static_cast<Tarn32s>(random.next()) >> bitsAway; };
    std::vector<T> values;
    for (std::size_t i = 0; i < len; ++i) {
        if constexpr (ComplexElement<T>)
            values.push_back(T{one(), one()});
        else
            values.push_back(static_cast<T>(one()));
    }
    return values;
}

struct Doubles {
    double re = 0;
    double im = 0;
};
template <class A, class B>
Doubles doubleDot(std::span<const A> x, std::span<const B> y)
{
    Doubles sum;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if constexpr (ComplexElement<A>) {
            sum.re += double(x[i].re) * y[i].re - double(x[i].im) * y[i].im;
            sum.im += double(x[i].re) * y[i].im + double(x[i].im) * y[i].re;
        } else if constexpr (ComplexElement<B>) {
            sum.re += double(x[i]) * y[i].re;
            sum.im += double(x[i]) * y[i].im;
        } else {
            sum.re += double(x[i]) * y[i];
        }
    }
    return sum;
}

template <class A, class B, class D>
void expectThroughDoubles(TarnStatus (*function)(const A*, const B*, int, D*, int))
{
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (int s : scaleFactors(-31, 93)) {
            if (mode != RoundingMode::nearest && s % 7 != 0)
                continue;
            SCOPED_TRACE(s);
            sweepReduction<D, A, B>([&](const A* p, const B* q, int len, D* r) { return function(p, q, len, r, s); },
                                    [&](std::span<const A> x, std::span<const B> y) {
                                        const Doubles sum = doubleDot(x, y);
                                        if constexpr (ComplexElement<D>)
                                            return D{roundedScaled(sum.re, s), roundedScaled(sum.im, s)};
                                        else
                                            return roundedScaled(sum.re, s);
                                    },
                                    {.depth = s == 0 && mode == RoundingMode::nearest ? Depth::full : Depth::quick},
                                    Columns<A, B>{tame<A>(1200, 101), tame<B>(1200, 102)});
        }
    }
}

TEST(DotProd_32s, IsRoundedToNearestInEveryMode)
{
    expectThroughDoubles<Tarn32s, Tarn32s, Tarn32s>(tarnsDotProd_32s_Sfs);
    expectThroughDoubles<Tarn32sc, Tarn32sc, Tarn32sc>(tarnsDotProd_32sc_Sfs);
    expectThroughDoubles<Tarn32s, Tarn32sc, Tarn32sc>(tarnsDotProd_32s32sc_Sfs);
    expectThroughDoubles<Tarn16s, Tarn32s, Tarn32s>(tarnsDotProd_16s32s32s_Sfs);
}

TEST(DotProd_32s, BeyondADoubleIsRounded)
{
    // (2^31 - 1)^2 has 62 bits: as a double it is 2^62 - 2^32. Scaled by 2^32 that is 2^30 - 1, where the exact value
    // would round to it as well; doubled it shows in the low bits that are gone.
    const Tarn32s high = INT_MAX;
    Tarn32s result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32s_Sfs(&high, &high, 1, &result, 32));
    EXPECT_EQ((1 << 30) - 1, result);
    const Tarn32s x[] = {INT_MAX, INT_MAX};
    const Tarn32s y[] = {INT_MAX, -INT_MAX};
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32s_Sfs(x, y, 2, &result, 0));
    EXPECT_EQ(0, result);
    // 2^62 absorbs a 1.
    const Tarn32s a[] = {INT_MIN, 1, INT_MIN};
    const Tarn32s b[] = {INT_MIN, 1, INT_MAX};
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32s_Sfs(a, b, 3, &result, 31));
    EXPECT_EQ(1, result);
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32s_Sfs(x, x, 2, &result, 0));
    EXPECT_EQ(INT_MAX, result);
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32s_Sfs(x, x, 2, &result, INT_MAX));
    EXPECT_EQ(0, result);
}

// -- Floats ----------------------------------------------------------------------------------------------------------

// Within the rounding of as many additions as there are elements, in the precision of `Work`.
template <class Work, class A, class B, class D>
void expectFloatDot(TarnStatus (*function)(const A*, const B*, int, D*))
{
    const std::size_t longest = 3000;
    const auto x = randomValues<A>(longest, 111, Values::unit);
    const auto y = randomValues<B>(longest, 112, Values::unit);
    for (int len : lengths({4, 8, 16, 32})) {
        const auto n = static_cast<std::size_t>(len);
        long double re = 0;
        long double im = 0;
        for (std::size_t i = 0; i < n; ++i) {
            using L = long double;
            if constexpr (ComplexElement<A>) {
                re += L(x[i].re) * y[i].re - L(x[i].im) * y[i].im;
                im += L(x[i].re) * y[i].im + L(x[i].im) * y[i].re;
            } else if constexpr (ComplexElement<B>) {
                re += L(x[i]) * y[i].re;
                im += L(x[i]) * y[i].im;
            } else {
                re += L(x[i]) * y[i];
            }
        }
        // Products of complex numbers of parts below 1 are below 2.
        const double bound = 2.0 * static_cast<double>(n) * static_cast<double>(n) *
                             static_cast<double>(std::numeric_limits<Work>::epsilon());
        const Match near{.ulps = 1, .absolute = bound};
        for (unsigned offset : {0U, 4U, 8U, 12U, 1U, 7U}) {
            const GuardedArray<A> first(std::span<const A>(x).first(n), Placement::offset(offset));
            const GuardedArray<B> second(std::span<const B>(y).first(n),
                                         offset % 3 == 0 ? Placement::offset(0) : Placement::atEnd());
            GuardedArray<D> result(1, Placement::offset(1));
            EXPECT_EQ(tarnStsNoErr, function(first.data(), second.data(), len, result.data()));
            if constexpr (ComplexElement<D>)
                EXPECT_TRUE(
                    valuesMatch(D{static_cast<RealOf<D>>(re), static_cast<RealOf<D>>(im)}, result.get(0), near));
            else
                EXPECT_TRUE(valuesMatch(static_cast<D>(re), result.get(0), near));
        }
    }
}

// Small integers have exact sums in whatever order: every element counts once.
template <class A, class B, class D>
void expectExactSmall(TarnStatus (*function)(const A*, const B*, int, D*))
{
    Random random(113);
    const auto fill = [&](auto& values) {
        using T = typename std::remove_cvref_t<decltype(values)>::value_type;
        for (T& value : values) {
            const auto one = [&] { return static_cast<Tarn32f>(static_cast<int>(random.below(41)) - 20); };
            if constexpr (ComplexElement<T>)
                value = T{one(), one()};
            else
                value = one();
        }
    };
    for (int len : lengths({4, 8, 16, 32})) {
        const auto n = static_cast<std::size_t>(len);
        std::vector<A> x(n);
        std::vector<B> y(n);
        fill(x);
        fill(y);
        const Doubles sum = doubleDot(std::span<const A>(x), std::span<const B>(y));
        D result{};
        EXPECT_EQ(tarnStsNoErr, function(x.data(), y.data(), len, &result));
        if constexpr (ComplexElement<D>) {
            EXPECT_EQ(sum.re, result.re) << len;
            EXPECT_EQ(sum.im, result.im) << len;
        } else {
            EXPECT_EQ(sum.re, result) << len;
        }
    }
}

TEST(DotProd, OfFloatsStaysWithinTheRounding)
{
    expectFloatDot<Tarn32f>(tarnsDotProd_32f);
    expectFloatDot<Tarn32f>(tarnsDotProd_32fc);
    expectFloatDot<Tarn32f>(tarnsDotProd_32f32fc);
    expectFloatDot<Tarn64f>(tarnsDotProd_64f);
    expectFloatDot<Tarn64f>(tarnsDotProd_64fc);
    expectFloatDot<Tarn64f>(tarnsDotProd_64f64fc);
    expectFloatDot<Tarn64f>(tarnsDotProd_32f64f);
    expectFloatDot<Tarn64f>(tarnsDotProd_32fc64fc);
    expectFloatDot<Tarn64f>(tarnsDotProd_32f32fc64fc);
}

TEST(DotProd, OfSmallIntegersAsFloatsIsExact)
{
    expectExactSmall(tarnsDotProd_32f);
    expectExactSmall(tarnsDotProd_32fc);
    expectExactSmall(tarnsDotProd_32f32fc);
    expectExactSmall(tarnsDotProd_64f);
    expectExactSmall(tarnsDotProd_64fc);
    expectExactSmall(tarnsDotProd_64f64fc);
    expectExactSmall(tarnsDotProd_32f64f);
    expectExactSmall(tarnsDotProd_32fc64fc);
    expectExactSmall(tarnsDotProd_32f32fc64fc);
}

TEST(DotProd, ConjugatesNothing)
{
    const Tarn32fc j{0, 1};
    Tarn32fc result{};
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32fc(&j, &j, 1, &result));
    EXPECT_TRUE(valuesMatch({-1, 0}, result));
    const std::vector<Tarn64fc> many(37, Tarn64fc{0, 1});
    Tarn64fc sum{};
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_64fc(many.data(), many.data(), 37, &sum));
    EXPECT_TRUE(valuesMatch({-37, 0}, sum));
}

TEST(DotProd, WideProductsAreFormedInDouble)
{
    // 1 + 2^-23 squared needs 47 bits.
    const Tarn32f x[] = {1 + 0x1p-23F, 0x1p60F, 1 + 0x1p-23F};
    const Tarn32f y[] = {1 + 0x1p-23F, 0, -1};
    Tarn64f result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32f64f(x, y, 3, &result));
    EXPECT_EQ((1 + 0x1p-23) * 0x1p-23, result);
}

TEST(DotProd, Checks)
{
    expectChecks(tarnsDotProd_32f, {}, array, array, length, array);
    expectChecks(tarnsDotProd_32fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_32f32fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_64f, {}, array, array, length, array);
    expectChecks(tarnsDotProd_64fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_64f64fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_32f64f, {}, array, array, length, array);
    expectChecks(tarnsDotProd_32fc64fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_32f32fc64fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16s64s, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16sc64sc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16s16sc64sc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16s32f, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16sc32fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16s16sc32fc, {}, array, array, length, array);
    expectChecks(tarnsDotProd_16s_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16s16sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16s32s_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16sc32sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16s16sc32sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_32s_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_32sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_32s32sc_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsDotProd_16s32s32s_Sfs, {}, array, array, length, array, 0);
}

} // namespace
} // namespace tarn::test
