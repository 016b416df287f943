// Adaptive filters in floating point: blocks against the rule in long double, single samples, states.
#include "levels/recursive/pslms_state.h"
#include "model/lms.h"
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"
#include "tarns/lms.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <limits>
#include <memory>

namespace tarn::test {
namespace {

using Wide = long double;

// -- The two families -------------------------------------------------------------------------------------------------

template <class StateType, class SampleType>
struct Functions {
    using State = StateType;
    using S = SampleType;
    TarnStatus (*initAlloc)(State**, const Tarn32f*, int, const S*, int);
    TarnStatus (*free)(State*);
    TarnStatus (*getTaps)(const State*, Tarn32f*);
    TarnStatus (*setDlyLine)(State*, const S*, int);
    TarnStatus (*getDlyLine)(const State*, S*, int*);
    TarnStatus (*filter)(const S*, const S*, S*, int, Tarn32f, State*);
    TarnStatus (*one)(S, S, S*, Tarn32f*, int, Tarn32f, S*, int*);
    Tarn32u id;
    Wide scale; // of sums
};

struct Floats {
    using F = Functions<TarnsFIRLMSState_32f, Tarn32f>;
    static constexpr F f = {tarnsFIRLMSInitAlloc_32f,
                            tarnsFIRLMSFree_32f,
                            tarnsFIRLMSGetTaps_32f,
                            tarnsFIRLMSSetDlyLine_32f,
                            tarnsFIRLMSGetDlyLine_32f,
                            tarnsFIRLMS_32f,
                            tarnsFIRLMSOne_Direct_32f,
                            0x4C4D5331,
                            1};
    static constexpr Wide amplitude = 1;
};
struct Integers {
    using F = Functions<TarnsFIRLMSState32f_16s, Tarn16s>;
    static constexpr F f = {tarnsFIRLMSInitAlloc32f_16s,
                            tarnsFIRLMSFree32f_16s,
                            tarnsFIRLMSGetTaps32f_16s,
                            tarnsFIRLMSSetDlyLine32f_16s,
                            tarnsFIRLMSGetDlyLine32f_16s,
                            tarnsFIRLMS32f_16s,
                            tarnsFIRLMSOne_Direct32f_16s,
                            0x004C4D53,
                            0x1p-16L};
    static constexpr Wide amplitude = 2048;
};

template <class Family>
class LmsTest : public ::testing::Test {
protected:
    using State = typename Family::F::State;
    using S = typename Family::F::S;
    static constexpr auto& f = Family::f;

    struct Freeing {
        void operator()(State* state) const { f.free(state); }
    };
    using Owner = std::unique_ptr<State, Freeing>;

