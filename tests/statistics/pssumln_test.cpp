// Sums of logarithms: values, what ends a sum in a group and behind the groups, and what is left of it.
#include "support/checks.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>

namespace tarn::test {
namespace {

constexpr auto infinity = std::numeric_limits<Tarn32f>::infinity();
constexpr auto nan = std::numeric_limits<Tarn32f>::quiet_NaN();

template <class T>
long double logarithms(std::span<const T> x)
{
    long double sum = 0;
    for (T element : x)
        sum += std::log(static_cast<long double>(element));
    return sum;
}

template <class T, class R>
R sumLn(TarnStatus (*function)(const T*, int, R*), const std::vector<T>& x, int status = tarnStsNoErr)
{
    const GuardedArray<T> array(std::span<const T>(x), Placement::atEnd());
    GuardedArray<R> sum(1, Placement::offset(1));
    EXPECT_EQ(status, function(array.data(), static_cast<int>(x.size()), sum.data()));
    return sum.get(0);
}

template <class T>
std::vector<T> positives(std::size_t len, std::uint64_t seed)
{
    Random random(seed);
    std::vector<T> values;
    while (values.size() < len) {
        if constexpr (std::is_integral_v<T>)
            values.push_back(static_cast<T>(1 + random.below(32767)));
        else
            values.push_back(static_cast<T>(std::exp(40 * random.unit() - 20)));
    }
    return values;
}

TEST(SumLn, IsTheSumOfLogarithms)
{
    // A block's products err by 2^-53 at each of 512 multiplications, which is 2^-43 in the logarithm; the sum of
    // doubles by 2^-53 of itself a block.
    auto tolerance = [](std::size_t len, long double sum) {
        const auto blocks = static_cast<double>(1 + len / 1024);
        return blocks * (0x1p-43 + 0x1p-52 * static_cast<double>(std::fabs(sum)));
    };
    const auto tried = lengths({4, 8, 1024, 2048, 4096});
    atOffsets(positives<Tarn32f>(9000, 51), tried, [&](const Tarn32f* p, std::span<const Tarn32f> x, unsigned) {
        const long double expected = logarithms(x);
        const double bound = tolerance(x.size(), expected);
        Tarn32f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSumLn_32f(p, static_cast<int>(x.size()), &sum));
        EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(expected), sum, {.ulps = 1, .absolute = bound}));
        Tarn64f wide = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSumLn_32f64f(p, static_cast<int>(x.size()), &wide));
        EXPECT_TRUE(valuesMatch(static_cast<Tarn64f>(expected), wide, {.ulps = 1, .absolute = bound}));
    });
    atOffsets(positives<Tarn64f>(9000, 53), tried, [&](const Tarn64f* p, std::span<const Tarn64f> x, unsigned) {
        const long double expected = logarithms(x);
        Tarn64f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSumLn_64f(p, static_cast<int>(x.size()), &sum));
        EXPECT_TRUE(
            valuesMatch(static_cast<Tarn64f>(expected), sum, {.ulps = 1, .absolute = tolerance(x.size(), expected)}));
    });
    atOffsets(positives<Tarn16s>(9000, 55), tried, [&](const Tarn16s* p, std::span<const Tarn16s> x, unsigned) {
        const long double expected = logarithms(x);
        Tarn32f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSumLn_16s32f(p, static_cast<int>(x.size()), &sum));
        EXPECT_TRUE(
            valuesMatch(static_cast<Tarn32f>(expected), sum, {.ulps = 1, .absolute = tolerance(x.size(), expected)}));
    });
}

TEST(SumLn, HoldsTheWholeRangeWithoutOverflow)
{
    for (Tarn32f value : {std::numeric_limits<Tarn32f>::max(), std::numeric_limits<Tarn32f>::min(), 1.9999999F}) {
        const std::vector<Tarn32f> values(5000, value);
        const double expected = 5000 * std::log(double{value});
        EXPECT_NEAR(expected, sumLn(tarnsSumLn_32f64f, values), 1e-8);
    }
    for (Tarn64f value : {std::numeric_limits<Tarn64f>::max(), std::numeric_limits<Tarn64f>::min(), 1.9999999}) {
        const std::vector<Tarn64f> values(5001, value);
        EXPECT_NEAR(5001 * std::log(value), sumLn(tarnsSumLn_64f, values), 1e-6);
    }
}

