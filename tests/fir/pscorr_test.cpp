// Correlation of a vector with itself, and of two vectors, directly and by transforms.
#include "tarns/correlation.h"

#include "model/fir.h"
#include "support/checks.h"
#include "support/memory_watch.h"
#include "support/sliding_calls.h"
#include "tarns/divide.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn::test {
namespace {

// -- Functions --------------------------------------------------------------------------------------------------------

struct CorrelationCall : SlidingCall {
    int threshold; ///< number of lags from which transforms are taken, or estimate above which they are
};

enum class Norm { none, a, b };

#define TARN_AUTO_CALL(STEM, T, THRESHOLD)                                                                 \
    CorrelationCall                                                                                        \
    {                                                                                                      \
        slidingCall<Tarn##T>(#STEM #T, [](const auto* x, int len, const auto*, int, auto* dst, int dstLen, \
                                          auto) { return STEM##T(x, len, dst, dstLen); }),                 \
            THRESHOLD                                                                                      \
    }
#define TARN_AUTO_CALLS(STEM)                                                                                        \
    TARN_AUTO_CALL(STEM, 32f, 856), TARN_AUTO_CALL(STEM, 64f, 856), TARN_AUTO_CALL(STEM, 32fc, 152),                 \
        TARN_AUTO_CALL(STEM, 64fc, 368), CorrelationCall                                                             \
    {                                                                                                                \
        slidingCall<Tarn16s>(#STEM "16s",                                                                            \
                             [](const auto* x, int len, const auto*, int, auto* dst, int dstLen, SlidingOptions o) { \
                                 return STEM##16s_Sfs(x, len, dst, dstLen, o.scaleFactor);                           \
                             }),                                                                                     \
            856                                                                                                      \
    }

std::vector<CorrelationCall> autoCorrelations(Norm norm)
{
    if (norm == Norm::a)
        return {TARN_AUTO_CALLS(tarnsAutoCorr_NormA_)};
    if (norm == Norm::b)
        return {TARN_AUTO_CALLS(tarnsAutoCorr_NormB_)};
    return {TARN_AUTO_CALLS(tarnsAutoCorr_)};
}

#define TARN_CROSS_CALL(T, THRESHOLD)                                                                          \
    CorrelationCall                                                                                            \
    {                                                                                                          \
        slidingCall<Tarn##T>(                                                                                  \
            #T, [](const auto* x, int xLen, const auto* y, int yLen, auto* dst, int dstLen,                    \
                   SlidingOptions o) { return tarnsCrossCorr_##T(x, xLen, y, yLen, dst, dstLen, o.lowLag); }), \
            THRESHOLD                                                                                          \
    }

std::vector<CorrelationCall> crossCorrelations()
{
    return {TARN_CROSS_CALL(32f, 383),
            TARN_CROSS_CALL(64f, 511),
            TARN_CROSS_CALL(32fc, 255),
            TARN_CROSS_CALL(64fc, 511),
            {slidingCall<Tarn16s>(
                 "16s",
                 [](const auto* x, int xLen, const auto* y, int yLen, auto* dst, int dstLen, SlidingOptions o) {
                     return tarnsCrossCorr_16s_Sfs(x, xLen, y, yLen, dst, dstLen, o.lowLag, o.scaleFactor);
                 }),
             383}};
}

// -- Expectations -----------------------------------------------------------------------------------------------------

constexpr int scale = 14;

Sequence scaledTo16Bits(Sequence sums, int scaleFactor)
{
    for (auto& sum : sums)
        sum = fir::rounded<Tarn16s>(static_cast<long double>(sum.real()), scaleFactor);
    return sums;
}

Sequence run(const SlidingCall& call, const Sequence& x, const Sequence& y, int dstLen, int lowLag = 0,
             unsigned gap = 0)
{
    Sequence results(static_cast<std::size_t>(dstLen), 77);
    EXPECT_EQ(tarnStsNoErr, call.run(x, y, results, {.lowLag = lowLag, .scaleFactor = scale, .gap = gap}));
    return results;
}

// The lags as the direct method sums them, and what results may differ from them by where a transform is taken.
struct Expected {
    Sequence lags;
    double bound;
};

::testing::AssertionResult agreeWith(const SlidingCall& call, const Expected& expected, const Sequence& results)
{
    if (!call.isInteger)
        return agree(expected.lags, results, expected.bound);
    const double units = expected.bound == 0 ? 0 : std::ceil(std::ldexp(expected.bound, -scale));
    return agree(scaledTo16Bits(expected.lags, scale), results, units);
}

double pointsFor(double needed) { return std::exp2(std::ceil(std::log2(needed))); }

// -- One vector -------------------------------------------------------------------------------------------------------

Expected autoLags(const CorrelationCall& call, const Sequence& x, int dstLen)
{
    const std::size_t m = std::min(x.size(), static_cast<std::size_t>(dstLen));
    const bool transforms = m >= static_cast<std::size_t>(call.threshold);
    Sequence lags = transforms ? model::exactLags(x, x, m, 0) : model::correlateInOrder(x, x, m, 0, call.precision);
    lags.resize(static_cast<std::size_t>(dstLen));
    const double points = pointsFor(2 * static_cast<double>(x.size()));
    return {lags, transforms ? model::transformBound(x, x, points, call.precision) : 0};
}

TEST(AutoCorrTest, SumsFewLagsInTheStatedOrder)
{
    for (const CorrelationCall& call : autoCorrelations(Norm::none)) {
        unsigned gap = 0;
        for (int srcLen : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 64, 100, 255, 256, 257, 511, 513, 1000, 3001})
            for (int dstLen : {1, 2, 3, 4, 5, 8, 15, 17, 40, 151, 300}) {
                if (std::min(srcLen, dstLen) >= call.threshold)
                    continue;
                const Sequence x = noise(call, static_cast<std::size_t>(srcLen), 1 + gap);
                ASSERT_TRUE(agreeWith(call, autoLags(call, x, dstLen), run(call, x, {}, dstLen, 0, ++gap)))
                    << call.name << ": " << srcLen << " elements, " << dstLen << " lags";
            }
    }
}