    static Owner make(const std::vector<Tarn32f>& taps, const std::vector<S>& line = {}, int index = 0)
    {
        State* state = nullptr;
        EXPECT_EQ(tarnStsNoErr, f.initAlloc(&state, taps.data(), static_cast<int>(taps.size()),
                                            line.empty() ? nullptr : line.data(), index));
        return Owner(state);
    }
    static std::vector<S> signal(std::size_t len, std::uint64_t seed)
    {
        return randomValues<S>(len, seed, Values::unit);
    }
    /// Of gains that leave the output in range.
    static std::vector<Tarn32f> taps(std::size_t n, std::uint64_t seed)
    {
        auto values = randomValues<Tarn32f>(n, seed, Values::unit);
        for (Tarn32f& tap : values)
            tap *= static_cast<Tarn32f>(1 / f.scale) / std::sqrt(static_cast<Tarn32f>(n));
        return values;
    }
    /// A quarter of the step from which on a window of full amplitude would make the taps jump to and fro.
    static Tarn32f stepFor(std::size_t n)
    {
        const Wide power = Family::amplitude * Family::amplitude * f.scale * f.scale;
        return static_cast<Tarn32f>(0.25L / (static_cast<Wide>(n) * power));
    }
    static model::LmsFilter modelOf(const std::vector<Tarn32f>& naturalTaps, const std::vector<S>& line, int index,
                                    Wide scale, Wide gain)
    {
        return {{naturalTaps.rbegin(), naturalTaps.rend()},
                {{line.begin(), line.end()}, static_cast<std::size_t>(index)},
                scale,
                gain};
    }
    static void expectOutput(model::LmsFilter::Output expected, S actual, const std::string& where)
    {
        Wide value = expected.value, off = expected.error;
        if constexpr (std::is_integral_v<S>) {
            value = std::clamp(value, Wide{-32768}, Wide{32767});
            off += 0.5L;
        }
        ASSERT_NEAR(static_cast<double>(value), static_cast<double>(actual), static_cast<double>(off)) << where;
    }
};
using Families = ::testing::Types<Floats, Integers>;
TYPED_TEST_SUITE(LmsTest, Families);

constexpr int tapLens[] = {1,  2,  3,  4,  5,  7,  8,  9,  12, 15, 16,  31, 32,
                           33, 64, 77, 78, 79, 80, 81, 82, 83, 96, 127, 200};

// -- Blocks -----------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsTest, FollowsTheRule)
{
    using S = typename TestFixture::S;
    for (int n : tapLens) {
        const auto count = static_cast<std::size_t>(n);
        const auto taps = this->taps(count, 1);
        const auto line = this->signal(count, 2);
        const int index = n / 3;
        const auto state = this->make(taps, line, index);
        const Tarn32f mu = this->stepFor(count);
        auto model = this->modelOf(taps, line, index, this->f.scale, 2 * mu * this->f.scale);
        std::uint64_t seed = 3;
        for (int len : {1, 2, n, n + 1, 3 * n + 5, 200}) {
            const auto size = static_cast<std::size_t>(len);
            const GuardedArray<S> src(this->signal(size, ++seed), Placement::atEnd());
            const GuardedArray<S> ref(this->signal(size, ++seed), Placement::atEnd());
            GuardedArray<S> dst(size, Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, this->f.filter(src.data(), ref.data(), dst.data(), len, mu, state.get()));
            for (std::size_t i = 0; i < size; ++i)
                ASSERT_NO_FATAL_FAILURE(this->expectOutput(model.next(src.get(i), ref.get(i)), dst.get(i),
                                                           std::to_string(n) + " taps, " + std::to_string(len)));
            GuardedArray<Tarn32f> now(count, Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, this->f.getTaps(state.get(), now.data()));
            for (std::size_t k = 0; k < count; ++k)
                ASSERT_NEAR(static_cast<double>(model.taps[count - 1 - k]), now.get(k),
                            static_cast<double>(model.tapsOff));
            GuardedArray<S> ring(count, Placement::atEnd());
            int oldest = -1;
            ASSERT_EQ(tarnStsNoErr, this->f.getDlyLine(state.get(), ring.data(), &oldest));
            ASSERT_EQ(n < 80 ? 0 : static_cast<int>(model.ring.oldest()), oldest);
            for (std::size_t i = 0; i < count; ++i)
                ASSERT_EQ(static_cast<S>(model.ring.at(i)), ring.get((static_cast<std::size_t>(oldest) + i) % count));
        }
    }
}

// Exact numbers: no rounding hides a factor of two.
TEST(LmsExampleTest, ChangesTapsByTwiceTheStep)
{
    const Tarn32f taps[] = {0.5F, 0.25F}; // for the newest sample first
    const Tarn32f line[] = {8, 4};        // 4 is the newer one
    TarnsFIRLMSState_32f* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSInitAlloc_32f(&state, taps, 2, line, 0));
    const Tarn32f src[] = {2, 6}, ref[] = {10, 0};
    Tarn32f dst[2];
    ASSERT_EQ(tarnStsNoErr, tarnsFIRLMS_32f(src, ref, dst, 2, 0.125F, state));
    EXPECT_EQ(2, dst[0]); // 0.5 * 2 + 0.25 * 4; the error of 8 times 0.25 is 2, the taps become 4.5 and 8.25
    EXPECT_EQ(4.5F * 6 + 8.25F * 2, dst[1]);
    tarnsFIRLMSFree_32f(state);

