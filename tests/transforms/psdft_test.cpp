// The transforms of any length: accuracy against wider arithmetic at every length, scales, round trips, and results
// that depend neither on where the arrays lie nor on where the work buffer comes from.
#include "model/chirp.h"
#include "support/compare.h"
#include "support/transform_runs.h"
#include "tarns/dft.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tarn::test {
namespace {

template <class T>
class Dft : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(Dft, Precisions);

/// Lengths of every method: written out, powers of two, factors (a two first, fours, a leaf of its own), direct sums,
/// convolutions. Real kinds take half of an even one.
constexpr int lengthsOfEveryMethod[] = {1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,
                                        16,  17,  18,  20,  21,  22,  24,  25,  26,  27,  28,  30,  32,  33,  35,
                                        36,  44,  45,  49,  50,  54,  60,  64,  70,  77,  81,  90,  98,  101, 105,
                                        121, 149, 150, 151, 167, 179, 180, 181, 254, 298, 302, 338, 362, 471, 500};
constexpr int longerLengths[] = {882, 1000, 1331, 2187, 4001, 5041};
// Shared out between the precisions, whose code is one.
template <class T>
inline constexpr std::array<int, 3> longestLengths = {10007, 44100, 65537};
template <>
inline constexpr std::array<int, 3> longestLengths<Tarn64f> = {22801, 48000, 120000};

/// Rounding errors of factors add up like a random walk, and direct sums of h terms are one, too. A convolution passes
/// two transforms of about four times the length, and its products.
template <class T>
long double errorBound(int length)
{
    const long double unit = std::numeric_limits<T>::epsilon() / 2;
    return unit * (1.6L + 0.65L * std::log2(static_cast<long double>(length) + 1));
}

template <class T>
Arrays<long double> partsOf(const std::vector<std::complex<T>>& values)
{
    std::vector<long double> parts;
    for (const auto& value : values) {
        parts.push_back(value.real());
        parts.push_back(value.imag());
    }
    return {parts};
}

TEST(DftModel, AgreesWithTheDefinition)
{
    for (std::size_t n = 1; n <= 40; ++n)
        for (int sign : {-1, 1}) {
            const auto reals = signal<double>(2 * n, 5);
            std::vector<std::complex<double>> x(n);
            std::vector<model::Bin> bins(n);
            for (std::size_t i = 0; i < n; ++i) {
                x[i] = {reals[2 * i], reals[2 * i + 1]};
                bins[i] = {reals[2 * i], reals[2 * i + 1]};
            }
            const auto expected = model::transformByDefinition(bins, sign);
            const auto actual = model::anyTransform(x, sign);
            for (std::size_t k = 0; k < n; ++k) {
                EXPECT_NEAR(static_cast<double>(expected[k].re), actual[k].real(), 1e-13);
                EXPECT_NEAR(static_cast<double>(expected[k].im), actual[k].imag(), 1e-13);
            }
        }
}

/// One transform of the model serves three: of the complex data, and of their real parts as a real signal, both ways.
TEST(DftLengths, EveryOneIsAccurateInSinglePrecision)
{
    const auto& cases = anyTransformCases<Tarn32f>();
    const auto& pairs = cases[0];
    const auto& toPerm = cases[4];
    const auto& fromPerm = cases[7];
    for (int length = 1; length <= 2048; ++length) {
        const auto n = static_cast<std::size_t>(length);
        const auto src = inputFor(pairs, length);
        std::vector<std::complex<double>> x(n);
        std::vector<Tarn32f> reals(n);
        for (std::size_t i = 0; i < n; ++i) {
            x[i] = {src[0][2 * i], src[0][2 * i + 1]};
            reals[i] = src[0][2 * i];
        }
        const auto spectrum = model::anyTransform(x, -1);
        const TransformSpec complexSpec(pairs.kind, length, TARN_FFT_NODIV_BY_ANY);
        ASSERT_LE(relativeError(partsOf(spectrum), run(pairs, src, complexSpec, length), 1),
                  errorBound<Tarn32f>(length))
            << "length " << length;

        std::vector<long double> packed;
        for (model::Slot slot : model::slots(model::Layout::perm, n)) {
            const auto bin = (spectrum[slot.k] + std::conj(spectrum[(n - slot.k) % n])) / 2.0;
            packed.push_back(slot.part == model::Slot::Part::real ? bin.real() : bin.imag());
        }
        const TransformSpec realSpec(toPerm.kind, length, TARN_FFT_DIV_INV_BY_N);
        const auto perm = run(toPerm, {reals}, realSpec, length);
        ASSERT_LE(relativeError({packed}, perm, 1), errorBound<Tarn32f>(length)) << "real length " << length;
        const Arrays<long double> expected = {std::vector<long double>(reals.begin(), reals.end())};
        ASSERT_LE(relativeError(expected, run(fromPerm, perm, realSpec, length), 1), 2 * errorBound<Tarn32f>(length))
            << "and back, length " << length;
    }
}

template <class T>
void expectAccuracy(const TransformCase<T>& transform, int length, const std::vector<int>& flags)
{
    const auto src = inputFor(transform, length);
    const auto expected = transform.model(src, length);
    for (int flag : flags) {
        const TransformSpec spec(transform.kind, length, flag);
        EXPECT_LE(relativeError(expected, run(transform, src, spec, length),
                                scaleOf(flag, transform.forward, static_cast<long double>(length))),
                  errorBound<T>(length))
            << transform.name << " length " << length << " flag " << flag;
    }
}

TYPED_TEST(Dft, EveryTransformIsAccurateByEveryMethod)
{
    // Where all formats take the same way, one of them goes to the end.
    const auto& cases = anyTransformCases<TypeParam>();
    for (std::size_t i = 0; i < cases.size(); ++i)
        for (int length : lengthsOfEveryMethod)
            if (length <= 60 || i < 5 || i == 7)
                expectAccuracy(cases[i], length, {std::begin(allFlags), std::end(allFlags)});
}

/// Kinds that differ in more than the format, both ways.
TYPED_TEST(Dft, LongerOnesAreAccurate)
{
    const auto& cases = anyTransformCases<TypeParam>();
    for (int length : longerLengths)
        for (std::size_t which : {0, 1, 2, 3, 4, 7})
            expectAccuracy(cases[which], length, {TARN_FFT_DIV_BY_SQRTN});
}

TYPED_TEST(Dft, LongOnesAreAccurate)
{
    const auto& cases = anyTransformCases<TypeParam>();
    std::size_t turn = 0;
    for (int length : longestLengths<TypeParam>)
        expectAccuracy(cases[turn++ % 2 * 4], length, {TARN_FFT_NODIV_BY_ANY});
}

TYPED_TEST(Dft, EveryBinIsRightForASingleImpulse)
{
    using T = TypeParam;
    const T tolerance = 16 * std::numeric_limits<T>::epsilon();
    for (const auto& transform : anyTransformCases<T>())
        for (int length : {3, 5, 6, 7, 9, 10, 12, 35, 45, 60, 101, 151, 302}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_NODIV_BY_ANY);
            for (std::size_t at = 0; at < transform.srcReals(length); at += 1 + at) {
                Arrays<T> src(static_cast<std::size_t>(transform.arrays), std::vector<T>(transform.srcReals(length)));
                src.back()[at] = 1;
                const auto expected = transform.model(src, length);
                const auto actual = run(transform, src, spec, length);
                for (std::size_t i = 0; i < actual.size(); ++i)
                    for (std::size_t j = 0; j < actual[i].size(); ++j)
                        ASSERT_NEAR(static_cast<double>(expected[i][j]), static_cast<double>(actual[i][j]), tolerance)
                            << transform.name << " length " << length << " impulse at " << at << " result " << j;
            }
        }
}

