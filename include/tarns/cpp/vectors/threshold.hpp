// Written by scripts/cpp-face from <tarns/threshold.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Limits elements on the side that `relOp` tells, as tarnsThreshold_LT_32f() or tarnsThreshold_GT_32f() and ...
inline Warning threshold(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level, int relOp)
{
    return detail::call(tarnsThreshold_16s, src, dst, detail::length, level, relOp);
}
inline Warning threshold(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level, int relOp)
{
    return detail::call(tarnsThreshold_16sc, src, dst, detail::length, level, relOp);
}
inline Warning threshold(std::span<const float> src, std::span<float> dst, float level, int relOp)
{
    return detail::call(tarnsThreshold_32f, src, dst, detail::length, level, relOp);
}
inline Warning threshold(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                         int relOp)
{
    return detail::call(tarnsThreshold_32fc, src, dst, detail::length, level, relOp);
}
inline Warning threshold(std::span<const double> src, std::span<double> dst, double level, int relOp)
{
    return detail::call(tarnsThreshold_64f, src, dst, detail::length, level, relOp);
}
inline Warning threshold(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level,
                         int relOp)
{
    return detail::call(tarnsThreshold_64fc, src, dst, detail::length, level, relOp);
}

// Limits elements on the side that `relOp` tells, in place.
inline Warning threshold(std::span<std::int16_t> srcDst, std::int16_t level, int relOp)
{
    return detail::call(tarnsThreshold_16s_I, srcDst, detail::length, level, relOp);
}
inline Warning threshold(std::span<Tarn16sc> srcDst, std::int16_t level, int relOp)
{
    return detail::call(tarnsThreshold_16sc_I, srcDst, detail::length, level, relOp);
}
inline Warning threshold(std::span<float> srcDst, float level, int relOp)
{
    return detail::call(tarnsThreshold_32f_I, srcDst, detail::length, level, relOp);
}
inline Warning threshold(std::span<std::complex<float>> srcDst, float level, int relOp)
{
    return detail::call(tarnsThreshold_32fc_I, srcDst, detail::length, level, relOp);
}
inline Warning threshold(std::span<double> srcDst, double level, int relOp)
{
    return detail::call(tarnsThreshold_64f_I, srcDst, detail::length, level, relOp);
}
inline Warning threshold(std::span<std::complex<double>> srcDst, double level, int relOp)
{
    return detail::call(tarnsThreshold_64fc_I, srcDst, detail::length, level, relOp);
}

