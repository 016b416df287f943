// The order of the checks, and lengths that wrap.
#include "frame/checks.h"
#include "frame/frontend.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace tarn::test {
namespace {

TEST(Checks, PointersBeforeLength)
{
    const int value = 0;
    const int* null = nullptr;
    EXPECT_EQ(tarnStsNoErr, check(1, &value, &value));
    EXPECT_EQ(tarnStsNoErr, check(INT_MAX, &value));
    for (const int len : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsSizeErr, check(len, &value, &value));
        EXPECT_EQ(tarnStsNullPtrErr, check(len, &value, null));
        EXPECT_EQ(tarnStsNullPtrErr, check(len, null, &value));
    }
    EXPECT_EQ(tarnStsNullPtrErr, check(1, null));
}

TEST(Checks, ProductsWrapIn32Bits)
{
    EXPECT_EQ(6, wrappedProduct(3, 2));
    EXPECT_EQ(INT_MIN, wrappedProduct(0x40000000, 2));
    EXPECT_EQ(0, wrappedProduct(0x40000000, 4));
    EXPECT_EQ(-2, wrappedProduct(INT_MAX, 2));
}

TEST(Checks, AnUnorderedValueCountsAsEqual)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(equalOrUnordered(0.0F, 0));
    EXPECT_TRUE(equalOrUnordered(-0.0F, 0));
    EXPECT_TRUE(equalOrUnordered(nan, 0));
    EXPECT_FALSE(equalOrUnordered(std::numeric_limits<float>::denorm_min(), 0));
    EXPECT_FALSE(equalOrUnordered(-1.0, 0));
    EXPECT_TRUE(equalOrUnordered(1.0, 1));
}

} // namespace
} // namespace tarn::test