TYPED_TEST(Dft, ForwardThenInverseRestoresTheSignal)
{
    using T = TypeParam;
    const auto& cases = anyTransformCases<T>();
    const std::pair<std::size_t, std::size_t> partners[] = {{0, 1}, {2, 3}, {4, 7}, {5, 8}, {6, 9}};
    for (auto [there, back] : partners)
        for (int length : {1, 2, 3, 4, 5, 6, 7, 10, 12, 21, 49, 64, 101, 151, 179, 181, 302, 362, 1000, 2187})
            for (int flag : allFlags) {
                const TransformSpec spec(cases[there].kind, length, flag);
                const auto src = inputFor(cases[there], length);
                const auto restored = run(cases[back], run(cases[there], src, spec, length), spec, length);
                Arrays<long double> expected;
                for (const auto& array : src)
                    expected.emplace_back(array.begin(), array.end());
                const long double gain = flag == TARN_FFT_NODIV_BY_ANY ? length : 1;
                EXPECT_LE(relativeError(expected, restored, gain), 2 * errorBound<T>(length))
                    << cases[there].name << " length " << length << " flag " << flag;
            }
}

TYPED_TEST(Dft, ResultsDoNotDependOnPlacesAndBuffers)
{
    using T = TypeParam;
    using enum Places::Buffer;
    const Places everywhere[] = {{0, 0, false, exact}, {1, 0, false, null}, {3, 7, false, odd},    {8, 4, false, exact},
                                 {0, 0, true, null},   {0, 0, true, exact}, {0, 5, true, aligned}, {0, 8, true, odd}};
    for (const auto& transform : anyTransformCases<T>())
        for (int length : {1,  2,  3,  4,  5,  6,  7,   8,   9,   10,  12,  13,  15,  18,  20,  21,   25,   30,  35,
                           45, 49, 60, 77, 90, 96, 101, 121, 151, 181, 202, 302, 362, 471, 525, 2016, 2025, 2205}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN);
            const auto src = inputFor(transform, length);
            const auto expected = run(transform, src, spec, length);
            for (const Places& places : everywhere) {
                const auto actual = runAt(transform, src, spec, length, places);
                for (std::size_t i = 0; i < expected.size(); ++i)
                    ASSERT_TRUE(arraysMatch<T>(expected[i].data(), actual[i].data(), expected[i].size()))
                        << transform.name << " length " << length << " places " << &places - everywhere;
            }
        }
}

