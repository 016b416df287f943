// Coefficients of the vector approximations, the constant first, and what arguments are reduced by: made by
// scripts/polynomials, not to be edited by hand. A fit's largest error, relative to the function, stands beside it.
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

// atan(t) = t + t z P(z), z = t^2, |t| <= 0.64.
template <typename T>
inline constexpr T arctangentCoefficients[1] = {};
template <>
inline constexpr Tarn32f arctangentCoefficients<Tarn32f>[] = { // within 2^-27.5
    -0x1.55551ep-2F, 0x1.998462p-3F, -0x1.233242p-3F, 0x1.b1964p-4F,
    -0x1.1abe62p-4F, 0x1.afa41ep-6F,
};
template <>
inline constexpr Tarn64f arctangentCoefficients<Tarn64f>[] = { // within 2^-60.6
    -0x1.555555555554dp-2, 0x1.999999999891p-3, -0x1.2492492435a36p-3, 0x1.c71c71a617805p-4,
    -0x1.745d13c172241p-4, 0x1.3b1372842fbadp-4, -0x1.110e0be9418b3p-4, 0x1.e1ac8210013bep-5,
    -0x1.adce6266ea9e7p-5, 0x1.7f92a62a8b4d3p-5, -0x1.4c925b6fb0f15p-5, 0x1.0773e8f45dd35p-5,
    -0x1.57b1aed309c88p-6, 0x1.39a85a7bca5dap-7, -0x1.210a395b9c73bp-9,
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

// cbrt(m), 1 <= m <= 8: where Newton's steps begin.
template <typename T>
inline constexpr T cubeRootCoefficients[1] = {};
template <>
inline constexpr Tarn32f cubeRootCoefficients<Tarn32f>[] = { // within 2^-9.1
    0x1.413196p-1F, 0x1.cbebap-2F, -0x1.570bdcp-4F, 0x1.39e924p-7F,
    -0x1.c4d93cp-12F,
};

// ln 2: the product of the first part and an exponent is exact.
template <typename T>
inline constexpr T logOfTwo[1] = {};
template <>
inline constexpr Tarn32f logOfTwo<Tarn32f>[] = {0x1.62e4p-1F, 0x1.7f7d1cp-20F};
template <>
inline constexpr Tarn64f logOfTwo<Tarn64f>[] = {0x1.62e42fefa4p-1, -0x1.8432a1b0e2634p-43};

// Pi / 4: the product of the first part and up to 4 is exact.
template <typename T>
inline constexpr T eighthTurn[1] = {};
template <>
inline constexpr Tarn32f eighthTurn<Tarn32f>[] = {0x1.921fb8p-1F, -0x1.5dde98p-24F};
template <>
inline constexpr Tarn64f eighthTurn<Tarn64f>[] = {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55};

// Pi / 2: products of all parts but the last with up to 11 bits, in double precision 20, are exact.
template <typename T>
inline constexpr T quarterTurn[1] = {};
template <>
inline constexpr Tarn32f quarterTurn<Tarn32f>[] = {0x1.922p+0F, -0x1.2afp-18F, 0x1.0b4p-34F, 0x1.84698ap-48F};
template <>
inline constexpr Tarn64f quarterTurn<Tarn64f>[] = {0x1.921fb544p+0, 0x1.0b4611a6p-34, 0x1.3198a2ep-69, 0x1.b839a252049c1p-104};

// clang-format on

} // namespace tarn
