// Single-rate filters with integer taps, to the bit, and the taps as a state keeps them.
#include "levels/fir/psfir_state.h"
#include "support/checks.h"
#include "support/fir_stream.h"
#include "support/fpstate.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

extern "C" int scale32fTaps32s(const Tarn32f*, Tarn32s*, int);

namespace tarn::test {
namespace {

// -- The model --------------------------------------------------------------------------------------------------------

Tarn32s wrapped(std::int64_t x) { return static_cast<Tarn32s>(static_cast<std::uint32_t>(x)); }

// The sum modulo 2^32 times 2^s, saturated to 16 bits: a left shift loses bits first.
Tarn16s finish(Tarn32s sum, std::int64_t s)
{
    std::int64_t y = sum;
    if (s >= 32) {
        y = 0;
    } else if (s > 0) {
        y = wrapped(y << s);
    } else if (s < -40) {
        y = 0;
    } else if (s < 0) {
        const std::int64_t one = std::int64_t{1} << -s;
        std::int64_t quotient = y >= 0 ? y / one : -((-y + one - 1) / one); // rounded down
        const std::int64_t rest = y - quotient * one;
        if (2 * rest > one || (2 * rest == one && quotient % 2 != 0))
            ++quotient;
        y = quotient;
    }
    return static_cast<Tarn16s>(std::clamp<std::int64_t>(y, -32768, 32767));
}

// `taps` as the state keeps them, `line` with as many samples of history.
std::vector<Tarn16s> model(const std::vector<Tarn32s>& taps, const std::vector<Tarn16s>& line, std::int64_t s)
{
    std::vector<Tarn16s> out;
    for (std::size_t end = taps.size(); end < line.size(); ++end) {
        std::int64_t total = 0;
        for (std::size_t k = 0; k < taps.size(); ++k)
            total += std::int64_t{taps[k]} * line[end - k];
        out.push_back(finish(wrapped(total), s));
    }
    return out;
}
std::vector<Tarn16sc> model(const std::vector<Tarn32sc>& taps, const std::vector<Tarn16sc>& line, std::int64_t s)
{
    std::vector<Tarn16sc> out;
    for (std::size_t end = taps.size(); end < line.size(); ++end) {
        std::int64_t re = 0;
        std::int64_t im = 0;
        for (std::size_t k = 0; k < taps.size(); ++k) {
            const Tarn16sc x = line[end - k];
            re += std::int64_t{taps[k].re} * x.re - std::int64_t{taps[k].im} * x.im;
            im += std::int64_t{taps[k].re} * x.im + std::int64_t{taps[k].im} * x.re;
        }
        out.push_back({finish(wrapped(re), s), finish(wrapped(im), s)});
    }
    return out;
}

// -- Filters ----------------------------------------------------------------------------------------------------------

template <class F>
class FirIntegerTest : public ::testing::Test {
protected:
    using T = typename F::Tap;
    using S = typename F::Sample;

    // Up to the bounds of what is kept, which every sum of many overflows.
    static std::vector<T> wildTaps(int len, int seed)
    {
        auto taps = randomValues<T>(static_cast<std::size_t>(len), static_cast<std::uint64_t>(seed), Values::random);
        const auto limit = [](Tarn32s& x) { x = x % 32767; };
        for (T& tap : taps) {
            if constexpr (ComplexElement<T>) {
                limit(tap.re);
                limit(tap.im);
            } else {
                limit(tap);
            }
        }
        return taps;
    }
    static std::vector<S> wildSignal(int len, int seed)
    {
        return randomValues<S>(static_cast<std::size_t>(len), static_cast<std::uint64_t>(seed), Values::mixed);
    }
    static std::vector<S> expectedOf(const std::vector<T>& taps, const std::vector<S>& signal, std::int64_t s)
    {
        auto line = std::vector<S>(taps.size(), S{});
        line.insert(line.end(), signal.begin(), signal.end());
        return model(taps, line, s);
    }

