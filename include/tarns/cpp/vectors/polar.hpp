// Written by scripts/cpp-face from <tarns/polar.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Computes phases.
inline Warning phase(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                     std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsPhase_16s_Sfs, srcRe, srcIm, dst, detail::length, scaleFactor);
}
inline Warning phase(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::call(tarnsPhase_16sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning phase(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::call(tarnsPhase_32sc_Sfs, src, dst, detail::length, scaleFactor);
}
inline Warning phase(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm, std::span<float> dst)
{
    return detail::call(tarnsPhase_16s32f, srcRe, srcIm, dst, detail::length);
}
inline Warning phase(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::call(tarnsPhase_16sc32f, src, dst, detail::length);
}
inline Warning phase(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::call(tarnsPhase_32f, srcRe, srcIm, dst, detail::length);
}
inline Warning phase(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::call(tarnsPhase_32fc, src, dst, detail::length);
}
inline Warning phase(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::call(tarnsPhase_64f, srcRe, srcIm, dst, detail::length);
}
inline Warning phase(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::call(tarnsPhase_64fc, src, dst, detail::length);
}

// Converts Cartesian coordinates to polar ones.
inline Warning cartToPolar(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dstMagn,
                           std::span<float> dstPhase)
{
    return detail::call(tarnsCartToPolar_32f, srcRe, srcIm, dstMagn, dstPhase, detail::length);
}
inline Warning cartToPolar(std::span<const std::complex<float>> src, std::span<float> dstMagn,
                           std::span<float> dstPhase)
{
    return detail::call(tarnsCartToPolar_32fc, src, dstMagn, dstPhase, detail::length);
}
inline Warning cartToPolar(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dstMagn,
                           std::span<double> dstPhase)
{
    return detail::call(tarnsCartToPolar_64f, srcRe, srcIm, dstMagn, dstPhase, detail::length);
}
inline Warning cartToPolar(std::span<const std::complex<double>> src, std::span<double> dstMagn,
                           std::span<double> dstPhase)
{
    return detail::call(tarnsCartToPolar_64fc, src, dstMagn, dstPhase, detail::length);
}

// Converts polar coordinates to Cartesian ones.
inline Warning polarToCart(std::span<const float> srcMagn, std::span<const float> srcPhase, std::span<float> dstRe,
                           std::span<float> dstIm)
{
    return detail::call(tarnsPolarToCart_32f, srcMagn, srcPhase, dstRe, dstIm, detail::length);
}
inline Warning polarToCart(std::span<const float> srcMagn, std::span<const float> srcPhase,
                           std::span<std::complex<float>> dst)
{
    return detail::call(tarnsPolarToCart_32fc, srcMagn, srcPhase, dst, detail::length);
}
inline Warning polarToCart(std::span<const double> srcMagn, std::span<const double> srcPhase, std::span<double> dstRe,
                           std::span<double> dstIm)
{
    return detail::call(tarnsPolarToCart_64f, srcMagn, srcPhase, dstRe, dstIm, detail::length);
}
inline Warning polarToCart(std::span<const double> srcMagn, std::span<const double> srcPhase,
                           std::span<std::complex<double>> dst)
{
    return detail::call(tarnsPolarToCart_64fc, srcMagn, srcPhase, dst, detail::length);
}

} // namespace tarns