    const Tarn32f scaled[] = {0x1p15F};
    TarnsFIRLMSState32f_16s* of16s = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSInitAlloc32f_16s(&of16s, scaled, 1, nullptr, 0));
    const Tarn16s samples[] = {3, 4}, wanted[] = {7, 0};
    Tarn16s out[2];
    ASSERT_EQ(tarnStsNoErr, tarnsFIRLMS32f_16s(samples, wanted, out, 2, 0x1p15F, of16s));
    EXPECT_EQ(2, out[0]); // 1.5, to even; the error of 5.5 times 3 goes to the tap
    Tarn32f tap = 0;
    tarnsFIRLMSGetTaps32f_16s(of16s, &tap);
    EXPECT_EQ(0x1p15F + 5.5F * 3 + (0 - 4 * (0x1p15F + 16.5F) * 0x1p-16F) * 4, tap);
    EXPECT_EQ(2, out[1]);
    tarnsFIRLMSFree32f_16s(of16s);
}

// However a signal is cut, wherever its arrays lie, and if one of them is the destination.
TYPED_TEST(LmsTest, DependsNeitherOnBlocksNorOnAddresses)
{
    using S = typename TestFixture::S;
    for (int n : {1, 3, 8, 21, 32, 79, 80, 85, 131}) {
        const auto count = static_cast<std::size_t>(n);
        const auto taps = this->taps(count, 1);
        const auto src = this->signal(700, 2), ref = this->signal(700, 3);
        const Tarn32f mu = this->stepFor(count);
        std::vector<S> expected(700);
        std::vector<Tarn32f> expectedTaps(count);
        const auto whole = this->make(taps);
        this->f.filter(src.data(), ref.data(), expected.data(), 700, mu, whole.get());
        this->f.getTaps(whole.get(), expectedTaps.data());
        for (unsigned place = 0; place < 6; ++place) {
            const auto state = this->make(taps);
            GuardedArray<S> in(src, Placement::offset(4 * place + 1)), wanted(ref, Placement::offset(7 * place));
            GuardedArray<S> own(700, Placement::offset(5 * place + 3));
            GuardedArray<S>& out = place % 3 == 1 ? in : place % 3 == 2 ? wanted : own;
            for (int done = 0, len = 1; done < 700;
                 done += len, len = std::min(len * 2 + static_cast<int>(place), 700 - done))
                ASSERT_EQ(tarnStsNoErr, this->f.filter(in.data() + done, wanted.data() + done, out.data() + done, len,
                                                       mu, state.get()));
            EXPECT_TRUE(arraysMatch(expected, out)) << n << " taps, place " << place;
            std::vector<Tarn32f> now(count);
            this->f.getTaps(state.get(), now.data());
            EXPECT_TRUE(arraysMatch<Tarn32f>(expectedTaps.data(), now.data(), count));
        }
    }
}

TYPED_TEST(LmsTest, IsAFixedFilterWithoutAStep)
{
    using S = typename TestFixture::S;
    for (int n : {5, 79, 80}) {
        const auto count = static_cast<std::size_t>(n);
        const auto taps = this->taps(count, 1);
        const auto state = this->make(taps);
        const auto src = this->signal(300, 2);
        std::vector<S> dst(300);
        ASSERT_EQ(tarnStsNoErr, this->f.filter(src.data(), src.data(), dst.data(), 300, 0, state.get()));
        std::vector<Tarn32f> now(count);
        this->f.getTaps(state.get(), now.data());
        EXPECT_TRUE(arraysMatch<Tarn32f>(taps.data(), now.data(), count));
        auto model = this->modelOf(taps, std::vector<S>(count), 0, this->f.scale, 0);
        for (std::size_t i = 0; i < dst.size(); ++i)
            ASSERT_NO_FATAL_FAILURE(this->expectOutput(model.next(src[i], 0), dst[i], "fixed"));
    }
}