TEST(AutoCorrTest, TakesATransformFromItsNumberOfLagsOn)
{
    for (const CorrelationCall& call : autoCorrelations(Norm::none))
        for (int beyond : {-1, 0, 1})
            for (const auto& [srcLen, dstLen] : {std::pair{0, 0}, {0, 200}, {300, 0}, {1200, 0}}) {
                const int m = call.threshold + beyond;
                const Sequence x = noise(call, static_cast<std::size_t>(m + srcLen), 9);
                const Sequence results = run(call, x, {}, m + dstLen, 0, 3);
                ASSERT_TRUE(agreeWith(call, autoLags(call, x, m + dstLen), results)) << call.name << " " << m;
                const Sequence direct = model::correlateInOrder(x, x, static_cast<std::size_t>(m), 0, call.precision);
                const bool isDirect = static_cast<bool>(agreeWith(call, {direct, 0}, results));
                EXPECT_TRUE(call.isInteger || isDirect == (beyond < 0)) << call.name << " " << m;
            }
}

// Normalised by its own functions, to the bit.
TEST(AutoCorrTest, MultipliesByTheReciprocalOfTheLength)
{
    const auto plain = autoCorrelations(Norm::none);
    const auto normalised = autoCorrelations(Norm::a);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const CorrelationCall& call = normalised[i];
        for (const auto& [srcLen, dstLen] :
             {std::pair{1, 1}, {1, 3}, {3, 2}, {10, 14}, {37, 37}, {700, 30}, {1000, 1000}, {1000, 1010}}) {
            const Sequence x = noise(call, static_cast<std::size_t>(srcLen), 5);
            const bool transforms = std::min(srcLen, dstLen) >= call.threshold;
            Expected expected = autoLags(call, x, dstLen);
            const double reciprocal = model::rounded(1.0 / srcLen, call.precision);
            if (!call.isInteger)
                expected = {run(plain[i], x, {}, dstLen), 0};
            for (auto& lag : expected.lags)
                lag = {model::rounded(lag.real() * reciprocal, call.precision),
                       model::rounded(lag.imag() * reciprocal, call.precision)};
            Sequence results(expected.lags.size(), 77);
            ASSERT_EQ(tarnStsNoErr, call.run(x, {}, results, {.scaleFactor = 7}));
            if (call.isInteger)
                ASSERT_TRUE(agree(scaledTo16Bits(expected.lags, 7), results, transforms ? 1 : 0)) << srcLen;
            else
                ASSERT_TRUE(agree(expected.lags, results)) << call.name << " " << srcLen << ", " << dstLen;
        }
    }
}

