// Written by scripts/cpp-face from <tarns/goertzel.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Computes one bin of a vector of floats, rounded to the type of the result once.
inline Outcome<std::complex<float>> goertz(std::span<const float> src, float rFreq)
{
    return detail::answer<Tarn32fc>(tarnsGoertz_32f, src, detail::length, detail::result<>, rFreq);
}
inline Outcome<std::complex<float>> goertz(std::span<const std::complex<float>> src, float rFreq)
{
    return detail::answer<Tarn32fc>(tarnsGoertz_32fc, src, detail::length, detail::result<>, rFreq);
}
inline Outcome<std::complex<double>> goertz(std::span<const std::complex<double>> src, double rFreq)
{
    return detail::answer<Tarn64fc>(tarnsGoertz_64fc, src, detail::length, detail::result<>, rFreq);
}

// Computes one bin of a vector of 16-bit integers, times 2^-scaleFactor.
inline Outcome<Tarn16sc> goertz(std::span<const std::int16_t> src, float rFreq, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsGoertz_16s_Sfs, src, detail::length, detail::result<>, rFreq, scaleFactor);
}
inline Outcome<Tarn16sc> goertz(std::span<const Tarn16sc> src, float rFreq, int scaleFactor)
{
    return detail::answer<Tarn16sc>(tarnsGoertz_16sc_Sfs, src, detail::length, detail::result<>, rFreq, scaleFactor);
}

} // namespace tarns
