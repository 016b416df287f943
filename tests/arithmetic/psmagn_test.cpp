// Magnitudes and power spectra against wide integers, plain floats and the steps that stand for roots.
#include "tarns/magnitude.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

namespace tarn::test {
namespace {

using model::scaled;

/// One function in its two shapes.
template <class D, class R, class C, class... Scale>
struct Shapes {
    TarnStatus (*ofParts)(const R*, const R*, D*, int, Scale...);
    TarnStatus (*ofComplex)(const C*, D*, int, Scale...);
};

template <class D, class R, class C, class Model, class... Scale>
void sweepShapes(Shapes<D, R, C, Scale...> f, Model model, const SweepOptions& options, Scale... s)
{
    if (f.ofParts)
        sweepElementwise<D, R, R>(
            [=](const R* re, const R* im, D* dst, int len) { return f.ofParts(re, im, dst, len, s...); }, model,
            options);
    sweepElementwise<D, C>([=](const C* src, D* dst, int len) { return f.ofComplex(src, dst, len, s...); },
                           [=](C z) { return model(z.re, z.im); }, options);
}

constexpr Shapes<Tarn16s, Tarn16s, Tarn16sc, int> magnitude_16s{tarnsMagnitude_16s_Sfs, tarnsMagnitude_16sc_Sfs};
constexpr Shapes<Tarn32f, Tarn16s, Tarn16sc> magnitude_16s32f{tarnsMagnitude_16s32f, tarnsMagnitude_16sc32f};
constexpr Shapes<Tarn16s, Tarn16s, Tarn16sc, int> power_16s{tarnsPowerSpectr_16s_Sfs, tarnsPowerSpectr_16sc_Sfs};
constexpr Shapes<Tarn32f, Tarn16s, Tarn16sc> power_16s32f{tarnsPowerSpectr_16s32f, tarnsPowerSpectr_16sc32f};
constexpr Shapes<Tarn32f, Tarn32f, Tarn32fc> power_32f{tarnsPowerSpectr_32f, tarnsPowerSpectr_32fc};
constexpr Shapes<Tarn64f, Tarn64f, Tarn64fc> power_64f{tarnsPowerSpectr_64f, tarnsPowerSpectr_64fc};
constexpr Shapes<Tarn64f, Tarn64f, Tarn64fc> magnitude_64f{tarnsMagnitude_64f, tarnsMagnitude_64fc};

Tarn64s sumOfSquares(Tarn64s re, Tarn64s im) { return re * re + im * im; }

template <class T>
T sumOfFloats(T re, T im)
{
    volatile T a = re * re;
    volatile T b = im * im;
    volatile T sum = a + b;
    return sum;
}

Tarn16s scaledMagnitude(Tarn16s re, Tarn16s im, int s)
{
    const Tarn64s power = sumOfSquares(re, im);
    if (s > 16)
        return 0;
    if (s == 16)
        return power > 0x40000000 ? 1 : 0;
    if (s < -14)
        return power != 0 ? 32767 : 0;
    volatile float root = std::sqrt(static_cast<float>(power));
    return model::nearest<Tarn16s>(std::ldexp(static_cast<float>(root), -s));
}

TEST(Magnitude, OfWordsAtEveryScale)
{
    const ScaleRange range{.down = 16, .up = 14};
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        sweepShapes(
            magnitude_16s, [s](Tarn16s re, Tarn16s im) { return scaledMagnitude(re, im, s); },
            {.depth = range.depth(s)}, s);
    }
}

TEST(Magnitude, OfWordsWorthATest)
{
    const auto at = [](Tarn16sc z, int s) {
        Tarn16s magnitude = -1;
        EXPECT_EQ(tarnStsNoErr, tarnsMagnitude_16sc_Sfs(&z, &magnitude, 1, s));
        return magnitude;
    };
    EXPECT_EQ(0, at({32767, 0}, 16));
    EXPECT_EQ(0, at({-32768, 0}, 16));
    EXPECT_EQ(1, at({-32768, 1}, 16));
    EXPECT_EQ(1, at({-32768, -32768}, 16));
    EXPECT_EQ(0, at({-32768, -32768}, 17));
    EXPECT_EQ(1, at({-32768, -32768}, 15));
    EXPECT_EQ(32767, at({-32768, -32768}, 0));
    EXPECT_EQ(32767, at({0, 1}, -15));
    EXPECT_EQ(5, at({3, 4}, 0));
    EXPECT_EQ(2, at({3, 4}, 1));
}

TEST(Magnitude, OfWordsRoundsToNearestInEveryMode)
{
    std::vector<Tarn16sc> z;
    std::vector<Tarn16s> expected;
    for (int k = 0; k < 300; ++k) {
        z.push_back({static_cast<Tarn16s>(k * 97 - 14000), static_cast<Tarn16s>(k * 31)});
        expected.push_back(scaledMagnitude(z.back().re, z.back().im, 2));
    }
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        std::vector<Tarn16s> actual(300);
        EXPECT_EQ(tarnStsNoErr, tarnsMagnitude_16sc_Sfs(z.data(), actual.data(), 300, 2));
        EXPECT_EQ(expected, actual);
    }
}