    struct Owner {
        typename F::State* state = nullptr;
        Owner(const std::vector<T>& taps, int factor)
        {
            EXPECT_EQ(tarnStsNoErr, F::initAlloc(&state, taps.data(), static_cast<int>(taps.size()), factor, nullptr));
        }
        ~Owner() { F::free(state); }
        Owner(const Owner&) = delete;
        Owner& operator=(const Owner&) = delete;
    };
};
using IntegerTails = ::testing::Types<FirTail32s_16s, FirTail32sc_16sc>;
TYPED_TEST_SUITE(FirIntegerTest, IntegerTails);

TYPED_TEST(FirIntegerTest, FiltersWhereverTheSignalIsCut)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 15, 16, 17, 23, 24, 25, 31, 32, 33, 63, 64, 65, 100, 257}) {
        const auto h = this->wildTaps(taps, taps);
        const auto signal = this->wildSignal(1500, 2);
        const auto expected = this->expectedOf(h, signal, -14);
        for (const std::vector<int>& cuts :
             {std::vector<int>{5000}, {1, 2, 3, 4, 5, 6, 7}, {taps, taps + 1, taps + 11, 1}, {100, 513, 1}}) {
            const typename TestFixture::Owner owner(h, -20);
            const auto out = filterInCalls<F>(owner.state, signal, cuts, -6);
            ASSERT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << taps << " taps";
            expectDelayLine<F>(owner.state, signal, h.size());
        }
        // Single samples, alone and turn about with blocks.
        const typename TestFixture::Owner owner(h, -20);
        std::vector<S> out(signal.size());
        for (std::size_t i = 0, turn = 0; i < signal.size(); ++turn) {
            const std::size_t n = std::min(turn % 13 + 1, signal.size() - i);
            if (turn % 3 == 0)
                F::filter(&signal[i], &out[i], static_cast<int>(n), owner.state, -6);
            else
                for (std::size_t k = 0; k < n; ++k)
                    F::one(signal[i + k], &out[i + k], owner.state, -6);
            i += n;
        }
        ASSERT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << taps << " taps, turn about";
    }
}

TYPED_TEST(FirIntegerTest, ShiftsAndSaturatesByBothFactors)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const auto signal = this->wildSignal(300, 4);
    for (const bool wild : {true, false}) {
        auto h = this->wildTaps(11, 3);
        if (!wild)
            h = this->wildTaps(1, 5); // sums that fit, ties among them
        for (int s = -40; s <= 40; ++s) {
            for (int factor : {0, -15, 20}) {
                const typename TestFixture::Owner owner(h, factor);
                const auto out = filterInCalls<F>(owner.state, signal, {1, 3, 250}, factor - s);
                const auto expected = this->expectedOf(h, signal, s);
                ASSERT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size()))
                    << "factor " << factor << ", shift " << s;
                F::setDlyLine(owner.state, nullptr);
                for (std::size_t i = 0; i < 100; ++i) {
                    S y{};
                    F::one(signal[i], &y, owner.state, factor - s);
                    ASSERT_TRUE(valuesMatch<S>(expected[i], y)) << "factor " << factor << ", shift " << s;
                }
            }
        }
        for (int extreme : {INT_MIN, INT_MAX}) {
            const typename TestFixture::Owner owner(h, 5);
            const auto out = filterInCalls<F>(owner.state, signal, {300}, extreme);
            EXPECT_TRUE(arraysMatch<S>(std::vector<S>(300, S{}).data(), out.data(), 300));
        }
    }
}

