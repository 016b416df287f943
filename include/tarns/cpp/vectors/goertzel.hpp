// Written by scripts/cpp-face from <tarns/goertzel.h>; changes go there. Every function calls the one of the C
// interface that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// One bin of a vector of floats, rounded to the type of the result once.

/// tarnsGoertz_32f
inline Outcome<std::complex<float>> goertz(std::span<const float> src, float rFreq)
{
    Tarn32fc val{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsGoertz_32f(detail::data<Tarn32f>(src), detail::count(src), &val, rFreq)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(val));
}

/// tarnsGoertz_32fc
inline Outcome<std::complex<float>> goertz(std::span<const std::complex<float>> src, float rFreq)
{
    Tarn32fc val{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsGoertz_32fc(detail::data<Tarn32fc>(src), detail::count(src), &val, rFreq)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<float>>(status, detail::fromC(val));
}

/// tarnsGoertz_64fc
inline Outcome<std::complex<double>> goertz(std::span<const std::complex<double>> src, double rFreq)
{
    Tarn64fc val{};
    const TarnStatus status = detail::sameSize(src)
                                  ? tarnsGoertz_64fc(detail::data<Tarn64fc>(src), detail::count(src), &val, rFreq)
                                  : tarnStsSizeErr;
    return detail::outcome<std::complex<double>>(status, detail::fromC(val));
}

// One bin of a vector of 16-bit integers, times 2^-scaleFactor.

/// tarnsGoertz_16s_Sfs
inline Outcome<Tarn16sc> goertz(std::span<const std::int16_t> src, float rFreq, int scaleFactor)
{
    Tarn16sc val{};
    const TarnStatus status = detail::sameSize(src) ? tarnsGoertz_16s_Sfs(detail::data<Tarn16s>(src),
                                                                          detail::count(src), &val, rFreq, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(val));
}

/// tarnsGoertz_16sc_Sfs
inline Outcome<Tarn16sc> goertz(std::span<const Tarn16sc> src, float rFreq, int scaleFactor)
{
    Tarn16sc val{};
    const TarnStatus status = detail::sameSize(src) ? tarnsGoertz_16sc_Sfs(detail::data<Tarn16sc>(src),
                                                                           detail::count(src), &val, rFreq, scaleFactor)
                                                    : tarnStsSizeErr;
    return detail::outcome<Tarn16sc>(status, detail::fromC(val));
}

} // namespace tarns
