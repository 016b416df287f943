// The ramps: every element to the bit of the line that its index gives, whatever road it takes.
#include "tarns.h"

#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

template <class T>
using RampCall = TarnStatus (*)(T*, int, Tarn32f, Tarn32f);

float lineAt(int n, float offset, float slope)
{
    // Stored, so that neither the product nor the sum keeps more than single precision.
    const volatile float index = static_cast<float>(n);
    const volatile float product = index * slope;
    const volatile float sum = product + offset;
    return sum;
}

template <class T>
T saturatedAway(float t)
{
    constexpr double lowest = std::numeric_limits<T>::lowest();
    constexpr double highest = std::numeric_limits<T>::max();
    if (std::isnan(t)) {
        // The processor's answer to what does not fit is the lowest 32-bit integer, of which narrower elements keep the
        // low bits.
        return static_cast<T>(std::numeric_limits<Tarn32s>::lowest());
    }
    if (std::is_unsigned_v<T> && t <= 0)
        return 0;
    const double u = t > 0 ? t + 0.5 : t - 0.5;
    if (u >= highest)
        return std::numeric_limits<T>::max();
    return u <= lowest ? std::numeric_limits<T>::lowest() : static_cast<T>(std::trunc(u));
}

struct Slope {
    float offset, slope;
};
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
const Slope lines[] = {{0, 1},           {0.5F, 1},       {-0.5F, -1},      {0.49999997F, 0},   {-0.49999997F, 0},
                       {254.6F, 0.1F},   {-0.4F, 0},      {100.3F, -1.7F},  {-200, 3.14159F},   {-40000, 777.7F},
                       {70000, -1234},   {4.2e9F, 1e6F},  {-3e9F, 6.1e7F},  {2147483520.0F, 1}, {8388607.5F, 0.5F},
                       {-8388609, -.5F}, {1e30F, -1e29F}, {1e-40F, 1e-42F}, {0, inf},           {inf, 0},
                       {-inf, 3},        {nan, 1},        {1, nan},         {-0.0F, 0},         {4294967040.0F, 300}};

template <class T>
void sweepRamp(RampCall<T> call)
{
    for (const Slope line : lines) {
        SCOPED_TRACE(std::to_string(line.offset) + " + n " + std::to_string(line.slope));
        sweepElementwise<T>([&](T* dst, int len) { return call(dst, len, line.offset, line.slope); },
                            [&](int len) {
                                std::vector<T> ramp;
                                for (int n = 0; n < len; ++n) {
                                    const float t = lineAt(n, line.offset, line.slope);
                                    if constexpr (std::is_floating_point_v<T>)
                                        ramp.push_back(t);
                                    else
                                        ramp.push_back(saturatedAway<T>(t));
                                }
                                return ramp;
                            },
                            {.depth = line.slope == 1 ? Depth::full : Depth::quick});
    }
}

TEST(Ramp, EightBits)
{
    sweepRamp<Tarn8u>(tarnsVectorRamp_8u);
    sweepRamp<Tarn8s>(tarnsVectorRamp_8s);
}
TEST(Ramp, SixteenBits)
{
    sweepRamp<Tarn16u>(tarnsVectorRamp_16u);
    sweepRamp<Tarn16s>(tarnsVectorRamp_16s);
}
TEST(Ramp, ThirtyTwoBits)
{
    sweepRamp<Tarn32u>(tarnsVectorRamp_32u);
    sweepRamp<Tarn32s>(tarnsVectorRamp_32s);
}
TEST(Ramp, SinglePrecision) { sweepRamp<Tarn32f>(tarnsVectorRamp_32f); }

// Whole groups of eight from a 16-byte boundary on are the line in double precision, all else in single.
std::vector<double> doubleRamp(const void* address, int len, Slope line)
{
    const auto place = reinterpret_cast<std::uintptr_t>(address);
    const bool grouped = len >= 9 && place % 8 == 0;
    const int head = place % 16 == 0 ? 0 : 1;
    const int end = grouped ? head + (len - head) / 8 * 8 : 0;
    std::vector<double> ramp;
    for (int n = 0; n < len; ++n) {
        const volatile double product = static_cast<double>(n) * static_cast<double>(line.slope);
        const volatile double wide = product + static_cast<double>(line.offset);
        ramp.push_back(grouped && n >= head && n < end ? double{wide}
                                                       : static_cast<double>(lineAt(n, line.offset, line.slope)));
    }
    return ramp;
}

