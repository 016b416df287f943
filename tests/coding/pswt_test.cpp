// Wavelet banks: every output against the model, in streams cut anywhere; how wide sums are; arrays and what is around
// them.
#include "levels/coding/pswt.h"
#include "support/compare.h"
#include "support/wavelet_banks.h"

namespace tarn::test {
namespace {

using wavelet::Filter;
using wavelet::Sum;
using wavelet::Wide;

::testing::AssertionResult near(const std::vector<Sum>& expected, const std::vector<float>& actual, int terms)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Wide allowed = wavelet::bound(expected[i], terms);
        if (!(std::fabs(expected[i].value - static_cast<Wide>(actual[i])) <= allowed))
            return ::testing::AssertionFailure()
                   << "output " << i << " is " << actual[i] << ", not " << static_cast<double>(expected[i].value)
                   << " within " << static_cast<double>(allowed);
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult nearSamples(const std::vector<Sum>& expected, const std::vector<double>& actual, int terms,
                                       const InverseBank& bank)
{
    const bool isInteger = bank.sampleBytes < sizeof(float);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Wide allowed = wavelet::bound(expected[i], terms) + (isInteger ? 0.5L : 0.0L);
        const Wide value = std::clamp<Wide>(expected[i].value, bank.lowest, bank.highest);
        if (!(std::fabs(value - static_cast<Wide>(actual[i])) <= allowed))
            return ::testing::AssertionFailure()
                   << "output " << i << " is " << actual[i] << ", not " << static_cast<double>(value);
    }
    return ::testing::AssertionSuccess();
}

std::vector<Sum> sumOf(const std::vector<Sum>& a, const std::vector<Sum>& b)
{
    std::vector<Sum> sums;
    for (std::size_t i = 0; i < a.size(); ++i)
        sums.push_back(a[i] + b[i]);
    return sums;
}

struct Shape {
    int len, offs;
};
const std::vector<Shape> shapes = {{1, 0},  {1, -1},  {1, 1},  {2, 0},   {2, -1}, {2, 1},  {3, 0},  {3, -1}, {3, 2},
                                   {4, 0},  {4, 3},   {5, -1}, {5, 4},   {6, -1}, {7, 1},  {8, 0},  {8, -1}, {8, 1},
                                   {8, 40}, {9, 2},   {9, 3},  {16, -1}, {17, 0}, {30, 5}, {31, 6}, {33, 1}, {33, 0},
                                   {64, 7}, {3, 100}, {65, 0}, {65, -1}, {70, 1}, {101, 3}};

// The low channel has each shape once, the high channel another one at the same time.
Shape other(std::size_t i) { return shapes[(i * 5 + 9) % shapes.size()]; }

TEST(WaveletBankTest, SplitsAsTheSumsSay)
{
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Filter low = randomFilter(shapes[i].len, shapes[i].offs, i);
        const Filter high = randomFilter(other(i).len, other(i).offs, i + 50);
        for (const ForwardBank& bank : forwardBanks()) {
            const auto signal = signalFor(bank, 2 * 1100, i);
            const auto expectedLow = wavelet::forward(low, signal);
            const auto expectedHigh = wavelet::forward(high, signal);
            for (const Cuts& cuts : cutLists) {
                const BankOwner state(bank, low, high);
                const Channels out = splitInCalls(bank, state.get(), signal, cuts);
                ASSERT_TRUE(near(expectedLow, out.low, low.len())) << bank.name << ", shape " << i;
                ASSERT_TRUE(near(expectedHigh, out.high, high.len())) << bank.name << ", shape " << i;
                if (&bank != &forwardBanks().front())
                    break;
            }
        }
    }
}

TEST(WaveletBankTest, JoinsAsTheSumsSay)
{
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Filter low = randomFilter(shapes[i].len, shapes[i].offs, i);
        const Filter high = randomFilter(other(i).len, other(i).offs, i + 50);
        Channels in{randomSignal(1100, 3 * i), randomSignal(1100, 3 * i + 1)};
        for (const InverseBank& bank : inverseBanks()) {
            if (&bank == &inverseBanks()[1]) // integers, some of which saturate
                for (float& x : in.low)
                    x *= 300;
            const auto expected = sumOf(wavelet::inverse(low, in.low), wavelet::inverse(high, in.high));
            for (const Cuts& cuts : cutLists) {
                const BankOwner state(bank, low, high);
                const auto out = joinInCalls(bank, state.get(), in, cuts);
                ASSERT_TRUE(nearSamples(expected, out, low.len() + high.len(), bank)) << bank.name << ", shape " << i;
                if (&bank != &inverseBanks().front())
                    break;
            }
        }
    }
}