TEST(Magnitude, Of32Bits)
{
    for (const int s : scaleFactors(-32, 33)) {
        SCOPED_TRACE(s);
        sweepElementwise<Tarn32s, Tarn32sc>(
            [s](const Tarn32sc* src, Tarn32s* dst, int len) { return tarnsMagnitude_32sc_Sfs(src, dst, len, s); },
            [s](Tarn32sc z) {
                volatile double re = static_cast<double>(z.re) * z.re;
                volatile double im = static_cast<double>(z.im) * z.im;
                volatile double sum = re + im;
                return model::nearest<Tarn32s>(
                    std::ldexp(std::sqrt(static_cast<double>(sum)), -std::clamp(s, -99, 99)));
            },
            {.depth = s == 0 ? Depth::full : Depth::quick});
    }
}

TEST(Magnitude, OfWordsAsFloats)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepShapes(magnitude_16s32f,
                    [](Tarn16s re, Tarn16s im) {
                        volatile float sum = static_cast<float>(sumOfSquares(re, im));
                        volatile float root = std::sqrt(static_cast<float>(sum));
                        return static_cast<float>(root);
                    },
                    {.depth = depth});
        sweepShapes(power_16s32f, [](Tarn16s re, Tarn16s im) { return static_cast<float>(sumOfSquares(re, im)); },
                    {.depth = depth});
    }
}

float rootBySteps(float x)
{
    if (!(x >= std::numeric_limits<float>::min() && x < std::numeric_limits<float>::infinity()))
        return std::sqrt(x);
    const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
    volatile float product = x * y;
    volatile float half = 0.5F * product;
    volatile float square = product * y;
    volatile float difference = 3 - square;
    volatile float root = half * difference;
    return root;
}

TEST(Magnitude, OfFloats)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepElementwise<Tarn32f, Tarn32fc>(tarnsMagnitude_32fc,
                                            [](Tarn32fc z) { return rootBySteps(sumOfFloats(z.re, z.im)); });
        sweepElementwise<Tarn32f, Tarn32f, Tarn32f>(tarnsMagnitude_32f, [](Tarn32f re, Tarn32f im) {
            volatile float root = std::sqrt(sumOfFloats(re, im));
            return static_cast<float>(root);
        });
        sweepShapes(magnitude_64f,
                    [](Tarn64f re, Tarn64f im) {
                        volatile double root = std::sqrt(sumOfFloats(re, im));
                        return static_cast<double>(root);
                    },
                    {});
    }
}

TEST(Magnitude, OfFloatsWorthATest)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const Tarn32fc z[] = {{0, 0}, {-0.0F, -0.0F}, {infinity, 1}, {1, -infinity}, {1e-22F, 0}, {3, 4}};
    Tarn32f magnitudes[6];
    EXPECT_EQ(tarnStsNoErr, tarnsMagnitude_32fc(z, magnitudes, 6));
    EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, magnitudes[0]));
    EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, magnitudes[1]));
    EXPECT_EQ(infinity, magnitudes[2]);
    EXPECT_EQ(infinity, magnitudes[3]);
    EXPECT_NEAR(1e-22F, magnitudes[4], 1e-24); // of a square with few digits left
    EXPECT_NEAR(5, magnitudes[5], 2e-6);
}

TEST(PowerSpectrum, OfWordsAtEveryScale)
{
    const ScaleRange range{.down = 31, .up = 14};
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        sweepShapes(
            power_16s, [s](Tarn16s re, Tarn16s im) { return scaled<Tarn16s>(sumOfSquares(re, im), s); },
            {.depth = range.depth(s)}, s);
    }
}

TEST(PowerSpectrum, OfFloats)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepShapes(power_32f, sumOfFloats<Tarn32f>, {});
        sweepShapes(power_64f, sumOfFloats<Tarn64f>, {});
    }
}