template <class T>
void divideBy(const std::vector<T>& divisors, std::vector<T>& values)
{
    const int len = static_cast<int>(values.size());
    if constexpr (std::is_same_v<T, Tarn32f>)
        ASSERT_EQ(tarnStsNoErr, tarnsDiv_32f_I(divisors.data(), values.data(), len));
    else
        ASSERT_EQ(tarnStsNoErr, tarnsDiv_64f_I(divisors.data(), values.data(), len));
}

// All parts divided at once, as the division of their type does it.
template <class T>
Sequence divided(const Sequence& lags, int srcLen, bool isComplex)
{
    std::vector<T> parts;
    std::vector<T> divisors;
    const std::size_t m = std::min(lags.size(), static_cast<std::size_t>(srcLen));
    for (std::size_t n = 0; n < m; ++n)
        for (const double part : {lags[n].real(), lags[n].imag()})
            if (isComplex || parts.size() == n) {
                parts.push_back(static_cast<T>(part));
                divisors.push_back(static_cast<T>(srcLen - static_cast<int>(n)));
            }
    divideBy(divisors, parts);
    Sequence quotients(lags.size());
    for (std::size_t n = 0; n < m; ++n)
        quotients[n] = isComplex ? std::complex<double>(parts[2 * n], parts[2 * n + 1]) : parts[n];
    return quotients;
}

TEST(AutoCorrTest, DividesByTheNumberOfProducts)
{
    const auto plain = autoCorrelations(Norm::none);
    const auto normalised = autoCorrelations(Norm::b);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const CorrelationCall& call = normalised[i];
        for (const auto& [srcLen, dstLen] :
             {std::pair{1, 1}, {1, 3}, {3, 2}, {10, 14}, {37, 37}, {700, 30}, {1000, 1000}, {1000, 1010}}) {
            const Sequence x = noise(call, static_cast<std::size_t>(srcLen), 6);
            const bool transforms = std::min(srcLen, dstLen) >= call.threshold;
            const Sequence lags = call.isInteger ? autoLags(call, x, dstLen).lags : run(plain[i], x, {}, dstLen);
            const Sequence expected = call.precision == Precision::single
                                          ? divided<Tarn32f>(lags, srcLen, call.isComplex)
                                          : divided<Tarn64f>(lags, srcLen, call.isComplex);
            Sequence results(expected.size(), 77);
            ASSERT_EQ(tarnStsNoErr, call.run(x, {}, results, {.scaleFactor = 7}));
            if (call.isInteger)
                ASSERT_TRUE(agree(scaledTo16Bits(expected, 7), results, transforms ? 1 : 0)) << srcLen;
            else
                ASSERT_TRUE(agree(expected, results)) << call.name << " " << srcLen << ", " << dstLen;
        }
    }
    // The last lag has one product, and is divided by 1.
    const std::vector<Tarn32f> ends = {3, 1, 1, 1, 5};
    Tarn32f lags[6] = {7, 7, 7, 7, 7, 7};
    ASSERT_EQ(tarnStsNoErr, tarnsAutoCorr_NormB_32f(ends.data(), 5, lags, 6));
    EXPECT_EQ(15, lags[4]);
    EXPECT_EQ(0, lags[5]);
}

TEST(AutoCorrTest, RoundsAndSaturates16BitResults)
{
    const Tarn16s x[4] = {300, -300, 1, 2};
    Tarn16s lags[6];
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        ASSERT_EQ(tarnStsNoErr, tarnsAutoCorr_16s_Sfs(x, 4, lags, 6, 0));
        EXPECT_EQ((std::vector<Tarn16s>{32767, -32768, -300, 600, 0, 0}), std::vector<Tarn16s>(lags, lags + 6));
        ASSERT_EQ(tarnStsNoErr, tarnsAutoCorr_16s_Sfs(x, 4, lags, 6, 3));
        EXPECT_EQ((std::vector<Tarn16s>{22501, -11287, -38, 75, 0, 0}), std::vector<Tarn16s>(lags, lags + 6));
        ASSERT_EQ(tarnStsNoErr, tarnsAutoCorr_NormA_16s_Sfs(x, 4, lags, 6, 4));
        EXPECT_EQ((std::vector<Tarn16s>{2813, -1411, -5, 9, 0, 0}), std::vector<Tarn16s>(lags, lags + 6));
    }
}

