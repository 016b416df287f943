// Normalization, joining of channels, sampling down and up.
#include "tarns/sampling.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

constexpr float nan32 = std::numeric_limits<float>::quiet_NaN();
constexpr float inf32 = std::numeric_limits<float>::infinity();

// -- Normalization ----------------------------------------------------------------------------------------------------

template <class T, class D>
void sweepNormalize(TarnStatus (*call)(const T*, T*, int, T, D), T vSub, D vDiv, Depth depth = Depth::quick)
{
    const auto model = [&](T x) {
        const D reciprocal = 1 / vDiv;
        if constexpr (ComplexElement<T>)
            return T{(x.re - vSub.re) * reciprocal, (x.im - vSub.im) * reciprocal};
        else
            return (x - vSub) * reciprocal;
    };
    sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, dst, len, vSub, vDiv); }, model,
                           {.name = "divisor " + toText(vDiv), .depth = depth});
}

TEST(Normalize, FloatsInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepNormalize<Tarn32f, Tarn32f>(tarnsNormalize_32f, 0.1f, 7.0f, depth);
        sweepNormalize<Tarn32fc, Tarn32f>(tarnsNormalize_32fc, {0.1f, -7.0f}, 7.0f, depth);
        sweepNormalize<Tarn64f, Tarn64f>(tarnsNormalize_64f, 0.1, 7.0, depth);
        sweepNormalize<Tarn64fc, Tarn64f>(tarnsNormalize_64fc, {0.1, -7.0}, 7.0, depth);
        for (const float vDiv : {3.0f, -0.1f, 1.17549435e-38f, -3e38f, inf32}) {
            sweepNormalize<Tarn32f, Tarn32f>(tarnsNormalize_32f, 0.3f, vDiv);
            sweepNormalize<Tarn32fc, Tarn32f>(tarnsNormalize_32fc, {0.3f, -7.0f}, vDiv);
        }
        for (const double vDiv : {3.0, -0.1, 1.1754943508222875e-38, 1e300}) {
            sweepNormalize<Tarn64f, Tarn64f>(tarnsNormalize_64f, 0.3, vDiv);
            sweepNormalize<Tarn64fc, Tarn64f>(tarnsNormalize_64fc, {0.3, -7.0}, vDiv);
        }
    }
    sweepNormalize<Tarn32f, Tarn32f>(tarnsNormalize_32f, nan32, 3.0f);
    sweepNormalize<Tarn32f, Tarn32f>(tarnsNormalize_32f, inf32, 3.0f);
}

/// The difference times the double 2^-s / vDiv, to nearest.
Tarn16s normalizedWord(Tarn16s x, Tarn16s vSub, int vDiv, int s)
{
    const int difference = x - vSub;
    if (difference == 0)
        return 0;
    // Powers of 2 beyond these have lost or saturated everything.
    const double factor = std::ldexp(1.0, -std::max(-300, std::min(s, 300)));
    const double product = difference * (factor / vDiv);
    if (product >= 32767)
        return 32767;
    if (product <= -32768)
        return -32768;
    double rounded = std::floor(product);
    const double fraction = product - rounded;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2.0) != 0))
        rounded += 1;
    return static_cast<Tarn16s>(rounded);
}

