// States of FIR filters: sizes, memory of the caller, taps and delay lines, checks.
#include "levels/fir/psfir_state.h"
#include "model/fir.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/fir_tails.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace tarn::test {
namespace {

template <class F>
class FirStateTest : public ::testing::Test {
protected:
    using T = typename F::Tap;
    using S = typename F::Sample;
    using State = typename F::State;

    static constexpr bool hasTransforms = requires(State * state) { state->pFFTSpec; };
    static constexpr bool hasFactor = std::is_invocable_v<decltype(F::setTaps), const T*, State*, int>;

    // The families with a factor get one of 0, so that all can be called alike.
    static TarnStatus initAlloc(State** state, const T* taps, int len, const S* line)
    {
        if constexpr (hasFactor)
            return F::initAlloc(state, taps, len, 0, line);
        else
            return F::initAlloc(state, taps, len, line);
    }
    static TarnStatus init(State** state, const T* taps, int len, const S* line, Tarn8u* buffer)
    {
        if constexpr (hasFactor)
            return F::init(state, taps, len, 0, line, buffer);
        else
            return F::init(state, taps, len, line, buffer);
    }
    static TarnStatus setTaps(const T* taps, State* state)
    {
        if constexpr (hasFactor)
            return F::setTaps(taps, state, 0);
        else
            return F::setTaps(taps, state);
    }
    static TarnStatus getTaps(const State* state, T* taps)
    {
        int factor = -1;
        if constexpr (hasFactor)
            return F::getTaps(state, taps, &factor);
        else
            return F::getTaps(state, taps);
    }

    // Whole numbers: kept by every family as they are, once floats are brought into the range of 16383.5 to 32767.
    static std::vector<T> wholeTaps(int len, int seed)
    {
        std::vector<T> taps;
        Random random(static_cast<std::uint64_t>(seed));
        const auto number = [&] {
            return static_cast<fir::Component<T>>(static_cast<int>(random.below(40001)) - 20000);
        };
        for (int i = 0; i < len; ++i) {
            if constexpr (ComplexElement<T>)
                taps.push_back({number(), number()});
            else
                taps.push_back(number());
        }
        if constexpr (ComplexElement<T>)
            taps[0].re = 30000;
        else
            taps[0] = 30000;
        return taps;
    }
};

using AllTails =
    ::testing::Types<FirTail32f, FirTail32fc, FirTail32f_16s, FirTail32fc_16sc, FirTail64f, FirTail64fc, FirTail64f_32f,
                     FirTail64fc_32fc, FirTail64f_32s, FirTail64fc_32sc, FirTail64f_16s, FirTail64fc_16sc,
                     FirTail32s_16s, FirTail32sc_16sc, FirTail32s_16s32f, FirTail32sc_16sc32fc>;
TYPED_TEST_SUITE(FirStateTest, AllTails);

const std::vector<int> lengths = {1, 2, 3, 4, 5, 7, 8, 12, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 127, 128, 129, 400};

TYPED_TEST(FirStateTest, GivesBackTapsAndDelayLine)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int len : lengths) {
        const auto taps = this->wholeTaps(len, len);
        const auto count = static_cast<std::size_t>(len);
        const auto line = randomValues<S>(count, 7, Values::unit);
        typename F::State* state = nullptr;
        ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), len, line.data()));
        GuardedArray<typename F::Tap> tapsBack(count, Placement::atEnd());
        ASSERT_EQ(tarnStsNoErr, this->getTaps(state, tapsBack.data()));
        EXPECT_TRUE(arraysMatch(taps, tapsBack)) << len;
        GuardedArray<S> lineBack(count, Placement::atEnd(1));
        ASSERT_EQ(tarnStsNoErr, F::getDlyLine(state, lineBack.data()));
        EXPECT_TRUE(arraysMatch(line, lineBack)) << len;

        const auto others = this->wholeTaps(len, len + 1);
        ASSERT_EQ(tarnStsNoErr, this->setTaps(others.data(), state));
        this->getTaps(state, tapsBack.data());
        EXPECT_TRUE(arraysMatch(others, tapsBack)) << len;
        F::getDlyLine(state, lineBack.data());
        EXPECT_TRUE(arraysMatch(line, lineBack)) << "taps leave the delay line alone";

        const auto next = randomValues<S>(count, 8, Values::unit);
        ASSERT_EQ(tarnStsNoErr, F::setDlyLine(state, next.data()));
        F::getDlyLine(state, lineBack.data());
        EXPECT_TRUE(arraysMatch(next, lineBack)) << len;
        ASSERT_EQ(tarnStsNoErr, F::setDlyLine(state, nullptr));
        F::getDlyLine(state, lineBack.data());
        EXPECT_TRUE(arraysMatch(std::vector<S>(count, S{}), lineBack)) << len;
        EXPECT_EQ(tarnStsNoErr, F::free(state));
    }
}

