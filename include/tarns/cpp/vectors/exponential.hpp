// Written by scripts/cpp-face from <tarns/exponential.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Exponential of floats:

/// tarnsExp_32f
inline Warning exp(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsExp_32f(detail::data<Tarn32f>(src),
                                                                     detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsExp_64f
inline Warning exp(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsExp_64f(detail::data<Tarn64f>(src),
                                                                     detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsExp_32f64f
inline Warning exp(std::span<const float> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsExp_32f64f(detail::data<Tarn32f>(src),
                                                                        detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsExp_32f_I
inline Warning exp(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsExp_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsExp_64f_I
inline Warning exp(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsExp_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Exponential of integers:

/// tarnsExp_16s_Sfs
inline Warning exp(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsExp_16s_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsExp_32s_Sfs
inline Warning exp(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsExp_32s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsExp_64s_Sfs
inline Warning exp(std::span<const std::int64_t> src, std::span<std::int64_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsExp_64s_Sfs(detail::data<Tarn64s>(src), detail::data<Tarn64s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsExp_16s_ISfs
inline Warning exp(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsExp_16s_ISfs(detail::data<Tarn16s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsExp_32s_ISfs
inline Warning exp(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsExp_32s_ISfs(detail::data<Tarn32s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsExp_64s_ISfs
inline Warning exp(std::span<std::int64_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsExp_64s_ISfs(detail::data<Tarn64s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

// Natural logarithm of floats:

/// tarnsLn_32f
inline Warning ln(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsLn_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsLn_64f
inline Warning ln(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsLn_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsLn_64f32f
inline Warning ln(std::span<const double> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsLn_64f32f(detail::data<Tarn64f>(src),
                                                                       detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsLn_32f_I
inline Warning ln(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLn_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsLn_64f_I
inline Warning ln(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLn_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Natural logarithm of integers:

/// tarnsLn_16s_Sfs
inline Warning ln(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLn_16s_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsLn_32s_Sfs
inline Warning ln(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLn_32s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsLn_32s16s_Sfs
inline Warning ln(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsLn_32s16s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn16s>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsLn_16s_ISfs
inline Warning ln(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLn_16s_ISfs(detail::data<Tarn16s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsLn_32s_ISfs
inline Warning ln(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLn_32s_ISfs(detail::data<Tarn32s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

// Decibels of a power:

/// tarns10Log10_32s_Sfs
inline Warning tenLog10(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarns10Log10_32s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(dst),
                                                      detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarns10Log10_32s_ISfs
inline Warning tenLog10(std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarns10Log10_32s_ISfs(detail::data<Tarn32s>(srcDst),
                                                                            detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

// Arctangent:

/// tarnsArctan_32f
inline Warning arctan(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsArctan_32f(detail::data<Tarn32f>(src),
                                                                        detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsArctan_64f
inline Warning arctan(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsArctan_64f(detail::data<Tarn64f>(src),
                                                                        detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsArctan_32f_I
inline Warning arctan(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsArctan_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsArctan_64f_I
inline Warning arctan(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsArctan_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

} // namespace tarns
