// Phases of the generators: their range, and where a call leaves the phase for the next one.
#pragma once

#include "frame/constants.h"
#include "frame/simd_round.h"

namespace tarn {

// False for a NaN.
constexpr bool isPhase(double x) { return x >= 0 && x < twoPi; }

// Frequencies in cycles per sample; a NaN passes.
constexpr bool isFrequency(double x) { return !(x < 0 || x >= 0.5); }

// The largest integer of at most x, for x below 2^52 in magnitude: adding 2^52 leaves no room for a fraction.
inline double floorBelow2To52(double x)
{
    const double noFraction = std::copysign(0x1p52, x);
    const double rounded = (x + noFraction) - noFraction;
    return rounded > x ? rounded - 1 : rounded;
}

// The phase after `len` samples, in turn a valid phase of the element type: what rounds up to a whole turn is 0.
template <Float T>
inline T advancedPhase(T phase, T freq, int len)
{
    double p = twoPi * freq * len + phase;
    p += floorBelow2To52(p * 0.15915494309189535) * -twoPi;
    if (p < 0 || p >= twoPi) {
        p = 0;
    }
    const T rounded = static_cast<T>(p);
    return rounded >= twoPi ? T{0} : rounded;
}

// The fixed-point parameters of the generators are in units of 2^-15. Their limits: half a cycle, a turn, half a turn.
inline constexpr int highestFrequencyQ15 = 16383;
inline constexpr int highestPhaseQ15 = 205886;
inline constexpr int highestAsymmetryQ15 = 102943;

constexpr double fromQ15(int value) { return value * 0x1p-15; }

// Rounds half away from zero, as adding one half and truncating does.
inline Tarn16s roundedHalfAway(double x) { return clampTo<Tarn16s>(truncateToInteger(x > 0 ? x + 0.5 : x - 0.5)); }

} // namespace tarn
