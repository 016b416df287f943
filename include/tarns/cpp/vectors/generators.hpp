// Written by scripts/cpp-face from <tarns/generators.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Writes a sinusoid with fixed-point parameters:

/// tarnsToneQ15_Direct_16s
inline Warning toneQ15Direct(std::span<std::int16_t> dst, std::int16_t magn, std::int16_t rFreqQ15,
                             std::int32_t phaseQ15)
{
    return detail::warning(detail::sameSize(dst) ? tarnsToneQ15_Direct_16s(detail::data<Tarn16s>(dst),
                                                                           detail::count(dst), magn, rFreqQ15, phaseQ15)
                                                 : tarnStsSizeErr);
}

// Writes a triangle wave with fixed-point parameters.

/// tarnsTriangleQ15_Direct_16s
inline Warning triangleQ15Direct(std::span<std::int16_t> dst, std::int16_t magn, std::int16_t rFreqQ15,
                                 std::int32_t phaseQ15, std::int32_t asymQ15)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsTriangleQ15_Direct_16s(detail::data<Tarn16s>(dst), detail::count(dst), magn,
                                                             rFreqQ15, phaseQ15, asymQ15)
                               : tarnStsSizeErr);
}

// Writes a straight line:

/// tarnsVectorRamp_8u
inline Warning vectorRamp(std::span<std::uint8_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_8u(detail::data<Tarn8u>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_8s
inline Warning vectorRamp(std::span<std::int8_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_8s(detail::data<Tarn8s>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_16u
inline Warning vectorRamp(std::span<std::uint16_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_16u(detail::data<Tarn16u>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_16s
inline Warning vectorRamp(std::span<std::int16_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_16s(detail::data<Tarn16s>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_32u
inline Warning vectorRamp(std::span<std::uint32_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_32u(detail::data<Tarn32u>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_32s
inline Warning vectorRamp(std::span<std::int32_t> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_32s(detail::data<Tarn32s>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_32f
inline Warning vectorRamp(std::span<float> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_32f(detail::data<Tarn32f>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

/// tarnsVectorRamp_64f
inline Warning vectorRamp(std::span<double> dst, float offset, float slope)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorRamp_64f(detail::data<Tarn64f>(dst), detail::count(dst), offset, slope)
                               : tarnStsSizeErr);
}

// Writes the Jaehne signal:

/// tarnsVectorJaehne_8u
inline Warning vectorJaehne(std::span<std::uint8_t> dst, std::uint8_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_8u(detail::data<Tarn8u>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_8s
inline Warning vectorJaehne(std::span<std::int8_t> dst, std::int8_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_8s(detail::data<Tarn8s>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_16u
inline Warning vectorJaehne(std::span<std::uint16_t> dst, std::uint16_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_16u(detail::data<Tarn16u>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_16s
inline Warning vectorJaehne(std::span<std::int16_t> dst, std::int16_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_16s(detail::data<Tarn16s>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_32u
inline Warning vectorJaehne(std::span<std::uint32_t> dst, std::uint32_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_32u(detail::data<Tarn32u>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_32s
inline Warning vectorJaehne(std::span<std::int32_t> dst, std::int32_t magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_32s(detail::data<Tarn32s>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_32f
inline Warning vectorJaehne(std::span<float> dst, float magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_32f(detail::data<Tarn32f>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

/// tarnsVectorJaehne_64f
inline Warning vectorJaehne(std::span<double> dst, double magn)
{
    return detail::warning(detail::sameSize(dst)
                               ? tarnsVectorJaehne_64f(detail::data<Tarn64f>(dst), detail::count(dst), magn)
                               : tarnStsSizeErr);
}

} // namespace tarns
