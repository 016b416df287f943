// Logarithms: integers against their brackets, computed here from the definition, floats within one unit of the last
// place, and the warnings.
#include "tarns/exponential.h"

#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace tarn::test {
namespace {

int warningOf(long long x) { return x == 0 ? tarnStsLnZeroArg : x < 0 ? tarnStsLnNegArg : tarnStsNoErr; }

/// ln x rounded to the nearest integer.
int roundedLog(long long x) { return static_cast<int>(std::floor(std::log(static_cast<long double>(x)) + 0.5L)); }

int shifted(int r, int s) { return s > 31 ? 0 : r >> s; }

/// 2 ln x as the trees put it together.
int doubledLog(int x)
{
    if (x < 2)
        return 0;
    if (x <= 181)
        return roundedLog(1LL * x * x);
    int power = 1;
    while (x > 181) {
        x /= 2;
        power *= 2;
    }
    return roundedLog(1LL * x * x) + doubledLog(power);
}

Tarn16s expectedLog(Tarn16s x, int s)
{
    if (x < 2)
        return 0;
    const long double log = std::log(static_cast<long double>(x));
    if (s == 0)
        return static_cast<Tarn16s>(roundedLog(x));
    if (s > 0)
        return s > 4 ? Tarn16s{0} : static_cast<Tarn16s>(std::floor(std::ldexp(log, -s) + 0.5L));
    if (s == -1)
        return static_cast<Tarn16s>(doubledLog(x));
    if (s == -15)
        return x == 2 ? 22713 : 32767;
    if (s < -15)
        return 32767;
    return static_cast<Tarn16s>(std::fmin(std::ldexp(log, -s) + 0.5L, 32767.0L));
}

/// -1 for elements that stay as they are.
int expectedDecibels(Tarn32s x)
{
    if (x < 2)
        return 0;
    if (x < 7)
        return std::vector<int>{3, 5, 6, 7, 8}[static_cast<std::size_t>(x - 2)];
    if (x == 7 || x == 8 || (x >= 10 && x <= 14))
        return -1;
    if (x == 9)
        return 10;
    if (x >= 1778279411)
        return 93;
    int r = 12;
    while (r < 92 && x > std::floor(std::pow(10.0L, (r + 2 - 0.5L) / 10)))
        r += 2;
    return r;
}

/// Elements on both sides of every threshold, small ones, random ones; bad ones far apart.
template <class T>
std::vector<T> arguments(bool withBad)
{
    std::vector<T> x;
    const auto push = [&x](long double value) {
        for (int step : {-1, 0, 1, 2})
            if (const long double v = std::floor(value) + step; v >= 1 && v <= std::numeric_limits<T>::max())
                x.push_back(static_cast<T>(v));
    };
    for (int k = 0; k < 44; ++k)
        push(std::exp(k / 2.0L - 0.25L));
    for (int k = 0; k <= 94; ++k)
        push(std::pow(10.0L, (k - 0.5L) / 10));
    for (int i = 1; i < 40; ++i)
        x.push_back(static_cast<T>(i));
    std::mt19937 random(3);
    while (x.size() < 2000)
        x.push_back(static_cast<T>(std::max<Tarn32s>(1, static_cast<T>(random() >> (random() % 31 + 1)))));
    std::shuffle(x.begin(), x.end(), random);
    x[0] = std::numeric_limits<T>::max();
    if (withBad)
        for (std::size_t i = 40; i < x.size(); i += 23)
            x[i] = i % 3 == 0 ? T{0} : i % 3 == 1 ? T{-5} : std::numeric_limits<T>::lowest();
    return x;
}

TEST(Ln, ShortIntegersOfEveryArgument)
{
    std::vector<Tarn16s> x;
    for (int i = -32768; i < 32768; ++i)
        x.push_back(static_cast<Tarn16s>(i));
    for (int s = -20; s <= 20; ++s) {
        auto y = x;
        EXPECT_EQ(tarnStsLnNegArg, tarnsLn_16s_ISfs(y.data(), 65536, s));
        for (std::size_t i = 0; i < x.size(); ++i)
            ASSERT_EQ(expectedLog(x[i], s), y[i]) << x[i] << " with " << s;
    }
    for (int s : {std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max()}) {
        Tarn16s y[] = {1, 2, 32767};
        EXPECT_EQ(tarnStsNoErr, tarnsLn_16s_ISfs(y, 3, s));
        EXPECT_EQ(0, y[0]);
        EXPECT_EQ(s < 0 ? 32767 : 0, y[1]);
        EXPECT_EQ(s < 0 ? 32767 : 0, y[2]);
    }
}

TEST(Ln, ShortIntegersAtEveryPlace)
{
    for (int s : {0, 2, -1, -5}) {
        const auto model = [s](Tarn16s x) { return Outcome<Tarn16s>{expectedLog(x, s), warningOf(x)}; };
        sweepElementwise<Tarn16s, Tarn16s>(
            [s](const Tarn16s* src, Tarn16s* dst, int len) { return tarnsLn_16s_Sfs(src, dst, len, s); }, model,
            {.depth = Depth::quick}, {arguments<Tarn16s>(true)});
    }
}

TEST(Ln, IntegersByTree)
{
    for (int s : {0, 1, 3, 5, 31, 32, 1000}) {
        const auto model = [s](Tarn32s x) {
            return Outcome<Tarn32s>{x < 2 ? 0 : shifted(roundedLog(x), s), warningOf(x)};
        };
        const Columns<Tarn32s> columns = {arguments<Tarn32s>(true)};
        sweepElementwise<Tarn32s, Tarn32s>(
            [s](const Tarn32s* src, Tarn32s* dst, int len) { return tarnsLn_32s_Sfs(src, dst, len, s); }, model,
            {.depth = Depth::quick}, columns);
        sweepInPlace<Tarn32s>([s](Tarn32s* x, int len) { return tarnsLn_32s_ISfs(x, len, s); }, model,
                              {.depth = Depth::quick}, columns);
        sweepElementwise<Tarn16s, Tarn32s>(
            [s](const Tarn32s* src, Tarn16s* dst, int len) { return tarnsLn_32s16s_Sfs(src, dst, len, s); }, model,
            {.depth = Depth::quick}, columns);
    }
}

/// Of a product in single precision: its error is some units of the 24th bit, and what it comes to as an integer.
template <class D>
void sweepFactors(TarnStatus (*call)(const Tarn32s*, D*, int, int), long double unit)
{
    for (int s : {-1, -3, -8, -20, -40, -127, -1000}) {
        const auto model = [s, unit](Tarn32s x) -> Outcome<D> {
            if (x < 1)
                return {std::numeric_limits<D>::lowest(), warningOf(x)};
            const long double y = std::ldexp(unit * std::log(static_cast<long double>(x)), -s);
            const long double limit = std::numeric_limits<D>::max();
            return {y >= limit ? std::numeric_limits<D>::max() : static_cast<D>(std::llrint(y)), tarnStsNoErr};
        };
        sweepElementwise<D, Tarn32s>([=](const Tarn32s* src, D* dst, int len) { return call(src, dst, len, s); }, model,
                                     {.depth = Depth::quick, .match = {.absolute = 1, .relative = 0x1p-22}},
                                     {arguments<Tarn32s>(true)});
    }
}

TEST(Ln, IntegersByFactor)
{
    sweepFactors<Tarn32s>(tarnsLn_32s_Sfs, 1);
    sweepFactors<Tarn16s>(tarnsLn_32s16s_Sfs, 1);
    sweepFactors<Tarn32s>(tarns10Log10_32s_Sfs, 10 / std::log(10.0L));
    // Rounded to nearest: 2 ln 2 = 1.39, 4 ln 2 = 2.77, 20 log10 2 = 6.02, 80 log10 3 = 38.17.
    const auto at = [](TarnStatus (*call)(Tarn32s*, int, int), Tarn32s x, int s) {
        const RoundingModeScope mode(RoundingMode::up);
        call(&x, 1, s);
        return x;
    };
    EXPECT_EQ(1, at(tarnsLn_32s_ISfs, 2, -1));
    EXPECT_EQ(3, at(tarnsLn_32s_ISfs, 2, -2));
    EXPECT_EQ(6, at(tarns10Log10_32s_ISfs, 2, -1));
    EXPECT_EQ(38, at(tarns10Log10_32s_ISfs, 3, -3));
    EXPECT_EQ(0, at(tarnsLn_32s_ISfs, 1, -1000));
    EXPECT_EQ(34, at(tarns10Log10_32s_ISfs, 7, -2));
}

TEST(Decibels, ByTree)
{
    for (int s : {0, 1, 2, 6, 31, 1000}) {
        const Columns<Tarn32s> columns = {arguments<Tarn32s>(true)};
        sweepInPlace<Tarn32s>([s](Tarn32s* x, int len) { return tarns10Log10_32s_ISfs(x, len, s); },
                              [s](Tarn32s x) {
                                  const int r = expectedDecibels(x);
                                  return Outcome<Tarn32s>{r < 0 ? x : shifted(r, s), warningOf(x)};
                              },
                              {.depth = Depth::quick}, columns);
    }
    for (Tarn32s x = 1; x < 5000; ++x) {
        Tarn32s y = -77;
        EXPECT_EQ(tarnStsNoErr, tarns10Log10_32s_Sfs(&x, &y, 1, 0));
        const int r = expectedDecibels(x);
        EXPECT_EQ(r < 0 ? -77 : r, y) << x;
    }
}

TEST(Decibels, KnownValues)
{
    const auto at = [](Tarn32s x, int s) {
        tarns10Log10_32s_ISfs(&x, 1, s);
        return x;
    };
    EXPECT_EQ(20, at(100, 0));
    EXPECT_EQ(30, at(1000, 0));
    EXPECT_EQ(26, at(500, 0));
    EXPECT_EQ(8, at(8, 0));
    EXPECT_EQ(7, at(7, 3));
    EXPECT_EQ(93, at(2147483647, 0));
    EXPECT_EQ(92, at(1778279410, 0));
    EXPECT_EQ(92, at(1412537545, 0));
    EXPECT_EQ(90, at(1412537544, 0));
    EXPECT_EQ(46, at(2147483647, 1));
}

TEST(Ln, KnownValues)
{
    const auto at = [](Tarn32s x, int s, TarnStatus status) {
        EXPECT_EQ(status, tarnsLn_32s_ISfs(&x, 1, s));
        return x;
    };
    EXPECT_EQ(0, at(1, 0, tarnStsNoErr));
    EXPECT_EQ(0, at(0, 0, tarnStsLnZeroArg));
    EXPECT_EQ(0, at(-5, 0, tarnStsLnNegArg));
    EXPECT_EQ(21, at(2147483647, 0, tarnStsNoErr));
    EXPECT_EQ(10, at(2147483647, 1, tarnStsNoErr));
}

TEST(Ln, FirstBadIntegerDecides)
{
    Tarn32s zeroFirst[] = {5, 0, -1, 7};
    EXPECT_EQ(tarnStsLnZeroArg, tarnsLn_32s_ISfs(zeroFirst, 4, 0));
    EXPECT_EQ(2, zeroFirst[3]);
    Tarn32s negativeFirst[] = {5, -1, 0, 7};
    EXPECT_EQ(tarnStsLnNegArg, tarns10Log10_32s_ISfs(negativeFirst, 4, -2));
    Tarn16s shortFirst[] = {5, 0, -1, 7};
    EXPECT_EQ(tarnStsLnZeroArg, tarnsLn_16s_ISfs(shortFirst, 4, 0));
}

template <class D, class S>
void sweepFloats(TarnStatus (*outOfPlace)(const S*, D*, int))
{
    std::mt19937_64 random(2);
    std::vector<S> x;
    for (int i = 0; i < 6000; ++i) {
        const double unit = static_cast<double>(random() >> 11) * 0x1p-53;
        x.push_back(static_cast<S>(i % 2 == 0 ? 0.5 + unit : std::exp2(252 * unit - 126)));
    }
    // The error of the approximation itself is below one unit; the rounding of the expected value adds a half.
    const auto log = [](S a) { return static_cast<D>(std::log(static_cast<long double>(a))); };
    sweepElementwise<D, S>(outOfPlace, log, {.match = {.ulps = 1.5}}, {x});
    const auto hard = makeColumns<S>(Values::mixed, 3000);
    sweepElementwise<D, S>(
        outOfPlace,
        [&](std::span<const S> src) {
            Outcome<std::vector<D>> outcome;
            const auto any = [src](auto condition) { return std::any_of(src.begin(), src.end(), condition); };
            outcome.status = any([](S a) { return a < 0; })    ? tarnStsLnNegArg
                             : any([](S a) { return a == 0; }) ? tarnStsLnZeroArg
                                                               : tarnStsNoErr;
            for (const S a : src)
                outcome.value.push_back(log(a));
            return outcome;
        },
        {.depth = Depth::quick, .match = {.ulps = 1.5}}, hard);
}

TEST(Ln, Floats)
{
    sweepFloats<Tarn32f>(tarnsLn_32f);
    sweepFloats<Tarn64f>(tarnsLn_64f);
    sweepFloats<Tarn32f>(tarnsLn_64f32f);
    sweepFloats<Tarn32f, Tarn32f>([](const Tarn32f* src, Tarn32f* dst, int len) {
        std::memmove(dst, src, static_cast<std::size_t>(len) * sizeof *src);
        return tarnsLn_32f_I(dst, len);
    });
    sweepFloats<Tarn64f, Tarn64f>([](const Tarn64f* src, Tarn64f* dst, int len) {
        std::memmove(dst, src, static_cast<std::size_t>(len) * sizeof *src);
        return tarnsLn_64f_I(dst, len);
    });
}

TEST(Ln, WarningsOfFloats)
{
    Tarn32f zero[] = {1, -0.0F, 3, std::numeric_limits<Tarn32f>::quiet_NaN()};
    EXPECT_EQ(tarnStsLnZeroArg, tarnsLn_32f_I(zero, 4));
    EXPECT_EQ(-std::numeric_limits<Tarn32f>::infinity(), zero[1]);
    EXPECT_TRUE(std::isnan(zero[3]));
    Tarn32f negative[] = {-1, 2};
    EXPECT_EQ(tarnStsLnNegArg, tarnsLn_32f_I(negative, 2));
    EXPECT_EQ(0xFFC00000U, std::bit_cast<std::uint32_t>(negative[0]));
    Tarn64f wide[] = {1, -1, 2};
    EXPECT_EQ(tarnStsLnNegArg, tarnsLn_64f_I(wide, 3));
    EXPECT_EQ(0xFFF8000000000000ULL, std::bit_cast<std::uint64_t>(wide[1]));
    Tarn32f nan[] = {-std::numeric_limits<Tarn32f>::quiet_NaN(), std::numeric_limits<Tarn32f>::infinity()};
    EXPECT_EQ(tarnStsNoErr, tarnsLn_32f_I(nan, 2));
}

TEST(Ln, DependsOnNoControlWordAndLeavesItAlone)
{
    Tarn32f x[40];
    Tarn32f expectedValues[40];
    for (int i = 0; i < 40; ++i)
        x[i] = std::exp2(static_cast<Tarn32f>(7 * i - 140));
    tarnsLn_32f(x, expectedValues, 40);
    for (const unsigned word : {0x1F80U, 0x3F80U, 0x5FA0U, 0x7F80U, 0x9FC0U, 0xFFFFU}) {
        Tarn32f y[40];
        const MxcsrScope scope(word);
        tarnsLn_32f(x, y, 40);
        const unsigned left = readMxcsr();
        EXPECT_EQ(word, left);
        EXPECT_EQ(0, std::memcmp(expectedValues, y, sizeof y)) << std::hex << word;
    }
}

TEST(Ln, ChecksInOrder)
{
    expectChecks(tarnsLn_16s_Sfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_32s_Sfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_32s16s_Sfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarns10Log10_32s_Sfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_16s_ISfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_32s_ISfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarns10Log10_32s_ISfs, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_32f, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_64f, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_64f32f, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_32f_I, {.goodStatus = tarnStsLnNegArg});
    expectChecks(tarnsLn_64f_I, {.goodStatus = tarnStsLnNegArg});
}

} // namespace
} // namespace tarn::test
