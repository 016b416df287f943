// Written by scripts/cpp-face from <tarns/subtract.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Subtracts the first vector from the second.
inline Warning sub(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsSub_8u_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsSub_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsSub_16sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsSub_32s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsSub_32sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}

// Subtracts a vector from another in place.
inline Warning sub(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSub_8u_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSub_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSub_16sc_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSub_32s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSub_32sc_ISfs, src, srcDst, detail::length, scaleFactor);
}

// Subtracts the first vector from the second without a scale.
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::call(tarnsSub_16s, src1, src2, dst, detail::length);
}
inline Warning sub(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::call(tarnsSub_16s32f, src1, src2, dst, detail::length);
}
inline Warning sub(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsSub_32f, src1, src2, dst, detail::length);
}
inline Warning sub(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsSub_64f, src1, src2, dst, detail::length);
}
inline Warning sub(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSub_32fc, src1, src2, dst, detail::length);
}
inline Warning sub(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSub_64fc, src1, src2, dst, detail::length);
}

// Subtracts a vector from another in place without a scale.
inline Warning sub(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsSub_16s_I, src, srcDst, detail::length);
}
inline Warning sub(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsSub_32f_I, src, srcDst, detail::length);
}
inline Warning sub(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsSub_64f_I, src, srcDst, detail::length);
}
inline Warning sub(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsSub_32fc_I, src, srcDst, detail::length);
}
inline Warning sub(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsSub_64fc_I, src, srcDst, detail::length);
}

// Subtracts a constant from a vector.
inline Warning sub(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubC_8u_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubC_16s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsSubC_16sc_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubC_32s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning sub(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::call(tarnsSubC_32sc_Sfs, src, val, dst, detail::length, scaleFactor);
}

// Subtracts a constant from a vector in place.
inline Warning sub(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubC_8u_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubC_16s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning sub(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubC_16sc_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning sub(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubC_32s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning sub(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubC_32sc_ISfs, val, srcDst, detail::length, scaleFactor);
}

// Subtracts a constant from a vector of floats.
inline Warning sub(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsSubC_32f, src, val, dst, detail::length);
}
inline Warning sub(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::call(tarnsSubC_64f, src, val, dst, detail::length);
}
inline Warning sub(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSubC_32fc, src, val, dst, detail::length);
}
inline Warning sub(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSubC_64fc, src, val, dst, detail::length);
}

// Subtracts a constant from a vector in place.
inline Warning sub(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsSubC_16s_I, val, srcDst, detail::length);
}
inline Warning sub(float val, std::span<float> srcDst)
{
    return detail::call(tarnsSubC_32f_I, val, srcDst, detail::length);
}
inline Warning sub(double val, std::span<double> srcDst)
{
    return detail::call(tarnsSubC_64f_I, val, srcDst, detail::length);
}
inline Warning sub(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsSubC_32fc_I, val, srcDst, detail::length);
}
inline Warning sub(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsSubC_64fc_I, val, srcDst, detail::length);
}

// Subtracts a vector from a constant.
inline Warning subRev(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_8u_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning subRev(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_16s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning subRev(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_16sc_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning subRev(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_32s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning subRev(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_32sc_Sfs, src, val, dst, detail::length, scaleFactor);
}

// Subtracts a vector from a constant in place.
inline Warning subRev(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_8u_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning subRev(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_16s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning subRev(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_16sc_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning subRev(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_32s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning subRev(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSubCRev_32sc_ISfs, val, srcDst, detail::length, scaleFactor);
}

// Subtracts a vector from a constant in floats.
inline Warning subRev(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsSubCRev_32f, src, val, dst, detail::length);
}
inline Warning subRev(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::call(tarnsSubCRev_64f, src, val, dst, detail::length);
}
inline Warning subRev(std::span<const std::complex<float>> src, std::complex<float> val,
                      std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSubCRev_32fc, src, val, dst, detail::length);
}
inline Warning subRev(std::span<const std::complex<double>> src, std::complex<double> val,
                      std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSubCRev_64fc, src, val, dst, detail::length);
}

// Subtracts a vector from a constant in place.
inline Warning subRev(float val, std::span<float> srcDst)
{
    return detail::call(tarnsSubCRev_32f_I, val, srcDst, detail::length);
}
inline Warning subRev(double val, std::span<double> srcDst)
{
    return detail::call(tarnsSubCRev_64f_I, val, srcDst, detail::length);
}
inline Warning subRev(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsSubCRev_32fc_I, val, srcDst, detail::length);
}
inline Warning subRev(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsSubCRev_64fc_I, val, srcDst, detail::length);
}

} // namespace tarns
