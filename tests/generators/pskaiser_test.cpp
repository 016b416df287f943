// The Kaiser window: each weight against its polynomial in extended precision, and against the true Bessel function.
#include "tarns.h"

#include "levels/generators/pskaiser.h"
#include "model/windows.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

using model::isPair;
using model::RealPart;

template <class T>
using OutOfPlace = TarnStatus (*)(const T*, T*, int, Tarn32f);
template <class T>
using InPlace = TarnStatus (*)(T*, int, Tarn32f);

// -- The two evaluators, highest power first --------------------------------------------------------------------------

long double horner(long double x, const std::vector<double>& coefficients)
{
    long double sum = 0;
    for (const double c : coefficients)
        sum = sum * x + c;
    return sum;
}

std::vector<double> asFloats(std::vector<double> values)
{
    for (double& x : values)
        x = static_cast<float>(x);
    return values;
}

struct Evaluator {
    double threshold, overThreshold;
    std::vector<double> small, large;

    long double operator()(long double x) const
    {
        if (x < threshold) {
            const long double t = x * static_cast<long double>(overThreshold);
            return horner(t * t, small);
        }
        return std::exp(x) / std::sqrt(x) * horner(threshold / x, large);
    }
};

const std::vector<double> largeSingle = {0.00392377,  -0.01647633, 0.02635537, -0.02057706, 0.00916281,
                                         -0.00157565, 0.00225319,  0.01328592, 0.39894228};
const Evaluator normaliserSingle{
    3.75, 0.26666666666666666, {0.0045813, 0.0360768, 0.2659732, 1.2067492, 3.0899424, 3.5156229, 1}, largeSingle};
const Evaluator kernelSingle{3.75, static_cast<double>(0.26666666666666666F),
                             asFloats({0.0045813, 0.0360768, 0.26687756, 1.2067492, 3.0899424, 3.5156229, 1}),
                             asFloats(largeSingle)};
const Evaluator normaliserDouble{
    4,
    0.25,
    {0.0008267816, 0.0075942968, 0.0713758187, 0.4443189384, 1.777809969, 3.9999959541, 4.0000001935, 0.9999999985},
    {0.0051246015, -0.0366694767, 0.1113315511, -0.1867783276, 0.1895476618, -0.1209940805, 0.0495811118, -0.0128314822,
     0.0022585672, 0.00026, 0.0017623668, 0.0124667783, 0.3989422809}};
const Evaluator kernelDouble{
    4,
    0.25,
    {0.000674193709375, 0.0075942968, 0.0713758187, 0.4443189384, 1.777809969, 3.9999959541, 4.000003096, 0.9999999985},
    {0.0051246015, -0.0366694767, 0.1113315511, -0.1867783276, 0.18954771930079328, -0.1209940805, 0.04958113163828737,
     -0.0128314822, 0.0022585681074049, 0.00026, 0.0017623668, 0.0124667783, 0.3989422809}};

template <class T>
constexpr bool isDouble = std::is_same_v<RealPart<T>, double>;

// The argument of the normaliser is a float product in all forms but those with a fixed-point alpha.
template <class T>
long double inverseFor(int len, double alpha, bool isQ15)
{
    const volatile float narrow = static_cast<float>(len - 1) * static_cast<float>(alpha);
    const double argument = isQ15 ? (len - 1) * alpha / 2 : static_cast<double>(narrow) / 2;
    const double inverse =
        static_cast<double>(1 / (isDouble<T> ? normaliserDouble : normaliserSingle)(std::fabs(argument)));
    return isDouble<T> ? inverse : static_cast<float>(inverse);
}

struct Weight {
    long double value, bound;
    bool isNearThreshold;
};

// Lanes have the rounding of the argument, which the exponential grows with, and of some twenty operations; elements
// that fill no group have those of one rounding at the end.
template <class T>
Weight weightAt(int n, int len, double alpha, long double inverse)
{
    constexpr int group = isDouble<T> ? 2 : 4;
    const bool isRest = n >= len / 2 / group * group;
    const auto q = static_cast<long double>(len - 1 - n) * n;
    const long double r = std::fabs(std::sqrt(q) * alpha);
    const Evaluator& bessel = isDouble<T> ? kernelDouble : kernelSingle;
    const long double lanesEpsilon = isDouble<T> ? 0x1p-52L : 0x1p-23L;
    const long double value = bessel(r) * inverse;
    const long double bound = (isRest ? 0x1p-50L : lanesEpsilon * (8 + 2 * r)) * value;
    return {value, bound, std::fabs(r - bessel.threshold) < 1e-4L};
}