// -- Where sums are how wide ------------------------------------------------------------------------------------------

// Outputs that are always exact sums, rounded once, are those of double precision. One in single precision is so by
// chance, but not for every one of many signals.
class Exactness {
public:
    static constexpr int signals = 60;

    explicit Exactness(std::size_t len) : always(len, true) {}
    template <class Outputs>
    void compare(const std::vector<Sum>& expected, const Outputs& actual)
    {
        for (std::size_t i = 0; i < always.size(); ++i)
            always[i] = always[i] && static_cast<float>(expected[i].value) == static_cast<float>(actual[i]);
    }
    const std::vector<bool>& get() const { return always; }

private:
    std::vector<bool> always;
};

const Cuts unevenCuts = {20, 3, 1, 17, 4};

TEST(WaveletBankTest, BeginsEveryBlockInDoublePrecision)
{
    constexpr std::size_t len = 64;
    for (const auto& [taps, offs] : {Shape{8, -1}, Shape{8, 0}, Shape{9, 0}, Shape{9, -1}, Shape{8, 2}, Shape{9, 5}}) {
        Exactness exactness(len);
        const Filter filter = randomFilter(taps, offs, 7);
        for (int seed = 0; seed < Exactness::signals; ++seed) {
            const auto signal = randomSignal(2 * len, static_cast<std::uint64_t>(seed));
            const BankOwner state(forwardBanks()[0], filter, filter);
            const Channels out = splitInCalls(forwardBanks()[0], state.get(), signal, unevenCuts);
            exactness.compare(wavelet::forward(filter, signal), out.low);
            ASSERT_EQ(out.low, out.high);
        }
        // The head of each feed: of the block, or of the delayed samples and then of the rest.
        std::vector<bool> isWide(len);
        int phase = offs == -1 ? 1 : 0;
        std::size_t output = 0;
        const auto feed = [&](int samples) {
            const int head = wavelet::headOf(filter, phase);
            for (int i = 0; i < samples; ++i, phase ^= 1) {
                if (phase == 0)
                    isWide[output++] = i < head;
            }
        };
        inPieces(len, unevenCuts, [&](std::size_t, int count) {
            const int delayed = std::min(std::max(offs, 0), 2 * count);
            feed(delayed);
            feed(2 * count - delayed);
        });
        for (std::size_t k = 6; k < len; ++k) // all of whose terms are there
            EXPECT_EQ(isWide[k], exactness.get()[k]) << taps << " taps, offset " << offs << ", output " << k;
    }
}

TEST(WaveletBankTest, BeginsEveryInverseBlockInDoublePrecision)
{
    constexpr std::size_t len = 64;
    for (const auto& [taps, offs] :
         {Shape{16, 0}, Shape{17, 0}, Shape{16, 1}, Shape{17, 1}, Shape{18, 4}, Shape{19, 9}}) {
        Exactness exactness(2 * len);
        const Filter filter = randomFilter(taps, offs, 7);
        for (int seed = 0; seed < Exactness::signals; ++seed) {
            const auto signal = randomSignal(len, static_cast<std::uint64_t>(seed));
            const BankOwner state(inverseBanks()[0], filter, {{0}, 0});
            exactness.compare(
                wavelet::inverse(filter, signal),
                joinInCalls(inverseBanks()[0], state.get(), {signal, std::vector<float>(len)}, unevenCuts));
        }
        std::vector<bool> isWide(2 * len);
        const int head = wavelet::headOf(filter, offs & 1);
        std::size_t output = 0;
        const auto feed = [&](int outputs) {
            for (int i = 0; i < outputs; ++i)
                isWide[output++] = i < head;
        };
        inPieces(len, unevenCuts, [&](std::size_t, int count) {
            const int delayed = std::min(offs / 2 * 2, 2 * count);
            feed(delayed);
            feed(2 * count - delayed);
        });
        for (std::size_t n = 30; n < 2 * len; ++n)
            EXPECT_EQ(isWide[n], exactness.get()[n]) << taps << " taps, offset " << offs << ", output " << n;
    }
}

