// The guards of the rounding mode: what holds inside, and that the caller's word comes back.
#include "frame/rounding.h"

#include "support/fpstate.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tarn::test;

namespace {

constexpr std::uint32_t allMasked = 0x1F80;
constexpr std::uint32_t denormalsAreZero = 0x0040;
constexpr std::uint32_t flushToZero = 0x8000;
constexpr std::uint32_t inexactFlag = 0x0020;

std::uint32_t withMode(RoundingMode mode, std::uint32_t otherBits = 0)
{
    return allMasked | (static_cast<std::uint32_t>(mode) << 13) | otherBits;
}

// One third, rounded as the unit does at this moment; raises the inexact flag.
double third()
{
    volatile double one = 1;
    volatile double three = 3;
    return one / three;
}

constexpr double nearestThird = 0x1.5555555555555p-2;
constexpr double upperThird = 0x1.5555555555556p-2;

TEST(Rounding, NearestHoldsInEveryModeOfTheCaller)
{
    for (RoundingMode mode : allRoundingModes) {
        const MxcsrScope scope(withMode(mode));
        {
            const tarn::NearestRounding guard;
            EXPECT_EQ(allMasked, readMxcsr());
            EXPECT_EQ(nearestThird, third());
        }
        EXPECT_EQ(mode == RoundingMode::up ? upperThird : nearestThird, third());
    }
}

TEST(Rounding, TheWholeWordComesBack)
{
    for (RoundingMode mode : allRoundingModes) {
        for (std::uint32_t others : {0U, denormalsAreZero, flushToZero, inexactFlag, 0x1U}) {
            const std::uint32_t before = withMode(mode, others);
            const MxcsrScope scope(before);
            {
                const tarn::NearestRounding guard;
                third();
            }
            EXPECT_EQ(before, readMxcsr());
            {
                const tarn::NearestRoundingOfDenormals guard;
                third();
            }
            EXPECT_EQ(before, readMxcsr());
            {
                const tarn::KeptControl guard;
                third();
            }
            EXPECT_EQ(before, readMxcsr());
        }
    }
}

TEST(Rounding, NearestLeavesTheOtherControlBitsAlone)
{
    for (RoundingMode mode : allRoundingModes) {
        const MxcsrScope scope(withMode(mode, denormalsAreZero | flushToZero));
        const tarn::NearestRounding guard;
        EXPECT_EQ(allMasked | denormalsAreZero | flushToZero, readMxcsr());
    }
}

TEST(Rounding, DenormalsCountOnlyWhereTheModeWasForeign)
{
    for (RoundingMode mode : allRoundingModes) {
        const MxcsrScope scope(withMode(mode, denormalsAreZero));
        const tarn::NearestRoundingOfDenormals guard;
        EXPECT_EQ(mode == RoundingMode::nearest ? allMasked | denormalsAreZero : allMasked, readMxcsr());
    }
}

TEST(Rounding, KeepingTheWordChangesNothingInside)
{
    for (RoundingMode mode : allRoundingModes) {
        const MxcsrScope scope(withMode(mode));
        const tarn::KeptControl guard;
        EXPECT_EQ(withMode(mode), readMxcsr());
    }
}

} // namespace
