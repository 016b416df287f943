// Running averages beside a model in wide integers, and pre-emphasis beside a model of single operations.
#include "tarns/update.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/hard_values.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>

namespace tarn::test {
namespace {

using Update = TarnStatus (*)(const Tarn16s*, int, Tarn32s*, int, Tarn16s, TarnHintAlgorithm);

// -- Running averages -------------------------------------------------------------------------------------------------

/// y after all samples, exactly, as long as it stays below 2^46. From there it would grow by every sample and keep its
/// distance from 32 bits; it is kept there with its sign.
std::int64_t exactAverage(std::int64_t y, const std::vector<Tarn16s>& samples, bool power, int shift, Tarn16s alpha)
{
    constexpr std::int64_t bound = std::int64_t{1} << 46;
    for (const Tarn16s sample : samples) {
        const std::int64_t x = power ? (std::int64_t{sample} * sample) >> shift : std::int64_t{sample} >> shift;
        y = alpha * y + (1 - alpha) * x;
        y = std::min(std::max(y, -bound), bound);
    }
    return y;
}

struct Case {
    Update update;
    bool power;
    TarnHintAlgorithm hint;
};
constexpr Case linearAccurate{tarnsUpdateLinear_16s32s_I, false, tarnAlgHintAccurate};
constexpr Case linearFast{tarnsUpdateLinear_16s32s_I, false, tarnAlgHintFast};
constexpr Case powerAccurate{tarnsUpdatePower_16s32s_I, true, tarnAlgHintAccurate};
constexpr Case powerFast{tarnsUpdatePower_16s32s_I, true, tarnAlgHintFast};

bool inSingle(const Case& c, Tarn16s alpha)
{
    return c.hint == tarnAlgHintFast && (c.power || (alpha >= -6 && alpha < 9));
}

void expectAverage(const Case& c, Tarn32s start, const std::vector<Tarn16s>& samples, int shift, Tarn16s alpha,
                   unsigned seed)
{
    const int most = c.power ? 31 : 15;
    const std::int64_t y = exactAverage(start, samples, c.power, std::min(std::max(shift, 0), most), alpha);
    const bool single = inSingle(c, alpha);
    const std::int64_t highest = single ? 2147483520 : 2147483647;
    const auto expected = static_cast<Tarn32s>(std::min(std::max(y, -std::int64_t{2147483648}), highest));

    const GuardedArray<Tarn16s> src(samples, seed % 2 == 0 ? Placement::atEnd() : Placement::offset(seed % 17));
    GuardedArray<Tarn32s> average(1, Placement::offset(seed % 5));
    average.set(0, start);
    const FpState before = FpState::current();
    EXPECT_EQ(tarnStsNoErr,
              c.update(src.data(), static_cast<int>(samples.size()), average.data(), shift, alpha, c.hint));
    EXPECT_EQ("", before.changesSince());
    // In single precision what has left 24 bits was rounded in each of the few steps that led there.
    const bool rounded = single && std::abs(y) >= (1 << 24);
    const double tolerance = rounded ? std::abs(static_cast<double>(expected)) * 0x1p-20 : 0;
    EXPECT_NEAR(static_cast<double>(expected), static_cast<double>(average.get(0)), tolerance)
        << samples.size() << " samples, alpha " << alpha << ", shift " << shift << ", from " << start;
}

/// Those at which a path or a closed form changes, and some between them.
constexpr Tarn16s alphas[] = {-32768, -2049, -2048, -609, -608, -181, -180, -46, -45,  -31,  -25,  -24,
                              -17,    -16,   -7,    -6,   -5,   -4,   -3,   -2,  -1,   0,    1,    2,
                              3,      4,     5,     6,    7,    8,    9,    16,  17,   24,   25,   31,
                              45,     46,    100,   181,  182,  200,  608,  609, 2048, 2049, 32767};

/// Samples of which the last few differ from what came before: y stays at the others' value until then, and within
/// 32 bits at the end.
void testAverages(const Case& c, int largest)
{
    unsigned seed = 1;
    for (const Tarn16s alpha : alphas) {
        for (const int len : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 23, 24, 31, 40, 100}) {
            for (const int disturbed : {0, 1, 2, 3, 5, len}) {
                Random random(seed);
                const int shift = seed % 4 == 0 ? static_cast<int>(random.below(c.power ? 32 : 16)) : 0;
                const auto rest = static_cast<Tarn16s>(static_cast<int>(random.below(2 * largest + 1)) - largest);
                std::vector<Tarn16s> samples(static_cast<std::size_t>(len), rest);
                for (int k = std::max(0, len - disturbed); k < len; ++k)
                    samples[static_cast<std::size_t>(k)] =
                        static_cast<Tarn16s>(static_cast<int>(random.below(2 * largest + 1)) - largest);
                const Tarn32s start = c.power ? (Tarn32s{rest} * rest) >> shift : rest >> shift;
                expectAverage(c, start, samples, shift, alpha, seed++);
                if (::testing::Test::HasFailure())
                    return;
            }
        }
    }
}

TEST(UpdateLinear, InDoublePrecision) { testAverages(linearAccurate, 32767); }
TEST(UpdateLinear, InSinglePrecision) { testAverages(linearFast, 32767); }
TEST(UpdatePower, InDoublePrecision) { testAverages(powerAccurate, 32767); }
/// Of larger samples the squares do not fit single precision.
TEST(UpdatePower, InSinglePrecision) { testAverages(powerFast, 11); }

/// Without growth, at full scale, from anywhere.
TEST(Update, WeightsThatDoNotGrow)
{
    unsigned seed = 1;
    for (int len = 1; len <= 70; ++len) {
        for (const Case& c : {linearAccurate, linearFast, powerAccurate}) {
            const std::vector<Tarn16s> samples = randomValues<Tarn16s>(static_cast<std::size_t>(len), seed);
            for (const Tarn32s start : {0, 1, -1, 16777215, -16777216}) {
                expectAverage(c, start, samples, 0, 0, seed);
                expectAverage(c, start, samples, 3, 1, seed);
                if (!c.power)
                    expectAverage(c, start / 16, samples, 1, -1, seed);
            }
            ++seed;
        }
    }
    for (const Tarn32s start : {INT_MIN, INT_MIN + 1, INT_MAX, INT_MAX - 1, 123456789})
        for (const Case& c : {linearAccurate, powerAccurate})
            expectAverage(c, start, {1, -2, 3, 4, 5, 6, 7, 8, 9}, 0, 1, seed++);
    // The last square, to 24 bits.
    const std::vector<Tarn16s> samples = {1, 2, 3, 4, 5, 6, 7, 8, 9, 32767};
    Tarn32s y = 5;
    EXPECT_EQ(tarnStsNoErr, tarnsUpdatePower_16s32s_I(samples.data(), 10, &y, 0, 0, tarnAlgHintFast));
    EXPECT_EQ(1073676288, y);
    EXPECT_EQ(tarnStsNoErr, tarnsUpdatePower_16s32s_I(samples.data(), 10, &y, 0, 0, tarnAlgHintNone));
    EXPECT_EQ(1073676289, y);
    const Tarn16s lowest = -32768;
    EXPECT_EQ(tarnStsNoErr, tarnsUpdatePower_16s32s_I(&lowest, 1, &y, 0, 0, tarnAlgHintAccurate));
    EXPECT_EQ(1073741824, y);
}

TEST(Update, ShiftsAreClampedAndRoundDown)
{
    const std::vector<Tarn16s> samples = {-1, 32767, -32768, 5, -5, 1000, -1000, 77, -3};
    for (const int shift : {INT_MIN, -1, 0, 1, 2, 14, 15, 16, 20, 30, 31, 32, INT_MAX}) {
        for (const Case& c : {linearAccurate, linearFast, powerAccurate}) {
            expectAverage(c, 7, samples, shift, 0, 1);
            expectAverage(c, 7, {samples.begin(), samples.begin() + 3}, shift, 0, 1);
            expectAverage(c, 7, {samples.begin(), samples.begin() + 3}, shift, 2, 1);
        }
    }
    Tarn32s y = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsUpdateLinear_16s32s_I(samples.data(), 9, &y, 20, 0, tarnAlgHintNone));
    EXPECT_EQ(-1, y); // -3 >> 15
}

