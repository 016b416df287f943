// Single-rate filters on the road of transforms, and on several threads.
#include "levels/fir/psfir_state.h"
#include "support/fir_stream.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace tarn::test {
namespace {

template <class F>
class FirTransformTest : public ::testing::Test {
protected:
    using T = typename F::Tap;

    // 16-bit integers get two bits more; 32-bit ones two less, lest single samples wrap.
    static constexpr int scale = !F::scaled ? 0 : sizeof(fir::Component<typename F::Sample>) == 2 ? -2 : 2;
    static constexpr int threshold = ComplexElement<T> ? 16 : std::is_same_v<T, Tarn32f> ? 64 : 32;
    static constexpr int longestOnOneThread = ComplexElement<T> ? 800 : 1600;
    // Results of the two roads differ in their last bits, which samples with fewer bits do not show.
    static constexpr bool showsRoad = std::is_same_v<T, typename F::Sample>;

    static bool same(const FirSignal<F>& a, const FirSignal<F>& b)
    {
        return std::memcmp(a.data(), b.data(), a.size() * sizeof(a[0])) == 0;
    }
    static long double bound(const FirTaps<F>& h, int fftLen)
    {
        return fir::transformBound(h, largestSample<F>(), fftLen);
    }
};
using FloatTails =
    ::testing::Types<FirTail32f, FirTail32fc, FirTail32f_16s, FirTail32fc_16sc, FirTail64f, FirTail64fc, FirTail64f_32f,
                     FirTail64fc_32fc, FirTail64f_32s, FirTail64fc_32sc, FirTail64f_16s, FirTail64fc_16sc>;
TYPED_TEST_SUITE(FirTransformTest, FloatTails);

// A call of fftLen samples is filtered directly, one of a sample more by transforms.
TYPED_TEST(FirTransformTest, TakesTransformsAboveTheirLength)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {this->threshold, this->threshold + 1, 2 * this->threshold, 100, 127, 128}) {
        const auto h = firTaps<F>(taps);
        const FirOwner<F> owner(h);
        const int fftLen = owner->fftLen;
        ASSERT_GT(fftLen, 2 * taps);
        ASSERT_LE(fftLen, 4 * taps);
        for (int n : {1, fftLen - 1, fftLen, fftLen + 1, fftLen + 2}) {
            const auto signal = firSignal<F>(n);
            F::setDlyLine(owner.get(), nullptr);
            const auto out = filterInCalls<F>(owner.get(), signal, {n}, this->scale);
            const auto direct = directModel<F>(h, signal, this->scale);
            if (n <= fftLen) {
                EXPECT_TRUE(arraysMatch<S>(direct.data(), out.data(), out.size())) << taps << " taps, " << n;
            } else if (this->showsRoad) {
                EXPECT_FALSE(this->same(direct, out)) << taps << " taps, " << n;
            }
            EXPECT_TRUE(withinBound<F>(h, signal, out, this->bound(h, fftLen), this->scale)) << taps << ", " << n;
            expectDelayLine<F>(owner.get(), signal, h.size());
        }
    }
}

// Every number of samples around whole blocks and around the number from which threads share them; guarded arrays.
TYPED_TEST(FirTransformTest, FiltersAnyNumberOfBlocks)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const std::vector<int> threadCounts = sweepsAreQuick() ? std::vector{4} : std::vector{1, 2, 4};
    for (int taps : sweepsAreQuick() ? std::vector{this->threshold, 128} : std::vector{this->threshold, 70, 128}) {
        const auto h = firTaps<F>(taps);
        const FirOwner<F> owner(h);
        const int fftLen = owner->fftLen;
        const int useful = fftLen + 1 - taps;
        const int limit = this->longestOnOneThread;
        std::vector<int> lengths = {fftLen + 1, 2 * useful, limit - 1, limit, limit + 1, 2 * limit + 3, 5000};
        for (int blocks : {2, 3, 4, 9})
            for (int more : {-1, 0, 1, taps - 1, taps, taps + 1})
                lengths.push_back(blocks * useful + more);
        unsigned gap = 0;
        for (int n : lengths) {
            if (n <= fftLen)
                continue;
            const auto signal = firSignal<F>(n);
            const GuardedArray<S> src(signal, Placement::atEnd(gap = (gap + 1) % 5));
            GuardedArray<S> dst(signal.size(), Placement::atEnd((gap + 2) % 5));
            for (int threads : threadCounts) {
                const ThreadsScope scope(threads);
                const FirOwner<F> own(h);
                const FpState before = FpState::current();
                dst.fillPattern();
                ASSERT_EQ(tarnStsNoErr, F::filter(src.data(), dst.data(), n, own.get(), this->scale));
                EXPECT_EQ("", before.changesSince());
                ASSERT_TRUE(withinBound<F>(h, signal, dst.copy(), this->bound(h, fftLen), this->scale))
                    << taps << " taps, " << n << " samples, " << threads << " threads";
                ASSERT_TRUE(arraysMatch(signal, src));
                expectDelayLine<F>(own.get(), signal, h.size());
            }
        }
    }
}

