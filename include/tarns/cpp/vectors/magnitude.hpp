// Written by scripts/cpp-face from <tarns/magnitude.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Magnitudes:

/// tarnsMagnitude_16s_Sfs
inline Warning magnitude(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                         std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsMagnitude_16s_Sfs(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                        detail::data<Tarn16s>(dst), detail::count(srcRe), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_16sc_Sfs
inline Warning magnitude(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMagnitude_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_32sc_Sfs
inline Warning magnitude(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMagnitude_32sc_Sfs(detail::data<Tarn32sc>(src), detail::data<Tarn32s>(dst),
                                                         detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_16s32f
inline Warning magnitude(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm, std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsMagnitude_16s32f(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                       detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_16sc32f
inline Warning magnitude(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMagnitude_16sc32f(detail::data<Tarn16sc>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMagnitude_32f
inline Warning magnitude(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsMagnitude_32f(detail::data<Tarn32f>(srcRe), detail::data<Tarn32f>(srcIm),
                                                    detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_32fc
inline Warning magnitude(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMagnitude_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMagnitude_64f
inline Warning magnitude(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsMagnitude_64f(detail::data<Tarn64f>(srcRe), detail::data<Tarn64f>(srcIm),
                                                    detail::data<Tarn64f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsMagnitude_64fc
inline Warning magnitude(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMagnitude_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Power spectra:

/// tarnsPowerSpectr_16s_Sfs
inline Warning powerSpectr(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                           std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPowerSpectr_16s_Sfs(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                          detail::data<Tarn16s>(dst), detail::count(srcRe), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsPowerSpectr_16sc_Sfs
inline Warning powerSpectr(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsPowerSpectr_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dst),
                                                           detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsPowerSpectr_16s32f
inline Warning powerSpectr(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                           std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPowerSpectr_16s32f(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                         detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPowerSpectr_16sc32f
inline Warning powerSpectr(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsPowerSpectr_16sc32f(detail::data<Tarn16sc>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsPowerSpectr_32f
inline Warning powerSpectr(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPowerSpectr_32f(detail::data<Tarn32f>(srcRe), detail::data<Tarn32f>(srcIm),
                                                      detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPowerSpectr_32fc
inline Warning powerSpectr(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsPowerSpectr_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsPowerSpectr_64f
inline Warning powerSpectr(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPowerSpectr_64f(detail::data<Tarn64f>(srcRe), detail::data<Tarn64f>(srcIm),
                                                      detail::data<Tarn64f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPowerSpectr_64fc
inline Warning powerSpectr(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsPowerSpectr_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Squared magnitudes of 32-bit elements by way of floats:

/// tarnsMagSquared_32sc32s_Sfs
inline Warning magSquared(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMagSquared_32sc32s_Sfs(detail::data<Tarn32sc>(src), detail::data<Tarn32s>(dst),
                                                             detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

} // namespace tarns
