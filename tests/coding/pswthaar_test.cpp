// The Haar transform beside a plain model of pairs: all types, scale factors, lengths and places.
#include "tarns/haar.h"

#include "model/haar.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/function_ref.h"
#include "support/hard_values.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace tarn::test {
namespace {

template <class T>
using Forward = FunctionRef<TarnStatus(const T*, int, T*, T*)>;
template <class T>
using Inverse = FunctionRef<TarnStatus(const T*, const T*, T*, int)>;
template <class T>
using PairModel = FunctionRef<model::HaarPair<T>(T, T)>;

/// Lengths around the steps of all types, some longer ones.
const std::vector<int>& haarLengths()
{
    static const std::vector<int> all = [] {
        std::vector<int> v = lengths();
        v.insert(v.end(), {95, 96, 97, 127, 128, 129, 131, 500});
        return v;
    }();
    return all;
}

Placement placementOf(unsigned seed)
{
    return seed % 3 == 0 ? Placement::atEnd() : seed % 3 == 1 ? Placement::offset(seed / 3 % 37) : Placement::atStart();
}

/// A seed by which all destinations begin on boundaries: what streams past the caches does so there alone.
constexpr unsigned aligned = 4;

/// One call out of place and, on request, one with either channel in the place of the source.
template <class T>
void testForwardOf(Forward<T> call, PairModel<T> model, FunctionRef<T(T)> last, const std::vector<T>& source,
                   unsigned seed, bool inPlace)
{
    const std::size_t half = source.size() / 2;
    std::vector<T> low(source.size() - half);
    std::vector<T> high(half);
    for (std::size_t k = 0; k < half; ++k) {
        const auto pair = model(source[2 * k], source[2 * k + 1]);
        low[k] = pair.first;
        high[k] = pair.second;
    }
    if (source.size() % 2 != 0)
        low[half] = last(source.back());
    const int len = static_cast<int>(source.size());
    {
        const GuardedArray<T> src(source, placementOf(seed));
        GuardedArray<T> dstLow(low.size(), placementOf(seed / 2));
        GuardedArray<T> dstHigh(high.size(), placementOf(seed / 4 + 1));
        const FpState before = FpState::current();
        EXPECT_EQ(tarnStsNoErr, call(src.data(), len, dstLow.data(), dstHigh.data()));
        EXPECT_EQ("", before.changesSince());
        EXPECT_TRUE(arraysMatch(low, dstLow, {}, "low channel of " + std::to_string(len)));
        EXPECT_TRUE(arraysMatch(high, dstHigh, {}, "high channel of " + std::to_string(len)));
        EXPECT_EQ(0, std::memcmp(source.data(), src.bytes(), src.byteSize()));
    }
    if (inPlace) {
        GuardedArray<T> other(source.size(), placementOf(seed));
        GuardedArray<T> asLow(source, placementOf(seed / 2));
        EXPECT_EQ(tarnStsNoErr, call(asLow.data(), len, asLow.data(), other.data()));
        EXPECT_TRUE(arraysMatch<T>(low.data(), asLow.data(), low.size(), {}, "in the place of the low channel"));
        EXPECT_TRUE(arraysMatch<T>(high.data(), other.data(), high.size(), {}, "in the place of the low channel"));
        GuardedArray<T> asHigh(source, placementOf(seed / 2));
        EXPECT_EQ(tarnStsNoErr, call(asHigh.data(), len, other.data(), asHigh.data()));
        EXPECT_TRUE(arraysMatch<T>(low.data(), other.data(), low.size(), {}, "in the place of the high channel"));
        EXPECT_TRUE(arraysMatch<T>(high.data(), asHigh.data(), high.size(), {}, "in the place of the high channel"));
    }
}

template <class T>
void testInverseOf(Inverse<T> call, PairModel<T> model, FunctionRef<T(T)> last, const std::vector<T>& values, int len,
                   unsigned seed)
{
    const auto half = static_cast<std::size_t>(len / 2);
    const std::size_t lowLen = static_cast<std::size_t>(len) - half;
    const std::vector<T> low(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(lowLen));
    const std::vector<T> high(values.end() - static_cast<std::ptrdiff_t>(half), values.end());
    std::vector<T> expected(static_cast<std::size_t>(len));
    for (std::size_t k = 0; k < half; ++k) {
        const auto pair = model(low[k], high[k]);
        expected[2 * k] = pair.first;
        expected[2 * k + 1] = pair.second;
    }
    if (len % 2 != 0)
        expected.back() = last(low.back());
    const GuardedArray<T> srcLow(low, placementOf(seed));
    const GuardedArray<T> srcHigh(high, placementOf(seed / 2));
    GuardedArray<T> dst(expected.size(), placementOf(seed / 4 + 1));
    const FpState before = FpState::current();
    EXPECT_EQ(tarnStsNoErr, call(srcLow.data(), srcHigh.data(), dst.data(), len));
    EXPECT_EQ("", before.changesSince());
    EXPECT_TRUE(arraysMatch(expected, dst, {}, "inverse of " + std::to_string(len)));
    EXPECT_EQ(0, std::memcmp(low.data(), srcLow.bytes(), srcLow.byteSize()));
    EXPECT_EQ(0, std::memcmp(high.data(), srcHigh.bytes(), srcHigh.byteSize()));
}

/// Values of which every pair of hard ones is a pair of neighbours somewhere.
template <class T>
std::vector<T> pairsOfHardValues()
{
    const std::vector<T>& hard = hardValues<T>();
    const std::size_t stride = hard.size() > 100 ? 3 : 1;
    std::vector<T> values;
    for (std::size_t i = 0; i < hard.size(); i += 1)
        for (std::size_t k = i % stride; k < hard.size(); k += stride)
            values.insert(values.end(), {hard[i], hard[k]});
    return values;
}

template <class T>
struct Functions {
    Forward<T> forward;
    Inverse<T> inverse;
    PairModel<T> forwardModel;
    PairModel<T> inverseModel;
    FunctionRef<T(T)> lastLow;
    FunctionRef<T(T)> lastSample;
};

template <class T>
void testBothWays(const Functions<T>& f, const std::vector<int>& lens, bool inPlace)
{
    const std::vector<T> hard = pairsOfHardValues<T>();
    testForwardOf<T>(f.forward, f.forwardModel, f.lastLow, hard, 2, inPlace);
    // The channels of the inverse are the first and the second half.
    std::vector<T> halves(hard.size());
    for (std::size_t k = 0; k < hard.size(); ++k)
        halves[k % 2 * (hard.size() / 2) + k / 2] = hard[k];
    testInverseOf<T>(f.inverse, f.inverseModel, f.lastSample, halves, static_cast<int>(hard.size()), 5);
    unsigned seed = 1;
    for (const int len : lens) {
        const std::vector<T> values = randomValues<T>(static_cast<std::size_t>(len), seed);
        testForwardOf<T>(f.forward, f.forwardModel, f.lastLow, values, seed, inPlace);
        testInverseOf<T>(f.inverse, f.inverseModel, f.lastSample, values, len, seed++);
        if (::testing::Test::HasFailure())
            return;
    }
}

template <class T>
void testUnscaled(TarnStatus (*forward)(const T*, int, T*, T*), TarnStatus (*inverse)(const T*, const T*, T*, int),
                  const std::vector<int>& lens = haarLengths())
{
    auto same = [](T x) { return x; };
    auto halves = model::haarHalves<T>;
    auto back = model::haarInverse<T>;
    testBothWays<T>({forward, inverse, halves, back, same, same}, lens, true);
    expectChecks(forward, {}, array, length, array, array);
    expectChecks(inverse, {}, array, array, array, length);
}

template <class T>
void testScaled(TarnStatus (*forward)(const T*, int, T*, T*, int),
                TarnStatus (*inverse)(const T*, const T*, T*, int, int))
{
    constexpr int width = 8 * static_cast<int>(sizeof(T));
    std::vector<int> factors = {0, INT_MAX, INT_MAX - 1, INT_MIN, INT_MIN + 1};
    for (int s = 1; s <= width + 2; ++s)
        if (width <= 16 || s <= 5 || s % 7 == 5 || s >= width - 2)
            factors.insert(factors.end(), {s, -s});
    for (const int s : factors) {
        SCOPED_TRACE("scale factor " + std::to_string(s));
        auto forwardCall = [=](const T* src, int len, T* low, T* high) { return forward(src, len, low, high, s); };
        auto inverseCall = [=](const T* low, const T* high, T* dst, int len) {
            return inverse(low, high, dst, len, s);
        };
        auto forwardModel = [=](T a, T b) { return s == 0 ? model::haarHalves(a, b) : model::haarScaled(a, b, s); };
        auto inverseModel = [=](T l, T h) { return model::haarInverseScaled(l, h, s); };
        auto lastLow = [=](T x) { return s == 0 ? x : model::haarScaled(x, x, s).first; };
        auto lastSample = [=](T x) { return model::scaled<T>(model::exact(x), s); };
        testBothWays<T>({forwardCall, inverseCall, forwardModel, inverseModel, lastLow, lastSample},
                        {1, 2, 3, 7, 17, 32, 33, 67, 101}, s == 1 || s == -3);
        expectChecks(forward, {}, array, length, array, array, s);
        expectChecks(inverse, {}, array, array, array, length, s);
    }
}

TEST(Haar, OfBytes) { testUnscaled(tarnsWTHaarFwd_8s, tarnsWTHaarInv_8s); }
TEST(Haar, OfWords) { testUnscaled(tarnsWTHaarFwd_16s, tarnsWTHaarInv_16s); }
TEST(Haar, Of32Bits) { testUnscaled(tarnsWTHaarFwd_32s, tarnsWTHaarInv_32s); }
TEST(Haar, Of64Bits) { testUnscaled(tarnsWTHaarFwd_64s, tarnsWTHaarInv_64s); }

TEST(HaarScaled, OfBytes) { testScaled(tarnsWTHaarFwd_8s_Sfs, tarnsWTHaarInv_8s_Sfs); }
TEST(HaarScaled, OfWords) { testScaled(tarnsWTHaarFwd_16s_Sfs, tarnsWTHaarInv_16s_Sfs); }
TEST(HaarScaled, Of32Bits) { testScaled(tarnsWTHaarFwd_32s_Sfs, tarnsWTHaarInv_32s_Sfs); }
TEST(HaarScaled, Of64Bits) { testScaled(tarnsWTHaarFwd_64s_Sfs, tarnsWTHaarInv_64s_Sfs); }

/// Every mode, the two units alike; the expected values are found in it, too.
template <class T>
void testFloats(TarnStatus (*forward)(const T*, int, T*, T*), TarnStatus (*inverse)(const T*, const T*, T*, int))
{
    testUnscaled(forward, inverse);
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        testUnscaled(forward, inverse, {1, 2, 9, 33, 66, 500});
    }
}

