// Single-rate filters with floating taps: the direct road to the bit, single samples, in place.
#include "levels/fir/psfir_state.h"
#include "support/checks.h"
#include "support/fir_stream.h"
#include "support/fpstate.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

// Behind the filter functions, without their checks.
extern "C" {
TarnStatus tarnsFIRSR_32f(const Tarn32f*, Tarn32f*, int, TarnsFIRState_32f*);
TarnStatus fftFIRSR_32f(const Tarn32f*, Tarn32f*, int, TarnsFIRState_32f*);
TarnStatus tarnsFIRSR_32f_I(Tarn32f*, int, TarnsFIRState_32f*);
TarnStatus tarnsFIRSR32f_16s_Sfs(const Tarn16s*, Tarn16s*, int, TarnsFIRState32f_16s*, int);
TarnStatus ownsFIRSR32f_16s_Sfs(const Tarn16s*, Tarn16s*, int, TarnsFIRState32f_16s*, int);
TarnStatus fftFIRSR32f_16s_Sfs(const Tarn16s*, Tarn16s*, int, TarnsFIRState32f_16s*, int);
TarnStatus tarnsFIRSR32f_16s_ISfs(Tarn16s*, int, TarnsFIRState32f_16s*, int);
}

namespace tarn::test {
namespace {

template <class F>
class FirTest : public ::testing::Test {
protected:
    static constexpr int scale = F::scaled ? 3 : 0;
};
using FloatTails =
    ::testing::Types<FirTail32f, FirTail32fc, FirTail32f_16s, FirTail32fc_16sc, FirTail64f, FirTail64fc, FirTail64f_32f,
                     FirTail64fc_32fc, FirTail64f_32s, FirTail64fc_32sc, FirTail64f_16s, FirTail64fc_16sc>;
TYPED_TEST_SUITE(FirTest, FloatTails);

// The order of additions is that of the model for every number of taps, wherever a signal is cut.
TYPED_TEST(FirTest, DirectRoadAddsInTheStatedOrder)
{
    using F = TypeParam;
    for (int taps : {1,  2,  3,  4,  5,  6,  7,  8,  9,   10,  11,  12,  13,  15,
                     16, 17, 31, 32, 33, 62, 64, 65, 100, 255, 256, 257, 300, 517}) {
        const auto h = firTaps<F>(taps);
        const auto signal = firSignal<F>(taps < 100 ? 1500 : 1200);
        const auto expected = directModel<F>(h, signal, this->scale);
        const int head = (taps + 3) / 4 * 4 + 1;
        for (const std::vector<int>& cuts :
             {std::vector<int>{5000}, {head, 1, head + 1, head - 1}, {1, 2, 3, 4, 5, 6, 7}, {100, 513, 1}}) {
            const auto owner = FirOwner<F>::inMemory(h);
            const auto out = filterInCalls<F>(owner.get(), signal, cuts, this->scale);
            ASSERT_TRUE(arraysMatch<typename F::Sample>(expected.data(), out.data(), out.size()))
                << taps << " taps, calls of " << cuts[0] << " ...";
            expectDelayLine<F>(owner.get(), signal, h.size());
        }
    }
}

TYPED_TEST(FirTest, StartsFromTheGivenDelayLine)
{
    using F = TypeParam;
    for (int taps : {1, 5, 20}) {
        const auto h = firTaps<F>(taps);
        const auto signal = firSignal<F>(taps + 50);
        const auto expected = directModel<F>(h, signal, this->scale);
        FirSignal<F> line(signal.rend() - taps, signal.rend());
        const auto owner = FirOwner<F>::inMemory(h, line.data());
        const FirSignal<F> rest(signal.begin() + taps, signal.end());
        const auto out = filterInCalls<F>(owner.get(), rest, {7}, this->scale);
        EXPECT_TRUE(arraysMatch<typename F::Sample>(&expected[h.size()], out.data(), out.size())) << taps;
    }
}

// Any address for source and destination, nothing read or written beside them, the control words as they were.
TYPED_TEST(FirTest, TakesArraysAtAnyAddress)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {1, 3, 6, 20}) {
        const auto h = firTaps<F>(taps);
        for (int n : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 64, 70, 1027}) {
            const auto signal = firSignal<F>(n);
            const auto expected = directModel<F>(h, signal, this->scale);
            for (unsigned bytes = 0; bytes < 18; ++bytes) {
                const auto owner = FirOwner<F>::inMemory(h);
                const GuardedArray<S> src(signal,
                                          bytes == 17 ? Placement::atStart() : Placement::atEnd(bytes * 5 % 17));
                GuardedArray<S> dst(signal.size(), bytes == 16 ? Placement::atEnd() : Placement::offset(bytes));
                const FpState before = FpState::current();
                ASSERT_EQ(tarnStsNoErr, F::filter(src.data(), dst.data(), n, owner.get(), this->scale));
                EXPECT_EQ("", before.changesSince());
                ASSERT_TRUE(arraysMatch(expected, dst)) << taps << " taps, " << n << " samples, offset " << bytes;
                ASSERT_TRUE(arraysMatch(signal, src));
                F::setDlyLine(owner.get(), nullptr);
                dst.assign(signal);
                ASSERT_EQ(tarnStsNoErr, F::inPlace(dst.data(), n, owner.get(), this->scale));
                ASSERT_TRUE(arraysMatch(expected, dst)) << "in place";
            }
        }
    }
}

