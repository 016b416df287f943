// Thresholds by value and by magnitude.
#include "tarns/threshold.h"

#include "model/threshold.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace tarn::test {
namespace {

constexpr float nan32 = std::numeric_limits<float>::quiet_NaN();
constexpr float inf32 = std::numeric_limits<float>::infinity();

template <class T>
struct LevelType {
    using type = T;
};
template <ComplexElement T>
struct LevelType<T> {
    using type = RealOf<T>;
};
template <class T>
using LevelOf = typename LevelType<T>::type;

/// The functions of one type, out of place and in place.
template <class T>
struct Family {
    using Level = LevelOf<T>;
    using Limit = TarnStatus (*)(const T*, T*, int, Level);
    using LimitInPlace = TarnStatus (*)(T*, int, Level);
    using Replace = TarnStatus (*)(const T*, T*, int, Level, T);
    using ReplaceInPlace = TarnStatus (*)(T*, int, Level, T);

    TarnStatus (*general)(const T*, T*, int, Level, int);
    TarnStatus (*generalInPlace)(T*, int, Level, int);
    Limit below, above;
    LimitInPlace belowInPlace, aboveInPlace;
    Replace belowBy, aboveBy;
    ReplaceInPlace belowByInPlace, aboveByInPlace;
};

#define TARN_FAMILY(TAG)                                                                                  \
    Family<Tarn##TAG>                                                                                     \
    {                                                                                                     \
        tarnsThreshold_##TAG, tarnsThreshold_##TAG##_I, tarnsThreshold_LT_##TAG, tarnsThreshold_GT_##TAG, \
            tarnsThreshold_LT_##TAG##_I, tarnsThreshold_GT_##TAG##_I, tarnsThreshold_LTVal_##TAG,         \
            tarnsThreshold_GTVal_##TAG, tarnsThreshold_LTVal_##TAG##_I, tarnsThreshold_GTVal_##TAG##_I    \
    }

template <class T>
T limited(T x, LevelOf<T> level, bool above)
{
    if constexpr (ComplexElement<T>)
        return model::magnitudeLimited(x, level, above);
    else
        return above ? model::limitedAbove(x, level) : model::limitedBelow(x, level);
}

template <class T>
T replaced(T x, LevelOf<T> level, T value, bool above)
{
    if constexpr (ComplexElement<T>)
        return model::compareMagnitude(x, level) == (above ? 1 : -1) ? value : x;
    else
        return (above ? x > level : x < level) ? value : x;
}

/// NaNs that pass keep every bit; those that arise from infinite parts are anyone's.
template <class T>
constexpr NanRule nanRule = ComplexElement<T> ? NanRule::anyNan : NanRule::sameBits;

template <class T>
void sweepFamily(const Family<T>& family, std::initializer_list<LevelOf<T>> levels, std::initializer_list<T> values,
                 Values kind = Values::mixed, Depth most = Depth::full)
{
    for (const auto level : levels) {
        const Depth depth = level == *(levels.begin() + 1) ? most : Depth::quick;
        const SweepOptions options{
            .name = "level " + toText(level), .depth = depth, .match = {.nan = nanRule<T>}, .values = kind};
        for (const bool above : {false, true}) {
            const auto model = [&](T x) { return limited(x, level, above); };
            const auto call = above ? family.above : family.below;
            const auto inPlace = above ? family.aboveInPlace : family.belowInPlace;
            sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, dst, len, level); }, model,
                                   options);
            sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(srcDst, len, level); }, model, options);
            for (const int relOp : {0, 1, 2, 3, 4, 5, -4, INT_MIN, 0x104}) {
                if ((relOp == tarnCmpGreater) != above)
                    continue;
                sweepElementwise<T, T>(
                    [&](const T* src, T* dst, int len) { return family.general(src, dst, len, level, relOp); }, model,
                    {.depth = Depth::quick, .match = options.match, .values = kind});
                sweepInPlace<T>([&](T* srcDst, int len) { return family.generalInPlace(srcDst, len, level, relOp); },
                                model, {.depth = Depth::quick, .match = options.match, .values = kind});
            }
        }
    }
    for (const auto level : levels) {
        for (const T value : values) {
            const SweepOptions options{.name = "level " + toText(level) + ", value " + toText(value),
                                       .depth = Depth::quick,
                                       .match = {.nan = NanRule::sameBits},
                                       .values = kind};
            for (const bool above : {false, true}) {
                const auto model = [&](T x) { return replaced(x, level, value, above); };
                const auto call = above ? family.aboveBy : family.belowBy;
                const auto inPlace = above ? family.aboveByInPlace : family.belowByInPlace;
                sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, dst, len, level, value); },
                                       model, options);
                sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(srcDst, len, level, value); }, model, options);
            }
        }
    }
}

