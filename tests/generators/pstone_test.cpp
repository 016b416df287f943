// The tone generators: every sample to the bit of its recurrence, and against the true sinusoid.
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
using Magn = Real<T>;

template <class T>
using ToneCall = TarnStatus (*)(T*, int, Magn<T>, Lane<T>, Lane<T>*, TarnHintAlgorithm);

template <class T>
std::vector<T> toneModel(int len, double magn, double freq, double phase, bool fast)
{
    constexpr bool is16 = std::is_integral_v<Real<T>>;
    std::vector<Real<T>> parts[2];
    for (int part = 0; part < PartsOf<T>::count; ++part) {
        const auto y = model::toneSamples<Lane<T>>(part, len, magn, freq, phase, fast);
        for (std::size_t n = 0; n < y.size(); ++n) {
            if constexpr (is16)
                parts[part].push_back(fast && n % 1024 >= 16 ? model::nearest16(y[n]) : model::truncated16(y[n]));
            else
                parts[part].push_back(static_cast<Real<T>>(y[n]));
        }
    }
    std::vector<T> tone;
    for (std::size_t n = 0; n < parts[0].size(); ++n) {
        if constexpr (PartsOf<T>::count == 2)
            tone.push_back({parts[0][n], parts[1][n]});
        else
            tone.push_back(parts[0][n]);
    }
    return tone;
}

template <class T>
Lane<T> storedPhase(double phase, double freq, int len)
{
    const auto rounded = static_cast<Lane<T>>(model::phaseAfter(phase, freq, len));
    return rounded >= 6.283185307179586 ? 0 : rounded;
}

template <class T>
void sweepTone(ToneCall<T> call)
{
    struct Case {
        double magn, freq, phase;
    };
    for (const Case c :
         {Case{1000, 0.1, 0.7}, Case{32767, 0.25, 0}, Case{1, 0.4999, 6.28}, Case{12345, 0.0003, 3}, Case{77, 0, 1}}) {
        const auto freq = static_cast<Lane<T>>(c.freq);
        const auto start = static_cast<Lane<T>>(c.phase);
        for (const TarnHintAlgorithm hint : {0, 1, 2, 77, -1}) {
            SCOPED_TRACE(std::to_string(c.freq) + ", hint " + std::to_string(hint));
            sweepElementwise<T>(
                [&](T* dst, int len) {
                    Lane<T> phase = start;
                    const TarnStatus status = call(dst, len, static_cast<Magn<T>>(c.magn), freq, &phase, hint);
                    EXPECT_TRUE(valuesMatch(storedPhase<T>(start, freq, len), phase)) << len;
                    return status;
                },
                [&](int len) { return toneModel<T>(len, c.magn, freq, start, hint == tarnAlgHintFast); },
                {.thresholds = {1024, 2048, 3072, 4096},
                 .depth = c.freq == 0.1 && hint < 2 ? Depth::full : Depth::quick});
        }
    }
}

TEST(Tone, SixteenBits)
{
    sweepTone<Tarn16s>(tarnsTone_Direct_16s);
    sweepTone<Tarn16sc>(tarnsTone_Direct_16sc);
}
TEST(Tone, SinglePrecision)
{
    sweepTone<Tarn32f>(tarnsTone_Direct_32f);
    sweepTone<Tarn32fc>(tarnsTone_Direct_32fc);
}
TEST(Tone, DoublePrecision)
{
    sweepTone<Tarn64f>(tarnsTone_Direct_64f);
    sweepTone<Tarn64fc>(tarnsTone_Direct_64fc);
}

