// Phases and polar coordinates against the C library's functions in extended precision.
#include "tarns/polar.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

#include <algorithm>
#include <cmath>

namespace tarn::test {
namespace {

// The polynomials are promised to a unit in the last place; the model adds the half unit of its own rounding.
constexpr double ulpsOfPhase = 1.5;
// One for sine or cosine, and the product's half.
constexpr double ulpsOfParts = 2.5;

template <class T>
T phaseOf(T re, T im)
{
    return static_cast<T>(std::atan2(static_cast<long double>(im), static_cast<long double>(re)));
}

template <class T>
auto& spare()
{
    static std::vector<T> values(1 << 17);
    return values;
}

// Random numbers of all magnitudes have ratios that are all tiny or huge; these are not.
template <class T>
Columns<T, T> tameColumns()
{
    return makeColumns<T, T>(Values::unit, 20000);
}

template <class T, class C>
void sweepPhases(TarnStatus (*ofParts)(const T*, const T*, T*, int), TarnStatus (*ofComplex)(const C*, T*, int))
{
    const Match match{.ulps = ulpsOfPhase};
    for (const RoundingMode mode : {RoundingMode::nearest, RoundingMode::up}) {
        sweepElementwise<T, T, T>(
            [=](const T* re, const T* im, T* dst, int len) {
                const RoundingModeScope scope(mode);
                return ofParts(re, im, dst, len);
            },
            phaseOf<T>, {.match = match});
        sweepElementwise<T, T, T>(ofParts, phaseOf<T>, {.depth = Depth::quick, .match = match}, tameColumns<T>());
        sweepElementwise<T, C>(
            [=](const C* src, T* dst, int len) {
                const RoundingModeScope scope(mode);
                return ofComplex(src, dst, len);
            },
            [](C z) { return phaseOf(z.re, z.im); }, {.match = match});
    }
}

TEST(Phase, OfFloats)
{
    sweepPhases(tarnsPhase_32f, tarnsPhase_32fc);
    sweepPhases(tarnsPhase_64f, tarnsPhase_64fc);
}

TEST(Phase, OfZerosInfinitiesAndAxes)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float values[] = {0.0F, -0.0F, 1.0F, -1.0F, infinity, -infinity, 3e38F, -3e38F, 1e-45F, -1e-45F};
    for (const float re : values)
        for (const float im : values) {
            const std::vector<Tarn32fc> z(5, Tarn32fc{re, im});
            std::vector<Tarn32f> phases(5);
            EXPECT_EQ(tarnStsNoErr, tarnsPhase_32fc(z.data(), phases.data(), 5));
            for (const Tarn32f phase : phases)
                EXPECT_TRUE(valuesMatch<Tarn32f>(std::atan2(im, re), phase, {.ulps = 1})) << toText(z[0]);
        }
    const Tarn32fc zero{0, 0};
    Tarn32f phase = 7;
    EXPECT_EQ(tarnStsNoErr, tarnsPhase_32fc(&zero, &phase, 1));
    EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, phase));
}

TEST(Phase, OfWordsAsFloats)
{
    const auto model = [](Tarn16s re, Tarn16s im) { return phaseOf(static_cast<float>(re), static_cast<float>(im)); };
    const Match match{.ulps = ulpsOfPhase};
    sweepElementwise<Tarn32f, Tarn16s, Tarn16s>(tarnsPhase_16s32f, model, {.match = match});
    sweepElementwise<Tarn32f, Tarn16sc>(tarnsPhase_16sc32f, [=](Tarn16sc z) { return model(z.re, z.im); },
                                        {.match = match});
}

// From single precision the scaled phase is off by some 2^-22 of itself, which can take it across a tie.
Match nextTo(int s) { return {.absolute = s > -7 ? 0.0 : 1.0}; }

Tarn16s scaledPhase(Tarn16s re, Tarn16s im, int s)
{
    if (s >= 2)
        return 0;
    const double phase = std::atan2(static_cast<double>(im), static_cast<double>(re));
    if (s >= -28)
        return model::nearest<Tarn16s>(std::ldexp(phase, -s));
    const double scaled = std::ldexp(phase, -std::max(s, -100));
    return static_cast<Tarn16s>(std::clamp(std::trunc(scaled + std::copysign(0.5, scaled)), -32768.0, 32767.0));
}

TEST(Phase, OfWordsAtEveryScale)
{
    for (const int s : scaleFactors(-29, 2)) {
        SCOPED_TRACE(s);
        const SweepOptions options{.depth = s == 0 || s == -29 ? Depth::full : Depth::quick, .match = nextTo(s)};
        sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(
            [s](auto... arguments) { return tarnsPhase_16s_Sfs(arguments..., s); },
            [s](Tarn16s re, Tarn16s im) { return scaledPhase(re, im, s); }, options);
        sweepElementwise<Tarn16s, Tarn16sc>([s](auto... arguments) { return tarnsPhase_16sc_Sfs(arguments..., s); },
                                            [s](Tarn16sc z) { return scaledPhase(z.re, z.im, s); }, options);
    }
}