template <class T>
void checkFamily(const Family<T>& family)
{
    const auto check = [](const auto& level, const Family<T>& f) {
        expectChecks(f.general, {}, array, array, length, level, 0);
        expectChecks(f.general, {}, array, array, length, level, 4);
        expectChecks(f.generalInPlace, {}, array, length, level, 0);
        expectChecks(f.generalInPlace, {}, array, length, level, 4);
        expectChecks(f.below, {}, array, array, length, level);
        expectChecks(f.above, {}, array, array, length, level);
        expectChecks(f.belowInPlace, {}, array, length, level);
        expectChecks(f.aboveInPlace, {}, array, length, level);
        expectChecks(f.belowBy, {}, array, array, length, level, T{});
        expectChecks(f.aboveBy, {}, array, array, length, level, T{});
        expectChecks(f.belowByInPlace, {}, array, length, level, T{});
        expectChecks(f.aboveByInPlace, {}, array, length, level, T{});
    };
    using Level = LevelOf<T>;
    if constexpr (ComplexElement<T>) {
        check(param<Level>(3, {Level{-1}, std::numeric_limits<Level>::lowest()}, tarnStsThreshNegLevelErr), family);
    } else {
        check(Level{-1}, family);
    }
}

TEST(Threshold, Words)
{
    sweepFamily<Tarn16s>(TARN_FAMILY(16s), {0, 100, -100, -32768, 32767}, {0, -7, 32767});
    checkFamily(TARN_FAMILY(16s));
    for (const int level : {0, -5, INT_MIN, INT_MAX, 123456789}) {
        const auto model = [&](Tarn32s x) { return model::limitedBelow(x, level); };
        sweepElementwise<Tarn32s, Tarn32s>(
            [&](const Tarn32s* src, Tarn32s* dst, int len) { return tarnsThreshold_LT_32s(src, dst, len, level); },
            model);
        sweepInPlace<Tarn32s>([&](Tarn32s* srcDst, int len) { return tarnsThreshold_LT_32s_I(srcDst, len, level); },
                              model);
    }
    expectChecks(tarnsThreshold_LT_32s, {}, array, array, length, -1);
    expectChecks(tarnsThreshold_LT_32s_I, {}, array, length, -1);
}

TEST(Threshold, Floats)
{
    sweepFamily<Tarn32f>(TARN_FAMILY(32f), {0.0f, 1.5f, -0.0f, -32768.0f, inf32, -inf32, nan32, 1e-40f},
                         {0.0f, -7.5f, nan32, inf32});
    checkFamily(TARN_FAMILY(32f));
    sweepFamily<Tarn64f>(TARN_FAMILY(64f), {0.0, 1.5, -0.0, -32768.0, double{inf32}, -double{inf32}, double{nan32}},
                         {0.0, -7.5, double{nan32}});
    checkFamily(TARN_FAMILY(64f));
}

TEST(Threshold, ComplexWordsInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepFamily<Tarn16sc>(TARN_FAMILY(16sc), {0, 1000, 1, 5, 181, 23170, 32767}, {{0, 0}, {-7, 32767}});
    }
    checkFamily(TARN_FAMILY(16sc));
}

TEST(Threshold, ComplexFloatsInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepFamily<Tarn32fc>(TARN_FAMILY(32fc), {0.0f, 1.5f, -0.0f, 1.0f, 1e-30f, 1e30f, inf32, nan32, 1e-40f},
                              {{0.0f, -7.5f}, {nan32, 1.0f}});
        // Without values whose squares leave the range: those have a test of their own.
        sweepFamily<Tarn64fc>(TARN_FAMILY(64fc), {0.0, 0.5, -0.0, 1.0, 1e-30, 1e30}, {{0.0, -7.5}}, Values::unit);
    }
    checkFamily(TARN_FAMILY(32fc));
    checkFamily(TARN_FAMILY(64fc));
}

