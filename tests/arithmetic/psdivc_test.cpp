// Quotients by a constant, and of a constant by each element.
#include "tarns/divide.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

namespace tarn::test {
namespace {

constexpr float nan32 = std::numeric_limits<float>::quiet_NaN();
constexpr double nan64 = std::numeric_limits<double>::quiet_NaN();

// One rounding for the reciprocal, in the nearest mode of words, and one for each product.
float productByReciprocal(float x, float reciprocal, float factor)
{
    volatile float product = x * reciprocal;
    volatile float scaled = product * factor;
    return scaled;
}

// The factors that have steps of their own or leave the range; elsewhere one constant and another take the lengths, and
// the others all values.
Depth depthOf(int s) { return s == 0 || s == 1 || s == -1 || std::abs(s) == 17 ? Depth::full : Depth::quick; }

TEST(DivisionByConstant, Words)
{
    const std::vector<Tarn16s> constants = {3, -7, 1, -1, 32767, -32768, 10};
    std::size_t turn = 0;
    for (const int s : scaleFactors(-16, 16)) {
        const auto factor = static_cast<float>(model::factorOf(s));
        for (std::size_t i = 0; i < constants.size(); ++i) {
            const Tarn16s val = constants[i];
            const float reciprocal = 1.0F / static_cast<float>(val);
            const auto atScale = tabulated<Tarn16s>([=](Tarn16s x) {
                return model::nearest<Tarn16s>(productByReciprocal(static_cast<float>(x), reciprocal, factor));
            });
            const SweepOptions options{.name = std::to_string(val) + " at " + std::to_string(s),
                                       .thresholds = {32},
                                       .depth = std::max(Depth::quick, depthOfConstant(i, turn, depthOf(s)))};
            // Words do not follow the rounding mode, which is set for the calls alone: one or the other at most
            // factors.
            for (const RoundingMode mode : {RoundingMode::nearest, RoundingMode::up}) {
                const bool isItsTurn = (mode == RoundingMode::up) == ((i + turn) % 2 == 0);
                if (!isItsTurn && depthOf(s) != Depth::full)
                    continue;
                sweepElementwise<Tarn16s, Tarn16s>(
                    [=](const Tarn16s* src, Tarn16s* dst, int len) {
                        const RoundingModeScope scope(mode);
                        return tarnsDivC_16s_Sfs(src, val, dst, len, s);
                    },
                    atScale, options);
                sweepInPlace<Tarn16s>(
                    [=](Tarn16s* x, int len) {
                        const RoundingModeScope scope(mode);
                        return tarnsDivC_16s_ISfs(val, x, len, s);
                    },
                    atScale, options);
            }
        }
        ++turn;
    }
}

// Bytes follow the rounding mode throughout.
TEST(DivisionByConstant, Bytes)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : scaleFactors(-8, 8)) {
            const auto factor = static_cast<float>(model::factorOf(s));
            for (const Tarn8u val : std::initializer_list<Tarn8u>{3, 7, 1, 255, 128}) {
                volatile float reciprocal = 1.0F / static_cast<float>(val);
                SCOPED_TRACE(std::to_string(val) + " at " + std::to_string(s));
                const auto atScale = [&](Tarn8u x) {
                    const float value = productByReciprocal(static_cast<float>(x), reciprocal, factor);
                    return static_cast<Tarn8u>(std::nearbyint(value < 255 ? value : 255.0F));
                };
                sweepElementwise<Tarn8u, Tarn8u>(
                    [=](const Tarn8u* src, Tarn8u* dst, int len) { return tarnsDivC_8u_Sfs(src, val, dst, len, s); },
                    atScale, {.depth = Depth::quick});
                sweepInPlace<Tarn8u>([=](Tarn8u* x, int len) { return tarnsDivC_8u_ISfs(val, x, len, s); }, atScale,
                                     {.depth = Depth::quick});
            }
        }
    }
}

TEST(DivisionByConstant, ComplexWords)
{
    for (const Tarn16sc val : {Tarn16sc{3, -4}, Tarn16sc{0, 1}, Tarn16sc{-32768, -32768}, Tarn16sc{2, 0}})
        for (const int s : scaleFactors(-16, 16)) {
            SCOPED_TRACE(toText(val) + " at " + std::to_string(s));
            const auto atScale = [=](Tarn16sc x) {
                const auto q = model::complexQuotient(val.re, val.im, x.re, x.im);
                const double factor = model::factorOf(s);
                return Tarn16sc{model::nearest<Tarn16s>(q.re * factor), model::nearest<Tarn16s>(q.im * factor)};
            };
            sweepElementwise<Tarn16sc, Tarn16sc>(
                [=](const Tarn16sc* src, Tarn16sc* dst, int len) { return tarnsDivC_16sc_Sfs(src, val, dst, len, s); },
                atScale, {.depth = Depth::quick});
            sweepInPlace<Tarn16sc>([=](Tarn16sc* x, int len) { return tarnsDivC_16sc_ISfs(val, x, len, s); }, atScale,
                                   {.depth = Depth::quick});
        }
}

