// Single bins: the recurrence to the bit, the sum that it stands for, frequencies at their bounds, the rounding of its
// own of the integer kinds.
#include "model/goertzel.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"
#include "tarns/goertzel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>

namespace tarn::test {
namespace {

constexpr double same(double x) { return x; }
double single(double x) { return static_cast<double>(static_cast<float>(x)); }

template <class T>
bool operator==(const T& a, const T& b) requires requires
{
    a.re;
}
{
    return a.re == b.re && a.im == b.im;
}

Tarn32fc asSingle(model::GoertzelBin bin) { return {static_cast<float>(bin.re), static_cast<float>(bin.im)}; }
Tarn64fc asDouble(model::GoertzelBin bin) { return {bin.re, bin.im}; }

/// Scaled in single precision, one half added away from zero, truncated.
Tarn16s asWord(double part, int s)
{
    const double v = static_cast<double>(std::ldexp(static_cast<float>(part), -std::clamp(s, -200, 200)));
    return static_cast<Tarn16s>(v > 0 ? std::min(32767.0, v + 0.5) : std::max(-32768.0, v - 0.5));
}
Tarn16sc asWords(model::GoertzelBin bin, int s) { return {asWord(bin.re, s), asWord(bin.im, s)}; }

constexpr Tarn32f frequencies[] = {0.0F, -0.0F, 0.25F, 0.1F, 0.5F, 0.77F, 0x1.fffffep-1F, 1e-6F};

// -- One bin ----------------------------------------------------------------------------------------------------------

TEST(Goertz, IsTheRecurrenceToTheBit)
{
    Depth depth = Depth::full;
    for (const Tarn32f f : frequencies) {
        SCOPED_TRACE(f);
        const SweepOptions options{.depth = depth};
        depth = Depth::quick;
        sweepReduction<Tarn32fc, Tarn32f>(
            [&](const Tarn32f* p, int len, Tarn32fc* r) { return tarnsGoertz_32f(p, len, r, f); },
            [&](std::span<const Tarn32f> x) { return asSingle(model::goertzelReal(x, f)); }, options);
        sweepReduction<Tarn32fc, Tarn32fc>(
            [&](const Tarn32fc* p, int len, Tarn32fc* r) { return tarnsGoertz_32fc(p, len, r, f); },
            [&](std::span<const Tarn32fc> x) { return asSingle(model::goertzel(x, f, same)); }, options);
        sweepReduction<Tarn64fc, Tarn64fc>(
            [&](const Tarn64fc* p, int len, Tarn64fc* r) { return tarnsGoertz_64fc(p, len, r, f); },
            [&](std::span<const Tarn64fc> x) { return asDouble(model::goertzel(x, f, same)); }, options);
    }
}

TEST(Goertz_16s, IsScaledAndRoundedAwayFromZero)
{
    for (const Tarn32f f : {0.0F, 0.25F, 0.1F, 0.77F})
        for (int s : {0, 1, 2, 5, 15, 30, 31, 32, 40, INT_MAX, -1, -2, -15, -30, -31, -32, -100, INT_MIN}) {
            SCOPED_TRACE(testing::Message() << f << " scaled by " << s);
            const SweepOptions options{.depth = s == 5 ? Depth::full : Depth::quick};
            sweepReduction<Tarn16sc, Tarn16s>(
                [&](const Tarn16s* p, int len, Tarn16sc* r) { return tarnsGoertz_16s_Sfs(p, len, r, f, s); },
                [&](std::span<const Tarn16s> x) { return asWords(model::goertzelReal(x, f), s); }, options);
            sweepReduction<Tarn16sc, Tarn16sc>(
                [&](const Tarn16sc* p, int len, Tarn16sc* r) { return tarnsGoertz_16sc_Sfs(p, len, r, f, s); },
                [&](std::span<const Tarn16sc> x) { return asWords(model::goertzel(x, f, same), s); }, options);
        }
}

TEST(Goertz_16s, HalvesGoAwayFromZero)
{
    // At frequency 0 the bin is the sum.
    for (const auto& [sum, scale, expected] : {std::tuple{3, 1, 2},
                                               {5, 1, 3},
                                               {-1, 1, -1},
                                               {-3, 1, -2},
                                               {1, 1, 1},
                                               {1, 2, 0},
                                               {-1, 2, 0},
                                               {6, 2, 2},
                                               {-6, 2, -2},
                                               {-2, 2, -1},
                                               {20000, -1, 32767},
                                               {-20000, -1, -32768},
                                               {1, -15, 32767},
                                               {-1, -15, -32768}}) {
        const auto x = static_cast<Tarn16s>(sum);
        Tarn16sc val{7, 7};
        EXPECT_EQ(tarnStsNoErr, tarnsGoertz_16s_Sfs(&x, 1, &val, 0.0F, scale));
        EXPECT_EQ(expected, val.re) << sum << " scaled by " << scale;
        EXPECT_EQ(0, val.im);
    }
}

TEST(Goertz_16s, AFullScaleSineSaturates)
{
    std::vector<Tarn16s> x(64);
    for (std::size_t n = 0; n < x.size(); ++n)
        x[n] = static_cast<Tarn16s>(std::lround(32767 * std::cos(6.283185307179586 * static_cast<double>(n) / 8)));
    Tarn16sc val{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_16s_Sfs(x.data(), 64, &val, 0.125F, 0));
    EXPECT_EQ(32767, val.re);
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_16s_Sfs(x.data(), 64, &val, 0.125F, 6));
    EXPECT_NEAR(16384, val.re, 1);
    EXPECT_NEAR(0, val.im, 1);
}

// -- Two bins ---------------------------------------------------------------------------------------------------------

/// Two results as one, for sweeps of single ones.
template <class C>
std::vector<C> both(C first, C second)
{
    return {first, second};
}

template <class C, class Call, class Model>
void sweepTwo(Call call, Model model, Depth depth)
{
    // The frequencies take turns in both places.
    for (std::size_t i = 0; i < std::size(frequencies); ++i) {
        const Tarn32f f[2] = {frequencies[i], frequencies[(i + 3) % std::size(frequencies)]};
        SCOPED_TRACE(i);
        for (int second : {0, 1})
            sweepReduction<C, C>(
                [&](const C* p, int len, C* r) {
                    C pair[2];
                    const TarnStatus status = call(p, len, pair, f);
                    std::memcpy(static_cast<void*>(r), pair + second, sizeof(C));
                    return status;
                },
                [&](std::span<const C> x) { return model(x, f[second]); }, {.depth = i == 0 ? depth : Depth::quick});
    }
}

TEST(GoertzTwo, GivesTheBinsOfOneAtATime)
{
    sweepTwo<Tarn64fc>(
        [](const Tarn64fc* p, int len, Tarn64fc* r, const Tarn32f* f) {
            const Tarn64f wide[2] = {f[0], f[1]};
            return tarnsGoertzTwo_64fc(p, len, r, wide);
        },
        [](std::span<const Tarn64fc> x, Tarn32f f) { return asDouble(model::goertzel(x, f, same)); }, Depth::full);
    for (int s : {0, 3, -2})
        sweepTwo<Tarn16sc>(
            [s](const Tarn16sc* p, int len, Tarn16sc* r, const Tarn32f* f) {
                return tarnsGoertzTwo_16sc_Sfs(p, len, r, f, s);
            },
            [s](std::span<const Tarn16sc> x, Tarn32f f) { return asWords(model::goertzel(x, f, same), s); },
            s == 3 ? Depth::full : Depth::quick);
}

TEST(GoertzTwo_32fc, RoundsTheStatesFirst)
{
    sweepTwo<Tarn32fc>(
        tarnsGoertzTwo_32fc,
        [](std::span<const Tarn32fc> x, Tarn32f f) { return asSingle(model::goertzel(x, f, single)); }, Depth::full);
    // It shows: near frequency 0 the states are some thousand times as large as the bin.
    const std::vector<Tarn32fc> ones(4096, Tarn32fc{1, 0});
    const Tarn32f f[2] = {0.0F, 1.0F / 8192};
    Tarn32fc pair[2];
    Tarn32fc one{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertzTwo_32fc(ones.data(), 4096, pair, f));
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_32fc(ones.data(), 4096, &one, f[1]));
    EXPECT_NE(one.re, pair[1].re);
    EXPECT_NEAR(one.re, pair[1].re, 1);
}