TEST(Normalize, WordsInEveryRoundingMode)
{
    struct Case {
        Tarn16s vSub;
        int vDiv;
    };
    for (const auto& [vSub, vDiv] :
         {Case{0, 1}, {0, -1}, {100, 3}, {-32768, 2}, {32767, -7}, {5, INT_MAX}, {5, INT_MIN}}) {
        for (const int s : scaleFactors(-32, 32)) {
            const auto model = [&](Tarn16s x) { return normalizedWord(x, vSub, vDiv, s); };
            const auto complexModel = [&](Tarn16sc x) {
                return Tarn16sc{normalizedWord(x.re, vSub, vDiv, s),
                                normalizedWord(x.im, static_cast<Tarn16s>(~vSub), vDiv, s)};
            };
            // The expected values are found here, to nearest, whatever mode the calls run in.
            for (const RoundingMode mode : allRoundingModes) {
                if (mode != RoundingMode::nearest && s != 0 && s != 1)
                    continue;
                sweepElementwise<Tarn16s, Tarn16s>(
                    [&](const Tarn16s* src, Tarn16s* dst, int len) {
                        const RoundingModeScope scope(mode);
                        return tarnsNormalize_16s_Sfs(src, dst, len, vSub, vDiv, s);
                    },
                    model, {.name = "scale " + std::to_string(s), .depth = Depth::quick});
                sweepElementwise<Tarn16sc, Tarn16sc>(
                    [&](const Tarn16sc* src, Tarn16sc* dst, int len) {
                        const RoundingModeScope scope(mode);
                        return tarnsNormalize_16sc_Sfs(src, dst, len, {vSub, static_cast<Tarn16s>(~vSub)}, vDiv, s);
                    },
                    complexModel, {.name = "scale " + std::to_string(s), .depth = Depth::quick});
            }
        }
    }
    sweepElementwise<Tarn16s, Tarn16s>(
        [](const Tarn16s* src, Tarn16s* dst, int len) { return tarnsNormalize_16s_Sfs(src, dst, len, 7, 2, 0); },
        [](Tarn16s x) { return model::scaled<Tarn16s>(x - 7, 1); });
}

TEST(Normalize, Checks)
{
    const auto bad32 =
        param<float>(2, {0.0f, -0.0f, 1.1754942e-38f, -1.1754942e-38f, nan32, -nan32}, tarnStsDivByZeroErr);
    const auto bad64 =
        param<double>(2, {0.0, -0.0, 1.1754943508222873e-38, -1e-40, double{nan32}}, tarnStsDivByZeroErr);
    const auto badWord = param<int>(2, {0}, tarnStsDivByZeroErr);
    expectChecks(tarnsNormalize_32f, {}, array, array, length, 0.0f, bad32);
    expectChecks(tarnsNormalize_32fc, {}, array, array, length, Tarn32fc{}, bad32);
    expectChecks(tarnsNormalize_64f, {}, array, array, length, 0.0, bad64);
    expectChecks(tarnsNormalize_64fc, {}, array, array, length, Tarn64fc{}, bad64);
    expectChecks(tarnsNormalize_16s_Sfs, {}, array, array, length, Tarn16s{0}, badWord, 0);
    expectChecks(tarnsNormalize_16sc_Sfs, {}, array, array, length, Tarn16sc{}, badWord, 0);
}

// -- Joining ----------------------------------------------------------------------------------------------------------

Tarn16s joinedSample(float x, RoundingMode mode)
{
    if (!(x > -32768))
        return -32768;
    if (x >= 32767)
        return 32767;
    double rounded = std::floor(double{x});
    const double fraction = double{x} - rounded;
    const bool up = mode == RoundingMode::nearest ? fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2.0) != 0)
                    : mode == RoundingMode::up    ? fraction > 0
                    : mode == RoundingMode::down  ? false
                                                  : fraction > 0 && x < 0;
    return static_cast<Tarn16s>(rounded + (up ? 1 : 0));
}

void testJoin(int nChannels, int chanLen, unsigned seed, RoundingMode mode)
{
    SCOPED_TRACE(std::to_string(nChannels) + " channels of " + std::to_string(chanLen));
    Random random(seed);
    std::vector<std::unique_ptr<GuardedArray<Tarn32f>>> channels;
    std::vector<const Tarn32f*> pointers;
    for (int c = 0; c < nChannels; ++c) {
        const auto gap = static_cast<unsigned>(random.below(20));
        const Placement placement = c % 3 == 0   ? Placement::atEnd()
                                    : c % 3 == 1 ? Placement::atStart(gap)
                                                 : Placement::offset(gap);
        channels.push_back(std::make_unique<GuardedArray<Tarn32f>>(static_cast<std::size_t>(chanLen), placement));
        for (int i = 0; i < chanLen; ++i) {
            const float x = random.below(4) == 0
                                ? randomValue<float>(random)
                                : static_cast<float>(static_cast<int>(random.below(140000)) - 70000) / 2;
            channels.back()->set(static_cast<std::size_t>(i), x);
        }
        pointers.push_back(channels.back()->data());
    }
    std::vector<Tarn16s> expected;
    for (int i = 0; i < chanLen; ++i)
        for (int c = 0; c < nChannels; ++c)
            expected.push_back(
                joinedSample(channels[static_cast<std::size_t>(c)]->get(static_cast<std::size_t>(i)), mode));
    for (const Placement placement : {Placement::atEnd(), Placement::atEnd(1), Placement::offset(seed % 16)}) {
        GuardedArray<Tarn16s> joined(expected.size(), placement);
        FpState before;
        TarnStatus status;
        {
            const RoundingModeScope scope(mode);
            before = FpState::current();
            status = tarnsJoin_32f16s_D2L(pointers.data(), nChannels, chanLen, joined.data());
            EXPECT_EQ("", before.changesSince());
        }
        EXPECT_EQ(tarnStsNoErr, status);
        EXPECT_TRUE(arraysMatch(expected, joined));
    }
}