/// The bounds tell which arithmetic a call went through.
TEST(Update, BoundsOfEachPath)
{
    const auto grown = [](const Case& c, int alpha, Tarn32s start, int len) {
        const std::vector<Tarn16s> zeros(static_cast<std::size_t>(len));
        Tarn32s y = start;
        EXPECT_EQ(tarnStsNoErr, c.update(zeros.data(), len, &y, 0, static_cast<Tarn16s>(alpha), c.hint));
        return y;
    };
    for (const int len : {1, 2, 3, 4, 8, 9, 33, 5000}) {
        for (const int alpha : {2, 8})
            EXPECT_EQ(2147483520, grown(linearFast, alpha, 2000000000, len));
        for (const int alpha : {9, 181, 182, 32767})
            EXPECT_EQ(2147483647, grown(linearFast, alpha, 2000000000, len));
        for (const int alpha : {2, 8, 9, 181, 182, 32767}) {
            EXPECT_EQ(2147483647, grown(linearAccurate, alpha, 2000000000, len));
            EXPECT_EQ(INT_MIN, grown(linearAccurate, alpha, -2000000000, len));
            EXPECT_EQ(INT_MIN, grown(linearFast, alpha, -2000000000, len));
            EXPECT_EQ(2147483520, grown(powerFast, alpha, 2000000000, len));
            EXPECT_EQ(2147483647, grown(powerAccurate, alpha, 2000000000, len));
        }
        const Tarn32s odd = len % 2 != 0 ? INT_MIN : INT_MAX;
        for (const int alpha : {-7, -180, -181, -32768})
            EXPECT_EQ(odd, grown(linearFast, alpha, 2000000000, len)) << alpha << ", " << len;
        EXPECT_EQ(len % 2 != 0 ? INT_MIN : 2147483520, grown(linearFast, -6, 2000000000, len));
    }
    // In single precision the average is rounded as it comes, in double precision it is not.
    EXPECT_EQ(2147483520, grown(linearFast, 1, INT_MAX, 1));
    EXPECT_EQ(33554432, grown(linearFast, 2, 16777217, 1));
    EXPECT_EQ(33554434, grown(linearAccurate, 2, 16777217, 1));
    EXPECT_EQ(16777217 * 9, grown(linearFast, 9, 16777217, 1));
}

