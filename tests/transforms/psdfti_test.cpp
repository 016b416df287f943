// The transforms of 16-bit samples of any length: through those of floats, to the bit.
#include "support/integer_transforms.h"
#include "support/memory_watch.h"
#include "tarns/dftfixed.h"

#include <gtest/gtest.h>

#include <climits>

namespace tarn::test {
namespace {

// Written out, direct, factors, powers of two, chirps; odd and even, of which the real ones halve.
constexpr int lengthsOfAllMethods[] = {1,  2,  3,  4,  5,   6,   7,   8,   9,   10,  12,  15,  16,   31,  32,
                                       60, 63, 64, 97, 101, 105, 150, 151, 179, 181, 302, 360, 1000, 1009};

TEST(FixedDft, StatusesComeInTheirOrder)
{
    const int badLengths[] = {0, -1, INT_MIN};
    const int goodLengths[] = {1, 2, 5, 12, 16};
    expectStatuses(integerDftCases(), badLengths, tarnStsSizeErr, goodLengths);
}

TEST(FixedDft, WorkBufferSizesAreExact)
{
    for (std::size_t i : {0u, 2u, 4u}) {
        const IntegerCase& transform = integerDftCases()[i];
        for (int length : lengthsOfAllMethods) {
            const IntegerSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN, length % 3);
            const TransformSpec floats(transform.floats.kind, length, TARN_FFT_DIV_BY_SQRTN);
            const int own = transform.isReal() ? 4 * length + 24 : 8 * length + 16;
            EXPECT_EQ(length == 1 ? 0 : own + static_cast<int>(floats.bufSize()), spec.bufSize())
                << transform.kind.name << " length " << length;
        }
    }
}

// The object has the hint that was given, whatever its object of floats was made with.
TEST(FixedDft, TheObjectTellsLengthHintAndSize)
{
    for (const TransformKind& kind : kindsOf(integerDftCases())) {
        const IntegerSpec spec(kind, 12, TARN_FFT_NODIV_BY_ANY, 2);
        std::int32_t words[4];
        std::memcpy(words, spec.get(), sizeof words);
        EXPECT_EQ(kind.identifier, words[0]);
        EXPECT_EQ(12, words[1]);
        EXPECT_EQ(2, words[2]);
        EXPECT_EQ(spec.bufSize(), words[3]);
    }
}

TEST(FixedDft, SamplesGoThroughFloats)
{
    for (const IntegerCase& transform : integerDftCases())
        for (int length : lengthsOfAllMethods)
            for (int flag : allFlags) {
                if (length > 40 && flag != (length % 2 == 0 ? TARN_FFT_DIV_FWD_BY_N : TARN_FFT_DIV_BY_SQRTN))
                    continue;
                const IntegerSpec spec(transform.kind, length, flag, 0);
                const auto src = samplesFor(transform, length, 21);
                for (int scaleFactor : {0, 1, 4, -3, 12, 40, -40})
                    ASSERT_EQ(throughFloats(transform, src, length, flag, scaleFactor),
                              runSamples(transform, src, spec, length, scaleFactor))
                        << transform.name() << " length " << length << " flag " << flag << " scale " << scaleFactor;
            }
}

TEST(FixedDft, HalvesOfASingleSampleGoToTheEvenOne)
{
    for (const IntegerCase& transform : integerDftCases()) {
        const IntegerSpec spec(transform.kind, 1, TARN_FFT_DIV_FWD_BY_N, 0);
        const std::pair<int, int> pairs[] = {{4, 0},  {-4, 0},       {12, 2},        {-12, -2},
                                             {13, 2}, {32767, 4096}, {-32768, -4096}};
        for (const auto& [sample, expected] : pairs) {
            Arrays<Tarn16s> src = samplesFor(transform, 1, 1);
            for (auto& array : src)
                array.assign(array.size(), static_cast<Tarn16s>(sample));
            for (const auto& array : runSamples(transform, src, spec, 1, 3)) {
                EXPECT_EQ(expected, array[0]) << transform.name() << " of " << sample;
                EXPECT_EQ(0, array.size() > 1 && transform.isReal() ? array[1] : 0) << transform.name();
            }
        }
    }
}

TEST(FixedDft, ResultsDoNotDependOnPlaces)
{
    for (const IntegerCase& transform : integerDftCases())
        for (int length : {1, 2, 3, 4, 5, 6, 7, 9, 10, 15, 16, 97, 105, 302, 1009}) {
            const IntegerSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN, 0);
            const auto src = samplesFor(transform, length, 9);
            expectInAllPlaces(transform, src, spec, length, 1, runSamples(transform, src, spec, length, 1));
        }
}

