// The triangle generators: every sample to the bit of its lane's phase, and against the true wave.
#include "tarns.h"

#include "model/tones.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/memory_watch.h"
#include "support/ordered_checks.h"
#include "support/sweep.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

namespace tarn::test {
namespace {

using model::Lane;
using model::PartsOf;
using model::Real;

template <class T>
using TriangleCall = TarnStatus (*)(T*, int, Real<T>, Lane<T>, Lane<T>, Lane<T>*);

struct Wave {
    double magn, freq, asym, phase;
};

template <class T>
std::vector<T> triangleModel(int len, const Wave& wave)
{
    std::vector<Real<T>> parts[2];
    for (int part = 0; part < PartsOf<T>::count; ++part) {
        for (const auto y : model::triangleSamples<Lane<T>>(part, PartsOf<T>::count, len, wave.magn, wave.freq,
                                                            wave.asym, wave.phase)) {
            if constexpr (std::is_integral_v<Real<T>>)
                parts[part].push_back(model::nearest16(y));
            else
                parts[part].push_back(y);
        }
    }
    std::vector<T> triangle;
    for (std::size_t n = 0; n < parts[0].size(); ++n) {
        if constexpr (PartsOf<T>::count == 2)
            triangle.push_back({parts[0][n], parts[1][n]});
        else
            triangle.push_back(parts[0][n]);
    }
    return triangle;
}

const Wave waves[] = {{1000, 0.1, 0, 0.7},     {32767, 0.25, 1, 0},      {1, 0.4999, -3, 6.28},
                      {12345, 0.0003, 3.1, 3}, {77, 0, -1.5, 1},         {500, 0.49, 0.3, 6.283},
                      {3, 0.31, 3.1415, 0.01}, {3, 0.31, -3.1415, 0.01}, {100, 0.125, 0, 0}};

template <class T>
Wave asPassed(const Wave& wave)
{
    return {wave.magn, static_cast<Lane<T>>(wave.freq), static_cast<Lane<T>>(wave.asym),
            static_cast<Lane<T>>(wave.phase)};
}

template <class T>
void sweepTriangle(TriangleCall<T> call)
{
    for (const Wave& given : waves) {
        SCOPED_TRACE(given.freq);
        const Wave wave = asPassed<T>(given);
        sweepElementwise<T>(
            [&](T* dst, int len) {
                auto phase = static_cast<Lane<T>>(wave.phase);
                const TarnStatus status =
                    call(dst, len, static_cast<Real<T>>(wave.magn), static_cast<Lane<T>>(wave.freq),
                         static_cast<Lane<T>>(wave.asym), &phase);
                const auto expected = static_cast<Lane<T>>(model::phaseAfter(wave.phase, wave.freq, len));
                EXPECT_TRUE(valuesMatch(expected >= 2 * model::halfTurn ? 0 : expected, phase)) << len;
                return status;
            },
            [&](int len) { return triangleModel<T>(len, wave); },
            {.thresholds = {1024}, .depth = given.freq == 0.1 ? Depth::full : Depth::quick});
    }
}

TEST(Triangle, SixteenBits)
{
    sweepTriangle<Tarn16s>(tarnsTriangle_Direct_16s);
    sweepTriangle<Tarn16sc>(tarnsTriangle_Direct_16sc);
}
TEST(Triangle, SinglePrecision)
{
    sweepTriangle<Tarn32f>(tarnsTriangle_Direct_32f);
    sweepTriangle<Tarn32fc>(tarnsTriangle_Direct_32fc);
}
TEST(Triangle, DoublePrecision)
{
    sweepTriangle<Tarn64f>(tarnsTriangle_Direct_64f);
    sweepTriangle<Tarn64fc>(tarnsTriangle_Direct_64fc);
}

// A phase is off by half a unit in the last place of 4 pi for each of its steps, and by half a unit for the constants;
// the steeper edge turns that into an error of the sample.
template <class T>
void expectTrueTriangle(TriangleCall<T> call, const Wave& given)
{
    constexpr int len = 400;
    const Wave wave = asPassed<T>(given);
    const double lastPlace = std::numeric_limits<Lane<T>>::epsilon();
    const double width = model::halfTurn - std::fabs(wave.asym);
    const double phaseError = (len + 8) * 16 * lastPlace;
    const double bound = wave.magn * (2 * phaseError / width + 16 * lastPlace * (1 + 8 / width)) +
                         (std::is_integral_v<Real<T>> ? 0.5 : 0);
    std::vector<T> samples(len);
    auto phase = static_cast<Lane<T>>(wave.phase);
    ASSERT_EQ(tarnStsNoErr, call(samples.data(), len, static_cast<Real<T>>(wave.magn), static_cast<Lane<T>>(wave.freq),
                                 static_cast<Lane<T>>(wave.asym), &phase));
    for (int n = 0; n < len; ++n) {
        const double at = 2 * model::halfTurn * wave.freq * n + wave.phase;
        const double quadrature = at + (3 * model::halfTurn + wave.asym) / 2;
        const T x = samples[static_cast<std::size_t>(n)];
        if constexpr (PartsOf<T>::count == 2) {
            ASSERT_NEAR(model::triangleAt(at, wave.magn, wave.asym), x.re, bound) << n;
            ASSERT_NEAR(model::triangleAt(quadrature, wave.magn, wave.asym), x.im, bound) << n;
        } else {
            ASSERT_NEAR(model::triangleAt(at, wave.magn, wave.asym), x, bound) << n;
        }
    }
}
TEST(Triangle, FollowsTheTrueWave)
{
    for (const Wave& wave : {Wave{1000, 0.1, 0, 0.7}, Wave{30000, 0.013, 1, 0}, Wave{200, 0.47, -2, 6}}) {
        SCOPED_TRACE(wave.freq);
        expectTrueTriangle<Tarn16s>(tarnsTriangle_Direct_16s, wave);
        expectTrueTriangle<Tarn16sc>(tarnsTriangle_Direct_16sc, wave);
        expectTrueTriangle<Tarn32f>(tarnsTriangle_Direct_32f, wave);
        expectTrueTriangle<Tarn32fc>(tarnsTriangle_Direct_32fc, wave);
        expectTrueTriangle<Tarn64f>(tarnsTriangle_Direct_64f, wave);
        expectTrueTriangle<Tarn64fc>(tarnsTriangle_Direct_64fc, wave);
    }
}

// Eight samples a period of a symmetric wave: equal steps down and up; the imaginary part is to the real one as a sine
// to a cosine.
TEST(Triangle, Symmetric)
{
    Tarn64fc wave[8];
    Tarn64f phase = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsTriangle_Direct_64fc(wave, 8, 4, 0.125, 0, &phase));
    const Tarn64fc expected[] = {{4, 0}, {2, 2}, {0, 4}, {-2, 2}, {-4, 0}, {-2, -2}, {0, -4}, {2, -2}};
    EXPECT_TRUE(arraysMatch<Tarn64fc>(expected, wave, 8, {.absolute = 1e-13}));
    EXPECT_EQ(0, phase);
}

// Nearly all of the period falls; the rising edge has hardly any width.
TEST(Triangle, ExtremeAsymmetry)
{
    std::vector<Tarn64f> wave(1000);
    Tarn64f phase = 0;
    const double asym = std::nextafter(model::halfTurn, 0);
    ASSERT_EQ(tarnStsNoErr, tarnsTriangle_Direct_64f(wave.data(), 1000, 1, 0.001, asym, &phase));
    for (int n = 0; n < 1000; ++n)
        ASSERT_NEAR(1 - 2 * n / 1000.0, wave[static_cast<std::size_t>(n)], 1e-9) << n;
}

TEST(Triangle, NanParametersPass)
{
    const double nan = std::nan("");
    Tarn64f wave[6];
    Tarn64f phase = 1;
    ASSERT_EQ(tarnStsNoErr, tarnsTriangle_Direct_64f(wave, 6, 1, 0.1, nan, &phase));
    for (const Tarn64f x : wave)
        EXPECT_TRUE(std::isnan(x));
    phase = 1;
    Tarn16s samples[6];
    Tarn32f phase16 = 1;
    ASSERT_EQ(tarnStsNoErr, tarnsTriangle_Direct_16s(samples, 6, 1, 0.1F, std::nanf(""), &phase16));
    EXPECT_EQ(-32768, samples[5]);
    ASSERT_EQ(tarnStsNoErr, tarnsTriangle_Direct_64f(wave, 6, 1, nan, 0, &phase));
    EXPECT_TRUE(std::isnan(wave[5]));
    EXPECT_TRUE(std::isnan(phase));
}

template <class T, TriangleCall<T> call>
struct DirectCall {
    T samples[4] = {};
    Lane<T> phase = 1;
    T* pDst = samples;
    Lane<T>* pPhase = &phase;
    int len = 4;
    Real<T> magn = 1;
    Lane<T> freq = static_cast<Lane<T>>(0.1);
    Lane<T> asym = 0;

