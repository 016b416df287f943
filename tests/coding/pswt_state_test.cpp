// States of wavelet banks: fields, delay lines, checks and their order, refusal of what is not whole, lack of memory.
#include "levels/coding/pswt.h"
#include "support/compare.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"
#include "support/ordered_checks.h"
#include "support/wavelet_banks.h"

#include <climits>
#include <functional>

namespace tarn::test {
namespace {

using wavelet::Filter;

Filter randomFilter(int len, int offs, std::uint64_t seed)
{
    return {randomValues<float>(static_cast<std::size_t>(len), seed, Values::unit), offs};
}

std::vector<float> lineOf(int len, std::uint64_t seed)
{
    return randomValues<float>(static_cast<std::size_t>(std::max(len, 0)), seed, Values::unit);
}

const Filter three = {{1, 2, 3}, 2};
const Filter four = {{4, 5, 6, 7}, -1};

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
        joinInCalls(inverse, joins.get(), {second, first}, {3});
        ASSERT_EQ(tarnStsNoErr, inverse.setDlyLine(joins.get(), lineLow.data(), lineHigh.data()));
        EXPECT_EQ(joinInCalls(inverse, join.get(), {first, first}, {9, 30}),
                  joinInCalls(inverse, joins.get(), {first, first}, {9, 30}))
            << i;
    }
}

// -- Checks -----------------------------------------------------------------------------------------------------------

constexpr float tap = 1;

template <class Bank, std::size_t index>
struct Building {
    typename Bank::State_* state = nullptr;
    typename Bank::State_** ppState = &state;
    const float *tapsLow = &tap, *tapsHigh = &tap;
    int lenLow = 1, offsLow = 0, lenHigh = 1, offsHigh = 0;

    static const Bank& bank()
    {
        if constexpr (std::is_same_v<Bank, ForwardBank>)
            return forwardBanks()[index];
        else
            return inverseBanks()[index];
    }
    TarnStatus operator()()
    {
        const TarnStatus status = bank().initAlloc(ppState, tapsLow, lenLow, offsLow, tapsHigh, lenHigh, offsHigh);
        if (status == tarnStsNoErr)
            EXPECT_EQ(tarnStsNoErr, bank().free(state));
        else
            EXPECT_EQ(nullptr, state);
        return status;
    }
};

template <class Call>
void expectBuildingOrder()
{
    expectOrder<Call>({{[](Call& c) { c.ppState = nullptr; }, tarnStsNullPtrErr},
                       {[](Call& c) { c.tapsLow = nullptr; }, tarnStsNullPtrErr},
                       {[](Call& c) { c.lenLow = 0; }, tarnStsSizeErr},
                       {[](Call& c) { c.lenLow = INT_MIN; }, tarnStsSizeErr},
                       {[](Call& c) { c.tapsHigh = nullptr; }, tarnStsNullPtrErr},
                       {[](Call& c) { c.lenHigh = -1; }, tarnStsSizeErr},
                       {[](Call& c) { c.offsLow = -2; }, tarnStsWtOffsetErr},
                       {[](Call& c) { c.offsHigh = INT_MIN; }, tarnStsWtOffsetErr}});
}

template <std::size_t... index>
void expectAllBuildingOrders(std::index_sequence<index...>)
{
    (expectBuildingOrder<Building<ForwardBank, index>>(), ...);
    (expectBuildingOrder<Building<InverseBank, index>>(), ...);
}

TEST(WaveletStateTest, ChecksWhatItBuilds) { expectAllBuildingOrders(std::make_index_sequence<5>()); }