TYPED_TEST(FirStateTest, GivesTheNewestSampleFirst)
{
    using F = TypeParam;
    using S = typename F::Sample;
    constexpr int len = 7;
    const auto taps = this->wholeTaps(len, 1);
    typename F::State* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), len, nullptr));
    std::vector<S> expected(len, S{});
    for (int i = 1; i <= 3 * len; ++i) {
        S out{};
        S in{};
        if constexpr (ComplexElement<S>)
            in = {static_cast<fir::Component<S>>(i), static_cast<fir::Component<S>>(-i)};
        else
            in = static_cast<S>(i);
        ASSERT_EQ(tarnStsNoErr, F::one(in, &out, state, 20));
        expected.insert(expected.begin(), in);
        expected.pop_back();
        std::vector<S> line(len);
        F::getDlyLine(state, line.data());
        ASSERT_TRUE(arraysMatch<S>(expected.data(), line.data(), len)) << i;
        EXPECT_EQ(i % len, state->dlyLineIdx);
    }
    S out{};
    F::one(out, &out, state, 20);
    ASSERT_NE(0, state->dlyLineIdx);
    F::setDlyLine(state, expected.data());
    EXPECT_EQ(0, state->dlyLineIdx);
    F::free(state);
}

// The formulas of the 32-bit library; n taps, p threads.
template <class F>
long long documentedSize(long long n, long long p)
{
    using T = typename F::Tap;
    const auto round16 = [](long long bytes) { return bytes / 16 * 16; };
    if constexpr (!requires(typename F::State * state) { state->pFFTSpec; }) {
        if constexpr (ComplexElement<typename F::Sample>)
            return 16 * n + round16(8 * n + 15) + 80 + round16(12 * n + 31) + 16400;
        const long long b = (n + 11) / 8 * 8;
        return round16(2 * (b + 2 * n + 4) + 15) + 8 * b + round16(4 * n + 15) + 16480;
    } else if constexpr (std::is_same_v<T, Tarn32f>) {
        return round16(12 * n + 31) + 5 * round16(4 * n + 15) + 112 + 16 * p + 16384;
    } else if constexpr (std::is_same_v<T, Tarn32fc>) {
        const long long a = round16(8 * n + 15);
        return round16(24 * n + 47) + 12 * a + 96 + a + 112 + 16 * p + 32768;
    } else if constexpr (std::is_same_v<T, Tarn64f>) {
        return round16(24 * n + 47) + 3 * round16(8 * n + 15) + 112 + 16 * p + 32767;
    } else {
        return round16(48 * n + 79) + 16 * n + 112 + 32 * n + 65536;
    }
}

TYPED_TEST(FirStateTest, ReportsTheSizeToTheByte)
{
    for (int threads : {1, 2, 5}) {
        const ThreadsScope scope(threads);
        for (int len = 1; len < 300; ++len) {
            int size = -1;
            ASSERT_EQ(tarnStsNoErr, TypeParam::getStateSize(len, &size));
            const long long documented = documentedSize<TypeParam>(len, threads);
            if (sizeof(void*) == 4)
                ASSERT_EQ(documented, size) << len << " taps, " << threads << " threads";
            else
                ASSERT_LE(documented, size) << len;
        }
    }
}