TEST(GoertzTwo, WritesTwoResultsAndNoMore)
{
    for (unsigned offset = 0; offset < 16; ++offset) {
        const GuardedArray<Tarn32fc> x(3, Placement::atEnd());
        GuardedArray<Tarn32fc> val(2, Placement::offset(offset));
        const GuardedArray<Tarn32f> f(std::vector<Tarn32f>{0.1F, 0.2F}, Placement::atEnd(offset % 4));
        EXPECT_EQ(tarnStsNoErr, tarnsGoertzTwo_32fc(x.data(), 3, val.data(), f.data()));
        val.checkRedZones();
    }
}

// -- What the bins are ------------------------------------------------------------------------------------------------

TEST(Goertz, IsABinOfTheForwardTransform)
{
    using Bin = std::complex<long double>;
    for (int len : {1, 2, 3, 5, 8, 17, 64, 100, 333}) {
        std::vector<Tarn64fc> x;
        for (int n = 0; n < len; ++n)
            x.push_back({std::sin(n * 1.7 + 0.3), std::cos(n * n * 0.37)});
        for (int m = 0; m < len; m += 1 + len / 9) {
            Bin sum = 0;
            for (int n = 0; n < len; ++n)
                sum += Bin(x[static_cast<std::size_t>(n)].re, x[static_cast<std::size_t>(n)].im) *
                       std::polar(1.0L, -6.283185307179586476925L * (m * n % len) / len);
            Tarn64fc val{};
            ASSERT_EQ(tarnStsNoErr, tarnsGoertz_64fc(x.data(), len, &val, static_cast<Tarn64f>(m) / len));
            // The states are at most len^2 in size, and as many of them are rounded.
            const double bound = 0x1p-52 * len * len * 4;
            EXPECT_NEAR(static_cast<double>(sum.real()), val.re, bound) << m << " of " << len;
            EXPECT_NEAR(static_cast<double>(sum.imag()), val.im, bound) << m << " of " << len;
        }
    }
}

