// Norms: exact 16-bit sums and their truncating scale, float lanes within bounds, the groups of complex single floats.
#include "model/reduction.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/norms.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn::test {
namespace {

using Long = long double;

// -- 16-bit integers -------------------------------------------------------------------------------------------------

// Magnitudes of a vector, or of the difference of two.
using Magnitudes = std::vector<std::int64_t>;

Magnitudes magnitudes(std::span<const Tarn16s> x)
{
    Magnitudes d;
    for (int element : x)
        d.push_back(std::abs(element));
    return d;
}
Magnitudes magnitudes(std::span<const Tarn16s> x, std::span<const Tarn16s> y)
{
    Magnitudes d;
    for (std::size_t i = 0; i < x.size(); ++i)
        d.push_back(std::abs(x[i] - y[i]));
    return d;
}
std::int64_t largest(const Magnitudes& d) { return *std::max_element(d.begin(), d.end()); }
std::int64_t total(const Magnitudes& d)
{
    std::int64_t sum = 0;
    for (auto magnitude : d)
        sum += magnitude;
    return sum;
}
std::int64_t squares(const Magnitudes& d)
{
    std::int64_t sum = 0;
    for (auto magnitude : d)
        sum += magnitude * magnitude;
    return sum;
}

constexpr std::int64_t highest = INT_MAX;

// A 32-bit value is taken as it is, shifted right, or shifted left and limited.
Tarn32s scaledWord(std::int64_t value, int s)
{
    if (s == 0)
        return static_cast<Tarn32s>(static_cast<std::uint32_t>(value));
    if (s > 0)
        return s > 31 ? 0 : static_cast<Tarn32s>(value >> s);
    return static_cast<Tarn32s>(
        std::min<std::int64_t>(value << std::min(-static_cast<std::int64_t>(s), std::int64_t{31}), highest));
}
// A sum over more than 65536 elements has 64 bits.
Tarn32s scaledSum(std::int64_t value, int s)
{
    if (s >= 0)
        return s > 63 ? 0 : static_cast<Tarn32s>(std::min(value >> s, highest));
    return static_cast<Tarn32s>(
        std::min<Long>(std::ldexp(static_cast<Long>(value), std::min<int>(-std::max(s, -32), 32)), highest));
}
Tarn32s scaledL1(const Magnitudes& d, int s)
{
    return d.size() > 65536 ? scaledSum(total(d), s) : scaledWord(total(d), s);
}
Tarn32s scaledRoot(const Magnitudes& d, int s)
{
    Tarn64f root = std::sqrt(static_cast<Tarn64f>(squares(d)));
    const auto power = [](std::int64_t exponent) {
        return static_cast<Tarn64f>(static_cast<std::int32_t>(std::uint32_t{1} << (exponent % 32)));
    };
    if (s > 0)
        root /= power(s);
    if (s < 0)
        root *= power(-static_cast<std::int64_t>(s));
    if (root > 2147483647.0)
        return INT_MAX;
    return root < -2147483648.0 ? INT_MIN : static_cast<Tarn32s>(root);
}

Tarn32f floatL1(const Magnitudes& d)
{
    const std::int64_t sum = total(d);
    if (d.size() > 65536)
        return static_cast<Tarn32f>(static_cast<Long>(sum));
    Tarn32f value = static_cast<Tarn32f>(static_cast<std::int32_t>(static_cast<std::uint32_t>(sum)));
    if (sum >= std::int64_t{1} << 31)
        value += 4294967296.0F;
    return value;
}
Tarn32f floatL2(const Magnitudes& d) { return static_cast<Tarn32f>(std::sqrt(static_cast<Tarn64f>(squares(d)))); }

using One = TarnStatus (*)(const Tarn16s*, int, Tarn32s*, int);
using Two = TarnStatus (*)(const Tarn16s*, const Tarn16s*, int, Tarn32s*, int);
using Scaled = Tarn32s (*)(const Magnitudes&, int);

void expectScaled(One norm, Two normDiff, Scaled model)
{
    for (int s : scaleFactors(-33, 65)) {
        SCOPED_TRACE(s);
        const SweepOptions options{.depth = s == 0 ? Depth::full : Depth::quick};
        sweepReduction<Tarn32s, Tarn16s>([&](const Tarn16s* p, int len, Tarn32s* r) { return norm(p, len, r, s); },
                                         [&](std::span<const Tarn16s> x) { return model(magnitudes(x), s); }, options);
        sweepReduction<Tarn32s, Tarn16s, Tarn16s>(
            [&](const Tarn16s* p, const Tarn16s* q, int len, Tarn32s* r) { return normDiff(p, q, len, r, s); },
            [&](std::span<const Tarn16s> x, std::span<const Tarn16s> y) { return model(magnitudes(x, y), s); },
            options);
    }
}

TEST(Norm_16s, IsScaledByTruncation)
{
    expectScaled(tarnsNorm_Inf_16s32s_Sfs, tarnsNormDiff_Inf_16s32s_Sfs,
                 [](const Magnitudes& d, int s) { return scaledWord(largest(d), s); });
    expectScaled(tarnsNorm_L1_16s32s_Sfs, tarnsNormDiff_L1_16s32s_Sfs, scaledL1);
    expectScaled(tarnsNorm_L2_16s32s_Sfs, tarnsNormDiff_L2_16s32s_Sfs, scaledRoot);
}

TEST(Norm_16s, AsFloat)
{
    const auto sweep = [](auto norm, auto normDiff, auto model) {
        sweepReduction<Tarn32f, Tarn16s>(norm, [&](std::span<const Tarn16s> x) { return model(magnitudes(x)); });
        sweepReduction<Tarn32f, Tarn16s, Tarn16s>(
            normDiff, [&](std::span<const Tarn16s> x, std::span<const Tarn16s> y) { return model(magnitudes(x, y)); });
    };
    sweep(tarnsNorm_Inf_16s32f, tarnsNormDiff_Inf_16s32f,
          [](const Magnitudes& d) { return static_cast<Tarn32f>(largest(d)); });
    sweep(tarnsNorm_L1_16s32f, tarnsNormDiff_L1_16s32f, floatL1);
    sweep(tarnsNorm_L2_16s32f, tarnsNormDiff_L2_16s32f, floatL2);
}

TEST(Norm_16s, LongSumsHave64Bits)
{
    for (std::size_t len : {65535, 65536, 65537, 131072, 131073, 200000}) {
        auto x = randomValues<Tarn16s>(len, len);
        const std::vector<Tarn16s> low(len, -32768);
        const std::vector<Tarn16s> high(len, 32767);
        const int n = static_cast<int>(len);
        Tarn32f single = 0;
        Tarn32s integer = 0;
        for (const auto& v : {low, high, x}) {
            const auto d = magnitudes(v);
            EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_16s32f(v.data(), n, &single));
            EXPECT_EQ(floatL1(d), single);
            EXPECT_EQ(tarnStsNoErr, tarnsNorm_L2_16s32f(v.data(), n, &single));
            EXPECT_EQ(floatL2(d), single);
            const auto difference = magnitudes(v, low);
            EXPECT_EQ(tarnStsNoErr, tarnsNormDiff_L1_16s32f(v.data(), low.data(), n, &single));
            EXPECT_EQ(floatL1(difference), single);
            EXPECT_EQ(tarnStsNoErr, tarnsNormDiff_L2_16s32f(v.data(), low.data(), n, &single));
            EXPECT_EQ(floatL2(difference), single);
            for (int s : {INT_MIN, -33, -32, -31, -1, 0, 1, 2, 15, 31, 32, 33, 63, 64, INT_MAX}) {
                EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_16s32s_Sfs(v.data(), n, &integer, s));
                EXPECT_EQ(scaledL1(d, s), integer) << len << " " << s;
                EXPECT_EQ(tarnStsNoErr, tarnsNormDiff_L1_16s32s_Sfs(v.data(), low.data(), n, &integer, s));
                EXPECT_EQ(scaledL1(difference, s), integer) << len << " " << s;
            }
        }
    }
}

