// The scale rule for elements and vectors against the plain model, and the choice among the kernels.
#include "frame/scale.h"

#include "model/scale.h"
#include "support/hard_values.h"
#include "support/words.h"

namespace tarn::test {
namespace {

TEST(ShiftRounded, AgreesWithTheRuleAndWithItself)
{
    for (int s = 1; s <= 30; ++s) {
        SCOPED_TRACE(s);
        const auto shifted = [s](auto a, auto b) { return shiftRounded(sumWidened(a, b), s); };
        if (s <= 16)
            expectAgreement<Tarn16s, Tarn16s>(shifted);
        if (s <= 9)
            expectAgreement<Tarn8u, Tarn8u>(shifted);
        for (const Tarn16s a : hardValues<Tarn16s>())
            for (const Tarn16s b : hardValues<Tarn16s>())
                ASSERT_EQ(model::scaled<Tarn32s>(Tarn64s{a} * b, s), shiftRounded(Tarn32s{a} * b, s))
                    << a << " * " << b;
    }
}

TEST(Wide33, SumsAndDifferencesAtEveryShift)
{
    expectAgreement<Tarn32s, Tarn32s>([](auto a, auto b) { return halveRounded(exactSum(a, b)); });
    expectAgreement<Tarn32s, Tarn32s>([](auto a, auto b) { return halveRounded(exactDifference(a, b)); });
    for (int s = 1; s <= 32; ++s) {
        SCOPED_TRACE(s);
        if (s >= 2) {
            expectAgreement<Tarn32s, Tarn32s>([s](auto a, auto b) { return shiftRounded(exactSum(a, b), s); });
            expectAgreement<Tarn32s, Tarn32s>([s](auto a, auto b) { return shiftRounded(exactDifference(a, b), s); });
        }
        for (const Tarn32s a : hardValues<Tarn32s>()) {
            for (const Tarn32s b : hardValues<Tarn32s>()) {
                const auto sum = exactSum(a, b);
                const auto difference = exactDifference(a, b);
                ASSERT_EQ(model::scaled<Tarn32s>(Tarn64s{a} + b, s), s == 1 ? halveRounded(sum) : shiftRounded(sum, s))
                    << a << " + " << b;
                ASSERT_EQ(model::scaled<Tarn32s>(Tarn64s{a} - b, s),
                          s == 1 ? halveRounded(difference) : shiftRounded(difference, s))
                    << a << " - " << b;
            }
        }
    }
}

TEST(SignBound, GoesToTheBoundOfTheSign)
{
    const auto bound = [](auto x) { return signBound(x); };
    expectAgreement<Tarn8u>(bound);
    expectAgreement<Tarn16s>(bound);
    expectAgreement<Tarn32s>(bound);
    EXPECT_EQ(0, signBound(Tarn8u{0}));
    EXPECT_EQ(255, signBound(Tarn8u{1}));
    EXPECT_EQ(-32768, signBound(Tarn16s{-1}));
    EXPECT_EQ(0, signBound(Tarn16s{0}));
    EXPECT_EQ(32767, signBound(Tarn16s{1}));
    EXPECT_EQ(-2147483647 - 1, signBound(Tarn32s{-7}));
    EXPECT_EQ(2147483647, signBound(Tarn32s{7}));
}

// What ran last, and with which shift.
int ranCase;
int ranShift;

TEST(ScaledKernels, ChoiceByTheScaleFactor)
{
    enum { plain, one, pos, neg, bound };
    const ScaledKernels<int> kernels{
        {16, 15},
        [](int) { ranCase = plain; },
        [](int) { ranCase = one; },
        [](int, int s) { ranCase = pos, ranShift = s; },
        [](int, int n) { ranCase = neg, ranShift = n; },
        [](int) { ranCase = bound; },
    };
    const auto expectChoice = [&](int scaleFactor, int which, int shift) {
        ranCase = -1;
        ranShift = 0;
        kernels.run(scaleFactor, 0);
        EXPECT_EQ(which, ranCase) << scaleFactor;
        EXPECT_EQ(shift, ranShift) << scaleFactor;
    };
    expectChoice(0, plain, 0);
    expectChoice(1, one, 0);
    expectChoice(2, pos, 2);
    expectChoice(16, pos, 16);
    expectChoice(-1, neg, 1);
    expectChoice(-15, neg, 15);
    expectChoice(-16, bound, 0);
    expectChoice(-2147483647 - 1, bound, 0);
}

} // namespace
} // namespace tarn::test
