// Square roots against the C library's, and the steps that stand for them in long arrays.
#include "tarns/roots.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

#include <complex>

namespace tarn::test {
namespace {

template <class T>
Outcome<T> rootOfInteger(T x, int s)
{
    if (std::is_signed_v<T> && x < 0)
        return {0, tarnStsSqrtNegArg};
    if constexpr (sizeof(T) == 8) {
        // Scaled by no more than what changes nothing, so that no infinity comes in.
        const long double root = std::sqrt(static_cast<long double>(x));
        const long double scaled = std::ldexp(root, -std::clamp(s, -100, 100));
        const long double nearest = std::nearbyint(scaled);
        return {nearest >= 0x1p63L ? std::numeric_limits<T>::max() : static_cast<T>(nearest)};
    } else {
        volatile float root = std::sqrt(static_cast<float>(x));
        return {model::nearest<T>(std::ldexp(static_cast<float>(root), -std::clamp(s, -100, 100)))};
    }
}

template <class T>
void sweepIntegers(TarnStatus (*root)(const T*, T*, int, int), TarnStatus (*inPlace)(T*, int, int), ScaleRange range)
{
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        const auto atScale = [=](T x) { return rootOfInteger(x, s); };
        sweepElementwise<T, T>([=](const T* src, T* dst, int len) { return root(src, dst, len, s); }, atScale,
                               {.depth = range.depth(s)});
        sweepInPlace<T>([=](T* x, int len) { return inPlace(x, len, s); }, atScale, {.depth = Depth::quick});
    }
}

TEST(SquareRoot, OfIntegers)
{
    sweepIntegers(tarnsSqrt_8u_Sfs, tarnsSqrt_8u_ISfs, {.down = 4, .up = 7});
    sweepIntegers(tarnsSqrt_16s_Sfs, tarnsSqrt_16s_ISfs, {.down = 8, .up = 14});
    sweepIntegers(tarnsSqrt_16u_Sfs, tarnsSqrt_16u_ISfs, {.down = 8, .up = 15});
    sweepIntegers(tarnsSqrt_64s_Sfs, tarnsSqrt_64s_ISfs, {.down = 32, .up = 63});
}

// The model's own arithmetic would follow the mode: so it runs before the mode is set.
TEST(SquareRoot, OfIntegersInForeignRoundingModes)
{
    const std::vector<Tarn16s> words = randomValues<Tarn16s>(200, 1);
    const std::vector<Tarn64s> wide = randomValues<Tarn64s>(200, 1);
    for (const int s : {0, 1, -3}) {
        std::vector<Tarn16s> expectedWords, actualWords(200);
        std::vector<Tarn64s> expectedWide, actualWide(200);
        for (std::size_t i = 0; i < 200; ++i) {
            expectedWords.push_back(rootOfInteger(words[i], s).value);
            expectedWide.push_back(rootOfInteger(wide[i], s).value);
        }
        for (const RoundingMode mode : allRoundingModes) {
            const RoundingModeScope scope(mode);
            const FpState before = FpState::current();
            EXPECT_EQ(tarnStsSqrtNegArg, tarnsSqrt_16s_Sfs(words.data(), actualWords.data(), 200, s));
            EXPECT_EQ(tarnStsSqrtNegArg, tarnsSqrt_64s_Sfs(wide.data(), actualWide.data(), 200, s));
            EXPECT_EQ("", before.changesSince());
            EXPECT_EQ(expectedWords, actualWords);
            EXPECT_EQ(expectedWide, actualWide);
        }
    }
}

TEST(SquareRoot, WordsWorthATest)
{
    const auto root = [](Tarn16s x, int s) {
        Tarn16s y = 77;
        const TarnStatus status = tarnsSqrt_16s_Sfs(&x, &y, 1, s);
        return std::pair<int, int>(y, status);
    };
    EXPECT_EQ(std::pair(0, int{tarnStsSqrtNegArg}), root(-4, 0));
    EXPECT_EQ(std::pair(32767, int{tarnStsNoErr}), root(4, -15));
    EXPECT_EQ(std::pair(0, int{tarnStsNoErr}), root(4, 9));
    EXPECT_EQ(std::pair(0, int{tarnStsSqrtNegArg}), root(-1, 9));
    EXPECT_EQ(std::pair(0, int{tarnStsSqrtNegArg}), root(-1, -15));
    EXPECT_EQ(std::pair(0, int{tarnStsNoErr}), root(0, -15));
    EXPECT_EQ(std::pair(2, int{tarnStsNoErr}), root(9, 1));
    EXPECT_EQ(std::pair(2, int{tarnStsNoErr}), root(25, 1));
}

float rootBySteps(float x)
{
    if (!(x >= std::numeric_limits<float>::min() && x < std::numeric_limits<float>::infinity()))
        return std::sqrt(x);
    const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
    volatile float product = x * y;
    volatile float half = 0.5F * product;
    volatile float square = product * y;
    volatile float difference = 3 - square;
    volatile float root = half * difference;
    return root;
}

// Which elements have steps depends on the destination's address.
void expectRoots(const std::vector<Tarn32f>& x, unsigned offset, bool inPlace)
{
    const std::size_t len = x.size();
    GuardedArray<Tarn32f> roots(inPlace ? x : std::vector<Tarn32f>(len, 7), Placement::offset(offset));
    const GuardedArray<Tarn32f> src(x, Placement::offset(offset * 3 % 16));
    const std::size_t toBoundary = offset % 4 == 0 ? (16 - offset % 16) % 16 / 4 : 0;
    const std::size_t head = len < 11 ? len : std::min(len, toBoundary);
    const std::size_t end = head + (len - head) / 8 * 8;
    std::vector<Tarn32f> expected;
    int status = tarnStsNoErr;
    for (std::size_t i = 0; i < len; ++i) {
        expected.push_back(i >= head && i < end ? rootBySteps(x[i]) : std::sqrt(x[i]));
        if (x[i] < 0)
            status = tarnStsSqrtNegArg;
    }
    const int n = static_cast<int>(len);
    EXPECT_EQ(status, inPlace ? tarnsSqrt_32f_I(roots.data(), n) : tarnsSqrt_32f(src.data(), roots.data(), n));
    EXPECT_TRUE(arraysMatch(expected, roots));
}

TEST(SquareRoot, OfFloatsByWhereTheyLie)
{
    std::vector<Tarn32f> hard = randomValues<Tarn32f>(5000, 3);
    std::vector<Tarn32f> tame = randomValues<Tarn32f>(5000, 4, Values::unit);
    for (Tarn32f& x : tame)
        x = std::fabs(x);
    std::size_t first = 0;
    for (const std::vector<Tarn32f>* values : {&hard, &tame})
        for (const int len : lengths({11, 19}))
            for (unsigned offset = 0; offset < 16; ++offset) {
                const auto count = static_cast<std::size_t>(len);
                if (count > values->size())
                    continue;
                first = (first + 37) % (values->size() - count + 1);
                const auto from = values->begin() + static_cast<std::ptrdiff_t>(first);
                SCOPED_TRACE("len " + std::to_string(len) + ", offset " + std::to_string(offset));
                expectRoots(std::vector<Tarn32f>(from, from + len), offset, false);
                expectRoots(std::vector<Tarn32f>(from, from + len), offset, true);
                if (::testing::Test::HasFailure())
                    return;
            }
}

// One operand of all significands and both parities of the exponent.
TEST(SquareRoot, OfFloatsIsGoodToFourUnits)
{
    std::vector<Tarn32f> x(1 << 16), y(1 << 16);
    for (unsigned high = 0; high < 256; high += 3) {
        for (unsigned low = 0; low < x.size(); ++low)
            x[low] = std::bit_cast<Tarn32f>(0x3F800000U + (high << 16) + low);
        ASSERT_EQ(tarnStsNoErr, tarnsSqrt_32f(x.data(), y.data(), static_cast<int>(x.size())));
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double truth = std::sqrt(static_cast<double>(x[i]));
            ASSERT_LE(std::fabs(y[i] - truth), 4 * std::ldexp(1.0, -23 + std::ilogb(truth))) << toText(x[i]);
        }
    }
}