// -- Squares of 32 bits -----------------------------------------------------------------------------------------------

Tarn32s squareOf32s(Tarn32sc z, bool inFour, int s)
{
    volatile float sum;
    if (inFour) {
        volatile float re = static_cast<float>(z.re);
        volatile float im = static_cast<float>(z.im);
        sum = sumOfFloats<float>(re, im);
    } else {
        const auto re = static_cast<long double>(z.re);
        const auto im = static_cast<long double>(z.im);
        sum = static_cast<float>(re * re + im * im);
    }
    // A power of two that no double holds is infinite or zero, whatever the rounding mode.
    const double power = s < -1023 ? std::numeric_limits<double>::infinity() : s > 1074 ? 0 : std::ldexp(1.0, -s);
    volatile float factor = static_cast<float>(power);
    volatile float value = sum * factor;
    if (std::isnan(value) || value >= 2147483648.0F)
        return -2147483647 - 1;
    return static_cast<Tarn32s>(std::nearbyint(static_cast<double>(value)));
}

TEST(SquaredMagnitude, ByFoursAndByThemselves)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : {0, 31, 33, 40, 62, 63, 64, 65, 1, -1, -127, -128, 149, 150, 2147483647, -2147483647 - 1}) {
            SCOPED_TRACE(s);
            sweepElementwise<Tarn32s, Tarn32sc>([s](const Tarn32sc* src, Tarn32s* dst,
                                                    int len) { return tarnsMagSquared_32sc32s_Sfs(src, dst, len, s); },
                                                [s](std::span<const Tarn32sc> z) {
                                                    std::vector<Tarn32s> squares;
                                                    for (std::size_t i = 0; i < z.size(); ++i)
                                                        squares.push_back(squareOf32s(z[i], i < z.size() / 4 * 4, s));
                                                    return squares;
                                                },
                                                {.depth = s == 62 ? Depth::full : Depth::quick});
        }
    }
}

TEST(SquaredMagnitude, TooHighIsTheLowestInteger)
{
    const std::vector<Tarn32sc> z(5, Tarn32sc{65536, 0});
    std::vector<Tarn32s> squares(5);
    EXPECT_EQ(tarnStsNoErr, tarnsMagSquared_32sc32s_Sfs(z.data(), squares.data(), 5, 1));
    EXPECT_EQ(std::vector<Tarn32s>(5, -2147483647 - 1), squares);
    EXPECT_EQ(tarnStsNoErr, tarnsMagSquared_32sc32s_Sfs(z.data(), squares.data(), 5, 2));
    EXPECT_EQ(std::vector<Tarn32s>(5, 1 << 30), squares);
}

TEST(SquaredMagnitude, ClearsTwoFlagsAndLeavesTheOthers)
{
    constexpr std::uint32_t masked = 0x1F80;
    constexpr std::uint32_t invalid = 0x01, divideByZero = 0x04, underflow = 0x10;
    const std::vector<Tarn32sc> z(5, Tarn32sc{1, 0});
    std::vector<Tarn32s> squares(5);
    std::uint32_t after = 0;
    {
        const MxcsrScope scope(masked | invalid | divideByZero | underflow);
        tarnsMagSquared_32sc32s_Sfs(z.data(), squares.data(), 5, 0);
        after = readMxcsr();
    }
    EXPECT_EQ(masked | divideByZero, after & ~0x20U); // but for the inexact one
}

TEST(Magnitude, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsMagnitude_16s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsMagnitude_16sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsMagnitude_32sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsPowerSpectr_16s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsPowerSpectr_16sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsMagSquared_32sc32s_Sfs, {}, array, array, length, s);
    }
    expectChecks(tarnsMagnitude_16s32f);
    expectChecks(tarnsMagnitude_16sc32f);
    expectChecks(tarnsMagnitude_32f);
    expectChecks(tarnsMagnitude_32fc);
    expectChecks(tarnsMagnitude_64f);
    expectChecks(tarnsMagnitude_64fc);
    expectChecks(tarnsPowerSpectr_16s32f);
    expectChecks(tarnsPowerSpectr_16sc32f);
    expectChecks(tarnsPowerSpectr_32f);
    expectChecks(tarnsPowerSpectr_32fc);
    expectChecks(tarnsPowerSpectr_64f);
    expectChecks(tarnsPowerSpectr_64fc);
}

} // namespace
} // namespace tarn::test
