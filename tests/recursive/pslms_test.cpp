// Adaptive filters in floating point, a block at a time: blocks against the rule in long double, and their states.
#include "support/lms_tails.h"
#include "support/memory_watch.h"

#include <climits>

namespace tarn::test {
namespace {

TYPED_TEST_SUITE(LmsTest, LmsFamilies);

// -- Blocks -----------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsTest, FollowsTheRule)
{
    using S = typename TestFixture::S;
    for (int n : lmsTapLens) {
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
    for (int n : {3, 80})
        expectLimitedOutputs([=](Tarn32f sum) {
            std::vector<Tarn32f> taps(static_cast<std::size_t>(n));
            taps[0] = sum * 0x1p16F;
            TarnsFIRLMSState32f_16s* state = nullptr;
            EXPECT_EQ(tarnStsNoErr, tarnsFIRLMSInitAlloc32f_16s(&state, taps.data(), n, nullptr, 0));
            const Tarn16s one = 1;
            Tarn16s out = 77;
            EXPECT_EQ(tarnStsNoErr, tarnsFIRLMS32f_16s(&one, &one, &out, 1, 0, state));
            tarnsFIRLMSFree32f_16s(state);
            return out;
        });
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
    for (int n : lmsTapLens) {
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

} // namespace
} // namespace tarn::test
