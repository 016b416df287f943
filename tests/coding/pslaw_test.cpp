// A-law and mu-law against plain models of the laws, and beside the coder of sox.
#include "tarns/companding.h"

#include "model/companding.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace tarn::test {
namespace {

using model::aLawOf;
using model::aLawValue;
using model::muLawOf;
using model::muLawValue;
using model::sampleOf;

constexpr float nan32 = std::numeric_limits<float>::quiet_NaN();
constexpr float inf32 = std::numeric_limits<float>::infinity();

// -- Every byte, every sample -----------------------------------------------------------------------------------------

TEST(Law, BytesAsSamples)
{
    sweepElementwise<Tarn16s, Tarn8u>(tarnsALawToLin_8u16s, aLawValue, {.name = "A-law"});
    sweepElementwise<Tarn16s, Tarn8u>(tarnsMuLawToLin_8u16s, muLawValue, {.name = "mu-law"});
}

// A zero is +0 in every rounding mode.
TEST(Law, BytesAsFloats)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepElementwise<Tarn32f, Tarn8u>(tarnsALawToLin_8u32f, [](Tarn8u a) { return model::asFloat(aLawValue(a)); },
                                          {.name = "A-law", .depth = depth});
        sweepElementwise<Tarn32f, Tarn8u>(tarnsMuLawToLin_8u32f, [](Tarn8u u) { return model::asFloat(muLawValue(u)); },
                                          {.name = "mu-law", .depth = depth});
    }
}

TEST(Law, SamplesAsBytes)
{
    sweepElementwise<Tarn8u, Tarn16s>(tarnsLinToALaw_16s8u, [](int s) { return aLawOf(s); }, {.name = "A-law"});
    sweepElementwise<Tarn8u, Tarn16s>(tarnsLinToMuLaw_16s8u, [](int s) { return muLawOf(s); }, {.name = "mu-law"});
}

TEST(Law, BytesOfTheOtherLaw)
{
    sweepElementwise<Tarn8u, Tarn8u>(tarnsALawToMuLaw_8u, model::muLawOfALaw, {.name = "to mu-law"});
    sweepElementwise<Tarn8u, Tarn8u>(tarnsMuLawToALaw_8u, model::aLawOfMuLaw, {.name = "to A-law"});
}

// Every sample at every place of a vector and of what is left over, which the sweeps only scatter.
TEST(Law, EverySampleInEveryLane)
{
    std::vector<Tarn16s> samples(65536);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<Tarn16s>(i);
    std::vector<Tarn8u> bytes(samples.size());
    for (std::size_t first = 0; first < 17; ++first) {
        const auto len = samples.size() - first;
        ASSERT_EQ(tarnStsNoErr, tarnsLinToALaw_16s8u(samples.data() + first, bytes.data(), static_cast<int>(len)));
        for (std::size_t i = 0; i < len; ++i)
            ASSERT_EQ(aLawOf(samples[first + i]), bytes[i]) << samples[first + i];
        ASSERT_EQ(tarnStsNoErr, tarnsLinToMuLaw_16s8u(samples.data() + first, bytes.data(), static_cast<int>(len)));
        for (std::size_t i = 0; i < len; ++i)
            ASSERT_EQ(muLawOf(samples[first + i]), bytes[i]) << samples[first + i];
    }
}

// -- Floats -----------------------------------------------------------------------------------------------------------

// Whole samples, halves and their neighbours, over the ends of all segments and around zero.
std::vector<Tarn32f> floats()
{
    std::vector<Tarn32f> values = hardValues<Tarn32f>();
    std::vector<int> samples = {0, 1, 2, 7, 32766, 32767, 32768, 32769};
    for (int end = 31; end < 32768; end = 2 * end + 1)
        for (int s = end - 2; s <= end + 2; ++s)
            samples.push_back(s);
    for (int s = 9; s < 32768; s += 101)
        samples.push_back(s);
    for (const int s : samples) {
        for (const float offset : {0.0F, 0.25F, 0.5F, 0.75F}) {
            const float v = static_cast<float>(s) + offset;
            for (const float x : {std::nextafter(v, 0.0F), v, std::nextafter(v, inf32)})
                for (const float sign : {1.0F, -1.0F})
                    values.push_back(sign * x / 32768);
        }
    }
    return values;
}

constexpr std::uint32_t maskedExceptions = 0x1F80;
constexpr std::uint32_t denormalsAreZero = 0x0040;
constexpr std::uint32_t flushToZero = 0x8000;

