// States of wavelet banks: fields and delay lines.
#include "levels/coding/pswt.h"
#include "support/compare.h"
#include "support/wavelet_banks.h"

namespace tarn::test {
namespace {

using wavelet::Filter;

std::vector<float> lineOf(int len, std::uint64_t seed)
{
    return randomSignal(static_cast<std::size_t>(std::max(len, 0)), seed);
}

// -- Fields -----------------------------------------------------------------------------------------------------------

TEST(WaveletStateTest, LaysOutTheForwardState)
{
    for (const ForwardBank& bank : forwardBanks()) {
        const BankOwner state(bank, three, four);
        const bool converts = bank.sampleBytes < sizeof(float);
        EXPECT_EQ(bank.tag, *reinterpret_cast<const Tarn32s*>(state.get()));
        EXPECT_EQ(bank.tag, state->tag);
        EXPECT_EQ(converts, state->pScratch != nullptr);
        EXPECT_EQ(converts ? 1024 : 0, state->scratchLen);
        const ConvDown2Offset& low = *state->pLow;
        EXPECT_EQ(4, low.dlyLen);
        EXPECT_EQ(2, low.pOffsetLine->len);
        EXPECT_EQ(0, low.pConv->phase);
        EXPECT_EQ(3, low.pConv->len);
        EXPECT_EQ(3, low.pConv->pLine->len);
        EXPECT_EQ(3, low.pConv->pKernel->len);
        EXPECT_TRUE(arraysMatch<float>(three.taps.data(), low.pConv->pKernel->pTaps, 3));
        const float reversed[] = {3, 2, 1};
        EXPECT_TRUE(arraysMatch<float>(reversed, low.pConv->pReversed, 3));
        const ConvDown2Offset& high = *state->pHigh;
        EXPECT_EQ(3, high.dlyLen); // one more than is ever moved
        EXPECT_EQ(nullptr, high.pOffsetLine);
        EXPECT_EQ(1, high.pConv->phase);
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(0.0f, high.pConv->pLine->pBuffer[i]);

        int lenLow = 0;
        int lenHigh = 0;
        WTFwdBaseGetDlyLen_32f(state.get(), &lenLow, &lenHigh);
        EXPECT_EQ(4, lenLow);
        EXPECT_EQ(3, lenHigh);
        float tapsLow[3];
        float tapsHigh[4];
        WTFwdBaseGetFiltTaps_32f(state.get(), tapsLow, tapsHigh);
        EXPECT_TRUE(arraysMatch<float>(three.taps.data(), tapsLow, 3));
        EXPECT_TRUE(arraysMatch<float>(four.taps.data(), tapsHigh, 4));
    }
}

TEST(WaveletStateTest, LaysOutTheInverseState)
{
    for (const InverseBank& bank : inverseBanks()) {
        const BankOwner state(bank, three, four);
        const bool converts = bank.sampleBytes < sizeof(float);
        EXPECT_EQ(bank.tag, *reinterpret_cast<const Tarn32s*>(state.get()));
        EXPECT_EQ(converts, state->pScratch != nullptr);
        EXPECT_EQ(converts ? 1024 : 0, state->scratchLen);
        const Up2ConvOffset& low = *state->pLow;
        EXPECT_EQ(2, low.dlyLen);
        EXPECT_EQ(1, low.pOffsetLine->len);
        EXPECT_EQ(0, up2ConvGetPhase_32f(low.pConv));
        EXPECT_EQ(3, low.pConv->len);
        EXPECT_EQ(2, low.pConv->pLine->len);
        EXPECT_EQ(2, low.pConv->evenLen);
        EXPECT_EQ(1, low.pConv->oddLen);
        const float even[] = {3, 1};
        EXPECT_TRUE(arraysMatch<float>(even, low.pConv->pEven, 2));
        EXPECT_EQ(2.0f, low.pConv->pOdd[0]);
        const Up2ConvOffset& high = *state->pHigh;
        EXPECT_EQ(1, high.dlyLen);
        EXPECT_EQ(nullptr, high.pOffsetLine);
        EXPECT_EQ(1, up2ConvGetPhase_32f(high.pConv));
    }
    // (-1 + 1 - 1) / 2 rounded down; an offset of 1 has a phase and no line, one of 2 a line and no phase.
    const BankOwner state(inverseBanks()[0], {{1}, -1}, {{1}, 1});
    EXPECT_EQ(-1, state->pLow->dlyLen);
    EXPECT_EQ(0, state->pHigh->dlyLen);
    EXPECT_EQ(nullptr, state->pHigh->pOffsetLine);
    EXPECT_EQ(1, up2ConvGetPhase_32f(state->pHigh->pConv));
    EXPECT_EQ(nullptr, state->pHigh->pConv->pOdd);
}

TEST(WaveletStateTest, TurnsOneSampleIntoAPair)
{
    const BankOwner state(inverseBanks()[0], {{1, 10, 100}, 0}, {{1, 10, 100, 1000}, 1});
    Up2Conv* const low = state->pLow->pConv;
    float pair[2];
    up2ConvPair_32f(low, 1, pair);
    EXPECT_EQ(1.0f, pair[0]);
    EXPECT_EQ(10.0f, pair[1]);
    up2ConvPair_32f(low, 2, pair);
    EXPECT_EQ(102.0f, pair[0]);
    EXPECT_EQ(20.0f, pair[1]);
    Up2Conv* const high = state->pHigh->pConv;
    up2ConvPair_32f(high, 1, pair);
    EXPECT_EQ(0.0f, pair[0]);
    EXPECT_EQ(1.0f, pair[1]);
    up2ConvPair_32f(high, 2, pair);
    EXPECT_EQ(10.0f, pair[0]);
    EXPECT_EQ(102.0f, pair[1]);
    // Halves of pairs: a lone output turns the phase.
    float three[3] = {};
    up2ConvSetPhase_32f(high, 0);
    const float in[] = {3, 4};
    EXPECT_EQ(2, up2ConvBlockByAppend_32f(high, in, 3, three));
    EXPECT_EQ(1, up2ConvGetPhase_32f(high));
    EXPECT_EQ(203.0f, three[0]);
    EXPECT_EQ(2030.0f, three[1]);
    EXPECT_EQ(304.0f, three[2]);
    EXPECT_EQ(0, up2ConvBlock_32f(high, in, 1, three));
    EXPECT_EQ(3040.0f, three[0]);
    EXPECT_EQ(0, up2ConvGetPhase_32f(high));
    EXPECT_EQ(1, up2ConvBlockAdd_32f(high, in, 2, three));
    EXPECT_EQ(3040 + 403.0f, three[0]);
    EXPECT_EQ(2030 + 4030.0f, three[1]);
}

// -- Delay lines ------------------------------------------------------------------------------------------------------

struct Shape {
    int len, offs;
};
const std::vector<Shape> shapes = {{1, 0},  {1, -1}, {1, 1}, {2, 0}, {2, -1}, {2, 3},  {3, 0},
                                   {3, -1}, {3, 2},  {7, 1}, {8, 0}, {8, 7},  {9, 20}, {9, -1}};

// Samples that a delay line has.
int forwardLine(Shape s) { return s.offs == -1 ? std::max(s.len - 2, 0) : s.len + s.offs - 1; }
int inverseLine(Shape s) { return s.offs == -1 ? s.len / 2 : (s.offs + s.len - 1) / 2; }

template <class Bank>
void expectLineKept(const Bank& bank, Shape low, Shape high, int lenLow, int lenHigh)
{
    const Filter lowFilter = randomFilter(low.len, low.offs, 1);
    const Filter highFilter = randomFilter(high.len, high.offs, 2);
    const BankOwner state(bank, lowFilter, highFilter);
    for (std::uint64_t seed : {5u, 6u}) {
        const auto givenLow = lineOf(lenLow, seed);
        const auto givenHigh = lineOf(lenHigh, seed + 10);
        const GuardedArray<float> srcLow(givenLow, Placement::atEnd());
        const GuardedArray<float> srcHigh(givenHigh, Placement::atEnd());
        ASSERT_EQ(tarnStsNoErr, bank.setDlyLine(state.get(), srcLow.data(), srcHigh.data()));
        GuardedArray<float> backLow(givenLow.size(), Placement::atEnd());
        GuardedArray<float> backHigh(givenHigh.size(), Placement::atEnd(4));
        ASSERT_EQ(tarnStsNoErr, bank.getDlyLine(state.get(), backLow.data(), backHigh.data()));
        EXPECT_TRUE(arraysMatch(givenLow, backLow)) << bank.name << ' ' << low.len << ' ' << low.offs;
        EXPECT_TRUE(arraysMatch(givenHigh, backHigh)) << bank.name << ' ' << high.len << ' ' << high.offs;
    }
}

TEST(WaveletStateTest, GivesBackTheDelayLine)
{
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Shape low = shapes[i];
        const Shape high = shapes[(i + 5) % shapes.size()];
        for (const ForwardBank& bank : forwardBanks())
            expectLineKept(bank, low, high, forwardLine(low), forwardLine(high));
        for (const InverseBank& bank : inverseBanks())
            expectLineKept(bank, low, high, inverseLine(low), inverseLine(high));
    }
}

// The oldest sample comes first, those on their way behind those that went in.
TEST(WaveletStateTest, HoldsTheNewestSamples)
{
    std::vector<float> signal(2 * 30);
    for (std::size_t i = 0; i < signal.size(); ++i)
        signal[i] = static_cast<float>(i + 1);
    for (int calls : {1, 3, 30}) {
        for (const Shape shape : shapes) {
            const Filter filter = randomFilter(shape.len, shape.offs, 1);
            const Cuts cuts = {30 / calls};
            const BankOwner split(forwardBanks()[0], filter, filter);
            splitInCalls(forwardBanks()[0], split.get(), signal, cuts);
            std::vector<float> low(static_cast<std::size_t>(forwardLine(shape)) + 1, 77);
            std::vector<float> high = low;
            forwardBanks()[0].getDlyLine(split.get(), low.data(), high.data());
            for (std::size_t i = 0; i + 1 < low.size(); ++i)
                EXPECT_EQ(static_cast<float>(60 - (low.size() - 1) + 1 + i), low[i]);
            EXPECT_EQ(77.0f, low.back());
            EXPECT_EQ(low, high);

            const BankOwner join(inverseBanks()[0], filter, filter);
            const std::vector<float> half(signal.begin(), signal.begin() + 30);
            joinInCalls(inverseBanks()[0], join.get(), {half, half}, cuts);
            low.assign(static_cast<std::size_t>(inverseLine(shape)) + 1, 77);
            high = low;
            inverseBanks()[0].getDlyLine(join.get(), low.data(), high.data());
            for (std::size_t i = 0; i + 1 < low.size(); ++i)
                EXPECT_EQ(static_cast<float>(30 - (low.size() - 1) + 1 + i), low[i]);
            EXPECT_EQ(77.0f, low.back());
        }
    }
}

// A state that is set to what another one gave goes on to the bit.
TEST(WaveletStateTest, GoesOnFromADelayLine)
{
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Filter low = randomFilter(shapes[i].len, shapes[i].offs, i);
        const Shape otherShape = shapes[(i + 3) % shapes.size()];
        const Filter high = randomFilter(otherShape.len, otherShape.offs, i + 20);
        const auto signal = lineOf(2 * 90, i);
        const std::vector<float> first(signal.begin(), signal.begin() + 2 * 37);
        const std::vector<float> second(signal.begin() + 2 * 37, signal.end());
        std::vector<float> lineLow(40);
        std::vector<float> lineHigh(40);

        const ForwardBank& forward = forwardBanks()[0];
        const BankOwner split(forward, low, high);
        splitInCalls(forward, split.get(), first, {37, 5});
        ASSERT_EQ(tarnStsNoErr, forward.getDlyLine(split.get(), lineLow.data(), lineHigh.data()));
        const BankOwner splits(forward, low, high);
        splitInCalls(forward, splits.get(), second, {3}); // its position is somewhere else
        ASSERT_EQ(tarnStsNoErr, forward.setDlyLine(splits.get(), lineLow.data(), lineHigh.data()));
        const Channels expected = splitInCalls(forward, split.get(), second, {9, 30});
        const Channels out = splitInCalls(forward, splits.get(), second, {9, 30});
        EXPECT_TRUE(arraysMatch<float>(expected.low.data(), out.low.data(), out.low.size())) << i;
        EXPECT_TRUE(arraysMatch<float>(expected.high.data(), out.high.data(), out.high.size())) << i;

        const InverseBank& inverse = inverseBanks()[0];
        const BankOwner join(inverse, low, high);
        joinInCalls(inverse, join.get(), {first, second}, {37, 5});
        ASSERT_EQ(tarnStsNoErr, inverse.getDlyLine(join.get(), lineLow.data(), lineHigh.data()));
        const BankOwner joins(inverse, low, high);
        joinInCalls(inverse, joins.get(), {first, second}, {3}); // as long as the first channel
        ASSERT_EQ(tarnStsNoErr, inverse.setDlyLine(joins.get(), lineLow.data(), lineHigh.data()));
        EXPECT_EQ(joinInCalls(inverse, join.get(), {first, first}, {9, 30}),
                  joinInCalls(inverse, joins.get(), {first, first}, {9, 30}))
            << i;
    }
}

} // namespace
} // namespace tarn::test
