// The words that multiply give an element and a vector the same bits, and the right ones.
#include "frame/simd_mul.h"

#include "frame/factor.h"
#include "model/scale.h"
#include "support/fpstate.h"
#include "support/words.h"

#include <cmath>

namespace tarn::test {
namespace {

TEST(Factor, PowersOfTwoOfEveryExponent)
{
    for (int s = -1100; s <= 1200; ++s)
        ASSERT_EQ(std::ldexp(1.0, -s), twoToMinusAny(s)) << s;
    EXPECT_EQ(0, twoToMinusAny(std::numeric_limits<int>::max()));
    EXPECT_EQ(std::numeric_limits<double>::infinity(), twoToMinusAny(std::numeric_limits<int>::min()));
}

TEST(SimdMul, ExactProducts)
{
    expectAgreement<Tarn8u, Tarn8u>(mulWidened);
    expectAgreement<Tarn16s, Tarn16s>(mulWidened);
    expectAgreement<Tarn16u, Tarn16s>(mulWidened);
    expectAgreement<Tarn32s, Tarn32s>(mulWidened);
    EXPECT_EQ(65025, mulWidened(Tarn8u{255}, Tarn8u{255}));
    EXPECT_EQ(1 << 30, mulWidened(Tarn16s{-32768}, Tarn16s{-32768}));
    EXPECT_EQ(-65535 * 32768, mulWidened(Tarn16u{65535}, Tarn16s{-32768}));
}

// Their order is no one's business; narrowing ends it. Either half of a result fits words.
TEST(SimdMul, ExactProductsInLanes)
{
    const auto upperHalf = [](auto x) { return narrowSaturatedInLanes(shiftRight(x, 16)); };
    const auto lowerHalf = [](auto x) { return narrowSaturatedInLanes(shiftRight(shiftLeft(x, 16), 16)); };
    expectAgreement<Tarn16s, Tarn16s>([=](auto a, auto b) { return upperHalf(mulWidenedInLanes(a, b)); });
    expectAgreement<Tarn16s, Tarn16s>([=](auto a, auto b) { return lowerHalf(mulWidenedInLanes(a, b)); });
    expectAgreement<Tarn16s, Tarn16s, Tarn16s>(
        [=](auto a, auto b, auto c) { return upperHalf(mulAddWidenedInLanes(a, b, c)); });
    expectAgreement<Tarn16s, Tarn16s, Tarn16s>(
        [=](auto a, auto b, auto c) { return lowerHalf(mulAddWidenedInLanes(a, b, c)); });
    EXPECT_EQ(1 << 30, mulWidenedInLanes(Tarn16s{-32768}, Tarn16s{-32768}));
    EXPECT_EQ((1 << 30) - 32768, mulAddWidenedInLanes(Tarn16s{-32768}, Tarn16s{-32768}, Tarn16s{-32768}));
}

// Four parts that are each among the hard ones: all pairs of such elements.
std::vector<Tarn16sc> hardComplexWords()
{
    std::vector<Tarn16sc> values;
    for (const int re : {-32768, -32767, -1, 0, 1, 12345, 32766, 32767})
        for (const int im : {-32768, -32767, -12345, -1, 0, 1, 32767})
            values.push_back({static_cast<Tarn16s>(re), static_cast<Tarn16s>(im)});
    return values;
}

TEST(SimdMul, ComplexWordProductsOfExtremes)
{
    constexpr int step = registerLanes<Tarn16sc>;
    const std::vector<Tarn16sc> values = hardComplexWords();
    for (const Tarn16sc a : values) {
        for (std::size_t k = 0; k + step <= values.size(); k += step) {
            const auto product = mulComplex(splat<Register<Tarn16sc>>(a), loadPack<step>(&values[k]));
            Tarn32sc actual[step];
            store(actual, product);
            for (int i = 0; i < step; ++i) {
                const Tarn16sc b = values[k + static_cast<std::size_t>(i)];
                const Tarn64s re = Tarn64s{a.re} * b.re - Tarn64s{a.im} * b.im;
                const Tarn64s im = Tarn64s{a.re} * b.im + Tarn64s{a.im} * b.re;
                const Tarn32sc expected{model::saturated<Tarn32s>(re), model::saturated<Tarn32s>(im)};
                EXPECT_TRUE(valuesMatch<Tarn32sc>(expected, actual[i])) << toText(a) << toText(b);
                EXPECT_TRUE(valuesMatch<Tarn32sc>(expected, mulComplex(a, b))) << toText(a) << toText(b);
            }
        }
    }
}

TEST(SimdMul, PartsOfComplexElements)
{
    expectAgreement<Tarn16sc, Tarn16sc>(mulComplex);
    expectAgreement<Tarn32sc, Tarn32sc>(mulComplex);
    expectAgreement<Tarn16sc, Tarn16sc>(mulAddPairs);
    expectAgreement<Tarn32s, Tarn32s>(complexFrom<Tarn32sc>);
    expectAgreement<Tarn16sc>(conjugateWrapped);
    expectAgreement<Tarn16sc>(swapParts);
    expectAgreement<Tarn32fc>(swapParts);
    expectAgreement<Tarn64fc>(swapParts);
}

TEST(SimdMul, ComplexFloats)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        expectAgreement<Tarn32fc, Tarn32fc>(mulComplex);
        expectAgreement<Tarn64fc, Tarn64fc>(mulComplex);
    }
    EXPECT_TRUE(valuesMatch<Tarn32fc>({-5, 10}, mulComplex(Tarn32fc{1, 2}, Tarn32fc{3, 4})));
}

