// The words around division give an element and a vector the same bits.
#include "frame/simd.h"

#include "support/words.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(SimdReciprocal, ElementsAgreeWithVectors)
{
    expectAgreement<Tarn32f>(approxReciprocal);
    expectAgreement<Tarn32f>(approxReciprocalRoot);
    expectAgreement<Tarn32f>(squareRoot);
    expectAgreement<Tarn64f>(squareRoot);
    expectAgreement<Tarn32f>(absolute);
    expectAgreement<Tarn64f>(absolute);
    expectAgreement<Tarn32f, Tarn32f>(copySign);
    expectAgreement<Tarn64f, Tarn64f>(copySign);
    expectAgreement<Tarn32f, Tarn32f>(notLess);
    expectAgreement<Tarn64f, Tarn64f>(notLess);
    expectAgreement<Tarn32f, Tarn32f>(unordered);
    expectAgreement<Tarn64f, Tarn64f>(unordered);
    expectAgreement<Tarn32f>([](auto x) {
        const auto estimate = approxReciprocal(x);
        return refineReciprocal(estimate, mul(x, estimate));
    });
}

TEST(SimdReciprocal, EstimatesAreAsCloseAsTheyShouldBe)
{
    for (const float x : randomValues<Tarn32f>(5000, 1, Values::unit)) {
        if (x == 0)
            continue;
        EXPECT_NEAR(1.0, double{approxReciprocal(x)} * double{x}, 1.5 * 0x1p-12);
        EXPECT_NEAR(1.0, double{approxReciprocalRoot(std::fabs(x))} * std::sqrt(std::fabs(double{x})), 1.5 * 0x1p-12);
    }
}

} // namespace
} // namespace tarn::test