// It finds the system that made the reference, on either road.
TYPED_TEST(LmsTest, Converges)
{
    using S = typename TestFixture::S;
    for (int n : {32, 79, 80, 128}) {
        const auto count = static_cast<std::size_t>(n);
        const auto system = this->taps(count, 1);
        const auto src = this->signal(12000, 2);
        std::vector<S> ref(src.size()), dst(src.size());
        const auto fixed = this->make(system);
        this->f.filter(src.data(), src.data(), ref.data(), 12000, 0, fixed.get());
        const auto state = this->make(std::vector<Tarn32f>(count));
        this->f.filter(src.data(), ref.data(), dst.data(), 12000, this->stepFor(count), state.get());
        std::vector<Tarn32f> found(count);
        this->f.getTaps(state.get(), found.data());
        Wide missed = 0, all = 0;
        for (std::size_t k = 0; k < count; ++k) {
            missed += (Wide{found[k]} - system[k]) * (Wide{found[k]} - system[k]);
            all += Wide{system[k]} * system[k];
        }
        EXPECT_LT(static_cast<double>(missed / all), 1e-4) << n;
    }
}

// -- 16-bit outputs ---------------------------------------------------------------------------------------------------

TEST(LmsRoundingTest, RoundsOutputsInTheCallersModeAndLimitsThem)
{
    constexpr Tarn32f limitless = std::numeric_limits<Tarn32f>::infinity();
    constexpr Tarn32f noNumber = std::numeric_limits<Tarn32f>::quiet_NaN();
    const Tarn32f sums[] = {0.5F, 1.5F,  2.5F,      -0.5F, -1.5F, 0.25F,     -0.75F,     32767.5F,
                            4e4F, -4e4F, -32768.5F, 4e9F,  -4e9F, limitless, -limitless, noNumber};
    for (RoundingMode mode : allRoundingModes) {
        for (const Tarn32f sum : sums) {
            const RoundingModeScope scope(mode);
            Tarn16s expected = -32768;
            if (sum == sum)
                expected =
                    static_cast<Tarn16s>(std::clamp<Wide>(std::nearbyint(static_cast<Wide>(sum)), -32768, 32767));
            for (int n : {3, 80}) {
                std::vector<Tarn32f> taps(static_cast<std::size_t>(n));
                taps[0] = sum * 0x1p16F;
                TarnsFIRLMSState32f_16s* state = nullptr;
                ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSInitAlloc32f_16s(&state, taps.data(), n, nullptr, 0));
                const Tarn16s one = 1;
                Tarn16s out = 77;
                ASSERT_EQ(tarnStsNoErr, tarnsFIRLMS32f_16s(&one, &one, &out, 1, 0, state));
                EXPECT_EQ(expected, out) << sum << ", mode " << static_cast<int>(mode);
                tarnsFIRLMSFree32f_16s(state);
            }
            Tarn32f tap = sum;
            Tarn16s line[2] = {};
            int index = 0;
            Tarn16s out = 77;
            ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSOne_Direct32f_16s(1, 1, &out, &tap, 1, 0, line, &index));
            EXPECT_EQ(expected, out) << sum << ", mode " << static_cast<int>(mode);
        }
    }
}

