// The power-of-two transforms of 16-bit samples: the way through floats to the bit, the fixed-point way within what its
// factors allow, and to the bit where it has none.
#include "levels/fft/psffti.h"
#include "support/integer_transforms.h"
#include "support/memory_watch.h"
#include "tarns/fftfixed.h"
#include "tarns/memory.h"

#include <gtest/gtest.h>

#include <climits>
#include <numbers>
#include <thread>

namespace tarn::test {
namespace {

constexpr int allFlagsOfFft[] = {TARN_FFT_DIV_FWD_BY_N, TARN_FFT_DIV_INV_BY_N, TARN_FFT_DIV_BY_SQRTN,
                                 TARN_FFT_NODIV_BY_ANY};

Tarn16s halfUp(long double x)
{
    return static_cast<Tarn16s>(std::fmin(std::fmax(std::floor(x + 0.5L), -32768.0L), 32767.0L));
}

TEST(FixedFft, StatusesComeInTheirOrder)
{
    const int badOrders[] = {31, -1, INT_MIN, INT_MAX};
    const int goodOrders[] = {0, 1, 3, 4, 7};
    expectStatuses(integerFftCases(), badOrders, tarnStsFftOrderErr, goodOrders);
}

TEST(FixedFft, TablesOfTheLargestOrdersCannotBeHad)
{
    for (const TransformKind& kind : kindsOf(integerFftCases()))
        for (int order = kind.name[0] == 'R' ? 29 : 28; order <= 30; ++order) {
            void* spec = nullptr;
            EXPECT_EQ(tarnStsNoMemErr, kind.create(&spec, order, TARN_FFT_NODIV_BY_ANY, 0)) << kind.name << order;
            EXPECT_EQ(nullptr, spec);
        }
}

TEST(FixedFft, WorkBufferSizesAreExact)
{
    for (std::size_t i : {0u, 2u, 4u}) {
        const IntegerCase& transform = integerFftCases()[i];
        for (int order = 0; order <= 17; ++order)
            for (int hint : {0, 1, 2, 3, -1}) {
                const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN, hint);
                const TransformSpec floats(transform.floats.kind, order, TARN_FFT_DIV_BY_SQRTN);
                const bool fixed = order <= 3 && (hint == 0 || hint == 1);
                const int own = transform.isReal() ? (4 << order) + 24 : ((fixed ? 12 : 8) << order) + 16;
                const int expected = order == 0 ? 0 : own + (fixed ? 0 : static_cast<int>(floats.bufSize()));
                EXPECT_EQ(expected, spec.bufSize()) << transform.kind.name << " order " << order << " hint " << hint;
            }
    }
}

TEST(FixedFft, ScalesASingleSampleRoundingHalvesUp)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int flag : allFlagsOfFft)
            for (int hint : {0, 2}) {
                const IntegerSpec spec(transform.kind, 0, flag, hint);
                for (int sample : {4, -4, 5, -5, 3, -3, 12, -12, 1, -1, 0, 32767, -32768})
                    for (int scaleFactor :
                         {3, 0, 1, 15, 16, 17, 31, 32, 33, 64, -1, -3, -15, -16, -31, -32, -40, INT_MAX, INT_MIN}) {
                        auto src = samplesFor(transform, 0, 1);
                        for (auto& array : src)
                            array.assign(array.size(), static_cast<Tarn16s>(sample));
                        const auto dst = runSamples(transform, src, spec, 0, scaleFactor);
                        const int bounded = std::max(-100, std::min(100, scaleFactor));
                        const Tarn16s expected = halfUp(std::ldexp(static_cast<long double>(sample), -bounded));
                        for (const auto& array : dst)
                            for (std::size_t j = 0; j < array.size(); ++j)
                                ASSERT_EQ(transform.isReal() && j == 1 ? 0 : expected, array[j])
                                    << transform.name() << " sample " << sample << " scale " << scaleFactor;
                    }
            }
    Tarn16s x = 4;
    const IntegerSpec spec(integerFftCases()[4].kind, 0, TARN_FFT_NODIV_BY_ANY, 0);
    ASSERT_EQ(tarnStsNoErr,
              tarnsFFTFwd_RToPerm_16s_Sfs(&x, &x, static_cast<TarnsFFTSpec_R_16s*>(spec.get()), 3, nullptr));
    EXPECT_EQ(1, x);
    x = -4;
    ASSERT_EQ(tarnStsNoErr,
              tarnsFFTFwd_RToPerm_16s_Sfs(&x, &x, static_cast<TarnsFFTSpec_R_16s*>(spec.get()), 3, nullptr));
    EXPECT_EQ(0, x);
}