TEST(HaarOfFloats, SinglePrecision) { testFloats(tarnsWTHaarFwd_32f, tarnsWTHaarInv_32f); }
TEST(HaarOfFloats, DoublePrecision) { testFloats(tarnsWTHaarFwd_64f, tarnsWTHaarInv_64f); }

/// Neither a mode nor the flushing of the vector unit has a say in what the extended format computes.
TEST(HaarOfFloats, ForwardIgnoresTheControlWordOfVectors)
{
    constexpr std::uint32_t flushing = 0x8040;
    constexpr std::uint32_t up = 0x4000;
    auto same = [](Tarn32f x) { return x; };
    auto halves = model::haarHalves<Tarn32f>;
    std::vector<Tarn32f> values = pairsOfHardValues<Tarn32f>();
    for (const std::uint32_t bits : {flushing, up, flushing | up}) {
        const MxcsrScope scope(0x1F80 | bits);
        auto call = tarnsWTHaarFwd_32f;
        testForwardOf<Tarn32f>(call, halves, same, values, 2, true);
        EXPECT_EQ(0x1F80 | bits, readMxcsr()); // no flag is left, either
    }
}

/// Random bits, denormals among them where blocks end and where there are none beside them; and past the caches.
TEST(HaarOfFloats, LongVectors)
{
    auto same = [](Tarn32f x) { return x; };
    auto halves = model::haarHalves<Tarn32f>;
    auto call = tarnsWTHaarFwd_32f;
    unsigned seed = 1;
    for (const int len : {8190, 8191, 8192, 8193, 16384, 16387, 40001}) {
        std::vector<Tarn32f> values =
            randomValues<Tarn32f>(static_cast<std::size_t>(len), seed, len % 2 == 0 ? Values::random : Values::unit);
        for (const int place : {8183, 8188, 8191, 8192, 16383, 16384, 40000})
            if (place < len)
                values[static_cast<std::size_t>(place)] = -3e-45f;
        testForwardOf<Tarn32f>(call, halves, same, values, seed++, false);
    }
    std::vector<Tarn32f> vast = randomValues<Tarn32f>((std::size_t{1} << 21) + 77, 3, Values::unit);
    auto back = model::haarInverse<Tarn32f>;
    auto inverse = tarnsWTHaarInv_32f;
    testInverseOf<Tarn32f>(inverse, back, same, vast, static_cast<int>(vast.size()), aligned);
    testForwardOf<Tarn32f>(call, halves, same, vast, aligned, false);
    testForwardOf<Tarn32f>(call, halves, same, vast, 0, false);
    vast[12345] = 1e-45f;
    testForwardOf<Tarn32f>(call, halves, same, vast, aligned, false);
}

