// Processor identification: the decision on made-up processors, the record against CPUID on this one.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>

#include "core/cpuid.h"
#include "tarns.h"

namespace {

struct Registers {
    std::uint32_t a, b, c, d;
};

Registers cpuid(std::uint32_t leaf)
{
    Registers r;
    __asm__ __volatile__("cpuid" : "=a"(r.a), "=b"(r.b), "=c"(r.c), "=d"(r.d) : "a"(leaf), "c"(0));
    return r;
}

bool bitOf(std::uint32_t word, int index) { return (word & (std::uint32_t{1} << index)) != 0; }

std::string vendor()
{
    const Registers r = cpuid(0);
    char text[12];
    std::memcpy(text, &r.b, 4);
    std::memcpy(text + 4, &r.d, 4);
    std::memcpy(text + 8, &r.c, 4);
    return {text, 12};
}

constexpr int poison = 0x5A5A5A5A;

TarnCpuIdent poisoned()
{
    TarnCpuIdent ident;
    for (int* field = &ident.family; field <= &ident.hasSse3; ++field)
        *field = poison;
    return ident;
}

TarnCpuIdent made(int family, int mmx, int sse, int sse2, int sse3, int htt)
{
    TarnCpuIdent ident = poisoned();
    ident.family = family;
    ident.hasMmx = mmx;
    ident.hasSsx = sse;
    ident.hasSse2 = sse2;
    ident.hasSse3 = sse3;
    ident.hasHtt = htt;
    return ident;
}

// The rows of the table of types; a row names only what it asks for.
int expectedType(int family, bool mmx, bool sse, bool sse2, bool sse3, bool htt)
{
    if (family == 5 && !mmx)
        return 1;
    if (family == 5 && mmx)
        return 2;
    if (family == 6 && sse2)
        return 9;
    if (family == 6 && sse)
        return 5;
    if (family == 6 && mmx)
        return 4;
    if (family == 6)
        return 3;
    if (family == 7)
        return 16;
    if (family == 15 && sse2 && sse3)
        return 8;
    if (family == 15 && sse2 && htt)
        return 7;
    if (family == 15 && sse2)
        return 6;
    if (family == 15 || family == 31)
        return 17;
    return 0;
}

TEST(CpuType, Names)
{
    EXPECT_EQ(tarnCpuUnknown, 0);
    EXPECT_EQ(tarnCpuF5, 1);
    EXPECT_EQ(tarnCpuF5Mmx, 2);
    EXPECT_EQ(tarnCpuF6, 3);
    EXPECT_EQ(tarnCpuF6Mmx, 4);
    EXPECT_EQ(tarnCpuF6Ssx, 5);
    EXPECT_EQ(tarnCpuF15Sse2, 6);
    EXPECT_EQ(tarnCpuF15Sse2Htt, 7);
    EXPECT_EQ(tarnCpuF15Sse3, 8);
    EXPECT_EQ(tarnCpuF6Sse2, 9);
    EXPECT_EQ(tarnCpuF7, 16);
    EXPECT_EQ(tarnCpuOther, 17);
}

TEST(CpuType, DecisionForEveryFamilyAndFeature)
{
    for (int family = 0; family <= 40; ++family)
        for (int features = 0; features < 32; ++features) {
            const int mmx = features & 1, sse = features >> 1 & 1, sse2 = features >> 2 & 1, sse3 = features >> 3 & 1,
                      htt = features >> 4;
            EXPECT_EQ(tarn::cpuType(made(family, mmx, sse, sse2, sse3, htt)),
                      expectedType(family, mmx, sse, sse2, sse3, htt))
                << "family " << family << " features " << features;
        }
}

TEST(CpuType, VendorIsComparedWhole)
{
    const auto leaf0 = [](const char* text) {
        tarn::CpuidWords words{13, 0, 0, 0};
        std::memcpy(&words.ebx, text, 4);
        std::memcpy(&words.edx, text + 4, 4);
        std::memcpy(&words.ecx, text + 8, 4);
        return words;
    };
    EXPECT_TRUE(tarn::isAuthentic(leaf0("AuthenticCPU")));
    for (std::size_t i = 0; i < 12; ++i) {
        std::string other = "AuthenticCPU";
        other[i] = static_cast<char>(other[i] ^ 0x20);
        EXPECT_FALSE(tarn::isAuthentic(leaf0(other.c_str()))) << other;
    }
    EXPECT_FALSE(tarn::isAuthentic(leaf0("AuthcCPUenti"))); // EBX, ECX, EDX is the wrong order
}

TEST(CpuType, ThisProcessor)
{
    TarnCpuIdent ident = poisoned();
    tarn_get_cpu_ident(&ident);
    const int expected = vendor() != "AuthenticCPU" ? 0
                                                    : expectedType(ident.family, ident.hasMmx, ident.hasSsx,
                                                                   ident.hasSse2, ident.hasSse3, ident.hasHtt);
    EXPECT_EQ(tarnGetCpuType(), expected);
    EXPECT_EQ(tarnCoreGetCpuType(), expected);
    EXPECT_EQ(tarn_is_AuthenticCPU(), vendor() == "AuthenticCPU" ? 1 : 0);
}

TEST(CpuIdent, LayoutIsThirteenIntegers)
{
    static_assert(sizeof(TarnCpuIdent) == 13 * 4);
    int index = 0;
    for (std::size_t offset :
         {offsetof(TarnCpuIdent, family), offsetof(TarnCpuIdent, stepping), offsetof(TarnCpuIdent, model),
          offsetof(TarnCpuIdent, type), offsetof(TarnCpuIdent, featureBits), offsetof(TarnCpuIdent, cacheDescA),
          offsetof(TarnCpuIdent, cacheDescD), offsetof(TarnCpuIdent, hasMmx), offsetof(TarnCpuIdent, reserved),
          offsetof(TarnCpuIdent, hasSsx), offsetof(TarnCpuIdent, hasSse2), offsetof(TarnCpuIdent, hasHtt),
          offsetof(TarnCpuIdent, hasSse3)})
        EXPECT_EQ(offset, static_cast<std::size_t>(4 * index++));
}

TEST(CpuIdent, FieldsOfThisProcessor)
{
    TarnCpuIdent ident = poisoned();
    tarn_get_cpu_ident(&ident);
    const Registers leaf1 = cpuid(1), leaf2 = cpuid(2);
    EXPECT_EQ(ident.family, static_cast<int>(leaf1.a / 256 % 16));
    EXPECT_EQ(ident.stepping, static_cast<int>(leaf1.a % 16));
    EXPECT_EQ(ident.model, static_cast<int>(leaf1.a / 16 % 16));
    EXPECT_EQ(ident.type, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(ident.featureBits), leaf1.d);
    EXPECT_EQ(static_cast<std::uint32_t>(ident.cacheDescA), leaf2.a);
    EXPECT_EQ(static_cast<std::uint32_t>(ident.cacheDescD), leaf2.d);
    EXPECT_EQ(ident.hasMmx, bitOf(leaf1.d, 23));
    EXPECT_EQ(ident.reserved, poison);
    EXPECT_EQ(ident.hasSsx, bitOf(leaf1.d, 25));
    EXPECT_EQ(ident.hasSse2, bitOf(leaf1.d, 26));
    EXPECT_EQ(ident.hasHtt, bitOf(leaf1.d, 28) && leaf1.b / 65536 % 256 > 1);
    EXPECT_EQ(ident.hasSse3, bitOf(leaf1.c, 0));
}

TEST(CpuIdent, EachBitOfTheLeaves)
{
    for (int bit = 0; bit < 32; ++bit) {
        SCOPED_TRACE(bit);
        const std::uint32_t word = std::uint32_t{1} << bit;
        TarnCpuIdent ident = poisoned();
        tarn::fillIdent(ident, {word, 0, 0, 0}, {word, ~word, ~word, ~word});
        EXPECT_EQ(static_cast<std::uint32_t>(ident.family), bit >= 8 && bit < 12 ? word >> 8 : 0);
        EXPECT_EQ(static_cast<std::uint32_t>(ident.model), bit >= 4 && bit < 8 ? word >> 4 : 0);
        EXPECT_EQ(static_cast<std::uint32_t>(ident.stepping), bit < 4 ? word : 0);
        EXPECT_EQ(ident.type, 0);
        EXPECT_EQ(static_cast<std::uint32_t>(ident.cacheDescA), word);
        EXPECT_EQ(static_cast<std::uint32_t>(ident.cacheDescD), ~word);
        EXPECT_EQ(ident.reserved, poison);

        tarn::fillIdent(ident, {0, 0x00020000, ~word, word}, {0, 0, 0, 0});
        EXPECT_EQ(static_cast<std::uint32_t>(ident.featureBits), word);
        EXPECT_EQ(ident.hasMmx, bit == 23);
        EXPECT_EQ(ident.hasSsx, bit == 25);
        EXPECT_EQ(ident.hasSse2, bit == 26);
        EXPECT_EQ(ident.hasHtt, bit == 28);
        EXPECT_EQ(ident.hasSse3, bit != 0);
    }
}

TEST(CpuIdent, HyperThreadingNeedsMoreThanOneProcessor)
{
    for (std::uint32_t count = 0; count < 256; ++count)
        for (std::uint32_t others : {0u, 0xFF00FFFFu})
            for (bool flag : {false, true}) {
                TarnCpuIdent ident = poisoned();
                tarn::fillIdent(ident, {0, count << 16 | others, 0, flag ? 0x10000000u : 0xEFFFFFFFu}, {0, 0, 0, 0});
                EXPECT_EQ(ident.hasHtt, flag && count > 1 ? 1 : 0) << count;
            }
}

TEST(CpuPrimitives, AgreeWithCpuid)
{
    const Registers leaf1 = cpuid(1);
    EXPECT_EQ(tarn_has_cpuid(), 1);
    EXPECT_EQ(tarn_max_cpuid_input(), cpuid(0).a);
    EXPECT_EQ(tarn_has_rdtsc(), bitOf(leaf1.d, 4));
    EXPECT_EQ(tarn_is_mmx_extension(), bitOf(leaf1.d, 23));
    EXPECT_EQ(tarn_is_ssx_extension(), bitOf(leaf1.d, 25));
    EXPECT_EQ(tarn_is_sse2_extension(), bitOf(leaf1.d, 26));
    EXPECT_EQ(tarn_is_htt_extension(), bitOf(leaf1.d, 28) && (leaf1.b >> 16 & 0xFF) > 1);
    EXPECT_EQ(tarn_is_sse3_extension(), bitOf(leaf1.c, 0));
}

TEST(CpuClocks, CountUpInSixtyFourBits)
{
    for (auto* clocks : {tarnGetCpuClocks, tarnCoreGetCpuClocks, tarn_get_cpu_counter}) {
        const unsigned long long before = __builtin_ia32_rdtsc();
        const unsigned long long read = clocks();
        const unsigned long long after = __builtin_ia32_rdtsc();
        EXPECT_GE(read, before);
        EXPECT_LE(read, after);
        EXPECT_NE(read, 0u);
    }
}

} // namespace
