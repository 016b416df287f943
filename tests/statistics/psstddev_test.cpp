// Sample deviations: the one-pass formula in the stated precision, its guards against a negative difference, the scale.
#include "model/reduction.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

using model::Extended;

Tarn32f deviationOf(Extended n, Extended sum, Extended squares)
{
    const Extended variance = (n * squares - sum * sum) / (n * (n - 1));
    return std::signbit(static_cast<double>(variance)) ? 0.0F : static_cast<Tarn32f>(std::sqrt(variance));
}

TEST(StdDev_32f, AccurateAddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::mixed}) {
        const auto values = randomValues<Tarn32f>(5000, 41, kind);
        auto tried = lengths({4, 8});
        std::erase(tried, 1);
        atOffsets(values, tried, [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned) {
            Extended sum[2] = {};
            Extended squares[2] = {};
            std::size_t i = 0;
            for (; i < x.size() / 4 * 4; ++i) {
                sum[i % 2] += x[i];
                squares[i % 2] += Extended{x[i]} * x[i];
            }
            Extended total = sum[0] + sum[1];
            Extended totalSquares = squares[0] + squares[1];
            for (; i < x.size(); ++i) {
                total += x[i];
                totalSquares += Extended{x[i]} * x[i];
            }
            const Tarn32f expected = deviationOf(static_cast<Extended>(x.size()), total, totalSquares);
            for (int hint : {0, 2, -7}) {
                GuardedArray<Tarn32f> result(1, Placement::offset(1));
                EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(p, static_cast<int>(x.size()), result.data(), hint));
                EXPECT_TRUE(valuesMatch(expected, result.get(0)));
            }
        });
    }
}

TEST(StdDev_32f, FastStaysWithinTheRoundingOfItsBlocks)
{
    // Each lane takes 256 elements of a block: every partial sum errs by at most 2^-24 of itself at each of some 70
    // additions, of which those of the magnitudes are a bound. Zero-mean data keeps the difference from cancelling.
    const auto values = randomValues<Tarn32f>(20000, 43, Values::unit);
    auto tried = lengths({8, 16, 1024, 2048, 4096});
    std::erase(tried, 1);
    atOffsets(values, tried, [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned) {
        Extended sum = 0;
        Extended squares = 0;
        for (Tarn32f element : x) {
            sum += element;
            squares += Extended{element} * element;
        }
        Tarn32f result = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(p, static_cast<int>(x.size()), &result, tarnAlgHintFast));
        const auto n = static_cast<Extended>(x.size());
        const Tarn32f expected = deviationOf(n, sum, squares);
        if (x.size() <= 8)
            EXPECT_TRUE(valuesMatch(expected, result));
        else
            EXPECT_TRUE(valuesMatch(expected, result, {.absolute = 1e-6, .relative = 1e-5}));
    });
}

TEST(StdDev_32f, FastBlocksKeepPartialSumsShort)
{
    // Ones, and as many minus ones: a lane's sum of squares is exact in single precision, however long the vector.
    std::vector<Tarn32f> values(1 << 20, 1.0F);
    for (std::size_t i = 0; i < values.size(); i += 2)
        values[i] = -1.0F;
    Tarn32f result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(values.data(), 1 << 20, &result, tarnAlgHintFast));
    const Extended n = 1 << 20;
    EXPECT_EQ(static_cast<Tarn32f>(std::sqrt(n / (n - 1))), result);
    // A block's sums of squares are exact in single precision; those of the whole vector would not be.
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = i % 2 == 0 ? 33.0F : -31.0F;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(values.data(), 1 << 20, &result, tarnAlgHintFast));
    EXPECT_EQ(static_cast<Tarn32f>(std::sqrt((n * (n * 1025) - n * n) / (n * (n - 1)))), result);
}

TEST(StdDev_64f, AddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn64f>(5000, 45, kind);
        auto tried = lengths({8});
        std::erase(tried, 1);
        atOffsets(values, tried, [](const Tarn64f* p, std::span<const Tarn64f> x, unsigned) {
            Tarn64f sum[4] = {};
            Tarn64f squares[4] = {};
            std::size_t i = 0;
            const auto take = [&](std::size_t lane) {
                sum[lane] += x[i];
                squares[lane] += x[i] * x[i];
                ++i;
            };
            for (; i + 4 <= x.size();)
                for (std::size_t k = 0; k < 4; ++k)
                    take(k);
            for (std::size_t k = 0; i < x.size(); ++k)
                take(k % 2);
            const Tarn64f even = sum[0] + sum[2];
            const Tarn64f odd = sum[1] + sum[3];
            const Tarn64f s1 = even + odd;
            const Tarn64f evenSquares = squares[0] + squares[2];
            const Tarn64f oddSquares = squares[1] + squares[3];
            const Tarn64f s2 = evenSquares + oddSquares;
            const auto n = static_cast<Tarn64f>(x.size());
            const Tarn64f product = n * s2;
            const Tarn64f square = s1 * s1;
            const Tarn64f difference = product - square;
            const Tarn64f expected = std::sqrt((difference > 0 ? difference : 0) / (n * (n - 1)));
            GuardedArray<Tarn64f> result(1, Placement::offset(1));
            EXPECT_EQ(tarnStsNoErr, tarnsStdDev_64f(p, static_cast<int>(x.size()), result.data()));
            EXPECT_TRUE(valuesMatch(expected, result.get(0)));
        });
    }
}

// Exact sums; the closing formula in the extended format.
Tarn32s scaledDeviation(std::span<const Tarn16s> x, int s)
{
    Extended sum = 0;
    Extended squares = 0;
    for (Tarn16s element : x) {
        sum += element;
        squares += Extended{1} * element * element;
    }
    const auto n = static_cast<Extended>(x.size());
    const Extended d = n * squares - sum * sum;
    const Extended root = std::sqrt((d > 0 ? d : 0) / (n * (n - 1)));
    const Extended result = std::min<Extended>(std::ldexp(root, -s), 2147483647);
    return static_cast<Tarn32s>(std::nearbyint(result));
}