TEST(SquareRoot, OfDoublesIsCorrectlyRounded)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const auto model = [](Tarn64f x) {
            volatile Tarn64f root = std::sqrt(x);
            return Outcome<Tarn64f>{root, x < 0 ? tarnStsSqrtNegArg : tarnStsNoErr};
        };
        sweepElementwise<Tarn64f, Tarn64f>(tarnsSqrt_64f, model);
        sweepInPlace<Tarn64f>(tarnsSqrt_64f_I, model, {.depth = Depth::quick});
    }
}

TEST(SquareRoot, NegativeFloatsAreNaN)
{
    const Tarn32f x[] = {4, -1, -0.0F, -std::numeric_limits<Tarn32f>::infinity(), 9};
    Tarn32f y[5];
    EXPECT_EQ(tarnStsSqrtNegArg, tarnsSqrt_32f(x, y, 5));
    EXPECT_EQ(2, y[0]);
    EXPECT_TRUE(valuesMatch<Tarn32f>(tarnConstantOfNAN_32f, y[1], {.nan = NanRule::sameBits}));
    EXPECT_TRUE(valuesMatch<Tarn32f>(-0.0F, y[2]));
    EXPECT_TRUE(std::isnan(y[3]));
    EXPECT_EQ(3, y[4]);
    EXPECT_EQ(tarnStsNoErr, tarnsSqrt_32f(x + 2, y, 1));
}

// -- Complex elements -------------------------------------------------------------------------------------------------

/// In extended precision, whose range takes the squares of doubles.
std::complex<long double> principalRoot(long double re, long double im)
{
    if (std::isinf(im))
        return {std::fabs(im), im};
    if (re == 0 && im == 0)
        return {0, im};
    const long double magnitude = std::sqrt(re * re + im * im);
    const long double larger = std::sqrt((std::fabs(re) + magnitude) / 2);
    const long double smaller = im / (2 * larger);
    if (re < 0)
        return {std::fabs(smaller), std::copysign(larger, im)};
    return {larger, smaller};
}