TEST(Norm_16s, Corners)
{
    const Tarn16s lowest = -32768;
    const Tarn16s high = 32767;
    const Tarn16s five[] = {2, -3};
    Tarn32s result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsNorm_Inf_16s32s_Sfs(&lowest, 1, &result, 0));
    EXPECT_EQ(32768, result);
    EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_16s32s_Sfs(five, 2, &result, 1));
    EXPECT_EQ(2, result);
    EXPECT_EQ(tarnStsNoErr, tarnsNormDiff_Inf_16s32s_Sfs(&high, &lowest, 1, &result, 0));
    EXPECT_EQ(65535, result);
    const Tarn16s legs[] = {300, 400};
    for (auto [s, norm] : {std::pair{32, 500},
                           {0, 500},
                           {-32, 500},
                           {1, 250},
                           {33, 250},
                           {-1, 1000},
                           {31, 0},
                           {-31, INT_MIN},
                           {INT_MIN, 500}}) {
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_L2_16s32s_Sfs(legs, 2, &result, s));
        EXPECT_EQ(norm, result) << s;
    }
    // 65536 times 32768 is 2^31, which the 32-bit word has as its sign.
    const std::vector<Tarn16s> low(65536, lowest);
    EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_16s32s_Sfs(low.data(), 65536, &result, 0));
    EXPECT_EQ(INT_MIN, result);
}