/// Both parts of 64fc elements over the whole range, against extended precision: a few roundings of 2^-53 each.
TEST(Threshold, MagnitudesOfEverySize)
{
    const double sizes[] = {5e-324, 1e-320, 1e-310, 1e-200, 1e-160, 1e-130, 1e-100, 1,
                            1e100,  1e130,  1e149,  1e152,  1e200,  1e300,  1.7e308};
    for (const double level : sizes) {
        for (const double a : sizes) {
            for (const double b : {0.0, 0.3, 1.0, -0.75}) {
                const Tarn64fc z{a, a * b};
                const long double magnitude =
                    std::hypot(static_cast<long double>(z.re), static_cast<long double>(z.im));
                for (const bool above : {false, true}) {
                    Tarn64fc limited;
                    ASSERT_EQ(tarnStsNoErr,
                              (above ? tarnsThreshold_GT_64fc : tarnsThreshold_LT_64fc)(&z, &limited, 1, level));
                    const bool isBeyond = above ? magnitude > level : magnitude < level;
                    const long double factor = isBeyond ? level / magnitude : 1;
                    const Match match{.ulps = 4};
                    EXPECT_TRUE(valuesMatch<double>(static_cast<double>(z.re * factor), limited.re, match))
                        << toText(z) << toText(level);
                    EXPECT_TRUE(valuesMatch<double>(static_cast<double>(z.im * factor), limited.im, match))
                        << toText(z) << toText(level);
                    Tarn64fc replaced;
                    ASSERT_EQ(tarnStsNoErr, (above ? tarnsThreshold_GTVal_64fc
                                                   : tarnsThreshold_LTVal_64fc)(&z, &replaced, 1, level, {-1, -2}));
                    // Equal sizes are equal whatever the rounding, since the imaginary part is 0 then.
                    EXPECT_EQ(isBeyond, replaced.re == -1) << toText(z) << toText(level);
                }
                Tarn64fc inverse;
                ASSERT_EQ(tarnStsNoErr, tarnsThreshold_LTInv_64fc(&z, &inverse, 1, level));
                const long double divisor = magnitude < level ? magnitude * level : magnitude * magnitude;
                const Match match{.ulps = 5};
                EXPECT_TRUE(valuesMatch<double>(static_cast<double>(z.re / divisor), inverse.re, match))
                    << toText(z) << toText(level);
                EXPECT_TRUE(valuesMatch<double>(static_cast<double>(-z.im / divisor), inverse.im, match))
                    << toText(z) << toText(level);
            }
        }
    }
}

template <class T>
void testBand(TarnStatus (*call)(const T*, T*, int, T, T, T, T), TarnStatus (*inPlace)(T*, int, T, T, T, T),
              std::initializer_list<std::pair<T, T>> levels)
{
    for (const auto& [lo, hi] : levels) {
        const auto model = [&, lo = lo, hi = hi](T x) { return x < lo ? T(-77) : x > hi ? T(99) : x; };
        const SweepOptions options{.match = {.nan = NanRule::sameBits}};
        sweepElementwise<T, T>(
            [&, lo = lo, hi = hi](const T* src, T* dst, int len) { return call(src, dst, len, lo, -77, hi, 99); },
            model, options);
        sweepInPlace<T>([&, lo = lo, hi = hi](T* srcDst, int len) { return inPlace(srcDst, len, lo, -77, hi, 99); },
                        model, options);
    }
    expectChecks(call, {}, array, array, length, param<T>(3, {5, 100}, tarnStsThresholdErr), T(0), T(4), T(0));
    expectChecks(inPlace, {}, array, length, param<T>(4, {5, 100}, tarnStsThresholdErr), T(0), T(4), T(0));
}

TEST(Threshold, Bands)
{
    testBand<Tarn16s>(tarnsThreshold_LTValGTVal_16s, tarnsThreshold_LTValGTVal_16s_I,
                      {{-100, 100}, {5, 5}, {-32768, 32767}, {-32768, -32768}, {32767, 32767}});
    testBand<Tarn32f>(tarnsThreshold_LTValGTVal_32f, tarnsThreshold_LTValGTVal_32f_I,
                      {{-1.5f, 1.5f}, {0.5f, 0.5f}, {-inf32, inf32}, {nan32, 1.0f}, {0.0f, nan32}, {0.0f, -0.0f}});
    testBand<Tarn64f>(tarnsThreshold_LTValGTVal_64f, tarnsThreshold_LTValGTVal_64f_I,
                      {{-1.5, 1.5}, {0.5, 0.5}, {-double{inf32}, double{inf32}}, {double{nan32}, 1.0}});
}

