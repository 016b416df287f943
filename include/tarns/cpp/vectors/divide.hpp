// Written by scripts/cpp-face from <tarns/divide.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Divides the second vector by the first:

/// tarnsDiv_8u_Sfs
inline Warning div(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_8u_Sfs(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                 detail::data<Tarn8u>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_16s_Sfs
inline Warning div(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                  detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_16sc_Sfs
inline Warning div(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_16sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                   detail::data<Tarn16sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_32s_Sfs
inline Warning div(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                  detail::data<Tarn32s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_8u_ISfs
inline Warning div(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsDiv_8u_ISfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsDiv_16s_ISfs
inline Warning div(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsDiv_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_16sc_ISfs
inline Warning div(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsDiv_16sc_ISfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_32s_ISfs
inline Warning div(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsDiv_32s_ISfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDiv_32f
inline Warning div(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                              detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsDiv_64f
inline Warning div(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                              detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsDiv_32fc
inline Warning div(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                               detail::data<Tarn32fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsDiv_64fc
inline Warning div(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsDiv_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                               detail::data<Tarn64fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsDiv_32f_I
inline Warning div(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsDiv_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsDiv_64f_I
inline Warning div(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsDiv_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsDiv_32fc_I
inline Warning div(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsDiv_32fc_I(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsDiv_64fc_I
inline Warning div(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsDiv_64fc_I(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Divides a vector by a constant:

/// tarnsDivC_8u_Sfs
inline Warning div(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsDivC_8u_Sfs(detail::data<Tarn8u>(src), val, detail::data<Tarn8u>(dst),
                                                  detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDivC_16s_Sfs
inline Warning div(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsDivC_16s_Sfs(detail::data<Tarn16s>(src), val, detail::data<Tarn16s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDivC_16sc_Sfs
inline Warning div(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsDivC_16sc_Sfs(detail::data<Tarn16sc>(src), val, detail::data<Tarn16sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsDivC_8u_ISfs
inline Warning div(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsDivC_8u_ISfs(val, detail::data<Tarn8u>(srcDst),
                                                                        detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsDivC_16s_ISfs
inline Warning div(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsDivC_16s_ISfs(val, detail::data<Tarn16s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsDivC_16sc_ISfs
inline Warning div(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsDivC_16sc_ISfs(val, detail::data<Tarn16sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsDivC_32f
inline Warning div(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsDivC_32f(detail::data<Tarn32f>(src), val,
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsDivC_64f
inline Warning div(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsDivC_64f(detail::data<Tarn64f>(src), val,
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsDivC_32f_I
inline Warning div(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsDivC_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsDivC_64f_I
inline Warning div(double val, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsDivC_64f_I(val, detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Divides a complex vector by a constant:

/// tarnsDivC_32fc
inline Warning div(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsDivC_32fc(detail::data<Tarn32fc>(src), detail::value<Tarn32fc>(val),
                                                detail::data<Tarn32fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsDivC_64fc
inline Warning div(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsDivC_64fc(detail::data<Tarn64fc>(src), detail::value<Tarn64fc>(val),
                                                detail::data<Tarn64fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsDivC_32fc_I
inline Warning div(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsDivC_32fc_I(detail::value<Tarn32fc>(val), detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

/// tarnsDivC_64fc_I
inline Warning div(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsDivC_64fc_I(detail::value<Tarn64fc>(val), detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

// Divides a constant by each element:

/// tarnsDivCRev_16u
inline Warning divRev(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsDivCRev_16u(detail::data<Tarn16u>(src), val,
                                                                         detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsDivCRev_32f
inline Warning divRev(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsDivCRev_32f(detail::data<Tarn32f>(src), val,
                                                                         detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsDivCRev_16u_I
inline Warning divRev(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsDivCRev_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsDivCRev_32f_I
inline Warning divRev(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsDivCRev_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

} // namespace tarns
