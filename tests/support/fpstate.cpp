// Reading and setting MXCSR and the x87 environment.
#include "support/fpstate.h"

#include <cstdio>

namespace tarn::test {
namespace {

constexpr std::uint32_t mxcsrFlags = 0x3F;
constexpr unsigned mxcsrRoundingShift = 13;
constexpr unsigned x87RoundingShift = 10;
constexpr unsigned roundingMask = 3;

void writeMxcsr(std::uint32_t value) { asm volatile("ldmxcsr %0" : : "m"(value) : "memory"); }

void writeX87Control(std::uint16_t value) { asm volatile("fldcw %0" : : "m"(value) : "memory"); }

} // namespace

std::uint32_t readMxcsr()
{
    std::uint32_t value = 0;
    asm volatile("stmxcsr %0" : "=m"(value) : : "memory");
    return value;
}

std::uint16_t readX87Control()
{
    std::uint16_t value = 0;
    asm volatile("fnstcw %0" : "=m"(value) : : "memory");
    return value;
}

RoundingModeScope::RoundingModeScope(RoundingMode mode) : savedMxcsr(readMxcsr()), savedControl(readX87Control())
{
    const unsigned bits = static_cast<unsigned>(mode);
    writeMxcsr((savedMxcsr & ~(roundingMask << mxcsrRoundingShift)) | (bits << mxcsrRoundingShift));
    writeX87Control(
        static_cast<std::uint16_t>((savedControl & ~(roundingMask << x87RoundingShift)) | (bits << x87RoundingShift)));
}

RoundingModeScope::~RoundingModeScope()
{
    writeMxcsr(savedMxcsr);
    writeX87Control(savedControl);
}

MxcsrScope::MxcsrScope(std::uint32_t mxcsr) : saved(readMxcsr()) { writeMxcsr(mxcsr); }

MxcsrScope::~MxcsrScope() { writeMxcsr(saved); }

FpState FpState::current()
{
    struct Environment {
        std::uint16_t control, reserved0;
        std::uint16_t status, reserved1;
        std::uint16_t tags, reserved2;
        std::uint32_t rest[4];
    } environment;
    // Storing the environment masks every x87 exception, so the control word, which comes first in it, is loaded again
    // at once.
    asm volatile("fnstenv %0\n\tfldcw %0" : "=m"(environment) : : "memory");
    return {readMxcsr() & ~mxcsrFlags, environment.control, environment.tags};
}

std::string FpState::changesSince() const
{
    const FpState now = current();
    if (now == *this)
        return {};
    char text[200];
    std::snprintf(text, sizeof text,
                  "MXCSR control bits %04x -> %04x, x87 control word %04x -> %04x, x87 tags %04x -> %04x", mxcsrControl,
                  now.mxcsrControl, x87Control, now.x87Control, x87Tags, now.x87Tags);
    return text;
}

} // namespace tarn::test
