// Sums: the order of every addition, the blocks, the alignment rule, the literal scaling of integer sums.
#include "model/reduction.h"
#include "model/scale.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

const std::vector<int> hintsOfAccuracy = {tarnAlgHintNone, tarnAlgHintAccurate, 3, -1, INT_MAX, INT_MIN};

template <class T, class R, class Function>
R called(Function function, const T* p, std::size_t len, int last)
{
    GuardedArray<R> result(1, Placement::offset(1));
    EXPECT_EQ(tarnStsNoErr, function(p, static_cast<int>(len), result.data(), last));
    return result.get(0);
}

TEST(Sum_32f, AccurateStaysWithinTheRoundingOfExtendedSums)
{
    // Every addition errs by at most 2^-64 of the partial sum, and each of the two roundings at the end by half a unit.
    const auto values = randomValues<Tarn32f>(140000, 3, Values::unit);
    atOffsets(values, lengths({8, 16, 65536, 131072}), [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned) {
        long double sum = 0;
        long double magnitudes = 0;
        for (Tarn32f element : x) {
            sum += element;
            magnitudes += std::fabs(element);
        }
        const auto n = static_cast<long double>(x.size());
        // The model errs as much as the function does.
        const auto bound = static_cast<double>(2 * n * 0x1p-64L * magnitudes);
        for (int hint : hintsOfAccuracy) {
            const auto result = called<Tarn32f, Tarn32f>(tarnsSum_32f, p, x.size(), hint);
            EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(sum), result, {.ulps = 1, .absolute = bound}));
        }
    });
}

TEST(Sum_32f, AccurateKeepsWhatSinglePrecisionLoses)
{
    // 2^40, elements of 1, -2^40: only wide accumulators see the ones, whichever of them meet.
    for (int len : {3, 8, 9, 15, 16, 17, 100, 1001}) {
        std::vector<Tarn32f> values(static_cast<std::size_t>(len), 1.0F);
        values.front() = 0x1p40F;
        values.back() = -0x1p40F;
        Tarn32f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32f(values.data(), len, &sum, tarnAlgHintAccurate));
        EXPECT_EQ(static_cast<Tarn32f>(len - 2), sum) << len;
    }
}

TEST(Sum_32f, AccurateIsRoundedToDoubleFirst)
{
    // Above a tie of single precision by less than a double can tell: rounding twice goes to the even neighbour.
    const Tarn32f values[] = {1.0F, 0x1p-24F, 0x1p-60F};
    Tarn32f sum = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsSum_32f(values, 3, &sum, tarnAlgHintAccurate));
    EXPECT_EQ(1.0F, sum);
}

TEST(Sum_32f, FastAddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn32f>(110000, 5, kind);
        atOffsets(values, lengths({16, 32, 32768, 65536, 98304}),
                  [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned offset) {
                      const auto expected = static_cast<Tarn32f>(model::sumFast(x, offset));
                      EXPECT_TRUE(
                          valuesMatch(expected, called<Tarn32f, Tarn32f>(tarnsSum_32f, p, x.size(), tarnAlgHintFast)));
                  });
    }
}

TEST(Sum_32f, FastOffABoundaryIsOneLongSum)
{
    // 2^30 absorbs ones in single precision; in the extended format it does not.
    std::vector<Tarn32f> values(64, 1.0F);
    values[0] = 0x1p30F;
    values[16] = -0x1p30F;
    for (unsigned offset = 0; offset < 16; ++offset) {
        const GuardedArray<Tarn32f> array(std::span<const Tarn32f>(values), Placement::offset(offset));
        Tarn32f sum = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32f(array.data(), 64, &sum, tarnAlgHintFast));
        EXPECT_EQ(62.0F, sum) << offset;
        GuardedArray<Tarn32f> other(std::span<const Tarn32f>(values), Placement::offset(offset));
        other.set(16, 1.0F);
        other.set(18, -0x1p30F);
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32f(other.data(), 64, &sum, tarnAlgHintFast));
        // In the vectors 2^30 has absorbed the three ones that met it in its lane, and meets -2^30 when lanes fold.
        EXPECT_EQ(offset >= 4 ? 62.0F : static_cast<Tarn32f>(model::sumFast(other.copy(), offset)), sum) << offset;
        EXPECT_EQ(offset < 4, sum != 62.0F) << offset;
    }
}

