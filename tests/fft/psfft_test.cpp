// The power-of-two transforms: accuracy against extended precision, scales, round trips, and results that depend
// neither on where the arrays lie nor on where the work buffer comes from.
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/sweep.h"
#include "support/transform_runs.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn::test {
namespace {

template <class T>
class Fft : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(Fft, Precisions);

template <class T>
inline constexpr bool isSinglePrecision = std::is_same_v<T, Tarn32f>;

/// Rounding errors of the layers add up like a random walk: so many units of rounding for so many layers. A transform
/// of this length by a library known for its accuracy comes out within the same bound. Two or four numbers do not
/// average, so that they get another rounding.
template <class T>
long double errorBound(int order)
{
    const long double unit = std::numeric_limits<T>::epsilon() / 2;
    const long double walk = 0.8L + 0.55L * std::sqrt(static_cast<long double>(order));
    return unit * (order == 1 || order == 2 ? walk + 1 : walk);
}

/// The packings of real spectra differ in the places of a few numbers: one of them is tried at every order.
template <class T>
bool isOtherPacking(const TransformCase<T>& transform)
{
    const auto& cases = transformCases<T>();
    const auto at = &transform - cases.data();
    return at == 5 || at == 6 || at == 8 || at == 9;
}

TEST(FftModel, AgreesWithTheDefinition)
{
    for (int order = 0; order <= 7; ++order)
        for (int sign : {-1, 1}) {
            const auto reals = signal<double>(std::size_t{2} << order, 5);
            std::vector<model::Bin> x(reals.size() / 2);
            for (std::size_t i = 0; i < x.size(); ++i)
                x[i] = {reals[2 * i], reals[2 * i + 1]};
            const auto expected = model::transformByDefinition(x, sign);
            const auto actual = model::transform(x, sign);
            for (std::size_t k = 0; k < x.size(); ++k) {
                EXPECT_NEAR(static_cast<double>(expected[k].re), static_cast<double>(actual[k].re), 1e-14);
                EXPECT_NEAR(static_cast<double>(expected[k].im), static_cast<double>(actual[k].im), 1e-14);
            }
        }
}

TYPED_TEST(Fft, IsAccurateAtEveryOrder)
{
    using T = TypeParam;
    const int last = isSinglePrecision<T> ? 19 : 17;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order = 0; order <= last; ++order) {
            if (order > 13 && order < last && isOtherPacking(transform))
                continue;
            const auto src = inputFor(transform, order);
            const auto expected = transform.model(src, order);
            for (int flag : allFlags) {
                if (order > 12 && flag != TARN_FFT_DIV_BY_SQRTN)
                    continue;
                const TransformSpec spec(transform.kind, order, flag);
                const auto actual = run(transform, src, spec, order);
                EXPECT_LE(relativeError(expected, actual, scaleOf(flag, transform.forward, order)),
                          errorBound<T>(order))
                    << transform.name << " order " << order << " flag " << flag;
            }
        }
}

TYPED_TEST(Fft, EveryBinIsRightForASingleImpulse)
{
    using T = TypeParam;
    const T tolerance = 8 * std::numeric_limits<T>::epsilon();
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order = 0; order <= 10; ++order) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
            for (std::size_t at = 0; at < transform.srcReals(order); at += 1 + at / 3) {
                Arrays<T> src(static_cast<std::size_t>(transform.arrays), std::vector<T>(transform.srcReals(order)));
                src.back()[at] = 1;
                const auto expected = transform.model(src, order);
                const auto actual = run(transform, src, spec, order);
                for (std::size_t i = 0; i < actual.size(); ++i)
                    for (std::size_t j = 0; j < actual[i].size(); ++j)
                        ASSERT_NEAR(static_cast<double>(expected[i][j]), static_cast<double>(actual[i][j]), tolerance)
                            << transform.name << " order " << order << " impulse at " << at << " result " << j;
            }
        }
}

TYPED_TEST(Fft, ForwardThenInverseRestoresTheSignal)
{
    using T = TypeParam;
    const auto& cases = transformCases<T>();
    const std::pair<int, int> partners[] = {{0, 1}, {2, 3}, {4, 7}, {5, 8}, {6, 9}};
    for (auto [there, back] : partners)
        for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 14, 15, 16, 17, 18})
            for (int flag : allFlags) {
                if (order > 14 && flag != TARN_FFT_DIV_BY_SQRTN)
                    continue;
                const auto& forward = cases[static_cast<std::size_t>(there)];
                const auto& inverse = cases[static_cast<std::size_t>(back)];
                const TransformSpec spec(forward.kind, order, flag);
                const auto src = inputFor(forward, order);
                const auto restored = run(inverse, run(forward, src, spec, order), spec, order);
                const long double gain = flag == TARN_FFT_NODIV_BY_ANY ? std::ldexp(1.0L, order) : 1;
                Arrays<long double> expected;
                for (const auto& array : src)
                    expected.emplace_back(array.begin(), array.end());
                EXPECT_LE(relativeError(expected, restored, gain), 2 * errorBound<T>(order))
                    << forward.name << " order " << order << " flag " << flag;
            }
}

