// Written by scripts/cpp-face from <tarns/data.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Copies an array:

/// tarnsCopy_8u
inline Warning copy(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsCopy_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsCopy_16s
inline Warning copy(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_16s(detail::data<Tarn16s>(src),
                                                                      detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCopy_16sc
inline Warning copy(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_16sc(detail::data<Tarn16sc>(src),
                                                                       detail::data<Tarn16sc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCopy_32f
inline Warning copy(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_32f(detail::data<Tarn32f>(src),
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCopy_32fc
inline Warning copy(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_32fc(detail::data<Tarn32fc>(src),
                                                                       detail::data<Tarn32fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCopy_64f
inline Warning copy(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_64f(detail::data<Tarn64f>(src),
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCopy_64fc
inline Warning copy(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCopy_64fc(detail::data<Tarn64fc>(src),
                                                                       detail::data<Tarn64fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Copies an array to a place that may overlap it, in either direction:

/// tarnsMove_8u
inline Warning move(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMove_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsMove_16s
inline Warning move(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_16s(detail::data<Tarn16s>(src),
                                                                      detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMove_16sc
inline Warning move(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_16sc(detail::data<Tarn16sc>(src),
                                                                       detail::data<Tarn16sc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMove_32f
inline Warning move(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_32f(detail::data<Tarn32f>(src),
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMove_32fc
inline Warning move(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_32fc(detail::data<Tarn32fc>(src),
                                                                       detail::data<Tarn32fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMove_64f
inline Warning move(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_64f(detail::data<Tarn64f>(src),
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMove_64fc
inline Warning move(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMove_64fc(detail::data<Tarn64fc>(src),
                                                                       detail::data<Tarn64fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Writes zero bytes:

/// tarnsZero_8u
inline Warning zero(std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_8u(detail::data<Tarn8u>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_16s
inline Warning zero(std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_16s(detail::data<Tarn16s>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_16sc
inline Warning zero(std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_16sc(detail::data<Tarn16sc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_32f
inline Warning zero(std::span<float> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_32f(detail::data<Tarn32f>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_32fc
inline Warning zero(std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_32fc(detail::data<Tarn32fc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_64f
inline Warning zero(std::span<double> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_64f(detail::data<Tarn64f>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsZero_64fc
inline Warning zero(std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsZero_64fc(detail::data<Tarn64fc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

// Writes one value to every element:

/// tarnsSet_8u
inline Warning set(std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_8u(val, detail::data<Tarn8u>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_16s
inline Warning set(std::int16_t val, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_16s(val, detail::data<Tarn16s>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_16sc
inline Warning set(Tarn16sc val, std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_16sc(val, detail::data<Tarn16sc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_32s
inline Warning set(std::int32_t val, std::span<std::int32_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_32s(val, detail::data<Tarn32s>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_32sc
inline Warning set(Tarn32sc val, std::span<Tarn32sc> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_32sc(val, detail::data<Tarn32sc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_32f
inline Warning set(float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_32f(val, detail::data<Tarn32f>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_32fc
inline Warning set(std::complex<float> val, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_32fc(detail::value<Tarn32fc>(val),
                                                                 detail::data<Tarn32fc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_64s
inline Warning set(std::int64_t val, std::span<std::int64_t> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_64s(val, detail::data<Tarn64s>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_64sc
inline Warning set(Tarn64sc val, std::span<Tarn64sc> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_64sc(val, detail::data<Tarn64sc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_64f
inline Warning set(double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_64f(val, detail::data<Tarn64f>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

/// tarnsSet_64fc
inline Warning set(std::complex<double> val, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(dst) ? tarnsSet_64fc(detail::value<Tarn64fc>(val),
                                                                 detail::data<Tarn64fc>(dst), detail::count(dst))
                                                 : tarnStsSizeErr);
}

// Turns an array round:

/// tarnsFlip_8u
inline Warning flip(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsFlip_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsFlip_16u
inline Warning flip(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsFlip_16u(detail::data<Tarn16u>(src),
                                                                      detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsFlip_32f
inline Warning flip(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsFlip_32f(detail::data<Tarn32f>(src),
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsFlip_64f
inline Warning flip(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsFlip_64f(detail::data<Tarn64f>(src),
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Turns an array round in place; the middle element of an odd number stays.

/// tarnsFlip_8u_I
inline Warning flip(std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFlip_8u_I(detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsFlip_16u_I
inline Warning flip(std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFlip_16u_I(detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsFlip_32f_I
inline Warning flip(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFlip_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsFlip_64f_I
inline Warning flip(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsFlip_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Reverses the bytes within each element, between big- and little-endian order.

/// tarnsSwapBytes_16u
inline Warning swapBytes(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSwapBytes_16u(detail::data<Tarn16u>(src), detail::data<Tarn16u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsSwapBytes_32u
inline Warning swapBytes(std::span<const std::uint32_t> src, std::span<std::uint32_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSwapBytes_32u(detail::data<Tarn32u>(src), detail::data<Tarn32u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Reverses the bytes within each element in place.

/// tarnsSwapBytes_16u_I
inline Warning swapBytes(std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSwapBytes_16u_I(detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSwapBytes_32u_I
inline Warning swapBytes(std::span<std::uint32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSwapBytes_32u_I(detail::data<Tarn32u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

} // namespace tarns