// An error leaves the pointer as it is; lack of memory clears it.
TEST(WaveletStateTest, RefusesWhatDoesNotFitIntoMemory)
{
    const auto expectRefusal = [](const auto& bank, int lenLow, int offsLow, int lenHigh, int offsHigh) {
        using State = typename std::decay_t<decltype(bank)>::State_;
        auto* const unset = reinterpret_cast<State*>(&lenLow);
        State* state = unset;
        EXPECT_EQ(tarnStsSizeErr, bank.initAlloc(&state, &tap, 0, offsLow, &tap, lenHigh, offsHigh));
        EXPECT_EQ(unset, state);
        EXPECT_EQ(tarnStsNoMemErr, bank.initAlloc(&state, &tap, lenLow, offsLow, &tap, lenHigh, offsHigh));
        EXPECT_EQ(nullptr, state) << bank.name;
    };
    const auto expectAll = [&](const auto& bank) {
        expectRefusal(bank, INT_MAX, 0, 1, 0);
        expectRefusal(bank, 1, 0, INT_MAX, INT_MAX);
        expectRefusal(bank, 1, INT_MAX, 1, 0);
        expectRefusal(bank, 1, 0, 1, INT_MAX - 1);
        expectRefusal(bank, 1 << 29, 1 << 29, 1, 0);
        expectRefusal(bank, 1, 536870911, 1, 0);
    };
    for (const ForwardBank& bank : forwardBanks())
        expectAll(bank);
    for (const InverseBank& bank : inverseBanks())
        expectAll(bank);
}

template <class Bank>
void expectNothingKept(const Bank& bank)
{
    int needed = 0;
    for (int allowed = 0; allowed <= needed; ++allowed) {
        auto* state = reinterpret_cast<typename Bank::State_*>(&needed);
        TarnStatus status = tarnStsNoErr;
        int outstanding = 0;
        {
            const MemoryWatch watch(allowed == 0 ? 1000 : allowed - 1);
            status = bank.initAlloc(&state, three.taps.data(), 3, 5, four.taps.data(), 4, 5);
            outstanding = watch.outstanding();
            if (status == tarnStsNoErr)
                bank.free(state);
            if (allowed == 0)
                needed = watch.allocated();
            EXPECT_EQ(0, watch.outstanding()) << bank.name;
        }
        if (allowed == 0) {
            ASSERT_EQ(tarnStsNoErr, status);
            ASSERT_LT(0, needed);
        } else {
            EXPECT_EQ(tarnStsNoMemErr, status) << bank.name << ", " << allowed - 1 << " of " << needed;
            EXPECT_EQ(0, outstanding);
            EXPECT_EQ(nullptr, state);
        }
    }
}

TEST(WaveletStateTest, KeepsNothingWhenMemoryIsRefused)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const ForwardBank& bank : forwardBanks())
        expectNothingKept(bank);
    for (const InverseBank& bank : inverseBanks())
        expectNothingKept(bank);
}

TEST(WaveletStateTest, AllocatesInNoOtherCall)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    const BankOwner split(forwardBanks()[4], three, four);
    const BankOwner join(inverseBanks()[4], three, four);
    const std::vector<Tarn16s> in(4000, 3);
    std::vector<float> low(2000);
    std::vector<float> high(2000);
    std::vector<Tarn16s> out(4000);
    const MemoryWatch watch(0);
    const TarnStatus splitting = tarnsWTFwd_16s32f(in.data(), low.data(), high.data(), 2000, split.get());
    const TarnStatus joining = tarnsWTInv_32f16s(low.data(), high.data(), 2000, out.data(), join.get());
    EXPECT_EQ(0, watch.allocated());
    EXPECT_EQ(tarnStsNoErr, splitting);
    EXPECT_EQ(tarnStsNoErr, joining);
}

// All calls that take a state, with arguments that are good but for it. The arrays of a call that is refused stay as
// they are.
class Caller {
public:
    template <class Check>
    void forAll(const ForwardBank& bank, TarnsWTFwdState* state, Check check)
    {
        check(bank.split(samples, low, high, 2, state));
        check(bank.split(nullptr, nullptr, nullptr, 0, state));
        check(bank.setDlyLine(state, line, line));
        check(bank.setDlyLine(state, nullptr, nullptr));
        check(bank.getDlyLine(state, low, high));
        check(bank.getDlyLine(state, nullptr, nullptr));
        check(bank.free(state));
        expectUntouched();
    }
    template <class Check>
    void forAll(const InverseBank& bank, TarnsWTInvState* state, Check check)
    {
        check(bank.join(line, line, 2, samples, state));
        check(bank.join(nullptr, nullptr, 0, nullptr, state));
        check(bank.setDlyLine(state, line, line));
        check(bank.setDlyLine(state, nullptr, nullptr));
        check(bank.getDlyLine(state, low, high));
        check(bank.getDlyLine(state, nullptr, nullptr));
        check(bank.free(state));
        expectUntouched();
    }

private:
    void expectUntouched() const
    {
        for (int i = 0; i < 40; ++i) {
            ASSERT_EQ(0.0f, low[i]);
            ASSERT_EQ(0.0f, high[i]);
            ASSERT_EQ(0.0, samples[i]);
        }
    }