TEST(Join, AgreesWithTheModelInEveryRoundingMode)
{
    unsigned seed = 1;
    for (int nChannels = 1; nChannels <= 26; ++nChannels) {
        for (int chanLen = 1; chanLen <= 50; ++chanLen)
            testJoin(nChannels, chanLen, seed++, allRoundingModes[static_cast<std::size_t>(chanLen) % 4]);
        for (const RoundingMode mode : allRoundingModes)
            testJoin(nChannels, 333, seed++, mode);
    }
}

TEST(Join, ChecksInTheirOrder)
{
    Tarn32f samples[4] = {};
    Tarn16s joined[8] = {9, 9, 9, 9, 9, 9, 9, 9};
    const Tarn32f* channels[] = {samples, samples};
    const Tarn32f* firstMissing[] = {nullptr, samples};
    const Tarn32f* lastMissing[] = {samples, nullptr};
    EXPECT_EQ(tarnStsNullPtrErr, tarnsJoin_32f16s_D2L(nullptr, 0, 0, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsJoin_32f16s_D2L(channels, 0, 4, nullptr));
    for (const int bad : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsSizeErr, tarnsJoin_32f16s_D2L(nullptr, bad, 4, joined));
        EXPECT_EQ(tarnStsSizeErr, tarnsJoin_32f16s_D2L(nullptr, 2, bad, joined));
        EXPECT_EQ(tarnStsSizeErr, tarnsJoin_32f16s_D2L(firstMissing, bad, 4, joined));
        EXPECT_EQ(tarnStsSizeErr, tarnsJoin_32f16s_D2L(firstMissing, 2, bad, joined));
    }
    EXPECT_EQ(tarnStsNullPtrErr, tarnsJoin_32f16s_D2L(nullptr, 2, 4, joined));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsJoin_32f16s_D2L(firstMissing, 2, 4, joined));
    EXPECT_EQ(tarnStsNullPtrErr, tarnsJoin_32f16s_D2L(lastMissing, 2, 4, joined));
    for (const Tarn16s x : joined)
        EXPECT_EQ(9, x);
    EXPECT_EQ(tarnStsNoErr, tarnsJoin_32f16s_D2L(lastMissing, 1, 4, joined)); // the missing one is not looked at
}

// -- Sampling ---------------------------------------------------------------------------------------------------------

template <class T>
using Sample = TarnStatus (*)(const T*, int, T*, int*, int, int*);

/// Elements that differ in every byte, NaN patterns among them: they must come through as bits.
template <class T>
std::vector<T> anyBits(int len, unsigned seed)
{
    std::vector<T> values(static_cast<std::size_t>(len));
    Random random(seed);
    auto* bytes = static_cast<unsigned char*>(static_cast<void*>(values.data()));
    for (std::size_t i = 0; i < values.size() * sizeof(T); ++i)
        bytes[i] = static_cast<unsigned char>(random.next());
    return values;
}