// -- Floats ----------------------------------------------------------------------------------------------------------

// Elements of unit size: a lane's sum errs by at most as many halves of an ulp as it has elements.
template <class T>
void expectFloatNorms(TarnStatus (*inf)(const T*, int, T*), TarnStatus (*l1)(const T*, int, T*),
                      TarnStatus (*l2)(const T*, int, T*), TarnStatus (*infDiff)(const T*, const T*, int, T*),
                      TarnStatus (*l1Diff)(const T*, const T*, int, T*),
                      TarnStatus (*l2Diff)(const T*, const T*, int, T*))
{
    const auto values = randomValues<T>(6000, 91, Values::unit);
    const auto others = randomValues<T>(6000, 92, Values::unit);
    std::size_t turn = 0;
    atOffsets(values, lengths({4, 8, 16, 32}), [&](const T* p, std::span<const T> x, unsigned) {
        const GuardedArray<T> other(std::span<const T>(others).first(x.size()),
                                    Placement::offset(static_cast<unsigned>(turn++ % 16)));
        for (bool diff : {false, true}) {
            Long largest = 0;
            Long sum = 0;
            Long squares = 0;
            for (std::size_t i = 0; i < x.size(); ++i) {
                const T d = diff ? x[i] - others[i] : x[i];
                largest = std::max<Long>(largest, std::fabs(d));
                sum += std::fabs(d);
                squares += Long{d} * d;
            }
            const auto n = static_cast<double>(x.size());
            const Match near{.relative = n * static_cast<double>(std::numeric_limits<T>::epsilon())};
            const auto call = [&](auto one, auto two) {
                GuardedArray<T> result(1, Placement::offset(1));
                const int len = static_cast<int>(x.size());
                EXPECT_EQ(tarnStsNoErr, diff ? two(p, other.data(), len, result.data()) : one(p, len, result.data()));
                return result.get(0);
            };
            EXPECT_TRUE(valuesMatch(static_cast<T>(largest), call(inf, infDiff)));
            EXPECT_TRUE(valuesMatch(static_cast<T>(sum), call(l1, l1Diff), near));
            EXPECT_TRUE(valuesMatch(static_cast<T>(std::sqrt(squares)), call(l2, l2Diff), near));
        }
    });
    // Small integers have exact sums, in whatever order.
    for (int len : {1, 2, 3, 7, 8, 15, 16, 17, 33, 100}) {
        std::vector<T> ramp;
        T sum = 0;
        T squares = 0;
        for (int i = 0; i < len; ++i) {
            ramp.push_back(static_cast<T>(i % 2 == 0 ? i : -i));
            sum += static_cast<T>(i);
            squares += static_cast<T>(i * i);
        }
        T result = -1;
        EXPECT_EQ(tarnStsNoErr, l1(ramp.data(), len, &result));
        EXPECT_TRUE(valuesMatch(sum, result));
        EXPECT_EQ(tarnStsNoErr, l2(ramp.data(), len, &result));
        EXPECT_TRUE(valuesMatch(static_cast<T>(std::sqrt(squares)), result));
        EXPECT_EQ(tarnStsNoErr, inf(ramp.data(), len, &result));
        EXPECT_TRUE(valuesMatch(static_cast<T>(len - 1), result));
    }
}