template <class T>
void sweepComplexFloats(TarnStatus (*divide)(const T*, T, T*, int), TarnStatus (*inPlace)(T, T*, int))
{
    using R = RealOf<T>;
    for (const T val : {T{0, 1}, T{R(0.1), R(-3)}, T{1, 0}, T{std::numeric_limits<R>::infinity(), 1}}) {
        SCOPED_TRACE(toText(val));
        const auto model = [=](T x) {
            const auto q = model::complexQuotient(val.re, val.im, x.re, x.im);
            return T{static_cast<R>(q.re), static_cast<R>(q.im)};
        };
        sweepElementwise<T, T>([=](const T* src, T* dst, int len) { return divide(src, val, dst, len); }, model);
        sweepInPlace<T>([=](T* x, int len) { return inPlace(val, x, len); }, model, {.depth = Depth::quick});
    }
}

TEST(DivisionByConstant, ComplexFloats)
{
    sweepComplexFloats(tarnsDivC_32fc, tarnsDivC_32fc_I);
    sweepComplexFloats(tarnsDivC_64fc, tarnsDivC_64fc_I);
}

template <class T>
void sweepFloats(TarnStatus (*divide)(const T*, T, T*, int), TarnStatus (*inPlace)(T, T*, int))
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const T val : {T(3), T(-0.1), T(1e30), T(-1), std::numeric_limits<T>::denorm_min()}) {
            SCOPED_TRACE(toText(val));
            volatile T reciprocal = 1 / val;
            const auto model = [&](T x) {
                volatile T product = x * reciprocal;
                return T(product);
            };
            sweepElementwise<T, T>([=](const T* src, T* dst, int len) { return divide(src, val, dst, len); }, model,
                                   {.depth = Depth::quick});
            sweepInPlace<T>([=](T* x, int len) { return inPlace(val, x, len); }, model, {.depth = Depth::quick});
        }
    }
    // The shortcuts of the product: 1 copies, the reciprocal of an infinity makes zeros of NaN and infinities too.
    sweepElementwise<T, T>([=](const T* src, T* dst, int len) { return divide(src, 1, dst, len); },
                           [](T x) { return x; }, {.depth = Depth::quick, .match = {.nan = NanRule::sameBits}});
    sweepElementwise<T, T>(
        [=](const T* src, T* dst, int len) { return divide(src, std::numeric_limits<T>::infinity(), dst, len); },
        [](T) { return T(0); }, {.depth = Depth::quick});
}

TEST(DivisionByConstant, FloatsByTheRoundedReciprocal)
{
    sweepFloats(tarnsDivC_32f, tarnsDivC_32f_I);
    sweepFloats(tarnsDivC_64f, tarnsDivC_64f_I);
}

template <class T>
void expectConstantFirst(TarnStatus (*divide)(const T*, T, T*, int), TarnStatus (*inPlace)(T, T*, int), T nan)
{
    T x = 5;
    for (const T val : {T(0), T(-0.0), nan}) {
        EXPECT_EQ(tarnStsDivByZeroErr, divide(&x, val, nullptr, 1));
        EXPECT_EQ(tarnStsDivByZeroErr, divide(nullptr, val, &x, 0));
        EXPECT_EQ(tarnStsDivByZeroErr, divide(nullptr, val, nullptr, -1));
        EXPECT_EQ(tarnStsDivByZeroErr, divide(&x, val, &x, 1));
        EXPECT_EQ(tarnStsDivByZeroErr, inPlace(val, nullptr, 0));
        EXPECT_EQ(tarnStsDivByZeroErr, inPlace(val, &x, 1));
        EXPECT_EQ(5, x);
    }
}

TEST(DivisionByConstant, FloatsLookAtTheConstantFirst)
{
    expectConstantFirst<Tarn32f>(tarnsDivC_32f, tarnsDivC_32f_I, nan32);
    expectConstantFirst<Tarn64f>(tarnsDivC_64f, tarnsDivC_64f_I, nan64);
}

// -- Of a constant ----------------------------------------------------------------------------------------------------

TEST(DivisionOfConstant, Words)
{
    for (const RoundingMode mode : {RoundingMode::nearest, RoundingMode::down})
        for (const Tarn16u val : std::initializer_list<Tarn16u>{1, 7, 40000, 65535}) {
            SCOPED_TRACE(val);
            std::vector<Outcome<Tarn16u>> quotients{{65535, tarnStsDivByZero}};
            for (int x = 1; x < 65536; ++x)
                quotients.push_back(
                    {model::nearest<Tarn16u>(static_cast<float>(val) / static_cast<float>(x)), tarnStsNoErr});
            const auto model = [&](Tarn16u x) { return quotients[x]; };
            const RoundingModeScope scope(mode);
            sweepElementwise<Tarn16u, Tarn16u>(
                [=](const Tarn16u* src, Tarn16u* dst, int len) { return tarnsDivCRev_16u(src, val, dst, len); }, model);
            sweepInPlace<Tarn16u>([=](Tarn16u* x, int len) { return tarnsDivCRev_16u_I(val, x, len); }, model,
                                  {.depth = Depth::quick});
        }
}

