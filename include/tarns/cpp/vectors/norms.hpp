// Written by scripts/cpp-face from <tarns/norms.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Maximum norm of a vector:

/// tarnsNorm_Inf_32f
inline Outcome<float> normInf(std::span<const float> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_Inf_32f(detail::data<Tarn32f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_Inf_64f
inline Outcome<double> normInf(std::span<const double> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_Inf_64f(detail::data<Tarn64f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_Inf_16s32f
inline Outcome<float> normInf(std::span<const std::int16_t> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_Inf_16s32f(detail::data<Tarn16s>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_Inf_32fc32f
inline Outcome<float> normInf(std::span<const std::complex<float>> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_Inf_32fc32f(detail::data<Tarn32fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_Inf_64fc64f
inline Outcome<double> normInf(std::span<const std::complex<double>> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_Inf_64fc64f(detail::data<Tarn64fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_Inf_16s32s_Sfs
inline Outcome<std::int32_t> normInf(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status = detail::sameSize(src) ? tarnsNorm_Inf_16s32s_Sfs(detail::data<Tarn16s>(src),
                                                                               detail::count(src), &norm, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Sum norm of a vector:

/// tarnsNorm_L1_32f
inline Outcome<float> normL1(std::span<const float> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L1_32f(detail::data<Tarn32f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_L1_64f
inline Outcome<double> normL1(std::span<const double> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L1_64f(detail::data<Tarn64f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L1_16s32f
inline Outcome<float> normL1(std::span<const std::int16_t> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L1_16s32f(detail::data<Tarn16s>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_L1_32fc64f
inline Outcome<double> normL1(std::span<const std::complex<float>> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L1_32fc64f(detail::data<Tarn32fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L1_64fc64f
inline Outcome<double> normL1(std::span<const std::complex<double>> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L1_64fc64f(detail::data<Tarn64fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L1_16s32s_Sfs
inline Outcome<std::int32_t> normL1(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status = detail::sameSize(src) ? tarnsNorm_L1_16s32s_Sfs(detail::data<Tarn16s>(src),
                                                                              detail::count(src), &norm, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Euclidean norm of a vector:

/// tarnsNorm_L2_32f
inline Outcome<float> normL2(std::span<const float> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L2_32f(detail::data<Tarn32f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_L2_64f
inline Outcome<double> normL2(std::span<const double> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L2_64f(detail::data<Tarn64f>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L2_16s32f
inline Outcome<float> normL2(std::span<const std::int16_t> src)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L2_16s32f(detail::data<Tarn16s>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNorm_L2_32fc64f
inline Outcome<double> normL2(std::span<const std::complex<float>> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L2_32fc64f(detail::data<Tarn32fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L2_64fc64f
inline Outcome<double> normL2(std::span<const std::complex<double>> src)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsNorm_L2_64fc64f(detail::data<Tarn64fc>(src), detail::count(src), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNorm_L2_16s32s_Sfs
inline Outcome<std::int32_t> normL2(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status = detail::sameSize(src) ? tarnsNorm_L2_16s32s_Sfs(detail::data<Tarn16s>(src),
                                                                              detail::count(src), &norm, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Maximum norm of a difference:

/// tarnsNormDiff_Inf_32f
inline Outcome<float> normDiffInf(std::span<const float> src1, std::span<const float> src2)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_Inf_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2),
                                                          detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_Inf_64f
inline Outcome<double> normDiffInf(std::span<const double> src1, std::span<const double> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_Inf_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2),
                                                          detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_Inf_16s32f
inline Outcome<float> normDiffInf(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_Inf_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                             detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_Inf_32fc32f
inline Outcome<float> normDiffInf(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_Inf_32fc32f(detail::data<Tarn32fc>(src1),
                                                              detail::data<Tarn32fc>(src2), detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_Inf_64fc64f
inline Outcome<double> normDiffInf(std::span<const std::complex<double>> src1,
                                   std::span<const std::complex<double>> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_Inf_64fc64f(detail::data<Tarn64fc>(src1),
                                                              detail::data<Tarn64fc>(src2), detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_Inf_16s32s_Sfs
inline Outcome<std::int32_t> normDiffInf(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                         int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_Inf_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                           detail::count(src1), &norm, scaleFactor)
            : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Sum norm of a difference:

/// tarnsNormDiff_L1_32f
inline Outcome<float> normDiffL1(std::span<const float> src1, std::span<const float> src2)
{
    Tarn32f norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L1_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2), detail::count(src1), &norm)
            : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L1_64f
inline Outcome<double> normDiffL1(std::span<const double> src1, std::span<const double> src2)
{
    Tarn64f norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L1_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2), detail::count(src1), &norm)
            : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L1_16s32f
inline Outcome<float> normDiffL1(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L1_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                            detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L1_32fc64f
inline Outcome<double> normDiffL1(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L1_32fc64f(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                                             detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L1_64fc64f
inline Outcome<double> normDiffL1(std::span<const std::complex<double>> src1,
                                  std::span<const std::complex<double>> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L1_64fc64f(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                                             detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L1_16s32s_Sfs
inline Outcome<std::int32_t> normDiffL1(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                        int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L1_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2), detail::count(src1),
                                          &norm, scaleFactor)
            : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Euclidean norm of a difference:

/// tarnsNormDiff_L2_32f
inline Outcome<float> normDiffL2(std::span<const float> src1, std::span<const float> src2)
{
    Tarn32f norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L2_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2), detail::count(src1), &norm)
            : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L2_64f
inline Outcome<double> normDiffL2(std::span<const double> src1, std::span<const double> src2)
{
    Tarn64f norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L2_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2), detail::count(src1), &norm)
            : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L2_16s32f
inline Outcome<float> normDiffL2(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    Tarn32f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L2_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                            detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L2_32fc64f
inline Outcome<double> normDiffL2(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L2_32fc64f(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                                             detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L2_64fc64f
inline Outcome<double> normDiffL2(std::span<const std::complex<double>> src1,
                                  std::span<const std::complex<double>> src2)
{
    Tarn64f norm{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsNormDiff_L2_64fc64f(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2),
                                                             detail::count(src1), &norm)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(norm));
}

/// tarnsNormDiff_L2_16s32s_Sfs
inline Outcome<std::int32_t> normDiffL2(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                        int scaleFactor)
{
    Tarn32s norm{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsNormDiff_L2_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2), detail::count(src1),
                                          &norm, scaleFactor)
            : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(norm));
}

// Dot products of floats.

/// tarnsDotProd_32f
inline Outcome<float> dotProd(std::span<const float> src1, std::span<const float> src2)
{
    Tarn32f dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_32f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(dp));
}

/// tarnsDotProd_32fc
inline Outcome<std::complex<float>> dotProd(std::span<const std::complex<float>> src1,
                                            std::span<const std::complex<float>> src2)
{
    Tarn32fc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_32fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(dp));
}

/// tarnsDotProd_32f32fc
inline Outcome<std::complex<float>> dotProd(std::span<const float> src1, std::span<const std::complex<float>> src2)
{
    Tarn32fc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_32f32fc(detail::data<Tarn32f>(src1), detail::data<Tarn32fc>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(dp));
}

/// tarnsDotProd_64f
inline Outcome<double> dotProd(std::span<const double> src1, std::span<const double> src2)
{
    Tarn64f dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_64f(detail::data<Tarn64f>(src1), detail::data<Tarn64f>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(dp));
}

/// tarnsDotProd_64fc
inline Outcome<std::complex<double>> dotProd(std::span<const std::complex<double>> src1,
                                             std::span<const std::complex<double>> src2)
{
    Tarn64fc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_64fc(detail::data<Tarn64fc>(src1), detail::data<Tarn64fc>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(dp));
}

/// tarnsDotProd_64f64fc
inline Outcome<std::complex<double>> dotProd(std::span<const double> src1, std::span<const std::complex<double>> src2)
{
    Tarn64fc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_64f64fc(detail::data<Tarn64f>(src1), detail::data<Tarn64fc>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(dp));
}

/// tarnsDotProd_32f64f
inline Outcome<double> dotProd_32f64f(std::span<const float> src1, std::span<const float> src2)
{
    Tarn64f dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_32f64f(detail::data<Tarn32f>(src1), detail::data<Tarn32f>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(dp));
}

/// tarnsDotProd_32fc64fc
inline Outcome<std::complex<double>> dotProd_32fc64fc(std::span<const std::complex<float>> src1,
                                                      std::span<const std::complex<float>> src2)
{
    Tarn64fc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_32fc64fc(detail::data<Tarn32fc>(src1), detail::data<Tarn32fc>(src2),
                                                          detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(dp));
}

/// tarnsDotProd_32f32fc64fc
inline Outcome<std::complex<double>> dotProd_32f32fc64fc(std::span<const float> src1,
                                                         std::span<const std::complex<float>> src2)
{
    Tarn64fc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_32f32fc64fc(detail::data<Tarn32f>(src1), detail::data<Tarn32fc>(src2),
                                                             detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(dp));
}

// Dot products of 16-bit integers.

/// tarnsDotProd_16s64s
inline Outcome<std::int64_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    Tarn64s dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_16s64s(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<std::int64_t>(status, detail::fromC(dp));
}

/// tarnsDotProd_16sc64sc
inline Outcome<Tarn64sc> dotProd(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2)
{
    Tarn64sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16sc64sc(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                          detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn64sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s16sc64sc
inline Outcome<Tarn64sc> dotProd(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2)
{
    Tarn64sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s16sc64sc(detail::data<Tarn16s>(src1), detail::data<Tarn16sc>(src2),
                                                             detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn64sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s32f
inline Outcome<float> dotProd_16s32f(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    Tarn32f dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_16s32f(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2), detail::count(src1), &dp)
            : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(dp));
}

/// tarnsDotProd_16sc32fc
inline Outcome<std::complex<float>> dotProd_16sc32fc(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2)
{
    Tarn32fc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16sc32fc(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                          detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s16sc32fc
inline Outcome<std::complex<float>> dotProd_16s16sc32fc(std::span<const std::int16_t> src1,
                                                        std::span<const Tarn16sc> src2)
{
    Tarn32fc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s16sc32fc(detail::data<Tarn16s>(src1), detail::data<Tarn16sc>(src2),
                                                             detail::count(src1), &dp)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(dp));
}

// Scaled dot products of 16-bit integers:

/// tarnsDotProd_16s_Sfs
inline Outcome<std::int16_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                     int scaleFactor)
{
    Tarn16s dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                         detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(dp));
}

/// tarnsDotProd_16sc_Sfs
inline Outcome<Tarn16sc> dotProd(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, int scaleFactor)
{
    Tarn16sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2),
                                                          detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s16sc_Sfs
inline Outcome<Tarn16sc> dotProd(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2, int scaleFactor)
{
    Tarn16sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s16sc_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16sc>(src2),
                                                             detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s32s_Sfs
inline Outcome<std::int32_t> dotProd_16s32s(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                            int scaleFactor)
{
    Tarn32s dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16s>(src2),
                                                            detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(dp));
}

/// tarnsDotProd_16sc32sc_Sfs
inline Outcome<Tarn32sc> dotProd_16sc32sc(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2,
                                          int scaleFactor)
{
    Tarn32sc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_16sc32sc_Sfs(detail::data<Tarn16sc>(src1), detail::data<Tarn16sc>(src2), detail::count(src1),
                                        &dp, scaleFactor)
            : tarnStsSizeErr;
    return detail::outcome<Tarn32sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s16sc32sc_Sfs
inline Outcome<Tarn32sc> dotProd_16s16sc32sc(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2,
                                             int scaleFactor)
{
    Tarn32sc dp{};
    const TarnStatus status =
        detail::sameSize(src1, src2)
            ? tarnsDotProd_16s16sc32sc_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn16sc>(src2),
                                           detail::count(src1), &dp, scaleFactor)
            : tarnStsSizeErr;
    return detail::outcome<Tarn32sc>(status, detail::fromC(dp));
}

// Scaled dot products of 32-bit integers:

/// tarnsDotProd_32s_Sfs
inline Outcome<std::int32_t> dotProd(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2,
                                     int scaleFactor)
{
    Tarn32s dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_32s_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32s>(src2),
                                                         detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(dp));
}

/// tarnsDotProd_32sc_Sfs
inline Outcome<Tarn32sc> dotProd(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, int scaleFactor)
{
    Tarn32sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_32sc_Sfs(detail::data<Tarn32sc>(src1), detail::data<Tarn32sc>(src2),
                                                          detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn32sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_32s32sc_Sfs
inline Outcome<Tarn32sc> dotProd(std::span<const std::int32_t> src1, std::span<const Tarn32sc> src2, int scaleFactor)
{
    Tarn32sc dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_32s32sc_Sfs(detail::data<Tarn32s>(src1), detail::data<Tarn32sc>(src2),
                                                             detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<Tarn32sc>(status, detail::fromC(dp));
}

/// tarnsDotProd_16s32s32s_Sfs
inline Outcome<std::int32_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int32_t> src2,
                                     int scaleFactor)
{
    Tarn32s dp{};
    const TarnStatus status = detail::sameSize(src1, src2)
                                  ? tarnsDotProd_16s32s32s_Sfs(detail::data<Tarn16s>(src1), detail::data<Tarn32s>(src2),
                                                               detail::count(src1), &dp, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(dp));
}

} // namespace tarns
