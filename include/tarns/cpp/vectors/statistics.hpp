// Written by scripts/cpp-face from <tarns/statistics.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Adds up a vector of floats.
inline Outcome<float> sum(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    return detail::answer<Tarn32f>(tarnsSum_32f, src, detail::length, detail::result<>, hint);
}
inline Outcome<std::complex<float>> sum(std::span<const std::complex<float>> src,
                                        TarnHintAlgorithm hint = tarnAlgHintNone)
{
    return detail::answer<Tarn32fc>(tarnsSum_32fc, src, detail::length, detail::result<>, hint);
}
inline Outcome<double> sum(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsSum_64f, src, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> sum(std::span<const std::complex<double>> src)
{
    return detail::answer<Tarn64fc>(tarnsSum_64fc, src, detail::length, detail::result<>);
}

// Adds up a vector of integers.
inline Outcome<std::int16_t> sum(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn16s>(tarnsSum_16s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn16sc> sum(std::span<const Tarn16sc> src, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsSum_16sc_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<std::int32_t> sum_16s32s(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsSum_16s32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn32sc> sum_16sc32sc(std::span<const Tarn16sc> src, int scaleFactor)
{
    return detail::answer<Tarn32sc>(tarnsSum_16sc32sc_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<std::int32_t> sum(std::span<const std::int32_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsSum_32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the arithmetic mean of a vector of floats.
inline Outcome<float> mean(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    return detail::answer<Tarn32f>(tarnsMean_32f, src, detail::length, detail::result<>, hint);
}
inline Outcome<std::complex<float>> mean(std::span<const std::complex<float>> src,
                                         TarnHintAlgorithm hint = tarnAlgHintNone)
{
    return detail::answer<Tarn32fc>(tarnsMean_32fc, src, detail::length, detail::result<>, hint);
}
inline Outcome<double> mean(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsMean_64f, src, detail::length, detail::result<>);
}
inline Outcome<std::complex<double>> mean(std::span<const std::complex<double>> src)
{
    return detail::answer<Tarn64fc>(tarnsMean_64fc, src, detail::length, detail::result<>);
}

// Computes the arithmetic mean of a vector of 16-bit integers.
inline Outcome<std::int16_t> mean(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn16s>(tarnsMean_16s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<Tarn16sc> mean(std::span<const Tarn16sc> src, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsMean_16sc_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the standard deviation of a sample of floats, by the sums s1 of its elements and s2 of their ...
inline Outcome<float> stdDev(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    return detail::answer<Tarn32f>(tarnsStdDev_32f, src, detail::length, detail::result<>, hint);
}
inline Outcome<double> stdDev(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsStdDev_64f, src, detail::length, detail::result<>);
}

// Computes the standard deviation of a sample of 16-bit integers, by the same formula from exact sums.
inline Outcome<std::int32_t> stdDev(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn32s>(tarnsStdDev_16s32s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}
inline Outcome<std::int16_t> stdDev_16s(std::span<const std::int16_t> src, int scaleFactor)
{
    return detail::answer<Tarn16s>(tarnsStdDev_16s_Sfs, src, detail::length, detail::result<>, scaleFactor);
}

// Computes the sum of natural logarithms.
inline Outcome<float> sumLn(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsSumLn_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> sumLn(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsSumLn_64f, src, detail::length, detail::result<>);
}
inline Outcome<double> sumLn_32f64f(std::span<const float> src)
{
    return detail::answer<Tarn64f>(tarnsSumLn_32f64f, src, detail::length, detail::result<>);
}
inline Outcome<float> sumLn(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn32f>(tarnsSumLn_16s32f, src, detail::length, detail::result<>);
}

// Finds the smallest element.
inline Outcome<std::int16_t> min(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s>(tarnsMin_16s, src, detail::length, detail::result<>);
}
inline Outcome<float> min(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsMin_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> min(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsMin_64f, src, detail::length, detail::result<>);
}

// Finds the largest element.
inline Outcome<std::int16_t> max(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s>(tarnsMax_16s, src, detail::length, detail::result<>);
}
inline Outcome<float> max(std::span<const float> src)
{
    return detail::answer<Tarn32f>(tarnsMax_32f, src, detail::length, detail::result<>);
}
inline Outcome<double> max(std::span<const double> src)
{
    return detail::answer<Tarn64f>(tarnsMax_64f, src, detail::length, detail::result<>);
}

// Finds the smallest element and the index of its first occurrence.
inline Outcome<std::tuple<std::int16_t, int>> minIndx(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s, int>(tarnsMinIndx_16s, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<float, int>> minIndx(std::span<const float> src)
{
    return detail::answer<Tarn32f, int>(tarnsMinIndx_32f, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<double, int>> minIndx(std::span<const double> src)
{
    return detail::answer<Tarn64f, int>(tarnsMinIndx_64f, src, detail::length, detail::result<>, detail::result<1>);
}

// Finds the largest element and the index of its first occurrence.
inline Outcome<std::tuple<std::int16_t, int>> maxIndx(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s, int>(tarnsMaxIndx_16s, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<float, int>> maxIndx(std::span<const float> src)
{
    return detail::answer<Tarn32f, int>(tarnsMaxIndx_32f, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<double, int>> maxIndx(std::span<const double> src)
{
    return detail::answer<Tarn64f, int>(tarnsMaxIndx_64f, src, detail::length, detail::result<>, detail::result<1>);
}

// Finds the smallest and largest element in one pass.
inline Outcome<std::tuple<std::uint8_t, std::uint8_t>> minMax(std::span<const std::uint8_t> src)
{
    return detail::answer<Tarn8u, Tarn8u>(tarnsMinMax_8u, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<std::uint16_t, std::uint16_t>> minMax(std::span<const std::uint16_t> src)
{
    return detail::answer<Tarn16u, Tarn16u>(tarnsMinMax_16u, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<std::int16_t, std::int16_t>> minMax(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s, Tarn16s>(tarnsMinMax_16s, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<std::uint32_t, std::uint32_t>> minMax(std::span<const std::uint32_t> src)
{
    return detail::answer<Tarn32u, Tarn32u>(tarnsMinMax_32u, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<std::int32_t, std::int32_t>> minMax(std::span<const std::int32_t> src)
{
    return detail::answer<Tarn32s, Tarn32s>(tarnsMinMax_32s, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<float, float>> minMax(std::span<const float> src)
{
    return detail::answer<Tarn32f, Tarn32f>(tarnsMinMax_32f, src, detail::length, detail::result<>, detail::result<1>);
}
inline Outcome<std::tuple<double, double>> minMax(std::span<const double> src)
{
    return detail::answer<Tarn64f, Tarn64f>(tarnsMinMax_64f, src, detail::length, detail::result<>, detail::result<1>);
}

// Finds the smallest and largest element and the indices of their first occurrences.
inline Outcome<std::tuple<std::uint8_t, int, std::uint8_t, int>> minMaxIndx(std::span<const std::uint8_t> src)
{
    return detail::answer<Tarn8u, int, Tarn8u, int>(tarnsMinMaxIndx_8u, src, detail::length, detail::result<>,
                                                    detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<std::uint16_t, int, std::uint16_t, int>> minMaxIndx(std::span<const std::uint16_t> src)
{
    return detail::answer<Tarn16u, int, Tarn16u, int>(tarnsMinMaxIndx_16u, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<std::int16_t, int, std::int16_t, int>> minMaxIndx(std::span<const std::int16_t> src)
{
    return detail::answer<Tarn16s, int, Tarn16s, int>(tarnsMinMaxIndx_16s, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<std::uint32_t, int, std::uint32_t, int>> minMaxIndx(std::span<const std::uint32_t> src)
{
    return detail::answer<Tarn32u, int, Tarn32u, int>(tarnsMinMaxIndx_32u, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<std::int32_t, int, std::int32_t, int>> minMaxIndx(std::span<const std::int32_t> src)
{
    return detail::answer<Tarn32s, int, Tarn32s, int>(tarnsMinMaxIndx_32s, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<float, int, float, int>> minMaxIndx(std::span<const float> src)
{
    return detail::answer<Tarn32f, int, Tarn32f, int>(tarnsMinMaxIndx_32f, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}
inline Outcome<std::tuple<double, int, double, int>> minMaxIndx(std::span<const double> src)
{
    return detail::answer<Tarn64f, int, Tarn64f, int>(tarnsMinMaxIndx_64f, src, detail::length, detail::result<>,
                                                      detail::result<1>, detail::result<2>, detail::result<3>);
}

// Takes element by element the smaller or the larger of two vectors.
inline Warning minEvery(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsMinEvery_16s_I, src, srcDst, detail::length);
}
inline Warning minEvery(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsMinEvery_32s_I, src, srcDst, detail::length);
}
inline Warning minEvery(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMinEvery_32f_I, src, srcDst, detail::length);
}
inline Warning maxEvery(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsMaxEvery_16s_I, src, srcDst, detail::length);
}
inline Warning maxEvery(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsMaxEvery_32s_I, src, srcDst, detail::length);
}
inline Warning maxEvery(std::span<const float> src, std::span<float> srcDst)
{
    return detail::call(tarnsMaxEvery_32f_I, src, srcDst, detail::length);
}

// Tells the order of a vector.
inline Outcome<int> maxOrder(std::span<const std::int16_t> src)
{
    return detail::answer<int>(tarnsMaxOrder_16s, src, detail::length, detail::result<>);
}
inline Outcome<int> maxOrder(std::span<const std::int32_t> src)
{
    return detail::answer<int>(tarnsMaxOrder_32s, src, detail::length, detail::result<>);
}
inline Outcome<int> maxOrder(std::span<const float> src)
{
    return detail::answer<int>(tarnsMaxOrder_32f, src, detail::length, detail::result<>);
}
inline Outcome<int> maxOrder(std::span<const double> src)
{
    return detail::answer<int>(tarnsMaxOrder_64f, src, detail::length, detail::result<>);
}

} // namespace tarns