    float low[40] = {}, high[40] = {}, line[40] = {};
    double samples[40] = {};
};

template <class Bank>
void expectRefused(const Bank& bank, typename Bank::State_* state, TarnStatus expected, const std::string& what)
{
    Caller caller;
    caller.forAll(bank, state, [&](TarnStatus status) { EXPECT_EQ(expected, status) << bank.name << ", " << what; });
}

TEST(WaveletStateTest, RefusesStatesOfOthers)
{
    const auto asInverse = [](void* state) { return static_cast<TarnsWTInvState*>(state); };
    const auto asForward = [](void* state) { return static_cast<TarnsWTFwdState*>(state); };
    for (const ForwardBank& owner : forwardBanks()) {
        const BankOwner state(owner, three, three);
        for (const ForwardBank& bank : forwardBanks())
            if (&bank != &owner)
                expectRefused(bank, state.get(), tarnStsContextMatchErr, owner.name);
        for (const InverseBank& bank : inverseBanks())
            expectRefused(bank, asInverse(state.get()), tarnStsContextMatchErr, owner.name);
        expectRefused(owner, nullptr, tarnStsNullPtrErr, "null");
    }
    for (const InverseBank& owner : inverseBanks()) {
        const BankOwner state(owner, three, three);
        for (const InverseBank& bank : inverseBanks())
            if (&bank != &owner)
                expectRefused(bank, state.get(), tarnStsContextMatchErr, owner.name);
        for (const ForwardBank& bank : forwardBanks())
            expectRefused(bank, asForward(state.get()), tarnStsContextMatchErr, owner.name);
        expectRefused(owner, nullptr, tarnStsNullPtrErr, "null");
    }
}

// A word of a state with another value for the length of a scope.
template <class T>
class Spoilt {
public:
    Spoilt(T& itsWord, T value) : word(itsWord), before(itsWord) { word = value; }
    ~Spoilt() { word = before; }
    Spoilt(const Spoilt&) = delete;
    Spoilt& operator=(const Spoilt&) = delete;

private:
    T& word;
    T before;
};

template <class Bank, class T>
void expectRefusedWith(const Bank& bank, typename Bank::State_* state, T& word, std::type_identity_t<T> value,
                       const char* what)
{
    const Spoilt<T> spoilt(word, value);
    expectRefused(bank, state, tarnStsContextMatchErr, what);
}

template <class Bank>
void expectLineChecked(const Bank& bank, typename Bank::State_* state, CircularLine& line)
{
    expectRefusedWith(bank, state, line.pBuffer, nullptr, "buffer");
    expectRefusedWith(bank, state, line.len, 0, "length 0");
    expectRefusedWith(bank, state, line.len, -1, "length -1");
    expectRefusedWith(bank, state, line.pos, -1, "position -1");
    expectRefusedWith(bank, state, line.pos, line.len, "position behind the line");
    expectRefusedWith(bank, state, line.pos, INT_MAX, "position far behind the line");
}

template <class Bank>
void expectKernelChecked(const Bank& bank, typename Bank::State_* state, WaveletKernel& kernel)
{
    expectRefusedWith(bank, state, kernel.len, 0, "taps");
    expectRefusedWith(bank, state, kernel.pTaps, nullptr, "taps");
    expectRefusedWith(bank, state, kernel.pTable, nullptr, "table");
}

