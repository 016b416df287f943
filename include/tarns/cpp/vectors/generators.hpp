// Written by scripts/cpp-face from <tarns/generators.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Writes a sinusoid with fixed-point parameters.
inline Warning toneQ15Direct(std::span<std::int16_t> dst, std::int16_t magn, std::int16_t rFreqQ15,
                             std::int32_t phaseQ15)
{
    return detail::call(tarnsToneQ15_Direct_16s, dst, detail::length, magn, rFreqQ15, phaseQ15);
}

// Writes a triangle wave with fixed-point parameters.
inline Warning triangleQ15Direct(std::span<std::int16_t> dst, std::int16_t magn, std::int16_t rFreqQ15,
                                 std::int32_t phaseQ15, std::int32_t asymQ15)
{
    return detail::call(tarnsTriangleQ15_Direct_16s, dst, detail::length, magn, rFreqQ15, phaseQ15, asymQ15);
}

// Writes a straight line.
inline Warning vectorRamp(std::span<std::uint8_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_8u, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<std::int8_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_8s, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<std::uint16_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_16u, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<std::int16_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_16s, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<std::uint32_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_32u, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<std::int32_t> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_32s, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<float> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_32f, dst, detail::length, offset, slope);
}
inline Warning vectorRamp(std::span<double> dst, float offset, float slope)
{
    return detail::call(tarnsVectorRamp_64f, dst, detail::length, offset, slope);
}

// Writes the Jaehne signal.
inline Warning vectorJaehne(std::span<std::uint8_t> dst, std::uint8_t magn)
{
    return detail::call(tarnsVectorJaehne_8u, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<std::int8_t> dst, std::int8_t magn)
{
    return detail::call(tarnsVectorJaehne_8s, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<std::uint16_t> dst, std::uint16_t magn)
{
    return detail::call(tarnsVectorJaehne_16u, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<std::int16_t> dst, std::int16_t magn)
{
    return detail::call(tarnsVectorJaehne_16s, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<std::uint32_t> dst, std::uint32_t magn)
{
    return detail::call(tarnsVectorJaehne_32u, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<std::int32_t> dst, std::int32_t magn)
{
    return detail::call(tarnsVectorJaehne_32s, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<float> dst, float magn)
{
    return detail::call(tarnsVectorJaehne_32f, dst, detail::length, magn);
}
inline Warning vectorJaehne(std::span<double> dst, double magn)
{
    return detail::call(tarnsVectorJaehne_64f, dst, detail::length, magn);
}

} // namespace tarns
