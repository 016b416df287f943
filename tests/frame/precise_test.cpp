// The precise scalar functions against the C library's extended precision.
#include "frame/precise.h"
#include "frame/trigonometry.h"
#include "support/compare.h"
#include "support/fpstate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace tarn::test {
namespace {

using Limits = std::numeric_limits<double>;

struct Function {
    const char* name;
    double (*ours)(double);
    long double (*reference)(long double);
};

const Function sine = {"sine", preciseSine, [](long double x) { return std::sin(x); }};
const Function cosine = {"cosine", preciseCosine, [](long double x) { return std::cos(x); }};
const Function exponential = {"exponential", preciseExponential, [](long double x) { return std::exp(x); }};
const Function logarithm = {"logarithm", preciseLogarithm, [](long double x) { return std::log(x); }};

/// The distance from the true value in units of the last place of the nearest double. The reference's own error is at
/// most one unit of a place that is 2048 times smaller.
double errorIn(const Function& f, double x)
{
    const double y = f.ours(x);
    const long double expected = f.reference(x);
    if (std::isinf(y) && std::fabs(expected) >= Limits::max())
        return 0;
    const int exponent =
        expected == 0 ? Limits::min_exponent : std::max(std::ilogb(expected) + 1, Limits::min_exponent);
    return static_cast<double>(std::fabs(y - expected) / std::ldexp(1.0L, exponent - Limits::digits));
}

constexpr double bound = 0.501;

void expectAccurate(const Function& f, double from, double to, int samples = 100000)
{
    std::mt19937_64 random(1);
    double worst = 0;
    double where = 0;
    for (int i = 0; i < samples; ++i) {
        const double part = static_cast<double>(random() >> 11) * 0x1p-53;
        const double x = from * (1 - part) + to * part;
        const double error = errorIn(f, x);
        if (!(error <= worst)) {
            worst = error;
            where = x;
        }
    }
    EXPECT_LE(worst, bound) << f.name << " of " << where << " is " << f.ours(where);
}

/// Any double, all exponents alike.
double anyDouble(std::mt19937_64& random)
{
    double x;
    do {
        x = std::bit_cast<double>(random());
    } while (!std::isfinite(x));
    return x;
}

TEST(PreciseSine, IsWithinTheBoundForAnglesOfAnySize)
{
    for (const double radius : {0.008, 0.8, 7.0, 1000.0, 1e6, 1.1e6, 1e9, 1e17, 1e300})
        for (const Function& f : {sine, cosine})
            expectAccurate(f, -radius, radius);
    std::mt19937_64 random(2);
    for (int i = 0; i < 100000; ++i) {
        const double x = anyDouble(random);
        ASSERT_LE(errorIn(sine, x), bound) << x;
        ASSERT_LE(errorIn(cosine, x), bound) << x;
    }
}

TEST(PreciseSine, IsWithinTheBoundBesideMultiplesOfAQuarterTurn)
{
    for (int k = 0; k < 1000000; k += 37)
        for (int step : {-2, -1, 0, 1, 2}) {
            const double nearest = k * 1.5707963267948966;
            const double x = std::bit_cast<double>(std::bit_cast<std::int64_t>(nearest + 1) + step) - 1;
            ASSERT_LE(errorIn(sine, x), bound) << x;
            ASSERT_LE(errorIn(cosine, -x), bound) << x;
        }
    // The double that comes nearest to a multiple of all.
    const double nearest = std::ldexp(6381956970095103.0, 797);
    EXPECT_LE(errorIn(sine, nearest), bound);
    EXPECT_LE(errorIn(cosine, -nearest), bound);
}

TEST(PreciseSine, KeepsSmallAnglesAndZeros)
{
    for (const double x : {0.0, -0.0, 5e-324, -1e-310, 1e-200, 0x1p-33, 0x1p-32, -0x1.8p-32}) {
        EXPECT_TRUE(valuesMatch(x, preciseSine(x)));
        EXPECT_TRUE(valuesMatch(1.0, preciseCosine(x)));
    }
    EXPECT_TRUE(valuesMatch(-preciseSine(0.3), preciseSine(-0.3)));
    EXPECT_TRUE(valuesMatch(preciseCosine(-1e10), preciseCosine(1e10)));
    for (const double x : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_TRUE(std::isnan(preciseSine(x)));
        EXPECT_TRUE(std::isnan(preciseCosine(x)));
    }
}

TEST(PreciseExponential, IsWithinTheBound)
{
    for (const double radius : {1e-9, 0.004, 0.4, 3.0, 100.0, 708.0})
        expectAccurate(exponential, -radius, radius);
    expectAccurate(exponential, 709, 709.78);
    // Denormal results are rounded once.
    expectAccurate(exponential, -745.2, -708.3);
    expectAccurate(exponential, -708.4, -708.39);
}

TEST(PreciseExponential, EndsWhereTheDoublesEnd)
{
    EXPECT_TRUE(valuesMatch(1.0, preciseExponential(0)));
    EXPECT_TRUE(valuesMatch(1.0, preciseExponential(-0.0)));
    EXPECT_TRUE(valuesMatch(1.0, preciseExponential(5e-324)));
    EXPECT_LT(preciseExponential(709.782712893384), Limits::infinity());
    EXPECT_EQ(Limits::infinity(), preciseExponential(709.7827128933841));
    EXPECT_EQ(5e-324, preciseExponential(-745.1332191019411));
    EXPECT_TRUE(valuesMatch(0.0, preciseExponential(-745.1332191019412)));
    EXPECT_EQ(Limits::infinity(), preciseExponential(Limits::infinity()));
    EXPECT_TRUE(valuesMatch(0.0, preciseExponential(-Limits::infinity())));
    EXPECT_TRUE(std::isnan(preciseExponential(Limits::quiet_NaN())));
}

TEST(PreciseLogarithm, IsWithinTheBound)
{
    for (const double distance : {1e-12, 0.003, 0.01, 0.3})
        expectAccurate(logarithm, 1 - distance, 1 + distance);
    expectAccurate(logarithm, 0, 1e-300);
    expectAccurate(logarithm, 0, 4e-310);
    expectAccurate(logarithm, 0.5, 4);
    expectAccurate(logarithm, 1, 1e5);
    std::mt19937_64 random(3);
    for (int i = 0; i < 100000; ++i) {
        const double x = std::fabs(anyDouble(random));
        ASSERT_LE(errorIn(logarithm, x), bound) << x;
    }
    for (int n = -1074; n < 1024; ++n)
        ASSERT_LE(errorIn(logarithm, std::ldexp(1.0, n)), bound) << n;
}

TEST(PreciseLogarithm, EndsWhereTheDoublesEnd)
{
    EXPECT_TRUE(valuesMatch(0.0, preciseLogarithm(1)));
    EXPECT_EQ(-Limits::infinity(), preciseLogarithm(0));
    EXPECT_EQ(-Limits::infinity(), preciseLogarithm(-0.0));
    EXPECT_EQ(Limits::infinity(), preciseLogarithm(Limits::infinity()));
    for (const double x : {-5e-324, -1.0, -Limits::infinity(), Limits::quiet_NaN()})
        EXPECT_TRUE(std::isnan(preciseLogarithm(x))) << x;
}

TEST(PowersOfTwo, AreExactForAnyExponent)
{
    for (int s = -1100; s <= 1100; ++s)
        ASSERT_TRUE(valuesMatch(std::ldexp(1.0, -s), twoToMinusAny(s))) << s;
    EXPECT_EQ(0, twoToMinusAny(std::numeric_limits<int>::max()));
    EXPECT_EQ(Limits::infinity(), twoToMinusAny(std::numeric_limits<int>::lowest()));
}

/// A number that depends on every bit of the results over many arguments.
std::uint64_t digestOf(const Function& f, double from, double to)
{
    std::uint64_t digest = 0;
    constexpr int samples = 20000;
    for (int i = 0; i < samples; ++i)
        digest = digest * 0x9E3779B97F4A7C15 + std::bit_cast<std::uint64_t>(f.ours(from + (to - from) * i / samples));
    return digest;
}

TEST(PreciseFunctions, GiveTheSameBitsUnderEveryAbiAndCompiler)
{
    EXPECT_EQ(1393514161131289588ULL, digestOf(sine, -100, 1e5));
    EXPECT_EQ(1342360539726149480ULL, digestOf(cosine, -1e12, 1e18));
    EXPECT_EQ(11758181784356931967ULL, digestOf(exponential, -750, 710));
    EXPECT_EQ(11062806678130351609ULL, digestOf(logarithm, 0x1p-30, 1e5));
}

TEST(PreciseFunctions, DoNotDependOnTheControlWord)
{
    const unsigned own = readMxcsr();
    for (const Function& f : {sine, cosine, exponential, logarithm})
        for (const double x : {0.3, 2.0, 77.77, 1e8, 700.1, 0x1p-1060}) {
            const double expected = f.ours(x);
            for (const unsigned mode : {0x2000U, 0x4000U, 0x6000U, 0x8040U, 0xE040U}) {
                writeMxcsr((own & ~0x3FU) | mode);
                const double actual = f.ours(x);
                const unsigned left = readMxcsr();
                writeMxcsr(own);
                EXPECT_TRUE(valuesMatch(expected, actual)) << f.name << " of " << x << " under " << mode;
                EXPECT_EQ((own & ~0x3FU) | mode, left & ~0x3FU);
            }
        }
}

TEST(VectorSine, IsThePreciseSine)
{
    for (int i = -4000; i < 4000; i += 2) {
        const Tarn64f x[] = {i * 123.456789, (i + 1) * 0.0123456789};
        Tarn64f y[2];
        zpldSin2(x, y);
        for (int j : {0, 1})
            EXPECT_TRUE(valuesMatch(preciseSine(x[j]), y[j]));
        zpldCos2(x, y);
        for (int j : {0, 1})
            EXPECT_TRUE(valuesMatch(preciseCosine(x[j]), y[j]));
        Tarn64f inPlace[] = {x[1], -x[0]};
        zpldSin2(inPlace, inPlace);
        EXPECT_TRUE(valuesMatch(preciseSine(x[1]), inPlace[0]));
        EXPECT_TRUE(valuesMatch(preciseSine(-x[0]), inPlace[1]));
        const Tarn32f narrow[] = {static_cast<Tarn32f>(x[0]), static_cast<Tarn32f>(x[1]), static_cast<Tarn32f>(-x[0]),
                                  static_cast<Tarn32f>(3 * x[1])};
        Tarn32f z[4];
        zplsSin4(narrow, z);
        for (int j : {0, 1, 2, 3})
            EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(std::sin(static_cast<long double>(narrow[j]))), z[j]));
        zplsCos4(narrow, z);
        for (int j : {0, 1, 2, 3})
            EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(std::cos(static_cast<long double>(narrow[j]))), z[j]));
    }
}

} // namespace
} // namespace tarn::test
