// Written by scripts/cpp-face from <tarns/cplx.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Conjugates:

/// tarnsConj_16sc
inline Warning conj(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsConj_16sc(detail::data<Tarn16sc>(src),
                                                                       detail::data<Tarn16sc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsConj_32fc
inline Warning conj(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsConj_32fc(detail::data<Tarn32fc>(src),
                                                                       detail::data<Tarn32fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsConj_64fc
inline Warning conj(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsConj_64fc(detail::data<Tarn64fc>(src),
                                                                       detail::data<Tarn64fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsConj_16sc_I
inline Warning conj(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConj_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConj_32fc_I
inline Warning conj(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConj_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConj_64fc_I
inline Warning conj(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConj_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Real parts:

/// tarnsReal_16sc
inline Warning real(std::span<const Tarn16sc> src, std::span<std::int16_t> dstRe)
{
    return detail::warning(
        detail::sameSize(src, dstRe)
            ? tarnsReal_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dstRe), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsReal_32fc
inline Warning real(std::span<const std::complex<float>> src, std::span<float> dstRe)
{
    return detail::warning(
        detail::sameSize(src, dstRe)
            ? tarnsReal_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dstRe), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsReal_64fc
inline Warning real(std::span<const std::complex<double>> src, std::span<double> dstRe)
{
    return detail::warning(
        detail::sameSize(src, dstRe)
            ? tarnsReal_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dstRe), detail::count(src))
            : tarnStsSizeErr);
}

// Imaginary parts:

/// tarnsImag_16sc
inline Warning imag(std::span<const Tarn16sc> src, std::span<std::int16_t> dstIm)
{
    return detail::warning(
        detail::sameSize(src, dstIm)
            ? tarnsImag_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dstIm), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsImag_32fc
inline Warning imag(std::span<const std::complex<float>> src, std::span<float> dstIm)
{
    return detail::warning(
        detail::sameSize(src, dstIm)
            ? tarnsImag_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dstIm), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsImag_64fc
inline Warning imag(std::span<const std::complex<double>> src, std::span<double> dstIm)
{
    return detail::warning(
        detail::sameSize(src, dstIm)
            ? tarnsImag_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dstIm), detail::count(src))
            : tarnStsSizeErr);
}

// Takes a complex vector apart:

/// tarnsCplxToReal_16sc
inline Warning cplxToReal(std::span<const Tarn16sc> src, std::span<std::int16_t> dstRe, std::span<std::int16_t> dstIm)
{
    return detail::warning(detail::sameSize(src, dstRe, dstIm)
                               ? tarnsCplxToReal_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dstRe),
                                                      detail::data<Tarn16s>(dstIm), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsCplxToReal_32fc
inline Warning cplxToReal(std::span<const std::complex<float>> src, std::span<float> dstRe, std::span<float> dstIm)
{
    return detail::warning(detail::sameSize(src, dstRe, dstIm)
                               ? tarnsCplxToReal_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dstRe),
                                                      detail::data<Tarn32f>(dstIm), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsCplxToReal_64fc
inline Warning cplxToReal(std::span<const std::complex<double>> src, std::span<double> dstRe, std::span<double> dstIm)
{
    return detail::warning(detail::sameSize(src, dstRe, dstIm)
                               ? tarnsCplxToReal_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dstRe),
                                                      detail::data<Tarn64f>(dstIm), detail::count(src))
                               : tarnStsSizeErr);
}

// Puts a complex vector together:

/// tarnsRealToCplx_16s
inline Warning realToCplx(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                          std::span<Tarn16sc> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsRealToCplx_16s(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                     detail::data<Tarn16sc>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsRealToCplx_32f
inline Warning realToCplx(std::span<const float> srcRe, std::span<const float> srcIm,
                          std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsRealToCplx_32f(detail::data<Tarn32f>(srcRe), detail::data<Tarn32f>(srcIm),
                                                     detail::data<Tarn32fc>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsRealToCplx_64f
inline Warning realToCplx(std::span<const double> srcRe, std::span<const double> srcIm,
                          std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsRealToCplx_64f(detail::data<Tarn64f>(srcRe), detail::data<Tarn64f>(srcIm),
                                                     detail::data<Tarn64fc>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

} // namespace tarns
