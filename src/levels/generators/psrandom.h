// Kernels of the random generators: a congruential sequence and a subtract-with-borrow sequence to the modulus
// 2^32 - 18, added.
#pragma once

#include "frame/kernels.h"

#include <type_traits>

namespace tarn {

struct RandomSequence {
    Tarn32u lcg; // the congruential word
    Tarn32u s0;  // the lags of the other sequence, the newest first
    Tarn32u s1;
    Tarn32u s2;
    Tarn32s carry; // 0 or -1
};

RandomSequence randomFrom(Tarn32u seed);

// v = draw * span + mid.
struct UniformRange {
    double mid;
    double span;
};

// The range of 32-bit draws between two bounds, formed in extended precision, of doubles in their own.
template <typename T>
UniformRange uniformBetween(T low, T high)
{
    using Wide = std::conditional_t<std::is_same_v<T, Tarn64f>, double, long double>;
    const Wide lowest = low;
    const Wide highest = high;
    const Wide half = 0.5;
    const Wide perDraw = 0x1p-32;
    return {static_cast<double>((lowest + highest) * half), static_cast<double>((highest - lowest) * perDraw)};
}

// How doubles become integers: as the processor is set to round, or towards zero.
enum class ToInteger { rounded, truncated };

template <ToInteger toInteger, typename T>
void uniform(T* dst, int len, UniformRange range, RandomSequence& sequence);

// Normal numbers come in pairs. The first of a pair is given out at once; what makes the second one waits here.
struct WaitingNormal {
    Tarn32s isNone; // 1 if a new pair has to be drawn
    double factor;
    double second;
};

// The mean and the deviation are exact in their own type, in which the mean of floats is added.
template <typename T>
void normal(T* dst, int len, T mean, T stdDev, RandomSequence& sequence, WaitingNormal& waiting);

} // namespace tarn
