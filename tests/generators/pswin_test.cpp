// The windows against their definitions: to the bit in the stated order of operations, and against the formulas.
#include "tarns.h"

#include "model/windows.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

using model::Window;

template <class T>
using Alpha = std::conditional_t<std::is_same_v<model::RealPart<T>, double>, double, float>;

template <class T>
using OutOfPlace = TarnStatus (*)(const T*, T*, int);
template <class T>
using InPlace = TarnStatus (*)(T*, int);

// All lengths, addresses and values that matter, out of place, in place and with the source as destination.
// `thresholds` are lengths, not numbers of pairs.
template <class T, class Call, class CallInPlace, class AlphaOf>
void sweepWindow(Call call, CallInPlace inPlace, Window kind, AlphaOf alphaOf, Depth depth, int shortest = 3)
{
    SweepOptions options{.thresholds = {1026, 1282}, .depth = depth};
    const auto model = [&](std::span<const T> src) {
        const int len = static_cast<int>(src.size());
        using Result = Outcome<std::vector<T>>;
        return len < shortest ? Result{{}, tarnStsSizeErr} : Result{model::window<T>(src, kind, alphaOf(len))};
    };
    sweepElementwise<T, T>(call, model, options);
    const auto modelInPlace = [&](std::span<const T> src) {
        auto result = model(src);
        if (result.value.empty())
            result.value.assign(src.begin(), src.end());
        return result;
    };
    options.depth = Depth::quick;
    sweepInPlace<T>(inPlace, modelInPlace, options);
    sweepAliased<T>(call, modelInPlace, options);
}

double noAlpha(int /*len*/) { return 0; }

template <class T>
void sweepPlain(OutOfPlace<T> call, InPlace<T> inPlace, Window kind)
{
    sweepWindow<T>(call, inPlace, kind, noAlpha, Depth::full);
}