// Limits elements below the level.
inline Warning thresholdLT(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level)
{
    return detail::call(tarnsThreshold_LT_16s, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level)
{
    return detail::call(tarnsThreshold_LT_16sc, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::call(tarnsThreshold_LT_32f, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::call(tarnsThreshold_LT_32fc, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::call(tarnsThreshold_LT_64f, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level)
{
    return detail::call(tarnsThreshold_LT_64fc, src, dst, detail::length, level);
}
inline Warning thresholdLT(std::span<const std::int32_t> src, std::span<std::int32_t> dst, std::int32_t level)
{
    return detail::call(tarnsThreshold_LT_32s, src, dst, detail::length, level);
}

// Limits elements below the level, in place.
inline Warning thresholdLT(std::span<std::int16_t> srcDst, std::int16_t level)
{
    return detail::call(tarnsThreshold_LT_16s_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<Tarn16sc> srcDst, std::int16_t level)
{
    return detail::call(tarnsThreshold_LT_16sc_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<float> srcDst, float level)
{
    return detail::call(tarnsThreshold_LT_32f_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<std::complex<float>> srcDst, float level)
{
    return detail::call(tarnsThreshold_LT_32fc_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<double> srcDst, double level)
{
    return detail::call(tarnsThreshold_LT_64f_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<std::complex<double>> srcDst, double level)
{
    return detail::call(tarnsThreshold_LT_64fc_I, srcDst, detail::length, level);
}
inline Warning thresholdLT(std::span<std::int32_t> srcDst, std::int32_t level)
{
    return detail::call(tarnsThreshold_LT_32s_I, srcDst, detail::length, level);
}

// Limits elements above the level.
inline Warning thresholdGT(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level)
{
    return detail::call(tarnsThreshold_GT_16s, src, dst, detail::length, level);
}
inline Warning thresholdGT(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level)
{
    return detail::call(tarnsThreshold_GT_16sc, src, dst, detail::length, level);
}
inline Warning thresholdGT(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::call(tarnsThreshold_GT_32f, src, dst, detail::length, level);
}
inline Warning thresholdGT(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::call(tarnsThreshold_GT_32fc, src, dst, detail::length, level);
}
inline Warning thresholdGT(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::call(tarnsThreshold_GT_64f, src, dst, detail::length, level);
}
inline Warning thresholdGT(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst, double level)
{
    return detail::call(tarnsThreshold_GT_64fc, src, dst, detail::length, level);
}

// Limits elements above the level, in place.
inline Warning thresholdGT(std::span<std::int16_t> srcDst, std::int16_t level)
{
    return detail::call(tarnsThreshold_GT_16s_I, srcDst, detail::length, level);
}
inline Warning thresholdGT(std::span<Tarn16sc> srcDst, std::int16_t level)
{
    return detail::call(tarnsThreshold_GT_16sc_I, srcDst, detail::length, level);
}
inline Warning thresholdGT(std::span<float> srcDst, float level)
{
    return detail::call(tarnsThreshold_GT_32f_I, srcDst, detail::length, level);
}
inline Warning thresholdGT(std::span<std::complex<float>> srcDst, float level)
{
    return detail::call(tarnsThreshold_GT_32fc_I, srcDst, detail::length, level);
}
inline Warning thresholdGT(std::span<double> srcDst, double level)
{
    return detail::call(tarnsThreshold_GT_64f_I, srcDst, detail::length, level);
}
inline Warning thresholdGT(std::span<std::complex<double>> srcDst, double level)
{
    return detail::call(tarnsThreshold_GT_64fc_I, srcDst, detail::length, level);
}

// Replaces elements below the level.
inline Warning thresholdLTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level,
                              std::int16_t value)
{
    return detail::call(tarnsThreshold_LTVal_16s, src, dst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level,
                              Tarn16sc value)
{
    return detail::call(tarnsThreshold_LTVal_16sc, src, dst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<const float> src, std::span<float> dst, float level, float value)
{
    return detail::call(tarnsThreshold_LTVal_32f, src, dst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                              std::complex<float> value)
{
    return detail::call(tarnsThreshold_LTVal_32fc, src, dst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<const double> src, std::span<double> dst, double level, double value)
{
    return detail::call(tarnsThreshold_LTVal_64f, src, dst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level, std::complex<double> value)
{
    return detail::call(tarnsThreshold_LTVal_64fc, src, dst, detail::length, level, value);
}

// Replaces elements below the level, in place.
inline Warning thresholdLTVal(std::span<std::int16_t> srcDst, std::int16_t level, std::int16_t value)
{
    return detail::call(tarnsThreshold_LTVal_16s_I, srcDst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<Tarn16sc> srcDst, std::int16_t level, Tarn16sc value)
{
    return detail::call(tarnsThreshold_LTVal_16sc_I, srcDst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<float> srcDst, float level, float value)
{
    return detail::call(tarnsThreshold_LTVal_32f_I, srcDst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<std::complex<float>> srcDst, float level, std::complex<float> value)
{
    return detail::call(tarnsThreshold_LTVal_32fc_I, srcDst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<double> srcDst, double level, double value)
{
    return detail::call(tarnsThreshold_LTVal_64f_I, srcDst, detail::length, level, value);
}
inline Warning thresholdLTVal(std::span<std::complex<double>> srcDst, double level, std::complex<double> value)
{
    return detail::call(tarnsThreshold_LTVal_64fc_I, srcDst, detail::length, level, value);
}

// Replaces elements above the level.
inline Warning thresholdGTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t level,
                              std::int16_t value)
{
    return detail::call(tarnsThreshold_GTVal_16s, src, dst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<const Tarn16sc> src, std::span<Tarn16sc> dst, std::int16_t level,
                              Tarn16sc value)
{
    return detail::call(tarnsThreshold_GTVal_16sc, src, dst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<const float> src, std::span<float> dst, float level, float value)
{
    return detail::call(tarnsThreshold_GTVal_32f, src, dst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level,
                              std::complex<float> value)
{
    return detail::call(tarnsThreshold_GTVal_32fc, src, dst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<const double> src, std::span<double> dst, double level, double value)
{
    return detail::call(tarnsThreshold_GTVal_64f, src, dst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level, std::complex<double> value)
{
    return detail::call(tarnsThreshold_GTVal_64fc, src, dst, detail::length, level, value);
}

// Replaces elements above the level, in place.
inline Warning thresholdGTVal(std::span<std::int16_t> srcDst, std::int16_t level, std::int16_t value)
{
    return detail::call(tarnsThreshold_GTVal_16s_I, srcDst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<Tarn16sc> srcDst, std::int16_t level, Tarn16sc value)
{
    return detail::call(tarnsThreshold_GTVal_16sc_I, srcDst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<float> srcDst, float level, float value)
{
    return detail::call(tarnsThreshold_GTVal_32f_I, srcDst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<std::complex<float>> srcDst, float level, std::complex<float> value)
{
    return detail::call(tarnsThreshold_GTVal_32fc_I, srcDst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<double> srcDst, double level, double value)
{
    return detail::call(tarnsThreshold_GTVal_64f_I, srcDst, detail::length, level, value);
}
inline Warning thresholdGTVal(std::span<std::complex<double>> srcDst, double level, std::complex<double> value)
{
    return detail::call(tarnsThreshold_GTVal_64fc_I, srcDst, detail::length, level, value);
}

// Replaces elements outside a band.
inline Warning thresholdLTValGTVal(std::span<const std::int16_t> src, std::span<std::int16_t> dst, std::int16_t levelLT,
                                   std::int16_t valueLT, std::int16_t levelGT, std::int16_t valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_16s, src, dst, detail::length, levelLT, valueLT, levelGT, valueGT);
}
inline Warning thresholdLTValGTVal(std::span<const float> src, std::span<float> dst, float levelLT, float valueLT,
                                   float levelGT, float valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_32f, src, dst, detail::length, levelLT, valueLT, levelGT, valueGT);
}
inline Warning thresholdLTValGTVal(std::span<const double> src, std::span<double> dst, double levelLT, double valueLT,
                                   double levelGT, double valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_64f, src, dst, detail::length, levelLT, valueLT, levelGT, valueGT);
}

// Replaces elements outside a band, in place.
inline Warning thresholdLTValGTVal(std::span<std::int16_t> srcDst, std::int16_t levelLT, std::int16_t valueLT,
                                   std::int16_t levelGT, std::int16_t valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_16s_I, srcDst, detail::length, levelLT, valueLT, levelGT, valueGT);
}
inline Warning thresholdLTValGTVal(std::span<float> srcDst, float levelLT, float valueLT, float levelGT, float valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_32f_I, srcDst, detail::length, levelLT, valueLT, levelGT, valueGT);
}
inline Warning thresholdLTValGTVal(std::span<double> srcDst, double levelLT, double valueLT, double levelGT,
                                   double valueGT)
{
    return detail::call(tarnsThreshold_LTValGTVal_64f_I, srcDst, detail::length, levelLT, valueLT, levelGT, valueGT);
}

// Inverts elements, those below the level as if they had its magnitude.
inline Warning thresholdLTInv(std::span<const float> src, std::span<float> dst, float level)
{
    return detail::call(tarnsThreshold_LTInv_32f, src, dst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<const std::complex<float>> src, std::span<std::complex<float>> dst, float level)
{
    return detail::call(tarnsThreshold_LTInv_32fc, src, dst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<const double> src, std::span<double> dst, double level)
{
    return detail::call(tarnsThreshold_LTInv_64f, src, dst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<const std::complex<double>> src, std::span<std::complex<double>> dst,
                              double level)
{
    return detail::call(tarnsThreshold_LTInv_64fc, src, dst, detail::length, level);
}

// Inverts elements, those below the level as if they had its magnitude, in place.
inline Warning thresholdLTInv(std::span<float> srcDst, float level)
{
    return detail::call(tarnsThreshold_LTInv_32f_I, srcDst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<std::complex<float>> srcDst, float level)
{
    return detail::call(tarnsThreshold_LTInv_32fc_I, srcDst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<double> srcDst, double level)
{
    return detail::call(tarnsThreshold_LTInv_64f_I, srcDst, detail::length, level);
}
inline Warning thresholdLTInv(std::span<std::complex<double>> srcDst, double level)
{
    return detail::call(tarnsThreshold_LTInv_64fc_I, srcDst, detail::length, level);
}

} // namespace tarns