// Random cuts: blocks short and long, and single samples, on one state.
TYPED_TEST(FirTransformTest, ContinuesAStreamOverAllRoads)
{
    using F = TypeParam;
    const auto h = firTaps<F>(this->threshold + 13);
    const auto signal = firSignal<F>(20000);
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
        const FirOwner<F> owner(h);
        FirSignal<F> out(signal.size());
        Random random(seed);
        for (std::size_t i = 0; i < signal.size();) {
            const std::size_t kind = random.below(4);
            const std::size_t most = kind == 0 ? 1 : kind == 1 ? 40 : kind == 2 ? 700 : 4000;
            const std::size_t n = std::min(1 + random.below(most), signal.size() - i);
            if (kind == 0)
                ASSERT_EQ(tarnStsNoErr, F::one(signal[i], &out[i], owner.get(), this->scale));
            else if (random.below(2) == 0) {
                ASSERT_EQ(tarnStsNoErr, F::filter(&signal[i], &out[i], static_cast<int>(n), owner.get(), this->scale));
            } else {
                std::copy_n(&signal[i], n, &out[i]);
                ASSERT_EQ(tarnStsNoErr, F::inPlace(&out[i], static_cast<int>(n), owner.get(), this->scale));
            }
            i += kind == 0 ? 1 : n;
        }
        EXPECT_TRUE(withinBound<F>(h, signal, out, this->bound(h, owner->fftLen), this->scale)) << "seed " << seed;
        expectDelayLine<F>(owner.get(), signal, h.size());
    }
}

TYPED_TEST(FirTransformTest, TakesNewTapsWithinAStream)
{
    using F = TypeParam;
    const auto first = firTaps<F>(this->threshold, 3);
    const auto second = firTaps<F>(this->threshold, 4);
    const auto signal = firSignal<F>(4000);
    const FirOwner<F> owner(first);
    const FirSignal<F> head(signal.begin(), signal.begin() + 2000);
    const FirSignal<F> tail(signal.begin() + 2000, signal.end());
    filterInCalls<F>(owner.get(), head, {2000}, this->scale);
    ASSERT_EQ(tarnStsNoErr, F::setTaps(second.data(), owner.get()));
    const auto out = filterInCalls<F>(owner.get(), tail, {2000}, this->scale);
    // The exact outputs of the whole signal with the second taps, from where the first call ended.
    FirSignal<F> whole = out;
    const FirOwner<F> other(second);
    whole = filterInCalls<F>(other.get(), head, {2000}, this->scale);
    whole.insert(whole.end(), out.begin(), out.end());
    EXPECT_TRUE(withinBound<F>(second, signal, whole, this->bound(second, owner->fftLen), this->scale));
}