#define FOR_ALL_TYPES(STEP, STEM, ...)                                                         \
    STEP<Tarn16s>(tarnsWin##STEM##_16s, tarnsWin##STEM##_16s_I __VA_OPT__(, ) __VA_ARGS__);    \
    STEP<Tarn16sc>(tarnsWin##STEM##_16sc, tarnsWin##STEM##_16sc_I __VA_OPT__(, ) __VA_ARGS__); \
    STEP<Tarn32f>(tarnsWin##STEM##_32f, tarnsWin##STEM##_32f_I __VA_OPT__(, ) __VA_ARGS__);    \
    STEP<Tarn32fc>(tarnsWin##STEM##_32fc, tarnsWin##STEM##_32fc_I __VA_OPT__(, ) __VA_ARGS__); \
    STEP<Tarn64f>(tarnsWin##STEM##_64f, tarnsWin##STEM##_64f_I __VA_OPT__(, ) __VA_ARGS__);    \
    STEP<Tarn64fc>(tarnsWin##STEM##_64fc, tarnsWin##STEM##_64fc_I __VA_OPT__(, ) __VA_ARGS__);

TEST(Windows, Bartlett){FOR_ALL_TYPES(sweepPlain, Bartlett, Window::bartlett)} TEST(Windows, Hann){
    FOR_ALL_TYPES(sweepPlain, Hann, Window::hann)} TEST(Windows, Hamming)
{
    FOR_ALL_TYPES(sweepPlain, Hamming, Window::hamming)
}

// Alphas that make weights exceed 1, change their sign, or leave everything.
template <class T>
void sweepBlackman(TarnStatus (*call)(const T*, T*, int, Alpha<T>), TarnStatus (*inPlace)(T*, int, Alpha<T>))
{
    Depth depth = Depth::full;
    for (const double value : {-0.16, 0.0, -0.5, 1.0, -3.7, 1e6, -1e12, std::nan("")}) {
        SCOPED_TRACE(value);
        const auto alpha = static_cast<Alpha<T>>(value);
        sweepWindow<T>([=](const T* src, T* dst, int len) { return call(src, dst, len, alpha); },
                       [=](T* srcDst, int len) { return inPlace(srcDst, len, alpha); }, Window::blackman,
                       [=](int) { return alpha; }, depth);
        depth = Depth::quick;
    }
}
TEST(Windows, Blackman) { FOR_ALL_TYPES(sweepBlackman, Blackman) }

template <class T>
void sweepStd(OutOfPlace<T> call, InPlace<T> inPlace)
{
    sweepWindow<T>(
        call, inPlace, Window::blackman, [](int) { return static_cast<Alpha<T>>(-0.16); }, Depth::quick);
}
template <class T>
void sweepOpt(OutOfPlace<T> call, InPlace<T> inPlace)
{
    sweepWindow<T>(
        call, inPlace, Window::blackman, [](int len) { return static_cast<Alpha<T>>(model::optimalAlpha(len)); },
        Depth::quick, 4);
}
TEST(Windows, BlackmanWithNamedAlphas)
{
    FOR_ALL_TYPES(sweepStd, BlackmanStd)
    FOR_ALL_TYPES(sweepOpt, BlackmanOpt)
}

template <class T>
void sweepQ15(TarnStatus (*call)(const T*, T*, int, int), TarnStatus (*inPlace)(T*, int, int))
{
    for (const int q : {-5243, 0, 1, 32767, -16384, 1 << 20, std::numeric_limits<int>::min(), 33554433}) {
        SCOPED_TRACE(q);
        const double alpha = static_cast<Tarn32f>(std::ldexp(q, -15));
        sweepWindow<T>([=](const T* src, T* dst, int len) { return call(src, dst, len, q); },
                       [=](T* srcDst, int len) { return inPlace(srcDst, len, q); }, Window::blackman,
                       [=](int) { return alpha; }, Depth::quick);
    }
}
TEST(Windows, BlackmanWithAFixedPointAlpha)
{
    sweepQ15<Tarn16s>(tarnsWinBlackmanQ15_16s, tarnsWinBlackmanQ15_16s_I);
    sweepQ15<Tarn16sc>(tarnsWinBlackmanQ15_16sc, tarnsWinBlackmanQ15_16sc_I);
}

// Weights times the factor in single precision throughout; the middle element is scaled like the others.
std::vector<Tarn16s> scaledBlackman(std::span<const Tarn16s> src, int alphaQ15, int scaleFactor)
{
    const int len = static_cast<int>(src.size());
    const double factor = std::pow(2.0, -static_cast<double>(scaleFactor));
    std::vector<Tarn16s> dst(src.begin(), src.end());
    if (len == 3) {
        double x = dst[1] * factor;
        x = x > 32767 ? 32767 : x > -32768 ? x : -32768;
        dst = {0, static_cast<Tarn16s>(x < 0 ? std::ceil(x - 0.5) : std::floor(x + 0.5)), 0};
        return dst;
    }
    const double alpha = static_cast<float>(std::ldexp(alphaQ15, -15));
    const auto y = model::cosineSequence<float>(0.5, model::cosineOf<Tarn16s>(1, len), model::cosineOf<Tarn16s>(4, len),
                                                4, len / 2);
    const auto s = static_cast<float>(factor);
    const auto at = [&](int n) { return model::weightOf(Window::blackman, alpha, y[static_cast<std::size_t>(n)]) * s; };
    dst = model::windowed(src, 1, at, at);
    if (len % 2 != 0) {
        const auto middle = static_cast<std::size_t>(len / 2);
        const float x = static_cast<float>(src[middle]) * s;
        dst[middle] = x > 32767 ? Tarn16s{32767} : x > -32768 ? model::roundedSample(x) : Tarn16s{-32768};
    }
    return dst;
}

TEST(Windows, ScaledBlackman)
{
    for (const int s : scaleFactors(-17, 17)) {
        SCOPED_TRACE(s);
        const int alphaQ15 = s % 2 == 0 ? -5243 : 20000;
        sweepInPlace<Tarn16s>(
            [&](Tarn16s* srcDst, int len) { return tarnsWinBlackmanQ15_16s_ISfs(srcDst, len, alphaQ15, s); },
            [&](std::span<const Tarn16s> src) {
                using Result = Outcome<std::vector<Tarn16s>>;
                return src.size() < 3 ? Result{std::vector<Tarn16s>(src.begin(), src.end()), tarnStsSizeErr}
                                      : Result{scaledBlackman(src, alphaQ15, s)};
            },
            {.depth = s == 1 ? Depth::full : Depth::quick});
    }
}

// Half away from zero at three elements, half to even in the middle of five.
TEST(Windows, ScaledBlackmanRoundsTheMiddleByLength)
{
    for (const int x : {1, 3, 5, -1, -3, -5}) {
        Tarn16s three[] = {9, static_cast<Tarn16s>(x), 9};
        ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(three, 3, -5243, 1));
        EXPECT_EQ(x < 0 ? (x - 1) / 2 : (x + 1) / 2, three[1]);
        EXPECT_EQ(0, three[0]);
        EXPECT_EQ(0, three[2]);
        Tarn16s five[] = {0, 0, static_cast<Tarn16s>(x), 0, 0};
        ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(five, 5, -5243, 1));
        EXPECT_EQ(static_cast<int>(std::nearbyint(x / 2.0)), five[2]);
    }
    Tarn16s large[] = {1, -20000, 1};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(large, 3, 0, -1));
    EXPECT_EQ(-32768, large[1]);
    Tarn16s huge[] = {0, 0, 20000, 0, 0};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(huge, 5, 0, -100));
    EXPECT_EQ(32767, huge[2]);
}

// A power of two is exact in every rounding mode: one that is off in its last place would move an element that is whole
// after scaling to its neighbour.
TEST(Windows, ScalesByTheSamePowerInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes)
        for (int s = -15; s <= 15; ++s)
            for (const int whole : {1, -1, 3, -3}) {
                const int x = s < 0 ? whole : std::clamp(whole << s, -32768, 32767) >> s << s;
                const double scaled = std::clamp(std::ldexp(x, -s), -32768.0, 32767.0);
                Tarn16s three[] = {9, static_cast<Tarn16s>(x), 9};
                Tarn16s five[] = {0, 0, static_cast<Tarn16s>(x), 0, 0};
                {
                    const RoundingModeScope scope(mode);
                    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(three, 3, -5243, s));
                    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(five, 5, -5243, s));
                }
                EXPECT_EQ(scaled, three[1]) << x << " by 2^-" << s;
                EXPECT_EQ(scaled, five[2]) << x << " by 2^-" << s << " in mode " << static_cast<unsigned>(mode);
            }
}

