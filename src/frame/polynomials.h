// Coefficients of the vector approximations, the constant first; made by scripts/polynomials: not to be edited by
// hand. The largest error of a fit, relative to the function, stands beside it.
#pragma once

#include "tarncore.h"

namespace tarn {

// clang-format off

// exp(r) = 1 + r + r^2 P(r), |r| <= ln 2 / 2.
template <typename T>
inline constexpr T exponentialCoefficients[1] = {};
template <>
inline constexpr Tarn32f exponentialCoefficients<Tarn32f>[] = { // within 2^-28.2
    0x1p-1F, 0x1.55548ep-3F, 0x1.5554dap-5F, 0x1.123be2p-7F,
    0x1.6d5cfap-10F,
};
template <>
inline constexpr Tarn64f exponentialCoefficients<Tarn64f>[] = { // within 2^-57.9
    0x1.000000000000cp-1, 0x1.555555555555bp-3, 0x1.555555554fe03p-5, 0x1.111111110ec43p-7,
    0x1.6c16c18608463p-10, 0x1.a01a01b3e29d1p-13, 0x1.a01995b6459f8p-16, 0x1.71ddeeaecb361p-19,
    0x1.28b0fbb8dcaf7p-22, 0x1.af6ede12e33c7p-26,
};

// ln(1 + f) = f - f^2 / 2 + f^3 P(f), 1 / sqrt 2 <= 1 + f <= sqrt 2.
template <typename T>
inline constexpr T logarithmCoefficients[1] = {};
template <>
inline constexpr Tarn32f logarithmCoefficients<Tarn32f>[] = { // within 2^-27.3
    0x1.555554p-2F, -0x1.000226p-2F, 0x1.99a02p-3F, -0x1.54729p-3F,
    0x1.22d8c6p-3F, -0x1.0d818cp-3F, 0x1.05615ap-3F, -0x1.38d42cp-4F,
};

// 2 atanh(s) = 2 s + s z P(z), z = s^2, |s| <= (sqrt 2 - 1) / (sqrt 2 + 1).
template <typename T>
inline constexpr T areaTangentCoefficients[1] = {};
template <>
inline constexpr Tarn64f areaTangentCoefficients<Tarn64f>[] = { // within 2^-59.5
    0x1.5555555555592p-1, 0x1.999999997ff31p-2, 0x1.24924941df80fp-2, 0x1.c71c5215f9f9dp-3,
    0x1.74663c92883dep-3, 0x1.39a1f2100795ep-3, 0x1.2f035cd96cd8fp-3,
};

// atan(t) = t + t z P(z), z = t^2, |t| <= 1.
template <typename T>
inline constexpr T arctangentCoefficients[1] = {};
template <>
inline constexpr Tarn32f arctangentCoefficients<Tarn32f>[] = { // within 2^-28.5
    -0x1.55553ep-2F, 0x1.9991ecp-3F, -0x1.242118p-3F, 0x1.c0944p-4F,
    -0x1.582534p-4F, 0x1.da98eep-5F, -0x1.fe7578p-6F, 0x1.65489p-7F,
    -0x1.d58f5ap-10F,
};

// The same for |t| <= 0.66.
template <typename T>
inline constexpr T arctangentOfLessCoefficients[1] = {};
template <>
inline constexpr Tarn64f arctangentOfLessCoefficients<Tarn64f>[] = { // within 2^-59.4
    -0x1.5555555555544p-2, 0x1.99999999978d1p-3, -0x1.24924923e4374p-3, 0x1.c71c718c743d1p-4,
    -0x1.745d115f46ef2p-4, 0x1.3b134deb5e01bp-4, -0x1.110c8d9ea9456p-4, 0x1.e19697dc59ea1p-5,
    -0x1.ad5b7a6e291a4p-5, 0x1.7de219f1c3582p-5, -0x1.480ad57cab97p-5, 0x1.fe08551fad78p-6,
    -0x1.42f2176471fe3p-6, 0x1.1b5fcd2a650b5p-7, -0x1.f2a176811fe86p-10,
};

// sin(r) = r + r z P(z), z = r^2, |r| <= pi / 4.
template <typename T>
inline constexpr T sineCoefficients[1] = {};
template <>
inline constexpr Tarn32f sineCoefficients<Tarn32f>[] = { // within 2^-28.0
    -0x1.555546p-3F, 0x1.11077ep-7F, -0x1.9956a4p-13F,
};
template <>
inline constexpr Tarn64f sineCoefficients<Tarn64f>[] = { // within 2^-58.0
    -0x1.5555555555549p-3, 0x1.111111110f8a4p-7, -0x1.a01a019c159bcp-13, 0x1.71de357a7f5d7p-19,
    -0x1.ae5e680442ee2p-26, 0x1.5d936f66a9fd8p-33,
};

// cos(r) = 1 - z / 2 + z^2 P(z), z = r^2, |r| <= pi / 4.
template <typename T>
inline constexpr T cosineCoefficients[1] = {};
template <>
inline constexpr Tarn32f cosineCoefficients<Tarn32f>[] = { // within 2^-33.1
    0x1.55554ap-5F, -0x1.6c0c2ep-10F, 0x1.99eaccp-16F,
};
template <>
inline constexpr Tarn64f cosineCoefficients<Tarn64f>[] = { // within 2^-64.2
    0x1.555555555554cp-5, -0x1.6c16c16c15223p-10, 0x1.a01a019cbfe6cp-16, -0x1.27e4f81316be8p-22,
    0x1.1ee9f18d291d7p-29, -0x1.8fb149d79874cp-37,
};

// clang-format on

} // namespace tarn