TEST(Sum_32fc, AccurateAddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn32fc>(5000, 7, kind);
        atOffsets(values, lengths({4, 8}), [](const Tarn32fc* p, std::span<const Tarn32fc> x, unsigned) {
            const Tarn64fc sum = model::sumAccurate(x);
            const Tarn32fc expected{static_cast<Tarn32f>(sum.re), static_cast<Tarn32f>(sum.im)};
            for (int hint : hintsOfAccuracy)
                EXPECT_TRUE(valuesMatch(expected, called<Tarn32fc, Tarn32fc>(tarnsSum_32fc, p, x.size(), hint)));
        });
    }
}

TEST(Sum_32fc, FastAddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn32fc>(55000, 9, kind);
        atOffsets(values, lengths({8, 16384, 32768}),
                  [](const Tarn32fc* p, std::span<const Tarn32fc> x, unsigned offset) {
                      const Tarn64fc sum = model::sumFast(x, offset);
                      const Tarn32fc expected{static_cast<Tarn32f>(sum.re), static_cast<Tarn32f>(sum.im)};
                      EXPECT_TRUE(valuesMatch(expected,
                                              called<Tarn32fc, Tarn32fc>(tarnsSum_32fc, p, x.size(), tarnAlgHintFast)));
                  });
    }
}

TEST(Sum_64f, AddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn64f>(5000, 11, kind);
        atOffsets(values, lengths({8, 16}), [](const Tarn64f* p, std::span<const Tarn64f> x, unsigned offset) {
            GuardedArray<Tarn64f> sum(1, Placement::offset(3));
            EXPECT_EQ(tarnStsNoErr, tarnsSum_64f(p, static_cast<int>(x.size()), sum.data()));
            EXPECT_TRUE(valuesMatch(model::sum(x, offset), sum.get(0)));
        });
    }
}

TEST(Sum_64fc, AddsInTheStatedOrder)
{
    for (const auto kind : {Values::unit, Values::random, Values::mixed}) {
        const auto values = randomValues<Tarn64fc>(3000, 13, kind);
        atOffsets(values, lengths({4, 8}), [](const Tarn64fc* p, std::span<const Tarn64fc> x, unsigned offset) {
            GuardedArray<Tarn64fc> sum(1, Placement::offset(3));
            EXPECT_EQ(tarnStsNoErr, tarnsSum_64fc(p, static_cast<int>(x.size()), sum.data()));
            EXPECT_TRUE(valuesMatch(model::sum(x, offset), sum.get(0)));
        });
    }
}

TEST(Sum, KeepsTheRoundingModeOfFloats)
{
    const auto values = randomValues<Tarn32f>(1000, 15, Values::unit);
    const auto doubles = randomValues<Tarn64f>(1000, 16, Values::unit);
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        atOffsets(values, {1, 7, 33, 70}, [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned offset) {
            EXPECT_TRUE(valuesMatch(static_cast<Tarn32f>(model::sumFast(x, offset)),
                                    called<Tarn32f, Tarn32f>(tarnsSum_32f, p, x.size(), tarnAlgHintFast)));
        });
        atOffsets(doubles, {1, 7, 33, 70}, [](const Tarn64f* p, std::span<const Tarn64f> x, unsigned offset) {
            Tarn64f sum = 0;
            EXPECT_EQ(tarnStsNoErr, tarnsSum_64f(p, static_cast<int>(x.size()), &sum));
            EXPECT_TRUE(valuesMatch(model::sum(x, offset), sum));
        });
    }
}

