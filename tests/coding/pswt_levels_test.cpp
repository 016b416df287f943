// Wavelet banks that join what they split: wavelets in streams cut anywhere, delays of offsets and levels, the numbers
// of the manual.
#include "support/wavelet_banks.h"

#include <fstream>
#include <sstream>
#include <string>

namespace tarn::test {
namespace {

using wavelet::Filter;

// -- Reconstruction ---------------------------------------------------------------------------------------------------

// Low-pass filters of analysis and synthesis; the high-pass ones follow from them by alternating signs.
struct Wavelet {
    const char* name;
    std::vector<double> analysis, synthesis;
};

const double haar = std::sqrt(0.5);

std::vector<double> reversed(std::vector<double> taps)
{
    std::reverse(taps.begin(), taps.end());
    return taps;
}

Wavelet orthogonal(const char* name, std::vector<double> taps) { return {name, taps, reversed(taps)}; }

std::vector<Wavelet> wavelets()
{
    const double r = std::sqrt(3.0);
    const double d = 4 * std::sqrt(2.0);
    return {
        orthogonal("Haar", {haar, haar}),
        orthogonal("Daubechies 4", {(1 + r) / d, (3 + r) / d, (3 - r) / d, (1 - r) / d}),
        orthogonal("Daubechies 8",
                   {0.23037781330889650, 0.71484657055291565, 0.63088076792985890, -0.02798376941685985,
                    -0.18703481171909309, 0.03084138183556076, 0.03288301166688520, -0.01059740178506903}),
        {"biorthogonal 5/3", {-0.125, 0.25, 0.75, 0.25, -0.125}, {0.5, 1, 0.5}},
        {"biorthogonal 9/7",
         {0.026748757410810, -0.016864118442875, -0.078223266528990, 0.266864118442875, 0.602949018236360,
          0.266864118442875, -0.078223266528990, -0.016864118442875, 0.026748757410810},
         {-0.091271763114250, -0.057543526228500, 0.591271763114250, 1.115087052457000, 0.591271763114250,
          -0.057543526228500, -0.091271763114250}},
    };
}

struct Bank {
    Filter analysisLow, analysisHigh, synthesisLow, synthesisHigh;
    int delay = 0;
};

Filter filterOf(const std::vector<double>& taps, bool alternates, double sign)
{
    Filter filter;
    for (std::size_t j = 0; j < taps.size(); ++j)
        filter.taps.push_back(static_cast<float>(sign * (alternates && j % 2 == 1 ? -taps[j] : taps[j])));
    return filter;
}

// With H1(z) = G0(-z) and G1(z) = -H0(-z) what is folded over cancels, and of the rest P(z) - P(-z) remains, P(z) =
// H0(z) G0(z): twice its middle tap.
Bank bankOf(const Wavelet& wavelet)
{
    Bank bank{filterOf(wavelet.analysis, false, 1), filterOf(wavelet.synthesis, true, 1),
              filterOf(wavelet.synthesis, false, 1), filterOf(wavelet.analysis, true, -1), 0};
    bank.delay = (bank.analysisLow.len() + bank.synthesisLow.len()) / 2 - 1;
    return bank;
}

TEST(WaveletBankTest, ReconstructsStreamsCutAnywhere)
{
    const auto signal = randomSignal(2 * 3000, 11);
    const std::vector<Cuts> joinCuts = {{3000}, {3, 100, 1}, {1}, {64, 7}, {600, 2, 2}};
    for (const Wavelet& wavelet : wavelets()) {
        for (std::size_t i = 0; i < cutLists.size(); ++i) {
            const Bank bank = bankOf(wavelet);
            const BankOwner split(forwardBanks()[0], bank.analysisLow, bank.analysisHigh);
            const BankOwner join(inverseBanks()[0], bank.synthesisLow, bank.synthesisHigh);
            const Channels channels = splitInCalls(forwardBanks()[0], split.get(), signal, cutLists[i]);
            const auto out = joinInCalls(inverseBanks()[0], join.get(), channels, joinCuts[i]);
            const auto delay = static_cast<std::size_t>(bank.delay);
            // Taps are rounded to single precision, as are a sum of each direction and each of its products.
            for (std::size_t n = 0; n < out.size(); ++n)
                ASSERT_NEAR(n < delay ? 0 : signal[n - delay], out[n], 2e-6) << wavelet.name << ", sample " << n;
        }
    }
}

// Delays of one channel in the forward bank are made good by delays of the other one in the inverse; an advance by one
// in both channels by an offset of 1.
TEST(WaveletBankTest, ReconstructsWithOffsets)
{
    const auto signal = randomSignal(2 * 500, 12);
    struct Offsets {
        int splitLow, splitHigh, joinLow, joinHigh, extra;
    };
    for (const Wavelet& wavelet : wavelets()) {
        for (const Offsets& o : {Offsets{2, 0, 0, 2, 2}, Offsets{0, 6, 6, 0, 6}, Offsets{-1, -1, 1, 1, 0},
                                 Offsets{1, 1, 3, 3, 4}, Offsets{3, 1, 1, 3, 4}, Offsets{-1, 1, 3, 1, 2}}) {
            Bank bank = bankOf(wavelet);
            bank.analysisLow.offs = o.splitLow;
            bank.analysisHigh.offs = o.splitHigh;
            bank.synthesisLow.offs = o.joinLow;
            bank.synthesisHigh.offs = o.joinHigh;
            const BankOwner split(forwardBanks()[0], bank.analysisLow, bank.analysisHigh);
            const BankOwner join(inverseBanks()[0], bank.synthesisLow, bank.synthesisHigh);
            const Channels channels = splitInCalls(forwardBanks()[0], split.get(), signal, {17, 1, 64});
            const auto out = joinInCalls(inverseBanks()[0], join.get(), channels, {5, 100});
            const auto delay = static_cast<std::size_t>(bank.delay + o.extra);
            for (std::size_t n = 0; n < out.size(); ++n)
                ASSERT_NEAR(n < delay ? 0 : signal[n - delay], out[n], 2e-6) << wavelet.name << ", sample " << n;
        }
    }
}

TEST(WaveletBankTest, BringsIntegerSamplesBack)
{
    for (std::size_t type = 1; type < forwardBanks().size(); ++type) {
        const ForwardBank& forward = forwardBanks()[type];
        const auto signal = signalFor(forward, 2 * 700, type);
        for (const Wavelet& wavelet : wavelets()) {
            const Bank bank = bankOf(wavelet);
            const BankOwner split(forward, bank.analysisLow, bank.analysisHigh);
            const BankOwner join(inverseBanks()[type], bank.synthesisLow, bank.synthesisHigh);
            const auto out = joinInCalls(inverseBanks()[type], join.get(),
                                         splitInCalls(forward, split.get(), signal, {600, 7}), {40, 513});
            const auto delay = static_cast<std::size_t>(bank.delay);
            for (std::size_t n = 0; n < out.size(); ++n)
                ASSERT_EQ(n < delay ? 0 : signal[n - delay], out[n]) << forward.name << ", " << wavelet.name;
        }
    }
}

// -- The manual's example ---------------------------------------------------------------------------------------------

// The numbers behind a mark in the page, row by row.
std::vector<std::vector<float>> numbersOf(const std::string& mark)
{
    std::ifstream page(TARNS_SOURCE_DIR "/docs/wavelets.md");
    std::vector<std::vector<float>> rows;
    std::string line;
    while (std::getline(page, line) && line.find("<!-- numbers: " + mark) == std::string::npos) {
    }
    while (std::getline(page, line) && line.rfind("    ", 0) == 0) {
        std::istringstream words(line.substr(line.find(':') == std::string::npos ? 0 : line.find(':') + 1));
        rows.emplace_back();
        for (float number; words >> number;)
            rows.back().push_back(number);
    }
    return rows;
}

std::vector<float> toFloats(const std::vector<double>& values) { return {values.begin(), values.end()}; }

TEST(WaveletBankTest, ComputesTheExampleOfTheManual)
{
    const auto signal = numbersOf("x -->");
    const auto bands = numbersOf("low1");
    const auto joined = numbersOf("joined3");
    ASSERT_EQ(1U, signal.size());
    ASSERT_EQ(6U, bands.size());
    ASSERT_EQ(3U, joined.size());
    ASSERT_EQ(16U, signal[0].size());

    const ForwardBank& forward = forwardBanks()[0];
    const Filter mean{{0.5f, 0.5f}, 0};
    const Filter difference{{0.5f, -0.5f}, 0};
    std::vector<float> from = signal[0];
    for (std::size_t level = 0; level < 3; ++level) {
        const BankOwner state(forward, mean, difference);
        const Channels out = splitInCalls(forward, state.get(), from, {100});
        EXPECT_EQ(bands[2 * level], out.low);
        EXPECT_EQ(bands[2 * level + 1], out.high);
        from = out.low;
    }
    const InverseBank& inverse = inverseBanks()[0];
    for (std::size_t level = 3; level-- > 0;) {
        const int late = (1 << (2 - level)) - 1;
        const BankOwner state(inverse, {{1, 1}, 0}, {{-1, 1}, 2 * late});
        from = toFloats(joinInCalls(inverse, state.get(), {from, bands[2 * level + 1]}, {1}));
        EXPECT_EQ(joined[2 - level], from);
    }
    EXPECT_EQ(std::vector<float>(signal[0].begin(), signal[0].begin() + 9),
              std::vector<float>(from.begin() + 7, from.end()));
}

// Three levels of any wavelet, with the offsets and delays of the manual's table; an advance in the forward bank takes
// one off.
TEST(WaveletBankTest, DelaysEachLevelAsTheManualSays)
{
    constexpr int levels = 3;
    const auto signal = randomSignal(8 * 200, 21);
    for (const Wavelet& wavelet : wavelets()) {
        for (int advance : {0, 1}) {
            Bank bank = bankOf(wavelet);
            bank.analysisLow.offs = bank.analysisHigh.offs = -advance;
            const int delay = bank.delay - advance;
            std::vector<float> from = signal;
            std::vector<std::vector<float>> high;
            for (int level = 0; level < levels; ++level) {
                const BankOwner state(forwardBanks()[0], bank.analysisLow, bank.analysisHigh);
                Channels out = splitInCalls(forwardBanks()[0], state.get(), from, {8, 24, 16});
                high.push_back(out.high);
                from = out.low;
            }
            for (int below = 0; below < levels; ++below) {
                bank.synthesisHigh.offs = 2 * ((1 << below) - 1) * delay;
                const BankOwner state(inverseBanks()[0], bank.synthesisLow, bank.synthesisHigh);
                from = toFloats(joinInCalls(inverseBanks()[0], state.get(), {from, high.back()}, {11, 30}));
                high.pop_back();
            }
            const auto whole = static_cast<std::size_t>(((1 << levels) - 1) * delay);
            for (std::size_t n = 0; n < from.size(); ++n)
                ASSERT_NEAR(n < whole ? 0 : signal[n - whole], from[n], 6e-6) << wavelet.name << ", sample " << n;
        }
    }
}

} // namespace
} // namespace tarn::test