TEST(Ramp, DoublePrecisionByAddress)
{
    for (const Slope line : lines) {
        SCOPED_TRACE(line.offset);
        for (int len = 1; len < 70; ++len)
            for (unsigned offset = 0; offset < 32; offset += offset < 17 ? 1 : 5) {
                GuardedArray<double> dst(static_cast<std::size_t>(len), Placement::offset(offset));
                const FpState before = FpState::current();
                ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_64f(dst.data(), len, line.offset, line.slope));
                EXPECT_EQ("", before.changesSince());
                const auto expected = doubleRamp(dst.data(), len, line);
                for (int n = 0; n < len; ++n)
                    ASSERT_TRUE(
                        valuesMatch(expected[static_cast<std::size_t>(n)], dst.get(static_cast<std::size_t>(n))))
                        << n << " of " << len << " at " << offset;
            }
        for (const int len : {1, 8, 9, 10, 40}) {
            GuardedArray<double> dst(static_cast<std::size_t>(len), Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_64f(dst.data(), len, line.offset, line.slope));
            const auto expected = doubleRamp(dst.data(), len, line);
            EXPECT_TRUE(valuesMatch(expected.back(), dst.get(static_cast<std::size_t>(len) - 1)));
        }
    }
}

// One third is another number in either precision.
TEST(Ramp, DoublePrecisionFromNineElements)
{
    alignas(16) double ramp[9];
    const auto third = 1.0F / 3;
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_64f(ramp, 8, third, third));
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(lineAt(n, third, third), ramp[n]);
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_64f(ramp, 9, third, third));
    EXPECT_NE(lineAt(2, third, third), ramp[2]);
    EXPECT_EQ(2.0 * third + third, ramp[2]);
    EXPECT_EQ(lineAt(8, third, third), ramp[8]);
}

// Beyond 2^24 single precision does not count every integer: an index that went on by additions would stand still.
TEST(Ramp, LongerThanSinglePrecisionCounts)
{
    constexpr int len = (1 << 24) + 1003;
    std::vector<Tarn32f> ramp(len);
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_32f(ramp.data(), len, 0.5F, 1));
    for (int n = len - 2000; n < len; ++n)
        ASSERT_EQ(lineAt(n, 0.5F, 1), ramp[static_cast<std::size_t>(n)]) << n;
}

TEST(Ramp, Limits)
{
    Tarn8u bytes[3];
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_8u(bytes, 3, 254.6F, 0));
    for (const Tarn8u x : bytes)
        EXPECT_EQ(255, x);
    Tarn8s small[1];
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_8s(small, 1, -0.4F, 0));
    EXPECT_EQ(0, small[0]);
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_8s(small, 1, -0.5F, 0));
    EXPECT_EQ(-1, small[0]);
    Tarn32u large[1];
    ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_32u(large, 1, 3e9F, 0));
    EXPECT_EQ(3000000000U, large[0]);
}

// The line itself is rounded as the caller has set; the rounding to integers is the same in every mode.
TEST(Ramp, RoundingModes)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        Tarn16s ramp[40];
        ASSERT_EQ(tarnStsNoErr, tarnsVectorRamp_16s(ramp, 40, -10.5F, 0.5F));
        for (int n = 0; n < 40; ++n) {
            const int halves = n - 21;
            EXPECT_EQ(halves < 0 ? (halves - 1) / 2 : (halves + 1) / 2, ramp[n]) << n;
        }
    }
}

TEST(Ramp, Checks)
{
    expectChecks(tarnsVectorRamp_8u, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_8s, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_16u, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_16s, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_32u, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_32s, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_32f, {}, array, length, 1.0F, 1.0F);
    expectChecks(tarnsVectorRamp_64f, {}, array, length, 1.0F, 1.0F);
}

} // namespace
} // namespace tarn::test