    TarnStatus operator()()
    {
        const T before[4] = {};
        const Lane<T> phaseBefore = phase;
        const TarnStatus status = call(pDst, len, magn, freq, asym, pPhase);
        if (status != tarnStsNoErr) {
            EXPECT_EQ(0, std::memcmp(before, samples, sizeof before));
            EXPECT_EQ(0, std::memcmp(&phaseBefore, &phase, sizeof phase));
        }
        return status;
    }
};

template <class T, TriangleCall<T> call>
void expectTriangleOrder()
{
    using Call = DirectCall<T, call>;
    using R = Lane<T>;
    expectOrder<Call>(
        {{[](Call& c) { c.pPhase = nullptr; }, tarnStsNullPtrErr},
         {[](Call& c) { c.magn = 0; }, tarnStsTrnglMagnErr},
         {[](Call& c) { c.magn = -5; }, tarnStsTrnglMagnErr},
         {[](Call& c) { c.freq = -1e-30F; }, tarnStsTrnglFreqErr},
         {[](Call& c) { c.freq = 0.5; }, tarnStsTrnglFreqErr},
         {[](Call& c) { c.asym = std::nextafter(static_cast<R>(-model::halfTurn), R(-4)); }, tarnStsTrnglAsymErr},
         {[](Call& c) { c.asym = static_cast<R>(model::halfTurn); }, tarnStsTrnglAsymErr},
         {[](Call& c) { c.phase = -1e-30F; }, tarnStsTrnglPhaseErr},
         {[](Call& c) { c.phase = static_cast<R>(6.283185307179586); }, tarnStsTrnglPhaseErr},
         {[](Call& c) { c.phase = std::numeric_limits<R>::quiet_NaN(); }, tarnStsTrnglPhaseErr},
         {[](Call& c) { c.pDst = nullptr; }, tarnStsNullPtrErr},
         {[](Call& c) { c.len = 0; }, tarnStsSizeErr},
         {[](Call& c) { c.len = -1; }, tarnStsSizeErr}});
    if constexpr (!std::is_integral_v<Real<T>>) {
        Call nan;
        nan.magn = std::numeric_limits<Real<T>>::quiet_NaN();
        EXPECT_EQ(tarnStsTrnglMagnErr, nan());
    }
    // In single precision the nearest number to -pi is below it, and one step inside it is valid.
    Call lowest;
    lowest.asym = sizeof(R) == 4 ? std::nextafter(static_cast<R>(-model::halfTurn), R(0)) : R(-model::halfTurn);
    EXPECT_EQ(tarnStsNoErr, lowest());
}
TEST(Triangle, Checks)
{
    expectTriangleOrder<Tarn16s, tarnsTriangle_Direct_16s>();
    expectTriangleOrder<Tarn16sc, tarnsTriangle_Direct_16sc>();
    expectTriangleOrder<Tarn32f, tarnsTriangle_Direct_32f>();
    expectTriangleOrder<Tarn32fc, tarnsTriangle_Direct_32fc>();
    expectTriangleOrder<Tarn64f, tarnsTriangle_Direct_64f>();
    expectTriangleOrder<Tarn64fc, tarnsTriangle_Direct_64fc>();
}

// -- Fixed-point parameters ------------------------------------------------------------------------------------------

struct Q15Wave {
    int magn, freq, phase, asym;
};

// The walk as it is told: output, step, and a mirror at either peak.
std::vector<Tarn16s> walked(const Q15Wave& wave, int len)
{
    const double m = wave.magn;
    const double f = std::ldexp(wave.freq, -15);
    const double phi = std::ldexp(wave.phase, -15);
    const double h = std::ldexp(wave.asym, -15);
    const double a = model::halfTurn + h;
    const double b = model::halfTurn - h;
    const double down = -4 * model::halfTurn * f * m / a;
    const double up = 4 * model::halfTurn * f * m / b;
    bool rises = phi >= a;
    double value = rises ? (2 * (phi - a) / b - 1) * m : (1 - 2 * phi / a) * m;
    std::vector<Tarn16s> samples;
    while (samples.size() < static_cast<std::size_t>(len)) {
        samples.push_back(model::halfAway16(value));
        value += rises ? up : down;
        if (!rises && value < -m) {
            const double mirrored = -(a / b) * value + (-(a / b) * m - m);
            if (mirrored > m) {
                value += 4 * model::halfTurn * m / a;
            } else {
                value = mirrored;
                rises = true;
            }
        } else if (rises && value > m) {
            const double mirrored = -(b / a) * value + ((b / a) * m + m);
            if (mirrored < -m) {
                value += -4 * model::halfTurn * m / b;
            } else {
                value = mirrored;
                rises = false;
            }
        }
    }
    return samples;
}

struct StateRelease {
    void operator()(TarnsTriangleState_16s* state) const { EXPECT_EQ(tarnStsNoErr, tarnsTriangleFree(state)); }
};
using OwnedState = std::unique_ptr<TarnsTriangleState_16s, StateRelease>;

OwnedState newTriangle(const Q15Wave& wave)
{
    TarnsTriangleState_16s* state = nullptr;
    EXPECT_EQ(tarnStsNoErr, tarnsTriangleInitAllocQ15_16s(&state, static_cast<Tarn16s>(wave.magn),
                                                          static_cast<Tarn16s>(wave.freq), wave.phase, wave.asym));
    return OwnedState(state);
}

const Q15Wave q15Waves[] = {{32767, 16383, 205886, 102943}, {1, 0, 0, 0},
                            {1000, 3277, 51472, 0},         {20000, 1, 100000, -50000},
                            {30000, 16000, 0, 95000},       {30000, 16000, 150000, -95000},
                            {32767, 5000, 7, -102943},      {12345, 12345, 123456, 12345}};

TEST(TriangleQ15, DirectAndObject)
{
    for (const Q15Wave& wave : q15Waves) {
        SCOPED_TRACE(wave.magn);
        const auto magn = static_cast<Tarn16s>(wave.magn);
        const auto freq = static_cast<Tarn16s>(wave.freq);
        const auto model = [&](int len) { return walked(wave, len); };
        sweepElementwise<Tarn16s>(
            [&](Tarn16s* dst, int len) {
                return tarnsTriangleQ15_Direct_16s(dst, len, magn, freq, wave.phase, wave.asym);
            },
            model, {.depth = Depth::quick});
        sweepElementwise<Tarn16s>(
            [&](Tarn16s* dst, int len) {
                const OwnedState state = newTriangle(wave);
                return tarnsTriangleQ15_16s(dst, len, state.get());
            },
            model, {.depth = Depth::quick});
    }
}

// The walk drifts by roundings only: within a step of the formula it stays below a unit of the sample.
TEST(TriangleQ15, FollowsTheTrueWave)
{
    for (const Q15Wave& wave : q15Waves) {
        const auto samples = walked(wave, 300);
        std::vector<Tarn16s> actual(300);
        ASSERT_EQ(tarnStsNoErr, tarnsTriangleQ15_Direct_16s(actual.data(), 300, static_cast<Tarn16s>(wave.magn),
                                                            static_cast<Tarn16s>(wave.freq), wave.phase, wave.asym));
        const double asym = std::ldexp(wave.asym, -15);
        const double width = model::halfTurn - std::fabs(asym);
        for (int n = 0; n < 300; ++n) {
            const double phase = 2 * model::halfTurn * std::ldexp(wave.freq, -15) * n + std::ldexp(wave.phase, -15);
            EXPECT_NEAR(model::triangleAt(phase, wave.magn, asym), actual[static_cast<std::size_t>(n)],
                        0.5 + wave.magn * 1e-11 / width)
                << n << " at magnitude " << wave.magn;
        }
    }
}

// Rising takes a ninth of the period and a step nearly half of it: most steps that leave the falling edge pass both
// peaks and go on falling.
TEST(TriangleQ15, StepAcrossBothPeaksKeepsItsDirection)
{
    const Q15Wave wave{10000, 16000, 0, 80000};
    Tarn16s samples[4];
    ASSERT_EQ(tarnStsNoErr, tarnsTriangleQ15_Direct_16s(samples, 4, 10000, 16000, wave.phase, wave.asym));
    const double a = model::halfTurn + std::ldexp(80000, -15);
    const double step = 2 * model::halfTurn * std::ldexp(16000, -15);
    EXPECT_EQ(10000, samples[0]);
    EXPECT_EQ(model::halfAway16(10000 * (1 - 2 * step / a)), samples[1]);
    // From the first third of the fall, a step leads behind its end by more than the rise is wide.
    const double third = 3 * step - 2 * model::halfTurn;
    EXPECT_LT(2 * step, a + (2 * model::halfTurn - a));
    EXPECT_EQ(model::halfAway16(10000 * (1 - 2 * third / a)), samples[3]);
}

TEST(TriangleQ15, CallsContinueOneAnother)
{
    for (const Q15Wave& wave : q15Waves) {
        const OwnedState state = newTriangle(wave);
        const auto whole = walked(wave, 300);
        std::vector<Tarn16s> pieces(300);
        int done = 0;
        for (const int len : {1, 2, 3, 94, 100, 100}) {
            ASSERT_EQ(tarnStsNoErr, tarnsTriangleQ15_16s(pieces.data() + done, len, state.get()));
            done += len;
        }
        EXPECT_EQ(whole, pieces);
    }
}

TEST(TriangleQ15, ObjectInCallersMemory)
{
    int size = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsTriangleGetStateSizeQ15_16s(&size));
    const Q15Wave wave = q15Waves[7];
    for (unsigned offset = 0; offset < 17; ++offset) {
        GuardedArray<Tarn8u> memory(static_cast<std::size_t>(size),
                                    offset == 16 ? Placement::atEnd() : Placement::offset(offset));
        auto* const state = reinterpret_cast<TarnsTriangleState_16s*>(memory.data());
        ASSERT_EQ(tarnStsNoErr, tarnsTriangleInitQ15_16s(state, static_cast<Tarn16s>(wave.magn),
                                                         static_cast<Tarn16s>(wave.freq), wave.phase, wave.asym));
        EXPECT_EQ(0, std::memcmp("[SML", memory.data(), 4));
        std::vector<Tarn16s> samples(200);
        ASSERT_EQ(tarnStsNoErr, tarnsTriangleQ15_16s(samples.data(), 77, state));
        ASSERT_EQ(tarnStsNoErr, tarnsTriangleQ15_16s(samples.data() + 77, 123, state));
        EXPECT_EQ(walked(wave, 200), samples);
        const auto before = memory.copy();
        EXPECT_EQ(tarnStsNoErr, tarnsTriangleFree(state));
        EXPECT_EQ(before, memory.copy());
    }
}

