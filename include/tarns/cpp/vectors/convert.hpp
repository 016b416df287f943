// Written by scripts/cpp-face from <tarns/convert.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Widens integers.
inline Warning convert(std::span<const std::int8_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsConvert_8s16s, src, dst, detail::length);
}
inline Warning convert(std::span<const std::int16_t> src, std::span<std::int32_t> dst)
{
    return detail::call(tarnsConvert_16s32s, src, dst, detail::length);
}

// Converts to floating point.
inline Warning convert(std::span<const std::int8_t> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_8s32f, src, dst, detail::length);
}
inline Warning convert(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_8u32f, src, dst, detail::length);
}
inline Warning convert(std::span<const std::int16_t> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_16s32f, src, dst, detail::length);
}
inline Warning convert(std::span<const std::uint16_t> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_16u32f, src, dst, detail::length);
}
inline Warning convert(std::span<const std::int32_t> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_32s32f, src, dst, detail::length);
}
inline Warning convert(std::span<const std::int32_t> src, std::span<double> dst)
{
    return detail::call(tarnsConvert_32s64f, src, dst, detail::length);
}
inline Warning convert(std::span<const float> src, std::span<double> dst)
{
    return detail::call(tarnsConvert_32f64f, src, dst, detail::length);
}

// Converts scaled integers to floating point.
inline Warning convert(std::span<const std::int16_t> src, std::span<float> dst, int scaleFactor)
{
    return detail::call(tarnsConvert_16s32f_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning convert(std::span<const std::int16_t> src, std::span<double> dst, int scaleFactor)
{
    return detail::call(tarnsConvert_16s64f_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning convert(std::span<const std::int32_t> src, std::span<float> dst, int scaleFactor)
{
    return detail::call(tarnsConvert_32s32f_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning convert(std::span<const std::int32_t> src, std::span<double> dst, int scaleFactor)
{
    return detail::call(tarnsConvert_32s64f_Sfs, src, dst, detail::length, scaleFactor);
}

// Narrows integers.
inline Warning convert(std::span<const std::int32_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsConvert_32s16s, src, dst, detail::length);
}

// Narrows scaled integers.
inline Warning convert(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsConvert_32s16s_Sfs, src, dst, detail::length, scaleFactor);
}

// Converts floats to scaled integers.
inline Warning convert(std::span<const float> src, std::span<std::int8_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_32f8s_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}
inline Warning convert(std::span<const float> src, std::span<std::uint8_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_32f8u_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}
inline Warning convert(std::span<const float> src, std::span<std::int16_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_32f16s_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}
inline Warning convert(std::span<const float> src, std::span<std::uint16_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_32f16u_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}
inline Warning convert(std::span<const float> src, std::span<std::int32_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_32f32s_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}
inline Warning convert(std::span<const double> src, std::span<std::int32_t> dst, int rndMode, int scaleFactor)
{
    return detail::call(tarnsConvert_64f32s_Sfs, src, dst, detail::length, rndMode, scaleFactor);
}

// Converts double to single precision.
inline Warning convert(std::span<const double> src, std::span<float> dst)
{
    return detail::call(tarnsConvert_64f32f, src, dst, detail::length);
}

} // namespace tarns