TYPED_TEST(FirIntegerTest, TakesArraysAtAnyAddress)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (int taps : {1, 3, 8, 13}) {
        const auto h = this->wildTaps(taps, taps);
        for (int n : {1, 2, 3, 4, 7, 8, 9, 15, 16, 17, 24, 25, 40, 70, 1000, 8192, 8193, 9001}) {
            const auto signal = this->wildSignal(n, n);
            const auto expected = this->expectedOf(h, signal, -9);
            for (unsigned bytes = 0; bytes < (n > 100 ? 3 : 18); ++bytes) {
                const typename TestFixture::Owner owner(h, 0);
                const GuardedArray<S> src(signal,
                                          bytes == 17 ? Placement::atStart() : Placement::atEnd(bytes * 5 % 17));
                GuardedArray<S> dst(signal.size(), bytes == 16 ? Placement::atEnd() : Placement::offset(bytes));
                const FpState before = FpState::current();
                ASSERT_EQ(tarnStsNoErr, F::filter(src.data(), dst.data(), n, owner.state, 9));
                EXPECT_EQ("", before.changesSince());
                ASSERT_TRUE(arraysMatch(expected, dst)) << taps << " taps, " << n << " samples, offset " << bytes;
                ASSERT_TRUE(arraysMatch(signal, src));
                F::setDlyLine(owner.state, nullptr);
                dst.assign(signal);
                ASSERT_EQ(tarnStsNoErr, F::inPlace(dst.data(), n, owner.state, 9));
                ASSERT_TRUE(arraysMatch(expected, dst)) << "in place";
                expectDelayLine<F>(owner.state, signal, h.size());
            }
        }
    }
}

// -- Taps -------------------------------------------------------------------------------------------------------------

void expectKept(const std::vector<Tarn32s>& taps, int shift)
{
    TarnsFIRState32s_16s* state = nullptr;
    const int len = static_cast<int>(taps.size());
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s(&state, taps.data(), len, 7, nullptr));
    std::vector<Tarn32s> kept(taps.size());
    int factor = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGetTaps32s_16s(state, kept.data(), &factor));
    EXPECT_EQ(7 + shift, factor) << taps[0];
    for (std::size_t k = 0; k < taps.size(); ++k)
        EXPECT_EQ(taps[k] >> shift, kept[k]) << k;
    tarnsFIRFree32s_16s(state);
}

TEST(FirIntegerTapsTest, AreShiftedToSixteenBits)
{
    expectKept({32766, 5, -7}, 0);
    expectKept({-32766, 32766}, 0);
    expectKept({32767, 5, -7}, 1);
    expectKept({-32767, 5, -7}, 1);
    expectKept({3, -32768, -7}, 1);
    expectKept({65533, -1, 1}, 1);
    expectKept({65534, -1, 1}, 2);
    expectKept({INT_MAX, INT_MIN, -1}, 17);
    expectKept({INT_MIN, 1000000, -1000001}, 17);
    expectKept({0, 0}, 0);
    const std::vector<Tarn32sc> taps = {{1, -65534}, {40000, 3}};
    TarnsFIRState32sc_16sc* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32sc_16sc(&state, taps.data(), 2, 0, nullptr));
    std::vector<Tarn32sc> kept(2);
    int factor = 0;
    tarnsFIRGetTaps32sc_16sc(state, kept.data(), &factor);
    EXPECT_EQ(2, factor);
    EXPECT_EQ(0, kept[0].re);
    EXPECT_EQ(-16384, kept[0].im);
    EXPECT_EQ(10000, kept[1].re);
    const std::vector<Tarn32sc> others = {{1, 2}, {3, 4}};
    ASSERT_EQ(tarnStsNoErr, tarnsFIRSetTaps32sc_16sc(others.data(), state, -3));
    tarnsFIRGetTaps32sc_16sc(state, kept.data(), &factor);
    EXPECT_EQ(-3, factor);
    EXPECT_EQ(4, kept[1].im);
    tarnsFIRFree32sc_16sc(state);
}

// The tables that the kernels of the 32-bit library read.
TEST(FirIntegerTapsTest, LieInTheTablesOfTheKernels)
{
    for (int len = 1; len < 40; ++len) {
        std::vector<Tarn32s> taps;
        for (int k = 0; k < len; ++k)
            taps.push_back(100 + k);
        TarnsFIRState32s_16s* state = nullptr;
        ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s(&state, taps.data(), len, 0, nullptr));
        const int stride = (len + 11) / 8 * 8;
        ASSERT_EQ(stride, state->tapsTableStride);
        std::vector<Tarn16s> table(static_cast<std::size_t>(4 * stride), 0);
        for (int c = 0; c < 4; ++c)
            for (int k = 0; k < len; ++k)
                table[static_cast<std::size_t>(c * stride + c + 1 + k)] = static_cast<Tarn16s>(100 + len - 1 - k);
        EXPECT_TRUE(arraysMatch<Tarn16s>(table.data(), state->pTapsTable, table.size())) << len;
        EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(state->pTapsTable) % 16);
        tarnsFIRFree32s_16s(state);
    }
}