template <class T>
std::vector<T> ones(int len)
{
    if constexpr (model::isPair<T>)
        return std::vector<T>(static_cast<std::size_t>(len), T{1, -1});
    else
        return std::vector<T>(static_cast<std::size_t>(len), T{1});
}

// The weights themselves against the formulas. A recurrence whose steps each round by an error e is off by at most
// e k (k + 1) / 2 + k d after k steps, where d comes from a factor that is off by d / 2: here e is half a unit in the
// last place of 2, and so is d, which k^2 units in the last place of 1 cover for k of 2 and more.
template <class T>
void expectAccuracy(InPlace<T> inPlace, Window kind, double alpha, int len)
{
    auto w = ones<T>(len);
    ASSERT_EQ(tarnStsNoErr, inPlace(w.data(), len));
    const double k = len / 2.0 + 2;
    const double roundings = std::numeric_limits<model::RealPart<T>>::epsilon() * 4 * (1 + std::fabs(alpha));
    const double drift = k * k * std::numeric_limits<double>::epsilon() * (1 + 4 * std::fabs(alpha));
    for (int n = 0; n < len / 2; ++n) {
        const auto expected = model::trueWeight(kind, n, len, alpha);
        for (const int place : {n, len - 1 - n}) {
            const T x = w[static_cast<std::size_t>(place)];
            if constexpr (model::isPair<T>) {
                ASSERT_NEAR(static_cast<double>(expected), x.re, roundings + drift) << place << " of " << len;
                ASSERT_EQ(x.re, -x.im);
            } else {
                ASSERT_NEAR(static_cast<double>(expected), x, roundings + drift) << place << " of " << len;
            }
        }
    }
    if (len % 2 != 0) {
        EXPECT_TRUE(valuesMatch(ones<T>(1)[0], w[static_cast<std::size_t>(len / 2)]));
    }
}

template <class T>
void expectAccuracies(OutOfPlace<T> /*call*/, InPlace<T> inPlace, Window kind)
{
    if constexpr (!std::is_integral_v<model::RealPart<T>>) {
        for (const int len : {4, 5, 6, 7, 31, 64, 1000, 1023, 1024, 1025, 1026, 1281, 1282, 5001}) {
            const double alpha = kind != Window::blackman          ? 0
                                 : sizeof(model::RealPart<T>) == 4 ? static_cast<double>(-0.16F)
                                                                   : -0.16;
            // Rounded steps, and single-precision sums of them, are a triangle's only errors.
            if (kind == Window::bartlett && sizeof(model::RealPart<T>) == 4 && len > 70)
                continue;
            expectAccuracy<T>(inPlace, kind, alpha, len);
        }
    }
}
TEST(Windows, WeightsFollowTheFormulas){FOR_ALL_TYPES(expectAccuracies, Bartlett, Window::bartlett)
                                            FOR_ALL_TYPES(expectAccuracies, Hann, Window::hann)
                                                FOR_ALL_TYPES(expectAccuracies, Hamming, Window::hamming)
                                                    FOR_ALL_TYPES(expectAccuracies, BlackmanStd, Window::blackman)}

