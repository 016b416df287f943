// Multi-rate filters against inserted zeros: all families, every phase, streams cut anywhere, threads.
#include "model/fir_rates.h"
#include "support/fir_tails.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <limits>

namespace tarn::test {
namespace {

// -- Filters with whole taps and samples ------------------------------------------------------------------------------

Numbers wholeNumbers(Random& random, int len, int magnitude, bool isComplex)
{
    Numbers values;
    const auto number = [&] {
        return static_cast<double>(random.below(static_cast<std::size_t>(2 * magnitude + 1))) - magnitude;
    };
    for (int i = 0; i < len; ++i)
        values.push_back({number(), isComplex ? number() : 0});
    return values;
}

struct Owner {
    const ErasedFir& fir;
    void* state = nullptr;

    Owner(const ErasedFir& family, const Numbers& taps, const Rates& rates, const Numbers* line = nullptr) : fir(family)
    {
        const auto lineBytes = line == nullptr ? std::vector<unsigned char>() : packed(fir.sample, *line);
        EXPECT_EQ(tarnStsNoErr, fir.initAlloc(&state, packed(fir.tap, taps).data(), rates,
                                              line == nullptr ? nullptr : lineBytes.data()))
            << fir.name;
    }
    ~Owner() { EXPECT_EQ(tarnStsNoErr, fir.free(state)); }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
};

struct Signal {
    Rates rates;
    Numbers taps, line, samples;