// -- States -----------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsTest, KeepsTheDelayLine)
{
    using S = typename TestFixture::S;
    for (int n : {1, 2, 5, 79, 80}) {
        const auto count = static_cast<std::size_t>(n);
        const auto first = this->signal(count, 1), second = this->signal(count, 2);
        // The index is the caller's, whatever it is.
        for (int index : {0, n - 1, n, 1000, -3, INT_MAX, INT_MIN}) {
            const auto state = this->make(this->taps(count, 3), first, index);
            GuardedArray<S> back(count, Placement::atEnd());
            int got = 77;
            ASSERT_EQ(tarnStsNoErr, this->f.getDlyLine(state.get(), back.data(), &got));
            EXPECT_TRUE(arraysMatch(first, back));
            EXPECT_EQ(index, got);
            ASSERT_EQ(tarnStsNoErr, this->f.setDlyLine(state.get(), second.data(), index));
            const int stride = state->dlyCopyStride / 4;
            for (int copy = 0; copy < 4; ++copy)
                for (int i = 0; i < 2 * n; ++i)
                    ASSERT_EQ(static_cast<Tarn32f>(second[static_cast<std::size_t>(i % n)]),
                              state->pDlyLine[copy * stride + i]);
            // An index beyond the ring means its place in it: the samples that are met are those.
            const int place = ((index % n) + n) % n;
            const auto same = this->make(this->taps(count, 3), second, place);
            const auto src = this->signal(50, 4);
            std::vector<S> expected(50), out(50);
            this->f.filter(src.data(), src.data(), expected.data(), 50, this->stepFor(count), same.get());
            this->f.filter(src.data(), src.data(), out.data(), 50, this->stepFor(count), state.get());
            EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), 50)) << n << " taps, index " << index;
            ASSERT_EQ(tarnStsNoErr, this->f.setDlyLine(state.get(), nullptr, index));
            ASSERT_EQ(tarnStsNoErr, this->f.getDlyLine(state.get(), back.data(), &got));
            EXPECT_TRUE(arraysMatch(std::vector<S>(count), back));
            EXPECT_EQ(index, got);
        }
    }
}

TYPED_TEST(LmsTest, HasTheKnownLayout)
{
    using State = typename TestFixture::State;
    for (int n : tapLens) {
        const auto taps = this->taps(static_cast<std::size_t>(n), 1);
        const auto state = this->make(taps, {}, 5);
        EXPECT_EQ(this->f.id, state->idCtx);
        EXPECT_EQ(n, state->tapsLen);
        EXPECT_EQ(5, state->dlyLineIndex);
        EXPECT_EQ(((8 * n + 27) & ~15) + 4, state->dlyCopyStride);
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(state->pTaps) % 16);
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(state->pDlyLine) % 16);
        for (int k = 0; k < n; ++k)
            ASSERT_EQ(taps[static_cast<std::size_t>(n - 1 - k)], state->pTaps[k]);
        const long long bytes = ((4LL * n + 15) & ~15LL) + ((8LL * n + 27) >> 4) * 64 + 32;
        const auto* const end = reinterpret_cast<const Tarn8u*>(state->pDlyLine) + ((8 * n + 27) >> 4) * 64;
        if (sizeof(void*) == 4) {
            EXPECT_EQ(bytes, end - reinterpret_cast<const Tarn8u*>(state.get()));
            EXPECT_EQ(20u, offsetof(State, dlyCopyStride));
        }
    }
}

TYPED_TEST(LmsTest, AllocatesOneBlockOfTheKnownSize)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns the memory";
    using State = typename TestFixture::State;
    for (int n : {1, 2, 33, 80}) {
        State* state = nullptr;
        std::size_t largest = 0;
        {
            MemoryWatch watch;
            EXPECT_EQ(tarnStsNoErr, this->f.initAlloc(&state, nullptr, n, nullptr, 0));
            largest = watch.largest();
            EXPECT_EQ(1, watch.allocated());
            EXPECT_EQ(tarnStsNoErr, this->f.free(state));
            EXPECT_EQ(0, watch.outstanding());
        }
        std::size_t plain = 0;
        {
            MemoryWatch watch;
            tarnsFree(tarnsMalloc_8u(((4 * n + 15) & ~15) + ((8 * n + 27) >> 4) * 64 + 32));
            plain = watch.largest();
        }
        if (sizeof(void*) == 4)
            EXPECT_EQ(plain, largest) << n;
        else
            EXPECT_LE(plain, largest) << n;
        State* const untouched = reinterpret_cast<State*>(&largest);
        state = untouched;
        TarnStatus status = tarnStsNoErr;
        {
            MemoryWatch watch(0);
            status = this->f.initAlloc(&state, nullptr, n, nullptr, 0);
        }
        EXPECT_EQ(tarnStsNoMemErr, status);
        EXPECT_EQ(untouched, state);
    }
}

