// Written by scripts/cpp-face from <tarns/norms.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Computes the maximum norm of a vector.
inline Outcome<float> normInf(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_Inf_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normInf(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_Inf_64f, src, detail::length, detail::result<>);
}
inline Outcome<float> normInf(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_Inf_16s32f, src, detail::length, detail::result<>);
}
inline Outcome<float> normInf(std::span<const std::complex<float>> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_Inf_32fc32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normInf(std::span<const std::complex<double>> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_Inf_64fc64f, src, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normInf(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNorm_Inf_16s32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the sum norm of a vector.
inline Outcome<float> normL1(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_L1_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL1(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L1_64f, src, detail::length, detail::result<>);
}
inline Outcome<float> normL1(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_L1_16s32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL1(std::span<const std::complex<float>> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L1_32fc64f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL1(std::span<const std::complex<double>> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L1_64fc64f, src, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normL1(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNorm_L1_16s32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the Euclidean norm of a vector.
inline Outcome<float> normL2(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_L2_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL2(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L2_64f, src, detail::length, detail::result<>);
}
inline Outcome<float> normL2(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn32f>(tarnsNorm_L2_16s32f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL2(std::span<const std::complex<float>> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L2_32fc64f, src, detail::length, detail::result<>);
}
inline Outcome<double> normL2(std::span<const std::complex<double>> src)
{
    return detail::answer<Tarn64f>(tarnsNorm_L2_64fc64f, src, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normL2(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNorm_L2_16s32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the maximum norm of a difference.
inline Outcome<float> normDiffInf(std::span<const float> src1, std::span<const float> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_Inf_32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffInf(std::span<const double> src1, std::span<const double> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_Inf_64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<float> normDiffInf(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_Inf_16s32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<float> normDiffInf(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_Inf_32fc32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffInf(std::span<const std::complex<double>> src1,
                                   std::span<const std::complex<double>> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_Inf_64fc64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normDiffInf(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                         int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNormDiff_Inf_16s32s_Sfs, src1, src2, detail::length, detail::result<>,
                                   scaleFactor);
}

// Computes the sum norm of a difference.
inline Outcome<float> normDiffL1(std::span<const float> src1, std::span<const float> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_L1_32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL1(std::span<const double> src1, std::span<const double> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L1_64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<float> normDiffL1(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_L1_16s32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL1(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L1_32fc64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL1(std::span<const std::complex<double>> src1,
                                  std::span<const std::complex<double>> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L1_64fc64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normDiffL1(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                        int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNormDiff_L1_16s32s_Sfs, src1, src2, detail::length, detail::result<>,
                                   scaleFactor);
}

// Computes the Euclidean norm of a difference.
inline Outcome<float> normDiffL2(std::span<const float> src1, std::span<const float> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_L2_32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL2(std::span<const double> src1, std::span<const double> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L2_64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<float> normDiffL2(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    return detail::answer<Tarn32f>(tarnsNormDiff_L2_16s32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL2(std::span<const std::complex<float>> src1, std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L2_32fc64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> normDiffL2(std::span<const std::complex<double>> src1,
                                  std::span<const std::complex<double>> src2)
{
    return detail::answer<Tarn64f>(tarnsNormDiff_L2_64fc64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::int32_t> normDiffL2(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                        int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsNormDiff_L2_16s32s_Sfs, src1, src2, detail::length, detail::result<>,
                                   scaleFactor);
}

// Computes dot products of floats.
inline Outcome<float> dotProd(std::span<const float> src1, std::span<const float> src2)
{
    return detail::answer<Tarn32f>(tarnsDotProd_32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<float>> dotProd(std::span<const std::complex<float>> src1,
                                            std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn32fc>(tarnsDotProd_32fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<float>> dotProd(std::span<const float> src1, std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn32fc>(tarnsDotProd_32f32fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> dotProd(std::span<const double> src1, std::span<const double> src2)
{
    return detail::answer<Tarn64f>(tarnsDotProd_64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> dotProd(std::span<const std::complex<double>> src1,
                                             std::span<const std::complex<double>> src2)
{
    return detail::answer<Tarn64fc>(tarnsDotProd_64fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> dotProd(std::span<const double> src1, std::span<const std::complex<double>> src2)
{
    return detail::answer<Tarn64fc>(tarnsDotProd_64f64fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<double> dotProd_32f64f(std::span<const float> src1, std::span<const float> src2)
{
    return detail::answer<Tarn64f>(tarnsDotProd_32f64f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> dotProd_32fc64fc(std::span<const std::complex<float>> src1,
                                                      std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn64fc>(tarnsDotProd_32fc64fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> dotProd_32f32fc64fc(std::span<const float> src1,
                                                         std::span<const std::complex<float>> src2)
{
    return detail::answer<Tarn64fc>(tarnsDotProd_32f32fc64fc, src1, src2, detail::length, detail::result<>);
}

// Computes dot products of 16-bit integers.
inline Outcome<std::int64_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    return detail::answer<Tarn64s>(tarnsDotProd_16s64s, src1, src2, detail::length, detail::result<>);
}
inline Outcome<Tarn64sc> dotProd(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2)
{
    return detail::answer<Tarn64sc>(tarnsDotProd_16sc64sc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<Tarn64sc> dotProd(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2)
{
    return detail::answer<Tarn64sc>(tarnsDotProd_16s16sc64sc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<float> dotProd_16s32f(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2)
{
    return detail::answer<Tarn32f>(tarnsDotProd_16s32f, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<float>> dotProd_16sc32fc(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2)
{
    return detail::answer<Tarn32fc>(tarnsDotProd_16sc32fc, src1, src2, detail::length, detail::result<>);
}
inline Outcome<std::complex<float>> dotProd_16s16sc32fc(std::span<const std::int16_t> src1,
                                                        std::span<const Tarn16sc> src2)
{
    return detail::answer<Tarn32fc>(tarnsDotProd_16s16sc32fc, src1, src2, detail::length, detail::result<>);
}

// Computes scaled dot products of 16-bit integers.
inline Outcome<std::int16_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                     int scaleFactor)
{
    return detail::answer<Tarn16s>(tarnsDotProd_16s_Sfs, src1, src2, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn16sc> dotProd(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsDotProd_16sc_Sfs, src1, src2, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn16sc> dotProd(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsDotProd_16s16sc_Sfs, src1, src2, detail::length, detail::result<>,
                                    scaleFactor);
}
inline Outcome<std::int32_t> dotProd_16s32s(std::span<const std::int16_t> src1, std::span<const std::int16_t> src2,
                                            int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsDotProd_16s32s_Sfs, src1, src2, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn32sc> dotProd_16sc32sc(std::span<const Tarn16sc> src1, std::span<const Tarn16sc> src2,
                                          int scaleFactor)
{
    return detail::answer<Tarn32sc>(tarnsDotProd_16sc32sc_Sfs, src1, src2, detail::length, detail::result<>,
                                    scaleFactor);
}
inline Outcome<Tarn32sc> dotProd_16s16sc32sc(std::span<const std::int16_t> src1, std::span<const Tarn16sc> src2,
                                             int scaleFactor)
{
    return detail::answer<Tarn32sc>(tarnsDotProd_16s16sc32sc_Sfs, src1, src2, detail::length, detail::result<>,
                                    scaleFactor);
}

// Computes scaled dot products of 32-bit integers.
inline Outcome<std::int32_t> dotProd(std::span<const std::int32_t> src1, std::span<const std::int32_t> src2,
                                     int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsDotProd_32s_Sfs, src1, src2, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn32sc> dotProd(std::span<const Tarn32sc> src1, std::span<const Tarn32sc> src2, int scaleFactor)
{
    return detail::answer<Tarn32sc>(tarnsDotProd_32sc_Sfs, src1, src2, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn32sc> dotProd(std::span<const std::int32_t> src1, std::span<const Tarn32sc> src2, int scaleFactor)
{
    return detail::answer<Tarn32sc>(tarnsDotProd_32s32sc_Sfs, src1, src2, detail::length, detail::result<>,
                                    scaleFactor);
}
inline Outcome<std::int32_t> dotProd(std::span<const std::int16_t> src1, std::span<const std::int32_t> src2,
                                     int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsDotProd_16s32s32s_Sfs, src1, src2, detail::length, detail::result<>,
                                   scaleFactor);
}

} // namespace tarns