TEST(Sum_16s, IsExactThenScaled)
{
    const auto whole = [](Tarn16s x) { return x; };
    for (int s : scaleFactors(-20, 40)) {
        if (s > 2000 || s < -2000)
            continue; // the model's loop is literal
        SCOPED_TRACE(s);
        const SweepOptions options{.thresholds = {}, .depth = s == 0 ? Depth::full : Depth::quick};
        sweepReduction<Tarn32s, Tarn16s>(
            [&](const Tarn16s* p, int len, Tarn32s* sum) { return tarnsSum_16s32s_Sfs(p, len, sum, s); },
            [&](std::span<const Tarn16s> x) { return model::scaledSum(model::exactSum(x, whole), s); }, options);
        sweepReduction<Tarn16s, Tarn16s>(
            [&](const Tarn16s* p, int len, Tarn16s* sum) { return tarnsSum_16s_Sfs(p, len, sum, s); },
            [&](std::span<const Tarn16s> x) {
                return model::saturatedTo<Tarn16s>(model::scaledSum(model::exactSum(x, whole), s));
            },
            options);
        const auto parts = [&](std::span<const Tarn16sc> x) {
            return Tarn32sc{model::scaledSum(model::exactSum(x, [](Tarn16sc z) { return z.re; }), s),
                            model::scaledSum(model::exactSum(x, [](Tarn16sc z) { return z.im; }), s)};
        };
        sweepReduction<Tarn32sc, Tarn16sc>(
            [&](const Tarn16sc* p, int len, Tarn32sc* sum) { return tarnsSum_16sc32sc_Sfs(p, len, sum, s); }, parts,
            options);
        sweepReduction<Tarn16sc, Tarn16sc>(
            [&](const Tarn16sc* p, int len, Tarn16sc* sum) { return tarnsSum_16sc_Sfs(p, len, sum, s); },
            [&](std::span<const Tarn16sc> x) {
                const auto sum = parts(x);
                return Tarn16sc{model::saturatedTo<Tarn16s>(sum.re), model::saturatedTo<Tarn16s>(sum.im)};
            },
            options);
    }
}

TEST(Sum_16s, FarFactorsEndTheSameWay)
{
    const Tarn16s values[] = {3, 4, -2};
    for (int s : {100, 2000, INT_MAX}) {
        Tarn32s sum = 7;
        EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(values, 3, &sum, s));
        EXPECT_EQ(0, sum);
        EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(values, 3, &sum, -s));
        EXPECT_EQ(INT_MAX, sum);
        EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(values + 2, 1, &sum, -s));
        EXPECT_EQ(INT_MIN, sum);
    }
    Tarn32s sum = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(values, 3, &sum, INT_MIN));
    EXPECT_EQ(INT_MAX, sum);
}

TEST(Sum_16s, BlocksOverflowNoLane)
{
    for (int len : {65535, 65536, 65537, 131072, 200000})
        for (Tarn16s value : {Tarn16s{-32768}, Tarn16s{32767}}) {
            const std::vector<Tarn16s> values(2 * static_cast<std::size_t>(len) + 1, value);
            for (std::size_t start : {0, 1}) {
                const auto sum = std::int64_t{len} * value;
                Tarn32s result = 0;
                EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(values.data() + start, len, &result, 4));
                EXPECT_EQ(model::scaledSum(sum, 4), result);
                Tarn32sc complex{};
                const auto* pairs = reinterpret_cast<const Tarn16sc*>(values.data() + start);
                EXPECT_EQ(tarnStsNoErr, tarnsSum_16sc32sc_Sfs(pairs, len, &complex, 4));
                EXPECT_EQ(model::scaledSum(sum, 4), complex.re);
                EXPECT_EQ(model::scaledSum(sum, 4), complex.im);
            }
        }
}