TEST(FixedFft, ASingleSampleNeedsNoBuffer)
{
    for (const IntegerCase& transform : integerFftCases()) {
        const IntegerSpec spec(transform.kind, 0, TARN_FFT_DIV_BY_SQRTN, 2);
        const auto src = samplesFor(transform, 0, 3);
        expectInAllPlaces(transform, src, spec, 0, 1, runSamples(transform, src, spec, 0, 1));
    }
}

// -- Fixed point -----------------------------------------------------------------------------------------------------

// A word's sums are exact. A factor of sqrt(1/2) is 11585 / 16384, which is off by so much, and so is the share of what
// it is multiplied with; real spectra take that twice in the inverse. The words themselves are rounded in their last
// bits, of which a sample has 12 and more, a handful of times.
long double fixedError(const Arrays<Tarn16s>& src, int order, bool oddSqrt, bool real)
{
    long double total = 0;
    for (const auto& array : src)
        for (Tarn16s x : array)
            total += std::abs(x);
    const long double factorError = std::numbers::sqrt2_v<long double> / 2 - 11585.0L / 16384;
    return order < 3 && !oddSqrt ? 0 : 8 * 0x1p-12L + (order < 3 ? 0 : (real ? 2 : 1) * factorError * total);
}

void expectFixed(const IntegerCase& transform, const Arrays<Tarn16s>& src, int order, int flag, int hint)
{
    const IntegerSpec spec(transform.kind, order, flag, hint);
    Arrays<Tarn64f> doubles;
    for (const auto& array : src)
        doubles.emplace_back(array.begin(), array.end());
    const auto exact = transform.model(doubles, order);
    const long double scale = scaleOf(flag, transform.floats.forward, order);
    const long double error =
        fixedError(src, order, flag == TARN_FFT_DIV_BY_SQRTN && order % 2 != 0, transform.isReal());
    for (int scaleFactor : {0, 1, 2, 3, 5, 15, 19, 40, -1, -4, -20}) {
        const auto actual = runSamples(transform, src, spec, order, scaleFactor);
        for (std::size_t i = 0; i < actual.size(); ++i)
            for (std::size_t j = 0; j < actual[i].size(); ++j) {
                // Not a rounding of the model may show in an exact half.
                const long double x = std::nearbyint(exact[i][j] * 0x1p30L) * 0x1p-30L;
                const auto sample = [&](long double value) { return halfUp(std::ldexp(value * scale, -scaleFactor)); };
                ASSERT_LE(sample(x - error), actual[i][j])
                    << transform.name() << " order " << order << " flag " << flag << " scale " << scaleFactor;
                ASSERT_GE(sample(x + error), actual[i][j])
                    << transform.name() << " order " << order << " flag " << flag << " scale " << scaleFactor;
            }
    }
}

TEST(FixedFft, FixedPointIsAsAccurateAsItsFactors)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order = 1; order <= 3; ++order)
            for (int flag : allFlagsOfFft)
                for (unsigned seed = 0; seed < 12; ++seed)
                    expectFixed(transform,
                                samplesFor(transform, order, seed,
                                           seed % 3 == 0   ? 32768
                                           : seed % 3 == 1 ? 3000
                                                           : 7),
                                order, flag, static_cast<int>(seed % 2));
}

// The largest sums that samples allow: all at a bound, with the signs that one result asks for.
TEST(FixedFft, FixedPointHasRoomForTheLargestSums)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order = 1; order <= 3; ++order) {
            auto unit = samplesFor(transform, order, 0);
            Arrays<Tarn64f> impulse;
            for (const auto& array : unit)
                impulse.emplace_back(array.size(), 0.0);
            const std::size_t results = transform.floats.dstReals(order);
            for (std::size_t result = 0; result < results * unit.size(); ++result)
                for (int sign : {1, -1}) {
                    for (std::size_t i = 0; i < unit.size(); ++i)
                        for (std::size_t j = 0; j < unit[i].size(); ++j) {
                            impulse[i][j] = 1;
                            const auto share = transform.model(impulse, order)[result / results][result % results];
                            impulse[i][j] = 0;
                            unit[i][j] = static_cast<Tarn16s>(sign * share < 0 ? -32768 : 32767);
                        }
                    expectFixed(transform, unit, order, TARN_FFT_NODIV_BY_ANY, 0);
                    expectFixed(transform, unit, order, TARN_FFT_DIV_BY_SQRTN, 0);
                }
        }
}

