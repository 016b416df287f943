// Written by scripts/cpp-face from <tarns/data.h>; changes go there. Every function calls one of the C interface, whose
// documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Copies an array.
inline Warning copy(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsCopy_8u, src, dst, detail::length);
}
inline Warning copy(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsCopy_16s, src, dst, detail::length);
}
inline Warning copy(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsCopy_16sc, src, dst, detail::length);
}
inline Warning copy(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsCopy_32f, src, dst, detail::length);
}
inline Warning copy(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsCopy_32fc, src, dst, detail::length);
}
inline Warning copy(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsCopy_64f, src, dst, detail::length);
}
inline Warning copy(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsCopy_64fc, src, dst, detail::length);
}

// Copies an array to a place that may overlap it, in either direction.
inline Warning move(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsMove_8u, src, dst, detail::length);
}
inline Warning move(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsMove_16s, src, dst, detail::length);
}
inline Warning move(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsMove_16sc, src, dst, detail::length);
}
inline Warning move(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsMove_32f, src, dst, detail::length);
}
inline Warning move(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsMove_32fc, src, dst, detail::length);
}
inline Warning move(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsMove_64f, src, dst, detail::length);
}
inline Warning move(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsMove_64fc, src, dst, detail::length);
}

// Writes zero bytes.
inline Warning zero(std::span<std::uint8_t> dst) { return detail::call(tarnsZero_8u, dst, detail::length); }
inline Warning zero(std::span<std::int16_t> dst) { return detail::call(tarnsZero_16s, dst, detail::length); }
inline Warning zero(std::span<Tarn16sc> dst) { return detail::call(tarnsZero_16sc, dst, detail::length); }
inline Warning zero(std::span<float> dst) { return detail::call(tarnsZero_32f, dst, detail::length); }
inline Warning zero(std::span<std::complex<float>> dst) { return detail::call(tarnsZero_32fc, dst, detail::length); }
inline Warning zero(std::span<double> dst) { return detail::call(tarnsZero_64f, dst, detail::length); }
inline Warning zero(std::span<std::complex<double>> dst) { return detail::call(tarnsZero_64fc, dst, detail::length); }

// Writes one value to every element.
inline Warning set(std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsSet_8u, val, dst, detail::length);
}
inline Warning set(std::int16_t val, std::span<std::int16_t> dst)
{
    return detail::call(tarnsSet_16s, val, dst, detail::length);
}
inline Warning set(Tarn16sc val, std::span<Tarn16sc> dst)
{
    return detail::call(tarnsSet_16sc, val, dst, detail::length);
}
inline Warning set(std::int32_t val, std::span<std::int32_t> dst)
{
    return detail::call(tarnsSet_32s, val, dst, detail::length);
}
inline Warning set(Tarn32sc val, std::span<Tarn32sc> dst)
{
    return detail::call(tarnsSet_32sc, val, dst, detail::length);
}
inline Warning set(float val, std::span<float> dst) { return detail::call(tarnsSet_32f, val, dst, detail::length); }
inline Warning set(std::complex<float> val, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSet_32fc, val, dst, detail::length);
}
inline Warning set(std::int64_t val, std::span<std::int64_t> dst)
{
    return detail::call(tarnsSet_64s, val, dst, detail::length);
}
inline Warning set(Tarn64sc val, std::span<Tarn64sc> dst)
{
    return detail::call(tarnsSet_64sc, val, dst, detail::length);
}
inline Warning set(double val, std::span<double> dst) { return detail::call(tarnsSet_64f, val, dst, detail::length); }
inline Warning set(std::complex<double> val, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSet_64fc, val, dst, detail::length);
}

// Turns an array round.
inline Warning flip(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsFlip_8u, src, dst, detail::length);
}
inline Warning flip(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsFlip_16u, src, dst, detail::length);
}
inline Warning flip(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsFlip_32f, src, dst, detail::length);
}
inline Warning flip(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsFlip_64f, src, dst, detail::length);
}

// Turns an array round in place; the middle element of an odd number stays.
inline Warning flip(std::span<std::uint8_t> srcDst) { return detail::call(tarnsFlip_8u_I, srcDst, detail::length); }
inline Warning flip(std::span<std::uint16_t> srcDst) { return detail::call(tarnsFlip_16u_I, srcDst, detail::length); }
inline Warning flip(std::span<float> srcDst) { return detail::call(tarnsFlip_32f_I, srcDst, detail::length); }
inline Warning flip(std::span<double> srcDst) { return detail::call(tarnsFlip_64f_I, srcDst, detail::length); }

// Reverses the bytes within each element, between big- and little-endian order.
inline Warning swapBytes(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsSwapBytes_16u, src, dst, detail::length);
}
inline Warning swapBytes(std::span<const std::uint32_t> src, std::span<std::uint32_t> dst)
{
    return detail::call(tarnsSwapBytes_32u, src, dst, detail::length);
}

// Reverses the bytes within each element in place.
inline Warning swapBytes(std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsSwapBytes_16u_I, srcDst, detail::length);
}
inline Warning swapBytes(std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsSwapBytes_32u_I, srcDst, detail::length);
}

} // namespace tarns