// Threads change no bit, wherever the outputs are computed; nor do they change the rounding mode.
TYPED_TEST(FirTransformTest, GivesTheSameBitsOnAnyNumberOfThreads)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {1, 3, 15, this->threshold, 128}) {
        const auto h = firTaps<F>(taps);
        for (int n :
             {this->longestOnOneThread, this->longestOnOneThread + 1, this->longestOnOneThread + 8, 2049, 5000}) {
            const auto signal = firSignal<F>(n);
            for (RoundingMode mode : {RoundingMode::nearest, RoundingMode::up}) {
                const RoundingModeScope rounding(mode);
                FirSignal<F> expected;
                for (int threads : {1, 2, 3, 4}) {
                    const ThreadsScope scope(threads);
                    const FirOwner<F> owner(h);
                    const auto out = filterInCalls<F>(owner.get(), signal, {n}, this->scale);
                    if (threads == 1)
                        expected = out;
                    ASSERT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size()))
                        << taps << " taps, " << n << " samples, " << threads << " threads";
                }
            }
        }
    }
}

// The buffers are those of the threads at creation: more of them later are not used, fewer are enough.
TYPED_TEST(FirTransformTest, OutlivesAChangeOfThreads)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const auto h = firTaps<F>(this->threshold);
    const auto signal = firSignal<F>(6000);
    FirSignal<F> expected;
    for (int created : {1, 2, 4}) {
        const ThreadsScope atCreation(created);
        const FirOwner<F> owner(h);
        for (int later : {1, 2, 8}) {
            const ThreadsScope atCall(later);
            F::setDlyLine(owner.get(), nullptr);
            const auto out = filterInCalls<F>(owner.get(), signal, {6000}, this->scale);
            if (expected.empty())
                expected = out;
            ASSERT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << created << " then " << later;
        }
    }
}

// A transform that fails ends the call with its status, on one thread and on several, and is told by SetTaps.
TYPED_TEST(FirTransformTest, TellsWhichTransformFailed)
{
    using F = TypeParam;
    using T = typename F::Tap;
    const auto h = firTaps<F>(this->threshold);
    for (int n : {700, 5000}) {
        const FirOwner<F> owner(h);
        const auto signal = firSignal<F>(n);
        FirSignal<F> out(signal.size());
        auto* const id = reinterpret_cast<Tarn32s*>(owner->pFFTSpec);
        const Tarn32s own = *id;
        *id = 99;
        F::setDlyLine(owner.get(), nullptr);
        EXPECT_EQ(tarnStsContextMatchErr, F::filter(signal.data(), out.data(), n, owner.get(), this->scale));
        // A short call ends there. A long one goes on, whether there are threads or not, so its delay line is the next
        // call's.
        const auto* const line = reinterpret_cast<const Tarn8u*>(owner->pDlyLine);
        const bool isSilent = std::all_of(line, line + sizeof(T) * h.size(), [](Tarn8u byte) { return byte == 0; });
        EXPECT_EQ(n < this->longestOnOneThread, isSilent) << n;
        out = signal;
        EXPECT_EQ(tarnStsContextMatchErr, F::inPlace(out.data(), n, owner.get(), this->scale));
        EXPECT_TRUE(this->same(signal, out)) << "a part that failed is not copied";
        *id = own;
        F::setDlyLine(owner.get(), nullptr);
        EXPECT_EQ(tarnStsNoErr, F::filter(signal.data(), out.data(), n, owner.get(), this->scale));
    }
    const FirOwner<F> owner(h);
    auto* const spec = owner->pFFTSpec;
    auto* const id = reinterpret_cast<Tarn32s*>(spec);
    const Tarn32s own = *id;
    const int fftLen = owner->fftLen;
    *id = 99;
    EXPECT_EQ(tarnStsContextMatchErr, F::setTaps(h.data(), owner.get()));
    EXPECT_EQ(nullptr, owner->pFFTSpec);
    // Double precision gives the road up; single precision is left with one that fails.
    const bool givesUp = std::is_same_v<fir::Component<T>, Tarn64f>;
    EXPECT_EQ(givesUp ? -1 : fftLen, owner->fftLen);
    const auto signal = firSignal<F>(1000);
    FirSignal<F> out(signal.size());
    EXPECT_EQ(givesUp ? tarnStsNoErr : tarnStsNullPtrErr,
              F::filter(signal.data(), out.data(), 1000, owner.get(), this->scale));
    *id = own;
    owner->pFFTSpec = spec; // refused to be freed: it was no specification then
}

} // namespace
} // namespace tarn::test