// A rounding error e made in one step of a recurrence of angle v is at most e / sin(v) in every later sample. The steps
// of a chain are len / s, each of which rounds twice, to at most the last place of 2 magn; the factor, off by half a
// unit in the last place of 2, turns the angle of a step by that over 2 sin(v).
template <class T>
void expectTrueTone(ToneCall<T> call, double freqValue, int len, TarnHintAlgorithm hint)
{
    const bool fast = hint == tarnAlgHintFast;
    const auto freq = static_cast<Lane<T>>(freqValue);
    const int stride = !fast ? 2 : sizeof(Lane<T>) == 8 ? 4 : 8;
    const int chain = fast ? std::min(len, sizeof(Lane<T>) == 8 ? 2048 : 1024) / stride : len / stride;
    const double magn = 20000;
    const double lastPlace = fast ? std::numeric_limits<Lane<T>>::epsilon() : std::numeric_limits<double>::epsilon();
    const double sine = std::fabs(std::sin(2 * model::halfTurn * freq * stride));
    const double drift = magn * chain * 4 * lastPlace / sine;
    // What a sample loses when it is stored, and the argument's own rounding.
    const double stored = std::is_integral_v<Real<T>> ? 1 : magn * std::numeric_limits<Real<T>>::epsilon();
    const double argument = magn * 2 * model::halfTurn * freq * len * std::numeric_limits<double>::epsilon();

    std::vector<T> tone(static_cast<std::size_t>(len));
    Lane<T> phase = 1;
    ASSERT_EQ(tarnStsNoErr, call(tone.data(), len, static_cast<Magn<T>>(magn), freq, &phase, hint));
    for (int n = 0; n < len; ++n) {
        const long double angle = 2 * 3.141592653589793238462643383279502884L * freq * n + 1;
        const T sample = tone[static_cast<std::size_t>(n)];
        const double bound = drift + stored + argument;
        if constexpr (PartsOf<T>::count == 2) {
            ASSERT_NEAR(static_cast<double>(magn * std::cos(angle)), sample.re, bound) << n;
            ASSERT_NEAR(static_cast<double>(magn * std::sin(angle)), sample.im, bound) << n;
        } else {
            ASSERT_NEAR(static_cast<double>(magn * std::cos(angle)), sample, bound) << n;
        }
    }
}

template <class T>
void expectTrueTones(ToneCall<T> call)
{
    for (const double freq : {0.013, 0.1, 0.29, 0.42}) {
        expectTrueTone<T>(call, freq, 20000, tarnAlgHintNone);
        expectTrueTone<T>(call, freq, 20000, tarnAlgHintFast);
    }
}
TEST(Tone, FollowsTheTrueSinusoid)
{
    expectTrueTones<Tarn16s>(tarnsTone_Direct_16s);
    expectTrueTones<Tarn16sc>(tarnsTone_Direct_16sc);
    expectTrueTones<Tarn32f>(tarnsTone_Direct_32f);
    expectTrueTones<Tarn32fc>(tarnsTone_Direct_32fc);
    expectTrueTones<Tarn64f>(tarnsTone_Direct_64f);
    expectTrueTones<Tarn64fc>(tarnsTone_Direct_64fc);
}

TEST(Tone, QuarterOfTheRate)
{
    Tarn64f tone[4];
    Tarn64f phase = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_64f(tone, 4, 3, 0.25, &phase, tarnAlgHintNone));
    const double expected[] = {3, 0, -3, 0};
    EXPECT_TRUE(arraysMatch<Tarn64f>(expected, tone, 4, {.absolute = 1e-14}));
    EXPECT_EQ(0, phase);
}

TEST(Tone, NoFrequencyIsAConstant)
{
    for (const TarnHintAlgorithm hint : {tarnAlgHintNone, tarnAlgHintFast}) {
        std::vector<Tarn32f> tone(3000);
        Tarn32f phase = 2.5F;
        ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_32f(tone.data(), 3000, 7, 0, &phase, hint));
        EXPECT_EQ(2.5F, phase);
        for (const Tarn32f x : tone)
            ASSERT_EQ(static_cast<Tarn32f>(7 * model::cosine(2.5)), x);
    }
}

// The phases that a call may leave are phases that the next call takes: what would round to a whole turn is 0.
TEST(Tone, PhaseThatRoundsToATurnIsZero)
{
    constexpr Tarn32f turn = 6.2831855F; // 2 pi in single precision, above the true one
    const Tarn32f below = std::nextafterf(turn, 0.F);
    // Frequencies that lead from the last valid phase to between the two.
    int zeros = 0;
    for (int k = 1; k < 200; ++k) {
        const auto freq = static_cast<Tarn32f>(k) * 1e-9F;
        Tarn32f tone;
        Tarn32f phase = below;
        ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_32f(&tone, 1, 1, freq, &phase, tarnAlgHintNone));
        EXPECT_LT(phase, 6.283185307179586);
        const double exact = model::phaseAfter(below, freq, 1);
        if (exact > 6 && static_cast<Tarn32f>(exact) == turn) {
            EXPECT_EQ(0, phase);
            ++zeros;
        }
    }
    EXPECT_GT(zeros, 0);
    // In double precision the first value past the range is a turn itself.
    Tarn64f tone;
    Tarn64f phase = std::nextafter(6.283185307179586, 0);
    ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_64f(&tone, 1, 1, 1.4e-16, &phase, tarnAlgHintNone));
    EXPECT_EQ(0, phase);
}

