// Written by scripts/cpp-face from <tarns/convert.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Widens integers:

/// tarnsConvert_8s16s
inline Warning convert(std::span<const std::int8_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_8s16s(detail::data<Tarn8s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_16s32s
inline Warning convert(std::span<const std::int16_t> src, std::span<std::int32_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_16s32s(detail::data<Tarn16s>(src), detail::data<Tarn32s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Converts to floating point:

/// tarnsConvert_8s32f
inline Warning convert(std::span<const std::int8_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_8s32f(detail::data<Tarn8s>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_8u32f
inline Warning convert(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_8u32f(detail::data<Tarn8u>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_16s32f
inline Warning convert(std::span<const std::int16_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_16s32f(detail::data<Tarn16s>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_16u32f
inline Warning convert(std::span<const std::uint16_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_16u32f(detail::data<Tarn16u>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_32s32f
inline Warning convert(std::span<const std::int32_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_32s32f(detail::data<Tarn32s>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_32s64f
inline Warning convert(std::span<const std::int32_t> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_32s64f(detail::data<Tarn32s>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConvert_32f64f
inline Warning convert(std::span<const float> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_32f64f(detail::data<Tarn32f>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Converts scaled integers to floating point:

/// tarnsConvert_16s32f_Sfs
inline Warning convert(std::span<const std::int16_t> src, std::span<float> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_16s32f_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn32f>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_16s64f_Sfs
inline Warning convert(std::span<const std::int16_t> src, std::span<double> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_16s64f_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn64f>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32s32f_Sfs
inline Warning convert(std::span<const std::int32_t> src, std::span<float> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32s32f_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn32f>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32s64f_Sfs
inline Warning convert(std::span<const std::int32_t> src, std::span<double> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32s64f_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn64f>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Narrows integers:

/// tarnsConvert_32s16s
inline Warning convert(std::span<const std::int32_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_32s16s(detail::data<Tarn32s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Narrows scaled integers:

/// tarnsConvert_32s16s_Sfs
inline Warning convert(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32s16s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn16s>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Converts floats to scaled integers:

/// tarnsConvert_32f8s_Sfs
inline Warning convert(std::span<const float> src, std::span<std::int8_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32f8s_Sfs(detail::data<Tarn32f>(src), detail::data<Tarn8s>(dst),
                                                        detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32f8u_Sfs
inline Warning convert(std::span<const float> src, std::span<std::uint8_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32f8u_Sfs(detail::data<Tarn32f>(src), detail::data<Tarn8u>(dst),
                                                        detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32f16s_Sfs
inline Warning convert(std::span<const float> src, std::span<std::int16_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32f16s_Sfs(detail::data<Tarn32f>(src), detail::data<Tarn16s>(dst),
                                                         detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32f16u_Sfs
inline Warning convert(std::span<const float> src, std::span<std::uint16_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32f16u_Sfs(detail::data<Tarn32f>(src), detail::data<Tarn16u>(dst),
                                                         detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_32f32s_Sfs
inline Warning convert(std::span<const float> src, std::span<std::int32_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_32f32s_Sfs(detail::data<Tarn32f>(src), detail::data<Tarn32s>(dst),
                                                         detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsConvert_64f32s_Sfs
inline Warning convert(std::span<const double> src, std::span<std::int32_t> dst, int rndMode, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsConvert_64f32s_Sfs(detail::data<Tarn64f>(src), detail::data<Tarn32s>(dst),
                                                         detail::count(src), rndMode, scaleFactor)
                               : tarnStsSizeErr);
}

// Converts double to single precision:

/// tarnsConvert_64f32f
inline Warning convert(std::span<const double> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConvert_64f32f(detail::data<Tarn64f>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

} // namespace tarns