TEST(StdDev_16s, RoundsTheScaledRoot)
{
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (int s : scaleFactors(-33, 20)) {
            if (s > 2000 || s < -2000 || (mode != RoundingMode::nearest && s % 3 != 0))
                continue;
            SCOPED_TRACE(s);
            const auto model32 = [&](std::span<const Tarn16s> x) { return x.size() < 2 ? 0 : scaledDeviation(x, s); };
            sweepReduction<Tarn32s, Tarn16s>(
                [&](const Tarn16s* p, int len, Tarn32s* result) {
                    if (len > 1)
                        return tarnsStdDev_16s32s_Sfs(p, len, result, s);
                    const Tarn32s none = 0;
                    std::memcpy(static_cast<void*>(result), &none, sizeof none);
                    return +tarnStsNoErr;
                },
                model32, {.depth = s == 0 ? Depth::full : Depth::quick});
            const auto values = randomValues<Tarn16s>(300, static_cast<std::uint64_t>(s + 100));
            for (int len = 2; len < 40; ++len) {
                Tarn16s result = 0;
                EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s_Sfs(values.data() + len, len, &result, s));
                const auto x = std::span(values).subspan(static_cast<std::size_t>(len), static_cast<std::size_t>(len));
                EXPECT_EQ(std::min(scaledDeviation(x, s), 32767), result);
            }
        }
    }
}

TEST(StdDev_16s, FarFactorsAndLongVectors)
{
    std::vector<Tarn16s> values(200001, -32768);
    Tarn32s result = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s32s_Sfs(values.data(), 200001, &result, INT_MIN));
    EXPECT_EQ(0, result);
    for (std::size_t i = 0; i < values.size(); i += 2)
        values[i] = 32767;
    for (int len : {65535, 65536, 65537, 131072, 200001}) {
        const auto x = std::span<const Tarn16s>(values).first(static_cast<std::size_t>(len));
        EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s32s_Sfs(values.data(), len, &result, -10));
        EXPECT_EQ(scaledDeviation(x, -10), result);
    }
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s32s_Sfs(values.data(), 100, &result, INT_MIN));
    EXPECT_EQ(INT_MAX, result);
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s32s_Sfs(values.data(), 100, &result, INT_MAX));
    EXPECT_EQ(0, result);
    Tarn16s narrow = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s_Sfs(values.data(), 100, &narrow, -1));
    EXPECT_EQ(32767, narrow);
}

TEST(StdDev, OfAConstantIsZero)
{
    for (int len = 2; len < 200; ++len) {
        const auto n = static_cast<std::size_t>(len);
        for (Tarn32f value : {3.0F, -0.75F, 1000.5F, 0.0F, -0.0F}) {
            const std::vector<Tarn32f> singles(n, value);
            const std::vector<Tarn64f> doubles(n, value);
            for (int hint : {tarnAlgHintFast, tarnAlgHintNone}) {
                // Sums of its squares leave the single precision of the fast pass.
                if (value == 1000.5F && hint == tarnAlgHintFast)
                    continue;
                Tarn32f result = 1;
                EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(singles.data(), len, &result, hint));
                EXPECT_TRUE(valuesMatch(0.0F, result)) << value << " " << len;
            }
            Tarn64f result = 1;
            EXPECT_EQ(tarnStsNoErr, tarnsStdDev_64f(doubles.data(), len, &result));
            EXPECT_TRUE(valuesMatch(0.0, result)) << value << " " << len;
        }
        const std::vector<Tarn16s> integers(n, 12345);
        Tarn16s result = 1;
        EXPECT_EQ(tarnStsNoErr, tarnsStdDev_16s_Sfs(integers.data(), len, &result, 0));
        EXPECT_EQ(0, result);
    }
}

TEST(StdDev, OfNaNFollowsTheGuards)
{
    // The double form takes the larger of NaN and 0, which is the second. The single one looks at the sign.
    const Tarn64f doubles[] = {1, std::numeric_limits<Tarn64f>::quiet_NaN(), 2};
    Tarn64f result = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_64f(doubles, 3, &result));
    EXPECT_TRUE(valuesMatch(0.0, result));
    // Infinity less infinity makes the processor's NaN, whose sign is set.
    const Tarn32f singles[] = {1, std::numeric_limits<Tarn32f>::infinity(), 2};
    Tarn32f single = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(singles, 3, &single, tarnAlgHintNone));
    EXPECT_TRUE(valuesMatch(0.0F, single));
    const Tarn32f positive[] = {1, std::numeric_limits<Tarn32f>::quiet_NaN(), 2};
    EXPECT_EQ(tarnStsNoErr, tarnsStdDev_32f(positive, 3, &single, tarnAlgHintNone));
    EXPECT_TRUE(std::isnan(single));
}

TEST(StdDev, Checks)
{
    const auto atLeastTwo = param(8, {1, 0, -1, INT_MIN}, tarnStsSizeErr);
    expectChecks(tarnsStdDev_32f, {}, array, atLeastTwo, array, 0);
    expectChecks(tarnsStdDev_32f, {}, array, atLeastTwo, array, 1);
    expectChecks(tarnsStdDev_64f, {}, array, atLeastTwo, array);
    expectChecks(tarnsStdDev_16s32s_Sfs, {}, array, atLeastTwo, array, 0);
    expectChecks(tarnsStdDev_16s_Sfs, {}, array, atLeastTwo, array, 0);
}

} // namespace
} // namespace tarn::test