TEST(SumLn, OfPowersOfTwoIsExact)
{
    // Mantissas are 1, their logarithm is 0: what is left is the sum of exponents times the processor's constant.
    std::vector<Tarn32f> values;
    int exponents = 0;
    for (int i = 0; i < 2048; ++i) {
        values.push_back(std::ldexp(1.0F, i % 200 - 100));
        exponents += i % 200 - 100;
    }
    const long double ln2 = 0xB.17217F7D1CF79ACp-4L;
    int firstHalf = 0;
    for (int i = 0; i < 1024; ++i)
        firstHalf += i % 200 - 100;
    const double first = static_cast<double>(ln2 * firstHalf);
    const double both = static_cast<double>(first + ln2 * (exponents - firstHalf));
    EXPECT_TRUE(valuesMatch(both, sumLn(tarnsSumLn_32f64f, values)));
}

// A sum that stops at element `at` of `len`, of which `bad` there has no logarithm.
template <class T, class R>
void expectStop(TarnStatus (*function)(const T*, int, R*), std::size_t group, T bad, int status)
{
    for (std::size_t len : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 23, 1024, 1027, 1030, 2048, 2051, 3000})
        for (std::size_t at : {std::size_t{0}, std::size_t{1}, len / 2, len - 2, len - 1}) {
            if (at >= len)
                continue;
            SCOPED_TRACE(std::to_string(len) + " elements, bad at " + std::to_string(at));
            auto values = positives<T>(len, 57);
            values[at] = bad;
            const std::size_t whole = len - len % group;
            const std::size_t summed = at >= whole ? at : at / 1024 * 1024;
            const long double expected = logarithms(std::span<const T>(values).first(summed));
            const auto sum = sumLn(function, values, status);
            EXPECT_TRUE(valuesMatch(static_cast<R>(expected), sum, {.ulps = 2, .absolute = 1e-11}));
        }
}

TEST(SumLn, StopsAtZeroesAndNegativeElements)
{
    expectStop<Tarn32f, Tarn32f>(tarnsSumLn_32f, 4, 0.0F, tarnStsLnZeroArg);
    for (Tarn32f negative : {-0.0F, -1.0F, -1e-40F, -infinity})
        expectStop<Tarn32f, Tarn32f>(tarnsSumLn_32f, 4, negative, tarnStsLnNegArg);
    expectStop<Tarn32f, Tarn64f>(tarnsSumLn_32f64f, 4, 0.0F, tarnStsLnZeroArg);
    expectStop<Tarn32f, Tarn64f>(tarnsSumLn_32f64f, 4, -0.0F, tarnStsLnNegArg);
    expectStop<Tarn64f, Tarn64f>(tarnsSumLn_64f, 2, 0.0, tarnStsLnZeroArg);
    for (Tarn64f negative : {-0.0, -1.0, -1e-310, -HUGE_VAL})
        expectStop<Tarn64f, Tarn64f>(tarnsSumLn_64f, 2, negative, tarnStsLnNegArg);
    expectStop<Tarn16s, Tarn32f>(tarnsSumLn_16s32f, 8, 0, tarnStsLnZeroArg);
    for (Tarn16s negative : {Tarn16s{-1}, Tarn16s{-32768}})
        expectStop<Tarn16s, Tarn32f>(tarnsSumLn_16s32f, 8, negative, tarnStsLnNegArg);
}

TEST(SumLn, MinusZeroIsNegative)
{
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {-0.0F}, tarnStsLnNegArg));
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {1.0F, 2.0F, -0.0F, 4.0F}, tarnStsLnNegArg));
}