template <class T>
std::vector<RealPart<T>> partsOf(const std::vector<T>& x)
{
    const auto* const parts = reinterpret_cast<const RealPart<T>*>(x.data());
    return {parts, parts + x.size() * (isPair<T> ? 2 : 1)};
}

template <class T>
std::vector<T> signal(int len, int seed)
{
    std::vector<T> x(static_cast<std::size_t>(len));
    auto* const parts = reinterpret_cast<RealPart<T>*>(x.data());
    for (std::size_t i = 0; i < x.size() * (isPair<T> ? 2 : 1); ++i) {
        const int value = static_cast<int>((i * 7919 + static_cast<std::size_t>(seed) * 104729) % 65536) - 32768;
        parts[i] = static_cast<RealPart<T>>(value);
    }
    return x;
}

template <class T>
void expectWindow(const std::vector<T>& src, const std::vector<T>& dst, double alpha, bool isQ15)
{
    constexpr std::size_t parts = isPair<T> ? 2 : 1;
    const auto x = partsOf(src);
    const auto y = partsOf(dst);
    const int len = static_cast<int>(src.size());
    const long double inverse = inverseFor<T>(len, alpha, isQ15);
    for (int i = 0; i < len; ++i)
        for (std::size_t part = 0; part < parts; ++part) {
            const std::size_t at = static_cast<std::size_t>(i) * parts + part;
            const int n = std::min(i, len - 1 - i);
            if (len % 2 != 0 && i == len / 2) {
                ASSERT_EQ(x[at], y[at]);
                continue;
            }
            const Weight w = weightAt<T>(n, len, alpha, inverse);
            if (w.isNearThreshold)
                continue;
            const long double product = w.value * static_cast<long double>(x[at]);
            const long double error = w.bound * std::fabs(static_cast<long double>(x[at]));
            if constexpr (std::is_integral_v<RealPart<T>>) {
                const long double limited = std::clamp(product, -32768.0L, 32767.0L);
                ASSERT_NEAR(static_cast<double>(limited), y[at], static_cast<double>(0.5L + error))
                    << i << " of " << len;
            } else {
                const long double rounding = std::fabs(product) * std::numeric_limits<RealPart<T>>::epsilon() * 0.5001L;
                ASSERT_NEAR(static_cast<double>(product), static_cast<double>(y[at]),
                            static_cast<double>(error + rounding))
                    << i << " of " << len << ", alpha " << alpha;
            }
        }
}

const int tried[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 31, 32, 33, 100, 257, 1024, 5001};

// Shapes from none to the limit.
std::vector<double> betas() { return {0, 0.01, 1, 3, 3.7, 3.9, 4.1, 7, 10, 20, 37.9}; }

template <class T>
void expectWindows(OutOfPlace<T> call, InPlace<T> inPlace)
{
    for (const int len : tried)
        for (const double beta : betas())
            for (const int sign : {1, -1}) {
                const auto alpha = static_cast<float>(sign * 2 * beta / (len - 1));
                for (const unsigned offset : {0U, 3U, 8U}) {
                    const auto src = signal<T>(len, len);
                    const GuardedArray<T> from(src, Placement::offset(offset));
                    GuardedArray<T> to(src.size(), offset == 8 ? Placement::atEnd() : Placement::offset(offset + 1));
                    const FpState before = FpState::current();
                    ASSERT_EQ(tarnStsNoErr, call(from.data(), to.data(), len, alpha));
                    EXPECT_EQ("", before.changesSince());
                    expectWindow<T>(src, to.copy(), alpha, false);
                    GuardedArray<T> both(src, Placement::offset(offset));
                    ASSERT_EQ(tarnStsNoErr, inPlace(both.data(), len, alpha));
                    EXPECT_EQ(0, std::memcmp(both.bytes(), to.bytes(), to.byteSize()));
                    if (::testing::Test::HasFailure())
                        return;
                }
            }
}

TEST(Kaiser, SixteenBits)
{
    expectWindows<Tarn16s>(tarnsWinKaiser_16s, tarnsWinKaiser_16s_I);
    expectWindows<Tarn16sc>(tarnsWinKaiser_16sc, tarnsWinKaiser_16sc_I);
}
TEST(Kaiser, SinglePrecision)
{
    expectWindows<Tarn32f>(tarnsWinKaiser_32f, tarnsWinKaiser_32f_I);
    expectWindows<Tarn32fc>(tarnsWinKaiser_32fc, tarnsWinKaiser_32fc_I);
}
TEST(Kaiser, DoublePrecision)
{
    expectWindows<Tarn64f>(tarnsWinKaiser_64f, tarnsWinKaiser_64f_I);
    expectWindows<Tarn64fc>(tarnsWinKaiser_64fc, tarnsWinKaiser_64fc_I);
}