template <class T>
T rootOf(T z)
{
    const auto root = principalRoot(z.re, z.im);
    return {static_cast<RealOf<T>>(root.real()), static_cast<RealOf<T>>(root.imag())};
}

// Four operations of one unit at most each, halved by the roots on their way, and in double precision all of them
// vanish in the rounding to single.
TEST(SquareRoot, OfComplexFloats)
{
    const Match single{.ulps = 0.51 + 0.5};
    sweepElementwise<Tarn32fc, Tarn32fc>(tarnsSqrt_32fc, rootOf<Tarn32fc>, {.match = single});
    sweepInPlace<Tarn32fc>(tarnsSqrt_32fc_I, rootOf<Tarn32fc>, {.depth = Depth::quick, .match = single});
    const Match twice{.ulps = 3};
    sweepElementwise<Tarn64fc, Tarn64fc>(tarnsSqrt_64fc, rootOf<Tarn64fc>, {.match = twice});
    sweepInPlace<Tarn64fc>(tarnsSqrt_64fc_I, rootOf<Tarn64fc>, {.depth = Depth::quick, .match = twice});
}

TEST(SquareRoot, OfComplexFloatsLeavesNoFlagsAndRaisesNoTrap)
{
    constexpr std::uint32_t trapped = 0x0000; // every exception unmasked
    const Tarn32fc x[] = {{0, 0}, {std::numeric_limits<float>::infinity(), 1}, {1e-40F, 3}, {0.1F, 0.3F}};
    Tarn32fc y[4];
    std::uint32_t after = 0;
    {
        const MxcsrScope scope(trapped);
        tarnsSqrt_32fc(x, y, 4);
        after = readMxcsr();
    }
    EXPECT_EQ(trapped, after);
}

TEST(SquareRoot, OnTheNegativeRealAxis)
{
    const Tarn64fc x[] = {{-4, 0}, {-4, -0.0}, {4, -0.0}};
    Tarn64fc y[3];
    EXPECT_EQ(tarnStsNoErr, tarnsSqrt_64fc(x, y, 3));
    EXPECT_TRUE(valuesMatch<Tarn64fc>({0, 2}, y[0]));
    EXPECT_TRUE(valuesMatch<Tarn64fc>({0, -2}, y[1]));
    EXPECT_TRUE(valuesMatch<Tarn64fc>({2, -0.0}, y[2]));
}

TEST(SquareRoot, OfComplexWords)
{
    for (const int s : scaleFactors(-25, 8)) {
        SCOPED_TRACE(s);
        const auto model = [s](Tarn16sc z) {
            const auto root = principalRoot(z.re, z.im);
            const auto part = [s](long double x) {
                return model::nearest<Tarn16s>(std::ldexp(static_cast<double>(x), -std::clamp(s, -100, 100)));
            };
            return Tarn16sc{part(root.real()), part(root.imag())};
        };
        sweepElementwise<Tarn16sc, Tarn16sc>(
            [s](const Tarn16sc* src, Tarn16sc* dst, int len) { return tarnsSqrt_16sc_Sfs(src, dst, len, s); }, model,
            {.depth = s == 0 ? Depth::full : Depth::quick});
        sweepInPlace<Tarn16sc>([s](Tarn16sc* z, int len) { return tarnsSqrt_16sc_ISfs(z, len, s); }, model,
                               {.depth = Depth::quick});
    }
}

TEST(SquareRoot, ChecksInOrder)
{
    // What the arrays hold is negative.
    const ChecksOptions warns{.goodStatus = tarnStsSqrtNegArg};
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsSqrt_8u_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqrt_16u_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqrt_16s_Sfs, warns, array, array, length, s);
        expectChecks(tarnsSqrt_16sc_Sfs, {}, array, array, length, s);
        expectChecks(tarnsSqrt_64s_Sfs, warns, array, array, length, s);
        expectChecks(tarnsSqrt_8u_ISfs, {}, array, length, s);
        expectChecks(tarnsSqrt_16u_ISfs, {}, array, length, s);
        expectChecks(tarnsSqrt_16s_ISfs, warns, array, length, s);
        expectChecks(tarnsSqrt_16sc_ISfs, {}, array, length, s);
        expectChecks(tarnsSqrt_64s_ISfs, warns, array, length, s);
    }
    expectChecks(tarnsSqrt_32f, warns);
    expectChecks(tarnsSqrt_64f, warns);
    expectChecks(tarnsSqrt_32fc);
    expectChecks(tarnsSqrt_64fc);
    expectChecks(tarnsSqrt_32f_I, warns);
    expectChecks(tarnsSqrt_64f_I, warns);
    expectChecks(tarnsSqrt_32fc_I);
    expectChecks(tarnsSqrt_64fc_I);
}

} // namespace
} // namespace tarn::test
