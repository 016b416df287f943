// Written by scripts/cpp-face from <tarns/sampling.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Takes an offset away and divides:

/// tarnsNormalize_32f
inline Warning normalize(std::span<const float> src, std::span<float> dst, float vSub, float vDiv)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsNormalize_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src), vSub, vDiv)
            : tarnStsSizeErr);
}

/// tarnsNormalize_64f
inline Warning normalize(std::span<const double> src, std::span<double> dst, double vSub, double vDiv)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsNormalize_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src), vSub, vDiv)
            : tarnStsSizeErr);
}

/// tarnsNormalize_32fc
inline Warning normalize(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst,
                         std::complex<float> vSub, float vDiv)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsNormalize_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                     detail::count(src), detail::value<Tarn32fc>(vSub), vDiv)
                               : tarnStsSizeErr);
}

/// tarnsNormalize_64fc
inline Warning normalize(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                         std::complex<double> vSub, double vDiv)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsNormalize_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                     detail::count(src), detail::value<Tarn64fc>(vSub), vDiv)
                               : tarnStsSizeErr);
}

// The same on integers:

/// tarnsNormalize_16s_Sfs
inline Warning normalize(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t vSub, int vDiv,
                         int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsNormalize_16s_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                        detail::count(src), vSub, vDiv, scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsNormalize_16sc_Sfs
inline Warning normalize(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, Tarn16sc vSub, int vDiv,
                         int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsNormalize_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                         detail::count(src), vSub, vDiv, scaleFactor)
                               : tarnStsSizeErr);
}

} // namespace tarns
