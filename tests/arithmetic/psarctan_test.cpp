// Arctangents within one unit of the last place.
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

template <class T>
void sweepBoth(TarnStatus (*outOfPlace)(const T*, T*, int), TarnStatus (*inPlace)(T*, int))
{
    std::mt19937_64 random(2);
    std::vector<T> x;
    for (int i = 0; i < 6000; ++i) {
        const double unit = static_cast<double>(random() >> 11) * 0x1p-52 - 1;
        x.push_back(static_cast<T>(i % 2 == 0 ? 2 * unit : std::copysign(std::exp2(60 * unit), unit)));
    }
    const auto hard = makeColumns<T>(Values::mixed, 6000);
    for (std::size_t i = 0; i < x.size(); i += 5)
        x[i] = std::get<0>(hard)[i];
    const auto model = [](T a) { return static_cast<T>(std::atan(static_cast<long double>(a))); };
    // The error of the approximation itself is below one unit; the rounding of the expected value adds a half.
    sweepElementwise<T, T>(outOfPlace, model, {.match = {.ulps = 1.5}}, {x});
    sweepInPlace<T>(inPlace, model, {.match = {.ulps = 1.5}}, {x});
}

TEST(Arctan, Floats)
{
    sweepBoth<Tarn32f>(tarnsArctan_32f, tarnsArctan_32f_I);
    sweepBoth<Tarn64f>(tarnsArctan_64f, tarnsArctan_64f_I);
}

TEST(Arctan, Ends)
{
    const double infinity = std::numeric_limits<double>::infinity();
    Tarn64f x[] = {infinity, -infinity, -0.0, std::numeric_limits<double>::quiet_NaN(), 1, 5e-324};
    EXPECT_EQ(tarnStsNoErr, tarnsArctan_64f_I(x, 6));
    EXPECT_EQ(1.5707963267948966, x[0]);
    EXPECT_EQ(-1.5707963267948966, x[1]);
    EXPECT_TRUE(x[2] == 0 && std::signbit(x[2]));
    EXPECT_TRUE(std::isnan(x[3]));
    EXPECT_EQ(0.78539816339744831, x[4]);
    EXPECT_EQ(5e-324, x[5]);
}

TEST(Arctan, DependsOnNoControlWordAndLeavesItAlone)
{
    Tarn32f x[40];
    Tarn32f expectedValues[40];
    for (int i = 0; i < 40; ++i)
        x[i] = std::exp2(static_cast<Tarn32f>(i - 20)) * (i % 2 == 0 ? 1.1F : -1.3F);
    tarnsArctan_32f(x, expectedValues, 40);
    for (const unsigned word : {0x1F80U, 0x3F80U, 0x5FA0U, 0x7F80U, 0x9FC0U, 0xFFFFU}) {
        Tarn32f y[40];
        const MxcsrScope scope(word);
        tarnsArctan_32f(x, y, 40);
        const unsigned left = readMxcsr();
        EXPECT_EQ(word, left);
        EXPECT_EQ(0, std::memcmp(expectedValues, y, sizeof y)) << std::hex << word;
    }
}

TEST(Arctan, ChecksInOrder)
{
    expectChecks(tarnsArctan_32f);
    expectChecks(tarnsArctan_64f);
    expectChecks(tarnsArctan_32f_I);
    expectChecks(tarnsArctan_64f_I);
}

} // namespace
} // namespace tarn::test