TYPED_TEST(FirTest, SingleSamplesContinueTheSignal)
{
    using F = TypeParam;
    using S = typename F::Sample;
    using T = typename F::Tap;
    for (int taps : {1, 2, 3, 4, 5, 7, 8, 11, 12, 13, 14, 15, 16, 17, 18, 23, 24, 31, 64, 100}) {
        const auto h = firTaps<F>(taps);
        const auto signal = firSignal<F>(3 * taps + 40);
        const auto line = firLine<F>(h, signal);
        const FirOwner<F> owner(h);
        FirSignal<F> out(signal.size());
        for (std::size_t i = 0; i < signal.size(); ++i)
            ASSERT_EQ(tarnStsNoErr, F::one(signal[i], &out[i], owner.get(), this->scale));
        const long double bound = fir::orderBound(h, largestSample<F>(), taps + 4);
        EXPECT_TRUE(withinBound<F>(h, signal, out, bound, this->scale)) << taps << " taps";
        expectDelayLine<F>(owner.get(), signal, h.size());
        // Twelve real taps are the first that are added in another order.
        if (taps < 12 && !ComplexElement<T>) {
            const auto inOrder = fir::asSamples<S>(fir::outputsInOrder(h, line), this->scale);
            EXPECT_TRUE(arraysMatch<S>(inOrder.data(), out.data(), out.size())) << taps << " taps";
        }

        // Turn about with blocks: the same up to rounding, and the blocks to the bit.
        F::setDlyLine(owner.get(), nullptr);
        const auto direct = directModel<F>(h, signal, this->scale);
        for (std::size_t i = 0, turn = 0; i < signal.size(); ++turn) {
            const std::size_t n = std::min(turn % 7 + 1, signal.size() - i);
            if (turn % 2 == 0) {
                for (std::size_t k = 0; k < n; ++k)
                    F::one(signal[i + k], &out[i + k], owner.get(), this->scale);
            } else {
                F::filter(&signal[i], &out[i], static_cast<int>(n), owner.get(), this->scale);
                ASSERT_TRUE(arraysMatch<S>(&direct[i], &out[i], n)) << taps << " taps, output " << i;
            }
            i += n;
        }
        EXPECT_TRUE(withinBound<F>(h, signal, out, bound, this->scale)) << taps << " taps, turn about";
    }
}

