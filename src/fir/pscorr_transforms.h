// Correlations by one transform: real spectra in Pack format, complex ones as they are.
#pragma once

#include "fir/psconv_transforms.h"
#include "levels/fir/pscorr.h"

namespace tarn {

// The calls for a type; `correlate` multiplies a spectrum by the conjugate of the second, in the second's place.
template <typename T>
struct CorrelationCalls : TransformCalls<T> {
    static void correlate(const T* spectrum, T* conjugated, int len) { multiplyByConjugate(spectrum, conjugated, len); }
};
template <>
struct CorrelationCalls<Tarn32f> : TransformCalls<Tarn32f> {
    static constexpr auto forward = tarnsFFTFwd_RToPack_32f;
    static constexpr auto correlate = tarnsMulPackConj_32f_I;
    static constexpr auto inverse = tarnsFFTInv_PackToR_32f;
};
template <>
struct CorrelationCalls<Tarn64f> : TransformCalls<Tarn64f> {
    static constexpr auto forward = tarnsFFTFwd_RToPack_64f;
    static constexpr auto correlate = tarnsMulPackConj_64f_I;
    static constexpr auto inverse = tarnsFFTInv_PackToR_64f;
};

template <typename T>
using CorrelationCall = OneCall<T, CorrelationCalls<T>>;

inline constexpr int smallestCorrelationOrder = 1;

} // namespace tarn
