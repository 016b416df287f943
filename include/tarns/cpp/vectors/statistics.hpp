// Written by scripts/cpp-face from <tarns/statistics.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Adds up a vector of floats:

/// tarnsSum_32f
inline Outcome<float> sum(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    Tarn32f sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSum_32f(detail::data<Tarn32f>(src), detail::count(src), &sum, hint)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(sum));
}

/// tarnsSum_32fc
inline Outcome<std::complex<float>> sum(std::span<const std::complex<float>> src,
                                        TarnHintAlgorithm hint = tarnAlgHintNone)
{
    Tarn32fc sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSum_32fc(detail::data<Tarn32fc>(src), detail::count(src), &sum, hint)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(sum));
}

/// tarnsSum_64f
inline Outcome<double> sum(std::span<const double> src)
{
    Tarn64f sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSum_64f(detail::data<Tarn64f>(src), detail::count(src), &sum) : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(sum));
}

/// tarnsSum_64fc
inline Outcome<std::complex<double>> sum(std::span<const std::complex<double>> src)
{
    Tarn64fc sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSum_64fc(detail::data<Tarn64fc>(src), detail::count(src), &sum) : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(sum));
}

// Adds up a vector of integers:

/// tarnsSum_16s_Sfs
inline Outcome<std::int16_t> sum(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn16s sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSum_16s_Sfs(detail::data<Tarn16s>(src), detail::count(src), &sum, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(sum));
}

/// tarnsSum_16sc_Sfs
inline Outcome<Tarn16sc> sum(std::span<const Tarn16sc> src, int scaleFactor)
{
    Tarn16sc sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSum_16sc_Sfs(detail::data<Tarn16sc>(src), detail::count(src), &sum, scaleFactor)
                              : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(sum));
}

/// tarnsSum_16s32s_Sfs
inline Outcome<std::int32_t> sum_16s32s(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn32s sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSum_16s32s_Sfs(detail::data<Tarn16s>(src), detail::count(src), &sum, scaleFactor)
                              : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(sum));
}

/// tarnsSum_16sc32sc_Sfs
inline Outcome<Tarn32sc> sum_16sc32sc(std::span<const Tarn16sc> src, int scaleFactor)
{
    Tarn32sc sum{};
    const TarnStatus status = detail::sameSize(src) ? tarnsSum_16sc32sc_Sfs(detail::data<Tarn16sc>(src),
                                                                            detail::count(src), &sum, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<Tarn32sc>(status, detail::fromC(sum));
}

/// tarnsSum_32s_Sfs
inline Outcome<std::int32_t> sum(std::span<const std::int32_t> src, int scaleFactor)
{
    Tarn32s sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSum_32s_Sfs(detail::data<Tarn32s>(src), detail::count(src), &sum, scaleFactor)
                                  : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(sum));
}

// Arithmetic mean of a vector of floats:

/// tarnsMean_32f
inline Outcome<float> mean(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    Tarn32f mean{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMean_32f(detail::data<Tarn32f>(src), detail::count(src), &mean, hint)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(mean));
}

/// tarnsMean_32fc
inline Outcome<std::complex<float>> mean(std::span<const std::complex<float>> src,
                                         TarnHintAlgorithm hint = tarnAlgHintNone)
{
    Tarn32fc mean{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMean_32fc(detail::data<Tarn32fc>(src), detail::count(src), &mean, hint)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(mean));
}

/// tarnsMean_64f
inline Outcome<double> mean(std::span<const double> src)
{
    Tarn64f mean{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMean_64f(detail::data<Tarn64f>(src), detail::count(src), &mean) : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(mean));
}

/// tarnsMean_64fc
inline Outcome<std::complex<double>> mean(std::span<const std::complex<double>> src)
{
    Tarn64fc mean{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMean_64fc(detail::data<Tarn64fc>(src), detail::count(src), &mean) : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(mean));
}

// Arithmetic mean of a vector of 16-bit integers:

/// tarnsMean_16s_Sfs
inline Outcome<std::int16_t> mean(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn16s mean{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMean_16s_Sfs(detail::data<Tarn16s>(src), detail::count(src), &mean, scaleFactor)
                              : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(mean));
}

/// tarnsMean_16sc_Sfs
inline Outcome<Tarn16sc> mean(std::span<const Tarn16sc> src, int scaleFactor)
{
    Tarn16sc mean{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMean_16sc_Sfs(detail::data<Tarn16sc>(src), detail::count(src), &mean, scaleFactor)
                              : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(mean));
}

