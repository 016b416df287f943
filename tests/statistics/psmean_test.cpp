// Means: a sum, one division, and the asymmetric ends of 16-bit ones.
#include "model/reduction.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(Mean_32f, DividesTheFastSumInDouble)
{
    const auto values = randomValues<Tarn32f>(70000, 31, Values::mixed);
    atOffsets(values, lengths({16, 32768}), [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned offset) {
        Tarn32f mean = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsMean_32f(p, static_cast<int>(x.size()), &mean, tarnAlgHintFast));
        const Tarn64f quotient = model::sumFast(x, offset) / static_cast<Tarn64f>(x.size());
        EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(quotient), mean));
    });
}

TEST(Mean_32f, DividesTheAccurateSumInDouble)
{
    const auto values = randomValues<Tarn32f>(70000, 33, Values::unit);
    atOffsets(values, lengths({8, 65536}), [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned) {
        long double sum = 0;
        for (Tarn32f element : x)
            sum += element;
        const auto n = static_cast<long double>(x.size());
        for (int hint : {0, 2, 77}) {
            Tarn32f mean = 0;
            EXPECT_EQ(tarnStsNoErr, tarnsMean_32f(p, static_cast<int>(x.size()), &mean, hint));
            // Elements are below 1: the sums of both differ by n^2 2^-64 at most.
            EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(sum / n), mean,
                                    {.ulps = 1, .absolute = static_cast<double>(2 * n * 0x1p-64L)}));
        }
    });
}

TEST(Mean_32fc, DividesEachPart)
{
    const auto values = randomValues<Tarn32fc>(40000, 35, Values::mixed);
    atOffsets(values, lengths({8, 16384}), [](const Tarn32fc* p, std::span<const Tarn32fc> x, unsigned offset) {
        const auto n = static_cast<Tarn64f>(x.size());
        for (int hint : {tarnAlgHintFast, tarnAlgHintNone}) {
            const Tarn64fc sum = hint == tarnAlgHintFast ? model::sumFast(x, offset) : model::sumAccurate(x);
            const Tarn32fc expected{static_cast<Tarn32f>(sum.re / n), static_cast<Tarn32f>(sum.im / n)};
            Tarn32fc mean{};
            EXPECT_EQ(tarnStsNoErr, tarnsMean_32fc(p, static_cast<int>(x.size()), &mean, hint));
            EXPECT_TRUE(valuesMatch(expected, mean));
        }
    });
}

TEST(Mean_64, RealDividesAndComplexMultipliesByTheReciprocal)
{
    atOffsets(randomValues<Tarn64f>(3000, 37), lengths({8}),
              [](const Tarn64f* p, std::span<const Tarn64f> x, unsigned offset) {
                  Tarn64f mean = 0;
                  EXPECT_EQ(tarnStsNoErr, tarnsMean_64f(p, static_cast<int>(x.size()), &mean));
                  EXPECT_TRUE(valuesMatch(model::sum(x, offset) / static_cast<Tarn64f>(x.size()), mean));
              });
    atOffsets(randomValues<Tarn64fc>(3000, 39), lengths({8}),
              [](const Tarn64fc* p, std::span<const Tarn64fc> x, unsigned offset) {
                  const Tarn64f reciprocal = 1.0 / static_cast<Tarn64f>(x.size());
                  const Tarn64fc sum = model::sum(x, offset);
                  Tarn64fc mean{};
                  EXPECT_EQ(tarnStsNoErr, tarnsMean_64fc(p, static_cast<int>(x.size()), &mean));
                  EXPECT_TRUE(valuesMatch({sum.re * reciprocal, sum.im * reciprocal}, mean));
              });
    // 5 / 49 is a case in which the two differ.
    const std::vector<Tarn64f> reals(49, 5.0 / 49);
    std::vector<Tarn64fc> pairs(49, Tarn64fc{0, 0});
    pairs[0] = {5, 5};
    Tarn64fc mean{};
    EXPECT_EQ(tarnStsNoErr, tarnsMean_64fc(pairs.data(), 49, &mean));
    EXPECT_EQ(5 * (1.0 / 49), mean.re);
    EXPECT_NE(5.0 / 49, mean.re);
}

