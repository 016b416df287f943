// A decoder put together of the primitives: a trellis code through a noisy channel, whose bits it brings back.
#include "tarns/viterbi.h"

#include "model/trellis.h"
#include "support/hard_values.h"
#include "support/trellis_decoder.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn::test {
namespace {

using model::Bits;
using model::TrellisCode;

Bits randomBits(std::size_t symbols, std::uint64_t seed)
{
    Random random(seed);
    Bits bits(symbols * TrellisCode::bitsOfSymbol);
    for (Tarn8u& bit : bits)
        bit = static_cast<Tarn8u>(random.next() & 1);
    return bits;
}

/// Noise that is normal to four deviations or so, in units of the received points: the sum of twelve uniform numbers.
std::vector<Tarn16sc> throughChannel(std::vector<Tarn16sc> points, double deviation, std::uint64_t seed)
{
    Random random(seed);
    const auto noisy = [&](Tarn16s x) {
        double sum = -6;
        for (int i = 0; i < 12; ++i)
            sum += static_cast<double>(random.next() >> 11) * 0x1p-53;
        return static_cast<Tarn16s>(x + static_cast<int>(sum * deviation + 1000.5) - 1000);
    };
    for (Tarn16sc& point : points) {
        point.re = noisy(point.re);
        point.im = noisy(point.im);
    }
    return points;
}

/// How many points are nearer to another one than to that sent, which is what a receiver without the code decides for.
int wrongDecisions(const std::vector<Tarn16sc>& sent, const std::vector<Tarn16sc>& received)
{
    int wrong = 0;
    for (std::size_t i = 0; i < sent.size(); ++i)
        wrong += std::abs(sent[i].re - received[i].re) > 128 || std::abs(sent[i].im - received[i].im) > 128 ? 1 : 0;
    return wrong;
}

Bits decode(const TrellisCode& code, const std::vector<Tarn16sc>& received)
{
    TrellisDecoder decoder(code);
    Bits bits = decoder.decode(received);
    EXPECT_EQ(tarnStsNoErr, decoder.status());
    return bits;
}

int differing(const Bits& a, const Bits& b)
{
    EXPECT_EQ(a.size(), b.size());
    int count = 0;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        count += a[i] != b[i] ? 1 : 0;
    return count;
}

// One unit off the grid: with eight subsets two points exactly on it make an error wrap.
TEST(ViterbiDecoder, BringsBackTheBitsWithoutNoise)
{
    for (const int states : {16, 32, 64}) {
        const TrellisCode code(states);
        const Bits bits = randomBits(500, static_cast<std::uint64_t>(states));
        auto points = code.encode(bits);
        for (Tarn16sc& point : points)
            ++point.re;
        EXPECT_EQ(0, differing(bits, decode(code, points))) << states;
    }
    const TrellisCode code(16);
    const Bits bits = randomBits(500, 1);
    EXPECT_EQ(0, differing(bits, decode(code, code.encode(bits))));
}

TEST(ViterbiDecoder, TwoPointsOnTheGridMakeAnErrorWrap)
{
    const TrellisCode code(64);
    const Tarn16sc point = TrellisCode::pointAt(3, 5);
    Tarn16sc base;
    std::array<Tarn32u, 16> errors;
    std::array<Tarn32u, 32> table;
    for (std::size_t k = 0; k < 2; ++k)
        tarnsGetVarPointDV_16sc(&point, &base, &errors[8 * k], code.map.data(), 64);
    tarnsBuildSymblTableDV4D_16sc(errors.data(), table.data(), 64, 0);
    int below = 0;
    for (const Tarn32u entry : table)
        below += entry >> 16 == 0x8000 ? 1 : 0;
    EXPECT_EQ(1, below);
}

// At 27.8 dB (a deviation of 48 where points are 256 apart) one point in 70 is nearer to another one than to that
// sent. The code has twice the distance: what is beyond it is one in 10^7.
TEST(ViterbiDecoder, BringsBackTheBitsFromNoise)
{
    for (const int states : {16, 32, 64}) {
        const TrellisCode code(states);
        const Bits bits = randomBits(4000, static_cast<std::uint64_t>(states));
        const auto sent = code.encode(bits);
        const auto received = throughChannel(sent, 48, 7);
        EXPECT_LT(80, wrongDecisions(sent, received));
        EXPECT_EQ(0, differing(bits, decode(code, received))) << states;
    }
}

// Where one point in ten is wrong without the code, less than one bit in a hundred is with it.
TEST(ViterbiDecoder, IsBetterThanDecisionsWhereItErrs)
{
    for (const int states : {16, 32, 64}) {
        const TrellisCode code(states);
        const Bits bits = randomBits(4000, static_cast<std::uint64_t>(states));
        const auto sent = code.encode(bits);
        const auto received = throughChannel(sent, 66, 8);
        const int wrongBits = differing(bits, decode(code, received));
        EXPECT_LT(600, wrongDecisions(sent, received));
        EXPECT_LT(wrongBits, 600) << states;
    }
}

} // namespace
} // namespace tarn::test