    Signal(const ErasedFir& fir, const Rates& r, int iterations, std::uint64_t seed) : rates(r)
    {
        Random random(seed);
        taps = wholeNumbers(random, r.taps, 8, fir.tap.isComplex);
        if (fir.isIntegerTap)
            taps[0].re = 8; // floats are scaled by their largest
        line = wholeNumbers(random, r.history(), 100, fir.sample.isComplex);
        samples = wholeNumbers(random, r.down * iterations, 100, fir.sample.isComplex);
    }
};

std::string text(const Rates& r)
{
    return std::to_string(r.taps) + " taps, up " + std::to_string(r.up) + " " + std::to_string(r.upPhase) + ", down " +
           std::to_string(r.down) + " " + std::to_string(r.downPhase);
}

// What a call has to give, whose exact sums those are.
Numbers asSamples(const ErasedFir& fir, const Rates& r, Numbers sums, int n, int scaleFactor, int threads)
{
    const bool rounds = fir.sample.integerBits != 0;
    const auto form = fir::formOf(r, !fir.isRealFloatTap());
    const bool singleRate = fir.isRealFloatTap() && r.up == 1 && r.down == 1;
    const long long tail = fir.isIntegerTap || singleRate
                               ? std::numeric_limits<long long>::max()
                               : fir::firstOfTail(r, form, n, fir.tap.isComplex ? 800 : 1600, threads);
    for (std::size_t i = 0; rounds && i < sums.size(); ++i)
        sums[i] = fir::asInteger(sums[i], fir.sample.integerBits, scaleFactor, static_cast<long long>(i) >= tail);
    return sums;
}

// Runs a signal cut into calls, each in arrays that end at unmapped pages, and compares all outputs and the delay line.
::testing::AssertionResult filtersLikeZeros(const ErasedFir& fir, const Signal& signal, const std::vector<int>& cuts,
                                            int scaleFactor = 0)
{
    const Rates& r = signal.rates;
    const Owner owner(fir, signal.taps, r, &signal.line);
    Numbers line = signal.line;
    std::size_t begin = 0;
    for (std::size_t c = 0; begin < signal.samples.size(); ++c) {
        const int n = std::min(cuts[c % cuts.size()], static_cast<int>(signal.samples.size() - begin) / r.down);
        const auto consumed = static_cast<std::size_t>(n) * static_cast<std::size_t>(r.down);
        const Numbers part(signal.samples.begin() + static_cast<std::ptrdiff_t>(begin),
                           signal.samples.begin() + static_cast<std::ptrdiff_t>(begin + consumed));
        const auto bytes = packed(fir.sample, part);
        const GuardedArray<unsigned char> src(bytes, Placement::atEnd());
        const auto outputs = static_cast<std::size_t>(n) * static_cast<std::size_t>(r.up);
        GuardedArray<unsigned char> dst(outputs * fir.sample.size, Placement::atEnd());
        if (const TarnStatus status = fir.filter(src.data(), dst.data(), n, owner.state, scaleFactor))
            return ::testing::AssertionFailure() << fir.name << ", " << text(r) << ": status " << status;
        const auto expected =
            asSamples(fir, r, fir::exactRates(signal.taps, line, part, r, n), n, scaleFactor, maxThreads());
        const auto actual = unpacked(fir.sample, dst.data(), outputs);
        for (std::size_t i = 0; i < outputs; ++i) {
            if (expected[i] != actual[i])
                return ::testing::AssertionFailure()
                       << fir.name << ", " << text(r) << ", call " << c << " of " << n << " iterations, output " << i
                       << ": " << actual[i].re << " " << actual[i].im << ", not " << expected[i].re << " "
                       << expected[i].im;
        }
        for (std::size_t i = 0; i < part.size(); ++i) {
            line.insert(line.begin(), part[i]);
            line.pop_back();
        }
        begin += consumed;
    }
    std::vector<unsigned char> left(line.size() * fir.sample.size);
    EXPECT_EQ(tarnStsNoErr, fir.getDlyLine(owner.state, left.data()));
    if (unpacked(fir.sample, left.data(), line.size()) != line)
        return ::testing::AssertionFailure() << fir.name << ", " << text(r) << ": delay line";
    return ::testing::AssertionSuccess();
}

// Every factor up to 12 with every phase of either kind; the families take turns.
TEST(FirRatesTest, EqualZerosInsertedAndResultsLeftOut)
{
    const auto& firs = erasedFirs();
    Random random(1);
    std::size_t turn = 0;
    for (int up = 1; up <= 12; ++up) {
        for (int down = 1; down <= 12; ++down) {
            for (int phase = 0; phase < up + down; ++phase) {
                for (int i = 0; i < 3; ++i, ++turn) {
                    const int taps = static_cast<int>(i == 0 ? 1 + random.below(8) : 1 + random.below(70));
                    const Rates r{taps, up, phase < up ? phase : static_cast<int>(random.below(std::size_t(up))), down,
                                  phase < up ? static_cast<int>(random.below(std::size_t(down))) : phase - up};
                    const ErasedFir& fir = firs[turn % firs.size()];
                    const Signal signal(fir, r, 30, turn);
                    ASSERT_TRUE(filtersLikeZeros(fir, signal, {1, 18, 2, 3, 6}, static_cast<int>(turn % 3)));
                }
            }
        }
    }
}

// Every family, in each form and on both sides of the choice, through the delay buffer alone and beyond it.
TEST(FirRatesTest, FiltersInEveryForm)
{
    for (const ErasedFir& fir : erasedFirs()) {
        for (const Rates& r : {Rates{5, 1, 0, 3, 1},
                               {9, 1, 0, 3, 2},
                               {10, 1, 0, 3, 0},
                               {5, 2, 1, 3, 2},
                               {3, 2, 0, 3, 1},
                               {64, 1, 0, 4, 3},
                               {64, 4, 3, 1, 0},
                               {1, 5, 4, 1, 0},
                               {2, 7, 3, 50, 49},
                               {100, 3, 1, 90, 7},
                               {40, 1, 0, 31, 30}}) {
            const auto form = fir::formOf(r);
            const int most = static_cast<int>((form.in + r.down - 1) / r.down);
            for (const std::vector<int>& cuts :
                 {std::vector<int>{1}, {most - 1, most, most + 1}, {4 * most}, {2, 40}}) {
                const Signal signal(fir, r, 4 * most + 9, 7);
                ASSERT_TRUE(filtersLikeZeros(fir, signal, {std::max(cuts[0], 1), cuts.back()}, 1));
            }
        }
    }
}

TEST(FirRatesTest, ConvertsBetweenAudioRates)
{
    const auto& firs = erasedFirs();
    for (std::size_t i = 0; i < firs.size(); ++i) {
        const ErasedFir& fir = firs[i];
        for (const Rates& r : {Rates{2560, 160, 0, 147, 0}, {300, 147, 146, 160, 159}, {200, 320, 7, 147, 3}})
            ASSERT_TRUE(filtersLikeZeros(fir, Signal(fir, r, 14, 3), {1, 5, 3}));
    }
    Random random(11);
    for (std::size_t i = 0; i < 400; ++i) {
        const auto any = [&](std::size_t bound) { return static_cast<int>(random.below(bound)); };
        Rates r{1 + any(400), 1 + any(100), 0, 1 + any(100), 0};
        r.upPhase = any(static_cast<std::size_t>(r.up));
        r.downPhase = any(static_cast<std::size_t>(r.down));
        ASSERT_TRUE(filtersLikeZeros(firs[i % firs.size()], Signal(firs[i % firs.size()], r, 13, i), {2, 11}));
    }
}

// -- Threads, rounding, hard values -----------------------------------------------------------------------------------

// The tail's halves are told from the others' also where a call is meant for several threads.
TEST(FirRatesTest, RoundsLastOutputsAwayForAnyNumberOfThreads)
{
    for (const ErasedFir& fir : erasedFirs()) {
        for (const Rates& r : {Rates{6, 3, 1, 2, 1}, {40, 1, 0, 2, 1}, {6, 1, 0, 5, 2}, {2, 3, 1, 5, 2}}) {
            const int fork = fir.tap.isComplex ? 800 : 1600;
            for (const int n : {fork, fork + 1, fork + 237}) {
                const Signal signal(fir, r, n, 5);
                for (const int threads : {1, 2, 4}) {
                    const ThreadsScope scope(threads);
                    ASSERT_TRUE(filtersLikeZeros(fir, signal, {n}, 1)) << threads << " threads";
                }
            }
        }
    }
}

// Calls that are worth several threads: whoever computes an output does it with the same bits, in the caller's rounding
// mode.
TEST(FirRatesTest, GivesTheSameBitsOnAnyNumberOfThreads)
{
    const RoundingModeScope mode(RoundingMode::up);
    for (const ErasedFir& fir : erasedFirs()) {
        if (fir.sample.integerBits != 0)
            continue; // their tails depend on the number
        for (const Rates& r : {Rates{64, 3, 1, 2, 1}, {60, 1, 0, 25, 1}}) {
            const int n = 12000;
            Random random(3);
            Numbers taps;
            for (int k = 0; k < r.taps; ++k)
                taps.push_back({random.unit() - 0.5, fir.tap.isComplex ? random.unit() - 0.5 : 0});
            Numbers samples;
            for (int k = 0; k < r.down * n; ++k)
                samples.push_back({random.unit() - 0.5, fir.sample.isComplex ? random.unit() - 0.5 : 0});
            const auto src = packed(fir.sample, samples);
            std::vector<unsigned char> expected;
            for (const int threads : {1, 2, 4}) {
                const ThreadsScope scope(threads);
                const Owner owner(fir, taps, r);
                std::vector<unsigned char> dst(fir.sample.size * static_cast<std::size_t>(r.up * n));
                const FpState before = FpState::current();
                ASSERT_EQ(tarnStsNoErr, fir.filter(src.data(), dst.data(), n, owner.state, 0));
                EXPECT_EQ("", before.changesSince());
                if (threads == 1)
                    expected = dst;
                ASSERT_TRUE(expected == dst) << fir.name << ", " << text(r) << ", " << threads << " threads";
            }
        }
    }
}

// An output is the sum in the order of time, in the type of the taps, wherever the signal is cut.
template <class T>
void expectSumsInOrder(const ErasedFir& fir)
{
    for (const Rates& r : {Rates{37, 3, 1, 2, 1}, {37, 1, 0, 3, 1}, {37, 1, 0, 25, 1}, {37, 4, 1, 90, 2}}) {
        const int n = 60;
        Random random(9);
        Numbers taps;
        for (int k = 0; k < r.taps; ++k)
            taps.push_back({static_cast<T>(random.unit() - 0.5), 0});
        Numbers samples;
        for (int k = 0; k < r.down * n; ++k)
            samples.push_back({static_cast<float>(random.unit() - 0.5), 0});
        const auto src = packed(fir.sample, samples);
        std::vector<T> expected;
        for (int m = 0; m < r.up * n; ++m) {
            const int time = m * r.down + r.downPhase - r.upPhase;
            T sum = 0;
            for (int k = r.taps - 1; k >= 0; --k) {
                if ((time - k) % r.up == 0 && time - k >= 0)
                    sum += static_cast<T>(samples[static_cast<std::size_t>((time - k) / r.up)].re) *
                           static_cast<T>(taps[static_cast<std::size_t>(k)].re);
            }
            expected.push_back(sum);
        }
        for (const int call : {n, 7, 1}) {
            const Owner owner(fir, taps, r);
            std::vector<unsigned char> dst(fir.sample.size * static_cast<std::size_t>(r.up * n));
            for (int i = 0; i < n; i += call)
                fir.filter(&src[fir.sample.size * static_cast<std::size_t>(r.down * i)],
                           &dst[fir.sample.size * static_cast<std::size_t>(r.up * i)], std::min(call, n - i),
                           owner.state, 0);
            const auto actual = unpacked(fir.sample, dst.data(), expected.size());
            for (std::size_t i = 0; i < expected.size(); ++i) {
                const double y =
                    fir.sample.size == 4 ? static_cast<float>(expected[i]) : static_cast<double>(expected[i]);
                ASSERT_EQ(y, actual[i].re) << fir.name << ", " << text(r) << ", calls of " << call << ", output " << i;
            }
        }
    }
}

const ErasedFir& familyOf(const std::string& name)
{
    for (const ErasedFir& fir : erasedFirs())
        if (fir.name == name)
            return fir;
    ADD_FAILURE() << "no family " << name;
    std::abort();
}

TEST(FirRatesTest, AddsProductsInTheOrderOfTime)
{
    expectSumsInOrder<float>(familyOf("_32f"));
    expectSumsInOrder<double>(familyOf("_64f"));
    expectSumsInOrder<double>(familyOf("64f_32f"));
}

// Main kernel and tail handler saturate and treat NaN alike, at any scale.
TEST(FirRatesTest, SaturatesAlikeInMainAndTail)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const ErasedFir& fir : erasedFirs()) {
        if (!fir.scaled || fir.isIntegerTap)
            continue;
        for (const Rates& r : {Rates{1, 1, 0, 2, 0}, {8, 1, 0, 2, 0}, {1, 2, 0, 3, 0}}) {
            for (const double gain : {1e3, 4e9, 1e20, infinity, -infinity, std::nan("")}) {
                Numbers taps(static_cast<std::size_t>(r.taps));
                taps[0].re = gain;
                const int n = 41;
                Numbers samples(static_cast<std::size_t>(n * r.down), Number{100, 0});
                const Owner owner(fir, taps, r);
                const auto src = packed(fir.sample, samples);
                std::vector<unsigned char> dst(fir.sample.size * static_cast<std::size_t>(r.up * n));
                for (const int scale : {-200, -3, 0, 3, 200}) {
                    ASSERT_EQ(tarnStsNoErr, fir.filter(src.data(), dst.data(), n, owner.state, scale));
                    const auto outputs = unpacked(fir.sample, dst.data(), static_cast<std::size_t>(r.up * n));
                    const double expected = fir::asInteger(100 * gain, fir.sample.integerBits, scale, false);
                    for (std::size_t i = 0; i < outputs.size(); i += static_cast<std::size_t>(r.up))
                        ASSERT_EQ(expected, outputs[i].re)
                            << fir.name << ", gain " << gain << ", scale " << scale << ", output " << i;
                }
            }
        }
    }
}