TEST(Update, Checks)
{
    for (const Update update : {tarnsUpdateLinear_16s32s_I, tarnsUpdatePower_16s32s_I})
        for (const Tarn16s alpha : {Tarn16s{1}, Tarn16s{500}})
            for (const TarnHintAlgorithm hint : {tarnAlgHintFast, tarnAlgHintNone})
                expectChecks(update, {}, array, length, array, 3, alpha, hint);
}

// -- Pre-emphasis -----------------------------------------------------------------------------------------------------

template <class T>
std::vector<T> emphasized(std::span<const T> x, float val)
{
    std::vector<T> y(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        const volatile float before = i == 0 ? 0.0f : static_cast<float>(x[i - 1]);
        const volatile float product = val * before;
        const volatile float difference = static_cast<float>(x[i]) - product;
        if constexpr (std::is_floating_point_v<T>)
            y[i] = difference;
        else if (!(difference >= -2147483648.0f && difference < 2147483648.0f))
            y[i] = -32768;
        else
            y[i] = static_cast<T>(std::min(std::max(std::nearbyint(double{difference}), -32768.0), 32767.0));
    }
    return y;
}

template <class T>
void testPreemphasis(TarnStatus (*preemphasize)(T*, int, Tarn32f))
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float val : {0.95f, 0.0f, -0.0f, 1.0f, -1.0f, 0.5f, -1.5f, 3e5f, 1e30f, INFINITY, -INFINITY, nan}) {
        for (const RoundingMode mode : allRoundingModes) {
            if (mode != RoundingMode::nearest && val != 0.95f && val != 0.5f)
                continue;
            SCOPED_TRACE("coefficient " + std::to_string(val) + ", mode " + std::to_string(static_cast<int>(mode)));
            sweepInPlace<T>(
                [&](T* srcDst, int len) {
                    const RoundingModeScope scope(mode);
                    return preemphasize(srcDst, len, val);
                },
                [&](std::span<const T> x) {
                    const RoundingModeScope scope(mode);
                    return emphasized(x, val);
                },
                {.depth = Depth::quick});
        }
    }
    expectChecks(preemphasize, {}, array, length, 0.95f);
}

TEST(Preemphasize, OfFloats) { testPreemphasis<Tarn32f>(tarnsPreemphasize_32f); }
TEST(Preemphasize, OfWords) { testPreemphasis<Tarn16s>(tarnsPreemphasize_16s); }

TEST(Preemphasize, WorkedValues)
{
    Tarn16s loud[] = {32767, 32767};
    EXPECT_EQ(tarnStsNoErr, tarnsPreemphasize_16s(loud, 2, -1.0f));
    EXPECT_EQ(32767, loud[0]);
    EXPECT_EQ(32767, loud[1]);
    // Products of one half: ties.
    Tarn16s ties[] = {1, 2, 3, 4, -5, -6};
    EXPECT_EQ(tarnStsNoErr, tarnsPreemphasize_16s(ties, 6, 0.5f));
    const Tarn16s expected[] = {1, 2, 2, 2, -7, -4}; // 1, 1.5, 2, 2.5, -7, -3.5
    EXPECT_TRUE(arraysMatch<Tarn16s>(expected, ties, 6));

    const Tarn32f x[] = {1, 2, 3, 4};
    Tarn32f whole[] = {1, 2, 3, 4};
    Tarn32f halves[] = {1, 2, 3, 4};
    EXPECT_EQ(tarnStsNoErr, tarnsPreemphasize_32f(whole, 4, 0.5f));
    EXPECT_EQ(tarnStsNoErr, tarnsPreemphasize_32f(halves, 2, 0.5f));
    EXPECT_EQ(tarnStsNoErr, tarnsPreemphasize_32f(halves + 2, 2, 0.5f));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(i == 2, whole[i] != halves[i]);
    EXPECT_EQ(x[2], halves[2]);
    EXPECT_EQ(2.0f, whole[2]);
}

} // namespace
} // namespace tarn::test
