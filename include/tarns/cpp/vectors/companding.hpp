// Written by scripts/cpp-face from <tarns/companding.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Linear values of codes:

/// tarnsALawToLin_8u16s
inline Warning aLawToLin(std::span<const std::uint8_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsALawToLin_8u16s(detail::data<Tarn8u>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsALawToLin_8u32f
inline Warning aLawToLin(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsALawToLin_8u32f(detail::data<Tarn8u>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMuLawToLin_8u16s
inline Warning muLawToLin(std::span<const std::uint8_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMuLawToLin_8u16s(detail::data<Tarn8u>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMuLawToLin_8u32f
inline Warning muLawToLin(std::span<const std::uint8_t> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMuLawToLin_8u32f(detail::data<Tarn8u>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Codes of linear samples:

/// tarnsLinToALaw_16s8u
inline Warning linToALaw(std::span<const std::int16_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLinToALaw_16s8u(detail::data<Tarn16s>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsLinToALaw_32f8u
inline Warning linToALaw(std::span<const float> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLinToALaw_32f8u(detail::data<Tarn32f>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsLinToMuLaw_16s8u
inline Warning linToMuLaw(std::span<const std::int16_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLinToMuLaw_16s8u(detail::data<Tarn16s>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsLinToMuLaw_32f8u
inline Warning linToMuLaw(std::span<const float> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsLinToMuLaw_32f8u(detail::data<Tarn32f>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Codes of one law as those of the other, by the tables of the Recommendation.

/// tarnsALawToMuLaw_8u
inline Warning aLawToMuLaw(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsALawToMuLaw_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMuLawToALaw_8u
inline Warning muLawToALaw(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMuLawToALaw_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
            : tarnStsSizeErr);
}

} // namespace tarns