/// Past the caches, where pairs are not taken apart before their sums are formed.
TEST(Haar, LongVectorsOfWords)
{
    auto same = [](Tarn16s x) { return x; };
    auto halves = model::haarHalves<Tarn16s>;
    auto back = model::haarInverse<Tarn16s>;
    auto forward = tarnsWTHaarFwd_16s;
    auto inverse = tarnsWTHaarInv_16s;
    const std::vector<Tarn16s> vast = randomValues<Tarn16s>((std::size_t{1} << 22) + 77, 3);
    testForwardOf<Tarn16s>(forward, halves, same, vast, aligned, false);
    testInverseOf<Tarn16s>(inverse, back, same, vast, static_cast<int>(vast.size()), aligned);
}

/// Of bytes there are few enough pairs to try them all.
TEST(Haar, AllPairsOfBytes)
{
    std::vector<Tarn8s> all;
    for (int a = -128; a < 128; ++a)
        for (int b = -128; b < 128; ++b)
            all.insert(all.end(), {static_cast<Tarn8s>(a), static_cast<Tarn8s>(b)});
    auto same = [](Tarn8s x) { return x; };
    auto halves = model::haarHalves<Tarn8s>;
    auto call = tarnsWTHaarFwd_8s;
    testForwardOf<Tarn8s>(call, halves, same, all, 0, true);

    // A quarter of the samples comes back off by one, never both of a pair; but for the saturated ones.
    std::vector<Tarn8s> low(all.size() / 2);
    std::vector<Tarn8s> high(all.size() / 2);
    std::vector<Tarn8s> back(all.size());
    const int len = static_cast<int>(all.size());
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarFwd_8s(all.data(), len, low.data(), high.data()));
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarInv_8s(low.data(), high.data(), back.data(), len));
    std::size_t off = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        ASSERT_LE(std::abs(all[i] - back[i]), 1);
        off += all[i] != back[i] ? 1 : 0;
        ASSERT_TRUE(i % 2 == 0 || all[i] == back[i] || all[i - 1] == back[i - 1]) << i;
    }
    EXPECT_NEAR(0.25, static_cast<double>(off) / static_cast<double>(all.size()), 0.001);
}