// The largest 16-bit values, where a unit is 2^-15 of the weight. At these lengths the single-precision recurrences are
// off by at most (len / 8 + 2)^2 units of 2^-23, less than one of 2^-15.
TEST(Windows, SixteenBitWeightsFollowTheFormulas)
{
    for (int len = 4; len <= 100; ++len) {
        for (const Window kind : {Window::bartlett, Window::hann, Window::hamming, Window::blackman}) {
            std::vector<Tarn16s> w(static_cast<std::size_t>(len), -32768);
            const auto call = kind == Window::bartlett  ? tarnsWinBartlett_16s_I
                              : kind == Window::hann    ? tarnsWinHann_16s_I
                              : kind == Window::hamming ? tarnsWinHamming_16s_I
                                                        : tarnsWinBlackmanStd_16s_I;
            ASSERT_EQ(tarnStsNoErr, call(w.data(), len));
            for (int n = 0; n < len / 2; ++n) {
                const auto expected = static_cast<double>(-32768 * model::trueWeight(kind, n, len, -0.16L));
                EXPECT_NEAR(expected, w[static_cast<std::size_t>(n)], 1.5) << n << " of " << len;
                EXPECT_EQ(w[static_cast<std::size_t>(n)], w[static_cast<std::size_t>(len - 1 - n)]);
            }
        }
    }
}

TEST(Windows, ThreeElements)
{
    const Tarn32f src[] = {3, 5, 7};
    Tarn32f dst[3];
    for (const auto call : {tarnsWinBartlett_32f, tarnsWinHann_32f, tarnsWinBlackmanStd_32f}) {
        ASSERT_EQ(tarnStsNoErr, call(src, dst, 3));
        const Tarn32f expected[] = {0, 5, 0};
        EXPECT_TRUE(arraysMatch<Tarn32f>(expected, dst, 3));
    }
    ASSERT_EQ(tarnStsNoErr, tarnsWinHamming_32f(src, dst, 3));
    EXPECT_FLOAT_EQ(0.08F * 3, dst[0]);
    EXPECT_EQ(5, dst[1]);
    EXPECT_FLOAT_EQ(0.08F * 7, dst[2]);
}

// Zeros that are set stop an infinity, zeros that are computed make a NaN of it.
TEST(Windows, InfinitiesAtTheEnds)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const auto endOf = [](auto call, auto... elements) {
        using T = std::common_type_t<decltype(elements)...>;
        T x[] = {elements...};
        EXPECT_EQ(tarnStsNoErr, call(x, static_cast<int>(sizeof...(elements))));
        return x[0];
    };
    const auto single = static_cast<float>(infinity);
    EXPECT_EQ(0, endOf(tarnsWinHann_32f_I, single, 1.F, single));
    EXPECT_TRUE(std::isnan(endOf(tarnsWinHann_64f_I, infinity, 1., infinity)));
    EXPECT_EQ(0, endOf(tarnsWinBartlett_64f_I, infinity, 1., infinity));
    EXPECT_EQ(0, endOf(tarnsWinBlackmanStd_64f_I, infinity, 1., infinity));
    EXPECT_TRUE(std::isnan(endOf(tarnsWinHann_32f_I, single, 1.F, 1.F, 1.F, 1.F, 1.F, 1.F, single)));
    EXPECT_TRUE(std::isnan(endOf(tarnsWinBartlett_32f_I, single, 1.F, 1.F, single)));
    EXPECT_EQ(0, endOf(tarnsWinBlackmanStd_32f_I, single, 1.F, 1.F, single));
    EXPECT_EQ(-infinity, endOf(tarnsWinBlackmanStd_64f_I, infinity, 1., 1., infinity));
}