// Integer samples come in chunks of 512 outputs, however long the call is.
TEST(WaveletBankTest, CutsIntegerSamplesIntoChunks)
{
    const Filter low = randomFilter(30, 0, 1);
    const Filter high = randomFilter(9, 3, 2);
    for (std::size_t len : {511u, 512u, 513u, 1024u, 1025u, 1500u}) {
        const auto signal = signalFor(forwardBanks().back(), 2 * len, 5);
        const BankOwner byHand(forwardBanks()[0], low, high);
        const Channels chunks = splitInCalls(forwardBanks()[0], byHand.get(), signal, {512});
        const BankOwner state(forwardBanks().back(), low, high);
        const Channels out = splitInCalls(forwardBanks().back(), state.get(), signal, {static_cast<int>(len)});
        EXPECT_TRUE(arraysMatch<float>(chunks.low.data(), out.low.data(), len)) << len;
        EXPECT_TRUE(arraysMatch<float>(chunks.high.data(), out.high.data(), len)) << len;

        Channels in{randomSignal(len, 7), randomSignal(len, 8)};
        for (float& x : in.low)
            x *= 9000;
        const BankOwner joinByHand(inverseBanks()[0], low, high);
        const auto floats = joinInCalls(inverseBanks()[0], joinByHand.get(), in, {512});
        const BankOwner joins(inverseBanks().back(), low, high);
        const auto samples = joinInCalls(inverseBanks().back(), joins.get(), in, {static_cast<int>(len)});
        for (std::size_t i = 0; i < floats.size(); ++i)
            ASSERT_EQ(std::clamp(std::nearbyint(floats[i]), -32768.0, 32767.0), samples[i]) << len << ", " << i;
    }
    // The first output of a chunk is a sum in double precision, the last one is not.
    for (const int len : {512, 513}) {
        bool alwaysExact = true;
        for (std::uint64_t seed = 0; seed < Exactness::signals; ++seed) {
            const auto signal = signalFor(forwardBanks().back(), 2 * static_cast<std::size_t>(len), seed);
            const BankOwner state(forwardBanks().back(), low, high);
            const Channels out = splitInCalls(forwardBanks().back(), state.get(), signal, {len});
            alwaysExact &= static_cast<float>(wavelet::forward(low, signal).back().value) == out.low.back();
        }
        EXPECT_EQ(len == 513, alwaysExact) << len;
    }
}

// -- Small cases by hand ----------------------------------------------------------------------------------------------

TEST(WaveletBankTest, ScalesEverySecondSampleByOneTap)
{
    const auto signal = randomSignal(2 * 100, 4);
    for (int len : {1, 3, 4, 5, 8, 9, 100}) {
        const Filter even{{0.3f}, 0};
        const Filter odd{{-1.7f}, -1};
        const BankOwner state(forwardBanks()[0], even, odd);
        const Channels out = splitInCalls(forwardBanks()[0], state.get(), signal, {len});
        for (std::size_t k = 0; k < 100; ++k) {
            ASSERT_EQ(0.3f * signal[2 * k], out.low[k]);
            ASSERT_EQ(-1.7f * signal[2 * k + 1], out.high[k]);
        }
        const BankOwner inverse(inverseBanks()[0], even, {{-1.7f}, 1});
        const auto joined = joinInCalls(inverseBanks()[0], inverse.get(), out, {len});
        for (std::size_t k = 0; k < 100; ++k) {
            ASSERT_EQ(0.3f * out.low[k], static_cast<float>(joined[2 * k]));
            ASSERT_EQ(-1.7f * out.high[k], static_cast<float>(joined[2 * k + 1]));
        }
    }
}

TEST(WaveletBankTest, DelaysByOffsetsOfTheInverse)
{
    const Channels in{{1, 2, 3, 4}, {0, 0, 0, 0}};
    const Filter nothing{{0}, 0};
    const auto joined = [&](int offs) {
        const BankOwner state(inverseBanks()[0], {{10, 1}, offs}, nothing);
        return joinInCalls(inverseBanks()[0], state.get(), in, {3});
    };
    EXPECT_EQ((std::vector<double>{10, 1, 20, 2, 30, 3, 40, 4}), joined(0));
    EXPECT_EQ((std::vector<double>{0, 10, 1, 20, 2, 30, 3, 40}), joined(1));
    EXPECT_EQ((std::vector<double>{0, 10, 1, 20, 2, 30, 3, 40}), joined(-1));
    EXPECT_EQ((std::vector<double>{0, 0, 10, 1, 20, 2, 30, 3}), joined(2));
    EXPECT_EQ((std::vector<double>{0, 0, 0, 10, 1, 20, 2, 30}), joined(3));
    EXPECT_EQ((std::vector<double>{0, 0, 0, 0, 0, 0, 0, 0}), joined(8));
}

