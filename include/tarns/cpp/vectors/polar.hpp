// Written by scripts/cpp-face from <tarns/polar.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Phases:

/// tarnsPhase_16s_Sfs
inline Warning phase(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm,
                     std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPhase_16s_Sfs(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                    detail::data<Tarn16s>(dst), detail::count(srcRe), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsPhase_16sc_Sfs
inline Warning phase(std::span<const Tarn16sc> src, std::span<std::int16_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsPhase_16sc_Sfs(detail::data<Tarn16sc>(src), detail::data<Tarn16s>(dst),
                                                     detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsPhase_32sc_Sfs
inline Warning phase(std::span<const Tarn32sc> src, std::span<std::int32_t> dst, int scaleFactor)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsPhase_32sc_Sfs(detail::data<Tarn32sc>(src), detail::data<Tarn32s>(dst),
                                                     detail::count(src), scaleFactor)
                               : tarnStsSizeErr);
}

/// tarnsPhase_16s32f
inline Warning phase(std::span<const std::int16_t> srcRe, std::span<const std::int16_t> srcIm, std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPhase_16s32f(detail::data<Tarn16s>(srcRe), detail::data<Tarn16s>(srcIm),
                                                   detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPhase_16sc32f
inline Warning phase(std::span<const Tarn16sc> src, std::span<float> dst)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsPhase_16sc32f(detail::data<Tarn16sc>(src), detail::data<Tarn32f>(dst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsPhase_32f
inline Warning phase(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPhase_32f(detail::data<Tarn32f>(srcRe), detail::data<Tarn32f>(srcIm),
                                                detail::data<Tarn32f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPhase_32fc
inline Warning phase(std::span<const std::complex<float>> src, std::span<float> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsPhase_32fc(detail::data<Tarn32fc>(src),
                                                                        detail::data<Tarn32f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsPhase_64f
inline Warning phase(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dst)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dst)
                               ? tarnsPhase_64f(detail::data<Tarn64f>(srcRe), detail::data<Tarn64f>(srcIm),
                                                detail::data<Tarn64f>(dst), detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsPhase_64fc
inline Warning phase(std::span<const std::complex<double>> src, std::span<double> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsPhase_64fc(detail::data<Tarn64fc>(src),
                                                                        detail::data<Tarn64f>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// From Cartesian coordinates to polar ones:

/// tarnsCartToPolar_32f
inline Warning cartToPolar(std::span<const float> srcRe, std::span<const float> srcIm, std::span<float> dstMagn,
                           std::span<float> dstPhase)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dstMagn, dstPhase)
                               ? tarnsCartToPolar_32f(detail::data<Tarn32f>(srcRe), detail::data<Tarn32f>(srcIm),
                                                      detail::data<Tarn32f>(dstMagn), detail::data<Tarn32f>(dstPhase),
                                                      detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsCartToPolar_32fc
inline Warning cartToPolar(std::span<const std::complex<float>> src, std::span<float> dstMagn,
                           std::span<float> dstPhase)
{
    return detail::warning(detail::sameSize(src, dstMagn, dstPhase)
                               ? tarnsCartToPolar_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32f>(dstMagn),
                                                       detail::data<Tarn32f>(dstPhase), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsCartToPolar_64f
inline Warning cartToPolar(std::span<const double> srcRe, std::span<const double> srcIm, std::span<double> dstMagn,
                           std::span<double> dstPhase)
{
    return detail::warning(detail::sameSize(srcRe, srcIm, dstMagn, dstPhase)
                               ? tarnsCartToPolar_64f(detail::data<Tarn64f>(srcRe), detail::data<Tarn64f>(srcIm),
                                                      detail::data<Tarn64f>(dstMagn), detail::data<Tarn64f>(dstPhase),
                                                      detail::count(srcRe))
                               : tarnStsSizeErr);
}

/// tarnsCartToPolar_64fc
inline Warning cartToPolar(std::span<const std::complex<double>> src, std::span<double> dstMagn,
                           std::span<double> dstPhase)
{
    return detail::warning(detail::sameSize(src, dstMagn, dstPhase)
                               ? tarnsCartToPolar_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64f>(dstMagn),
                                                       detail::data<Tarn64f>(dstPhase), detail::count(src))
                               : tarnStsSizeErr);
}

// From polar coordinates to Cartesian ones:

/// tarnsPolarToCart_32f
inline Warning polarToCart(std::span<const float> srcMagn, std::span<const float> srcPhase, std::span<float> dstRe,
                           std::span<float> dstIm)
{
    return detail::warning(detail::sameSize(srcMagn, srcPhase, dstRe, dstIm)
                               ? tarnsPolarToCart_32f(detail::data<Tarn32f>(srcMagn), detail::data<Tarn32f>(srcPhase),
                                                      detail::data<Tarn32f>(dstRe), detail::data<Tarn32f>(dstIm),
                                                      detail::count(srcMagn))
                               : tarnStsSizeErr);
}

/// tarnsPolarToCart_32fc
inline Warning polarToCart(std::span<const float> srcMagn, std::span<const float> srcPhase,
                           std::span<std::complex<float>> dst)
{
    return detail::warning(detail::sameSize(srcMagn, srcPhase, dst)
                               ? tarnsPolarToCart_32fc(detail::data<Tarn32f>(srcMagn), detail::data<Tarn32f>(srcPhase),
                                                       detail::data<Tarn32fc>(dst), detail::count(srcMagn))
                               : tarnStsSizeErr);
}

/// tarnsPolarToCart_64f
inline Warning polarToCart(std::span<const double> srcMagn, std::span<const double> srcPhase, std::span<double> dstRe,
                           std::span<double> dstIm)
{
    return detail::warning(detail::sameSize(srcMagn, srcPhase, dstRe, dstIm)
                               ? tarnsPolarToCart_64f(detail::data<Tarn64f>(srcMagn), detail::data<Tarn64f>(srcPhase),
                                                      detail::data<Tarn64f>(dstRe), detail::data<Tarn64f>(dstIm),
                                                      detail::count(srcMagn))
                               : tarnStsSizeErr);
}

/// tarnsPolarToCart_64fc
inline Warning polarToCart(std::span<const double> srcMagn, std::span<const double> srcPhase,
                           std::span<std::complex<double>> dst)
{
    return detail::warning(detail::sameSize(srcMagn, srcPhase, dst)
                               ? tarnsPolarToCart_64fc(detail::data<Tarn64f>(srcMagn), detail::data<Tarn64f>(srcPhase),
                                                       detail::data<Tarn64fc>(dst), detail::count(srcMagn))
                               : tarnStsSizeErr);
}

} // namespace tarns