TYPED_TEST(Fft, ResultsDoNotDependOnPlacesAndBuffers)
{
    using T = TypeParam;
    using enum Places::Buffer;
    const Places layouts[] = {{0, 0, false, aligned}, {0, 0, false, exact},  {0, 4, false, odd},   {8, 0, false, exact},
                              {1, 0, false, null},    {3, 7, false, odd},    {0, 0, true, null},   {0, 0, true, exact},
                              {0, 8, true, odd},      {0, 5, true, aligned}, {16, 16, false, null}};
    std::vector<int> orders = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : orders) {
            if (order > 12 && order < 17 && sweepsAreQuick()) // the core that order 12 has
                continue;
            const TransformSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN);
            const auto src = inputFor(transform, order);
            const auto expected = run(transform, src, spec, order);
            for (const Places& layout : layouts) {
                const auto actual = runAt(transform, src, spec, order, layout);
                for (std::size_t i = 0; i < expected.size(); ++i)
                    ASSERT_TRUE(arraysMatch<T>(expected[i].data(), actual[i].data(), expected[i].size()))
                        << transform.name << " order " << order << " layout " << &layout - layouts;
            }
        }
}

TYPED_TEST(Fft, PartsMayBeInPlaceEachForItself)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>()) {
        if (transform.arrays != 2)
            continue;
        for (int order : {0, 1, 2, 3, 4, 5, 8, 13, isSinglePrecision<T> ? 17 : 15}) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
            expectPartsInPlace(transform, spec, order);
        }
    }
}

TYPED_TEST(Fft, ScalingByAPowerOfTwoIsExact)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : {0, 1, 2, 3, 4, 7, 12, 16, 18}) {
            const int flag = transform.forward ? TARN_FFT_DIV_FWD_BY_N : TARN_FFT_DIV_INV_BY_N;
            const TransformSpec scaled(transform.kind, order, flag);
            const TransformSpec plain(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
            const auto src = inputFor(transform, order);
            auto expected = run(transform, src, plain, order);
            for (auto& array : expected)
                for (T& value : array)
                    value = std::ldexp(value, -order);
            EXPECT_EQ(expected, run(transform, src, scaled, order)) << transform.name << " order " << order;
        }
}

TYPED_TEST(Fft, CcsZerosAreWrittenButNeverRead)
{
    using T = TypeParam;
    const auto& cases = transformCases<T>();
    const auto& toCcs = cases[6];
    const auto& fromCcs = cases[9];
    for (int order = 0; order <= 8; ++order) {
        const TransformSpec spec(toCcs.kind, order, TARN_FFT_DIV_INV_BY_N);
        const auto src = inputFor(toCcs, order);
        auto spectrum = run(toCcs, src, spec, order);
        EXPECT_TRUE(valuesMatch(T{0}, spectrum[0][1]));
        EXPECT_TRUE(order == 0 || valuesMatch(T{0}, spectrum[0].back()));
        const auto expected = run(fromCcs, spectrum, spec, order);
        spectrum[0][1] = std::numeric_limits<T>::quiet_NaN();
        if (order > 0)
            spectrum[0].back() = 1000;
        EXPECT_EQ(expected, run(fromCcs, spectrum, spec, order)) << "order " << order;
    }
}

TYPED_TEST(Fft, RoundsAsTheCallerAsks)
{
    using T = TypeParam;
    for (RoundingMode mode : allRoundingModes)
        for (const TransformCase<T>& transform : transformCases<T>())
            for (int order : {3, 4, 6, 9}) {
                const auto src = inputFor(transform, order);
                const auto expected = transform.model(src, order);
                const TransformSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
                Arrays<T> actual;
                {
                    const RoundingModeScope scope(mode);
                    actual = runAt(transform, src, spec, order, {0, 0, false, Places::Buffer::null});
                }
                // Directed roundings all push one way: the walk is not random.
                EXPECT_LE(relativeError(expected, actual, 1), 4 * errorBound<T>(order)) << transform.name;
                const auto nearest = run(transform, src, spec, order);
                EXPECT_EQ(mode == RoundingMode::nearest, nearest == actual)
                    << transform.name << " order " << order << " mode " << static_cast<int>(mode);
            }
}

TYPED_TEST(Fft, InfinitiesSpread)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : {2, 3, 5, 8}) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
            auto src = inputFor(transform, order);
            src[0][0] = std::numeric_limits<T>::infinity();
            const auto dst = run(transform, src, spec, order);
            EXPECT_FALSE(std::isfinite(dst[0][0])) << transform.name;
        }
}

TYPED_TEST(Fft, ThreadsShareAnObject)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : {3, 8, 13, 17}) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN);
            expectThreadsAgree(transform, spec, order);
        }
}

} // namespace
} // namespace tarn::test
