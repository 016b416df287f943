// Floating-point control of the calling thread: the x87 control and status words, MXCSR, and the symbolic word.
#include "frame/simd_control.h"
#include "tarncore.h"

#include <cstring>

using namespace tarn;

namespace {

// Where a bit of the symbolic word stands in the x87 control word (a mask) and status word (a flag) alike.
struct SymbolBit {
    unsigned int x87;
    unsigned int symbol;
};

constexpr SymbolBit exceptionBits[] = {
    {1u << 0, TARN_FP_MASK_INVALID},  {1u << 1, TARN_FP_MASK_DENORMAL},  {1u << 2, TARN_FP_MASK_ZERODIV},
    {1u << 3, TARN_FP_MASK_OVERFLOW}, {1u << 4, TARN_FP_MASK_UNDERFLOW}, {1u << 5, TARN_FP_MASK_INEXACT},
};

constexpr unsigned int affineInfinity = 1u << 12;
constexpr unsigned int precisionField = 3u << 8;
constexpr unsigned int precision24 = 0u << 8;
constexpr unsigned int precision53 = 2u << 8;
constexpr unsigned int precision64 = 3u << 8;
constexpr int roundingX87 = 10; // both rounding fields count nearest, down, up, to zero
constexpr int roundingSymbol = 8;

constexpr unsigned int mxcsrDefault = 0x1F80u; // all exceptions masked, round to nearest, flags clear

constexpr unsigned int merged(unsigned int old, unsigned int value, unsigned int mask)
{
    return (old & ~mask) | (value & mask);
}

unsigned int readStatusWord()
{
    unsigned short word;
    __asm__ __volatile__("fnstsw %0" : "=a"(word));
    return word;
}

void clearExceptions() { __asm__ __volatile__("fnclex" : : : "memory"); }

} // namespace

TarnStatus tarnCoreSetFlushToZero(int /*value*/, void* /*pUMask*/) { return tarnStsCpuNotSupportedErr; }

TarnStatus tarnSetFlushToZero(int value, void* pUMask) { return tarnCoreSetFlushToZero(value, pUMask); }

TarnStatus tarnCoreSetDenormAreZeros(int /*value*/) { return tarnStsCpuNotSupportedErr; }

TarnStatus tarnSetDenormAreZeros(int value) { return tarnCoreSetDenormAreZeros(value); }

unsigned int sw_bit2symbol(unsigned int word)
{
    unsigned int symbols = 0;
    for (const SymbolBit& exception : exceptionBits)
        symbols |= word & exception.x87 ? exception.symbol : 0u;
    return symbols;
}

unsigned int bit2symbol(unsigned int word)
{
    unsigned int symbols = sw_bit2symbol(word);
    symbols |= (word >> roundingX87 & 3u) << roundingSymbol;
    if ((word & precisionField) == precision24)
        symbols |= TARN_FP_PREC_24;
    else if ((word & precisionField) == precision53)
        symbols |= TARN_FP_PREC_53;
    if (word & affineInfinity)
        symbols |= TARN_FP_INFINITY_AFFINE;
    return symbols;
}

unsigned int symbol2bit(unsigned int word)
{
    unsigned int control = (word >> roundingSymbol & 3u) << roundingX87;
    for (const SymbolBit& exception : exceptionBits)
        control |= word & exception.symbol ? exception.x87 : 0u;
    if (word & TARN_FP_PREC_24)
        control |= precision24;
    else
        control |= word & TARN_FP_PREC_53 ? precision53 : precision64;
    if (word & TARN_FP_INFINITY_AFFINE)
        control |= affineInfinity;
    return control;
}

unsigned int tarn_control87(unsigned int value, unsigned int mask)
{
    const unsigned int symbols = merged(bit2symbol(readX87Control()), value, mask);
    if (mask != 0) // a mere query must not normalise a reserved precision field
        writeX87Control(symbol2bit(symbols));
    return symbols;
}

unsigned int tarn_status87(void) { return sw_bit2symbol(readStatusWord()); }

unsigned int tarn_clear87(void) { return sw_bit2symbol(ps_clear_fpu()); }

unsigned int ps_set_cw_fpu(unsigned int value, unsigned int mask)
{
    const unsigned int old = readX87Control();
    writeX87Control(merged(old, value, mask));
    return old;
}

unsigned int ps_get_cw_fpu(void) { return readX87Control(); }

unsigned int ps_get_sw_fpu(void) { return readStatusWord(); }

unsigned int ps_clear_fpu(void)
{
    const unsigned int old = readStatusWord();
    clearExceptions();
    return old;
}

unsigned int ps_set_ssx(unsigned int value, unsigned int mask)
{
    const unsigned int old = readMxcsr();
    writeMxcsr(merged(old, value, mask));
    return old;
}

unsigned int ps_get_ssx(void) { return readMxcsr(); }

unsigned int tarn_clear_ssx(void)
{
    const unsigned int old = readMxcsr();
    writeMxcsr(mxcsrDefault);
    return old;
}

unsigned int tarn_set_rcpc_fpu(unsigned int value, unsigned int mask)
{
    const unsigned int old = readX87Control();
    if ((old & mask) != value)
        writeX87Control(merged(old, value, mask));
    return old;
}

void tarn_set_cw_fpu(unsigned int value) { writeX87Control(value); }

unsigned int tarn_set_rc_ssx(unsigned int value)
{
    const unsigned int old = readMxcsr();
    const unsigned int wanted = merged(old, value, mxcsrRoundingField);
    if (wanted != old)
        writeMxcsr(wanted);
    return old;
}

void tarn_set_cw_ssx(unsigned int value) { writeMxcsr(value); }

int tarn_tst_daz_ssx(void)
{
    constexpr int maskOffset = 28;
    constexpr unsigned int denormalsAreZero = 1u << 6;

    // Processors that predate the mask word leave it alone, so that it reads as 0 without the mode.
    alignas(16) unsigned char image[512] = {};
    __asm__ __volatile__("fxsave %0" : "+m"(image));
    unsigned int mask;
    std::memcpy(&mask, image + maskOffset, sizeof mask);
    return (mask & denormalsAreZero) != 0;
}