// -- Two vectors ------------------------------------------------------------------------------------------------------

bool takesTransform(const CorrelationCall& call, int a, int b, int d, long long low)
{
    const long long first = std::max<long long>(low, 1 - a);
    const long long end = std::min<long long>(low + d, b);
    if (end <= first)
        return false;
    // volatile, since it is single precision that decides
    volatile float estimate = static_cast<float>(end - first);
    estimate = estimate * static_cast<float>(std::min(a, b));
    estimate = estimate / static_cast<float>(std::max(a, b));
    return std::trunc(estimate) > static_cast<float>(call.threshold);
}

Expected crossLags(const CorrelationCall& call, const Sequence& x, const Sequence& y, int dstLen, int low)
{
    const auto a = static_cast<int>(x.size());
    const auto b = static_cast<int>(y.size());
    const auto len = static_cast<std::size_t>(dstLen);
    const bool transforms = takesTransform(call, a, b, dstLen, low);
    return {transforms ? model::exactLags(x, y, len, low) : model::correlateInOrder(x, y, len, low, call.precision),
            transforms ? model::transformBound(x, y, pointsFor(a + b - 1.0), call.precision) : 0};
}

// All lags of short vectors and some without overlap, from everywhere to everywhere.
TEST(CrossCorrTest, HasEveryRangeOfLagsOfShortVectors)
{
    for (const CorrelationCall& call : crossCorrelations())
        for (int a : {1, 2, 3, 5, 8, 13, 20})
            for (int b : {1, 2, 4, 7, 16, 19}) {
                const Sequence x = noise(call, static_cast<std::size_t>(a), 1);
                const Sequence y = noise(call, static_cast<std::size_t>(b), 2);
                for (int low = -a - 2; low <= b + 1; low += 1 + (a + b) / 9)
                    for (int d = 1; d <= a + b + 4; d += 1 + (a + b) / 8)
                        ASSERT_TRUE(agreeWith(call, crossLags(call, x, y, d, low), run(call, x, y, d, low, a % 16U)))
                            << call.name << ": " << a << " and " << b << ", " << d << " lags from " << low;
            }
}

TEST(CrossCorrTest, SumsEveryZoneInTheStatedOrder)
{
    for (const CorrelationCall& call : crossCorrelations())
        for (const auto& [a, b] : {std::pair{100, 100},
                                   {120, 50},
                                   {50, 120},
                                   {3000, 40},
                                   {40, 3000},
                                   {2000, 300},
                                   {300, 2000},
                                   {1500, 1},
                                   {1, 1500}}) {
            const Sequence x = noise(call, static_cast<std::size_t>(a), 3);
            const Sequence y = noise(call, static_cast<std::size_t>(b), 4);
            for (const auto& [low, d] :
                 {std::pair{1 - a, 100}, {-a / 2, 131}, {-77, 200}, {b - a - 20, 60}, {-5, 40}, {0, 70}, {b - 90, 120}})
                ASSERT_TRUE(agreeWith(call, crossLags(call, x, y, d, low), run(call, x, y, d, low, 5)))
                    << call.name << ": " << a << " and " << b << ", " << d << " lags from " << low;
        }
}

