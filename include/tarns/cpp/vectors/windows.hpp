// Written by scripts/cpp-face from <tarns/windows.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Multiplies by a triangular window.
inline Warning winBartlett(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsWinBartlett_16s, src, dst, detail::length);
}
inline Warning winBartlett(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsWinBartlett_16sc, src, dst, detail::length);
}
inline Warning winBartlett(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsWinBartlett_32f, src, dst, detail::length);
}
inline Warning winBartlett(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsWinBartlett_32fc, src, dst, detail::length);
}
inline Warning winBartlett(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsWinBartlett_64f, src, dst, detail::length);
}
inline Warning winBartlett(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsWinBartlett_64fc, src, dst, detail::length);
}
inline Warning winBartlett(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsWinBartlett_16s_I, srcDst, detail::length);
}
inline Warning winBartlett(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsWinBartlett_16sc_I, srcDst, detail::length);
}
inline Warning winBartlett(std::span<float> srcDst)
{
    return detail::call(tarnsWinBartlett_32f_I, srcDst, detail::length);
}
inline Warning winBartlett(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsWinBartlett_32fc_I, srcDst, detail::length);
}
inline Warning winBartlett(std::span<double> srcDst)
{
    return detail::call(tarnsWinBartlett_64f_I, srcDst, detail::length);
}
inline Warning winBartlett(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsWinBartlett_64fc_I, srcDst, detail::length);
}

// Multiplies by a Hann window.
inline Warning winHann(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsWinHann_16s, src, dst, detail::length);
}
inline Warning winHann(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsWinHann_16sc, src, dst, detail::length);
}
inline Warning winHann(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsWinHann_32f, src, dst, detail::length);
}
inline Warning winHann(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsWinHann_32fc, src, dst, detail::length);
}
inline Warning winHann(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsWinHann_64f, src, dst, detail::length);
}
inline Warning winHann(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsWinHann_64fc, src, dst, detail::length);
}
inline Warning winHann(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsWinHann_16s_I, srcDst, detail::length);
}
inline Warning winHann(std::span<Tarn16sc> srcDst) { return detail::call(tarnsWinHann_16sc_I, srcDst, detail::length); }
inline Warning winHann(std::span<float> srcDst) { return detail::call(tarnsWinHann_32f_I, srcDst, detail::length); }
inline Warning winHann(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsWinHann_32fc_I, srcDst, detail::length);
}
inline Warning winHann(std::span<double> srcDst) { return detail::call(tarnsWinHann_64f_I, srcDst, detail::length); }
inline Warning winHann(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsWinHann_64fc_I, srcDst, detail::length);
}

// Multiplies by a Hamming window.
inline Warning winHamming(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsWinHamming_16s, src, dst, detail::length);
}
inline Warning winHamming(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsWinHamming_16sc, src, dst, detail::length);
}
inline Warning winHamming(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsWinHamming_32f, src, dst, detail::length);
}
inline Warning winHamming(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsWinHamming_32fc, src, dst, detail::length);
}
inline Warning winHamming(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsWinHamming_64f, src, dst, detail::length);
}
inline Warning winHamming(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsWinHamming_64fc, src, dst, detail::length);
}
inline Warning winHamming(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsWinHamming_16s_I, srcDst, detail::length);
}
inline Warning winHamming(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsWinHamming_16sc_I, srcDst, detail::length);
}
inline Warning winHamming(std::span<float> srcDst)
{
    return detail::call(tarnsWinHamming_32f_I, srcDst, detail::length);
}
inline Warning winHamming(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsWinHamming_32fc_I, srcDst, detail::length);
}
inline Warning winHamming(std::span<double> srcDst)
{
    return detail::call(tarnsWinHamming_64f_I, srcDst, detail::length);
}
inline Warning winHamming(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsWinHamming_64fc_I, srcDst, detail::length);
}

// Multiplies by a generalised Blackman window.
inline Warning winBlackman(std::span<const std::int16_t> src, std::span<std::int16_t> dst, float alpha)
{
    return detail::call(tarnsWinBlackman_16s, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, float alpha)
{
    return detail::call(tarnsWinBlackman_16sc, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<const float> src, std::span<float> dst, float alpha)
{
    return detail::call(tarnsWinBlackman_32f, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float alpha)
{
    return detail::call(tarnsWinBlackman_32fc, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<const double> src, std::span<double> dst, double alpha)
{
    return detail::call(tarnsWinBlackman_64f, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double alpha)
{
    return detail::call(tarnsWinBlackman_64fc, src, dst, detail::length, alpha);
}
inline Warning winBlackman(std::span<std::int16_t> srcDst, float alpha)
{
    return detail::call(tarnsWinBlackman_16s_I, srcDst, detail::length, alpha);
}
inline Warning winBlackman(std::span<Tarn16sc> srcDst, float alpha)
{
    return detail::call(tarnsWinBlackman_16sc_I, srcDst, detail::length, alpha);
}
inline Warning winBlackman(std::span<float> srcDst, float alpha)
{
    return detail::call(tarnsWinBlackman_32f_I, srcDst, detail::length, alpha);
}
inline Warning winBlackman(std::span<std::complex<float>> srcDst, float alpha)
{
    return detail::call(tarnsWinBlackman_32fc_I, srcDst, detail::length, alpha);
}
inline Warning winBlackman(std::span<double> srcDst, double alpha)
{
    return detail::call(tarnsWinBlackman_64f_I, srcDst, detail::length, alpha);
}
inline Warning winBlackman(std::span<std::complex<double>> srcDst, double alpha)
{
    return detail::call(tarnsWinBlackman_64fc_I, srcDst, detail::length, alpha);
}

// Multiplies by a generalised Blackman window with alpha = -0.16, the customary one; see ...
inline Warning winBlackmanStd(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsWinBlackmanStd_16s, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsWinBlackmanStd_16sc, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsWinBlackmanStd_32f, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsWinBlackmanStd_32fc, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsWinBlackmanStd_64f, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsWinBlackmanStd_64fc, src, dst, detail::length);
}
inline Warning winBlackmanStd(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_16s_I, srcDst, detail::length);
}
inline Warning winBlackmanStd(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_16sc_I, srcDst, detail::length);
}
inline Warning winBlackmanStd(std::span<float> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_32f_I, srcDst, detail::length);
}
inline Warning winBlackmanStd(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_32fc_I, srcDst, detail::length);
}
inline Warning winBlackmanStd(std::span<double> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_64f_I, srcDst, detail::length);
}
inline Warning winBlackmanStd(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsWinBlackmanStd_64fc_I, srcDst, detail::length);
}