TEST(FixedFft, FixedPointDoesNotDependOnPlaces)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order = 1; order <= 3; ++order) {
            const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN, 1);
            const auto src = samplesFor(transform, order, 77);
            const auto expected = runSamples(transform, src, spec, order, 1);
            expectInAllPlaces(transform, src, spec, order, 1, expected);
        }
}

// -- Through floats --------------------------------------------------------------------------------------------------

TEST(FixedFft, FloatsAreConvertedThereAndBack)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 17})
            for (int flag : allFlagsOfFft) {
                if (order > 6 && flag != TARN_FFT_DIV_BY_SQRTN)
                    continue;
                const IntegerSpec spec(transform.kind, order, flag, order < 4 ? 2 : order % 3);
                const auto src = samplesFor(transform, order, 5);
                for (int scaleFactor : {0, 1, 4, -3, 12, 40, -40}) {
                    if (order > 9 && scaleFactor != 4)
                        continue;
                    ASSERT_EQ(throughFloats(transform, src, order, flag, scaleFactor),
                              runSamples(transform, src, spec, order, scaleFactor))
                        << transform.name() << " order " << order << " flag " << flag << " scale " << scaleFactor;
                }
            }
}

TEST(FixedFft, FloatsDoNotDependOnPlaces)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order : {1, 2, 3, 4, 5, 8, 11}) {
            const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN, 2);
            const auto src = samplesFor(transform, order, 9);
            expectInAllPlaces(transform, src, spec, order, 1, runSamples(transform, src, spec, order, 1));
        }
}

TEST(FixedFft, FarScalesLeaveZerosAndBounds)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int hint : {0, 2})
            for (int order : {1, 2, 3, 5}) {
                const IntegerSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY, hint);
                auto src = samplesFor(transform, order, 2);
                const auto signs = runSamples(transform, src, spec, order, -8);
                const auto zeros = runSamples(transform, src, spec, order, INT_MAX);
                const auto bounds = runSamples(transform, src, spec, order, -60);
                for (std::size_t i = 0; i < signs.size(); ++i)
                    for (std::size_t j = 0; j < signs[i].size(); ++j) {
                        EXPECT_EQ(0, zeros[i][j]) << transform.name() << " order " << order;
                        if (signs[i][j] != 0) {
                            EXPECT_EQ(signs[i][j] < 0 ? -32768 : 32767, bounds[i][j]);
                        }
                    }
            }
}

TEST(FixedFft, PartsMayBeInPlaceEachForItselfOrCrosswise)
{
    const IntegerCase& transform = integerFftCases()[2];
    for (int order : {0, 1, 2, 3, 5, 9})
        for (int hint : {0, 2}) {
            const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_FWD_BY_N, hint);
            const auto src = samplesFor(transform, order, 4);
            const auto expected = runSamples(transform, src, spec, order, 0);
            for (int places = 0; places < 3; ++places) {
                Arrays<Tarn16s> data = src;
                std::vector<Tarn16s> other(src[0].size());
                const Tarn16s* from[] = {data[0].data(), data[1].data()};
                Tarn16s* to[] = {data[places == 0 ? 0 : 1].data(), places == 1 ? data[0].data() : other.data()};
                ASSERT_EQ(tarnStsNoErr, transform.run(from, to, spec.get(), 0, nullptr));
                const std::size_t count = src[0].size();
                EXPECT_EQ(expected[0], std::vector<Tarn16s>(to[0], to[0] + count)) << "order " << order;
                EXPECT_EQ(expected[1], std::vector<Tarn16s>(to[1], to[1] + count)) << "order " << order;
            }
        }
}

TEST(FixedFft, CcsZerosAreWrittenButNeverRead)
{
    const auto& cases = integerFftCases();
    for (int hint : {0, 2})
        for (int order = 0; order <= 6; ++order) {
            const IntegerSpec spec(cases[6].kind, order, TARN_FFT_DIV_FWD_BY_N, hint);
            auto spectrum = runSamples(cases[6], samplesFor(cases[6], order, 8), spec, order, 0);
            EXPECT_EQ(0, spectrum[0][1]);
            EXPECT_TRUE(order == 0 || spectrum[0].back() == 0);
            const auto expected = runSamples(cases[9], spectrum, spec, order, 0);
            spectrum[0][1] = 12345;
            if (order > 0)
                spectrum[0].back() = -777;
            EXPECT_EQ(expected, runSamples(cases[9], spectrum, spec, order, 0)) << "order " << order;
        }
}