// Memory of exactly the reported size at every alignment, an unmapped page behind it, red zone before: nothing beside
// it is touched, whatever the state is used for.
TYPED_TEST(FirStateTest, StaysWithinTheCallersMemory)
{
    using F = TypeParam;
    using S = typename F::Sample;
    using State = typename F::State;
    const ThreadsScope one(1); // leaves the least room
    for (int len : {1, 2, 3, 4, 5, 9, 13, 17, 64, 130}) {
        int size = 0;
        F::getStateSize(len, &size);
        const auto taps = this->wholeTaps(len, 3);
        const auto line = randomValues<S>(static_cast<std::size_t>(len), 7, Values::unit);
        for (unsigned gap = 0; gap < 16; gap += len < 60 ? 1 : 5) {
            GuardedBytes memory(static_cast<std::size_t>(size), Placement::atEnd(gap));
            memory.fillPattern();
            State* state = nullptr;
            ASSERT_EQ(tarnStsNoErr, this->init(&state, taps.data(), len, line.data(), memory.bytes()));
            auto* const address = reinterpret_cast<unsigned char*>(state);
            EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(address) % 16);
            EXPECT_TRUE(address >= memory.bytes() && address < memory.bytes() + 16);
            for (int i = 0; i < len + 3; ++i) { // the window at every place of the line
                S out{};
                ASSERT_EQ(tarnStsNoErr, F::one(line[0], &out, state, 20));
                std::vector<S> samples(2500, line[0]);
                const bool inBlocks = i == 3 || i == len + 2;
                ASSERT_EQ(tarnStsNoErr, F::inPlace(samples.data(), inBlocks ? 2500 : 2 * i + 1, state, 20));
                if (i < len)
                    for (int k = 0; k <= i; ++k)
                        F::one(line[0], &out, state, 20);
            }
            const int head = state->inHeadLen;
            std::vector<S> samples(static_cast<std::size_t>(head) + 1, line[0]);
            std::vector<S> outputs(samples.size());
            S out{};
            for (int k = 0; k < len - 1; ++k)
                F::one(line[0], &out, state, 20);
            ASSERT_EQ(tarnStsNoErr, F::filter(samples.data(), outputs.data(), head, state, 20));
            ASSERT_EQ(tarnStsNoErr, F::filter(samples.data(), outputs.data(), head + 1, state, 20));
            ASSERT_EQ(tarnStsNoErr, this->setTaps(taps.data(), state));
            ASSERT_EQ(tarnStsNoErr, F::setDlyLine(state, line.data()));
            EXPECT_EQ(tarnStsNoErr, F::free(state));
            EXPECT_EQ("", memory.redZoneDamage()) << len << " taps, gap " << gap;
        }
    }
}

TYPED_TEST(FirStateTest, IsIdentifiedByItsFirstWord)
{
    using F = TypeParam;
    const auto taps = this->wholeTaps(3, 1);
    typename F::State* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), 3, nullptr));
    const Tarn32u own = state->idCtx;
    EXPECT_EQ(F::State::singleRateId, own);
    auto out = this->wholeTaps(3, 1);
    std::vector<typename F::Sample> line(3);
    typename F::Sample sample{};
    for (Tarn32u id = 0x46493030; id <= 0x46493239; ++id) {
        if (id == F::State::singleRateId || id == F::State::multiRateId)
            continue;
        state->idCtx = id;
        ASSERT_EQ(tarnStsContextMatchErr, this->setTaps(taps.data(), state));
        ASSERT_EQ(tarnStsContextMatchErr, this->getTaps(state, out.data()));
        ASSERT_EQ(tarnStsContextMatchErr, F::getDlyLine(state, line.data()));
        ASSERT_EQ(tarnStsContextMatchErr, F::setDlyLine(state, line.data()));
        ASSERT_EQ(tarnStsContextMatchErr, F::setDlyLine(state, nullptr));
        ASSERT_EQ(tarnStsContextMatchErr, F::free(state));
        ASSERT_EQ(tarnStsContextMatchErr, F::filter(line.data(), line.data(), 3, state));
        ASSERT_EQ(tarnStsContextMatchErr, F::inPlace(line.data(), 3, state));
        ASSERT_EQ(tarnStsContextMatchErr, F::one(sample, &sample, state));
        // Null pointers come first, and so does a bad number of samples.
        ASSERT_EQ(tarnStsNullPtrErr, F::getDlyLine(state, nullptr));
        ASSERT_EQ(tarnStsNullPtrErr, F::filter(nullptr, line.data(), 0, state));
        ASSERT_EQ(tarnStsSizeErr, F::filter(line.data(), line.data(), 0, state));
        ASSERT_EQ(tarnStsSizeErr, F::inPlace(line.data(), -1, state));
    }
    state->idCtx = F::State::multiRateId;
    EXPECT_EQ(tarnStsContextMatchErr, F::one(sample, &sample, state));
    state->idCtx = own;
    EXPECT_EQ(tarnStsNoErr, F::free(state));
}

