// Squares against exact integers, and plain products of floats.
#include "tarns/roots.h"

#include "model/product.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

namespace tarn::test {
namespace {

using model::scaled;

template <class T, class OutOfPlace, class InPlace, class Model>
void sweepSquares(OutOfPlace outOfPlace, InPlace inPlace, ScaleRange range, Model model)
{
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        const auto atScale = [&](T x) { return model(x, s); };
        sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return outOfPlace(src, dst, len, s); }, atScale,
                               {.depth = range.depth(s)});
        sweepInPlace<T>([&](T* x, int len) { return inPlace(x, len, s); }, atScale, {.depth = Depth::quick});
    }
}

TEST(Squares, OfIntegersAreExactBeforeTheyAreScaled)
{
    sweepSquares<Tarn8u>(tarnsSqr_8u_Sfs, tarnsSqr_8u_ISfs, {.down = 16, .up = 7},
                         [](Tarn8u x, int s) { return scaled<Tarn8u>(x * x, s); });
    sweepSquares<Tarn16s>(tarnsSqr_16s_Sfs, tarnsSqr_16s_ISfs, {.down = 30, .up = 14},
                          [](Tarn16s x, int s) { return scaled<Tarn16s>(x * x, s); });
    sweepSquares<Tarn16u>(tarnsSqr_16u_Sfs, tarnsSqr_16u_ISfs, {.down = 32, .up = 15},
                          [](Tarn16u x, int s) { return scaled<Tarn16u>(Tarn64s{x} * x, s); });
    sweepSquares<Tarn16sc>(tarnsSqr_16sc_Sfs, tarnsSqr_16sc_ISfs, {.down = 31, .up = 15}, [](Tarn16sc x, int s) {
        return Tarn16sc{scaled<Tarn16s>(Tarn64s{x.re} * x.re - Tarn64s{x.im} * x.im, s),
                        scaled<Tarn16s>(Tarn64s{2} * x.re * x.im, s)};
    });
}

template <class T>
T floatSquare(T x)
{
    if constexpr (ComplexElement<T>) {
        volatile RealOf<T> rere = x.re * x.re;
        volatile RealOf<T> imim = x.im * x.im;
        volatile RealOf<T> reim = x.re * x.im;
        return {rere - imim, reim + reim};
    } else {
        return x * x;
    }
}

TEST(Squares, OfFloatsRoundOnceAnOperation)
{
    const auto sweep = []<class T>(TarnStatus (*outOfPlace)(const T*, T*, int), TarnStatus (*inPlace)(T*, int)) {
        sweepElementwise<T, T>(outOfPlace, floatSquare<T>);
        sweepInPlace<T>(inPlace, floatSquare<T>, {.depth = Depth::quick});
    };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweep(tarnsSqr_32f, tarnsSqr_32f_I);
        sweep(tarnsSqr_32fc, tarnsSqr_32fc_I);
        sweep(tarnsSqr_64f, tarnsSqr_64f_I);
        sweep(tarnsSqr_64fc, tarnsSqr_64fc_I);
    }
}

TEST(Squares, BelowTheLowerLimitTheDestinationTellsZeroFromTheRest)
{
    const Tarn16s src[] = {1, 0, -1, 32767, -32768};
    Tarn16s dst[5] = {};
    for (const int s : {-15, -100, -2147483647 - 1}) {
        EXPECT_EQ(tarnStsNoErr, tarnsSqr_16s_Sfs(src, dst, 5, s));
        EXPECT_EQ((std::vector<Tarn16s>{32767, 0, 32767, 32767, 32767}), std::vector<Tarn16s>(dst, dst + 5));
    }
}

TEST(Squares, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsSqr_8u_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqr_16s_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqr_16u_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqr_16sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqr_8u_ISfs, {}, array, length, s);
        expectChecks(tarnsSqr_16s_ISfs, {}, array, length, s);
        expectChecks(tarnsSqr_16u_ISfs, {}, array, length, s);
        expectChecks(tarnsSqr_16sc_ISfs, {}, array, length, s);
    }
    expectChecks(tarnsSqr_32f);
    expectChecks(tarnsSqr_32fc);
    expectChecks(tarnsSqr_64f);
    expectChecks(tarnsSqr_64fc);
    expectChecks(tarnsSqr_32f_I);
    expectChecks(tarnsSqr_32fc_I);
    expectChecks(tarnsSqr_64f_I);
    expectChecks(tarnsSqr_64fc_I);
}

} // namespace
} // namespace tarn::test
