// Written by scripts/cpp-face from <tarns/magnitude.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Computes magnitudes.
inline Warning magnitude(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                         std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMagnitude_16s_Sfs, srcRe, srcIm, dst, detail::length, scaleFactor);
}
inline Warning magnitude(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMagnitude_16sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning magnitude(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsMagnitude_32sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning magnitude(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm, std::span<float> dst)
{
    return detail::call(tarnsMagnitude_16s32f, srcRe, srcIm, dst, detail::length);
}
inline Warning magnitude(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::call(tarnsMagnitude_16sc32f, src, dst, detail::length);
}
inline Warning magnitude(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::call(tarnsMagnitude_32f, srcRe, srcIm, dst, detail::length);
}
inline Warning magnitude(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::call(tarnsMagnitude_32fc, src, dst, detail::length);
}
inline Warning magnitude(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::call(tarnsMagnitude_64f, srcRe, srcIm, dst, detail::length);
}
inline Warning magnitude(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::call(tarnsMagnitude_64fc, src, dst, detail::length);
}

// Computes power spectra.
inline Warning powerSpectr(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                           std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsPowerSpectr_16s_Sfs, srcRe, srcIm, dst, detail::length, scaleFactor);
}
inline Warning powerSpectr(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsPowerSpectr_16sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning powerSpectr(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                           std::span<float> dst)
{
    return detail::call(tarnsPowerSpectr_16s32f, srcRe, srcIm, dst, detail::length);
}
inline Warning powerSpectr(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::call(tarnsPowerSpectr_16sc32f, src, dst, detail::length);
}
inline Warning powerSpectr(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::call(tarnsPowerSpectr_32f, srcRe, srcIm, dst, detail::length);
}
inline Warning powerSpectr(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::call(tarnsPowerSpectr_32fc, src, dst, detail::length);
}
inline Warning powerSpectr(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::call(tarnsPowerSpectr_64f, srcRe, srcIm, dst, detail::length);
}
inline Warning powerSpectr(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::call(tarnsPowerSpectr_64fc, src, dst, detail::length);
}

// Computes squared magnitudes of 32-bit elements by way of floats.
inline Warning magSquared(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsMagSquared_32sc32s_Sfs, src, dst, detail::length, scaleFactor);
}

} // namespace tarns
