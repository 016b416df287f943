// Written by scripts/cpp-face from <tarns/spectrum.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Multiplies two spectra in Perm layout, which is the circular convolution of their signals.
inline Warning mulPerm(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsMulPerm_32f, src1, src2, dst, detail::length);
}
inline Warning mulPerm(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsMulPerm_64f, src1, src2, dst, detail::length);
}
inline Warning mulPerm(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMulPerm_32f_I, src, srcDst, detail::length);
}
inline Warning mulPerm(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsMulPerm_64f_I, src, srcDst, detail::length);
}

// Multiplies two spectra in Pack layout; otherwise the same as tarnsMulPerm.
inline Warning mulPack(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsMulPack_32f, src1, src2, dst, detail::length);
}
inline Warning mulPack(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsMulPack_64f, src1, src2, dst, detail::length);
}
inline Warning mulPack(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMulPack_32f_I, src, srcDst, detail::length);
}
inline Warning mulPack(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsMulPack_64f_I, src, srcDst, detail::length);
}

// Multiplies two 16-bit spectra in Perm or Pack layout.
inline Warning mulPerm(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                       std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulPerm_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mulPerm(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulPerm_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mulPack(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                       std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulPack_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mulPack(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulPack_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}

// Multiplies a spectrum in Pack layout by the conjugate of another, which is the circular correlation of their ...
inline Warning mulPackConj(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMulPackConj_32f_I, src, srcDst, detail::length);
}
inline Warning mulPackConj(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsMulPackConj_64f_I, src, srcDst, detail::length);
}

// Expands a spectrum in Perm layout to all its bins.
inline Warning conjPerm(std::span<const std::int16_t> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsConjPerm_16sc, src, dst, detail::length);
}
inline Warning conjPerm(std::span<const float> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsConjPerm_32fc, src, dst, detail::length);
}
inline Warning conjPerm(std::span<const double> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsConjPerm_64fc, src, dst, detail::length);
}
inline Warning conjPerm(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsConjPerm_16sc_I, srcDst, detail::length);
}
inline Warning conjPerm(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsConjPerm_32fc_I, srcDst, detail::length);
}
inline Warning conjPerm(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsConjPerm_64fc_I, srcDst, detail::length);
}

// Expands a spectrum in Pack layout to all its bins; otherwise the same as tarnsConjPerm.
inline Warning conjPack(std::span<const std::int16_t> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsConjPack_16sc, src, dst, detail::length);
}
inline Warning conjPack(std::span<const float> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsConjPack_32fc, src, dst, detail::length);
}
inline Warning conjPack(std::span<const double> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsConjPack_64fc, src, dst, detail::length);
}
inline Warning conjPack(std::span<Tarn16sc> srcDst)
{
    return detail::call(tarnsConjPack_16sc_I, srcDst, detail::length);
}
inline Warning conjPack(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsConjPack_32fc_I, srcDst, detail::length);
}
inline Warning conjPack(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsConjPack_64fc_I, srcDst, detail::length);
}

// Expands a spectrum in CCS layout to all its bins, as tarnsConjPerm does.
inline Warning conjCcs(std::span<Tarn16sc> srcDst) { return detail::call(tarnsConjCcs_16sc_I, srcDst, detail::length); }
inline Warning conjCcs(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsConjCcs_32fc_I, srcDst, detail::length);
}
inline Warning conjCcs(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsConjCcs_64fc_I, srcDst, detail::length);
}

// Conjugates an array and turns it round.
inline Warning conjFlip(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsConjFlip_16sc, src, dst, detail::length);
}
inline Warning conjFlip(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsConjFlip_32fc, src, dst, detail::length);
}
inline Warning conjFlip(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsConjFlip_64fc, src, dst, detail::length);
}

} // namespace tarns