// Floats become the integers nearest to them, halves away from zero, after scaling by a power of two.
TEST(FirIntegerTapsTest, AreMadeOfFloats)
{
    const auto expectScaled = [](const std::vector<Tarn32f>& taps, const std::vector<Tarn32s>& kept, int factor) {
        std::vector<Tarn32s> out(taps.size());
        EXPECT_EQ(factor, scale32fTaps32s(taps.data(), out.data(), static_cast<int>(taps.size()))) << taps[0];
        EXPECT_EQ(kept, out) << taps[0];
    };
    expectScaled({1.0F, -0.5F, 0.0F}, {16384, -8192, 0}, -14);
    expectScaled({0.999969482421875F, 0}, {16384, 0}, -14); // 16383.5: twice as much is not below the limit
    expectScaled({32767.0F, 2.5F, -2.5F, 0.5F, 0.25F}, {32767, 3, -3, 1, 0}, 0);
    expectScaled({32767.002F, 3.0F, -3.0F, -5.0F}, {16384, 2, -2, -3}, 1);
    expectScaled({-65536.0F, 8.0F}, {-16384, 2}, 2);
    expectScaled({16383.5F}, {16384}, 0);
    expectScaled({16383.49F, -16383.25F}, {32767, -32767}, -1);
    expectScaled({0x1p100F}, {16384}, 86);
    expectScaled({0x1p-100F, -0x1p-102F}, {16384, -4096}, -114);
    expectScaled({0.0F, -0.0F}, {0, 0}, 0);
}

// Down to the smallest denormal, also where the processor takes denormals for zero and makes zero of them.
TEST(FirIntegerTapsTest, AreMadeOfTheSmallestFloats)
{
    constexpr std::uint32_t flushed = 0x9FC0; // all exceptions masked
    for (const std::uint32_t control : {std::uint32_t{0x1F80}, flushed}) {
        const MxcsrScope scope(control);
        const auto expectScaled = [](const std::vector<Tarn32f>& taps, const std::vector<Tarn32s>& kept, int factor) {
            std::vector<Tarn32s> out(taps.size());
            EXPECT_EQ(factor, scale32fTaps32s(taps.data(), out.data(), static_cast<int>(taps.size())));
            EXPECT_EQ(kept, out);
        };
        expectScaled({0x1p-149F}, {16384}, -163);
        expectScaled({-0x3p-149F, 0x1p-149F, 0}, {-24576, 8192, 0}, -162);
        expectScaled({0x1p-126F, -0x1p-128F}, {16384, -4096}, -140);
        expectScaled({0x1p-113F, 0x1p-149F}, {16384, 0}, -127);
        expectScaled({0x1p-114F, -0x1p-129F}, {16384, -1}, -128); // a half, away from zero
        expectScaled({0x1p127F, -0x1p-149F}, {16384, 0}, 113);
    }
    // Every power of two, whole states; denormals are read back as what they were.
    for (int e = -149; e <= 127; ++e) {
        const std::vector<Tarn32f> taps = {std::ldexp(1.0F, e), -std::ldexp(1.0F, std::max(e - 3, -149))};
        const auto expectKept = [&](const TarnsFIRState32s_16s* state) {
            std::vector<Tarn32f> back(2);
            EXPECT_EQ(tarnStsNoErr, tarnsFIRGetTaps32s_16s32f(state, back.data()));
            EXPECT_EQ(taps, back) << e;
        };
        TarnsFIRState32s_16s* state = nullptr;
        {
            const MxcsrScope scope(flushed);
            EXPECT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s32f(&state, taps.data(), 2, nullptr));
        }
        expectKept(state);
        {
            const MxcsrScope scope(flushed);
            EXPECT_EQ(tarnStsNoErr, tarnsFIRSetTaps32s_16s32f(taps.data(), state));
        }
        expectKept(state);
        tarnsFIRFree32s_16s32f(state);
    }
    const std::vector<Tarn32f> small = {9e-35F, -4e-39F};
    TarnsFIRState32s_16s* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s32f(&state, small.data(), 2, nullptr));
    std::vector<Tarn32f> back(2);
    tarnsFIRGetTaps32s_16s32f(state, back.data());
    EXPECT_NEAR(small[0], back[0], 9e-35F * 0x1p-14F);
    EXPECT_NEAR(small[1], back[1], 9e-35F * 0x1p-14F);
    tarnsFIRFree32s_16s32f(state);

    std::vector<Tarn8u> memory;
    const std::vector<Tarn32fc> pairs = {{0, -0x1p-140F}, {0x1p-141F, 0}};
    int size = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGetStateSize32sc_16sc32fc(2, &size));
    memory.resize(static_cast<std::size_t>(size));
    TarnsFIRState32sc_16sc* complex = nullptr;
    {
        const MxcsrScope scope(flushed);
        ASSERT_EQ(tarnStsNoErr, tarnsFIRInit32sc_16sc32fc(&complex, pairs.data(), 2, nullptr, memory.data()));
    }
    std::vector<Tarn32fc> pairsBack(2);
    tarnsFIRGetTaps32sc_16sc32fc(complex, pairsBack.data());
    EXPECT_TRUE(arraysMatch<Tarn32fc>(pairs.data(), pairsBack.data(), 2));
}

