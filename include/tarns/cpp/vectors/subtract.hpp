// Written by scripts/cpp-face from <tarns/subtract.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Subtracts the first vector from the second:

/// tarnsSub_8u_Sfs
inline Warning sub(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_8u_Sfs(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                 detail::data<Tarn8u>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_16s_Sfs
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                  detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_16sc_Sfs
inline Warning sub(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_16sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                   detail::data<Tarn16sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_32s_Sfs
inline Warning sub(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                  detail::data<Tarn32s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_32sc_Sfs
inline Warning sub(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_32sc_Sfs(detail::data<Tarn32sc>(src1), detail::data<Tarn32sc>(src2),
                                                   detail::data<Tarn32sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

// Subtracts a vector from another in place:

/// tarnsSub_8u_ISfs
inline Warning sub(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_8u_ISfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsSub_16s_ISfs
inline Warning sub(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsSub_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_16sc_ISfs
inline Warning sub(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsSub_16sc_ISfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_32s_ISfs
inline Warning sub(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsSub_32s_ISfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSub_32sc_ISfs
inline Warning sub(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsSub_32sc_ISfs(detail::data<Tarn32sc>(src), detail::data<Tarn32sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Subtracts the first vector from the second without a scale:

/// tarnsSub_16s
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_16s(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                              detail::data<Tarn16s>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsSub_16s32f
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                 detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsSub_32f
inline Warning sub(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                              detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsSub_64f
inline Warning sub(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                              detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsSub_32fc
inline Warning sub(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                               detail::data<Tarn32fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsSub_64fc
inline Warning sub(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsSub_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                               detail::data<Tarn64fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Subtracts a vector from another in place without a scale:

/// tarnsSub_16s_I
inline Warning sub(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_16s_I(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsSub_32f_I
inline Warning sub(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsSub_64f_I
inline Warning sub(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsSub_32fc_I
inline Warning sub(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_32fc_I(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsSub_64fc_I
inline Warning sub(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsSub_64fc_I(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Subtracts a constant from a vector:

/// tarnsSubC_8u_Sfs
inline Warning sub(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_8u_Sfs(detail::data<Tarn8u>(src), val, detail::data<Tarn8u>(dst),
                                                  detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubC_16s_Sfs
inline Warning sub(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_16s_Sfs(detail::data<Tarn16s>(src), val, detail::data<Tarn16s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubC_16sc_Sfs
inline Warning sub(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_16sc_Sfs(detail::data<Tarn16sc>(src), val, detail::data<Tarn16sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubC_32s_Sfs
inline Warning sub(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_32s_Sfs(detail::data<Tarn32s>(src), val, detail::data<Tarn32s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubC_32sc_Sfs
inline Warning sub(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_32sc_Sfs(detail::data<Tarn32sc>(src), val, detail::data<Tarn32sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Subtracts a constant from a vector in place:

/// tarnsSubC_8u_ISfs
inline Warning sub(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubC_8u_ISfs(val, detail::data<Tarn8u>(srcDst),
                                                                        detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubC_16s_ISfs
inline Warning sub(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubC_16s_ISfs(val, detail::data<Tarn16s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubC_16sc_ISfs
inline Warning sub(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubC_16sc_ISfs(val, detail::data<Tarn16sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubC_32s_ISfs
inline Warning sub(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubC_32s_ISfs(val, detail::data<Tarn32s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubC_32sc_ISfs
inline Warning sub(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubC_32sc_ISfs(val, detail::data<Tarn32sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

// Subtracts a constant from a vector of floats:

/// tarnsSubC_32f
inline Warning sub(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSubC_32f(detail::data<Tarn32f>(src), val,
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSubC_64f
inline Warning sub(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSubC_64f(detail::data<Tarn64f>(src), val,
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSubC_32fc
inline Warning sub(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_32fc(detail::data<Tarn32fc>(src), detail::value<Tarn32fc>(val),
                                                detail::data<Tarn32fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsSubC_64fc
inline Warning sub(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubC_64fc(detail::data<Tarn64fc>(src), detail::value<Tarn64fc>(val),
                                                detail::data<Tarn64fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

// Subtracts a constant from a vector in place:

/// tarnsSubC_16s_I
inline Warning sub(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSubC_16s_I(val, detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSubC_32f_I
inline Warning sub(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSubC_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSubC_64f_I
inline Warning sub(double val, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSubC_64f_I(val, detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSubC_32fc_I
inline Warning sub(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsSubC_32fc_I(detail::value<Tarn32fc>(val), detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

/// tarnsSubC_64fc_I
inline Warning sub(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsSubC_64fc_I(detail::value<Tarn64fc>(val), detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

// Subtracts a vector from a constant:

/// tarnsSubCRev_8u_Sfs
inline Warning subRev(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_8u_Sfs(detail::data<Tarn8u>(src), val, detail::data<Tarn8u>(dst),
                                                     detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_16s_Sfs
inline Warning subRev(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_16s_Sfs(detail::data<Tarn16s>(src), val, detail::data<Tarn16s>(dst),
                                                      detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_16sc_Sfs
inline Warning subRev(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_16sc_Sfs(detail::data<Tarn16sc>(src), val, detail::data<Tarn16sc>(dst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_32s_Sfs
inline Warning subRev(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_32s_Sfs(detail::data<Tarn32s>(src), val, detail::data<Tarn32s>(dst),
                                                      detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_32sc_Sfs
inline Warning subRev(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_32sc_Sfs(detail::data<Tarn32sc>(src), val, detail::data<Tarn32sc>(dst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Subtracts a vector from a constant in place:

/// tarnsSubCRev_8u_ISfs
inline Warning subRev(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubCRev_8u_ISfs(val, detail::data<Tarn8u>(srcDst),
                                                                           detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubCRev_16s_ISfs
inline Warning subRev(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubCRev_16s_ISfs(val, detail::data<Tarn16s>(srcDst),
                                                                            detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubCRev_16sc_ISfs
inline Warning subRev(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubCRev_16sc_ISfs(val, detail::data<Tarn16sc>(srcDst),
                                                                             detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubCRev_32s_ISfs
inline Warning subRev(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubCRev_32s_ISfs(val, detail::data<Tarn32s>(srcDst),
                                                                            detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsSubCRev_32sc_ISfs
inline Warning subRev(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsSubCRev_32sc_ISfs(val, detail::data<Tarn32sc>(srcDst),
                                                                             detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

// Subtracts a vector from a constant in floats:

/// tarnsSubCRev_32f
inline Warning subRev(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSubCRev_32f(detail::data<Tarn32f>(src), val,
                                                                         detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSubCRev_64f
inline Warning subRev(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsSubCRev_64f(detail::data<Tarn64f>(src), val,
                                                                         detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsSubCRev_32fc
inline Warning subRev(std::span<const std::complex<float>> src, std::complex<float> val,
                      std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_32fc(detail::data<Tarn32fc>(src), detail::value<Tarn32fc>(val),
                                                   detail::data<Tarn32fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_64fc
inline Warning subRev(std::span<const std::complex<double>> src, std::complex<double> val,
                      std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsSubCRev_64fc(detail::data<Tarn64fc>(src), detail::value<Tarn64fc>(val),
                                                   detail::data<Tarn64fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

// Subtracts a vector from a constant in place:

/// tarnsSubCRev_32f_I
inline Warning subRev(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSubCRev_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_64f_I
inline Warning subRev(double val, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSubCRev_64f_I(val, detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSubCRev_32fc_I
inline Warning subRev(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsSubCRev_32fc_I(detail::value<Tarn32fc>(val), detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

/// tarnsSubCRev_64fc_I
inline Warning subRev(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsSubCRev_64fc_I(detail::value<Tarn64fc>(val), detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

} // namespace tarns
