// The plain model of the scale rule against worked values and against the rule's inequality.
#include "model/scale.h"
#include "support/hard_values.h"
#include "support/sweep.h"
#include "tarncore.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace tarn::model {
namespace {

TEST(ScaleModel, WorkedValues)
{
    struct Row {
        int t, s, r;
    };
    constexpr Row rows[] = {{3, 1, 2},       {5, 1, 2},       {7, 1, 4},         {-1, 1, 0},        {-3, 1, -2},
                            {6, 2, 2},       {10, 2, 2},      {-6, 2, -2},       {65534, 16, 1},    {-65536, 16, -1},
                            {-65536, 17, 0}, {1, -15, 32767}, {-1, -15, -32768}, {20000, -1, 32767}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.r, scaled<Tarn16s>(row.t, row.s)) << row.t << " at " << row.s;
        EXPECT_EQ(row.r, scaled<Tarn16s>(Wide(row.t), row.s)) << row.t << " at " << row.s;
    }
}

TEST(ScaleModel, SaturatesAtEveryType)
{
    EXPECT_EQ(255, scaled<Tarn8u>(256, 0));
    EXPECT_EQ(0, scaled<Tarn8u>(-1, 0));
    EXPECT_EQ(255, scaled<Tarn8u>(1, -8));
    EXPECT_EQ(128, scaled<Tarn8u>(1, -7));
    EXPECT_EQ(-128, scaled<Tarn8s>(-129, 0));
    EXPECT_EQ(65535, scaled<Tarn16u>(65536, 0));
    EXPECT_EQ(0xFFFFFFFFU, scaled<Tarn32u>(0x100000000LL, 0));
    EXPECT_EQ(INT_MAX, scaled<Tarn32s>(0x80000000LL, 0));
    EXPECT_EQ(INT_MIN, scaled<Tarn32s>(-0x80000001LL, 0));
    EXPECT_EQ(LLONG_MAX, scaled<Tarn64s>(LLONG_MAX, -1));
    EXPECT_EQ(LLONG_MIN, scaled<Tarn64s>(-1, -63));
    EXPECT_EQ(LLONG_MIN, scaled<Tarn64s>(-1, -64));
    EXPECT_EQ(LLONG_MAX, scaled<Tarn64s>(1, -63));
    EXPECT_EQ(1LL << 62, scaled<Tarn64s>(1, -62));
    EXPECT_EQ(LLONG_MAX, scaled<Tarn64s>(product(Wide(LLONG_MIN), Wide(LLONG_MIN)), 0));
}

TEST(ScaleModel, ExtremeFactors)
{
    for (int s : {INT_MIN, INT_MIN + 1, -1000, -129, -64}) {
        EXPECT_EQ(32767, scaled<Tarn16s>(1, s));
        EXPECT_EQ(-32768, scaled<Tarn16s>(-1, s));
        EXPECT_EQ(0, scaled<Tarn16s>(0, s));
    }
    for (int s : {65, 128, 129, 1000, INT_MAX - 1, INT_MAX}) {
        for (std::int64_t t : {LLONG_MIN, -1LL, 0LL, 1LL, LLONG_MAX})
            EXPECT_EQ(0, scaled<Tarn64s>(t, s));
    }
    // The tie of the most negative number goes to the even 0, and one more bit of it would be -1.
    EXPECT_EQ(0, scaled<Tarn64s>(LLONG_MIN, 64));
    EXPECT_EQ(-1, scaled<Tarn64s>(LLONG_MIN, 63));
    EXPECT_EQ(1, scaled<Tarn64s>(LLONG_MAX, 63));
    EXPECT_EQ(-1, scaled<Tarn64s>(LLONG_MIN + 1, 63));
}

TEST(ScaleModel, IsTheNearestAndEvenAtTies)
{
    for (int t = -3000; t <= 3000; ++t) {
        for (int s = 1; s <= 14; ++s) {
            // Doubles hold these quotients exactly, and the processor rounds them by the same rule.
            const double quotient = std::ldexp(static_cast<double>(t), -s);
            EXPECT_EQ(static_cast<int>(std::nearbyint(quotient)), scaled<Tarn32s>(t, s)) << t << " at " << s;
        }
    }
}

TEST(ScaleModel, TwoWaysOfDivisionAgree)
{
    for (std::int64_t t : test::hardValues<Tarn64s>())
        for (int s = 0; s <= 62; ++s)
            EXPECT_EQ(Wide(roundedQuotient(t, s)), roundedQuotient(Wide(t), s)) << t << " at " << s;
}

TEST(Wide, Arithmetic)
{
    const Wide big = product(Wide(INT64_MAX), Wide(INT64_MAX));
    EXPECT_EQ((Wide{0x3FFFFFFFFFFFFFFF, 1}), big);
    EXPECT_EQ(Wide(0), big - big);
    EXPECT_EQ((Wide{-0x4000000000000000, ~0ULL}), -big);
    EXPECT_LT(-big, Wide(0));
    EXPECT_LT(Wide(INT64_MIN) + Wide(INT64_MIN), Wide(INT64_MIN));
    EXPECT_EQ((Wide{0, 0x8000000000000000}), product(Wide(INT64_MIN), Wide(-1)));
    EXPECT_EQ(Wide(-3), Wide(-5).halved());
    EXPECT_EQ(Wide(6), product(Wide(-2), Wide(-3)));
    EXPECT_EQ(Wide(-6), product(Wide(2), Wide(-3)));
}

} // namespace
} // namespace tarn::model
