// Written by scripts/cpp-face from <tarns/exponential.h>; changes go there. Every function calls one of the C
// interface, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Takes the exponential of floats.
inline Warning exp(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsExp_32f, src, dst, detail::length);
}
inline Warning exp(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsExp_64f, src, dst, detail::length);
}
inline Warning exp(std::span<const float> src, std::span<double> dst)
{
    return detail::call(tarnsExp_32f64f, src, dst, detail::length);
}
inline Warning exp(std::span<float> srcDst) { return detail::call(tarnsExp_32f_I, srcDst, detail::length); }
inline Warning exp(std::span<double> srcDst) { return detail::call(tarnsExp_64f_I, srcDst, detail::length); }

// Takes the exponential of integers.
inline Warning exp(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsExp_16s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning exp(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsExp_32s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning exp(std::span<const std::int64_t> src, std::span<std::int64_t> dst, int scaleFactor)
{
    return detail::call(tarnsExp_64s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning exp(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsExp_16s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning exp(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsExp_32s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning exp(std::span<std::int64_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsExp_64s_ISfs, srcDst, detail::length, scaleFactor);
}

// Takes the natural logarithm of floats.
inline Warning ln(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsLn_32f, src, dst, detail::length);
}
inline Warning ln(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsLn_64f, src, dst, detail::length);
}
inline Warning ln(std::span<const double> src, std::span<float> dst)
{
    return detail::call(tarnsLn_64f32f, src, dst, detail::length);
}
inline Warning ln(std::span<float> srcDst) { return detail::call(tarnsLn_32f_I, srcDst, detail::length); }
inline Warning ln(std::span<double> srcDst) { return detail::call(tarnsLn_64f_I, srcDst, detail::length); }

// Takes the natural logarithm of integers.
inline Warning ln(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsLn_16s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning ln(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsLn_32s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning ln(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsLn_32s16s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning ln(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsLn_16s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning ln(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsLn_32s_ISfs, srcDst, detail::length, scaleFactor);
}

// Gives the decibels of a power.
inline Warning tenLog10(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarns10Log10_32s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning tenLog10(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarns10Log10_32s_ISfs, srcDst, detail::length, scaleFactor);
}

// Takes the arctangent.
inline Warning arctan(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsArctan_32f, src, dst, detail::length);
}
inline Warning arctan(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsArctan_64f, src, dst, detail::length);
}
inline Warning arctan(std::span<float> srcDst) { return detail::call(tarnsArctan_32f_I, srcDst, detail::length); }
inline Warning arctan(std::span<double> srcDst) { return detail::call(tarnsArctan_64f_I, srcDst, detail::length); }

} // namespace tarns