template <class T>
void testDown(Sample<T> sampleDown, int srcLen, int factor, int phase, unsigned seed)
{
    SCOPED_TRACE(std::to_string(srcLen) + " elements by " + std::to_string(factor) + " from " + std::to_string(phase));
    const std::vector<T> source = anyBits<T>(srcLen, seed);
    std::vector<T> expected;
    long long next = phase;
    for (; next < srcLen; next += factor)
        expected.push_back(source[static_cast<std::size_t>(next)]);
    for (const Placement placement :
         {Placement::atEnd(), Placement::offset(seed % 16), Placement::atStart(seed % 16)}) {
        const GuardedArray<T> src(source, placement);
        GuardedArray<T> dst(expected.size(), seed % 2 == 0 ? Placement::atEnd() : Placement::offset(seed / 16 % 16));
        // The counts lie at odd addresses too.
        GuardedArray<int> count(1, Placement::offset(seed % 7));
        GuardedArray<int> phases(std::vector<int>{phase}, Placement::offset(seed % 5));
        const FpState before = FpState::current();
        EXPECT_EQ(tarnStsNoErr, sampleDown(src.data(), srcLen, dst.data(), count.data(), factor, phases.data()));
        EXPECT_EQ("", before.changesSince());
        EXPECT_EQ(static_cast<int>(expected.size()), count.get(0));
        EXPECT_EQ(next - srcLen, phases.get(0));
        EXPECT_TRUE(arraysMatch(expected, dst, {.nan = NanRule::sameBits}));
        EXPECT_EQ(0, std::memcmp(source.data(), src.bytes(), src.byteSize()));
    }
    GuardedArray<T> inPlace(source, Placement::atEnd());
    int count = -1;
    int phases = phase;
    EXPECT_EQ(tarnStsNoErr, sampleDown(inPlace.data(), srcLen, inPlace.data(), &count, factor, &phases));
    EXPECT_TRUE(arraysMatch<T>(expected.data(), inPlace.data(), expected.size(), {.nan = NanRule::sameBits}));
}

template <class T>
void testUp(Sample<T> sampleUp, int srcLen, int factor, int phase, unsigned seed)
{
    SCOPED_TRACE(std::to_string(srcLen) + " elements by " + std::to_string(factor) + " at " + std::to_string(phase));
    const std::vector<T> source = anyBits<T>(srcLen, seed);
    std::vector<T> expected(static_cast<std::size_t>(srcLen) * static_cast<std::size_t>(factor));
    std::memset(static_cast<void*>(expected.data()), 0, expected.size() * sizeof(T));
    for (int i = 0; i < srcLen; ++i)
        expected[static_cast<std::size_t>(phase + i * factor)] = source[static_cast<std::size_t>(i)];
    for (const Placement placement :
         {Placement::atEnd(), Placement::offset(seed % 16), Placement::atStart(seed % 16)}) {
        const GuardedArray<T> src(source, seed % 2 == 0 ? Placement::atEnd() : Placement::offset(seed / 16 % 16));
        GuardedArray<T> dst(expected.size(), placement);
        GuardedArray<int> count(1, Placement::offset(seed % 7));
        GuardedArray<int> phases(std::vector<int>{phase}, Placement::offset(seed % 5));
        EXPECT_EQ(tarnStsNoErr, sampleUp(src.data(), srcLen, dst.data(), count.data(), factor, phases.data()));
        EXPECT_EQ(srcLen * factor, count.get(0));
        EXPECT_EQ(phase, phases.get(0));
        EXPECT_TRUE(arraysMatch(expected, dst, {.nan = NanRule::sameBits}));
        EXPECT_EQ(0, std::memcmp(source.data(), src.bytes(), src.byteSize()));
    }
}

