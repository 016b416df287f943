// Filters of calls that are worth several threads: the same bits on any number of them and in a forked child, and no
// thread for calls that are not worth one.
#include "support/fir_stream.h"
#include "support/fpstate.h"
#include "support/processes.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <atomic>
#include <thread>

namespace tarn::test {
namespace {

template <class F>
class FirThreadsTest : public ::testing::Test {
protected:
    using S = typename F::Sample;

    static constexpr int scale = !F::scaled ? 0 : sizeof(fir::Component<S>) == 2 ? -2 : 2;
    static constexpr int samples = 150'000; // a millisecond of work with the fewest taps below

    // What a new state makes of a signal in one call.
    static FirSignal<F> filtered(const FirTaps<F>& taps, const FirSignal<F>& signal)
    {
        const FirOwner<F> owner(taps);
        const auto out = filterInCalls<F>(owner.get(), signal, {static_cast<int>(signal.size())}, scale);
        expectDelayLine<F>(owner.get(), signal, taps.size());
        return out;
    }
    static bool same(const FirSignal<F>& a, const FirSignal<F>& b)
    {
        return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(S)) == 0;
    }
};
using FloatTails =
    ::testing::Types<FirTail32f, FirTail32fc, FirTail32f_16s, FirTail32fc_16sc, FirTail64f, FirTail64fc, FirTail64f_32f,
                     FirTail64fc_32fc, FirTail64f_32s, FirTail64fc_32sc, FirTail64f_16s, FirTail64fc_16sc>;
TYPED_TEST_SUITE(FirThreadsTest, FloatTails);

// Both roads, and a rounding mode that a thread has only if it is lent.
TYPED_TEST(FirThreadsTest, FiltersWithTheSameBitsOnAnyNumberOfThreads)
{
    using F = TypeParam;
    const auto signal = firSignal<F>(this->samples);
    for (const int taps : {15, 129}) {
        const auto h = firTaps<F>(taps);
        for (const RoundingMode mode : {RoundingMode::nearest, RoundingMode::up}) {
            const RoundingModeScope rounding(mode);
            FirSignal<F> expected;
            for (const int threads : {1, 2, 3, 4}) {
                const ThreadsScope scope(threads);
                const auto out = this->filtered(h, signal);
                if (threads == 1)
                    expected = out;
                ASSERT_TRUE(this->same(expected, out)) << taps << " taps, " << threads << " threads";
            }
        }
    }
}

// A child has its parent's memory and none of its threads. It ends without the handlers of its parent.
TYPED_TEST(FirThreadsTest, FiltersInAForkedChild)
{
    using F = TypeParam;
    const ThreadsScope scope(2);
    const auto signal = firSignal<F>(this->samples);
    for (const int taps : {15, 129}) {
        const auto h = firTaps<F>(taps);
        const FirOwner<F> owner(h);
        const auto call = std::vector<int>{this->samples};
        const auto expected = filterInCalls<F>(owner.get(), signal, call, this->scale);
        F::setDlyLine(owner.get(), nullptr);
        EXPECT_EQ(0, statusOfChild([&] {
                      const int before = threadsOfProcess();
                      const auto out = filterInCalls<F>(owner.get(), signal, call, this->scale);
                      const auto again = this->filtered(h, signal);
                      return !this->same(expected, out) + 2 * !this->same(expected, again) +
                             4 * (threadsOfProcess() != before);
                  }))
            << taps << " taps";
        F::setDlyLine(owner.get(), nullptr);
        EXPECT_TRUE(this->same(expected, filterInCalls<F>(owner.get(), signal, call, this->scale)));
    }
}

// Callers at the same time: one of them gets the helpers, and all get their outputs.
TYPED_TEST(FirThreadsTest, FiltersForSeveralThreadsOfTheProgram)
{
    using F = TypeParam;
    const ThreadsScope scope(2);
    const auto h = firTaps<F>(129);
    const auto signal = firSignal<F>(this->samples);
    const auto expected = this->filtered(h, signal);
    std::atomic<int> wrong{0};
    std::vector<std::thread> callers;
    for (int i = 0; i < 3; ++i)
        callers.emplace_back([&] { wrong += this->same(expected, this->filtered(h, signal)) ? 0 : 1; });
    for (auto& caller : callers)
        caller.join();
    EXPECT_EQ(0, wrong);
}

// What a new process has more of threads after `run`.
template <class Run>
void expectThreads(int more, Run run)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            const ThreadsScope scope(2);
            const int before = threadsOfProcess();
            run();
            std::_Exit(threadsOfProcess() - before);
        },
        ::testing::ExitedWithCode(more), "");
}

TEST(FirThreadsOfCallsTest, AreOnlyMadeWhereTheWorkIsWorthThem)
{
    const auto filter = []<class F>(F, int taps, int n, int calls, bool inPlace) {
        return [=] {
            const FirOwner<F> owner(firTaps<F>(taps));
            const auto signal = firSignal<F>(n);
            auto out = signal;
            for (int i = 0; i < calls; ++i)
                inPlace ? F::inPlace(out.data(), n, owner.get()) : F::filter(signal.data(), out.data(), n, owner.get());
        };
    };
    // Above the number of samples from which calls may be shared out, and of little work all the same.
    expectThreads(0, filter(FirTail32f{}, 32, 1601, 100, false));
    expectThreads(0, filter(FirTail32f{}, 128, 16384, 100, false));
    expectThreads(0, filter(FirTail32fc{}, 15, 801, 100, false));
    // In place there is more than one part, each of them a call.
    expectThreads(0, filter(FirTail32fc{}, 20, 1'000'000, 1, true));
    expectThreads(0, filter(FirTail32f{}, 8, 1'000'000, 1, true));
    // Much work, of few samples or of many.
    expectThreads(1, filter(FirTail32f{}, 8, 1'000'000, 1, false));
    expectThreads(1, filter(FirTail32f{}, 128, 200'000, 1, false));
    expectThreads(1, filter(FirTail64fc{}, 1000, 32'000, 1, false));
}

} // namespace
} // namespace tarn::test