// On both sides of the estimate, whatever range of lags makes it.
TEST(CrossCorrTest, TakesATransformAboveItsEstimate)
{
    for (const CorrelationCall& call : crossCorrelations()) {
        const int t = call.threshold;
        struct {
            int a, b, low, d;
            bool transforms;
        } const cases[] = {
            {600, 600, -300, t, false},
            {600, 600, -300, t + 1, true},
            {600, 600, -300, t + 2, true},
            {700, 1400, 0, 2 * t + 1, false},
            {700, 1400, 0, 2 * t + 2, true},
            {1400, 700, -900, 2 * t + 1, false},
            {1400, 700, -900, 2 * t + 2, true},
            // Lags without overlap cost nothing.
            {600, 600, -5000, t + 4401, false},
            {600, 600, 599 - t + 1, 10000, false},
            {600, 600, 599 - t, 10000, true},
        };
        for (const auto& [a, b, low, d, transforms] : cases) {
            const Sequence x = noise(call, static_cast<std::size_t>(a), 5);
            const Sequence y = noise(call, static_cast<std::size_t>(b), 6);
            EXPECT_EQ(transforms, takesTransform(call, a, b, d, low)) << call.name << " " << d << " from " << low;
            const Sequence results = run(call, x, y, d, low, 7);
            ASSERT_TRUE(agreeWith(call, crossLags(call, x, y, d, low), results))
                << call.name << ": " << a << " and " << b << ", " << d << " lags from " << low;
            const Sequence direct = model::correlateInOrder(x, y, static_cast<std::size_t>(d), low, call.precision);
            const bool isDirect = static_cast<bool>(agreeWith(call, {direct, 0}, results));
            EXPECT_TRUE(call.isInteger || isDirect != transforms) << call.name << " " << d << " from " << low;
        }
    }
}

TEST(CrossCorrTest, IsZeroWithoutOverlap)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    for (const CorrelationCall& call : crossCorrelations()) {
        const Sequence x = noise(call, 20, 1);
        const Sequence y = noise(call, 30, 2);
        for (const auto& [low, d] : {std::pair{-29, 10},
                                     {-20, 1},
                                     {-1000, 900},
                                     {lowest, 50},
                                     {lowest, 1},
                                     {30, 1},
                                     {30, 60},
                                     {31, 5},
                                     {highest, 50},
                                     {highest, 1}})
            ASSERT_TRUE(agree(Sequence(static_cast<std::size_t>(d)), run(call, x, y, d, low))) << low << ", " << d;
        // Lag -19 is the first with a product, lag 29 the last one.
        EXPECT_NE(0.0, run(call, Sequence(20, 300), Sequence(30, 300), 2, -20)[1].real());
        EXPECT_NE(0.0, run(call, Sequence(20, 300), Sequence(30, 300), 2, 29)[0].real());
        EXPECT_EQ(0.0, run(call, Sequence(20, 300), Sequence(30, 300), 2, 29)[1].real());
    }
}

// The sign of the lags and the operand that is conjugated, by both methods: a delayed copy shows at its delay.
TEST(CrossCorrTest, FindsADelay)
{
    for (const CorrelationCall& call : crossCorrelations())
        for (std::size_t len : {60U, 700U}) {
            const Sequence x = noise(call, len, 7);
            Sequence y(len + 17);
            for (std::size_t i = 0; i < len; ++i)
                y[i + 17] = x[i] * (call.isComplex ? std::complex<double>(0, 1) : 1.0);
            const int low = -static_cast<int>(len) + 1;
            const Sequence lags = run(call, x, y, static_cast<int>(2 * len) + 16, low);
            std::size_t best = 0;
            for (std::size_t n = 0; n < lags.size(); ++n)
                if (std::abs(lags[n]) > std::abs(lags[best]))
                    best = n;
            EXPECT_EQ(17, low + static_cast<int>(best)) << call.name << " " << len;
            EXPECT_TRUE(!call.isComplex || lags[best].imag() > 0.9 * std::abs(lags[best])) << call.name << " " << len;
        }
}

// -- Checks and memory ------------------------------------------------------------------------------------------------