// Exact zeros in single precision, also on the long road; the rounding of alpha + 0.5 in double precision.
TEST(Windows, EndsOfTheBlackmanWindow)
{
    for (const int len : {4, 9, 1024, 1026, 3000}) {
        const auto last = static_cast<std::size_t>(len - 1);
        auto single = ones<Tarn32f>(len);
        ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanStd_32f_I(single.data(), len));
        EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, single[0]));
        EXPECT_TRUE(valuesMatch<Tarn32f>(0.0F, single[last]));
        auto complex = ones<Tarn32fc>(len);
        ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanStd_32fc_I(complex.data(), len));
        EXPECT_TRUE(valuesMatch<Tarn32fc>({0, 0}, complex[0]));
        EXPECT_TRUE(valuesMatch<Tarn32fc>({0, 0}, complex[last]));
        auto twice = ones<Tarn64f>(len);
        ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanStd_64f_I(twice.data(), len));
        EXPECT_EQ(-2.7755575615628914e-17, twice[0]);
        EXPECT_EQ(-2.7755575615628914e-17, twice[last]);
    }
}

TEST(Windows, FourElements)
{
    Tarn64f w[] = {1, 1, 1, 1};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBartlett_64f_I(w, 4));
    EXPECT_EQ(2.0 / 3, w[1]);
    EXPECT_EQ(w[1], w[2]);
    // alpha is -1 there: (alpha + 1) / 2 - cos(t) / 2 + cos(2 t) / 2 is 0 but for roundings.
    Tarn64f opt[] = {1, 1, 1, 1};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanOpt_64f_I(opt, 4));
    EXPECT_NEAR(static_cast<double>(model::trueWeight(Window::blackman, 1, 4, -1)), opt[1], 1e-14);
}

TEST(Windows, SixteenBitExtremes)
{
    Tarn16s x[] = {-32768, -32768, -32768, -32768, -32768};
    ASSERT_EQ(tarnStsNoErr, tarnsWinHamming_16s_I(x, 5));
    EXPECT_EQ(-2621, x[0]);
    EXPECT_EQ(-2621, x[4]);
    EXPECT_EQ(-32768, x[2]);
    // At the quarter points the weight is alpha + 0.5: far above 1 a sample saturates, and beyond 32 bits the
    // conversion has only one answer.
    Tarn16s y[] = {20000, 20000, 20000, 20000, 20000, 20000, 20000, 20000, 20000};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackman_16s_I(y, 9, 100.F));
    EXPECT_EQ(32767, y[2]);
    EXPECT_EQ(32767, y[6]);
    Tarn16s z[] = {20000, 20000, 20000, 20000, 20000, 20000, 20000, 20000, 20000};
    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackman_16s_I(z, 9, 1e9F));
    EXPECT_EQ(-32768, z[2]);
}

// 16-bit results are rounded in the caller's mode. A triangle's weights are the same operations in any mode; those of a
// raised cosine are only near the formula, so that products near an integer do not count.
TEST(Windows, RoundingModes)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepWindow<Tarn16s>(tarnsWinBartlett_16s, tarnsWinBartlett_16s_I, Window::bartlett, noAlpha, Depth::quick);
        sweepWindow<Tarn16sc>(tarnsWinBartlett_16sc, tarnsWinBartlett_16sc_I, Window::bartlett, noAlpha, Depth::quick);
        for (const int sign : {-1, 1}) {
            constexpr int len = 70;
            std::vector<Tarn16s> x(len, static_cast<Tarn16s>(sign * 30000));
            ASSERT_EQ(tarnStsNoErr, tarnsWinHamming_16s_I(x.data(), len));
            for (int n = 0; n < len / 2; ++n) {
                const auto product = static_cast<double>(sign * 30000 * model::trueWeight(Window::hamming, n, len, 0));
                const double rounded = std::nearbyint(product);
                constexpr double margin = 0.1;
                if (std::fabs(product - std::floor(product) - 0.5) < 0.5 - margin &&
                    std::fabs(product - std::floor(product) - 0.5) > margin) {
                    EXPECT_EQ(rounded, x[static_cast<std::size_t>(n)]) << n;
                    EXPECT_EQ(rounded, x[static_cast<std::size_t>(len - 1 - n)]) << n;
                }
            }
        }
    }
}