struct Q15Call {
    Tarn16s samples[4] = {};
    Tarn16s* pDst = samples;
    int len = 4;
    Q15Wave wave = {1, 16383, 205886, -102943};

    TarnStatus operator()()
    {
        const TarnStatus status = tarnsTriangleQ15_Direct_16s(pDst, len, static_cast<Tarn16s>(wave.magn),
                                                              static_cast<Tarn16s>(wave.freq), wave.phase, wave.asym);
        const Tarn16s before[4] = {};
        if (status != tarnStsNoErr) {
            EXPECT_EQ(0, std::memcmp(before, samples, sizeof before));
        }
        return status;
    }
};

template <bool allocates>
struct InitCall {
    unsigned char memory[256] = {};
    TarnsTriangleState_16s* made = nullptr;
    bool noState = false;
    Q15Wave wave = {1, 0, 0, 102943};

    TarnStatus operator()()
    {
        const auto m = static_cast<Tarn16s>(wave.magn);
        const auto f = static_cast<Tarn16s>(wave.freq);
        auto* const place = reinterpret_cast<TarnsTriangleState_16s*>(memory);
        TarnStatus status;
        if constexpr (allocates)
            status = tarnsTriangleInitAllocQ15_16s(noState ? nullptr : &made, m, f, wave.phase, wave.asym);
        else
            status = tarnsTriangleInitQ15_16s(noState ? nullptr : place, m, f, wave.phase, wave.asym);
        if (status == tarnStsNoErr && allocates) {
            EXPECT_EQ(tarnStsNoErr, tarnsTriangleFree(made));
        } else if (status != tarnStsNoErr) {
            EXPECT_EQ(nullptr, made);
            EXPECT_EQ(0, memory[0]);
        }
        return status;
    }
};

