// Floating-point control: the symbolic word, the x87 words, MXCSR.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>

#include "tarns.h"

namespace {

std::uint32_t readCw()
{
    std::uint16_t word;
    __asm__ __volatile__("fnstcw %0" : "=m"(word));
    return word;
}

void writeCw(std::uint32_t value)
{
    const auto word = static_cast<std::uint16_t>(value);
    __asm__ __volatile__("fldcw %0" : : "m"(word));
}

std::uint32_t readSw()
{
    std::uint16_t word;
    __asm__ __volatile__("fnstsw %0" : "=m"(word));
    return word;
}

std::uint32_t readMxcsr()
{
    std::uint32_t word;
    __asm__ __volatile__("stmxcsr %0" : "=m"(word));
    return word;
}

void writeMxcsr(std::uint32_t word) { __asm__ __volatile__("ldmxcsr %0" : : "m"(word)); }

// Loads exception flags into the x87 unit through its environment, so that any set of them can stand there.
void raiseX87(std::uint32_t flags)
{
    std::uint16_t environment[14];
    __asm__ __volatile__("fnstenv %0" : "=m"(environment));
    environment[0] |= 0x3F; // a pending unmasked exception would stop the next instruction
    environment[2] = static_cast<std::uint16_t>((environment[2] & ~0x3Fu) | flags);
    __asm__ __volatile__("fldenv %0" : : "m"(environment));
}

// Every test starts from the default environment and leaves it behind.
class FpControl : public testing::Test {
protected:
    FpControl() { reset(); }
    ~FpControl() override { reset(); }
    static void reset()
    {
        __asm__ __volatile__("fninit");
        writeMxcsr(0x1F80);
    }
};

struct Row {
    std::uint32_t symbol;
    int x87Bit;
};

constexpr Row exceptionRows[] = {{0x10, 0}, {0x8, 2}, {0x4, 3}, {0x2, 4}, {0x1, 5}, {0x80000, 1}};

std::uint32_t modelStatus(std::uint32_t word)
{
    std::uint32_t symbols = 0;
    for (const Row& row : exceptionRows)
        if (word >> row.x87Bit & 1)
            symbols += row.symbol;
    return symbols;
}

std::uint32_t modelControl(std::uint32_t word)
{
    constexpr std::uint32_t rounding[] = {0, 0x100, 0x200, 0x300};
    constexpr std::uint32_t precision[] = {0x20000, 0, 0x10000, 0};
    return modelStatus(word) + rounding[word / 1024 % 4] + precision[word / 256 % 4] +
           (word / 4096 % 2 ? 0x40000u : 0u);
}

std::uint32_t modelWord(std::uint32_t symbols)
{
    std::uint32_t word = 0;
    for (const Row& row : exceptionRows)
        if (symbols & row.symbol)
            word += std::uint32_t{1} << row.x87Bit;
    const bool down = symbols & 0x100, up = symbols & 0x200;
    word += (down && up ? 3u : up ? 2u : down ? 1u : 0u) * 1024;
    const bool single = symbols & 0x20000, twice = symbols & 0x10000;
    word += (single ? 0u : twice ? 2u : 3u) * 256;
    if (symbols & 0x40000)
        word += 4096;
    return word;
}

constexpr std::uint32_t everySymbol = 0x1F | 0x300 | 0xF0000;

// The i-th of the 2^11 symbolic words.
std::uint32_t symbolicWord(std::uint32_t i) { return (i & 0x1F) | (i >> 5 & 3) << 8 | (i >> 7 & 0xF) << 16; }

TEST_F(FpControl, NamesOfTheBits)
{
    EXPECT_EQ(TARN_FP_MASK_INVALID, 0x10);
    EXPECT_EQ(TARN_FP_MASK_ZERODIV, 0x8);
    EXPECT_EQ(TARN_FP_MASK_OVERFLOW, 0x4);
    EXPECT_EQ(TARN_FP_MASK_UNDERFLOW, 0x2);
    EXPECT_EQ(TARN_FP_MASK_INEXACT, 0x1);
    EXPECT_EQ(TARN_FP_MASK_DENORMAL, 0x80000);
    EXPECT_EQ(TARN_FP_ROUND_DOWN, 0x100);
    EXPECT_EQ(TARN_FP_ROUND_UP, 0x200);
    EXPECT_EQ(TARN_FP_ROUND_CHOP, 0x300);
    EXPECT_EQ(TARN_FP_PREC_24, 0x20000);
    EXPECT_EQ(TARN_FP_PREC_53, 0x10000);
    EXPECT_EQ(TARN_FP_INFINITY_AFFINE, 0x40000);
}

TEST_F(FpControl, MappingOfEveryWord)
{
    for (std::uint32_t word = 0; word < 0x10000; ++word) {
        ASSERT_EQ(bit2symbol(word), modelControl(word)) << std::hex << word;
        ASSERT_EQ(sw_bit2symbol(word), modelStatus(word)) << std::hex << word;
    }
    for (std::uint32_t i = 0; i < 1u << 11; ++i) {
        const std::uint32_t symbols = symbolicWord(i);
        ASSERT_EQ(symbol2bit(symbols), modelWord(symbols)) << std::hex << symbols;
        ASSERT_EQ(symbol2bit(symbols | ~everySymbol), modelWord(symbols)) << std::hex << symbols;
    }
    EXPECT_EQ(bit2symbol(0x37F), 0x8001Fu);
    EXPECT_EQ(symbol2bit(0x8001F), 0x33Fu);
    EXPECT_EQ(symbol2bit(0x30000), 0u); // the lower precision wins
}

TEST_F(FpControl, Control87Merges)
{
    for (std::uint32_t start : {0x37Fu, 0x07Fu, 0x27Fu, 0xF7Fu, 0x1F7Fu, 0x360u, 0xB6Au})
        for (std::uint32_t i = 0; i < 1u << 11; ++i)
            for (std::uint32_t mask :
                 {0x1Fu, 0x300u, 0x30000u, 0x40000u, 0x80000u, everySymbol, 0xFFFFFFFFu, 0x10u, 0x100u, 0x20000u}) {
                const std::uint32_t value = symbolicWord(i);
                writeCw(start);
                const std::uint32_t expected = (modelControl(start) & ~mask) | (value & mask);
                const std::uint32_t result = tarn_control87(value, mask);
                const std::uint32_t word = readCw();
                ASSERT_EQ(result, expected) << std::hex << start << " " << value << " " << mask;
                ASSERT_EQ(word & ~0x40u, modelWord(expected)) << std::hex << start << " " << value << " " << mask;
            }
}

TEST_F(FpControl, Control87WithoutMaskOnlyReads)
{
    for (std::uint32_t i = 0; i < 1u << 13; ++i) {
        writeCw(i & ~0xC0u);
        const std::uint32_t before = readCw();
        ASSERT_EQ(tarn_control87(0xFFFFFFFF, 0), modelControl(before));
        ASSERT_EQ(tarn_control87(0, 0), modelControl(before));
        ASSERT_EQ(readCw(), before);
    }
}

TEST_F(FpControl, Control87Rounds)
{
    const auto roundHalf = [](unsigned int mode) {
        tarn_control87(mode, TARN_FP_ROUND_CHOP);
        volatile double source = -1.75;
        std::int32_t rounded;
        const double copy = source;
        __asm__ __volatile__("fldl %1\n\tfistpl %0" : "=m"(rounded) : "m"(copy));
        return rounded;
    };
    EXPECT_EQ(roundHalf(0), -2);
    EXPECT_EQ(roundHalf(TARN_FP_ROUND_DOWN), -2);
    EXPECT_EQ(roundHalf(TARN_FP_ROUND_UP), -1);
    EXPECT_EQ(roundHalf(TARN_FP_ROUND_CHOP), -1);
}

TEST_F(FpControl, StatusWordIsReadAndCleared)
{
    for (std::uint32_t flags = 0; flags < 64; ++flags) {
        SCOPED_TRACE(flags);
        raiseX87(flags);
        const std::uint32_t before = readSw();
        EXPECT_EQ(before & 0x3Fu, flags);
        EXPECT_EQ(ps_get_sw_fpu(), before);
        EXPECT_EQ(tarn_status87(), modelStatus(flags));
        EXPECT_EQ(readSw(), before);

        EXPECT_EQ(tarn_clear87(), modelStatus(flags));
        EXPECT_EQ(readSw() & 0x80FFu, 0u);

        raiseX87(flags);
        EXPECT_EQ(ps_clear_fpu(), before);
        EXPECT_EQ(readSw() & 0x80FFu, 0u);
    }
}

// A waiting read would deliver the pending exception as a signal.
TEST_F(FpControl, StatusWordIsReadWithoutWaiting)
{
    raiseX87(0x04);
    const std::uint32_t unmasked = 0x37B;
    writeCw(unmasked);
    const std::uint32_t status = ps_get_sw_fpu();
    const std::uint32_t symbols = tarn_status87();
    const std::uint32_t cleared = tarn_clear87();
    const std::uint32_t after = readSw();
    writeCw(0x37F);
    EXPECT_EQ(status & 0x3Fu, 0x04u);
    EXPECT_EQ(symbols, 0x8u);
    EXPECT_EQ(cleared, 0x8u);
    EXPECT_EQ(after & 0x3Fu, 0u);
}

TEST_F(FpControl, ControlWordMerges)
{
    for (std::uint32_t start : {0x37Fu, 0x27Fu, 0x07Fu, 0xF7Fu, 0x37Bu})
        for (std::uint32_t value : {0u, 0x37Fu, 0xC00u, 0x400u, 0x1F7Fu, 0xFFFFFFFFu})
            for (std::uint32_t mask : {0u, 0xC00u, 0x300u, 0xF00u, 0x3Fu, 0x1F3Fu, 0xFFFFFFFFu}) {
                writeCw(start);
                const std::uint32_t before = readCw();
                const std::uint32_t result = ps_set_cw_fpu(value, mask);
                const std::uint32_t after = readCw();
                EXPECT_EQ(result, before);
                EXPECT_EQ(after & 0x1F3Fu, ((before & ~mask) | (value & mask)) & 0x1F3Fu)
                    << std::hex << start << " " << value << " " << mask;
                EXPECT_EQ(ps_get_cw_fpu(), after);
            }
    tarn_set_cw_fpu(0xE7F);
    EXPECT_EQ(readCw(), 0xE7Fu);
    tarn_set_cw_fpu(0xFFFF037F); // the register has 16 bits
    EXPECT_EQ(readCw(), 0x37Fu);
}

TEST_F(FpControl, RoundingAndPrecisionOfX87)
{
    for (std::uint32_t start = 0; start < 16; ++start)
        for (std::uint32_t wanted = 0; wanted < 16; ++wanted)
            for (std::uint32_t mask : {0xF00u, 0xC00u, 0x300u, 0u}) {
                const std::uint32_t before = 0x7Fu | start << 8, value = (wanted << 8) & mask;
                writeCw(before);
                const std::uint32_t result = tarn_set_rcpc_fpu(value, mask);
                EXPECT_EQ(result, before);
                EXPECT_EQ(readCw(), (before & ~mask) | value) << std::hex << before << " " << value << " " << mask;
            }
}

TEST_F(FpControl, MxcsrMerges)
{
    for (std::uint32_t start : {0x1F80u, 0x1FBFu, 0x7F80u, 0x9F80u, 0x3FA1u})
        for (std::uint32_t value : {0u, 0x1F80u, 0x6000u, 0x2000u, 0x9FC0u, 0xFFFFu})
            for (std::uint32_t mask : {0u, 0x6000u, 0x3Fu, 0x8040u, 0x603Fu}) {
                writeMxcsr(start);
                const std::uint32_t result = ps_set_ssx(value, mask);
                const std::uint32_t after = readMxcsr();
                const std::uint32_t read = ps_get_ssx();
                reset();
                EXPECT_EQ(result, start);
                EXPECT_EQ(after, (start & ~mask) | (value & mask));
                EXPECT_EQ(read, after);
            }
    writeMxcsr(0x1F80);
    const std::uint32_t old = ps_set_ssx(0xFFFF7FBF, 0xFFFF); // of the value only what the mask lets through
    const std::uint32_t after = readMxcsr();
    reset();
    EXPECT_EQ(old, 0x1F80u);
    EXPECT_EQ(after, 0x7FBFu);
}

TEST_F(FpControl, MxcsrIsLoadedAndCleared)
{
    for (std::uint32_t word : {0x1F80u, 0x1FBFu, 0x7F80u, 0xFFFFu, 0xBFC1u}) {
        tarn_set_cw_ssx(word);
        const std::uint32_t loaded = readMxcsr();
        const std::uint32_t result = tarn_clear_ssx();
        const std::uint32_t cleared = readMxcsr();
        EXPECT_EQ(loaded, word);
        EXPECT_EQ(result, word);
        EXPECT_EQ(cleared, 0x1F80u);
    }
}

TEST_F(FpControl, RoundingOfMxcsr)
{
    for (std::uint32_t start : {0x1F80u, 0x3FBFu, 0x5F80u, 0x7F81u, 0xFFC0u})
        for (std::uint32_t value : {0u, 0x2000u, 0x4000u, 0x6000u}) {
            writeMxcsr(start);
            const std::uint32_t result = tarn_set_rc_ssx(value);
            const std::uint32_t after = readMxcsr();
            reset();
            EXPECT_EQ(result, start);
            EXPECT_EQ(after, (start & 0x9FFFu) | value) << std::hex << start << " " << value;
        }
}

TEST_F(FpControl, MxcsrRoundingTakesEffect)
{
    const auto rounded = [](unsigned int mode) {
        const unsigned int saved = tarn_set_rc_ssx(mode);
        float source = 2.5f;
        std::int32_t result;
        __asm__ __volatile__("cvtss2si %1, %0" : "=r"(result) : "m"(source));
        tarn_set_cw_ssx(saved);
        return result;
    };
    EXPECT_EQ(rounded(0x0000), 2);
    EXPECT_EQ(rounded(0x2000), 2);
    EXPECT_EQ(rounded(0x4000), 3);
    EXPECT_EQ(rounded(0x6000), 2);
    EXPECT_EQ(readMxcsr() & 0xFFC0u, 0x1F80u);
}

TEST_F(FpControl, DenormalsAreZeroSupport)
{
    struct alignas(16) Area {
        unsigned char bytes[512];
    } area{};
    __asm__ __volatile__("fxsave %0" : "+m"(area));
    std::uint32_t mask;
    std::memcpy(&mask, area.bytes + 28, 4);
    EXPECT_EQ(tarn_tst_daz_ssx(), mask != 0 && (mask & 0x40) != 0 ? 1 : 0);
}

TEST_F(FpControl, FlushToZeroIsNotOffered)
{
    unsigned int word = 0x1234;
    for (std::uint32_t mxcsr : {0x1F80u, 0x7FBFu, 0x9FC0u}) {
        writeMxcsr(mxcsr);
        const std::uint32_t cw = readCw();
        bool refused = true;
        for (int value : {0, 1, -1, 0x8000, 0x7FFFFFFF}) {
            for (void* mask : {static_cast<void*>(nullptr), static_cast<void*>(&word), reinterpret_cast<void*>(5)}) {
                refused = refused && tarnSetFlushToZero(value, mask) == -9998;
                refused = refused && tarnCoreSetFlushToZero(value, mask) == -9998;
            }
            refused = refused && tarnSetDenormAreZeros(value) == -9998;
            refused = refused && tarnCoreSetDenormAreZeros(value) == -9998;
        }
        const std::uint32_t after = readMxcsr();
        reset();
        EXPECT_TRUE(refused);
        EXPECT_EQ(after, mxcsr);
        EXPECT_EQ(readCw(), cw);
        EXPECT_EQ(word, 0x1234u);
    }
    EXPECT_EQ(tarnStsCpuNotSupportedErr, -9998);
}

} // namespace