// Division in the caller's mode, conversion to the nearest integer in every mode.
Tarn32s nearest(Tarn64f x)
{
    const RoundingModeScope scope(RoundingMode::nearest);
    return model::converted(x);
}
Tarn16s meanOf(std::int64_t sum, std::size_t len, int s)
{
    const Tarn64f mean = model::halvedOrDoubled(static_cast<Tarn64f>(sum), s) / static_cast<Tarn64f>(len);
    return static_cast<Tarn16s>(nearest(std::min(mean, 32767.0)));
}
Tarn16s partMeanOf(std::int64_t sum, std::size_t len, int s)
{
    const Tarn64f mean = model::halvedOrDoubled(static_cast<Tarn64f>(sum), s) / static_cast<Tarn64f>(len);
    return model::saturatedTo<Tarn16s>(nearest(std::min(mean, 2147483647.0)));
}

TEST(Mean_16s, ScalesDividesAndRounds)
{
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (int s : scaleFactors(-40, 40)) {
            if (s > 2000 || s < -2000 || (mode != RoundingMode::nearest && s % 3 != 0))
                continue;
            SCOPED_TRACE(s);
            sweepReduction<Tarn16s, Tarn16s>(
                [&](const Tarn16s* p, int len, Tarn16s* mean) { return tarnsMean_16s_Sfs(p, len, mean, s); },
                [&](std::span<const Tarn16s> x) {
                    return meanOf(model::exactSum(x, [](Tarn16s e) { return e; }), x.size(), s);
                },
                {.depth = Depth::quick});
            sweepReduction<Tarn16sc, Tarn16sc>(
                [&](const Tarn16sc* p, int len, Tarn16sc* mean) { return tarnsMean_16sc_Sfs(p, len, mean, s); },
                [&](std::span<const Tarn16sc> x) {
                    return Tarn16sc{partMeanOf(model::exactSum(x, [](Tarn16sc z) { return z.re; }), x.size(), s),
                                    partMeanOf(model::exactSum(x, [](Tarn16sc z) { return z.im; }), x.size(), s)};
                },
                {.depth = Depth::quick});
        }
    }
}

TEST(Mean_16s, WrapsBelowAndSaturatesAbove)
{
    const std::vector<Tarn16s> low(10, -20000);
    const std::vector<Tarn16s> high(10, 20000);
    Tarn16s mean = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMean_16s_Sfs(low.data(), 10, &mean, -1));
    EXPECT_EQ(25536, mean);
    EXPECT_EQ(tarnStsNoErr, tarnsMean_16s_Sfs(high.data(), 10, &mean, -1));
    EXPECT_EQ(32767, mean);
    // Below 32 bits there is only the lowest integer, whose low 16 bits are 0.
    EXPECT_EQ(tarnStsNoErr, tarnsMean_16s_Sfs(low.data(), 10, &mean, -40));
    EXPECT_EQ(0, mean);
    const std::vector<Tarn16sc> both(10, Tarn16sc{-20000, 20000});
    Tarn16sc complex{};
    EXPECT_EQ(tarnStsNoErr, tarnsMean_16sc_Sfs(both.data(), 10, &complex, -1));
    EXPECT_EQ(-32768, complex.re);
    EXPECT_EQ(32767, complex.im);
}

TEST(Mean, OfOneElementIsTheElement)
{
    const Tarn32fc z{1.5F, -2.5F};
    Tarn32fc mean{};
    EXPECT_EQ(tarnStsNoErr, tarnsMean_32fc(&z, 1, &mean, tarnAlgHintFast));
    EXPECT_TRUE(valuesMatch(z, mean));
    const Tarn16s e = -32768;
    Tarn16s mean16 = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMean_16s_Sfs(&e, 1, &mean16, 0));
    EXPECT_EQ(e, mean16);
}

TEST(Mean, Checks)
{
    expectChecks(tarnsMean_32f, {}, array, length, array, 1);
    expectChecks(tarnsMean_32fc, {}, array, length, array, 0);
    expectChecks(tarnsMean_64f, {}, array, length, array);
    expectChecks(tarnsMean_64fc, {}, array, length, array);
    expectChecks(tarnsMean_16s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsMean_16sc_Sfs, {}, array, length, array, 0);
}

} // namespace
} // namespace tarn::test