template <class Call>
std::vector<OrderedFault<Call>> parameterFaults(std::vector<OrderedFault<Call>> faults)
{
    faults.push_back({[](Call& c) { c.wave.magn = 0; }, tarnStsTrnglMagnErr});
    faults.push_back({[](Call& c) { c.wave.magn = -32768; }, tarnStsTrnglMagnErr});
    faults.push_back({[](Call& c) { c.wave.freq = -1; }, tarnStsTrnglFreqErr});
    faults.push_back({[](Call& c) { c.wave.freq = 16384; }, tarnStsTrnglFreqErr});
    faults.push_back({[](Call& c) { c.wave.phase = -1; }, tarnStsTrnglPhaseErr});
    faults.push_back({[](Call& c) { c.wave.phase = 205887; }, tarnStsTrnglPhaseErr});
    faults.push_back({[](Call& c) { c.wave.asym = -102944; }, tarnStsTrnglAsymErr});
    faults.push_back({[](Call& c) { c.wave.asym = 102944; }, tarnStsTrnglAsymErr});
    return faults;
}

TEST(TriangleQ15, Checks)
{
    expectOrder(parameterFaults<Q15Call>({{[](Q15Call& c) { c.pDst = nullptr; }, tarnStsNullPtrErr},
                                          {[](Q15Call& c) { c.len = 0; }, tarnStsSizeErr},
                                          {[](Q15Call& c) { c.len = -7; }, tarnStsSizeErr}}));
    expectOrder(parameterFaults<InitCall<true>>({{[](InitCall<true>& c) { c.noState = true; }, tarnStsNullPtrErr}}));
    expectOrder(parameterFaults<InitCall<false>>({{[](InitCall<false>& c) { c.noState = true; }, tarnStsNullPtrErr}}));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsTriangleGetStateSizeQ15_16s(nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsTriangleFree(nullptr));
}

