// Written by scripts/cpp-face from <tarns/median.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Median filter.

/// tarnsFilterMedian_8u
inline Warning filterMedian(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int maskSize)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsFilterMedian_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src), maskSize)
            : tarnStsSizeErr);
}

/// tarnsFilterMedian_16s
inline Warning filterMedian(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int maskSize)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsFilterMedian_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                       detail::count(src), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_32s
inline Warning filterMedian(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int maskSize)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsFilterMedian_32s(detail::data<Tarn32s>(src), detail::data<Tarn32s>(dst),
                                                       detail::count(src), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_32f
inline Warning filterMedian(std::span<const float> src, std::span<float> dst, int maskSize)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsFilterMedian_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                       detail::count(src), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_64f
inline Warning filterMedian(std::span<const double> src, std::span<double> dst, int maskSize)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsFilterMedian_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                       detail::count(src), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_8u_I
inline Warning filterMedian(std::span<std::uint8_t> srcDst, int maskSize)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFilterMedian_8u_I(detail::data<Tarn8u>(srcDst), detail::count(srcDst), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_16s_I
inline Warning filterMedian(std::span<std::int16_t> srcDst, int maskSize)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFilterMedian_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_32s_I
inline Warning filterMedian(std::span<std::int32_t> srcDst, int maskSize)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFilterMedian_32s_I(detail::data<Tarn32s>(srcDst), detail::count(srcDst), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_32f_I
inline Warning filterMedian(std::span<float> srcDst, int maskSize)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFilterMedian_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), maskSize)
                               : tarnStsSizeErr);
}

/// tarnsFilterMedian_64f_I
inline Warning filterMedian(std::span<double> srcDst, int maskSize)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFilterMedian_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), maskSize)
                               : tarnStsSizeErr);
}

} // namespace tarns