// Multiplies by a generalised Blackman window with alpha = -(0.5 / cos(pi / (len - 1)))^2, for which the side ...
inline Warning winBlackmanOpt(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsWinBlackmanOpt_16s, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsWinBlackmanOpt_16sc, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsWinBlackmanOpt_32f, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsWinBlackmanOpt_32fc, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsWinBlackmanOpt_64f, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsWinBlackmanOpt_64fc, src, dst, detail::length);
}
inline Warning winBlackmanOpt(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_16s_I, srcDst, detail::length);
}
inline Warning winBlackmanOpt(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_16sc_I, srcDst, detail::length);
}
inline Warning winBlackmanOpt(std::span<float> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_32f_I, srcDst, detail::length);
}
inline Warning winBlackmanOpt(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_32fc_I, srcDst, detail::length);
}
inline Warning winBlackmanOpt(std::span<double> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_64f_I, srcDst, detail::length);
}
inline Warning winBlackmanOpt(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsWinBlackmanOpt_64fc_I, srcDst, detail::length);
}

// Multiplies by a generalised Blackman window with a fixed-point alpha = alphaQ15 2^-15, rounded to single ...
inline Warning winBlackmanQ15(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int alphaQ15)
{
    return detail::call(tarnsWinBlackmanQ15_16s, src, dst, detail::length, alphaQ15);
}
inline Warning winBlackmanQ15(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int alphaQ15)
{
    return detail::call(tarnsWinBlackmanQ15_16sc, src, dst, detail::length, alphaQ15);
}
inline Warning winBlackmanQ15(std::span<std::int16_t> srcDst, int alphaQ15)
{
    return detail::call(tarnsWinBlackmanQ15_16s_I, srcDst, detail::length, alphaQ15);
}
inline Warning winBlackmanQ15(std::span<Tarn16sc> srcDst, int alphaQ15)
{
    return detail::call(tarnsWinBlackmanQ15_16sc_I, srcDst, detail::length, alphaQ15);
}

// Multiplies by a generalised Blackman window with a fixed-point alpha, scaled.
inline Warning winBlackmanQ15(std::span<std::int16_t> srcDst, int alphaQ15, int scaleFactor)
{
    return detail::call(tarnsWinBlackmanQ15_16s_ISfs, srcDst, detail::length, alphaQ15, scaleFactor);
}

// Multiplies by a Kaiser window.
inline Warning winKaiser(std::span<const std::int16_t> src, std::span<std::int16_t> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_16s, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_16sc, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<const float> src, std::span<float> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_32f, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_32fc, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<const double> src, std::span<double> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_64f, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, float alpha)
{
    return detail::call(tarnsWinKaiser_64fc, src, dst, detail::length, alpha);
}
inline Warning winKaiser(std::span<std::int16_t> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_16s_I, srcDst, detail::length, alpha);
}
inline Warning winKaiser(std::span<Tarn16sc> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_16sc_I, srcDst, detail::length, alpha);
}
inline Warning winKaiser(std::span<float> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_32f_I, srcDst, detail::length, alpha);
}
inline Warning winKaiser(std::span<std::complex<float>> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_32fc_I, srcDst, detail::length, alpha);
}
inline Warning winKaiser(std::span<double> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_64f_I, srcDst, detail::length, alpha);
}
inline Warning winKaiser(std::span<std::complex<double>> srcDst, float alpha)
{
    return detail::call(tarnsWinKaiser_64fc_I, srcDst, detail::length, alpha);
}

// Multiplies by a Kaiser window with a fixed-point alpha = alphaQ15 2^-15; see tarnsWinKaiser_32f().
inline Warning winKaiserQ15(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int alphaQ15)
{
    return detail::call(tarnsWinKaiserQ15_16s, src, dst, detail::length, alphaQ15);
}
inline Warning winKaiserQ15(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int alphaQ15)
{
    return detail::call(tarnsWinKaiserQ15_16sc, src, dst, detail::length, alphaQ15);
}
inline Warning winKaiserQ15(std::span<std::int16_t> srcDst, int alphaQ15)
{
    return detail::call(tarnsWinKaiserQ15_16s_I, srcDst, detail::length, alphaQ15);
}
inline Warning winKaiserQ15(std::span<Tarn16sc> srcDst, int alphaQ15)
{
    return detail::call(tarnsWinKaiserQ15_16sc_I, srcDst, detail::length, alphaQ15);
}

} // namespace tarns