// No float has a largest magnitude to scale by, and a NaN no integer but the lowest, of which there is no negative.
TEST(FirIntegerTapsTest, AreMadeOfWhatIsNoNumber)
{
    constexpr Tarn32f nan = std::numeric_limits<Tarn32f>::quiet_NaN();
    constexpr Tarn32f infinity = std::numeric_limits<Tarn32f>::infinity();
    std::vector<Tarn32s> out(3);
    EXPECT_EQ(-14, scale32fTaps32s(std::vector<Tarn32f>{nan, 1.0F, -0.5F}.data(), out.data(), 3));
    EXPECT_EQ((std::vector<Tarn32s>{INT_MIN, 16384, -8192}), out);
    EXPECT_EQ(0, scale32fTaps32s(std::vector<Tarn32f>{-infinity, 2.5F, 1.0F}.data(), out.data(), 3));
    EXPECT_EQ((std::vector<Tarn32s>{INT_MIN, 3, 1}), out);

    const std::vector<Tarn32fc> taps = {{1.0F, nan}, {0.5F, -0.5F}};
    TarnsFIRState32sc_16sc* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32sc_16sc32fc(&state, taps.data(), 2, nullptr));
    std::vector<Tarn32sc> kept(2);
    int factor = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGetTaps32sc_16sc(state, kept.data(), &factor));
    EXPECT_EQ(INT_MIN, kept[0].im);
    EXPECT_EQ(-14, factor);
    tarnsFIRFree32sc_16sc32fc(state);
}