TEST(Tone, PhaseCarriesATone)
{
    std::vector<Tarn64f> whole(1000);
    std::vector<Tarn64f> pieces(1000);
    Tarn64f phase = 0.3;
    ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_64f(whole.data(), 1000, 1, 0.0937, &phase, tarnAlgHintNone));
    phase = 0.3;
    for (int n = 0; n < 1000; n += 100)
        ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_64f(pieces.data() + n, 100, 1, 0.0937, &phase, tarnAlgHintFast));
    EXPECT_TRUE(arraysMatch<Tarn64f>(whole.data(), pieces.data(), 1000, {.absolute = 1e-11}));
}

// A NaN frequency passes; there is no tone then.
TEST(Tone, NanFrequency)
{
    for (const TarnHintAlgorithm hint : {tarnAlgHintNone, tarnAlgHintFast}) {
        Tarn64f tone[40];
        Tarn64f phase = 1;
        ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_64f(tone, 40, 1, std::nan(""), &phase, hint));
        for (const Tarn64f x : tone)
            EXPECT_TRUE(std::isnan(x));
        EXPECT_TRUE(std::isnan(phase));
        Tarn16s samples[40];
        Tarn32f phase16 = 1;
        ASSERT_EQ(tarnStsNoErr, tarnsTone_Direct_16s(samples, 40, 1, std::nanf(""), &phase16, hint));
        for (const Tarn16s x : samples)
            EXPECT_EQ(-32768, x);
    }
}

template <class T, ToneCall<T> call>
struct DirectCall {
    T samples[4] = {};
    Lane<T> phase = 1;
    T* pDst = samples;
    Lane<T>* pPhase = &phase;
    int len = 4;
    Magn<T> magn = 1;
    Lane<T> freq = static_cast<Lane<T>>(0.1);

    TarnStatus operator()()
    {
        const T before[4] = {};
        const Lane<T> phaseBefore = phase;
        const TarnStatus status = call(pDst, len, magn, freq, pPhase, tarnAlgHintNone);
        if (status != tarnStsNoErr) {
            EXPECT_EQ(0, std::memcmp(before, samples, sizeof before));
            EXPECT_EQ(0, std::memcmp(&phaseBefore, &phase, sizeof phase));
        }
        return status;
    }
};

template <class T, ToneCall<T> call>
void expectToneOrder()
{
    using Call = DirectCall<T, call>;
    using R = Lane<T>;
    expectOrder<Call>({{[](Call& c) { c.pPhase = nullptr; }, tarnStsNullPtrErr},
                       {[](Call& c) { c.magn = 0; }, tarnStsToneMagnErr},
                       {[](Call& c) { c.magn = -5; }, tarnStsToneMagnErr},
                       {[](Call& c) { c.freq = -1e-30F; }, tarnStsToneFreqErr},
                       {[](Call& c) { c.freq = 0.5; }, tarnStsToneFreqErr},
                       {[](Call& c) { c.phase = -1e-30F; }, tarnStsTonePhaseErr},
                       {[](Call& c) { c.phase = static_cast<R>(6.283185307179586); }, tarnStsTonePhaseErr},
                       {[](Call& c) { c.phase = std::numeric_limits<R>::quiet_NaN(); }, tarnStsTonePhaseErr},
                       {[](Call& c) { c.pDst = nullptr; }, tarnStsNullPtrErr},
                       {[](Call& c) { c.len = 0; }, tarnStsSizeErr},
                       {[](Call& c) { c.len = -1; }, tarnStsSizeErr}});
    if constexpr (!std::is_integral_v<Magn<T>>) {
        Call nan;
        nan.magn = std::numeric_limits<Magn<T>>::quiet_NaN();
        EXPECT_EQ(tarnStsToneMagnErr, nan());
    }
    Call bounds;
    bounds.freq = std::nextafter(R(0.5), R(0));
    bounds.phase = std::nextafter(static_cast<R>(6.283185307179586), R(0));
    EXPECT_EQ(tarnStsNoErr, bounds());
    Call zero;
    zero.freq = R(-0.0);
    zero.phase = R(-0.0);
    EXPECT_EQ(tarnStsNoErr, zero());
}
TEST(Tone, Checks)
{
    expectToneOrder<Tarn16s, tarnsTone_Direct_16s>();
    expectToneOrder<Tarn16sc, tarnsTone_Direct_16sc>();
    expectToneOrder<Tarn32f, tarnsTone_Direct_32f>();
    expectToneOrder<Tarn32fc, tarnsTone_Direct_32fc>();
    expectToneOrder<Tarn64f, tarnsTone_Direct_64f>();
    expectToneOrder<Tarn64fc, tarnsTone_Direct_64fc>();
}

