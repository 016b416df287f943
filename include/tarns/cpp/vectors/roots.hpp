// Written by scripts/cpp-face from <tarns/roots.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Absolute values:

/// tarnsAbs_16s
inline Warning abs(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAbs_16s(detail::data<Tarn16s>(src),
                                                                     detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAbs_32s
inline Warning abs(std::span<const std::int32_t> src, std::span<std::int32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAbs_32s(detail::data<Tarn32s>(src),
                                                                     detail::data<Tarn32s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAbs_32f
inline Warning abs(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAbs_32f(detail::data<Tarn32f>(src),
                                                                     detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAbs_64f
inline Warning abs(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAbs_64f(detail::data<Tarn64f>(src),
                                                                     detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAbs_16s_I
inline Warning abs(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAbs_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAbs_32s_I
inline Warning abs(std::span<std::int32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAbs_32s_I(detail::data<Tarn32s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAbs_32f_I
inline Warning abs(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAbs_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAbs_64f_I
inline Warning abs(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAbs_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Squares:

/// tarnsSqr_8u_Sfs
inline Warning sqr(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqr_8u_Sfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqr_16s_Sfs
inline Warning sqr(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqr_16s_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqr_16u_Sfs
inline Warning sqr(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqr_16u_Sfs(detail::data<Tarn16u>(src), detail::data<Tarn16u>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqr_16sc_Sfs
inline Warning sqr(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSqr_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqr_8u_ISfs
inline Warning sqr(std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_8u_ISfs(detail::data<Tarn8u>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqr_16s_ISfs
inline Warning sqr(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_16s_ISfs(detail::data<Tarn16s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqr_16u_ISfs
inline Warning sqr(std::span<std::uint16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_16u_ISfs(detail::data<Tarn16u>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqr_16sc_ISfs
inline Warning sqr(std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_16sc_ISfs(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqr_32f
inline Warning sqr(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqr_32f(detail::data<Tarn32f>(src),
                                                                     detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqr_32fc
inline Warning sqr(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqr_32fc(detail::data<Tarn32fc>(src),
                                                                      detail::data<Tarn32fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqr_64f
inline Warning sqr(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqr_64f(detail::data<Tarn64f>(src),
                                                                     detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqr_64fc
inline Warning sqr(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqr_64fc(detail::data<Tarn64fc>(src),
                                                                      detail::data<Tarn64fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqr_32f_I
inline Warning sqr(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSqr_32fc_I
inline Warning sqr(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSqr_64f_I
inline Warning sqr(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSqr_64fc_I
inline Warning sqr(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqr_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Square roots:

/// tarnsSqrt_8u_Sfs
inline Warning sqrt(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqrt_8u_Sfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqrt_16s_Sfs
inline Warning sqrt(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqrt_16s_Sfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqrt_16u_Sfs
inline Warning sqrt(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqrt_16u_Sfs(detail::data<Tarn16u>(src), detail::data<Tarn16u>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqrt_64s_Sfs
inline Warning sqrt(std::span<const std::int64_t> src, std::span<std::int64_t> dst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsSqrt_64s_Sfs(detail::data<Tarn64s>(src), detail::data<Tarn64s>(dst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSqrt_8u_ISfs
inline Warning sqrt(std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_8u_ISfs(detail::data<Tarn8u>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_16s_ISfs
inline Warning sqrt(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_16s_ISfs(detail::data<Tarn16s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_16u_ISfs
inline Warning sqrt(std::span<std::uint16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_16u_ISfs(detail::data<Tarn16u>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_64s_ISfs
inline Warning sqrt(std::span<std::int64_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_64s_ISfs(detail::data<Tarn64s>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_32f
inline Warning sqrt(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqrt_32f(detail::data<Tarn32f>(src),
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqrt_64f
inline Warning sqrt(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqrt_64f(detail::data<Tarn64f>(src),
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqrt_32f_I
inline Warning sqrt(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSqrt_64f_I
inline Warning sqrt(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Principal square roots of complex elements:

/// tarnsSqrt_16sc_Sfs
inline Warning sqrt(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSqrt_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_16sc_ISfs
inline Warning sqrt(std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_16sc_ISfs(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSqrt_32fc
inline Warning sqrt(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqrt_32fc(detail::data<Tarn32fc>(src),
                                                                       detail::data<Tarn32fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqrt_64fc
inline Warning sqrt(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSqrt_64fc(detail::data<Tarn64fc>(src),
                                                                       detail::data<Tarn64fc>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSqrt_32fc_I
inline Warning sqrt(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSqrt_64fc_I
inline Warning sqrt(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSqrt_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Cube roots:

/// tarnsCubrt_32f
inline Warning cubrt(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsCubrt_32f(detail::data<Tarn32f>(src),
                                                                       detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsCubrt_32s16s_Sfs
inline Warning cubrt(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsCubrt_32s16s_Sfs(detail::data<Tarn32s>(src), detail::data<Tarn16s>(dst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

} // namespace tarns
