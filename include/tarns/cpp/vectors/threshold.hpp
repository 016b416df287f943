// Written by scripts/cpp-face from <tarns/threshold.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Limits elements on the side that `relOp` tells, as tarnsThreshold_LT_32f() or tarnsThreshold_GT_32f() and ...

/// tarnsThreshold_16s
inline Warning threshold(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level, int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                    detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_16sc
inline Warning threshold(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level, int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                     detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_32f
inline Warning threshold(std::span<const float> src, std::span<float> dst, float level, int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                    detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_32fc
inline Warning threshold(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                         int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                     detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_64f
inline Warning threshold(std::span<const double> src, std::span<double> dst, double level, int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                    detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_64fc
inline Warning threshold(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level,
                         int relOp)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                     detail::count(src), level, relOp)
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_16s_I
inline Warning threshold(std::span<std::int16_t> srcDst, std::int16_t level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_16s_I(detail::data<Tarn16s>(srcDst),
                                                                           detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_16sc_I
inline Warning threshold(std::span<Tarn16sc> srcDst, std::int16_t level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_16sc_I(detail::data<Tarn16sc>(srcDst),
                                                                            detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_32f_I
inline Warning threshold(std::span<float> srcDst, float level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_32f_I(detail::data<Tarn32f>(srcDst),
                                                                           detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_32fc_I
inline Warning threshold(std::span<std::complex<float>> srcDst, float level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_32fc_I(detail::data<Tarn32fc>(srcDst),
                                                                            detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_64f_I
inline Warning threshold(std::span<double> srcDst, double level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_64f_I(detail::data<Tarn64f>(srcDst),
                                                                           detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_64fc_I
inline Warning threshold(std::span<std::complex<double>> srcDst, double level, int relOp)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_64fc_I(detail::data<Tarn64fc>(srcDst),
                                                                            detail::count(srcDst), level, relOp)
                                                    : tarnStsSizeErr);
}

// Limits elements below the level.

/// tarnsThreshold_LT_16s
inline Warning thresholdLT(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_LT_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_LT_16sc
inline Warning thresholdLT(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LT_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32f
inline Warning thresholdLT(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_LT_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32fc
inline Warning thresholdLT(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LT_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_64f
inline Warning thresholdLT(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_LT_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_LT_64fc
inline Warning thresholdLT(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LT_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32s
inline Warning thresholdLT(std::span<const std::int32_t> src, std::span<std::int32_t> dst, std::int32_t level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_LT_32s(detail::data<Tarn32s>(src), detail::data<Tarn32s>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_LT_16s_I
inline Warning thresholdLT(std::span<std::int16_t> srcDst, std::int16_t level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_16sc_I
inline Warning thresholdLT(std::span<Tarn16sc> srcDst, std::int16_t level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32f_I
inline Warning thresholdLT(std::span<float> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32fc_I
inline Warning thresholdLT(std::span<std::complex<float>> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_64f_I
inline Warning thresholdLT(std::span<double> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_64fc_I
inline Warning thresholdLT(std::span<std::complex<double>> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LT_32s_I
inline Warning thresholdLT(std::span<std::int32_t> srcDst, std::int32_t level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LT_32s_I(detail::data<Tarn32s>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

// Limits elements above the level.

/// tarnsThreshold_GT_16s
inline Warning thresholdGT(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_GT_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_GT_16sc
inline Warning thresholdGT(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GT_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_32f
inline Warning thresholdGT(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_GT_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_GT_32fc
inline Warning thresholdGT(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GT_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_64f
inline Warning thresholdGT(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::warning(
        detail::sameSize(src, dst)
            ? tarnsThreshold_GT_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst), detail::count(src), level)
            : tarnStsSizeErr);
}

/// tarnsThreshold_GT_64fc
inline Warning thresholdGT(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GT_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                        detail::count(src), level)
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_GT_16s_I
inline Warning thresholdGT(std::span<std::int16_t> srcDst, std::int16_t level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_16sc_I
inline Warning thresholdGT(std::span<Tarn16sc> srcDst, std::int16_t level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_16sc_I(detail::data<Tarn16sc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_32f_I
inline Warning thresholdGT(std::span<float> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_32fc_I
inline Warning thresholdGT(std::span<std::complex<float>> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_64f_I
inline Warning thresholdGT(std::span<double> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GT_64fc_I
inline Warning thresholdGT(std::span<std::complex<double>> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GT_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

// Replaces elements below the level:

/// tarnsThreshold_LTVal_16s
inline Warning thresholdLTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level,
                              std::int16_t value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_16sc
inline Warning thresholdLTVal(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level,
                              Tarn16sc value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                           detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_32f
inline Warning thresholdLTVal(std::span<const float> src, std::span<float> dst, float level, float value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_32fc
inline Warning thresholdLTVal(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                              std::complex<float> value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                           detail::count(src), level, detail::value<Tarn32fc>(value))
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_64f
inline Warning thresholdLTVal(std::span<const double> src, std::span<double> dst, double level, double value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_64fc
inline Warning thresholdLTVal(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level, std::complex<double> value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTVal_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                           detail::count(src), level, detail::value<Tarn64fc>(value))
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_LTVal_16s_I
inline Warning thresholdLTVal(std::span<std::int16_t> srcDst, std::int16_t level, std::int16_t value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTVal_16s_I(detail::data<Tarn16s>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_16sc_I
inline Warning thresholdLTVal(std::span<Tarn16sc> srcDst, std::int16_t level, Tarn16sc value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTVal_16sc_I(detail::data<Tarn16sc>(srcDst),
                                                                                  detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_32f_I
inline Warning thresholdLTVal(std::span<float> srcDst, float level, float value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTVal_32f_I(detail::data<Tarn32f>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_32fc_I
inline Warning thresholdLTVal(std::span<std::complex<float>> srcDst, float level, std::complex<float> value)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTVal_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst),
                                                             level, detail::value<Tarn32fc>(value))
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_64f_I
inline Warning thresholdLTVal(std::span<double> srcDst, double level, double value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTVal_64f_I(detail::data<Tarn64f>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_LTVal_64fc_I
inline Warning thresholdLTVal(std::span<std::complex<double>> srcDst, double level, std::complex<double> value)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTVal_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst),
                                                             level, detail::value<Tarn64fc>(value))
                               : tarnStsSizeErr);
}

// Replaces elements above the level:

/// tarnsThreshold_GTVal_16s
inline Warning thresholdGTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level,
                              std::int16_t value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_16sc
inline Warning thresholdGTVal(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level,
                              Tarn16sc value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_16sc(detail::data<Tarn16sc>(src), detail::data<Tarn16sc>(dst),
                                                           detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_32f
inline Warning thresholdGTVal(std::span<const float> src, std::span<float> dst, float level, float value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_32fc
inline Warning thresholdGTVal(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                              std::complex<float> value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                           detail::count(src), level, detail::value<Tarn32fc>(value))
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_64f
inline Warning thresholdGTVal(std::span<const double> src, std::span<double> dst, double level, double value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                          detail::count(src), level, value)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_64fc
inline Warning thresholdGTVal(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level, std::complex<double> value)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_GTVal_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                           detail::count(src), level, detail::value<Tarn64fc>(value))
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_GTVal_16s_I
inline Warning thresholdGTVal(std::span<std::int16_t> srcDst, std::int16_t level, std::int16_t value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_GTVal_16s_I(detail::data<Tarn16s>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_16sc_I
inline Warning thresholdGTVal(std::span<Tarn16sc> srcDst, std::int16_t level, Tarn16sc value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_GTVal_16sc_I(detail::data<Tarn16sc>(srcDst),
                                                                                  detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_32f_I
inline Warning thresholdGTVal(std::span<float> srcDst, float level, float value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_GTVal_32f_I(detail::data<Tarn32f>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_32fc_I
inline Warning thresholdGTVal(std::span<std::complex<float>> srcDst, float level, std::complex<float> value)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GTVal_32fc_I(detail::data<Tarn32fc>(srcDst), detail::count(srcDst),
                                                             level, detail::value<Tarn32fc>(value))
                               : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_64f_I
inline Warning thresholdGTVal(std::span<double> srcDst, double level, double value)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_GTVal_64f_I(detail::data<Tarn64f>(srcDst),
                                                                                 detail::count(srcDst), level, value)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_GTVal_64fc_I
inline Warning thresholdGTVal(std::span<std::complex<double>> srcDst, double level, std::complex<double> value)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_GTVal_64fc_I(detail::data<Tarn64fc>(srcDst), detail::count(srcDst),
                                                             level, detail::value<Tarn64fc>(value))
                               : tarnStsSizeErr);
}

// Replaces elements outside a band:

/// tarnsThreshold_LTValGTVal_16s
inline Warning thresholdLTValGTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t levelLT,
                                   std::int16_t valueLT, std::int16_t levelGT, std::int16_t valueGT)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTValGTVal_16s(detail::data<Tarn16s>(src), detail::data<Tarn16s>(dst),
                                                               detail::count(src), levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTValGTVal_32f
inline Warning thresholdLTValGTVal(std::span<const float> src, std::span<float> dst, float levelLT, float valueLT,
                                   float levelGT, float valueGT)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTValGTVal_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                               detail::count(src), levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTValGTVal_64f
inline Warning thresholdLTValGTVal(std::span<const double> src, std::span<double> dst, double levelLT, double valueLT,
                                   double levelGT, double valueGT)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTValGTVal_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                               detail::count(src), levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_LTValGTVal_16s_I
inline Warning thresholdLTValGTVal(std::span<std::int16_t> srcDst, std::int16_t levelLT, std::int16_t valueLT,
                                   std::int16_t levelGT, std::int16_t valueGT)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTValGTVal_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst),
                                                                 levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTValGTVal_32f_I
inline Warning thresholdLTValGTVal(std::span<float> srcDst, float levelLT, float valueLT, float levelGT, float valueGT)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTValGTVal_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst),
                                                                 levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTValGTVal_64f_I
inline Warning thresholdLTValGTVal(std::span<double> srcDst, double levelLT, double valueLT, double levelGT,
                                   double valueGT)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTValGTVal_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst),
                                                                 levelLT, valueLT, levelGT, valueGT)
                               : tarnStsSizeErr);
}

// Inverts elements, those below the level as if they had its magnitude:

/// tarnsThreshold_LTInv_32f
inline Warning thresholdLTInv(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTInv_32f(detail::data<Tarn32f>(src), detail::data<Tarn32f>(dst),
                                                          detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_32fc
inline Warning thresholdLTInv(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTInv_32fc(detail::data<Tarn32fc>(src), detail::data<Tarn32fc>(dst),
                                                           detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_64f
inline Warning thresholdLTInv(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTInv_64f(detail::data<Tarn64f>(src), detail::data<Tarn64f>(dst),
                                                          detail::count(src), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_64fc
inline Warning thresholdLTInv(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsThreshold_LTInv_64fc(detail::data<Tarn64fc>(src), detail::data<Tarn64fc>(dst),
                                                           detail::count(src), level)
                               : tarnStsSizeErr);
}

// The same in place.

/// tarnsThreshold_LTInv_32f_I
inline Warning thresholdLTInv(std::span<float> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTInv_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_32fc_I
inline Warning thresholdLTInv(std::span<std::complex<float>> srcDst, float level)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTInv_32fc_I(detail::data<Tarn32fc>(srcDst),
                                                                                  detail::count(srcDst), level)
                                                    : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_64f_I
inline Warning thresholdLTInv(std::span<double> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsThreshold_LTInv_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst), level)
                               : tarnStsSizeErr);
}

/// tarnsThreshold_LTInv_64fc_I
inline Warning thresholdLTInv(std::span<std::complex<double>> srcDst, double level)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsThreshold_LTInv_64fc_I(detail::data<Tarn64fc>(srcDst),
                                                                                  detail::count(srcDst), level)
                                                    : tarnStsSizeErr);
}

} // namespace tarns
