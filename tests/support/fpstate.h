// The floating-point environment around a call: rounding modes set for a test, and proof that a call left no trace.
//
//     RoundingModeScope scope(RoundingMode::up);      // MXCSR and x87; restored at the end of the scope
//     const FpState before = FpState::current();
//     tarnsAdd_16s_Sfs(...);
//     EXPECT_EQ("", before.changesSince());           // the sweeps do this around every call
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarn::test {

/// The encodings of the rounding fields of MXCSR and of the x87 control word.
enum class RoundingMode : unsigned { nearest = 0, down = 1, up = 2, towardZero = 3 };

inline constexpr std::array allRoundingModes = {RoundingMode::nearest, RoundingMode::down, RoundingMode::up,
                                                RoundingMode::towardZero};

/// Sets the rounding mode of both floating-point units while it lives.
class RoundingModeScope {
public:
    explicit RoundingModeScope(RoundingMode mode);
    ~RoundingModeScope();
    RoundingModeScope(const RoundingModeScope&) = delete;
    RoundingModeScope& operator=(const RoundingModeScope&) = delete;

private:
    std::uint32_t savedMxcsr;
    std::uint16_t savedControl;
};

/// Sets MXCSR to a value while it lives, for instance with the exception flags cleared or denormals flushed.
class MxcsrScope {
public:
    explicit MxcsrScope(std::uint32_t mxcsr);
    ~MxcsrScope();
    MxcsrScope(const MxcsrScope&) = delete;
    MxcsrScope& operator=(const MxcsrScope&) = delete;

private:
    std::uint32_t saved;
};

std::uint32_t readMxcsr();
std::uint16_t readX87Control();

/// What a call has to leave as it found it: the control bits of MXCSR, the x87 control word, an empty x87 stack.
struct FpState {
    std::uint32_t mxcsrControl = 0;
    std::uint16_t x87Control = 0;
    std::uint16_t x87Tags = 0xFFFF;

    static FpState current();
    /// Empty if nothing changed since this state was taken; else what did.
    std::string changesSince() const;
    friend bool operator==(const FpState&, const FpState&) = default;
};

} // namespace tarn::test