TEST(Norm, OfRealFloats)
{
    expectFloatNorms<Tarn32f>(tarnsNorm_Inf_32f, tarnsNorm_L1_32f, tarnsNorm_L2_32f, tarnsNormDiff_Inf_32f,
                              tarnsNormDiff_L1_32f, tarnsNormDiff_L2_32f);
    expectFloatNorms<Tarn64f>(tarnsNorm_Inf_64f, tarnsNorm_L1_64f, tarnsNorm_L2_64f, tarnsNormDiff_Inf_64f,
                              tarnsNormDiff_L1_64f, tarnsNormDiff_L2_64f);
}

// The estimate with one Newton step errs by some 2^-22; p and the steps themselves by a few halves of an ulp.
constexpr double rootError = 0x1p-21;

template <class T, class R>
void expectComplexNorms(TarnStatus (*inf)(const T*, int, R*), TarnStatus (*l1)(const T*, int, Tarn64f*),
                        TarnStatus (*l2)(const T*, int, Tarn64f*), TarnStatus (*infDiff)(const T*, const T*, int, R*),
                        TarnStatus (*l1Diff)(const T*, const T*, int, Tarn64f*),
                        TarnStatus (*l2Diff)(const T*, const T*, int, Tarn64f*))
{
    using P = RealOf<T>;
    constexpr auto epsilon = static_cast<double>(std::numeric_limits<P>::epsilon());
    const double magnitudeError = sizeof(P) == 4 ? rootError : 4 * epsilon;
    const auto values = randomValues<T>(4000, 93, Values::unit);
    const auto others = randomValues<T>(4000, 94, Values::unit);
    std::size_t turn = 0;
    atOffsets(values, lengths({2, 4, 8}), [&](const T* p, std::span<const T> x, unsigned) {
        const GuardedArray<T> other(std::span<const T>(others).first(x.size()),
                                    Placement::offset(static_cast<unsigned>(turn++ % 16)));
        for (bool diff : {false, true}) {
            Long largest = 0;
            Long sum = 0;
            Long squares = 0;
            for (std::size_t i = 0; i < x.size(); ++i) {
                const P re = diff ? x[i].re - others[i].re : x[i].re;
                const P im = diff ? x[i].im - others[i].im : x[i].im;
                const Long squared = Long{re} * re + Long{im} * im;
                largest = std::max(largest, std::sqrt(squared));
                sum += std::sqrt(squared);
                squares += squared;
            }
            const double summing = static_cast<double>(x.size()) * epsilon + magnitudeError;
            const int len = static_cast<int>(x.size());
            const MxcsrScope scope(0x1F80);
            GuardedArray<R> maximum(1, Placement::offset(1));
            EXPECT_EQ(tarnStsNoErr, diff ? infDiff(p, other.data(), len, maximum.data()) : inf(p, len, maximum.data()));
            EXPECT_TRUE(valuesMatch(static_cast<R>(largest), maximum.get(0), {.relative = magnitudeError}));
            GuardedArray<Tarn64f> result(1, Placement::offset(1));
            EXPECT_EQ(tarnStsNoErr, diff ? l1Diff(p, other.data(), len, result.data()) : l1(p, len, result.data()));
            EXPECT_TRUE(valuesMatch(static_cast<Tarn64f>(sum), result.get(0), {.relative = summing}));
            EXPECT_EQ(tarnStsNoErr, diff ? l2Diff(p, other.data(), len, result.data()) : l2(p, len, result.data()));
            EXPECT_TRUE(valuesMatch(static_cast<Tarn64f>(std::sqrt(squares)), result.get(0), {.relative = summing}));
            EXPECT_EQ(0U, readMxcsr() & 0x11);
        }
    });
}