TEST(SimdMul, ComplexProductsOf32Bits)
{
    constexpr Tarn32s top = 2147483647;
    constexpr Tarn32s bottom = -top - 1;
    const auto extreme = mulComplex(Tarn32sc{bottom, bottom}, Tarn32sc{bottom, bottom});
    EXPECT_EQ(0, extreme.re);
    EXPECT_EQ(std::numeric_limits<Tarn64s>::max(), extreme.im);
    const auto negative = mulComplex(Tarn32sc{bottom, bottom}, Tarn32sc{top, bottom});
    EXPECT_EQ(Tarn64s{bottom} * top - (Tarn64s{1} << 62), negative.re);
    EXPECT_EQ((Tarn64s{1} << 62) + Tarn64s{bottom} * top, negative.im);
}

TEST(SimdMul, Results64BitsWide)
{
    expectAgreement<Tarn64s>(signsOf64s);
    expectAgreement<Tarn32s, Tarn32s>([](auto a, auto b) { return narrowSaturated<Tarn32s>(mulWidened(a, b)); });
    for (int n = 0; n <= 64; ++n)
        expectAgreement<Tarn64s>([n](auto x) { return shiftRightLogical(x, n); });
}

TEST(SimdMul, DoublesAnd32Bits)
{
    expectAgreement<Tarn32s>(convert<Tarn64f>);
    constexpr int n = registerLanes<Tarn32s>;
    const std::vector<Tarn64f>& hard = hardValues<Tarn64f>();
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (std::size_t k = 0; k + n <= hard.size(); k += n) {
            Tarn32s rounded[n];
            Tarn32s truncated[n];
            store(rounded, roundToInteger(loadPack<n>(&hard[k])));
            store(truncated, truncateToInteger(loadPack<n>(&hard[k])));
            for (int i = 0; i < n; ++i) {
                const Tarn64f x = hard[k + static_cast<std::size_t>(i)];
                EXPECT_EQ(roundToInteger(x), rounded[i]) << x;
                EXPECT_EQ(truncateToInteger(x), truncated[i]) << x;
                const bool fits = std::fabs(x) < 2147483648.0;
                EXPECT_EQ(fits ? static_cast<Tarn32s>(std::nearbyint(x)) : lowest<Tarn32s>, rounded[i]) << x;
            }
        }
    }
}

TEST(Factor, PowersOfTwoAtEveryExponent)
{
    for (int s = -127; s <= 126; ++s)
        EXPECT_EQ(std::ldexp(1.0F, -s), twoToMinus<Tarn32f>(s)) << s;
    for (int s = -1023; s <= 1022; ++s)
        EXPECT_EQ(std::ldexp(1.0, -s), twoToMinus<Tarn64f>(s)) << s;
}

} // namespace
} // namespace tarn::test
