// Status codes and their texts, the version record.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <map>
#include <string>

#include "tarns.h"

namespace {

struct GoldenStatus {
    int code;
    TarnStatus named;
    const char* text;
};

constexpr GoldenStatus golden[] = {
#include "data/status_codes.inc"
};

TEST(Status, NamesHaveTheirCodes)
{
    for (const GoldenStatus& entry : golden)
        EXPECT_EQ(entry.named, entry.code) << entry.text;
}

TEST(Status, TableIsDenseButForTheGaps)
{
    ASSERT_EQ(std::size(golden), 199u);
    std::map<int, const char*> codes;
    for (const GoldenStatus& entry : golden)
        codes[entry.code] = entry.text;
    EXPECT_EQ(codes.size(), 199u);
    for (int code = -178; code <= 28; ++code) {
        const bool gap = code == -1 || code == -3 || code == -68 || (code <= -84 && code >= -89) || code == -165;
        EXPECT_EQ(codes.contains(code), !gap) << code;
    }
    EXPECT_TRUE(codes.contains(-9998));
    EXPECT_TRUE(codes.contains(-9999));
}

TEST(Status, EveryIntegerHasItsText)
{
    std::map<int, std::string> texts;
    for (const GoldenStatus& entry : golden)
        texts[entry.code] = entry.text;
    const auto check = [&](int code) {
        const auto found = texts.find(code);
        const std::string expected = found == texts.end() ? "Unknown Status Code" : found->second;
        EXPECT_EQ(tarnGetStatusString(code), expected) << code;
        EXPECT_STREQ(tarnCoreGetStatusString(code), expected.c_str()) << code;
    };
    for (int code = -12000; code <= 12000; ++code)
        check(code);
    for (const GoldenStatus& entry : golden) {
        check(entry.code ^ 0x10000); // only all 32 bits make a code
        check(entry.code ^ INT_MIN);
    }
    for (int code : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX})
        check(code);
}

TEST(Status, KnownTexts)
{
    EXPECT_STREQ(tarnGetStatusString(0), "No error, it's OK");
    for (int gap : {-1, -3, -68, -84, -165, 29})
        EXPECT_STREQ(tarnGetStatusString(gap), "Unknown Status Code") << gap;
    EXPECT_STREQ(tarnGetStatusString(-9998), "The target cpu is not supported");
    EXPECT_STREQ(tarnGetStatusString(tarnStsLpStabilityLow),
                 "Quantized LP syntethis filter stability check is applied at the low boundary of [0,pi]");
    EXPECT_STREQ(tarnGetStatusString(tarnStsCompromisedKeyErr),
                 "A compromised key causes suspansion of requested cryptographic operation");
    EXPECT_STREQ(tarnGetStatusString(tarnStsFrameWidthErr), "Frame width is less then 8");
}

TEST(Status, TextsAreConstant)
{
    for (const GoldenStatus& entry : golden)
        EXPECT_EQ(tarnGetStatusString(entry.code), tarnGetStatusString(entry.code));
}

// This program is run with other levels' libraries too, and told so.
std::string levelMark()
{
    const char* const told = std::getenv("TARNS_LEVEL_MARK");
    return told != nullptr ? told : TARNS_LEVEL_MARK;
}

TEST(Version, FieldsOfTheRecord)
{
    const TarnLibraryVersion* version = tarnsGetLibVersion();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->major, 4);
    EXPECT_EQ(version->minor, 0);
    EXPECT_EQ(version->majorBuild, 19);
    EXPECT_EQ(version->build, 77);
    const std::string mark = levelMark();
    EXPECT_EQ(std::memcmp(version->targetCpu, (mark + '\0').c_str(), 4), 0);
    EXPECT_EQ(version->name, "libtarns" + mark + ".so");
    EXPECT_STREQ(version->version, "v4.0");
    EXPECT_STREQ(version->buildDate, "Oct 16 2003");
}

TEST(Version, LayoutOfTheRecord)
{
    EXPECT_EQ(offsetof(TarnLibraryVersion, major), 0u);
    EXPECT_EQ(offsetof(TarnLibraryVersion, minor), 4u);
    EXPECT_EQ(offsetof(TarnLibraryVersion, majorBuild), 8u);
    EXPECT_EQ(offsetof(TarnLibraryVersion, build), 12u);
    EXPECT_EQ(offsetof(TarnLibraryVersion, targetCpu), 16u);
    EXPECT_EQ(sizeof(TarnLibraryVersion::targetCpu), 4u);
    const std::size_t names = (20 + sizeof(void*) - 1) / sizeof(void*) * sizeof(void*);
    EXPECT_EQ(offsetof(TarnLibraryVersion, name), names);
    EXPECT_EQ(offsetof(TarnLibraryVersion, version), names + sizeof(void*));
    EXPECT_EQ(offsetof(TarnLibraryVersion, buildDate), names + 2 * sizeof(void*));
}

TEST(Version, OneRecordPrivateToItsUnit)
{
    EXPECT_EQ(tarnsGetLibVersion(), tarnsGetLibVersion());
    EXPECT_EQ(dlsym(RTLD_DEFAULT, "s_LibVer"), nullptr);
    EXPECT_NE(dlsym(RTLD_DEFAULT, "tarnsGetLibVersion"), nullptr);
}

TEST(VersionDeathTest, RecordIsReadOnly)
{
    auto* record = const_cast<TarnLibraryVersion*>(tarnsGetLibVersion());
    EXPECT_DEATH(*const_cast<volatile int*>(&record->major) = 5, "");
}

} // namespace