TEST(Norm, OfComplexFloats)
{
    expectComplexNorms<Tarn32fc, Tarn32f>(tarnsNorm_Inf_32fc32f, tarnsNorm_L1_32fc64f, tarnsNorm_L2_32fc64f,
                                          tarnsNormDiff_Inf_32fc32f, tarnsNormDiff_L1_32fc64f,
                                          tarnsNormDiff_L2_32fc64f);
    expectComplexNorms<Tarn64fc, Tarn64f>(tarnsNorm_Inf_64fc64f, tarnsNorm_L1_64fc64f, tarnsNorm_L2_64fc64f,
                                          tarnsNormDiff_Inf_64fc64f, tarnsNormDiff_L1_64fc64f,
                                          tarnsNormDiff_L2_64fc64f);
}

TEST(Norm_32fc, AZeroSendsItsGroupToFullRoots)
{
    // Magnitudes 5, 13 and 25 are what full roots of 25, 169 and 625 are exactly.
    for (std::size_t zero = 0; zero < 4; ++zero) {
        std::vector<Tarn32fc> x = {{3, 4}, {-5, 12}, {7, -24}, {-8, -15}};
        x.insert(x.begin() + static_cast<std::ptrdiff_t>(zero), Tarn32fc{0, -0.0F});
        x.resize(4);
        double expected = 0;
        Tarn32f largest = 0;
        for (const auto& z : x) {
            expected += std::hypot(z.re, z.im);
            largest = std::max(largest, std::hypot(z.re, z.im));
        }
        Tarn64f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_32fc64f(x.data(), 4, &sum));
        EXPECT_TRUE(valuesMatch(expected, sum));
        Tarn32f maximum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_Inf_32fc32f(x.data(), 4, &maximum));
        EXPECT_TRUE(valuesMatch(largest, maximum));
    }
    const std::vector<Tarn32fc> zeros(9, Tarn32fc{0, 0});
    Tarn64f sum = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_32fc64f(zeros.data(), 9, &sum));
    EXPECT_TRUE(valuesMatch(0.0, sum));
}

TEST(Norm_32fc, IsTheNewtonStepInGroupsAndTheFullRootBehindThem)
{
    // The step's bits, from the estimate that the processor makes.
    const auto refined = [](Tarn32f p) {
        Tarn32f e;
        asm("rsqrtss %1, %0" : "=x"(e) : "x"(p));
        const Tarn32f a = p * e;
        const Tarn32f ae = a * e;
        const Tarn32f rest = 3 - ae;
        const Tarn32f half = 0.5F * rest;
        return half * a;
    };
    const auto values = randomValues<Tarn32fc>(2000, 95, Values::unit);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Tarn32f re2 = values[i].re * values[i].re;
        const Tarn32f im2 = values[i].im * values[i].im;
        const Tarn32f p = re2 + im2;
        const std::vector<Tarn32fc> same(5, values[i]);
        Tarn32f group = 0;
        Tarn32f tail = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_Inf_32fc32f(same.data(), 4, &group));
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_Inf_32fc32f(same.data(), 3, &tail));
        ASSERT_TRUE(valuesMatch(refined(p), group));
        ASSERT_TRUE(valuesMatch(std::sqrt(p), tail));
        Tarn64f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsNorm_L1_32fc64f(same.data(), 5, &sum));
        ASSERT_TRUE(valuesMatch(Tarn64f{4} * refined(p) + Tarn64f{std::sqrt(p)}, sum));
    }
}