TEST(Law, FloatsAsBytes)
{
    const Columns<Tarn32f> columns{floats()};
    for (std::uint32_t mode = 0; mode < 4; ++mode) {
        for (const std::uint32_t further : {0U, denormalsAreZero | flushToZero}) {
            const std::uint32_t word = maskedExceptions | mode << 13 | further;
            const MxcsrScope scope(word);
            const Depth depth = word == maskedExceptions ? Depth::full : Depth::quick;
            sweepElementwise<Tarn8u, Tarn32f>(
                tarnsLinToALaw_32f8u, [](Tarn32f x) { return aLawOf(sampleOf(x)); },
                {.name = "A-law under " + std::to_string(word), .depth = depth}, columns);
            sweepElementwise<Tarn8u, Tarn32f>(
                tarnsLinToMuLaw_32f8u, [](Tarn32f x) { return muLawOf(sampleOf(x), x >= 0); },
                {.name = "mu-law under " + std::to_string(word), .depth = depth}, columns);
        }
    }
}

// -- Single values ----------------------------------------------------------------------------------------------------

template <class D, class S>
D one(TarnStatus (*call)(const S*, D*, int), S value)
{
    D result{};
    EXPECT_EQ(tarnStsNoErr, call(&value, &result, 1));
    return result;
}

// The value in the first vector of many, and beyond the last one.
template <class D, class S>
void expectOne(D expected, TarnStatus (*call)(const S*, D*, int), std::type_identity_t<S> value)
{
    EXPECT_EQ(expected, one(call, value));
    std::vector<S> values(19, value);
    std::vector<D> results(values.size());
    EXPECT_EQ(tarnStsNoErr, call(values.data(), results.data(), static_cast<int>(values.size())));
    EXPECT_EQ(std::vector<D>(values.size(), expected), results);
}

TEST(Law, KnownValues)
{
    expectOne<Tarn16s>(-5504, tarnsALawToLin_8u16s, 0);
    expectOne<Tarn16s>(5504, tarnsALawToLin_8u16s, 128);
    expectOne<Tarn16s>(-32124, tarnsMuLawToLin_8u16s, 0);
    expectOne<Tarn16s>(32124, tarnsMuLawToLin_8u16s, 128);
    expectOne<Tarn16s>(0, tarnsMuLawToLin_8u16s, 0x7F);
    expectOne<Tarn16s>(0, tarnsMuLawToLin_8u16s, 0xFF);
    expectOne<Tarn32f>(8 * 0x1p-15F, tarnsALawToLin_8u32f, 0xD5);
    expectOne<Tarn32f>(-8 * 0x1p-15F, tarnsALawToLin_8u32f, 0x55);

    expectOne<Tarn8u>(0xD5, tarnsLinToALaw_16s8u, 0);
    expectOne<Tarn8u>(0x55, tarnsLinToALaw_16s8u, -1);
    expectOne<Tarn8u>(0xAA, tarnsLinToALaw_16s8u, 32767);
    expectOne<Tarn8u>(0x2A, tarnsLinToALaw_16s8u, -32768);
    expectOne<Tarn8u>(0xFF, tarnsLinToMuLaw_16s8u, 0);
    expectOne<Tarn8u>(0x7F, tarnsLinToMuLaw_16s8u, -1);
    expectOne<Tarn8u>(0x80, tarnsLinToMuLaw_16s8u, 32767);
    expectOne<Tarn8u>(0x00, tarnsLinToMuLaw_16s8u, -32768);
}

TEST(Law, FloatsOfNoMagnitudeAndOfTooMuch)
{
    expectOne<Tarn8u>(0xAA, tarnsLinToALaw_32f8u, 1.0F);
    expectOne<Tarn8u>(0xAA, tarnsLinToALaw_32f8u, inf32);
    expectOne<Tarn8u>(0x2A, tarnsLinToALaw_32f8u, -1.0F);
    expectOne<Tarn8u>(0x2A, tarnsLinToALaw_32f8u, -3e38F);
    expectOne<Tarn8u>(0xD5, tarnsLinToALaw_32f8u, -0.0F);
    expectOne<Tarn8u>(0xD5, tarnsLinToALaw_32f8u, -0x1p-17F);
    expectOne<Tarn8u>(0x80, tarnsLinToMuLaw_32f8u, 1.0F);
    expectOne<Tarn8u>(0x80, tarnsLinToMuLaw_32f8u, 3e38F);
    expectOne<Tarn8u>(0x00, tarnsLinToMuLaw_32f8u, -1.0F);
    expectOne<Tarn8u>(0x00, tarnsLinToMuLaw_32f8u, -inf32);
    expectOne<Tarn8u>(0xFF, tarnsLinToMuLaw_32f8u, -0.0F);
    expectOne<Tarn8u>(0x7F, tarnsLinToMuLaw_32f8u, -0x1p-17F); // the sample 0, with the float's sign
    for (const float nan : {nan32, -nan32}) {
        expectOne<Tarn8u>(0xD5, tarnsLinToALaw_32f8u, nan);
        expectOne<Tarn8u>(0x7F, tarnsLinToMuLaw_32f8u, nan);
    }
}