TEST(FixedFft, ThreadsShareAnObject)
{
    for (const IntegerCase& transform : integerFftCases())
        for (int order : {3, 8}) {
            const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN, 0);
            const auto src = samplesFor(transform, order, 6);
            const auto expected = runSamples(transform, src, spec, order, 0);
            std::vector<Arrays<Tarn16s>> results(3);
            std::vector<std::thread> threads;
            for (auto& result : results)
                threads.emplace_back([&] { result = runSamples(transform, src, spec, order, 0); });
            for (std::thread& thread : threads)
                thread.join();
            for (const auto& result : results)
                EXPECT_EQ(expected, result) << transform.name() << " order " << order;
        }
}

// -- Memory ----------------------------------------------------------------------------------------------------------

TEST(FixedFft, CreationGivesBackAllItGotWhenOneAllocationFails)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kindsOf(integerFftCases()))
        for (int hint : {0, 2})
            for (int order : {0, 1, 2, 3, 4, 9, 17})
                for (int allowed = 0, status = tarnStsNoMemErr; status != tarnStsNoErr; ++allowed) {
                    ASSERT_LT(allowed, 64);
                    void* spec = nullptr;
                    const MemoryWatch watch(allowed);
                    status = kind.create(&spec, order, TARN_FFT_DIV_BY_SQRTN, hint);
                    if (status == tarnStsNoErr) {
                        const int held = watch.outstanding();
                        kind.free(spec);
                        const int left = watch.outstanding();
                        EXPECT_GE(held, order == 0 ? 1 : 2);
                        EXPECT_EQ(0, left) << kind.name << " order " << order;
                    } else {
                        const int left = watch.outstanding();
                        EXPECT_EQ(tarnStsNoMemErr, status) << kind.name << " order " << order;
                        EXPECT_EQ(0, left) << kind.name << " order " << order << " allowed " << allowed;
                        EXPECT_EQ(nullptr, spec);
                    }
                }
}

TEST(FixedFft, ABadFlagLeavesNothingBehind)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kindsOf(integerFftCases())) {
        void* spec = nullptr;
        for (int allowed : {0, 1, 9}) {
            const MemoryWatch watch(allowed);
            const int status = kind.create(&spec, 3, 3, 0);
            const int left = watch.outstanding();
            EXPECT_EQ(allowed == 0 ? tarnStsNoMemErr : tarnStsFftFlagErr, status) << "memory comes first";
            EXPECT_EQ(0, left);
        }
    }
}

TEST(FixedFft, TransformsAllocateOnlyTheBufferThatIsMissing)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const IntegerCase& transform : integerFftCases())
        for (int hint : {0, 2})
            for (int order : {0, 1, 3, 4, 9, 17}) {
                const IntegerSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN, hint);
                Arrays<Tarn16s> from(2, std::vector<Tarn16s>(transform.floats.srcReals(order), 1));
                Arrays<Tarn16s> to(2, std::vector<Tarn16s>(transform.floats.dstReals(order), 7));
                const Arrays<Tarn16s> before = to;
                const Tarn16s* src[] = {from[0].data(), from[1].data()};
                Tarn16s* dst[] = {to[0].data(), to[1].data()};
                std::vector<Tarn8u> buffer(static_cast<std::size_t>(spec.bufSize()) + 1);
                const auto run = [&](int allowed, Tarn8u* work, int& allocated) {
                    const MemoryWatch watch(allowed);
                    const int status = transform.run(src, dst, spec.get(), 0, work);
                    allocated = watch.allocated();
                    const int left = watch.outstanding();
                    EXPECT_EQ(0, left);
                    return status;
                };
                int allocated = 0;
                EXPECT_EQ(order == 0 ? tarnStsNoErr : tarnStsNoMemErr, run(0, nullptr, allocated)) << transform.name();
                EXPECT_TRUE(order == 0 || before == to) << transform.name();
                EXPECT_EQ(tarnStsNoErr, run(0, buffer.data(), allocated)) << transform.name();
                EXPECT_EQ(tarnStsNoErr, run(9, nullptr, allocated));
                EXPECT_EQ(order == 0 ? 0 : 1, allocated) << transform.name();
            }
}

} // namespace
} // namespace tarn::test
