// Written by scripts/cpp-face from <tarns/spectrum.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Multiplies two spectra in Perm layout, which is the circular convolution of their signals:

/// tarnsMulPerm_32f
inline Warning mulPerm(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPerm_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                                  detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMulPerm_64f
inline Warning mulPerm(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPerm_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                                  detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMulPerm_32f_I
inline Warning mulPerm(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPerm_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMulPerm_64f_I
inline Warning mulPerm(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPerm_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Multiplies two spectra in Pack layout; otherwise the same as tarnsMulPerm.

/// tarnsMulPack_32f
inline Warning mulPack(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPack_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                                  detail::data<Tarn32f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMulPack_64f
inline Warning mulPack(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPack_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                                  detail::data<Tarn64f>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsMulPack_32f_I
inline Warning mulPack(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPack_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMulPack_64f_I
inline Warning mulPack(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPack_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Multiplies two 16-bit spectra in Perm or Pack layout.

/// tarnsMulPerm_16s_Sfs
inline Warning mulPerm(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                       std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPerm_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                      detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulPerm_16s_ISfs
inline Warning mulPerm(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMulPerm_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulPack_16s_Sfs
inline Warning mulPack(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                       std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsMulPack_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                      detail::data<Tarn16s>(dst), detail::count(src1), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsMulPack_16s_ISfs
inline Warning mulPack(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, srcDst)
                               ? tarnsMulPack_16s_ISfs(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst),
                                                       detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

// Multiplies a spectrum in Pack layout by the conjugate of another, which is the circular correlation of their ...

/// tarnsMulPackConj_32f_I
inline Warning mulPackConj(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPackConj_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMulPackConj_64f_I
inline Warning mulPackConj(std::span<const double> src, std::span<double> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMulPackConj_64f_I(detail::data<Tarn64f>(src), detail::data<Tarn64f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Expands a spectrum in Perm layout to all its bins:

/// tarnsConjPerm_16sc
inline Warning conjPerm(std::span<const std::int16_t> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPerm_16sc(detail::data<Tarn16s>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPerm_32fc
inline Warning conjPerm(std::span<const float> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPerm_32fc(detail::data<Tarn32f>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPerm_64fc
inline Warning conjPerm(std::span<const double> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPerm_64fc(detail::data<Tarn64f>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPerm_16sc_I
inline Warning conjPerm(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPerm_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjPerm_32fc_I
inline Warning conjPerm(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPerm_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjPerm_64fc_I
inline Warning conjPerm(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPerm_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Expands a spectrum in Pack layout to all its bins; otherwise the same as tarnsConjPerm.

/// tarnsConjPack_16sc
inline Warning conjPack(std::span<const std::int16_t> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPack_16sc(detail::data<Tarn16s>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPack_32fc
inline Warning conjPack(std::span<const float> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPack_32fc(detail::data<Tarn32f>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPack_64fc
inline Warning conjPack(std::span<const double> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjPack_64fc(detail::data<Tarn64f>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjPack_16sc_I
inline Warning conjPack(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPack_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjPack_32fc_I
inline Warning conjPack(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPack_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjPack_64fc_I
inline Warning conjPack(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjPack_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Expands a spectrum in CCS layout to all its bins, as tarnsConjPerm does.

/// tarnsConjCcs_16sc_I
inline Warning conjCcs(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjCcs_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjCcs_32fc_I
inline Warning conjCcs(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjCcs_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsConjCcs_64fc_I
inline Warning conjCcs(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsConjCcs_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Conjugates an array and turns it round:

/// tarnsConjFlip_16sc
inline Warning conjFlip(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjFlip_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjFlip_32fc
inline Warning conjFlip(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjFlip_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsConjFlip_64fc
inline Warning conjFlip(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsConjFlip_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

} // namespace tarns