TEST(SumLn, TheFirstBadElementOfAGroupDecides)
{
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {1.0F, -1.0F, 0.0F, 4.0F}, tarnStsLnNegArg));
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {1.0F, 0.0F, -1.0F, 4.0F}, tarnStsLnZeroArg));
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {nan, infinity, 3.0F, -1.0F}, tarnStsLnNegArg));
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {1, 1, 1, 0.0F, -1, 1, 1, 1}, tarnStsLnZeroArg));
    EXPECT_EQ(0.0F, sumLn(tarnsSumLn_32f, {1, 1, infinity, 1, -1, 1, 1, 1}));
}

TEST(SumLn, InfinitiesAndNaNsInAGroupGiveZero)
{
    for (Tarn32f special : {infinity, nan, -nan})
        for (std::size_t at : {0, 3, 5, 1023, 1500, 2047}) {
            auto values = positives<Tarn32f>(2048, 59);
            values[at] = special;
            EXPECT_TRUE(valuesMatch(0.0F, sumLn(tarnsSumLn_32f, values)));
            EXPECT_TRUE(valuesMatch(0.0, sumLn(tarnsSumLn_32f64f, values)));
            auto doubles = positives<Tarn64f>(2048, 59);
            doubles[at] = special;
            EXPECT_TRUE(valuesMatch(0.0, sumLn(tarnsSumLn_64f, doubles)));
        }
}

TEST(SumLn, BehindTheGroupsTheSignBitDecides)
{
    EXPECT_EQ(infinity, sumLn(tarnsSumLn_32f, {2, 2, 2, 2, infinity}));
    EXPECT_TRUE(std::isnan(sumLn(tarnsSumLn_32f, {2, 2, 2, 2, nan, 3})));
    EXPECT_EQ(4 * std::log(2.0F), sumLn(tarnsSumLn_32f, {2, 2, 2, 2, -nan}, tarnStsLnNegArg));
    EXPECT_EQ(4 * std::log(2.0F), sumLn(tarnsSumLn_32f, {2, 2, 2, 2, -infinity}, tarnStsLnNegArg));
    EXPECT_EQ(HUGE_VAL, sumLn(tarnsSumLn_64f, {2, 2, HUGE_VAL}));
    EXPECT_EQ(2 * std::log(2.0),
              sumLn(tarnsSumLn_64f, {2, 2, -std::numeric_limits<Tarn64f>::quiet_NaN()}, tarnStsLnNegArg));
}

TEST(SumLn, DenormalsInAGroupAreReadByTheirField)
{
    // (1 + fraction) 2^-127.
    const Tarn32f denormal = 0x1p-127F;
    EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(std::log(1.5) - 127 * std::log(2.0)),
                            sumLn(tarnsSumLn_32f, {denormal, 1, 1, 1}), {.ulps = 1}));
    EXPECT_TRUE(
        valuesMatch(static_cast<Tarn32f>(-127 * std::log(2.0)), sumLn(tarnsSumLn_32f, {denormal}), {.ulps = 1}));
    const Tarn32f smallest = std::numeric_limits<Tarn32f>::denorm_min();
    EXPECT_TRUE(
        valuesMatch(static_cast<Tarn32f>(-149 * std::log(2.0)), sumLn(tarnsSumLn_32f, {smallest}), {.ulps = 1}));
    const Tarn64f tiny = 0x1.8p-1023;
    EXPECT_TRUE(valuesMatch(std::log(1.75) - 1023 * std::log(2.0), sumLn(tarnsSumLn_64f, {tiny, 1}), {.ulps = 1}));
    EXPECT_TRUE(valuesMatch(std::log(1.5) - 1023 * std::log(2.0), sumLn(tarnsSumLn_64f, {tiny}), {.ulps = 1}));
}

TEST(SumLn, Checks)
{
    const auto singles = positives<Tarn32f>(8, 1);
    const auto doubles = positives<Tarn64f>(8, 1);
    const auto integers = positives<Tarn16s>(8, 1);
    expectChecks(tarnsSumLn_32f, {}, object(singles.data()), length, array);
    expectChecks(tarnsSumLn_32f64f, {}, object(singles.data()), length, array);
    expectChecks(tarnsSumLn_64f, {}, object(doubles.data()), length, array);
    expectChecks(tarnsSumLn_16s32f, {}, object(integers.data()), length, array);
}

} // namespace
} // namespace tarn::test