TEST(DivisionOfConstant, Floats)
{
    for (const RoundingMode mode : allRoundingModes)
        for (const Tarn32f val : {1.0F, -3.0F, std::numeric_limits<float>::infinity(), 1e-40F}) {
            const RoundingModeScope scope(mode);
            const auto model = [=](std::span<const Tarn32f> x) {
                const std::vector<Tarn32f> dividends(x.size(), val);
                Outcome<std::vector<Tarn32f>> all;
                for (const auto& [value, zero] :
                     model::quotientsInGroups<Tarn32f>(x, dividends, 16, [](float divisor, float dividend) {
                         volatile float quotient = dividend / divisor;
                         return quotient;
                     })) {
                    all.value.push_back(value);
                    if (zero)
                        all.status = tarnStsDivByZero;
                }
                return all;
            };
            sweepElementwise<Tarn32f, Tarn32f>(
                [=](const Tarn32f* src, Tarn32f* dst, int len) { return tarnsDivCRev_32f(src, val, dst, len); }, model,
                {.thresholds = {16}});
            sweepInPlace<Tarn32f>([=](Tarn32f* x, int len) { return tarnsDivCRev_32f_I(val, x, len); }, model,
                                  {.thresholds = {16}, .depth = Depth::quick});
        }
}

// Zeros over anything are zeros, without a warning.
TEST(DivisionOfConstant, Zero)
{
    for (const Tarn32f val : {0.0F, -0.0F, nan32}) {
        Tarn32f x[] = {1, 0, nan32};
        EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_32f(nullptr, val, x, 3));
        for (const Tarn32f quotient : x)
            EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, quotient));
        EXPECT_EQ(tarnStsNullPtrErr, tarnsDivCRev_32f(x, val, nullptr, 0));
        EXPECT_EQ(tarnStsSizeErr, tarnsDivCRev_32f(nullptr, val, x, 0));
        EXPECT_EQ(tarnStsNullPtrErr, tarnsDivCRev_32f_I(val, nullptr, 1));
    }
    Tarn16u x[] = {1, 0, 65535, 9};
    EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_16u(nullptr, 0, x, 3));
    EXPECT_EQ((std::vector<Tarn16u>{0, 0, 0, 9}), std::vector<Tarn16u>(x, x + 4));
    EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_16u(nullptr, 0, nullptr, 0));
    EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_16u(nullptr, 0, nullptr, -5));
    EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_16u_I(0, nullptr, 0));
    EXPECT_EQ(tarnStsNoErr, tarnsDivCRev_16u_I(0, x + 3, 1));
    EXPECT_EQ(0, x[3]);
}

// -- Checks -----------------------------------------------------------------------------------------------------------

TEST(DivisionByConstant, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        const auto word = param<Tarn16s>(3, {0}, tarnStsDivByZeroErr);
        const auto byte = param<Tarn8u>(3, {0}, tarnStsDivByZeroErr);
        const auto complex = param<Tarn16sc>({0, 3}, {Tarn16sc{0, 0}}, tarnStsDivByZeroErr);
        expectChecks(tarnsDivC_16s_Sfs, {}, array, word, array, length, s);
        expectChecks(tarnsDivC_8u_Sfs, {}, array, byte, array, length, s);
        expectChecks(tarnsDivC_16sc_Sfs, {}, array, complex, array, length, s);
        expectChecks(tarnsDivC_16s_ISfs, {}, word, array, length, s);
        expectChecks(tarnsDivC_8u_ISfs, {}, byte, array, length, s);
        expectChecks(tarnsDivC_16sc_ISfs, {}, complex, array, length, s);
    }
    const auto single = param<Tarn32fc>({0, 1}, {Tarn32fc{0, 0}, Tarn32fc{-0.0F, 0}}, tarnStsDivByZeroErr);
    const auto twice = param<Tarn64fc>({0, 1}, {Tarn64fc{0, 0}, Tarn64fc{0, -0.0}}, tarnStsDivByZeroErr);
    expectChecks(tarnsDivC_32fc, {}, array, single, array, length);
    expectChecks(tarnsDivC_64fc, {}, array, twice, array, length);
    expectChecks(tarnsDivC_32fc_I, {}, single, array, length);
    expectChecks(tarnsDivC_64fc_I, {}, twice, array, length);
    expectChecks(tarnsDivC_32f, {}, array, 2.0F, array, length);
    expectChecks(tarnsDivC_64f, {}, array, 2.0, array, length);
    expectChecks(tarnsDivC_32f_I, {}, 2.0F, array, length);
    expectChecks(tarnsDivC_64f_I, {}, 2.0, array, length);
    expectChecks(tarnsDivCRev_16u, {}, array, Tarn16u{5}, array, length);
    expectChecks(tarnsDivCRev_32f, {}, array, 2.0F, array, length);
    expectChecks(tarnsDivCRev_16u_I, {}, Tarn16u{5}, array, length);
    expectChecks(tarnsDivCRev_32f_I, {}, 2.0F, array, length);
}

} // namespace
} // namespace tarn::test