TEST(Threshold, WorkedValues)
{
    Tarn32f x[] = {nan32};
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LT_32f_I(x, 1, 3.0f));
    EXPECT_EQ(3.0f, x[0]);
    x[0] = nan32;
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_GT_32f_I(x, 1, 3.0f));
    EXPECT_EQ(3.0f, x[0]);
    x[0] = 1.0f;
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_32f_I(x, 1, 3.0f, 1));
    EXPECT_EQ(3.0f, x[0]);
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LT_32f_I(x, 1, -3.0f));
    EXPECT_EQ(3.0f, x[0]);
    Tarn16s word = 5;
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LTVal_16s_I(&word, 1, 5, 9));
    EXPECT_EQ(5, word);
    Tarn32fc z{3, 4};
    EXPECT_EQ(tarnStsThreshNegLevelErr, tarnsThreshold_LT_32fc_I(&z, 1, -1.0f));
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LT_32fc_I(&z, 1, 10.0f));
    EXPECT_EQ(6.0f, z.re);
    EXPECT_EQ(8.0f, z.im);
    Tarn16sc w{-3, 4};
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_GT_16sc_I(&w, 1, 2));
    EXPECT_EQ(-1, w.re); // -1.2
    EXPECT_EQ(2, w.im);  // 1.6
    Tarn32f band[] = {0.5f, 1.0f, 1.5f};
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LTValGTVal_32f_I(band, 3, 1.0f, -1.0f, 1.0f, 2.0f));
    EXPECT_EQ(-1.0f, band[0]);
    EXPECT_EQ(1.0f, band[1]);
    EXPECT_EQ(2.0f, band[2]);
}

TEST(Threshold, InversesOfWorkedValues)
{
    Tarn32f x[] = {0.25f, -0.25f};
    EXPECT_EQ(tarnStsNoErr, tarnsThreshold_LTInv_32f_I(x, 2, 0.5f));
    EXPECT_NEAR(2.0f, x[0], 2 * 0x1p-22);
    EXPECT_NEAR(-2.0f, x[1], 2 * 0x1p-22);
    Tarn32f zeros[] = {0.0f, -0.0f, 4.0f};
    EXPECT_EQ(tarnStsInvZero, tarnsThreshold_LTInv_32f_I(zeros, 3, 0.0f));
    EXPECT_EQ(inf32, zeros[0]);
    EXPECT_EQ(-inf32, zeros[1]);
    EXPECT_NEAR(0.25f, zeros[2], 0x1p-24);
    Tarn32fc complexZero[] = {{0, 0}, {-0.0f, -0.0f}, {0, 2}};
    EXPECT_EQ(tarnStsInvZero, tarnsThreshold_LTInv_32fc_I(complexZero, 3, 0.0f));
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(inf32, complexZero[i].re);
        EXPECT_EQ(inf32, complexZero[i].im);
    }
    EXPECT_EQ(-0.5f, complexZero[2].im);
}

/// A zero anywhere gives the warning, and only at a level of 0.
template <class T, class Call, class Model>
void sweepInverse(Call call, Model model, LevelOf<T> level, Values kind)
{
    const auto outcome = [&](T x) {
        bool isZero;
        if constexpr (ComplexElement<T>)
            isZero = x.re == 0 && x.im == 0;
        else
            isZero = !(std::fabs(x) > 0); // a NaN counts as below the level, and so as 0
        return Outcome<T>{model(x, level), level == 0 && isZero ? tarnStsInvZero : tarnStsNoErr};
    };
    sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, dst, len, level); }, outcome,
                           {.name = "level " + toText(level), .values = kind});
    // Nothing but elements that pass without a warning.
    Columns<T> tame = makeColumns<T>(Values::unit, 2000);
    for (T& x : std::get<0>(tame))
        if constexpr (ComplexElement<T>)
            x.im = x.im == 0 ? 1 : x.im;
        else
            x = x == 0 ? 1 : x;
    sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, dst, len, level); }, outcome,
                           {.depth = Depth::quick}, tame);
}

