// Written by scripts/cpp-face from <tarns/multiply.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Multiplies two vectors.
inline Warning mul(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_8u_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_16s32s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::uint16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_16u16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_16sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_32s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int32_t> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_32s32sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsMul_32sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}

// Multiplies a vector by another in place.
inline Warning mul(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_8u_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_16sc_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_32s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int32_t> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_32s32sc_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsMul_32sc_ISfs, src, srcDst, detail::length, scaleFactor);
}

// Multiplies two vectors without a scale.
inline Warning mul(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsMul_8u16u, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::call(tarnsMul_16s, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::call(tarnsMul_16s32f, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsMul_32f, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsMul_64f, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsMul_32fc, src1, src2, dst, detail::length);
}
inline Warning mul(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsMul_64fc, src1, src2, dst, detail::length);
}

// Multiplies a vector by another in place without a scale.
inline Warning mul(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsMul_16s_I, src, srcDst, detail::length);
}
inline Warning mul(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMul_32f_I, src, srcDst, detail::length);
}
inline Warning mul(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsMul_64f_I, src, srcDst, detail::length);
}
inline Warning mul(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsMul_32fc_I, src, srcDst, detail::length);
}
inline Warning mul(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsMul_64fc_I, src, srcDst, detail::length);
}

// Multiplies a vector by a constant.
inline Warning mul(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_8u_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_16s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_16sc_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_32s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning mul(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_32sc_Sfs, src, val, dst, detail::length, scaleFactor);
}

// Multiplies a vector by a constant in place.
inline Warning mul(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulC_8u_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulC_16s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning mul(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulC_16sc_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning mul(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulC_32s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning mul(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsMulC_32sc_ISfs, val, srcDst, detail::length, scaleFactor);
}

// Multiplies a vector of floats by a constant.
inline Warning mul(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsMulC_32f, src, val, dst, detail::length);
}
inline Warning mul(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::call(tarnsMulC_64f, src, val, dst, detail::length);
}
inline Warning mul(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsMulC_32fc, src, val, dst, detail::length);
}
inline Warning mul(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsMulC_64fc, src, val, dst, detail::length);
}

// Multiplies a vector by a constant in place.
inline Warning mul(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsMulC_16s_I, val, srcDst, detail::length);
}
inline Warning mul(float val, std::span<float> srcDst)
{
    return detail::call(tarnsMulC_32f_I, val, srcDst, detail::length);
}
inline Warning mul(double val, std::span<double> srcDst)
{
    return detail::call(tarnsMulC_64f_I, val, srcDst, detail::length);
}
inline Warning mul(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsMulC_32fc_I, val, srcDst, detail::length);
}
inline Warning mul(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsMulC_64fc_I, val, srcDst, detail::length);
}

// Multiplies a vector of floats by a constant and rounds to integers.
inline Warning mul(std::span<const float> src, float val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsMulC_32f16s_Sfs, src, val, dst, detail::length, scaleFactor);
}

// Multiplies a vector of floats by a constant and rounds to integers for products that are known to be low.
inline Warning mulCLow(std::span<const float> src, float val, std::span<std::int16_t> dst)
{
    return detail::call(tarnsMulC_Low_32f16s, src, val, dst, detail::length);
}

// Adds the product of two vectors to a third one.
inline Warning addProduct(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                          std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddProduct_16s_Sfs, src1, src2, srcDst, detail::length, scaleFactor);
}
inline Warning addProduct(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                          std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddProduct_16s32s_Sfs, src1, src2, srcDst, detail::length, scaleFactor);
}
inline Warning addProduct(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2,
                          std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddProduct_32s_Sfs, src1, src2, srcDst, detail::length, scaleFactor);
}

// Adds the product of two vectors of floats to a third one.
inline Warning addProduct(std::span<const float> src1, std::span<const float> src2, std::span<float> srcDst)
{
    return detail::call(tarnsAddProduct_32f, src1, src2, srcDst, detail::length);
}
inline Warning addProduct(std::span<const double> src1, std::span<const double> src2, std::span<double> srcDst)
{
    return detail::call(tarnsAddProduct_64f, src1, src2, srcDst, detail::length);
}
inline Warning addProduct(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                          std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsAddProduct_32fc, src1, src2, srcDst, detail::length);
}
inline Warning addProduct(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                          std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsAddProduct_64fc, src1, src2, srcDst, detail::length);
}

} // namespace tarns