TEST(Law, BytesSurviveTheWayThroughSamples)
{
    for (int byte = 0; byte < 256; ++byte) {
        const auto b = static_cast<Tarn8u>(byte);
        EXPECT_EQ(b, one(tarnsLinToALaw_16s8u, one(tarnsALawToLin_8u16s, b)));
        EXPECT_EQ(b, one(tarnsLinToALaw_32f8u, one(tarnsALawToLin_8u32f, b)));
        const auto expected = static_cast<Tarn8u>(byte == 0x7F ? 0xFF : byte);
        EXPECT_EQ(expected, one(tarnsLinToMuLaw_16s8u, one(tarnsMuLawToLin_8u16s, b)));
        EXPECT_EQ(expected, one(tarnsLinToMuLaw_32f8u, one(tarnsMuLawToLin_8u32f, b)));
    }
}

// -- Beside sox -------------------------------------------------------------------------------------------------------

template <class D, class S>
std::vector<D> convertedBySox(const std::string& from, const std::vector<S>& values, const std::string& to)
{
    std::string input = ::testing::TempDir() + "tarns_law_XXXXXX";
    const int descriptor = mkstemp(input.data());
    EXPECT_GE(descriptor, 0) << input;
    std::FILE* file = fdopen(descriptor, "wb");
    EXPECT_EQ(values.size(), std::fwrite(values.data(), sizeof(S), values.size(), file));
    std::fclose(file);

    const std::string raw = " -t raw -r 8000 -c 1 ";
    std::FILE* pipe = popen(("sox -D -V1" + raw + from + " '" + input + "'" + raw + to + " -").c_str(), "r");
    std::vector<D> converted(values.size() + 1);
    converted.resize(std::fread(converted.data(), sizeof(D), converted.size(), pipe));
    EXPECT_EQ(0, pclose(pipe));
    std::remove(input.c_str());
    return converted;
}

struct Law {
    const char* format;
    TarnStatus (*decode)(const Tarn8u* bytes, Tarn16s* samples, int len);
    TarnStatus (*encode)(const Tarn16s* samples, Tarn8u* bytes, int len);
    int coarser; // what 16 bits are divided by
    int complement;
    int different;
};

// Where sox has fewer bits than 16 it rounds them to nearest, halves up; here the lower bits are dropped, as the
// Recommendation's own software does. So its intervals lie half a step lower. In mu-law it negates negative samples,
// where the one's complement is taken here: there its intervals end a step earlier.
int sampleWithTheCodeOfSox(int s, const Law& law)
{
    const int highest = 32768 / law.coarser - 1;
    const int rounded = std::min((s + 32768 + law.coarser / 2) / law.coarser - highest - 1, highest);
    return std::max(rounded * law.coarser - (rounded < 0 ? law.complement : 0), -32768);
}

TEST(Law, DecodesAndCodesBesideSox)
{
    if (std::system("command -v sox >/dev/null") != 0)
        GTEST_SKIP() << "no sox";
    std::vector<Tarn8u> bytes(256);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<Tarn8u>(i);
    std::vector<Tarn16s> samples(65536);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<Tarn16s>(static_cast<int>(i) - 32768);

    const Law laws[] = {{"-e a-law -b 8", tarnsALawToLin_8u16s, tarnsLinToALaw_16s8u, 8, 0, 1020},
                        {"-e mu-law -b 8", tarnsMuLawToLin_8u16s, tarnsLinToMuLaw_16s8u, 4, 1, 510}};
    for (const Law& law : laws) {
        SCOPED_TRACE(law.format);
        std::vector<Tarn16s> decoded(bytes.size());
        ASSERT_EQ(tarnStsNoErr, law.decode(bytes.data(), decoded.data(), 256));
        EXPECT_EQ(convertedBySox<Tarn16s>(law.format, bytes, "-e signed -b 16"), decoded);

        std::vector<Tarn8u> coded(samples.size());
        ASSERT_EQ(tarnStsNoErr, law.encode(samples.data(), coded.data(), 65536));
        const auto bySox = convertedBySox<Tarn8u>("-e signed -b 16", samples, law.format);
        ASSERT_EQ(samples.size(), bySox.size());
        int different = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const int sample = sampleWithTheCodeOfSox(samples[i], law);
            ASSERT_EQ(coded[static_cast<std::size_t>(sample + 32768)], bySox[i]) << samples[i];
            different += coded[i] != bySox[i] ? 1 : 0;
        }
        EXPECT_EQ(law.different, different);
    }
}

TEST(Law, ChecksInOrder)
{
    expectChecks(tarnsALawToLin_8u16s);
    expectChecks(tarnsALawToLin_8u32f);
    expectChecks(tarnsMuLawToLin_8u16s);
    expectChecks(tarnsMuLawToLin_8u32f);
    expectChecks(tarnsLinToALaw_16s8u);
    expectChecks(tarnsLinToALaw_32f8u);
    expectChecks(tarnsLinToMuLaw_16s8u);
    expectChecks(tarnsLinToMuLaw_32f8u);
    expectChecks(tarnsALawToMuLaw_8u);
    expectChecks(tarnsMuLawToALaw_8u);
}

} // namespace
} // namespace tarn::test