template <class Bank>
void expectFieldsChecked(const Bank& bank)
{
    const BankOwner owner(bank, three, {{4, 5, 6, 7}, 2});
    auto* const state = owner.get();
    expectRefusedWith(bank, state, state->tag, 0, "tag");
    expectRefusedWith(bank, state, state->pLow, nullptr, "low");
    expectRefusedWith(bank, state, state->pHigh, nullptr, "high");
    expectRefusedWith(bank, state, state->scratchLen, -1, "scratch");
    expectRefusedWith(bank, state, state->scratchLen, state->scratchLen == 0 ? 1 : 0, "scratch");
    Tarn32f* const otherwise = state->pScratch == nullptr ? state->pLow->pConv->pKernel->pTaps : nullptr;
    expectRefusedWith(bank, state, state->pScratch, otherwise, "scratch");
    for (auto* const outer : {state->pLow, state->pHigh}) {
        auto* const inner = outer->pConv;
        expectRefusedWith(bank, state, outer->pConv, nullptr, "filter");
        expectRefusedWith(bank, state, inner->pLine, nullptr, "line");
        expectRefusedWith(bank, state, inner->pKernel, nullptr, "kernel");
        expectRefusedWith(bank, state, inner->phase, 2, "phase");
        expectRefusedWith(bank, state, inner->phase, -1, "phase");
        expectRefusedWith(bank, state, inner->len, 0, "taps");
        expectLineChecked(bank, state, *inner->pLine);
        expectLineChecked(bank, state, *outer->pOffsetLine);
        expectKernelChecked(bank, state, *inner->pKernel);
        if constexpr (std::is_same_v<Bank, ForwardBank>) {
            expectRefusedWith(bank, state, inner->pReversed, nullptr, "reversed taps");
        } else {
            expectRefusedWith(bank, state, inner->pEven, nullptr, "even taps");
            expectRefusedWith(bank, state, inner->pOdd, nullptr, "odd taps");
        }
    }
}

TEST(WaveletStateTest, RefusesStatesThatAreSpoilt)
{
    for (const ForwardBank& bank : forwardBanks())
        expectFieldsChecked(bank);
    for (const InverseBank& bank : inverseBanks())
        expectFieldsChecked(bank);
}

TEST(WaveletStateTest, AWordOfZeroIsAFreedState)
{
    alignas(16) Tarn32s freed[64] = {};
    for (const ForwardBank& bank : forwardBanks())
        expectRefused(bank, reinterpret_cast<TarnsWTFwdState*>(freed), tarnStsContextMatchErr, "freed");
    for (const InverseBank& bank : inverseBanks())
        expectRefused(bank, reinterpret_cast<TarnsWTInvState*>(freed), tarnStsContextMatchErr, "freed");
}

TEST(WaveletStateTest, ChecksStatesThenPointersThenLengths)
{
    float data[8] = {};
    for (const ForwardBank& bank : forwardBanks()) {
        const BankOwner owner(bank, three, three);
        auto* const state = owner.get();
        for (int len : {1, 0, -1, INT_MIN}) {
            EXPECT_EQ(tarnStsNullPtrErr, bank.split(nullptr, data, data, len, state));
            EXPECT_EQ(tarnStsNullPtrErr, bank.split(data, nullptr, data, len, state));
            EXPECT_EQ(tarnStsNullPtrErr, bank.split(data, data, nullptr, len, state));
            EXPECT_EQ(len < 1 ? tarnStsSizeErr : tarnStsNoErr, bank.split(data, data + 2, data + 3, len, state));
        }
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, data, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, data, nullptr));
    }
    for (const InverseBank& bank : inverseBanks()) {
        const BankOwner owner(bank, three, three);
        auto* const state = owner.get();
        for (int len : {1, 0, -1, INT_MIN}) {
            const TarnStatus lenStatus = len < 1 ? tarnStsSizeErr : tarnStsNoErr;
            EXPECT_EQ(tarnStsNullPtrErr, bank.join(nullptr, data, len, data, state));
            EXPECT_EQ(tarnStsNullPtrErr, bank.join(data, nullptr, len, data, state));
            EXPECT_EQ(len < 1 ? tarnStsSizeErr : tarnStsNullPtrErr, bank.join(data, data, len, nullptr, state));
            EXPECT_EQ(lenStatus, bank.join(data, data + 1, len, data + 2, state));
        }
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, data, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, data, nullptr));
    }
}

} // namespace
} // namespace tarn::test
