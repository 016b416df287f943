// The words of windows and generators, lane by lane.
#include "frame/simd.h"

#include "support/compare.h"
#include "support/fpstate.h"
#include "support/hard_values.h"

namespace tarn::test {
namespace {

template <class T, int N>
void expectLanes(std::initializer_list<T> expected, Pack<T, N> x)
{
    const auto values = lanesAsArray(x);
    ASSERT_EQ(expected.size(), values.size());
    EXPECT_TRUE(arraysMatch<T>(expected.begin(), values.data(), N));
}

TEST(SimdSignal, LanesInOrder)
{
    expectLanes<Tarn32f>({1, 2, 3, 4}, lanesOf(1.F, 2.F, 3.F, 4.F));
    expectLanes<Tarn64f>({1, 2}, lanesOf(1., 2.));
    expectLanes<Tarn32f>({1, 1, 2, 2, 3, 3, 4, 4}, twice(lanesOf(1.F, 2.F, 3.F, 4.F)));
    expectLanes<Tarn64f>({1, 1, 2, 2, 3, 3, 4, 4}, twice(join(lanesOf(1., 2.), lanesOf(3., 4.))));
    EXPECT_EQ(7.0L, lanesAsArray(7.0L)[0]);
}

TEST(SimdSignal, ElementsInOppositeOrder)
{
    const auto single = lanesOf(1.F, 2.F, 3.F, 4.F);
    const auto more = join(single, lanesOf(5.F, 6.F, 7.F, 8.F));
    expectLanes<Tarn32f>({4, 3, 2, 1}, reverseElements<1>(single));
    expectLanes<Tarn32f>({3, 4, 1, 2}, reverseElements<2>(single));
    expectLanes<Tarn32f>({7, 8, 5, 6, 3, 4, 1, 2}, reverseElements<2>(more));
    expectLanes<Tarn64f>({2, 1}, reverseElements<1>(lanesOf(1., 2.)));
    expectLanes<Tarn64f>({1, 2}, reverseElements<2>(lanesOf(1., 2.)));
    expectLanes<Tarn64f>({3, 4, 1, 2}, reverseElements<2>(join(lanesOf(1., 2.), lanesOf(3., 4.))));
}

TEST(SimdSignal, SixteenBitSamplesBecomeLanes)
{
    const Tarn16s samples[] = {-32768, -1, 0, 1, 32767, 77, -77, 256};
    expectLanes<Tarn32f>({-32768, -1, 0, 1}, loadSamples<4>(samples));
    expectLanes<Tarn32f>({-32768, -1, 0, 1, 32767, 77, -77, 256}, loadSamples<8>(samples));
}

// One sample and four of them, in every rounding mode: what leaves 32 bits is the lowest value.
TEST(SimdSignal, LanesBecomeSixteenBitSamples)
{
    auto values = hardValues<Tarn32f>();
    values.resize(values.size() / 8 * 8);
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (std::size_t i = 0; i < values.size(); i += 8) {
            Tarn16s samples[8];
            storeSamples(samples, loadSamples<8>(values.data() + i));
            for (std::size_t k = 0; k < 8; ++k) {
                const Tarn32f x = values[i + k];
                const bool fits = x >= -2147483648.F && x < 2147483648.F;
                const auto expected =
                    fits ? static_cast<int>(std::clamp(std::nearbyint(x), -32768.F, 32767.F)) : -32768;
                EXPECT_EQ(expected, samples[k]) << x;
                EXPECT_EQ(expected, toSample<Tarn16s>(x)) << x;
                EXPECT_EQ(expected, toSample<Tarn16s>(static_cast<long double>(x))) << x;
            }
        }
    }
    EXPECT_EQ(-32768, toSample<Tarn16s>(2147483647.5L));
    EXPECT_EQ(32767, toSample<Tarn16s>(2147483647.25L));
    EXPECT_EQ(0.1F, toSample<Tarn32f>(0.1L));
}

TEST(SimdSignal, IntegersSaturateInStores)
{
    const Tarn32s wide[] = {-40000, -32769, -32768, 5, 32767, 32768, 2147483647, -2147483647 - 1};
    Tarn16s samples[8];
    storeNarrowed(samples, loadPack<8>(wide));
    const Tarn16s expected[] = {-32768, -32768, -32768, 5, 32767, 32767, 32767, -32768};
    EXPECT_TRUE(arraysMatch<Tarn16s>(expected, samples, 8));
}

} // namespace
} // namespace tarn::test