TEST(HaarScaled, KeepsEverythingBetweenSumsAndDifferences)
{
    const std::vector<Tarn16s> tame = randomValues<Tarn16s>(1001, 4, Values::unit);
    std::vector<Tarn16s> low(501);
    std::vector<Tarn16s> high(500);
    std::vector<Tarn16s> back(1001);
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarFwd_16s_Sfs(tame.data(), 1001, low.data(), high.data(), -1));
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarInv_16s_Sfs(low.data(), high.data(), back.data(), 1001, 1));
    EXPECT_EQ(tame, back);
}

TEST(HaarOfFloats, ComeBack)
{
    const std::vector<Tarn32f> signal = randomValues<Tarn32f>(1001, 6, Values::unit);
    std::vector<Tarn32f> low(501);
    std::vector<Tarn32f> high(500);
    std::vector<Tarn32f> back(1001);
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarFwd_32f(signal.data(), 1001, low.data(), high.data()));
    ASSERT_EQ(tarnStsNoErr, tarnsWTHaarInv_32f(low.data(), high.data(), back.data(), 1001));
    // Two roundings of values up to 1, and a last one of their sum.
    EXPECT_TRUE(arraysMatch<Tarn32f>(signal.data(), back.data(), signal.size(), {.absolute = 2 * 0x1p-24}));
}

// -- Worked values ----------------------------------------------------------------------------------------------------