TEST(CorrelationTest, ChecksItsArguments)
{
#define TARN_CHECK_AUTO(STEM)                                    \
    expectChecks(STEM##_32f, {}, array, length, array, length);  \
    expectChecks(STEM##_64f, {}, array, length, array, length);  \
    expectChecks(STEM##_32fc, {}, array, length, array, length); \
    expectChecks(STEM##_64fc, {}, array, length, array, length); \
    expectChecks(STEM##_16s_Sfs, {}, array, length, array, length, 0)
    TARN_CHECK_AUTO(tarnsAutoCorr);
    TARN_CHECK_AUTO(tarnsAutoCorr_NormA);
    TARN_CHECK_AUTO(tarnsAutoCorr_NormB);
    expectChecks(tarnsCrossCorr_32f, {}, array, length, array, length, array, length, 0);
    expectChecks(tarnsCrossCorr_64f, {}, array, length, array, length, array, length, 0);
    expectChecks(tarnsCrossCorr_32fc, {}, array, length, array, length, array, length, 0);
    expectChecks(tarnsCrossCorr_64fc, {}, array, length, array, length, array, length, 0);
    expectChecks(tarnsCrossCorr_16s_Sfs, {}, array, length, array, length, array, length, 0, 0);
    constexpr int largest = std::numeric_limits<int>::max();
    auto* const none = unreadable<Tarn32f>();
    EXPECT_EQ(tarnStsFftOrderErr, tarnsAutoCorr_32f(none, largest, none, 1000));
    EXPECT_EQ(tarnStsFftOrderErr, tarnsCrossCorr_32f(none, largest, none, largest, none, 1000, 0));
}

TEST(CorrelationTest, KeepsNothingWhenMemoryIsRefused)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    const std::vector<Tarn64fc> x(1000, {1, 1});
    std::vector<Tarn64fc> lags(2000);
    // `inPlace` is the number of last allocations that come when results are there already.
    const auto expectRefusals = [&](int least, int inPlace, auto call) {
        int needed = 0;
        for (int allowed = -1; allowed < needed; ++allowed) {
            std::memset(static_cast<void*>(lags.data()), 0x55, sizeof lags[0] * lags.size());
            const auto before = lags;
            int status = 0;
            int outstanding = 0;
            {
                const MemoryWatch watch(allowed < 0 ? 1000 : allowed);
                status = call(x.data(), lags.data());
                outstanding = watch.outstanding();
                if (allowed < 0)
                    needed = watch.allocated();
            }
            EXPECT_EQ(allowed < 0 ? tarnStsNoErr : tarnStsNoMemErr, status) << allowed;
            EXPECT_EQ(0, outstanding) << allowed;
            const bool untouched = std::memcmp(before.data(), lags.data(), sizeof lags[0] * lags.size()) == 0;
            EXPECT_EQ(allowed >= 0 && allowed < needed - inPlace, untouched) << allowed;
        }
        EXPECT_LE(least, needed);
    };
#define TARN_REFUSE(LEAST, IN_PLACE, T, CALL)                                    \
    expectRefusals(LEAST, IN_PLACE, [](const Tarn64fc* src, Tarn64fc* results) { \
        const auto* s = reinterpret_cast<const Tarn##T*>(src);                   \
        auto* d = reinterpret_cast<Tarn##T*>(results);                           \
        return CALL;                                                             \
    })
    TARN_REFUSE(0, 0, 32f, tarnsAutoCorr_32f(s, 900, d, 100));
    TARN_REFUSE(2, 0, 32f, tarnsAutoCorr_32f(s, 900, d, 900));
    TARN_REFUSE(2, 0, 64f, tarnsAutoCorr_64f(s, 900, d, 900));
    TARN_REFUSE(2, 0, 32fc, tarnsAutoCorr_NormA_32fc(s, 900, d, 900));
    TARN_REFUSE(3, 1, 64fc, tarnsAutoCorr_NormB_64fc(s, 900, d, 900));
    TARN_REFUSE(1, 1, 32f, tarnsAutoCorr_NormB_32f(s, 900, d, 100));
    TARN_REFUSE(3, 0, 16s, tarnsAutoCorr_16s_Sfs(s, 900, d, 900, 0));
    TARN_REFUSE(2, 0, 16s, tarnsAutoCorr_NormB_16s_Sfs(s, 900, d, 100, 0));
    TARN_REFUSE(2, 0, 32f, tarnsCrossCorr_32f(s, 900, s, 900, d, 900, 0));
    TARN_REFUSE(2, 0, 64fc, tarnsCrossCorr_64fc(s, 900, s, 900, d, 900, 0));
    TARN_REFUSE(2, 0, 16s, tarnsCrossCorr_16s_Sfs(s, 900, s, 900, d, 900, 0, 0));
    TARN_REFUSE(1, 0, 16s, tarnsCrossCorr_16s_Sfs(s, 900, s, 900, d, 9, 0, 0));
    TARN_REFUSE(0, 0, 64f, tarnsCrossCorr_64f(s, 900, s, 900, d, 9, 0));
}

} // namespace
} // namespace tarn::test
