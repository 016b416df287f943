// When calls of FIR filters with floating taps are shared out to threads.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

// Calls of at most so many iterations are never shared out.
template <typename T>
inline constexpr int longestOnOneThread = isComplex<T> ? 800 : 1600;

// Nanoseconds of one thread for the product of a sample and a tap.
template <typename T>
inline constexpr double costOfProduct = isComplex<T> ? 3 * costOfProduct<Part<T>> : 0;
template <>
inline constexpr double costOfProduct<Tarn32f> = 0.08;
template <>
inline constexpr double costOfProduct<Tarn64f> = 0.16;

// Loading samples, converting and storing outputs is taken for so many products more.
inline constexpr int productsOfTraffic = 4;

template <typename State>
inline constexpr bool sameTypes = std::is_same_v<typename State::Tap, typename State::Sample>;

} // namespace tarn