// -- Fixed-point parameters ------------------------------------------------------------------------------------------

Tarn16s toneQ15(int index, int magn, int rFreqQ15, int phaseQ15)
{
    const double freq = std::ldexp(rFreqQ15, -15);
    const double phase = std::ldexp(phaseQ15, -15);
    return model::halfAway16(magn * model::cosine(2 * model::halfTurn * freq * index + phase));
}

struct StateRelease {
    void operator()(TarnsToneState_16s* state) const { EXPECT_EQ(tarnStsNoErr, tarnsToneFree(state)); }
};
using OwnedState = std::unique_ptr<TarnsToneState_16s, StateRelease>;

OwnedState newTone(int magn, int rFreqQ15, int phaseQ15)
{
    TarnsToneState_16s* state = nullptr;
    EXPECT_EQ(tarnStsNoErr,
              tarnsToneInitAllocQ15_16s(&state, static_cast<Tarn16s>(magn), static_cast<Tarn16s>(rFreqQ15), phaseQ15));
    return OwnedState(state);
}

TEST(ToneQ15, DirectAndObject)
{
    struct Case {
        int magn, freq, phase;
    };
    for (const Case c : {Case{32767, 16383, 205886}, Case{1, 0, 0}, Case{1000, 3277, 51472}, Case{20000, 1, 100000}}) {
        const auto magn = static_cast<Tarn16s>(c.magn);
        const auto freq = static_cast<Tarn16s>(c.freq);
        const auto model = [&](int len) {
            std::vector<Tarn16s> y;
            for (int n = 0; n < len; ++n)
                y.push_back(toneQ15(n, c.magn, c.freq, c.phase));
            return y;
        };
        sweepElementwise<Tarn16s>(
            [&](Tarn16s* dst, int len) { return tarnsToneQ15_Direct_16s(dst, len, magn, freq, c.phase); }, model,
            {.depth = Depth::quick});
        sweepElementwise<Tarn16s>(
            [&](Tarn16s* dst, int len) {
                const OwnedState state = newTone(c.magn, c.freq, c.phase);
                return tarnsToneQ15_16s(dst, len, state.get());
            },
            model, {.depth = Depth::quick});
    }
}

TEST(ToneQ15, TwoCallsAreOneLongCall)
{
    const OwnedState once = newTone(30000, 1234, 4321);
    const OwnedState twice = newTone(30000, 1234, 4321);
    std::vector<Tarn16s> whole(200);
    std::vector<Tarn16s> halves(200);
    ASSERT_EQ(tarnStsNoErr, tarnsToneQ15_16s(whole.data(), 200, once.get()));
    ASSERT_EQ(tarnStsNoErr, tarnsToneQ15_16s(halves.data(), 100, twice.get()));
    ASSERT_EQ(tarnStsNoErr, tarnsToneQ15_16s(halves.data() + 100, 100, twice.get()));
    EXPECT_EQ(whole, halves);
    std::vector<Tarn16s> direct(200);
    ASSERT_EQ(tarnStsNoErr, tarnsToneQ15_Direct_16s(direct.data(), 200, 30000, 1234, 4321));
    EXPECT_EQ(direct, whole);
}

// In the caller's memory, of exactly the reported size, at every address: it works, it is not freed, and it is told by
// its first four bytes.
TEST(ToneQ15, ObjectInCallersMemory)
{
    int size = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsToneGetStateSizeQ15_16s(&size));
    ASSERT_GE(size, 40);
    for (unsigned offset = 0; offset < 17; ++offset) {
        GuardedArray<Tarn8u> memory(static_cast<std::size_t>(size),
                                    offset == 16 ? Placement::atEnd() : Placement::offset(offset));
        auto* const state = reinterpret_cast<TarnsToneState_16s*>(memory.data());
        ASSERT_EQ(tarnStsNoErr, tarnsToneInitQ15_16s(state, 500, 100, 7));
        EXPECT_EQ(0, std::memcmp("ZSML", memory.data(), 4));
        std::vector<Tarn16s> samples(77);
        for (int call = 0; call < 3; ++call) {
            ASSERT_EQ(tarnStsNoErr, tarnsToneQ15_16s(samples.data(), 77, state));
            for (int n = 0; n < 77; ++n)
                ASSERT_EQ(toneQ15(77 * call + n, 500, 100, 7), samples[static_cast<std::size_t>(n)]);
        }
        const auto before = memory.copy();
        EXPECT_EQ(tarnStsNoErr, tarnsToneFree(state));
        EXPECT_EQ(before, memory.copy());
        EXPECT_EQ(tarnStsNoErr, tarnsToneQ15_16s(samples.data(), 77, state));
    }
}