TYPED_TEST(Dft, PartsMayBeInPlaceEachForItself)
{
    using T = TypeParam;
    for (const auto& transform : anyTransformCases<T>()) {
        if (transform.arrays != 2)
            continue;
        for (int length : {1, 3, 4, 5, 6, 9, 12, 16, 30, 101, 105, 151, 1000, 2187}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_NODIV_BY_ANY);
            expectPartsInPlace(transform, spec, length);
        }
    }
}

/// The transforms of tarns/fft.h, to the bit.
TYPED_TEST(Dft, PowersOfTwoAreTheirOwnTransforms)
{
    using T = TypeParam;
    const auto& any = anyTransformCases<T>();
    const auto& own = transformCases<T>();
    for (std::size_t i = 0; i < any.size(); ++i)
        for (int order : {3, 4, 7, 10}) {
            const TransformSpec anySpec(any[i].kind, 1 << order, TARN_FFT_DIV_BY_SQRTN);
            const TransformSpec ownSpec(own[i].kind, order, TARN_FFT_DIV_BY_SQRTN);
            const auto src = inputFor(own[i], order);
            EXPECT_EQ(anySpec.bufSize(), ownSpec.bufSize());
            EXPECT_EQ(run(own[i], src, ownSpec, order), run(any[i], src, anySpec, 1 << order)) << any[i].name;
        }
}

/// The formats are one spectrum: Pack and CCS are Perm with its values moved.
TYPED_TEST(Dft, FormatsHoldTheSameValues)
{
    using T = TypeParam;
    using model::Layout;
    const auto& cases = anyTransformCases<T>();
    for (int length : {1, 2, 3, 4, 5, 6, 7, 9, 10, 16, 30, 45, 101, 151, 181, 302, 362}) {
        const TransformSpec spec(cases[4].kind, length, TARN_FFT_DIV_INV_BY_N);
        const auto src = inputFor(cases[4], length);
        const auto perm = run(cases[4], src, spec, length)[0];
        const auto permSlots = model::slots(Layout::perm, static_cast<std::size_t>(length));
        const auto signalBack = run(cases[7], {perm}, spec, length);
        for (auto [layout, there, back] : {std::tuple{Layout::pack, 5, 8}, std::tuple{Layout::ccs, 6, 9}}) {
            const auto slots = model::slots(layout, static_cast<std::size_t>(length));
            std::vector<T> expected;
            for (const model::Slot& slot : slots) {
                T value = 0;
                for (std::size_t i = 0; i < permSlots.size(); ++i)
                    if (slot.part == permSlots[i].part && slot.k == permSlots[i].k)
                        value = perm[i];
                expected.push_back(value);
            }
            auto packed = run(cases[static_cast<std::size_t>(there)], src, spec, length);
            ASSERT_EQ(expected, packed[0]) << cases[static_cast<std::size_t>(there)].name << " length " << length;
            for (std::size_t i = 0; i < slots.size(); ++i)
                if (slots[i].part == model::Slot::Part::zero)
                    packed[0][i] = std::numeric_limits<T>::quiet_NaN();
            ASSERT_EQ(signalBack, run(cases[static_cast<std::size_t>(back)], packed, spec, length))
                << cases[static_cast<std::size_t>(back)].name << " length " << length;
        }
    }
}

TYPED_TEST(Dft, InfinitiesSpread)
{
    using T = TypeParam;
    for (const auto& transform : anyTransformCases<T>())
        for (int length : {3, 5, 6, 12, 101, 151}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_NODIV_BY_ANY);
            auto src = inputFor(transform, length);
            src[0][0] = std::numeric_limits<T>::infinity();
            EXPECT_FALSE(std::isfinite(run(transform, src, spec, length)[0][0])) << transform.name << length;
        }
}

TYPED_TEST(Dft, ThreadsShareAnObject)
{
    using T = TypeParam;
    for (const auto& transform : anyTransformCases<T>())
        for (int length : {3, 60, 101, 181, 302, 2187}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN);
            expectThreadsAgree(transform, spec, length);
        }
}

} // namespace
} // namespace tarn::test