TYPED_TEST(FirStateTest, ChecksPointersThenLengths)
{
    using F = TypeParam;
    using State = typename F::State;
    const auto taps = this->wholeTaps(3, 1);
    auto out = taps;
    State* state = nullptr;
    State* const untouched = reinterpret_cast<State*>(&state);
    GuardedBytes memory(100000, Placement::offset(0));
    State* result = untouched;
    for (int len : {0, -1, INT_MIN}) {
        int size = 77;
        EXPECT_EQ(tarnStsFIRLenErr, F::getStateSize(len, &size));
        EXPECT_EQ(77, size);
        EXPECT_EQ(tarnStsNullPtrErr, F::getStateSize(len, nullptr));
        EXPECT_EQ(tarnStsFIRLenErr, this->initAlloc(&result, taps.data(), len, nullptr));
        EXPECT_EQ(tarnStsFIRLenErr, this->init(&result, taps.data(), len, nullptr, memory.bytes()));
        EXPECT_EQ(tarnStsNullPtrErr, this->initAlloc(&result, nullptr, len, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, this->initAlloc(nullptr, taps.data(), len, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, this->init(&result, taps.data(), len, nullptr, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, this->init(&result, nullptr, len, nullptr, memory.bytes()));
        EXPECT_EQ(tarnStsNullPtrErr, this->init(nullptr, taps.data(), len, nullptr, memory.bytes()));
    }
    EXPECT_EQ(untouched, result);
    ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), 3, nullptr));
    typename F::Sample sample{};
    expectChecks(F::getDlyLine, {}, object<const State>(state), array);
    expectChecks(F::setDlyLine, {}, object<State>(state), static_cast<const typename F::Sample*>(nullptr));
    expectChecks(
        +[](const typename F::Sample* src, typename F::Sample* dst, int n, State* s) {
            return F::filter(src, dst, n, s);
        },
        {}, array, array, length, object<State>(state));
    expectChecks(
        +[](typename F::Sample* srcDst, int n, State* s) { return F::inPlace(srcDst, n, s); }, {}, array, length,
        object<State>(state));
    EXPECT_EQ(tarnStsNullPtrErr, F::one(sample, nullptr, state));
    EXPECT_EQ(tarnStsNullPtrErr, F::one(sample, &sample, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, this->setTaps(nullptr, state));
    EXPECT_EQ(tarnStsNullPtrErr, this->setTaps(taps.data(), nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, this->getTaps(nullptr, out.data()));
    EXPECT_EQ(tarnStsNullPtrErr, this->getTaps(state, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, F::free(nullptr));
    F::free(state);
}

TYPED_TEST(FirStateTest, HasATransformFromItsThresholdOn)
{
    using F = TypeParam;
    using T = typename F::Tap;
    if constexpr (TestFixture::hasTransforms) {
        const int threshold = ComplexElement<T> ? 16 : std::is_same_v<T, Tarn32f> ? 64 : 32;
        for (int len : {1, threshold - 1, threshold, 63, 64, 127, 128, 255, 256, 1000}) {
            const auto taps = this->wholeTaps(len, 1);
            typename F::State* state = nullptr;
            ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), len, nullptr));
            EXPECT_EQ((len + 3) / 4 * 4 + 1, state->inHeadLen);
            EXPECT_EQ(len, state->dlyLen);
            EXPECT_EQ(1, state->isAllocated);
            if (len < threshold) {
                EXPECT_EQ(-1, state->fftLen);
                EXPECT_EQ(nullptr, state->pFFTSpec);
                EXPECT_EQ(nullptr, state->pFFTTaps);
            } else {
                int fftLen = 4;
                while (fftLen <= 2 * len)
                    fftLen *= 2;
                EXPECT_EQ(fftLen, state->fftLen) << len;
                EXPECT_NE(nullptr, state->pFFTSpec);
            }
            F::free(state);

            int size = 0;
            F::getStateSize(len, &size);
            std::vector<Tarn8u> memory(static_cast<std::size_t>(size));
            ASSERT_EQ(tarnStsNoErr, this->init(&state, taps.data(), len, nullptr, memory.data()));
            EXPECT_EQ(-1, state->fftLen);
            EXPECT_EQ(nullptr, state->pFFTSpec);
            EXPECT_EQ(nullptr, state->pThreadStatus);
            EXPECT_EQ(0, state->isAllocated);
        }
    } else {
        const auto taps = this->wholeTaps(20, 1);
        typename F::State* state = nullptr;
        ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), 20, nullptr));
        EXPECT_EQ((ComplexElement<typename F::Sample>) ? 42 : 24, state->inHeadLen);
        F::free(state);
    }
}

