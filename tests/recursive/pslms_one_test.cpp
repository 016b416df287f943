// Adaptive filters of one sample a call, without a state: those in floating point, and the normalised one in Q15.
#include "support/lms_tails.h"

#include <climits>
#include <cstring>

namespace tarn::test {
namespace {

TYPED_TEST_SUITE(LmsTest, LmsFamilies);

// -- Floating point ---------------------------------------------------------------------------------------------------

TYPED_TEST(LmsTest, FiltersOneSampleWithoutAState)
{
    using S = typename TestFixture::S;
    for (int n : lmsTapLens) {
        const auto count = static_cast<std::size_t>(n);
        auto natural = this->taps(count, 1);
        for (Tarn32f& tap : natural)
            tap *= static_cast<Tarn32f>(this->f.scale);
        const auto ring = this->signal(count, 2);
        const unsigned odd = static_cast<unsigned>(n) % 4;
        GuardedArray<Tarn32f> taps(std::vector<Tarn32f>(natural.rbegin(), natural.rend()), Placement::atEnd(odd));
        GuardedArray<S> line(2 * count, Placement::atEnd(odd));
        for (std::size_t i = 0; i < 2 * count; ++i)
            line.set(i, ring[i % count]);
        GuardedArray<int> index(1, Placement::atEnd(odd));
        GuardedArray<S> dst(1, Placement::atEnd(odd));
        index.set(0, n - 1);
        const Tarn32f mu = this->stepFor(count) * static_cast<Tarn32f>(this->f.scale * this->f.scale);
        auto model = this->modelOf(natural, ring, n - 1, 1, 2 * mu);
        const auto src = this->signal(60, 3), ref = this->signal(60, 4);
        for (std::size_t i = 0; i < src.size(); ++i) {
            ASSERT_EQ(tarnStsNoErr,
                      this->f.one(src[i], ref[i], dst.data(), taps.data(), n, mu, line.data(), index.data()));
            ASSERT_NO_FATAL_FAILURE(this->expectOutput(model.next(src[i], ref[i]), dst.get(0), std::to_string(n)));
            ASSERT_EQ(static_cast<int>(model.ring.oldest()), index.get(0));
        }
        for (std::size_t k = 0; k < count; ++k)
            ASSERT_NEAR(static_cast<double>(model.taps[k]), taps.get(k), static_cast<double>(model.tapsOff));
        for (std::size_t i = 0; i < 2 * count; ++i)
            ASSERT_EQ(static_cast<S>(model.ring.places()[i % count]), line.get(i));
    }
}

TEST(LmsOneTest, RoundsOutputsInTheCallersModeAndLimitsThem)
{
    expectLimitedOutputs([](Tarn32f sum) {
        Tarn32f tap = sum;
        Tarn16s line[2] = {};
        int index = 0;
        Tarn16s out = 77;
        EXPECT_EQ(tarnStsNoErr, tarnsFIRLMSOne_Direct32f_16s(1, 1, &out, &tap, 1, 0, line, &index));
        return out;
    });
}

// -- Q15 --------------------------------------------------------------------------------------------------------------

// A filter of the caller's, and what the rule makes of it.
struct Normalised {
    GuardedArray<Tarn32s> taps;
    GuardedArray<Tarn16s> line;
    GuardedArray<int> index;
    GuardedArray<Tarn16s> dst;
    std::vector<Tarn32s> modelTaps;
    model::Ring<Tarn16s> ring;

    Normalised(const std::vector<Tarn32s>& given, unsigned gap)
        : taps(given, Placement::atEnd(gap)), line(2 * given.size(), Placement::atEnd(gap)),
          index(1, Placement::atEnd(gap)), dst(1, Placement::atEnd(gap)), modelTaps(given),
          ring(std::vector<Tarn16s>(given.size()), 0)
    {
        std::memset(line.bytes(), 0, line.byteSize());
        index.set(0, 0);
        dst.set(0, 77);
    }