// Standard deviation of a sample of floats, by the sums s1 of its elements and s2 of their squares:

/// tarnsStdDev_32f
inline Outcome<float> stdDev(std::span<const float> src, TarnHintAlgorithm hint = tarnAlgHintNone)
{
    Tarn32f stdDev{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsStdDev_32f(detail::data<Tarn32f>(src), detail::count(src), &stdDev, hint)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(stdDev));
}

/// tarnsStdDev_64f
inline Outcome<double> stdDev(std::span<const double> src)
{
    Tarn64f stdDev{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsStdDev_64f(detail::data<Tarn64f>(src), detail::count(src), &stdDev)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(stdDev));
}

// Standard deviation of a sample of 16-bit integers, by the same formula from exact sums:

/// tarnsStdDev_16s32s_Sfs
inline Outcome<std::int32_t> stdDev(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn32s stdDev{};
    const TarnStatus status = detail::sameSize(src) ? tarnsStdDev_16s32s_Sfs(detail::data<Tarn16s>(src),
                                                                             detail::count(src), &stdDev, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::int32_t>(status, detail::fromC(stdDev));
}

/// tarnsStdDev_16s_Sfs
inline Outcome<std::int16_t> stdDev_16s(std::span<const std::int16_t> src, int scaleFactor)
{
    Tarn16s stdDev{};
    const TarnStatus status = detail::sameSize(src) ? tarnsStdDev_16s_Sfs(detail::data<Tarn16s>(src),
                                                                          detail::count(src), &stdDev, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(stdDev));
}

// Sum of natural logarithms:

/// tarnsSumLn_32f
inline Outcome<float> sumLn(std::span<const float> src)
{
    Tarn32f sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSumLn_32f(detail::data<Tarn32f>(src), detail::count(src), &sum) : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(sum));
}

/// tarnsSumLn_64f
inline Outcome<double> sumLn(std::span<const double> src)
{
    Tarn64f sum{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsSumLn_64f(detail::data<Tarn64f>(src), detail::count(src), &sum) : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(sum));
}

/// tarnsSumLn_32f64f
inline Outcome<double> sumLn_32f64f(std::span<const float> src)
{
    Tarn64f sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSumLn_32f64f(detail::data<Tarn32f>(src), detail::count(src), &sum)
                                  : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(sum));
}

/// tarnsSumLn_16s32f
inline Outcome<float> sumLn(std::span<const std::int16_t> src)
{
    Tarn32f sum{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsSumLn_16s32f(detail::data<Tarn16s>(src), detail::count(src), &sum)
                                  : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(sum));
}

// Smallest element:

/// tarnsMin_16s
inline Outcome<std::int16_t> min(std::span<const std::int16_t> src)
{
    Tarn16s min{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMin_16s(detail::data<Tarn16s>(src), detail::count(src), &min) : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(min));
}

/// tarnsMin_32f
inline Outcome<float> min(std::span<const float> src)
{
    Tarn32f min{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMin_32f(detail::data<Tarn32f>(src), detail::count(src), &min) : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(min));
}

/// tarnsMin_64f
inline Outcome<double> min(std::span<const double> src)
{
    Tarn64f min{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMin_64f(detail::data<Tarn64f>(src), detail::count(src), &min) : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(min));
}

// Largest element:

