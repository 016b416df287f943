// Written by scripts/cpp-face from <tarns/divide.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Divides the second vector by the first.
inline Warning div(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsDiv_8u_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsDiv_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsDiv_16sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsDiv_32s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsDiv_8u_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsDiv_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsDiv_16sc_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsDiv_32s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsDiv_32f, src1, src2, dst, detail::length);
}
inline Warning div(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsDiv_64f, src1, src2, dst, detail::length);
}
inline Warning div(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsDiv_32fc, src1, src2, dst, detail::length);
}
inline Warning div(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsDiv_64fc, src1, src2, dst, detail::length);
}
inline Warning div(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsDiv_32f_I, src, srcDst, detail::length);
}
inline Warning div(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsDiv_64f_I, src, srcDst, detail::length);
}
inline Warning div(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsDiv_32fc_I, src, srcDst, detail::length);
}
inline Warning div(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsDiv_64fc_I, src, srcDst, detail::length);
}

// Divides a vector by a constant.
inline Warning div(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsDivC_8u_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsDivC_16s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning div(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsDivC_16sc_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning div(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsDivC_8u_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsDivC_16s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning div(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsDivC_16sc_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning div(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsDivC_32f, src, val, dst, detail::length);
}
inline Warning div(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::call(tarnsDivC_64f, src, val, dst, detail::length);
}
inline Warning div(float val, std::span<float> srcDst)
{
    return detail::call(tarnsDivC_32f_I, val, srcDst, detail::length);
}
inline Warning div(double val, std::span<double> srcDst)
{
    return detail::call(tarnsDivC_64f_I, val, srcDst, detail::length);
}

// Divides a complex vector by a constant.
inline Warning div(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsDivC_32fc, src, val, dst, detail::length);
}
inline Warning div(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsDivC_64fc, src, val, dst, detail::length);
}
inline Warning div(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsDivC_32fc_I, val, srcDst, detail::length);
}
inline Warning div(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsDivC_64fc_I, val, srcDst, detail::length);
}

// Divides a constant by each element.
inline Warning divRev(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsDivCRev_16u, src, val, dst, detail::length);
}
inline Warning divRev(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsDivCRev_32f, src, val, dst, detail::length);
}
inline Warning divRev(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsDivCRev_16u_I, val, srcDst, detail::length);
}
inline Warning divRev(float val, std::span<float> srcDst)
{
    return detail::call(tarnsDivCRev_32f_I, val, srcDst, detail::length);
}

} // namespace tarns