TEST(FirStateTest, RefusesWhatNoTransformAndNoMemoryCanHold)
{
    const Tarn64f tap = 1;
    TarnsFIRState_64f* state = nullptr;
    EXPECT_EQ(tarnStsFftOrderErr, tarnsFIRInitAlloc_64f(&state, &tap, 1 << 30, nullptr));
    EXPECT_EQ(tarnStsFftOrderErr, tarnsFIRInitAlloc_64f(&state, &tap, INT_MAX, nullptr));
    EXPECT_EQ(tarnStsNoMemErr, tarnsFIRInitAlloc_64f(&state, &tap, 1 << 28, nullptr));
    EXPECT_EQ(nullptr, state);
    const Tarn32s whole = 1;
    TarnsFIRState32s_16s* integer = nullptr;
    EXPECT_EQ(tarnStsNoMemErr, tarnsFIRInitAlloc32s_16s(&integer, &whole, INT_MAX, 0, nullptr));
    EXPECT_EQ(nullptr, integer);
}

#if defined(__i386__)
// The order and the width of the fields, by the words that a caller of the 32-bit library finds.
TEST(FirStateTest, HasTheFieldsOfThe32BitLibrary)
{
    EXPECT_EQ(3 * 4, offsetof(TarnsFIRState_32f, tapsLen));
    EXPECT_EQ(5 * 4, offsetof(TarnsFIRState_32f, inHeadLen));
    EXPECT_EQ(8 * 4, offsetof(TarnsFIRState_32f, pFFTSpec));
    EXPECT_EQ(10 * 4, offsetof(TarnsFIRState_32f, fftLen));
    EXPECT_EQ(11 * 4, offsetof(TarnsFIRState_32f, dlyLineIdx));
    EXPECT_EQ(13 * 4, offsetof(TarnsFIRState_32f, pTapsX4));
    EXPECT_EQ(20 * 4, offsetof(TarnsFIRState_32f, pTmp));
    EXPECT_EQ(22 * 4, offsetof(TarnsFIRState_32f, isAllocated));
    EXPECT_EQ(24 * 4, offsetof(TarnsFIRState_32f, downPhase));
    EXPECT_EQ(8 * 4, offsetof(TarnsFIRState32s_16s, tapsFactor));
    EXPECT_EQ(10 * 4, offsetof(TarnsFIRState32s_16s, dlyLineIdx));
    EXPECT_EQ(15 * 4, offsetof(TarnsFIRState32s_16s, isAllocated));
}
#endif

// A state of more bytes than a 32-bit length holds cannot be had, in whose memory it may be: nothing is written.
TYPED_TEST(FirStateTest, RefusesSizesThatDoNotFit)
{
    using F = TypeParam;
    using T = typename F::Tap;
    // The sizes grow with the number of taps, so that the first which does not fit is found by halving.
    const auto sizeOf = [](int taps) {
        int size = -77;
        const TarnStatus status = F::getStateSize(taps, &size);
        EXPECT_EQ(status == tarnStsNoErr ? 0 : tarnStsNoMemErr, status) << taps;
        EXPECT_EQ(status == tarnStsNoErr, size > 0) << taps << ", " << size;
        EXPECT_TRUE(status == tarnStsNoErr || size == -77) << taps << ", " << size;
        return size;
    };
    int fits = 1;
    int doesNot = INT_MAX;
    EXPECT_EQ(-77, sizeOf(doesNot));
    while (doesNot - fits > 1) {
        const int middle = fits + (doesNot - fits) / 2;
        (sizeOf(middle) > 0 ? fits : doesNot) = middle;
    }
    const int bytesATap = sizeOf(1001) - sizeOf(985); // of 16 taps
    EXPECT_NEAR(sizeOf(fits), INT_MAX, bytesATap);
    EXPECT_NEAR(2147483647.0 / bytesATap * 16, fits, 70'000); // less what a state of one tap takes
    for (const int taps : {30'000'000, 134'217'728, 268'435'456, INT_MAX - 4, INT_MAX})
        EXPECT_EQ(taps > fits, sizeOf(taps) == -77) << taps;

    const T tap{};
    Tarn8u memory[64] = {};
    auto* const unset = reinterpret_cast<typename F::State*>(memory);
    typename F::State* state = unset;
    for (const int taps : {doesNot, INT_MAX}) {
        EXPECT_EQ(tarnStsNoMemErr, this->init(&state, &tap, taps, nullptr, memory)) << taps;
        EXPECT_EQ(unset, state);
    }
    EXPECT_EQ(std::string(64, '\0'), std::string(memory, memory + 64));
}

} // namespace
} // namespace tarn::test