TEST(Threshold, InversesInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const float level : {0.0f, 0.5f, 1e-40f, 1e-20f, 3e38f, inf32}) {
            const auto real = [](float x, float l) { return model::inverse(x, l); };
            const auto complex = [](Tarn32fc x, float l) { return model::complexInverse(x, l); };
            sweepInverse<Tarn32f>(tarnsThreshold_LTInv_32f, real, level, Values::mixed);
            sweepInverse<Tarn32fc>(tarnsThreshold_LTInv_32fc, complex, level, Values::mixed);
        }
        for (const double level : {0.0, 0.5, 1e-310, 1e300}) {
            sweepInverse<Tarn64f>(
                tarnsThreshold_LTInv_64f, [](double x, double l) { return model::inverse(x, l); }, level,
                Values::mixed);
        }
        for (const double level : {0.0, 0.5, 1e-30, 1e30}) {
            sweepInverse<Tarn64fc>(
                tarnsThreshold_LTInv_64fc, [](Tarn64fc x, double l) { return model::complexInverse(x, l); }, level,
                Values::unit);
        }
    }
}

TEST(Threshold, InversesInPlace)
{
    sweepInPlace<Tarn32f>([](Tarn32f* x, int len) { return tarnsThreshold_LTInv_32f_I(x, len, 0.5f); },
                          [](float x) { return model::inverse(x, 0.5f); });
    sweepInPlace<Tarn64f>([](Tarn64f* x, int len) { return tarnsThreshold_LTInv_64f_I(x, len, 0.5); },
                          [](double x) { return model::inverse(x, 0.5); });
    sweepInPlace<Tarn32fc>([](Tarn32fc* x, int len) { return tarnsThreshold_LTInv_32fc_I(x, len, 0.5f); },
                           [](Tarn32fc x) { return model::complexInverse(x, 0.5f); });
    sweepInPlace<Tarn64fc>([](Tarn64fc* x, int len) { return tarnsThreshold_LTInv_64fc_I(x, len, 0.5); },
                           [](Tarn64fc x) { return model::complexInverse(x, 0.5); }, {.values = Values::unit});
}

TEST(Threshold, ChecksOfInverses)
{
    const auto level32 = param<float>(0.5f, {-1.0f, -1e-45f, -inf32, nan32, -nan32}, tarnStsThreshNegLevelErr);
    const auto level64 = param<double>(0.5, {-1.0, -5e-324, double{nan32}}, tarnStsThreshNegLevelErr);
    expectChecks(tarnsThreshold_LTInv_32f, {}, array, array, length, level32);
    expectChecks(tarnsThreshold_LTInv_32f_I, {}, array, length, level32);
    expectChecks(tarnsThreshold_LTInv_32fc, {}, array, array, length, level32);
    expectChecks(tarnsThreshold_LTInv_32fc_I, {}, array, length, level32);
    expectChecks(tarnsThreshold_LTInv_64f, {}, array, array, length, level64);
    expectChecks(tarnsThreshold_LTInv_64f_I, {}, array, length, level64);
    expectChecks(tarnsThreshold_LTInv_64fc, {}, array, array, length, level64);
    expectChecks(tarnsThreshold_LTInv_64fc_I, {}, array, length, level64);
    // -0 is not below 0.
    Tarn32f x = 0;
    EXPECT_EQ(tarnStsInvZero, tarnsThreshold_LTInv_32f_I(&x, 1, -0.0f));
    EXPECT_EQ(inf32, x);
}

/// The inverses leave no exception flag, and do not trap where the caller has exceptions trapped.
TEST(Threshold, InversesLeaveTheControlWord)
{
    constexpr std::uint32_t allMasked = 0x1F80;
    for (const std::uint32_t word : {allMasked, allMasked | 0x3F, std::uint32_t{0}, std::uint32_t{0x0C00 | 0x4000}}) {
        Tarn32f x[40];
        Tarn32fc z[40];
        Tarn64f y[40];
        Tarn64fc w[40];
        for (int i = 0; i < 40; ++i) {
            x[i] = i % 3 == 0 ? 0 : static_cast<float>(i);
            z[i] = {x[i], x[i]};
            y[i] = double{x[i]};
            w[i] = {y[i], y[i]};
        }
        const MxcsrScope scope(word);
        const TarnStatus statuses[] = {tarnsThreshold_LTInv_32f_I(x, 40, 0), tarnsThreshold_LTInv_32fc_I(z, 40, 0),
                                       tarnsThreshold_LTInv_64f_I(y, 40, 0), tarnsThreshold_LTInv_64fc_I(w, 40, 0)};
        const std::uint32_t after = readMxcsr();
        EXPECT_EQ(word, after);
        for (const TarnStatus status : statuses)
            EXPECT_EQ(tarnStsInvZero, status);
    }
}

} // namespace
} // namespace tarn::test