// The one sample that a kernel may read behind the last one is no NaN of an earlier call.
TEST(FirRatesTest, MultipliesNothingThatIsNotASample)
{
    for (const ErasedFir& fir : erasedFirs()) {
        if (fir.sample.integerBits != 0)
            continue;
        for (int up = 1; up <= 5; ++up) {
            for (int taps = 1; taps <= 12; ++taps) {
                const Rates r{taps, up, up - 1, 2, 1};
                if (up == 1 && taps < 3)
                    continue;
                const Owner owner(fir, Numbers(static_cast<std::size_t>(taps), Number{1, 0}), r);
                const Numbers bad(16, Number{std::nan(""), 0});
                std::vector<unsigned char> dst(fir.sample.size * 40);
                const auto spoiled = packed(fir.sample, bad);
                fir.filter(spoiled.data(), dst.data(), 4, owner.state, 0);
                fir.setDlyLine(owner.state, nullptr);
                const auto ones = packed(fir.sample, Numbers(16, Number{1, 0}));
                for (int n = 1; n <= 4; ++n) {
                    fir.filter(ones.data(), dst.data(), n, owner.state, 0);
                    for (const Number& y : unpacked(fir.sample, dst.data(), static_cast<std::size_t>(n * up)))
                        ASSERT_FALSE(std::isnan(y.re)) << fir.name << ", " << text(r) << ", " << n << " iterations";
                }
            }
        }
    }
}