TEST(Phase, OfWordsWorthATest)
{
    const auto at = [](Tarn16sc z, int s) {
        Tarn16s phase = 99;
        EXPECT_EQ(tarnStsNoErr, tarnsPhase_16sc_Sfs(&z, &phase, 1, s));
        return phase;
    };
    EXPECT_EQ(3, at({-1, 0}, 0));
    EXPECT_EQ(-2, at({0, -1}, 0));
    EXPECT_EQ(0, at({0, 0}, 0));
    EXPECT_EQ(2, at({-1, 0}, 1));
    EXPECT_EQ(0, at({-1, 0}, 2));
    EXPECT_EQ(0, at({-1, 0}, 2147483647));
    EXPECT_EQ(32767, at({32767, 1}, -30));
    EXPECT_EQ(32767, at({32767, 1}, -2147483647 - 1));
    EXPECT_EQ(-32768, at({32767, -1}, -31));
    EXPECT_EQ(16385, at({32767, 1}, -29)); // 16384.50002
    EXPECT_EQ(0, at({32767, 0}, -40));
}

TEST(Phase, Of32Bits)
{
    for (const int s : scaleFactors(-64, 2)) {
        SCOPED_TRACE(s);
        sweepElementwise<Tarn32s, Tarn32sc>(
            [s](const Tarn32sc* src, Tarn32s* dst, int len) { return tarnsPhase_32sc_Sfs(src, dst, len, s); },
            [s](Tarn32sc z) {
                if (s >= 2)
                    return 0;
                const long double phase = std::atan2(static_cast<long double>(z.im), static_cast<long double>(z.re));
                return model::nearest<Tarn32s>(std::ldexp(static_cast<double>(phase), -std::max(s, -100)));
            },
            {.depth = s == 0 ? Depth::full : Depth::quick, .match = {.absolute = s > -12 ? 0.0 : 1.0}});
    }
}

// -- Polar coordinates ------------------------------------------------------------------------------------------------

template <class T>
T part(T magnitude, long double factor)
{
    // The factor is rounded, then the product.
    return magnitude * static_cast<T>(factor);
}

template <class T, class C>
void sweepToCartesian(TarnStatus (*toParts)(const T*, const T*, T*, T*, int),
                      TarnStatus (*toComplex)(const T*, const T*, C*, int))
{
    const auto re = [](T magnitude, T phase) { return part(magnitude, std::cos(static_cast<long double>(phase))); };
    const auto im = [](T magnitude, T phase) { return part(magnitude, std::sin(static_cast<long double>(phase))); };
    const auto both = [=](T magnitude, T phase) { return C{re(magnitude, phase), im(magnitude, phase)}; };
    const Match match{.ulps = ulpsOfParts};
    auto columns = makeColumns<T, T>();
    // Phases within some turns, too.
    auto& phases = std::get<1>(columns);
    for (std::size_t i = 0; i < phases.size(); i += 2)
        phases[i] = static_cast<T>(std::fmod(phases[i], T(1000)));
    sweepElementwise<C, T, T>(toComplex, both, {.match = match}, columns);
    sweepElementwise<T, T, T>([=](const T* magnitudes, const T* phases, T* dst,
                                  int len) { return toParts(magnitudes, phases, dst, spare<T>().data(), len); },
                              re, {.match = match, .aliased = false}, columns);
    sweepElementwise<T, T, T>([=](const T* magnitudes, const T* phases, T* dst,
                                  int len) { return toParts(magnitudes, phases, spare<T>().data(), dst, len); },
                              im, {.match = match, .aliased = false}, columns);
}

TEST(PolarCoordinates, ToCartesianOnes)
{
    sweepToCartesian(tarnsPolarToCart_32f, tarnsPolarToCart_32fc);
    sweepToCartesian(tarnsPolarToCart_64f, tarnsPolarToCart_64fc);
}

TEST(PolarCoordinates, OfInfinitePhasesAreNaN)
{
    for (const float phase : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()}) {
        const std::vector<Tarn32f> magnitudes(5, 2), phases(5, phase);
        std::vector<Tarn32fc> z(5);
        EXPECT_EQ(tarnStsNoErr, tarnsPolarToCart_32fc(magnitudes.data(), phases.data(), z.data(), 5));
        for (const Tarn32fc& x : z) {
            EXPECT_TRUE(std::isnan(x.re));
            EXPECT_TRUE(std::isnan(x.im));
        }
    }
}