/// tarnsMax_16s
inline Outcome<std::int16_t> max(std::span<const std::int16_t> src)
{
    Tarn16s max{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMax_16s(detail::data<Tarn16s>(src), detail::count(src), &max) : tarnStsSizeErr;
    return detail::outcome<std::int16_t>(status, detail::fromC(max));
}

/// tarnsMax_32f
inline Outcome<float> max(std::span<const float> src)
{
    Tarn32f max{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMax_32f(detail::data<Tarn32f>(src), detail::count(src), &max) : tarnStsSizeErr;
    return detail::outcome<float>(status, detail::fromC(max));
}

/// tarnsMax_64f
inline Outcome<double> max(std::span<const double> src)
{
    Tarn64f max{};
    const TarnStatus status =
        detail::sameSize(src) ? tarnsMax_64f(detail::data<Tarn64f>(src), detail::count(src), &max) : tarnStsSizeErr;
    return detail::outcome<double>(status, detail::fromC(max));
}

// Smallest element and the index of its first occurrence.

/// tarnsMinIndx_16s
inline Outcome<std::tuple<std::int16_t, int>> minIndx(std::span<const std::int16_t> src)
{
    Tarn16s min{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinIndx_16s(detail::data<Tarn16s>(src), detail::count(src), &min, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int16_t, int>>(status,
                                                          std::make_tuple(detail::fromC(min), detail::fromC(indx)));
}

/// tarnsMinIndx_32f
inline Outcome<std::tuple<float, int>> minIndx(std::span<const float> src)
{
    Tarn32f min{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinIndx_32f(detail::data<Tarn32f>(src), detail::count(src), &min, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<float, int>>(status, std::make_tuple(detail::fromC(min), detail::fromC(indx)));
}

/// tarnsMinIndx_64f
inline Outcome<std::tuple<double, int>> minIndx(std::span<const double> src)
{
    Tarn64f min{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinIndx_64f(detail::data<Tarn64f>(src), detail::count(src), &min, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<double, int>>(status, std::make_tuple(detail::fromC(min), detail::fromC(indx)));
}

// Largest element and the index of its first occurrence.

/// tarnsMaxIndx_16s
inline Outcome<std::tuple<std::int16_t, int>> maxIndx(std::span<const std::int16_t> src)
{
    Tarn16s max{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxIndx_16s(detail::data<Tarn16s>(src), detail::count(src), &max, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int16_t, int>>(status,
                                                          std::make_tuple(detail::fromC(max), detail::fromC(indx)));
}

/// tarnsMaxIndx_32f
inline Outcome<std::tuple<float, int>> maxIndx(std::span<const float> src)
{
    Tarn32f max{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxIndx_32f(detail::data<Tarn32f>(src), detail::count(src), &max, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<float, int>>(status, std::make_tuple(detail::fromC(max), detail::fromC(indx)));
}

/// tarnsMaxIndx_64f
inline Outcome<std::tuple<double, int>> maxIndx(std::span<const double> src)
{
    Tarn64f max{};
    int indx{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxIndx_64f(detail::data<Tarn64f>(src), detail::count(src), &max, &indx)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<double, int>>(status, std::make_tuple(detail::fromC(max), detail::fromC(indx)));
}

// Smallest and largest element in one pass.

/// tarnsMinMax_8u
inline Outcome<std::tuple<std::uint8_t, std::uint8_t>> minMax(std::span<const std::uint8_t> src)
{
    Tarn8u min{};
    Tarn8u max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_8u(detail::data<Tarn8u>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint8_t, std::uint8_t>>(
        status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_16u
inline Outcome<std::tuple<std::uint16_t, std::uint16_t>> minMax(std::span<const std::uint16_t> src)
{
    Tarn16u min{};
    Tarn16u max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_16u(detail::data<Tarn16u>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint16_t, std::uint16_t>>(
        status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_16s
inline Outcome<std::tuple<std::int16_t, std::int16_t>> minMax(std::span<const std::int16_t> src)
{
    Tarn16s min{};
    Tarn16s max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_16s(detail::data<Tarn16s>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int16_t, std::int16_t>>(
        status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_32u
inline Outcome<std::tuple<std::uint32_t, std::uint32_t>> minMax(std::span<const std::uint32_t> src)
{
    Tarn32u min{};
    Tarn32u max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_32u(detail::data<Tarn32u>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint32_t, std::uint32_t>>(
        status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_32s
inline Outcome<std::tuple<std::int32_t, std::int32_t>> minMax(std::span<const std::int32_t> src)
{
    Tarn32s min{};
    Tarn32s max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_32s(detail::data<Tarn32s>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int32_t, std::int32_t>>(
        status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_32f
inline Outcome<std::tuple<float, float>> minMax(std::span<const float> src)
{
    Tarn32f min{};
    Tarn32f max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_32f(detail::data<Tarn32f>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<float, float>>(status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

/// tarnsMinMax_64f
inline Outcome<std::tuple<double, double>> minMax(std::span<const double> src)
{
    Tarn64f min{};
    Tarn64f max{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMinMax_64f(detail::data<Tarn64f>(src), detail::count(src), &min, &max)
                                  : tarnStsSizeErr;
    return detail::outcome<std::tuple<double, double>>(status, std::make_tuple(detail::fromC(min), detail::fromC(max)));
}

// Smallest and largest element and the indices of their first occurrences.

/// tarnsMinMaxIndx_8u
inline Outcome<std::tuple<std::uint8_t, int, std::uint8_t, int>> minMaxIndx(std::span<const std::uint8_t> src)
{
    Tarn8u min{};
    int minIndx{};
    Tarn8u max{};
    int maxIndx{};
    const TarnStatus status = detail::sameSize(src) ? tarnsMinMaxIndx_8u(detail::data<Tarn8u>(src), detail::count(src),
                                                                         &min, &minIndx, &max, &maxIndx)
                                                    : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint8_t, int, std::uint8_t, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_16u
inline Outcome<std::tuple<std::uint16_t, int, std::uint16_t, int>> minMaxIndx(std::span<const std::uint16_t> src)
{
    Tarn16u min{};
    int minIndx{};
    Tarn16u max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_16u(detail::data<Tarn16u>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint16_t, int, std::uint16_t, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_16s
inline Outcome<std::tuple<std::int16_t, int, std::int16_t, int>> minMaxIndx(std::span<const std::int16_t> src)
{
    Tarn16s min{};
    int minIndx{};
    Tarn16s max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_16s(detail::data<Tarn16s>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int16_t, int, std::int16_t, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_32u
inline Outcome<std::tuple<std::uint32_t, int, std::uint32_t, int>> minMaxIndx(std::span<const std::uint32_t> src)
{
    Tarn32u min{};
    int minIndx{};
    Tarn32u max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_32u(detail::data<Tarn32u>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::uint32_t, int, std::uint32_t, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_32s
inline Outcome<std::tuple<std::int32_t, int, std::int32_t, int>> minMaxIndx(std::span<const std::int32_t> src)
{
    Tarn32s min{};
    int minIndx{};
    Tarn32s max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_32s(detail::data<Tarn32s>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<std::int32_t, int, std::int32_t, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_32f
inline Outcome<std::tuple<float, int, float, int>> minMaxIndx(std::span<const float> src)
{
    Tarn32f min{};
    int minIndx{};
    Tarn32f max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_32f(detail::data<Tarn32f>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<float, int, float, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

/// tarnsMinMaxIndx_64f
inline Outcome<std::tuple<double, int, double, int>> minMaxIndx(std::span<const double> src)
{
    Tarn64f min{};
    int minIndx{};
    Tarn64f max{};
    int maxIndx{};
    const TarnStatus status =
        detail::sameSize(src)
            ? tarnsMinMaxIndx_64f(detail::data<Tarn64f>(src), detail::count(src), &min, &minIndx, &max, &maxIndx)
            : tarnStsSizeErr;
    return detail::outcome<std::tuple<double, int, double, int>>(
        status,
        std::make_tuple(detail::fromC(min), detail::fromC(minIndx), detail::fromC(max), detail::fromC(maxIndx)));
}

// Element by element the smaller or the larger of two vectors:

/// tarnsMinEvery_16s_I
inline Warning minEvery(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMinEvery_16s_I(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMinEvery_32s_I
inline Warning minEvery(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMinEvery_32s_I(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMinEvery_32f_I
inline Warning minEvery(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMinEvery_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMaxEvery_16s_I
inline Warning maxEvery(std::span<const std::int16_t> src, std::span<std::int16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMaxEvery_16s_I(detail::data<Tarn16s>(src), detail::data<Tarn16s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMaxEvery_32s_I
inline Warning maxEvery(std::span<const std::int32_t> src, std::span<std::int32_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMaxEvery_32s_I(detail::data<Tarn32s>(src), detail::data<Tarn32s>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsMaxEvery_32f_I
inline Warning maxEvery(std::span<const float> src, std::span<float> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsMaxEvery_32f_I(detail::data<Tarn32f>(src), detail::data<Tarn32f>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Order of a vector.

/// tarnsMaxOrder_16s
inline Outcome<int> maxOrder(std::span<const std::int16_t> src)
{
    int order{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxOrder_16s(detail::data<Tarn16s>(src), detail::count(src), &order)
                                  : tarnStsSizeErr;
    return detail::outcome<int>(status, detail::fromC(order));
}

/// tarnsMaxOrder_32s
inline Outcome<int> maxOrder(std::span<const std::int32_t> src)
{
    int order{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxOrder_32s(detail::data<Tarn32s>(src), detail::count(src), &order)
                                  : tarnStsSizeErr;
    return detail::outcome<int>(status, detail::fromC(order));
}

/// tarnsMaxOrder_32f
inline Outcome<int> maxOrder(std::span<const float> src)
{
    int order{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxOrder_32f(detail::data<Tarn32f>(src), detail::count(src), &order)
                                  : tarnStsSizeErr;
    return detail::outcome<int>(status, detail::fromC(order));
}

/// tarnsMaxOrder_64f
inline Outcome<int> maxOrder(std::span<const double> src)
{
    int order{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsMaxOrder_64f(detail::data<Tarn64f>(src), detail::count(src), &order)
                                  : tarnStsSizeErr;
    return detail::outcome<int>(status, detail::fromC(order));
}

} // namespace tarns