TEST(HaarWorked, OneElement)
{
    const Tarn16s x = -7;
    Tarn16s low = 0;
    Tarn16s high = 99;
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_16s(&x, 1, &low, &high));
    EXPECT_EQ(-7, low);
    EXPECT_EQ(99, high);
    for (const int s : {2, 16, 40, -2, -40}) {
        EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_16s_Sfs(&x, 1, &low, &high, s));
        EXPECT_EQ(model::scaled<Tarn16s>(-7, s), low) << s;
        EXPECT_EQ(99, high);
    }
    Tarn16s back = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarInv_16s(&x, &high, &back, 1));
    EXPECT_EQ(-7, back);
}

template <class T>
void expectForward(TarnStatus (*forward)(const T*, int, T*, T*), T a, T b, T low, T high)
{
    const T x[] = {a, b};
    T l;
    T h;
    EXPECT_EQ(tarnStsNoErr, forward(x, 2, &l, &h));
    EXPECT_EQ(low, l) << +a << " and " << +b;
    EXPECT_EQ(high, h) << +a << " and " << +b;
}

TEST(HaarWorked, TiesAndBounds)
{
    expectForward<Tarn16s>(tarnsWTHaarFwd_16s, 1, 2, 2, 0);
    expectForward<Tarn16s>(tarnsWTHaarFwd_16s, -32768, 32767, 0, 32767);
    expectForward<Tarn16s>(tarnsWTHaarFwd_16s, 32767, -32768, 0, -32768);
    expectForward<Tarn8s>(tarnsWTHaarFwd_8s, -128, 127, 0, 127);
    constexpr Tarn32s least = INT_MIN;
    constexpr Tarn32s most = INT_MAX;
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, least, most, 0, most);
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, least, most - 1, 0, most);     // the mean is -1
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, least + 1, most - 1, 0, most); // half the difference ties below it
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, least + 1, most, 0, most);
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, least, most - 2, -2, most - 1); // -1.5, and a tie
    expectForward<Tarn32s>(tarnsWTHaarFwd_32s, most, least, 0, least);
    constexpr Tarn64s least64 = LLONG_MIN;
    constexpr Tarn64s most64 = LLONG_MAX;
    expectForward<Tarn64s>(tarnsWTHaarFwd_64s, least64, most64, 0, most64);
    expectForward<Tarn64s>(tarnsWTHaarFwd_64s, least64, most64 - 1, -1, most64);
    expectForward<Tarn64s>(tarnsWTHaarFwd_64s, least64 + 1, most64 - 1, 0, most64);
}

TEST(HaarWorked, ScaleFactors)
{
    const Tarn8s x[] = {100, 100};
    Tarn8s low = 1;
    Tarn8s high = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_8s_Sfs(x, 2, &low, &high, -1));
    EXPECT_EQ(127, low);
    EXPECT_EQ(0, high);
    low = high = 1;
    const Tarn8s lowest[] = {-128, -128};
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_8s_Sfs(lowest, 2, &low, &high, 8));
    EXPECT_EQ(0, low);
    EXPECT_EQ(0, high);
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_8s_Sfs(lowest, 2, &low, &high, 7));
    EXPECT_EQ(-1, low);
    // l + h of 3 is halved to 1, since l - h of 1 was halved to 0.
    const Tarn16s l = 2;
    const Tarn16s h = 1;
    Tarn16s both[2];
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarInv_16s_Sfs(&l, &h, both, 2, 1));
    EXPECT_EQ(0, both[0]);
    EXPECT_EQ(1, both[1]);
    const Tarn8s l8 = 2;
    const Tarn8s h8 = 1;
    Tarn8s both8[2];
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarInv_8s_Sfs(&l8, &h8, both8, 2, 1));
    EXPECT_EQ(0, both8[0]);
    EXPECT_EQ(2, both8[1]);
}

TEST(HaarWorked, FloatsBeyondTheirOwnSums)
{
    const Tarn32f large[] = {-3.4e38f, 3.4e38f};
    Tarn32f low = 1;
    Tarn32f high = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_32f(large, 2, &low, &high));
    EXPECT_EQ(0.0f, low);
    EXPECT_EQ(3.4e38f, high);
    const Tarn32f zeros[] = {-0.0f, -0.0f};
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_32f(zeros, 2, &low, &high));
    EXPECT_TRUE(valuesMatch<Tarn32f>(0.0f, low));
    const Tarn32f infinite[] = {INFINITY, 1};
    EXPECT_EQ(tarnStsNoErr, tarnsWTHaarFwd_32f(infinite, 2, &low, &high));
    EXPECT_TRUE(std::isnan(low));
    EXPECT_EQ(-INFINITY, high);
}

} // namespace
} // namespace tarn::test
