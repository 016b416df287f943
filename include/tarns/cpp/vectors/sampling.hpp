// Written by scripts/cpp-face from <tarns/sampling.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Takes an offset away and divides.
inline Warning normalize(std::span<const float> src, std::span<float> dst, float vSub, float vDiv)
{
    return detail::call(tarnsNormalize_32f, src, dst, detail::length, vSub, vDiv);
}
inline Warning normalize(std::span<const double> src, std::span<double> dst, double vSub, double vDiv)
{
    return detail::call(tarnsNormalize_64f, src, dst, detail::length, vSub, vDiv);
}
inline Warning normalize(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst,
                         std::complex<float> vSub, float vDiv)
{
    return detail::call(tarnsNormalize_32fc, src, dst, detail::length, vSub, vDiv);
}
inline Warning normalize(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                         std::complex<double> vSub, double vDiv)
{
    return detail::call(tarnsNormalize_64fc, src, dst, detail::length, vSub, vDiv);
}

// Takes an offset away from integers and divides.
inline Warning normalize(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t vSub, int vDiv,
                         int scaleFactor)
{
    return detail::call(tarnsNormalize_16s_Sfs, src, dst, detail::length, vSub, vDiv, scaleFactor);
}
inline Warning normalize(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, Tarn16sc vSub, int vDiv,
                         int scaleFactor)
{
    return detail::call(tarnsNormalize_16sc_Sfs, src, dst, detail::length, vSub, vDiv, scaleFactor);
}

} // namespace tarns