// A caller may set the mode of the vector unit alone: elements that fill no register, and the middle of a scaled
// window, follow it as the others do.
TEST(Windows, RoundsEveryElementInTheModeOfTheVectorUnit)
{
    const auto roundedIn = [](RoundingMode mode, double x) {
        return mode == RoundingMode::nearest ? std::nearbyint(x)
               : mode == RoundingMode::down  ? std::floor(x)
               : mode == RoundingMode::up    ? std::ceil(x)
                                             : std::trunc(x);
    };
    constexpr unsigned roundingField = 0x6000;
    for (const RoundingMode mode : allRoundingModes)
        for (const int sign : {-1, 1})
            for (int len = 8; len < 24; ++len) {
                std::vector<Tarn16s> x(static_cast<std::size_t>(len), static_cast<Tarn16s>(sign * 1115));
                std::vector<Tarn16s> scaled = {0, 0, 0, 0, static_cast<Tarn16s>(sign * 287), 0, 0, 0, 0};
                {
                    const MxcsrScope scope((readMxcsr() & ~roundingField) | static_cast<unsigned>(mode) << 13);
                    ASSERT_EQ(tarnStsNoErr, tarnsWinBartlett_16s_I(x.data(), len));
                    ASSERT_EQ(tarnStsNoErr, tarnsWinBlackmanQ15_16s_ISfs(scaled.data(), 9, -5243, 1));
                }
                for (int n = 1; n < len / 2; ++n) {
                    const double product = sign * 1115 * n * 2.0 / (len - 1);
                    // The weights are rounded: products near an integer, or half of one, may lie on either side.
                    if (std::fabs(2 * product - std::nearbyint(2 * product)) > 1e-3) {
                        EXPECT_EQ(roundedIn(mode, product), x[static_cast<std::size_t>(n)]) << n << " of " << len;
                        EXPECT_EQ(roundedIn(mode, product), x[static_cast<std::size_t>(len - 1 - n)]) << n;
                    }
                }
                EXPECT_EQ(roundedIn(mode, sign * 143.5), scaled[4]);
            }
}

template <class T>
void expectWindowChecks(OutOfPlace<T> call, InPlace<T> inPlace)
{
    expectChecks(call, {}, array, array, length);
    expectChecks(inPlace, {}, array, length);
    for (const int len : {1, 2}) {
        GuardedArray<T> x(static_cast<std::size_t>(len));
        const auto before = x.copy();
        EXPECT_EQ(tarnStsSizeErr, call(x.data(), x.data(), len));
        EXPECT_EQ(tarnStsSizeErr, inPlace(x.data(), len));
        EXPECT_EQ(tarnStsNullPtrErr, call(nullptr, x.data(), len));
        EXPECT_EQ(tarnStsNullPtrErr, call(x.data(), nullptr, len));
        EXPECT_EQ(tarnStsNullPtrErr, inPlace(nullptr, len));
        EXPECT_TRUE(arraysMatch(before, x, {.nan = NanRule::sameBits}));
    }
}
template <class T>
void expectLengthBeforePointers(OutOfPlace<T> call, InPlace<T> inPlace)
{
    const ChecksOptions lengthFirst{.order = {Check::length, Check::pointer, Check::parameter}};
    expectChecks(call, lengthFirst, array, array, length);
    expectChecks(inPlace, lengthFirst, array, length);
    EXPECT_EQ(tarnStsSizeErr, call(nullptr, nullptr, 3));
    EXPECT_EQ(tarnStsSizeErr, inPlace(nullptr, 3));
    EXPECT_EQ(tarnStsNullPtrErr, inPlace(nullptr, 4));
}
template <class T>
void expectAlphaChecks(TarnStatus (*call)(const T*, T*, int, Alpha<T>), TarnStatus (*inPlace)(T*, int, Alpha<T>))
{
    expectChecks(call, {}, array, array, length, Alpha<T>{0});
    expectChecks(inPlace, {}, array, length, Alpha<T>{0});
    EXPECT_EQ(tarnStsNullPtrErr, inPlace(nullptr, 2, 0));
}

TEST(Windows, Checks)
{
    FOR_ALL_TYPES(expectWindowChecks, Bartlett)
    FOR_ALL_TYPES(expectWindowChecks, Hann)
    FOR_ALL_TYPES(expectWindowChecks, Hamming)
    FOR_ALL_TYPES(expectWindowChecks, BlackmanStd)
    FOR_ALL_TYPES(expectLengthBeforePointers, BlackmanOpt)
    FOR_ALL_TYPES(expectAlphaChecks, Blackman)
    expectChecks(tarnsWinBlackmanQ15_16s, {}, array, array, length, 0);
    expectChecks(tarnsWinBlackmanQ15_16s_I, {}, array, length, 0);
    expectChecks(tarnsWinBlackmanQ15_16sc, {}, array, array, length, 0);
    expectChecks(tarnsWinBlackmanQ15_16sc_I, {}, array, length, 0);
    for (const int s : {0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        expectChecks(tarnsWinBlackmanQ15_16s_ISfs, {}, array, length, 0, s);
}

} // namespace
} // namespace tarn::test
