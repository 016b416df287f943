// The Sub family against plain differences.
#include "tarns.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

#include <cmath>

namespace tarn::test {
namespace {

using model::saturated;
using model::scaled;

constexpr ScaleRange range_8u{.down = 8, .up = 7};
constexpr ScaleRange range_16s{.down = 16, .up = 15};
constexpr ScaleRange range_32s{.down = 32, .up = 30};
constexpr Tarn32s top = 2147483647;
constexpr Tarn32s bottom = -top - 1;

template <class T>
T minus(T a, T b, int s)
{
    if constexpr (requires { a.re; })
        return {minus(a.re, b.re, s), minus(a.im, b.im, s)};
    else
        return scaled<T>(Tarn64s{a} - Tarn64s{b}, s);
}

template <class T>
T floatMinus(T a, T b)
{
    if constexpr (requires { a.re; })
        return {a.re - b.re, a.im - b.im};
    else
        return a - b;
}

// Of two vectors the first is what is taken away.
constexpr auto secondMinusFirst = [](auto a, auto b, int s) { return minus(b, a, s); };
constexpr auto elementMinusConstant = [](auto a, auto val, int s) { return minus(a, val, s); };
constexpr auto constantMinusElement = [](auto a, auto val, int s) { return minus(val, a, s); };

TEST(Sub, ScaledDifferences)
{
    sweepScaled<Tarn8u>(tarnsSub_8u_Sfs, tarnsSub_8u_ISfs, range_8u, secondMinusFirst);
    sweepScaled<Tarn16s>(tarnsSub_16s_Sfs, tarnsSub_16s_ISfs, range_16s, secondMinusFirst);
    sweepScaled<Tarn16sc>(tarnsSub_16sc_Sfs, tarnsSub_16sc_ISfs, range_16s, secondMinusFirst);
    sweepScaled<Tarn32s>(tarnsSub_32s_Sfs, tarnsSub_32s_ISfs, range_32s, secondMinusFirst);
    sweepScaled<Tarn32sc>(tarnsSub_32sc_Sfs, tarnsSub_32sc_ISfs, range_32s, secondMinusFirst);
}

TEST(Sub, DifferencesWithoutAScale)
{
    sweepBoth<Tarn16s>(tarnsSub_16s, tarnsSub_16s_I, [](int a, int b) { return saturated<Tarn16s>(b - a); });
    sweepElementwise<Tarn32f, Tarn16s, Tarn16s>(tarnsSub_16s32f,
                                                [](int a, int b) { return static_cast<Tarn32f>(b - a); });
}

TEST(Sub, FloatDifferencesInEveryRoundingMode)
{
    const auto model = [](auto a, auto b) { return floatMinus(b, a); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const SweepOptions options{.depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick};
        sweepBoth<Tarn32f>(tarnsSub_32f, tarnsSub_32f_I, model, options);
        sweepBoth<Tarn64f>(tarnsSub_64f, tarnsSub_64f_I, model, options);
        sweepBoth<Tarn32fc>(tarnsSub_32fc, tarnsSub_32fc_I, model, options);
        sweepBoth<Tarn64fc>(tarnsSub_64fc, tarnsSub_64fc_I, model, options);
    }
}

const std::vector<Tarn8u> bytes = {1, 0, 100, 255};
const std::vector<Tarn16s> words = {-3, 0, 32767, -32768};
const std::vector<Tarn16sc> complexWords = {{-3, 1000}, {0, 0}, {32767, -32768}};
const std::vector<Tarn32s> integers = {5, 0, top, bottom};
const std::vector<Tarn32sc> complexIntegers = {{5, -77777}, {0, 0}, {top, bottom}};

TEST(SubC, ScaledDifferences)
{
    sweepScaledConstant(tarnsSubC_8u_Sfs, tarnsSubC_8u_ISfs, range_8u, bytes, elementMinusConstant);
    sweepScaledConstant(tarnsSubC_16s_Sfs, tarnsSubC_16s_ISfs, range_16s, words, elementMinusConstant);
    sweepScaledConstant(tarnsSubC_16sc_Sfs, tarnsSubC_16sc_ISfs, range_16s, complexWords, elementMinusConstant);
    sweepScaledConstant(tarnsSubC_32s_Sfs, tarnsSubC_32s_ISfs, range_32s, integers, elementMinusConstant);
    sweepScaledConstant(tarnsSubC_32sc_Sfs, tarnsSubC_32sc_ISfs, range_32s, complexIntegers, elementMinusConstant);
    for (const Tarn16s val : words)
        sweepInPlace<Tarn16s>([val](Tarn16s* srcDst, int len) { return tarnsSubC_16s_I(val, srcDst, len); },
                              [val](int a) { return saturated<Tarn16s>(a - val); });
}

TEST(SubCRev, ScaledDifferences)
{
    sweepScaledConstant(tarnsSubCRev_8u_Sfs, tarnsSubCRev_8u_ISfs, range_8u, bytes, constantMinusElement);
    sweepScaledConstant(tarnsSubCRev_16s_Sfs, tarnsSubCRev_16s_ISfs, range_16s, words, constantMinusElement);
    sweepScaledConstant(tarnsSubCRev_16sc_Sfs, tarnsSubCRev_16sc_ISfs, range_16s, complexWords, constantMinusElement);
    sweepScaledConstant(tarnsSubCRev_32s_Sfs, tarnsSubCRev_32s_ISfs, range_32s, integers, constantMinusElement);
    sweepScaledConstant(tarnsSubCRev_32sc_Sfs, tarnsSubCRev_32sc_ISfs, range_32s, complexIntegers,
                        constantMinusElement);
}

template <class T>
const std::vector<T> floats = {
    T(1.1), T(0), -T(0), std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::infinity(), T(-1e-37L), T(3e9)};

template <class T>
std::vector<T> complexFloats()
{
    constexpr auto nan = std::numeric_limits<RealOf<T>>::quiet_NaN();
    return {{RealOf<T>(1.1), -2}, {0, 0}, {-RealOf<T>(0), RealOf<T>(0)}, {nan, 3}, {0, nan}};
}

// A constant that is zero or a NaN leaves a real vector as it is, to the bit; but nothing is special about what is
// taken from a constant, or about complex ones.
TEST(SubC, FloatDifferences)
{
    const auto model = [](auto a, auto val) {
        if constexpr (requires { a.re; })
            return floatMinus(a, val);
        else
            return val == 0 || std::isnan(val) ? a : a - val;
    };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepBothConstant(tarnsSubC_32f, tarnsSubC_32f_I, floats<Tarn32f>, model, depth);
        sweepBothConstant(tarnsSubC_64f, tarnsSubC_64f_I, floats<Tarn64f>, model, depth);
        sweepBothConstant(tarnsSubC_32fc, tarnsSubC_32fc_I, complexFloats<Tarn32fc>(), model, depth);
        sweepBothConstant(tarnsSubC_64fc, tarnsSubC_64fc_I, complexFloats<Tarn64fc>(), model, depth);
    }
}

TEST(SubCRev, FloatDifferences)
{
    const auto model = [](auto a, auto val) { return floatMinus(val, a); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepBothConstant(tarnsSubCRev_32f, tarnsSubCRev_32f_I, floats<Tarn32f>, model, depth);
        sweepBothConstant(tarnsSubCRev_64f, tarnsSubCRev_64f_I, floats<Tarn64f>, model, depth);
        sweepBothConstant(tarnsSubCRev_32fc, tarnsSubCRev_32fc_I, complexFloats<Tarn32fc>(), model, depth);
        sweepBothConstant(tarnsSubCRev_64fc, tarnsSubCRev_64fc_I, complexFloats<Tarn64fc>(), model, depth);
    }
}

TEST(Sub, TheFirstSourceIsTakenFromTheSecond)
{
    const Tarn8u five = 5;
    const Tarn8u three = 3;
    Tarn8u byte = 77;
    EXPECT_EQ(tarnStsNoErr, tarnsSub_8u_Sfs(&five, &three, &byte, 1, 0));
    EXPECT_EQ(0, byte);
    EXPECT_EQ(tarnStsNoErr, tarnsSub_8u_Sfs(&three, &five, &byte, 1, 0));
    EXPECT_EQ(2, byte);
    const Tarn32f a = 1;
    Tarn32f b = 10;
    EXPECT_EQ(tarnStsNoErr, tarnsSub_32f_I(&a, &b, 1));
    EXPECT_EQ(9, b);
}

TEST(Sub, ADifferenceBeyondTheBoundsAfterHalving)
{
    const std::vector<Tarn16s> lowest(67, -32768);
    const std::vector<Tarn16s> highest(67, 32767);
    std::vector<Tarn16s> result(67);
    EXPECT_EQ(tarnStsNoErr, tarnsSub_16s_Sfs(lowest.data(), highest.data(), result.data(), 67, 1));
    EXPECT_EQ(highest, result);
}

TEST(Sub, FactorsAboveTheLimitReadNothing)
{
    const GuardedArray<Tarn32s> guarded(1, Placement::atEnd());
    const Tarn32s* unreadable = guarded.data() + 1;
    Tarn32s destination[40];
    std::fill(std::begin(destination), std::end(destination), 7);
    EXPECT_EQ(tarnStsNoErr, tarnsSub_32s_Sfs(unreadable, unreadable, destination, 40, 33));
    for (const Tarn32s x : destination)
        EXPECT_EQ(0, x);
}

TEST(SubC, BytesWhereTheSignDecides)
{
    const Tarn8u source[] = {0, 9, 10, 11, 255};
    Tarn8u result[5];
    EXPECT_EQ(tarnStsNoErr, tarnsSubC_8u_Sfs(source, 10, result, 5, -8));
    EXPECT_EQ((std::vector<Tarn8u>{0, 0, 0, 255, 255}), std::vector<Tarn8u>(result, result + 5));
    EXPECT_EQ(tarnStsNoErr, tarnsSubC_8u_Sfs(source, 0, result, 5, -8));
    EXPECT_EQ((std::vector<Tarn8u>{0, 255, 255, 255, 255}), std::vector<Tarn8u>(result, result + 5));
}

TEST(Sub, ChecksInOrder)
{
    expectChecks(tarnsSub_8u_Sfs);
    expectChecks(tarnsSub_8u_ISfs);
    expectChecks(tarnsSub_16s);
    expectChecks(tarnsSub_16s_I);
    expectChecks(tarnsSub_16s_Sfs);
    expectChecks(tarnsSub_16s_ISfs);
    expectChecks(tarnsSub_16s32f);
    expectChecks(tarnsSub_32s_Sfs);
    expectChecks(tarnsSub_32s_ISfs);
    expectChecks(tarnsSub_32f);
    expectChecks(tarnsSub_32f_I);
    expectChecks(tarnsSub_64f);
    expectChecks(tarnsSub_64f_I);
}

// Handing the complex call on at twice its length puts the length first, and a length whose double wraps last.
TEST(Sub, ChecksOfTheComplexForms)
{
    const ChecksOptions lengthFirst{.order = {Check::length, Check::pointer, Check::parameter},
                                    .wrappedLengths = doublingWraps};
    expectChecks(tarnsSub_16sc_Sfs, lengthFirst);
    expectChecks(tarnsSub_16sc_ISfs, lengthFirst);
    expectChecks(tarnsSub_32sc_Sfs, lengthFirst);
    expectChecks(tarnsSub_32sc_ISfs, lengthFirst);
    expectChecks(tarnsSub_32fc, lengthFirst);
    expectChecks(tarnsSub_32fc_I, lengthFirst);
    expectChecks(tarnsSub_64fc, lengthFirst);
    expectChecks(tarnsSub_64fc_I, lengthFirst);
}

template <class T>
void expectConstantChecks(TarnStatus (*outOfPlace)(const T*, T, T*, int, int), TarnStatus (*inPlace)(T, T*, int, int))
{
    for (const int s : {0, 1, 100, -100}) {
        for (const auto& val : {T{}, hardValues<T>()[1]}) {
            SCOPED_TRACE(toText(val) + " at " + std::to_string(s));
            expectChecks(outOfPlace, {}, array, val, array, length, s);
            expectChecks(inPlace, {}, val, array, length, s);
        }
    }
}

template <class T>
void expectConstantChecks(TarnStatus (*outOfPlace)(const T*, T, T*, int), TarnStatus (*inPlace)(T, T*, int))
{
    for (const auto& val : {T{}, hardValues<T>()[2]}) {
        SCOPED_TRACE(toText(val));
        expectChecks(outOfPlace, {}, array, val, array, length);
        expectChecks(inPlace, {}, val, array, length);
    }
}

// With a constant that takes a shortcut, one that does not, and a factor that zeroes.
TEST(SubC, ChecksInOrder)
{
    expectConstantChecks(tarnsSubC_8u_Sfs, tarnsSubC_8u_ISfs);
    expectConstantChecks(tarnsSubC_16s_Sfs, tarnsSubC_16s_ISfs);
    expectConstantChecks(tarnsSubC_16sc_Sfs, tarnsSubC_16sc_ISfs);
    expectConstantChecks(tarnsSubC_32s_Sfs, tarnsSubC_32s_ISfs);
    expectConstantChecks(tarnsSubC_32sc_Sfs, tarnsSubC_32sc_ISfs);
    expectConstantChecks(tarnsSubC_32f, tarnsSubC_32f_I);
    expectConstantChecks(tarnsSubC_64f, tarnsSubC_64f_I);
    expectConstantChecks(tarnsSubC_32fc, tarnsSubC_32fc_I);
    expectConstantChecks(tarnsSubC_64fc, tarnsSubC_64fc_I);
    for (const Tarn16s val : words)
        expectChecks(tarnsSubC_16s_I, {}, val, array, length);
}

TEST(SubCRev, ChecksInOrder)
{
    expectConstantChecks(tarnsSubCRev_8u_Sfs, tarnsSubCRev_8u_ISfs);
    expectConstantChecks(tarnsSubCRev_16s_Sfs, tarnsSubCRev_16s_ISfs);
    expectConstantChecks(tarnsSubCRev_16sc_Sfs, tarnsSubCRev_16sc_ISfs);
    expectConstantChecks(tarnsSubCRev_32s_Sfs, tarnsSubCRev_32s_ISfs);
    expectConstantChecks(tarnsSubCRev_32sc_Sfs, tarnsSubCRev_32sc_ISfs);
    expectConstantChecks(tarnsSubCRev_32f, tarnsSubCRev_32f_I);
    expectConstantChecks(tarnsSubCRev_64f, tarnsSubCRev_64f_I);
    expectConstantChecks(tarnsSubCRev_32fc, tarnsSubCRev_32fc_I);
    expectConstantChecks(tarnsSubCRev_64fc, tarnsSubCRev_64fc_I);
}

} // namespace
} // namespace tarn::test
