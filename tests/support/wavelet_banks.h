// The functions of all wavelet banks under one set of names, without their element types: states are of one type, and
// samples are bytes.
#pragma once

#include "model/wavelet.h"
#include "support/hard_values.h"
#include "tarns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace tarn::test {

template <class State>
struct BankCalls {
    using State_ = State;
    using Taps = const Tarn32f*;
    const char* name;
    int tag;
    TarnStatus (*initAlloc)(State**, Taps, int, int, Taps, int, int);
    TarnStatus (*setDlyLine)(State*, const Tarn32f*, const Tarn32f*);
    TarnStatus (*getDlyLine)(const State*, Tarn32f*, Tarn32f*);
    TarnStatus (*free)(State*);
};

struct ForwardBank : BankCalls<TarnsWTFwdState> {
    TarnStatus (*split)(const void*, Tarn32f*, Tarn32f*, int, TarnsWTFwdState*);
    std::size_t sampleBytes;
    double lowest, highest;
    void (*put)(void*, std::size_t, float);
};

struct InverseBank : BankCalls<TarnsWTInvState> {
    TarnStatus (*join)(const Tarn32f*, const Tarn32f*, int, void*, TarnsWTInvState*);
    std::size_t sampleBytes;
    double lowest, highest;
    double (*get)(const void*, std::size_t);
};

template <class S>
void putSample(void* samples, std::size_t at, float value)
{
    const auto sample = static_cast<S>(value);
    std::memcpy(static_cast<unsigned char*>(samples) + at * sizeof(S), &sample, sizeof(S));
}
template <class S>
double getSample(const void* samples, std::size_t at)
{
    S sample;
    std::memcpy(&sample, static_cast<const unsigned char*>(samples) + at * sizeof(S), sizeof(S));
    return static_cast<double>(sample);
}
template <class S>
double limitOf(bool highest)
{
    return static_cast<double>(highest ? std::numeric_limits<S>::max() : std::numeric_limits<S>::lowest());
}

