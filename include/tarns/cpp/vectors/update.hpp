// Written by scripts/cpp-face from <tarns/update.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Pre-emphasizes a signal, which raises the high frequencies of speech.
inline Warning preemphasize(std::span<float> srcDst, float val)
{
    return detail::call(tarnsPreemphasize_32f, srcDst, detail::length, val);
}
inline Warning preemphasize(std::span<std::int16_t> srcDst, float val)
{
    return detail::call(tarnsPreemphasize_16s, srcDst, detail::length, val);
}

} // namespace tarns
