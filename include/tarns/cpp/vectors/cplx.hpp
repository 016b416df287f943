// Written by scripts/cpp-face from <tarns/cplx.h>; changes go there. Every function calls one of the C interface, whose
// documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Conjugates a vector.
inline Warning conj(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsConj_16sc, src, dst, detail::length);
}
inline Warning conj(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsConj_32fc, src, dst, detail::length);
}
inline Warning conj(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsConj_64fc, src, dst, detail::length);
}
inline Warning conj(std::span<Tarn16sc> srcDst) { return detail::call(tarnsConj_16sc_I, srcDst, detail::length); }
inline Warning conj(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsConj_32fc_I, srcDst, detail::length);
}
inline Warning conj(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsConj_64fc_I, srcDst, detail::length);
}

// Takes the real parts.
inline Warning real(std::span<const Tarn16sc> src, std::span<std::int16_t> dstRe)
{
    return detail::call(tarnsReal_16sc, src, dstRe, detail::length);
}
inline Warning real(std::span<const std::complex<float>> src, std::span<float> dstRe)
{
    return detail::call(tarnsReal_32fc, src, dstRe, detail::length);
}
inline Warning real(std::span<const std::complex<double>> src, std::span<double> dstRe)
{
    return detail::call(tarnsReal_64fc, src, dstRe, detail::length);
}

// Takes the imaginary parts.
inline Warning imag(std::span<const Tarn16sc> src, std::span<std::int16_t> dstIm)
{
    return detail::call(tarnsImag_16sc, src, dstIm, detail::length);
}
inline Warning imag(std::span<const std::complex<float>> src, std::span<float> dstIm)
{
    return detail::call(tarnsImag_32fc, src, dstIm, detail::length);
}
inline Warning imag(std::span<const std::complex<double>> src, std::span<double> dstIm)
{
    return detail::call(tarnsImag_64fc, src, dstIm, detail::length);
}

// Takes a complex vector apart.
inline Warning cplxToReal(std::span<const Tarn16sc> src, std::span<std::int16_t> dstRe, std::span<std::int16_t> dstIm)
{
    return detail::call(tarnsCplxToReal_16sc, src, dstRe, dstIm, detail::length);
}
inline Warning cplxToReal(std::span<const std::complex<float>> src, std::span<float> dstRe, std::span<float> dstIm)
{
    return detail::call(tarnsCplxToReal_32fc, src, dstRe, dstIm, detail::length);
}
inline Warning cplxToReal(std::span<const std::complex<double>> src, std::span<double> dstRe, std::span<double> dstIm)
{
    return detail::call(tarnsCplxToReal_64fc, src, dstRe, dstIm, detail::length);
}

// Puts a complex vector together.
inline Warning realToCplx(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                          std::span<Tarn16sc> dst)
{
    return detail::call(tarnsRealToCplx_16s, srcRe, srcIm, dst, detail::length);
}
inline Warning realToCplx(std::span<const float> srcRe, std::span<const float> srcIm,
                          std::span<std::complex<float>> dst)
{
    return detail::call(tarnsRealToCplx_32f, srcRe, srcIm, dst, detail::length);
}
inline Warning realToCplx(std::span<const double> srcRe, std::span<const double> srcIm,
                          std::span<std::complex<double>> dst)
{
    return detail::call(tarnsRealToCplx_64f, srcRe, srcIm, dst, detail::length);
}

} // namespace tarns
