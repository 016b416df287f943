// Written by scripts/cpp-face from <tarns/roots.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Takes absolute values.
inline Warning abs(std::span<const std::int16_t> src, std::span<std::int16_t> dst)
{
    return detail::call(tarnsAbs_16s, src, dst, detail::length);
}
inline Warning abs(std::span<const std::int32_t> src, std::span<std::int32_t> dst)
{
    return detail::call(tarnsAbs_32s, src, dst, detail::length);
}
inline Warning abs(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsAbs_32f, src, dst, detail::length);
}
inline Warning abs(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsAbs_64f, src, dst, detail::length);
}
inline Warning abs(std::span<std::int16_t> srcDst) { return detail::call(tarnsAbs_16s_I, srcDst, detail::length); }
inline Warning abs(std::span<std::int32_t> srcDst) { return detail::call(tarnsAbs_32s_I, srcDst, detail::length); }
inline Warning abs(std::span<float> srcDst) { return detail::call(tarnsAbs_32f_I, srcDst, detail::length); }
inline Warning abs(std::span<double> srcDst) { return detail::call(tarnsAbs_64f_I, srcDst, detail::length); }

// Squares elements.
inline Warning sqr(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqr_8u_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqr_16s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqr_16u_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsSqr_16sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqr_8u_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqr_16s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<std::uint16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqr_16u_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqr_16sc_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqr(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsSqr_32f, src, dst, detail::length);
}
inline Warning sqr(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSqr_32fc, src, dst, detail::length);
}
inline Warning sqr(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsSqr_64f, src, dst, detail::length);
}
inline Warning sqr(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSqr_64fc, src, dst, detail::length);
}
inline Warning sqr(std::span<float> srcDst) { return detail::call(tarnsSqr_32f_I, srcDst, detail::length); }
inline Warning sqr(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsSqr_32fc_I, srcDst, detail::length);
}
inline Warning sqr(std::span<double> srcDst) { return detail::call(tarnsSqr_64f_I, srcDst, detail::length); }
inline Warning sqr(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsSqr_64fc_I, srcDst, detail::length);
}

// Takes square roots.
inline Warning sqrt(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqrt_8u_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<const std::int16_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16u_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<const std::int64_t> src, std::span<std::int64_t> dst, int scaleFactor)
{
    return detail::call(tarnsSqrt_64s_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<std::uint8_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqrt_8u_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<std::int16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<std::uint16_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16u_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<std::int64_t> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqrt_64s_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsSqrt_32f, src, dst, detail::length);
}
inline Warning sqrt(std::span<const double> src, std::span<double> dst)
{
    return detail::call(tarnsSqrt_64f, src, dst, detail::length);
}
inline Warning sqrt(std::span<float> srcDst) { return detail::call(tarnsSqrt_32f_I, srcDst, detail::length); }
inline Warning sqrt(std::span<double> srcDst) { return detail::call(tarnsSqrt_64f_I, srcDst, detail::length); }

// Takes principal square roots of complex elements.
inline Warning sqrt(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<Tarn16sc> srcDst, int scaleFactor)
{
    return detail::call(tarnsSqrt_16sc_ISfs, srcDst, detail::length, scaleFactor);
}
inline Warning sqrt(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst)
{
    return detail::call(tarnsSqrt_32fc, src, dst, detail::length);
}
inline Warning sqrt(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst)
{
    return detail::call(tarnsSqrt_64fc, src, dst, detail::length);
}
inline Warning sqrt(std::span<std::complex<float>> srcDst)
{
    return detail::call(tarnsSqrt_32fc_I, srcDst, detail::length);
}
inline Warning sqrt(std::span<std::complex<double>> srcDst)
{
    return detail::call(tarnsSqrt_64fc_I, srcDst, detail::length);
}

// Takes cube roots.
inline Warning cubrt(std::span<const float> src, std::span<float> dst)
{
    return detail::call(tarnsCubrt_32f, src, dst, detail::length);
}
inline Warning cubrt(std::span<const std::int32_t> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsCubrt_32s16s_Sfs, src, dst, detail::length, scaleFactor);
}

} // namespace tarns