TEST(FirIntegerTapsTest, HaveAFactorThatWraps)
{
    const Tarn32s tap = INT_MIN; // 17 bits too large
    TarnsFIRState32s_16s* state = nullptr;
    for (const int given : {INT_MAX, INT_MAX - 17, INT_MAX - 16, INT_MIN}) {
        ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s(&state, &tap, 1, given, nullptr));
        Tarn32s kept = 0;
        int factor = 0;
        ASSERT_EQ(tarnStsNoErr, tarnsFIRGetTaps32s_16s(state, &kept, &factor));
        EXPECT_EQ(-16384, kept);
        EXPECT_EQ(wrapped(std::int64_t{given} + 17), factor) << given;
        // Filtering shifts by the whole difference, which is no integer of 32 bits.
        const Tarn16s sample = -3;
        Tarn16s y = 1;
        ASSERT_EQ(tarnStsNoErr, tarnsFIR32s_16s_Sfs(&sample, &y, 1, state, factor));
        EXPECT_EQ(32767, y);
        ASSERT_EQ(tarnStsNoErr, tarnsFIR32s_16s_Sfs(&sample, &y, 1, state, factor < 0 ? INT_MAX : INT_MIN));
        EXPECT_EQ(0, y);
        tarnsFIRFree32s_16s(state);
    }
    const Tarn32sc pair = {1, INT_MIN};
    TarnsFIRState32sc_16sc* complex = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32sc_16sc(&complex, &pair, 1, INT_MAX, nullptr));
    Tarn32sc kept{};
    int factor = 0;
    tarnsFIRGetTaps32sc_16sc(complex, &kept, &factor);
    EXPECT_EQ(-16384, kept.im);
    EXPECT_EQ(wrapped(std::int64_t{INT_MAX} + 17), factor);
    ASSERT_EQ(tarnStsNoErr, tarnsFIRSetTaps32sc_16sc(&pair, complex, INT_MAX - 16));
    tarnsFIRGetTaps32sc_16sc(complex, &kept, &factor);
    EXPECT_EQ(INT_MIN, factor);
    tarnsFIRFree32sc_16sc(complex);
}

TEST(FirIntegerTapsTest, OfFloatsFilterLikeFloats)
{
    const std::vector<Tarn32f> h = {0.3F, -0.2F, 0.05F, 0.7F, 0.11F};
    TarnsFIRState32s_16s* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s32f(&state, h.data(), 5, nullptr));
    const auto signal = firSignal<FirTail32s_16s>(500);
    const auto out = filterInCalls<FirTail32s_16s32f>(state, signal, {100, 1}, 0);
    // Each tap is within half a unit of 2^-15.
    EXPECT_TRUE(withinBound<FirTail32f_16s>(h, signal, out, 5 * 0x1p-16L * largestSample<FirTail32s_16s>(), 0));
    std::vector<Tarn32f> kept(5);
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGetTaps32s_16s32f(state, kept.data()));
    std::vector<Tarn32s> integers(5);
    int factor = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGetTaps32s_16s(state, integers.data(), &factor));
    EXPECT_EQ(-15, factor);
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_NEAR(h[k], kept[k], 0x1p-16);
        EXPECT_EQ(std::ldexp(static_cast<Tarn32f>(integers[k]), factor), kept[k]);
    }
    EXPECT_EQ(tarnStsNullPtrErr, tarnsFIRGetTaps32s_16s(state, integers.data(), nullptr));
    tarnsFIRFree32s_16s32f(state);

    const std::vector<Tarn32fc> complex = {{0.5F, -0.25F}, {0.125F, 3.0F}};
    TarnsFIRState32sc_16sc* pairs = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32sc_16sc32fc(&pairs, complex.data(), 2, nullptr));
    std::vector<Tarn32fc> back(2);
    tarnsFIRGetTaps32sc_16sc32fc(pairs, back.data());
    EXPECT_TRUE(arraysMatch<Tarn32fc>(complex.data(), back.data(), 2));
    tarnsFIRFree32sc_16sc(pairs);
}

TEST(FirIntegerTest, RoundsTiesToEvenAndWrapsOnTheLeft)
{
    const Tarn32s one = 1;
    TarnsFIRState32s_16s* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc32s_16s(&state, &one, 1, 0, nullptr));
    const std::vector<Tarn16s> signal = {1, 3, 5, 7, -1, -3, 6, -6, 32767, -32768};
    std::vector<Tarn16s> out(signal.size());
    tarnsFIR32s_16s_Sfs(signal.data(), out.data(), 10, state, 1);
    EXPECT_EQ((std::vector<Tarn16s>{0, 2, 2, 4, 0, -2, 3, -3, 16384, -16384}), out);
    tarnsFIR32s_16s_Sfs(signal.data(), out.data(), 10, state, -31); // only the lowest bit is left, as the sign
    EXPECT_EQ((std::vector<Tarn16s>{-32768, -32768, -32768, -32768, -32768, -32768, 0, 0, -32768, 0}), out);
    tarnsFIRFree32s_16s(state);
}

} // namespace
} // namespace tarn::test