#define TARN_FORWARD_BANK(TAIL, S, TAG)                                                         \
    ForwardBank                                                                                 \
    {                                                                                           \
        {#TAIL,                                                                                 \
         TAG,                                                                                   \
         tarnsWTFwdInitAlloc_##TAIL,                                                            \
         tarnsWTFwdSetDlyLine_##TAIL,                                                           \
         tarnsWTFwdGetDlyLine_##TAIL,                                                           \
         tarnsWTFwdFree_##TAIL},                                                                \
            [](const void* src, Tarn32f* low, Tarn32f* high, int len, TarnsWTFwdState* state) { \
                return tarnsWTFwd_##TAIL(static_cast<const S*>(src), low, high, len, state);    \
            },                                                                                  \
            sizeof(S), limitOf<S>(false), limitOf<S>(true), putSample<S>                        \
    }
#define TARN_INVERSE_BANK(TAIL, S, TAG)                                                               \
    InverseBank                                                                                       \
    {                                                                                                 \
        {#TAIL,                                                                                       \
         TAG,                                                                                         \
         tarnsWTInvInitAlloc_##TAIL,                                                                  \
         tarnsWTInvSetDlyLine_##TAIL,                                                                 \
         tarnsWTInvGetDlyLine_##TAIL,                                                                 \
         tarnsWTInvFree_##TAIL},                                                                      \
            [](const Tarn32f* low, const Tarn32f* high, int len, void* dst, TarnsWTInvState* state) { \
                return tarnsWTInv_##TAIL(low, high, len, static_cast<S*>(dst), state);                \
            },                                                                                        \
            sizeof(S), limitOf<S>(false), limitOf<S>(true), getSample<S>                              \
    }

/// The first ones are of type 32f, which converts nothing.
inline const std::vector<ForwardBank>& forwardBanks()
{
    static const std::vector<ForwardBank> banks = {
        TARN_FORWARD_BANK(32f, Tarn32f, 41),    TARN_FORWARD_BANK(8u32f, Tarn8u, 42),
        TARN_FORWARD_BANK(8s32f, Tarn8s, 43),   TARN_FORWARD_BANK(16u32f, Tarn16u, 44),
        TARN_FORWARD_BANK(16s32f, Tarn16s, 45),
    };
    return banks;
}
inline const std::vector<InverseBank>& inverseBanks()
{
    static const std::vector<InverseBank> banks = {
        TARN_INVERSE_BANK(32f, Tarn32f, 50),    TARN_INVERSE_BANK(32f8u, Tarn8u, 51),
        TARN_INVERSE_BANK(32f8s, Tarn8s, 52),   TARN_INVERSE_BANK(32f16u, Tarn16u, 53),
        TARN_INVERSE_BANK(32f16s, Tarn16s, 54),
    };
    return banks;
}

/// Calls `run` for each of them, forward ones first.
template <class Run>
void forAllBanks(Run run)
{
    for (const ForwardBank& bank : forwardBanks())
        run(bank);
    for (const InverseBank& bank : inverseBanks())
        run(bank);
}

/// A state that is freed at the end of its scope.
template <class Bank>
class BankOwner {
public:
    using State = typename Bank::State_;
    BankOwner(const Bank& itsBank, const wavelet::Filter& low, const wavelet::Filter& high) : bank(itsBank)
    {
        EXPECT_EQ(tarnStsNoErr, bank.initAlloc(&state, low.taps.data(), low.len(), low.offs, high.taps.data(),
                                               high.len(), high.offs));
    }
    ~BankOwner() { EXPECT_EQ(tarnStsNoErr, bank.free(state)); }
    BankOwner(const BankOwner&) = delete;
    BankOwner& operator=(const BankOwner&) = delete;
    State* get() const { return state; }
    State* operator->() const { return state; }

private:
    const Bank& bank;
    State* state = nullptr;
};

struct Channels {
    std::vector<float> low, high;
};

/// Lengths of calls, at half rate, repeated until the signal ends.
using Cuts = std::vector<int>;

/// Whole, sample by sample, and in pieces around the lengths of filters, of vectors and of chunks.
inline const std::vector<Cuts> cutLists = {
    {4000}, {1}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {17, 1, 64, 33, 2}, {512, 513, 5}};

/// Calls `run(begin, len)` for the pieces of `total` samples.
template <class Run>
void inPieces(std::size_t total, const Cuts& cuts, Run run)
{
    std::size_t begin = 0;
    for (std::size_t i = 0; begin < total; ++i) {
        const std::size_t len = std::min(static_cast<std::size_t>(cuts[i % cuts.size()]), total - begin);
        run(begin, static_cast<int>(len));
        begin += len;
    }
}

/// A filter that delays, and one that advances.
inline const wavelet::Filter three = {{1, 2, 3}, 2};
inline const wavelet::Filter four = {{4, 5, 6, 7}, -1};

inline std::vector<float> randomSignal(std::size_t len, std::uint64_t seed)
{
    return randomValues<float>(len, seed, Values::unit);
}

inline wavelet::Filter randomFilter(int len, int offs, std::uint64_t seed)
{
    return {randomSignal(static_cast<std::size_t>(len), seed), offs};
}

/// Integers of the type, up to 2000 of magnitude: their sums stay small.
inline std::vector<float> signalFor(const ForwardBank& bank, std::size_t len, std::uint64_t seed)
{
    auto signal = randomSignal(len, seed);
    if (bank.sampleBytes < sizeof(float)) {
        for (float& x : signal)
            x = static_cast<float>(std::clamp(std::nearbyint(2000.0 * x), bank.lowest, bank.highest));
    }
    return signal;
}

/// An even number of samples through a forward bank. Integer ones have such values.
inline Channels splitInCalls(const ForwardBank& bank, TarnsWTFwdState* state, const std::vector<float>& signal,
                             const Cuts& cuts)
{
    std::vector<unsigned char> samples(signal.size() * bank.sampleBytes);
    for (std::size_t i = 0; i < signal.size(); ++i)
        bank.put(samples.data(), i, signal[i]);
    const std::size_t len = signal.size() / 2;
    Channels out{std::vector<float>(len), std::vector<float>(len)};
    inPieces(len, cuts, [&](std::size_t begin, int count) {
        EXPECT_EQ(tarnStsNoErr, bank.split(samples.data() + 2 * begin * bank.sampleBytes, &out.low[begin],
                                           &out.high[begin], count, state));
    });
    return out;
}

inline std::vector<double> joinInCalls(const InverseBank& bank, TarnsWTInvState* state, const Channels& in,
                                       const Cuts& cuts)
{
    std::vector<unsigned char> samples(2 * in.low.size() * bank.sampleBytes);
    inPieces(in.low.size(), cuts, [&](std::size_t begin, int count) {
        EXPECT_EQ(tarnStsNoErr, bank.join(&in.low[begin], &in.high[begin], count,
                                          samples.data() + 2 * begin * bank.sampleBytes, state));
    });
    std::vector<double> out;
    for (std::size_t i = 0; i < 2 * in.low.size(); ++i)
        out.push_back(bank.get(samples.data(), i));
    return out;
}

} // namespace tarn::test