// Outputs that are whole numbers need no tolerance, on any road and at any scale.
TYPED_TEST(FirTest, ScalesRoundsAndSaturates)
{
    using F = TypeParam;
    using S = typename F::Sample;
    using T = typename F::Tap;
    if constexpr (F::scaled) {
        using Real = fir::Component<S>;
        FirTaps<F> h(3);
        FirSignal<F> signal(400);
        Random random(5);
        const auto tap = [&] { return static_cast<fir::Component<T>>(static_cast<int>(random.below(17)) - 8); };
        const auto sample = [&] { return static_cast<Real>(static_cast<int>(random.below(65536)) - 32768); };
        for (T& x : h) {
            if constexpr (ComplexElement<T>)
                x = {tap(), tap()};
            else
                x = tap();
        }
        for (S& x : signal) {
            if constexpr (ComplexElement<S>)
                x = {sample(), sample()};
            else
                x = sample();
        }
        for (int s : {-130, -127, -40, -20, -16, -15, -9, -2, -1, 0, 1, 2, 3, 7, 8, 15, 16, 17, 20, 21, 25, 40, 126}) {
            const auto expected = directModel<F>(h, signal, s);
            const auto owner = FirOwner<F>::inMemory(h);
            const auto out = filterInCalls<F>(owner.get(), signal, {1, 50, 200}, s);
            EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << "scale " << s;
            if (s < -126)
                continue; // no float
            F::setDlyLine(owner.get(), nullptr);
            for (std::size_t i = 0; i < signal.size(); ++i) {
                S y{};
                F::one(signal[i], &y, owner.get(), s);
                const auto single = [&](Real block, Real one) {
                    // From 2^31 on a single sample is the lowest integer; 32-bit results that saturate below cannot be.
                    const bool wraps = one == std::numeric_limits<Real>::lowest() && s <= -9;
                    return block == one || (block == std::numeric_limits<Real>::max() && wraps);
                };
                if constexpr (ComplexElement<S>)
                    ASSERT_TRUE(single(expected[i].re, y.re) && single(expected[i].im, y.im)) << "scale " << s;
                else
                    ASSERT_TRUE(single(expected[i], y)) << "scale " << s << ", output " << i;
            }
        }
    }
}

TYPED_TEST(FirTest, ComputesInTheCallersRoundingMode)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const auto h = firTaps<F>(9);
    const auto signal = firSignal<F>(4000);
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const auto expected = directModel<F>(h, signal, this->scale);
        const auto owner = FirOwner<F>::inMemory(h);
        const FpState before = FpState::current();
        const auto out = filterInCalls<F>(owner.get(), signal, {4000}, this->scale);
        EXPECT_EQ("", before.changesSince());
        EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << "mode " << static_cast<int>(mode);
    }
}

TYPED_TEST(FirTest, InPlaceIsTheSameInParts)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {3, 17, 80, 200}) {
        const auto h = firTaps<F>(taps);
        for (int n : {1, 30, 4095, 4096, 4097, 5000, 8192, 8193, 9000}) {
            const auto signal = firSignal<F>(n);
            for (const bool allocated : {true, false}) {
                auto owner = allocated ? FirOwner<F>(h) : FirOwner<F>::inMemory(h);
                auto copy = allocated ? FirOwner<F>(h) : FirOwner<F>::inMemory(h);
                // One type: the parts decide for themselves; otherwise the call's length does.
                const bool transforms = owner->fftLen >= 1 && owner->fftLen < n;
                const int part = std::is_same_v<S, typename F::Tap> || !transforms ? 4096 : 8192;
                FirSignal<F> inPlace = signal;
                ASSERT_EQ(tarnStsNoErr, F::inPlace(inPlace.data(), n, owner.get(), this->scale));
                FirSignal<F> expected;
                if (!transforms)
                    expected = directModel<F>(h, signal, this->scale);
                else if (part == 4096 || n % 8192 > copy->fftLen || n % 8192 == 0)
                    expected = filterInCalls<F>(copy.get(), signal, {part}, this->scale);
                else
                    continue; // a last part that would not have taken the road by itself: below
                ASSERT_TRUE(arraysMatch<S>(expected.data(), inPlace.data(), inPlace.size()))
                    << taps << " taps, " << n << " samples, allocated " << allocated;
                expectDelayLine<F>(owner.get(), signal, h.size());
            }
        }
    }
}