    void step(Tarn16s src, Tarn16s ref, int mu)
    {
        const Tarn16s before = dst.get(0);
        const auto n = modelTaps.size();
        ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSOne_DirectQ15_16s(src, ref, dst.data(), taps.data(), static_cast<int>(n), mu,
                                                             line.data(), index.data()));
        ring.enter(src);
        std::int64_t sum = 0, squares = 0; // what these taps and windows give fits 53 bits
        for (std::size_t j = 0; j < n; ++j) {
            sum += std::int64_t{modelTaps[j]} * ring.at(j);
            squares += std::int64_t{ring.at(j)} * ring.at(j);
        }
        Tarn16s expected = before;
        if (squares != 0) {
            const double acc = static_cast<double>(sum) * 0x1p-15;
            const double whole = std::floor(acc), rest = acc - whole;
            const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0);
            expected = static_cast<Tarn16s>(std::clamp(whole + (up ? 1 : 0), -32768.0, 32767.0));
            const double g = mu * (ref - acc) / static_cast<double>(squares);
            for (std::size_t j = 0; j < n; ++j) {
                const double tap = std::min(modelTaps[j] + ring.at(j) * g, 2147483647.0);
                modelTaps[j] = tap < -2147483648.0 ? INT_MIN : static_cast<Tarn32s>(std::nearbyint(tap));
            }
        }
        ASSERT_EQ(expected, dst.get(0));
        ASSERT_TRUE(arraysMatch(modelTaps, taps));
        ASSERT_EQ(static_cast<int>(ring.oldest()), index.get(0));
        for (std::size_t i = 0; i < 2 * n; ++i)
            ASSERT_EQ(ring.places()[i % n], line.get(i));
    }
};

TEST(LmsQ15Test, FollowsTheRule)
{
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (int n : {1, 2, 3, 4, 5, 8, 13, 15, 16, 17, 33, 127, 128, 129, 200}) {
            const auto count = static_cast<std::size_t>(n);
            std::vector<Tarn32s> taps = randomValues<Tarn32s>(count, 1, Values::random);
            for (Tarn32s& tap : taps)
                tap >>= 15 + n / 16;
            Normalised filter(taps, static_cast<unsigned>(n) % 4);
            const auto src = randomValues<Tarn16s>(24, 2, Values::mixed);
            const auto ref = randomValues<Tarn16s>(24, 3, Values::mixed);
            for (std::size_t i = 0; i < src.size(); ++i)
                ASSERT_NO_FATAL_FAILURE(filter.step(src[i], ref[i], i % 3 == 0 ? -700 : 16384))
                    << n << " taps, mode " << static_cast<int>(mode) << ", sample " << i;
        }
    }
}

TEST(LmsQ15Test, LeavesAllAsItIsInSilence)
{
    for (int n : {1, 15, 16, 128, 129}) {
        Normalised filter(std::vector<Tarn32s>(static_cast<std::size_t>(n), 40000), 0);
        for (int i = 0; i < 3; ++i)
            ASSERT_NO_FATAL_FAILURE(filter.step(0, 100, 32768));
        EXPECT_EQ(77, filter.dst.get(0)) << "there is no output";
        ASSERT_NO_FATAL_FAILURE(filter.step(1, 100, 32768));
        EXPECT_EQ(1, filter.dst.get(0)) << "40000 2^-15 is 1.22";
    }
}

TEST(LmsQ15Test, RoundsAndLimits)
{
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        // Ties of the output, its limits, and taps that leave 32 bits at either end.
        for (Tarn32s tap : {16384, 49152, 81920, -16384, -49152, 16385, -16385, 16383, INT_MAX, INT_MIN, 1073758207})
            for (Tarn16s x : {Tarn16s{1}, Tarn16s{-1}, Tarn16s{3}, Tarn16s{32767}, Tarn16s{-32768}})
                for (int mu : {0, 32768, INT_MAX, INT_MIN})
                    for (int n : {1, 4, 6, 16}) {
                        std::vector<Tarn32s> taps(static_cast<std::size_t>(n), tap);
                        Normalised filter(taps, 0);
                        ASSERT_NO_FATAL_FAILURE(filter.step(x, -20000, mu)) << tap << ", " << x << ", " << mu;
                    }
    }
}