template <class T, class Call, class CallInPlace>
void expectFixedPoint(Call call, CallInPlace inPlace)
{
    for (const int len : tried)
        for (const double beta : betas())
            for (const int sign : {1, -1}) {
                const int alphaQ15 = static_cast<int>(sign * 2 * beta / (len - 1) * 32768);
                const auto src = signal<T>(len, 1);
                std::vector<T> dst(src.size());
                ASSERT_EQ(tarnStsNoErr, call(src.data(), dst.data(), len, alphaQ15));
                expectWindow<T>(src, dst, alphaQ15 / 32768.0, true);
                auto both = src;
                ASSERT_EQ(tarnStsNoErr, inPlace(both.data(), len, alphaQ15));
                EXPECT_EQ(0, std::memcmp(both.data(), dst.data(), dst.size() * sizeof(T)));
            }
}
TEST(Kaiser, FixedPointAlpha)
{
    expectFixedPoint<Tarn16s>(tarnsWinKaiserQ15_16s, tarnsWinKaiserQ15_16s_I);
    expectFixedPoint<Tarn16sc>(tarnsWinKaiserQ15_16sc, tarnsWinKaiserQ15_16sc_I);
}

// -- Against the function itself --------------------------------------------------------------------------------------

// The power series, whose terms are all positive.
long double trueBessel(long double x)
{
    long double sum = 1;
    long double term = 1;
    for (int k = 1; term > sum * 1e-20L; ++k) {
        term *= x * x / 4 / k / k;
        sum += term;
    }
    return sum;
}

// Of the weights whose arguments lie between two bounds.
template <class T>
double worstError(InPlace<T> inPlace, double beta, double from, double to)
{
    constexpr int len = 1000;
    const auto alpha = static_cast<float>(2 * beta / (len - 1));
    std::vector<T> w(len, T{1});
    EXPECT_EQ(tarnStsNoErr, inPlace(w.data(), len, alpha));
    double worst = 0;
    for (int n = 0; n < len / 2; ++n) {
        const long double r = std::sqrt(static_cast<long double>(n) * (len - 1 - n)) * std::fabs(alpha);
        const long double exact = trueBessel(r) / trueBessel(static_cast<long double>(alpha) * (len - 1) / 2);
        if (r >= from && r < to)
            worst = std::max(worst, std::fabs(static_cast<double>(exact - w[static_cast<std::size_t>(n)])));
    }
    return worst;
}

// The figures of the manual. What the kernel's small branch has of its own shows where its argument is large.
TEST(Kaiser, ErrorOfTheWeights)
{
    for (double beta = 0.5; beta < 38; beta += 0.5) {
        EXPECT_LT(worstError<Tarn32f>(tarnsWinKaiser_32f_I, beta, 0, 38), 1.1e-4) << beta;
        EXPECT_LT(worstError<Tarn64f>(tarnsWinKaiser_64f_I, beta, 0, 38), 1.4e-5) << beta;
        EXPECT_LT(worstError<Tarn32f>(tarnsWinKaiser_32f_I, beta, 3.751, 38), 1e-5) << beta;
        EXPECT_LT(worstError<Tarn64f>(tarnsWinKaiser_64f_I, beta, 4.001, 38), 6e-6) << beta;
    }
    // The deviation itself: without it the error would be a hundred times smaller.
    EXPECT_GT(worstError<Tarn32f>(tarnsWinKaiser_32f_I, 3.7, 3, 3.75), 5e-5);
    EXPECT_GT(worstError<Tarn64f>(tarnsWinKaiser_64f_I, 3.95, 3, 4), 5e-6);
}

TEST(Kaiser, Normalisers)
{
    const auto narrow = ownsBessel_32f;
    const auto wide = ownsBessel_64f;
    for (double x = -38; x <= 38; x += 0.0625) {
        const double magnitude = std::fabs(x);
        EXPECT_NEAR(1, narrow(x) / static_cast<double>(normaliserSingle(magnitude)), 4e-15) << x;
        EXPECT_NEAR(1, wide(x) / static_cast<double>(normaliserDouble(magnitude)), 4e-15) << x;
        EXPECT_NEAR(1, narrow(x) / static_cast<double>(trueBessel(magnitude)), 3e-7) << x;
        EXPECT_NEAR(1, wide(x) / static_cast<double>(trueBessel(magnitude)), 6e-6) << x;
    }
    EXPECT_EQ(1, narrow(0));
    EXPECT_EQ(0.9999999985, wide(0));
}

// -- Edges ------------------------------------------------------------------------------------------------------------

