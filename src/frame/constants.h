// Numbers of mathematics.
#pragma once

namespace tarn {

inline constexpr double pi = 3.14159265358979323846;
inline constexpr double twoPi = 6.283185307179586;

} // namespace tarn