TEST(TriangleQ15, ForeignObjects)
{
    alignas(8) unsigned char memory[256] = {};
    auto* const foreign = reinterpret_cast<TarnsTriangleState_16s*>(memory);
    std::memcpy(memory, "ZSML", 4);
    Tarn16s samples[4] = {1, 2, 3, 4};
    EXPECT_EQ(tarnStsContextMatchErr, tarnsTriangleQ15_16s(samples, 4, foreign));
    EXPECT_EQ(tarnStsContextMatchErr, tarnsTriangleFree(foreign));
    EXPECT_EQ(tarnStsSizeErr, tarnsTriangleQ15_16s(samples, 0, foreign));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsTriangleQ15_16s(samples, 0, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsTriangleQ15_16s(nullptr, 0, foreign));
    const Tarn16s before[4] = {1, 2, 3, 4};
    EXPECT_EQ(0, std::memcmp(before, samples, sizeof before));
}

TEST(TriangleQ15, Memory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    auto* const untouched = reinterpret_cast<TarnsTriangleState_16s*>(0x10);
    TarnsTriangleState_16s* state = untouched;
    TarnStatus status;
    {
        const MemoryWatch watch(0);
        status = tarnsTriangleInitAllocQ15_16s(&state, 1, 0, 0, 0);
    }
    EXPECT_EQ(tarnStsNoMemErr, status);
    EXPECT_EQ(untouched, state);
    int outstanding;
    {
        const MemoryWatch watch;
        status = tarnsTriangleInitAllocQ15_16s(&state, 1, 0, 0, 0);
        tarnsTriangleFree(state);
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(tarnStsNoErr, status);
    EXPECT_EQ(0, outstanding);
}

} // namespace
} // namespace tarn::test
