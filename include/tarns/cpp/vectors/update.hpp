// Written by scripts/cpp-face from <tarns/update.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Pre-emphasis, which raises the high frequencies of speech:

/// tarnsPreemphasize_32f
inline Warning preemphasize(std::span<float> srcDst, float val)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsPreemphasize_32f(detail::data<Tarn32f>(srcDst), detail::count(srcDst), val)
                               : tarnStsSizeErr);
}

/// tarnsPreemphasize_16s
inline Warning preemphasize(std::span<std::int16_t> srcDst, float val)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsPreemphasize_16s(detail::data<Tarn16s>(srcDst), detail::count(srcDst), val)
                               : tarnStsSizeErr);
}

} // namespace tarns
