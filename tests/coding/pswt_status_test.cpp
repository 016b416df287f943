// Checks of wavelet banks and their order, refusal of states that are not whole, lack of memory.
#include "levels/coding/pswt.h"
#include "support/memory_watch.h"
#include "support/ordered_checks.h"
#include "support/wavelet_banks.h"

#include <climits>
#include <utility>

namespace tarn::test {
namespace {

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

TEST(WaveletStatusTest, ChecksWhatItBuilds) { expectAllBuildingOrders(std::make_index_sequence<5>()); }

// An error leaves the pointer as it is; lack of memory clears it.
TEST(WaveletStatusTest, RefusesWhatDoesNotFitIntoMemory)
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
    forAllBanks([&](const auto& bank) {
        expectRefusal(bank, INT_MAX, 0, 1, 0);
        expectRefusal(bank, 1, 0, INT_MAX, INT_MAX);
        expectRefusal(bank, 1, INT_MAX, 1, 0);
        expectRefusal(bank, 1, 0, 1, INT_MAX - 1);
        expectRefusal(bank, 1 << 29, 1 << 29, 1, 0);
        expectRefusal(bank, 1, 536870911, 1, 0);
    });
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

TEST(WaveletStatusTest, KeepsNothingWhenMemoryIsRefused)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    forAllBanks([](const auto& bank) { expectNothingKept(bank); });
}

TEST(WaveletStatusTest, AllocatesInNoOtherCall)
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

TEST(WaveletStatusTest, RefusesStatesOfOthers)
{
    forAllBanks([](const auto& owner) {
        const BankOwner state(owner, three, three);
        forAllBanks([&](const auto& bank) {
            using State = typename std::decay_t<decltype(bank)>::State_;
            if (bank.tag != owner.tag)
                expectRefused(bank, static_cast<State*>(static_cast<void*>(state.get())), tarnStsContextMatchErr,
                              owner.name);
        });
        expectRefused(owner, nullptr, tarnStsNullPtrErr, "null");
    });
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

TEST(WaveletStatusTest, RefusesStatesThatAreSpoilt)
{
    forAllBanks([](const auto& bank) { expectFieldsChecked(bank); });
}

TEST(WaveletStatusTest, AWordOfZeroIsAFreedState)
{
    alignas(16) Tarn32s freed[64] = {};
    forAllBanks([&](const auto& bank) {
        using State = typename std::decay_t<decltype(bank)>::State_;
        expectRefused(bank, reinterpret_cast<State*>(freed), tarnStsContextMatchErr, "freed");
    });
}

TEST(WaveletStatusTest, ChecksStatesThenPointersThenLengths)
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
    }
    forAllBanks([&](const auto& bank) {
        const BankOwner owner(bank, three, three);
        auto* const state = owner.get();
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.setDlyLine(state, data, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, nullptr, data));
        EXPECT_EQ(tarnStsNullPtrErr, bank.getDlyLine(state, data, nullptr));
    });
}

} // namespace
} // namespace tarn::test
