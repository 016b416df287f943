// The test support itself: guards that catch, comparisons that see one bit, sweeps and check drivers that fail when the
// function under them is wrong.
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>
#include <limits>
#include <set>

namespace tarn::test {
namespace {

// ---- Guarded arrays

TEST(Guarded, PlacesDataAtTheOffset)
{
    for (unsigned offset = 0; offset < 64; ++offset) {
        GuardedArray<Tarn32f> array(5, Placement::offset(offset));
        EXPECT_EQ(offset, reinterpret_cast<std::uintptr_t>(array.bytes()) % 64);
        array.set(4, 1.5f);
        EXPECT_EQ(1.5f, array.get(4));
        EXPECT_EQ("", array.redZoneDamage());
    }
}

TEST(Guarded, EndsAndStartsAtPages)
{
    const GuardedArray<Tarn16s> end(7, Placement::atEnd());
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(end.bytes() + end.byteSize()) % 4096);
    const GuardedArray<Tarn16s> gap(7, Placement::atEnd(3));
    EXPECT_EQ(4093U, reinterpret_cast<std::uintptr_t>(gap.bytes() + gap.byteSize()) % 4096);
    const GuardedArray<Tarn16s> start(7, Placement::atStart());
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(start.bytes()) % 4096);
}

int readByte(const unsigned char* at) { return *const_cast<const volatile unsigned char*>(at); }

TEST(GuardedDeathTest, ReadsPastTheEndsFault)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    GuardedArray<Tarn8u> end(100, Placement::atEnd());
    GuardedArray<Tarn8u> start(100, Placement::atStart());
    EXPECT_EQ(end.get(99), readByte(end.bytes() + 99));
    EXPECT_DEATH(readByte(end.bytes() + 100), "");
    EXPECT_DEATH(readByte(start.bytes() - 1), "");
    EXPECT_DEATH(readByte(static_cast<unsigned char*>(unreadableBytes())), "");
}

TEST(Guarded, ReportsEveryByteOfTheZones)
{
    for (std::size_t distance = 0; distance < GuardedBytes::zoneBytes; ++distance) {
        for (const bool behind : {false, true}) {
            GuardedArray<Tarn8u> array(10, Placement::offset(5));
            unsigned char* at = behind ? array.bytes() + 10 + distance : array.bytes() - 1 - distance;
            *at ^= 1;
            EXPECT_NE(std::string::npos, array.redZoneDamage().find(behind ? "behind" : "before"));
            EXPECT_NONFATAL_FAILURE(array.checkRedZones(), "overwritten");
            array.repairRedZones();
        }
    }
}

TEST(Guarded, DestructorReports)
{
    EXPECT_NONFATAL_FAILURE(
        {
            GuardedArray<Tarn8u> array(10, Placement::atEnd());
            array.bytes()[-1] ^= 0x80;
        },
        "byte 1 before the array");
}

// ---- Comparison

TEST(Compare, SeesEveryBit)
{
    for (unsigned bit = 0; bit < 64; ++bit) {
        Tarn64f expected[3] = {1, 2, 3};
        Tarn64f actual[3] = {1, 2, 3};
        EXPECT_TRUE(arraysMatch<Tarn64f>(expected, actual, 3));
        reinterpret_cast<unsigned char*>(&actual[1])[bit / 8] ^= static_cast<unsigned char>(1U << (bit % 8));
        const auto result = arraysMatch<Tarn64f>(expected, actual, 3);
        EXPECT_FALSE(result);
        EXPECT_NE(std::string::npos, std::string(result.message()).find("[1]"));
    }
}

TEST(Compare, ZerosAndNaNs)
{
    const Tarn32f nan = std::numeric_limits<Tarn32f>::quiet_NaN();
    EXPECT_FALSE(valuesMatch(0.0f, -0.0f));
    EXPECT_FALSE(valuesMatch(0.0f, -0.0f, {.ulps = 0}));
    EXPECT_TRUE(valuesMatch(nan, -nan));
    EXPECT_FALSE(valuesMatch(nan, -nan, {.nan = NanRule::sameBits}));
    EXPECT_TRUE(valuesMatch(nan, nan, {.nan = NanRule::sameBits}));
    EXPECT_FALSE(valuesMatch(nan, 1.0f, {.ulps = 1e30}));
    EXPECT_FALSE(valuesMatch(1.0f, nan, {.ulps = 1e30}));
    EXPECT_FALSE(valuesMatch(INFINITY, std::numeric_limits<Tarn32f>::max(), {.relative = 1e30}));
    EXPECT_TRUE(valuesMatch(Tarn32fc{nan, 1}, Tarn32fc{-nan, 1}));
    EXPECT_FALSE(valuesMatch(Tarn32fc{nan, 1}, Tarn32fc{nan, 2}));
}

TEST(Compare, Tolerances)
{
    EXPECT_FALSE(valuesMatch(1.0f, std::nextafter(1.0f, 2.0f)));
    EXPECT_TRUE(valuesMatch(1.0f, std::nextafter(1.0f, 2.0f), {.ulps = 1}));
    EXPECT_FALSE(valuesMatch(1.0f, 1.0f + 2 * std::numeric_limits<Tarn32f>::epsilon(), {.ulps = 1}));
    EXPECT_TRUE(valuesMatch(0.0, std::numeric_limits<Tarn64f>::denorm_min(), {.ulps = 1}));
    EXPECT_FALSE(valuesMatch(0.0, 3 * std::numeric_limits<Tarn64f>::denorm_min(), {.ulps = 2}));
    EXPECT_TRUE(valuesMatch(100.0, 101.0, {.absolute = 1}));
    EXPECT_TRUE(valuesMatch(100.0, 99.0, {.relative = 0.01}));
    EXPECT_FALSE(valuesMatch(100.0, 98.5, {.relative = 0.01}));
    EXPECT_TRUE(valuesMatch<Tarn16s>(7, 8, {.absolute = 1}));
    EXPECT_FALSE(valuesMatch<Tarn16s>(7, 9, {.absolute = 1}));
}