// Off the bins the magnitude is that of the sum, and the phase counts from the sample behind the last one.
TEST(Goertz, CountsThePhaseFromTheEnd)
{
    constexpr int len = 50;
    constexpr double f = 0.1234;
    std::complex<double> sum = 0;
    std::vector<Tarn64fc> x;
    for (int n = 0; n < len; ++n) {
        x.push_back({std::sin(n * 0.9), std::cos(n * 0.2)});
        sum += std::complex(x.back().re, x.back().im) * std::polar(1.0, -6.283185307179586 * f * n);
    }
    sum *= std::polar(1.0, 6.283185307179586 * f * len);
    Tarn64fc val{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_64fc(x.data(), len, &val, f));
    EXPECT_NEAR(sum.real(), val.re, 1e-11);
    EXPECT_NEAR(sum.imag(), val.im, 1e-11);
}

TEST(Goertz, AtZeroTheBinIsTheSum)
{
    std::vector<Tarn32f> x(1000);
    double sum = 0;
    for (std::size_t n = 0; n < x.size(); ++n)
        sum += x[n] = static_cast<Tarn32f>(n % 7);
    Tarn32fc val{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_32f(x.data(), 1000, &val, 0.0F));
    EXPECT_EQ(static_cast<Tarn32f>(sum), val.re);
    EXPECT_EQ(0, val.im);
}

TEST(Goertz, OneSampleIsTurnedOnce)
{
    const Tarn32f x = 3;
    Tarn32fc val{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_32f(&x, 1, &val, 0.125F));
    EXPECT_EQ(static_cast<Tarn32f>(3 * std::sqrt(0.5)), val.re);
    EXPECT_EQ(static_cast<Tarn32f>(3 * std::sqrt(0.5)), val.im);
}