TEST(Kaiser, Limit)
{
    Tarn32f x[2] = {3, 4};
    EXPECT_EQ(tarnStsNoErr, tarnsWinKaiser_32f_I(x, 2, 76.0F));
    x[0] = 3;
    x[1] = 4;
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiser_32f_I(x, 2, 76.1F));
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiser_32f_I(x, 2, std::nextafter(76.0F, 100.0F)));
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiser_32f_I(x, 2, -76.1F));
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiser_32f_I(x, 2, std::numeric_limits<float>::infinity()));
    EXPECT_EQ(3, x[0]);
    EXPECT_EQ(4, x[1]);
    Tarn16s words[2] = {3, 4};
    EXPECT_EQ(tarnStsNoErr, tarnsWinKaiserQ15_16s_I(words, 2, 76 * 32768));
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiserQ15_16s_I(words, 2, 76 * 32768 + 1));
    EXPECT_EQ(tarnStsKaiserHugeErr, tarnsWinKaiserQ15_16s_I(words, 3, std::numeric_limits<int>::min()));
}

TEST(Kaiser, OneElement)
{
    for (const float alpha : {0.0F, 76.1F, -1e30F, std::numeric_limits<float>::max()}) {
        Tarn64fc from{1.5, -2.5};
        Tarn64fc to{0, 0};
        ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_64fc(&from, &to, 1, alpha));
        EXPECT_EQ(1.5, to.re);
        EXPECT_EQ(-2.5, to.im);
        Tarn16s word = 77;
        ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_16s_I(&word, 1, alpha));
        EXPECT_EQ(77, word);
    }
}

TEST(Kaiser, NoShapeLeavesTheSignal)
{
    auto x = signal<Tarn32f>(41, 3);
    const auto before = x;
    ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_32f_I(x.data(), 41, 0));
    EXPECT_EQ(before, x);
}

// Next to the middle the kernel's weight is a little more than the normaliser allows for.
TEST(Kaiser, SaturatesAboveOne)
{
    constexpr int len = 4000;
    std::vector<Tarn16s> x(len, 32767);
    ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_16s_I(x.data(), len, static_cast<float>(2 * 3.7 / (len - 1))));
    EXPECT_EQ(32767, x[len / 2 - 3]);
    std::vector<Tarn32f> w(len, 1);
    ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_32f_I(w.data(), len, static_cast<float>(2 * 3.7 / (len - 1))));
    EXPECT_GT(w[len / 2 - 3], 1);
}

// A NaN passes the limit and makes all weights NaN, but for the middle element.
TEST(Kaiser, NanAlpha)
{
    Tarn64f x[5] = {1, 2, 3, 4, 5};
    ASSERT_EQ(tarnStsNoErr, tarnsWinKaiser_64f_I(x, 5, std::nanf("")));
    EXPECT_TRUE(std::isnan(x[0]));
    EXPECT_TRUE(std::isnan(x[1]));
    EXPECT_EQ(3, x[2]);
}

template <class T>
void expectKaiserChecks(OutOfPlace<T> call, InPlace<T> inPlace)
{
    const auto alpha = param<Tarn32f>(10.8F, {10.9F, -10.9F, 1e30F}, tarnStsKaiserHugeErr);
    expectChecks(call, {}, array, array, length, alpha);
    expectChecks(inPlace, {}, array, length, alpha);
}
TEST(Kaiser, Checks)
{
    expectKaiserChecks<Tarn16s>(tarnsWinKaiser_16s, tarnsWinKaiser_16s_I);
    expectKaiserChecks<Tarn16sc>(tarnsWinKaiser_16sc, tarnsWinKaiser_16sc_I);
    expectKaiserChecks<Tarn32f>(tarnsWinKaiser_32f, tarnsWinKaiser_32f_I);
    expectKaiserChecks<Tarn32fc>(tarnsWinKaiser_32fc, tarnsWinKaiser_32fc_I);
    expectKaiserChecks<Tarn64f>(tarnsWinKaiser_64f, tarnsWinKaiser_64f_I);
    expectKaiserChecks<Tarn64fc>(tarnsWinKaiser_64fc, tarnsWinKaiser_64fc_I);
    const auto alphaQ15 = param<int>(100000, {400000, -400000, std::numeric_limits<int>::min()}, tarnStsKaiserHugeErr);
    expectChecks(tarnsWinKaiserQ15_16s, {}, array, array, length, alphaQ15);
    expectChecks(tarnsWinKaiserQ15_16s_I, {}, array, length, alphaQ15);
    expectChecks(tarnsWinKaiserQ15_16sc, {}, array, array, length, alphaQ15);
    expectChecks(tarnsWinKaiserQ15_16sc_I, {}, array, length, alphaQ15);
}

} // namespace
} // namespace tarn::test