// ---- Values

template <class T>
bool hasValue(const T& value)
{
    for (const T& hard : hardValues<T>())
        if (elementMatches<T>(&value, &hard))
            return true;
    return false;
}

TEST(HardValues, HaveTheBounds)
{
    EXPECT_TRUE(hasValue<Tarn8u>(255) && hasValue<Tarn8u>(254) && hasValue<Tarn8u>(0) && hasValue<Tarn8u>(128));
    EXPECT_TRUE(hasValue<Tarn16s>(-32768) && hasValue<Tarn16s>(-32767) && hasValue<Tarn16s>(32767) &&
                hasValue<Tarn16s>(-1));
    EXPECT_TRUE(hasValue<Tarn32s>(INT_MIN) && hasValue<Tarn32s>(INT_MAX) && hasValue<Tarn32s>(1 << 30));
    EXPECT_TRUE(hasValue<Tarn32u>(0x80000000U) && hasValue<Tarn32u>(0xFFFFFFFFU));
    EXPECT_TRUE(hasValue<Tarn64s>(LLONG_MIN) && hasValue<Tarn64s>(LLONG_MAX) && hasValue<Tarn64s>(1LL << 40));
    EXPECT_TRUE(hasValue<Tarn32f>(-0.0f) && hasValue<Tarn32f>(0.0f) && hasValue<Tarn32f>(-INFINITY) &&
                hasValue<Tarn32f>(NAN));
    EXPECT_TRUE(hasValue<Tarn64f>(std::numeric_limits<double>::denorm_min()) && hasValue<Tarn64f>(2.5));
    EXPECT_GT(hardValues<Tarn16sc>().size(), hardValues<Tarn16s>().size());
}

TEST(Columns, BytesMeetAllBytes)
{
    const auto columns = makeColumns<Tarn8u, Tarn8s>();
    std::set<std::pair<int, int>> pairs;
    for (std::size_t i = 0; i < std::get<0>(columns).size(); ++i)
        pairs.emplace(std::get<0>(columns)[i], std::get<1>(columns)[i]);
    EXPECT_EQ(65536U, pairs.size());
    const auto single = std::get<0>(makeColumns<Tarn16s>());
    EXPECT_EQ(65536U, std::set<Tarn16s>(single.begin(), single.end()).size());
}

TEST(Columns, AreDeterministicAndOfOneLength)
{
    const auto a = makeColumns<Tarn64f, Tarn16s, Tarn32fc>();
    const auto b = makeColumns<Tarn64f, Tarn16s, Tarn32fc>();
    EXPECT_EQ(std::get<0>(a).size(), std::get<1>(a).size());
    EXPECT_EQ(std::get<0>(a).size(), std::get<2>(a).size());
    EXPECT_TRUE(arraysMatch<Tarn64f>(std::get<0>(a).data(), std::get<0>(b).data(), std::get<0>(a).size(),
                                     {.nan = NanRule::sameBits}));
    EXPECT_EQ(std::get<1>(a), std::get<1>(b));
}

TEST(Lists, LengthsAndScaleFactors)
{
    const auto list = lengths({200});
    for (int len : {1, 2, 70, 199, 200, 201, 217})
        EXPECT_TRUE(std::binary_search(list.begin(), list.end(), len)) << len;
    const auto factors = scaleFactors(-16, 17);
    for (int s : {INT_MIN, INT_MIN + 1, -1000, -65, -32, -19, -16, 0, 16, 17, 20, 31, 33, 64, INT_MAX - 1, INT_MAX})
        EXPECT_TRUE(std::binary_search(factors.begin(), factors.end(), s)) << s;
}

// ---- Floating-point state

TEST(FpState, ScopesSetAndRestoreBothUnits)
{
    const FpState before = FpState::current();
    volatile float one = 1;
    volatile float three = 3;
    volatile long double wideOne = 1;
    volatile long double wideThree = 3;
    float down = 0;
    float up = 0;
    long double wideDown = 0;
    long double wideUp = 0;
    {
        RoundingModeScope scope(RoundingMode::down);
        down = one / three;
        wideDown = wideOne / wideThree;
        EXPECT_NE("", before.changesSince());
    }
    {
        RoundingModeScope scope(RoundingMode::up);
        up = one / three;
        wideUp = wideOne / wideThree;
    }
    EXPECT_LT(down, up);
    EXPECT_LT(wideDown, wideUp);
    EXPECT_EQ("", before.changesSince());
}

TEST(FpState, SeesWhatACallLeavesBehind)
{
    const FpState before = FpState::current();
    EXPECT_EQ(0xFFFF, before.x87Tags);
    asm volatile("fldz");
    const std::string left = before.changesSince();
    asm volatile("fstp %%st(0)" : :);
    EXPECT_NE("", left);
    {
        MxcsrScope scope(readMxcsr() | 0x8000);
        EXPECT_NE("", before.changesSince());
    }
    EXPECT_EQ("", before.changesSince());
}

} // namespace
} // namespace tarn::test