TEST(PolarCoordinates, InPlaceOfTheirSources)
{
    std::vector<Tarn64f> first = randomValues<Tarn64f>(37, 1, Values::unit);
    std::vector<Tarn64f> second = randomValues<Tarn64f>(37, 2, Values::unit);
    std::vector<Tarn64f> re(37), im(37);
    EXPECT_EQ(tarnStsNoErr, tarnsPolarToCart_64f(first.data(), second.data(), re.data(), im.data(), 37));
    EXPECT_EQ(tarnStsNoErr, tarnsPolarToCart_64f(first.data(), second.data(), second.data(), first.data(), 37));
    EXPECT_EQ(re, second);
    EXPECT_EQ(im, first);
}

// Of a magnitude the steps of the 32-bit complex form are tested with the magnitudes; here it is the composition.
TEST(PolarCoordinates, FromCartesianOnes)
{
    const std::vector<Tarn32fc> z = randomValues<Tarn32fc>(100, 3, Values::unit);
    std::vector<Tarn32f> magnitudes(100), phases(100);
    EXPECT_EQ(tarnStsNoErr, tarnsCartToPolar_32fc(z.data(), magnitudes.data(), phases.data(), 100));
    for (std::size_t i = 0; i < z.size(); ++i) {
        EXPECT_NEAR(std::hypot(z[i].re, z[i].im), magnitudes[i], 1e-6);
        EXPECT_NEAR(std::atan2(z[i].im, z[i].re), phases[i], 1e-6);
    }
    const std::vector<Tarn64f> re = randomValues<Tarn64f>(100, 4, Values::unit);
    const std::vector<Tarn64f> im = randomValues<Tarn64f>(100, 5, Values::unit);
    std::vector<Tarn64f> magnitudes64(100), phases64(100);
    EXPECT_EQ(tarnStsNoErr, tarnsCartToPolar_64f(re.data(), im.data(), magnitudes64.data(), phases64.data(), 100));
    for (std::size_t i = 0; i < re.size(); ++i) {
        EXPECT_NEAR(std::hypot(re[i], im[i]), magnitudes64[i], 1e-15);
        EXPECT_NEAR(std::atan2(im[i], re[i]), phases64[i], 1e-15);
    }
}

TEST(PolarCoordinates, MagnitudesAreWrittenBeforeAMissingPhaseIsFound)
{
    const Tarn32fc z[] = {{3, 4}};
    const Tarn32f re = 3, im = 4;
    Tarn32f magnitude = 0, phase = 0;
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32fc(z, &magnitude, nullptr, 1));
    EXPECT_NEAR(5, magnitude, 1e-5);
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32fc(z, nullptr, &phase, 1));
    EXPECT_NEAR(std::atan2(4, 3), phase, 1e-6);
    magnitude = phase = 0;
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32f(&re, &im, &magnitude, nullptr, 1));
    EXPECT_EQ(5, magnitude);
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32f(&re, &im, nullptr, &phase, 1));
    EXPECT_NEAR(std::atan2(4, 3), phase, 1e-6);
    const Tarn64fc w[] = {{3, 4}};
    const Tarn64f re64 = 3, im64 = 4;
    Tarn64f magnitude64 = 0, phase64 = 0;
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_64fc(w, &magnitude64, nullptr, 1));
    EXPECT_EQ(5, magnitude64);
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_64fc(w, nullptr, &phase64, 1));
    EXPECT_NEAR(std::atan2(4, 3), phase64, 1e-15);
    magnitude64 = phase64 = 0;
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_64f(&re64, &im64, &magnitude64, nullptr, 1));
    EXPECT_EQ(5, magnitude64);
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_64f(&re64, &im64, nullptr, &phase64, 1));
    EXPECT_NEAR(std::atan2(4, 3), phase64, 1e-15);
    // The first status that is not zero is the magnitude's.
    EXPECT_EQ(tarnStsSizeErr, tarnsCartToPolar_32fc(z, &magnitude, &phase, 0));
    EXPECT_EQ(tarnStsSizeErr, tarnsCartToPolar_32fc(z, &magnitude, nullptr, 0));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32fc(z, nullptr, &phase, 0));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsCartToPolar_32fc(nullptr, &magnitude, &phase, 1));
}

TEST(Phase, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsPhase_16s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsPhase_16sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsPhase_32sc_Sfs, {}, array, array, length, s);
    }
    expectChecks(tarnsPhase_16s32f);
    expectChecks(tarnsPhase_16sc32f);
    expectChecks(tarnsPhase_32f);
    expectChecks(tarnsPhase_32fc);
    expectChecks(tarnsPhase_64f);
    expectChecks(tarnsPhase_64fc);
    expectChecks(tarnsPolarToCart_32f);
    expectChecks(tarnsPolarToCart_32fc);
    expectChecks(tarnsPolarToCart_64f);
    expectChecks(tarnsPolarToCart_64fc);
}

} // namespace
} // namespace tarn::test