TEST(Sum_16s, RoundsInTheCallersMode)
{
    const auto values = randomValues<Tarn16s>(500, 21);
    for (RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (int s = 0; s < 20; ++s)
            for (int len = 1; len < 40; ++len) {
                const std::span<const Tarn16s> x(values.data() + 3 * len, static_cast<std::size_t>(len));
                Tarn32s sum = 0;
                EXPECT_EQ(tarnStsNoErr, tarnsSum_16s32s_Sfs(x.data(), len, &sum, s));
                EXPECT_EQ(model::scaledSum(model::exactSum(x, [](Tarn16s e) { return e; }), s), sum);
            }
    }
}

TEST(Sum_16s, TiesGoToEven)
{
    const Tarn16s values[] = {2, 3, 4};
    Tarn16s sum = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsSum_16s_Sfs(values + 1, 2, &sum, 1));
    EXPECT_EQ(4, sum);
    EXPECT_EQ(tarnStsNoErr, tarnsSum_16s_Sfs(values, 2, &sum, 1));
    EXPECT_EQ(2, sum);
}

TEST(Sum_32s, IsExactThenScaled)
{
    for (int s : scaleFactors(-31, 63)) {
        SCOPED_TRACE(s);
        const int bounded = std::clamp(s, -31, 63);
        sweepReduction<Tarn32s, Tarn32s>(
            [&](const Tarn32s* p, int len, Tarn32s* sum) { return tarnsSum_32s_Sfs(p, len, sum, s); },
            [&](std::span<const Tarn32s> x) {
                return model::scaled<Tarn32s>(model::exactSum(x, [](Tarn32s e) { return e; }), bounded);
            },
            {.depth = s == 0 ? Depth::full : Depth::quick});
    }
}

TEST(Sum_32s, FactorsAreLimited)
{
    const std::vector<Tarn32s> values(3, INT_MIN);
    for (auto [far, limit] : {std::pair{100, 63}, {INT_MAX, 63}, {-100, -31}, {INT_MIN, -31}}) {
        Tarn32s a = 1;
        Tarn32s b = 2;
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32s_Sfs(values.data(), 3, &a, far));
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32s_Sfs(values.data(), 3, &b, limit));
        EXPECT_EQ(a, b);
    }
    const Tarn32s minusOne = -1;
    Tarn32s sum = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsSum_32s_Sfs(&minusOne, 1, &sum, -100));
    EXPECT_EQ(INT_MIN, sum);
}

TEST(Sum, OfOneElementIsTheElement)
{
    const Tarn32f f = -3.25F;
    const Tarn64f d = 1e-300;
    const Tarn16sc z{-5, 7};
    Tarn32f sum = 0;
    for (int hint : {tarnAlgHintFast, tarnAlgHintNone}) {
        EXPECT_EQ(tarnStsNoErr, tarnsSum_32f(&f, 1, &sum, hint));
        EXPECT_EQ(f, sum);
    }
    Tarn64f sum64 = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsSum_64f(&d, 1, &sum64));
    EXPECT_EQ(d, sum64);
    Tarn16sc complex{};
    EXPECT_EQ(tarnStsNoErr, tarnsSum_16sc_Sfs(&z, 1, &complex, 0));
    EXPECT_EQ(-5, complex.re);
    EXPECT_EQ(7, complex.im);
}

TEST(Sum, Checks)
{
    expectChecks(tarnsSum_32f, {}, array, length, array, 0);
    expectChecks(tarnsSum_32fc, {}, array, length, array, 1);
    expectChecks(tarnsSum_64f, {}, array, length, array);
    expectChecks(tarnsSum_64fc, {}, array, length, array);
    expectChecks(tarnsSum_16s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsSum_16sc_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsSum_16s32s_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsSum_16sc32sc_Sfs, {}, array, length, array, 0);
    expectChecks(tarnsSum_32s_Sfs, {}, array, length, array, 0);
}

} // namespace
} // namespace tarn::test