TEST(WaveletBankTest, SaturatesAndRoundsToEven)
{
    const Filter one{{1}, 0};
    const Filter shifted{{1}, 1};
    const auto joined = [&](std::size_t type, float even, float odd) {
        const BankOwner state(inverseBanks()[type], one, shifted);
        return joinInCalls(inverseBanks()[type], state.get(), {{even, 0}, {odd, 0}}, {2});
    };
    EXPECT_EQ((std::vector<double>{255, 0, 0, 0}), joined(1, 300, -7));
    EXPECT_EQ((std::vector<double>{127, -128, 0, 0}), joined(2, 300, -700));
    EXPECT_EQ((std::vector<double>{65535, 0, 0, 0}), joined(3, 70000, -1));
    EXPECT_EQ((std::vector<double>{32767, -32768, 0, 0}), joined(4, 32767.6f, -1e9f));
    EXPECT_EQ((std::vector<double>{2, 4, 0, 0}), joined(4, 2.5f, 3.5f));
}

// Infinities reach the outputs that have them in their sums, and no others.
TEST(WaveletBankTest, KeepsSpecialValuesToTheirWindows)
{
    for (int len = 1; len < 12; ++len) {
        for (std::size_t at : {0u, 1u, 37u, 80u, 199u}) {
            std::vector<float> signal(200, 1);
            signal[at] = std::numeric_limits<float>::infinity();
            const Filter filter{std::vector<float>(static_cast<std::size_t>(len), 0.5f), 0};
            const BankOwner state(forwardBanks()[0], filter, filter);
            const Channels out = splitInCalls(forwardBanks()[0], state.get(), signal, {60});
            for (std::size_t k = 0; k < 100; ++k)
                ASSERT_EQ(at <= 2 * k && 2 * k < at + static_cast<std::size_t>(len), std::isinf(out.low[k]));
            const BankOwner inverse(inverseBanks()[0], filter, {{0}, 0});
            const auto joined = joinInCalls(inverseBanks()[0], inverse.get(), {signal, std::vector<float>(200)}, {60});
            for (std::size_t n = 0; n < 400; ++n)
                ASSERT_EQ(2 * at <= n && n < 2 * at + static_cast<std::size_t>(len), std::isinf(joined[n]));
        }
    }
}

// -- Arrays -----------------------------------------------------------------------------------------------------------

// No read or write outside, at any address, and the same bits everywhere.
TEST(WaveletBankTest, StaysWithinItsArrays)
{
    for (const auto& [len, offs] : {Shape{1, 0}, Shape{1, -1}, Shape{2, 1}, Shape{3, -1}, Shape{8, 0}, Shape{9, 5}}) {
        const Filter filter = randomFilter(len, offs, 3);
        for (std::size_t count = 1; count < 44; count += count < 20 ? 1 : 5) {
            for (unsigned gap : {0u, 1u, 4u, 13u}) {
                for (bool atEnd : {false, true}) {
                    const Placement place = atEnd ? Placement::atEnd(gap) : Placement::atStart(gap);
                    const auto signal = randomSignal(2 * count, count);
                    const GuardedArray<float> src(signal, place);
                    GuardedArray<float> low(count, place);
                    GuardedArray<float> high(count, place);
                    const BankOwner split(forwardBanks()[0], filter, filter);
                    ASSERT_EQ(tarnStsNoErr, tarnsWTFwd_32f(src.data(), low.data(), high.data(), static_cast<int>(count),
                                                           split.get()));
                    const BankOwner again(forwardBanks()[0], filter, filter);
                    const Channels expected =
                        splitInCalls(forwardBanks()[0], again.get(), signal, {static_cast<int>(count)});
                    ASSERT_TRUE(arraysMatch(expected.low, low));
                    ASSERT_TRUE(arraysMatch(expected.high, high));

                    GuardedArray<Tarn16s> dst(2 * count, place);
                    const BankOwner join(inverseBanks()[4], filter, filter);
                    ASSERT_EQ(tarnStsNoErr, tarnsWTInv_32f16s(low.data(), high.data(), static_cast<int>(count),
                                                              dst.data(), join.get()));
                    GuardedArray<float> floats(2 * count, place);
                    const BankOwner joinFloats(inverseBanks()[0], filter, filter);
                    ASSERT_EQ(tarnStsNoErr, tarnsWTInv_32f(low.data(), high.data(), static_cast<int>(count),
                                                           floats.data(), joinFloats.get()));
                    const BankOwner joinAgain(inverseBanks()[0], filter, filter);
                    const auto joined =
                        joinInCalls(inverseBanks()[0], joinAgain.get(), expected, {static_cast<int>(count)});
                    for (std::size_t n = 0; n < 2 * count; ++n) {
                        ASSERT_EQ(static_cast<float>(joined[n]), floats.get(n));
                        ASSERT_EQ(static_cast<Tarn16s>(std::nearbyint(joined[n])), dst.get(n));
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace tarn::test