TYPED_TEST(LmsTest, ChecksItsArguments)
{
    using S = typename TestFixture::S;
    using State = typename TestFixture::State;
    auto& f = this->f;
    State* result = nullptr;
    for (int bad : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&result, nullptr, bad, nullptr, 0));
        EXPECT_EQ(tarnStsNullPtrErr, f.initAlloc(nullptr, nullptr, bad, nullptr, 0));
    }
    for (int vast : {INT_MAX, 1 << 28, 60000000})
        EXPECT_EQ(tarnStsNoMemErr, f.initAlloc(&result, nullptr, vast, nullptr, 0)) << vast;
    EXPECT_EQ(nullptr, result);
    EXPECT_EQ(tarnStsNoErr, f.free(nullptr));

    const auto owner = this->make(this->taps(4, 1));
    State* const state = owner.get();
    S x[4] = {}, dst[4] = {5, 5, 5, 5};
    Tarn32f taps[4];
    int index = 9;
    for (int len : {0, -1, INT_MIN, 4}) {
        for (const S* p : {static_cast<const S*>(nullptr), static_cast<const S*>(x)}) {
            const TarnStatus expected = p == nullptr ? tarnStsNullPtrErr
                                        : len < 1    ? tarnStsSizeErr
                                                     : tarnStsContextMatchErr;
            state->idCtx ^= 1;
            EXPECT_EQ(expected, f.filter(p, x, dst, len, 1, state));
            EXPECT_EQ(expected, f.filter(x, p, dst, len, 1, state));
            EXPECT_EQ(expected, f.filter(x, x, p == nullptr ? nullptr : dst, len, 1, state));
            EXPECT_EQ(tarnStsNullPtrErr, f.filter(p, x, dst, len, 1, nullptr));
            state->idCtx ^= 1;
        }
    }
    for (S value : dst)
        EXPECT_EQ(S{5}, value);
    EXPECT_EQ(tarnStsNullPtrErr, f.getTaps(nullptr, taps));
    EXPECT_EQ(tarnStsNullPtrErr, f.getTaps(state, nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, f.setDlyLine(nullptr, x, 0));
    EXPECT_EQ(tarnStsNullPtrErr, f.getDlyLine(nullptr, x, &index));
    EXPECT_EQ(tarnStsNullPtrErr, f.getDlyLine(state, nullptr, &index));
    EXPECT_EQ(tarnStsNullPtrErr, f.getDlyLine(state, x, nullptr));
    const Tarn32u others[] = {0, 0x4C4D5331, 0x004C4D53, 0x4C4D5352, 0x4C4D5343, 0x534D4C00};
    for (Tarn32u other : others) {
        if (other == f.id)
            continue;
        state->idCtx = other;
        EXPECT_EQ(tarnStsContextMatchErr, f.getTaps(state, taps));
        EXPECT_EQ(tarnStsNullPtrErr, f.getTaps(state, nullptr));
        EXPECT_EQ(tarnStsContextMatchErr, f.setDlyLine(state, nullptr, 0));
        EXPECT_EQ(tarnStsContextMatchErr, f.getDlyLine(state, x, &index));
        EXPECT_EQ(tarnStsContextMatchErr, f.filter(x, x, dst, 4, 1, state));
    }
    EXPECT_EQ(9, index);
    // Freed at the end with an identifier that is not its own.
}

// -- One sample -------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsTest, FiltersOneSampleWithoutAState)
{
    using S = typename TestFixture::S;
    for (int n : tapLens) {
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

} // namespace
} // namespace tarn::test
