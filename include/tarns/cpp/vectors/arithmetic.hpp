// Written by scripts/cpp-face from <tarns/arithmetic.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Adds two vectors.
inline Warning add(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint8_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsAdd_8u_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsAdd_16s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, std::span<Tarn16sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsAdd_16sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2, std::span<std::int32_t> dst,
                   int scaleFactor)
{
    return detail::call(tarnsAdd_32s_Sfs, src1, src2, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, std::span<Tarn32sc> dst,
                   int scaleFactor)
{
    return detail::call(tarnsAdd_32sc_Sfs, src1, src2, dst, detail::length, scaleFactor);
}

// Adds a vector to another in place.
inline Warning add(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAdd_8u_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAdd_16s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn16sc> src, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsAdd_16sc_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAdd_32s_ISfs, src, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn32sc> src, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsAdd_32sc_ISfs, src, srcDst, detail::length, scaleFactor);
}

// Adds two vectors without a scale.
inline Warning add(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsAdd_8u16u, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                   std::span<std::uint16_t> dst)
{
    return detail::call(tarnsAdd_16u, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<std::int16_t> dst)
{
    return detail::call(tarnsAdd_16s, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2, std::span<float> dst)
{
    return detail::call(tarnsAdd_16s32f, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                   std::span<std::uint32_t> dst)
{
    return detail::call(tarnsAdd_32u, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const float> src1, std::span<const float> src2, std::span<float> dst)
{
    return detail::call(tarnsAdd_32f, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const double> src1, std::span<const double> src2, std::span<double> dst)
{
    return detail::call(tarnsAdd_64f, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsAdd_32fc, src1, src2, dst, detail::length);
}
inline Warning add(std::span<const std::complex<double>> src1, std::span<const std::complex<double>> src2,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsAdd_64fc, src1, src2, dst, detail::length);
}

// Adds a vector to another in place without a scale.
inline Warning add(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsAdd_16s_I, src, srcDst, detail::length);
}
inline Warning add(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsAdd_32f_I, src, srcDst, detail::length);
}
inline Warning add(std::span<const double> src, std::span<double> srcDst)
{
    return detail::call(tarnsAdd_64f_I, src, srcDst, detail::length);
}
inline Warning add(std::span<const std::complex<float>> src, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsAdd_32fc_I, src, srcDst, detail::length);
}
inline Warning add(std::span<const std::complex<double>> src, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsAdd_64fc_I, src, srcDst, detail::length);
}

// Adds a constant to a vector.
inline Warning add(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsAddC_8u_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int16_t> src, std::int16_t val, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsAddC_16s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn16sc> src, Tarn16sc val, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsAddC_16sc_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const std::int32_t> src, std::int32_t val, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsAddC_32s_Sfs, src, val, dst, detail::length, scaleFactor);
}
inline Warning add(std::span<const Tarn32sc> src, Tarn32sc val, std::span<Tarn32sc> dst, int scaleFactor)
{
    return detail::call(tarnsAddC_32sc_Sfs, src, val, dst, detail::length, scaleFactor);
}

// Adds a constant to a vector in place.
inline Warning add(std::uint8_t val, std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddC_8u_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::int16_t val, std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddC_16s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning add(Tarn16sc val, std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddC_16sc_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning add(std::int32_t val, std::span<std::int32_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddC_32s_ISfs, val, srcDst, detail::length, scaleFactor);
}
inline Warning add(Tarn32sc val, std::span<Tarn32sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsAddC_32sc_ISfs, val, srcDst, detail::length, scaleFactor);
}

// Adds a constant to a vector of floats.
inline Warning add(std::span<const float> src, float val, std::span<float> dst)
{
    return detail::call(tarnsAddC_32f, src, val, dst, detail::length);
}
inline Warning add(std::span<const double> src, double val, std::span<double> dst)
{
    return detail::call(tarnsAddC_64f, src, val, dst, detail::length);
}
inline Warning add(std::span<const std::complex<float>> src, std::complex<float> val,
                   std::span<std::complex<float>> dst)
{
    return detail::call(tarnsAddC_32fc, src, val, dst, detail::length);
}
inline Warning add(std::span<const std::complex<double>> src, std::complex<double> val,
                   std::span<std::complex<double>> dst)
{
    return detail::call(tarnsAddC_64fc, src, val, dst, detail::length);
}

// Adds a constant to a vector in place.
inline Warning add(std::int16_t val, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsAddC_16s_I, val, srcDst, detail::length);
}
inline Warning add(float val, std::span<float> srcDst)
{
    return detail::call(tarnsAddC_32f_I, val, srcDst, detail::length);
}
inline Warning add(double val, std::span<double> srcDst)
{
    return detail::call(tarnsAddC_64f_I, val, srcDst, detail::length);
}
inline Warning add(std::complex<float> val, std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsAddC_32fc_I, val, srcDst, detail::length);
}
inline Warning add(std::complex<double> val, std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsAddC_64fc_I, val, srcDst, detail::length);
}

} // namespace tarns