TEST(FixedDft, PartsMayBeInPlaceCrosswise)
{
    const IntegerCase& transform = integerDftCases()[2];
    for (int length : {1, 3, 7, 12, 151}) {
        const IntegerSpec spec(transform.kind, length, TARN_FFT_DIV_FWD_BY_N, 0);
        const auto src = samplesFor(transform, length, 4);
        const auto expected = runSamples(transform, src, spec, length, 0);
        Arrays<Tarn16s> data = src;
        const Tarn16s* from[] = {data[0].data(), data[1].data()};
        Tarn16s* to[] = {data[1].data(), data[0].data()};
        ASSERT_EQ(tarnStsNoErr, transform.run(from, to, spec.get(), 0, nullptr));
        EXPECT_EQ(expected[0], data[1]) << "length " << length;
        EXPECT_EQ(expected[1], data[0]) << "length " << length;
    }
}

TEST(FixedDft, CcsZerosAreWrittenButNeverRead)
{
    const auto& cases = integerDftCases();
    for (int length : {1, 2, 3, 4, 5, 6, 15, 16, 22, 151}) {
        const IntegerSpec spec(cases[6].kind, length, TARN_FFT_DIV_FWD_BY_N, 0);
        auto spectrum = runSamples(cases[6], samplesFor(cases[6], length, 8), spec, length, 0);
        EXPECT_EQ(0, spectrum[0][1]) << "length " << length;
        EXPECT_TRUE(length % 2 != 0 || spectrum[0].back() == 0) << "length " << length;
        const auto expected = runSamples(cases[9], spectrum, spec, length, 0);
        spectrum[0][1] = 12345;
        if (length % 2 == 0)
            spectrum[0].back() = -777;
        EXPECT_EQ(expected, runSamples(cases[9], spectrum, spec, length, 0)) << "length " << length;
    }
}

// -- Memory ----------------------------------------------------------------------------------------------------------

TEST(FixedDft, CreationGivesBackAllItGotWhenOneAllocationFails)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kindsOf(integerDftCases()))
        for (int length : {1, 2, 7, 12, 16, 49, 151, 302})
            for (int allowed = 0, status = tarnStsNoMemErr; status != tarnStsNoErr; ++allowed) {
                ASSERT_LT(allowed, 64);
                void* spec = nullptr;
                const MemoryWatch watch(allowed);
                status = kind.create(&spec, length, TARN_FFT_DIV_BY_SQRTN, 0);
                if (status == tarnStsNoErr)
                    kind.free(spec);
                const int left = watch.outstanding();
                EXPECT_TRUE(status == tarnStsNoErr || (status == tarnStsNoMemErr && spec == nullptr)) << kind.name;
                EXPECT_EQ(0, left) << kind.name << " length " << length << " allowed " << allowed;
            }
}

TEST(FixedDft, ABadFlagLeavesNothingBehind)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kindsOf(integerDftCases()))
        for (int length : {1, 3, 30}) {
            void* spec = nullptr;
            for (int allowed : {0, 99}) {
                const MemoryWatch watch(allowed);
                const int status = kind.create(&spec, length, 3, 0);
                const int left = watch.outstanding();
                EXPECT_EQ(allowed == 0 ? tarnStsNoMemErr : tarnStsFftFlagErr, status) << "memory comes first";
                EXPECT_EQ(0, left);
            }
        }
}

TEST(FixedDft, TransformsAllocateOnlyTheBufferThatIsMissing)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const IntegerCase& transform : integerDftCases())
        for (int length : {1, 2, 5, 12, 16, 151, 302}) {
            const IntegerSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN, 0);
            Arrays<Tarn16s> from(2, std::vector<Tarn16s>(transform.floats.srcReals(length), 1));
            Arrays<Tarn16s> to(2, std::vector<Tarn16s>(transform.floats.dstReals(length), 7));
            const Arrays<Tarn16s> before = to;
            const Tarn16s* src[] = {from[0].data(), from[1].data()};
            Tarn16s* dst[] = {to[0].data(), to[1].data()};
            std::vector<Tarn8u> buffer(static_cast<std::size_t>(spec.bufSize()) + 1);
            int allocated = 0;
            const auto run = [&](int allowed, Tarn8u* work) {
                const MemoryWatch watch(allowed);
                const int status = transform.run(src, dst, spec.get(), 0, work);
                allocated = watch.allocated();
                const int left = watch.outstanding();
                EXPECT_EQ(0, left);
                return status;
            };
            EXPECT_EQ(length == 1 ? tarnStsNoErr : tarnStsNoMemErr, run(0, nullptr)) << transform.name();
            EXPECT_TRUE(length == 1 || before == to) << transform.name();
            EXPECT_EQ(tarnStsNoErr, run(0, buffer.data())) << transform.name();
            EXPECT_EQ(tarnStsNoErr, run(9, nullptr));
            EXPECT_EQ(length == 1 ? 0 : 1, allocated) << transform.name();
        }
}

} // namespace
} // namespace tarn::test
