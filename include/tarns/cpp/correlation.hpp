// Convolution, correlation and filter design, whose arrays have lengths of their own.
#pragma once

#include <tarns/cpp/object.hpp>

namespace tarns {
namespace detail {

template <class First, class Second>
bool countable(const First& first, const Second& second) noexcept
{
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return first.size() <= most && second.size() <= most;
}

template <class Function, class T, class... More>
Warning convolveBy(Function function, std::span<const T> a, std::span<const T> b, std::span<T> product, More... more)
{
    const bool fits = countable(a, b) && !a.empty() && !b.empty() && product.size() == a.size() + b.size() - 1;
    return warning(fits ? function(elements(a), count(a), elements(b), count(b), elements(product), more...)
                        : tarnStsSizeErr);
}

template <class Function, class T>
Warning autoCorrelateBy(Function function, std::span<const T> samples, std::span<T> lags)
{
    return warning(countable(samples, lags) ? function(elements(samples), count(samples), elements(lags), count(lags))
                                            : tarnStsSizeErr);
}

template <class Function, class T>
Warning crossCorrelateBy(Function function, std::span<const T> a, std::span<const T> b, std::span<T> lags, int lowLag)
{
    return warning(countable(a, b) && countable(lags, lags)
                       ? function(elements(a), count(a), elements(b), count(b), elements(lags), count(lags), lowLag)
                       : tarnStsSizeErr);
}

} // namespace detail

/// product[n] = sum of a[k] b[n - k]; a.size() + b.size() - 1 elements.
///@{
inline Warning convolve(std::span<const float> a, std::span<const float> b, std::span<float> product)
{
    return detail::convolveBy(tarnsConv_32f, a, b, product);
}
inline Warning convolve(std::span<const double> a, std::span<const double> b, std::span<double> product)
{
    return detail::convolveBy(tarnsConv_64f, a, b, product);
}
inline Warning convolve(std::span<const std::int16_t> a, std::span<const std::int16_t> b,
                        std::span<std::int16_t> product, int scaleFactor)
{
    return detail::convolveBy(tarnsConv_16s_Sfs, a, b, product, scaleFactor);
}
///@}

/// lags[n] = sum of conj(samples[k]) samples[k + n].
///@{
inline Warning autoCorrelate(std::span<const float> samples, std::span<float> lags)
{
    return detail::autoCorrelateBy(tarnsAutoCorr_32f, samples, lags);
}
inline Warning autoCorrelate(std::span<const double> samples, std::span<double> lags)
{
    return detail::autoCorrelateBy(tarnsAutoCorr_64f, samples, lags);
}
inline Warning autoCorrelate(std::span<const std::complex<float>> samples, std::span<std::complex<float>> lags)
{
    return detail::autoCorrelateBy(tarnsAutoCorr_32fc, samples, lags);
}
inline Warning autoCorrelate(std::span<const std::complex<double>> samples, std::span<std::complex<double>> lags)
{
    return detail::autoCorrelateBy(tarnsAutoCorr_64fc, samples, lags);
}
///@}

/// lags[n] = sum of conj(a[k]) b[k + n + lowLag].
///@{
inline Warning crossCorrelate(std::span<const float> a, std::span<const float> b, std::span<float> lags, int lowLag)
{
    return detail::crossCorrelateBy(tarnsCrossCorr_32f, a, b, lags, lowLag);
}
inline Warning crossCorrelate(std::span<const double> a, std::span<const double> b, std::span<double> lags, int lowLag)
{
    return detail::crossCorrelateBy(tarnsCrossCorr_64f, a, b, lags, lowLag);
}
inline Warning crossCorrelate(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b,
                              std::span<std::complex<float>> lags, int lowLag)
{
    return detail::crossCorrelateBy(tarnsCrossCorr_32fc, a, b, lags, lowLag);
}
inline Warning crossCorrelate(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b,
                              std::span<std::complex<double>> lags, int lowLag)
{
    return detail::crossCorrelateBy(tarnsCrossCorr_64fc, a, b, lags, lowLag);
}
///@}

/// Taps of linear-phase filters by windowing; frequencies are fractions of the sampling rate, up to 0.5.
///@{
inline Warning designLowpass(double edge, std::span<double> taps, int window = tarnWinHamming)
{
    return detail::warning(tarnsFIRGenLowpass_64f(edge, taps.data(), detail::count(taps), window, 1));
}
inline Warning designHighpass(double edge, std::span<double> taps, int window = tarnWinHamming)
{
    return detail::warning(tarnsFIRGenHighpass_64f(edge, taps.data(), detail::count(taps), window, 1));
}
inline Warning designBandpass(double low, double high, std::span<double> taps, int window = tarnWinHamming)
{
    return detail::warning(tarnsFIRGenBandpass_64f(low, high, taps.data(), detail::count(taps), window, 1));
}
inline Warning designBandstop(double low, double high, std::span<double> taps, int window = tarnWinHamming)
{
    return detail::warning(tarnsFIRGenBandstop_64f(low, high, taps.data(), detail::count(taps), window, 1));
}
///@}

} // namespace tarns
