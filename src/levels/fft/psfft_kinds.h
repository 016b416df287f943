// The power-of-two transform of an element's type: of real signals with the spectrum in Perm format, or of complex
// ones.
#pragma once

#include "tarns/fft.h"

namespace tarn {

template <typename T>
struct TransformOf;
template <>
struct TransformOf<Tarn32f> {
    using Spec = TarnsFFTSpec_R_32f;
};
template <>
struct TransformOf<Tarn32fc> {
    using Spec = TarnsFFTSpec_C_32fc;
};
template <>
struct TransformOf<Tarn64f> {
    using Spec = TarnsFFTSpec_R_64f;
};
template <>
struct TransformOf<Tarn64fc> {
    using Spec = TarnsFFTSpec_C_64fc;
};

} // namespace tarn