struct Q15Call {
    Tarn16s samples[4] = {};
    Tarn16s* pDst = samples;
    int len = 4;
    int magn = 1;
    int freq = 16383;
    int phase = 205886;

    TarnStatus operator()()
    {
        const TarnStatus status =
            tarnsToneQ15_Direct_16s(pDst, len, static_cast<Tarn16s>(magn), static_cast<Tarn16s>(freq), phase);
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
    TarnsToneState_16s* made = nullptr;
    bool noState = false;
    int magn = 1;
    int freq = 0;
    int phase = 0;

    TarnStatus operator()()
    {
        const auto m = static_cast<Tarn16s>(magn);
        const auto f = static_cast<Tarn16s>(freq);
        TarnStatus status;
        if constexpr (allocates)
            status = tarnsToneInitAllocQ15_16s(noState ? nullptr : &made, m, f, phase);
        else
            status =
                tarnsToneInitQ15_16s(noState ? nullptr : reinterpret_cast<TarnsToneState_16s*>(memory), m, f, phase);
        if (status == tarnStsNoErr && allocates) {
            EXPECT_EQ(tarnStsNoErr, tarnsToneFree(made));
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
    faults.push_back({[](Call& c) { c.magn = 0; }, tarnStsToneMagnErr});
    faults.push_back({[](Call& c) { c.magn = -32768; }, tarnStsToneMagnErr});
    faults.push_back({[](Call& c) { c.freq = -1; }, tarnStsToneFreqErr});
    faults.push_back({[](Call& c) { c.freq = 16384; }, tarnStsToneFreqErr});
    faults.push_back({[](Call& c) { c.phase = -1; }, tarnStsTonePhaseErr});
    faults.push_back({[](Call& c) { c.phase = 205887; }, tarnStsTonePhaseErr});
    return faults;
}

TEST(ToneQ15, Checks)
{
    expectOrder(parameterFaults<Q15Call>({{[](Q15Call& c) { c.pDst = nullptr; }, tarnStsNullPtrErr},
                                          {[](Q15Call& c) { c.len = 0; }, tarnStsSizeErr},
                                          {[](Q15Call& c) { c.len = -7; }, tarnStsSizeErr}}));
    expectOrder(parameterFaults<InitCall<true>>({{[](InitCall<true>& c) { c.noState = true; }, tarnStsNullPtrErr}}));
    expectOrder(parameterFaults<InitCall<false>>({{[](InitCall<false>& c) { c.noState = true; }, tarnStsNullPtrErr}}));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsToneGetStateSizeQ15_16s(nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsToneFree(nullptr));
}

TEST(ToneQ15, ForeignObjects)
{
    alignas(8) unsigned char memory[256] = {};
    auto* const foreign = reinterpret_cast<TarnsToneState_16s*>(memory);
    std::memcpy(memory, "[SML", 4);
    Tarn16s samples[4] = {1, 2, 3, 4};
    EXPECT_EQ(tarnStsContextMatchErr, tarnsToneQ15_16s(samples, 4, foreign));
    EXPECT_EQ(tarnStsContextMatchErr, tarnsToneFree(foreign));
    EXPECT_EQ(tarnStsSizeErr, tarnsToneQ15_16s(samples, 0, foreign));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsToneQ15_16s(samples, 0, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsToneQ15_16s(nullptr, 0, foreign));
    const Tarn16s before[4] = {1, 2, 3, 4};
    EXPECT_EQ(0, std::memcmp(before, samples, sizeof before));
}

TEST(ToneQ15, Memory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    auto* const untouched = reinterpret_cast<TarnsToneState_16s*>(0x10);
    TarnsToneState_16s* state = untouched;
    TarnStatus status;
    {
        const MemoryWatch watch(0);
        status = tarnsToneInitAllocQ15_16s(&state, 1, 0, 0);
    }
    EXPECT_EQ(tarnStsNoMemErr, status);
    EXPECT_EQ(untouched, state);
    int outstanding;
    {
        const MemoryWatch watch;
        status = tarnsToneInitAllocQ15_16s(&state, 1, 0, 0);
        tarnsToneFree(state);
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(tarnStsNoErr, status);
    EXPECT_EQ(0, outstanding);
}

} // namespace
} // namespace tarn::test