// -- In place ---------------------------------------------------------------------------------------------------------

TEST(FirRatesTest, FiltersInPlace)
{
    for (const ErasedFir& fir : erasedFirs()) {
        for (const Rates& r :
             {Rates{7, 3, 1, 2, 1}, {7, 2, 1, 3, 1}, {9, 1, 0, 1, 0}, {20, 1, 0, 3, 2}, {5, 1, 0, 4, 2}}) {
            for (const int n : {1, 2, 50, 4097, 8200, 9000}) {
                if (n > 50 && r.up != 1 && n != 4097)
                    continue;
                const Signal signal(fir, r, n, 2);
                const auto room = static_cast<std::size_t>(std::max(r.up, r.down) * n) * fir.sample.size;
                auto bytes = packed(fir.sample, signal.samples);
                bytes.resize(room);
                GuardedArray<unsigned char> data(bytes, Placement::atEnd());
                // Outputs of one part after the other, where one output takes the place of several samples.
                const bool whole = r.up != 1 || fir.isIntegerTap || (fir.isRealFloatTap() && r.down == 1);
                const int part = whole ? n : fir.tap.size == fir.sample.size ? 4096 : 8192;
                const Owner copy(fir, signal.taps, r);
                for (int i = 0; i < n; i += part) {
                    const auto at = static_cast<std::size_t>(i) * fir.sample.size;
                    const int count = std::min(part, n - i);
                    std::vector<unsigned char> out(static_cast<std::size_t>(count * r.up) * fir.sample.size);
                    fir.filter(&bytes[at], out.data(), count, copy.state, 2);
                    std::memcpy(&bytes[at], out.data(), out.size());
                }
                const Owner owner(fir, signal.taps, r);
                ASSERT_EQ(tarnStsNoErr, fir.inPlace(data.data(), n, owner.state, 2));
                const std::size_t outputs = static_cast<std::size_t>(r.up * n) * fir.sample.size;
                ASSERT_EQ(0, std::memcmp(bytes.data(), data.data(), outputs))
                    << fir.name << ", " << text(r) << ", " << n << " iterations";
            }
        }
    }
}

} // namespace
} // namespace tarn::test
