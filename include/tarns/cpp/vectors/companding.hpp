// Written by scripts/cpp-face from <tarns/companding.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Decodes to linear samples.
inline Warning aLawToLin(std::span<const std::uint8_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsALawToLin_8u16s, src, dst, detail::length);
}
inline Warning aLawToLin(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::call(tarnsALawToLin_8u32f, src, dst, detail::length);
}
inline Warning muLawToLin(std::span<const std::uint8_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsMuLawToLin_8u16s, src, dst, detail::length);
}
inline Warning muLawToLin(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::call(tarnsMuLawToLin_8u32f, src, dst, detail::length);
}

// Encodes linear samples.
inline Warning linToALaw(std::span<const std::int16_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsLinToALaw_16s8u, src, dst, detail::length);
}
inline Warning linToALaw(std::span<const float> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsLinToALaw_32f8u, src, dst, detail::length);
}
inline Warning linToMuLaw(std::span<const std::int16_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsLinToMuLaw_16s8u, src, dst, detail::length);
}
inline Warning linToMuLaw(std::span<const float> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsLinToMuLaw_32f8u, src, dst, detail::length);
}

// Converts codes of one law to those of the other, by the tables of the Recommendation.
inline Warning aLawToMuLaw(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsALawToMuLaw_8u, src, dst, detail::length);
}
inline Warning muLawToALaw(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsMuLawToALaw_8u, src, dst, detail::length);
}

} // namespace tarns