// Two squares of the lowest sample are one more than a signed integer holds.
TEST(LmsQ15Test, AddsUpTheSquaresOfLowestSamples)
{
    for (int n : {2, 7, 8, 9, 16, 40, 129}) {
        Normalised filter(std::vector<Tarn32s>(static_cast<std::size_t>(n), 500), 0);
        for (int i = 0; i < n + 3; ++i)
            ASSERT_NO_FATAL_FAILURE(filter.step(-32768, 100, 16384)) << n << " taps, sample " << i;
    }
}

// A step of 1 makes the error of the same window zero.
TEST(LmsQ15Test, ConvergesAtAnyPower)
{
    for (int shift : {0, 6}) {
        const auto noise = randomValues<Tarn16s>(4000, 2, Values::random);
        const Tarn32s system[] = {9000, -20000, 3000, 700, -12000, 0, 500, 60};
        Normalised filter(std::vector<Tarn32s>(8), 0);
        double late = 0;
        for (std::size_t i = 8; i < noise.size(); ++i) {
            double y = 0;
            for (std::size_t k = 0; k < 8; ++k)
                y += system[7 - k] * (noise[i - k] >> (shift + 2)) / 32768.0;
            const auto ref = static_cast<Tarn16s>(std::lrint(y));
            ASSERT_NO_FATAL_FAILURE(filter.step(static_cast<Tarn16s>(noise[i] >> (shift + 2)), ref, 16384));
            if (i > 3000)
                late = std::max(late, std::fabs(static_cast<double>(filter.dst.get(0)) - ref));
        }
        EXPECT_LE(late, 2) << "shift " << shift;
    }
}

// -- Checks -----------------------------------------------------------------------------------------------------------

/// Every fault alone and with those behind it.
template <class T, class S, class M>
void expectOneChecks(TarnStatus (*one)(S, S, S*, T*, int, M, S*, int*))
{
    for (int faults = 1; faults < 64; ++faults) {
        S dst = 5, line[8] = {1, 2, 3, 4, 1, 2, 3, 4};
        T taps[4] = {1, 2, 3, 4};
        const bool isShort = (faults & 16) != 0, isBeyond = (faults & 32) != 0;
        for (int wrong : {4, -1, INT_MAX, INT_MIN}) {
            int index = isBeyond ? wrong : 2;
            const int before = index;
            const TarnStatus expected = (faults & 15) != 0 ? tarnStsNullPtrErr
                                        : isShort          ? tarnStsSizeErr
                                                           : tarnStsDlyLineIndexErr;
            EXPECT_EQ(expected,
                      one(1, 1, (faults & 1) != 0 ? nullptr : &dst, (faults & 2) != 0 ? nullptr : taps, isShort ? 0 : 4,
                          M{1}, (faults & 4) != 0 ? nullptr : line, (faults & 8) != 0 ? nullptr : &index))
                << faults;
            EXPECT_EQ(before, index);
        }
        EXPECT_EQ(S{5}, dst);
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(static_cast<T>(i + 1), taps[i]);
            EXPECT_EQ(static_cast<S>(i + 1), line[i]);
        }
    }
}

TEST(LmsOneTest, ChecksItsArguments)
{
    expectOneChecks(tarnsFIRLMSOne_Direct_32f);
    expectOneChecks(tarnsFIRLMSOne_Direct32f_16s);
    expectOneChecks(tarnsFIRLMSOne_DirectQ15_16s);
}

} // namespace
} // namespace tarn::test
