// The words of conversion give an element and a vector the same bits, and 24-bit elements keep theirs.
#include "frame/simd_24.h"
#include "frame/simd_round.h"
#include "support/fpstate.h"
#include "support/words.h"

#include <cmath>

namespace tarn::test {
namespace {

TEST(SimdRound, FloatsAsIntegersInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        expectAgreement<Tarn32f>(roundToInteger);
        expectAgreement<Tarn32f>(truncateToInteger);
        expectAgreement<Tarn32f>(roundSaturated);
        expectAgreement<Tarn32f>(truncateSaturated);
        // The second operand only makes the packs as long as those of single precision.
        expectAgreement<Tarn64f, Tarn32f>([](auto x, auto) { return roundToInteger(x); });
        expectAgreement<Tarn64f, Tarn32f>([](auto x, auto) { return truncateToInteger(x); });
    }
}

TEST(SimdRound, SaturatesAtBothEnds)
{
    EXPECT_EQ(2147483647, roundSaturated(2147483648.0F));
    EXPECT_EQ(2147483647, truncateSaturated(INFINITY));
    EXPECT_EQ(2147483520, roundSaturated(2147483520.0F));
    EXPECT_EQ(-2147483647 - 1, roundSaturated(-3e9F));
    EXPECT_EQ(-2147483647 - 1, roundSaturated(NAN));
}

TEST(SimdRound, BetweenThePrecisions)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        expectAgreement<Tarn32f>(widen);
        expectAgreement<Tarn64f, Tarn32f>([](auto x, auto) { return narrowFloat(x); });
    }
}

TEST(SimdRound, WideningBitsAndMasks)
{
    expectAgreement<Tarn8s>(widenBySign);
    expectAgreement<Tarn16s>(widenBySign);
    expectAgreement<Tarn32f>(bitsOf);
    expectAgreement<Tarn32s>(floatOfBits);
    expectAgreement<Tarn32s, Tarn32s>([](auto a, auto b) { return keepWhere(greater(a, b), a); });
}

template <class W>
void expectSameElements()
{
    const auto values = makeColumns<W>(Values::mixed, 64);
    const std::vector<W>& column = std::get<0>(values);
    constexpr int count = lanes<Stored24>;
    for (std::size_t first = 0; first + count <= column.size(); first += count) {
        const W* const from = column.data() + first;
        Stored24 ones[count];
        Stored24 together[count];
        for (int i = 0; i < count; ++i)
            store(ones + i, store24(from[i]));
        store(together, store24(tarn::loadPack<count>(from)));
        ASSERT_EQ(0, std::memcmp(ones, together, sizeof ones));

        const Source24<W> source{ones->byte};
        W read[count];
        store(read, loadPack<count>(source));
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(loadElement(source + i), read[i]);
            const W expected = std::is_signed_v<W> ? static_cast<W>(static_cast<Tarn32s>(from[i] << 8) >> 8)
                                                   : static_cast<W>(from[i] & 0xFFFFFF);
            ASSERT_EQ(expected, read[i]);
        }
    }
}

TEST(Simd24, ElementsAndPacksAreStoredAndReadAlike)
{
    expectSameElements<Tarn32s>();
    expectSameElements<Tarn32u>();
}

} // namespace
} // namespace tarn::test
