// Written by scripts/cpp-face from <tarns/median.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Filters by the running median.
inline Warning filterMedian(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int maskSize)
{
    return detail::call(tarnsFilterMedian_8u, src, dst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int maskSize)
{
    return detail::call(tarnsFilterMedian_16s, src, dst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<const std::int32_t> src, std::span<std::int32_t> dst, int maskSize)
{
    return detail::call(tarnsFilterMedian_32s, src, dst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<const float> src, std::span<float> dst, int maskSize)
{
    return detail::call(tarnsFilterMedian_32f, src, dst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<const double> src, std::span<double> dst, int maskSize)
{
    return detail::call(tarnsFilterMedian_64f, src, dst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<std::uint8_t> srcDst, int maskSize)
{
    return detail::call(tarnsFilterMedian_8u_I, srcDst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<std::int16_t> srcDst, int maskSize)
{
    return detail::call(tarnsFilterMedian_16s_I, srcDst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<std::int32_t> srcDst, int maskSize)
{
    return detail::call(tarnsFilterMedian_32s_I, srcDst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<float> srcDst, int maskSize)
{
    return detail::call(tarnsFilterMedian_32f_I, srcDst, detail::length, maskSize);
}
inline Warning filterMedian(std::span<double> srcDst, int maskSize)
{
    return detail::call(tarnsFilterMedian_64f_I, srcDst, detail::length, maskSize);
}

} // namespace tarns
