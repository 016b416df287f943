// Written by scripts/cpp-face from <tarns/multiply.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Multiplies two vectors:

/// tarnsMul_8u_Sfs
inline Warning mul(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_8u_Sfs(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                 detail::data<Tarn8u>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_16s_Sfs
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                  detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_16s32s_Sfs
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                     detail::data<Tarn32s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_16u16s_Sfs
inline Warning mul(std::span<const std::uint16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16u16s_Sfs(detail::data<Tarn16u>(src1), detail::data<Tarn16s>(src2),
                                                     detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_16sc_Sfs
inline Warning mul(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                   detail::data<Tarn16sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32s_Sfs
inline Warning mul(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                  detail::data<Tarn32s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32s32sc_Sfs
inline Warning mul(std::span<const std::int32_t> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_32s32sc_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32sc>(src2),
                                                      detail::data<Tarn32sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32sc_Sfs
inline Warning mul(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_32sc_Sfs(detail::data<Tarn32sc>(src1), detail::data<Tarn32sc>(src2),
                                                   detail::data<Tarn32sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

// Multiplies a vector by another in place:

/// tarnsMul_8u_ISfs
inline Warning mul(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_8u_ISfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsMul_16s_ISfs
inline Warning mul(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMul_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_16sc_ISfs
inline Warning mul(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMul_16sc_ISfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32s_ISfs
inline Warning mul(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMul_32s_ISfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32s32sc_ISfs
inline Warning mul(std::span<const std::int32_t> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMul_32s32sc_ISfs(detail::data<Tarn32s>(src), detail::data<Tarn32sc>(srcDst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMul_32sc_ISfs
inline Warning mul(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMul_32sc_ISfs(detail::data<Tarn32sc>(src), detail::data<Tarn32sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Multiplies two vectors without a scale:

/// tarnsMul_8u16u
inline Warning mul(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_8u16u(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_16s
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16s(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                              detail::data<Tarn16s>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_16s32f
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                 detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_32f
inline Warning mul(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                              detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_64f
inline Warning mul(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                              detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_32fc
inline Warning mul(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                               detail::data<Tarn32fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMul_64fc
inline Warning mul(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMul_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                               detail::data<Tarn64fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Multiplies a vector by another in place without a scale:

/// tarnsMul_16s_I
inline Warning mul(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_16s_I(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMul_32f_I
inline Warning mul(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMul_64f_I
inline Warning mul(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMul_32fc_I
inline Warning mul(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_32fc_I(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMul_64fc_I
inline Warning mul(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMul_64fc_I(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Multiplies a vector by a constant:

/// tarnsMulC_8u_Sfs
inline Warning mul(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_8u_Sfs(detail::data<Tarn8u>(src), val, detail::data<Tarn8u>(dst),
                                                  detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulC_16s_Sfs
inline Warning mul(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_16s_Sfs(detail::data<Tarn16s>(src), val, detail::data<Tarn16s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulC_16sc_Sfs
inline Warning mul(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_16sc_Sfs(detail::data<Tarn16sc>(src), val, detail::data<Tarn16sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulC_32s_Sfs
inline Warning mul(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_32s_Sfs(detail::data<Tarn32s>(src), val, detail::data<Tarn32s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulC_32sc_Sfs
inline Warning mul(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_32sc_Sfs(detail::data<Tarn32sc>(src), val, detail::data<Tarn32sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Multiplies a vector by a constant in place:

/// tarnsMulC_8u_ISfs
inline Warning mul(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsMulC_8u_ISfs(val, detail::data<Tarn8u>(srcDst),
                                                                        detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsMulC_16s_ISfs
inline Warning mul(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsMulC_16s_ISfs(val, detail::data<Tarn16s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsMulC_16sc_ISfs
inline Warning mul(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsMulC_16sc_ISfs(val, detail::data<Tarn16sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsMulC_32s_ISfs
inline Warning mul(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsMulC_32s_ISfs(val, detail::data<Tarn32s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsMulC_32sc_ISfs
inline Warning mul(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsMulC_32sc_ISfs(val, detail::data<Tarn32sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

// Multiplies a vector of floats by a constant:

/// tarnsMulC_32f
inline Warning mul(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMulC_32f(detail::data<Tarn32f>(src), val,
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMulC_64f
inline Warning mul(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsMulC_64f(detail::data<Tarn64f>(src), val,
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsMulC_32fc
inline Warning mul(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_32fc(detail::data<Tarn32fc>(src), detail::value<Tarn32fc>(val),
                                                detail::data<Tarn32fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsMulC_64fc
inline Warning mul(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_64fc(detail::data<Tarn64fc>(src), detail::value<Tarn64fc>(val),
                                                detail::data<Tarn64fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

// Multiplies a vector by a constant in place:

/// tarnsMulC_16s_I
inline Warning mul(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsMulC_16s_I(val, detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsMulC_32f_I
inline Warning mul(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsMulC_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsMulC_64f_I
inline Warning mul(double val, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsMulC_64f_I(val, detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsMulC_32fc_I
inline Warning mul(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsMulC_32fc_I(detail::value<Tarn32fc>(val), detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

/// tarnsMulC_64fc_I
inline Warning mul(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsMulC_64fc_I(detail::value<Tarn64fc>(val), detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

// Multiplies a vector of floats by a constant and rounds to integers:

/// tarnsMulC_32f16s_Sfs
inline Warning mul(std::span<const float> src, float val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsMulC_32f16s_Sfs(detail::data<Tarn32f>(src), val, detail::data<Tarn16s>(dst),
                                                      detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Multiplies a vector of floats by a constant and rounds to integers for products that are known to be low:

/// tarnsMulC_Low_32f16s
inline Warning mulCLow(std::span<const float> src, float val, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsMulC_Low_32f16s(detail::data<Tarn32f>(src), val, detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

// Adds the product of two vectors to a third one:

/// tarnsAddProduct_16s_Sfs
inline Warning addProduct(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                          std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                         detail::data<Tarn16s>(srcDst), detail::count(src1),
                                                         scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddProduct_16s32s_Sfs
inline Warning addProduct(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                          std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                            detail::data<Tarn32s>(srcDst), detail::count(src1),
                                                            scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddProduct_32s_Sfs
inline Warning addProduct(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2,
                          std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                         detail::data<Tarn32s>(srcDst), detail::count(src1),
                                                         scaleFactor)
                               : tarnStsSizeErr);
}

// Adds the product of two vectors of floats to a third one:

/// tarnsAddProduct_32f
inline Warning addProduct(std::span<const float> src1, std::span<const float> src2, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                                     detail::data<Tarn32f>(srcDst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAddProduct_64f
inline Warning addProduct(std::span<const double> src1, std::span<const double> src2, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                                     detail::data<Tarn64f>(srcDst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAddProduct_32fc
inline Warning addProduct(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                          std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                                      detail::data<Tarn32fc>(srcDst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAddProduct_64fc
inline Warning addProduct(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                          std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(src1, src2, srcDst)
                               ? tarnsAddProduct_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                                      detail::data<Tarn64fc>(srcDst), detail::count(src1))
                               : tarnStsSizeErr);
}

} // namespace tarns