TEST(FirTest, LastPartInPlaceKeepsTheCallsRoad)
{
    const auto h = firTaps<FirTail32f_16s>(80);
    const auto signal = firSignal<FirTail32f_16s>(8192 + 100); // the transform has 256 points
    const FirOwner<FirTail32f_16s> owner(h);
    const FirOwner<FirTail32f_16s> other(h);
    auto inPlace = signal;
    ASSERT_EQ(tarnStsNoErr, tarnsFIR32f_16s_ISfs(inPlace.data(), 8292, owner.get(), -4));
    FirSignal<FirTail32f_16s> expected(signal.size());
    ASSERT_EQ(tarnStsNoErr, fftFIRSR32f_16s_Sfs(&signal[0], &expected[0], 8192, other.get(), -4));
    ASSERT_EQ(tarnStsNoErr, fftFIRSR32f_16s_Sfs(&signal[8192], &expected[8192], 100, other.get(), -4));
    EXPECT_TRUE(arraysMatch<Tarn16s>(expected.data(), inPlace.data(), expected.size()));
}

TEST(FirTest, SpreadsInfinitiesAndNaNOverTheirWindow)
{
    const std::vector<Tarn32f> h = {1, 2, 3};
    std::vector<Tarn32f> signal(40, 1.0F);
    signal[10] = tarnConstantOfINF_32f;
    signal[20] = tarnConstantOfNAN_32f;
    const auto owner = FirOwner<FirTail32f>::inMemory(h);
    const auto out = filterInCalls<FirTail32f>(owner.get(), signal, {40});
    for (int i = 3; i < 40; ++i) {
        const auto y = out[static_cast<std::size_t>(i)];
        EXPECT_EQ(i >= 10 && i < 13, std::isinf(y)) << i;
        EXPECT_EQ(i >= 20 && i < 23, std::isnan(y)) << i;
    }
    // To integers: the upper bound, and the lowest integer for a NaN.
    const std::vector<Tarn32f> gain = {tarnConstantOfINF_32f};
    const auto integer = FirOwner<FirTail32f_16s>::inMemory(gain);
    const auto bounds = filterInCalls<FirTail32f_16s>(integer.get(), {1, -1, 0}, {3});
    EXPECT_EQ((std::vector<Tarn16s>{32767, -32768, -32768}), bounds);
    const std::vector<Tarn64f> gain64 = {tarnConstantOfINF_64f};
    const auto integer64 = FirOwner<FirTail64f_16s>::inMemory(gain64);
    EXPECT_EQ((std::vector<Tarn16s>{32767, -32768, -32768}),
              (filterInCalls<FirTail64f_16s>(integer64.get(), {1, -1, 0}, {3})));
}