TEST(Norm, ComplexFormsClearTheirFlags)
{
    constexpr std::uint32_t invalidAndUnderflow = 0x11;
    const Tarn32fc singles[] = {{1, 2}, {HUGE_VALF, 0}, {3, 4}, {1e-30F, 1e-30F}, {5, 6}};
    const Tarn64fc doubles[] = {{1, 2}, {1e-200, 1e-200}, {std::numeric_limits<Tarn64f>::quiet_NaN(), 1}};
    const auto clears = [&](auto norm, auto* x, int len, auto result) {
        const MxcsrScope scope(0x1F80 | 0x3F);
        EXPECT_EQ(tarnStsNoErr, norm(x, len, &result));
        EXPECT_EQ(0x1F80U | (0x3F & ~invalidAndUnderflow), readMxcsr());
    };
    clears(tarnsNorm_Inf_32fc32f, singles, 5, Tarn32f{});
    clears(tarnsNorm_L1_32fc64f, singles, 5, Tarn64f{});
    clears(tarnsNorm_L2_32fc64f, singles, 5, Tarn64f{});
    clears(tarnsNorm_Inf_64fc64f, doubles, 3, Tarn64f{});
    clears(tarnsNorm_L1_64fc64f, doubles, 3, Tarn64f{});
    clears(tarnsNorm_L2_64fc64f, doubles, 3, Tarn64f{});
}

TEST(Norm, Checks)
{
    expectChecks(tarnsNorm_Inf_32f, {}, array, length, array);
    expectChecks(tarnsNorm_L1_32f, {}, array, length, array);
    expectChecks(tarnsNorm_L2_32f, {}, array, length, array);
    expectChecks(tarnsNorm_Inf_64f, {}, array, length, array);
    expectChecks(tarnsNorm_L1_64f, {}, array, length, array);
    expectChecks(tarnsNorm_L2_64f, {}, array, length, array);
    expectChecks(tarnsNorm_Inf_16s32f, {}, array, length, array);
    expectChecks(tarnsNorm_L1_16s32f, {}, array, length, array);
    expectChecks(tarnsNorm_L2_16s32f, {}, array, length, array);
    expectChecks(tarnsNorm_Inf_32fc32f, {}, array, length, array);
    expectChecks(tarnsNorm_L1_32fc64f, {}, array, length, array);
    expectChecks(tarnsNorm_L2_32fc64f, {}, array, length, array);
    expectChecks(tarnsNorm_Inf_64fc64f, {}, array, length, array);
    expectChecks(tarnsNorm_L1_64fc64f, {}, array, length, array);
    expectChecks(tarnsNorm_L2_64fc64f, {}, array, length, array);
    expectChecks(tarnsNorm_Inf_16s32s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsNorm_L1_16s32s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsNorm_L2_16s32s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsNormDiff_Inf_32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L1_32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L2_32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_Inf_64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L1_64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L2_64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_Inf_16s32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L1_16s32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L2_16s32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_Inf_32fc32f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L1_32fc64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L2_32fc64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_Inf_64fc64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L1_64fc64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_L2_64fc64f, {}, array, array, length, array);
    expectChecks(tarnsNormDiff_Inf_16s32s_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsNormDiff_L1_16s32s_Sfs, {}, array, array, length, array, 0);
    expectChecks(tarnsNormDiff_L2_16s32s_Sfs, {}, array, array, length, array, 0);
}

} // namespace
} // namespace tarn::test
