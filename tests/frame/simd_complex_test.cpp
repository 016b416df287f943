// The words of packed spectra give an element and a vector the same bits, and the right ones.
#include "frame/simd.h"

#include "support/fpstate.h"
#include "support/words.h"

namespace tarn::test {
namespace {

TEST(SimdSpectrum, Conjugates)
{
    expectAgreement<Tarn16sc>(conjugate);
    expectAgreement<Tarn32fc>(conjugate);
    expectAgreement<Tarn64fc>(conjugate);
    EXPECT_TRUE(valuesMatch<Tarn16sc>({-32768, 32767}, conjugate(Tarn16sc{-32768, -32768})));
    EXPECT_TRUE(valuesMatch<Tarn16sc>({32767, -32767}, conjugate(Tarn16sc{32767, 32767})));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({-0.0F, -0.0F}, conjugate(Tarn32fc{-0.0F, 0.0F})));
}

TEST(SimdSpectrum, ProductsByConjugates)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        expectAgreement<Tarn32fc, Tarn32fc>(mulByConjugate);
        expectAgreement<Tarn64fc, Tarn64fc>(mulByConjugate);
    }
    EXPECT_TRUE(valuesMatch<Tarn32fc>({11, 2}, mulByConjugate(Tarn32fc{1, 2}, Tarn32fc{3, 4})));
}

TEST(SimdSpectrum, SumsOfWordProducts)
{
    expectAgreement<Tarn16sc, Tarn16sc>(differenceOfParts);
    EXPECT_EQ(-5, differenceOfParts(Tarn16sc{1, 2}, Tarn16sc{3, 4}));
    EXPECT_EQ(0x7FFF8000, differenceOfParts(Tarn16sc{-32768, -32768}, Tarn16sc{-32768, 32767}));
    // Of all pairs of extremes, in the lanes of a register.
    for (const int a : {-32768, -32767, -1, 0, 1, 32767}) {
        for (const int b : {-32768, -32767, -1, 0, 1, 32767}) {
            const Tarn16sc x{static_cast<Tarn16s>(a), static_cast<Tarn16s>(b)};
            for (const int c : {-32768, -1, 0, 1, 32767}) {
                const Tarn16sc y{static_cast<Tarn16s>(c), -32768};
                Tarn32s lane[registerLanes<Tarn32s>];
                store(lane, differenceOfParts(splat<Register<Tarn16sc>>(x), splat<Register<Tarn16sc>>(y)));
                EXPECT_EQ(a * c + b * 32768, lane[0]) << a << " " << b << " " << c;
            }
        }
    }
}

TEST(SimdSpectrum, PartsJoined)
{
    expectAgreement<Tarn32s, Tarn32s>(joinNarrowed);
    EXPECT_TRUE(valuesMatch<Tarn16sc>({32767, -32768}, joinNarrowed(Tarn32s{32768}, Tarn32s{-32769})));
}

} // namespace
} // namespace tarn::test