TEST(Goertz, LongVectors)
{
    std::vector<Tarn32f> x(100003);
    for (std::size_t n = 0; n < x.size(); ++n)
        x[n] = static_cast<Tarn32f>(static_cast<int>(n * n % 1013) - 506);
    Tarn32fc val{};
    for (const Tarn32f f : {0.0F, 0.1F, 0.4999F}) {
        EXPECT_EQ(tarnStsNoErr, tarnsGoertz_32f(x.data(), static_cast<int>(x.size()), &val, f));
        const Tarn32fc expected = asSingle(model::goertzelReal(std::span<const Tarn32f>(x), f));
        EXPECT_EQ(expected.re, val.re);
        EXPECT_EQ(expected.im, val.im);
    }
}

TEST(Goertz, NaNAndInfinitySpread)
{
    const Tarn32f nan = std::numeric_limits<Tarn32f>::quiet_NaN();
    const Tarn32f infinity = std::numeric_limits<Tarn32f>::infinity();
    for (const Tarn32f bad : {nan, infinity})
        for (std::size_t at = 0; at < 7; ++at) {
            std::vector<Tarn32f> x(7, 1.0F);
            x[at] = bad;
            Tarn32fc val{};
            EXPECT_EQ(tarnStsNoErr, tarnsGoertz_32f(x.data(), 7, &val, 0.1F));
            EXPECT_FALSE(std::isfinite(val.re) && std::isfinite(val.im)) << at;
        }
}

// -- Checks -----------------------------------------------------------------------------------------------------------

TEST(Goertz, ChecksPointersThenLengthThenFrequency)
{
    const auto frequency = param<Tarn32f>(0.25F,
                                          {1.0F, -0x1p-149F, 2.0F, -1.0F, std::numeric_limits<Tarn32f>::quiet_NaN(),
                                           std::numeric_limits<Tarn32f>::infinity()},
                                          tarnStsRelFreqErr);
    const auto wide = param<Tarn64f>(
        0.25, {1.0, -5e-324, 2.0, std::numeric_limits<Tarn64f>::quiet_NaN(), -std::numeric_limits<Tarn64f>::infinity()},
        tarnStsRelFreqErr);
    expectChecks(tarnsGoertz_32f, {}, array, length, array, frequency);
    expectChecks(tarnsGoertz_32fc, {}, array, length, array, frequency);
    expectChecks(tarnsGoertz_64fc, {}, array, length, array, wide);
    expectChecks(tarnsGoertz_16s_Sfs, {}, array, length, array, frequency, 3);
    expectChecks(tarnsGoertz_16sc_Sfs, {}, array, length, array, frequency, 3);
}

template <class T, class Real, class... Scale>
void expectChecksOfTwo(TarnStatus (*function)(const T*, int, T*, const Real*, Scale...), Scale... scale)
{
    const Real good[2] = {Real(0.1), Real(0)};
    expectChecks(function, {}, array, length, array, object(static_cast<const Real*>(good)), scale...);
    for (const Real bad : {Real(1), Real(-0.25), std::numeric_limits<Real>::quiet_NaN()})
        for (int place : {0, 1}) {
            Real f[2] = {Real(0.1), Real(0.2)};
            f[place] = bad;
            T x[4] = {};
            T val[2] = {{3, 4}, {5, 6}};
            EXPECT_EQ(tarnStsRelFreqErr, function(x, 4, val, f, scale...));
            EXPECT_EQ(tarnStsSizeErr, function(x, 0, val, f, scale...));
            EXPECT_EQ(tarnStsNullPtrErr, function(nullptr, 0, val, f, scale...));
            EXPECT_TRUE(val[0].re == 3 && val[0].im == 4 && val[1].re == 5 && val[1].im == 6);
        }
}

TEST(GoertzTwo, ChecksBothFrequencies)
{
    expectChecksOfTwo(tarnsGoertzTwo_32fc);
    expectChecksOfTwo(tarnsGoertzTwo_64fc);
    expectChecksOfTwo(tarnsGoertzTwo_16sc_Sfs, 1);
}

TEST(Goertz, TheHighestFrequencyAndMinusZeroPass)
{
    const Tarn64fc x{1, 2};
    Tarn64fc val{};
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_64fc(&x, 1, &val, 0x1.fffffffffffffp-1));
    EXPECT_EQ(tarnStsNoErr, tarnsGoertz_64fc(&x, 1, &val, -0.0));
    EXPECT_EQ(1, val.re);
    EXPECT_EQ(2, val.im);
}

} // namespace
} // namespace tarn::test
