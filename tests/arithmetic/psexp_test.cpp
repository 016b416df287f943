// Exponentials: integers against their rule in extended precision, floats within one unit of the last place.
#include "tarns/exponential.h"

#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>

namespace tarn::test {
namespace {

/// x 2^-s, one half added and the fraction cut off, saturated.
template <class T>
T limited(long double x)
{
    constexpr auto bound = std::numeric_limits<T>::max();
    return x > static_cast<long double>(bound) ? bound : static_cast<T>(x + 0.5L);
}

long double scaledPower(long double x, int s) { return std::exp(x) * std::ldexp(1.0L, -s); }

/// The same with the power of e in double precision, which overflows.
long double scaledDouble(long double x, int s)
{
    return static_cast<long double>(static_cast<double>(std::exp(x))) * std::ldexp(1.0L, -s);
}

Tarn16s expected(Tarn16s x, int s)
{
    if (s >= 0 && s <= 16)
        return x > 24 ? 32767 : x < 0 ? 0 : limited<Tarn16s>(scaledPower(x, s));
    if (s >= -16 && s < 0)
        return x > 12 ? 32767 : x < -12 ? 0 : limited<Tarn16s>(scaledPower(x, s));
    return limited<Tarn16s>(scaledDouble(x, s));
}

Tarn32s expected(Tarn32s x, int s)
{
    if (s >= 0 && s <= 31)
        return x > 44 ? 2147483647 : x < 0 ? 0 : limited<Tarn32s>(scaledPower(x, s));
    if (s >= -31 && s < 0)
        return x > 22 ? 2147483647 : x < -22 ? 0 : limited<Tarn32s>(scaledPower(x, s));
    return limited<Tarn32s>(scaledDouble(static_cast<long double>(x), s));
}

/// Arguments around those whose results are neither 0 nor the bound, and those at the ends of the type.
template <class T>
Columns<T> argumentsFor(int s)
{
    std::mt19937 random(1);
    std::vector<T> x;
    const auto centre = std::clamp<double>(s * 0.6931, std::numeric_limits<T>::min() + 100.0,
                                           static_cast<double>(std::numeric_limits<T>::max()) - 100.0);
    for (int i = 0; i < 6000; ++i) {
        const auto near = static_cast<T>(centre + static_cast<int>(random() % 121) - 45);
        const T small = static_cast<T>(static_cast<int>(random() % 121) - 60);
        const T ends = random() % 2 == 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
        x.push_back(i % 8 == 7 ? ends : i % 2 == 0 ? near : small);
    }
    return {x};
}

template <class T>
void sweepScaled(TarnStatus (*outOfPlace)(const T*, T*, int, int), TarnStatus (*inPlace)(T*, int, int), int s)
{
    SCOPED_TRACE(s);
    const auto model = [s](T x) { return expected(x, s); };
    sweepElementwise<T, T>([=](const T* src, T* dst, int len) { return outOfPlace(src, dst, len, s); }, model,
                           {.depth = s == 0 ? Depth::full : Depth::quick}, argumentsFor<T>(s));
    sweepInPlace<T>([=](T* x, int len) { return inPlace(x, len, s); }, model, {.depth = Depth::quick},
                    argumentsFor<T>(s));
}

TEST(Exp, IntegersOfEveryTable)
{
    for (int s = -16; s <= 16; ++s)
        sweepScaled<Tarn16s>(tarnsExp_16s_Sfs, tarnsExp_16s_ISfs, s);
    for (int s = -31; s <= 31; ++s)
        sweepScaled<Tarn32s>(tarnsExp_32s_Sfs, tarnsExp_32s_ISfs, s);
}

TEST(Exp, IntegersOfOtherScaleFactors)
{
    for (int s : {-1000, -900, -100, -40, -32, -20, -17, 17, 18, 25, 32, 40, 64, 300, 1000}) {
        sweepScaled<Tarn16s>(tarnsExp_16s_Sfs, tarnsExp_16s_ISfs, s);
        sweepScaled<Tarn32s>(tarnsExp_32s_Sfs, tarnsExp_32s_ISfs, s);
    }
}

TEST(Exp, ScaleFactorsBeyondTheDoubles)
{
    Tarn32s y[3];
    const Tarn32s x[] = {std::numeric_limits<Tarn32s>::lowest(), 0, std::numeric_limits<Tarn32s>::max()};
    EXPECT_EQ(tarnStsNoErr, tarnsExp_32s_Sfs(x, y, 3, std::numeric_limits<int>::lowest()));
    EXPECT_EQ(0, y[0]);
    EXPECT_EQ(2147483647, y[1]);
    EXPECT_EQ(2147483647, y[2]);
    EXPECT_EQ(tarnStsNoErr, tarnsExp_32s_Sfs(x, y, 3, std::numeric_limits<int>::max()));
    EXPECT_EQ(0, y[0]);
    EXPECT_EQ(0, y[1]);
    EXPECT_EQ(0, y[2]); // 0 times infinity
    EXPECT_EQ(tarnStsNoErr, tarnsExp_32s_Sfs(x, y, 3, 1070));
    EXPECT_EQ(0, y[1]);
    EXPECT_EQ(2147483647, y[2]);
}

TEST(Exp, ValuesOfTheTables)
{
    const std::vector<Tarn16s> first = {1, 3, 7, 20, 55, 148, 403, 1097, 2981, 8103, 22026, 32767};
    for (std::size_t i = 0; i < first.size(); ++i) {
        Tarn16s x = static_cast<Tarn16s>(i);
        tarnsExp_16s_ISfs(&x, 1, 0);
        EXPECT_EQ(first[i], x) << i;
    }
    const auto doubled = [](Tarn16s x) {
        tarnsExp_16s_ISfs(&x, 1, -1);
        return x;
    };
    EXPECT_EQ(1, doubled(-1));
    EXPECT_EQ(2, doubled(0));
    EXPECT_EQ(5, doubled(1));
    Tarn16s x = -1;
    tarnsExp_16s_ISfs(&x, 1, 0);
    EXPECT_EQ(0, x);
}

TEST(Exp, WideIntegers)
{
    // In extended precision, which has the bits of the result, but not beyond: at 2^62 half a unit is not seen.
    const auto model = [](int s) {
        return [s](Tarn64s x) -> Tarn64s {
            const long double power = scaledPower(static_cast<long double>(x), s);
            return power >= 0x1p63L ? std::numeric_limits<Tarn64s>::max() : static_cast<Tarn64s>(power + 0.5L);
        };
    };
    for (int s : {0, 1, -1, 2, -5, 20, -30, 63, -64, 500, -500}) {
        SCOPED_TRACE(s);
        const SweepOptions options = {.depth = s == 0 ? Depth::full : Depth::quick, .match = {.relative = 0x1p-60}};
        sweepElementwise<Tarn64s, Tarn64s>(
            [s](const Tarn64s* src, Tarn64s* dst, int len) { return tarnsExp_64s_Sfs(src, dst, len, s); }, model(s),
            options, argumentsFor<Tarn64s>(s));
        sweepInPlace<Tarn64s>([s](Tarn64s* x, int len) { return tarnsExp_64s_ISfs(x, len, s); }, model(s), options,
                              argumentsFor<Tarn64s>(s));
    }
    // Every scale factor that leaves something of these arguments. Beyond 57 bits the model has too few left for
    // halves.
    std::vector<Tarn64s> x(121), y(121);
    std::iota(x.begin(), x.end(), -60);
    for (int s = -70; s <= 70; ++s) {
        ASSERT_EQ(tarnStsNoErr, tarnsExp_64s_Sfs(x.data(), y.data(), static_cast<int>(x.size()), s));
        for (std::size_t i = 0; i < x.size(); ++i)
            ASSERT_TRUE(valuesMatch<Tarn64s>(model(s)(x[i]), y[i], {.relative = 0x1p-57}))
                << "x " << x[i] << ", s " << s;
    }
    const auto at = [](Tarn64s x, int s) {
        tarnsExp_64s_ISfs(&x, 1, s);
        return x;
    };
    EXPECT_EQ(4727839468229346561, at(43, 0));
    EXPECT_EQ(1739274941520501047, at(42, 0));
    EXPECT_EQ(std::numeric_limits<Tarn64s>::max(), at(44, 0));
    EXPECT_EQ(std::numeric_limits<Tarn64s>::max(), at(45, 0));
    EXPECT_EQ(0, at(-1, 0));
    EXPECT_EQ(6425800057179654138, at(44, 1)); // e^44 = 12851600114359308275.8
    EXPECT_EQ(3478549883041002095, at(42, -1));
    EXPECT_EQ(1, at(-1, -1)); // 0.74
    EXPECT_EQ(0, at(-2, -1)); // 0.27
}

template <class D, class S>
void sweepFloats(TarnStatus (*outOfPlace)(const S*, D*, int))
{
    std::mt19937 random(2);
    std::vector<S> x;
    for (int i = 0; i < 6000; ++i) {
        const double unit = static_cast<double>(random()) * 0x1p-31 - 1;
        x.push_back(static_cast<S>(unit * (i % 3 == 0 ? 1 : i % 3 == 1 ? 80 : 760)));
    }
    const auto hard = makeColumns<S>(Values::mixed, 6000);
    for (std::size_t i = 0; i < x.size(); i += 5)
        x[i] = std::get<0>(hard)[i];
    // The error of the approximation itself is below one unit; the rounding of the expected value adds a half.
    sweepElementwise<D, S>(outOfPlace, [](S a) { return static_cast<D>(std::exp(static_cast<long double>(a))); },
                           {.match = {.ulps = 1.5}}, {x});
}

TEST(Exp, Floats)
{
    sweepFloats<Tarn32f>(tarnsExp_32f);
    sweepFloats<Tarn64f>(tarnsExp_64f);
    sweepFloats<Tarn64f>(tarnsExp_32f64f);
    sweepFloats<Tarn32f, Tarn32f>([](const Tarn32f* src, Tarn32f* dst, int len) {
        std::copy_n(src, len, dst);
        return tarnsExp_32f_I(dst, len);
    });
    sweepFloats<Tarn64f, Tarn64f>([](const Tarn64f* src, Tarn64f* dst, int len) {
        std::copy_n(src, len, dst);
        return tarnsExp_64f_I(dst, len);
    });
}

TEST(Exp, EndsOfTheFloats)
{
    const Tarn32f infinity = std::numeric_limits<Tarn32f>::infinity();
    Tarn32f x[] = {0, 89, -104, infinity, -infinity, std::numeric_limits<Tarn32f>::quiet_NaN()};
    EXPECT_EQ(tarnStsNoErr, tarnsExp_32f_I(x, 6));
    EXPECT_EQ(1, x[0]);
    EXPECT_EQ(infinity, x[1]);
    EXPECT_EQ(0, x[2]);
    EXPECT_EQ(infinity, x[3]);
    EXPECT_EQ(0, x[4]);
    EXPECT_TRUE(std::isnan(x[5]));
}

TEST(Exp, DependsOnNoControlWordAndLeavesItAlone)
{
    Tarn32f x[40];
    Tarn32f expectedValues[40];
    for (int i = 0; i < 40; ++i)
        x[i] = static_cast<Tarn32f>(5 * i - 100);
    tarnsExp_32f(x, expectedValues, 40);
    for (const unsigned word : {0x1F80U, 0x3F80U, 0x5FA0U, 0x7F80U, 0x9FC0U, 0xFFFFU}) {
        Tarn32f y[40];
        const MxcsrScope scope(word);
        tarnsExp_32f(x, y, 40);
        const unsigned left = readMxcsr();
        EXPECT_EQ(word, left);
        EXPECT_EQ(0, std::memcmp(expectedValues, y, sizeof y)) << std::hex << word;
    }
}

TEST(Exp, ChecksInOrder)
{
    expectChecks(tarnsExp_16s_Sfs);
    expectChecks(tarnsExp_32s_Sfs);
    expectChecks(tarnsExp_64s_Sfs);
    expectChecks(tarnsExp_16s_ISfs);
    expectChecks(tarnsExp_32s_ISfs);
    expectChecks(tarnsExp_64s_ISfs);
    expectChecks(tarnsExp_32f);
    expectChecks(tarnsExp_64f);
    expectChecks(tarnsExp_32f64f);
    expectChecks(tarnsExp_32f_I);
    expectChecks(tarnsExp_64f_I);
}

} // namespace
} // namespace tarn::test