// The conversion of single samples is its own.
TEST(FirTest, SingleSamplesConvertThrough32Bits)
{
    const std::vector<Tarn32f> h = {40000, 0};
    const FirOwner<FirTail32f_16s> owner(h);
    const std::vector<Tarn64f> h64 = {3, 0};
    const FirOwner<FirTail64f_32s> owner32s(h64);
    const FirOwner<FirTail64f_16s> owner16s(h64);
    Tarn16s y = 0;
    Tarn32s wide = 0;
    tarnsFIROne32f_16s_Sfs(1, &y, owner.get(), 0);
    EXPECT_EQ(32767, y);
    tarnsFIROne32f_16s_Sfs(-1, &y, owner.get(), 0);
    EXPECT_EQ(-32768, y);
    const std::vector<Tarn32f> large = {3.0e9F, 0};
    tarnsFIRSetTaps32f_16s(large.data(), owner.get());
    tarnsFIROne32f_16s_Sfs(1, &y, owner.get(), 0);
    EXPECT_EQ(-32768, y);
    tarnsFIROne64f_32s_Sfs(1000000000, &wide, owner32s.get(), 0);
    EXPECT_EQ(INT_MIN, wide);
    tarnsFIROne64f_32s_Sfs(-1000000000, &wide, owner32s.get(), 0);
    EXPECT_EQ(INT_MIN, wide);
    tarnsFIROne64f_32s_Sfs(1000000000, &wide, owner32s.get(), 2);
    EXPECT_EQ(750000000, wide);
    tarnsFIROne64f_16s_Sfs(20000, &y, owner16s.get(), 0);
    EXPECT_EQ(32767, y);
    tarnsFIROne64f_16s_Sfs(20000, &y, owner16s.get(), -20);
    EXPECT_EQ(-32768, y);

    // In the current rounding mode, while blocks round to nearest.
    const std::vector<Tarn32f> half = {0.5F};
    const FirOwner<FirTail32f_16s> halver(half);
    const FirOwner<FirTail64f_16s> halver64({0.5});
    struct Case {
        RoundingMode mode;
        Tarn16s five, minusFive;
    };
    for (const Case& c : {Case{RoundingMode::nearest, 2, -2},
                          {RoundingMode::down, 2, -3},
                          {RoundingMode::up, 3, -2},
                          {RoundingMode::towardZero, 2, -2}}) {
        const RoundingModeScope scope(c.mode);
        for (int i = 0; i < 2; ++i) {
            const auto five = static_cast<Tarn16s>(i == 0 ? 5 : -5);
            const Tarn16s expected = i == 0 ? c.five : c.minusFive;
            tarnsFIROne32f_16s_Sfs(five, &y, halver.get(), 0);
            EXPECT_EQ(expected, y);
            tarnsFIROne64f_16s_Sfs(five, &y, halver64.get(), 0);
            EXPECT_EQ(expected, y);
            tarnsFIR32f_16s_Sfs(&five, &y, 1, halver.get(), 0);
            EXPECT_EQ(i == 0 ? 2 : -2, y);
            tarnsFIR64f_16s_Sfs(&five, &y, 1, halver64.get(), 0);
            EXPECT_EQ(i == 0 ? 2 : -2, y);
        }
    }
}

TEST(FirTest, InnerCallsWithoutSamplesDoNothing)
{
    const FirOwner<FirTail32f> owner(firTaps<FirTail32f>(80));
    const FirOwner<FirTail32f_16s> mixed(firTaps<FirTail32f_16s>(80));
    for (int n : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsNoErr, tarnsFIRSR_32f(nullptr, nullptr, n, owner.get()));
        EXPECT_EQ(tarnStsNoErr, fftFIRSR_32f(nullptr, nullptr, n, owner.get()));
        EXPECT_EQ(tarnStsNoErr, tarnsFIRSR_32f_I(nullptr, n, owner.get()));
        EXPECT_EQ(tarnStsNoErr, tarnsFIRSR32f_16s_Sfs(nullptr, nullptr, n, mixed.get(), 0));
        EXPECT_EQ(tarnStsNoErr, ownsFIRSR32f_16s_Sfs(nullptr, nullptr, n, mixed.get(), 0));
        EXPECT_EQ(tarnStsNoErr, fftFIRSR32f_16s_Sfs(nullptr, nullptr, n, mixed.get(), 0));
        EXPECT_EQ(tarnStsNoErr, tarnsFIRSR32f_16s_ISfs(nullptr, n, mixed.get(), 0));
    }
}

} // namespace
} // namespace tarn::test
