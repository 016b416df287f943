// Written by scripts/cpp-face from <tarns/windows.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Triangular window:

/// tarnsWinBartlett_16s
inline Warning winBartlett(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_16sc
inline Warning winBartlett(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_32f
inline Warning winBartlett(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_32fc
inline Warning winBartlett(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_64f
inline Warning winBartlett(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_64fc
inline Warning winBartlett(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBartlett_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBartlett_16s_I
inline Warning winBartlett(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBartlett_16sc_I
inline Warning winBartlett(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBartlett_32f_I
inline Warning winBartlett(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBartlett_32fc_I
inline Warning winBartlett(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBartlett_64f_I
inline Warning winBartlett(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBartlett_64fc_I
inline Warning winBartlett(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBartlett_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Hann window:

/// tarnsWinHann_16s
inline Warning winHann(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsWinHann_16s(detail::data<Tarn16s>(src),
                                                                         detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsWinHann_16sc
inline Warning winHann(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHann_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHann_32f
inline Warning winHann(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsWinHann_32f(detail::data<Tarn32f>(src),
                                                                         detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsWinHann_32fc
inline Warning winHann(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHann_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHann_64f
inline Warning winHann(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsWinHann_64f(detail::data<Tarn64f>(src),
                                                                         detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsWinHann_64fc
inline Warning winHann(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHann_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHann_16s_I
inline Warning winHann(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHann_16sc_I
inline Warning winHann(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHann_32f_I
inline Warning winHann(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHann_32fc_I
inline Warning winHann(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHann_64f_I
inline Warning winHann(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHann_64fc_I
inline Warning winHann(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHann_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Hamming window:

/// tarnsWinHamming_16s
inline Warning winHamming(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_16sc
inline Warning winHamming(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_32f
inline Warning winHamming(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_32fc
inline Warning winHamming(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_64f
inline Warning winHamming(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_64fc
inline Warning winHamming(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinHamming_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinHamming_16s_I
inline Warning winHamming(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHamming_16sc_I
inline Warning winHamming(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHamming_32f_I
inline Warning winHamming(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHamming_32fc_I
inline Warning winHamming(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHamming_64f_I
inline Warning winHamming(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinHamming_64fc_I
inline Warning winHamming(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinHamming_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Generalised Blackman window:

/// tarnsWinBlackman_16s
inline Warning winBlackman(std::span<const std::int16_t> src, std::span<std::int16_t> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_16sc
inline Warning winBlackman(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_32f
inline Warning winBlackman(std::span<const float> src, std::span<float> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_32fc
inline Warning winBlackman(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_64f
inline Warning winBlackman(std::span<const double> src, std::span<double> dst, double alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_64fc
inline Warning winBlackman(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackman_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinBlackman_16s_I
inline Warning winBlackman(std::span<std::int16_t> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackman_16sc_I
inline Warning winBlackman(std::span<Tarn16sc> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackman_32f_I
inline Warning winBlackman(std::span<float> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackman_32fc_I
inline Warning winBlackman(std::span<std::complex<float>> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackman_64f_I
inline Warning winBlackman(std::span<double> srcDst, double alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackman_64fc_I
inline Warning winBlackman(std::span<std::complex<double>> srcDst, double alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackman_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

// Generalised Blackman window with alpha = -0.16, the customary one; see tarnsWinBlackman_32f().

/// tarnsWinBlackmanStd_16s
inline Warning winBlackmanStd(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_16sc
inline Warning winBlackmanStd(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_32f
inline Warning winBlackmanStd(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_32fc
inline Warning winBlackmanStd(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_64f
inline Warning winBlackmanStd(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_64fc
inline Warning winBlackmanStd(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanStd_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_16s_I
inline Warning winBlackmanStd(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_16sc_I
inline Warning winBlackmanStd(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_32f_I
inline Warning winBlackmanStd(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_32fc_I
inline Warning winBlackmanStd(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_64f_I
inline Warning winBlackmanStd(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanStd_64fc_I
inline Warning winBlackmanStd(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanStd_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Generalised Blackman window with alpha = -(0.5 / cos(pi / (len - 1)))^2, for which the side lobes fall ...

/// tarnsWinBlackmanOpt_16s
inline Warning winBlackmanOpt(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_16sc
inline Warning winBlackmanOpt(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_32f
inline Warning winBlackmanOpt(std::span<const float> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_32fc
inline Warning winBlackmanOpt(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_64f
inline Warning winBlackmanOpt(std::span<const double> src, std::span<double> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_64fc
inline Warning winBlackmanOpt(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinBlackmanOpt_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_16s_I
inline Warning winBlackmanOpt(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_16sc_I
inline Warning winBlackmanOpt(std::span<Tarn16sc> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_32f_I
inline Warning winBlackmanOpt(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_32fc_I
inline Warning winBlackmanOpt(std::span<std::complex<float>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_64f_I
inline Warning winBlackmanOpt(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanOpt_64fc_I
inline Warning winBlackmanOpt(std::span<std::complex<double>> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinBlackmanOpt_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Generalised Blackman window with a fixed-point alpha = alphaQ15 2^-15, rounded to single precision; see ...

/// tarnsWinBlackmanQ15_16s
inline Warning winBlackmanQ15(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int alphaQ15)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsWinBlackmanQ15_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                         detail::count(src), alphaQ15)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanQ15_16sc
inline Warning winBlackmanQ15(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int alphaQ15)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsWinBlackmanQ15_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                          detail::count(src), alphaQ15)
                               : tarnStsSizeErr);
}

/// tarnsWinBlackmanQ15_16s_I
inline Warning winBlackmanQ15(std::span<std::int16_t> srcDst, int alphaQ15)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsWinBlackmanQ15_16s_I(detail::data<Tarn16s>(srcDst),
                                                                                detail::count(srcDst), alphaQ15)
                                                    : tarnStsSizeErr);
}

/// tarnsWinBlackmanQ15_16sc_I
inline Warning winBlackmanQ15(std::span<Tarn16sc> srcDst, int alphaQ15)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsWinBlackmanQ15_16sc_I(detail::data<Tarn16sc>(srcDst),
                                                                                 detail::count(srcDst), alphaQ15)
                                                    : tarnStsSizeErr);
}

// Generalised Blackman window with a fixed-point alpha, scaled:

/// tarnsWinBlackmanQ15_16s_ISfs
inline Warning winBlackmanQ15(std::span<std::int16_t> srcDst, int alphaQ15, int scaleFactor)
{
    return detail::warning(
        detail::sameSize(srcDst)
            ? tarnsWinBlackmanQ15_16s_ISfs(detail::data<Tarn16s>(srcDst), detail::count(srcDst), alphaQ15, scaleFactor)
            : tarnStsSizeErr);
}

// Kaiser window:

/// tarnsWinKaiser_16s
inline Warning winKaiser(std::span<const std::int16_t> src, std::span<std::int16_t> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_16sc
inline Warning winKaiser(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_32f
inline Warning winKaiser(std::span<const float> src, std::span<float> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_32fc
inline Warning winKaiser(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_64f
inline Warning winKaiser(std::span<const double> src, std::span<double> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_64fc
inline Warning winKaiser(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, float alpha)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsWinKaiser_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst), detail::count(src), alpha)
            : tarnStsSizeErr);
}

/// tarnsWinKaiser_16s_I
inline Warning winKaiser(std::span<std::int16_t> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiser_16sc_I
inline Warning winKaiser(std::span<Tarn16sc> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiser_32f_I
inline Warning winKaiser(std::span<float> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiser_32fc_I
inline Warning winKaiser(std::span<std::complex<float>> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiser_64f_I
inline Warning winKaiser(std::span<double> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiser_64fc_I
inline Warning winKaiser(std::span<std::complex<double>> srcDst, float alpha)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiser_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst), alpha)
                               : tarnStsSizeErr);
}

// Kaiser window with a fixed-point alpha = alphaQ15 2^-15; see tarnsWinKaiser_32f().

/// tarnsWinKaiserQ15_16s
inline Warning winKaiserQ15(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int alphaQ15)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsWinKaiserQ15_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                       detail::count(src), alphaQ15)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiserQ15_16sc
inline Warning winKaiserQ15(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int alphaQ15)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsWinKaiserQ15_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                        detail::count(src), alphaQ15)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiserQ15_16s_I
inline Warning winKaiserQ15(std::span<std::int16_t> srcDst, int alphaQ15)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsWinKaiserQ15_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), alphaQ15)
                               : tarnStsSizeErr);
}

/// tarnsWinKaiserQ15_16sc_I
inline Warning winKaiserQ15(std::span<Tarn16sc> srcDst, int alphaQ15)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsWinKaiserQ15_16sc_I(detail::data<Tarn16sc>(srcDst),
                                                                               detail::count(srcDst), alphaQ15)
                                                    : tarnStsSizeErr);
}

} // namespace tarns