template <class T>
void testSampling(Sample<T> sampleDown, Sample<T> sampleUp)
{
    unsigned seed = 1;
    for (const int factor : {1, 2, 3, 4, 5, 7, 8, 16, 100}) {
        for (int srcLen = 1; srcLen <= 70; ++srcLen) {
            for (const int phase : {0, 1, factor / 2, factor - 2, factor - 1}) {
                if (phase >= 0 && phase < factor) {
                    testDown(sampleDown, srcLen, factor, phase, seed++);
                    testUp(sampleUp, srcLen, factor, phase, seed++);
                }
            }
        }
        for (const int srcLen : {1000, 4095, 4096, 4097, 8191, 8192, 8193, 20001}) {
            testDown(sampleDown, srcLen, factor, factor - 1, seed++);
            testUp(sampleUp, srcLen, factor, factor - 1, seed++);
        }
    }
    testUp(sampleUp, 2, 30000, 29999, seed);
    testDown(sampleDown, 9, INT_MAX, 0, seed);
    testDown(sampleDown, 9, INT_MAX, INT_MAX - 1, seed);
    testDown(sampleDown, 9, INT_MAX, 8, seed);

    for (const Sample<T> sample : {sampleDown, sampleUp}) {
        int good = 1;
        int negative = -1;
        int most = INT_MAX;
        const auto factors = param(2, {0, -1, INT_MIN}, tarnStsSampleFactorErr);
        expectChecks(sample, {}, array, length, array, array, factors, object(&good));
        // A phase out of range comes last of all the checks.
        for (int* phase : {&negative, &most}) {
            T elements[16] = {};
            int count = 77;
            const int before = *phase;
            EXPECT_EQ(tarnStsSamplePhaseErr, sample(elements, 8, elements, &count, 2, phase));
            EXPECT_EQ(tarnStsSampleFactorErr, sample(elements, 8, elements, &count, 0, phase));
            EXPECT_EQ(tarnStsSizeErr, sample(elements, 0, elements, &count, 2, phase));
            EXPECT_EQ(tarnStsNullPtrErr, sample(nullptr, 8, elements, &count, 2, phase));
            EXPECT_EQ(before, *phase);
            EXPECT_EQ(77, count);
        }
        int equal = 2;
        T elements[16] = {};
        int count = 77;
        EXPECT_EQ(tarnStsSamplePhaseErr, sample(elements, 8, elements, &count, 2, &equal));
        EXPECT_EQ(tarnStsSamplePhaseErr, sample(elements, 8, elements, &count, 1, &good));
    }
}

TEST(Sampling, RealElements)
{
    testSampling(tarnsSampleDown_16s, tarnsSampleUp_16s);
    testSampling(tarnsSampleDown_32f, tarnsSampleUp_32f);
    testSampling(tarnsSampleDown_64f, tarnsSampleUp_64f);
}

TEST(Sampling, ComplexElements)
{
    testSampling(tarnsSampleDown_16sc, tarnsSampleUp_16sc);
    testSampling(tarnsSampleDown_32fc, tarnsSampleUp_32fc);
    testSampling(tarnsSampleDown_64fc, tarnsSampleUp_64fc);
}

TEST(Sampling, WorkedValues)
{
    const Tarn16s samples[] = {10, 11, 12, 13, 14, 15, 16};
    Tarn16s taken[2];
    int count = 0;
    int phase = 2;
    EXPECT_EQ(tarnStsNoErr, tarnsSampleDown_16s(samples, 7, taken, &count, 3, &phase));
    EXPECT_EQ(12, taken[0]);
    EXPECT_EQ(15, taken[1]);
    EXPECT_EQ(2, count);
    EXPECT_EQ(1, phase);

    const Tarn32f pair[] = {3.0f, 4.0f};
    Tarn32f spread[4];
    phase = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsSampleUp_32f(pair, 2, spread, &count, 2, &phase));
    const Tarn32f expected[] = {0.0f, 3.0f, 0.0f, 4.0f};
    EXPECT_TRUE(arraysMatch<Tarn32f>(expected, spread, 4));
    EXPECT_EQ(4, count);
}

/// Blocks of a signal sampled one after the other give what the whole gives.
TEST(Sampling, BlocksGoOnWhereTheLastOneStopped)
{
    const std::vector<Tarn16s> signal = anyBits<Tarn16s>(1000, 5);
    for (const int factor : {2, 3, 7, 40}) {
        std::vector<Tarn16s> whole(1000);
        int wholeCount = 0;
        int phase = 1;
        ASSERT_EQ(tarnStsNoErr, tarnsSampleDown_16s(signal.data(), 1000, whole.data(), &wholeCount, factor, &phase));
        std::vector<Tarn16s> blocks(1000);
        int total = 0;
        phase = 1;
        for (int i = 0, block = 1; i < 1000; i += block, ++block) {
            int count = 0;
            const int len = std::min(block, 1000 - i);
            ASSERT_EQ(tarnStsNoErr,
                      tarnsSampleDown_16s(signal.data() + i, len, blocks.data() + total, &count, factor, &phase));
            total += count;
        }
        EXPECT_EQ(wholeCount, total);
        EXPECT_TRUE(arraysMatch<Tarn16s>(whole.data(), blocks.data(), static_cast<std::size_t>(total)));
    }
}

} // namespace
} // namespace tarn::test
