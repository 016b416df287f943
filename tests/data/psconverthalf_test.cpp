// Conversions from and to half precision against the definition of the format.
#include "tarns.h"

#include "model/convert.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <climits>

namespace tarn::test {
namespace {

using model::halfOf;
using model::halfOfSingle;
using model::halfValue;
using model::Rounding;
using model::singleOfHalf;

// In this group only a value of exactly 1 rounds to nearest.
Rounding roundingOf(int rndMode) { return rndMode == 1 ? Rounding::toNearest : Rounding::toZero; }
constexpr std::uint32_t flags = 0x3F;
constexpr int rndModes[] = {tarnRndZero, tarnRndNear, 2, -1};

std::vector<std::uint32_t> controlWords()
{
    constexpr std::uint32_t masked = 0x1F80;
    constexpr std::uint32_t denormalsAreZero = 0x0040;
    constexpr std::uint32_t flushToZero = 0x8000;
    std::vector<std::uint32_t> words;
    for (std::uint32_t mode = 0; mode < 4; ++mode)
        for (const std::uint32_t further : {0U, denormalsAreZero | flushToZero})
            words.push_back(masked | mode << 13 | further);
    return words;
}

// Bits are swept, since a signalling NaN may not survive being passed as a float.
TEST(ConvertHalf, EveryHalfAsASingle)
{
    for (const std::uint32_t word : controlWords()) {
        SCOPED_TRACE(word);
        const MxcsrScope scope(word);
        sweepElementwise<Tarn32u, Tarn16s>(
            [](const Tarn16s* src, Tarn32u* dst, int len) {
                return tarnsConvert_16f32f(src, reinterpret_cast<Tarn32f*>(dst), len);
            },
            [](Tarn16s x) { return singleOfHalf(static_cast<Tarn16u>(x)); }, {.depth = Depth::full});
        EXPECT_EQ(word, readMxcsr() & ~flags); // the model raises some
    }
}

// Singles of every exponent with fractions on both sides of every way to round.
const std::vector<Tarn32u>& singles()
{
    static const std::vector<Tarn32u> values = [] {
        std::vector<Tarn32u> all;
        std::vector<Tarn32u> fractions = {0, 1, 2, 0x7FFFFF, 0x7FFFFE, 0x400000, 0x400001, 0x3FFFFF};
        for (int bit = 2; bit < 23; ++bit)
            for (const int offset : {-1, 0, 1})
                fractions.push_back((Tarn32u{1} << bit) + static_cast<Tarn32u>(offset));
        // An odd and an even last bit of the half's fraction, then ties and their neighbours.
        for (const Tarn32u kept : {0x3FFU, 0x3FEU, 0x155U, 1U})
            for (const Tarn32u rest : {0U, 1U, 0xFFFU, 0x1000U, 0x1001U, 0x1FFFU})
                fractions.push_back(kept << 13 | rest);
        // The same where denormals keep fewer bits.
        for (int keptBits = 0; keptBits < 10; ++keptBits) {
            const Tarn32u unit = Tarn32u{1} << (23 - keptBits);
            for (const Tarn32u kept : {0U, (Tarn32u{1} << keptBits) - 1})
                for (const Tarn32u rest : {unit / 2 - 1, unit / 2, unit / 2 + 1})
                    fractions.push_back((kept * unit + rest) & 0x7FFFFF);
        }
        for (Tarn32u exponent = 0; exponent < 256; ++exponent)
            for (const Tarn32u fraction : fractions)
                for (const Tarn32u sign : {0U, 0x80000000U})
                    all.push_back(sign | exponent << 23 | fraction);
        for (Tarn32u i = 0; i < 4096; ++i)
            all.push_back(i * 0x9E3779B9U);
        return all;
    }();
    return values;
}

void sweepSingles(int rndMode, Depth depth)
{
    sweepElementwise<Tarn16u, Tarn32u>(
        [=](const Tarn32u* src, Tarn16u* dst, int len) {
            return tarnsConvert_32f16f(reinterpret_cast<const Tarn32f*>(src), reinterpret_cast<Tarn16s*>(dst), len,
                                       rndMode);
        },
        [=](Tarn32u x) { return static_cast<Tarn16u>(halfOfSingle(x, roundingOf(rndMode))); }, {.depth = depth},
        Columns<Tarn32u>{singles()});
}

TEST(ConvertHalf, SinglesOfEveryExponent)
{
    for (const std::uint32_t word : controlWords()) {
        for (const int rndMode : rndModes) {
            SCOPED_TRACE(std::to_string(word) + " rounded by " + std::to_string(rndMode));
            const MxcsrScope scope(word);
            sweepSingles(rndMode, word == 0x1F80 ? Depth::full : Depth::quick);
            EXPECT_EQ(word, readMxcsr() & ~flags); // the model raises some
        }
    }
}

TEST(ConvertHalf, EveryHalfAndBack)
{
    for (const int rndMode : rndModes) {
        for (int bits = 0; bits < 65536; ++bits) {
            const auto half = static_cast<Tarn16s>(bits);
            Tarn32f single = 0;
            Tarn16s back = 0;
            ASSERT_EQ(tarnStsNoErr, tarnsConvert_16f32f(&half, &single, 1));
            ASSERT_EQ(tarnStsNoErr, tarnsConvert_32f16f(&single, &back, 1, rndMode));
            const bool nan = model::halfIsNan(static_cast<unsigned>(bits));
            ASSERT_EQ(static_cast<Tarn16u>(nan ? bits | 0x200 : bits), static_cast<Tarn16u>(back));
        }
    }
}

Tarn16u half(Tarn32f x, int rndMode)
{
    Tarn16s result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsConvert_32f16f(&x, &result, 1, rndMode));
    return static_cast<Tarn16u>(result);
}

TEST(ConvertHalf, EndsOfTheRange)
{
    EXPECT_EQ(0x7BFF, half(65504.0F, tarnRndNear));
    EXPECT_EQ(0x7BFF, half(65519.996F, tarnRndNear));
    EXPECT_EQ(0x7C00, half(65520.0F, tarnRndNear));
    EXPECT_EQ(0x7BFF, half(65520.0F, tarnRndZero));
    EXPECT_EQ(0xFBFF, half(-1e30F, tarnRndZero));
    EXPECT_EQ(0xFC00, half(-1e30F, tarnRndNear));
    for (const int rndMode : rndModes) {
        EXPECT_EQ(0x7C00, half(std::numeric_limits<Tarn32f>::infinity(), rndMode));
        EXPECT_EQ(0x8000, half(-0.0F, rndMode));
        EXPECT_EQ(0x0001, half(0x1p-24F, rndMode));
        EXPECT_EQ(0x0400, half(0x1p-14F, rndMode));
    }
    EXPECT_EQ(0x0000, half(0x1p-25F, tarnRndNear));
    EXPECT_EQ(0x0001, half(0x1.000002p-25F, tarnRndNear));
    EXPECT_EQ(0x0002, half(0x1.8p-24F, tarnRndNear));
    EXPECT_EQ(0x0001, half(0x1.8p-24F, tarnRndZero));
    EXPECT_EQ(0x0400, half(0x1.FFFFFEp-15F, tarnRndNear));
    EXPECT_EQ(0x03FF, half(0x1.FFFFFEp-15F, tarnRndZero));
}

TEST(ConvertHalf, EveryIntegerAsAHalf)
{
    for (const std::uint32_t word : controlWords()) {
        for (const int rndMode : rndModes) {
            SCOPED_TRACE(std::to_string(word) + " rounded by " + std::to_string(rndMode));
            const MxcsrScope scope(word);
            sweepElementwise<Tarn16s, Tarn16s>(
                [=](const Tarn16s* src, Tarn16s* dst, int len) { return tarnsConvert_16s16f(src, dst, len, rndMode); },
                [=](Tarn16s x) { return static_cast<Tarn16s>(halfOf(x, roundingOf(rndMode))); },
                {.depth = word == 0x1F80 ? Depth::full : Depth::quick});
            EXPECT_EQ(word, readMxcsr() & ~flags); // the model raises some
        }
    }
}

TEST(ConvertHalf, EveryHalfAsAScaledInteger)
{
    for (const std::uint32_t word : controlWords()) {
        for (const int rndMode : rndModes) {
            for (const int s : {0,   1,   -1,  2,   -2,  5,   -5,  10, -10, 15, 16,      17,     -23,
                                -24, -25, -38, -39, -40, -41, -42, 40, 41,  42, INT_MIN, INT_MAX}) {
                SCOPED_TRACE(std::to_string(word) + " rounded by " + std::to_string(rndMode) + " at " +
                             std::to_string(s));
                const bool full = s == 0 && word == 0x1F80 && rndMode == 1;
                const bool rare = std::abs(static_cast<Tarn64s>(s)) > 1 && word != 0x1F80 && rndMode != 1;
                if (rare)
                    continue;
                const MxcsrScope scope(word);
                sweepElementwise<Tarn16s, Tarn16s>(
                    [=](const Tarn16s* src, Tarn16s* dst, int len) {
                        return tarnsConvert_16f16s_Sfs(src, dst, len, rndMode, s);
                    },
                    [=](Tarn16s x) {
                        return model::toInteger<Tarn16s>(halfValue(static_cast<Tarn16u>(x)), s, roundingOf(rndMode));
                    },
                    {.depth = full ? Depth::full : Depth::quick});
                EXPECT_EQ(word, readMxcsr() & ~flags); // the model raises some
            }
        }
    }
}

TEST(ConvertHalf, FlagsAreKept)
{
    const MxcsrScope scope(0x1F80);
    EXPECT_EQ(0x7E00, half(std::numeric_limits<Tarn32f>::quiet_NaN(), tarnRndZero));
    EXPECT_EQ(0x7C00, half(1e30F, tarnRndNear));
    EXPECT_EQ(0x2E66, half(0.1F, tarnRndNear));
    EXPECT_EQ(0x1F80U, readMxcsr());
}

TEST(ConvertHalf, ChecksInOrder)
{
    expectChecks(tarnsConvert_16f32f);
    for (const int rndMode : rndModes) {
        expectChecks(tarnsConvert_16s16f, {}, array, array, length, rndMode);
        expectChecks(tarnsConvert_32f16f, {}, array, array, length, rndMode);
        for (const int s : {0, INT_MIN, INT_MAX})
            expectChecks(tarnsConvert_16f16s_Sfs, {}, array, array, length, rndMode, s);
    }
}

} // namespace
} // namespace tarn::test
