// Written by scripts/cpp-face from <tarns/arithmetic.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Adds two vectors:

/// tarnsAdd_8u_Sfs
inline Warning add(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_8u_Sfs(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                 detail::data<Tarn8u>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_16s_Sfs
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                  detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_16sc_Sfs
inline Warning add(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_16sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                   detail::data<Tarn16sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_32s_Sfs
inline Warning add(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                  detail::data<Tarn32s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_32sc_Sfs
inline Warning add(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_32sc_Sfs(detail::data<Tarn32sc>(src1), detail::data<Tarn32sc>(src2),
                                                   detail::data<Tarn32sc>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

// Adds a vector to another in place:

/// tarnsAdd_8u_ISfs
inline Warning add(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_8u_ISfs(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src), scaleFactor)
            : tarnStsSizeErr);
}

/// tarnsAdd_16s_ISfs
inline Warning add(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsAdd_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_16sc_ISfs
inline Warning add(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsAdd_16sc_ISfs(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_32s_ISfs
inline Warning add(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsAdd_32s_ISfs(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAdd_32sc_ISfs
inline Warning add(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsAdd_32sc_ISfs(detail::data<Tarn32sc>(src), detail::data<Tarn32sc>(srcDst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Adds two vectors without a scale:

/// tarnsAdd_8u16u
inline Warning add(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_8u16u(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                                detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_16u
inline Warning add(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                   std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_16u(detail::data<Tarn16u>(src1), detail::data<Tarn16u>(src2),
                                              detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_16s
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_16s(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                              detail::data<Tarn16s>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_16s32f
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                 detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_32u
inline Warning add(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                   std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_32u(detail::data<Tarn32u>(src1), detail::data<Tarn32u>(src2),
                                              detail::data<Tarn32u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_32f
inline Warning add(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                              detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_64f
inline Warning add(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                              detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_32fc
inline Warning add(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                               detail::data<Tarn32fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAdd_64fc
inline Warning add(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAdd_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                               detail::data<Tarn64fc>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Adds a vector to another in place without a scale:

/// tarnsAdd_16s_I
inline Warning add(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_16s_I(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAdd_32f_I
inline Warning add(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAdd_64f_I
inline Warning add(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAdd_32fc_I
inline Warning add(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_32fc_I(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAdd_64fc_I
inline Warning add(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAdd_64fc_I(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Adds a constant to a vector:

/// tarnsAddC_8u_Sfs
inline Warning add(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_8u_Sfs(detail::data<Tarn8u>(src), val, detail::data<Tarn8u>(dst),
                                                  detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddC_16s_Sfs
inline Warning add(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_16s_Sfs(detail::data<Tarn16s>(src), val, detail::data<Tarn16s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddC_16sc_Sfs
inline Warning add(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_16sc_Sfs(detail::data<Tarn16sc>(src), val, detail::data<Tarn16sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddC_32s_Sfs
inline Warning add(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_32s_Sfs(detail::data<Tarn32s>(src), val, detail::data<Tarn32s>(dst),
                                                   detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsAddC_32sc_Sfs
inline Warning add(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_32sc_Sfs(detail::data<Tarn32sc>(src), val, detail::data<Tarn32sc>(dst),
                                                    detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Adds a constant to a vector in place:

/// tarnsAddC_8u_ISfs
inline Warning add(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsAddC_8u_ISfs(val, detail::data<Tarn8u>(srcDst),
                                                                        detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsAddC_16s_ISfs
inline Warning add(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsAddC_16s_ISfs(val, detail::data<Tarn16s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsAddC_16sc_ISfs
inline Warning add(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsAddC_16sc_ISfs(val, detail::data<Tarn16sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsAddC_32s_ISfs
inline Warning add(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsAddC_32s_ISfs(val, detail::data<Tarn32s>(srcDst),
                                                                         detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

/// tarnsAddC_32sc_ISfs
inline Warning add(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsAddC_32sc_ISfs(val, detail::data<Tarn32sc>(srcDst),
                                                                          detail::count(srcDst), scaleFactor)
                                                    : tarnStsSizeErr);
}

// Adds a constant to a vector of floats:

/// tarnsAddC_32f
inline Warning add(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAddC_32f(detail::data<Tarn32f>(src), val,
                                                                      detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAddC_64f
inline Warning add(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAddC_64f(detail::data<Tarn64f>(src), val,
                                                                      detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAddC_32fc
inline Warning add(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_32fc(detail::data<Tarn32fc>(src), detail::value<Tarn32fc>(val),
                                                detail::data<Tarn32fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsAddC_64fc
inline Warning add(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsAddC_64fc(detail::data<Tarn64fc>(src), detail::value<Tarn64fc>(val),
                                                detail::data<Tarn64fc>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

// Adds a constant to a vector in place:

/// tarnsAddC_16s_I
inline Warning add(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAddC_16s_I(val, detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAddC_32f_I
inline Warning add(float val, std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAddC_32f_I(val, detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAddC_64f_I
inline Warning add(double val, std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAddC_64f_I(val, detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAddC_32fc_I
inline Warning add(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsAddC_32fc_I(detail::value<Tarn32fc>(val), detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

/// tarnsAddC_64fc_I
inline Warning add(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsAddC_64fc_I(detail::value<Tarn64fc>(val), detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
            : tarnStsSizeErr);
}

} // namespace tarns
